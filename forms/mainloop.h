// The message loops of a program.
#pragma once

#include <windows.h>

namespace brelt {

// Handles messages while a window that is shown modally exists and is visible; WM_QUIT ends it, too, and is
// used up.
void RunModalLoop(HWND window) noexcept;

}  // namespace brelt
