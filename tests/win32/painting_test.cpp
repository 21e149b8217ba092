// The canvas of a form: where it is painted, and what is erased around it.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0);

// A bitmap whose colour changes from red to blue in the middle, to tell where it lies.
HBITMAP MakeCanvas(HWND window, int width, int height) {
  HDC screen = GetDC(window);
  HDC memory = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  HGDIOBJ previous = SelectObject(memory, bitmap);
  HBRUSH red = CreateSolidBrush(kRed);
  HBRUSH blue = CreateSolidBrush(kBlue);
  RECT left = {0, 0, width / 2, height};
  RECT right = {width / 2, 0, width, height};
  FillRect(memory, &left, red);
  FillRect(memory, &right, blue);
  DeleteObject(red);
  DeleteObject(blue);
  SelectObject(memory, previous);
  DeleteDC(memory);
  ReleaseDC(window, screen);
  return bitmap;
}

class PaintTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    window_ = LoadShown("Main", "  LTEXT \"\", 101, 150, 130, 10, 10");
    face_ = GetSysColor(COLOR_BTNFACE);
  }

  void SetCanvas(int width, int height, int x, int y) {
    WriteSlot(window_, kSlotCanvas, reinterpret_cast<LONG>(MakeCanvas(window_, width, height)));
    RecordWordOf(window_, kWordCanvasX) = x;
    RecordWordOf(window_, kWordCanvasY) = y;
  }

  // Paints all anew.
  void Redraw() const {
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  }
  COLORREF PixelAt(int x, int y) const {
    HDC dc = GetDC(window_);
    const COLORREF colour = GetPixel(dc, x, y);
    ReleaseDC(window_, dc);
    return colour;
  }
  // Fills the window's own picture, past all messages.
  void Smear(COLORREF colour) const {
    HDC dc = GetDC(window_);
    RECT client = {};
    GetClientRect(window_, &client);
    HBRUSH brush = CreateSolidBrush(colour);
    FillRect(dc, &client, brush);
    DeleteObject(brush);
    ReleaseDC(window_, dc);
  }

  HWND window_ = nullptr;
  COLORREF face_ = 0;
};

TEST_F(PaintTest, AWindowWithoutACanvasHasItsClassesColour) {
  Smear(kGreen);
  Redraw();
  EXPECT_EQ(PixelAt(0, 0), face_);
  EXPECT_EQ(PixelAt(100, 60), face_);
  EXPECT_EQ(GetUpdateRect(window_, nullptr, FALSE), FALSE);
}

TEST_F(PaintTest, ACanvasLiesAtItsPlaceAndTheRestIsErased) {
  SetCanvas(40, 20, 30, 10);
  Smear(kGreen);
  Redraw();
  EXPECT_EQ(PixelAt(30, 10), kRed);
  EXPECT_EQ(PixelAt(49, 29), kRed);
  EXPECT_EQ(PixelAt(50, 10), kBlue);
  EXPECT_EQ(PixelAt(69, 29), kBlue);
  EXPECT_EQ(PixelAt(29, 10), face_);
  EXPECT_EQ(PixelAt(30, 9), face_);
  EXPECT_EQ(PixelAt(70, 10), face_);
  EXPECT_EQ(PixelAt(30, 30), face_);
}

TEST_F(PaintTest, ACanvasCanLieOutsideTheClientArea) {
  SetCanvas(40, 40, -20, -10);
  Redraw();
  EXPECT_EQ(PixelAt(0, 0), kBlue);
  EXPECT_EQ(PixelAt(19, 29), kBlue);
  EXPECT_EQ(PixelAt(20, 0), face_);
  EXPECT_EQ(PixelAt(0, 30), face_);
}

// Right and bottom of the part to paint are used for its size; the clipping makes that right.
TEST_F(PaintTest, OnlyThePartToPaintIsPainted) {
  SetCanvas(60, 60, 0, 0);
  Redraw();
  Smear(kGreen);
  const RECT part = {10, 20, 40, 30};
  InvalidateRect(window_, &part, FALSE);
  UpdateWindow(window_);
  EXPECT_EQ(PixelAt(10, 20), kRed);
  EXPECT_EQ(PixelAt(29, 29), kRed);
  EXPECT_EQ(PixelAt(30, 20), kBlue);
  EXPECT_EQ(PixelAt(39, 29), kBlue);
  EXPECT_EQ(PixelAt(9, 20), kGreen);
  EXPECT_EQ(PixelAt(10, 19), kGreen);
  EXPECT_EQ(PixelAt(40, 20), kGreen);
  EXPECT_EQ(PixelAt(10, 30), kGreen);
}

TEST_F(PaintTest, ErasingLeavesTheCanvasOut) {
  SetCanvas(40, 20, 30, 10);
  Smear(kGreen);
  HDC dc = GetDC(window_);
  EXPECT_EQ(SendMessageA(window_, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0), 1);
  EXPECT_EQ(GetPixel(dc, 30, 10), kGreen);
  EXPECT_EQ(GetPixel(dc, 69, 29), kGreen);
  EXPECT_EQ(GetPixel(dc, 29, 10), face_);
  EXPECT_EQ(GetPixel(dc, 70, 29), face_);
  EXPECT_EQ(GetPixel(dc, 69, 30), face_);
  // The context's own clipping is as before.
  RECT clip = {};
  EXPECT_EQ(GetClipBox(dc, &clip), SIMPLEREGION);
  ReleaseDC(window_, dc);
}

TEST_F(PaintTest, ErasingWithoutACanvasFillsAll) {
  Smear(kGreen);
  HDC dc = GetDC(window_);
  EXPECT_EQ(SendMessageA(window_, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0), 1);
  EXPECT_EQ(GetPixel(dc, 30, 10), face_);
  ReleaseDC(window_, dc);
}

int WINAPI FailToSave(HDC) { return 0; }

TEST_F(PaintTest, ErasingFillsAllWhenTheContextCanNotBeSaved) {
  SetCanvas(40, 20, 30, 10);
  Smear(kGreen);
  const ReplacedImport import("SaveDC", reinterpret_cast<void*>(FailToSave));
  HDC dc = GetDC(window_);
  EXPECT_EQ(SendMessageA(window_, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0), 1);
  EXPECT_EQ(GetPixel(dc, 30, 10), face_);
  EXPECT_EQ(GetPixel(dc, 0, 0), face_);
  ReleaseDC(window_, dc);
}

TEST_F(PaintTest, ASlotThatHoldsNoBitmapIsNoCanvas) {
  HBRUSH brush = CreateSolidBrush(kRed);
  for (const LONG value : {LONG{0x5A5A5A5A}, LONG{-1}, reinterpret_cast<LONG>(brush)}) {
    WriteSlot(window_, kSlotCanvas, value);
    Smear(kGreen);
    Redraw();
    EXPECT_EQ(PixelAt(0, 0), face_);
    EXPECT_EQ(GetUpdateRect(window_, nullptr, FALSE), FALSE);
  }
  WriteSlot(window_, kSlotCanvas, 0);
  DeleteObject(brush);
}

HDC WINAPI FailToMakeContext(HDC) { return nullptr; }

TEST_F(PaintTest, PaintingEndsWhenNoContextCanBeHad) {
  SetCanvas(40, 20, 30, 10);
  const ReplacedImport import("CreateCompatibleDC", reinterpret_cast<void*>(FailToMakeContext));
  Redraw();
  EXPECT_EQ(GetUpdateRect(window_, nullptr, FALSE), FALSE) << "The paint message is answered all the same";
}

struct Copy {
  int x, y, width, height, fromX, fromY;
  DWORD operation;
  bool operator==(const Copy&) const = default;
};
std::vector<Copy> copies;

BOOL WINAPI RecordCopy(HDC, int x, int y, int width, int height, HDC, int fromX, int fromY, DWORD operation) {
  copies.push_back({x, y, width, height, fromX, fromY, operation});
  return TRUE;
}

TEST_F(PaintTest, ThePaintingCopiesFromThePartsPlaceInTheCanvas) {
  SetCanvas(60, 60, 5, 7);
  Redraw();
  const ReplacedImport import("BitBlt", reinterpret_cast<void*>(RecordCopy));
  copies.clear();
  const RECT part = {10, 20, 40, 30};
  InvalidateRect(window_, &part, FALSE);
  UpdateWindow(window_);
  EXPECT_EQ(copies, (std::vector<Copy>{{10, 20, 40, 30, 5, 13, SRCCOPY}}));
}

TEST_F(PaintTest, TheMessagesOfAnUncoveredWindowGiveZero) {
  SetCanvas(40, 20, 30, 10);
  EXPECT_EQ(SendMessageA(window_, WM_PAINT, 0, 0), 0);
}

}  // namespace
}  // namespace brelt::test
