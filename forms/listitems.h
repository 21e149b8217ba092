// Filling a list from a text.
#pragma once

#include <windows.h>

namespace brelt {

// Longest item that the library adds, in characters.
inline constexpr int kListItemLength = 1024;

// Empties a list or combo box and adds an item for each line of a text, which may be null. Empty lines are
// items too; a line feed at the very end adds no further one. Control characters are dropped; items are cut
// to 1024.
void FillListItems(HWND control, const char* text) noexcept;

}  // namespace brelt
