#include <gtest/gtest.h>

#include "rc/stylewords.h"
#include "resprops/classkeyword.h"
#include "resprops/proparray.h"
#include "resprops/property.h"
#include "tests/resprops/propsupport.h"
#include "tests/support/dump.h"

namespace brelt::resprops {
namespace {

using rc::StyleBits;
using test::Rows;
using Texts = std::vector<std::string>;

TEST(ParseInteger, TakesHexadecimalAndDecimalNumbers) {
  const std::pair<const char*, std::int32_t> cases[] = {
      {"", 0},
      {"0", 0},
      {"7", 7},
      {"-7", -7},
      {"+7", 7},
      {"007", 7},
      {"12abc", 12},
      {"abc", 0},
      {" 7", 0},
      {"-", 0},
      {"--7", 0},
      {"\"7\"", 0},
      {"0x10", 16},
      {"0X1f", 31},
      {"0x", 0},
      {"0xg", 0},
      {"0x10L", 16},
      {"-0x10", 0},
      {"0xFFFFFFFF", -1},
      {"0x80000000", INT32_MIN},
      {"0x1FFFFFFFE", -2},
      {"0x100000000", 0},
      {"2147483647", INT32_MAX},
      {"2147483648", INT32_MAX},
      {"-2147483648", INT32_MIN},
      {"-99999999999999999999", INT32_MIN},
      {"4294967295", INT32_MAX},
  };
  for (const auto& [text, number] : cases) EXPECT_EQ(ParseInteger(text), number) << text;
}

TEST(ClassAndKeywordOf, GivesTheStatementOfEachType) {
  struct Case {
    const char* type;
    bool isDefault;
    std::int32_t alignment;
    const char* className;
    const char* keyword;
  };
  const Case cases[] = {
      {"Bitmapbutton", false, 0, "BITMAPBUTTON", "CONTROL"},
      {"Checkbox", false, 0, "BUTTON", "CHECKBOX"},
      {"Combobox", false, 0, "COMBOBOX", "COMBOBOX"},
      {"Dialog", false, 0, "", "DIALOG"},
      {"Edit", false, 0, "EDIT", "EDITTEXT"},
      {"Editwindow", false, 0, "EDITWINDOW", "DIALOG"},
      {"Groupbox", false, 0, "BUTTON", "GROUPBOX"},
      {"Icon", false, 0, "STATIC", "ICON"},
      {"Iconlist", false, 0, "ICONLIST", "CONTROL"},
      {"Image", false, 0, "IMAGE", "CONTROL"},
      {"Label", false, 0, "STATIC", "LTEXT"},
      {"Label", true, 1, "STATIC", "CTEXT"},
      {"Label", false, 2, "STATIC", "RTEXT"},
      {"Label", false, 3, "STATIC", "LTEXT"},
      {"Label", false, 4, "STATIC", ""},
      {"Label", false, -1, "STATIC", ""},
      {"Listbox", false, 0, "LISTBOX", "LISTBOX"},
      {"Menuitem", false, 0, "MENUITEM", "MENUITEM"},
      {"Progressbar", false, 0, "PROGRESSBAR", "CONTROL"},
      {"Pushbutton", false, 9, "BUTTON", "PUSHBUTTON"},
      {"Pushbutton", true, 0, "BUTTON", "DEFPUSHBUTTON"},
      {"Radiobutton", true, 5, "BUTTON", "RADIOBUTTON"},
      {"Richeditwindow", false, 0, "RICHEDITWINDOW", "DIALOG"},
      {"Scrollbar", false, 0, "SCROLLBAR", "SCROLLBAR"},
      {"Shape", false, 0, "SHAPE", "CONTROL"},
      {"Clipboard", false, 0, "", ""},
      {"Printer", false, 0, "", ""},
      {"Screen", false, 0, "", ""},
      {"Menu", false, 0, "", ""},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(std::string(expected.type) + std::to_string(expected.alignment));
    rc::ResourceRecord record;
    record.className.Assign("soil");
    record.keyword.Assign("soil");
    ClassAndKeywordOf(FindObjectType(expected.type), expected.isDefault, expected.alignment, record);
    EXPECT_EQ(record.className.view(), expected.className);
    EXPECT_EQ(record.keyword.view(), expected.keyword);
  }
}

// ---- ValidatePropertyArray ----

class ValidateTest : public ::testing::Test {
 protected:
  void SetUp() override {
    test::ResetHost();
    rows_.Fill({"A=1\nB=2\n", "", std::string(19, 'x')});
  }
  bool IsValid() { return ValidatePropertyArray({rows_.pointers(), 256, 20}); }

  Rows rows_{20};
};

TEST_F(ValidateTest, TakesTextsUpToTheWholeRow) { EXPECT_TRUE(IsValid()); }

TEST_F(ValidateTest, RefusesControlCharactersOtherThanTheLineFeed) {
  for (int c = 1; c < 256; ++c) {
    SCOPED_TRACE(c);
    rows_.row(255)[0] = static_cast<char>(c);
    EXPECT_EQ(IsValid(), c == '\n' || (c >= 32 && c != 127));
  }
}

TEST_F(ValidateTest, RefusesARowWithoutATerminatorOrWithAnythingBehindIt) {
  rows_.row(2)[19] = 'x';
  EXPECT_FALSE(IsValid());
  rows_.row(2)[19] = '\0';
  EXPECT_TRUE(IsValid());
  rows_.row(1)[1] = 'x';
  EXPECT_FALSE(IsValid());
  rows_.row(1)[1] = '\0';
  rows_.row(0)[19] = '\1';
  EXPECT_FALSE(IsValid());
}

TEST_F(ValidateTest, RefusesWhatCannotBeRead) {
  EXPECT_FALSE(ValidatePropertyArray({rows_.pointers(), 256, 0}));
  EXPECT_FALSE(ValidatePropertyArray({rows_.pointers(), 256, -20}));
  EXPECT_FALSE(ValidatePropertyArray({nullptr, 256, 20}));
  EXPECT_FALSE(ValidatePropertyArray({rows_.pointers(), -1, 20}));
  test::DeclareUnreadable(rows_.row(200) + 19, 1);
  EXPECT_FALSE(IsValid());
  test::ResetHost();
  EXPECT_TRUE(IsValid());
  test::DeclareUnreadable(rows_.pointers() + 255, 1);
  EXPECT_FALSE(IsValid());
  test::ResetHost();
  rows_.pointers()[17] = nullptr;
  EXPECT_FALSE(IsValid());
}

// ---- PropertiesToRecords ----

// The dumps of the records that rows make.
Texts RecordsOf(const Texts& rows, int rowSize = 2048) {
  test::ResetHost();
  Rows array(rowSize);
  array.Fill(rows);
  rc::RecordArray records;
  PropertiesToRecords({array.pointers(), 256, rowSize}, records.table());
  Texts dumps;
  std::size_t last = 0;
  for (int i = 0; i < 256; ++i) {
    const bool isClear = records[i].keyword.IsEmpty() && records[i].name.IsEmpty() && records[i].style == 0 &&
                         records[i].text.IsEmpty() && records[i].x == 0;
    dumps.push_back(isClear ? "clear" : test::DumpRecord(records[i]));
    if (!isClear) last = dumps.size();
  }
  dumps.resize(last);
  return dumps;
}

rc::ResourceRecord RecordOf(const std::string& row, int index = 0) {
  test::ResetHost();
  Rows array(2048);
  Texts rows(static_cast<std::size_t>(index), "X=\nTYPEOF=Shape\n");
  rows.push_back(row);
  array.Fill(rows);
  rc::RecordArray records;
  PropertiesToRecords({array.pointers(), 256, 2048}, records.table());
  return records[index];
}

struct StyleCase {
  const char* lines;  // of a row, with its type as the last
  std::uint32_t style;
};

TEST(PropertiesToRecords, SetsAndClearsTheBitsOfEachProperty) {
  constexpr std::uint32_t kPopup = StyleBits("WS_POPUP");
  const StyleCase cases[] = {
      {"ALIGNMENT=1\nTYPEOF=Dialog\n", StyleBits("DS_CENTER")},
      {"ALIGNMENT=1\nALIGNMENT=0\nTYPEOF=Dialog\n", 0},
      {"ALIGNMENT=1\nALIGNMENT=2\nTYPEOF=Editwindow\n", StyleBits("DS_CENTER")},
      {"ALIGNMENT=0\nTYPEOF=Checkbox\n", StyleBits("BS_LEFTTEXT|BS_AUTOCHECKBOX")},
      {"ALIGNMENT=0\nALIGNMENT=2\nTYPEOF=Checkbox\n", StyleBits("BS_AUTOCHECKBOX")},
      {"ALIGNMENT=0\nALIGNMENT=1\nTYPEOF=Checkbox\n", StyleBits("BS_LEFTTEXT|BS_AUTOCHECKBOX")},
      {"ALIGNMENT=1\nTYPEOF=Radiobutton\n", StyleBits("BS_AUTORADIOBUTTON")},
      {"ALIGNMENT=0\nTYPEOF=Radiobutton\n", StyleBits("BS_LEFTTEXT|BS_AUTORADIOBUTTON")},
      {"ALIGNMENT=1\nTYPEOF=Edit\n", StyleBits("ES_CENTER")},
      {"ALIGNMENT=2\nTYPEOF=Edit\n", StyleBits("ES_RIGHT")},
      {"ALIGNMENT=0\nTYPEOF=Edit\n", 0},
      {"ALIGNMENT=1\nTYPEOF=Label\n", StyleBits("SS_CENTER")},
      {"ALIGNMENT=2\nTYPEOF=Label\n", StyleBits("SS_RIGHT")},
      {"ALIGNMENT=3\nTYPEOF=Label\n", StyleBits("SS_LEFTNOWORDWRAP")},
      {"ALIGNMENT=5\nTYPEOF=Scrollbar\n", StyleBits("SBS_VERT")},
      {"ALIGNMENT=5\nALIGNMENT=4\nTYPEOF=Progressbar\n", 0},
      {"ALIGNMENT=5\nALIGNMENT=0\nTYPEOF=Progressbar\n", StyleBits("PI_VERTICAL")},
      {"BACKCOLOUR=15\nTYPEOF=Progressbar\n", StyleBits("PI_BGCOL_R|PI_BGCOL_G|PI_BGCOL_B|PI_BGCOL_Y")},
      {"BACKCOLOUR=16777215\nTYPEOF=Progressbar\n", StyleBits("PI_BGCOL_R|PI_BGCOL_G|PI_BGCOL_B|PI_BGCOL_Y")},
      {"BACKCOLOUR=0x800000\nTYPEOF=Shape\n", StyleBits("SH_BGCOL_B")},
      {"BACKCOLOUR=4\nTYPEOF=Shape\n", StyleBits("SH_BGCOL_R")},
      {"FORECOLOUR=128\nTYPEOF=Shape\n", StyleBits("SH_FGCOL_R")},
      {"FORECOLOUR=10\nTYPEOF=Progressbar\n", StyleBits("PI_FGCOL_G|PI_FGCOL_Y")},
      {"BORDERSTYLE=1\nTYPEOF=Dialog\n", StyleBits("WS_BORDER")},
      {"BORDERSTYLE=2\nTYPEOF=Dialog\n", StyleBits("WS_THICKFRAME")},
      {"BORDERSTYLE=3\nTYPEOF=Dialog\n", StyleBits("DS_MODALFRAME")},
      {"BORDERSTYLE=3\nBORDERSTYLE=2\nBORDERSTYLE=1\nBORDERSTYLE=0\nTYPEOF=Dialog\n", 0},
      {"BORDERSTYLE=4\nTYPEOF=Dialog\n", 0},
      {"BORDERSTYLE=1\nTYPEOF=Shape\n", StyleBits("SH_SOLID")},
      {"BORDERSTYLE=2\nTYPEOF=Shape\n", StyleBits("SH_DASH")},
      {"BORDERSTYLE=3\nTYPEOF=Shape\n", StyleBits("SH_DOTTED")},
      {"BORDERSTYLE=0\nTYPEOF=Shape\n", 0},
      {"BORDERSTYLE=1\nTYPEOF=Edit\n", StyleBits("WS_BORDER")},
      {"BORDERSTYLE=1\nBORDERSTYLE=2\nTYPEOF=Edit\n", StyleBits("WS_BORDER")},
      {"BORDERSTYLE=1\nBORDERSTYLE=0\nTYPEOF=Image\n", 0},
      {"BUTTONSTYLE=1\nTYPEOF=Bitmapbutton\n", StyleBits("BB_CHECKSTYLE")},
      {"BUTTONSTYLE=2\nTYPEOF=Bitmapbutton\n", StyleBits("BB_RADIOSTYLE")},
      {"BUTTONSTYLE=0\nTYPEOF=Bitmapbutton\n", 0},
      {"CHECKED=1\nTYPEOF=Menuitem\n", 8},
      {"CHECKED=2\nTYPEOF=Menuitem\n", 0},
      {"BORDERSTYLE=1\nCLOSEBOX=1\nTYPEOF=Dialog\n", StyleBits("WS_BORDER|WS_SYSMENU")},
      {"BORDERSTYLE=0\nCLOSEBOX=1\nMAXBUTTON=1\nMINBUTTON=1\nTYPEOF=Dialog\n", 0},
      {"BORDERSTYLE=4\nCLOSEBOX=1\nMAXBUTTON=1\nMINBUTTON=1\nTYPEOF=Dialog\n", 0},
      {"CLOSEBOX=1\nMAXBUTTON=1\nMINBUTTON=1\nTYPEOF=Dialog\n", 0},
      {"BORDERSTYLE=2\nCLOSEBOX=2\nMAXBUTTON=1\nTYPEOF=Dialog\n", StyleBits("WS_THICKFRAME|WS_MAXIMIZEBOX")},
      {"BORDERSTYLE=3\nMINBUTTON=1\nMAXBUTTON=0\nTYPEOF=Dialog\n", StyleBits("DS_MODALFRAME|WS_MINIMIZEBOX")},
      // The frame is told by one character, wherever the line stands.
      {"CLOSEBOX=1\nBORDERSTYLE=12\nTYPEOF=Dialog\n", StyleBits("WS_SYSMENU")},
      {"COMBOSTYLE=0\nTYPEOF=Combobox\n", StyleBits("CBS_DROPDOWN|WS_BORDER|CBS_HASSTRINGS")},
      {"COMBOSTYLE=1\nTYPEOF=Combobox\n", StyleBits("CBS_SIMPLE|WS_BORDER|CBS_HASSTRINGS")},
      {"COMBOSTYLE=2\nTYPEOF=Combobox\n", StyleBits("CBS_DROPDOWNLIST|WS_BORDER|CBS_HASSTRINGS")},
      {"COMBOSTYLE=3\nTYPEOF=Combobox\n", StyleBits("WS_BORDER|CBS_HASSTRINGS")},
      {"DEFAULT=1\nTYPEOF=Pushbutton\n", StyleBits("BS_DEFPUSHBUTTON")},
      {"DEFAULT=2\nTYPEOF=Pushbutton\n", StyleBits("BS_DEFPUSHBUTTON")},
      {"DEFAULT=0\nTYPEOF=Pushbutton\n", 0},
      {"ENABLED=0\nTYPEOF=Menuitem\n", 1},
      {"ENABLED=0\nENABLED=7\nTYPEOF=Menuitem\n", 0},
      {"ENABLED=0\nTYPEOF=Edit\n", StyleBits("WS_DISABLED")},
      {"ENABLED=0\nENABLED=7\nTYPEOF=Edit\n", 0},
      {"GROUP=7\nTYPEOF=Label\n", StyleBits("WS_GROUP")},
      {"GROUP=1\nGROUP=0\nTYPEOF=Label\n", 0},
      {"MULTILINE=1\nTYPEOF=Edit\n", StyleBits("ES_MULTILINE|ES_WANTRETURN")},
      {"MULTILINE=1\nMULTILINE=0\nTYPEOF=Edit\n", StyleBits("ES_AUTOHSCROLL")},
      {"MULTILINE=0\nMULTILINE=7\nTYPEOF=Edit\n", StyleBits("ES_MULTILINE|ES_WANTRETURN")},
      {"OWNER=0\nTYPEOF=Dialog\n", kPopup},
      {"OWNER=7\nTYPEOF=Dialog\n", kPopup},
      {"OWNER=0\nOWNER=1\nTYPEOF=Dialog\n", 0},
      {"READONLY=1\nTYPEOF=Edit\n", StyleBits("ES_READONLY")},
      {"READONLY=1\nREADONLY=0\nTYPEOF=Edit\n", 0},
      {"SCROLLBARS=0\nTYPEOF=Listbox\n", StyleBits("LBS_NOINTEGRALHEIGHT|LBS_HASSTRINGS|LBS_NOTIFY")},
      {"SCROLLBARS=1\nTYPEOF=Iconlist\n", StyleBits("LBS_NOINTEGRALHEIGHT|LBS_DISABLENOSCROLL|WS_HSCROLL")},
      {"SCROLLBARS=2\nTYPEOF=Iconlist\n", StyleBits("LBS_NOINTEGRALHEIGHT|LBS_DISABLENOSCROLL|WS_VSCROLL")},
      {"SCROLLBARS=3\nTYPEOF=Iconlist\n",
       StyleBits("LBS_NOINTEGRALHEIGHT|LBS_DISABLENOSCROLL|WS_HSCROLL|WS_VSCROLL")},
      {"SCROLLBARS=4\nTYPEOF=Iconlist\n", StyleBits("LBS_NOINTEGRALHEIGHT")},
      {"SCROLLBARS=-1\nTYPEOF=Iconlist\n", StyleBits("LBS_NOINTEGRALHEIGHT")},
      {"SCROLLBARS=1\nSCROLLBARS=0\nTYPEOF=Iconlist\n", StyleBits("LBS_NOINTEGRALHEIGHT|WS_HSCROLL")},
      {"SCROLLBARS=1\nSCROLLBARS=4\nTYPEOF=Iconlist\n",
       StyleBits("LBS_NOINTEGRALHEIGHT|LBS_DISABLENOSCROLL|WS_HSCROLL")},
      {"SCROLLBARS=1\nTYPEOF=Edit\n", StyleBits("WS_HSCROLL")},
      {"SCROLLBARS=2\nTYPEOF=Edit\n", StyleBits("WS_VSCROLL")},
      {"SCROLLBARS=3\nTYPEOF=Edit\n", StyleBits("WS_HSCROLL|WS_VSCROLL")},
      {"SCROLLBARS=7\nTYPEOF=Edit\n", 0},
      {"SHAPE=0\nTYPEOF=Shape\n", 0},
      {"SHAPE=1\nTYPEOF=Shape\n", StyleBits("SH_SQUARE")},
      {"SHAPE=2\nTYPEOF=Shape\n", StyleBits("SH_ELLIPSE")},
      {"SHAPE=3\nTYPEOF=Shape\n", StyleBits("SH_CIRCLE")},
      {"SHAPE=4\nTYPEOF=Shape\n", StyleBits("SH_ROUNDRECT")},
      {"SHAPE=5\nTYPEOF=Shape\n", 0},
      {"SORTED=1\nTYPEOF=Iconlist\n", StyleBits("LBS_SORT")},
      {"SORTED=2\nTYPEOF=Iconlist\n", 0},
      {"SORTED=1\nTYPEOF=Combobox\n", StyleBits("CBS_SORT|WS_BORDER|CBS_HASSTRINGS")},
      {"SORTED=1\nTYPEOF=Listbox\n", StyleBits("LBS_SORT|LBS_HASSTRINGS|LBS_NOTIFY")},
      {"TABSTOP=7\nTYPEOF=Edit\n", StyleBits("WS_TABSTOP")},
      {"TABSTOP=1\nTABSTOP=0\nTYPEOF=Edit\n", 0},
      {"TRANSPARENTCOLOUR=-1\nTYPEOF=Bitmapbutton\n", 0},
      {"TRANSPARENTCOLOUR=0xFFFFFFFF\nTYPEOF=Bitmapbutton\n", 0},
      {"TRANSPARENTCOLOUR=16777215\nTYPEOF=Bitmapbutton\n",
       StyleBits("BB_TRANSPARENT|BB_TCOL_R|BB_TCOL_G|BB_TCOL_B|BB_TCOL_Y")},
      {"TRANSPARENTCOLOUR=2\nTYPEOF=Bitmapbutton\n", StyleBits("BB_TRANSPARENT|BB_TCOL_G")},
      {"USETABSTOPS=1\nTYPEOF=Iconlist\n", StyleBits("LBS_USETABSTOPS")},
      {"USETABSTOPS=1\nUSETABSTOPS=0\nTYPEOF=Iconlist\n", 0},
      {"VISIBLE=7\nTYPEOF=Edit\n", StyleBits("WS_VISIBLE")},
      {"VISIBLE=1\nVISIBLE=0\nTYPEOF=Edit\n", 0},
      // The type chooses the schema by its letters; its bits come with the whole value.
      {"X=\nTYPEOF=CHECKBOX\n", StyleBits("BS_AUTOCHECKBOX")},
      {"X=\nTYPEOF=Checkbox2\n", 0},
      {"X=\nTYPEOF=Checkbox \n", 0},
      {"VISIBLE=1\nTYPEOF=Checkbox2\n", StyleBits("WS_VISIBLE")},
      // A key that the schema of the type doesn't name is skipped, and so is one in lower case or without
      // "=".
      {"TABSTOP=1\nTYPEOF=Label\n", 0},
      {"visible=1\nTYPEOF=Label\n", 0},
      {"VISIBLE\nVISIBLE =1\n VISIBLE=1\n=1\n\nVISIBLES=1\nTYPEOF=Label\n", 0},
      {"COLOUR=4\nTYPEOF=Shape\n", 0},
  };
  for (const StyleCase& expected : cases) {
    SCOPED_TRACE(expected.lines);
    EXPECT_EQ(RecordOf(expected.lines).style, expected.style);
  }
}

TEST(PropertiesToRecords, TakesTheCaptionOfAWindowWithItsTitleBar) {
  struct Case {
    const char* lines;
    const char* text;
    std::uint32_t style;
  };
  const Case cases[] = {
      {"BORDERSTYLE=1\nCAPTION=\"a\\tb\"\"c\"\n", "a\tb\"c", StyleBits("WS_BORDER|WS_CAPTION")},
      {"BORDERSTYLE=3\nCAPTION=\" \"\n", "", StyleBits("DS_MODALFRAME|WS_CAPTION")},
      {"BORDERSTYLE=3\nCAPTION=\"\\t \\n\"\n", "", StyleBits("DS_MODALFRAME|WS_CAPTION")},
      {"BORDERSTYLE=3\nCAPTION=\"\"\n", "", StyleBits("DS_MODALFRAME|WS_BORDER")},
      {"BORDERSTYLE=2\nCAPTION=\n", "", StyleBits("WS_THICKFRAME|WS_BORDER")},
      {"BORDERSTYLE=2\nCAPTION=\"x\"\nCAPTION=\"\"\n", "x", StyleBits("WS_THICKFRAME|WS_BORDER")},
      {"BORDERSTYLE=0\nCAPTION=\"x\"\n", "", 0},
      {"CAPTION=\"x\"\n", "", 0},
      {"BORDERSTYLE=0\nCAPTION=\"\"\n", "", 0},
      // No frame by its first character, and a border by its number, which goes with the title bar.
      {"BORDERSTYLE=01\nCAPTION=\"x\"\n", "", 0},
      {"BORDERSTYLE=1\nCAPTION=bare\n", "bare", StyleBits("WS_BORDER|WS_CAPTION")},
      {"BORDERSTYLE=1\nCAPTION=\"half\n", "\"half", StyleBits("WS_BORDER|WS_CAPTION")},
      {"BORDERSTYLE=1\nCAPTION=\"\n", "\"", StyleBits("WS_BORDER|WS_CAPTION")},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.lines);
    for (const char* type : {"TYPEOF=Dialog\n", "TYPEOF=editwindow\n", "TYPEOF=RICHEDITWINDOW\n"}) {
      const rc::ResourceRecord record = RecordOf(std::string(expected.lines) + type);
      EXPECT_EQ(record.text.view(), expected.text);
      EXPECT_EQ(record.style, expected.style);
    }
    // In any other row a window has no frame.
    const rc::ResourceRecord other = RecordOf(std::string(expected.lines) + "TYPEOF=Dialog\n", 1);
    EXPECT_EQ(other.text.view(), "");
    EXPECT_EQ(other.style & StyleBits("WS_DLGFRAME"), 0U);
  }
}

TEST(PropertiesToRecords, TakesTextsWithoutTheirQuotationMarksAndCutsThem) {
  const std::string x300(300, 'x');
  rc::ResourceRecord record = RecordOf("CAPTION=\"" + x300 + "\"\nNAME=\"" + x300 + "\"\nTYPEOF=Label\n");
  EXPECT_EQ(record.text.view(), x300.substr(0, 255));
  EXPECT_EQ(record.name.view(), x300.substr(0, 40));
  record = RecordOf("BORDERSTYLE=1\nFONTNAME=\"" + x300 + "\"\nMENU=\"" + x300 + "\"\nTYPEOF=Dialog\n");
  EXPECT_EQ(record.fontName.view(), x300.substr(0, 32));
  EXPECT_EQ(record.menuName.view(), x300.substr(0, 40));
  record = RecordOf("PICTURE=\"c:\\x\\t\"\"" + x300 + "\"\nTYPEOF=Image\n");
  EXPECT_EQ(record.text.view(), ("c:\\x\\t\"\"" + x300).substr(0, 255));
  record = RecordOf("CAPTION=\"a\\x41\\102\\n\"\nTYPEOF=Label\n");
  EXPECT_EQ(record.text.view(), "aAB\n");
  record = RecordOf("BORDERSTYLE=0\nMENU=M\nTYPEOF=Dialog\n");
  EXPECT_EQ(record.menuName.view(), "");
}

TEST(PropertiesToRecords, TakesNumbersAndPlaces) {
  struct Case {
    const char* value;
    std::int32_t x, y, width, height;
  };
  const Case cases[] = {
      {"1 2 3 4", 1, 2, 3, 4},
      {"  -1\t+2   3 4 5", -1, 2, 3, 4},
      {"1 2", 1, 2, 0, 0},
      {"", 0, 0, 0, 0},
      {"1,2,3,4", 1, 0, 0, 0},
      {"x 1 2 3", 0, 0, 0, 0},
      {"0x10 2 3 4", 0, 0, 0, 0},
      {"1 - 2 3", 1, 0, 0, 0},
      {"99999999999 -99999999999 2147483647 -2147483648", INT32_MAX, INT32_MIN, INT32_MAX, INT32_MIN},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.value);
    const rc::ResourceRecord record = RecordOf(std::string("POSITION=") + expected.value + "\nTYPEOF=Edit\n");
    EXPECT_EQ(record.x, expected.x);
    EXPECT_EQ(record.y, expected.y);
    EXPECT_EQ(record.width, expected.width);
    EXPECT_EQ(record.height, expected.height);
    const rc::ResourceRecord item =
        RecordOf(std::string("POSITION=") + expected.value + "\nTYPEOF=Menuitem\n");
    EXPECT_EQ(item.x, expected.x);
    EXPECT_EQ(item.y, 0);
  }
  EXPECT_EQ(RecordOf("FONTSIZE=12\nTYPEOF=Dialog\n").fontSize, 12);
  EXPECT_EQ(RecordOf("FLAGS=4160\nTYPEOF=Editwindow\n").exStyle, 4160U);
  EXPECT_EQ(RecordOf("FLAGS=-1\nTYPEOF=Richeditwindow\n").exStyle, 0xFFFFFFFFU);
  EXPECT_EQ(RecordOf("FLAGS=4160\nTYPEOF=Dialog\n").exStyle, 0U);
}

TEST(PropertiesToRecords, ChoosesTheStatementByOtherLinesOfTheRow) {
  struct Case {
    const char* row;
    const char* keyword;
  };
  const Case cases[] = {
      {"DEFAULT=1\nTYPEOF=Pushbutton\n", "DEFPUSHBUTTON"},
      {"DEFAULT=10\nTYPEOF=Pushbutton\n", "DEFPUSHBUTTON"},
      {"DEFAULT=2\nTYPEOF=Pushbutton\n", "PUSHBUTTON"},
      {"X=\nTYPEOF=Pushbutton\nDEFAULT=1", "DEFPUSHBUTTON"},
      {"DEFAULT=0\nDEFAULT=1\nTYPEOF=Pushbutton\n", "PUSHBUTTON"},
      {"ALIGNMENT=1\nTYPEOF=Label\n", "CTEXT"},
      {"ALIGNMENT=0x2\nTYPEOF=Label\n", "RTEXT"},
      {"X=\nTYPEOF=Label\nALIGNMENT=", "LTEXT"},
      {"ALIGNMENT=7\nTYPEOF=Label\n", ""},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.row);
    EXPECT_EQ(RecordOf(expected.row).keyword.view(), expected.keyword);
  }
}

TEST(PropertiesToRecords, EndsAtAnEmptyRowOrOneWithoutAType) {
  const std::string label = "NAME=A\nTYPEOF=Label\n";
  const std::string dump = test::DumpRecord(RecordOf(label));
  EXPECT_EQ(RecordsOf({label, label}), (Texts{dump, dump}));
  EXPECT_EQ(RecordsOf({label, "", label}), Texts{dump});
  EXPECT_EQ(RecordsOf({label, "NAME=B\n", label}), Texts{dump});
  // A type in the first line has no line feed in front.
  EXPECT_EQ(RecordsOf({"TYPEOF=Label\nNAME=A\n", label}), Texts{});
  // A row of no known type is clear, and the rows behind it go on.
  EXPECT_EQ(RecordsOf({"NAME=A\nTYPEOF=Screen\n", label}), (Texts{"clear", dump}));
}

TEST(PropertiesToRecords, LooksAt1024CharactersOfARow) {
  const std::string padding = "CAPTION=\"" + std::string(900, 'x') + "\"\n";
  // The type is sought in the whole row, and read from its first characters.
  const std::string far = padding + "X=" + std::string(120, 'x') + "\nTYPEOF=Label\n";
  EXPECT_EQ(RecordsOf({far, "NAME=B\nTYPEOF=Label\n"}).size(), 2U);
  EXPECT_EQ(RecordsOf({far, "NAME=B\nTYPEOF=Label\n"})[0], "clear");
  std::string row = padding + "TYPEOF=Label\n";
  row += "X=" + std::string(1024 - row.size() - 2 - 7, 'x') + "\n";
  EXPECT_EQ(row.size(), 1018U);
  EXPECT_EQ(RecordOf(row + "NAME=A\n").name.view(), "A");
  EXPECT_EQ(RecordOf(row + "NAME=AB\n").name.view(), "A");
  EXPECT_EQ(RecordOf(row + "NAME=").name.view(), "");
  // The first of two types counts, and a type in the first line counts as the first where another stands
  // behind.
  EXPECT_EQ(RecordOf("TYPEOF=Edit\nNAME=A\nTYPEOF=Label\n").className.view(), "EDIT");
}

TEST(PropertiesToRecords, TakesALastLineWithoutALineFeed) {
  EXPECT_EQ(RecordOf("TYPEOF=Label\nTYPEOF=Label\nNAME=A").name.view(), "A");
  EXPECT_EQ(RecordOf("NAME=A\nTYPEOF=Label").keyword.view(), "LTEXT");
}

}  // namespace
}  // namespace brelt::resprops
