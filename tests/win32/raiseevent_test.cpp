// The one way to a program's function: its result, and the pointer's shape while it runs.
#include "forms/events.h"

#include <gtest/gtest.h>

#include <functional>

#include "frame/winobject.h"
#include "tests/win32/support/classes.h"

namespace brelt::test {
namespace {

HCURSOR Shape(LPCSTR name) { return LoadCursorA(nullptr, name); }
const LPCSTR kWait = reinterpret_cast<LPCSTR>(IDC_WAIT);
const LPCSTR kArrow = reinterpret_cast<LPCSTR>(IDC_ARROW);
const LPCSTR kCross = reinterpret_cast<LPCSTR>(IDC_CROSS);

struct Call {
  HWND window;
  uint32_t event;
  uint32_t wParam;
  int32_t lParam;
  HCURSOR shape;
  bool operator==(const Call&) const = default;
};
std::vector<Call> calls;
int32_t answer = 0;

int32_t __stdcall RecordCall(HWND window, uint32_t event, uint32_t wParam, int32_t lParam) {
  calls.push_back({window, event, wParam, lParam, GetCursor()});
  return answer;
}

class RaiseEventTest : public ::testing::Test {
 protected:
  void SetUp() override {
    calls.clear();
    answer = 0;
    WriteSlot(window_.get(), SLOT_FUNCPTR, reinterpret_cast<LONG>(RecordCall));
  }

  TestClass class_{"RAISE.1.3.2207", kSlotBytes};
  TestWindow window_{class_.name()};
};

TEST_F(RaiseEventTest, PassesItsArgumentsAndGivesTheFunctionsResult) {
  for (const int32_t result : {0, 1, -1, 2147483647}) {
    answer = result;
    EXPECT_EQ(RaiseEvent(window_.get(), EV_CHANGE, 0xFFFFFFFF, -7), result);
  }
  ASSERT_EQ(calls.size(), 4u);
  EXPECT_EQ(calls[0].window, window_.get());
  EXPECT_EQ(calls[0].event, static_cast<uint32_t>(EV_CHANGE));
  EXPECT_EQ(calls[0].wParam, 0xFFFFFFFFu);
  EXPECT_EQ(calls[0].lParam, -7);
}

TEST_F(RaiseEventTest, ShowsThePointerBusyForSomeEventsOnly) {
  const struct {
    uint32_t event;
    bool busy;
  } kEvents[] = {{EV_USERBREAK, false}, {EV_CUSTOM, true}, {EV_ACTIVATE, true},  {EV_CHANGE, false},
                 {EV_MOUSEDOWN, true},  {EV_CLICK, true},  {EV_DBLCLICK, true},  {EV_DEACTIVATE, true},
                 {EV_KEYPRESS, false},  {EV_LOAD, true},   {EV_RIGHTDOWN, true}, {EV_RESIZE, false},
                 {EV_SELCHANGE, false}, {EV_TIMER, false}, {EV_CLOSE, true},     {1, true}};
  for (const auto& row : kEvents) {
    SCOPED_TRACE(row.event);
    calls.clear();
    SetCursor(Shape(kCross));
    RaiseEvent(window_.get(), row.event, 0, 0);
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].shape, Shape(row.busy ? kWait : kCross));
    EXPECT_EQ(GetCursor(), Shape(row.busy ? kArrow : kCross));
  }
}

TEST_F(RaiseEventTest, GivesZeroWithoutAFunctionAndLeavesThePointer) {
  WriteSlot(window_.get(), SLOT_FUNCPTR, 0);
  answer = 77;
  SetCursor(Shape(kCross));
  EXPECT_EQ(RaiseEvent(window_.get(), EV_CLICK, 1, 2), 0);
  EXPECT_EQ(RaiseEvent(window_.get(), EV_CLOSE, 0, 0), 0);
  EXPECT_EQ(GetCursor(), Shape(kCross));
  EXPECT_TRUE(calls.empty());
}

TEST_F(RaiseEventTest, ReachesNothingThroughAForeignWindow) {
  const TestClass foreign("FOREIGN", kSlotBytes + 4);
  const TestWindow window(foreign.name());
  SetWindowLongA(window.get(), SLOT_FUNCPTR * 4, reinterpret_cast<LONG>(RecordCall));
  EXPECT_EQ(RaiseEvent(window.get(), EV_CLICK, 1, 2), 0);
  EXPECT_EQ(RaiseEvent(nullptr, EV_CLICK, 1, 2), 0);
  EXPECT_TRUE(calls.empty());
}

}  // namespace
}  // namespace brelt::test
