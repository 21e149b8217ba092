#include "forms/events.h"

#include "frame/library.h"
#include "frame/winobject.h"
#include "include/brelt.h"

namespace brelt {
namespace {

// Events that come often or while the user is at work: the pointer must not flicker for them.
constexpr bool LeavesCursor(std::uint32_t event) noexcept {
  switch (event) {
    case EV_USERBREAK:
    case EV_CHANGE:
    case EV_KEYPRESS:
    case EV_RESIZE:
    case EV_SELCHANGE:
    case EV_TIMER:
      return true;
    default:
      return false;
  }
}

}  // namespace

std::int32_t RaiseEvent(HWND window, std::uint32_t event, std::uint32_t wParam,
                        std::int32_t lParam) noexcept {
  const auto function = reinterpret_cast<EventFunction>(ReadSlot(window, SLOT_FUNCPTR));
  if (function == nullptr) return 0;
  const CallOut callOut;
  if (LeavesCursor(event)) return function(window, event, wParam, lParam);
  SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_WAIT)));
  const std::int32_t result = function(window, event, wParam, lParam);
  SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
  return result;
}

}  // namespace brelt
