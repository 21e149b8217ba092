// What a statement keyword or a control type of the library may carry as style words.
#pragma once

#include "rc/stylewords.h"
#include "rc/text.h"

namespace brelt::rc {

// A number and the words that make it, joined by the pipe character; "0" for none. The order of the words is
// part of the data: a writer tries them in that order.
struct StyleAnswer {
  std::uint32_t bits;
  std::string_view words;
};

struct StyleKeyword {
  constexpr StyleKeyword(std::string_view word, StyleAnswer legalWords, StyleAnswer defaultWords,
                         StyleAnswer typeWord) noexcept
      : key(word), name(word), legal(legalWords), defaults(defaultWords), type(typeWord) {}

  FoldedName key;
  std::string_view name;
  StyleAnswer legal;     // any other bit is dropped without a message
  StyleAnswer defaults;  // in place before the statement's own words
  StyleAnswer type;      // stands in where the low four bits come out as 0
};

inline constexpr std::array<StyleKeyword, 24> kStyleKeywordTable = {{
    StyleKeyword(
        "AUTOCHECKBOX",
        {0x18030023, "BS_AUTOCHECKBOX|BS_LEFTTEXT|BS_CHECKBOX|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
        {0x10000000, "WS_VISIBLE"}, {2, "BS_CHECKBOX"}),
    StyleKeyword("AUTORADIOBUTTON",
                 {0x1803002D,
                  "BS_AUTORADIOBUTTON|BS_LEFTTEXT|BS_RADIOBUTTON|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10000000, "WS_VISIBLE"}, {4, "BS_RADIOBUTTON"}),
    StyleKeyword("BITMAPBUTTON",
                 {0x18021F06,
                  "BB_CHECKSTYLE|BB_PUSHSTYLE|BB_RADIOSTYLE|BB_TCOL_B|BB_TCOL_G|BB_TCOL_R|BB_TCOL_Y|"
                  "BB_TRANSPARENT|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10000000, "WS_VISIBLE"}, {0, "0"}),
    StyleKeyword(
        "CHECKBOX",
        {0x18030023, "BS_AUTOCHECKBOX|BS_LEFTTEXT|BS_CHECKBOX|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
        {0x10000000, "WS_VISIBLE"}, {2, "BS_CHECKBOX"}),
    StyleKeyword("COMBOBOX",
                 {0x18A30F03,
                  "CBS_DISABLENOSCROLL|CBS_DROPDOWNLIST|CBS_SIMPLE|CBS_DROPDOWN|CBS_HASSTRINGS|"
                  "CBS_NOINTEGRALHEIGHT|CBS_SORT|WS_BORDER|WS_VSCROLL|WS_TABSTOP|WS_GROUP|WS_DISABLED|"
                  "WS_VISIBLE"},
                 {0x10800000, "WS_BORDER|WS_VISIBLE"}, {0, "0"}),
    StyleKeyword("CTEXT", {0x18820081, "SS_CENTER|SS_NOPREFIX|WS_BORDER|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10020000, "WS_GROUP|WS_VISIBLE"}, {1, "SS_CENTER"}),
    StyleKeyword("DEFPUSHBUTTON", {0x18030001, "BS_DEFPUSHBUTTON|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10010000, "WS_TABSTOP|WS_VISIBLE"}, {1, "BS_DEFPUSHBUTTON"}),
    StyleKeyword("DIALOG",
                 {0x82CF0880,
                  "WS_OVERLAPPED|WS_POPUP|WS_CAPTION|WS_BORDER|WS_SYSMENU|WS_MINIMIZEBOX|WS_MAXIMIZEBOX|"
                  "WS_THICKFRAME|DS_CENTER|DS_MODALFRAME|WS_CLIPCHILDREN"},
                 {0x0, "0"}, {0, "0"}),
    StyleKeyword("EDITTEXT",
                 {0x18B319FF,
                  "ES_AUTOHSCROLL|ES_AUTOVSCROLL|ES_CENTER|ES_LEFT|ES_LOWERCASE|ES_MULTILINE|ES_NOHIDESEL|"
                  "ES_PASSWORD|ES_READONLY|ES_RIGHT|ES_UPPERCASE|ES_WANTRETURN|WS_VSCROLL|WS_HSCROLL|"
                  "WS_BORDER|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10810000, "WS_BORDER|WS_TABSTOP|WS_VISIBLE"}, {0, "ES_LEFT"}),
    StyleKeyword("EDITWINDOW",
                 {0x17F0,
                  "EWS_ALLOWOVERWRITE|EWS_AUTOINDENT|EWS_HILITE|EWS_READONLY|EWS_SELECTALL|EWS_STATUSBAR|"
                  "EWS_TABSHIFT|EWS_NUMBERBAR"},
                 {0x0, "0"}, {0, "0"}),
    StyleKeyword("GROUPBOX", {0x18020007, "BS_GROUPBOX|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10000000, "WS_VISIBLE"}, {7, "BS_GROUPBOX"}),
    StyleKeyword("ICON", {0x10000003, "SS_ICON|WS_VISIBLE"}, {0x10000000, "WS_VISIBLE"}, {3, "SS_ICON"}),
    StyleKeyword("ICONLIST",
                 {0x18B319CB,
                  "LBS_DISABLENOSCROLL|LBS_EXTENDEDSEL|LBS_HASSTRINGS|LBS_MULTIPLESEL|LBS_NOINTEGRALHEIGHT|"
                  "LBS_NOTIFY|LBS_SORT|LBS_STANDARD|LBS_USETABSTOPS|WS_BORDER|WS_VSCROLL|WS_HSCROLL|"
                  "WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10000000, "WS_VISIBLE"}, {0, "0"}),
    StyleKeyword("IMAGE", {0x10800000, "WS_BORDER|WS_VISIBLE"}, {0x10000000, "WS_VISIBLE"}, {0, "0"}),
    StyleKeyword("LISTBOX",
                 {0x18B319CB,
                  "LBS_DISABLENOSCROLL|LBS_EXTENDEDSEL|LBS_HASSTRINGS|LBS_MULTIPLESEL|LBS_NOINTEGRALHEIGHT|"
                  "LBS_NOTIFY|LBS_SORT|LBS_STANDARD|LBS_USETABSTOPS|WS_BORDER|WS_VSCROLL|WS_HSCROLL|"
                  "WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10800000, "WS_BORDER|WS_VISIBLE"}, {1, "LBS_NOTIFY"}),
    StyleKeyword(
        "LTEXT",
        {0x1882008C, "SS_LEFT|SS_NOPREFIX|SS_LEFTNOWORDWRAP|WS_BORDER|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
        {0x10020000, "WS_GROUP|WS_VISIBLE"}, {0, "SS_LEFT"}),
    StyleKeyword("MENUITEM", {0xB, "MF_CHECKED|MF_GRAYED|MF_DISABLED"}, {0x0, "0"}, {0, "0"}),
    StyleKeyword("PROGRESSBAR",
                 {0x10800FF7,
                  "PI_BGCOL_B|PI_BGCOL_G|PI_BGCOL_R|PI_BGCOL_Y|PI_FGCOL_B|PI_FGCOL_G|PI_FGCOL_R|PI_FGCOL_Y|"
                  "PI_PERCENT|PI_VALUE|PI_VERTICAL|WS_BORDER|WS_VISIBLE"},
                 {0x10000000, "WS_VISIBLE"}, {0, "0"}),
    StyleKeyword("PUSHBUTTON", {0x18030000, "BS_PUSHBUTTON|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10010000, "WS_TABSTOP|WS_VISIBLE"}, {0, "BS_PUSHBUTTON"}),
    StyleKeyword("RADIOBUTTON",
                 {0x1803002D,
                  "BS_AUTORADIOBUTTON|BS_LEFTTEXT|BS_RADIOBUTTON|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10000000, "WS_VISIBLE"}, {4, "BS_RADIOBUTTON"}),
    StyleKeyword("RICHEDITWINDOW",
                 {0x17F0,
                  "EWS_ALLOWOVERWRITE|EWS_AUTOINDENT|EWS_HILITE|EWS_READONLY|EWS_SELECTALL|EWS_STATUSBAR|"
                  "EWS_TABSHIFT|EWS_NUMBERBAR"},
                 {0x0, "0"}, {0, "0"}),
    StyleKeyword("RTEXT", {0x18820082, "SS_RIGHT|SS_NOPREFIX|WS_BORDER|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10020000, "WS_GROUP|WS_VISIBLE"}, {2, "SS_RIGHT"}),
    StyleKeyword("SCROLLBAR", {0x18030001, "SBS_HORZ|SBS_VERT|WS_TABSTOP|WS_GROUP|WS_DISABLED|WS_VISIBLE"},
                 {0x10000000, "WS_VISIBLE"}, {0, "SBS_HORZ"}),
    StyleKeyword("SHAPE",
                 {0x1000FFFF,
                  "SH_BGCOL_B|SH_BGCOL_G|SH_BGCOL_R|SH_BGCOL_Y|SH_CIRCLE|SH_DASH|SH_DOTTED|SH_ELLIPSE|"
                  "SH_FGCOL_B|SH_FGCOL_G|SH_FGCOL_R|SH_FGCOL_Y|SH_RECT|SH_ROUNDRECT|SH_SOLID|SH_SQUARE|"
                  "SH_TRANSPARENT|WS_VISIBLE"},
                 {0x10000000, "WS_VISIBLE"}, {0, "0"}),
}};
static_assert(IsStrictlySorted(kStyleKeywordTable));

consteval bool EveryNumberIsTheOrOfItsWords() {
  constexpr auto agrees = [](StyleAnswer answer) consteval {
    return answer.words == "0" ? answer.bits == 0 : answer.bits == StyleBits(answer.words);
  };
  for (const StyleKeyword& row : kStyleKeywordTable) {
    if (!agrees(row.legal) || !agrees(row.defaults) || !agrees(row.type)) return false;
  }
  return true;
}
static_assert(EveryNumberIsTheOrOfItsWords());

// The row of a keyword, ignoring case; null where there is none.
constexpr const StyleKeyword* FindStyleKeyword(std::string_view keyword) noexcept {
  return FindByName(kStyleKeywordTable, keyword);
}

enum StyleQueryKind : int { kLegalWords = 1, kDefaultWords = 2, kTypeWord = 3 };

// The number of an answer, and its text in words, which is cleared whole first. A keyword without a row and a
// query outside 1 to 3 give 0 and "0".
std::uint32_t StyleQuery(const char* keyword, int query, TextBuffer words = {}) noexcept;

}  // namespace brelt::rc
