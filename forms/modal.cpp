#include "forms/modal.h"

#include "frame/objectcall.h"
#include "frame/winobject.h"
#include "include/brelt.h"

namespace brelt {
namespace {

HINSTANCE InstanceOf(HWND window) noexcept {
  return reinterpret_cast<HINSTANCE>(GetWindowLongA(window, GWL_HINSTANCE));
}

// The window to come back to; null for none.
HWND PreviousWindow(HWND window) noexcept {
  HWND active = GetActiveWindow();
  const bool counts = IsWindow(active) && IsWindowEnabled(active) && active != window &&
                      InstanceOf(active) == InstanceOf(window);
  return counts ? active : nullptr;
}

void Activate(HWND window) noexcept {
  ShowWindow(window, SW_SHOW);
  SetActiveWindow(window);
  UpdateWindow(window);
}

void EnableSet(HWND window, const ModalSet& set, BOOL enable) noexcept {
  for (int i = 0; i < set.count; ++i) {
    if (set.windows[i] != window && IsWindow(set.windows[i])) EnableWindow(set.windows[i], enable);
  }
}

}  // namespace

bool IsModalWindow(HWND window) noexcept {
  return IsWindowVisible(window) && (FlagsOf(window) & WF_MODAL) != 0;
}

void EnterModal(HWND window, ModalSet& set) noexcept {
  WritePointer(window, SLOT_PREVACTIVE, PreviousWindow(window));
  EnumThreadWindows(GetCurrentThreadId(), Enum_GetEnabledWindows, reinterpret_cast<LPARAM>(&set));
  EnableSet(window, set, FALSE);
  SetFlag(window, WF_MODAL, true);
  Activate(window);
}

void LeaveModal(HWND window, const ModalSet& set) noexcept {
  EnableSet(window, set, TRUE);
  if (!IsWindow(window)) return;
  SetFlag(window, WF_MODAL, false);
  WriteSlot(window, SLOT_PREVACTIVE, 0);
}

void ReactivatePrevious(HWND window) noexcept {
  HWND previous = ReadPointer<HWND__>(window, SLOT_PREVACTIVE);
  if (!IsWindowVisible(previous) || !IsWindowEnabled(window)) return;
  EnableWindow(previous, TRUE);
  Activate(previous);
}

void ShowInPlace(HWND window) noexcept {
  SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW);
  UpdateWindow(window);
}

}  // namespace brelt

using namespace brelt;

BOOL __stdcall Enum_GetEnabledWindows(HWND window, LPARAM context) {
  auto* set = reinterpret_cast<ModalSet*>(context);
  if (set == nullptr || set->count >= kModalSetSize) return FALSE;
  if (IsWindowEnabled(window) && (StyleOf(window) & WS_CHILD) == 0) set->windows[set->count++] = window;
  return TRUE;
}

int32_t __stdcall IsModal(const char* name, uint8_t* isModal) {
  const ObjectCall call(__func__, name, 0, TruthOutput{isModal});
  // A window that isn't there isn't modal: no failure, unlike in nearly all other calls.
  if (call.code() == RTX_NO_WINDOW) return RTX_OK;
  if (call.code() == RTX_OK) *isModal = IsModalWindow(call.window()) ? 1 : 0;
  return call.code();
}
