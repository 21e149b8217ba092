// Position, MaxPosition and MinPosition.
#include <climits>
#include <cstdio>
#include <string>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

struct Place {
  int32_t x, y, width, height;

  bool operator==(const Place&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Place& place) {
  return out << place.x << ", " << place.y << ", " << place.width << ", " << place.height;
}
constexpr Place kNowhere = {0, 0, 0, 0};

Place ToPlace(const RECT& area) {
  return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

Place OuterPlace(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return ToPlace(area);
}

// The window's corner with the size of its client area.
Place ClientPlace(HWND window) {
  Place place = OuterPlace(window);
  RECT client = {};
  GetClientRect(window, &client);
  place.width = client.right;
  place.height = client.bottom;
  return place;
}

Place PlaceInParent(HWND control) {
  RECT area = {};
  GetWindowRect(control, &area);
  MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&area), 2);
  return ToPlace(area);
}

Place Position(const std::string& name, int32_t id, int32_t mode) {
  Place place = {-7, -7, -7, -7};
  EXPECT_EQ(GetPosition(name.c_str(), id, mode, &place.x, &place.y, &place.width, &place.height), RTX_OK);
  return place;
}

int32_t SetTo(const std::string& name, int32_t id, int32_t mode, const Place& place) {
  return SetPosition(name.c_str(), id, mode, place.x, place.y, place.width, place.height);
}

std::string HandleText(HWND window, const char* format = "0x%x") {
  char text[20];
  std::snprintf(text, sizeof text, format, static_cast<unsigned>(reinterpret_cast<UINT_PTR>(window)));
  return text;
}

class PositionTest : public PropertyTest {};

// ---- Windows ----

TEST_F(PositionTest, OfAWindowIsItsCornerWithClientOrOuterSize) {
  EXPECT_NE(ClientPlace(form()), OuterPlace(form()));
  EXPECT_EQ(Position(kFormName, 0, 0), ClientPlace(form()));
  EXPECT_EQ(Position(kFormName, 0, 1), OuterPlace(form()));
  for (const int32_t mode : {2, -1, INT_MAX, INT_MIN}) EXPECT_EQ(Position(kFormName, 0, mode), kNowhere);
}

TEST_F(PositionTest, OfAWindowIsSetInTheSameTerms) {
  const Place place = {40, 50, 320, 240};
  EXPECT_EQ(SetTo(kFormName, 0, 0, place), RTX_OK);
  EXPECT_EQ(ClientPlace(form()), place);
  EXPECT_EQ(SetTo(kFormName, 0, 1, place), RTX_OK);
  EXPECT_EQ(OuterPlace(form()), place);
  for (const int32_t mode : {2, -1}) {
    EXPECT_EQ(SetTo(kFormName, 0, mode, {1, 2, 300, 300}), RTX_OK);
    EXPECT_EQ(OuterPlace(form()), place);
  }
  for (const int32_t mode : {0, 1}) {
    const Place before = Position(kFormName, 0, mode);
    EXPECT_EQ(SetTo(kFormName, 0, mode, before), RTX_OK);
    EXPECT_EQ(Position(kFormName, 0, mode), before);
  }
}

TEST_F(PositionTest, OfAWindowWithoutMenuHasNoRoomForOne) {
  for (const char* style :
       {"WS_POPUP", "WS_POPUP | WS_CAPTION", "WS_POPUP | WS_BORDER", "WS_POPUP | DS_MODALFRAME"}) {
    SCOPED_TRACE(style);
    const LoadResult other = LoadDialog("Other", "", std::string("STYLE ") + style + "\n");
    ASSERT_EQ(other.code, RTX_OK);
    const Place place = {140, 50, 321, 123};
    EXPECT_EQ(SetTo("Other", 0, 0, place), RTX_OK);
    EXPECT_EQ(ClientPlace(other.window), place);
    DestroyWindow(other.window);
  }
}

TEST_F(PositionTest, MovingAWindowPaintsItAndMovingAControlDoesntByItself) {
  static int repaints;
  struct Replacement {
    static BOOL WINAPI Move(HWND, int, int, int, int, BOOL repaint) {
      repaints = repaint;
      return TRUE;
    }
  };
  const ReplacedImport move("MoveWindow", reinterpret_cast<void*>(&Replacement::Move));
  struct Case {
    int32_t id;
    int repaints;
  };
  for (const Case& c : {Case{0, TRUE}, Case{kPush, FALSE}}) {
    repaints = -1;
    EXPECT_EQ(SetTo(kFormName, c.id, 1, {0, 0, 42, 43}), RTX_OK);
    EXPECT_EQ(repaints, c.repaints);
  }
}

// ---- Controls ----

TEST_F(PositionTest, OfAControlIsThatInItsParentWhateverTheMode) {
  for (const int32_t id : {int32_t{kPush}, int32_t{kField}, int32_t{kShape}, int32_t{kIconList}}) {
    for (const int32_t mode : {0, 1, 2, -1})
      EXPECT_EQ(Position(kFormName, id, mode), PlaceInParent(Control(id)));
  }
}

TEST_F(PositionTest, OfAControlIsSetAndBothPlacesPainted) {
  ShowForm();
  for (const int32_t mode : {0, 1, 2}) {
    const Place before = PlaceInParent(Control(kLabel));
    const Place after = {200 + 10 * mode, 150, 60, 20};
    const MessageSpy spy;
    EXPECT_EQ(SetTo(kFormName, kLabel, mode, after), RTX_OK);
    EXPECT_EQ(PlaceInParent(Control(kLabel)), after);
    EXPECT_NE(before, after);
    EXPECT_GE(PaintingOf(spy, form()).paints, 1);
    EXPECT_GE(PaintingOf(spy, form()).erasures, 1);
    EXPECT_FALSE(GetUpdateRect(form(), nullptr, FALSE));
  }
}

// Where the window isn't painted at once, what was invalidated shows.
TEST_F(PositionTest, OfAControlInvalidatesItsOldAndItsNewPlace) {
  ShowForm();
  const Place before = PlaceInParent(Control(kLabel));
  const Place after = {300, 200, 60, 20};
  static HRGN invalidated;
  struct Replacement {
    static BOOL WINAPI Keep(HWND window) {
      GetUpdateRgn(window, invalidated, FALSE);
      return TRUE;
    }
  };
  invalidated = CreateRectRgn(0, 0, 0, 0);
  {
    const ReplacedImport update("UpdateWindow", reinterpret_cast<void*>(&Replacement::Keep));
    SetTo(kFormName, kLabel, 0, after);
  }
  for (const Place& place : {before, after}) {
    SCOPED_TRACE(place);
    EXPECT_TRUE(PtInRegion(invalidated, place.x + 1, place.y + 1));
    EXPECT_TRUE(PtInRegion(invalidated, place.x + place.width - 1, place.y + place.height - 1));
  }
  EXPECT_FALSE(PtInRegion(invalidated, 270, 190));
  DeleteObject(invalidated);
}

// ---- Windows by their handles ----

TEST_F(PositionTest, WorksByTheHandleOfAForeignWindow) {
  const TestWindow foreign("STATIC", "", WS_POPUP | WS_CAPTION);
  for (const char* format : {"0x%x", "0X%X", "0x%08x", "0x000%x"}) {
    const std::string name = HandleText(foreign.get(), format);
    SCOPED_TRACE(name);
    EXPECT_EQ(Position(name, 0, 0), ClientPlace(foreign.get()));
    EXPECT_EQ(Position(name, 0, 1), OuterPlace(foreign.get()));
    for (const int32_t mode : {0, 1}) {
      const Place place = {60 + mode, 70, 180, 90};
      EXPECT_EQ(SetTo(name, 0, mode, place), RTX_OK);
      EXPECT_EQ(Position(name, 0, mode), place);
    }
  }
}

TEST_F(PositionTest, WorksByTheHandleOfAnotherProcesssWindow) {
  HWND desktop = GetDesktopWindow();
  DWORD process = 0;
  GetWindowThreadProcessId(desktop, &process);
  ASSERT_NE(process, GetCurrentProcessId());
  EXPECT_EQ(Position(HandleText(desktop), 0, 1),
            (Place{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}));
}

TEST_F(PositionTest, WorksByTheHandleOfAFormWithItsControls) {
  const std::string name = HandleText(form());
  EXPECT_EQ(Position(name, 0, 1), OuterPlace(form()));
  EXPECT_EQ(Position(name, kField, 0), PlaceInParent(Control(kField)));
  Place place = {};
  EXPECT_EQ(GetPosition(name.c_str(), kItem, 0, &place.x, &place.y, &place.width, &place.height),
            RTX_WRONG_KIND);
  EXPECT_EQ(GetPosition(name.c_str(), kUnknown, 0, &place.x, &place.y, &place.width, &place.height),
            RTX_NO_ITEM);
}

// The place of a window is one on the screen, also that of a control that is named by its handle. Its id is
// no menu, for which there would be room.
TEST_F(PositionTest, WorksByTheHandleOfAControl) {
  const std::string name = HandleText(Control(kPush));
  EXPECT_EQ(Position(name, 0, 1), OuterPlace(Control(kPush)));
  EXPECT_EQ(Position(name, 0, 0), ClientPlace(Control(kPush)));
  const Place corner = OuterPlace(form());
  for (const int32_t mode : {0, 1}) {
    const Place place = {corner.x + 100, corner.y + 120, 44, 33};
    EXPECT_EQ(SetTo(name, 0, mode, place), RTX_OK);
    EXPECT_EQ(OuterPlace(Control(kPush)), place);
  }
}

TEST_F(PositionTest, OfAHandleOfNothingIs702) {
  const HWND gone = TestWindow("STATIC").get();
  for (const std::string& name :
       {HandleText(gone), std::string("0x0"), std::string("0x1"), std::string("0xFFFFFFFF"),
        std::string("0x123456789ABCDEF01"), std::string("0x"), HandleText(form(), "%x"),
        HandleText(form(), "0x%x "), HandleText(form(), "0x%xL")}) {
    SCOPED_TRACE(name);
    Place place = {-7, -7, -7, -7};
    EXPECT_EQ(GetPosition(name.c_str(), 0, 1, &place.x, &place.y, &place.width, &place.height),
              RTX_NO_WINDOW);
    EXPECT_EQ(place, kNowhere);
    EXPECT_EQ(SetTo(name, 0, 1, {1, 1, 50, 50}), RTX_NO_WINDOW);
  }
}

// The other calls take names only.
TEST_F(PositionTest, AloneTakesHandles) {
  int32_t state = 0;
  EXPECT_EQ(GetWindowState(HandleText(form()).c_str(), 0, &state), RTX_NO_WINDOW);
}

// ---- Objects without windows ----

TEST_F(PositionTest, OfTheScreenIsTheWorkAreaAndOfThePrinterNothing) {
  RECT area = {};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  for (const int32_t id : {int32_t{0}, int32_t{kPush}, int32_t{kUnknown}}) {
    for (const int32_t mode : {0, 1, 2}) {
      EXPECT_EQ(Position("SCREEN", id, mode), ToPlace(area));
      EXPECT_EQ(Position("Screen", id, mode), ToPlace(area));
      EXPECT_EQ(Position("PRINTER", id, mode), kNowhere);
      EXPECT_EQ(Position("printer", id, mode), kNowhere);
    }
  }
}

TEST_F(PositionTest, OfTheScreenHasWidthAndHeightNotCorners) {
  struct Replacement {
    static BOOL WINAPI Answer(UINT action, UINT, PVOID out, UINT) {
      if (action == SPI_GETWORKAREA) *static_cast<RECT*>(out) = {10, 20, 110, 220};
      return TRUE;
    }
  };
  const ReplacedImport parameters("SystemParametersInfoA", reinterpret_cast<void*>(&Replacement::Answer));
  EXPECT_EQ(Position("SCREEN", 0, 0), (Place{10, 20, 100, 200}));
}

TEST_F(PositionTest, OfScreenAndPrinterCantBeSet) {
  const MessageSpy spy;
  for (const char* name : {"SCREEN", "PRINTER", "screen", "Printer"}) {
    EXPECT_EQ(SetTo(name, 0, 0, {1, 2, 3, 4}), RTX_OK);
    EXPECT_EQ(SetTo(name, kUnknown, 0, {1, 2, 3, 4}), RTX_OK);
  }
  EXPECT_TRUE(spy.sent().empty());
  int32_t x = -7;
  EXPECT_EQ(GetPosition("SCREEN", 0, 0, &x, nullptr, &x, &x), RTX_NULL_INT);
  EXPECT_EQ(x, 0);
}

TEST_F(PositionTest, OfScreenAndPrinterIsMeantAlsoWhereAWindowHasItsName) {
  RECT area = {};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  for (const char* name : {"Screen", "Printer"}) {
    SCOPED_TRACE(name);
    const EditFrame frame(kPlainFrameClass, name);
    const Place before = OuterPlace(frame.get());
    EXPECT_EQ(Position(name, 0, 1), *name == 'S' ? ToPlace(area) : kNowhere);
    EXPECT_EQ(SetTo(name, 0, 1, {60, 70, 180, 190}), RTX_OK);
    EXPECT_EQ(OuterPlace(frame.get()), before);
  }
}

// ---- Limits ----

using GetLimit = int32_t(__stdcall*)(const char*, int32_t, int32_t, int32_t*, int32_t*, int32_t*, int32_t*);
using SetLimit = int32_t(__stdcall*)(const char*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);

Place Limit(GetLimit get, int32_t outer, const char* name = kFormName) {
  Place place = {-7, -7, -7, -7};
  EXPECT_EQ(get(name, 0, outer, &place.x, &place.y, &place.width, &place.height), RTX_OK);
  return place;
}

void SetLimitTo(SetLimit set, int32_t outer, const Place& place, const char* name = kFormName) {
  EXPECT_EQ(set(name, 0, outer, place.x, place.y, place.width, place.height), RTX_OK);
}

MINMAXINFO AskPlatform(HWND window) {
  MINMAXINFO info = {};
  info.ptMaxSize = {1, 1};
  info.ptMaxPosition = {2, 2};
  info.ptMinTrackSize = {3, 3};
  info.ptMaxTrackSize = {4, 4};
  SendMessageA(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  return info;
}

TEST_F(PositionTest, LimitsAreThePlatformsAtFirst) {
  const MINMAXINFO& system = record()->systemMinMax;
  ASSERT_GT(system.ptMaxSize.x, 0);
  ASSERT_GT(system.ptMinTrackSize.x, 0);
  EXPECT_EQ(Limit(GetMaxPosition, 1),
            (Place{system.ptMaxPosition.x, system.ptMaxPosition.y, system.ptMaxSize.x, system.ptMaxSize.y}));
  EXPECT_EQ(Limit(GetMinPosition, 1), (Place{0, 0, system.ptMinTrackSize.x, system.ptMinTrackSize.y}));
}

TEST_F(PositionTest, LimitsAreThoseThatWereSetAndThePlatformHearsThem) {
  SetLimitTo(SetMaxPosition, 1, {5, 6, 500, 400});
  SetLimitTo(SetMinPosition, 1, {7, 8, 200, 150});
  EXPECT_EQ(Limit(GetMaxPosition, 1), (Place{5, 6, 500, 400}));
  EXPECT_EQ(Limit(GetMinPosition, 1), (Place{0, 0, 200, 150}));
  EXPECT_EQ(record()->minPosition.x, 0);
  EXPECT_EQ(record()->minPosition.y, 0);
  const MINMAXINFO info = AskPlatform(form());
  EXPECT_EQ(info.ptMaxPosition.x, 5);
  EXPECT_EQ(info.ptMaxPosition.y, 6);
  EXPECT_EQ(info.ptMaxSize.x, 500);
  EXPECT_EQ(info.ptMaxSize.y, 400);
  EXPECT_EQ(info.ptMaxTrackSize.x, 500);
  EXPECT_EQ(info.ptMinTrackSize.x, 200);
  EXPECT_EQ(info.ptMinTrackSize.y, 150);
  SetTo(kFormName, 0, 1, {0, 0, 900, 700});
  EXPECT_EQ(OuterPlace(form()), (Place{0, 0, 500, 400}));
  SetTo(kFormName, 0, 1, {0, 0, 10, 10});
  EXPECT_EQ(OuterPlace(form()), (Place{0, 0, 200, 150}));
}

TEST_F(PositionTest, LimitsWithoutWidthOrHeightAreUnset) {
  const Place most = Limit(GetMaxPosition, 1);
  const Place least = Limit(GetMinPosition, 1);
  for (const Place& place :
       {Place{1, 2, 0, 100}, Place{1, 2, 100, 0}, Place{1, 2, -5, 100}, Place{1, 2, 100, -5}}) {
    SCOPED_TRACE(place);
    SetLimitTo(SetMaxPosition, 1, place);
    SetLimitTo(SetMinPosition, 1, place);
    EXPECT_EQ(Limit(GetMaxPosition, 1), most);
    EXPECT_EQ(Limit(GetMinPosition, 1), least);
  }
}

TEST_F(PositionTest, LimitsOfWidthAndHeightZeroBringThePlatformsBack) {
  const Place most = Limit(GetMaxPosition, 1);
  const Place least = Limit(GetMinPosition, 1);
  for (const int32_t outer : {0, 1}) {
    SetLimitTo(SetMaxPosition, 1, {5, 6, 500, 400});
    SetLimitTo(SetMinPosition, 1, {0, 0, 200, 150});
    SetLimitTo(SetMaxPosition, outer, {9, 9, 0, 0});
    SetLimitTo(SetMinPosition, outer, {9, 9, 0, 0});
    EXPECT_EQ(Limit(GetMaxPosition, 1), most);
    EXPECT_EQ(Limit(GetMinPosition, 1), least);
    EXPECT_EQ(record()->minPosition.width, 0);
    EXPECT_EQ(record()->minPosition.height, 0);
    const MINMAXINFO info = AskPlatform(form());
    EXPECT_EQ(info.ptMaxSize.x, most.width);
    EXPECT_EQ(info.ptMaxPosition.x, most.x);
    EXPECT_EQ(info.ptMinTrackSize.x, 3);
  }
}

// One of the two alone is a size like any other.
TEST_F(PositionTest, LimitsOfWidthOrHeightZeroAreWidenedByTheFrame) {
  struct Case {
    GetLimit get;
    SetLimit set;
    Placement WindowRow::*field;
  };
  for (const Case& c : {Case{GetMaxPosition, SetMaxPosition, &WindowRow::maxPosition},
                        Case{GetMinPosition, SetMinPosition, &WindowRow::minPosition}}) {
    for (const Place& place : {Place{0, 0, 0, 300}, Place{0, 0, 400, 0}}) {
      SCOPED_TRACE(place);
      RECT outer = {0, 0, place.width, place.height};
      AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongA(form(), GWL_STYLE)), TRUE,
                         static_cast<DWORD>(GetWindowLongA(form(), GWL_EXSTYLE)));
      SetLimitTo(c.set, 0, place);
      const Placement& stored = record()->*c.field;
      EXPECT_EQ(stored.width, outer.right - outer.left);
      EXPECT_EQ(stored.height, outer.bottom - outer.top);
      EXPECT_EQ(Limit(c.get, 1), (Place{0, 0, outer.right - outer.left, outer.bottom - outer.top}));
    }
  }
}

struct Frame {
  const char* style;
  bool sizable;
  int border;  // 0 none, 1 thin, 2 sizing, 3 of a dialog
  bool caption;
  const char* menu;
};
constexpr Frame kFrames[] = {
    {"WS_POPUP", false, 0, false, ""},
    {"WS_POPUP | WS_BORDER", false, 1, false, ""},
    {"WS_POPUP | WS_CAPTION", false, 1, true, ""},
    {"WS_POPUP | WS_CAPTION", false, 1, true, "MENU Bar\n"},
    {"WS_POPUP | DS_MODALFRAME", false, 3, false, ""},
    {"WS_POPUP | DS_MODALFRAME | WS_CAPTION", false, 3, true, ""},
    {"WS_POPUP | WS_THICKFRAME", true, 2, false, ""},
    {"WS_POPUP | WS_THICKFRAME | WS_BORDER", true, 2, false, ""},
    {"WS_POPUP | WS_THICKFRAME | WS_CAPTION", true, 2, true, ""},
    {"WS_POPUP | WS_THICKFRAME | WS_CAPTION", true, 2, true, "MENU Bar\n"},
    {"WS_POPUP | WS_THICKFRAME | WS_CAPTION | DS_MODALFRAME", true, 2, true, ""},
    {"WS_OVERLAPPED | WS_THICKFRAME | WS_CAPTION", true, 2, true, ""},
};

LoadResult LoadFrame(const Frame& frame) {
  return LoadText("Other", std::string("Other DIALOG 0, 0, 100, 100\nSTYLE ") + frame.style + "\n" +
                               frame.menu + "BEGIN\nEND\nBar MENU\nBEGIN\n  MENUITEM \"a\", 200\nEND\n");
}

// What the frame, the title and the menu bar take of an outer size.
SIZE TakenBy(const Frame& frame) {
  static constexpr int kMeasures[4][2] = {
      {-1, -1}, {SM_CXBORDER, SM_CYBORDER}, {SM_CXFRAME, SM_CYFRAME}, {SM_CXDLGFRAME, SM_CYDLGFRAME}};
  SIZE taken = {0, 0};
  if (frame.border != 0) {
    taken.cx = 2 * GetSystemMetrics(kMeasures[frame.border][0]);
    taken.cy = 2 * GetSystemMetrics(kMeasures[frame.border][1]);
  }
  if (frame.caption) taken.cy += GetSystemMetrics(SM_CYCAPTION);
  if (*frame.menu != '\0') taken.cy += GetSystemMetrics(SM_CYMENU);
  return taken;
}

TEST_F(PositionTest, LimitsInClientTermsAreWithoutFrameTitleAndMenuBar) {
  DestroyWindow(form());
  for (const Frame& frame : kFrames) {
    SCOPED_TRACE(std::string(frame.style) + " " + frame.menu);
    const LoadResult other = LoadFrame(frame);
    ASSERT_EQ(other.code, RTX_OK);
    auto* record = RecordOf(other.window);
    record->maxPosition = {3, 4, 640, 480};
    record->minPosition = {0, 0, 300, 200};
    const SIZE taken = TakenBy(frame);
    EXPECT_EQ(Limit(GetMaxPosition, 1, "Other"), (Place{3, 4, 640, 480}));
    EXPECT_EQ(Limit(GetMaxPosition, 2, "Other"), (Place{3, 4, 640, 480}));
    EXPECT_EQ(Limit(GetMaxPosition, 0, "Other"), (Place{3, 4, 640 - taken.cx, 480 - taken.cy}));
    EXPECT_EQ(Limit(GetMinPosition, 0, "Other"), (Place{0, 0, 300 - taken.cx, 200 - taken.cy}));
    // No size is below 0.
    record->minPosition = {0, 0, 1, 1};
    const Place least = Limit(GetMinPosition, 0, "Other");
    EXPECT_EQ(least.width, taken.cx > 0 ? 0 : 1);
    EXPECT_EQ(least.height, taken.cy > 0 ? 0 : 1);
    DestroyWindow(other.window);
  }
}

TEST_F(PositionTest, LimitsAreTakenByWindowsThatTheUserCanSizeAlone) {
  DestroyWindow(form());
  for (const Frame& frame : kFrames) {
    SCOPED_TRACE(std::string(frame.style) + " " + frame.menu);
    const LoadResult other = LoadFrame(frame);
    ASSERT_EQ(other.code, RTX_OK);
    const auto* record = RecordOf(other.window);
    SetLimitTo(SetMaxPosition, 1, {3, 4, 640, 480}, "Other");
    SetLimitTo(SetMinPosition, 1, {3, 4, 300, 200}, "Other");
    EXPECT_EQ(record->maxPosition.width, frame.sizable ? 640 : 0);
    EXPECT_EQ(record->minPosition.width, frame.sizable ? 300 : 0);
    if (frame.sizable) {
      SetLimitTo(SetMaxPosition, 0, {3, 4, 640, 480}, "Other");
      SetLimitTo(SetMinPosition, 0, {3, 4, 300, 200}, "Other");
      RECT outer = {0, 0, 640, 480};
      AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongA(other.window, GWL_STYLE)),
                         *frame.menu != '\0', static_cast<DWORD>(GetWindowLongA(other.window, GWL_EXSTYLE)));
      EXPECT_EQ(Limit(GetMaxPosition, 1, "Other"),
                (Place{3, 4, outer.right - outer.left, outer.bottom - outer.top}));
      EXPECT_EQ(record->minPosition.width, 300 + (outer.right - outer.left - 640));
      EXPECT_EQ(record->minPosition.height, 200 + (outer.bottom - outer.top - 480));
    }
    DestroyWindow(other.window);
  }
}

TEST_F(PositionTest, LimitsOfWildNumbersAreHarmless) {
  for (const int32_t wild : {INT_MIN, INT_MAX, -1}) {
    for (const int32_t outer : {0, 1, wild}) {
      SetLimitTo(SetMaxPosition, outer, {wild, wild, wild, wild});
      SetLimitTo(SetMinPosition, outer, {wild, wild, wild, wild});
      Limit(GetMaxPosition, outer);
      Limit(GetMinPosition, outer);
    }
  }
  EXPECT_TRUE(IsWindow(form()));
}

}  // namespace
}  // namespace brelt::test
