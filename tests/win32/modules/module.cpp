#include "tests/win32/modules/module.h"

#include <cstring>

namespace brelt::module {
namespace {

// The library asks for no longer class name.
constexpr int kClassNameLength = 31;

char className[MAX_PATH];
WNDPROC baseProcedure = nullptr;
int pointerIndex = 0;

// The name of the module's file without folder and ".dll", cut as the library cuts it.
void TakeNameFromFile(HINSTANCE instance) noexcept {
  char path[MAX_PATH];
  const DWORD length = GetModuleFileNameA(instance, path, MAX_PATH);
  DWORD start = length;
  while (start > 0 && path[start - 1] != '\\' && path[start - 1] != '/') --start;
  lstrcpynA(className, path + start, MAX_PATH);
  const int end = lstrlenA(className) - 4;
  if (end > 0) className[end] = '\0';
  className[kClassNameLength] = '\0';
}

bool Register(HINSTANCE instance) noexcept {
  WNDCLASSEXA info = {};
  info.cbSize = sizeof info;
  info.style = CS_GLOBALCLASS;
  info.cbWndExtra = sizeof(void*);
  info.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
  info.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  if (!DescribeClass(info)) return false;
  info.hInstance = instance;
  info.lpszClassName = className;
  return RegisterClassExA(&info) != 0;
}

}  // namespace

bool BuildOn(const char* base, WNDCLASSEXA& info) noexcept {
  if (!GetClassInfoExA(nullptr, base, &info)) return false;
  info.cbSize = sizeof info;
  info.style |= CS_GLOBALCLASS;
  baseProcedure = info.lpfnWndProc;
  pointerIndex = info.cbWndExtra;
  info.cbWndExtra += static_cast<int>(sizeof(void*));
  return true;
}

int PointerIndex() noexcept { return pointerIndex; }

LRESULT CallBase(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (baseProcedure == nullptr) return DefWindowProcA(window, message, wParam, lParam);
  return CallWindowProcA(baseProcedure, window, message, wParam, lParam);
}

}  // namespace brelt::module

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  static bool registered = false;
  if (reason == DLL_PROCESS_ATTACH) {
    brelt::module::TakeNameFromFile(instance);
    registered = brelt::module::Register(instance);
  } else if (reason == DLL_PROCESS_DETACH && registered) {
    UnregisterClassA(brelt::module::className, instance);
  }
  return TRUE;
}
