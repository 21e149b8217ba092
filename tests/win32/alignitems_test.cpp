// The tab stops that AlignItems gives a list, against widths measured here.
#include <algorithm>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

constexpr int32_t kId = 101;
using Stops = std::vector<int>;

// What a list was told, in order; the stops are copied while they are there.
struct Told {
  std::vector<std::string> messages;
  Stops stops;
};
Told told;
WNDPROC realProcedure = nullptr;

LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SETREDRAW) told.messages.push_back(wParam != 0 ? "redraw on" : "redraw off");
  if (message == LB_SETTABSTOPS) {
    told.messages.push_back("tab stops");
    const auto* stops = reinterpret_cast<const int*>(lParam);
    told.stops.assign(stops, stops + wParam);
  }
  return CallWindowProcA(realProcedure, window, message, wParam, lParam);
}

constexpr const char* kListBox = "LISTBOX 101, 0, 0, 90, 90, LBS_USETABSTOPS";
constexpr const char* kIconList = "CONTROL \"\", 101, \"ICONLIST\", 0x80, 0, 0, 90, 90";

class AlignItemsTest : public FormTest {
 protected:
  void Make(const std::string& statement, const std::string& font = "8, \"MS Sans Serif\"") {
    DestroyLibraryWindows();
    const LoadResult form =
        LoadDialog("Form", "  " + statement + "\n", "STYLE WS_POPUP | WS_CAPTION\nFONT " + font + "\n");
    ASSERT_EQ(form.code, RTX_OK) << form.message;
    list_ = GetDlgItem(form.window, kId);
    realProcedure =
        reinterpret_cast<WNDPROC>(SetWindowLongA(list_, GWL_WNDPROC, reinterpret_cast<LONG>(Listen)));
    told = {};
  }
  void Add(const std::string& text) const {
    SendMessageA(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
  }
  // The width of a text in the list's own font.
  int Width(const std::string& text) const {
    HDC dc = CreateCompatibleDC(nullptr);
    auto* font = reinterpret_cast<HFONT>(SendMessageA(list_, WM_GETFONT, 0, 0));
    HGDIOBJ before = SelectObject(dc, font != nullptr ? font : GetStockObject(SYSTEM_FONT));
    SIZE size = {};
    GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(dc, before);
    DeleteDC(dc);
    return size.cx;
  }
  // The stops that columns with these widest texts need.
  Stops StopsFor(const std::vector<std::string>& widest) const {
    const int unit = (Width("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ") / 26 + 1) / 2;
    Stops stops;
    int stop = 0;
    for (const std::string& text : widest) {
      stop += Width(text) * 4 / unit + unit;
      stops.push_back(stop);
    }
    return stops;
  }

  HWND list_ = nullptr;
};

TEST_F(AlignItemsTest, SetsAStopBehindTheWidestTextOfEachColumn) {
  struct Case {
    const char* what;
    std::vector<std::string> items;
    std::vector<std::string> widest;
  };
  const Case cases[] = {
      {"no tabs", {"abc"}, {"abc"}},
      {"an empty item", {""}, {""}},
      {"two columns", {"abc\tdefghi"}, {"abc", "defghi"}},
      {"the widest of each column", {"iiii\tMMMM\tx", "MMMM\tiiii"}, {"MMMM", "MMMM", "x"}},
      {"widest by pixels and not by characters", {"MM\ta", "iii\tb"}, {"MM", "b"}},
      {"empty columns", {"\t\ta\t"}, {"", "", "a", ""}},
      {"the most columns of any item", {"a", "b\tc\td\te", "f\tg"}, {"b", "c", "d", "e"}},
      {"characters above 127", {"\xC4\xD6\xDC\tx"}, {"\xC4\xD6\xDC", "x"}},
  };
  for (const char* statement : {kListBox, kIconList}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(statement) + ": " + c.what);
      Make(statement);
      for (const std::string& item : c.items) Add(item);
      ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
      EXPECT_EQ(told.stops, StopsFor(c.widest));
    }
  }
}

TEST_F(AlignItemsTest, MeasuresInTheListsFont) {
  Stops previous;
  for (const char* font : {"8, \"MS Sans Serif\"", "24, \"Tahoma\"", "12, \"Courier\""}) {
    SCOPED_TRACE(font);
    Make(kListBox, font);
    Add("MMM\tiii");
    ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
    EXPECT_EQ(told.stops, StopsFor({"MMM", "iii"}));
    EXPECT_NE(told.stops, previous);
    previous = told.stops;
  }
}

TEST_F(AlignItemsTest, LeavesItemsOfMoreThan1024CharactersOut) {
  Make(kListBox);
  Add("i\tb");
  Add("x\t" + std::string(1022, 'M'));
  ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
  EXPECT_EQ(told.stops, StopsFor({"x", std::string(1022, 'M')}));

  Make(kListBox);
  Add("i\tb");
  Add("x\t" + std::string(1023, 'M'));
  ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
  EXPECT_EQ(told.stops, StopsFor({"i", "b"}));

  // Nothing was measured: no columns.
  Make(kListBox);
  Add(std::string(1025, 'M'));
  ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
  EXPECT_EQ(told.messages, (std::vector<std::string>{"redraw off", "tab stops", "redraw on"}));
  EXPECT_EQ(told.stops, Stops());
}

TEST_F(AlignItemsTest, HasRoomFor1025Columns) {
  Make(kListBox);
  Add(std::string(1024, '\t'));
  Add("a\tb");
  ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
  std::vector<std::string> widest(1025);
  widest[0] = "a";
  widest[1] = "b";
  EXPECT_EQ(told.stops, StopsFor(widest));
}

TEST_F(AlignItemsTest, MeasuresTheCaptionOfAnIconListLikeAnItem) {
  struct Case {
    std::string caption;
    std::vector<std::string> widest;
  };
  const std::string long1024 = "x\t" + std::string(1022, 'M');
  const Case cases[] = {{"MMM\tb\tc", {"MMM", "iii", "c"}},
                        {"", {"iii", "iii"}},
                        {long1024, {"iii", std::string(1022, 'M')}},
                        {long1024 + "M", {"iii", std::string(1022, 'M')}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.caption.size());
    Make(kIconList);
    Add("iii\tiii");
    SetWindowTextA(list_, c.caption.c_str());
    ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
    EXPECT_EQ(told.stops, StopsFor(c.widest));
  }
  // Of a list box it counts for nothing.
  Make(kListBox);
  Add("iii\tiii");
  SetWindowTextA(list_, "MMM\tb\tc");
  ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
  EXPECT_EQ(told.stops, StopsFor({"iii", "iii"}));
}

TEST_F(AlignItemsTest, LeavesAListWithoutItemsAsItWas) {
  for (const char* statement : {kListBox, kIconList}) {
    Make(statement);
    SetWindowTextA(list_, "a\tb");
    EXPECT_EQ(AlignItems("Form", kId), RTX_OK);
    EXPECT_EQ(told.messages, std::vector<std::string>());
  }
}

TEST_F(AlignItemsTest, DrawsOnceAndWithoutErasing) {
  Make(kListBox);
  Add("a\tb");
  ShowWindow(GetParent(list_), SW_SHOW);
  Pump();
  UpdateWindow(list_);
  told = {};
  ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
  EXPECT_EQ(told.messages, (std::vector<std::string>{"redraw off", "tab stops", "redraw on"}));
  RECT client = {};
  RECT area = {};
  GetClientRect(list_, &client);
  EXPECT_TRUE(GetUpdateRect(list_, &area, FALSE));
  EXPECT_TRUE(EqualRect(&area, &client));
}

// A list that draws its items itself may have data in the place of texts, which no terminator ends.
TEST_F(AlignItemsTest, TakesTheDataOfAListWithoutTextsForTextsOfThatSize) {
  Make("CONTROL \"\", 101, \"LISTBOX\", 0x90, 0, 0, 90, 90");
  Add(std::string(900, 'M'));
  SendMessageA(list_, LB_RESETCONTENT, 0, 0);
  SendMessageA(list_, LB_ADDSTRING, 0, 0x41094141);
  ASSERT_EQ(AlignItems("Form", kId), RTX_OK);
  EXPECT_EQ(told.stops, StopsFor({"AA", "A"}));
}

TEST_F(AlignItemsTest, GivesContextAndFontBack) {
  Make(kListBox);
  Add("a\tb");
  const CountedImport<struct GetDcTag, HDC, HWND> taken("GetDC");
  const CountedImport<struct ReleaseDcTag, int, HWND, HDC> given("ReleaseDC");
  const CountedImport<struct SelectTag, HGDIOBJ, HDC, HGDIOBJ> selected("SelectObject");
  EXPECT_EQ(AlignItems("Form", kId), RTX_OK);
  EXPECT_EQ(taken.calls(), 1);
  EXPECT_EQ(given.calls(), 1);
  EXPECT_EQ(selected.calls(), 2);
}

TEST_F(AlignItemsTest, DoesNothingWithoutADeviceContext) {
  Make(kListBox);
  Add("a\tb");
  const CountedImport<struct GetDcTag, HDC, HWND> contexts("GetDC", 1);
  EXPECT_EQ(AlignItems("Form", kId), RTX_OK);
  EXPECT_TRUE(contexts.HasFailed());
  EXPECT_EQ(told.messages, std::vector<std::string>());
}

}  // namespace
}  // namespace brelt::test
