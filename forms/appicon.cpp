// AppIcon: the icon of all windows that the program loads.
#include <windows.h>

#include <shellapi.h>

#include "frame/library.h"
#include "frame/owners.h"
#include "frame/trace.h"
#include "include/brelt.h"
#include "rc/filename.h"

namespace brelt {
namespace {

// A class can be changed only through a window of it.
struct ClassWindows {
  HWND windows[3] = {FindWindowHandle(kDialogClass, "*", 1, 1), FindWindowHandle(kEditwindowClass, "*", 1, 1),
                     FindWindowHandle(kRicheditwindowClass, "*", 1, 1)};

  bool IsEmpty() const noexcept {
    for (HWND window : windows) {
      if (window != nullptr) return false;
    }
    return true;
  }
  // The classes keep the icon, and with it the program, for as long as they are there.
  void SetIcon(int which, HICON icon) const noexcept {
    for (HWND window : windows) {
      if (window != nullptr && icon != nullptr) SetClassLongA(window, which, reinterpret_cast<LONG>(icon));
    }
  }
};

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall AppIcon(HMODULE instance, const char* iconFile) {
  TraceCall(__func__);
  if (instance == nullptr || rc::IsEmpty(iconFile)) return RTX_BAD_ICON;
  host::Path path;
  rc::FindFileNearProgram(instance, iconFile, path);
  if (rc::FileSizeOf(path.c_str()) < 0) return RTX_OK;
  const ClassWindows classes;
  if (classes.IsEmpty()) return RTX_OK;
  HICON large = nullptr;
  HICON little = nullptr;
  ExtractIconExA(path.c_str(), 0, &large, &little, 1);
  const OwnedIcon ownedLarge(large);
  const OwnedIcon ownedLittle(little);
  classes.SetIcon(GCL_HICON, large != nullptr ? CopyIcon(large) : nullptr);
  classes.SetIcon(GCL_HICONSM, little != nullptr ? CopyIcon(little) : nullptr);
  RedrawWindow(nullptr, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_FRAME);
  return RTX_OK;
}
