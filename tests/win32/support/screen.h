// What is to be seen on the screen.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace brelt::test {

class Picture {
 public:
  Picture(int width, int height, COLORREF colour)
      : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height), colour) {}

  int width() const { return width_; }
  int height() const { return height_; }
  COLORREF At(int x, int y) const { return pixels_[static_cast<std::size_t>(y * width_ + x)]; }
  // Outside, nothing happens.
  void Set(int x, int y, COLORREF colour);
  bool operator==(const Picture&) const = default;

 private:
  int width_;
  int height_;
  std::vector<COLORREF> pixels_;
};

// A part of the screen, and the client area of a window as it is seen there.
Picture CaptureScreen(const RECT& area);
Picture CaptureClient(HWND window);

// Waits until a window that was just shown is on the screen for good: what is drawn over it stays. Windows
// may be painted anew some time after they appear. False when that doesn't come about in time.
bool SettleOnScreen(HWND window);

// The first places where two pictures differ, one a line; empty for equal ones.
std::string Differences(const Picture& seen, const Picture& expected);

}  // namespace brelt::test
