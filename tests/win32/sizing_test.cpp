// The size of a window: what the program hears of it, and the limits that it has set.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

constexpr const char* kOneButton = "  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14";
constexpr const char* kSizable = "STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME\n";
constexpr const char* kFixed = "STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU\n";

int32_t ClientSize(HWND window) {
  RECT client = {};
  GetClientRect(window, &client);
  return AsPoint(client.right, client.bottom);
}

class SizeTest : public FormTest {};

TEST_F(SizeTest, AResizeReportsTheSizeBeforeTheChange) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  MoveWindow(window, 10, 10, 300, 200, FALSE);
  Log().Clear();
  const int32_t before = ClientSize(window);
  MoveWindow(window, 10, 10, 320, 240, FALSE);
  EXPECT_TRUE(Heard({{EV_RESIZE, 0, before}}));
  const int32_t then = ClientSize(window);
  EXPECT_NE(then, before);
  MoveWindow(window, 10, 10, 330, 250, FALSE);
  EXPECT_TRUE(Heard({{EV_RESIZE, 0, before}, {EV_RESIZE, 0, then}})) << "Each change is reported once";
}

TEST_F(SizeTest, AMoveAloneReportsAResizeToo) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  MoveWindow(window, 10, 10, 300, 200, FALSE);
  Log().Clear();
  SetWindowPos(window, nullptr, 50, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_TRUE(Heard({{EV_RESIZE, 0, ClientSize(window)}}));
}

TEST_F(SizeTest, TheFirstReportAfterTheLoadIsOfTheWindowAsItWasMade) {
  const HWND window = LoadDialog("Main", kOneButton, kSizable).window;
  EXPECT_TRUE(Heard({{EV_LOAD, 0, 0}})) << "No size is reported while the window loads";
  Log().Clear();
  const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
  const auto exStyle = static_cast<DWORD>(GetWindowLongA(window, GWL_EXSTYLE));
  RECT smallest = {};
  AdjustWindowRectEx(&smallest, style, FALSE, exStyle);
  // What is pending is what the first sizing left behind: the client area of a window of 20 by 20, as far as
  // the platform lets one be so small.
  const int32_t pending =
      AsPoint(RecordWordOf(window, kWordClientWidth), RecordWordOf(window, kWordClientHeight));
  EXPECT_EQ(RecordWordOf(window, kWordResizePending), 1);
  EXPECT_LT(LOWORD(pending), 200);
  SendMessageA(window, WM_SIZE, 0, 0);
  EXPECT_TRUE(Heard({{EV_RESIZE, 0, pending}}));
}

TEST_F(SizeTest, NothingIsReportedWithoutAChange) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  MoveWindow(window, 10, 10, 300, 200, FALSE);
  Log().Clear();
  EXPECT_EQ(SendMessageA(window, WM_SIZE, 0, AsPoint(5, 5)), 0);
  EXPECT_EQ(SendMessageA(window, WM_MOVE, 0, AsPoint(5, 5)), 0);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

TEST_F(SizeTest, AWindowThatIsNotSizableReportsNothing) {
  const HWND window = LoadShown("Main", kOneButton, kFixed);
  MoveWindow(window, 10, 10, 300, 200, FALSE);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  EXPECT_EQ(RecordWordOf(window, kWordResizePending), 1) << "It stays pending";
  SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) | WS_THICKFRAME);
  SendMessageA(window, WM_MOVE, 0, 0);
  EXPECT_EQ(Log().Count(EV_RESIZE), 1);
  EXPECT_EQ(RecordWordOf(window, kWordResizePending), 0);
}

TEST_F(SizeTest, NothingIsReportedWhileTheWindowLoads) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  RecordWordOf(window, kWordLoaded) = 0;
  MoveWindow(window, 10, 10, 310, 210, FALSE);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  RecordWordOf(window, kWordLoaded) = 1;
  SendMessageA(window, WM_SIZE, 0, 0);
  EXPECT_EQ(Log().Count(EV_RESIZE), 1);
}

// Height in the high word, width in the low one, and no word spoils the other.
TEST_F(SizeTest, AReportHasTheHeightInItsHighWord) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  const struct {
    int32_t width, height, expected;
  } kSizes[] = {{3, 5, 0x00050003},
                {0, 7, 0x00070000},
                {9, 0, 9},
                {0x1FFFF, 1, 0x0001FFFF},
                {1, 0x8000, static_cast<int32_t>(0x80000001)}};
  for (const auto& row : kSizes) {
    Log().Clear();
    RecordWordOf(window, kWordClientWidth) = row.width;
    RecordWordOf(window, kWordClientHeight) = row.height;
    RecordWordOf(window, kWordResizePending) = 1;
    SendMessageA(window, WM_SIZE, 0, 0);
    EXPECT_TRUE(Heard({{EV_RESIZE, 0, row.expected}}));
  }
}

TEST_F(SizeTest, AChangeOfNeitherSizeNorPlaceIsNotNoted) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  RecordWordOf(window, kWordResizePending) = 0;
  RecordWordOf(window, kWordClientWidth) = 1234;
  const struct {
    UINT flags;
    bool noted;
  } kFlags[] = {{SWP_NOSIZE | SWP_NOMOVE, false},
                {SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED, false},
                {SWP_NOSIZE, true},
                {SWP_NOMOVE, true},
                {0, true}};
  for (const auto& row : kFlags) {
    SCOPED_TRACE(row.flags);
    RecordWordOf(window, kWordResizePending) = 0;
    RecordWordOf(window, kWordClientWidth) = 1234;
    RecordWordOf(window, kWordClientHeight) = 1234;
    RECT place = {};
    GetWindowRect(window, &place);
    WINDOWPOS position = {
        window,   nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
        row.flags};
    SendMessageA(window, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
    EXPECT_EQ(RecordWordOf(window, kWordResizePending), row.noted ? 1 : 0);
    const int32_t client =
        AsPoint(RecordWordOf(window, kWordClientWidth), RecordWordOf(window, kWordClientHeight));
    EXPECT_EQ(client, row.noted ? ClientSize(window) : AsPoint(1234, 1234));
  }
}

TEST_F(SizeTest, MaximisingAndRestoringAreReported) {
  const HWND window =
      LoadShown("Main", kOneButton,
                "STYLE WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX\n");
  MoveWindow(window, 10, 10, 300, 200, FALSE);
  Log().Clear();
  const int32_t normal = ClientSize(window);
  ShowWindow(window, SW_MAXIMIZE);
  ASSERT_FALSE(Log().events.empty());
  EXPECT_EQ(Log().events.front(), (Event{EV_RESIZE, 0, normal}));
  const int32_t large = ClientSize(window);
  EXPECT_NE(large, normal);
  Log().Clear();
  ShowWindow(window, SW_RESTORE);
  ASSERT_FALSE(Log().events.empty());
  EXPECT_EQ(Log().events.front(), (Event{EV_RESIZE, 0, large}));
  EXPECT_EQ(ClientSize(window), normal);
}

// A program may set the size in the event; what it sets is reported within, and then it is quiet.
TEST_F(SizeTest, AFunctionCanChangeTheSizeInsideTheEvent) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  MoveWindow(window, 10, 10, 300, 200, FALSE);
  Log().Clear();
  Log().onEvent = [&](HWND, const Event& event) {
    if (event.event == EV_RESIZE) MoveWindow(window, 10, 10, 400, 300, FALSE);
    return 0;
  };
  MoveWindow(window, 10, 10, 310, 210, FALSE);
  EXPECT_GE(Log().Count(EV_RESIZE), 2);
  EXPECT_LE(Log().Count(EV_RESIZE), 3);
  EXPECT_EQ(RecordWordOf(window, kWordResizePending), 0);
}

// ---- Limits ----

struct Limits {
  int32_t x, y, width, height;
};

void SetLimits(HWND window, RecordWord word, const Limits& limits) {
  int32_t* place = &RecordWordOf(window, word);
  place[0] = limits.x;
  place[1] = limits.y;
  place[2] = limits.width;
  place[3] = limits.height;
}

MINMAXINFO AskLimits(HWND window) {
  MINMAXINFO info = {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10}};
  EXPECT_EQ(SendMessageA(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info)), 0);
  return info;
}

std::vector<LONG> Words(const MINMAXINFO& info) {
  const LONG* words = reinterpret_cast<const LONG*>(&info);
  return {words, words + 10};
}

TEST_F(SizeTest, WithoutLimitsThePlatformsStay) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  EXPECT_EQ(Words(AskLimits(window)), (std::vector<LONG>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(SizeTest, TheLargestSizeSetsSizeAndPlaceOfAMaximisedWindow) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  SetLimits(window, kWordMaxPosition, {20, 30, 400, 300});
  EXPECT_EQ(Words(AskLimits(window)), (std::vector<LONG>{1, 2, 400, 300, 20, 30, 7, 8, 400, 300}));
}

TEST_F(SizeTest, TheSmallestSizeSetsTheSmallestTrackingSize) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  SetLimits(window, kWordMinPosition, {20, 30, 400, 300});
  EXPECT_EQ(Words(AskLimits(window)), (std::vector<LONG>{1, 2, 3, 4, 5, 6, 400, 300, 9, 10}));
}

TEST_F(SizeTest, ALimitCountsOnlyWithBothSizesAboveZero) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  for (const Limits& limits :
       {Limits{1, 1, 0, 100}, Limits{1, 1, 100, 0}, Limits{1, 1, -5, 100}, Limits{1, 1, 100, -5}}) {
    SetLimits(window, kWordMaxPosition, limits);
    SetLimits(window, kWordMinPosition, limits);
    EXPECT_EQ(Words(AskLimits(window)), (std::vector<LONG>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  }
}

TEST_F(SizeTest, AMinimisedWindowTakesThePlaceFromTheWorkAreasCorner) {
  const HWND window =
      LoadShown("Main", kOneButton,
                "STYLE WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX\n");
  RECT usual = {};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &usual, 0);
  RECT area = {11, 22, 500, 400};
  SystemParametersInfoA(SPI_SETWORKAREA, 0, &area, 0);
  RECT set = {};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &set, 0);
  ShowWindow(window, SW_MINIMIZE);
  ASSERT_TRUE(IsIconic(window));
  EXPECT_EQ(Words(AskLimits(window)), (std::vector<LONG>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}))
      << "without a limit nothing";
  SetLimits(window, kWordMaxPosition, {20, 30, 400, 300});
  EXPECT_EQ(Words(AskLimits(window)),
            (std::vector<LONG>{1, 2, 400, 300, 20 + set.left, 30 + set.top, 7, 8, 400, 300}));
  SystemParametersInfoA(SPI_SETWORKAREA, 0, &usual, 0);
}

TEST_F(SizeTest, TheFirstLimitsThatThePlatformOffersAreKept) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  int32_t* kept = &RecordWordOf(window, kWordSystemMinMax);
  EXPECT_GT(kept[8], 0) << "The platform has asked while the window was sized";
  const std::vector<LONG> first(kept, kept + 10);
  AskLimits(window);
  EXPECT_EQ(std::vector<LONG>(kept, kept + 10), first);
  // It is taken anew while its four x values show 0, whatever the others are.
  for (int i = 0; i < 10; ++i) kept[i] = 77;
  for (const int x : {2, 4, 6, 8}) kept[x] = 0;
  AskLimits(window);
  EXPECT_EQ(std::vector<LONG>(kept, kept + 10), (std::vector<LONG>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  for (const int x : {2, 4, 6, 8}) {
    for (int i = 0; i < 10; ++i) kept[i] = 0;
    kept[x] = 5;
    const std::vector<LONG> before(kept, kept + 10);
    AskLimits(window);
    EXPECT_EQ(std::vector<LONG>(kept, kept + 10), before) << "word " << x;
  }
}

TEST_F(SizeTest, WhatIsKeptIsThePlatformsOwnAndNotTheLimits) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  int32_t* kept = &RecordWordOf(window, kWordSystemMinMax);
  for (int i = 0; i < 10; ++i) kept[i] = 0;
  SetLimits(window, kWordMaxPosition, {20, 30, 400, 300});
  SetLimits(window, kWordMinPosition, {0, 0, 200, 100});
  AskLimits(window);
  EXPECT_EQ(std::vector<LONG>(kept, kept + 10), (std::vector<LONG>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(SizeTest, TheLimitsHoldForARealWindow) {
  const HWND window =
      LoadShown("Main", kOneButton,
                "STYLE WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX\n");
  SetLimits(window, kWordMinPosition, {0, 0, 250, 180});
  SetLimits(window, kWordMaxPosition, {15, 25, 420, 330});
  const auto place = [&] {
    RECT outer = {};
    GetWindowRect(window, &outer);
    return std::vector<LONG>{outer.left, outer.top, outer.right - outer.left, outer.bottom - outer.top};
  };
  MoveWindow(window, 40, 40, 100, 100, FALSE);
  EXPECT_EQ(place(), (std::vector<LONG>{40, 40, 250, 180}));
  MoveWindow(window, 40, 40, 900, 700, FALSE);
  EXPECT_EQ(place(), (std::vector<LONG>{40, 40, 420, 330}));
  MoveWindow(window, 40, 40, 300, 300, FALSE);
  EXPECT_EQ(place(), (std::vector<LONG>{40, 40, 300, 300}));
  ShowWindow(window, SW_MAXIMIZE);
  EXPECT_EQ(place(), (std::vector<LONG>{15, 25, 420, 330}));
}

TEST_F(SizeTest, AMessageWithoutLimitsIsPassedOver) {
  const HWND window = LoadShown("Main", kOneButton, kSizable);
  EXPECT_EQ(SendMessageA(window, WM_GETMINMAXINFO, 0, 0), 0);
}

}  // namespace
}  // namespace brelt::test
