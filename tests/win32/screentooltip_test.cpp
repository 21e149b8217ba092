// Hints on a screen, with real movements of the pointer and real times.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"

namespace brelt::test {
namespace {

constexpr const char* kButtons =
    "  CONTROL \"\\nFirst hint\", 101, \"Bitmapbutton\", 0, 10, 10, 40, 20\n"
    "  CONTROL \"\\nSecond, a longer one\", 102, \"Bitmapbutton\", 0, 60, 10, 40, 20\n";

// What the machine may be late by.
constexpr DWORD kLate = 10000;

HWND Tooltip() { return FindWindowHandle("TOOLTIPS.1.3.2207", "Tooltip_window", 0, 1); }
bool IsShowing() { return IsWindowVisible(Tooltip()) != FALSE; }
bool IsHidden() { return !IsShowing(); }

std::string ShownText() {
  char text[256] = "";
  GetDlgItemTextA(Tooltip(), 101, text, sizeof text);
  return text;
}

class ScreenTooltipTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    MovePointerTo({1000, 740});
    window_ = LoadShown("Main", kButtons);
    first_ = GetDlgItem(window_, 101);
    second_ = GetDlgItem(window_, 102);
  }

  static void Point(HWND control) {
    RECT client = {};
    GetClientRect(control, &client);
    MovePointer(control, client.right / 2, client.bottom / 2);
  }
  // Waits for a condition and gives how long that took; the test fails when it doesn't come.
  static DWORD TimeUntil(const std::function<bool()>& condition, DWORD limit) {
    const DWORD start = GetTickCount();
    EXPECT_TRUE(PumpUntil(condition, limit));
    return GetTickCount() - start;
  }
  void Show(HWND control) {
    Point(control);
    ASSERT_TRUE(PumpUntil(IsShowing, 1000 + kLate));
  }

  HWND window_ = nullptr;
  HWND first_ = nullptr;
  HWND second_ = nullptr;
};

// Timers may come a little early by the clock that counts here.
constexpr DWORD kEarly = 50;

TEST_F(ScreenTooltipTest, AHintComesUpAfterASecondAndGoesAfterFive) {
  Point(first_);
  EXPECT_GE(TimeUntil(IsShowing, 1000 + kLate), 1000 - kEarly);
  EXPECT_EQ(ShownText(), "First hint");
  EXPECT_GE(TimeUntil(IsHidden, 5000 + kLate), 5000 - kEarly);
  EXPECT_TRUE(IsWindow(Tooltip()));
}

TEST_F(ScreenTooltipTest, AHintIsOnTheScreenBelowThePointerAndAboveTheWindow) {
  Show(first_);
  POINT pointer = {};
  GetCursorPos(&pointer);
  RECT place = {};
  GetWindowRect(Tooltip(), &place);
  EXPECT_EQ(place.left, pointer.x);
  EXPECT_EQ(place.top, pointer.y + GetSystemMetrics(SM_CYCURSOR) / 2);
  HDC screen = GetDC(nullptr);
  const auto shows = [&](LONG x, LONG y, COLORREF colour) { return GetPixel(screen, x, y) == colour; };
  EXPECT_TRUE(PumpUntil([&] { return shows(place.left, place.top, 0xFFFFFF); }));
  EXPECT_TRUE(PumpUntil([&] { return shows(place.right - 1, place.bottom - 1, 0x404040); }));
  EXPECT_TRUE(PumpUntil([&] { return shows(place.left + 2, place.top + 2, GetSysColor(COLOR_INFOBK)); }));
  // Somewhere there is text.
  const auto hasInk = [&] {
    for (LONG y = place.top + 4; y < place.bottom - 4; ++y) {
      for (LONG x = place.left + 4; x < place.right - 4; ++x) {
        if (shows(x, y, GetSysColor(COLOR_WINDOWTEXT))) return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(PumpUntil(hasInk));
  ReleaseDC(nullptr, screen);
}

TEST_F(ScreenTooltipTest, LeavingTheWindowHidesTheHintAtOnce) {
  Show(first_);
  MovePointerTo({1000, 740});
  // The watch looks every 200 milliseconds.
  TimeUntil(IsHidden, 200 + kLate);
  EXPECT_EQ(ShownText(), "");
}

TEST_F(ScreenTooltipTest, ANextHintComesAfterItsOwnSecond) {
  Show(first_);
  Point(second_);
  EXPECT_GE(TimeUntil([] { return IsShowing() && ShownText() == "Second, a longer one"; }, 1000 + kLate),
            90u);
}

int firstTimersEnded = 0;
BOOL(WINAPI* realKillTimer)(HWND, UINT_PTR) = nullptr;

BOOL WINAPI CountFirstTimer(HWND window, UINT_PTR id) {
  if (id == 1) ++firstTimersEnded;
  return realKillTimer(window, id);
}

TEST_F(ScreenTooltipTest, AHintDoesNotComeUpWhenThePointerLeavesInTime) {
  const ReplacedImport import("KillTimer", reinterpret_cast<void*>(CountFirstTimer));
  realKillTimer = reinterpret_cast<decltype(realKillTimer)>(import.original());
  Point(first_);
  Pump();
  ASSERT_TRUE(IsWindow(Tooltip()));
  MovePointerTo({1000, 740});
  Pump();
  firstTimersEnded = 0;
  EXPECT_TRUE(PumpUntil([] { return firstTimersEnded > 0; }, 1000 + kLate)) << "The time ends";
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(ShownText(), "");
}

TEST_F(ScreenTooltipTest, MovingOnWithinTheWindowHidesTheHint) {
  Show(first_);
  MovePointer(window_, 20, 100);
  TimeUntil(IsHidden, kLate);
}

TEST_F(ScreenTooltipTest, AClickHidesTheHint) {
  Show(first_);
  LeftDown();
  LeftUp();
  TimeUntil(IsHidden, kLate);
  EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 101 0\n");
}

TEST_F(ScreenTooltipTest, ClosingTheWindowTakesTheHintAway) {
  Show(first_);
  const HWND tooltip = Tooltip();
  Unload("Main");
  EXPECT_FALSE(IsWindow(tooltip));
}

}  // namespace
}  // namespace brelt::test
