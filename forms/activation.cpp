// Activation of a window and the way of the focus through its controls.
#include "forms/focus.h"
#include "forms/handlers.h"
#include "frame/winobject.h"
#include "include/events.h"

namespace brelt {
namespace {

bool IsUsable(HWND window) noexcept {
  return IsWindow(window) && IsWindowVisible(window) && IsWindowEnabled(window);
}

bool IsTabStop(HWND child) noexcept {
  constexpr std::uint32_t kLooked = WS_TABSTOP | WS_VISIBLE | WS_DISABLED;
  return child != nullptr && (StyleOf(child) & kLooked) == (WS_TABSTOP | WS_VISIBLE);
}

bool IsDefaultButton(HWND child) noexcept {
  return ClassMatches(child, "BUTTON") && TypeBitsOf(child) == BS_DEFPUSHBUTTON;
}

bool IsPushButton(HWND child) noexcept {
  return ClassMatches(child, "BUTTON") && TypeBitsOf(child) <= BS_DEFPUSHBUTTON;
}

void SetButtonStyle(HWND button, DWORD style) noexcept { SendMessageA(button, BM_SETSTYLE, style, TRUE); }

// Where WM_NEXTDLGCTL leads; null for nowhere.
HWND NextFocus(const Message& message) noexcept {
  if (message.lParam != 0) return reinterpret_cast<HWND>(message.wParam);
  HWND focus = GetFocus();
  if (focus == nullptr) return FirstTabChild(message.window);
  if (!IsChild(message.window, focus)) return nullptr;
  return GetNextDlgTabItem(message.window, focus, message.wParam != 0);
}

// Moves the default look to where the focus now is.
void MoveDefaultLook(HWND window, HWND target) noexcept {
  ForEachChild(window, [](HWND child) {
    if (IsDefaultButton(child)) SetButtonStyle(child, BS_PUSHBUTTON);
  });
  if (IsPushButton(target)) return SetButtonStyle(target, BS_DEFPUSHBUTTON);
  // The answer is an id with a mark and no window, so that as a rule the default look isn't given back.
  // Programs are used to a form whose default button looks plain while the focus is elsewhere.
  const auto answer = reinterpret_cast<HWND>(SendMessageA(window, DM_GETDEFID, 0, 0));
  if (IsUsable(answer)) SetButtonStyle(answer, BS_DEFPUSHBUTTON);
}

}  // namespace

void SaveFocus(HWND window) noexcept {
  HWND focus = GetFocus();
  if (focus != nullptr && IsChild(window, focus)) WritePointer(window, SLOT_LASTFOCUS, focus);
}

bool RestoreFocus(HWND window) noexcept {
  HWND last = ReadPointer<HWND__>(window, SLOT_LASTFOCUS);
  if (last == nullptr || !IsChild(window, last) || !IsUsable(last)) return false;
  SetFocus(last);
  return true;
}

HWND FirstTabChild(HWND window) noexcept {
  HWND first = GetWindow(window, GW_CHILD);
  if (first == nullptr || IsTabStop(first)) return first;
  HWND next = GetNextDlgTabItem(window, first, FALSE);
  return IsTabStop(next) ? next : nullptr;
}

LRESULT OnActivate(const Message& message) noexcept {
  HWND window = message.window;
  const bool active = LOWORD(message.wParam) != WA_INACTIVE;
  if (!active) {
    SaveFocus(window);
  } else if (!IsWindowEnabled(window)) {
    SetFocus(nullptr);
  } else if (!RestoreFocus(window)) {
    HWND first = FirstTabChild(window);
    SetFocus(first != nullptr ? first : window);
  }
  if (IsWindowObject(window)) {
    PostMessageA(window, active ? EV_ACTIVATE : EV_DEACTIVATE, 0, message.lParam);
  }
  return 0;
}

LRESULT OnNextDlgCtl(const Message& message) noexcept {
  HWND target = NextFocus(message);
  if (!IsUsable(target) || !IsChild(message.window, target)) return 0;
  SetFocus(target);
  if (IsWindow(message.window)) MoveDefaultLook(message.window, target);
  return 0;
}

// A command of the system menu while a combo box's list is open: the list closes first.
LRESULT OnSysCommand(const Message& message) noexcept {
  HWND focus = GetFocus();
  HWND combo = ClassMatches(focus, "EDIT") ? GetParent(focus) : focus;
  if (ClassMatches(combo, "COMBOBOX")) SendMessageA(combo, CB_SHOWDROPDOWN, FALSE, 0);
  return message.Default();
}

}  // namespace brelt
