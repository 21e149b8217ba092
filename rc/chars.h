// Character classes of RC text: plain ASCII, whatever the host's locale. Bytes from 128 up belong to no
// class.
#pragma once

#include <array>
#include <string_view>

namespace brelt::rc {

namespace detail {

enum ClassBit : unsigned char {
  kDigit = 1,
  kLetter = 2,
  kHexLetter = 4,
  kUnderline = 8,
  kSpace = 16,
  kSign = 32
};

// The classes of each byte: most characters of a text are asked for theirs, and a look-up is the fastest
// answer.
inline constexpr std::array<unsigned char, 256> kClasses = [] {
  std::array<unsigned char, 256> classes{};
  for (int c = '0'; c <= '9'; ++c) classes[c] = kDigit;
  for (int c = 'A'; c <= 'Z'; ++c) classes[c] = classes[c + ('a' - 'A')] = kLetter;
  for (int c = 'A'; c <= 'F'; ++c) classes[c] = classes[c + ('a' - 'A')] = kLetter | kHexLetter;
  for (int c = '\t'; c <= '\r'; ++c) classes[c] = kSpace;
  classes[' '] = kSpace;
  classes['_'] = kUnderline;
  classes['+'] = classes['-'] = kSign;
  return classes;
}();

constexpr bool IsOneOf(char c, int classes) noexcept {
  return (kClasses[static_cast<unsigned char>(c)] & classes) != 0;
}

}  // namespace detail

constexpr bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }
constexpr bool IsUpper(char c) noexcept { return c >= 'A' && c <= 'Z'; }
constexpr bool IsLower(char c) noexcept { return c >= 'a' && c <= 'z'; }
constexpr bool IsLetter(char c) noexcept { return detail::IsOneOf(c, detail::kLetter); }
constexpr bool IsLetterOrDigit(char c) noexcept {
  return detail::IsOneOf(c, detail::kLetter | detail::kDigit);
}
constexpr bool IsWordChar(char c) noexcept {
  return detail::IsOneOf(c, detail::kLetter | detail::kDigit | detail::kUnderline);
}
constexpr bool IsHexDigit(char c) noexcept { return detail::IsOneOf(c, detail::kDigit | detail::kHexLetter); }
constexpr bool IsOctalDigit(char c) noexcept { return c >= '0' && c <= '7'; }
constexpr bool IsSpace(char c) noexcept { return detail::IsOneOf(c, detail::kSpace); }
constexpr bool IsSign(char c) noexcept { return c == '+' || c == '-'; }
constexpr bool IsDigitOrSign(char c) noexcept { return detail::IsOneOf(c, detail::kDigit | detail::kSign); }
constexpr bool IsControl(char c) noexcept {
  return static_cast<unsigned char>(c) < 32 || static_cast<unsigned char>(c) == 127;
}
// A visible ASCII character that is neither letter nor digit.
constexpr bool IsPunctuation(char c) noexcept { return c > ' ' && c < 127 && !IsLetterOrDigit(c); }

constexpr char ToLower(char c) noexcept { return IsUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c; }
constexpr char ToUpper(char c) noexcept { return IsLower(c) ? static_cast<char>(c - ('a' - 'A')) : c; }

// The value of a hexadecimal digit; 0 for any other character.
constexpr int HexDigitValue(char c) noexcept {
  if (!IsHexDigit(c)) return 0;
  return IsDigit(c) ? c - '0' : ToLower(c) - 'a' + 10;
}

// Compares the lower-case forms byte by byte: below 0, 0 or above 0.
constexpr int CompareIgnoreCase(std::string_view a, std::string_view b) noexcept {
  const std::size_t common = a.size() < b.size() ? a.size() : b.size();
  for (std::size_t i = 0; i < common; ++i) {
    const auto left = static_cast<unsigned char>(ToLower(a[i]));
    const auto right = static_cast<unsigned char>(ToLower(b[i]));
    if (left != right) return left < right ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

constexpr bool EqualIgnoreCase(std::string_view a, std::string_view b) noexcept {
  return a.size() == b.size() && CompareIgnoreCase(a, b) == 0;
}

constexpr bool StartsWithIgnoreCase(std::string_view text, std::string_view prefix) noexcept {
  return text.size() >= prefix.size() && EqualIgnoreCase(text.substr(0, prefix.size()), prefix);
}

}  // namespace brelt::rc
