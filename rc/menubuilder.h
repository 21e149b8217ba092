// Makes the menu of a window from the text of a MENU resource.
#pragma once

#include "rc/accelerators.h"
#include "rc/menuhost.h"
#include "rc/menuoptions.h"
#include "rc/symbols.h"

namespace brelt::rc {

// Builds the menu that an RC file holds under a name and fills the table of its keys, which is cleared first.
// Null with a failure whose message begins with the menu's name; null without one when either name is null or
// empty. The caller owns the menu.
host::MenuHandle* BuildMenuFromFile(const char* fileName, const char* menuName, const SymbolIndex& symbols,
                                    AcceleratorTable& accelerators, Failure& failure) noexcept;

// The same from a resource's text. A failure has the line and column within the text at its end.
host::MenuHandle* BuildMenu(const char* text, const SymbolIndex& symbols, AcceleratorTable& accelerators,
                            Failure& failure) noexcept;

}  // namespace brelt::rc
