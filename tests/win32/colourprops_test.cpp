// BackColour, ForeColour and BorderStyle.
#include <string>

#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

using GetColour = int32_t(__stdcall*)(const char*, int32_t, int32_t*);
using SetColour = int32_t(__stdcall*)(const char*, int32_t, int32_t);

class ColourTest : public PropertyTest {
 protected:
  static int32_t Get(GetColour get, int32_t id, const char* name = kFormName) {
    int32_t colour = -77;
    EXPECT_EQ(get(name, id, &colour), RTX_OK);
    return colour;
  }
  static int32_t Border(int32_t id, const char* name = kFormName) { return Get(GetBorderStyle, id, name); }
};

TEST_F(ColourTest, OfAWindowIsItsRecords) {
  EXPECT_EQ(Get(GetBackColour, 0), 0xFFFFFF);
  EXPECT_EQ(Get(GetForeColour, 0), 0);
  for (const int32_t colour : {0x123456, 0, -1, 0xFFFFFF}) {
    EXPECT_EQ(SetBackColour(kFormName, 0, colour), RTX_OK);
    EXPECT_EQ(SetForeColour(kFormName, 0, colour ^ 0xFF), RTX_OK);
    EXPECT_EQ(static_cast<int32_t>(record()->backColour), colour);
    EXPECT_EQ(static_cast<int32_t>(record()->foreColour), colour ^ 0xFF);
    EXPECT_EQ(Get(GetBackColour, 0), colour);
    EXPECT_EQ(Get(GetForeColour, 0), colour ^ 0xFF);
  }
}

TEST_F(ColourTest, OfAnEditWindowIsItsRecords) {
  const EditFrame frame(kRichFrameClass, "Rich");
  EXPECT_EQ(SetBackColour("Rich", 0, 0x10), RTX_OK);
  EXPECT_EQ(SetForeColour("Rich", 0, 0x20), RTX_OK);
  EXPECT_EQ(Get(GetBackColour, 0, "Rich"), 0x10);
  EXPECT_EQ(Get(GetForeColour, 0, "Rich"), 0x20);
  EXPECT_EQ(Get(GetBackColour, 0), 0xFFFFFF);
}

TEST_F(ColourTest, OfAControlTravelsByTheMessagesOfItsFamily) {
  struct Case {
    int32_t id;
    GetColour get;
    SetColour set;
    UINT getMessage;
    UINT setMessage;
  };
  const Case cases[] = {
      {kShape, GetBackColour, SetBackColour, 1296, 1297},
      {kShape, GetForeColour, SetForeColour, 1298, 1299},
      {kProgressBar, GetBackColour, SetBackColour, 1302, 1303},
      {kProgressBar, GetForeColour, SetForeColour, 1304, 1305},
  };
  int32_t colour = 0x102030;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.setMessage);
    MessageSpy spy;
    EXPECT_EQ(c.set(kFormName, c.id, ++colour), RTX_OK);
    const auto set = spy.To(Control(c.id), c.setMessage);
    ASSERT_EQ(set.size(), 1u);
    EXPECT_EQ(set[0].wParam, 0u);
    EXPECT_EQ(set[0].lParam, colour);
    EXPECT_EQ(Get(c.get, c.id), colour);
    EXPECT_EQ(spy.To(Control(c.id), c.getMessage).size(), 1u);
  }
  // Each has changed its own alone.
  EXPECT_EQ(Get(GetBackColour, kShape), 0x102031);
  EXPECT_EQ(Get(GetForeColour, kShape), 0x102032);
  EXPECT_EQ(Get(GetBackColour, kProgressBar), 0x102033);
  EXPECT_EQ(Get(GetForeColour, kProgressBar), 0x102034);
  EXPECT_EQ(Get(GetBackColour, 0), 0xFFFFFF);
}

// Without a print job there is nothing to set. The control number has no effect.
TEST_F(ColourTest, OfThePrinterIsZeroWithoutAJob) {
  for (const char* name : {"Printer", "PRINTER", "printer"}) {
    for (const int32_t id : {int32_t{0}, int32_t{kPush}, int32_t{kUnknown}, -1}) {
      SCOPED_TRACE(std::string(name) + " " + std::to_string(id));
      EXPECT_EQ(SetBackColour(name, id, 0x112233), RTX_OK);
      EXPECT_EQ(SetForeColour(name, id, 0x112233), RTX_OK);
      EXPECT_EQ(Get(GetBackColour, id, name), 0);
      EXPECT_EQ(Get(GetForeColour, id, name), 0);
    }
  }
  EXPECT_EQ(GetBackColour("Printer", 0, nullptr), RTX_NULL_INT);
  EXPECT_EQ(GetForeColour("Printer", 0, nullptr), RTX_NULL_INT);
  int32_t colour = -77;
  EXPECT_EQ(GetBackColour("Printers", 0, &colour), RTX_NO_WINDOW);
}

TEST_F(ColourTest, OfThePrinterIsMeantAlsoWhereAWindowHasItsName) {
  const EditFrame frame(kPlainFrameClass, "Printer");
  EXPECT_EQ(SetBackColour("Printer", 0, 5), RTX_OK);
  EXPECT_EQ(RecordOf(frame.get())->backColour, 0u);
}

// ---- BorderStyle ----

TEST_F(ColourTest, BorderOfAWindowFollowsFromItsStyle) {
  struct Case {
    const char* style;
    int32_t border;
  };
  const Case cases[] = {
      {"WS_POPUP", 0},
      {"WS_POPUP | WS_BORDER", 1},
      {"WS_POPUP | WS_CAPTION", 1},
      {"WS_POPUP | WS_THICKFRAME", 2},
      {"WS_POPUP | WS_THICKFRAME | WS_BORDER", 2},
      {"WS_POPUP | DS_MODALFRAME", 3},
      {"WS_POPUP | DS_MODALFRAME | WS_THICKFRAME | WS_BORDER", 3},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.style);
    const LoadResult other = LoadDialog("Other", "", std::string("STYLE ") + c.style + "\n");
    ASSERT_EQ(other.code, RTX_OK);
    EXPECT_EQ(Border(0, "Other"), c.border);
    DestroyWindow(other.window);
  }
}

TEST_F(ColourTest, BorderOfAShapeIsItsOwn) {
  const MessageSpy spy;
  EXPECT_EQ(Border(kShape), 2);
  EXPECT_EQ(spy.To(Control(kShape), 1300).size(), 1u);
}

// A standard control's border became a sunken edge when it was made, which isn't what is looked at.
TEST_F(ColourTest, BorderOfAControlIsLostInASunkenEdge) {
  EXPECT_NE(GetWindowLongA(Control(kField), GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
  for (const int32_t id : {int32_t{kField}, int32_t{kListBox}, int32_t{kDropDown}, int32_t{kPush}}) {
    EXPECT_EQ(Border(id), 0) << id;
  }
  const LoadResult other = LoadDialog("Other", "  CONTROL \"\", 100, \"IMAGE\", WS_BORDER, 0, 0, 9, 9");
  ASSERT_EQ(other.code, RTX_OK);
  EXPECT_EQ(Border(100, "Other"), 1);
}

TEST_F(ColourTest, BorderOfEachControlIsOneInAWindowWithASunkenEdge) {
  SetWindowLongA(form(), GWL_EXSTYLE, GetWindowLongA(form(), GWL_EXSTYLE) | WS_EX_CLIENTEDGE);
  for (const int32_t id : {int32_t{kField}, int32_t{kPush}, int32_t{kImage}, int32_t{kProgressBar}}) {
    EXPECT_EQ(Border(id), 1) << id;
  }
  EXPECT_EQ(Border(kShape), 2);
}

}  // namespace
}  // namespace brelt::test
