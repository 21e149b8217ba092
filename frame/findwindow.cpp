// Windows of any program by class and title.
#include "frame/winobject.h"
#include "include/brelt.h"

namespace brelt {
namespace {

struct WindowSearch {
  ClassName className;
  rc::FixedText<255> title;
  int mode;
  HWND found = nullptr;
};

}  // namespace
}  // namespace brelt

using namespace brelt;

HWND __stdcall FindWindowHandle(const char* className, const char* title, int32_t mode, int32_t threadOnly) {
  if (rc::IsEmpty(className) || rc::IsEmpty(title)) return nullptr;
  if (mode != 0 && mode != 1) return nullptr;
  WindowSearch search;
  search.className.Assign(className);
  search.title.Assign(title);
  search.mode = mode;
  const auto context = reinterpret_cast<LPARAM>(&search);
  if (threadOnly == 1) {
    EnumThreadWindows(GetCurrentThreadId(), Enum_FindWindowHandle, context);
  } else {
    EnumWindows(Enum_FindWindowHandle, context);
  }
  return search.found;
}

BOOL __stdcall Enum_FindWindowHandle(HWND window, LPARAM context) {
  auto* search = reinterpret_cast<WindowSearch*>(context);
  if (search == nullptr) return FALSE;
  rc::FixedText<255> title;
  // A window of another program that hangs can't hold this up: its title is read without asking it.
  GetWindowTextA(window, title.data(), title.kCapacity + 1);
  const bool matches = TextMatches(search->className.c_str(), ClassNameOf(window).c_str(), search->mode) &&
                       TextMatches(search->title.c_str(), title.c_str(), search->mode);
  if (!matches) return TRUE;
  search->found = window;
  return FALSE;
}
