// The module's entry and its teardown.
#include <windows.h>

#include <commctrl.h>

#include "frame/library.h"

namespace brelt {
namespace {

// Classes are registered on first use, so that most of them don't exist in most programs.
void UnregisterClasses() noexcept {
  constexpr const char* kClasses[] = {kDialogClass,   kEditwindowClass, kRicheditwindowClass, kDebugClass,
                                      kTooltipsClass, kPrinterClass,    kCancelDlgClass,      kMsgBoxClass,
                                      kInputBoxClass, kListBoxClass};
  for (const char* name : kClasses) {
    WNDCLASSEXA info = {};
    info.cbSize = sizeof info;
    if (GetClassInfoExA(Library.ModuleInstance, name, &info)) UnregisterClassA(name, Library.ModuleInstance);
  }
}

}  // namespace
}  // namespace brelt

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) {
    brelt::Library.ModuleInstance = instance;
    InitCommonControls();
  } else if (reason == DLL_PROCESS_DETACH) {
    brelt::UnregisterClasses();
  }
  return TRUE;
}
