// Modal shows: what they disable, what ends them, what comes back.
#include <algorithm>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

constexpr const char* kButtons =
    "  PUSHBUTTON \"OK\", 1, 10, 10, 50, 14\n"
    "  PUSHBUTTON \"Cancel\", 2, 10, 30, 50, 14\n"
    "  PUSHBUTTON \"Other\", 101, 10, 50, 50, 14";
constexpr const char* kOneButton = "  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14";

class ModalTest : public FormTest {
 protected:
  static bool IsModalNow(const char* name) {
    uint8_t modal = 0xAA;
    EXPECT_EQ(IsModal(name, &modal), RTX_OK);
    EXPECT_TRUE(modal == 0 || modal == 1);
    return modal == 1;
  }
};

TEST_F(ModalTest, AShowRunsUntilItsWindowIsUnloaded) {
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script
      .Do([&] {
        EXPECT_TRUE(IsWindowVisible(box));
        EXPECT_EQ(GetActiveWindow(), box);
        EXPECT_TRUE(HasFlag(box, kFlagModal));
        EXPECT_TRUE(HasFlag(box, kFlagCanvas)) << "The other flags stay";
        EXPECT_FALSE(GetUpdateRect(box, nullptr, FALSE)) << "It has been painted";
        EXPECT_TRUE(IsModalNow("Box"));
      })
      .Do([] { Unload("Box"); });
  int32_t result = -1;
  EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
  EXPECT_FALSE(IsWindow(box));
  EXPECT_EQ(result, 0);
  EXPECT_TRUE(script.IsDone());
}

TEST_F(ModalTest, AShowRunsUntilItsWindowIsHidden) {
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([] { Hide("Box"); });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_TRUE(IsWindow(box));
  EXPECT_FALSE(IsWindowVisible(box));
  EXPECT_FALSE(HasFlag(box, kFlagModal));
  EXPECT_EQ(ReadSlot(box, kSlotPrevActive), 0);
  EXPECT_FALSE(IsModalNow("Box"));
}

TEST_F(ModalTest, AHiddenWindowCanBeShownModallyAgain) {
  LoadDialog("Box", kButtons);
  for (int i = 0; i < 3; ++i) {
    Script script;
    script.Do([] { Hide("Box"); });
    EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  }
}

// ---- The result ----

TEST_F(ModalTest, TheResultIsTheButtonPressedLast) {
  LoadDialog("Box", kButtons);
  const HWND box = GetHandle("Box", 0, nullptr);
  Script script;
  script.Do([&] { ClickControl(GetDlgItem(box, 1)); }).Do([&] { ClickControl(GetDlgItem(box, 101)); }).Do([] {
    Unload("Box");
  });
  int32_t result = -1;
  EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
  EXPECT_EQ(result, 101);
}

TEST_F(ModalTest, TheResultStartsAtZeroEachTime) {
  const HWND box = LoadDialog("Box", kButtons).window;
  {
    Script script;
    script.Do([&] { ClickControl(GetDlgItem(box, 101)); }).Do([] { Hide("Box"); });
    int32_t result = -1;
    EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
    EXPECT_EQ(result, 101);
  }
  Script script;
  script.Do([] { Hide("Box"); });
  int32_t result = -1;
  EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
  EXPECT_EQ(result, 0);
}

TEST_F(ModalTest, TheResultIsTwoAfterEscapeInAWindowWithAButtonTwo) {
  const struct {
    const char* name;
    const char* controls;
    int32_t answer;  // of EV_KEYPRESS
    int32_t result;
  } kCases[] = {{"BoxA", kButtons, 0, 2},
                {"BoxB", kButtons, -1, 2},
                {"BoxC", kButtons, 1, 0},
                {"BoxD", kOneButton, 0, 0}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.name);
    const HWND box = LoadDialog(row.name, row.controls).window;
    Log().onEvent = [&](HWND, const Event& event) { return event.event == EV_KEYPRESS ? row.answer : 0; };
    Script script;
    script.Do([] { PressKey(VK_ESCAPE); })
        .Do([&] { EXPECT_TRUE(IsWindowVisible(box)) << "The program decides whether to close"; })
        .Do([&] { Unload(row.name); });
    int32_t result = -1;
    EXPECT_EQ(ShowForm(row.name, true, &result), RTX_OK);
    EXPECT_EQ(result, row.result);
  }
}

TEST_F(ModalTest, OnlyPushButtonsCountForTheResult) {
  const HWND box = LoadDialog("Box",
                              "  PUSHBUTTON \"OK\", 101, 10, 10, 50, 14\n"
                              "  AUTOCHECKBOX \"Check\", 102, 10, 30, 50, 14, BS_AUTOCHECKBOX\n"
                              "  AUTORADIOBUTTON \"Radio\", 103, 10, 50, 50, 14, BS_AUTORADIOBUTTON")
                       .window;
  Script script;
  script.Do([&] { ClickControl(GetDlgItem(box, 101)); })
      .Do([&] { ClickControl(GetDlgItem(box, 102)); })
      .Do([&] { ClickControl(GetDlgItem(box, 103)); })
      .Do([] {
        EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 101 0\nEV_CLICK 102 0\nEV_CLICK 103 0\n");
        Unload("Box");
      });
  int32_t result = -1;
  EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
  EXPECT_EQ(result, 101);
}

TEST_F(ModalTest, AFunctionThatUnloadsItsWindowAtAClickEndsTheShow) {
  const HWND box = LoadDialog("Box", kButtons).window;
  Log().onEvent = [](HWND, const Event& event) {
    if (event.event == EV_CLICK) Unload("Box");
    return 0;
  };
  Script script;
  script.Do([&] { ClickControl(GetDlgItem(box, 1)); });
  int32_t result = -1;
  EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
  EXPECT_EQ(result, 1);
}

// There is one button of the whole program.
TEST_F(ModalTest, ANestedShowChangesWhatTheOuterOneReports) {
  const HWND outer = LoadDialog("Outer", kButtons).window;
  int32_t innerResult = -1;
  Script script;
  script.Do([&] { ClickControl(GetDlgItem(outer, 101)); })
      .Do([&] {
        LoadDialog("Inner", kButtons);
        EXPECT_EQ(ShowForm("Inner", true, &innerResult), RTX_OK);
      })
      .Do([] { ClickControl(GetHandle("Inner", 1, nullptr)); })
      .Do([] { Unload("Inner"); })
      .Do([] { Unload("Outer"); });
  int32_t result = -1;
  EXPECT_EQ(ShowForm("Outer", true, &result), RTX_OK);
  EXPECT_EQ(innerResult, 1);
  EXPECT_EQ(result, 1);
}

// The button is noted ahead of its event, so that what the event shows has the last word.
TEST_F(ModalTest, AShowWithinAClickHasTheLastWordOnTheOuterResult) {
  const HWND outer = LoadDialog("Outer", kButtons).window;
  for (const bool presses : {true, false}) {
    SCOPED_TRACE(presses ? "pressed" : "closed");
    int32_t innerResult = -1;
    Log().onEvent = [&](HWND window, const Event& event) {
      if (event.event != EV_CLICK) return 0;
      if (window == outer) {
        LoadDialog("Inner", kButtons);
        EXPECT_EQ(ShowForm("Inner", true, &innerResult), RTX_OK);
        Hide("Outer");
      } else {
        Unload("Inner");
      }
      return 0;
    };
    Script script;
    script.Do([&] { ClickControl(GetDlgItem(outer, 101)); }).Do([&] {
      presses ? ClickControl(GetHandle("Inner", 1, nullptr)) : void(Unload("Inner"));
    });
    int32_t result = -1;
    EXPECT_EQ(ShowForm("Outer", true, &result), RTX_OK);
    EXPECT_EQ(innerResult, presses ? 1 : 0);
    EXPECT_EQ(result, innerResult);
  }
}

// ---- A quit message ----

TEST_F(ModalTest, AQuitMessageEndsTheShowAndIsUsedUp) {
  const HWND main = LoadDialog("Main", kOneButton).window;
  HWND box = nullptr;
  bool mainWentOn = false;
  Script script;
  script
      .Do([&] {
        box = LoadDialog("Box", kButtons).window;
        int32_t result = -1;
        EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
        EXPECT_EQ(result, 101);
        EXPECT_TRUE(IsWindowVisible(box));
        EXPECT_FALSE(HasFlag(box, kFlagModal));
        EXPECT_EQ(ReadSlot(box, kSlotPrevActive), 0);
        EXPECT_TRUE(IsWindowEnabled(main));
      })
      .Do([&] { ClickControl(GetDlgItem(box, 101)); })
      .Do([] { PostQuitMessage(0); })
      .Do([&] { mainWentOn = true; })
      .DestroyAll();
  EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), main, nullptr, nullptr), 0);
  EXPECT_TRUE(mainWentOn);
}

// ---- Disabling the others ----

TEST_F(ModalTest, AShowDisablesTheOtherWindowsOfTheThread) {
  const HWND main = LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  const HWND popup = LoadShown("Popup", kOneButton);
  const HWND hidden = LoadDialog("Hidden", kOneButton).window;
  const HWND disabled = LoadShown("Disabled", kOneButton);
  EnableWindow(disabled, FALSE);
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([&] {
    EXPECT_FALSE(IsWindowEnabled(main));
    EXPECT_FALSE(IsWindowEnabled(popup));
    EXPECT_FALSE(IsWindowEnabled(hidden));
    EXPECT_FALSE(IsWindowEnabled(disabled));
    EXPECT_TRUE(IsWindowEnabled(box));
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_TRUE(IsWindowEnabled(main));
  EXPECT_TRUE(IsWindowEnabled(popup));
  EXPECT_TRUE(IsWindowEnabled(hidden));
  EXPECT_FALSE(IsWindowEnabled(disabled)) << "What was disabled before stays so";
}

TEST_F(ModalTest, AWindowOfTheSetThatIsGoneIsPassedOver) {
  const HWND main = LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  const HWND popup = LoadShown("Popup", kOneButton);
  LoadDialog("Box", kButtons);
  Script script;
  script.Do([&] { DestroyWindow(popup); }).Do([] { Unload("Box"); });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_TRUE(IsWindowEnabled(main));
}

TEST_F(ModalTest, AWindowLoadedDuringTheShowStaysEnabled) {
  LoadDialog("Box", kButtons);
  HWND later = nullptr;
  Script script;
  script.Do([&] { later = LoadDialog("Later", kOneButton).window; }).Do([&] {
    EXPECT_TRUE(IsWindowEnabled(later));
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

BOOL CALLBACK CollectEnabled(HWND window, LPARAM context) {
  if (IsWindowEnabled(window)) reinterpret_cast<std::vector<HWND>*>(context)->push_back(window);
  return TRUE;
}

// All top-level windows of the thread that are enabled, those of the system among them, in the platform's
// order.
std::vector<HWND> EnabledWindows() {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), CollectEnabled, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

TEST_F(ModalTest, AShowLeavesWindowsOfTheChildStyleEnabled) {
  const TestClass plain("MODALCHILD");
  const HWND child = CreateWindowExA(0, "MODALCHILD", "", WS_CHILD, 0, 0, 10, 10, GetDesktopWindow(), nullptr,
                                     GetModuleHandleA(nullptr), nullptr);
  const std::vector<HWND> enabled = EnabledWindows();
  ASSERT_EQ(std::count(enabled.begin(), enabled.end(), child), 1) << "The platform has it among the others";
  LoadDialog("Box", kButtons);
  Script script;
  script.Do([&] {
    EXPECT_TRUE(IsWindowEnabled(child));
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  DestroyWindow(child);
}

// Plain windows are enough, and made quickly.
HWND MakePlainWindow() {
  return CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, GetModuleHandleA(nullptr),
                         nullptr);
}

class ModalSetTest : public ModalTest, public ::testing::WithParamInterface<int> {
 protected:
  void TearDown() override {
    for (HWND window : windows_) DestroyWindow(window);
    ModalTest::TearDown();
  }
  std::vector<HWND> windows_;
};

// The set has room for 100 windows, the modal one and the system's own counted. What doesn't fit stays
// enabled.
TEST_P(ModalSetTest, HoldsAHundredWindows) {
  const HWND box = LoadDialog("Box", kButtons).window;
  while (static_cast<int>(EnabledWindows().size()) < GetParam()) windows_.push_back(MakePlainWindow());
  const std::vector<HWND> before = EnabledWindows();
  Script script;
  script.Do([&] {
    for (std::size_t i = 0; i < before.size(); ++i) {
      const bool stays = before[i] == box || i >= 100;
      EXPECT_EQ(IsWindowEnabled(before[i]) != FALSE, stays) << "window " << i;
    }
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  for (const HWND window : before) {
    if (window != box) {
      EXPECT_TRUE(IsWindowEnabled(window));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Counts, ModalSetTest, ::testing::Values(99, 100, 101, 102, 130));

TEST_F(ModalTest, AmongAHundredAndOneOthersAtLeastOneStaysEnabled) {
  std::vector<HWND> others;
  for (int i = 0; i < 101; ++i) others.push_back(MakePlainWindow());
  LoadDialog("Box", kButtons);
  const auto countEnabled = [&] {
    return std::count_if(others.begin(), others.end(), [](HWND window) { return IsWindowEnabled(window); });
  };
  Script script;
  script.Do([&] {
    EXPECT_GE(countEnabled(), 1);
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_EQ(countEnabled(), 101);
  for (HWND window : others) DestroyWindow(window);
}

// ---- The way back ----

TEST_F(ModalTest, TheWindowThatWasActiveIsActiveAgainAfterTheShow) {
  const HWND main = LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  const HWND second = LoadShown("Second", kOneButton);
  for (const HWND caller : {main, second}) {
    for (const bool hides : {false, true}) {
      SCOPED_TRACE(hides ? "hidden" : "unloaded");
      SetActiveWindow(caller);
      const HWND box = LoadDialog("Box", kButtons).window;
      Script script;
      script.Do([&] {
        EXPECT_EQ(WindowInSlot(box, kSlotPrevActive), caller);
        hides ? Hide("Box") : Unload("Box");
        // Before the show itself has ended.
        EXPECT_EQ(GetActiveWindow(), caller);
        EXPECT_TRUE(IsWindowEnabled(caller));
      });
      EXPECT_EQ(ShowForm("Box", true), RTX_OK);
      EXPECT_EQ(GetActiveWindow(), caller);
      EXPECT_TRUE(IsWindowEnabled(main));
      EXPECT_TRUE(IsWindowEnabled(second));
      if (IsWindow(box)) DestroyWindow(box);
    }
  }
}

TEST_F(ModalTest, TheWindowThatWasActiveComesBackAheadOfOneLoadedSince) {
  LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  const HWND caller = LoadShown("Caller", kOneButton);
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([&] {
    // The platform itself would turn to this one: it is enabled, and on top.
    const HWND later = LoadDialog("Later", kOneButton).window;
    SetWindowPos(later, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    EXPECT_EQ(GetActiveWindow(), box);
    InvalidateRect(caller, nullptr, TRUE);
    Unload("Box");
    EXPECT_EQ(GetActiveWindow(), caller);
    EXPECT_FALSE(GetUpdateRect(caller, nullptr, FALSE)) << "It is painted at once";
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

TEST_F(ModalTest, AShowPaintsItsWindowBeforeItsLoop) {
  const HWND box = LoadDialog("Box", kButtons).window;
  const MessageSpy spy;
  PostQuitMessage(0);
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_FALSE(spy.To(box, WM_PAINT).empty());
}

TEST_F(ModalTest, NestedShowsComeBackOneByOne) {
  const HWND main = LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  HWND outer = nullptr;
  HWND inner = nullptr;
  Script script;
  script
      .Do([&] {
        outer = LoadDialog("Outer", kOneButton).window;
        EXPECT_EQ(ShowForm("Outer", true), RTX_OK);
        EXPECT_EQ(GetActiveWindow(), main);
        EXPECT_TRUE(IsWindowEnabled(main));
      })
      .Do([&] {
        inner = LoadDialog("Inner", kOneButton).window;
        EXPECT_EQ(ShowForm("Inner", true), RTX_OK);
        EXPECT_EQ(GetActiveWindow(), outer);
        EXPECT_TRUE(IsWindowEnabled(outer));
        EXPECT_FALSE(IsWindowEnabled(main)) << "The outer show goes on";
        EXPECT_TRUE(IsModalNow("Outer"));
      })
      .Do([&] {
        EXPECT_TRUE(IsModalNow("Inner"));
        EXPECT_TRUE(IsModalNow("Outer"));
        EXPECT_FALSE(IsWindowEnabled(outer));
        Unload("Inner");
      })
      .Do([] { Unload("Outer"); })
      .DestroyAll();
  EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), main, nullptr, nullptr), 0);
}

TEST_F(ModalTest, AWindowShownByTheModalOnesOwnEventIsNested) {
  const HWND box = LoadDialog("Box", kOneButton).window;
  LoadDialog("Inner", kOneButton);
  std::string order;
  Log().onEvent = [&](HWND window, const Event& event) {
    if (event.event != EV_CLICK) return 0;
    if (window != box) {
      order += "inner click, ";
      Unload("Inner2");
      return 0;
    }
    order += "click, ";
    LoadDialog("Inner2", kOneButton);
    int32_t result = -1;
    EXPECT_EQ(ShowForm("Inner2", true, &result), RTX_OK);
    EXPECT_EQ(result, 101);
    order += "shown, ";
    Unload("Box");
    return 0;
  };
  Script script;
  script.Do([&] { ClickControl(GetDlgItem(box, 101)); }).Do([] {
    ClickControl(GetHandle("Inner2", 101, nullptr));
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_EQ(order, "click, inner click, shown, ");
  EXPECT_FALSE(IsWindow(box));
}

TEST_F(ModalTest, TheWayBackNeedsAVisiblePreviousWindow) {
  const HWND main = LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  const HWND second = LoadShown("Second", kOneButton);
  ASSERT_EQ(GetActiveWindow(), second);
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([&] {
    ShowWindow(second, SW_HIDE);
    EXPECT_EQ(WindowInSlot(box, kSlotPrevActive), second);
    Unload("Box");
    EXPECT_FALSE(IsWindowVisible(second));
    EXPECT_NE(GetActiveWindow(), second);
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_TRUE(IsWindowEnabled(main));
}

TEST_F(ModalTest, TheWayBackNeedsThatTheClosingWindowIsEnabled) {
  LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  const HWND second = LoadShown("Second", kOneButton);
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([&] {
    EnableWindow(box, FALSE);
    Hide("Box");
    EXPECT_FALSE(IsWindowEnabled(second)) << "The show enables it later";
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_TRUE(IsWindowEnabled(second));
}

TEST_F(ModalTest, NoPreviousWindowIsNotedWhenNoneIsActive) {
  const HWND box = LoadDialog("Box", kButtons).window;
  ASSERT_EQ(GetActiveWindow(), nullptr);
  Script script;
  script.Do([&] {
    EXPECT_EQ(ReadSlot(box, kSlotPrevActive), 0);
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

TEST_F(ModalTest, AWindowThatIsActiveAheadOfItsShowIsNotItsOwnPreviousOne) {
  const HWND box = LoadDialog("Box", kButtons).window;
  SetActiveWindow(box);
  ASSERT_EQ(GetActiveWindow(), box);
  Script script;
  script.Do([&] {
    EXPECT_EQ(ReadSlot(box, kSlotPrevActive), 0);
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

TEST_F(ModalTest, AWindowOfAnotherInstanceIsNotNotedAsThePreviousOne) {
  const HWND foreign = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                       GetModuleHandleA("user32.dll"), nullptr);
  const HWND own = MakePlainWindow();
  for (const HWND active : {foreign, own}) {
    SCOPED_TRACE(active == own ? "own" : "foreign");
    ShowWindow(active, SW_SHOW);
    SetActiveWindow(active);
    const HWND box = LoadDialog("Box", kButtons).window;
    ASSERT_EQ(GetActiveWindow(), active);
    Script script;
    script.Do([&] {
      EXPECT_EQ(WindowInSlot(box, kSlotPrevActive), active == own ? own : nullptr);
      Unload("Box");
    });
    EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  }
  DestroyWindow(own);
  DestroyWindow(foreign);
}

TEST_F(ModalTest, ADisabledActiveWindowIsNotNotedAsThePreviousOne) {
  const HWND main = LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  EnableWindow(main, FALSE);
  ASSERT_EQ(GetActiveWindow(), main);
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([&] {
    EXPECT_EQ(ReadSlot(box, kSlotPrevActive), 0);
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

// The previous window can go while the modal one is shown.
TEST_F(ModalTest, APreviousWindowThatIsGoneIsPassedOver) {
  LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  const HWND second = LoadShown("Second", kOneButton);
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([&] {
    EXPECT_EQ(WindowInSlot(box, kSlotPrevActive), second);
    DestroyWindow(second);
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

// ---- The loop ----

TEST_F(ModalTest, BothKeyFiltersWorkOnTheModalWindow) {
  const std::string menu =
      "BoxMenu MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"Go\\tCtrl+G\", 201\n  END\nEND\n";
  const HWND box =
      LoadText("Box", menu +
                          "Box DIALOG 10, 10, 200, 150\nSTYLE WS_POPUP | WS_CAPTION\nMENU BoxMenu\n"
                          "BEGIN\n  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14\nEND\n")
          .window;
  HWND other = nullptr;
  Script script;
  script
      .Do([&] {
        other = LoadDialog("Other", "  PUSHBUTTON \"Go\", 301, 10, 10, 50, 14").window;
        ShowWindow(other, SW_SHOW);
        Pump();
      })
      .Do([&] {
        EXPECT_EQ(GetActiveWindow(), other);
        Log().Clear();
        PressKey(VK_F2);
      })
      .Do([&] {
        // The modal window hears of the key, with the focus of the other one.
        EXPECT_TRUE(Heard({{box, {EV_KEYPRESS, 301, VK_F2}}}));
        Log().Clear();
        PressKey('G', {VK_CONTROL});
      })
      .Do([&] {
        EXPECT_TRUE(Heard({{box, {EV_KEYPRESS, 301, 0x1100 | 'G'}}, {box, {EV_CLICK, 201, 0}}}));
        Unload("Box");
      });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

TEST_F(ModalTest, TheDialogKeysWorkInTheModalWindow) {
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([&] { EXPECT_EQ(GetFocus(), GetDlgItem(box, 1)); })
      .Do([] { PressKey(VK_TAB); })
      .Do([&] { EXPECT_EQ(GetFocus(), GetDlgItem(box, 2)); })
      .Do([] { PressKey(VK_SPACE); })
      .Do([] { Unload("Box"); });
  int32_t result = -1;
  EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
  EXPECT_EQ(result, 2);
}

TEST_F(ModalTest, OtherWindowsTimersAndMessagesGoOn) {
  const HWND main = LoadShown("Main", kOneButton, "STYLE WS_CAPTION\n");
  LoadDialog("Box", kButtons);
  Script script;
  script
      .Do([&] {
        Log().Clear();
        SetTimer(main, 5, USER_TIMER_MINIMUM, nullptr);
      })
      .Until("a timer event of the disabled window", [] { return Log().Count(EV_TIMER) > 0; })
      .Do([&] {
        KillTimer(main, 5);
        Unload("Box");
      });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

TEST_F(ModalTest, AWindowThatIsDestroyedWithoutClosingEndsTheShow) {
  const HWND box = LoadDialog("Box", kButtons).window;
  Script script;
  script.Do([&] { DestroyWindow(box); });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

TEST_F(ModalTest, ARefusedCloseKeepsTheShowRunning) {
  const HWND box = LoadDialog("Box", kButtons).window;
  int32_t answer = 1;
  Log().onEvent = [&](HWND, const Event& event) { return event.event == EV_CLOSE ? answer : 0; };
  Script script;
  script.Do([] { Unload("Box"); }).Do([&] {
    EXPECT_TRUE(IsModalNow("Box"));
    answer = 0;
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_FALSE(IsWindow(box));
  EXPECT_EQ(Log().Count(EV_CLOSE), 2);
}

BOOL(WINAPI* realGetMessage)(MSG*, HWND, UINT, UINT) = nullptr;
int failuresLeft = 0;

BOOL WINAPI FailingGetMessage(MSG* message, HWND window, UINT first, UINT last) {
  return failuresLeft-- > 0 ? -1 : realGetMessage(message, window, first, last);
}

TEST_F(ModalTest, TheLoopTakesAFailureToGetAMessageForAMessage) {
  LoadDialog("Box", kButtons);
  const ReplacedImport import("GetMessageA", reinterpret_cast<void*>(FailingGetMessage));
  realGetMessage = reinterpret_cast<decltype(realGetMessage)>(import.original());
  failuresLeft = 3;
  Script script;
  script.Do([] { Unload("Box"); });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_LT(failuresLeft, 0);
}

// ---- Activation ----

// What a program hears while one window after the other becomes active.
TEST_F(ModalTest, WindowsHearOfActivationInOrder) {
  const HWND main = LoadDialog("Main", kOneButton, "STYLE WS_CAPTION\n").window;
  const HWND second = LoadDialog("Second", kOneButton).window;
  const HWND box = LoadDialog("Box", kButtons).window;
  Log().Clear();
  Script script;
  script.Do([] { ShowForm("Second"); })
      .Do([&] { SetActiveWindow(main); })
      .Do([] { ShowForm("Box", true); })
      .Do([] { Unload("Box"); })
      .Do([&] {
        EXPECT_TRUE(Heard({{main, {EV_ACTIVATE, 0, 0}},
                           {second, {EV_ACTIVATE, 0, AsParam(main)}},
                           {main, {EV_ACTIVATE, 0, AsParam(second)}},
                           {box, {EV_ACTIVATE, 0, AsParam(main)}},
                           {box, {EV_CLOSE, 0, 0}},
                           {main, {EV_ACTIVATE, 0, AsParam(box)}}}));
      })
      .DestroyAll();
  EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), main, nullptr, nullptr), 0);
}

}  // namespace
}  // namespace brelt::test
