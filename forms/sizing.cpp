// The size of a window: what a program hears of it and the limits it has set.
#include "forms/events.h"
#include "forms/handlers.h"
#include "frame/winobject.h"

namespace brelt {
namespace {

bool IsUnset(const MINMAXINFO& info) noexcept {
  return info.ptMaxSize.x == 0 && info.ptMaxPosition.x == 0 && info.ptMinTrackSize.x == 0 &&
         info.ptMaxTrackSize.x == 0;
}

// Tells a sizable window's program of a size change. The size is that of WM_WINDOWPOSCHANGING, before the
// change: programs rely on asking for the new one themselves.
void ReportResize(HWND window) noexcept {
  WindowRecord record = RecordOf(window);
  if (record == nullptr || record->loaded == 0 || record->resizePending == 0) return;
  if ((StyleOf(window) & WS_THICKFRAME) == 0) return;
  const auto height = static_cast<std::uint32_t>(record->clientHeight);
  const auto width = static_cast<std::uint32_t>(record->clientWidth);
  RaiseEvent(window, EV_RESIZE, 0, static_cast<std::int32_t>(height << 16 | width));
  // The event may have taken the window along.
  record = RecordOf(window);
  if (record != nullptr) record->resizePending = 0;
}

}  // namespace

LRESULT OnMoveOrSize(const Message& message) noexcept {
  ReportResize(message.window);
  return 0;
}

LRESULT OnWindowPosChanging(const Message& message) noexcept {
  constexpr UINT kNeither = SWP_NOSIZE | SWP_NOMOVE;
  const auto* position = reinterpret_cast<const WINDOWPOS*>(message.lParam);
  WindowRecord record = RecordOf(message.window);
  if (record != nullptr && position != nullptr && (position->flags & kNeither) != kNeither) {
    RECT client = {};
    GetClientRect(message.window, &client);
    record->clientWidth = client.right;
    record->clientHeight = client.bottom;
    record->resizePending = 1;
  }
  return message.Default();
}

LRESULT OnGetMinMaxInfo(const Message& message) noexcept {
  auto* info = reinterpret_cast<MINMAXINFO*>(message.lParam);
  WindowRecord record = RecordOf(message.window);
  if (record == nullptr || info == nullptr) return 0;
  if (IsUnset(record->systemMinMax)) record->systemMinMax = *info;
  const Placement& most = record->maxPosition;
  const Placement& least = record->minPosition;
  if (most.HasSize()) {
    info->ptMaxSize = {most.width, most.height};
    info->ptMaxTrackSize = info->ptMaxSize;
    info->ptMaxPosition = {most.x, most.y};
  }
  if (least.HasSize()) info->ptMinTrackSize = {least.width, least.height};
  if (most.HasSize() && IsIconic(message.window)) {
    // Of an icon the platform takes the position from the work area's corner.
    RECT workArea = {};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &workArea, 0);
    info->ptMaxPosition.x += workArea.left;
    info->ptMaxPosition.y += workArea.top;
  }
  return 0;
}

}  // namespace brelt
