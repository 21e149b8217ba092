// Timer events while the debug window stops a program.
#include "frame/library.h"
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

class DebugTimerTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    window_ = LoadDialog("Main", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14").window;
    Library.DebugWindowHandle = debug_.get();
    Log().Clear();
  }
  void TearDown() override {
    Library.DebugWindowHandle = nullptr;
    FormTest::TearDown();
  }

  int EventsOfATimer() const {
    Log().Clear();
    EXPECT_EQ(SendMessageA(window_, WM_TIMER, 7, 0), 0);
    return Log().Count(EV_TIMER);
  }

  TestClass class_{"DEBUG.1.3.2207"};
  TestWindow debug_{class_.name()};
  HWND window_ = nullptr;
};

TEST_F(DebugTimerTest, StopWhileItIsVisibleAndEnabled) {
  EXPECT_EQ(EventsOfATimer(), 1) << "It is hidden";
  ShowWindow(debug_.get(), SW_SHOWNOACTIVATE);
  EXPECT_EQ(EventsOfATimer(), 0);
  EnableWindow(debug_.get(), FALSE);
  EXPECT_EQ(EventsOfATimer(), 1) << "The program runs";
  EnableWindow(debug_.get(), TRUE);
  EXPECT_EQ(EventsOfATimer(), 0);
  ShowWindow(debug_.get(), SW_HIDE);
  EXPECT_EQ(EventsOfATimer(), 1);
}

TEST_F(DebugTimerTest, ComeBackWhenItGoesAway) {
  ShowWindow(debug_.get(), SW_SHOWNOACTIVATE);
  EXPECT_EQ(EventsOfATimer(), 0);
  DestroyWindow(debug_.get());
  EXPECT_EQ(EventsOfATimer(), 1);
  Library.DebugWindowHandle = nullptr;
  EXPECT_EQ(EventsOfATimer(), 1);
}

int ticks = 0;
void CALLBACK CountTick(HWND, UINT, UINT_PTR, DWORD) { ++ticks; }

TEST_F(DebugTimerTest, OfARealTimerStopAndComeBack) {
  SetTimer(window_, 9, USER_TIMER_MINIMUM, nullptr);
  EXPECT_TRUE(PumpUntil([] { return Log().Count(EV_TIMER) > 0; }));
  ShowWindow(debug_.get(), SW_SHOWNOACTIVATE);
  Pump();
  Log().Clear();
  // Ten further ticks of another timer of the same length.
  ticks = 0;
  const UINT_PTR other = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, CountTick);
  EXPECT_TRUE(PumpUntil([] { return ticks >= 10; }));
  KillTimer(nullptr, other);
  EXPECT_EQ(Log().Count(EV_TIMER), 0);
  ShowWindow(debug_.get(), SW_HIDE);
  EXPECT_TRUE(PumpUntil([] { return Log().Count(EV_TIMER) > 0; }));
}

TEST_F(DebugTimerTest, OtherEventsGoOn) {
  ShowWindow(debug_.get(), SW_SHOWNOACTIVATE);
  Log().Clear();
  SendMessageA(window_, EV_CUSTOM, 1, 2);
  EXPECT_TRUE(Heard({{EV_CUSTOM, 1, 2}}));
}

}  // namespace
}  // namespace brelt::test
