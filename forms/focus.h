// The keyboard focus within a window.
#pragma once

#include <windows.h>

namespace brelt {

// Remembers the child that has the focus; nothing happens when none has.
void SaveFocus(HWND window) noexcept;

// Gives the focus back to the child remembered, if it is still there, visible and enabled; tells whether it
// did.
bool RestoreFocus(HWND window) noexcept;

// The first child that the Tab key reaches, or null.
HWND FirstTabChild(HWND window) noexcept;

}  // namespace brelt
