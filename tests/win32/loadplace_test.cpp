// Where a loaded window stands, and the fonts that its units come from.
#include <cstring>
#include <string>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/record.h"

namespace brelt::test {
namespace {

struct Units {
  int width;
  int height;
};

// The units of a window's font, by a measurement of the test's own.
Units UnitsOf(HWND window) {
  HDC display = CreateCompatibleDC(nullptr);
  HGDIOBJ previous = SelectObject(display, RecordOf(window)->font);
  TEXTMETRICA metrics = {};
  GetTextMetricsA(display, &metrics);
  SIZE size = {};
  GetTextExtentPoint32A(display, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", 52, &size);
  SelectObject(display, previous);
  DeleteDC(display);
  const bool variablePitch = (metrics.tmPitchAndFamily & 1) != 0;
  return {variablePitch ? (size.cx / 26 + 1) / 2 : metrics.tmAveCharWidth, metrics.tmHeight};
}

RECT PlaceOf(HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  return place;
}

class LoadPlaceTest : public FormTest {
 protected:
  static LoadResult LoadAt(const std::string& coordinates, const std::string& statements) {
    return LoadText("Main", "Main DIALOG " + coordinates + "\n" + statements + "BEGIN\nEND\n" +
                                "Bar MENU\nBEGIN\n  MENUITEM \"a\", 1\nEND\n");
  }
};

TEST_F(LoadPlaceTest, IsScaledByTheUnitsOfTheFont) {
  struct Case {
    int x, y, width, height;
    const char* statements;
    bool hasMenu;
  };
  const Case cases[] = {
      {10, 10, 200, 150, "STYLE WS_POPUP\n", false},
      {11, 13, 201, 153, "STYLE WS_POPUP | WS_CAPTION | WS_THICKFRAME\n", false},
      {0, 0, 100, 100, "STYLE WS_POPUP | WS_CAPTION | DS_MODALFRAME\nFONT 14, \"Tahoma\"\n", false},
      {7, 3, 99, 33, "STYLE WS_POPUP | WS_BORDER\nFONT 10, \"Courier\"\n", false},
      {10, 10, 200, 150, "STYLE WS_POPUP | WS_CAPTION\nMENU Bar\n", true},
      {-5, -7, 120, 80, "STYLE WS_POPUP | WS_CAPTION\n", false},
      // The frame without a caption comes from the extended style alone.
      {10, 10, 200, 150, "STYLE WS_POPUP | DS_MODALFRAME\n", false},
      {10, 10, 200, 150, "", false},
      {3, 5, 120, 80, "STYLE WS_CAPTION | WS_SYSMENU | WS_THICKFRAME\n", false},
  };
  for (const Case& c : cases) {
    const std::string coordinates = std::to_string(c.x) + ", " + std::to_string(c.y) + ", " +
                                    std::to_string(c.width) + ", " + std::to_string(c.height);
    SCOPED_TRACE(coordinates + " " + c.statements);
    const LoadResult form = LoadAt(coordinates, c.statements);
    ASSERT_EQ(form.message, "");
    ASSERT_EQ(form.code, RTX_OK);
    const Units units = UnitsOf(form.window);
    RECT outer = {0, 0, units.width * c.width / 4, units.height * c.height / 8};
    AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongA(form.window, GWL_STYLE)), c.hasMenu,
                       static_cast<DWORD>(GetWindowLongA(form.window, GWL_EXSTYLE)));
    const RECT place = PlaceOf(form.window);
    EXPECT_EQ(place.left, units.width * c.x / 4);
    EXPECT_EQ(place.top, units.height * c.y / 8);
    EXPECT_EQ(place.right - place.left, outer.right - outer.left);
    EXPECT_EQ(place.bottom - place.top, outer.bottom - outer.top);
    DestroyLibraryWindows();
  }
}

TEST_F(LoadPlaceTest, IsTheMiddleOfTheScreenWithDsCenterWhateverTheCoordinates) {
  for (const char* coordinates : {"0, 0, 101, 103", "50, 70, 101, 103", "-9, 999, 101, 103"}) {
    SCOPED_TRACE(coordinates);
    const LoadResult form = LoadAt(coordinates, "STYLE WS_POPUP | WS_CAPTION | DS_CENTER\n");
    ASSERT_EQ(form.code, RTX_OK);
    const RECT place = PlaceOf(form.window);
    const LONG width = place.right - place.left;
    const LONG height = place.bottom - place.top;
    EXPECT_EQ(place.left, GetSystemMetrics(SM_CXSCREEN) / 2 - width / 2);
    EXPECT_EQ(place.top, GetSystemMetrics(SM_CYSCREEN) / 2 - height / 2);
    const Units units = UnitsOf(form.window);
    RECT client = {};
    GetClientRect(form.window, &client);
    EXPECT_EQ(client.right, units.width * 101 / 4);
    EXPECT_EQ(client.bottom, units.height * 103 / 8);
    DestroyLibraryWindows();
  }
}

struct Move {
  POINT place;
  BOOL repaint;
};
std::vector<Move> moves;

BOOL WINAPI RecordMove(HWND window, int x, int y, int width, int height, BOOL repaint) {
  moves.push_back({{x, y}, repaint});
  return MoveWindow(window, x, y, width, height, repaint);
}

TEST_F(LoadPlaceTest, IsTakenByMovesThatAskForNoRepaint) {
  const ReplacedImport move("MoveWindow", reinterpret_cast<void*>(&RecordMove));
  for (const bool centred : {false, true}) {
    SCOPED_TRACE(centred);
    moves.clear();
    const LoadResult form =
        LoadAt("40, 48, 101, 103", centred ? "STYLE WS_POPUP | DS_CENTER\n" : "STYLE WS_POPUP\n");
    ASSERT_EQ(form.code, RTX_OK);
    const RECT place = PlaceOf(form.window);
    ASSERT_EQ(moves.size(), centred ? 2u : 1u);
    if (centred) {
      EXPECT_EQ(moves.front().place.x, 0);
      EXPECT_EQ(moves.front().place.y, 0);
    }
    EXPECT_EQ(moves.back().place.x, place.left);
    EXPECT_EQ(moves.back().place.y, place.top);
    for (const Move& made : moves) EXPECT_FALSE(made.repaint);
    DestroyLibraryWindows();
  }
}

TEST_F(LoadPlaceTest, OfImpossibleSizesIsNoFailure) {
  for (const char* coordinates :
       {"0, 0, 0, 0", "0, 0, -5, -5", "2147483647, -2147483648, 2147483647, -2147483648", ""}) {
    SCOPED_TRACE(coordinates);
    const LoadResult form = LoadAt(coordinates, "STYLE WS_POPUP | WS_CAPTION\n");
    EXPECT_EQ(form.code, RTX_OK);
    EXPECT_TRUE(IsWindow(form.window));
    DestroyLibraryWindows();
  }
}

TEST_F(LoadPlaceTest, RaisesNoResizeEventWhileItIsFound) {
  ASSERT_EQ(LoadAt("0, 0, 100, 100", "STYLE WS_POPUP | WS_THICKFRAME | DS_CENTER\n").code, RTX_OK);
  EXPECT_EQ(Log().All(), "EV_LOAD 0 0\n");
}

// ---- Fonts ----

DWORD pretendedMajor;

BOOL WINAPI PretendMajor(OSVERSIONINFOA* version) {
  version->dwMajorVersion = pretendedMajor;
  version->dwMinorVersion = 0;
  version->dwPlatformId = VER_PLATFORM_WIN32_NT;
  return TRUE;
}

LOGFONTA variableFont;

int WINAPI PretendVariableFont(HANDLE object, int size, void* description) {
  EXPECT_EQ(object, GetStockObject(ANSI_VAR_FONT));
  EXPECT_EQ(size, static_cast<int>(sizeof variableFont));
  std::memcpy(description, &variableFont, sizeof variableFont);
  return size;
}

int pretendedPixels;

int WINAPI PretendPixels(HDC, int index) {
  EXPECT_EQ(index, LOGPIXELSY);
  return pretendedPixels;
}

LOGFONTA FontOf(HFONT font) {
  LOGFONTA description = {};
  EXPECT_NE(GetObjectA(font, sizeof description, &description), 0);
  return description;
}

struct FontCase {
  const char* statements;
  DWORD major;
  const char* face;
  int points;
  LONG weight;
  BYTE italic;
};

class LoadFontTest : public FormTest {
 protected:
  void ExpectFonts(const FontCase& c, int pixels = 96) {
    SCOPED_TRACE(std::string(c.statements) + " on version " + std::to_string(c.major));
    pretendedMajor = c.major;
    const LoadResult form =
        LoadText("Main", std::string("Main DIALOG 0, 0, 9, 9\n") + c.statements + "BEGIN\nEND\n");
    ASSERT_EQ(form.code, RTX_OK);
    for (HFONT font : {RecordOf(form.window)->font, RecordOf(form.window)->drawFont}) {
      const LOGFONTA made = FontOf(font);
      EXPECT_STREQ(made.lfFaceName, c.face);
      EXPECT_EQ(made.lfHeight, -MulDiv(pixels, c.points, 72));
      EXPECT_EQ(made.lfWeight, c.weight);
      EXPECT_EQ(made.lfItalic, c.italic);
    }
    DestroyLibraryWindows();
  }

 private:
  ReplacedImport version_{"GetVersionExA", reinterpret_cast<void*>(&PretendMajor)};
};

TEST_F(LoadFontTest, IsTheOneOfTheFontStatementBoldOnVersion3Alone) {
  for (const DWORD major : {2, 3, 4, 5, 6, 10}) {
    ExpectFonts({"FONT 12, \"Tahoma\"\n", major, "Tahoma", 12, major == 3 ? 700 : 400, 0});
  }
}

std::vector<LONG> madeWeights;
HFONT WINAPI RecordWeight(const LOGFONTA* font) {
  madeWeights.push_back(font->lfWeight);
  return CreateFontIndirectA(font);
}

// The bold of version 3 is for a Dialog's own FONT statement; what stands for a missing one is bold in each
// class.
TEST_F(LoadFontTest, OfAnEditWindowIsBoldOnVersion3WithoutAFontStatementOnly) {
  const ReplacedImport making("CreateFontIndirectA", reinterpret_cast<void*>(&RecordWeight));
  pretendedMajor = 3;
  struct Case {
    const char* statements;
    std::vector<LONG> weights;
  };
  for (const Case& c : {Case{"CLASS \"Editwindow\"\nFONT 12, \"Tahoma\"\n", {400}},
                        Case{"CLASS \"Editwindow\"\n", {700}}, Case{"FONT 12, \"Tahoma\"\n", {700, 700}}}) {
    SCOPED_TRACE(c.statements);
    madeWeights.clear();
    LoadText("Main", std::string("Main DIALOG 0, 0, 9, 9\n") + c.statements + "BEGIN\nEND\n");
    EXPECT_EQ(madeWeights, c.weights);
    DestroyLibraryWindows();
  }
}

TEST_F(LoadFontTest, IsMicrosoftSansSerifWithoutAFontStatementAboveVersion4AndBoldOnVersion3) {
  ExpectFonts({"", 3, "Microsoft Sans Serif", 8, 700, 0});
  ExpectFonts({"", 5, "Microsoft Sans Serif", 8, 400, 0});
  ExpectFonts({"", 6, "Microsoft Sans Serif", 8, 400, 0});
  ExpectFonts({"", 10, "Microsoft Sans Serif", 8, 400, 0});
}

TEST_F(LoadFontTest, IsThePlatformsVariableFontOnVersion4AndBelow) {
  ReplacedImport object("GetObjectA", reinterpret_cast<void*>(&PretendVariableFont));
  struct Case {
    LONG height, weight;
    BYTE italic;
    int points;
    LONG madeWeight;
    BYTE madeItalic;
  };
  for (const Case& c :
       {Case{12, 400, 0, 9, 400, 0}, Case{-16, 699, 1, 12, 400, 1}, Case{16, 700, 255, 12, 700, 1},
        Case{13, 900, 0, 10, 700, 0}, Case{0, 0, 0, 0, 400, 0}}) {
    variableFont = {};
    variableFont.lfHeight = c.height;
    variableFont.lfWeight = c.weight;
    variableFont.lfItalic = c.italic;
    std::strcpy(variableFont.lfFaceName, "Arial");
    for (const DWORD major : {4, 2, 0})
      ExpectFonts({"", major, "Arial", c.points, c.madeWeight, c.madeItalic});
  }
}

TEST_F(LoadFontTest, HasItsHeightFromTheDisplaysPixelsPerInch) {
  ReplacedImport pixels("GetDeviceCaps", reinterpret_cast<void*>(&PretendPixels));
  for (const int perInch : {72, 96, 120, 144}) {
    pretendedPixels = perInch;
    ExpectFonts({"FONT 10, \"Tahoma\"\n", 6, "Tahoma", 10, 400, 0}, perInch);
  }
}

TEST_F(LoadFontTest, TakesPointsOfTheVariableFontFromTheDisplaysPixelsPerInch) {
  ReplacedImport object("GetObjectA", reinterpret_cast<void*>(&PretendVariableFont));
  ReplacedImport pixels("GetDeviceCaps", reinterpret_cast<void*>(&PretendPixels));
  variableFont = {};
  variableFont.lfHeight = 20;
  std::strcpy(variableFont.lfFaceName, "Arial");
  pretendedPixels = 144;
  ExpectFonts({"", 4, "Arial", 10, 400, 0}, 144);
}

HDC WINAPI NoContext(LPCSTR driver, LPCSTR, LPCSTR, const DEVMODEA*) {
  EXPECT_STREQ(driver, "DISPLAY");
  return nullptr;
}

TEST_F(LoadFontTest, Counts96PixelsPerInchWhereTheDisplayCantBeAsked) {
  ReplacedImport context("CreateICA", reinterpret_cast<void*>(&NoContext));
  ReplacedImport object("GetObjectA", reinterpret_cast<void*>(&PretendVariableFont));
  variableFont = {};
  variableFont.lfHeight = 20;
  std::strcpy(variableFont.lfFaceName, "Arial");
  ExpectFonts({"", 4, "Arial", 15, 400, 0}, 96);
  ExpectFonts({"FONT 10, \"Tahoma\"\n", 6, "Tahoma", 10, 400, 0}, 96);
}

// The font of an RC file is cut to the record's 32 characters and then to the 31 that a font can have.
TEST_F(LoadFontTest, HasAFaceOf31CharactersAtMost) {
  ExpectFonts({"FONT 10, \"abcdefghijklmnopqrstuvwxyz0123456789\"\n", 6, "abcdefghijklmnopqrstuvwxyz01234",
               10, 400, 0});
}

}  // namespace
}  // namespace brelt::test
