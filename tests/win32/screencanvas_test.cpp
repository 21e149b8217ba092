// A form's canvas on the screen itself.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

class ScreenCanvasTest : public FormTest {
 protected:
  COLORREF At(HWND window, int x, int y) const {
    POINT point = {x, y};
    ClientToScreen(window, &point);
    return GetPixel(screen_, point.x, point.y);
  }
  void SetUp() override {
    FormTest::SetUp();
    screen_ = GetDC(nullptr);
  }
  void TearDown() override {
    ReleaseDC(nullptr, screen_);
    FormTest::TearDown();
  }

  // A bitmap of one colour.
  HBITMAP MakeCanvas(int width, int height, COLORREF colour) const {
    HDC memory = CreateCompatibleDC(screen_);
    HBITMAP bitmap = CreateCompatibleBitmap(screen_, width, height);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    const RECT all = {0, 0, width, height};
    HBRUSH brush = CreateSolidBrush(colour);
    FillRect(memory, &all, brush);
    DeleteObject(brush);
    SelectObject(memory, previous);
    DeleteDC(memory);
    return bitmap;
  }

  HDC screen_ = nullptr;
};

TEST_F(ScreenCanvasTest, ItIsPaintedWhereItLiesAndAgainWhenItWasCovered) {
  const HWND window = LoadDialog("Main", "  LTEXT \"\", 101, 150, 130, 10, 10").window;
  constexpr COLORREF kRed = RGB(255, 0, 0);
  WriteSlot(window, kSlotCanvas, reinterpret_cast<LONG>(MakeCanvas(60, 40, kRed)));
  RecordWordOf(window, kWordCanvasX) = 30;
  RecordWordOf(window, kWordCanvasY) = 20;
  ShowForm("Main");
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  const auto isRight = [&] {
    return At(window, 30, 20) == kRed && At(window, 89, 59) == kRed && At(window, 29, 20) == face &&
           At(window, 30, 19) == face && At(window, 90, 59) == face && At(window, 89, 60) == face;
  };
  EXPECT_TRUE(PumpUntil(isRight));
  LoadDialog("Cover", "  LTEXT \"\", 101, 1, 1, 10, 10");
  ShowForm("Cover");
  EXPECT_TRUE(PumpUntil([&] { return At(window, 30, 20) != kRed; }));
  // Hiding repaints what lay below before it returns.
  Hide("Cover");
  EXPECT_TRUE(PumpUntil(isRight));
}

}  // namespace
}  // namespace brelt::test
