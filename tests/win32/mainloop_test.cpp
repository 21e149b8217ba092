// The main loop: what it shows, what keeps it alive, what ends it.
#include <optional>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/trace.h"

namespace brelt::test {
namespace {

constexpr const char* kButton = "  PUSHBUTTON \"Go\", 101, 10, 10, 50, 14";
constexpr const char* kTraceOfALoop =
    "MainLoop\nMainLoop:Calling main message loop\nMainLoop:Ending main message loop\n";

class MainLoopTest : public FormTest {
 protected:
  static int32_t RunMainLoop(HWND mainWindow, HWND extraWindow = nullptr, EventFunction start = nullptr) {
    return MainLoop(GetModuleHandleA(nullptr), mainWindow, extraWindow, start);
  }
};

std::vector<Event> started;
std::function<void()> onStart;

int32_t __stdcall Start(HWND window, uint32_t event, uint32_t wParam, int32_t lParam) {
  EXPECT_EQ(window, nullptr);
  started.push_back({event, wParam, lParam});
  if (onStart) onStart();
  return 0;
}

TEST_F(MainLoopTest, WithNoWindowsAndNoStartFunctionReturnsAtOnce) {
  TraceLog trace;
  EXPECT_EQ(RunMainLoop(nullptr), 0);
  EXPECT_EQ(trace.Text(), kTraceOfALoop);
}

TEST_F(MainLoopTest, TracesItsBeginningAndItsEnd) {
  const HWND window = LoadDialog("Main", kButton).window;
  TraceLog trace;
  Script script;
  script.Do([&] { EXPECT_EQ(trace.Text(), "MainLoop\nMainLoop:Calling main message loop\n"); }).DestroyAll();
  EXPECT_EQ(RunMainLoop(window), 0);
  EXPECT_EQ(trace.Text(), kTraceOfALoop);
}

TEST_F(MainLoopTest, ShowsTheMainWindowWhereItStands) {
  const HWND window = LoadDialog("Main", kButton).window;
  RECT before = {};
  GetWindowRect(window, &before);
  Script script;
  script
      .Do([&] {
        EXPECT_TRUE(IsWindowVisible(window));
        EXPECT_EQ(GetActiveWindow(), window);
        RECT after = {};
        GetWindowRect(window, &after);
        EXPECT_TRUE(EqualRect(&before, &after));
        EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE)) << "It is painted before the loop begins";
      })
      .DestroyAll();
  EXPECT_EQ(RunMainLoop(window), 0);
}

TEST_F(MainLoopTest, WithoutAMainWindowCallsTheStartFunctionOnceWithZeros) {
  started.clear();
  onStart = nullptr;
  EXPECT_EQ(RunMainLoop(nullptr, nullptr, Start), 0);
  EXPECT_EQ(started, (std::vector<Event>{{0, 0, 0}}));
}

TEST_F(MainLoopTest, KeepsRunningForAWindowThatTheStartFunctionLoads) {
  started.clear();
  bool ran = false;
  onStart = [] { LoadDialog("Main", kButton); };
  Script script;
  script.Do([&] { ran = true; }).DestroyAll();
  EXPECT_EQ(RunMainLoop(nullptr, nullptr, Start), 0);
  EXPECT_TRUE(ran);
  onStart = nullptr;
}

TEST_F(MainLoopTest, DoesNotCallTheStartFunctionWhenThereIsAMainWindow) {
  started.clear();
  onStart = nullptr;
  const HWND window = LoadDialog("Main", kButton).window;
  Script script;
  script.DestroyAll();
  EXPECT_EQ(RunMainLoop(window, nullptr, Start), 0);
  EXPECT_TRUE(started.empty());
}

TEST_F(MainLoopTest, TakesAWindowThatIsGoneForNone) {
  started.clear();
  const HWND window = LoadDialog("Main", kButton).window;
  DestroyWindow(window);
  EXPECT_EQ(RunMainLoop(window, nullptr, Start), 0);
  EXPECT_EQ(started.size(), 1u);
}

TEST_F(MainLoopTest, EndsWhenOnlyTheExtraWindowIsLeft) {
  const HWND main = LoadDialog("Main", kButton).window;
  const HWND extra = LoadDialog("Extra", kButton).window;
  Script script;
  script.Do([&] { DestroyWindow(main); });
  EXPECT_EQ(RunMainLoop(main, extra), 0);
  EXPECT_TRUE(IsWindow(extra));
}

TEST_F(MainLoopTest, IgnoresTheExtraWindowWhenItIsTheMainWindow) {
  const HWND main = LoadDialog("Main", kButton).window;
  bool ran = false;
  Script script;
  script.Do([&] { ran = true; }).DestroyAll();
  EXPECT_EQ(RunMainLoop(main, main), 0);
  EXPECT_TRUE(ran);
}

TEST_F(MainLoopTest, IgnoresAnExtraWindowThatIsNone) {
  const HWND main = LoadDialog("Main", kButton).window;
  const HWND gone = LoadDialog("Gone", kButton).window;
  DestroyWindow(gone);
  Script script;
  script.DestroyAll();
  EXPECT_EQ(RunMainLoop(main, gone), 0);
}

TEST_F(MainLoopTest, IsKeptRunningByALoadedWindowThatWasNeverShown) {
  const HWND main = LoadDialog("Main", kButton).window;
  const HWND hidden = LoadDialog("Hidden", kButton).window;
  bool ran = false;
  Script script;
  script.Do([&] { Unload("Main"); }).Do([&] {
    EXPECT_FALSE(IsWindow(main));
    EXPECT_FALSE(IsWindowVisible(hidden));
    ran = true;
    Unload("Hidden");
  });
  EXPECT_EQ(RunMainLoop(main), 0);
  EXPECT_TRUE(ran);
}

TEST_F(MainLoopTest, IsKeptRunningByAHiddenWindow) {
  const HWND main = LoadDialog("Main", kButton).window;
  bool ran = false;
  Script script;
  script.Do([&] { Hide("Main"); }).Do([&] {
    EXPECT_FALSE(IsWindowVisible(main));
    ran = true;
    Unload("Main");
  });
  EXPECT_EQ(RunMainLoop(main), 0);
  EXPECT_TRUE(ran);
}

// The wake-up message lets a loop that waits see at once that the last window went: no message of any other
// kind is there when it looks.
TEST_F(MainLoopTest, IsWokenByAWindowThatCloses) {
  const HWND main = LoadDialog("Main", kButton).window;
  Unload("Main");
  EXPECT_FALSE(IsWindow(main));
  MSG message = {};
  ASSERT_TRUE(PeekMessageA(&message, reinterpret_cast<HWND>(-1), 0, 0, PM_REMOVE));
  EXPECT_EQ(message.hwnd, nullptr);
  EXPECT_EQ(message.message, 0u);
  EXPECT_EQ(message.wParam, 0u);
  EXPECT_EQ(message.lParam, 0);
  EXPECT_FALSE(PeekMessageA(&message, reinterpret_cast<HWND>(-1), 0, 0, PM_REMOVE));
}

TEST_F(MainLoopTest, EndsWithOneWhenWindowsAreLeftAtAQuitMessage) {
  const HWND main = LoadDialog("Main", kButton).window;
  Script script;
  script.Do([] { PostQuitMessage(7); });
  EXPECT_EQ(RunMainLoop(main), 1);
  EXPECT_TRUE(IsWindow(main));
}

TEST_F(MainLoopTest, EndsWithZeroAtAQuitMessageWhenOnlyTheExtraWindowIsLeft) {
  const HWND main = LoadDialog("Main", kButton).window;
  const HWND extra = LoadDialog("Extra", kButton).window;
  Script script;
  script.Do([&] {
    PostQuitMessage(0);
    DestroyWindow(main);
  });
  EXPECT_EQ(RunMainLoop(main, extra), 0);
}

// A top-level window of a class of the test's own.
class ForeignWindow {
 public:
  ForeignWindow(const char* className, const char* title) : class_(className), window_(className, title) {}
  HWND get() const { return window_.get(); }

 private:
  TestClass class_;
  TestWindow window_;
};

HWND FindInputMethodWindow() { return FindWindowHandle("IME", "Default IME", 1, 1); }

TEST_F(MainLoopTest, IsNotKeptRunningByInputMethodWindows) {
  const HWND main = LoadDialog("Main", kButton).window;
  // The system makes the first of the two by itself when it has input methods.
  std::optional<ForeignWindow> own;
  if (FindInputMethodWindow() == nullptr) own.emplace("Ime", "DEFAULT IME");
  const ForeignWindow text("msctfime ui", "m");
  const HWND ime = FindInputMethodWindow();
  ASSERT_TRUE(IsWindow(ime));
  ASSERT_TRUE(IsWindow(text.get()));
  SetWindowTextA(ime, "DEFAULT ime");
  // Other threads' windows for input aren't in the way of this thread's.
  const CountedImport<struct Enumerating, BOOL, WNDENUMPROC, LPARAM> allWindows("EnumWindows");
  Script script;
  script.DestroyAll();
  EXPECT_EQ(RunMainLoop(main), 0);
  EXPECT_EQ(allWindows.calls(), 0);
  SetWindowTextA(ime, "Default IME");
  EXPECT_TRUE(IsWindow(ime));
  EXPECT_TRUE(IsWindow(text.get()));
}

TEST_F(MainLoopTest, IsKeptRunningByASecondInputMethodWindow) {
  const TestClass text("MSCTFIME UI");
  const TestWindow first("MSCTFIME UI", "M");
  const TestWindow second("MSCTFIME UI", "M");
  Script script;
  script.Do([] { PostQuitMessage(0); });
  EXPECT_EQ(RunMainLoop(nullptr), 1);
}

TEST_F(MainLoopTest, IsKeptRunningByWindowsThatOnlyLookLikeInputMethodWindows) {
  const struct {
    const char* className;
    const char* title;
  } kLookalikes[] = {
      {"IME", "Default IMEs"}, {"IMES", "Default IME"}, {"MSCTFIME UI", "MM"}, {"MSCTFIME", "M"}};
  for (const auto& lookalike : kLookalikes) {
    SCOPED_TRACE(std::string(lookalike.className) + ", " + lookalike.title);
    const ForeignWindow window(lookalike.className, lookalike.title);
    Script script;
    script.Do([] { PostQuitMessage(0); });
    EXPECT_EQ(RunMainLoop(nullptr), 1);
  }
}

TEST_F(MainLoopTest, ForgetsTheMainWindowWhenItIsGone) {
  const HWND main = LoadDialog("Main", kButton).window;
  const HWND other = LoadDialog("Other", kButton).window;
  ShowForm("Other");
  Script script;
  script.Do([&] { DestroyWindow(main); }).Do([] { PressKey('X', {VK_MENU}); }).Do([&] {
    EXPECT_TRUE(IsWindow(other));
    DestroyWindow(other);
  });
  EXPECT_EQ(RunMainLoop(main), 0);
}

// The preview hears of keys by the active window, the menu keys by the main window.
TEST_F(MainLoopTest, PreviewsKeysOnTheActiveWindow) {
  const HWND main = LoadDialog("Main", kButton).window;
  const HWND other = LoadDialog("Other", kButton).window;
  Script script;
  script
      .Do([] {
        ShowForm("Other");
        Log().Clear();
      })
      .Do([] {
        Log().Clear();
        PressKey(VK_F2);
      })
      .Do([&] {
        EXPECT_TRUE(Heard({{other, {EV_KEYPRESS, 101, VK_F2}}}));
        EXPECT_NE(GetActiveWindow(), main);
      })
      .DestroyAll();
  EXPECT_EQ(RunMainLoop(main), 0);
}

TEST_F(MainLoopTest, GivesTheDialogKeysToTheActiveWindow) {
  const HWND main = LoadDialog("Main",
                               "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n"
                               "  PUSHBUTTON \"B\", 102, 10, 30, 50, 14")
                        .window;
  Script script;
  script.Do([&] { EXPECT_EQ(GetFocus(), GetDlgItem(main, 101)); })
      .Do([] { PressKey(VK_TAB); })
      .Do([&] { EXPECT_EQ(GetFocus(), GetDlgItem(main, 102)); })
      .Do([] { PressKey(VK_TAB, {VK_SHIFT}); })
      .Do([&] { EXPECT_EQ(GetFocus(), GetDlgItem(main, 101)); })
      .DestroyAll();
  EXPECT_EQ(RunMainLoop(main), 0);
}

// Without a control that the Tab key reaches the keys go to the window with the focus as they are.
TEST_F(MainLoopTest, GivesNoDialogKeysToAWindowWithoutATabStop) {
  const HWND main = LoadDialog("Main",
                               "  LTEXT \"A\", 101, 10, 10, 50, 14\n"
                               "  AUTOCHECKBOX \"B\", 102, 10, 30, 50, 14")
                        .window;
  Script script;
  script.Do([&] { EXPECT_EQ(GetFocus(), main); })
      .Do([] { PressKey(VK_TAB); })
      .Do([&] { EXPECT_EQ(GetFocus(), main); })
      .DestroyAll();
  EXPECT_EQ(RunMainLoop(main), 0);
}

TEST_F(MainLoopTest, SurvivesTheMainWindowUnloadingItselfAtAKey) {
  const HWND main = LoadDialog("Main", kButton).window;
  Script script;
  script.Do([&] {
    Log().onEvent = [](HWND, const Event& event) {
      if (event.event == EV_KEYPRESS) Unload("Main");
      return 0;
    };
    PressKey(VK_F3);
  });
  EXPECT_EQ(RunMainLoop(main), 0);
  EXPECT_FALSE(IsWindow(main));
}

int failuresLeft = 0;
BOOL(WINAPI* realGetMessage)(MSG*, HWND, UINT, UINT) = nullptr;

BOOL WINAPI FailingGetMessage(MSG* message, HWND window, UINT first, UINT last) {
  return failuresLeft-- > 0 ? -1 : realGetMessage(message, window, first, last);
}

TEST_F(MainLoopTest, TakesAFailureToGetAMessageForAMessage) {
  const HWND main = LoadDialog("Main", kButton).window;
  const ReplacedImport import("GetMessageA", reinterpret_cast<void*>(FailingGetMessage));
  realGetMessage = reinterpret_cast<decltype(realGetMessage)>(import.original());
  failuresLeft = 3;
  Script script;
  script.DestroyAll();
  EXPECT_EQ(RunMainLoop(main), 0);
  EXPECT_LT(failuresLeft, 0);
}

}  // namespace
}  // namespace brelt::test
