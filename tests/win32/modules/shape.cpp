// The family Shape: back colour, fore colour and border style, which comes from the window's style.
#include <new>

#include "tests/win32/modules/module.h"
#include "tests/win32/modules/numbers.h"

namespace brelt::module {
namespace {

// SH_SOLID, SH_DASH and SH_DOTTED are these bits; the one of the highest number counts.
LRESULT BorderOf(LONG style) noexcept {
  for (int border = 3; border > 0; --border) {
    if ((style & (0x8 << border)) != 0) return border;
  }
  return 0;
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  Numbers<3> initial = {{RGB(255, 255, 255), RGB(0, 0, 0), 0}};
  if (message == WM_NCCREATE) {
    initial.values[2] = BorderOf(reinterpret_cast<const CREATESTRUCTA*>(lParam)->style);
  }
  return HandleNumbers(window, message, wParam, lParam, initial, 2);
}

}  // namespace

bool DescribeClass(WNDCLASSEXA& info) noexcept {
  info.lpfnWndProc = Procedure;
  return true;
}

}  // namespace brelt::module
