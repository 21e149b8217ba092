// What needs no control: drawing position, resolution, page measures and the flags of a window.
#include <climits>
#include <cstdint>
#include <string>

#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

int Display(int measure) {
  HDC display = CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
  const int value = GetDeviceCaps(display, measure);
  DeleteDC(display);
  return value;
}

class MetricTest : public PropertyTest {};

// ---- CurrentX, CurrentY ----

struct Coordinate {
  int32_t(__stdcall* get)(HWND, int32_t*);
  int32_t(__stdcall* set)(HWND, int32_t);
  int32_t WindowRow::*field;
};
constexpr Coordinate kCoordinates[] = {{GetCurrentX, SetCurrentX, &WindowRow::currentX},
                                       {GetCurrentY, SetCurrentY, &WindowRow::currentY}};

TEST_F(MetricTest, PositionIsTheRecords) {
  const EditFrame frame(kPlainFrameClass, "Plain");
  for (const Coordinate& c : kCoordinates) {
    for (HWND window : {form(), frame.get()}) {
      for (const int32_t value : {0, 17, -5, INT_MIN, INT_MAX}) {
        EXPECT_EQ(c.set(window, value), RTX_OK);
        EXPECT_EQ(RecordOf(window)->*c.field, value);
        int32_t got = -77;
        EXPECT_EQ(c.get(window, &got), RTX_OK);
        EXPECT_EQ(got, value);
      }
      EXPECT_EQ(c.get(window, nullptr), RTX_OK);
    }
  }
  SetCurrentX(form(), 1);
  SetCurrentY(form(), 2);
  EXPECT_EQ(record()->currentX, 1);
  EXPECT_EQ(record()->currentY, 2);
}

// Null is the printer, which has no position without a job.
TEST_F(MetricTest, PositionOfThePrinterAndOfOtherWindowsIsZeroAndStaysSo) {
  for (const Coordinate& c : kCoordinates) {
    for (HWND window :
         {static_cast<HWND>(nullptr), Control(kPush), GetDesktopWindow(), reinterpret_cast<HWND>(0xDEAD)}) {
      EXPECT_EQ(c.set(window, 5), RTX_OK);
      int32_t got = -77;
      EXPECT_EQ(c.get(window, &got), RTX_OK);
      EXPECT_EQ(got, 0);
      EXPECT_EQ(c.get(window, nullptr), RTX_OK);
    }
  }
}

// ---- Resolution and pages ----

TEST_F(MetricTest, ResolutionIsTheDisplaysForAnyNameButThePrinters) {
  ASSERT_GT(Display(LOGPIXELSX), 0);
  for (const char* name : {"SCREEN", kFormName, "nobody", "", "PRINTERS"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(GetDpiX(name), Display(LOGPIXELSX));
    EXPECT_EQ(GetDpiY(name), Display(LOGPIXELSY));
  }
  for (const char* name : {"PRINTER", "Printer", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(GetDpiX(name), 0);
    EXPECT_EQ(GetDpiY(name), 0);
  }
}

using Contexts = CountedImport<struct ContextTag, HDC, LPCSTR, LPCSTR, LPCSTR, const DEVMODEA*>;

TEST_F(MetricTest, ResolutionIsZeroWithoutADisplay) {
  const Contexts none("CreateICA", Contexts::kAlways);
  EXPECT_EQ(GetDpiX(kFormName), 0);
  EXPECT_EQ(GetDpiY(kFormName), 0);
  int32_t value = -77;
  EXPECT_EQ(GetPageHeight("SCREEN", &value), RTX_OK);
  EXPECT_EQ(value, 0);
}

// The two resolutions of a display are alike, so that the measures that are asked for are looked at.
TEST_F(MetricTest, ResolutionAsksForItsOwnMeasure) {
  static int asked;
  struct Replacement {
    static int WINAPI Answer(HDC, int measure) {
      asked = measure;
      return 1000 + measure;
    }
  };
  const ReplacedImport capabilities("GetDeviceCaps", reinterpret_cast<void*>(&Replacement::Answer));
  EXPECT_EQ(GetDpiX("SCREEN"), 1000 + LOGPIXELSX);
  EXPECT_EQ(GetDpiY("SCREEN"), 1000 + LOGPIXELSY);
  EXPECT_EQ(asked, LOGPIXELSY);
}

using GetMeasure = int32_t(__stdcall*)(const char*, int32_t*);

int32_t Measure(GetMeasure get, const char* name) {
  int32_t value = -77;
  EXPECT_EQ(get(name, &value), RTX_OK);
  return value;
}

TEST_F(MetricTest, PageOfTheScreenIsTheDisplays) {
  ASSERT_NE(Display(VERTRES), Display(HORZRES));
  for (const char* name : {"SCREEN", "Screen", "screen"}) {
    EXPECT_EQ(Measure(GetPageHeight, name), Display(VERTRES));
    EXPECT_EQ(Measure(GetPageWidth, name), Display(HORZRES));
  }
}

TEST_F(MetricTest, PageOfAWindowIsItsCanvas) {
  EXPECT_EQ(Measure(GetPageHeight, kFormName), 0);
  EXPECT_EQ(Measure(GetPageWidth, kFormName), 0);
  HDC screen = GetDC(nullptr);
  SetWindowLongA(form(), 4 * SLOT_CANVAS, reinterpret_cast<LONG>(CreateCompatibleBitmap(screen, 30, 40)));
  ReleaseDC(nullptr, screen);
  EXPECT_EQ(Measure(GetPageHeight, "PROPS"), 40);
  EXPECT_EQ(Measure(GetPageWidth, kFormName), 30);
}

// An edit window keeps its list of words where others have their canvas.
TEST_F(MetricTest, PageOfAnEditWindowIsNone) {
  const EditFrame frame(kPlainFrameClass, "Plain");
  HDC screen = GetDC(nullptr);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, 30, 40);
  ReleaseDC(nullptr, screen);
  SetWindowLongA(frame.get(), 4 * SLOT_CANVAS, reinterpret_cast<LONG>(bitmap));
  EXPECT_EQ(Measure(GetPageHeight, "Plain"), 0);
  SetWindowLongA(frame.get(), 4 * SLOT_CANVAS, 0);
  DeleteObject(bitmap);
}

TEST_F(MetricTest, PageOfWhatIsNoObjectIsZero) {
  for (const char* name : {"PRINTER", "printer", "nobody", "", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(Measure(GetPageHeight, name), 0);
    EXPECT_EQ(Measure(GetPageWidth, name), 0);
  }
}

TEST_F(MetricTest, PhysicalMeasuresAreZeroWithoutAJob) {
  for (GetMeasure get : {GetPhysicalHeight, GetPhysicalWidth, GetPhysicalOffsetX, GetPhysicalOffsetY}) {
    for (const char* name :
         {"PRINTER", "Printer", "SCREEN", kFormName, "nobody", static_cast<const char*>(nullptr)})
      EXPECT_EQ(Measure(get, name), 0);
  }
}

TEST_F(MetricTest, MeasuresWithoutAnOutputDoNothing) {
  for (GetMeasure get : {GetPageHeight, GetPageWidth, GetPhysicalHeight, GetPhysicalWidth, GetPhysicalOffsetX,
                         GetPhysicalOffsetY}) {
    for (const char* name : {"PRINTER", "SCREEN", kFormName, "nobody", static_cast<const char*>(nullptr)})
      EXPECT_EQ(get(name, nullptr), RTX_OK);
  }
}

TEST_F(MetricTest, PageNumberAndPrinterStatusAreZeroWithoutAJob) {
  EXPECT_EQ(GetPage(), 0);
  EXPECT_EQ(GetPrinterStatus(), 0);
}

// ---- Flags ----

int32_t Flags(const char* name) {
  int32_t flags = -77;
  EXPECT_EQ(GetFlags(name, &flags), RTX_OK);
  return flags;
}

TEST_F(MetricTest, FlagsAreTheWholeWordOfWhichTheLowHalfIsSet) {
  EXPECT_EQ(Flags(kFormName), 0x40000);
  EXPECT_EQ(SetFlags(kFormName, -1), RTX_OK);
  EXPECT_EQ(Flags(kFormName), 0x4FFFF);
  EXPECT_EQ(SetFlags(kFormName, 0x7FFF1234), RTX_OK);
  EXPECT_EQ(Flags(kFormName), 0x41234);
  SetWindowLongA(form(), 4 * SLOT_FLAGS, static_cast<LONG>(0x89ABCDEF));
  EXPECT_EQ(SetFlags("props", 0), RTX_OK);
  EXPECT_EQ(Flags(kFormName), static_cast<int32_t>(0x89AB0000));
  SetWindowLongA(form(), 4 * SLOT_FLAGS, 0x40000);
}

TEST_F(MetricTest, SettingFlagsPaintsWithoutErasing) {
  ShowForm();
  const MessageSpy spy;
  EXPECT_EQ(SetFlags(kFormName, 0), RTX_OK);
  EXPECT_EQ(PaintingOf(spy, form()), (Painting{1, 0}));
}

TEST_F(MetricTest, FlagsOfAnEditWindowAreSetAlike) {
  const EditFrame frame(kPlainFrameClass, "Plain");
  for (const int32_t flags : {0x200, 0x1000, 0x1200, 0, 0x17F0}) {
    EXPECT_EQ(SetFlags("Plain", flags), RTX_OK);
    EXPECT_EQ(Flags("Plain"), flags);
  }
}

}  // namespace
}  // namespace brelt::test
