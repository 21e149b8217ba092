// What edit windows have in common with forms, and where their handlers differ: on bare windows of their
// procedures, with the slots that a load would fill.
#include <optional>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

using NoEvents = std::vector<Event>;

struct EditKind {
  const char* className;
  WNDPROC procedure;
  bool isRich;
};
const EditKind kKinds[] = {{"EDITWINDOW.1.3.2207", Editwindow_proc, false},
                           {"RICHEDITWINDOW.1.3.2207", Richeditwindow_proc, true}};

class EditSharedTest : public FormTest, public ::testing::WithParamInterface<EditKind> {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    class_.emplace(GetParam().className, 40, 0, GetParam().procedure);
    window_ = CreateWindowExA(0, class_->name(), "Edit", WS_POPUP, 20, 20, 300, 200, nullptr, nullptr,
                              GetModuleHandleA(nullptr), nullptr);
    WriteSlot(window_, kSlotFuncptr, reinterpret_cast<LONG>(RecordEvent));
    inner_ = MakeChild("EDIT", 101, 0);
    ShowWindow(window_, SW_SHOW);
    Pump();
    Log().Clear();
  }
  void TearDown() override {
    if (IsWindow(window_)) DestroyWindow(window_);
    class_.reset();
    FormTest::TearDown();
  }

  HWND MakeChild(const char* className, int id, int y) const {
    return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 10 + y, 100, 30, window_,
                           reinterpret_cast<HMENU>(id), GetModuleHandleA(nullptr), nullptr);
  }
  void Notify(HWND control, int code) const {
    SendMessageA(window_, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code),
                 reinterpret_cast<LPARAM>(control));
  }

  std::optional<TestClass> class_;
  HWND window_ = nullptr;
  HWND inner_ = nullptr;
};

TEST_P(EditSharedTest, AChangeOfAPlainFieldIsHeardWithZeroInAPlainEditWindowOnly) {
  SetFocus(nullptr);
  Notify(inner_, EN_CHANGE);
  EXPECT_TRUE(Heard(GetParam().isRich ? NoEvents{} : NoEvents{{EV_CHANGE, 0, 0}}));
}

TEST_P(EditSharedTest, AChangeOfARichFieldIsHeardWithZeroInARichEditWindowOnly) {
  const TestClass rich("RICHEDIT20A");
  const HWND control = rich.MakeChild(window_, 102);
  Notify(control, EN_CHANGE);
  EXPECT_TRUE(Heard(GetParam().isRich ? NoEvents{{EV_CHANGE, 0, 0}} : NoEvents{}));
  DestroyWindow(control);
}

TEST_P(EditSharedTest, ListsAndComboBoxesAreSilent) {
  for (const char* className : {"LISTBOX", "COMBOBOX"}) {
    const HWND control = MakeChild(className, 103, 40);
    SetFocus(control);
    Notify(control, 1);
    Notify(control, 2);
    DestroyWindow(control);
  }
  EXPECT_TRUE(Heard(NoEvents{}));
}

TEST_P(EditSharedTest, AButtonThatGoesDownOnAChildIsHeardWithZero) {
  MovePointer(inner_, 5, 6);
  LeftDown();
  LeftUp();
  Pump();
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 0, AsPoint(15, 16)}}));
  Log().Clear();
  SendMessageA(window_, WM_PARENTNOTIFY, WM_RBUTTONDOWN, AsPoint(15, 16));
  Pump();
  EXPECT_TRUE(Heard({{EV_RIGHTDOWN, 0, AsPoint(15, 16)}}));
}

TEST_P(EditSharedTest, EventsThatTravelAsMessagesArrive) {
  Log().onEvent = [](HWND, const Event&) { return 5; };
  EXPECT_EQ(SendMessageA(window_, EV_CUSTOM, 1, 2), 0);
  EXPECT_EQ(SendMessageA(window_, EV_MOUSEDOWN, 1, 2), 5);
  EXPECT_EQ(SendMessageA(window_, EV_RIGHTDOWN, 1, 2), 5);
  EXPECT_EQ(SendMessageA(window_, EV_KEYPRESS, 1, 2), 5);
  EXPECT_EQ(SendMessageA(window_, EV_LOAD, 1, 2), 0);
  EXPECT_EQ(SendMessageA(window_, EV_ACTIVATE, 1, 2), 0);
  for (const UINT number : {EV_CLICK, EV_DBLCLICK, EV_DEACTIVATE}) SendMessageA(window_, number, 1, 2);
  EXPECT_TRUE(Heard({{EV_CUSTOM, 1, 2},
                     {EV_MOUSEDOWN, 1, 2},
                     {EV_RIGHTDOWN, 1, 2},
                     {EV_KEYPRESS, 1, 2},
                     {EV_LOAD, 0, 0},
                     {EV_ACTIVATE, 0, 2}}));
}

TEST_P(EditSharedTest, ATextAndATimerAndACloseAreHeard) {
  PostMessageA(window_, XM_COMMANDCHAR, 9, 'x');
  PostMessageA(window_, XM_COMMANDCHAR, 9, 0);
  Pump();
  SendMessageA(window_, WM_TIMER, 4, 0);
  Log().onEvent = [](HWND, const Event& event) { return event.event == EV_CLOSE ? 1 : 0; };
  SendMessageA(window_, WM_CLOSE, 0, 0);
  EXPECT_TRUE(IsWindow(window_));
  ASSERT_EQ(Log().events.size(), 3u);
  EXPECT_EQ(Log().events[0].event, static_cast<uint32_t>(EV_CLICK));
  EXPECT_EQ(Log().events[0].wParam, 9u);
  EXPECT_EQ(Log().events[1], (Event{EV_TIMER, 4, 0}));
  EXPECT_EQ(Log().events[2], (Event{EV_CLOSE, 0, 0}));
  Log().onEvent = nullptr;
  SendMessageA(window_, WM_CLOSE, 0, 0);
  EXPECT_FALSE(IsWindow(window_));
}

TEST_P(EditSharedTest, TheFocusGoesToTheFieldAndIsRemembered) {
  EXPECT_EQ(GetFocus(), inner_);
  LoadShown("Other", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14");
  EXPECT_EQ(WindowInSlot(window_, kSlotLastFocus), inner_);
}

TEST_P(EditSharedTest, ArrayValuesCanBeKept) {
  SendMessageA(window_, XM_SETARRAYVALUE, reinterpret_cast<WPARAM>("key"), reinterpret_cast<LPARAM>("value"));
  EXPECT_STREQ(reinterpret_cast<const char*>(
                   SendMessageA(window_, XM_GETARRAYVALUE, reinterpret_cast<WPARAM>("KEY"), 0)),
               "value");
}

TEST_P(EditSharedTest, TheDialogsOwnMessagesHaveThePlatformsMeaning) {
  WriteSlot(window_, kSlotLastFocus, 0);
  EXPECT_EQ(SendMessageA(window_, DM_GETDEFID, 0, 0), 0);
  EXPECT_EQ(SendMessageA(window_, XM_GETDRAWFONT, 0, 0), 0);
  EXPECT_EQ(SendMessageA(window_, XM_GETMAXLENGTH, reinterpret_cast<WPARAM>(inner_), 0), 0);
  SetFocus(nullptr);
  EXPECT_EQ(SendMessageA(window_, WM_NEXTDLGCTL, 0, 0), 0);
  EXPECT_EQ(GetFocus(), nullptr);
}

// A Tab is a character of the text here, and Return a new line.
TEST_P(EditSharedTest, TheLoopsGiveItNoDialogKeys) {
  const HWND second = MakeChild("BUTTON", 104, 40);
  Script script;
  script.Do([] { PressKey(VK_TAB); })
      .Do([&] {
        EXPECT_EQ(GetFocus(), inner_);
        EXPECT_NE(GetFocus(), second);
        Log().Clear();
        PressKey(VK_F2);
      })
      .Do([&] {
        EXPECT_TRUE(Heard({{window_, {EV_KEYPRESS, 0, VK_F2}}})) << "The focus id is a form's only";
        DestroyWindow(window_);
      });
  EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), window_, nullptr, nullptr), 0);
}

int hintsAsked = 0;
LRESULT CALLBACK CountHints(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == CM_GETHINT) ++hintsAsked;
  return DefWindowProcA(window, message, wParam, lParam);
}

TEST_P(EditSharedTest, NoHintsAreAskedFor) {
  const TestClass buttons("BITMAPBUTTON.ASKS", 0, 0, CountHints);
  const HWND button = buttons.MakeChild(window_, 105);
  hintsAsked = 0;
  SendMessageA(window_, WM_SETCURSOR, reinterpret_cast<WPARAM>(button), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  EXPECT_EQ(hintsAsked, 0);
  DestroyWindow(button);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EditSharedTest, ::testing::ValuesIn(kKinds),
                         [](const auto& test) { return std::string(test.param.isRich ? "Rich" : "Plain"); });

}  // namespace
}  // namespace brelt::test
