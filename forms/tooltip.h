// The hint of a bitmap button, shown in a small window of its own when the pointer rests on the button.
#pragma once

#include <windows.h>

namespace brelt {

// The pointer is over control, a child of window, with this hint. Any other control, or an empty hint, hides
// what shows.
void ShowTooltip(HWND window, HWND control, const char* text) noexcept;

// The pointer moved, or the time is up.
void HideTooltip() noexcept;

// Destroys the tooltip window; the next hint makes it anew.
void CloseTooltip() noexcept;

}  // namespace brelt
