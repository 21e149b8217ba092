// Showing one window of a program while its others are disabled.
#pragma once

#include <windows.h>

namespace brelt {

inline constexpr int kModalSetSize = 100;

// The windows that a modal show disabled. It belongs to one show; windows beyond its size stay enabled.
struct ModalSet {
  int count = 0;
  HWND windows[kModalSetSize] = {};
};

// Whether a window is visible and being shown modally.
bool IsModalWindow(HWND window) noexcept;

// Disables the thread's other windows, marks the window as modal and shows it as the active one.
void EnterModal(HWND window, ModalSet& set) noexcept;

// Enables the windows of the set again, as far as they exist.
void LeaveModal(HWND window, const ModalSet& set) noexcept;

// Goes back to the window that was active when a modal window was shown. It runs before the modal one goes,
// so that no window of another program comes to the front.
void ReactivatePrevious(HWND window) noexcept;

// Shows a window where it stands, above the others, and has it painted.
void ShowInPlace(HWND window) noexcept;

}  // namespace brelt
