// Scroll bar controls: the library moves the thumb, and the program hears once at the end.
#include "forms/events.h"
#include "forms/handlers.h"
#include "frame/winobject.h"

namespace brelt {
namespace {

// Where a scroll code leads from a position; thumb positions are signed words. The steps are taken in 64
// bits, since a range can reach over all 32-bit numbers.
int ScrolledTo(WORD code, WORD thumb, int position, std::int64_t low, std::int64_t high) noexcept {
  const std::int64_t page = (high - low) / 20;
  const auto within = [&](std::int64_t wanted) {
    return static_cast<int>(wanted < low ? low : wanted > high ? high : wanted);
  };
  switch (code) {
    case SB_LINEUP:
      return within(std::int64_t{position} - 1);
    case SB_LINEDOWN:
      return within(std::int64_t{position} + 1);
    case SB_PAGEUP:
      return within(position - page);
    case SB_PAGEDOWN:
      return within(position + page);
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
      return static_cast<SHORT>(thumb);
    case SB_TOP:
      return within(low);
    case SB_BOTTOM:
      return within(high);
    default:
      return position;
  }
}

}  // namespace

LRESULT OnScroll(const Message& message) noexcept {
  const auto bar = reinterpret_cast<HWND>(message.lParam);
  if (!IsWindow(bar)) return 0;
  int low = 0;
  int high = 0;
  GetScrollRange(bar, SB_CTL, &low, &high);
  const WORD code = LOWORD(message.wParam);
  SetScrollPos(bar, SB_CTL, ScrolledTo(code, HIWORD(message.wParam), GetScrollPos(bar, SB_CTL), low, high),
               TRUE);
  if (code == SB_ENDSCROLL && GetKeyState(VK_LBUTTON) >= 0) {
    RaiseEvent(message.window, EV_CHANGE, static_cast<std::uint32_t>(GetDlgCtrlID(bar)), 0);
  }
  return 0;
}

}  // namespace brelt
