// The keys of the main window's menu.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

// Item 1 of the bar is a popup within a popup; ids tell what stands where.
constexpr const char* kMenu =
    "Keys MENU\n"
    "BEGIN\n"
    "  POPUP \"&File\"\n"
    "  BEGIN\n"
    "    MENUITEM \"Open\\tCtrl+O\", 201\n"
    "    MENUITEM \"Save\\tF5,Ctrl+S\", 202\n"
    "    MENUITEM \"Grey\\tCtrl+G\", 203, GRAYED\n"
    "    MENUITEM \"Inactive\\tCtrl+I\", 204, INACTIVE\n"
    "    MENUITEM SEPARATOR\n"
    "    POPUP \"Deep\"\n"
    "    BEGIN\n"
    "      MENUITEM \"Deep\\tCtrl+D\", 205\n"
    "      MENUITEM \"Five\\tCtrl+5\", 5\n"
    "    END\n"
    "    MENUITEM \"Again\\tCtrl+O\", 206\n"
    "    MENUITEM \"Alt\\tAlt+X\", 207\n"
    "    MENUITEM \"Zero\\tCtrl+Z\", 0\n"
    "  END\n"
    "  POPUP \"&Off\", GRAYED\n"
    "  BEGIN\n"
    "    MENUITEM \"Off\\tCtrl+F\", 208\n"
    "  END\n"
    "  MENUITEM \"&Bar\\tF6\", 209\n"
    "END\n";

// What a menu's own loop did: the commands that reached the window's procedure.
struct SystemMessages {
  std::vector<std::pair<WPARAM, LPARAM>> commands;   // WM_SYSCOMMAND
  std::vector<std::pair<WPARAM, LPARAM>> menuItems;  // WM_COMMAND
};
SystemMessages seen;
WNDPROC realProcedure = nullptr;

// Doesn't let the menu open: its loop would have to be driven, and what counts is that it was asked to.
LRESULT CALLBACK WatchMenu(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SYSCOMMAND) {
    seen.commands.push_back({wParam, lParam});
    if ((wParam & 0xFFF0) == SC_KEYMENU) return 0;
  }
  if (message == WM_COMMAND) seen.menuItems.push_back({wParam, lParam});
  return CallWindowProcA(realProcedure, window, message, wParam, lParam);
}

class MenuKeysTest : public FormTest {
 protected:
  static HWND LoadWithMenu(const std::string& menu = kMenu) {
    const LoadResult form = LoadText("Main", menu +
                                                 "Main DIALOG 10, 10, 200, 150\n"
                                                 "STYLE WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX\n"
                                                 "MENU Keys\n"
                                                 "BEGIN\n"
                                                 "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
                                                 "END\n");
    EXPECT_EQ(form.code, RTX_OK) << form.message;
    seen = {};
    realProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongA(form.window, GWL_WNDPROC, reinterpret_cast<LONG>(WatchMenu)));
    return form.window;
  }

  // Presses a key in the main loop and gives the events that follow.
  static void Press(HWND window, WORD key, std::initializer_list<WORD> held,
                    const std::function<void()>& check) {
    const std::vector<WORD> modifiers(held);
    Script script;
    script.Do([] {})
        .Do([&] {
          Log().Clear();
          seen = {};
          for (const WORD modifier : modifiers) KeyDown(modifier);
          PressKey(key);
          for (auto modifier = modifiers.rbegin(); modifier != modifiers.rend(); ++modifier) KeyUp(*modifier);
        })
        .Do([&] { check(); })
        .Do([] { PostQuitMessage(0); });
    MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr);
  }

  static void ExpectCommand(HWND window, WORD key, std::initializer_list<WORD> held, uint32_t id) {
    Press(window, key, held, [id] {
      EXPECT_EQ(seen.menuItems, (std::vector<std::pair<WPARAM, LPARAM>>{{id, 0}}));
      EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK " + std::to_string(id) + " 0\n");
    });
  }
  static void ExpectNothing(HWND window, WORD key, std::initializer_list<WORD> held) {
    Press(window, key, held, [] {
      EXPECT_TRUE(seen.menuItems.empty());
      EXPECT_EQ(Log().Of({EV_CLICK}), "");
    });
  }
};

TEST_F(MenuKeysTest, SendTheCommandOfTheirItem) {
  const HWND window = LoadWithMenu();
  ExpectCommand(window, 'O', {VK_CONTROL}, 201);
  ExpectCommand(window, VK_F5, {}, 202);
  ExpectCommand(window, 'S', {VK_CONTROL}, 202);
  ExpectCommand(window, 'D', {VK_CONTROL}, 205);
  ExpectCommand(window, 'X', {VK_MENU}, 207);
  ExpectCommand(window, VK_F6, {}, 209);
}

TEST_F(MenuKeysTest, AreUsedUpWithTheirCommand) {
  const HWND window = LoadWithMenu();
  Press(window, VK_F5, {}, [] { EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_F5}, {EV_CLICK, 202, 0}})); });
}

TEST_F(MenuKeysTest, DoNothingWhenTheProgramTookTheKey) {
  const HWND window = LoadWithMenu();
  Log().onEvent = [](HWND, const Event& event) { return event.event == EV_KEYPRESS ? 1 : 0; };
  Press(window, VK_F5, {}, [] { EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_F5}})); });
}

TEST_F(MenuKeysTest, TakeTheFirstRowThatApplies) {
  const HWND window = LoadWithMenu();
  ExpectCommand(window, 'O', {VK_CONTROL}, 201);
  // With the first row gone the second one counts.
  KeyTableOf(window)[0].key = VK_F24;
  ExpectCommand(window, 'O', {VK_CONTROL}, 206);
}

TEST_F(MenuKeysTest, EndAtTheFirstRowWithoutAKey) {
  const HWND window = LoadWithMenu();
  KeyTableOf(window)[0].key = 0;
  ExpectNothing(window, VK_F5, {});
}

TEST_F(MenuKeysTest, OfARowWithoutModifiersNeedThatNoneIsHeld) {
  const HWND window = LoadWithMenu();
  ExpectNothing(window, VK_F5, {VK_SHIFT});
  ExpectNothing(window, VK_F5, {VK_CONTROL});
  ExpectNothing(window, VK_F5, {VK_MENU});
}

TEST_F(MenuKeysTest, OfARowWithAModifierNeedThatOne) {
  const HWND window = LoadWithMenu();
  ExpectNothing(window, 'O', {});
  ExpectNothing(window, 'O', {VK_SHIFT});
  ExpectNothing(window, 'O', {VK_MENU});
  ExpectNothing(window, 'X', {VK_CONTROL});
}

TEST_F(MenuKeysTest, OfARowWithAModifierAlsoApplyWithAFurtherOne) {
  const HWND window = LoadWithMenu();
  ExpectCommand(window, 'O', {VK_CONTROL, VK_SHIFT}, 201);
  ExpectCommand(window, 'O', {VK_CONTROL, VK_MENU}, 201);
  ExpectCommand(window, 'X', {VK_MENU, VK_SHIFT}, 207);
}

TEST_F(MenuKeysTest, WithShiftComeOnlyFromARowThatAProgramMade) {
  const HWND window = LoadWithMenu();
  KeyRow* table = KeyTableOf(window);
  table[0] = {4, 'O', 201};      // Shift alone
  table[1] = {4 | 2, 'P', 202};  // the same without the highlight
  ExpectCommand(window, 'O', {VK_SHIFT}, 201);
  ExpectCommand(window, 'O', {VK_SHIFT, VK_CONTROL}, 201);
  ExpectCommand(window, 'P', {VK_SHIFT}, 202);
  ExpectNothing(window, 'P', {});
}

// Of two rows for Shift and Ctrl with the same key the first one wins when both are held.
TEST_F(MenuKeysTest, WithTwoModifiersTakeTheFirstRowThatHasEither) {
  const HWND window = LoadWithMenu();
  KeyRow* table = KeyTableOf(window);
  table[0] = {4, 'K', 201};
  table[1] = {8, 'K', 202};
  ExpectCommand(window, 'K', {VK_SHIFT, VK_CONTROL}, 201);
  ExpectCommand(window, 'K', {VK_CONTROL}, 202);
  table[0] = {8, 'K', 202};
  table[1] = {4, 'K', 201};
  ExpectCommand(window, 'K', {VK_SHIFT, VK_CONTROL}, 202);
}

TEST_F(MenuKeysTest, OfARowWithTwoModifiersNeverApply) {
  const HWND window = LoadWithMenu();
  KeyRow* table = KeyTableOf(window);
  const uint8_t kFlags[] = {4 | 8, 8 | 16, 4 | 16, 4 | 8 | 16, 1, 1 | 8, 32, 64, 128};
  for (const uint8_t flags : kFlags) {
    SCOPED_TRACE(int(flags));
    table[0] = {flags, 'K', 201};
    ExpectNothing(window, 'K', {});
    ExpectNothing(window, 'K', {VK_SHIFT, VK_CONTROL});
    ExpectNothing(window, 'K', {VK_CONTROL});
  }
}

TEST_F(MenuKeysTest, WorkInTheLastRowOfAFullTable) {
  const HWND window = LoadWithMenu();
  KeyRow* table = KeyTableOf(window);
  for (int i = 0; i < 99; ++i) table[i] = {8, VK_F24, 201};
  table[98] = {8, 'K', 202};
  ExpectCommand(window, 'K', {VK_CONTROL}, 202);
  // A program that fills the hundredth row, too, is served like the others, and nothing behind it is read.
  table[98].key = VK_F24;
  table[99] = {8, 'K', 202};
  ExpectCommand(window, 'K', {VK_CONTROL}, 202);
  ExpectNothing(window, 'L', {VK_CONTROL});
}

// ---- Items that can't be chosen ----

TEST_F(MenuKeysTest, OfAGreyItemAreUsedUpSilently) {
  const HWND window = LoadWithMenu();
  ExpectNothing(window, 'G', {VK_CONTROL});
  ExpectNothing(window, 'I', {VK_CONTROL});
}

TEST_F(MenuKeysTest, OfAnItemInAGreyPopupAreUsedUpSilently) {
  const HWND window = LoadWithMenu();
  ExpectNothing(window, 'F', {VK_CONTROL});
  HMENU file = GetSubMenu(GetMenu(window), 0);
  EnableMenuItem(file, 5, MF_BYPOSITION | MF_GRAYED);
  ExpectNothing(window, 'D', {VK_CONTROL});
  EnableMenuItem(file, 5, MF_BYPOSITION | MF_DISABLED);
  ExpectNothing(window, 'D', {VK_CONTROL});
  EnableMenuItem(file, 5, MF_BYPOSITION | MF_ENABLED);
  ExpectCommand(window, 'D', {VK_CONTROL}, 205);
  EnableMenuItem(GetMenu(window), 0, MF_BYPOSITION | MF_GRAYED);
  ExpectNothing(window, 'D', {VK_CONTROL});
  ExpectNothing(window, 'O', {VK_CONTROL});
}

TEST_F(MenuKeysTest, OfAnItemThatWasRemovedAreUsedUpSilently) {
  const HWND window = LoadWithMenu();
  DeleteMenu(GetMenu(window), 201, MF_BYCOMMAND);
  ExpectNothing(window, 'O', {VK_CONTROL});
}

TEST_F(MenuKeysTest, OfASeparatorAreUsedUpSilently) {
  const HWND window = LoadWithMenu();
  DeleteMenu(GetMenu(window), 201, MF_BYCOMMAND);
  AppendMenuA(GetSubMenu(GetMenu(window), 0), MF_SEPARATOR, 201, nullptr);
  ExpectNothing(window, 'O', {VK_CONTROL});
}

// The button would take the key as its mnemonic, or F10 would open the menu.
TEST_F(MenuKeysTest, ThatAreUsedUpDoNotReachThePlatform) {
  const HWND window = LoadWithMenu();
  EnableMenuItem(GetMenu(window), 207, MF_BYCOMMAND | MF_GRAYED);
  Press(window, 'X', {VK_MENU}, [] {
    for (const auto& command : seen.commands) EXPECT_NE(command.second, 'x') << "The platform had the key";
  });
}

TEST_F(MenuKeysTest, OfAnItemWithoutAnEventAreUsedUp) {
  const HWND window = LoadWithMenu();
  Press(window, '5', {VK_CONTROL}, [] {
    EXPECT_EQ(seen.menuItems, (std::vector<std::pair<WPARAM, LPARAM>>{{5, 0}}));
    EXPECT_EQ(Log().Of({EV_CLICK}), "");
  });
}

TEST_F(MenuKeysTest, SendTheCommandOfAnItemWithIdZero) {
  const HWND window = LoadWithMenu();
  Press(window, 'Z', {VK_CONTROL}, [] {
    EXPECT_EQ(seen.menuItems, (std::vector<std::pair<WPARAM, LPARAM>>{{0, 0}}));
  });
}

// ---- The highlight of a bar item ----

std::vector<std::string> steps;

BOOL WINAPI RecordHilite(HWND, HMENU, UINT item, UINT flags) {
  steps.push_back((flags == (MF_BYCOMMAND | MF_HILITE) ? "on " : "off ") + std::to_string(item));
  return TRUE;
}

TEST_F(MenuKeysTest, HighlightTheItemWhileItsCommandRunsForARowThatInverts) {
  const HWND window = LoadWithMenu();
  const ReplacedImport import("HiliteMenuItem", reinterpret_cast<void*>(RecordHilite));
  steps.clear();
  Log().onEvent = [](HWND, const Event& event) {
    if (event.event == EV_CLICK) steps.push_back("click");
    return 0;
  };
  KeyTableOf(window)[0] = {0, VK_F7, 209};
  ExpectCommand(window, VK_F7, {}, 209);
  EXPECT_EQ(steps, (std::vector<std::string>{"on 209", "click", "off 209"}));
}

TEST_F(MenuKeysTest, LeaveTheItemAsItIsForARowThatDoesNotInvert) {
  const HWND window = LoadWithMenu();
  const ReplacedImport import("HiliteMenuItem", reinterpret_cast<void*>(RecordHilite));
  steps.clear();
  KeyTableOf(window)[0] = {2, VK_F7, 209};
  ExpectCommand(window, VK_F7, {}, 209);
  EXPECT_TRUE(steps.empty());
}

TEST_F(MenuKeysTest, SurviveAWindowThatGoesInItsCommand) {
  const HWND window = LoadWithMenu();
  KeyTableOf(window)[0] = {0, VK_F7, 209};
  Log().onEvent = [](HWND source, const Event& event) {
    if (event.event == EV_CLICK) DestroyWindow(source);
    return 0;
  };
  Script script;
  script.Do([] { PressKey(VK_F7); });
  EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr), 0);
}

// ---- Titles of the menu bar ----

using Commands = std::vector<std::pair<WPARAM, LPARAM>>;

TEST_F(MenuKeysTest, OfATitleOpenTheMenuBar) {
  const HWND window = LoadWithMenu();
  Press(window, 'F', {VK_MENU}, [] { EXPECT_EQ(seen.commands, (Commands{{SC_KEYMENU, 'F'}})); });
}

TEST_F(MenuKeysTest, OfATitleOpenTheBarAlsoForAGreyTitle) {
  const HWND window = LoadWithMenu();
  Press(window, 'O', {VK_MENU}, [] { EXPECT_EQ(seen.commands, (Commands{{SC_KEYMENU, 'O'}})); });
}

TEST_F(MenuKeysTest, OfATitleRestoreAMinimisedWindow) {
  const HWND main = LoadWithMenu();
  const HWND other = LoadDialog("Other", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14").window;
  Script script;
  script.Do([&] { ShowWindow(main, SW_MINIMIZE); })
      .Do([] { ShowForm("Other"); })
      .Do([&] {
        EXPECT_EQ(GetActiveWindow(), other);
        EXPECT_TRUE(IsIconic(main));
        seen = {};
        PressKey('F', {VK_MENU});
      })
      .Do([&] {
        EXPECT_FALSE(IsIconic(main));
        EXPECT_EQ(GetActiveWindow(), main);
        EXPECT_EQ(seen.commands, (Commands{{SC_KEYMENU, 'F'}}));
      })
      .DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), main, nullptr, nullptr);
}

TEST_F(MenuKeysTest, OfATitleOpenTheMainWindowsBarFromAnotherWindow) {
  const HWND main = LoadWithMenu();
  const HWND other = LoadDialog("Other", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14").window;
  Script script;
  script.Do([] { ShowForm("Other"); })
      .Do([&] {
        EXPECT_EQ(GetActiveWindow(), other);
        seen = {};
        PressKey('F', {VK_MENU});
      })
      .Do([&] {
        EXPECT_EQ(GetActiveWindow(), main);
        EXPECT_EQ(seen.commands, (Commands{{SC_KEYMENU, 'F'}}));
      })
      .DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), main, nullptr, nullptr);
}

// ---- F10 and Alt ----

TEST_F(MenuKeysTest, F10AloneDoesNothing) {
  const HWND window = LoadWithMenu();
  Press(window, VK_F10, {}, [] {
    EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_F10}}));
    EXPECT_TRUE(seen.commands.empty());
  });
}

TEST_F(MenuKeysTest, F10AloneDoesNothingInAWindowWithoutAMenu) {
  const HWND window = LoadShown("Main", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14");
  seen = {};
  realProcedure =
      reinterpret_cast<WNDPROC>(SetWindowLongA(window, GWL_WNDPROC, reinterpret_cast<LONG>(WatchMenu)));
  Press(window, VK_F10, {}, [] { EXPECT_TRUE(seen.commands.empty()); });
}

TEST_F(MenuKeysTest, F10WithShiftReachesThePlatform) {
  const HWND window = LoadWithMenu();
  KeyDown(VK_SHIFT);
  Press(window, VK_F10, {}, [] { EXPECT_EQ(Log().Of({EV_KEYPRESS}), ""); });
  KeyUp(VK_SHIFT);
}

TEST_F(MenuKeysTest, F10CanBeTheKeyOfAnItem) {
  const HWND window = LoadWithMenu();
  KeyTableOf(window)[0] = {2, VK_F10, 201};
  ExpectCommand(window, VK_F10, {}, 201);
}

TEST_F(MenuKeysTest, AltLetGoInAnotherWindowGoesToTheMainWindowsMenu) {
  const HWND main = LoadWithMenu();
  const HWND other = LoadDialog("Other", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14").window;
  for (const bool minimised : {false, true}) {
    SCOPED_TRACE(minimised);
    Script script;
    script
        .Do([&] {
          if (minimised) ShowWindow(main, SW_MINIMIZE);
          ShowForm("Other");
        })
        .Do([&] {
          EXPECT_EQ(GetActiveWindow(), other);
          seen = {};
          PressKey(VK_MENU);
        })
        .Do([&] {
          EXPECT_EQ(GetActiveWindow(), main);
          EXPECT_FALSE(IsIconic(main));
          EXPECT_EQ(seen.commands, (Commands{{SC_KEYMENU, 0}}));
        })
        .Do([] { PostQuitMessage(0); });
    MainLoop(GetModuleHandleA(nullptr), main, nullptr, nullptr);
  }
}

TEST_F(MenuKeysTest, AltLetGoInAnotherWindowStaysThereWhenTheMainWindowHasNoMenuOrNoTable) {
  const HWND main = LoadWithMenu();
  const HWND other = LoadDialog("Other", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14").window;
  HMENU menu = GetMenu(main);
  const LONG table = ReadSlot(main, kSlotAccelTable);
  for (const bool noMenu : {false, true}) {
    SCOPED_TRACE(noMenu);
    if (noMenu) SetMenu(main, nullptr);
    if (!noMenu) WriteSlot(main, kSlotAccelTable, 0);
    Script script;
    script.Do([] { ShowForm("Other"); })
        .Do([] {
          seen = {};
          PressKey(VK_MENU);
        })
        .Do([&] {
          EXPECT_EQ(GetActiveWindow(), other);
          EXPECT_TRUE(seen.commands.empty());
          PressKey(VK_ESCAPE);  // leaves the system menu, which the platform has opened
        })
        .Do([] { PostQuitMessage(0); });
    MainLoop(GetModuleHandleA(nullptr), main, nullptr, nullptr);
    WriteSlot(main, kSlotAccelTable, table);
    SetMenu(main, menu);
  }
}

// In the main window itself the platform does the same by its own ways.
TEST_F(MenuKeysTest, AltLetGoInTheMainWindowIsLeftToThePlatform) {
  const HWND window = LoadWithMenu();
  Press(window, VK_MENU, {}, [] { EXPECT_EQ(seen.commands, (Commands{{SC_KEYMENU, 0}})); });
}

TEST_F(MenuKeysTest, WorkTheMainWindowsMenuFromAnotherWindow) {
  const HWND main = LoadWithMenu();
  LoadDialog("Other", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14");
  Script script;
  script.Do([] { ShowForm("Other"); })
      .Do([] {
        Log().Clear();
        PressKey('O', {VK_CONTROL});
      })
      .Do([&] {
        const HWND other = GetActiveWindow();
        EXPECT_TRUE(Heard({{other, {EV_KEYPRESS, 101, 0x1100 | 'O'}}, {main, {EV_CLICK, 201, 0}}}));
      })
      .DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), main, nullptr, nullptr);
}

}  // namespace
}  // namespace brelt::test
