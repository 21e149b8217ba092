// What controls and menus tell their window, and which of it the program hears.
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"

namespace brelt::test {
namespace {

class CommandTest : public FormTest {
 protected:
  // Sends what a control sends its parent.
  static void Notify(HWND window, int id, int code) {
    SendMessageA(window, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
  }
};

using NoEvents = std::vector<Event>;

// ---- Menu ----

constexpr const char* kMenuForm =
    "MainMenu MENU\nBEGIN\n"
    "  MENUITEM \"Five\", 5\n  MENUITEM \"Nine\", 9\n  MENUITEM \"Ten\", 10\n  MENUITEM \"Big\", 65535\n"
    "END\n"
    "Main DIALOG 10, 10, 200, 150\nMENU MainMenu\nBEGIN\n";

TEST_F(CommandTest, AMenuItemWithAnIdUpToNineIsSilent) {
  const HWND window =
      LoadText("Main", std::string(kMenuForm) + "  LTEXT \"A\", 101, 1, 1, 10, 10\nEND\n").window;
  Log().Clear();
  for (const WPARAM id : {0u, 1u, 5u, 9u}) EXPECT_EQ(SendMessageA(window, WM_COMMAND, id, 0), 0);
  EXPECT_TRUE(Heard(NoEvents{}));
  for (const WPARAM id : {10u, 101u, 65535u}) EXPECT_EQ(SendMessageA(window, WM_COMMAND, id, 0), 0);
  EXPECT_TRUE(Heard({{EV_CLICK, 10, 0}, {EV_CLICK, 101, 0}, {EV_CLICK, 65535, 0}}));
}

TEST_F(CommandTest, AMenuItemWithAnIdUpToNineIsHeardWhenAControlHasTheId) {
  const HWND window =
      LoadText("Main", std::string(kMenuForm) + "  LTEXT \"A\", 5, 1, 1, 10, 10\nEND\n").window;
  Log().Clear();
  SendMessageA(window, WM_COMMAND, 5, 0);
  SendMessageA(window, WM_COMMAND, 9, 0);
  EXPECT_TRUE(Heard({{EV_CLICK, 5, 0}}));
}

TEST_F(CommandTest, AnAcceleratorCountsAsAMenuItem) {
  const HWND window =
      LoadText("Main", std::string(kMenuForm) + "  LTEXT \"A\", 101, 1, 1, 10, 10\nEND\n").window;
  Log().Clear();
  SendMessageA(window, WM_COMMAND, MAKEWPARAM(10, 1), 0);
  EXPECT_TRUE(Heard({{EV_CLICK, 10, 0}}));
}

TEST_F(CommandTest, AChosenMenuItemIsHeard) {
  const HWND window =
      LoadText("Main",
               "MainMenu MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"&Open\", 201\n  END\nEND\n"
               "Main DIALOG 10, 10, 200, 150\nSTYLE WS_CAPTION\nMENU MainMenu\nBEGIN\n  PUSHBUTTON \"A\", "
               "101, 1, 1, 30, 10\nEND\n")
          .window;
  Script script;
  script
      .Do([] {
        Log().Clear();
        PressKey('F', {VK_MENU});
      })
      .Do([] { PressKey('O'); })
      .Do([] {
        EXPECT_TRUE(Heard({{EV_CLICK, 201, 0}}));
      })
      .DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr);
}

// ---- Buttons ----

// Buttons of each type; those that a form can't have are made by their style.
TEST_F(CommandTest, OnlyButtonsOfSomeTypesAreHeard) {
  const HWND window = LoadShown("Main", "  LTEXT \"A\", 100, 1, 1, 10, 10");
  const struct {
    DWORD type;
    bool heard;
    bool setsLast;
  } kTypes[] = {{BS_PUSHBUTTON, true, true},
                {BS_DEFPUSHBUTTON, true, true},
                {BS_CHECKBOX, false, false},
                {BS_AUTOCHECKBOX, true, false},
                {BS_RADIOBUTTON, false, false},
                {BS_3STATE, false, false},
                {BS_AUTO3STATE, false, false},
                {BS_GROUPBOX, false, false},
                {8, false, false},
                {BS_AUTORADIOBUTTON, true, false},
                {10, false, false},
                {BS_OWNERDRAW, false, false}};
  for (const auto& row : kTypes) {
    SCOPED_TRACE(row.type);
    const HWND button =
        CreateWindowExA(0, "BUTTON", "", WS_CHILD | WS_VISIBLE | row.type, 0, 0, 50, 20, window,
                        reinterpret_cast<HMENU>(200), GetModuleHandleA(nullptr), nullptr);
    ASSERT_TRUE(IsWindow(button));
    // Some change their type as they are made.
    SetWindowLongA(button, GWL_STYLE, static_cast<LONG>(WS_CHILD | WS_VISIBLE | row.type));
    SendMessageA(button, BM_SETCHECK, BST_CHECKED, 0);
    Pump();
    Log().Clear();
    Notify(window, 200, BN_CLICKED);
    if (row.heard) {
      EXPECT_TRUE(Heard({{EV_CLICK, 200, 0}}));
    } else {
      EXPECT_TRUE(Heard(NoEvents{}));
    }
    Log().Clear();
    for (const int code :
         {BN_PAINT, BN_HILITE, BN_UNHILITE, BN_DISABLE, BN_DOUBLECLICKED, BN_SETFOCUS, BN_KILLFOCUS}) {
      Notify(window, 200, code);
    }
    EXPECT_TRUE(Heard(NoEvents{})) << "Codes other than a click";
    DestroyWindow(button);
  }
}

TEST_F(CommandTest, AFlatOrMultilineButtonCountsByItsLowFourBits) {
  const HWND window = LoadShown("Main", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14");
  const HWND button = GetDlgItem(window, 101);
  SetWindowLongA(button, GWL_STYLE, GetWindowLongA(button, GWL_STYLE) | BS_MULTILINE | BS_NOTIFY | BS_FLAT);
  Notify(window, 101, BN_CLICKED);
  EXPECT_TRUE(Heard({{EV_CLICK, 101, 0}}));
}

TEST_F(CommandTest, ARadioButtonIsHeardWhenItIsTurnedOn) {
  const HWND window =
      LoadShown("Main",
                "  AUTORADIOBUTTON \"A\", 101, 10, 10, 50, 12, BS_AUTORADIOBUTTON | WS_GROUP\n"
                "  AUTORADIOBUTTON \"B\", 102, 10, 30, 50, 12, BS_AUTORADIOBUTTON");
  ClickControl(GetDlgItem(window, 101));
  Pump();
  EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 101 0\n");
  ClickControl(GetDlgItem(window, 102));
  Pump();
  EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 101 0\nEV_CLICK 102 0\n") << "The one that goes off is silent";
  EXPECT_EQ(SendDlgItemMessageA(window, 101, BM_GETCHECK, 0, 0), BST_UNCHECKED);
  Log().Clear();
  Notify(window, 101, BN_CLICKED);
  EXPECT_TRUE(Heard(NoEvents{}));
}

// Only a button that is on counts, not one that is neither on nor off.
LRESULT CALLBACK AnswerIndeterminate(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == BM_GETCHECK) return BST_INDETERMINATE;
  return DefWindowProcA(window, message, wParam, lParam);
}

TEST_F(CommandTest, ARadioButtonThatIsNeitherOnNorOffIsSilent) {
  const HWND window = LoadShown("Main", "  AUTORADIOBUTTON \"A\", 101, 10, 10, 50, 12, BS_AUTORADIOBUTTON");
  SetWindowLongA(GetDlgItem(window, 101), GWL_WNDPROC, reinterpret_cast<LONG>(AnswerIndeterminate));
  Notify(window, 101, BN_CLICKED);
  EXPECT_TRUE(Heard(NoEvents{}));
}

TEST_F(CommandTest, ACheckBoxIsHeardBothWays) {
  const HWND window = LoadShown("Main", "  AUTOCHECKBOX \"A\", 101, 10, 10, 50, 12, BS_AUTOCHECKBOX");
  for (const LRESULT state : {BST_CHECKED, BST_UNCHECKED}) {
    Log().Clear();
    ClickControl(GetDlgItem(window, 101));
    Pump();
    EXPECT_EQ(SendDlgItemMessageA(window, 101, BM_GETCHECK, 0, 0), state);
    EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 101 0\n");
  }
}

TEST_F(CommandTest, AnIdIsTheLowWordOnly) {
  const HWND window = LoadShown("Main", "  PUSHBUTTON \"A\", -1, 10, 10, 50, 14");
  ClickControl(GetDlgItem(window, -1));
  Pump();
  EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 65535 0\n");
}

// Enter in a form presses the default button.
TEST_F(CommandTest, EnterPressesTheDefaultButton) {
  const HWND window = LoadDialog("Main",
                                 "  EDITTEXT 101, 10, 10, 50, 14\n"
                                 "  DEFPUSHBUTTON \"OK\", 201, 10, 30, 50, 14")
                          .window;
  Script script;
  script
      .Do([] {
        Log().Clear();
        PressKey(VK_RETURN);
      })
      .Do([] {
        EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_RETURN}, {EV_CLICK, 201, 0}}));
      })
      .DestroyAll();
  MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr);
}

// ---- Bitmap buttons ----

TEST_F(CommandTest, ABitmapButtonIsHeardUnlessItIsACheckOrRadioButton) {
  const HWND window = LoadShown("Main", "  LTEXT \"A\", 100, 1, 1, 10, 10");
  const TestClass bitmapButton("BitmapButton.1.3.2207");
  const struct {
    DWORD style;
    bool heard;
  } kStyles[] = {{0, true},  {1, true},     {2, false},         {4, false},
                 {6, false}, {0x100, true}, {0x1000 | 8, true}, {0x1002, false}};
  for (const auto& row : kStyles) {
    SCOPED_TRACE(row.style);
    const HWND button = bitmapButton.MakeChild(window, 200, 100, 0, row.style);
    Log().Clear();
    Notify(window, 200, 0);
    if (row.heard) {
      EXPECT_TRUE(Heard({{EV_CLICK, 200, 0}}));
    } else {
      EXPECT_TRUE(Heard(NoEvents{}));
    }
    Log().Clear();
    for (int code = 1; code < 10; ++code) Notify(window, 200, code);
    EXPECT_TRUE(Heard(NoEvents{}));
    DestroyWindow(button);
  }
}

TEST_F(CommandTest, ABitmapButtonDoesNotCountForTheResultOfAModalShow) {
  const TestClass bitmapButton("BITMAPBUTTON.1.3.2207");
  const HWND box = LoadDialog("Box", "  PUSHBUTTON \"OK\", 1, 10, 10, 50, 14").window;
  bitmapButton.MakeChild(box, 200);
  Script script;
  script.Do([&] {
    Notify(box, 1, BN_CLICKED);
    Notify(box, 200, 0);
    EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 1 0\nEV_CLICK 200 0\n");
    Unload("Box");
  });
  int32_t result = -1;
  EXPECT_EQ(ShowForm("Box", true, &result), RTX_OK);
  EXPECT_EQ(result, 1);
}

// ---- Edit fields ----

std::vector<UINT> beeps;
BOOL WINAPI RecordBeep(UINT type) {
  beeps.push_back(type);
  return TRUE;
}

constexpr const char* kTwoFields =
    "  EDITTEXT 101, 10, 10, 50, 14\n"
    "  EDITTEXT 102, 10, 30, 50, 14";

TEST_F(CommandTest, AFieldIsHeardAtEachCharacterTyped) {
  const HWND window = LoadShown("Main", kTwoFields);
  SetFocus(GetDlgItem(window, 101));
  PressKey('A');
  PressKey('B');
  PressKey(VK_BACK);
  Pump();
  EXPECT_TRUE(Heard({{EV_CHANGE, 101, 0}, {EV_CHANGE, 101, 0}, {EV_CHANGE, 101, 0}}));
}

TEST_F(CommandTest, AFieldThatTheProgramChangesIsSilentWhileTheFocusIsElsewhere) {
  const HWND window = LoadShown("Main", kTwoFields);
  SetFocus(GetDlgItem(window, 101));
  SetWindowTextA(GetDlgItem(window, 102), "text");
  EXPECT_TRUE(Heard(NoEvents{}));
  SetWindowTextA(GetDlgItem(window, 101), "text");
  EXPECT_TRUE(Heard({{EV_CHANGE, 101, 0}})) << "With the focus there is no telling who changed it";
}

TEST_F(CommandTest, AFieldWithoutSpaceBeeps) {
  const HWND window = LoadShown("Main", kTwoFields);
  const ReplacedImport import("MessageBeep", reinterpret_cast<void*>(RecordBeep));
  beeps.clear();
  SetFocus(GetDlgItem(window, 101));
  for (const int code : {EN_SETFOCUS, EN_KILLFOCUS, EN_UPDATE, EN_MAXTEXT, EN_HSCROLL, EN_VSCROLL}) {
    Notify(window, 101, code);
  }
  EXPECT_TRUE(beeps.empty());
  Notify(window, 101, EN_ERRSPACE);
  EXPECT_EQ(beeps, (std::vector<UINT>{0xFFFFFFFFu}));
  EXPECT_TRUE(Heard(NoEvents{}));
}

TEST_F(CommandTest, ARichFieldBeepsWithoutSpaceOrRoomAndIsSilentInADialog) {
  const HWND window = LoadShown("Main", "  LTEXT \"A\", 100, 1, 1, 10, 10");
  const ReplacedImport import("MessageBeep", reinterpret_cast<void*>(RecordBeep));
  for (const char* name : {"RichEdit20A", "RICHEDIT"}) {
    SCOPED_TRACE(name);
    const TestClass rich(name);
    const HWND control = rich.MakeChild(window, 200);
    ASSERT_TRUE(IsWindow(control));
    SetFocus(control);
    beeps.clear();
    Notify(window, 200, EN_CHANGE);
    Notify(window, 200, EN_VSCROLL);
    EXPECT_TRUE(beeps.empty());
    Notify(window, 200, EN_ERRSPACE);
    Notify(window, 200, EN_MAXTEXT);
    EXPECT_EQ(beeps, (std::vector<UINT>{0xFFFFFFFFu, 0xFFFFFFFFu}));
    EXPECT_TRUE(Heard(NoEvents{}));
    DestroyWindow(control);
  }
}

// ---- Lists ----

constexpr const char* kLists =
    "  LISTBOX 101, 10, 10, 60, 60, LBS_NOTIFY | WS_TABSTOP\n"
    "  COMBOBOX 102, 80, 10, 60, 60, CBS_DROPDOWNLIST | WS_TABSTOP\n"
    "  COMBOBOX 103, 80, 40, 60, 60, CBS_DROPDOWN | WS_TABSTOP\n"
    "  COMBOBOX 104, 10, 80, 60, 60, CBS_SIMPLE | WS_TABSTOP\n"
    "  PUSHBUTTON \"A\", 105, 80, 80, 50, 14";

HWND LoadLists() {
  const HWND window = LoadShown("Main", kLists);
  for (const char* item : {"one", "two", "three"}) {
    SendDlgItemMessageA(window, 101, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    for (const int id : {102, 103, 104}) {
      SendDlgItemMessageA(window, id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    }
  }
  Pump();
  Log().Clear();
  return window;
}

int ItemHeight(HWND window) {
  return static_cast<int>(SendDlgItemMessageA(window, 101, LB_GETITEMHEIGHT, 0, 0));
}

TEST_F(CommandTest, AListIsHeardWhenAnotherItemIsChosen) {
  const HWND window = LoadLists();
  SetFocus(GetDlgItem(window, 101));
  MovePointer(GetDlgItem(window, 101), 5, ItemHeight(window) + 2);
  LeftDown();
  LeftUp();
  Pump();
  EXPECT_EQ(SendDlgItemMessageA(window, 101, LB_GETCURSEL, 0, 0), 1);
  EXPECT_EQ(Log().Of({EV_CHANGE, EV_DBLCLICK}), "EV_CHANGE 101 0\n");
  PressKey(VK_DOWN);
  Pump();
  EXPECT_EQ(Log().Of({EV_CHANGE, EV_DBLCLICK}), "EV_CHANGE 101 0\nEV_CHANGE 101 0\n");
}

TEST_F(CommandTest, AListIsHeardAtADoubleClick) {
  const HWND window = LoadLists();
  MovePointer(GetDlgItem(window, 101), 5, 2 * ItemHeight(window) + 2);
  for (int i = 0; i < 2; ++i) {
    LeftDown();
    LeftUp();
  }
  Pump();
  EXPECT_EQ(Log().Of({EV_CHANGE, EV_DBLCLICK}), "EV_CHANGE 101 0\nEV_DBLCLICK 101 0\n");
}

TEST_F(CommandTest, AListIsHeardOnlyWithTheFocus) {
  const HWND window = LoadLists();
  SetFocus(GetDlgItem(window, 105));
  Notify(window, 101, LBN_SELCHANGE);
  Notify(window, 101, LBN_DBLCLK);
  EXPECT_TRUE(Heard(NoEvents{}));
  SetFocus(GetDlgItem(window, 101));
  for (const int code : {LBN_ERRSPACE, LBN_SELCANCEL, LBN_SETFOCUS, LBN_KILLFOCUS, 0, 6, 7}) {
    Notify(window, 101, code);
  }
  EXPECT_TRUE(Heard(NoEvents{}));
  Notify(window, 101, LBN_SELCHANGE);
  Notify(window, 101, LBN_DBLCLK);
  EXPECT_TRUE(Heard({{EV_CHANGE, 101, 0}, {EV_DBLCLICK, 101, 0}}));
}

TEST_F(CommandTest, AnIconListIsHeardAsAList) {
  const HWND window = LoadLists();
  const TestClass iconList("ICONLIST.1.3.2207");
  const HWND list = iconList.MakeChild(window, 200);
  SetFocus(GetDlgItem(window, 105));
  Notify(window, 200, LBN_SELCHANGE);
  Notify(window, 200, LBN_DBLCLK);
  EXPECT_TRUE(Heard(NoEvents{}));
  SetFocus(list);
  Notify(window, 200, LBN_SELCHANGE);
  Notify(window, 200, LBN_DBLCLK);
  Notify(window, 200, LBN_SETFOCUS);
  EXPECT_TRUE(Heard({{EV_CHANGE, 200, 0}, {EV_DBLCLICK, 200, 0}}));
  DestroyWindow(list);
}

TEST_F(CommandTest, AComboBoxIsHeardWithOrWithoutTheFocus) {
  const HWND window = LoadLists();
  SetFocus(GetDlgItem(window, 105));
  for (const int id : {102, 103, 104}) {
    Log().Clear();
    for (const int code : {CBN_ERRSPACE, CBN_SETFOCUS, CBN_KILLFOCUS, CBN_EDITCHANGE, CBN_EDITUPDATE,
                           CBN_DROPDOWN, CBN_CLOSEUP, CBN_SELENDOK, CBN_SELENDCANCEL, 0}) {
      Notify(window, id, code);
    }
    EXPECT_TRUE(Heard(NoEvents{}));
    Notify(window, id, CBN_SELCHANGE);
    Notify(window, id, CBN_DBLCLK);
    EXPECT_TRUE(
        Heard({{EV_CHANGE, static_cast<uint32_t>(id), 0}, {EV_DBLCLICK, static_cast<uint32_t>(id), 0}}));
  }
}

TEST_F(CommandTest, AComboBoxIsHeardWhenAnotherItemIsChosenByKey) {
  const HWND window = LoadLists();
  SetFocus(GetDlgItem(window, 102));
  PressKey(VK_DOWN);
  PressKey(VK_DOWN);
  Pump();
  EXPECT_EQ(Log().Of({EV_CHANGE}), "EV_CHANGE 102 0\nEV_CHANGE 102 0\n");
}

TEST_F(CommandTest, AComboBoxThatTheProgramChangesIsSilent) {
  const HWND window = LoadLists();
  SendDlgItemMessageA(window, 102, CB_SETCURSEL, 2, 0);
  SendDlgItemMessageA(window, 101, LB_SETCURSEL, 2, 0);
  EXPECT_TRUE(Heard(NoEvents{}));
}

// Typing into a combo box's field is no choice of an item.
TEST_F(CommandTest, AComboBoxesFieldIsSilent) {
  const HWND window = LoadLists();
  SetFocus(GetDlgItem(window, 103));
  PressKey('X');
  Pump();
  char text[10];
  GetDlgItemTextA(window, 103, text, sizeof text);
  EXPECT_STREQ(text, "x");
  EXPECT_TRUE(Heard(NoEvents{}));
}

TEST_F(CommandTest, ASimpleComboBoxIsHeardAtADoubleClickInItsList) {
  const HWND window = LoadLists();
  const HWND list = GetDlgItem(GetDlgItem(window, 104), 1000);
  ASSERT_TRUE(IsWindow(list));
  MovePointer(list, 5, 3);
  for (int i = 0; i < 2; ++i) {
    LeftDown();
    LeftUp();
  }
  Pump();
  EXPECT_EQ(Log().Of({EV_CHANGE, EV_DBLCLICK}), "EV_CHANGE 104 0\nEV_DBLCLICK 104 0\n");
}

// ---- Others ----

TEST_F(CommandTest, ControlsOfOtherClassesAreSilent) {
  const HWND window = LoadShown("Main",
                                "  LTEXT \"A\", 101, 1, 1, 10, 10\n"
                                "  SCROLLBAR 102, 10, 30, 50, 14");
  const TestClass shape("SHAPE.1.3.2207");
  const TestClass buttons("BUTTONS");
  const HWND shapeControl = shape.MakeChild(window, 200);
  const HWND otherControl = buttons.MakeChild(window, 201);
  for (const int id : {101, 102, 200, 201}) {
    SetFocus(GetDlgItem(window, id));
    for (int code = 0; code < 12; ++code) Notify(window, id, code);
    Notify(window, id, EN_CHANGE);
  }
  EXPECT_TRUE(Heard(NoEvents{}));
  DestroyWindow(shapeControl);
  DestroyWindow(otherControl);
}

TEST_F(CommandTest, AHandleThatIsNoWindowIsSilent) {
  const HWND window = LoadShown("Main", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14");
  for (const LPARAM handle : {LPARAM{0x5A5A5A5A}, LPARAM{-1}, LPARAM{1}}) {
    EXPECT_EQ(SendMessageA(window, WM_COMMAND, 101, handle), 0);
  }
  EXPECT_TRUE(Heard(NoEvents{}));
}

}  // namespace
}  // namespace brelt::test
