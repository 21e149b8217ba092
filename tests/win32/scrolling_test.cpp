// Scroll bars: the library moves the thumb, the program hears once at the end.
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"

namespace brelt::test {
namespace {

constexpr const char* kBars =
    "  SCROLLBAR 101, 10, 10, 120, 10, SBS_HORZ | WS_TABSTOP\n"
    "  SCROLLBAR 102, 140, 10, 10, 100, SBS_VERT | WS_TABSTOP";

class ScrollTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    window_ = LoadShown("Main", kBars);
    bar_ = GetDlgItem(window_, 101);
  }

  int Position() const { return GetScrollPos(bar_, SB_CTL); }
  void Place(int low, int high, int position) const {
    SetScrollRange(bar_, SB_CTL, low, high, FALSE);
    SetScrollPos(bar_, SB_CTL, position, FALSE);
  }
  LRESULT Send(UINT message, int code, int thumb = 0) const {
    return SendMessageA(window_, message, MAKEWPARAM(code, thumb), reinterpret_cast<LPARAM>(bar_));
  }

  HWND window_ = nullptr;
  HWND bar_ = nullptr;
};

TEST_F(ScrollTest, EachCodeMovesTheThumbByItsRule) {
  const struct {
    const char* what;
    int low, high, position, code, thumb, expected;
  } kRows[] = {
      {"line up", 0, 100, 50, SB_LINEUP, 0, 49},
      {"line down", 0, 100, 50, SB_LINEDOWN, 0, 51},
      {"line up at the end", 0, 100, 0, SB_LINEUP, 0, 0},
      {"line down at the end", 0, 100, 100, SB_LINEDOWN, 0, 100},
      {"page up", 0, 100, 50, SB_PAGEUP, 0, 45},
      {"page down", 0, 100, 50, SB_PAGEDOWN, 0, 55},
      {"page up near the end", 0, 100, 3, SB_PAGEUP, 0, 0},
      {"page down near the end", 0, 100, 98, SB_PAGEDOWN, 0, 100},
      {"a page of a wide range", -1000, 1000, 0, SB_PAGEDOWN, 0, 100},
      {"a page is cut to whole steps", 0, 59, 10, SB_PAGEDOWN, 0, 12},
      {"a page of a range below twenty is nothing", 0, 19, 10, SB_PAGEDOWN, 0, 10},
      {"the same upwards", 0, 19, 10, SB_PAGEUP, 0, 10},
      {"thumb position", 0, 100, 50, SB_THUMBPOSITION, 77, 77},
      {"thumb track", 0, 100, 50, SB_THUMBTRACK, 12, 12},
      {"a thumb position below zero", -200, 100, 50, SB_THUMBPOSITION, -150, -150},
      {"top", -7, 100, 50, SB_TOP, 99, -7},
      {"bottom", 0, 93, 50, SB_BOTTOM, 99, 93},
      {"end", 0, 100, 50, SB_ENDSCROLL, 99, 50},
      {"an unknown code", 0, 100, 50, 9, 99, 50},
      {"another unknown code", 0, 100, 50, 0xFFFF, 99, 50},
      {"a range of nothing", 5, 5, 5, SB_LINEDOWN, 0, 5},
  };
  for (const auto& row : kRows) {
    for (const UINT message : {WM_HSCROLL, WM_VSCROLL}) {
      SCOPED_TRACE(row.what);
      Place(row.low, row.high, row.position);
      EXPECT_EQ(Send(message, row.code, row.thumb), 0);
      EXPECT_EQ(Position(), row.expected);
    }
  }
}

TEST_F(ScrollTest, TheEndsOfTheNumbersAreNoDanger) {
  constexpr int kLeast = -2147483647 - 1;
  constexpr int kMost = 2147483647;
  constexpr int kPage = 214748364;
  const struct {
    int position, code, expected;
  } kRows[] = {{kLeast, SB_LINEUP, kLeast},
               {kMost, SB_LINEDOWN, kMost},
               {kLeast, SB_PAGEUP, kLeast},
               {kMost, SB_PAGEDOWN, kMost},
               {kLeast, SB_PAGEDOWN, kLeast + kPage},
               {kMost, SB_PAGEUP, kMost - kPage},
               {0, SB_TOP, kLeast},
               {0, SB_BOTTOM, kMost}};
  for (const auto& row : kRows) {
    Place(kLeast, kMost, row.position);
    ASSERT_EQ(Position(), row.position) << "The platform takes the range";
    EXPECT_EQ(Send(WM_HSCROLL, row.code), 0);
    EXPECT_EQ(Position(), row.expected);
  }
}

TEST_F(ScrollTest, TheProgramHearsAtTheEndOnly) {
  for (const int code :
       {SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN, SB_THUMBPOSITION, SB_THUMBTRACK, SB_TOP, SB_BOTTOM}) {
    Send(WM_HSCROLL, code, 50);
  }
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  Send(WM_HSCROLL, SB_ENDSCROLL);
  EXPECT_TRUE(Heard({{EV_CHANGE, 101, 0}}));
  Send(WM_VSCROLL, SB_ENDSCROLL);
  EXPECT_TRUE(Heard({{EV_CHANGE, 101, 0}, {EV_CHANGE, 101, 0}}));
}

TEST_F(ScrollTest, TheProgramDoesNotHearOfAnEndWithTheLeftButtonDown) {
  MovePointer(window_, 2, 2);
  LeftDown();
  Pump();
  Log().Clear();
  Send(WM_HSCROLL, SB_ENDSCROLL);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  LeftUp();
  Pump();
  Send(WM_HSCROLL, SB_ENDSCROLL);
  EXPECT_TRUE(Heard({{EV_CHANGE, 101, 0}}));
}

TEST_F(ScrollTest, AScrollBarThatIsNoWindowIsPassedOver) {
  const LPARAM kHandles[] = {0, 0x5A5A5A5A, -1};
  for (const LPARAM handle : kHandles) {
    EXPECT_EQ(SendMessageA(window_, WM_HSCROLL, SB_ENDSCROLL, handle), 0);
    EXPECT_EQ(SendMessageA(window_, WM_VSCROLL, SB_LINEDOWN, handle), 0);
  }
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

// ---- Real input ----

// Moves the pointer to a place along a bar, in pixels, and clicks.
void ClickBar(HWND bar, int x, int y) {
  MovePointer(bar, x, y);
  LeftDown();
  LeftUp();
}

RECT ClientOf(HWND window) {
  RECT client = {};
  GetClientRect(window, &client);
  return client;
}

std::string ChangesOf(int id) { return "EV_CHANGE " + std::to_string(id) + " 0\n"; }

TEST_F(ScrollTest, TheArrowButtonsMoveByOneAndAreHeardOnce) {
  for (const int id : {101, 102}) {
    SCOPED_TRACE(id);
    bar_ = GetDlgItem(window_, id);
    Place(0, 100, 50);
    const RECT client = ClientOf(bar_);
    const POINT middle = {client.right / 2, client.bottom / 2};
    const bool upright = id == 102;
    Log().Clear();
    upright ? ClickBar(bar_, middle.x, 2) : ClickBar(bar_, 2, middle.y);
    Pump();
    EXPECT_EQ(Position(), 49);
    EXPECT_EQ(Log().Of({EV_CHANGE}), ChangesOf(id));
    Log().Clear();
    upright ? ClickBar(bar_, middle.x, client.bottom - 3) : ClickBar(bar_, client.right - 3, middle.y);
    Pump();
    EXPECT_EQ(Position(), 50);
    EXPECT_EQ(Log().Of({EV_CHANGE}), ChangesOf(id));
  }
}

TEST_F(ScrollTest, ThePageAreaMovesByAPageAndIsHeardOnce) {
  for (const int id : {101, 102}) {
    SCOPED_TRACE(id);
    bar_ = GetDlgItem(window_, id);
    Place(0, 100, 50);
    const RECT client = ClientOf(bar_);
    const int arrow = GetSystemMetrics(SM_CXHSCROLL) + 3;
    const bool upright = id == 102;
    Log().Clear();
    upright ? ClickBar(bar_, client.right / 2, arrow) : ClickBar(bar_, arrow, client.bottom / 2);
    Pump();
    EXPECT_EQ(Position(), 45);
    EXPECT_EQ(Log().Of({EV_CHANGE}), ChangesOf(id));
    Log().Clear();
    upright ? ClickBar(bar_, client.right / 2, client.bottom - arrow)
            : ClickBar(bar_, client.right - arrow, client.bottom / 2);
    Pump();
    EXPECT_EQ(Position(), 50);
    EXPECT_EQ(Log().Of({EV_CHANGE}), ChangesOf(id));
  }
}

TEST_F(ScrollTest, ADragOfTheThumbIsHeardOnceAtItsEnd) {
  Place(0, 100, 0);
  const RECT client = ClientOf(bar_);
  const int arrow = GetSystemMetrics(SM_CXHSCROLL);
  const int thumb = arrow + 4;
  Script script;
  script
      .Do([&] {
        Log().Clear();
        MovePointer(bar_, thumb, client.bottom / 2);
        LeftDown();
      })
      .Do([&] { MovePointer(bar_, client.right / 2, client.bottom / 2); })
      .Do([&] {
        EXPECT_GT(Position(), 20) << "The thumb follows";
        EXPECT_LT(Position(), 80);
        EXPECT_EQ(Log().Of({EV_CHANGE}), "") << "The program doesn't hear of each step";
        MovePointer(bar_, client.right - arrow - 6, client.bottom / 2);
      })
      .Do([&] {
        EXPECT_GT(Position(), 90);
        LeftUp();
      })
      .Do([&] {
        EXPECT_GT(Position(), 90);
        EXPECT_EQ(Log().Of({EV_CHANGE}), ChangesOf(101));
        PostQuitMessage(0);
      });
  MainLoop(GetModuleHandleA(nullptr), window_, nullptr, nullptr);
}

TEST_F(ScrollTest, AnArrowThatIsHeldIsHeardOnceWhenItIsLetGo) {
  Place(0, 1000, 500);
  const RECT client = ClientOf(bar_);
  Script script;
  script
      .Do([&] {
        Log().Clear();
        MovePointer(bar_, client.right - 3, client.bottom / 2);
        LeftDown();
      })
      .Until("the arrow repeats", [&] { return Position() >= 503; })
      .Do([] {
        EXPECT_EQ(Log().Of({EV_CHANGE}), "");
        LeftUp();
      })
      .Do([] {
        EXPECT_EQ(Log().Of({EV_CHANGE}), ChangesOf(101));
        PostQuitMessage(0);
      });
  MainLoop(GetModuleHandleA(nullptr), window_, nullptr, nullptr);
}

int endsSeen = 0;
WNDPROC realProcedure = nullptr;

LRESULT CALLBACK CountEnds(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_HSCROLL && LOWORD(wParam) == SB_ENDSCROLL) ++endsSeen;
  return CallWindowProcA(realProcedure, window, message, wParam, lParam);
}

// Not each platform tells of the end of a scroll by key; where it does, the program hears of it once.
TEST_F(ScrollTest, KeysMoveTheThumbAndAreHeardWhereThePlatformTellsTheirEnd) {
  const struct {
    WORD key;
    int expected;
  } kKeys[] = {{VK_RIGHT, 51}, {VK_DOWN, 51},  {VK_LEFT, 49}, {VK_UP, 49},
               {VK_NEXT, 55},  {VK_PRIOR, 45}, {VK_HOME, 0},  {VK_END, 100}};
  realProcedure =
      reinterpret_cast<WNDPROC>(SetWindowLongA(window_, GWL_WNDPROC, reinterpret_cast<LONG>(CountEnds)));
  for (const auto& row : kKeys) {
    SCOPED_TRACE(row.key);
    Place(0, 100, 50);
    SetFocus(bar_);
    Pump();
    Log().Clear();
    endsSeen = 0;
    KeyDown(row.key);
    Pump();
    EXPECT_EQ(Position(), row.expected);
    EXPECT_EQ(Log().Count(EV_CHANGE), 0);
    KeyUp(row.key);
    Pump();
    EXPECT_EQ(Log().Count(EV_CHANGE), endsSeen);
    EXPECT_LE(endsSeen, 1);
  }
}

}  // namespace
}  // namespace brelt::test
