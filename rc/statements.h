// The control statements of a DIALOG: one table for every question about a keyword.
#pragma once

#include "rc/stylekeywords.h"

namespace brelt::rc {

// The order of a statement's fields. Style stands last in all but kControl.
enum class StatementForm {
  kPlain,    // identifier, coordinates, style
  kText,     // text, identifier, coordinates, style
  kIcon,     // text or word, identifier, coordinates, style
  kControl,  // text, identifier, class, style, coordinates
};

struct ControlStatement {
  // className is the window class; a kControl statement names its own. typeBits go to the style ahead of the
  // statement's own words.
  constexpr ControlStatement(std::string_view word, std::string_view windowClass, StatementForm fieldOrder,
                             std::uint32_t ownTypeBits = 0) noexcept
      : key(word), name(word), className(windowClass), form(fieldOrder), typeBits(ownTypeBits) {
    // By number: GCC's undefined-behaviour sanitizer lets no address be compared with null at compile time.
    const std::size_t row = IndexByName(kStyleKeywordTable, word);
    if (row == kStyleKeywordTable.size()) return;
    legal = kStyleKeywordTable[row].legal.bits;
    defaults = kStyleKeywordTable[row].defaults.bits;
    type = kStyleKeywordTable[row].type.bits;
  }

  FoldedName key;
  std::string_view name;
  std::string_view className;
  StatementForm form;
  std::uint32_t typeBits;
  std::uint32_t legal = 0;
  std::uint32_t defaults = 0;
  std::uint32_t type = 0;
};

inline constexpr std::array<ControlStatement, 16> kControlStatements = {{
    // The two auto buttons differ from their plain forms by type bits alone: they share their rows of style
    // words.
    {"AUTOCHECKBOX", "BUTTON", StatementForm::kText, StyleBits("BS_AUTOCHECKBOX")},
    {"AUTORADIOBUTTON", "BUTTON", StatementForm::kText, StyleBits("BS_AUTORADIOBUTTON")},
    {"CHECKBOX", "BUTTON", StatementForm::kText},
    {"COMBOBOX", "COMBOBOX", StatementForm::kPlain},
    {"CONTROL", "", StatementForm::kControl},
    {"CTEXT", "STATIC", StatementForm::kText},
    {"DEFPUSHBUTTON", "BUTTON", StatementForm::kText},
    {"EDITTEXT", "EDIT", StatementForm::kPlain},
    {"GROUPBOX", "BUTTON", StatementForm::kText},
    {"ICON", "STATIC", StatementForm::kIcon},
    {"LISTBOX", "LISTBOX", StatementForm::kPlain},
    {"LTEXT", "STATIC", StatementForm::kText},
    {"PUSHBUTTON", "BUTTON", StatementForm::kText},
    {"RADIOBUTTON", "BUTTON", StatementForm::kText},
    {"RTEXT", "STATIC", StatementForm::kText},
    {"SCROLLBAR", "SCROLLBAR", StatementForm::kPlain},
}};
static_assert(IsStrictlySorted(kControlStatements));

// The row of a keyword, ignoring case; null for a word that begins no control statement.
constexpr const ControlStatement* FindControlStatement(std::string_view keyword) noexcept {
  return FindByName(kControlStatements, keyword);
}

// Whether a keyword's statement begins with a text. Case counts.
constexpr bool KeywordHasText(std::string_view keyword) noexcept {
  const ControlStatement* row = FindControlStatement(keyword);
  return row != nullptr && row->name == keyword && row->form != StatementForm::kPlain;
}

// Whether a word is the tail of a keyword or the whole of one. Case counts, and an empty word is none. That a
// tail is enough is kept: files rely on how a comma ahead of such a word is read.
constexpr bool EndsAControlKeyword(std::string_view word) noexcept {
  if (word.empty()) return false;
  for (const ControlStatement& row : kControlStatements) {
    // The last letter settles nearly all of them.
    if (row.name.back() == word.back() && row.name.ends_with(word)) return true;
  }
  return false;
}

}  // namespace brelt::rc
