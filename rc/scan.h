// The tokeniser of RC text. A scan works on a terminated text and a byte position that the caller owns, so a
// caller looks ahead by scanning with a copy of its position. An empty token is the only sign of "nothing
// here".
#pragma once

#include <cstdint>

#include "rc/text.h"

namespace brelt::rc {

// Room for the longest token that a grammar keeps, the text of a string.
inline constexpr int kTokenLength = 1024;
using Token = FixedText<kTokenLength>;
// Room for a token where only a name or keyword matters.
inline constexpr int kNameLength = 40;
using Name = FixedText<kNameLength>;

// Scans one token at position and skips the white space behind it. Nothing in front is skipped: on white
// space, at the end of the text and on a character that begins no token the result is empty and position
// stays. A token longer than the buffer is cut, and position stands behind the whole of it all the same. A
// string keeps its quotation marks, doubled ones included. A number, string or range that breaks off gives an
// empty token, with position behind the white space at the offending character.
void ScanToken(const char* text, std::int32_t& position, TextBuffer token) noexcept;

// Moves position past white space.
inline void SkipSpace(const char* text, std::int32_t& position) noexcept {
  std::int32_t at = position;
  while (IsSpace(text[at])) ++at;
  position = at;
}

// Moves position past one optional sign and the digits behind it, perhaps past nothing.
void ScanSignedDigits(const char* text, std::int32_t& position) noexcept;

// Decodes doubled quotation marks and backslash escapes. Clears the whole destination first; what doesn't fit
// is dropped. Source and destination must be different buffers.
void UnescapeText(const char* source, TextBuffer destination) noexcept;

// Whether UnescapeText could change anything of a text.
inline bool HasEscapes(const char* text) noexcept {
  while (*text != '\0' && *text != '\\' && *text != '"') ++text;
  return *text != '\0';
}

// Decodes a text in place, through a buffer of the same capacity.
template <int Capacity>
void UnescapeInPlace(FixedText<Capacity>& text) noexcept {
  if (!HasEscapes(text.c_str())) return;
  FixedText<Capacity> decoded;
  UnescapeText(text.c_str(), decoded);
  text.Assign(decoded.view());
}

// What stands between the quotation marks of a scanned string. A string that was cut has no closing mark to
// lose.
std::string_view StringBody(std::string_view token) noexcept;

// The number that an optional sign and the digits behind it make, up to the first other character; 0 for
// none. Values beyond the signed 32-bit range give its nearest end.
std::int32_t DecimalValue(const char* text) noexcept;

// The number that the leading hexadecimal digits make; values beyond 32 bits give all ones.
std::uint32_t HexDigitsValue(std::string_view digits) noexcept;

// Whether a text begins with 0x or 0X.
constexpr bool HasHexPrefix(std::string_view text) noexcept {
  return text.size() >= 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
}

// PRELOAD, LOADONCALL, FIXED, MOVEABLE, DISCARDABLE, PURE, IMPURE: words that a header may carry in any
// number and order, left from 16-bit Windows and without effect.
bool IsLoadOption(std::string_view word) noexcept;

}  // namespace brelt::rc
