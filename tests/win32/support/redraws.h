// What the library asks the platform to draw anew.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/win32/support/imports.h"

namespace brelt::test {

// A call of RedrawWindow as a line; a null window is the screen, a null area all of it.
inline std::string RedrawLine(HWND window, const RECT* area, UINT flags) {
  std::string line = std::to_string(reinterpret_cast<UINT_PTR>(window)) + ", ";
  if (area == nullptr) {
    line += "all";
  } else {
    for (const LONG edge : {area->left, area->top, area->right, area->bottom}) {
      line += std::to_string(edge) + " ";
    }
  }
  return line + ", " + std::to_string(flags) + "\n";
}

// Records the calls as lines while it lives; nothing is drawn by them. One at a time.
class RedrawSpy {
 public:
  RedrawSpy() { lines_.clear(); }

  const std::string& lines() const { return lines_; }

 private:
  static BOOL WINAPI Record(HWND window, const RECT* area, HRGN region, UINT flags) {
    EXPECT_EQ(region, nullptr);
    lines_ += RedrawLine(window, area, flags);
    return TRUE;
  }

  static inline std::string lines_;
  const ReplacedImport import_{"RedrawWindow", reinterpret_cast<void*>(&Record)};
};

}  // namespace brelt::test
