// Show, Hide, Unload, IsModal and DoEvents: their codes and what they leave alone.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/redraws.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"
#include "tests/win32/support/trace.h"

namespace brelt::test {
namespace {

constexpr const char* kOneButton = "  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14";
constexpr const char* kForm =
    " DIALOG 10, 10, 200, 150\nSTYLE WS_POPUP | WS_CAPTION\nBEGIN\n"
    "  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14\nEND\n";

HMODULE Instance() { return GetModuleHandleA(nullptr); }
HWND AnyWindow() { return reinterpret_cast<HWND>(0x5A5A5A5A); }

class ShowTest : public FormTest {};

// ---- Show ----

TEST_F(ShowTest, LoadsAWindowThatDoesNotExist) {
  const std::string path = WriteTestFile("Main.rc", std::string("Main") + kForm);
  TraceLog trace;
  HWND window = AnyWindow();
  int32_t result = 77;
  EXPECT_EQ(Show(Instance(), "Main", path.c_str(), RecordEvent, &window, 0, &result), RTX_OK);
  EXPECT_EQ(trace.Text(), "Show\n") << "The load within doesn't trace";
  ASSERT_TRUE(IsWindow(window));
  EXPECT_EQ(window, GetHandle("Main", 0, nullptr));
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE)) << "It is painted at once";
  EXPECT_EQ(result, 0);
  Pump();
  EXPECT_TRUE(Heard({{EV_LOAD, 0, 0}, {EV_ACTIVATE, 0, 0}}));
}

TEST_F(ShowTest, LoadsAndShowsModally) {
  const std::string path = WriteTestFile("Main.rc", std::string("Main") + kForm);
  HWND window = AnyWindow();
  int32_t result = 77;
  HWND shown = nullptr;
  Script script;
  script.Do([&] {
    shown = GetHandle("Main", 0, nullptr);
    EXPECT_EQ(window, shown) << "The output is there during the show";
    Unload("Main");
  });
  EXPECT_EQ(Show(Instance(), "Main", path.c_str(), RecordEvent, &window, 1, &result), RTX_OK);
  EXPECT_EQ(window, shown);
  EXPECT_EQ(result, 0);
}

TEST_F(ShowTest, LeavesTheOutputAloneForAWindowThatExists) {
  const HWND main = LoadDialog("Main", kOneButton).window;
  HWND window = AnyWindow();
  EXPECT_EQ(Show(Instance(), "MAIN", "other.rc", nullptr, &window, 0, nullptr), RTX_OK);
  EXPECT_EQ(window, AnyWindow());
  EXPECT_TRUE(IsWindowVisible(main));
  EXPECT_EQ(GetFuncptr("Main", 0), RecordEvent) << "Nor does it change the event function";
}

TEST_F(ShowTest, GivesTheCodeOfAFailedLoad) {
  const std::string path = WriteTestFile("Main.rc", std::string("Main") + kForm);
  const std::string bad = WriteTestFile("Bad.rc", "Bad DIALOG 1, 2, 3, 4\nBEGIN\n  WHAT\nEND\n");
  const struct {
    const char* name;
    const char* file;
    int32_t code;
  } kCases[] = {{nullptr, path.c_str(), RTX_NO_DIALOG},
                {"", path.c_str(), RTX_NO_DIALOG},
                {"Absent", path.c_str(), RTX_NO_DIALOG},
                {"Main", nullptr, RTX_RESOURCE_FILE},
                {"Main", "C:\\work\\absent.rc", RTX_RESOURCE_FILE},
                {"Bad", bad.c_str(), RTX_DIALOG_SYNTAX}};
  for (const int32_t modal : {0, 1}) {
    for (const auto& row : kCases) {
      SCOPED_TRACE(std::string(row.name != nullptr ? row.name : "null") + (modal != 0 ? " modal" : ""));
      HWND window = AnyWindow();
      int32_t result = 77;
      EXPECT_EQ(Show(Instance(), row.name, row.file, RecordEvent, &window, modal, &result), row.code);
      EXPECT_EQ(window, AnyWindow());
      EXPECT_EQ(result, 0);
      EXPECT_TRUE(LibraryWindows().empty());
    }
  }
}

TEST_F(ShowTest, GivesNoWindowWhenTheWindowIsGoneAfterItsLoad) {
  const std::string path = WriteTestFile("Main.rc", std::string("Main") + kForm);
  Log().onEvent = [](HWND window, const Event& event) {
    if (event.event == EV_LOAD) DestroyWindow(window);
    return 0;
  };
  for (const int32_t modal : {0, 1}) {
    HWND window = nullptr;
    int32_t result = 77;
    EXPECT_EQ(Show(Instance(), "Main", path.c_str(), RecordEvent, &window, modal, &result), RTX_NO_WINDOW);
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(LibraryWindows().empty());
  }
}

TEST_F(ShowTest, NeedsAnInstanceAndAFileNameAndAnEnabledWindow) {
  const HWND main = LoadDialog("Main", kOneButton).window;
  const struct {
    const char* what;
    HMODULE instance;
    const char* file;
    bool enabled;
  } kCases[] = {{"no instance", nullptr, "a.rc", true},
                {"no file name", Instance(), nullptr, true},
                {"disabled", Instance(), "a.rc", false}};
  for (const int32_t modal : {0, 1, -1}) {
    for (const auto& row : kCases) {
      SCOPED_TRACE(row.what);
      EnableWindow(main, row.enabled);
      int32_t result = 77;
      EXPECT_EQ(Show(row.instance, "Main", row.file, RecordEvent, nullptr, modal, &result),
                modal != 0 ? RTX_SHOW_MODAL : RTX_SHOW_MODELESS);
      EXPECT_EQ(result, 0);
      EXPECT_FALSE(IsWindowVisible(main));
      EXPECT_FALSE(HasFlag(main, kFlagModal));
    }
  }
}

TEST_F(ShowTest, IsHarmlessWithoutOutputs) {
  const HWND main = LoadDialog("Main", kOneButton).window;
  EXPECT_EQ(Show(Instance(), "Main", "a.rc", nullptr, nullptr, 0, nullptr), RTX_OK);
  EXPECT_TRUE(IsWindowVisible(main));
  EXPECT_EQ(Show(nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr), RTX_NO_DIALOG);
}

TEST_F(ShowTest, ModalOfAVisibleWindowIsRefusedAndLeavesItAsItIs) {
  const HWND main = LoadShown("Main", kOneButton);
  const HWND other = LoadShown("Other", kOneButton);
  int32_t result = 77;
  EXPECT_EQ(ShowForm("Main", true, &result), RTX_SHOW_MODAL);
  EXPECT_EQ(result, 0);
  EXPECT_TRUE(IsWindowVisible(main));
  EXPECT_TRUE(IsWindowEnabled(other));
  EXPECT_EQ(GetActiveWindow(), other);
  EXPECT_FALSE(HasFlag(main, kFlagModal));
}

TEST_F(ShowTest, ModalOfAModalWindowIsRefused) {
  const HWND box = LoadDialog("Box", kOneButton).window;
  Script script;
  script.Do([&] {
    int32_t result = 77;
    EXPECT_EQ(ShowForm("Box", true, &result), RTX_SHOW_MODAL);
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(HasFlag(box, kFlagModal));
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

TEST_F(ShowTest, ModelessIsRefusedWhileAModalWindowIsActive) {
  LoadDialog("Box", kOneButton);
  const HWND other = LoadDialog("Other", kOneButton).window;
  HWND later = nullptr;
  Script script;
  script.Do([&] {
    // The others are disabled, which is a reason of its own; one loaded since is not.
    EXPECT_EQ(ShowForm("Other"), RTX_SHOW_MODELESS);
    later = LoadDialog("Later", kOneButton).window;
    int32_t result = 77;
    EXPECT_EQ(ShowForm("Later", false, &result), RTX_SHOW_MODELESS);
    EXPECT_EQ(result, 0);
    EXPECT_FALSE(IsWindowVisible(later));
    EXPECT_FALSE(IsWindowVisible(other));
    EXPECT_EQ(ShowForm("Box"), RTX_SHOW_MODELESS) << "Nor can the modal window itself";
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
  EXPECT_EQ(ShowForm("Later"), RTX_OK);
  EXPECT_TRUE(IsWindowVisible(later));
}

TEST_F(ShowTest, ModelessIsAllowedWhileTheModalWindowIsOfAnotherInstance) {
  const std::string path = WriteTestFile("Box.rc", std::string("Box") + kForm);
  // The second instance is that of a system module: no custom controls are sought in its folder here.
  HMODULE second = GetModuleHandleA("user32.dll");
  const HWND later = LoadDialog("Later", kOneButton).window;
  Script script;
  script.Do([&] {
    EnableWindow(later, TRUE);
    EXPECT_EQ(ShowForm("Later"), RTX_OK);
    EXPECT_TRUE(IsWindowVisible(later));
    Unload("Box");
  });
  EXPECT_EQ(Show(second, "Box", path.c_str(), RecordEvent, nullptr, 1, nullptr), RTX_OK);
}

TEST_F(ShowTest, ModelessIsAllowedWhileTheModalWindowIsNotTheActiveOne) {
  LoadDialog("Box", kOneButton);
  Script script;
  script.Do([&] {
    const HWND first = LoadDialog("First", kOneButton).window;
    LoadDialog("Later", kOneButton);
    ShowWindow(first, SW_SHOW);
    EXPECT_EQ(GetActiveWindow(), first);
    EXPECT_EQ(ShowForm("Later"), RTX_OK);
    Unload("Box");
  });
  EXPECT_EQ(ShowForm("Box", true), RTX_OK);
}

std::vector<UINT> positionFlags;
WNDPROC realProcedure = nullptr;

LRESULT CALLBACK WatchPosition(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_WINDOWPOSCHANGING) {
    const auto* position = reinterpret_cast<const WINDOWPOS*>(lParam);
    if ((position->flags & SWP_SHOWWINDOW) != 0) {
      positionFlags.push_back(position->flags & (SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE));
    }
  }
  return CallWindowProcA(realProcedure, window, message, wParam, lParam);
}

TEST_F(ShowTest, BringsAVisibleWindowToTheTopAndMakesItActive) {
  const HWND main = LoadShown("Main", kOneButton);
  const HWND other = LoadShown("Other", kOneButton);
  ASSERT_EQ(GetActiveWindow(), other);
  RECT before = {};
  GetWindowRect(main, &before);
  positionFlags.clear();
  realProcedure =
      reinterpret_cast<WNDPROC>(SetWindowLongA(main, GWL_WNDPROC, reinterpret_cast<LONG>(WatchPosition)));
  EXPECT_EQ(ShowForm("Main"), RTX_OK);
  EXPECT_EQ(positionFlags, (std::vector<UINT>{SWP_NOSIZE | SWP_NOMOVE}));
  EXPECT_EQ(GetActiveWindow(), main);
  for (HWND above = GetWindow(main, GW_HWNDPREV); above != nullptr; above = GetWindow(above, GW_HWNDPREV)) {
    EXPECT_NE(above, other);
  }
  RECT after = {};
  GetWindowRect(main, &after);
  EXPECT_TRUE(EqualRect(&before, &after));
}

// ---- Hide ----

TEST_F(ShowTest, HideRepaintsWhatLayBelowAtOnce) {
  const HWND main = LoadShown("Main", kOneButton);
  RECT place = {};
  GetWindowRect(main, &place);
  const RedrawSpy redraws;
  TraceLog trace;
  Hide("mAIN");
  EXPECT_EQ(trace.Text(), "Hide\n");
  EXPECT_TRUE(IsWindow(main));
  EXPECT_FALSE(IsWindowVisible(main));
  EXPECT_EQ(redraws.lines(), RedrawLine(nullptr, &place, 1413));
}

TEST_F(ShowTest, HideOfAnUnknownWindowDoesNothing) {
  const HWND main = LoadShown("Main", kOneButton);
  const RedrawSpy redraws;
  TraceLog trace;
  Hide("Absent");
  Hide(nullptr);
  Hide("");
  EXPECT_EQ(trace.Text(), "Hide\nHide\nHide\n");
  EXPECT_EQ(redraws.lines(), "");
  EXPECT_TRUE(IsWindowVisible(main));
}

TEST_F(ShowTest, AHiddenWindowCanBeShownAgain) {
  const HWND main = LoadShown("Main", kOneButton);
  Hide("Main");
  EXPECT_EQ(ShowForm("Main"), RTX_OK);
  EXPECT_TRUE(IsWindowVisible(main));
  EXPECT_EQ(GetActiveWindow(), main);
}

// ---- Unload ----

TEST_F(ShowTest, UnloadAsksTheProgramAndDestroysTheWindow) {
  const HWND main = LoadShown("Main", kOneButton);
  TraceLog trace;
  Unload("MAIN");
  EXPECT_EQ(trace.Text(), "Unload\n");
  EXPECT_FALSE(IsWindow(main));
  EXPECT_TRUE(Heard({{EV_CLOSE, 0, 0}}));
}

TEST_F(ShowTest, UnloadCanBeRefused) {
  const HWND main = LoadShown("Main", kOneButton);
  for (const int32_t answer : {1, -1, 77}) {
    Log().onEvent = [&](HWND, const Event& event) { return event.event == EV_CLOSE ? answer : 0; };
    Unload("Main");
    EXPECT_TRUE(IsWindow(main));
  }
  EXPECT_TRUE(IsWindowVisible(main));
}

TEST_F(ShowTest, UnloadOfAnUnknownWindowDoesNothing) {
  const HWND main = LoadShown("Main", kOneButton);
  Unload("Absent");
  Unload(nullptr);
  Unload("");
  EXPECT_TRUE(IsWindow(main));
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

// ---- IsModal ----

TEST_F(ShowTest, IsModalIsFalseForAnUnknownName) {
  TraceLog trace;
  uint8_t modal = 0xAA;
  EXPECT_EQ(IsModal("Absent", &modal), RTX_OK);
  EXPECT_EQ(modal, 0);
  modal = 0xAA;
  EXPECT_EQ(IsModal("", &modal), RTX_OK);
  EXPECT_EQ(modal, 0);
  EXPECT_EQ(trace.Text(), "IsModal\nIsModal\n");
}

TEST_F(ShowTest, IsModalChecksTheNameAheadOfTheOutput) {
  uint8_t modal = 0xAA;
  EXPECT_EQ(IsModal(nullptr, &modal), RTX_NULL_ARG);
  EXPECT_EQ(modal, 0);
  EXPECT_EQ(IsModal(nullptr, nullptr), RTX_NULL_ARG);
  EXPECT_EQ(IsModal("Absent", nullptr), RTX_NULL_BOOL);
  LoadDialog("Main", kOneButton);
  EXPECT_EQ(IsModal("Main", nullptr), RTX_NULL_BOOL);
}

TEST_F(ShowTest, IsModalNeedsAVisibleWindowWithTheMark) {
  const HWND main = LoadShown("Main", kOneButton);
  uint8_t modal = 0xAA;
  EXPECT_EQ(IsModal("Main", &modal), RTX_OK);
  EXPECT_EQ(modal, 0);
  WriteSlot(main, kSlotFlags, ReadSlot(main, kSlotFlags) | kFlagModal);
  EXPECT_EQ(IsModal("Main", &modal), RTX_OK);
  EXPECT_EQ(modal, 1);
  ShowWindow(main, SW_HIDE);
  EXPECT_EQ(IsModal("Main", &modal), RTX_OK);
  EXPECT_EQ(modal, 0);
}

// ---- DoEvents ----

constexpr const char* kTwoButtons =
    "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
    "  PUSHBUTTON \"B\", 102, 10, 30, 50, 14";

TEST_F(ShowTest, DoEventsHandlesAllMessagesThatWait) {
  const HWND main = LoadShown("Main", kTwoButtons);
  for (uint32_t i = 1; i <= 5; ++i) PostMessageA(main, EV_CUSTOM, i, -static_cast<int32_t>(i));
  TraceLog trace;
  EXPECT_EQ(DoEvents(), 0);
  EXPECT_EQ(trace.Text(), "DoEvents\n");
  EXPECT_TRUE(Heard(
      {{EV_CUSTOM, 1, -1}, {EV_CUSTOM, 2, -2}, {EV_CUSTOM, 3, -3}, {EV_CUSTOM, 4, -4}, {EV_CUSTOM, 5, -5}}));
  EXPECT_EQ(DoEvents(), 0);
  EXPECT_EQ(Log().events.size(), 5u);
}

TEST_F(ShowTest, DoEventsHasNoKeyPreviewNoMenuKeysAndNoDialogKeys) {
  const std::string menu =
      "MainMenu MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"Go\\tCtrl+G\", 201\n  END\nEND\n";
  const HWND main =
      LoadText("Main", menu + "Main DIALOG 10, 10, 200, 150\nSTYLE WS_CAPTION\nMENU MainMenu\nBEGIN\n" +
                           kTwoButtons + "\nEND\n")
          .window;
  ShowForm("Main");
  Pump();
  Log().Clear();
  ASSERT_EQ(GetFocus(), GetDlgItem(main, 101));
  PressKey(VK_F2);
  PressKey(VK_ESCAPE);
  PressKey('G', {VK_CONTROL});
  PressKey(VK_CANCEL, {VK_CONTROL});
  PressKey(VK_TAB);
  EXPECT_EQ(DoEvents(), 0);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  EXPECT_EQ(GetFocus(), GetDlgItem(main, 101));
  EXPECT_EQ(GetUserBreak(), 0);
}

TEST_F(ShowTest, DoEventsTranslatesKeysToCharacters) {
  const HWND main = LoadShown("Main", "  EDITTEXT 101, 10, 10, 50, 14");
  PressKey('A');
  PressKey('B', {VK_SHIFT});
  DoEvents();
  char text[10];
  GetDlgItemTextA(main, 101, text, sizeof text);
  EXPECT_STREQ(text, "aB");
}

// A loop around it doesn't see the end that was asked for: a program that wants to end unloads its windows.
TEST_F(ShowTest, DoEventsUsesAQuitMessageUp) {
  LoadShown("Main", kTwoButtons);
  PostQuitMessage(5);
  EXPECT_EQ(DoEvents(), 0);
  MSG message = {};
  EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(ShowTest, DoEventsWorksInsideAnEvent) {
  const HWND main = LoadShown("Main", kTwoButtons);
  Log().onEvent = [&](HWND, const Event& event) {
    if (event.event == EV_CUSTOM && event.wParam == 1) {
      PostMessageA(main, EV_CUSTOM, 2, 0);
      DoEvents();
      EXPECT_EQ(Log().events.size(), 2u) << "The second event came while the first was running";
    }
    return 0;
  };
  PostMessageA(main, EV_CUSTOM, 1, 0);
  DoEvents();
  EXPECT_TRUE(Heard({{EV_CUSTOM, 1, 0}, {EV_CUSTOM, 2, 0}}));
}

}  // namespace
}  // namespace brelt::test
