// The end of a window.
#pragma once

#include <windows.h>

namespace brelt {

// Reactivates the window this one came from, takes the tooltip window away, destroys the window and wakes the
// main loop, so that it sees that a window went.
void CloseWindowObject(HWND window) noexcept;

// Frees the modules of windows that went while other people's code was running: a button of such a module may
// have been what unloaded its window, and its code had to be there until it came back. Does nothing while
// such code still runs.
void ReleaseDepartedModules() noexcept;

// Posts a message that makes a waiting loop look again.
void WakeMainLoop() noexcept;

}  // namespace brelt
