// The pointer's buttons over a form and its controls.
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

class MouseTest : public FormTest {
 protected:
  // A place in a control's client area, in the window's.
  static int32_t PlaceOf(HWND window, HWND control, int x, int y) {
    POINT point = {x, y};
    MapWindowPoints(control, window, &point, 1);
    return AsPoint(point.x, point.y);
  }
};

constexpr const char* kButtons =
    "  PUSHBUTTON \"A\", 101, 40, 10, 50, 14\n"
    "  PUSHBUTTON \"B\", 102, 40, 30, 50, 14, WS_DISABLED\n"
    "  LTEXT \"Label\", 103, 40, 50, 50, 14";

// ---- On the window ----

TEST_F(MouseTest, ButtonsThatGoDownOnTheWindowAreHeardWithThePlace) {
  const HWND window = LoadShown("Main", kButtons);
  MovePointer(window, 3, 4);
  LeftDown();
  LeftUp();
  MovePointer(window, 13, 5);
  RightDown();
  RightUp();
  Pump();
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 0, AsPoint(3, 4)}, {EV_RIGHTDOWN, 0, AsPoint(13, 5)}}));
}

TEST_F(MouseTest, ADoubleClickOnTheWindowIsHeard) {
  const HWND window = LoadShown("Main", kButtons);
  MovePointer(window, 3, 4);
  for (int i = 0; i < 2; ++i) {
    LeftDown();
    LeftUp();
  }
  Pump();
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 0, AsPoint(3, 4)}, {EV_DBLCLICK, 0, 0}}));
}

TEST_F(MouseTest, TheMessagesOfTheWindowGiveZero) {
  const HWND window = LoadShown("Main", kButtons);
  Log().onEvent = [](HWND, const Event&) { return 77; };
  for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_LBUTTONDBLCLK, WM_MOUSEMOVE}) {
    EXPECT_EQ(SendMessageA(window, message, 0, AsPoint(3, 4)), 0);
  }
}

TEST_F(MouseTest, NegativePlacesAreKept) {
  const HWND window = LoadShown("Main", kButtons);
  SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, AsPoint(-3, -4));
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 0, AsPoint(-3, -4)}}));
}

TEST_F(MouseTest, ButtonsThatTheTableDoesNotNameAreNotHeard) {
  const HWND window = LoadShown("Main", kButtons);
  for (const UINT message :
       {WM_LBUTTONUP, WM_RBUTTONUP, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_RBUTTONDBLCLK, WM_MOUSEWHEEL}) {
    SendMessageA(window, message, 0, AsPoint(3, 4));
  }
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

// ---- By way of a child ----

TEST_F(MouseTest, AButtonThatGoesDownOnAControlIsHeardWithItsIdBehindItsClick) {
  const HWND window = LoadShown("Main", kButtons);
  const HWND button = GetDlgItem(window, 101);
  MovePointer(button, 7, 8);
  LeftDown();
  LeftUp();
  Pump();
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 101, PlaceOf(window, button, 7, 8)}, {EV_CLICK, 101, 0}}));
  Log().Clear();
  RightDown();
  RightUp();
  Pump();
  EXPECT_TRUE(Heard({{EV_RIGHTDOWN, 101, PlaceOf(window, button, 7, 8)}}));
}

TEST_F(MouseTest, ThePlaceOfAControlsEventIsPostedAndNotSent) {
  const HWND window = LoadShown("Main", kButtons);
  SendMessageA(window, WM_PARENTNOTIFY, WM_LBUTTONDOWN, AsPoint(5, 6));
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  MSG message = {};
  ASSERT_TRUE(PeekMessageA(&message, window, EV_MOUSEDOWN, EV_MOUSEDOWN, PM_NOREMOVE));
  EXPECT_EQ(message.lParam, AsPoint(5, 6));
  Pump();
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 0, AsPoint(5, 6)}}));
}

TEST_F(MouseTest, OtherNewsOfChildrenAreNotHeard) {
  const HWND window = LoadShown("Main", kButtons);
  for (const UINT what : {WM_CREATE, WM_DESTROY, WM_MBUTTONDOWN, WM_LBUTTONUP, WM_XBUTTONDOWN}) {
    EXPECT_EQ(SendMessageA(window, WM_PARENTNOTIFY, MAKEWPARAM(what, 101), AsPoint(5, 6)), 0);
  }
  Pump();
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  // Only the low word tells what happened.
  EXPECT_EQ(SendMessageA(window, WM_PARENTNOTIFY, MAKEWPARAM(WM_RBUTTONDOWN, 0xFFFF), AsPoint(5, 6)), 0);
  Pump();
  EXPECT_TRUE(Heard({{EV_RIGHTDOWN, 0, AsPoint(5, 6)}}));
}

TEST_F(MouseTest, ADisabledButtonIsHeardByWayOfTheWindow) {
  const HWND window = LoadShown("Main", kButtons);
  const HWND button = GetDlgItem(window, 102);
  ASSERT_FALSE(IsWindowEnabled(button));
  MovePointer(button, 7, 8);
  LeftDown();
  LeftUp();
  Pump();
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 102, PlaceOf(window, button, 7, 8)}}));
}

// A label lets the pointer through.
TEST_F(MouseTest, ALabelIsHeardByWayOfTheWindow) {
  const HWND window = LoadShown("Main", kButtons);
  const HWND label = GetDlgItem(window, 103);
  MovePointer(label, 7, 8);
  RightDown();
  RightUp();
  Pump();
  EXPECT_TRUE(Heard({{EV_RIGHTDOWN, 103, PlaceOf(window, label, 7, 8)}}));
}

TEST_F(MouseTest, AButtonInAComboBoxesFieldIsHeardWithTheComboBoxesId) {
  const HWND window = LoadShown("Main", "  COMBOBOX 101, 40, 10, 60, 60, CBS_DROPDOWN | WS_TABSTOP");
  const HWND field = GetWindow(GetDlgItem(window, 101), GW_CHILD);
  ASSERT_TRUE(IsWindow(field));
  MovePointer(field, 5, 5);
  LeftDown();
  LeftUp();
  Pump();
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 101, PlaceOf(window, field, 5, 5)}}));
}

TEST_F(MouseTest, AControlWithANegativeIdIsHeardWithIt) {
  const HWND window = LoadShown("Main", "  LTEXT \"Label\", -1, 40, 10, 50, 14");
  const HWND label = GetDlgItem(window, -1);
  MovePointer(label, 7, 8);
  LeftDown();
  LeftUp();
  Pump();
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 0xFFFFFFFFu, PlaceOf(window, label, 7, 8)}}));
}

// ---- Finding the child ----

TEST_F(MouseTest, OfOverlappingChildrenTheLastCounts) {
  const HWND window = LoadShown("Main",
                                "  LTEXT \"A\", 101, 40, 10, 50, 14\n"
                                "  LTEXT \"B\", 102, 40, 10, 50, 14\n"
                                "  GROUPBOX \"C\", 103, 30, 5, 70, 40");
  const int32_t place = PlaceOf(window, GetDlgItem(window, 101), 5, 5);
  SendMessageA(window, WM_LBUTTONDOWN, 0, place);
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 103, place}}));
  // Window order counts, and not the order of making.
  SetWindowPos(GetDlgItem(window, 101), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  Log().Clear();
  SendMessageA(window, WM_LBUTTONDOWN, 0, place);
  EXPECT_TRUE(Heard({{EV_MOUSEDOWN, 101, place}}));
}

TEST_F(MouseTest, HiddenAndDisabledChildrenCount) {
  const HWND window = LoadShown("Main",
                                "  LTEXT \"A\", 101, 40, 10, 50, 14\n"
                                "  LTEXT \"B\", 102, 40, 10, 50, 14");
  const int32_t place = PlaceOf(window, GetDlgItem(window, 101), 5, 5);
  ShowWindow(GetDlgItem(window, 102), SW_HIDE);
  EnableWindow(GetDlgItem(window, 102), FALSE);
  SendMessageA(window, WM_RBUTTONDOWN, 0, place);
  EXPECT_TRUE(Heard({{EV_RIGHTDOWN, 102, place}}));
}

TEST_F(MouseTest, AChildHoldsItsLeftAndTopEdgeButNotItsRightAndBottomOne) {
  const HWND window = LoadShown("Main", "  LTEXT \"A\", 101, 40, 10, 50, 14");
  RECT area = {};
  GetWindowRect(GetDlgItem(window, 101), &area);
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&area), 2);
  const struct {
    LONG x, y;
    uint32_t id;
  } kPlaces[] = {{area.left, area.top, 101},   {area.right - 1, area.bottom - 1, 101},
                 {area.right, area.top, 0},    {area.left, area.bottom, 0},
                 {area.left - 1, area.top, 0}, {area.left, area.top - 1, 0}};
  for (const auto& row : kPlaces) {
    Log().Clear();
    SendMessageA(window, WM_LBUTTONDOWN, 0, AsPoint(row.x, row.y));
    EXPECT_TRUE(Heard({{EV_MOUSEDOWN, row.id, AsPoint(row.x, row.y)}}));
  }
}

// ---- Cancelling ----

// A control that counts what it is told.
std::vector<UINT> told;
LRESULT CALLBACK ListenToCancel(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CANCELMODE || message == WM_LBUTTONUP) told.push_back(message);
  return DefWindowProcA(window, message, wParam, lParam);
}

int clipReleases = 0;
BOOL WINAPI RecordClip(const RECT* area) {
  if (area == nullptr) ++clipReleases;
  return TRUE;
}

class CancelTest : public MouseTest {
 protected:
  void SetUp() override {
    MouseTest::SetUp();
    window_ = LoadShown("Main",
                        "  COMBOBOX 102, 10, 60, 80, 60, CBS_SIMPLE | WS_TABSTOP\n"
                        "  COMBOBOX 103, 100, 60, 80, 60, CBS_DROPDOWNLIST | WS_TABSTOP");
    child_ = class_.MakeChild(window_, 101, 10, 10);
    Pump();
    told.clear();
    clipReleases = 0;
  }
  void TearDown() override {
    LeftUp();
    Pump();
    DestroyWindow(child_);
    MouseTest::TearDown();
  }

  // The left button goes down at a place, and the message that tells of it is the last one taken.
  static void HoldAt(HWND window, int x, int y) {
    MovePointer(window, x, y);
    LeftDown();
    Pump();
    told.clear();
    clipReleases = 0;
  }

  // Takes what the pointer did without handling it: the last one gives the position.
  static void TakeMouseMessages() {
    MSG message = {};
    while (PeekMessageA(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE)) continue;
  }

  TestClass class_{"CANCELTEST", 0, 0, ListenToCancel};
  HWND window_ = nullptr;
  HWND child_ = nullptr;
};

TEST_F(CancelTest, PassesItOnToTheControlUnderTheMouse) {
  HoldAt(child_, 5, 5);
  EXPECT_EQ(SendMessageA(window_, WM_CANCELMODE, 0, 0), 0);
  EXPECT_EQ(told, (std::vector<UINT>{WM_CANCELMODE}));
}

TEST_F(CancelTest, DoesNothingWithTheButtonUp) {
  MovePointer(child_, 5, 5);
  LeftDown();
  LeftUp();
  Pump();
  told.clear();
  EXPECT_EQ(SendMessageA(window_, WM_CANCELMODE, 0, 0), 0);
  EXPECT_TRUE(told.empty());
}

TEST_F(CancelTest, DoesNothingBesideEachControl) {
  HoldAt(window_, 2, 2);
  const MessageSpy spy;
  EXPECT_EQ(SendMessageA(window_, WM_CANCELMODE, 0, 0), 0);
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(spy.To(window_, WM_CANCELMODE).size(), 1u) << "Nor to the window itself";
}

TEST_F(CancelTest, ReachesTheDefaultProcedureInAnyCase) {
  // What the default does with it: it lets the capture go.
  SetCapture(window_);
  SendMessageA(window_, WM_CANCELMODE, 0, 0);
  EXPECT_EQ(GetCapture(), nullptr);
}

WNDPROC realList = nullptr;
LRESULT CALLBACK ListenInList(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CANCELMODE || message == WM_LBUTTONUP) told.push_back(message);
  return CallWindowProcA(realList, window, message, wParam, lParam);
}

TEST_F(CancelTest, LetsGoOfAComboBoxesList) {
  const HWND list = GetDlgItem(GetDlgItem(window_, 102), 1000);
  ASSERT_TRUE(IsWindow(list));
  realList =
      reinterpret_cast<WNDPROC>(SetWindowLongA(list, GWL_WNDPROC, reinterpret_cast<LONG>(ListenInList)));
  HoldAt(GetDlgItem(window_, 102), 5, 5);
  EXPECT_EQ(SendMessageA(window_, WM_CANCELMODE, 0, 0), 0);
  EXPECT_EQ(told, (std::vector<UINT>{WM_LBUTTONUP, WM_CANCELMODE}));
}

TEST_F(CancelTest, IsHarmlessWithAnOpenList) {
  const HWND combo = GetDlgItem(window_, 103);
  MovePointer(combo, 5, 5);
  LeftDown();
  Pump();
  EXPECT_NE(SendMessageA(combo, CB_GETDROPPEDSTATE, 0, 0), 0);
  EXPECT_EQ(SendMessageA(window_, WM_CANCELMODE, 0, 0), 0);
  LeftUp();
  Pump();
}

TEST_F(CancelTest, LetsThePointerGoInTheFrame) {
  const ReplacedImport import("ClipCursor", reinterpret_cast<void*>(RecordClip));
  RECT outer = {};
  GetWindowRect(window_, &outer);
  POINT origin = {};
  ClientToScreen(window_, &origin);
  const struct {
    const char* what;
    POINT screen;
    int releases;
  } kPlaces[] = {{"caption", {outer.left + 40, outer.top + 5}, 1},
                 {"frame", {outer.left, outer.bottom - 5}, 1},
                 {"client area", {origin.x + 3, origin.y + 3}, 0},
                 {"outside", {outer.right + 20, outer.top + 5}, 0}};
  for (const auto& row : kPlaces) {
    SCOPED_TRACE(row.what);
    MovePointerTo(row.screen);
    Pump();
    SetCapture(window_);
    LeftDown();
    TakeMouseMessages();
    clipReleases = 0;
    SendMessageA(window_, WM_CANCELMODE, 0, 0);
    EXPECT_EQ(clipReleases, row.releases);
    EXPECT_TRUE(told.empty());
    LeftUp();
    TakeMouseMessages();
    ReleaseCapture();
  }
}

TEST_F(CancelTest, DoesNothingOutsideTheWindow) {
  // A child that sticks out of its window, with the pointer where it would be.
  const HWND outside = class_.MakeChild(window_, 104, -30, 30);
  RECT area = {};
  GetWindowRect(outside, &area);
  MovePointerTo({area.left + 2, area.top + 2});
  SetCapture(window_);
  LeftDown();
  TakeMouseMessages();
  told.clear();
  EXPECT_EQ(SendMessageA(window_, WM_CANCELMODE, 0, 0), 0);
  EXPECT_TRUE(told.empty());
  ReleaseCapture();
  DestroyWindow(outside);
}

POINTS messagePlace;
DWORD WINAPI AnswerPlace() { return MAKELONG(messagePlace.x, messagePlace.y); }

// The place of the message counts without a sign, so that nothing left of the screen is ever hit.
TEST_F(CancelTest, DoesNothingLeftOfTheScreen) {
  HoldAt(child_, 5, 5);
  const ReplacedImport import("GetMessagePos", reinterpret_cast<void*>(AnswerPlace));
  for (const int left : {50, -500}) {
    SCOPED_TRACE(left);
    RECT area = {};
    SetWindowPos(window_, nullptr, left, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    GetWindowRect(child_, &area);
    messagePlace = {static_cast<SHORT>(area.left + 2), static_cast<SHORT>(area.top + 2)};
    told.clear();
    SendMessageA(window_, WM_CANCELMODE, 0, 0);
    EXPECT_EQ(told.size(), left > 0 ? 1u : 0u);
  }
}

// Disabling a window cancels what goes on in it.
TEST_F(CancelTest, ComesWhenTheWindowIsDisabled) {
  HoldAt(child_, 5, 5);
  EnableWindow(window_, FALSE);
  EXPECT_EQ(told, (std::vector<UINT>{WM_CANCELMODE}));
  EnableWindow(window_, TRUE);
}

}  // namespace
}  // namespace brelt::test
