// The six menu operations that building a menu needs. The DLL links the platform's; tests link a model in
// memory.
#pragma once

#include <cstdint>

#include "rc/text.h"

namespace brelt::host {

// A menu. It is owned by whoever made it until it is appended to another menu or given to DestroyMenuTree.
struct MenuHandle;

// Null when the platform can't make one.
MenuHandle* MakeMenu() noexcept;
MenuHandle* MakePopupMenu() noexcept;
// flags are the platform's MF_ bits. A separator needs neither id nor text. False when the entry
// can't be had; the popup then stays the caller's.
bool AppendItem(MenuHandle* menu, std::uint32_t flags, std::int32_t id, const char* text) noexcept;
bool AppendPopup(MenuHandle* menu, std::uint32_t flags, MenuHandle* popup, const char* text) noexcept;
int CountItems(MenuHandle* menu) noexcept;
// The text of the item at a position from 0, cut to the buffer and always terminated.
void ItemTextAt(MenuHandle* menu, int position, rc::TextBuffer text) noexcept;
// Destroys a menu with all that hangs below it.
void DestroyMenuTree(MenuHandle* menu) noexcept;

}  // namespace brelt::host
