#include "rc/scan.h"

#include <limits>

namespace brelt::rc {
namespace {

constexpr std::int32_t kBroken = -1;

// Each Pass function takes the position of a token's first character and gives the one behind its last, or
// kBroken with the position of the offending character in failedAt.

std::int32_t PassDigits(const char* text, std::int32_t at) noexcept {
  while (IsDigit(text[at])) ++at;
  return at;
}

// number = (digit | sign) {digit} ["." digit {digit}] [("E" | "e") [sign] digit {digit}]
std::int32_t PassNumber(const char* text, std::int32_t at, std::int32_t& failedAt) noexcept {
  at = PassDigits(text, at + 1);
  if (text[at] == '.' && IsDigit(text[at + 1])) at = PassDigits(text, at + 1);
  if (ToLower(text[at]) == 'e' && IsDigitOrSign(text[at + 1])) {
    ++at;
    if (IsSign(text[at])) ++at;
    if (!IsDigit(text[at])) {
      failedAt = at;
      return kBroken;
    }
    at = PassDigits(text, at);
  }
  return at;
}

// string = '"' {character from 32 up, '""' for a mark} '"'. A backslash protects nothing here.
std::int32_t PassString(const char* text, std::int32_t at, std::int32_t& failedAt) noexcept {
  for (++at;; ++at) {
    if (static_cast<unsigned char>(text[at]) < 32) {
      failedAt = at;
      return kBroken;
    }
    if (text[at] != '"') continue;
    if (text[at + 1] != '"') return at + 1;
    ++at;
  }
}

std::int32_t PassBlanks(const char* text, std::int32_t at) noexcept {
  while (text[at] == ' ') ++at;
  return at;
}

// bounds = digits {" "} [":" | ".."] {" "} digits {" "}, with digits = [sign] {digit}. Only the separator is
// optional, so two numbers may follow each other with nothing but blanks between them.
std::int32_t PassBounds(const char* text, std::int32_t at) noexcept {
  ScanSignedDigits(text, at);
  at = PassBlanks(text, at);
  if (text[at] == ':') {
    ++at;
  } else if (text[at] == '.' && text[at + 1] == '.') {
    at += 2;
  }
  at = PassBlanks(text, at);
  ScanSignedDigits(text, at);
  return PassBlanks(text, at);
}

// range = "[" {" "} [bounds {"," bounds}] "]"
std::int32_t PassRange(const char* text, std::int32_t at, std::int32_t& failedAt) noexcept {
  at = PassBlanks(text, at + 1);
  if (text[at] == ']') return at + 1;
  if (!IsDigitOrSign(text[at])) {
    failedAt = at;
    return kBroken;
  }
  at = PassBounds(text, at);
  while (text[at] == ',') at = PassBounds(text, PassBlanks(text, at + 1));
  if (text[at] == ']') return at + 1;
  failedAt = at;
  return kBroken;
}

std::int32_t PassWordChars(const char* text, std::int32_t at) noexcept {
  while (IsWordChar(text[at])) ++at;
  return at;
}

std::int32_t PassHexNumber(const char* text, std::int32_t at) noexcept {
  at += 2;
  while (IsHexDigit(text[at])) ++at;
  return text[at] == 'L' ? at + 1 : at;
}

// The position behind the token that begins at start, start itself where none does, or kBroken.
std::int32_t PassToken(const char* text, std::int32_t start, std::int32_t& failedAt) noexcept {
  const char first = text[start];
  if (IsLetter(first)) return PassWordChars(text, start + 1);
  if (first == '0' && ToLower(text[start + 1]) == 'x') return PassHexNumber(text, start);
  if (IsDigitOrSign(first)) return PassNumber(text, start, failedAt);
  switch (first) {
    case '"':
      return PassString(text, start, failedAt);
    case '[':
      return PassRange(text, start, failedAt);
    case '#':
    case '$':
      return PassWordChars(text, start + 1);
    case '(':
    case ')':
    case '{':
    case '}':
    case ',':
    case '|':
    case '.':
      return start + 1;
    case '=':
      return text[start + 1] == '>' ? start + 2 : start + 1;
    case '<':
      return text[start + 1] == '>' ? start + 2 : start;
    default:
      return start;
  }
}

// Stores a decoded character while there is room.
class Decoded {
 public:
  explicit Decoded(TextBuffer destination) noexcept
      : next_(destination.data()), last_(destination.data() + destination.room()) {}
  void Put(int c) noexcept {
    if (next_ < last_) *next_++ = static_cast<char>(c);
  }

 private:
  char* next_;
  char* last_;
};

// \x takes the next two bytes, whatever they are: a first that is no hexadecimal digit counts as 0, and with
// a second that is none the first stands alone. Never reads behind the terminator.
const char* DecodeHex(const char* digits, Decoded& out) noexcept {
  if (digits[0] == '\0') {
    out.Put(0);
    return digits;
  }
  const int high = HexDigitValue(digits[0]);
  if (digits[1] == '\0') {
    out.Put(high);
    return digits + 1;
  }
  out.Put(IsHexDigit(digits[1]) ? high * 16 + HexDigitValue(digits[1]) : high);
  return digits + 2;
}

const char* DecodeOctal(const char* digits, Decoded& out) noexcept {
  unsigned value = 0;
  for (; IsOctalDigit(*digits); ++digits) value = value * 8 + static_cast<unsigned>(*digits - '0');
  out.Put(static_cast<int>(value & 0xFF));
  return digits;
}

// Decodes what stands behind a backslash; a letter that is no escape goes with its backslash, unwritten.
const char* DecodeEscape(const char* letter, Decoded& out) noexcept {
  if (IsOctalDigit(*letter)) return DecodeOctal(letter, out);
  switch (*letter) {
    case '\0':
      return letter;
    case 'N':
    case 'n':
      out.Put('\n');
      break;
    case 'R':
    case 'r':
      out.Put('\r');
      break;
    case 'T':
    case 't':
      out.Put('\t');
      break;
    case '\\':
      out.Put('\\');
      break;
    case 'x':
      return DecodeHex(letter + 1, out);
    default:
      break;
  }
  return letter + 1;
}

}  // namespace

void ScanToken(const char* text, std::int32_t& position, TextBuffer token) noexcept {
  const std::int32_t start = position;
  std::int32_t failedAt = start;
  const std::int32_t end = PassToken(text, start, failedAt);
  if (end == start) {
    token.Clear();
    return;
  }
  if (end == kBroken) {
    token.Clear();
    position = failedAt;
  } else {
    token.Assign({text + start, static_cast<std::size_t>(end - start)});
    position = end;
  }
  SkipSpace(text, position);
}

void ScanSignedDigits(const char* text, std::int32_t& position) noexcept {
  if (IsSign(text[position])) ++position;
  position = PassDigits(text, position);
}

void UnescapeText(const char* source, TextBuffer destination) noexcept {
  destination.Zero();
  Decoded out(destination);
  while (*source != '\0') {
    const char c = *source++;
    if (c == '\\') {
      source = DecodeEscape(source, out);
      continue;
    }
    if (c == '"' && *source == '"') ++source;
    out.Put(c);
  }
}

std::string_view StringBody(std::string_view token) noexcept {
  if (token.empty() || token.front() != '"') return {};
  token.remove_prefix(1);
  if (!token.empty() && token.back() == '"') token.remove_suffix(1);
  return token;
}

std::int32_t DecimalValue(const char* text) noexcept {
  const bool negative = *text == '-';
  if (IsSign(*text)) ++text;
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  std::int64_t value = 0;
  for (; IsDigit(*text) && value <= kMost + 1; ++text) value = value * 10 + (*text - '0');
  if (negative) return static_cast<std::int32_t>(value > kMost ? -kMost - 1 : -value);
  return static_cast<std::int32_t>(value > kMost ? kMost : value);
}

std::uint32_t HexDigitsValue(std::string_view digits) noexcept {
  constexpr std::uint32_t kMost = std::numeric_limits<std::uint32_t>::max();
  std::uint32_t value = 0;
  for (const char digit : digits) {
    if (!IsHexDigit(digit)) break;
    if (value > kMost >> 4) return kMost;
    value = value << 4 | static_cast<std::uint32_t>(HexDigitValue(digit));
  }
  return value;
}

bool IsLoadOption(std::string_view word) noexcept {
  constexpr std::string_view kOptions[] = {"PRELOAD",     "LOADONCALL", "FIXED", "MOVEABLE",
                                           "DISCARDABLE", "PURE",       "IMPURE"};
  for (const std::string_view option : kOptions) {
    if (EqualIgnoreCase(word, option)) return true;
  }
  return false;
}

}  // namespace brelt::rc
