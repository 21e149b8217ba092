// Writes records as RC text that the parsers read back.
#pragma once

#include "rc/record.h"

namespace brelt::resprops {

// The columns of RC text.
inline constexpr int kControlIndent = 4;
inline constexpr int kContinuedIndent = 19;  // behind the padded keyword
inline constexpr int kMenuIndent = 4;        // for each level
inline constexpr int kMostIndent = 40;
inline constexpr int kColumnLimit = 1024;

// Appends a piece: at the beginning of a line behind indent blanks, at most 40 of them; on a new line where
// it would reach beyond column limit. A piece is never split.
void AppendWrapped(int indent, int limit, std::string_view piece, rc::TextWriter& text) noexcept;

// The expression that, applied to the default words of a statement keyword or control class, gives the style
// as far as its words can say it: words and NOT words joined by the pipe character, in the order of the
// table. Where nothing is to be said it is a word of value 0, or "0".
void StyleWordsOf(std::string_view keyword, std::uint32_t style, rc::TextBuffer words) noexcept;

// The options of a menu entry, joined by commas; empty for none. Line breaks in the menu bar have no
// property.
void MenuOptionWords(std::uint32_t style, rc::TextBuffer words) noexcept;

// The text of a DIALOG or a MENU, from the records up to the first without a keyword. Replaces what the
// buffer holds; what doesn't fit is dropped. In a menu every record has the keyword MENUITEM, and its nesting
// is told by its level: an entry with a deeper one behind it is a POPUP.
void RecordsToText(rc::RecordTable& records, rc::TextBuffer text) noexcept;

}  // namespace brelt::resprops
