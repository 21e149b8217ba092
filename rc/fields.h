// The fields that the statements of a DIALOG and a MENU are made of. Each reader takes what it finds at
// position and moves behind it and the white space that follows; a field that isn't there leaves an empty
// result and is for the caller to judge.
#pragma once

#include "rc/record.h"
#include "rc/scan.h"

namespace brelt::rc {

// string: the text between the quotation marks, undecoded, cut to the buffer. Without a quotation mark at
// position nothing is consumed.
void ParseOptionalString(const char* text, std::int32_t& position, TextBuffer out) noexcept;

// word | number: an identifier as written. Consumes nothing unless a letter, digit or sign stands at
// position.
void ParseOptionalId(const char* text, std::int32_t& position, TextBuffer out) noexcept;

// A comma, if one stands here.
void PassOptionalComma(const char* text, std::int32_t& position) noexcept;

// number {("+" | "-" | "*") number}, strictly from left to right; sums wrap. kUnset where no digit or sign
// stands, or where an operator has no number behind it.
std::int32_t ParseExpression(const char* text, std::int32_t& position) noexcept;

struct Rectangle {
  std::int32_t x = kUnset;
  std::int32_t y = kUnset;
  std::int32_t width = kUnset;
  std::int32_t height = kUnset;

  bool IsComplete() const noexcept {
    return x != kUnset && y != kUnset && width != kUnset && height != kUnset;
  }
};

// expression [","] expression [","] expression [","] expression: x, y, width, height.
Rectangle ParseCoordinates(const char* text, std::int32_t& position) noexcept;

// ["," ["NOT"] word {"|" ["NOT"] word}]: changes the bits of style. A comma with a control keyword behind it
// is a trailing comma of the statement before.
void ParseStyleList(const char* text, std::int32_t& position, std::uint32_t& style) noexcept;

}  // namespace brelt::rc
