// Checked, Enabled, Visible and WindowState.
#include <climits>
#include <string>
#include <vector>

#include "tests/win32/support/exportcall.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

constexpr uint8_t kUnset = 77;

class StateTest : public PropertyTest {
 protected:
  static int Truth(int32_t(__stdcall* get)(const char*, int32_t, uint8_t*), int32_t id) {
    uint8_t value = kUnset;
    EXPECT_EQ(get(kFormName, id, &value), RTX_OK);
    return value;
  }
  static int32_t WindowState() {
    int32_t state = -77;
    EXPECT_EQ(GetWindowState(kFormName, 0, &state), RTX_OK);
    return state;
  }
  UINT ItemState() const { return GetMenuState(menu(), kItem, MF_BYCOMMAND); }
};

// ---- Checked ----

TEST_F(StateTest, CheckedIsTheMarkOfAMenuItem) {
  EXPECT_EQ(Truth(GetChecked, kItem), 0);
  EXPECT_EQ(SetChecked(kFormName, kItem, 1), RTX_OK);
  EXPECT_EQ(ItemState() & MF_CHECKED, static_cast<UINT>(MF_CHECKED));
  EXPECT_EQ(Truth(GetChecked, kItem), 1);
  EnableMenuItem(menu(), kItem, MF_BYCOMMAND | MF_GRAYED);
  EXPECT_EQ(Truth(GetChecked, kItem), 1);
  EXPECT_EQ(SetChecked(kFormName, kItem, 0), RTX_OK);
  EXPECT_EQ(Truth(GetChecked, kItem), 0);
  EXPECT_EQ(ItemState() & MF_GRAYED, static_cast<UINT>(MF_GRAYED));
}

// ---- Truth values ----

// A truth value comes in a word of the stack whose other bytes may be anything.
TEST_F(StateTest, TrueIsAnyLowByteOtherThanZero) {
  struct Case {
    uint32_t word;
    int truth;
  };
  for (const Case& c : {Case{0, 0}, Case{1, 1}, Case{2, 1}, Case{0x80, 1}, Case{0xFF, 1}, Case{0x100, 0},
                        Case{0xFFFFFF00, 0}, Case{0x101, 1}, Case{0xFFFFFFFF, 1}}) {
    SCOPED_TRACE(c.word);
    const auto call = [&](const char* function, int32_t id) {
      auto* address = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("brelt.dll"), function));
      const uint32_t words[] = {reinterpret_cast<uint32_t>(kFormName), static_cast<uint32_t>(id), c.word};
      EXPECT_EQ(CallExport(address, words, 0).result, 0u);
    };
    call("SetChecked", kItem);
    EXPECT_EQ(Truth(GetChecked, kItem), c.truth);
    call("SetEnabled", kItem);
    EXPECT_EQ(Truth(GetEnabled, kItem), c.truth);
    call("SetEnabled", kPush);
    EXPECT_EQ(Truth(GetEnabled, kPush), c.truth);
    call("SetVisible", kPush);
    EXPECT_EQ(Truth(GetVisible, kPush), c.truth);
    call("SetModify", kField);
    EXPECT_EQ(Truth(GetModify, kField), c.truth);
  }
}

// ---- Enabled ----

TEST_F(StateTest, EnabledIsThePlatformsForWindowAndControls) {
  EXPECT_EQ(Truth(GetEnabled, 0), 1);
  EnableWindow(form(), FALSE);
  EXPECT_EQ(Truth(GetEnabled, 0), 0);
  EXPECT_EQ(Truth(GetEnabled, kPush), 1);
  EnableWindow(form(), TRUE);
  for (const int32_t id : {int32_t{kPush}, int32_t{kLabel}, int32_t{kField}, int32_t{kScrollBar},
                           int32_t{kShape}, int32_t{kIconList}}) {
    SCOPED_TRACE(id);
    EXPECT_EQ(Truth(GetEnabled, id), 1);
    EXPECT_EQ(SetEnabled(kFormName, id, 0), RTX_OK);
    EXPECT_EQ(Truth(GetEnabled, id), 0);
    EXPECT_FALSE(IsWindowEnabled(Control(id)));
    EXPECT_EQ(SetEnabled(kFormName, id, 1), RTX_OK);
    EXPECT_TRUE(IsWindowEnabled(Control(id)));
  }
}

TEST_F(StateTest, TheWindowItselfCantBeDisabled) {
  EXPECT_EQ(SetEnabled(kFormName, 0, 0), RTX_WRONG_KIND);
  EXPECT_TRUE(IsWindowEnabled(form()));
}

TEST_F(StateTest, EnabledOfAMenuItemIsThatItIsntGreyed) {
  EXPECT_EQ(Truth(GetEnabled, kItem), 1);
  EnableMenuItem(menu(), kItem, MF_BYCOMMAND | MF_DISABLED);
  EXPECT_EQ(Truth(GetEnabled, kItem), 1);
  const CountedImport<struct BarTag, BOOL, HWND> bar("DrawMenuBar");
  EXPECT_EQ(SetEnabled(kFormName, kItem, 0), RTX_OK);
  EXPECT_EQ(ItemState() & (MF_GRAYED | MF_DISABLED), static_cast<UINT>(MF_GRAYED));
  EXPECT_EQ(Truth(GetEnabled, kItem), 0);
  EXPECT_EQ(SetEnabled(kFormName, kItem, 1), RTX_OK);
  EXPECT_EQ(ItemState() & (MF_GRAYED | MF_DISABLED), 0u);
  EXPECT_EQ(bar.calls(), 0);
}

TEST_F(StateTest, EnablingPaintsTheControlWithItsBackground) {
  ShowForm();
  for (const uint8_t enabled : {uint8_t{0}, uint8_t{1}}) {
    const MessageSpy spy;
    EXPECT_EQ(SetEnabled(kFormName, kLabel, enabled), RTX_OK);
    EXPECT_GE(PaintingOf(spy, Control(kLabel)).paints, 1);
    EXPECT_GE(PaintingOf(spy, Control(kLabel)).erasures, 1);
    EXPECT_FALSE(GetUpdateRect(Control(kLabel), nullptr, FALSE));
  }
}

TEST_F(StateTest, DisablingTheControlWithTheFocusMovesTheFocusOn) {
  const LoadResult other = LoadDialog("Other",
                                      "  EDITTEXT 100, 0, 0, 9, 9\n"
                                      "  LTEXT \"a\", 101, 0, 0, 9, 9\n"
                                      "  EDITTEXT 102, 0, 0, 9, 9\n"
                                      "  EDITTEXT 103, 0, 0, 9, 9");
  ASSERT_EQ(other.code, RTX_OK);
  ShowWindow(other.window, SW_SHOW);
  const auto focus = [&](int id) { SetFocus(GetDlgItem(other.window, id)); };
  struct Case {
    int focused;
    int disabled;
    int then;
  };
  for (const Case& c : {Case{100, 100, 102}, Case{102, 102, 103}, Case{103, 103, 100}, Case{100, 102, 100}}) {
    SCOPED_TRACE(c.disabled);
    focus(c.focused);
    MessageSpy spy;
    EXPECT_EQ(SetEnabled("Other", c.disabled, 0), RTX_OK);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), c.then);
    const auto steps = spy.To(other.window, WM_NEXTDLGCTL);
    ASSERT_EQ(steps.size(), c.focused == c.disabled ? 1u : 0u);
    if (!steps.empty()) {
      EXPECT_EQ(steps[0].wParam, 0u);
      EXPECT_EQ(steps[0].lParam, 0);
    }
    EXPECT_EQ(SetEnabled("Other", c.disabled, 1), RTX_OK);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), c.then);
  }
}

TEST_F(StateTest, DisablingTheControlWithTheFocusMovesNoFocusWhereNothingCanTakeIt) {
  ShowForm();
  SetFocus(Control(kField));
  const CountedImport<struct TabItemTag, HWND, HWND, HWND, BOOL> next(
      "GetNextDlgTabItem", CountedImport<struct TabItemTag, HWND, HWND, HWND, BOOL>::kAlways);
  const MessageSpy spy;
  EXPECT_EQ(SetEnabled(kFormName, kField, 0), RTX_OK);
  EXPECT_TRUE(next.HasFailed());
  EXPECT_TRUE(spy.To(form(), WM_NEXTDLGCTL).empty());
  EXPECT_FALSE(IsWindowEnabled(Control(kField)));
}

// ---- Visible ----

TEST_F(StateTest, VisibleOfAControlIsItsOwnStyleWhetherItsWindowShowsOrNot) {
  EXPECT_EQ(Truth(GetVisible, 0), 0);
  EXPECT_EQ(Truth(GetVisible, kPush), 1);
  EXPECT_EQ(SetVisible(kFormName, kPush, 0), RTX_OK);
  EXPECT_EQ(Truth(GetVisible, kPush), 0);
  ShowForm();
  EXPECT_EQ(Truth(GetVisible, 0), 1);
  EXPECT_EQ(Truth(GetVisible, kPush), 0);
  EXPECT_EQ(SetVisible(kFormName, kPush, 1), RTX_OK);
  EXPECT_EQ(Truth(GetVisible, kPush), 1);
  EXPECT_TRUE(IsWindowVisible(Control(kPush)));
}

TEST_F(StateTest, ShowingAControlPaintsItWithItsBackground) {
  ShowForm();
  SetVisible(kFormName, kLabel, 0);
  EXPECT_FALSE(IsWindowVisible(Control(kLabel)));
  const MessageSpy spy;
  EXPECT_EQ(SetVisible(kFormName, kLabel, 1), RTX_OK);
  EXPECT_GE(PaintingOf(spy, Control(kLabel)).paints, 1);
  EXPECT_GE(PaintingOf(spy, Control(kLabel)).erasures, 1);
  EXPECT_FALSE(GetUpdateRect(Control(kLabel), nullptr, FALSE));
}

TEST_F(StateTest, AWindowThatIsntThereIsNotVisible) {
  for (const int32_t id : {0, 101, 9999}) {
    uint8_t visible = kUnset;
    EXPECT_EQ(GetVisible("nobody", id, &visible), RTX_OK);
    EXPECT_EQ(visible, 0);
  }
  EXPECT_EQ(GetVisible("nobody", 0, nullptr), RTX_NULL_BOOL);
  EXPECT_EQ(GetVisible(nullptr, 0, nullptr), RTX_NULL_ARG);
  EXPECT_EQ(SetVisible("nobody", 0, 1), RTX_NO_WINDOW);
}

TEST_F(StateTest, TheWindowItselfCantBeShownOrHidden) {
  EXPECT_EQ(SetVisible(kFormName, 0, 1), RTX_WRONG_KIND);
  EXPECT_FALSE(IsWindowVisible(form()));
}

// ---- WindowState ----

TEST_F(StateTest, StateIsNormalMinimisedOrMaximised) {
  ShowForm();
  for (const int32_t state : {2, 0, 1, 0}) {
    SCOPED_TRACE(state);
    EXPECT_EQ(SetWindowState(kFormName, 0, state), RTX_OK);
    EXPECT_EQ(IsIconic(form()) != FALSE, state == 1);
    EXPECT_EQ(IsZoomed(form()) != FALSE, state == 2);
    EXPECT_EQ(WindowState(), state);
  }
}

// The platform minimises a maximised window without the mark of its size. One that has both is maximised.
TEST_F(StateTest, StateOfAWindowWithBothMarksIsMaximised) {
  const LONG style = GetWindowLongA(form(), GWL_STYLE);
  SetWindowLongA(form(), GWL_STYLE, style | WS_MINIMIZE | WS_MAXIMIZE);
  EXPECT_EQ(WindowState(), 2);
  SetWindowLongA(form(), GWL_STYLE, style);
}

TEST_F(StateTest, StateIsShownByThePlatformsCommandForIt) {
  static std::vector<int> commands;
  struct Replacement {
    static BOOL WINAPI Show(HWND, int command) {
      commands.push_back(command);
      return FALSE;
    }
  };
  commands.clear();
  const ReplacedImport show("ShowWindow", reinterpret_cast<void*>(&Replacement::Show));
  for (const int32_t state : {0, 1, 2, 3, -1, INT_MAX})
    EXPECT_EQ(SetWindowState(kFormName, 0, state), RTX_OK);
  EXPECT_EQ(commands, (std::vector<int>{SW_SHOWNORMAL, SW_SHOWMINIMIZED, SW_SHOWMAXIMIZED}));
}

TEST_F(StateTest, StateWithoutABoxForItIsIgnored) {
  struct Case {
    const char* boxes;
    int32_t afterMinimise, afterMaximise;
  };
  for (const Case& c : {Case{"", 0, 0}, Case{" | WS_MINIMIZEBOX", 1, 0}, Case{" | WS_MAXIMIZEBOX", 0, 2}}) {
    SCOPED_TRACE(c.boxes);
    const LoadResult other =
        LoadDialog("Other", "", std::string("STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU") + c.boxes + "\n");
    ASSERT_EQ(other.code, RTX_OK);
    ShowWindow(other.window, SW_SHOW);
    const auto state = [] {
      int32_t value = -77;
      EXPECT_EQ(GetWindowState("Other", 0, &value), RTX_OK);
      return value;
    };
    EXPECT_EQ(SetWindowState("Other", 0, 1), RTX_OK);
    EXPECT_EQ(state(), c.afterMinimise);
    EXPECT_EQ(SetWindowState("Other", 0, 0), RTX_OK);
    EXPECT_EQ(SetWindowState("Other", 0, 2), RTX_OK);
    EXPECT_EQ(state(), c.afterMaximise);
    DestroyWindow(other.window);
  }
}

}  // namespace
}  // namespace brelt::test
