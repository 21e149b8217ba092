// The pointer and its buttons over a window and its controls.
#include <windowsx.h>

#include "forms/events.h"
#include "forms/handlers.h"
#include "forms/tooltip.h"
#include "frame/winobject.h"

namespace brelt {
namespace {

POINT PointOf(LPARAM lParam) noexcept { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

// The child at a point in client coordinates. Of several the last one wins, and hidden and disabled ones
// count: a program hears of a click on a disabled button.
HWND ChildAt(HWND window, POINT point) noexcept {
  HWND found = nullptr;
  ForEachChild(window, [&](HWND child) {
    RECT area = {};
    GetWindowRect(child, &area);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&area), 2);
    if (PtInRect(&area, point)) found = child;
  });
  return found;
}

std::uint32_t ChildIdAt(HWND window, LPARAM lParam) noexcept {
  HWND child = ChildAt(window, PointOf(lParam));
  return child != nullptr ? static_cast<std::uint32_t>(GetDlgCtrlID(child)) : 0;
}

void SendMouseEvent(const Message& message, UINT event) noexcept {
  SendMessageA(message.window, event, ChildIdAt(message.window, message.lParam), message.lParam);
}

bool IsLeftButtonDown() noexcept { return GetKeyState(VK_LBUTTON) < 0; }

// Passes a cancel on to the control under the mouse.
void PassCancelOn(HWND window) noexcept {
  const DWORD position = GetMessagePos();
  const POINT screen = {LOWORD(position), HIWORD(position)};
  POINT point = screen;
  ScreenToClient(window, &point);
  HWND child = ChildWindowFromPoint(window, point);
  RECT outer = {};
  RECT client = {};
  GetWindowRect(window, &outer);
  GetClientRect(window, &client);
  const bool inWindow = PtInRect(&outer, screen) != FALSE;
  if (inWindow && !PtInRect(&client, point)) ClipCursor(nullptr);
  if (!inWindow || child == nullptr || !IsChild(window, child)) return;
  if (ClassMatches(child, "COMBOBOX")) {
    constexpr int kInnerList = 1000;
    HWND list = GetDlgItem(child, kInnerList);
    if (list == nullptr) return;
    SendMessageA(list, WM_LBUTTONUP, 0, 0);
    child = list;
  }
  SendMessageA(child, WM_CANCELMODE, 0, 0);
}

}  // namespace

LRESULT OnSetCursor(const Message& message) noexcept {
  const auto control = reinterpret_cast<HWND>(message.wParam);
  if (IsDialog(message.window) && ClassMatches(control, "Bitmapbutton.*")) {
    rc::FixedText<255> hint;
    const LRESULT length =
        SendMessageA(control, CM_GETHINT, hint.kCapacity, reinterpret_cast<LPARAM>(hint.data()));
    hint.data()[hint.kCapacity] = '\0';
    if (length > 0) ShowTooltip(message.window, control, hint.c_str());
  }
  return message.Default();
}

LRESULT OnNcHitTest(const Message& message) noexcept {
  const LRESULT place = message.Default();
  HideTooltip();
  return place;
}

LRESULT OnMouseMove(const Message&) noexcept {
  HideTooltip();
  return 0;
}

LRESULT OnLeftDown(const Message& message) noexcept {
  SendMouseEvent(message, EV_MOUSEDOWN);
  return 0;
}

LRESULT OnRightDown(const Message& message) noexcept {
  SendMouseEvent(message, EV_RIGHTDOWN);
  return 0;
}

LRESULT OnLeftDoubleClick(const Message& message) noexcept {
  RaiseEvent(message.window, EV_DBLCLICK, 0, 0);
  return 0;
}

// A button went down on a child. The event is posted, so that the child has its click first.
LRESULT OnParentNotify(const Message& message) noexcept {
  const WORD what = LOWORD(message.wParam);
  if (what != WM_LBUTTONDOWN && what != WM_RBUTTONDOWN) return 0;
  HideTooltip();
  const std::uint32_t id = IsDialog(message.window) ? ChildIdAt(message.window, message.lParam) : 0;
  if (IsWindow(message.window)) {
    PostMessageA(message.window, what == WM_LBUTTONDOWN ? EV_MOUSEDOWN : EV_RIGHTDOWN, id, message.lParam);
  }
  return 0;
}

LRESULT OnCancelMode(const Message& message) noexcept {
  if (IsLeftButtonDown()) PassCancelOn(message.window);
  message.Default();
  return 0;
}

}  // namespace brelt
