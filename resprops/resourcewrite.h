// Turns property arrays into a DIALOG, its MENU and its ICONs in an RC file.
#pragma once

#include "rc/symbols.h"
#include "resprops/proparray.h"

namespace brelt::resprops {

// Writes the window of the dialog rows with its controls, the menu of the menu rows if the window has one, an
// ICON for each icon control, and the #define lines of the file. What the file had of the window before is
// replaced. rcFile is a full path or a bare file name, which is completed with the current directory. The
// menu rows must be there also for a window without a menu. The error text holds the first failure and is
// empty on success; without a buffer for it nothing is done.
void ResourceWrite(const PropertyArray& dialog, const PropertyArray& menu, const char* rcFile,
                   rc::TextBuffer error) noexcept;

// The lowest number from 100 upward that no symbol has.
std::int32_t NextFreeId(std::span<const rc::SymbolRecord> symbols) noexcept;

}  // namespace brelt::resprops
