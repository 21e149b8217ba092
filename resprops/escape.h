// Writes texts as RC string literals.
#pragma once

#include "rc/text.h"

namespace brelt::resprops {

// The body of a string literal, which UnescapeText decodes: tab, line feed, carriage return, quotation mark
// and backslash as their escapes, every other character outside 32 to 126 as \x and two hexadecimal digits.
// Clears the whole destination first; what doesn't fit is dropped, be it half an escape.
void EscapeText(std::string_view source, rc::TextBuffer destination) noexcept;

// Room for the escaped form of a record's text, all of it as \x.
using EscapedText = rc::FixedText<1024>;

}  // namespace brelt::resprops
