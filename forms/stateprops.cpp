// Checked, Enabled, Visible and WindowState.
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

UINT MenuItemState(const ObjectCall& call) noexcept {
  return GetMenuState(call.menu(), static_cast<UINT>(call.id()), MF_BYCOMMAND);
}

// ---- Checked: menu items only; controls have a value ----

constexpr GetRow<std::uint8_t> kGetChecked = {.menuItem = [](const ObjectCall& call) noexcept {
  return Truth((MenuItemState(call) & MF_CHECKED) != 0);
}};

constexpr SetRow<std::uint8_t> kSetChecked = {
    .menuItem = [](const ObjectCall& call, std::uint8_t checked) noexcept {
      CheckMenuItem(call.menu(), static_cast<UINT>(call.id()),
                    MF_BYCOMMAND | (checked != 0 ? MF_CHECKED : MF_UNCHECKED));
    }};

// ---- Enabled: a window can be asked, but not disabled, which is for modal shows alone ----

void EnableControl(const ObjectCall& call, std::uint8_t enabled) noexcept {
  HWND control = call.control();
  if (enabled == 0 && GetFocus() == control && GetNextDlgTabItem(call.window(), control, FALSE) != nullptr) {
    SendMessageA(call.window(), WM_NEXTDLGCTL, 0, 0);
  }
  EnableWindow(control, enabled != 0);
  Repaint(control);
}

// The menu bar isn't redrawn: a title changes its look when the bar is next drawn.
void EnableItem(const ObjectCall& call, std::uint8_t enabled) noexcept {
  EnableMenuItem(call.menu(), static_cast<UINT>(call.id()),
                 MF_BYCOMMAND | (enabled != 0 ? MF_ENABLED : MF_GRAYED));
}

constexpr GetRow<std::uint8_t> kGetEnabled = {
    .window = [](const ObjectCall& call) noexcept { return Truth(IsWindowEnabled(call.window()) != FALSE); },
    .controls = {{kAnyControl,
                  [](const ObjectCall& call) noexcept {
                    return Truth(IsWindowEnabled(call.control()) != FALSE);
                  }}},
    .menuItem =
        [](const ObjectCall& call) noexcept { return Truth((MenuItemState(call) & MF_GRAYED) == 0); }};

constexpr SetRow<std::uint8_t> kSetEnabled = {.controls = {{kAnyControl, EnableControl}},
                                              .menuItem = EnableItem};

// ---- Visible: of a control its own style, whether its window shows or not ----

constexpr GetRow<std::uint8_t> kGetVisible = {
    .window = [](const ObjectCall& call) noexcept { return Truth(IsWindowVisible(call.window()) != FALSE); },
    .controls = {{kAnyControl, [](const ObjectCall& call) noexcept {
                    return Truth((StyleOf(call.control()) & WS_VISIBLE) != 0);
                  }}}};

constexpr SetRow<std::uint8_t> kSetVisible = {
    .controls = {{kAnyControl, [](const ObjectCall& call, std::uint8_t visible) noexcept {
                    ShowWindow(call.control(), visible != 0 ? SW_SHOW : SW_HIDE);
                    Repaint(call.control());
                  }}}};

// ---- WindowState ----

enum WindowStateValue : std::int32_t { kNormal = 0, kMinimised = 1, kMaximised = 2 };

std::int32_t StateOf(const ObjectCall& call) noexcept {
  if (IsZoomed(call.window())) return kMaximised;
  return IsIconic(call.window()) ? kMinimised : kNormal;
}

// A window without the box for a state doesn't take it.
void SetState(const ObjectCall& call, std::int32_t state) noexcept {
  const std::uint32_t style = StyleOf(call.window());
  if (state == kNormal) ShowWindow(call.window(), SW_SHOWNORMAL);
  if (state == kMinimised && (style & WS_MINIMIZEBOX) != 0) ShowWindow(call.window(), SW_SHOWMINIMIZED);
  if (state == kMaximised && (style & WS_MAXIMIZEBOX) != 0) ShowWindow(call.window(), SW_SHOWMAXIMIZED);
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetChecked(const char* name, int32_t id, uint8_t* isChecked) {
  return GetProperty(ObjectCall(__func__, name, id, TruthOutput{isChecked}), kGetChecked, isChecked);
}

int32_t __stdcall SetChecked(const char* name, int32_t id, uint8_t isChecked) {
  return SetProperty(ObjectCall(__func__, name, id), kSetChecked, isChecked);
}

int32_t __stdcall GetEnabled(const char* name, int32_t id, uint8_t* isEnabled) {
  return GetProperty(ObjectCall(__func__, name, id, TruthOutput{isEnabled}), kGetEnabled, isEnabled);
}

int32_t __stdcall SetEnabled(const char* name, int32_t id, uint8_t isEnabled) {
  return SetProperty(ObjectCall(__func__, name, id), kSetEnabled, isEnabled);
}

// A window that isn't there isn't visible: no failure, unlike in nearly all other calls.
int32_t __stdcall GetVisible(const char* name, int32_t id, uint8_t* isVisible) {
  const ObjectCall call(__func__, name, id, TruthOutput{isVisible});
  if (call.code() == RTX_NO_WINDOW) return RTX_OK;
  return GetProperty(call, kGetVisible, isVisible);
}

int32_t __stdcall SetVisible(const char* name, int32_t id, uint8_t isVisible) {
  return SetProperty(ObjectCall(__func__, name, id), kSetVisible, isVisible);
}

int32_t __stdcall GetWindowState(const char* name, int32_t id, int32_t* state) {
  static constexpr GetRow<int32_t> kRow = {.window = StateOf};
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{state}), kRow, state);
}

int32_t __stdcall SetWindowState(const char* name, int32_t id, int32_t state) {
  static constexpr SetRow<int32_t> kRow = {.window = SetState};
  return SetProperty(ObjectCall(__func__, name, id), kRow, state);
}
