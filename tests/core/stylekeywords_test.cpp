#include "rc/stylekeywords.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/guarded.h"

namespace brelt::rc {
namespace {

struct KeywordCase {
  const char* keyword;
  std::uint32_t legal;
  const char* legalWords;
  std::uint32_t defaults;
  const char* defaultWords;
  std::uint32_t type;
  const char* typeWord;
};

constexpr KeywordCase kKeywords[] = {
    {"AUTOCHECKBOX", 0x18030023,
     "BS_AUTOCHECKBOX|BS_LEFTTEXT|BS_CHECKBOX|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10000000,
     "WS_VISIBLE", 2, "BS_CHECKBOX"},
    {"AUTORADIOBUTTON", 0x1803002D,
     "BS_AUTORADIOBUTTON|BS_LEFTTEXT|BS_RADIOBUTTON|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10000000,
     "WS_VISIBLE", 4, "BS_RADIOBUTTON"},
    {"BITMAPBUTTON", 0x18021F06,
     "BB_CHECKSTYLE|BB_PUSHSTYLE|BB_RADIOSTYLE|BB_TCOL_B|BB_TCOL_G|BB_TCOL_R|BB_TCOL_Y|BB_TRANSPARENT|WS_"
     "GROUP|WS_DISABLED|WS_VISIBLE",
     0x10000000, "WS_VISIBLE", 0, "0"},
    {"CHECKBOX", 0x18030023,
     "BS_AUTOCHECKBOX|BS_LEFTTEXT|BS_CHECKBOX|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10000000,
     "WS_VISIBLE", 2, "BS_CHECKBOX"},
    {"COMBOBOX", 0x18A30F03,
     "CBS_DISABLENOSCROLL|CBS_DROPDOWNLIST|CBS_SIMPLE|CBS_DROPDOWN|CBS_HASSTRINGS|CBS_NOINTEGRALHEIGHT|CBS_"
     "SORT|WS_BORDER|WS_VSCROLL|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE",
     0x10800000, "WS_BORDER|WS_VISIBLE", 0, "0"},
    {"CTEXT", 0x18820081, "SS_CENTER|SS_NOPREFIX|WS_BORDER|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10020000,
     "WS_GROUP|WS_VISIBLE", 1, "SS_CENTER"},
    {"DEFPUSHBUTTON", 0x18030001, "BS_DEFPUSHBUTTON|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10010000,
     "WS_TABSTOP|WS_VISIBLE", 1, "BS_DEFPUSHBUTTON"},
    {"DIALOG", 0x82CF0880,
     "WS_OVERLAPPED|WS_POPUP|WS_CAPTION|WS_BORDER|WS_SYSMENU|WS_MINIMIZEBOX|WS_MAXIMIZEBOX|WS_THICKFRAME|DS_"
     "CENTER|DS_MODALFRAME|WS_CLIPCHILDREN",
     0x0, "0", 0, "0"},
    {"EDITTEXT", 0x18B319FF,
     "ES_AUTOHSCROLL|ES_AUTOVSCROLL|ES_CENTER|ES_LEFT|ES_LOWERCASE|ES_MULTILINE|ES_NOHIDESEL|ES_PASSWORD|ES_"
     "READONLY|ES_RIGHT|ES_UPPERCASE|ES_WANTRETURN|WS_VSCROLL|WS_HSCROLL|WS_BORDER|WS_TABSTOP|WS_GROUP|WS_"
     "DISABLED|WS_VISIBLE",
     0x10810000, "WS_BORDER|WS_TABSTOP|WS_VISIBLE", 0, "ES_LEFT"},
    {"EDITWINDOW", 0x17F0,
     "EWS_ALLOWOVERWRITE|EWS_AUTOINDENT|EWS_HILITE|EWS_READONLY|EWS_SELECTALL|EWS_STATUSBAR|EWS_TABSHIFT|EWS_"
     "NUMBERBAR",
     0x0, "0", 0, "0"},
    {"GROUPBOX", 0x18020007, "BS_GROUPBOX|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10000000, "WS_VISIBLE", 7,
     "BS_GROUPBOX"},
    {"ICON", 0x10000003, "SS_ICON|WS_VISIBLE", 0x10000000, "WS_VISIBLE", 3, "SS_ICON"},
    {"ICONLIST", 0x18B319CB,
     "LBS_DISABLENOSCROLL|LBS_EXTENDEDSEL|LBS_HASSTRINGS|LBS_MULTIPLESEL|LBS_NOINTEGRALHEIGHT|LBS_NOTIFY|LBS_"
     "SORT|LBS_STANDARD|LBS_USETABSTOPS|WS_BORDER|WS_VSCROLL|WS_HSCROLL|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_"
     "VISIBLE",
     0x10000000, "WS_VISIBLE", 0, "0"},
    {"IMAGE", 0x10800000, "WS_BORDER|WS_VISIBLE", 0x10000000, "WS_VISIBLE", 0, "0"},
    {"LISTBOX", 0x18B319CB,
     "LBS_DISABLENOSCROLL|LBS_EXTENDEDSEL|LBS_HASSTRINGS|LBS_MULTIPLESEL|LBS_NOINTEGRALHEIGHT|LBS_NOTIFY|LBS_"
     "SORT|LBS_STANDARD|LBS_USETABSTOPS|WS_BORDER|WS_VSCROLL|WS_HSCROLL|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_"
     "VISIBLE",
     0x10800000, "WS_BORDER|WS_VISIBLE", 1, "LBS_NOTIFY"},
    {"LTEXT", 0x1882008C, "SS_LEFT|SS_NOPREFIX|SS_LEFTNOWORDWRAP|WS_BORDER|WS_GROUP|WS_DISABLED|WS_VISIBLE",
     0x10020000, "WS_GROUP|WS_VISIBLE", 0, "SS_LEFT"},
    {"MENUITEM", 0xB, "MF_CHECKED|MF_GRAYED|MF_DISABLED", 0x0, "0", 0, "0"},
    {"PROGRESSBAR", 0x10800FF7,
     "PI_BGCOL_B|PI_BGCOL_G|PI_BGCOL_R|PI_BGCOL_Y|PI_FGCOL_B|PI_FGCOL_G|PI_FGCOL_R|PI_FGCOL_Y|PI_PERCENT|PI_"
     "VALUE|PI_VERTICAL|WS_BORDER|WS_VISIBLE",
     0x10000000, "WS_VISIBLE", 0, "0"},
    {"PUSHBUTTON", 0x18030000, "BS_PUSHBUTTON|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10010000,
     "WS_TABSTOP|WS_VISIBLE", 0, "BS_PUSHBUTTON"},
    {"RADIOBUTTON", 0x1803002D,
     "BS_AUTORADIOBUTTON|BS_LEFTTEXT|BS_RADIOBUTTON|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10000000,
     "WS_VISIBLE", 4, "BS_RADIOBUTTON"},
    {"RICHEDITWINDOW", 0x17F0,
     "EWS_ALLOWOVERWRITE|EWS_AUTOINDENT|EWS_HILITE|EWS_READONLY|EWS_SELECTALL|EWS_STATUSBAR|EWS_TABSHIFT|EWS_"
     "NUMBERBAR",
     0x0, "0", 0, "0"},
    {"RTEXT", 0x18820082, "SS_RIGHT|SS_NOPREFIX|WS_BORDER|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10020000,
     "WS_GROUP|WS_VISIBLE", 2, "SS_RIGHT"},
    {"SCROLLBAR", 0x18030001, "SBS_HORZ|SBS_VERT|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE", 0x10000000,
     "WS_VISIBLE", 0, "SBS_HORZ"},
    {"SHAPE", 0x1000FFFF,
     "SH_BGCOL_B|SH_BGCOL_G|SH_BGCOL_R|SH_BGCOL_Y|SH_CIRCLE|SH_DASH|SH_DOTTED|SH_ELLIPSE|SH_FGCOL_B|SH_FGCOL_"
     "G|SH_FGCOL_R|SH_FGCOL_Y|SH_RECT|SH_ROUNDRECT|SH_SOLID|SH_SQUARE|SH_TRANSPARENT|WS_VISIBLE",
     0x10000000, "WS_VISIBLE", 0, "0"},
};

void ExpectAnswer(const char* keyword, int query, std::uint32_t number, const char* words) {
  SCOPED_TRACE(::testing::Message() << View(keyword) << " query " << query);
  FixedText<500> text("soil");
  EXPECT_EQ(StyleQuery(keyword, query, text), number);
  EXPECT_EQ(text.view(), words);
  EXPECT_EQ(StyleQuery(keyword, query), number);
}

TEST(StyleQuery, AnswersTheThreeQuestionsForEveryKeyword) {
  EXPECT_EQ(std::size(kKeywords), kStyleKeywordTable.size());
  for (const KeywordCase& expected : kKeywords) {
    ExpectAnswer(expected.keyword, 1, expected.legal, expected.legalWords);
    ExpectAnswer(expected.keyword, 2, expected.defaults, expected.defaultWords);
    ExpectAnswer(expected.keyword, 3, expected.type, expected.typeWord);
  }
}

TEST(StyleQuery, IgnoresCase) {
  ExpectAnswer("checkbox", 3, 2, "BS_CHECKBOX");
  ExpectAnswer("PushButton", 2, 0x10010000, "WS_TABSTOP|WS_VISIBLE");
}

TEST(StyleQuery, OtherQueriesAndOtherKeywordsAnswerZero) {
  for (const int query : {0, 4, -1, 100}) ExpectAnswer("LISTBOX", query, 0, "0");
  for (const char* keyword :
       {"control", "CONTROL", "", "LTEXTX", "LTEX", "MENU", "POPUP", "STATIC", "BUTTON"}) {
    for (const int query : {1, 2, 3}) ExpectAnswer(keyword, query, 0, "0");
  }
  ExpectAnswer(nullptr, 1, 0, "0");
}

TEST(StyleQuery, ClearsTheWholeTextAndCutsTheAnswer) {
  test::ExpectCutToFit(
      "WS_OVERLAPPED|WS_POPUP|WS_CAPTION|WS_BORDER|WS_SYSMENU|WS_MINIMIZEBOX|WS_MAXIMIZEBOX|"
      "WS_THICKFRAME|DS_CENTER|DS_MODALFRAME|WS_CLIPCHILDREN",
      [](TextBuffer buffer) { EXPECT_EQ(StyleQuery("dialog", 1, buffer), 0x82CF0880u); },
      test::Behind::kZero);
  char twenty[20];
  StyleQuery("dialog", 1, {twenty, 20});
  EXPECT_STREQ(twenty, "WS_OVERLAPPED|WS_PO");
  test::ExpectCutToFit(
      "0", [](TextBuffer buffer) { StyleQuery("control", 1, buffer); }, test::Behind::kZero);
}

TEST(StyleQuery, EveryNumberIsTheOrOfItsWords) {
  for (const StyleKeyword& row : kStyleKeywordTable) {
    for (const StyleAnswer& answer : {row.legal, row.defaults, row.type}) {
      std::uint32_t bits = 0;
      std::string_view words = answer.words;
      while (!words.empty()) {
        const std::size_t pipe = words.find('|');
        bits |= StyleWordValue(words.substr(0, pipe));
        words = pipe == std::string_view::npos ? std::string_view() : words.substr(pipe + 1);
      }
      EXPECT_EQ(answer.bits, bits) << row.name << ' ' << answer.words;
    }
  }
}

}  // namespace
}  // namespace brelt::rc
