// Window classes and windows of a test's own.
#pragma once

#include <windows.h>

#include <string>

namespace brelt::test {

// A class that is registered as long as this lives; its windows must be gone by then.
class TestClass {
 public:
  explicit TestClass(const std::string& name, int windowExtra = 0, UINT style = 0,
                     WNDPROC procedure = DefWindowProcA);
  TestClass(const TestClass&) = delete;
  TestClass& operator=(const TestClass&) = delete;
  ~TestClass();

  const char* name() const { return name_.c_str(); }
  // A visible child, 50 by 20 pixels; its parent destroys it.
  HWND MakeChild(HWND parent, int id, int x = 0, int y = 0, DWORD style = 0) const;

 private:
  std::string name_;
};

// A window that is destroyed with this, unless it is gone already.
class TestWindow {
 public:
  explicit TestWindow(const char* className, const std::string& title = "", DWORD style = WS_POPUP,
                      HWND parent = nullptr);
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;
  ~TestWindow();

  HWND get() const { return window_; }

 private:
  HWND window_;
};

}  // namespace brelt::test
