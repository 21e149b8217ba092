// The family Iconlist: a list box, which keeps a number for each item anyway; here it is the item's picture.
#include "tests/win32/modules/module.h"

namespace brelt::module {
namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return CallBase(window, message, wParam, lParam);
}

}  // namespace

bool DescribeClass(WNDCLASSEXA& info) noexcept {
  if (!BuildOn("LISTBOX", info)) return false;
  info.lpfnWndProc = Procedure;
  return true;
}

}  // namespace brelt::module
