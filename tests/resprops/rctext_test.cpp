#include "resprops/rctext.h"

#include <gtest/gtest.h>

#include "rc/stylewords.h"
#include "resprops/classkeyword.h"
#include "resprops/escape.h"
#include "tests/support/guarded.h"
#include "tests/support/memoryhost.h"

namespace brelt::resprops {
namespace {

std::string Words(const char* keyword, std::uint32_t style) {
  rc::FixedText<1024> words("soil");
  StyleWordsOf(keyword, style, words);
  return std::string(words.view());
}

// ---- EscapeText ----

TEST(EscapeText, WritesTheBodyOfALiteral) {
  struct Case {
    std::string text;
    const char* escaped;
  };
  const Case cases[] = {
      {"", ""},
      {"Plain text, 'quotes' ~ !", "Plain text, 'quotes' ~ !"},
      {"a\tb\nc\rd", "a\\tb\\nc\\rd"},
      {"say \"x\"", "say \"\"x\"\""},
      {"c:\\a\\b", "c:\\\\a\\\\b"},
      {std::string("\x01\x1F\x7F\x80\xE4\xFF"), "\\x01\\x1F\\x7F\\x80\\xE4\\xFF"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.escaped);
    test::ExpectCutToFit(
        expected.escaped, [&](rc::TextBuffer buffer) { EscapeText(expected.text, buffer); },
        test::Behind::kZero);
  }
}

// ---- StyleWordsOf ----

TEST(StyleWordsOf, WritesTheShortestExpressionInTheOrderOfTheTable) {
  struct Case {
    const char* keyword;
    std::uint32_t style;
    const char* words;
  };
  using rc::StyleBits;
  const Case cases[] = {
      {"PUSHBUTTON", StyleBits("WS_VISIBLE|WS_TABSTOP"), "BS_PUSHBUTTON"},
      {"PUSHBUTTON", StyleBits("WS_VISIBLE"), "NOT WS_TABSTOP"},
      {"PUSHBUTTON", 0, "NOT WS_TABSTOP|NOT WS_VISIBLE"},
      {"pushbutton", StyleBits("WS_VISIBLE|WS_GROUP|WS_DISABLED"), "NOT WS_TABSTOP|WS_GROUP|WS_DISABLED"},
      {"DEFPUSHBUTTON", StyleBits("WS_VISIBLE|WS_TABSTOP|BS_DEFPUSHBUTTON"), "0"},
      {"DEFPUSHBUTTON", StyleBits("WS_VISIBLE|WS_TABSTOP"), "0"},
      {"CHECKBOX", StyleBits("WS_VISIBLE|BS_CHECKBOX"), "0"},
      {"CHECKBOX", StyleBits("WS_VISIBLE|BS_AUTOCHECKBOX|WS_TABSTOP"), "BS_AUTOCHECKBOX|WS_TABSTOP"},
      {"CHECKBOX", StyleBits("WS_VISIBLE|BS_AUTOCHECKBOX|BS_LEFTTEXT"), "BS_AUTOCHECKBOX|BS_LEFTTEXT"},
      {"RADIOBUTTON", StyleBits("WS_VISIBLE|BS_RADIOBUTTON|WS_GROUP"), "WS_GROUP"},
      {"RADIOBUTTON", StyleBits("WS_VISIBLE|BS_AUTORADIOBUTTON"), "BS_AUTORADIOBUTTON"},
      {"RADIOBUTTON", StyleBits("WS_VISIBLE|BS_AUTORADIOBUTTON|BS_RADIOBUTTON"),
       "BS_AUTORADIOBUTTON|BS_RADIOBUTTON"},
      {"GROUPBOX", StyleBits("WS_VISIBLE|BS_GROUPBOX|WS_GROUP"), "WS_GROUP"},
      {"ICON", StyleBits("WS_VISIBLE|SS_ICON"), "0"},
      {"ICON", StyleBits("SS_ICON"), "NOT WS_VISIBLE"},
      {"LTEXT", StyleBits("WS_VISIBLE|WS_GROUP"), "SS_LEFT"},
      {"LTEXT", StyleBits("WS_VISIBLE|SS_LEFTNOWORDWRAP"), "SS_LEFTNOWORDWRAP|NOT WS_GROUP"},
      {"LTEXT", StyleBits("WS_VISIBLE|WS_GROUP|SS_NOPREFIX"), "SS_NOPREFIX"},
      {"CTEXT", StyleBits("WS_VISIBLE|WS_GROUP|SS_CENTER"), "0"},
      {"RTEXT", StyleBits("WS_VISIBLE|WS_GROUP|SS_RIGHT|WS_BORDER"), "WS_BORDER"},
      {"LISTBOX", StyleBits("WS_VISIBLE|WS_BORDER|LBS_NOTIFY"), "0"},
      {"LISTBOX", StyleBits("WS_VISIBLE|WS_BORDER|LBS_NOTIFY|LBS_SORT|WS_VSCROLL"),
       "LBS_NOTIFY|LBS_SORT|WS_VSCROLL"},
      {"LISTBOX", StyleBits("WS_VISIBLE|LBS_SORT"), "LBS_SORT|NOT WS_BORDER"},
      {"ICONLIST", StyleBits("WS_VISIBLE|WS_BORDER"), "WS_BORDER"},
      {"EDITTEXT", StyleBits("WS_VISIBLE|WS_BORDER|WS_TABSTOP"), "ES_LEFT"},
      {"EDITTEXT", StyleBits("WS_VISIBLE|WS_BORDER|WS_TABSTOP|ES_CENTER|ES_MULTILINE"),
       "ES_CENTER|ES_MULTILINE"},
      {"COMBOBOX", StyleBits("WS_VISIBLE|WS_BORDER|CBS_DROPDOWNLIST"), "CBS_DROPDOWNLIST"},
      {"COMBOBOX", StyleBits("WS_VISIBLE|WS_BORDER|CBS_DROPDOWN|CBS_SORT"), "CBS_DROPDOWN|CBS_SORT"},
      {"SCROLLBAR", StyleBits("WS_VISIBLE"), "SBS_HORZ"},
      {"SCROLLBAR", StyleBits("WS_VISIBLE|SBS_VERT"), "SBS_VERT"},
      {"SHAPE", StyleBits("WS_VISIBLE|SH_FGCOL_R|SH_SOLID"), "SH_FGCOL_R|SH_SOLID"},
      {"SHAPE", StyleBits("WS_VISIBLE"), "SH_RECT"},
      {"BITMAPBUTTON", StyleBits("WS_VISIBLE"), "BB_PUSHSTYLE"},
      {"IMAGE", StyleBits("WS_VISIBLE"), "0"},
      {"DIALOG", StyleBits("WS_POPUP|WS_CAPTION|WS_SYSMENU"), "WS_POPUP|WS_CAPTION|WS_SYSMENU"},
      {"DIALOG", StyleBits("WS_BORDER"), "WS_BORDER"},
      {"DIALOG", StyleBits("WS_DLGFRAME"), "WS_OVERLAPPED"},
      {"DIALOG", 0, "WS_OVERLAPPED"},
      {"EDITWINDOW", StyleBits("EWS_HILITE|EWS_NUMBERBAR"), "EWS_HILITE|EWS_NUMBERBAR"},
      {"RichEditWindow", 0xFFFFFFFF,
       "EWS_ALLOWOVERWRITE|EWS_AUTOINDENT|EWS_HILITE|EWS_READONLY|EWS_SELECTALL|EWS_STATUSBAR|EWS_TABSHIFT|"
       "EWS_NUMBERBAR"},
      {"EDITWINDOW", 1, "0"},
      {"CONTROL", 0xFFFFFFFF, "0"},
      {"BUTTON", 0xFFFFFFFF, "0"},
      {"", 0xFFFFFFFF, "0"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(std::string(expected.keyword) + " " + expected.words);
    EXPECT_EQ(Words(expected.keyword, expected.style), expected.words);
  }
}

TEST(StyleWordsOf, IsCutToTheBuffer) {
  test::ExpectCutToFit("NOT WS_TABSTOP|NOT WS_VISIBLE",
                       [](rc::TextBuffer words) { StyleWordsOf("PUSHBUTTON", 0, words); });
  test::ExpectCutToFit("0", [](rc::TextBuffer words) { StyleWordsOf("CONTROL", 0, words); });
}

TEST(MenuOptionWords, JoinsTheOptionsInTheirOrder) {
  const std::pair<std::uint32_t, const char*> cases[] = {
      {0, ""},
      {8, "CHECKED"},
      {1, "GRAYED"},
      {2, "INACTIVE"},
      {9, "CHECKED,GRAYED"},
      {11, "CHECKED,GRAYED,INACTIVE"},
      {16 | 32 | 64 | 2048, ""},
  };
  for (const auto& [style, words] : cases) {
    test::ExpectCutToFit(words, [bits = style](rc::TextBuffer out) { MenuOptionWords(bits, out); });
  }
}

// ---- AppendWrapped ----

TEST(AppendWrapped, IndentsAtTheBeginningOfALineAndBreaksWhereAPieceWouldReachTooFar) {
  struct Case {
    const char* text;
    int indent;
    int limit;
    const char* piece;
    const char* result;
  };
  const Case cases[] = {
      {"", 4, 10, "abc", "    abc"},
      {"x\n", 4, 10, "abc", "x\n    abc"},
      {"x", 4, 10, "abc", "xabc"},
      {"1234567", 4, 10, "abc", "1234567abc"},
      {"12345678", 4, 10, "abc", "12345678\n    abc"},
      {"x\n12345678", 2, 10, "abc", "x\n12345678\n  abc"},
      {"x\n12345678", 0, 10, "abc", "x\n12345678\nabc"},
      {"", 0, 3, "longer", "longer"},
      {"", 3, 3, "longer", "   longer"},
      {"x", 3, 3, "longer", "x\n   longer"},
      {"", 50, 99, "x", "                                        x"},
      {"", -5, 99, "x", "x"},
      {"1234567890", 4, 10, "\n", "1234567890\n    \n"},
      {"123456789", 4, 10, "\n", "123456789\n"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.result);
    rc::FixedText<200> buffer(expected.text);
    rc::TextWriter text = rc::TextWriter::Continue(buffer);
    AppendWrapped(expected.indent, expected.limit, expected.piece, text);
    EXPECT_EQ(text.view(), expected.result);
  }
}

// ---- RecordsToText ----

class FreshHost : public ::testing::Test {
 protected:
  FreshHost() { test::ResetHost(); }
};

class RecordsToTextTest : public FreshHost {
 protected:
  rc::ResourceRecord& Add(const char* keyword, const char* name, const char* text = "",
                          std::uint32_t style = 0) {
    rc::ResourceRecord& record = records_[count_++];
    record.keyword.Assign(keyword);
    record.name.Assign(name);
    record.text.Assign(text);
    record.style = style;
    return record;
  }
  rc::ResourceRecord& AddAt(const char* keyword, const char* name, const char* text = "",
                            std::uint32_t style = 0) {
    rc::ResourceRecord& record = Add(keyword, name, text, style);
    record.x = 1;
    record.y = -2;
    record.width = 3;
    record.height = 4;
    return record;
  }
  void AddEntry(std::int32_t level, const char* name, const char* text, std::uint32_t style = 0) {
    Add("MENUITEM", name, text, style).x = level;
  }
  std::string Text(int size = 65535) {
    std::vector<char> buffer(static_cast<std::size_t>(size), 'x');
    RecordsToText(records_.table(), {buffer.data(), size});
    return buffer.data();
  }

  rc::RecordArray records_;
  int count_ = 0;
};

TEST_F(RecordsToTextTest, OfNothingIsItsEnd) { EXPECT_EQ(Text(), "END\n"); }

TEST_F(RecordsToTextTest, WritesADialogsStatementsWhereTheyHaveSomethingToSay) {
  rc::ResourceRecord& window = AddAt("DIALOG", "D");
  EXPECT_EQ(Text(), "D DIALOG 1,-2,3,4\nSTYLE WS_OVERLAPPED\nBEGIN\nEND\n");
  window.text.Assign("a \"b\"\tc");
  window.className.Assign("EDITWINDOW");
  window.exStyle = 0x40;
  window.fontName.Assign("A\\B");
  window.fontSize = -9;
  window.menuName.Assign("M");
  window.style = rc::StyleBits("WS_CAPTION");
  EXPECT_EQ(Text(),
            "D DIALOG 1,-2,3,4\nCAPTION \"a \"\"b\"\"\\tc\"\nCLASS \"EDITWINDOW\"\nEXSTYLE EWS_HILITE\n"
            "FONT -9,\"A\\B\"\nMENU M \nSTYLE WS_CAPTION\nBEGIN\nEND\n");
  // On a plain window the bits are read as words of a DIALOG.
  window.className.Clear();
  window.exStyle = 0x80;
  EXPECT_NE(Text().find("\nEXSTYLE DS_MODALFRAME\n"), std::string::npos);
  window.exStyle = 1;
  EXPECT_NE(Text().find("\nEXSTYLE WS_OVERLAPPED\n"), std::string::npos);
}

TEST_F(RecordsToTextTest, WritesControlsInColumns) {
  using rc::StyleBits;
  AddAt("DIALOG", "D");
  AddAt("PUSHBUTTON", "OK", "O\\K", StyleBits("WS_VISIBLE|WS_TABSTOP"));
  AddAt("DEFPUSHBUTTON", "OK", "", StyleBits("WS_VISIBLE"));
  AddAt("EDITTEXT", "E", "not written", StyleBits("WS_VISIBLE|WS_BORDER|WS_TABSTOP"));
  AddAt("EDITTEXT", "E", "", StyleBits("WS_VISIBLE|WS_BORDER|WS_TABSTOP|ES_RIGHT"));
  AddAt("AUTORADIOBUTTON", "R", "r", StyleBits("WS_VISIBLE|BS_AUTORADIOBUTTON"));
  AddAt("CONTROL", "S", "\"", StyleBits("WS_VISIBLE|SH_FGCOL_R|SH_SOLID")).className.Assign("SHAPE");
  AddAt("CONTROL", "T", "", 0).className.Assign("GAUGE");
  EXPECT_EQ(Text(),
            "D DIALOG 1,-2,3,4\nSTYLE WS_OVERLAPPED\nBEGIN\n"
            "    PUSHBUTTON     \"O\\\\K\",OK,1,-2,3,4\n"
            "    DEFPUSHBUTTON  \"\",OK,1,-2,3,4,NOT WS_TABSTOP\n"
            "    EDITTEXT       E,1,-2,3,4\n"
            "    EDITTEXT       E,1,-2,3,4,ES_RIGHT\n"
            "    AUTORADIOBUTTON \"r\",R,1,-2,3,4,BS_AUTORADIOBUTTON\n"
            "    CONTROL        \"\"\"\",S,\"SHAPE\",SH_FGCOL_R|SH_SOLID,1,-2,3,4\n"
            "    CONTROL        \"\",T,\"GAUGE\",0,1,-2,3,4\n"
            "END\n");
}

TEST_F(RecordsToTextTest, BreaksAControlThatReachesBeyond1024Columns) {
  AddAt("DIALOG", "D");
  // 19 columns, two quotation marks and a comma: 1002 more fill the line.
  AddAt("LTEXT", "ABC", std::string(250, '\x01').c_str(), rc::StyleBits("WS_VISIBLE|WS_GROUP"));
  std::string quoted;
  for (int i = 0; i < 250; ++i) quoted += "\\x01";
  EXPECT_EQ(Text(), "D DIALOG 1,-2,3,4\nSTYLE WS_OVERLAPPED\nBEGIN\n    LTEXT          \"" + quoted +
                        "\",\n                   ABC,1,-2,3,4\nEND\n");
  records_[1].name.Assign("A");
  EXPECT_EQ(Text(), "D DIALOG 1,-2,3,4\nSTYLE WS_OVERLAPPED\nBEGIN\n    LTEXT          \"" + quoted +
                        "\",A,\n                   1,-2,3,4\nEND\n");
}

TEST_F(RecordsToTextTest, PutsATextTooLongForItsLineAtTheControlsOwnIndent) {
  AddAt("DIALOG", "D");
  AddAt("LTEXT", "A", std::string(255, '\x01').c_str(), rc::StyleBits("WS_VISIBLE|WS_GROUP"));
  AddAt("CONTROL", "B", std::string(255, '\x01').c_str(), rc::StyleBits("WS_VISIBLE"))
      .className.Assign("IMAGE");
  std::string quoted;
  for (int i = 0; i < 255; ++i) quoted += "\\x01";
  const std::string continued = "\n                   ";
  EXPECT_EQ(Text(), "D DIALOG 1,-2,3,4\nSTYLE WS_OVERLAPPED\nBEGIN\n    LTEXT          \n    \"" + quoted +
                        "\"," + continued + "A,1,-2,3,4\n    CONTROL        " + continued + "\"" + quoted +
                        "\"," + continued + "B,\"IMAGE\",0,1,-2,3,4\nEND\n");
}

TEST_F(RecordsToTextTest, StopsAtARecordWithoutAKeyword) {
  AddAt("DIALOG", "D");
  AddAt("", "X");
  AddAt("LTEXT", "Y");
  EXPECT_EQ(Text(), "D DIALOG 1,-2,3,4\nSTYLE WS_OVERLAPPED\nBEGIN\nEND\n");
}

TEST_F(RecordsToTextTest, IsCutToTheBuffer) {
  AddAt("DIALOG", "D");
  AddAt("LTEXT", "ABC", "text");
  test::ExpectCutToFit(Text(), [this](rc::TextBuffer text) { RecordsToText(records_.table(), text); });
}

TEST_F(RecordsToTextTest, WritesAMenuByItsLevels) {
  AddEntry(0, "M", "ignored", 9);
  AddEntry(1, "", "&File", 1);
  AddEntry(2, "OPEN", "&Open\tCtrl+O", 8);
  AddEntry(2, "", "");
  AddEntry(2, "", "More");
  AddEntry(3, "DEEP", "D", 9);
  AddEntry(1, "HELP", "", 2);
  AddEntry(0, "dropped", "dropped");
  EXPECT_EQ(Text(),
            "M MENU\nBEGIN\n    POPUP \"&File\",GRAYED\n    BEGIN\n        MENUITEM "
            "\"&Open\\tCtrl+O\",OPEN,CHECKED\n"
            "        MENUITEM SEPARATOR\n        POPUP \"More\"\n        BEGIN\n"
            "            MENUITEM \"D\",DEEP,CHECKED,GRAYED\n        END\n    END\n    MENUITEM "
            "\"\",HELP,INACTIVE\nEND\n");
}

TEST_F(RecordsToTextTest, ClosesEachLevelThatAnEntryOpensAlsoWhereLevelsAreLeftOut) {
  AddEntry(0, "M", "");
  AddEntry(1, "", "a");
  AddEntry(3, "X", "x");
  AddEntry(1, "", "leaf without a name");
  EXPECT_EQ(Text(),
            "M MENU\nBEGIN\n    POPUP \"a\"\n    BEGIN\n            MENUITEM \"x\",X\n        END\n    END\n"
            "    MENUITEM \"leaf without a name\",\nEND\n");
}

TEST_F(RecordsToTextTest, ClosesAllLevelsOfAMenuAlsoAheadOfARecordThatIsNotWritten) {
  AddEntry(0, "M", "");
  AddEntry(1, "", "a");
  AddEntry(2, "X", "x");
  Add("", "").x = 9;
  EXPECT_EQ(Text(), "M MENU\nBEGIN\n    POPUP \"a\"\n    BEGIN\n        MENUITEM \"x\",X\n    END\nEND\n");
}

TEST_F(RecordsToTextTest, IndentsAMenuByNoMoreThan40AndNoLessThanNothing) {
  AddEntry(0, "M", "");
  for (int level = 1; level <= 12; ++level) AddEntry(level, "N", "t");
  const std::string text = Text();
  EXPECT_NE(text.find("\n" + std::string(40, ' ') + "POPUP \"t\"\n" + std::string(40, ' ') + "BEGIN\n" +
                      std::string(40, ' ') + "MENUITEM \"t\",N\n" + std::string(40, ' ') + "END\n" +
                      std::string(40, ' ') + "END\n" + std::string(36, ' ') + "END\n"),
            std::string::npos)
      << text;
}

TEST_F(RecordsToTextTest, SurvivesLevelsThatNoMenuHas) {
  AddEntry(0, "M", "");
  AddEntry(-7, "A", "a");
  AddEntry(INT32_MIN, "B", "b");
  EXPECT_EQ(Text(), "M MENU\nBEGIN\nMENUITEM \"a\",A\nPOPUP \"b\"\nBEGIN\nEND\n");
  AddEntry(INT32_MAX, "C", "c");
  const std::string text = Text(5000);
  EXPECT_EQ(text.size(), 4999U);
  EXPECT_EQ(text.substr(0, 80).find("M MENU\nBEGIN\nMENUITEM \"a\",A\n"), 0U);
}

TEST_F(RecordsToTextTest, WritesAMenuWithoutItsHeaderAsItStands) {
  AddEntry(1, "A", "a");
  EXPECT_EQ(Text(), "    MENUITEM \"a\",A\nEND\n");
}

TEST_F(RecordsToTextTest, TakesAllRecordsOfATable) {
  AddAt("DIALOG", "D");
  for (int i = 1; i < 256; ++i) AddAt("LTEXT", "A");
  const std::string text = Text();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3 + 255 + 1);
  records_[0].keyword.Assign("MENUITEM");
  for (int i = 1; i < 256; ++i) {
    records_[i].keyword.Assign("MENUITEM");
    records_[i].x = 1;
  }
  records_[0].x = 0;
  records_[255].x = 2;
  EXPECT_TRUE(Text().ends_with("        MENUITEM \"\",A\n    END\nEND\n"));
}

}  // namespace
}  // namespace brelt::resprops
