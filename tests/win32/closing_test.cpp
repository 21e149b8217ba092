// The end of a window: asking the program, the close step, and what the window frees.
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/handles.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

constexpr const char* kOneButton = "  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14";

class CloseTest : public FormTest {};

TEST_F(CloseTest, AWindowWithoutAnEventFunctionWorksAndClosesNormally) {
  const HWND window =
      LoadText("Main", std::string("Main DIALOG 10, 10, 200, 150\nBEGIN\n") + kOneButton + "\nEND\n", nullptr)
          .window;
  ASSERT_TRUE(IsWindow(window));
  EXPECT_EQ(GetFuncptr("Main", 0), nullptr);
  Script script;
  script.Do([&] { ClickControl(GetDlgItem(window, 101)); })
      .Do([] { PressKey(VK_F2); })
      .Do([] { PressKey(VK_CANCEL, {VK_CONTROL}); })
      .Do([&] {
        SetUserBreak(0);
        EXPECT_EQ(SendMessageA(window, EV_KEYPRESS, 1, 2), 0);
        EXPECT_EQ(SendMessageA(window, EV_MOUSEDOWN, 1, 2), 0);
        SendMessageA(window, WM_CLOSE, 0, 0);
      });
  EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr), 0);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

TEST_F(CloseTest, AResultOtherThanZeroKeepsTheWindowOpen) {
  const HWND window = LoadShown("Main", kOneButton);
  for (const int32_t answer : {1, -1, 0x10000, 0}) {
    SCOPED_TRACE(answer);
    Log().Clear();
    Log().onEvent = [&](HWND, const Event& event) { return event.event == EV_CLOSE ? answer : 0; };
    EXPECT_EQ(SendMessageA(window, WM_CLOSE, 0, 0), 0);
    EXPECT_EQ(IsWindow(window) != FALSE, answer != 0);
    EXPECT_TRUE(Heard({{EV_CLOSE, 0, 0}}));
  }
}

TEST_F(CloseTest, TheCloseBoxAsksTheProgram) {
  const HWND window = LoadShown("Main", kOneButton);
  PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  Pump();
  EXPECT_FALSE(IsWindow(window));
  EXPECT_TRUE(Heard({{EV_CLOSE, 0, 0}}));
}

TEST_F(CloseTest, AFunctionCanDestroyItsWindowItself) {
  for (const int32_t answer : {0, 1}) {
    const HWND window = LoadShown("Main", kOneButton);
    Log().onEvent = [&](HWND source, const Event& event) {
      if (event.event == EV_CLOSE) DestroyWindow(source);
      return answer;
    };
    EXPECT_EQ(SendMessageA(window, WM_CLOSE, 0, 0), 0);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(Log().Count(EV_CLOSE), 1);
  }
}

// A function that answers EV_CLOSE by unloading would ask itself for ever; with one level it is fine.
TEST_F(CloseTest, AFunctionCanUnloadItsWindowWhileItIsAsked) {
  const HWND window = LoadShown("Main", kOneButton);
  int depth = 0;
  Log().onEvent = [&](HWND, const Event& event) {
    if (event.event == EV_CLOSE && ++depth == 1) Unload("Main");
    return 0;
  };
  SendMessageA(window, WM_CLOSE, 0, 0);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(depth, 2);
}

// ---- A window that goes inside one of its events ----

// How a program can be made to hear each event, and what goes on with the window gone.
struct EventWay {
  const char* name;
  uint32_t event;
  std::function<void(HWND window)> raise;
};

std::vector<EventWay> EventWays() {
  const auto send = [](UINT message, WPARAM wParam, LPARAM lParam) {
    return [=](HWND window) { SendMessageA(window, message, wParam, lParam); };
  };
  const auto command = [](int id, WORD code) {
    return [=](HWND window) {
      SetFocus(GetDlgItem(window, id));
      SendMessageA(window, WM_COMMAND, MAKEWPARAM(id, code),
                   reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
    };
  };
  return {
      {"EV_CUSTOM", EV_CUSTOM, send(EV_CUSTOM, 1, 2)},
      {"EV_ACTIVATE", EV_ACTIVATE,
       [](HWND window) {
         SetActiveWindow(window);
         SendMessageA(window, EV_ACTIVATE, 0, 0);
       }},
      {"EV_CHANGE of a field", EV_CHANGE, command(102, EN_CHANGE)},
      {"EV_CHANGE of a list", EV_CHANGE, command(103, LBN_SELCHANGE)},
      {"EV_CHANGE of a combo box", EV_CHANGE, command(104, CBN_SELCHANGE)},
      {"EV_CHANGE of a scroll bar", EV_CHANGE,
       [](HWND window) {
         SendMessageA(window, WM_HSCROLL, SB_ENDSCROLL, reinterpret_cast<LPARAM>(GetDlgItem(window, 105)));
       }},
      {"EV_MOUSEDOWN", EV_MOUSEDOWN, send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELONG(3, 3))},
      {"EV_RIGHTDOWN", EV_RIGHTDOWN, send(WM_RBUTTONDOWN, MK_RBUTTON, MAKELONG(3, 3))},
      {"EV_CLICK of a button", EV_CLICK,
       [](HWND window) { SendDlgItemMessageA(window, 101, BM_CLICK, 0, 0); }},
      {"EV_CLICK of a menu item", EV_CLICK, send(WM_COMMAND, 200, 0)},
      {"EV_CLICK of a text", EV_CLICK,
       [](HWND window) {
         for (const char c : {'b', '\0'}) PostMessageA(window, XM_COMMANDCHAR, 7, c);
         SendMessageA(window, XM_COMMANDCHAR, 7, 'a');
       }},
      {"EV_DBLCLICK of the window", EV_DBLCLICK, send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELONG(3, 3))},
      {"EV_DBLCLICK of a list", EV_DBLCLICK, command(103, LBN_DBLCLK)},
      {"EV_KEYPRESS", EV_KEYPRESS, send(EV_KEYPRESS, 0, VK_F2)},
      {"EV_RESIZE by a size", EV_RESIZE,
       [](HWND window) { SetWindowPos(window, nullptr, 0, 0, 300, 300, SWP_NOMOVE | SWP_NOZORDER); }},
      {"EV_RESIZE by a move", EV_RESIZE,
       [](HWND window) { SetWindowPos(window, nullptr, 7, 9, 0, 0, SWP_NOSIZE | SWP_NOZORDER); }},
      {"EV_TIMER", EV_TIMER, send(WM_TIMER, 3, 0)},
      {"EV_CLOSE", EV_CLOSE, send(WM_CLOSE, 0, 0)},
  };
}

constexpr const char* kControls =
    "  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14\n"
    "  EDITTEXT 102, 10, 30, 50, 14\n"
    "  LISTBOX 103, 10, 50, 50, 30, LBS_NOTIFY | WS_TABSTOP\n"
    "  COMBOBOX 104, 10, 80, 50, 50, CBS_DROPDOWNLIST | WS_TABSTOP\n"
    "  SCROLLBAR 105, 10, 100, 50, 10";
constexpr const char* kSizable = "STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME\n";

TEST_F(CloseTest, AFunctionCanDestroyItsWindowInsideAnyEvent) {
  for (const bool unloads : {false, true}) {
    for (const EventWay& way : EventWays()) {
      SCOPED_TRACE(std::string(way.name) + (unloads ? ", unloads" : ", destroys"));
      const HWND window = LoadShown("Main", kControls, kSizable);
      MoveWindow(window, 20, 20, 260, 260, FALSE);
      Pump();
      Log().Clear();
      int heard = 0;
      bool closing = false;
      Log().onEvent = [&](HWND source, const Event& event) {
        if (event.event != way.event || closing) return 0;
        ++heard;
        closing = true;
        unloads ? Unload("Main") : DestroyWindow(source);
        return 0;
      };
      way.raise(window);
      Pump();
      EXPECT_EQ(heard, 1);
      EXPECT_FALSE(IsWindow(window));
      Log().onEvent = nullptr;
      if (IsWindow(window)) DestroyWindow(window);
    }
  }
}

TEST_F(CloseTest, AFunctionCanUnloadItsWindowWhileItLoads) {
  Log().onEvent = [](HWND, const Event& event) {
    if (event.event == EV_LOAD) Unload("Main");
    return 0;
  };
  const LoadResult form = LoadDialog("Main", kOneButton);
  EXPECT_EQ(form.code, RTX_OK);
  EXPECT_FALSE(IsWindow(form.window));
  EXPECT_TRUE(Heard({{EV_LOAD, 0, 0}, {EV_CLOSE, 0, 0}}));
}

// The same by real input, through the main loop's own way.
TEST_F(CloseTest, AFunctionCanDestroyItsWindowInsideAnEventOfRealInput) {
  const struct {
    uint32_t event;
    std::function<void(HWND)> input;
  } kInputs[] = {
      {EV_CLICK, [](HWND window) { ClickControl(GetDlgItem(window, 101)); }},
      {EV_CLICK,
       [](HWND window) {
         SetFocus(GetDlgItem(window, 101));
         PressKey(VK_SPACE);
       }},
      {EV_CHANGE,
       [](HWND window) {
         SetFocus(GetDlgItem(window, 102));
         PressKey('A');
       }},
      {EV_CHANGE,
       [](HWND window) {
         SendDlgItemMessageA(window, 103, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
         MovePointer(GetDlgItem(window, 103), 5, 5);
         LeftDown();
         LeftUp();
       }},
      {EV_DBLCLICK,
       [](HWND window) {
         SendDlgItemMessageA(window, 103, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
         MovePointer(GetDlgItem(window, 103), 5, 5);
         for (int i = 0; i < 2; ++i) {
           LeftDown();
           LeftUp();
         }
       }},
      {EV_MOUSEDOWN, [](HWND window) { ClickControl(GetDlgItem(window, 101)); }},
      {EV_MOUSEDOWN,
       [](HWND window) {
         MovePointer(window, 2, 2);
         LeftDown();
         LeftUp();
       }},
      {EV_RIGHTDOWN,
       [](HWND window) {
         MovePointer(window, 2, 2);
         RightDown();
         RightUp();
       }},
      {EV_KEYPRESS, [](HWND) { PressKey(VK_F2); }},
      {EV_KEYPRESS, [](HWND) { PressKey('Q', {VK_CONTROL}); }},
      {EV_KEYPRESS, [](HWND) { PressKey(VK_ESCAPE); }},
      {EV_CHANGE,
       [](HWND window) {
         MovePointer(GetDlgItem(window, 105), 3, 3);
         LeftDown();
         LeftUp();
       }},
      {EV_CLOSE, [](HWND) { PressKey(VK_F4, {VK_MENU}); }},
  };
  int number = 0;
  for (const auto& row : kInputs) {
    SCOPED_TRACE("input " + std::to_string(++number));
    const HWND window = LoadDialog("Main", kControls, kSizable).window;
    int heard = 0;
    Log().onEvent = [&](HWND source, const Event& event) {
      if (event.event != row.event || source != window) return 0;
      ++heard;
      DestroyWindow(window);
      return 0;
    };
    Script script;
    script.Do([&] { row.input(window); });
    EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr), 0);
    EXPECT_EQ(heard, 1);
    Log().onEvent = nullptr;
    Pump();
    for (const WORD key : {WORD{VK_MENU}, WORD{VK_CONTROL}}) KeyUp(key);
    Pump();
  }
}

// ---- The close step ----

TEST_F(CloseTest, ClosingTakesTheTooltipWindowAway) {
  const HWND window = LoadShown("Main", kOneButton);
  const HWND other = LoadShown("Other", kOneButton);
  // Any window of that class and title stands for it.
  const TestClass tooltips("TOOLTIPS.1.3.2207");
  const TestWindow standIn(tooltips.name(), "Tooltip_window");
  const HWND tooltip = standIn.get();
  ASSERT_TRUE(IsWindow(tooltip));
  Log().onEvent = [](HWND, const Event& event) { return event.event == EV_CLOSE ? 1 : 0; };
  Unload("Other");
  EXPECT_TRUE(IsWindow(tooltip)) << "A refused close doesn't";
  Log().onEvent = nullptr;
  Unload("Other");
  EXPECT_FALSE(IsWindow(tooltip));
  EXPECT_FALSE(IsWindow(other));
  EXPECT_TRUE(IsWindow(window));
}

// ---- What a window frees ----

HFONT FontInRecord(HWND window, RecordWord word) {
  return reinterpret_cast<HFONT>(RecordWordOf(window, word));
}

TEST_F(CloseTest, AWindowFreesWhatItOwns) {
  const HWND window = LoadText("Main",
                               "MainMenu MENU\nBEGIN\n  MENUITEM \"&Go\\tF5\", 201\nEND\n"
                               "Main DIALOG 10, 10, 200, 150\nMENU MainMenu\nBEGIN\n  PUSHBUTTON \"Go\", "
                               "101, 10, 10, 50, 14\nEND\n")
                          .window;
  ASSERT_TRUE(IsWindow(window));
  const HFONT font = FontInRecord(window, kWordFont);
  const HFONT drawFont = FontInRecord(window, kWordDrawFont);
  const HBITMAP canvas = CreateBitmap(8, 8, 1, 1, nullptr);
  WriteSlot(window, kSlotCanvas, reinterpret_cast<LONG>(canvas));
  SendMessageA(window, XM_SETARRAYVALUE, reinterpret_cast<WPARAM>("key"), reinterpret_cast<LPARAM>("value"));
  ASSERT_EQ(GetObjectType(font), static_cast<DWORD>(OBJ_FONT));
  ASSERT_EQ(GetObjectType(drawFont), static_cast<DWORD>(OBJ_FONT));
  ASSERT_NE(font, drawFont);
  ASSERT_NE(ReadSlot(window, kSlotRecord), 0);
  ASSERT_NE(ReadSlot(window, kSlotArrayValues), 0);
  ASSERT_NE(ReadSlot(window, kSlotAccelTable), 0);
  const int blocks = CountHandles().memoryBlocks;
  // What the platform sends as the last message of all.
  SendMessageA(window, WM_NCDESTROY, 0, 0);
  EXPECT_EQ(ReadSlot(window, kSlotRecord), 0);
  EXPECT_EQ(ReadSlot(window, kSlotArrayValues), 0);
  EXPECT_EQ(ReadSlot(window, kSlotCanvas), 0);
  EXPECT_EQ(ReadSlot(window, kSlotAccelTable), 0);
  EXPECT_EQ(GetObjectType(font), 0u);
  EXPECT_EQ(GetObjectType(drawFont), 0u);
  EXPECT_EQ(GetObjectType(canvas), 0u);
  EXPECT_LE(CountHandles().memoryBlocks, blocks - 3);
  // All handlers do without a record.
  SendMessageA(window, WM_NCDESTROY, 0, 0);
  SendMessageA(window, WM_SIZE, 0, 0);
  EXPECT_EQ(SendMessageA(window, WM_GETFONT, 0, 0), 0);
  EXPECT_EQ(SendMessageA(window, DM_GETDEFID, 0, 0), 0);
  EXPECT_EQ(SendMessageA(window, WM_SETFONT, 0, 0), 0);
  EXPECT_EQ(SendMessageA(window, XM_GETDRAWFONT, 0, 0), 0);
  EXPECT_EQ(SendMessageA(window, XM_SETDRAWFONT, 0, 0), 0);
  EXPECT_EQ(SendMessageA(window, XM_GETMAXLENGTH, reinterpret_cast<WPARAM>(GetDlgItem(window, 101)), 0), 0);
  EXPECT_EQ(SendMessageA(window, XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(GetDlgItem(window, 101)), 5), 0);
  MINMAXINFO limits = {};
  EXPECT_EQ(SendMessageA(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits)), 0);
  EXPECT_EQ(GetHandle("Main", 0, nullptr), nullptr) << "Without a record it has no name";
  DestroyWindow(window);
}

TEST_F(CloseTest, EventsEndBeforeTheRecordGoes) {
  const HWND window = LoadShown("Main", kOneButton);
  DestroyWindow(window);
  Pump();
  EXPECT_TRUE(Heard(std::vector<Event>{})) << "A destroyed window isn't asked and says nothing";
}

// A posted event may find its window gone; the platform then drops it.
TEST_F(CloseTest, APostedEventOfAWindowThatIsGoneIsDropped) {
  const HWND window = LoadShown("Main", kOneButton);
  PostMessageA(window, EV_CUSTOM, 1, 2);
  PostMessageA(window, EV_MOUSEDOWN, 1, 2);
  DestroyWindow(window);
  Pump();
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

}  // namespace
}  // namespace brelt::test
