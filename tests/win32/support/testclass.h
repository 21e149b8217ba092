// Window classes of a test's own, in place of modules, boxes and other programs' windows.
#pragma once

#include <windows.h>

namespace brelt::test {

// Registers a class as long as it lives. Its windows must be gone by then.
class TestClass {
 public:
  explicit TestClass(const char* name, WNDPROC procedure = DefWindowProcA, int extraBytes = 0);
  TestClass(const TestClass&) = delete;
  TestClass& operator=(const TestClass&) = delete;
  ~TestClass();

  // A visible child, 50 by 20 pixels.
  HWND MakeChild(HWND parent, int id, int x = 0, int y = 0, DWORD style = 0) const;
  // A hidden top-level window.
  HWND MakePopup(const char* title) const;

 private:
  const char* name_;
};

}  // namespace brelt::test
