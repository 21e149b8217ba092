// The end of a window.
#pragma once

#include <windows.h>

namespace brelt {

// Reactivates the window this one came from, takes the tooltip window away, destroys the window and wakes the
// main loop, so that it sees that a window went.
void CloseWindowObject(HWND window) noexcept;

// Posts a message that makes a waiting loop look again.
void WakeMainLoop() noexcept;

}  // namespace brelt
