// What a tracked rectangle looks like, and where it keeps the pointer.
#include <functional>

#include "tests/win32/support/input.h"
#include "tests/win32/support/tracking.h"

namespace brelt::test {
namespace {

TEST_F(TrackRectTest, ShowsFrameHandlesAndBandAndTakesAllAway) {
  settings_.flags = 0;
  const Frame second = {100, 60, 110, 100};
  const Frame third = {90, 40, 110, 100};
  // The band begins on the frame.
  ExpectSeen(WithBand(WithFrame(Background(), kFrame), kFrame));
  Move(240, 130);
  ExpectSeen(WithBand(WithFrame(Background(), kFrame), {100, 60, 140, 70}));
  Move(210, 160);
  ExpectSeen(WithBand(WithFrame(Background(), kFrame), second));
  Release();
  ExpectSeen(WithFrame(Background(), second));
  Move(130, 130);
  ExpectSeen(WithFrame(Background(), second));
  Press();
  ExpectSeen(WithBand(WithFrame(Background(), second), second));
  Move(120, 110);
  ExpectSeen(WithBand(WithFrame(Background(), second), third));
  Release();
  ExpectSeen(WithFrame(Background(), third));
  End();
  EXPECT_EQ(Track(kFrame, {179, 109}), third);
  EXPECT_TRUE(PumpUntil([this] { return CaptureClient(window_) == Background(); }));
}

TEST_F(TrackRectTest, TakesTheBandOffWhenAnotherMessageEndsTheDrag) {
  Move(240, 130);
  ExpectSeen(WithBand(WithFrame(Background(), kFrame), {100, 60, 140, 70}));
  End();
  EXPECT_EQ(Track(kFrame, {179, 109}), kFrame);
  EXPECT_TRUE(PumpUntil([this] { return CaptureClient(window_) == Background(); }));
}

TEST_F(TrackRectTest, ASecondPressWithoutAReleaseBeginsAnew) {
  settings_.flags = 0;
  Move(240, 130);
  Do([this] {
    MovePointer(window_, 130, 80);
    LeftDown();
  });
  ExpectSeen(WithBand(WithFrame(Background(), kFrame), kFrame));
  Move(140, 85);
  ExpectSeen(WithBand(WithFrame(Background(), kFrame), {110, 65, 80, 50}));
  Release();
  End();
  EXPECT_EQ(Track(kFrame, {179, 109}), (Frame{110, 65, 80, 50}));
}

TEST_F(TrackRectTest, PensAreHeldTo0To10AndWideOnesGoInside) {
  struct Case {
    int32_t given;
    int thickness;
  };
  for (const Case& c : {Case{0, 1}, Case{-1, 1}, Case{INT32_MIN, 1}, Case{1, 1}, Case{2, 2}, Case{3, 3},
                        Case{10, 10}, Case{11, 10}, Case{INT32_MAX, 10}}) {
    SCOPED_TRACE(c.given);
    settings_.penWidth = c.given;
    ForgetSteps();
    Move(240, 160);
    ExpectSeen(WithBand(WithFrame(Background(), kFrame), {100, 60, 140, 100}, c.thickness));
    Release();
    EXPECT_EQ(Track(kFrame, {179, 109}), (Frame{100, 60, 140, 100}));
  }
}

TEST_F(TrackRectTest, HandlesAreAsLargeAsTheyAreHeldTo) {
  struct Case {
    int32_t given;
    int32_t side;
  };
  for (const Case& c : {Case{0, 0}, Case{-3, 0}, Case{1, 1}, Case{5, 5}, Case{10, 10}, Case{99, 10}}) {
    SCOPED_TRACE(c.given);
    ForgetSteps();
    settings_.handleSize = c.side;
    ExpectSeen(WithBand(WithFrame(Background(), kFrame), kFrame));
    Release();
    settings_.handleSize = c.given;
    EXPECT_EQ(Track(kFrame, {150, 90}), kFrame);
  }
}

TEST_F(TrackRectTest, DrawsWithinTheBoundsOnly) {
  struct Case {
    const char* what;
    RECT bounds;
    RECT visible;  // client coordinates
  };
  const RECT all = {0, 0, kClientWidth, kClientHeight};
  const Case cases[] = {{"in force", {110, 70, 150, 100}, {110, 70, 150, 100}},
                        {"right 0", {110, 70, 0, 100}, all},
                        {"bottom 0", {110, 70, 150, 0}, all},
                        {"cut to the client area", {-50, -50, 150, 5000}, {0, 0, 150, kClientHeight}},
                        {"outside the client area", {400, 400, 500, 500}, {0, 0, 0, 0}},
                        {"upside down", {150, 100, 110, 70}, {0, 0, 0, 0}},
                        {"negative", {-50, -50, -1, -1}, {0, 0, 0, 0}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ForgetSteps();
    settings_.bounds = c.bounds;
    const Picture whole = WithBand(WithFrame(Background(), kFrame), {90, 50, 80, 50});
    Picture expected = Background();
    for (int y = c.visible.top; y < c.visible.bottom; ++y) {
      for (int x = c.visible.left; x < c.visible.right; ++x) expected.Set(x, y, whole.At(x, y));
    }
    Move(120, 80);
    ExpectSeen(expected);
    Release();
    EXPECT_EQ(Track(kFrame, {130, 90}), (Frame{90, 50, 80, 50}));
  }
}

// Without bounds it draws on the screen, whoever's it is; with bounds the client area is the most.
TEST_F(TrackRectTest, DrawsOutsideTheWindowWithoutBounds) {
  const Frame frame = {250, 60, 100, 50};
  const POINT outside = ToScreen(kClientWidth, 80);
  const RECT strip = {outside.x, outside.y, outside.x + 60, outside.y + 1};
  const Picture before = CaptureScreen(strip);
  Picture expected = before;
  expected.Set(49, 0, kBandColour);  // the right edges of frame and band
  Do([&] { EXPECT_EQ(Differences(CaptureScreen(strip), expected), ""); });
  Release();
  Track(frame, {260, 90});
  RedrawWindow(nullptr, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  ASSERT_TRUE(PumpUntil([&] { return CaptureScreen(strip) == before; }));
  settings_.bounds = {0, 0, 1000, 1000};
  ForgetSteps();
  Do([&] { EXPECT_EQ(Differences(CaptureScreen(strip), before), ""); });
  Release();
  Track(frame, {260, 90});
}

TEST_F(TrackRectTest, ClipsThePointerToTheClientAreaWhileDragging) {
  const auto clip = [] {
    RECT area = {};
    GetClipCursor(&area);
    return area;
  };
  const RECT free = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  const POINT origin = ToScreen(0, 0);
  const RECT client = {origin.x, origin.y, origin.x + kClientWidth + 1, origin.y + kClientHeight + 1};
  settings_.flags = 0;
  Do([&] {
    const RECT area = clip();
    EXPECT_TRUE(EqualRect(&area, &client)) << area.left << ", " << area.right;
  });
  Move(5000, 5000);
  Do([&] {
    POINT pointer = {};
    GetCursorPos(&pointer);
    EXPECT_EQ(pointer.x, client.right - 1);
    EXPECT_EQ(pointer.y, client.bottom - 1);
  });
  Release();
  Do([&] {
    const RECT area = clip();
    EXPECT_TRUE(EqualRect(&area, &free));
  });
  Move(120, 80);
  Press();
  End();
  EXPECT_EQ(Track(kFrame, {179, 109}), (Frame{100, 60, kClientWidth - 100, kClientHeight - 60}));
  const RECT area = clip();
  EXPECT_TRUE(EqualRect(&area, &free));
}

// Whoever holds the pointer: the release of a press that drags nothing lets it go, too.
TEST_F(TrackRectTest, AnyReleaseFreesThePointer) {
  settings_.flags = 0;
  Do([this] {
    RECT held = {};
    GetWindowRect(window_, &held);
    ClipCursor(&held);
    GetClipCursor(&held);
    EXPECT_LT(held.right, GetSystemMetrics(SM_CXSCREEN));
  });
  Release();
  Do([] {
    RECT area = {};
    GetClipCursor(&area);
    EXPECT_EQ(area.right, GetSystemMetrics(SM_CXSCREEN));
  });
  End();
  EXPECT_EQ(Track(kFrame, {50, 20}), kFrame);
}

TEST_F(TrackRectTest, ThePointerShowsWhatADragWouldDo) {
  struct Case {
    POINT at;
    LPCTSTR cursor;
  };
  const Case cases[] = {{{103, 64}, IDC_SIZENWSE},  {{141, 66}, IDC_SIZENS},  {{174, 62}, IDC_SIZENESW},
                        {{106, 84}, IDC_SIZEWE},    {{130, 80}, IDC_SIZEALL}, {{173, 86}, IDC_SIZEWE},
                        {{101, 109}, IDC_SIZENESW}, {{141, 103}, IDC_SIZENS}, {{179, 109}, IDC_SIZENWSE},
                        {{50, 20}, IDC_ARROW},      {{180, 110}, IDC_ARROW}};
  settings_.flags = 0;
  Release();
  for (const Case& c : cases) {
    Move(c.at.x, c.at.y);
    Do([c] { EXPECT_EQ(GetCursor(), LoadCursor(nullptr, c.cursor)) << c.at.x << ", " << c.at.y; });
  }
  End();
  EXPECT_EQ(Track(kFrame, {50, 20}), kFrame);
  settings_.flags = 1;
  for (const Case& c : cases) {
    ForgetSteps();
    Do([c] { EXPECT_EQ(GetCursor(), LoadCursor(nullptr, c.cursor)) << c.at.x << ", " << c.at.y; });
    Release();
    Track(kFrame, c.at);
  }
}

}  // namespace
}  // namespace brelt::test
