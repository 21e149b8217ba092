// What the readers of a DIALOG and of a MENU have in common: a text, a position in it and the token in hand.
#pragma once

#include "rc/scan.h"
#include "rc/textkit.h"

namespace brelt::rc {

class TokenReader {
 protected:
  // Stands at the text's first token, with none in hand.
  explicit TokenReader(const char* text) noexcept : text_(text) { SkipSpace(text_, position_); }

  // The character behind the token in hand and its white space.
  char Here() const noexcept { return text_[position_]; }
  void Next() noexcept { ScanToken(text_, position_, token_); }
  void NextBehindLoadOptions() noexcept {
    do {
      Next();
    } while (IsLoadOption(token_.view()));
  }

  bool TokenIs(std::string_view word) const noexcept { return EqualIgnoreCase(token_.view(), word); }
  bool TokenIsString() const noexcept { return *token_.c_str() == '"'; }

  // The token in hand for a message; where the scanner stopped on something that begins no token, that, and
  // the position moves behind it.
  const char* FoundWord() noexcept {
    if (token_.IsEmpty()) BadWordText(text_, position_, token_);
    return OrQuestionMark(token_.c_str());
  }
  static const char* OrQuestionMark(const char* text) noexcept { return IsEmpty(text) ? "?" : text; }

  // Adds the line and column of the token in hand to a message.
  void AppendPlace(TextBuffer message) const noexcept {
    FixedText<64> place;
    TokenPlaceText(text_, position_, place);
    TextWriter::Continue(message).Append(' ').Append(place.view());
  }

  const char* text_;
  std::int32_t position_ = 0;
  Token token_;  // the token in hand
};

}  // namespace brelt::rc
