#include "forms/mainloop.h"

#include "forms/closing.h"
#include "forms/focus.h"
#include "forms/keys.h"
#include "forms/modal.h"
#include "frame/trace.h"
#include "frame/winobject.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr int kExcludeSize = 100;

// Windows that don't keep the loop alive; filled without gaps, the first null ends it.
struct ExcludeTable {
  HWND windows[kExcludeSize] = {};

  void Add(HWND window) noexcept {
    if (!IsWindow(window)) return;
    for (HWND& entry : windows) {
      if (entry != nullptr) continue;
      entry = window;
      return;
    }
  }
  bool Holds(HWND window) const noexcept {
    for (HWND entry : windows) {
      if (entry == nullptr) return false;
      if (entry == window) return true;
    }
    return false;
  }
};

struct RemainSearch {
  const ExcludeTable& exclude;
  bool found = false;
};

// 1 if the thread has a top-level window that isn't in the table, hidden ones included; otherwise 0.
int32_t WindowsRemain(const ExcludeTable& table) noexcept {
  RemainSearch search{table};
  EnumThreadWindows(GetCurrentThreadId(), Enum_AppWindowsExist, reinterpret_cast<LPARAM>(&search));
  return search.found ? 1 : 0;
}

void AddInputMethodWindows(ExcludeTable& table) noexcept {
  table.Add(FindWindowHandle("IME", "Default IME", 1, 1));
  table.Add(FindWindowHandle("MSCTFIME UI", "M", 1, 1));
}

const rc::AcceleratorRow* KeyTableOf(HWND window) noexcept {
  return ReadPointer<rc::AcceleratorRow>(window, SLOT_ACCELTABLE);
}

// Gives a message to its window by way of the dialog keys, if the window that has the keyboard takes them.
void DeliverMessage(HWND keyboardWindow, MSG& message) noexcept {
  const bool hasDialogKeys = IsWindow(keyboardWindow) && !IsAnyEditwindow(keyboardWindow) &&
                             FirstTabChild(keyboardWindow) != nullptr;
  if (hasDialogKeys && IsDialogMessageA(keyboardWindow, &message)) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

// Waits for a message; false for WM_QUIT.
bool NextMessage(MSG& message) noexcept {
  ReleaseDepartedModules();
  return GetMessageA(&message, nullptr, 0, 0) != 0;
}

int32_t RunMainLoop(HWND mainWindow, const ExcludeTable& exclude) noexcept {
  TraceCall("MainLoop:Calling main message loop");
  MSG message;
  while (WindowsRemain(exclude) != 0 && NextMessage(message)) {
    if (!IsWindow(mainWindow)) mainWindow = nullptr;
    HWND active = GetActiveWindow();
    if (KeyPreview(active, message)) continue;
    // The table is asked for again each time: it goes with the window.
    if (MenuKeys(mainWindow, KeyTableOf(mainWindow), message)) continue;
    DeliverMessage(active, message);
  }
  ReleaseDepartedModules();
  TraceCall("MainLoop:Ending main message loop");
  return WindowsRemain(exclude);
}

}  // namespace

// Unlike in the main loop both filters work on the modal window, whichever is active.
void RunModalLoop(HWND window) noexcept {
  MSG message;
  while (IsWindow(window) && IsWindowVisible(window) && NextMessage(message)) {
    if (KeyPreview(window, message) || MenuKeys(window, KeyTableOf(window), message)) continue;
    DeliverMessage(window, message);
  }
  ReleaseDepartedModules();
}

}  // namespace brelt

using namespace brelt;

BOOL __stdcall Enum_AppWindowsExist(HWND window, LPARAM context) {
  auto* search = reinterpret_cast<RemainSearch*>(context);
  if (search == nullptr) return FALSE;
  search->found = !search->exclude.Holds(window);
  return !search->found;
}

int32_t __stdcall MainLoop(HMODULE, HWND mainWindow, HWND extraWindow, EventFunction startFunction) {
  TraceCall(__func__);
  ExcludeTable exclude;
  if (extraWindow != mainWindow) exclude.Add(extraWindow);
  if (IsWindow(mainWindow)) {
    ShowInPlace(mainWindow);
  } else if (startFunction != nullptr) {
    startFunction(nullptr, 0, 0, 0);
  }
  AddInputMethodWindows(exclude);
  return RunMainLoop(mainWindow, exclude);
}

int32_t __stdcall DoEvents(void) {
  TraceCall(__func__);
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  ReleaseDepartedModules();
  return 0;
}
