#include "tests/win32/support/classes.h"

#include <gtest/gtest.h>

namespace brelt::test {

TestClass::TestClass(const std::string& name, int windowExtra, UINT style, WNDPROC procedure) : name_(name) {
  WNDCLASSEXA info = {};
  info.cbSize = sizeof info;
  info.style = style;
  info.lpfnWndProc = procedure;
  info.cbWndExtra = windowExtra;
  info.hInstance = GetModuleHandleA(nullptr);
  info.lpszClassName = name_.c_str();
  EXPECT_TRUE(RegisterClassExA(&info)) << name_;
}

TestClass::~TestClass() { EXPECT_TRUE(UnregisterClassA(name_.c_str(), GetModuleHandleA(nullptr))) << name_; }

HWND TestClass::MakeChild(HWND parent, int id, int x, int y, DWORD style) const {
  constexpr int kWidth = 50;
  constexpr int kHeight = 20;
  const HWND child = CreateWindowExA(0, name(), "", WS_CHILD | WS_VISIBLE | style, x, y, kWidth, kHeight,
                                     parent, reinterpret_cast<HMENU>(id), GetModuleHandleA(nullptr), nullptr);
  EXPECT_TRUE(child) << name_;
  return child;
}

TestWindow::TestWindow(const char* className, const std::string& title, DWORD style, HWND parent)
    : window_(CreateWindowExA(0, className, title.c_str(), style, 0, 0, 50, 50, parent, nullptr,
                              GetModuleHandleA(nullptr), nullptr)) {
  EXPECT_TRUE(window_) << className;
}

TestWindow::~TestWindow() {
  if (IsWindow(window_)) DestroyWindow(window_);
}

}  // namespace brelt::test
