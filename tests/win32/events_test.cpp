// The events that a program hears of, and those that it doesn't.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"

namespace brelt::test {
namespace {

constexpr const char* kOneButton = "  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14";

class EventTest : public FormTest {};

// ---- Events that travel as messages ----

TEST_F(EventTest, CustomMessagesArriveWithTheirArgumentsAndGiveZero) {
  const HWND window = LoadShown("Main", kOneButton);
  Log().onEvent = [](HWND, const Event&) { return 77; };
  EXPECT_EQ(SendMessageA(window, 32768, 0xFFFFFFFF, -5), 0);
  EXPECT_EQ(SendMessageA(window, 32768, 3, 0x7FFFFFFF), 0);
  EXPECT_TRUE(Heard({{EV_CUSTOM, 0xFFFFFFFFu, -5}, {EV_CUSTOM, 3, 0x7FFFFFFF}}));
}

TEST_F(EventTest, KeyAndMouseMessagesArriveAndGiveTheFunctionsResult) {
  const HWND window = LoadShown("Main", kOneButton);
  Log().onEvent = [](HWND, const Event& event) { return static_cast<int32_t>(event.event) - 32700; };
  for (const UINT number : {32771u, 32775u, 32777u}) {
    EXPECT_EQ(SendMessageA(window, number, 11, -22), static_cast<LRESULT>(number) - 32700);
  }
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 11, -22}, {EV_KEYPRESS, 11, -22}, {EV_RIGHTDOWN, 11, -22}}));
}

TEST_F(EventTest, TheLoadMessageArrivesWithZerosAndGivesZero) {
  const HWND window = LoadShown("Main", kOneButton);
  Log().onEvent = [](HWND, const Event&) { return 77; };
  EXPECT_EQ(SendMessageA(window, 32776, 5, 6), 0);
  EXPECT_TRUE(Heard({{EV_LOAD, 0, 0}}));
}

TEST_F(EventTest, TheActivateMessageCountsOnlyForTheActiveWindow) {
  const HWND window = LoadShown("Main", kOneButton);
  const HWND other = LoadShown("Other", kOneButton);
  Log().onEvent = [](HWND, const Event&) { return 77; };
  ASSERT_EQ(GetActiveWindow(), other);
  EXPECT_EQ(SendMessageA(window, 32769, 9, 123), 0);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  EXPECT_EQ(SendMessageA(other, 32769, 9, 123), 0);
  EXPECT_TRUE(Heard({{other, {EV_ACTIVATE, 0, 123}}})) << "wParam is always 0";
}

// These numbers belong to events that handlers raise; as messages they end in the platform's default.
TEST_F(EventTest, OtherEventNumbersAreNoMessages) {
  const HWND window = LoadShown("Main", kOneButton);
  Log().onEvent = [](HWND, const Event&) { return 77; };
  for (const UINT number : {32767u, 32770u, 32772u, 32773u, 32774u, 32778u, 32779u, 32780u, 32781u, 32782u}) {
    EXPECT_EQ(SendMessageA(window, number, 1, 2), 0) << number;
  }
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

// A deactivation is posted and dropped: no program has ever seen it.
TEST_F(EventTest, NoProgramHearsOfADeactivation) {
  const HWND window = LoadShown("Main", kOneButton);
  const HWND other = LoadShown("Other", kOneButton);
  SetActiveWindow(window);
  MSG message = {};
  ASSERT_TRUE(PeekMessageA(&message, other, 32774, 32774, PM_NOREMOVE)) << "It is posted";
  EXPECT_EQ(message.wParam, 0u);
  EXPECT_EQ(reinterpret_cast<HWND>(message.lParam), window);
  Pump();
  EXPECT_TRUE(Heard({{window, {EV_ACTIVATE, 0, AsParam(other)}}}));
}

TEST_F(EventTest, AnActivationThatIsOverWhenItsTurnComesIsNotHeard) {
  const HWND window = LoadShown("Main", kOneButton);
  const HWND other = LoadShown("Other", kOneButton);
  SetActiveWindow(window);
  SetActiveWindow(other);
  SetActiveWindow(window);
  SetActiveWindow(other);
  Pump();
  EXPECT_TRUE(
      Heard({{other, {EV_ACTIVATE, 0, AsParam(window)}}, {other, {EV_ACTIVATE, 0, AsParam(window)}}}));
}

// ---- Timers ----

TEST_F(EventTest, ATimerIsHeardByItsId) {
  const HWND window = LoadShown("Main", kOneButton);
  SetTimer(window, 42, USER_TIMER_MINIMUM, nullptr);
  EXPECT_TRUE(PumpUntil([] { return Log().Count(EV_TIMER) >= 2; }));
  KillTimer(window, 42);
  Pump();
  Log().Clear();
  Log().onEvent = [](HWND, const Event&) { return 77; };
  EXPECT_EQ(SendMessageA(window, WM_TIMER, 43, 99), 0);
  EXPECT_TRUE(Heard({{EV_TIMER, 43, 0}}));
}

TEST_F(EventTest, ATimerWithIdZeroIsNotHeard) {
  const HWND window = LoadShown("Main", kOneButton);
  EXPECT_EQ(SendMessageA(window, WM_TIMER, 0, 0), 0);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

// ---- Results ----

TEST_F(EventTest, OnlyTheResultsOfCloseAndKeyCount) {
  const HWND window =
      LoadShown("Main", "  EDITTEXT 101, 10, 10, 50, 14\n  PUSHBUTTON \"Go\", 102, 10, 30, 50, 14");
  Log().onEvent = [](HWND, const Event& event) {
    return event.event == EV_KEYPRESS || event.event == EV_CLOSE ? 0 : 1;
  };
  EXPECT_EQ(SendMessageA(window, WM_COMMAND, 102, reinterpret_cast<LPARAM>(GetDlgItem(window, 102))), 0);
  EXPECT_EQ(SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELONG(1, 1)), 0);
  EXPECT_EQ(SendMessageA(window, WM_RBUTTONDOWN, MK_RBUTTON, MAKELONG(1, 1)), 0);
  EXPECT_EQ(SendMessageA(window, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELONG(1, 1)), 0);
  EXPECT_EQ(SendMessageA(window, WM_TIMER, 1, 0), 0);
  EXPECT_TRUE(Heard({{EV_CLICK, 102, 0},
                     {EV_MOUSEDOWN, 0, AsPoint(1, 1)},
                     {EV_RIGHTDOWN, 0, AsPoint(1, 1)},
                     {EV_DBLCLICK, 0, 0},
                     {EV_TIMER, 1, 0}}));
}

// ---- A whole life ----

TEST_F(EventTest, AFormIsHeardFromLoadToClose) {
  const HWND window =
      LoadDialog("Main",
                 "  EDITTEXT 101, 10, 10, 100, 14\n"
                 "  AUTOCHECKBOX \"Loud\", 102, 10, 30, 60, 12, BS_AUTOCHECKBOX | WS_TABSTOP\n"
                 "  DEFPUSHBUTTON \"OK\", 1, 10, 50, 50, 14\n"
                 "  PUSHBUTTON \"Cancel\", 2, 80, 50, 50, 14")
          .window;
  RECT place = {};
  GetClientRect(GetDlgItem(window, 1), &place);
  POINT down = {place.right / 2, place.bottom / 2};
  MapWindowPoints(GetDlgItem(window, 1), window, &down, 1);
  Script script;
  script.Do([] { PressKey('H', {VK_SHIFT}); })
      .Do([] { PressKey('I'); })
      .Do([] { PressKey(VK_TAB); })
      .Do([] { PressKey(VK_SPACE); })
      .Do([&] {
        MovePointer(GetDlgItem(window, 1), place.right / 2, place.bottom / 2);
        LeftDown();
        LeftUp();
      })
      .Do([] { PressKey(VK_F9); })
      .Do([] { PressKey(VK_ESCAPE); })
      .Do([] { PressKey(VK_F4, {VK_MENU}); });
  EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr), 0);
  EXPECT_TRUE(Heard({{EV_LOAD, 0, 0},
                     {EV_ACTIVATE, 0, 0},
                     {EV_CHANGE, 101, 0},
                     {EV_CHANGE, 101, 0},
                     {EV_CLICK, 102, 0},
                     {EV_MOUSEDOWN, 1, AsPoint(down.x, down.y)},
                     {EV_CLICK, 1, 0},
                     {EV_KEYPRESS, 1, VK_F9},
                     {EV_KEYPRESS, 1, VK_ESCAPE},
                     {EV_CLOSE, 0, 0}}));
}

}  // namespace
}  // namespace brelt::test
