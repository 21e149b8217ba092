// The keys that programs hear of before the platform sees them.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

class KeyPreviewTest : public FormTest {
 protected:
  void TearDown() override {
    SetUserBreak(0);
    FormTest::TearDown();
  }

  // Runs a main loop over a form that is shown and has the focus on its first tab stop; gives what it heard
  // of a step, which is EV_KEYPRESS and what EV_KEYPRESS led to.
  static void InLoop(const std::string& controls, const std::function<void(HWND)>& step,
                     const std::function<void(HWND)>& check) {
    const LoadResult form = LoadDialog("Main", controls);
    ASSERT_EQ(form.code, RTX_OK) << form.message;
    Script script;
    script.Do([] {})
        .Do([&] {
          Log().Clear();
          step(form.window);
        })
        .Do([&] { check(form.window); })
        .DestroyAll();
    MainLoop(GetModuleHandleA(nullptr), form.window, nullptr, nullptr);
  }
};

constexpr const char* kButtons =
    "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
    "  PUSHBUTTON \"B\", 102, 10, 30, 50, 14";
constexpr const char* kWithCancel =
    "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
    "  PUSHBUTTON \"Cancel\", 2, 10, 30, 50, 14";

std::vector<WORD> PlainKeys() {
  std::vector<WORD> keys = {VK_RETURN, VK_PRIOR, VK_NEXT, VK_END,    VK_HOME,  VK_LEFT,
                            VK_UP,     VK_RIGHT, VK_DOWN, VK_DELETE, VK_ESCAPE};
  for (int key = VK_F1; key <= VK_F12; ++key) keys.push_back(static_cast<WORD>(key));
  return keys;
}

std::string KeyName(WORD key) { return "key " + std::to_string(key); }

TEST_F(KeyPreviewTest, HearsOfEachListedKeyWithoutModifiers) {
  for (const WORD key : PlainKeys()) {
    SCOPED_TRACE(KeyName(key));
    Log().onEvent = [](HWND, const Event& event) { return event.event == EV_KEYPRESS ? 1 : 0; };
    InLoop(
        kButtons, [&](HWND) { PressKey(key); },
        [&](HWND) {
          EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, key}}));
        });
  }
}

TEST_F(KeyPreviewTest, HearsOfNoListedKeyWithAModifier) {
  constexpr WORD kModifiers[] = {VK_SHIFT, VK_CONTROL, VK_MENU};
  // Alt+F4 would close the window.
  Log().onEvent = [](HWND, const Event& event) { return event.event == EV_CLOSE ? 1 : 0; };
  const LoadResult form = LoadDialog("Main", kButtons);
  Script script;
  script.Do([] { Log().Clear(); });
  for (const WORD key : PlainKeys()) {
    for (const WORD held : kModifiers) {
      script.Do([=] { PressKey(key, {held}); });
      script.Do([=] {
        EXPECT_EQ(Log().Of({EV_KEYPRESS}), "") << KeyName(key) << " with " << KeyName(held);
        Log().Clear();
      });
    }
  }
  script.DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), form.window, nullptr, nullptr);
}

TEST_F(KeyPreviewTest, HearsOfNoOtherKey) {
  const LoadResult form = LoadDialog("Main", kButtons);
  Script script;
  script.Do([] { Log().Clear(); });
  std::vector<WORD> others = {VK_INSERT, VK_BACK,  VK_ADD,    VK_NUMPAD5, VK_F13,
                              VK_F24,    VK_CLEAR, VK_SELECT, VK_PAUSE};
  for (WORD key = '0'; key <= '9'; ++key) others.push_back(key);
  for (WORD key = 'A'; key <= 'Z'; ++key) others.push_back(key);
  for (const WORD key : others) {
    script.Do([=] { PressKey(key); });
    script.Do([=] { EXPECT_EQ(Log().Of({EV_KEYPRESS, EV_USERBREAK}), "") << KeyName(key); });
  }
  script.DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), form.window, nullptr, nullptr);
}

TEST_F(KeyPreviewTest, HearsOfEachLetterWithCtrlAlone) {
  const LoadResult form = LoadDialog("Main", kButtons);
  Script script;
  for (WORD key = 'A'; key <= 'Z'; ++key) {
    script.Do([=] {
      Log().Clear();
      PressKey(key, {VK_CONTROL});
    });
    script.Do([=] { EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, 0x1100 | key}})); });
  }
  script.DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), form.window, nullptr, nullptr);
}

TEST_F(KeyPreviewTest, HearsOfNoLetterWithCtrlAndAnotherModifier) {
  const LoadResult form = LoadDialog("Main", kButtons);
  Script script;
  script.Do([] { Log().Clear(); });
  script.Do([] { PressKey('Q', {VK_CONTROL, VK_SHIFT}); });
  script.Do([] { PressKey('Q', {VK_CONTROL, VK_MENU}); });
  script.Do([] { PressKey('Q', {VK_MENU}); });
  script.Do([] { PressKey('Q', {VK_SHIFT}); });
  script.Do([] { PressKey('7', {VK_CONTROL}); });
  script.Do([] { PressKey(VK_OEM_COMMA, {VK_CONTROL}); });
  script.Do([] { EXPECT_EQ(Log().Of({EV_KEYPRESS}), ""); });
  script.DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), form.window, nullptr, nullptr);
}

// ---- Taken or not ----

// A list whose selection tells whether a key got through to it.
constexpr const char* kEdit = "  EDITTEXT 101, 10, 10, 50, 14";

TEST_F(KeyPreviewTest, TakesAKeyWhenTheResultIsAboveZero) {
  const struct {
    int32_t result;
    bool taken;
  } kResults[] = {{1, true}, {2147483647, true}, {0, false}, {-1, false}};
  for (const auto& row : kResults) {
    SCOPED_TRACE(row.result);
    Log().onEvent = [&](HWND, const Event& event) { return event.event == EV_KEYPRESS ? row.result : 0; };
    InLoop(
        kEdit,
        [](HWND window) {
          SetDlgItemTextA(window, 101, "text");
          SendDlgItemMessageA(window, 101, EM_SETSEL, 0, 4);
          Log().Clear();
          PressKey(VK_DELETE);
        },
        [&](HWND window) {
          char text[10];
          GetDlgItemTextA(window, 101, text, sizeof text);
          EXPECT_STREQ(text, row.taken ? "text" : "");
          if (row.taken) {
            EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_DELETE}}));
          } else {
            EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_DELETE}, {EV_CHANGE, 101, 0}}));
          }
        });
  }
}

TEST_F(KeyPreviewTest, TakesACtrlLetterWhenTheResultIsAboveZero) {
  for (const bool taken : {true, false}) {
    SCOPED_TRACE(taken);
    Log().onEvent = [&](HWND, const Event& event) { return event.event == EV_KEYPRESS && taken ? 1 : 0; };
    InLoop(
        kEdit,
        [](HWND window) {
          SetDlgItemTextA(window, 101, "text");
          SendDlgItemMessageA(window, 101, EM_SETSEL, 0, 4);
          Log().Clear();
          PressKey('X', {VK_CONTROL});
        },
        [&](HWND window) { EXPECT_EQ(GetWindowTextLengthA(GetDlgItem(window, 101)), taken ? 4 : 0); });
  }
}

TEST_F(KeyPreviewTest, SeesAKeyUpAsNoKey) {
  InLoop(
      kButtons,
      [](HWND) {
        KeyDown(VK_F5);
        KeyUp(VK_F5);
      },
      [](HWND) { EXPECT_EQ(Log().Count(EV_KEYPRESS), 1); });
}

// ---- The focus id ----

TEST_F(KeyPreviewTest, GivesTheIdOfTheControlWithTheFocus) {
  InLoop(
      kButtons,
      [](HWND window) {
        SetFocus(GetDlgItem(window, 102));
        PressKey(VK_F2);
      },
      [](HWND) {
        EXPECT_TRUE(Heard({{EV_KEYPRESS, 102, VK_F2}}));
      });
}

TEST_F(KeyPreviewTest, GivesTheInnerEditFieldsOwnIdInAComboBox) {
  InLoop(
      "  COMBOBOX 101, 10, 10, 50, 60, CBS_DROPDOWN | WS_TABSTOP",
      [](HWND window) {
        SetFocus(GetWindow(GetDlgItem(window, 101), GW_CHILD));
        PressKey(VK_F2);
      },
      [](HWND) {
        EXPECT_TRUE(Heard({{EV_KEYPRESS, 1001, VK_F2}}));
      });
}

TEST_F(KeyPreviewTest, GivesTheComboBoxesIdWhereItHasNoEditField) {
  InLoop(
      "  COMBOBOX 101, 10, 10, 50, 60, CBS_DROPDOWNLIST | WS_TABSTOP", [](HWND) { PressKey(VK_F2); },
      [](HWND) {
        EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_F2}}));
      });
}

TEST_F(KeyPreviewTest, GivesZeroWhenTheWindowItselfHasTheFocus) {
  InLoop(
      "  LTEXT \"A\", 101, 10, 10, 50, 14",
      [](HWND window) {
        EXPECT_EQ(GetFocus(), window);
        PressKey(VK_F2);
      },
      [](HWND) {
        EXPECT_TRUE(Heard({{EV_KEYPRESS, 0, VK_F2}}));
      });
}

TEST_F(KeyPreviewTest, GivesANegativeIdAsItIs) {
  InLoop(
      "  PUSHBUTTON \"A\", -1, 10, 10, 50, 14", [](HWND) { PressKey(VK_F2); },
      [](HWND) {
        EXPECT_TRUE(Heard({{EV_KEYPRESS, 0xFFFFFFFFu, VK_F2}}));
      });
}

// ---- Break ----

TEST_F(KeyPreviewTest, CtrlBreakSetsTheFlagAndRaisesEventZero) {
  int32_t flagInEvent = -1;
  Log().onEvent = [&](HWND, const Event& event) {
    if (event.event == EV_USERBREAK) flagInEvent = GetUserBreak();
    return 1;
  };
  SetUserBreak(0);
  InLoop(
      kButtons, [](HWND) { PressKey(VK_CANCEL, {VK_CONTROL}); },
      [](HWND) {
        EXPECT_TRUE(Heard({{EV_USERBREAK, 0, 0}}));
      });
  EXPECT_EQ(flagInEvent, 1);
  EXPECT_EQ(GetUserBreak(), 1);
}

// The keys that a window of the test's own procedure sees.
std::vector<WPARAM> keysSeen;
WNDPROC realButton = nullptr;

LRESULT CALLBACK SeeKeys(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN) keysSeen.push_back(wParam);
  if (message == WM_GETDLGCODE) return DLGC_WANTALLKEYS;
  return CallWindowProcA(realButton, window, message, wParam, lParam);
}

void WatchKeys(HWND control) {
  keysSeen.clear();
  realButton =
      reinterpret_cast<WNDPROC>(SetWindowLongA(control, GWL_WNDPROC, reinterpret_cast<LONG>(SeeKeys)));
}

TEST_F(KeyPreviewTest, CtrlBreakGoesOnToThePlatformWhateverTheResult) {
  Log().onEvent = [](HWND, const Event& event) { return event.event == EV_USERBREAK ? 1 : 0; };
  InLoop(
      kButtons,
      [](HWND window) {
        WatchKeys(GetDlgItem(window, 101));
        PressKey(VK_CANCEL, {VK_CONTROL});
      },
      [](HWND) {
        EXPECT_EQ(keysSeen, (std::vector<WPARAM>{VK_CONTROL, VK_CANCEL}));
      });
}

TEST_F(KeyPreviewTest, TheBreakKeyNeedsNoParticularModifier) {
  for (const std::initializer_list<WORD>& held :
       {std::initializer_list<WORD>{}, std::initializer_list<WORD>{VK_SHIFT},
        std::initializer_list<WORD>{VK_CONTROL, VK_SHIFT}}) {
    InLoop(
        kButtons, [&](HWND) { PressKey(VK_CANCEL, held); },
        [](HWND) {
          EXPECT_TRUE(Heard({{EV_USERBREAK, 0, 0}}));
        });
  }
}

// ---- Escape ----

TEST_F(KeyPreviewTest, EscapeReachesThePlatformInAWindowWithoutAButtonTwo) {
  for (const bool taken : {false, true}) {
    SCOPED_TRACE(taken);
    Log().onEvent = [&](HWND, const Event& event) { return event.event == EV_KEYPRESS && taken ? 1 : 0; };
    InLoop(
        kButtons,
        [](HWND window) {
          WatchKeys(GetDlgItem(window, 101));
          PressKey(VK_ESCAPE);
        },
        [&](HWND window) {
          EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_ESCAPE}}));
          EXPECT_EQ(keysSeen, taken ? std::vector<WPARAM>{} : std::vector<WPARAM>{VK_ESCAPE});
          EXPECT_TRUE(IsWindow(window)) << "Escape closes nothing by itself";
        });
  }
}

TEST_F(KeyPreviewTest, EscapeIsAlwaysTakenInAWindowWithAButtonTwo) {
  for (const int32_t result : {0, 1, -1}) {
    SCOPED_TRACE(result);
    Log().onEvent = [&](HWND, const Event& event) { return event.event == EV_KEYPRESS ? result : 0; };
    InLoop(
        kWithCancel,
        [](HWND window) {
          WatchKeys(GetDlgItem(window, 101));
          PressKey(VK_ESCAPE);
        },
        [](HWND window) {
          EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_ESCAPE}}));
          EXPECT_TRUE(keysSeen.empty());
          EXPECT_TRUE(IsWindow(window));
        });
  }
}

TEST_F(KeyPreviewTest, EscapeDoesNotCountAControlTwoThatIsNoButton) {
  InLoop(
      "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
      "  LTEXT \"Two\", 2, 10, 30, 50, 14",
      [](HWND window) {
        WatchKeys(GetDlgItem(window, 101));
        PressKey(VK_ESCAPE);
      },
      [](HWND) { EXPECT_EQ(keysSeen, (std::vector<WPARAM>{VK_ESCAPE})); });
}

// ---- A window that goes ----

TEST_F(KeyPreviewTest, SurvivesAWindowThatGoesInTheEvent) {
  const struct {
    uint32_t event;
    WORD key;
    WORD held;
  } kWays[] = {{EV_KEYPRESS, VK_F2, 0},
               {EV_KEYPRESS, VK_ESCAPE, 0},
               {EV_KEYPRESS, VK_RETURN, 0},
               {EV_KEYPRESS, 'K', VK_CONTROL},
               {EV_USERBREAK, VK_CANCEL, 0}};
  for (const auto& way : kWays) {
    SCOPED_TRACE(KeyName(way.key));
    const HWND window = LoadDialog("Main", kWithCancel).window;
    Log().onEvent = [&](HWND, const Event& event) {
      if (event.event == way.event) DestroyWindow(window);
      return 0;
    };
    Script script;
    script.Do([&] {
      if (way.held != 0) {
        PressKey(way.key, {way.held});
      } else {
        PressKey(way.key);
      }
    });
    EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr), 0);
    Pump();
  }
}

}  // namespace
}  // namespace brelt::test
