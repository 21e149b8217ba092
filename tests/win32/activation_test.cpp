// Activation of a window and the way of the keyboard focus through its controls.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/slots.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

constexpr const char* kButtons =
    "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
    "  PUSHBUTTON \"B\", 102, 10, 30, 50, 14\n"
    "  EDITTEXT 103, 10, 50, 50, 14";

class FocusTest : public FormTest {
 protected:
  static HWND Child(HWND window, int id) { return GetDlgItem(window, id); }
  static LRESULT Activate(HWND window, bool active) {
    return SendMessageA(window, WM_ACTIVATE, active ? WA_ACTIVE : WA_INACTIVE, 0);
  }
};

// ---- Activation ----

TEST_F(FocusTest, AnActivatedWindowGivesTheFocusToItsFirstTabStop) {
  const HWND window = LoadShown("Main", kButtons);
  EXPECT_EQ(GetFocus(), Child(window, 101));
}

TEST_F(FocusTest, TheFirstTabStopIsSoughtBehindControlsThatAreNone) {
  const struct {
    const char* what;
    const char* controls;
    int id;  // 0: the window itself
  } kForms[] = {
      {"a label first", "  LTEXT \"L\", 100, 1, 1, 9, 9\n  PUSHBUTTON \"A\", 101, 10, 10, 50, 14", 101},
      {"a disabled one first",
       "  PUSHBUTTON \"D\", 100, 1, 1, 9, 9, WS_DISABLED\n  PUSHBUTTON \"A\", 101, 10, 10, 50, 14", 101},
      {"one that the Tab key passes first",
       "  AUTOCHECKBOX \"C\", 100, 1, 1, 9, 9\n  PUSHBUTTON \"A\", 101, 10, 10, 50, 14", 101},
      {"only a label", "  LTEXT \"L\", 100, 1, 1, 9, 9", 0},
      {"only a disabled one", "  PUSHBUTTON \"D\", 100, 1, 1, 9, 9, WS_DISABLED", 0},
      {"nothing", "", 0},
  };
  for (const auto& form : kForms) {
    SCOPED_TRACE(form.what);
    const HWND window = LoadShown("Main", form.controls);
    EXPECT_EQ(GetFocus(), form.id == 0 ? window : Child(window, form.id));
    DestroyWindow(window);
  }
}

TEST_F(FocusTest, AWindowWithoutATabStopTakesTheFocusItself) {
  const HWND window = LoadShown("Main", "  LTEXT \"L\", 100, 1, 1, 9, 9");
  SetFocus(nullptr);
  EXPECT_EQ(Activate(window, true), 0);
  EXPECT_EQ(GetFocus(), window);
}

TEST_F(FocusTest, AHiddenControlIsNoTabStop) {
  const HWND window = LoadDialog("Main", kButtons).window;
  ShowWindow(Child(window, 101), SW_HIDE);
  ShowForm("Main");
  EXPECT_EQ(GetFocus(), Child(window, 102));
}

TEST_F(FocusTest, AnActivatedWindowGivesTheFocusBack) {
  const HWND window = LoadShown("Main", kButtons);
  const HWND other = LoadDialog("Other", kButtons).window;
  SetFocus(Child(window, 102));
  ShowForm("Other");
  EXPECT_EQ(WindowInSlot(window, kSlotLastFocus), Child(window, 102));
  EXPECT_EQ(GetFocus(), Child(other, 101));
  SetActiveWindow(window);
  EXPECT_EQ(GetFocus(), Child(window, 102));
}

TEST_F(FocusTest, TheFocusGoesToTheFirstTabStopWhereItCanNotGoBack) {
  const HWND window = LoadShown("Main", kButtons);
  const HWND other = LoadDialog("Other", kButtons).window;
  const struct {
    const char* what;
    std::function<void()> change;
  } kChanges[] = {
      {"disabled", [&] { EnableWindow(Child(window, 102), FALSE); }},
      {"hidden",
       [&] {
         EnableWindow(Child(window, 102), TRUE);
         ShowWindow(Child(window, 102), SW_HIDE);
       }},
      {"another window's",
       [&] {
         ShowWindow(Child(window, 102), SW_SHOW);
         WriteSlot(window, kSlotLastFocus, reinterpret_cast<LONG>(Child(other, 102)));
       }},
      {"the window's own", [&] { WriteSlot(window, kSlotLastFocus, reinterpret_cast<LONG>(window)); }},
      {"gone", [&] {
         WriteSlot(window, kSlotLastFocus, reinterpret_cast<LONG>(Child(window, 103)));
         DestroyWindow(Child(window, 103));
       }}};
  ShowForm("Other");
  for (const auto& row : kChanges) {
    SCOPED_TRACE(row.what);
    SetActiveWindow(window);
    SetFocus(Child(window, 102));
    SetActiveWindow(other);
    row.change();
    SetActiveWindow(window);
    EXPECT_EQ(GetFocus(), Child(window, 101));
  }
}

TEST_F(FocusTest, TheInnerFieldOfAComboBoxGetsTheFocusBack) {
  const HWND window = LoadShown("Main",
                                "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
                                "  COMBOBOX 102, 10, 30, 50, 50, CBS_DROPDOWN | WS_TABSTOP");
  LoadDialog("Other", kButtons);
  const HWND field = GetWindow(Child(window, 102), GW_CHILD);
  SetFocus(field);
  ShowForm("Other");
  EXPECT_EQ(WindowInSlot(window, kSlotLastFocus), field);
  SetActiveWindow(window);
  EXPECT_EQ(GetFocus(), field);
}

TEST_F(FocusTest, OnlyAChildWithTheFocusIsRemembered) {
  const HWND window = LoadShown("Main", kButtons);
  const HWND other = LoadShown("Other", kButtons);
  SetFocus(window);
  WriteSlot(window, kSlotLastFocus, 0x77);
  EXPECT_EQ(Activate(window, false), 0);
  EXPECT_EQ(ReadSlot(window, kSlotLastFocus), 0x77) << "The window itself isn't";
  SetFocus(Child(other, 102));
  EXPECT_EQ(Activate(window, false), 0);
  EXPECT_EQ(ReadSlot(window, kSlotLastFocus), 0x77) << "Another window's child isn't";
  SetFocus(nullptr);
  EXPECT_EQ(Activate(window, false), 0);
  EXPECT_EQ(ReadSlot(window, kSlotLastFocus), 0x77) << "No focus isn't";
}

TEST_F(FocusTest, ADisabledWindowThatIsActivatedTakesTheFocusAway) {
  const HWND window = LoadShown("Main", kButtons);
  EnableWindow(window, FALSE);
  SetFocus(Child(window, 102));
  EXPECT_EQ(Activate(window, true), 0);
  EXPECT_EQ(GetFocus(), nullptr);
}

TEST_F(FocusTest, OnlyTheLowWordTellsOfActivation) {
  const HWND window = LoadShown("Main", kButtons);
  SetFocus(Child(window, 102));
  WriteSlot(window, kSlotLastFocus, 0);
  // The high word tells that the window is minimised.
  SendMessageA(window, WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 1), 0);
  EXPECT_EQ(WindowInSlot(window, kSlotLastFocus), Child(window, 102));
  SetFocus(Child(window, 101));
  SendMessageA(window, WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), 0);
  EXPECT_EQ(GetFocus(), Child(window, 102));
}

TEST_F(FocusTest, ActivationIsPostedWithTheOtherWindow) {
  const HWND window = LoadShown("Main", kButtons);
  EXPECT_EQ(SendMessageA(window, WM_ACTIVATE, WA_ACTIVE, 0x1234), 0);
  EXPECT_EQ(SendMessageA(window, WM_ACTIVATE, WA_INACTIVE, 0x2345), 0);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  MSG message = {};
  ASSERT_TRUE(PeekMessageA(&message, window, 0x8000, 0xBFFF, PM_REMOVE));
  EXPECT_EQ(message.message, static_cast<UINT>(EV_ACTIVATE));
  EXPECT_EQ(message.wParam, 0u);
  EXPECT_EQ(message.lParam, 0x1234);
  ASSERT_TRUE(PeekMessageA(&message, window, 0x8000, 0xBFFF, PM_REMOVE));
  EXPECT_EQ(message.message, static_cast<UINT>(EV_DEACTIVATE));
  EXPECT_EQ(message.wParam, 0u);
  EXPECT_EQ(message.lParam, 0x2345);
  EXPECT_FALSE(PeekMessageA(&message, window, 0x8000, 0xBFFF, PM_REMOVE));
}

// ---- The Tab key and its message ----

LRESULT NextControl(HWND window, WPARAM wParam, LPARAM lParam) {
  return SendMessageA(window, WM_NEXTDLGCTL, wParam, lParam);
}

TEST_F(FocusTest, TheMessageGoesToTheNextOrThePreviousTabStop) {
  const HWND window = LoadShown("Main", kButtons);
  const struct {
    int from;
    WPARAM backwards;
    int to;
  } kSteps[] = {{101, 0, 102}, {102, 0, 103}, {103, 0, 101}, {101, 1, 103}, {103, 1, 102}, {102, 5, 101}};
  for (const auto& step : kSteps) {
    SetFocus(Child(window, step.from));
    EXPECT_EQ(NextControl(window, step.backwards, 0), 0);
    EXPECT_EQ(GetFocus(), Child(window, step.to)) << step.from;
  }
}

TEST_F(FocusTest, TheMessageGoesToTheFirstTabStopWhenNothingHasTheFocus) {
  const HWND window = LoadShown("Main", kButtons);
  SetFocus(nullptr);
  EXPECT_EQ(NextControl(window, 1, 0), 0);
  EXPECT_EQ(GetFocus(), Child(window, 101));
}

TEST_F(FocusTest, TheMessageDoesNothingWhenTheFocusIsOnNoChild) {
  const HWND window = LoadShown("Main", kButtons);
  const HWND other = LoadShown("Other", kButtons);
  for (const HWND focus : {window, Child(other, 102)}) {
    SetFocus(focus);
    EXPECT_EQ(NextControl(window, 0, 0), 0);
    EXPECT_EQ(GetFocus(), focus);
  }
}

TEST_F(FocusTest, TheMessageCanNameTheControl) {
  const HWND window = LoadShown("Main", kButtons);
  EXPECT_EQ(NextControl(window, reinterpret_cast<WPARAM>(Child(window, 103)), TRUE), 0);
  EXPECT_EQ(GetFocus(), Child(window, 103));
  // Any lParam but 0 names it.
  EXPECT_EQ(NextControl(window, reinterpret_cast<WPARAM>(Child(window, 101)), 0x10000), 0);
  EXPECT_EQ(GetFocus(), Child(window, 101));
}

TEST_F(FocusTest, TheMessageTakesOnlyAUsableChild) {
  const HWND window = LoadShown("Main",
                                "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
                                "  PUSHBUTTON \"B\", 102, 10, 30, 50, 14, WS_DISABLED\n"
                                "  PUSHBUTTON \"C\", 103, 10, 50, 50, 14");
  ShowWindow(Child(window, 103), SW_HIDE);
  const HWND other = LoadShown("Other", kButtons);
  SetActiveWindow(window);
  ASSERT_EQ(GetFocus(), Child(window, 101));
  const HWND kTargets[] = {nullptr, Child(window, 102), Child(window, 103),
                           window,  Child(other, 101),  reinterpret_cast<HWND>(0x5A5A)};
  for (const HWND target : kTargets) {
    EXPECT_EQ(NextControl(window, reinterpret_cast<WPARAM>(target), TRUE), 0);
    EXPECT_EQ(GetFocus(), Child(window, 101));
    EXPECT_EQ(GetActiveWindow(), window);
  }
}

// ---- The default look ----

DWORD LookOf(HWND window, int id) {
  return static_cast<DWORD>(GetWindowLongA(GetDlgItem(window, id), GWL_STYLE)) & 0xF;
}

constexpr const char* kLooks =
    "  DEFPUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
    "  PUSHBUTTON \"B\", 102, 10, 30, 50, 14\n"
    "  EDITTEXT 103, 10, 50, 50, 14\n"
    "  DEFPUSHBUTTON \"D\", 104, 10, 70, 50, 14\n"
    "  AUTOCHECKBOX \"E\", 105, 10, 90, 50, 14, BS_AUTOCHECKBOX | WS_TABSTOP";

void Step(HWND window, int id) {
  NextControl(window, reinterpret_cast<WPARAM>(GetDlgItem(window, id)), TRUE);
}

TEST_F(FocusTest, APushButtonThatGetsTheFocusGetsTheDefaultLook) {
  const HWND window = LoadShown("Main", kLooks);
  ASSERT_EQ(LookOf(window, 101), static_cast<DWORD>(BS_DEFPUSHBUTTON));
  ASSERT_EQ(LookOf(window, 104), static_cast<DWORD>(BS_DEFPUSHBUTTON));
  Step(window, 102);
  EXPECT_EQ(LookOf(window, 101), static_cast<DWORD>(BS_PUSHBUTTON));
  EXPECT_EQ(LookOf(window, 102), static_cast<DWORD>(BS_DEFPUSHBUTTON));
  EXPECT_EQ(LookOf(window, 104), static_cast<DWORD>(BS_PUSHBUTTON)) << "Each of them loses it";
  Step(window, 104);
  EXPECT_EQ(LookOf(window, 102), static_cast<DWORD>(BS_PUSHBUTTON));
  EXPECT_EQ(LookOf(window, 104), static_cast<DWORD>(BS_DEFPUSHBUTTON));
}

TEST_F(FocusTest, ThePushButtonIsDrawnAnewAndTheDefaultButtonNotAskedFor) {
  const HWND window = LoadShown("Main", kLooks);
  const MessageSpy spy;
  Step(window, 102);
  for (const int id : {101, 102}) {
    const std::vector<SentMessage> looks = spy.To(Child(window, id), BM_SETSTYLE);
    ASSERT_FALSE(looks.empty()) << id;
    EXPECT_EQ(looks.back().lParam, TRUE) << id;
  }
  EXPECT_TRUE(spy.To(window, DM_GETDEFID).empty());
}

TEST_F(FocusTest, AnotherControlTakesTheDefaultLookAwayAndItIsNotGivenBack) {
  for (const int id : {103, 105}) {
    SCOPED_TRACE(id);
    const HWND window = LoadShown("Main", kLooks);
    const DWORD look = LookOf(window, id);
    Step(window, id);
    EXPECT_EQ(LookOf(window, 101), static_cast<DWORD>(BS_PUSHBUTTON));
    EXPECT_EQ(LookOf(window, 102), static_cast<DWORD>(BS_PUSHBUTTON));
    EXPECT_EQ(LookOf(window, 104), static_cast<DWORD>(BS_PUSHBUTTON));
    EXPECT_EQ(LookOf(window, id), look) << "What is no push button keeps its type";
    EXPECT_EQ(SendMessageA(window, DM_GETDEFID, 0, 0), MAKELRESULT(101, DC_HASDEFID))
        << "Enter still finds it";
    DestroyWindow(window);
  }
}

LRESULT answerOfDefId = 0;
WNDPROC realProcedure = nullptr;

LRESULT CALLBACK AnswerDefId(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == DM_GETDEFID) return answerOfDefId;
  return CallWindowProcA(realProcedure, window, message, wParam, lParam);
}

// Where a program answers with a window, that window gets the look.
TEST_F(FocusTest, AnAnswerThatIsAUsableWindowGetsTheDefaultLook) {
  const HWND window = LoadShown("Main", kLooks);
  realProcedure =
      reinterpret_cast<WNDPROC>(SetWindowLongA(window, GWL_WNDPROC, reinterpret_cast<LONG>(AnswerDefId)));
  answerOfDefId = reinterpret_cast<LRESULT>(Child(window, 102));
  Step(window, 103);
  EXPECT_EQ(LookOf(window, 102), static_cast<DWORD>(BS_DEFPUSHBUTTON));
  EXPECT_EQ(LookOf(window, 101), static_cast<DWORD>(BS_PUSHBUTTON));
  EnableWindow(Child(window, 102), FALSE);
  Step(window, 105);
  EXPECT_EQ(LookOf(window, 102), static_cast<DWORD>(BS_PUSHBUTTON)) << "A disabled one doesn't";
  EnableWindow(Child(window, 102), TRUE);
  ShowWindow(Child(window, 102), SW_HIDE);
  Step(window, 103);
  EXPECT_EQ(LookOf(window, 102), static_cast<DWORD>(BS_PUSHBUTTON)) << "Nor a hidden one";
}

LRESULT CALLBACK DestroyAtFocus(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SETFOCUS) DestroyWindow(GetParent(window));
  return DefWindowProcA(window, message, wParam, lParam);
}

TEST_F(FocusTest, AWindowThatGoesWhileTheFocusMovesIsNoDanger) {
  const HWND window = LoadShown("Main", kLooks);
  SetWindowLongA(Child(window, 103), GWL_WNDPROC, reinterpret_cast<LONG>(DestroyAtFocus));
  Step(window, 103);
  EXPECT_FALSE(IsWindow(window));
  const HWND second = LoadShown("Second", kLooks);
  SetWindowLongA(Child(second, 101), GWL_WNDPROC, reinterpret_cast<LONG>(DestroyAtFocus));
  SetFocus(Child(second, 102));
  WriteSlot(second, kSlotLastFocus, reinterpret_cast<LONG>(Child(second, 101)));
  Activate(second, true);
  EXPECT_FALSE(IsWindow(second));
  Pump();
}

// ---- The system menu over an open list ----

constexpr const char* kCombos =
    "  COMBOBOX 101, 10, 10, 60, 60, CBS_DROPDOWN | WS_TABSTOP\n"
    "  COMBOBOX 102, 10, 30, 60, 60, CBS_DROPDOWNLIST | WS_TABSTOP\n"
    "  EDITTEXT 103, 10, 50, 50, 14";

bool IsOpen(HWND window, int id) { return SendDlgItemMessageA(window, id, CB_GETDROPPEDSTATE, 0, 0) != 0; }

TEST_F(FocusTest, ASystemCommandClosesTheListOfTheComboBoxWithTheFocus) {
  const HWND window = LoadShown("Main", kCombos);
  for (const int id : {101, 102}) {
    SCOPED_TRACE(id);
    const HWND field = id == 101 ? GetWindow(Child(window, id), GW_CHILD) : Child(window, id);
    SetFocus(field);
    SendDlgItemMessageA(window, id, CB_SHOWDROPDOWN, TRUE, 0);
    ASSERT_TRUE(IsOpen(window, id));
    // A command that the platform does nothing for.
    SendMessageA(window, WM_SYSCOMMAND, 0x1230, 0);
    EXPECT_FALSE(IsOpen(window, id));
  }
}

TEST_F(FocusTest, ASystemCommandTouchesNoOtherControl) {
  const HWND window = LoadShown("Main", std::string(kCombos) + "\n  PUSHBUTTON \"A\", 104, 10, 70, 50, 14");
  for (const HWND focus : {Child(window, 103), Child(window, 104), window, HWND{nullptr}}) {
    SetFocus(focus);
    const MessageSpy spy;
    SendMessageA(window, WM_SYSCOMMAND, 0x1230, 0);
    for (const SentMessage& sent : spy.sent()) EXPECT_NE(sent.message, static_cast<UINT>(CB_SHOWDROPDOWN));
  }
}

TEST_F(FocusTest, ASystemCommandReachesThePlatform) {
  const HWND window = LoadShown("Main", kCombos);
  SendMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_FALSE(IsWindow(window));
}

}  // namespace
}  // namespace brelt::test
