#include "tests/win32/support/screen.h"

#include <cstdio>
#include <string>

#include "tests/win32/support/forms.h"

namespace brelt::test {

void Picture::Set(int x, int y, COLORREF colour) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
  pixels_[static_cast<std::size_t>(y * width_ + x)] = colour;
}

Picture CaptureScreen(const RECT& area) {
  Picture picture(area.right - area.left, area.bottom - area.top, 0);
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = picture.width();
  info.bmiHeader.biHeight = -picture.height();
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  HDC screen = GetDC(nullptr);
  HDC memory = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, picture.width(), picture.height(), screen, area.left, area.top, SRCCOPY);
  GdiFlush();
  const auto* pixels = static_cast<const DWORD*>(bits);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const DWORD pixel = pixels[y * picture.width() + x];
      picture.Set(x, y, RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF));
    }
  }
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return picture;
}

Picture CaptureClient(HWND window) {
  RECT area = {};
  GetClientRect(window, &area);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
  return CaptureScreen(area);
}

bool SettleOnScreen(HWND window) {
  constexpr DWORD kCalm = 60;  // milliseconds
  constexpr COLORREF kMark = RGB(255, 0, 255);
  POINT corner = {0, 0};
  ClientToScreen(window, &corner);
  HDC screen = GetDC(nullptr);
  const bool settled = PumpUntil([&] {
    SetPixel(screen, corner.x, corner.y, kMark);
    PumpUntil([&] { return GetPixel(screen, corner.x, corner.y) != kMark; }, kCalm);
    return GetPixel(screen, corner.x, corner.y) == kMark;
  });
  InvalidateRect(window, nullptr, TRUE);
  const bool painted = PumpUntil([&] { return GetPixel(screen, corner.x, corner.y) != kMark; });
  ReleaseDC(nullptr, screen);
  return settled && painted;
}

std::string Differences(const Picture& seen, const Picture& expected) {
  if (seen.width() != expected.width() || seen.height() != expected.height()) return "another size\n";
  std::string text;
  int count = 0;
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 0; x < seen.width(); ++x) {
      if (seen.At(x, y) == expected.At(x, y) || ++count > 12) continue;
      char line[80];
      std::snprintf(line, sizeof line, "at %d, %d: %06lx instead of %06lx\n", x, y, seen.At(x, y),
                    expected.At(x, y));
      text += line;
    }
  }
  return count > 12 ? text + "and " + std::to_string(count - 12) + " more\n" : text;
}

}  // namespace brelt::test
