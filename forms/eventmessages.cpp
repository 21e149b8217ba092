// Events that travel through the window's own messages.
#include "forms/events.h"
#include "forms/handlers.h"
#include "frame/library.h"

namespace brelt {
namespace {

std::int32_t RaiseAsSent(const Message& message) noexcept {
  return RaiseEvent(message.window, message.number, message.wParam, message.lParam);
}

// While the debug window stops a program its timers stand still.
bool IsDebugging() noexcept {
  HWND debugWindow = Library.DebugWindowHandle;
  return IsWindowVisible(debugWindow) && IsWindowEnabled(debugWindow);
}

}  // namespace

LRESULT OnTimer(const Message& message) noexcept {
  if (message.wParam != 0 && !IsDebugging()) RaiseEvent(message.window, EV_TIMER, message.wParam, 0);
  return 0;
}

LRESULT OnCustomEvent(const Message& message) noexcept {
  RaiseAsSent(message);
  return 0;
}

// Posted on activation; by now another window may be active.
LRESULT OnActivateEvent(const Message& message) noexcept {
  if (GetActiveWindow() == message.window) RaiseEvent(message.window, EV_ACTIVATE, 0, message.lParam);
  return 0;
}

LRESULT OnAnsweredEvent(const Message& message) noexcept { return RaiseAsSent(message); }

LRESULT OnLoadEvent(const Message& message) noexcept {
  RaiseEvent(message.window, EV_LOAD, 0, 0);
  return 0;
}

}  // namespace brelt
