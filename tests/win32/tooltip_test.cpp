// The hint of a bitmap button: its window, its timers step by step, and what takes it away. The timers' real
// times have their test on the screen.
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/redraws.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

// Buttons 101 and 102 have hints, 103 has none; 104 is no bitmap button.
constexpr const char* kButtons =
    "  CONTROL \"\\nFirst hint\", 101, \"Bitmapbutton\", 0, 10, 10, 40, 20\n"
    "  CONTROL \"\\nSecond one\", 102, \"Bitmapbutton\", 0, 60, 10, 40, 20\n"
    "  CONTROL \"\", 103, \"Bitmapbutton\", 0, 110, 10, 40, 20\n"
    "  PUSHBUTTON \"Plain\", 104, 10, 40, 40, 20\n";

HWND Tooltip() { return FindWindowHandle("TOOLTIPS.1.3.2207", "Tooltip_window", 0, 1); }
HWND Waiting() { return WindowInSlot(Tooltip(), kSlotCanvas); }
HWND Shown() { return WindowInSlot(Tooltip(), kSlotCanvasAnchor); }
bool IsShowing() { return IsWindowVisible(Tooltip()) != FALSE; }

std::string TextOf(int id) {
  char text[512] = "";
  GetDlgItemTextA(Tooltip(), id, text, sizeof text);
  return text;
}
std::string ShownText() { return TextOf(101); }
std::string WaitingText() { return TextOf(102); }

// What happens to the tooltip window's timers.
std::string timers;
UINT_PTR(WINAPI* realSetTimer)(HWND, UINT_PTR, UINT, TIMERPROC) = nullptr;
BOOL(WINAPI* realKillTimer)(HWND, UINT_PTR) = nullptr;

UINT_PTR WINAPI RecordSetTimer(HWND window, UINT_PTR id, UINT time, TIMERPROC procedure) {
  EXPECT_EQ(window, Tooltip());
  EXPECT_EQ(procedure, nullptr);
  timers += "set " + std::to_string(id) + " " + std::to_string(time) + ", ";
  return realSetTimer(window, id, time, procedure);
}
BOOL WINAPI RecordKillTimer(HWND window, UINT_PTR id) {
  timers += "kill " + std::to_string(id) + ", ";
  return realKillTimer(window, id);
}
// What happened since it was asked last.
std::string TakeTimers() { return std::exchange(timers, ""); }

constexpr const char* kKillAll = "kill 1, kill 2, kill 3, ";
// A tooltip that comes up.
constexpr const char* kComesUp = "kill 1, set 2 5000, set 3 200, ";

class TooltipTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    realSetTimer = reinterpret_cast<decltype(realSetTimer)>(setTimer_.original());
    realKillTimer = reinterpret_cast<decltype(realKillTimer)>(killTimer_.original());
    window_ = LoadShown("Main", kButtons);
    first_ = GetDlgItem(window_, 101);
    second_ = GetDlgItem(window_, 102);
    TakeTimers();
  }

  // Puts the pointer on a place without any message's help.
  static void PutPointer(HWND window, int x = 5, int y = 5) {
    POINT point = {x, y};
    ClientToScreen(window, &point);
    SetCursorPos(point.x, point.y);
  }
  static void PutPointerOutside() { SetCursorPos(1000, 740); }
  // What the platform tells the form when the pointer moves on a control.
  LRESULT Hover(HWND control) const {
    return SendMessageA(window_, WM_SETCURSOR, reinterpret_cast<WPARAM>(control),
                        MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  }
  static void Tick(int timer) {
    EXPECT_EQ(SendMessageA(Tooltip(), WM_TIMER, static_cast<WPARAM>(timer), 0), 0);
  }
  // Brings a button's hint up.
  void Show(HWND control) {
    PutPointer(control);
    Hover(control);
    Tick(1);
    ASSERT_TRUE(IsShowing());
    ASSERT_EQ(Shown(), control);
    TakeTimers();
  }

  ReplacedImport setTimer_{"SetTimer", reinterpret_cast<void*>(RecordSetTimer)};
  ReplacedImport killTimer_{"KillTimer", reinterpret_cast<void*>(RecordKillTimer)};
  HWND window_ = nullptr;
  HWND first_ = nullptr;
  HWND second_ = nullptr;
};

// ---- The window ----

TEST_F(TooltipTest, AHoverMakesTheWindowWithItsTwoTexts) {
  EXPECT_EQ(Tooltip(), nullptr);
  PutPointer(first_);
  Hover(first_);
  const HWND tooltip = Tooltip();
  ASSERT_TRUE(IsWindow(tooltip));
  EXPECT_FALSE(IsWindowVisible(tooltip));
  EXPECT_EQ(GetWindow(tooltip, GW_OWNER), nullptr);
  EXPECT_EQ(GetWindowLongA(tooltip, GWL_EXSTYLE) & ~WS_EX_TOPMOST, WS_EX_TOOLWINDOW);
  EXPECT_EQ(GetWindowLongA(tooltip, GWL_STYLE) & ~WS_CLIPSIBLINGS, static_cast<LONG>(WS_POPUP));
  EXPECT_EQ(GetWindowLongA(tooltip, GWL_HINSTANCE), GetWindowLongA(window_, GWL_HINSTANCE));
  RECT place = {};
  GetWindowRect(tooltip, &place);
  const RECT expected = {0, 0, 10, 10};
  EXPECT_TRUE(EqualRect(&place, &expected));
  const struct {
    int id;
    DWORD style;
    const char* text;
  } kTexts[] = {{101, 0x5000008C, ""}, {102, 0x4000008C, "First hint"}};
  for (const auto& row : kTexts) {
    const HWND text = GetDlgItem(tooltip, row.id);
    char className[20] = "";
    GetClassNameA(text, className, sizeof className);
    EXPECT_STRCASEEQ(className, "STATIC");
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(text, GWL_STYLE)), row.style);
    EXPECT_EQ(TextOf(row.id), row.text);
    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(SendMessageA(text, WM_GETFONT, 0, 0)), GetStockObject(ANSI_VAR_FONT));
    RECT size = {};
    GetClientRect(text, &size);
    EXPECT_EQ(size.right, 0);
    EXPECT_EQ(size.bottom, 0);
  }
  EXPECT_EQ(Waiting(), first_);
  EXPECT_EQ(Shown(), nullptr);
  EXPECT_EQ(ReadSlot(tooltip, kSlotRecord), 0) << "It has no name";
  EXPECT_EQ(TakeTimers(), "set 1 1000, ");
}

TEST_F(TooltipTest, TheClassIsRegisteredAtTheFirstHover) {
  PutPointer(first_);
  Hover(first_);
  WNDCLASSEXA info = {};
  info.cbSize = sizeof info;
  ASSERT_TRUE(GetClassInfoExA(GetModuleHandleA("brelt.dll"), "TOOLTIPS.1.3.2207", &info));
  EXPECT_EQ(info.style, 16384u);
  EXPECT_EQ(info.lpfnWndProc, ToolTip_proc);
  EXPECT_EQ(info.cbClsExtra, 0);
  EXPECT_EQ(info.cbWndExtra, 40);
  EXPECT_EQ(info.hInstance, GetModuleHandleA("brelt.dll"));
  EXPECT_EQ(info.hIcon, LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION)));
  EXPECT_EQ(info.hCursor, LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
  EXPECT_EQ(info.hbrBackground, nullptr);
  EXPECT_EQ(info.lpszMenuName, nullptr);
}

TEST_F(TooltipTest, AButtonWithoutAHintMakesNoWindow) {
  const HWND third = GetDlgItem(window_, 103);
  PutPointer(third);
  Hover(third);
  EXPECT_EQ(Tooltip(), nullptr);
  EXPECT_EQ(TakeTimers(), "");
}

TEST_F(TooltipTest, AButtonWithoutAHintLeavesWhatShows) {
  Show(first_);
  Hover(GetDlgItem(window_, 103));
  EXPECT_TRUE(IsShowing());
  EXPECT_EQ(TakeTimers(), "");
}

TEST_F(TooltipTest, OtherControlsAndOtherWindowsMakeNoWindow) {
  const HWND plain = GetDlgItem(window_, 104);
  PutPointer(plain);
  Hover(plain);
  Hover(window_);
  Hover(nullptr);
  Hover(reinterpret_cast<HWND>(0x5A5A5A));
  EXPECT_EQ(Tooltip(), nullptr);
  // A window of another class that uses the procedure is no Dialog.
  const TestClass other("OTHER", 40, 0, Dialog_proc);
  const TestWindow parent(other.name());
  SetParent(first_, parent.get());
  SendMessageA(parent.get(), WM_SETCURSOR, reinterpret_cast<WPARAM>(first_),
               MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  EXPECT_EQ(Tooltip(), nullptr);
  SetParent(first_, window_);
}

TEST_F(TooltipTest, ThereIsOneWindowForAllForms) {
  PutPointer(first_);
  Hover(first_);
  const HWND tooltip = Tooltip();
  const HWND other = LoadShown("Other", kButtons);
  const HWND button = GetDlgItem(other, 102);
  SendMessageA(other, WM_SETCURSOR, reinterpret_cast<WPARAM>(button), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  EXPECT_EQ(Tooltip(), tooltip);
  EXPECT_EQ(FindWindowExA(nullptr, tooltip, "TOOLTIPS.1.3.2207", "Tooltip_window"), nullptr);
  EXPECT_EQ(Waiting(), button);
  EXPECT_EQ(WaitingText(), "Second one");
}

// ---- Asking for the hint ----

std::string hintToGive;
std::vector<std::pair<WPARAM, bool>> hintsAsked;

LRESULT CALLBACK GiveHint(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != CM_GETHINT) return DefWindowProcA(window, message, wParam, lParam);
  hintsAsked.push_back({wParam, lParam != 0});
  // A rude control: it fills all 256 bytes and ends nowhere.
  char* buffer = reinterpret_cast<char*>(lParam);
  for (std::size_t i = 0; i < 256; ++i) buffer[i] = i < hintToGive.size() ? hintToGive[i] : '\0';
  return static_cast<LRESULT>(hintToGive.size());
}

TEST_F(TooltipTest, TheHintIsAskedForWithRoomFor255Bytes) {
  const TestClass rude("BITMAPBUTTON.RUDE", 0, 0, GiveHint);
  const HWND button = rude.MakeChild(window_, 200, 0, 100);
  PutPointer(button);
  hintsAsked.clear();
  hintToGive = "short";
  Hover(button);
  EXPECT_EQ(hintsAsked, (std::vector<std::pair<WPARAM, bool>>{{255, true}}));
  EXPECT_EQ(WaitingText(), "short");
  SendMessageA(Tooltip(), WM_CLOSE, 0, 0);
  hintToGive = std::string(256, 'x');
  Hover(button);
  EXPECT_EQ(WaitingText(), std::string(255, 'x'));
  Tick(1);
  EXPECT_EQ(ShownText(), std::string(255, 'x'));
  DestroyWindow(button);
}

TEST_F(TooltipTest, AnAnswerBelowOneOrAnEmptyTextShowsNothing) {
  const TestClass rude("BITMAPBUTTON.RUDE", 0, 0, GiveHint);
  const HWND button = rude.MakeChild(window_, 200, 0, 100);
  hintToGive = "";
  Hover(button);
  EXPECT_EQ(Tooltip(), nullptr);
  // A length, but no text.
  Show(first_);
  hintToGive = std::string(5, '\0');
  Hover(button);
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(TakeTimers(), kKillAll);
  DestroyWindow(button);
}

TEST_F(TooltipTest, AButtonOfAnotherWindowHidesWhatShows) {
  const HWND other = LoadDialog("Other", kButtons).window;
  Show(first_);
  Hover(GetDlgItem(other, 101));
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(TakeTimers(), kKillAll);
}

TEST_F(TooltipTest, TheCursorMessageReachesThePlatform) {
  // The class's own shape, and not what was there.
  SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_CROSS)));
  Hover(first_);
  EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
}

// ---- Waiting ----

TEST_F(TooltipTest, AHoverOverTheWaitingButtonStartsItsTimeAnew) {
  PutPointer(first_);
  Hover(first_);
  SetDlgItemTextA(Tooltip(), 102, "untouched");
  TakeTimers();
  Hover(first_);
  EXPECT_EQ(TakeTimers(), "set 1 1000, ");
  EXPECT_EQ(WaitingText(), "untouched");
}

TEST_F(TooltipTest, AHoverOverTheWaitingButtonWhileAnotherHintShowsShortensItsTime) {
  Show(first_);
  PutPointer(second_);
  Hover(second_);
  EXPECT_EQ(TakeTimers(), "set 1 1000, ");
  EXPECT_EQ(Waiting(), second_);
  EXPECT_EQ(Shown(), first_);
  EXPECT_TRUE(IsShowing());
  EXPECT_EQ(WaitingText(), "Second one");
  EXPECT_EQ(ShownText(), "First hint");
  Hover(second_);
  EXPECT_EQ(TakeTimers(), "set 1 100, ");
}

TEST_F(TooltipTest, AHoverOverAWaitingButtonThatShowsAlreadyChangesNothing) {
  Show(first_);
  WriteSlot(Tooltip(), kSlotCanvas, reinterpret_cast<LONG>(first_));
  Hover(first_);
  EXPECT_EQ(TakeTimers(), "");
}

TEST_F(TooltipTest, AHoverOverTheButtonThatShowsProlongsIt) {
  Show(first_);
  Hover(first_);
  EXPECT_EQ(TakeTimers(), "set 2 5000, ");
  EXPECT_TRUE(IsShowing());
  EXPECT_EQ(Waiting(), nullptr);
}

TEST_F(TooltipTest, AHoverOverAButtonWhoseHintIsOverDoesNotBringItBack) {
  Show(first_);
  Tick(2);
  ASSERT_FALSE(IsShowing());
  ASSERT_EQ(Shown(), first_);
  TakeTimers();
  Hover(first_);
  EXPECT_EQ(TakeTimers(), "");
  EXPECT_EQ(Waiting(), nullptr);
}

// ---- Coming up ----

TEST_F(TooltipTest, TheHintComesUpBelowThePointer) {
  PutPointer(first_, 7, 9);
  Hover(first_);
  TakeTimers();
  const HWND active = GetActiveWindow();
  const HWND focus = GetFocus();
  Tick(1);
  EXPECT_EQ(TakeTimers(), kComesUp);
  const HWND tooltip = Tooltip();
  EXPECT_TRUE(IsShowing());
  EXPECT_EQ(Shown(), first_);
  EXPECT_EQ(Waiting(), nullptr);
  EXPECT_EQ(ShownText(), "First hint");
  EXPECT_EQ(WaitingText(), "");
  EXPECT_EQ(GetActiveWindow(), active);
  EXPECT_EQ(GetFocus(), focus);
  EXPECT_NE(GetWindowLongA(tooltip, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
  POINT pointer = {};
  GetCursorPos(&pointer);
  RECT place = {};
  GetWindowRect(tooltip, &place);
  EXPECT_EQ(place.left, pointer.x);
  EXPECT_EQ(place.top, pointer.y + GetSystemMetrics(SM_CYCURSOR) / 2);
}

TEST_F(TooltipTest, TheHintIsDrawnAnewWithItsFrame) {
  const RedrawSpy redraws;
  Show(first_);
  EXPECT_EQ(redraws.lines(), RedrawLine(Tooltip(), nullptr, 1029));
}

// The size of a text without wrapping, as the platform measures it.
SIZE Measure(const std::string& text) {
  HDC dc = GetDC(nullptr);
  HGDIOBJ previous = SelectObject(dc, GetStockObject(ANSI_VAR_FONT));
  RECT box = {0, 0, 10000, 10000};
  DrawTextA(dc, text.c_str(), -1, &box, 3392);
  SelectObject(dc, previous);
  ReleaseDC(nullptr, dc);
  return {box.right, box.bottom};
}

TEST_F(TooltipTest, TheWindowIsAsLargeAsItsTextAndAMargin) {
  const struct {
    std::string hint;
    std::string measured;
  } kHints[] = {{"Short", "Short"},
                {"A && B", "A && B"},
                {"Two\nlines", "Two\nlines"},
                {"One end\n", "One end"},
                {"One end\r\n", "One end"},
                {"Two ends\n\n", "Two ends\n"},
                {"A tab\there", "A tab\there"},
                {std::string(200, 'W'), std::string(200, 'W')}};
  const TestClass rude("BITMAPBUTTON.RUDE", 0, 0, GiveHint);
  const HWND button = rude.MakeChild(window_, 200, 0, 100);
  PutPointer(button);
  EXPECT_GT(Measure("Two\nlines").cy, Measure("Two").cy);
  for (const auto& row : kHints) {
    SCOPED_TRACE(row.hint);
    hintToGive = row.hint;
    Hover(button);
    Tick(1);
    ASSERT_TRUE(IsShowing());
    const SIZE size = Measure(row.measured);
    const HWND text = GetDlgItem(Tooltip(), 101);
    RECT place = {};
    GetWindowRect(text, &place);
    MapWindowPoints(nullptr, Tooltip(), reinterpret_cast<POINT*>(&place), 2);
    const RECT expected = {4, 4, 4 + size.cx, 4 + size.cy};
    EXPECT_TRUE(EqualRect(&place, &expected)) << place.right << " " << place.bottom;
    RECT client = {};
    GetClientRect(Tooltip(), &client);
    EXPECT_EQ(client.right, size.cx + 8);
    EXPECT_EQ(client.bottom, size.cy + 8);
    SendMessageA(Tooltip(), WM_CLOSE, 0, 0);
  }
  DestroyWindow(button);
}

TEST_F(TooltipTest, TheHintDoesNotComeUpWhenThePointerIsElsewhere) {
  PutPointer(first_);
  Hover(first_);
  TakeTimers();
  for (const bool overWindow : {true, false}) {
    overWindow ? PutPointer(window_, 1, 1) : PutPointerOutside();
    Tick(1);
    EXPECT_EQ(TakeTimers(), "kill 1, ") << "The time ends";
    EXPECT_FALSE(IsShowing());
    EXPECT_EQ(ShownText(), "");
  }
}

TEST_F(TooltipTest, TheHintDoesNotComeUpWhenItsButtonIsGone) {
  PutPointer(first_);
  Hover(first_);
  DestroyWindow(first_);
  TakeTimers();
  Tick(1);
  EXPECT_EQ(TakeTimers(), "kill 1, ");
  EXPECT_FALSE(IsShowing());
}

TEST_F(TooltipTest, ANextHintTakesThePlaceOfTheOneThatShows) {
  Show(first_);
  PutPointer(second_);
  Hover(second_);
  Hover(second_);
  TakeTimers();
  Tick(1);
  EXPECT_EQ(TakeTimers(), kComesUp);
  EXPECT_TRUE(IsShowing());
  EXPECT_EQ(ShownText(), "Second one");
  EXPECT_EQ(WaitingText(), "");
  EXPECT_EQ(Shown(), second_);
  EXPECT_EQ(Waiting(), nullptr);
}

// ---- Going ----

TEST_F(TooltipTest, TheHintGoesWhenItsTimeIsUp) {
  Show(first_);
  Tick(2);
  EXPECT_EQ(TakeTimers(), std::string("kill 2, ") + kKillAll);
  EXPECT_FALSE(IsShowing());
}

TEST_F(TooltipTest, TheHintStaysWhileThePointerIsInTheWindow) {
  Show(first_);
  PutPointer(window_, 1, 1);
  Tick(3);
  EXPECT_EQ(TakeTimers(), "");
  EXPECT_TRUE(IsShowing());
  RECT outer = {};
  GetWindowRect(window_, &outer);
  SetCursorPos(outer.left, outer.top);
  Tick(3);
  EXPECT_TRUE(IsShowing()) << "The frame counts";
}

TEST_F(TooltipTest, TheHintGoesWhenThePointerLeavesTheWindow) {
  Show(first_);
  PutPointerOutside();
  Tick(3);
  EXPECT_EQ(TakeTimers(), kKillAll);
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(Shown(), nullptr);
  EXPECT_EQ(ShownText(), "");
}

TEST_F(TooltipTest, TheWatchDoesNothingWhileNoHintShows) {
  Show(first_);
  Tick(2);
  TakeTimers();
  PutPointerOutside();
  Tick(3);
  EXPECT_EQ(TakeTimers(), "");
  EXPECT_EQ(Shown(), first_);
}

TEST_F(TooltipTest, TheHintGoesWhenItsButtonIsGone) {
  Show(first_);
  DestroyWindow(first_);
  Tick(3);
  EXPECT_EQ(TakeTimers(), kKillAll);
  EXPECT_FALSE(IsShowing());
}

TEST_F(TooltipTest, OtherTimersDoNothing) {
  Show(first_);
  for (const int timer : {0, 4, 77}) Tick(timer);
  EXPECT_EQ(TakeTimers(), "");
  EXPECT_TRUE(IsShowing());
}

TEST_F(TooltipTest, MovesAndClicksInTheWindowHideTheHint) {
  const struct {
    const char* what;
    UINT message;
    WPARAM wParam;
    LRESULT result;
  } kMessages[] = {{"move", WM_MOUSEMOVE, 0, 0},
                   {"hit test", WM_NCHITTEST, 0, HTCLIENT},
                   {"left click on a child", WM_PARENTNOTIFY, WM_LBUTTONDOWN, 0},
                   {"right click on a child", WM_PARENTNOTIFY, WM_RBUTTONDOWN, 0}};
  for (const auto& row : kMessages) {
    SCOPED_TRACE(row.what);
    // A hint that was shown comes back only when the pointer was elsewhere.
    PutPointerOutside();
    Hover(nullptr);
    SendMessageA(window_, WM_MOUSEMOVE, 0, 0);
    Show(first_);
    POINT place = {1, 1};
    if (row.message == WM_NCHITTEST) ClientToScreen(window_, &place);
    EXPECT_EQ(SendMessageA(window_, row.message, row.wParam, MAKELPARAM(place.x, place.y)), row.result);
    EXPECT_FALSE(IsShowing());
    EXPECT_EQ(TakeTimers(), kKillAll);
  }
  Pump();
}

TEST_F(TooltipTest, NewsOfOtherKindsLeaveTheHint) {
  Show(first_);
  SendMessageA(window_, WM_PARENTNOTIFY, WM_MBUTTONDOWN, 0);
  SendMessageA(window_, WM_LBUTTONDOWN, 0, 0);
  EXPECT_TRUE(IsShowing());
}

TEST_F(TooltipTest, AMoveOverTheHintHidesIt) {
  Show(first_);
  EXPECT_EQ(SendMessageA(Tooltip(), WM_MOUSEMOVE, 0, 0), 0);
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(TakeTimers(), kKillAll);
}

// ---- What stays when it goes ----

TEST_F(TooltipTest, HidingOverTheButtonThatShowsKeepsItAsTheOneShown) {
  Show(first_);
  Hover(second_);
  SendMessageA(window_, WM_MOUSEMOVE, 0, 0);
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(Shown(), first_);
  EXPECT_EQ(Waiting(), second_);
  EXPECT_EQ(ShownText(), "First hint");
  EXPECT_EQ(WaitingText(), "Second one");
}

TEST_F(TooltipTest, HidingOverTheWaitingButtonMakesItTheOneShown) {
  Show(first_);
  Hover(second_);
  PutPointer(second_);
  SendMessageA(window_, WM_MOUSEMOVE, 0, 0);
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(Shown(), second_);
  EXPECT_EQ(Waiting(), nullptr);
  EXPECT_EQ(WaitingText(), "Second one");
}

TEST_F(TooltipTest, HidingElsewhereForgetsBoth) {
  Show(first_);
  Hover(second_);
  PutPointer(window_, 1, 1);
  SendMessageA(window_, WM_MOUSEMOVE, 0, 0);
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(Shown(), nullptr);
  EXPECT_EQ(Waiting(), nullptr);
  EXPECT_EQ(ShownText(), "");
  EXPECT_EQ(WaitingText(), "");
}

TEST_F(TooltipTest, HidingIsHarmlessWithButtonsThatAreGone) {
  Show(first_);
  Hover(second_);
  DestroyWindow(first_);
  DestroyWindow(second_);
  SendMessageA(window_, WM_MOUSEMOVE, 0, 0);
  EXPECT_FALSE(IsShowing());
  EXPECT_EQ(Shown(), nullptr);
  EXPECT_EQ(Waiting(), nullptr);
}

// ---- The end ----

TEST_F(TooltipTest, ClosingAnyWindowTakesTheHintAway) {
  LoadDialog("Other", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14");
  Show(first_);
  const HWND tooltip = Tooltip();
  Unload("Other");
  EXPECT_FALSE(IsWindow(tooltip));
  EXPECT_EQ(TakeTimers(), kKillAll);
  EXPECT_TRUE(IsWindow(window_));
  // The next hint makes it anew.
  PutPointer(second_);
  Hover(second_);
  EXPECT_TRUE(IsWindow(Tooltip()));
  EXPECT_EQ(Waiting(), second_);
}

TEST_F(TooltipTest, TheHintDoesNotKeepTheMainLoopRunning) {
  Script script;
  script
      .Do([&] {
        PutPointer(first_);
        Hover(first_);
        Tick(1);
        EXPECT_TRUE(IsShowing());
      })
      .Do([] { Unload("Main"); });
  EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), window_, nullptr, nullptr), 0);
  EXPECT_EQ(Tooltip(), nullptr);
}

TEST_F(TooltipTest, TheDestroyMessageEndsTheTimersAndGivesZero) {
  Show(first_);
  EXPECT_EQ(SendMessageA(Tooltip(), WM_DESTROY, 0, 0), 0);
  EXPECT_EQ(TakeTimers(), kKillAll);
}

// ---- Its look ----

TEST_F(TooltipTest, TheTextHasTheColoursOfHints) {
  Show(first_);
  HDC dc = GetDC(Tooltip());
  SetBkColor(dc, RGB(1, 2, 3));
  const LRESULT brush = SendMessageA(Tooltip(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), 0);
  EXPECT_EQ(reinterpret_cast<HBRUSH>(brush), GetSysColorBrush(COLOR_INFOBK));
  EXPECT_EQ(GetBkColor(dc), GetSysColor(COLOR_INFOBK));
  ReleaseDC(Tooltip(), dc);
}

TEST_F(TooltipTest, TheWindowHasALightAndADarkEdge) {
  Show(first_);
  HDC dc = GetDC(Tooltip());
  EXPECT_EQ(SendMessageA(Tooltip(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0), 1);
  RECT client = {};
  GetClientRect(Tooltip(), &client);
  const LONG right = client.right - 1;
  const LONG bottom = client.bottom - 1;
  const COLORREF back = GetSysColor(COLOR_INFOBK);
  for (LONG x = 1; x < right; ++x) {
    EXPECT_EQ(GetPixel(dc, x, 0), 0xFFFFFFu);
    EXPECT_EQ(GetPixel(dc, x, 1), back);
    EXPECT_EQ(GetPixel(dc, x, bottom), 0x404040u);
  }
  for (LONG y = 1; y < bottom; ++y) {
    EXPECT_EQ(GetPixel(dc, 0, y), 0xFFFFFFu);
    EXPECT_EQ(GetPixel(dc, right, y), 0x404040u);
  }
  EXPECT_EQ(GetPixel(dc, 0, 0), 0xFFFFFFu);
  EXPECT_EQ(GetPixel(dc, right, bottom), 0x404040u);
  EXPECT_EQ(GetPixel(dc, 2, 2), back);
  ReleaseDC(Tooltip(), dc);
}

TEST_F(TooltipTest, OtherMessagesHaveThePlatformsMeaning) {
  Show(first_);
  EXPECT_EQ(SendMessageA(Tooltip(), WM_NCHITTEST, 0, 0), HTNOWHERE);
  EXPECT_EQ(SendMessageA(Tooltip(), WM_GETTEXTLENGTH, 0, 0), 14);
}

// ---- Real movement ----

TEST_F(TooltipTest, ARealMoveOntoAButtonStartsItsTime) {
  MovePointer(window_, 1, 1);
  Pump();
  EXPECT_EQ(Tooltip(), nullptr);
  MovePointer(first_, 5, 5);
  Pump();
  EXPECT_EQ(Waiting(), first_);
  EXPECT_NE(TakeTimers().find("set 1 1000, "), std::string::npos);
}

}  // namespace
}  // namespace brelt::test
