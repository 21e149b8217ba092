// Small operations on texts, lines and places that the readers and writers of RC text share.
#pragma once

#include <cstdint>

#include "rc/text.h"

namespace brelt::rc {

// A letter or '_', then letters, digits and '_'. More generous than the scanner, which reads no word that
// begins with '_'.
bool IsIdentifier(const char* text) noexcept;

// An optional sign and at least one digit, nothing else.
bool IsDecimalText(const char* text) noexcept;

// 0x or 0X and at least one hexadecimal digit, nothing else; unlike the scanner's token, no trailing L.
bool IsHexText(const char* text) noexcept;

// Not null, not empty and white space throughout.
bool IsAllSpace(const char* text) noexcept;

// Replaces each byte equal to from among the first length bytes; zero bytes don't stop it.
void ReplaceChar(char* buffer, int length, char from, char to) noexcept;

// How many times a character occurs; 0 in a null text.
int CountChar(const char* text, char character) noexcept;

// Removes all carriage returns and line feeds at the end, in place.
void TrimLineEnd(char* text) noexcept;

// A text without the blanks at its ends. Only the character 32 is a blank here.
std::string_view TrimBlanks(std::string_view text) noexcept;

// Copies line number (from 1) with its line feed, cut to the buffer. A line that no line feed closes doesn't
// exist, so the result is empty for it as for a number past the end.
void NthLine(const char* text, int number, TextBuffer line) noexcept;

// Goes through the lines that NthLine would give one after the other, in one pass.
class LineWalk {
 public:
  explicit LineWalk(const char* text) noexcept : next_(text) {}
  // The next line with its line feed; false, with an empty line, when there is none.
  bool Next(std::string_view& line) noexcept;

 private:
  const char* next_;
};

struct Place {
  int line = 0;
  int column = 0;
};

// The line and column (from 1, columns in bytes) of a byte offset; 0 and 0 outside the text.
Place LineAndColumn(const char* text, std::int32_t offset) noexcept;

// Writes "(Line %ld, col %ld)" for the token that ended just before position.
void TokenPlaceText(const char* text, std::int32_t position, TextBuffer out) noexcept;

// Copies the characters at position for use in a message, up to the first blank or the first byte that is no
// visible ASCII character, and moves position past all of them, also past those that don't fit.
void BadWordText(const char* text, std::int32_t& position, TextBuffer out) noexcept;

}  // namespace brelt::rc
