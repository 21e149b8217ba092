// A rectangle that the user moves and sizes: what comes of it.
#include <functional>

#include "tests/win32/support/handles.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/tracking.h"

namespace brelt::test {
namespace {

int beeps = 0;
BOOL WINAPI CountBeep(UINT type) {
  EXPECT_EQ(type, 0xFFFFFFFF);
  ++beeps;
  return TRUE;
}

// Counts the beeps while it lives.
struct BeepCount {
  BeepCount() { beeps = 0; }
  ReplacedImport import{"MessageBeep", reinterpret_cast<void*>(&CountBeep)};
};

// ---- Drags ----

TEST_F(TrackRectTest, EachHandleMovesItsEdges) {
  struct Case {
    const char* handle;
    POINT press;
    POINT corner;  // where the pointer is put
    POINT to;
    Frame frame;
  };
  const Case cases[] = {
      {"top left", {103, 64}, {100, 60}, {70, 50}, {70, 50, 110, 60}},
      {"top centre", {139, 66}, {140, 60}, {90, 30}, {100, 30, 80, 80}},
      {"top right", {174, 62}, {180, 60}, {200, 70}, {100, 70, 100, 40}},
      {"middle left", {106, 84}, {100, 85}, {120, 10}, {120, 60, 60, 50}},
      {"body", {130, 80}, {130, 80}, {120, 95}, {90, 75, 80, 50}},
      {"middle right", {173, 86}, {180, 85}, {250, 20}, {100, 60, 150, 50}},
      {"bottom left", {101, 109}, {100, 110}, {90, 150}, {90, 60, 90, 90}},
      {"bottom centre", {141, 103}, {140, 110}, {20, 190}, {100, 60, 80, 130}},
      {"bottom right", {179, 109}, {180, 110}, {240, 160}, {100, 60, 140, 100}},
  };
  const BeepCount beep;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.handle);
    ForgetSteps();
    Do([&] {
      POINT pointer = {};
      GetCursorPos(&pointer);
      ScreenToClient(window_, &pointer);
      EXPECT_EQ(pointer.x, c.corner.x);
      EXPECT_EQ(pointer.y, c.corner.y);
      EXPECT_EQ(GetCapture(), window_);
    });
    Move(c.to.x, c.to.y);
    Release();
    EXPECT_EQ(Track(kFrame, c.press), c.frame);
  }
  EXPECT_EQ(beeps, 0);
}

TEST_F(TrackRectTest, AHandleIsDraggedBackWhereItCameFrom) {
  Move(10, 10);
  Move(290, 190);
  Move(180, 110);
  Release();
  EXPECT_EQ(Track(kFrame, {179, 109}), kFrame);
}

TEST_F(TrackRectTest, APressAndReleaseLeavesTheFrame) {
  Release();
  EXPECT_EQ(Track(kFrame, {179, 109}), kFrame);
  EXPECT_EQ(Track(kFrame, {130, 80}), kFrame);
}

TEST_F(TrackRectTest, SizesKeepToTheMinimum) {
  struct Case {
    POINT press;
    POINT to;
    Frame frame;
  };
  const Case cases[] = {
      {{103, 64}, {290, 190}, {170, 90, 10, 20}},  // top left
      {{174, 62}, {10, 190}, {100, 90, 10, 20}},   // top right
      {{101, 109}, {290, 10}, {170, 60, 10, 20}},  // bottom left
      {{179, 109}, {10, 10}, {100, 60, 10, 20}},   // bottom right
      {{139, 66}, {10, 190}, {100, 90, 80, 20}},   // top centre
      {{106, 84}, {290, 10}, {170, 60, 10, 50}},   // middle left
      {{173, 86}, {10, 190}, {100, 60, 10, 50}},   // middle right
      {{141, 103}, {10, 10}, {100, 60, 80, 20}},   // bottom centre
  };
  for (const Case& c : cases) {
    ForgetSteps();
    Move(c.to.x, c.to.y);
    Release();
    EXPECT_EQ(Track(kFrame, c.press), c.frame) << c.press.x << ", " << c.press.y;
  }
}

TEST_F(TrackRectTest, MinimaAreHeldTo2To100) {
  struct Case {
    int32_t given;
    int32_t held;
  };
  for (const Case& c : {Case{1, 2}, Case{0, 2}, Case{-5, 2}, Case{INT32_MIN, 2}, Case{2, 2}, Case{3, 3},
                        Case{99, 99}, Case{100, 100}, Case{101, 100}, Case{INT32_MAX, 100}}) {
    SCOPED_TRACE(c.given);
    ForgetSteps();
    Move(5, 5);
    Release();
    settings_.minWidth = c.given;
    settings_.minHeight = 7;
    EXPECT_EQ(Track({100, 60, 120, 110}, {219, 169}), (Frame{100, 60, c.held, 7}));
    settings_.minWidth = 7;
    settings_.minHeight = c.given;
    EXPECT_EQ(Track({100, 60, 120, 110}, {219, 169}), (Frame{100, 60, 7, c.held}));
  }
}

TEST_F(TrackRectTest, HandleSizesAreHeldTo0To10) {
  struct Case {
    int32_t given;
    POINT press;
    bool isHandle;
  };
  for (const Case& c : {Case{10, {109, 69}, true}, Case{10, {110, 69}, false}, Case{11, {110, 69}, false},
                        Case{INT32_MAX, {110, 69}, false}, Case{INT32_MAX, {109, 69}, true},
                        Case{1, {100, 60}, true}, Case{1, {101, 60}, false}, Case{0, {100, 60}, false},
                        Case{-1, {100, 60}, false}, Case{INT32_MIN, {100, 60}, false}}) {
    SCOPED_TRACE(std::to_string(c.given) + " at " + std::to_string(c.press.x));
    settings_.handleSize = c.given;
    ForgetSteps();
    Move(c.press.x + 20, c.press.y + 10);
    Release();
    // A handle's drag sizes to the pointer, a body's moves by the pointer's way.
    const Frame sized = {c.press.x + 20, c.press.y + 10, 160 - c.press.x, 100 - c.press.y};
    EXPECT_EQ(Track(kFrame, c.press), c.isHandle ? sized : (Frame{120, 70, 80, 50}));
  }
}

TEST_F(TrackRectTest, ABodyIsHeldByThePointerOnly) {
  // The pointer stays within the client area, one point more at right and bottom, the frame doesn't.
  Move(-90, -70);
  Move(700, 600);
  Release();
  EXPECT_EQ(Track(kFrame, {130, 80}), (Frame{100 + kClientWidth - 130, 60 + kClientHeight - 80, 80, 50}));
  ForgetSteps();
  Move(-90, -70);
  Release();
  EXPECT_EQ(Track(kFrame, {130, 80}), (Frame{100 - 130, 60 - 80, 80, 50}));
}

// ---- Ends ----

TEST_F(TrackRectTest, WithoutTheFlagTheUserDragsAgainUntilAPressOutside) {
  for (const int32_t flags : {0, 2, -2}) {
    settings_.flags = flags;
    ForgetSteps();
    Move(200, 150);
    Release();  // 100, 60, 100, 90
    Move(150, 100);
    Press();
    Move(130, 90);
    Release();  // 80, 50, 100, 90
    Move(81, 51);
    Press();
    Move(60, 40);
    Release();  // 60, 40, 120, 100
    Move(181, 90);
    Press();
    bool isPressThere = false;
    EXPECT_EQ(Track(kFrame, {179, 109},
                    [&] {
                      MSG press;
                      isPressThere =
                          PeekMessageA(&press, window_, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_NOREMOVE) != FALSE;
                    }),
              (Frame{60, 40, 120, 100}));
    EXPECT_TRUE(isPressThere);
  }
}

TEST_F(TrackRectTest, WithTheFlagTheFirstReleaseEndsIt) {
  for (const int32_t flags : {1, 3, -1}) {
    settings_.flags = flags;
    ForgetSteps();
    Move(200, 150);
    Release();
    EXPECT_EQ(Track(kFrame, {179, 109}), (Frame{100, 60, 100, 90})) << flags;
  }
}

TEST_F(TrackRectTest, AStartOutsideIsNoDrag) {
  Move(60, 30);
  Do([this] {
    EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
    EXPECT_EQ(Differences(CaptureClient(window_), WithFrame(Background(), kFrame)), "");
    RECT clip = {};
    GetClipCursor(&clip);
    EXPECT_EQ(clip.right, GetSystemMetrics(SM_CXSCREEN));
  });
  Release();
  EXPECT_EQ(Track(kFrame, {50, 20}), kFrame);
  // Without the flag the release only makes the next press possible.
  settings_.flags = 0;
  Move(179, 109);
  Press();
  Move(200, 150);
  Release();
  Move(10, 10);
  Press();
  EXPECT_EQ(Track(kFrame, {50, 20}), (Frame{100, 60, 100, 90}));
}

struct Ending {
  const char* what;
  void (*happen)(HWND window);
  UINT message;
};
const Ending kEndings[] = {
    {"a key", [](HWND) { KeyDown(VK_F9), KeyUp(VK_F9); }, WM_KEYDOWN},
    {"the right button", [](HWND) { RightDown(), RightUp(); }, WM_RBUTTONDOWN},
    {"a paint", [](HWND window) { InvalidateRect(window, nullptr, FALSE); }, WM_PAINT},
    {"message 0", [](HWND window) { PostMessageA(window, WM_NULL, 0, 0); }, WM_NULL},
    {"message 1024", [](HWND window) { PostMessageA(window, WM_USER, 0, 0); }, WM_USER},
    {"a command", [](HWND window) { PostMessageA(window, WM_COMMAND, 0, 0); }, WM_COMMAND},
    {"a message of the thread", [](HWND) { PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0); },
     WM_NULL},
    {"a double click", [](HWND window) { PostMessageA(window, WM_LBUTTONDBLCLK, 0, 0); }, WM_LBUTTONDBLCLK},
    {"the end of the program", [](HWND) { PostQuitMessage(5); }, WM_QUIT},
};

TEST_F(TrackRectTest, AnyOtherMessageEndsItAndStaysAndItsDragDoesntCount) {
  for (const Ending& ending : kEndings) {
    SCOPED_TRACE(ending.what);
    for (const int32_t flags : {0, 1}) {
      settings_.flags = flags;
      ForgetSteps();
      Move(200, 150);
      Do([&] { ending.happen(window_); });
      bool isThere = false;
      EXPECT_EQ(Track(kFrame, {179, 109},
                      [&] {
                        MSG left = {};
                        isThere = PeekMessageA(&left, nullptr, ending.message, ending.message, PM_REMOVE) &&
                                  left.message == ending.message;
                        RECT clip = {};
                        GetClipCursor(&clip);
                        EXPECT_EQ(clip.right, GetSystemMetrics(SM_CXSCREEN));
                      }),
                kFrame);
      // The end paints the window, which is all that a paint asks for.
      EXPECT_EQ(isThere, ending.message != WM_PAINT);
      EXPECT_TRUE(PumpUntil([this] { return CaptureClient(window_) == Background(); }));
    }
  }
}

TEST_F(TrackRectTest, WhatWasDraggedBeforeAMessageEndedItCounts) {
  settings_.flags = 0;
  Move(200, 150);
  Release();
  End();
  EXPECT_EQ(Track(kFrame, {179, 109}), (Frame{100, 60, 100, 90}));
}

TEST_F(TrackRectTest, TimersAreSwallowedAndMessagesAbove1024Wait) {
  int timers = 0;
  Do([this] { SetTimer(window_, 7, USER_TIMER_MINIMUM, nullptr); });
  Do([this] {
    MSG timer;
    const DWORD start = GetTickCount();
    while (!PeekMessageA(&timer, window_, WM_TIMER, WM_TIMER, PM_NOREMOVE) && GetTickCount() - start < 5000) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_TIMER);
    }
  });
  Do([this] {
    KillTimer(window_, 7);
    PostMessageA(window_, WM_USER + 1, 0, 0);
  });
  Move(200, 150);
  Release();
  bool isThere = false;
  EXPECT_EQ(Track(kFrame, {179, 109},
                  [&] {
                    timers = Log().Count(EV_TIMER);
                    MSG left;
                    isThere = PeekMessageA(&left, window_, WM_USER + 1, WM_USER + 1, PM_REMOVE) != FALSE;
                  }),
            (Frame{100, 60, 100, 90}));
  EXPECT_EQ(timers, 0);
  EXPECT_TRUE(isThere);
}

TEST_F(TrackRectTest, AWindowThatGoesLeavesTheCallersRectangle) {
  Move(200, 150);
  Do([this] {
    DestroyWindow(window_);
    PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0);
  });
  EXPECT_EQ(Track(kFrame, {179, 109}), kFrame);
}

// ---- What comes from another thread ----

// Ends a tracking that would go on for ever, and fails the test.
class Watchdog {
 public:
  Watchdog() : thread_(CreateThread(nullptr, 0, Run, this, 0, nullptr)) {}
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;
  ~Watchdog() {
    SetEvent(done_);
    WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
    CloseHandle(done_);
    EXPECT_FALSE(barked_);
  }

 private:
  static DWORD WINAPI Run(LPVOID data) {
    auto* dog = static_cast<Watchdog*>(data);
    if (WaitForSingleObject(dog->done_, 30000) == WAIT_OBJECT_0) return 0;
    dog->barked_ = true;
    PostThreadMessageA(dog->guarded_, WM_NULL, 0, 0);
    return 0;
  }

  const DWORD guarded_ = GetCurrentThreadId();
  const HANDLE done_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  bool barked_ = false;
  const HANDLE thread_;
};

TEST_F(TrackRectTest, InputThatIsThereAlreadyIsHandledWithoutMore) {
  bool tracked = false;
  frame_ = kFrame;
  Log().onEvent = [&](HWND, const Event& event) {
    if (event.event != EV_MOUSEDOWN || tracked) return 0;
    tracked = true;
    MovePointer(window_, 200, 150);
    LeftUp();
    // The queue has been asked since: what is in it is no longer news.
    GetQueueStatus(QS_ALLINPUT);
    const Watchdog dog;
    EXPECT_EQ(Call(), RTX_OK);
    return 0;
  };
  MovePointer(window_, 130, 80);
  Pump();
  LeftDown();
  ASSERT_TRUE(PumpUntil([&] { return tracked; }));
  EXPECT_EQ(frame_, (Frame{170, 130, 80, 50}));
}

// What another thread does once the tracking of kFrame by its bottom right handle has begun.
struct Hand {
  DWORD thread;
  HWND window;
  COLORREF band;  // as it is seen

  // The tracking has begun when it has the mouse and has put the pointer on the corner.
  void WaitForTracking() const {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    const auto hasBegun = [&] {
      POINT pointer = {};
      GetCursorPos(&pointer);
      ScreenToClient(window, &pointer);
      return pointer.x == 180 && pointer.y == 110 && GetGUIThreadInfo(thread, &info) &&
             info.hwndCapture == window;
    };
    for (const DWORD start = GetTickCount(); !hasBegun() && GetTickCount() - start < 10000;) Sleep(1);
  }
  // Moves the pointer until the band's corner has followed. Wine can lose a move while it hands out the one
  // before, and takes none to where the pointer is: so it goes by way of another place when it goes again.
  void DragTo(int x, int y) const {
    POINT corner = {x - 1, y - 1};
    ClientToScreen(window, &corner);
    HDC screen = GetDC(nullptr);
    const auto isThere = [&] { return GetPixel(screen, corner.x, corner.y) == band; };
    for (int attempt = 0; attempt < 50 && !isThere(); ++attempt) {
      if (attempt > 0) MovePointer(window, x - 9, y - 9);
      MovePointer(window, x, y);
      for (const DWORD start = GetTickCount(); !isThere() && GetTickCount() - start < 200;) Sleep(1);
    }
    ReleaseDC(nullptr, screen);
  }

  static DWORD WINAPI Send(LPVOID data) {
    const auto* hand = static_cast<const Hand*>(data);
    hand->WaitForTracking();
    SendMessageA(hand->window, EV_CUSTOM, 0, 0);
    return 0;
  }
  static DWORD WINAPI Drag(LPVOID data) {
    const auto* hand = static_cast<const Hand*>(data);
    hand->WaitForTracking();
    hand->DragTo(219, 149);
    LeftUp();
    return 0;
  }
};

class TrackRectHandTest : public TrackRectTest {
 protected:
  // Tracks kFrame from the event of a press on its handle, while a hand does its part.
  void TrackWith(LPTHREAD_START_ROUTINE part) {
    Hand hand = {GetCurrentThreadId(), window_, background_ ^ kBandColour};
    bool tracked = false;
    frame_ = kFrame;
    Log().onEvent = [&](HWND window, const Event& event) {
      if (event.event == EV_CUSTOM) DestroyWindow(window);
      if (event.event != EV_MOUSEDOWN || tracked) return 0;
      tracked = true;
      const Watchdog dog;
      EXPECT_EQ(Call(), RTX_OK);
      return 0;
    };
    HANDLE thread = CreateThread(nullptr, 0, part, &hand, 0, nullptr);
    MovePointer(window_, 179, 109);
    Pump();
    LeftDown();
    EXPECT_TRUE(PumpUntil([&] { return tracked; }, 40000));
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
  }
};

TEST_F(TrackRectHandTest, AHandOutsideDragsIt) {
  TrackWith(Hand::Drag);
  EXPECT_EQ(frame_, (Frame{100, 60, 119, 89}));
}

// A message that is sent goes past the queue, so that there need be none after it.
TEST_F(TrackRectHandTest, AWindowThatGoesByASentMessageEndsIt) {
  TrackWith(Hand::Send);
  EXPECT_FALSE(IsWindow(window_));
  EXPECT_EQ(frame_, kFrame);
}

// Moves the pointer on between the look at a move and its removal, as a quick hand does.
struct QuickHand {
  BOOL(WINAPI* peek)(MSG*, HWND, UINT, UINT, UINT);
  HWND window;
  bool isReady;
};
QuickHand quick;
BOOL WINAPI PeekAndMoveOn(MSG* message, HWND window, UINT first, UINT last, UINT flags) {
  const BOOL found = quick.peek(message, window, first, last, flags);
  if (found && quick.isReady && message->message == WM_MOUSEMOVE && flags == PM_NOREMOVE) {
    quick.isReady = false;
    MovePointer(quick.window, 240, 170);
  }
  return found;
}

TEST_F(TrackRectTest, AMoveThatGoesOnWhileItIsTakenIsNotLost) {
  const ReplacedImport peek("PeekMessageA", reinterpret_cast<void*>(&PeekAndMoveOn));
  quick = {reinterpret_cast<decltype(quick.peek)>(peek.original()), window_, false};
  Do([] {});
  Do([this] {
    quick.isReady = true;
    MovePointer(window_, 200, 150);
  });
  Release();
  EXPECT_EQ(Track(kFrame, {179, 109}), (Frame{100, 60, 140, 110}));
}

// ---- Refusals ----

TEST_F(TrackRectTest, AnUnknownWindowIsReportedWithoutABeep) {
  const BeepCount beep;
  frame_ = kFrame;
  EXPECT_EQ(Call("nobody"), RTX_NO_WINDOW);
  EXPECT_EQ(Call(nullptr), RTX_NO_WINDOW);
  EXPECT_EQ(beeps, 0);
  EXPECT_EQ(frame_, kFrame);
}

TEST_F(TrackRectTest, ACallWithoutTheButtonDownBeepsAndChangesNothing) {
  const BeepCount beep;
  frame_ = kFrame;
  EXPECT_EQ(Call(), RTX_OK);
  EXPECT_EQ(beeps, 1);
  EXPECT_EQ(frame_, kFrame);
  EXPECT_EQ(CaptureClient(window_), Background());
}

TEST_F(TrackRectTest, WhatCantBeTrackedBeepsAndChangesNothing) {
  struct Case {
    const char* what;
    std::function<void()> call;
  };
  const auto with = [](int32_t* x, int32_t* y, int32_t* width, int32_t* height) {
    EXPECT_EQ(TrackRect("Form", 1, 8, 10, 10, 1, 0, 0, 0, 0, x, y, width, height), RTX_OK);
  };
  const auto sized = [this](int32_t width, int32_t height) {
    const Frame frame = {100, 60, width, height};
    frame_ = frame;
    EXPECT_EQ(Call(), RTX_OK);
    EXPECT_EQ(frame_, frame);
    frame_ = kFrame;
  };
  const Case cases[] = {
      {"no x", [&] { with(nullptr, &frame_.y, &frame_.width, &frame_.height); }},
      {"no y", [&] { with(&frame_.x, nullptr, &frame_.width, &frame_.height); }},
      {"no width", [&] { with(&frame_.x, &frame_.y, nullptr, &frame_.height); }},
      {"no height", [&] { with(&frame_.x, &frame_.y, &frame_.width, nullptr); }},
      {"width 0", [&] { sized(0, 50); }},
      {"height 0", [&] { sized(80, 0); }},
      {"width -1", [&] { sized(-1, 50); }},
      {"height -1", [&] { sized(80, INT32_MIN); }},
      {"another window active",
       [this] {
         HWND other = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 500, 400, 50, 50, nullptr,
                                      nullptr, nullptr, nullptr);
         SetActiveWindow(other);
         EXPECT_EQ(Call(), RTX_OK);
         SetActiveWindow(window_);
         DestroyWindow(other);
       }},
      {"no device context",
       [this] {
         const CountedImport<struct ContextTag, HDC, const char*, const char*, const char*, const DEVMODEA*>
             fail("CreateDCA", 1);
         EXPECT_EQ(Call(), RTX_OK);
         EXPECT_TRUE(fail.HasFailed());
       }},
      {"no pen",
       [this] {
         const CountedImport<struct PenTag, HPEN, int, int, COLORREF> fail("CreatePen", 1);
         EXPECT_EQ(Call(), RTX_OK);
         EXPECT_TRUE(fail.HasFailed());
       }},
      {"no region",
       [this] {
         const CountedImport<struct RegionTag, HRGN, const RECT*> fail("CreateRectRgnIndirect", 1);
         settings_.bounds = {0, 0, 100, 100};
         EXPECT_EQ(Call(), RTX_OK);
         EXPECT_TRUE(fail.HasFailed());
       }},
  };
  const BeepCount beep;
  const ReplacedImport wait("WaitMessage", reinterpret_cast<void*>(&DoNextStep));
  MovePointer(window_, 179, 109);
  Pump();
  LeftDown();
  Pump();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    frame_ = kFrame;
    beeps = 0;
    c.call();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(frame_, kFrame);
    EXPECT_EQ(GetCapture(), nullptr);
    Pump();
    EXPECT_EQ(CaptureClient(window_), Background());
  }
}

TEST_F(TrackRectTest, LeavesNothingBehind) {
  settings_.bounds = {0, 0, 200, 200};
  Move(240, 150);
  Release();
  Track(kFrame, {179, 109});
  const HandleCount before = CountHandles();
  for (int i = 0; i < 20; ++i) Track(kFrame, {179, 109});
  const HandleCount after = CountHandles();
  EXPECT_EQ(after.pens, before.pens);
  EXPECT_EQ(after.regions, before.regions);
  EXPECT_EQ(after.contexts, before.contexts);
  EXPECT_EQ(after.brushes, before.brushes);
  EXPECT_EQ(after.memoryBlocks, before.memoryBlocks);
}

}  // namespace
}  // namespace brelt::test
