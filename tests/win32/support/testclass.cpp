#include "tests/win32/support/testclass.h"

namespace brelt::test {

TestClass::TestClass(const char* name, WNDPROC procedure, int extraBytes) : name_(name) {
  WNDCLASSA info = {};
  info.lpfnWndProc = procedure;
  info.cbWndExtra = extraBytes;
  info.hInstance = GetModuleHandleA(nullptr);
  info.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
  info.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  info.lpszClassName = name;
  RegisterClassA(&info);
}

TestClass::~TestClass() { UnregisterClassA(name_, GetModuleHandleA(nullptr)); }

HWND TestClass::MakeChild(HWND parent, int id, int x, int y, DWORD style) const {
  constexpr int kWidth = 50;
  constexpr int kHeight = 20;
  return CreateWindowExA(0, name_, "", WS_CHILD | WS_VISIBLE | style, x, y, kWidth, kHeight, parent,
                         reinterpret_cast<HMENU>(id), GetModuleHandleA(nullptr), nullptr);
}

HWND TestClass::MakePopup(const char* title) const {
  return CreateWindowExA(0, name_, title, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, GetModuleHandleA(nullptr),
                         nullptr);
}

}  // namespace brelt::test
