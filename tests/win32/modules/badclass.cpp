// Modules whose class is of no use. BRELT_BROKEN says in which way.
#include "tests/win32/modules/module.h"

namespace brelt::module {
namespace {

enum Broken {
  kNoClass,     // registers nothing
  kBadCode,     // its procedure is no code
  kLocalClass,  // only the module itself can make windows of its class
  kRefuses,     // its windows refuse to be made
  kFells,       // its windows destroy their parent when they are made
  kFellsLater,  // and when they get a font
};

LRESULT CALLBACK Refuse(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return message == WM_NCCREATE ? FALSE : DefWindowProcA(window, message, wParam, lParam);
}

// Destroys the parent at a message.
template <UINT Moment>
LRESULT CALLBACK Fell(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == Moment) {
    DestroyWindow(GetParent(window));
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

WNDPROC Procedure() noexcept {
  switch (BRELT_BROKEN) {
    case kBadCode:
      return reinterpret_cast<WNDPROC>(0x10);
    case kRefuses:
      return Refuse;
    case kFells:
      return Fell<WM_CREATE>;
    case kFellsLater:
      return Fell<WM_SETFONT>;
    default:
      return DefWindowProcA;
  }
}

}  // namespace

bool DescribeClass(WNDCLASSEXA& info) noexcept {
  info.lpfnWndProc = Procedure();
  if (BRELT_BROKEN == kLocalClass) info.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
  return BRELT_BROKEN != kNoClass;
}

}  // namespace brelt::module
