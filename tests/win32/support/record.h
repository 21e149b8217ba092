// The record of a window, for programs that don't link the library's parts: read from the window itself.
#pragma once

#include "frame/winobject.h"

namespace brelt::test {

// Row 0 is the window, the others its controls.
inline WindowRow* RecordOf(HWND window) {
  return reinterpret_cast<WindowRow*>(GetWindowLongA(window, SLOT_RECORD * 4));
}

}  // namespace brelt::test
