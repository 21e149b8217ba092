// The two filters that each keystroke passes before the platform sees it.
#pragma once

#include <windows.h>

#include "rc/accelerators.h"

namespace brelt {

// Raises EV_KEYPRESS for the keys that programs hear of. Whether the key is used up; it is, too, when the
// window is gone afterwards.
bool KeyPreview(HWND window, const MSG& message) noexcept;

// Works the keys of a window's menu; the table may be null. Whether the key is used up.
bool MenuKeys(HWND window, const rc::AcceleratorRow* table, const MSG& message) noexcept;

}  // namespace brelt
