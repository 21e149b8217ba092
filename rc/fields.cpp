#include "rc/fields.h"

#include "rc/statements.h"
#include "rc/stylewords.h"

namespace brelt::rc {
namespace {

// Consumes one character and the white space behind it.
void Pass(const char* text, std::int32_t& position) noexcept {
  ++position;
  SkipSpace(text, position);
}

constexpr bool IsOperator(char c) noexcept { return c == '+' || c == '-' || c == '*'; }

// Sums of coordinates wrap like the platform's integers rather than being undefined.
std::int32_t Apply(char operation, std::int32_t left, std::int32_t right) noexcept {
  const auto a = static_cast<std::uint32_t>(left);
  const auto b = static_cast<std::uint32_t>(right);
  switch (operation) {
    case '+':
      return static_cast<std::int32_t>(a + b);
    case '-':
      return static_cast<std::int32_t>(a - b);
    default:
      return static_cast<std::int32_t>(a * b);
  }
}

std::int32_t ParseNumber(const char* text, std::int32_t& position) noexcept {
  FixedText<33> token;
  ScanToken(text, position, token);
  return DecimalValue(token.c_str());
}

// ["NOT"] word
void ParseStyleWord(const char* text, std::int32_t& position, std::uint32_t& style) noexcept {
  Name word;
  ScanToken(text, position, word);
  if (EqualIgnoreCase(word.view(), "NOT")) {
    ScanToken(text, position, word);
    style &= ~StyleWordValue(word.view());
  } else {
    style |= StyleWordValue(word.view());
  }
}

}  // namespace

void ParseOptionalString(const char* text, std::int32_t& position, TextBuffer out) noexcept {
  out.Clear();
  if (text[position] != '"') return;
  Token token;
  ScanToken(text, position, token);
  if (token.IsEmpty()) return;
  out.Assign(token.view().substr(1));
  // The cut comes first and then the closing mark goes, so a text as long as the buffer loses a mark at its
  // end.
  const std::string_view kept(out.c_str());
  if (!kept.empty() && kept.back() == '"') out.Assign(kept.substr(0, kept.size() - 1));
}

void ParseOptionalId(const char* text, std::int32_t& position, TextBuffer out) noexcept {
  out.Clear();
  if (IsLetter(text[position]) || IsDigitOrSign(text[position])) ScanToken(text, position, out);
}

void PassOptionalComma(const char* text, std::int32_t& position) noexcept {
  if (text[position] == ',') Pass(text, position);
}

std::int32_t ParseExpression(const char* text, std::int32_t& position) noexcept {
  if (!IsDigitOrSign(text[position])) return kUnset;
  std::int32_t value = ParseNumber(text, position);
  bool broken = false;
  while (IsOperator(text[position])) {
    // The operator is taken here, ahead of the scanner, which would read a sign into the number.
    const char operation = text[position];
    Pass(text, position);
    if (IsDigitOrSign(text[position])) {
      value = Apply(operation, value, ParseNumber(text, position));
    } else {
      broken = true;
    }
  }
  return broken ? kUnset : value;
}

Rectangle ParseCoordinates(const char* text, std::int32_t& position) noexcept {
  Rectangle rectangle;
  if (!IsDigitOrSign(text[position])) return rectangle;
  rectangle.x = ParseExpression(text, position);
  PassOptionalComma(text, position);
  rectangle.y = ParseExpression(text, position);
  PassOptionalComma(text, position);
  rectangle.width = ParseExpression(text, position);
  PassOptionalComma(text, position);
  rectangle.height = ParseExpression(text, position);
  return rectangle;
}

void ParseStyleList(const char* text, std::int32_t& position, std::uint32_t& style) noexcept {
  if (text[position] != ',') return;
  Pass(text, position);
  std::int32_t end = position;
  while (IsLetter(text[end]) && end - position < kNameLength) ++end;
  if (EndsAControlKeyword({text + position, static_cast<std::size_t>(end - position)})) return;
  ParseStyleWord(text, position, style);
  while (text[position] == '|') {
    Pass(text, position);
    ParseStyleWord(text, position, style);
  }
}

}  // namespace brelt::rc
