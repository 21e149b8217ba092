// The family Image: a picture.
#include "tests/win32/modules/module.h"
#include "tests/win32/modules/picture.h"

namespace brelt::module {
namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (HandlePicture(window, message, lParam, result)) return result;
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

bool DescribeClass(WNDCLASSEXA& info) noexcept {
  info.lpfnWndProc = Procedure;
  return true;
}

}  // namespace brelt::module
