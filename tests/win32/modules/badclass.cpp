// Modules whose class is of no use. BRELT_BROKEN says in which way.
#include "tests/win32/modules/module.h"

namespace brelt::module {
namespace {

enum Broken {
  kNoClass,     // registers nothing
  kBadCode,     // its procedure is no code
  kLocalClass,  // only the module itself can make windows of its class
  kRefuses,     // its windows refuse to be made
};

LRESULT CALLBACK Refuse(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return message == WM_NCCREATE ? FALSE : DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

bool DescribeClass(WNDCLASSEXA& info) noexcept {
  info.lpfnWndProc = BRELT_BROKEN == kRefuses ? Refuse : DefWindowProcA;
  if (BRELT_BROKEN == kBadCode) info.lpfnWndProc = reinterpret_cast<WNDPROC>(0x10);
  if (BRELT_BROKEN == kLocalClass) info.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
  return BRELT_BROKEN != kNoClass;
}

}  // namespace brelt::module
