// The family Progressbar: value, minimum, maximum, back colour and fore colour.
#include <new>

#include "tests/win32/modules/module.h"
#include "tests/win32/modules/numbers.h"

namespace brelt::module {
namespace {

constexpr Numbers<5> kInitial = {{0, 0, 100, RGB(255, 255, 255), RGB(0, 0, 128)}};

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return HandleNumbers(window, message, wParam, lParam, kInitial, 5);
}

}  // namespace

bool DescribeClass(WNDCLASSEXA& info) noexcept {
  info.lpfnWndProc = Procedure;
  return true;
}

}  // namespace brelt::module
