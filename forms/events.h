// The one way from the library to a program: its event function.
#pragma once

#include <windows.h>

#include <cstdint>

#include "include/events.h"

namespace brelt {

// Calls the event function of a window and gives its result; 0 if the window has none. The window may be gone
// afterwards, with its record and everything it owned.
std::int32_t RaiseEvent(HWND window, std::uint32_t event, std::uint32_t wParam, std::int32_t lParam) noexcept;

}  // namespace brelt
