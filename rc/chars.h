// Character classes of RC text: plain ASCII, whatever the host's locale. Bytes from 128 up belong to no
// class.
#pragma once

#include <string_view>

namespace brelt::rc {

constexpr bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }
constexpr bool IsUpper(char c) noexcept { return c >= 'A' && c <= 'Z'; }
constexpr bool IsLower(char c) noexcept { return c >= 'a' && c <= 'z'; }
constexpr bool IsLetter(char c) noexcept { return IsUpper(c) || IsLower(c); }
constexpr bool IsLetterOrDigit(char c) noexcept { return IsLetter(c) || IsDigit(c); }
constexpr bool IsWordChar(char c) noexcept { return IsLetterOrDigit(c) || c == '_'; }
constexpr bool IsHexDigit(char c) noexcept {
  return IsDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}
constexpr bool IsOctalDigit(char c) noexcept { return c >= '0' && c <= '7'; }
constexpr bool IsSpace(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool IsSign(char c) noexcept { return c == '+' || c == '-'; }
constexpr bool IsDigitOrSign(char c) noexcept { return IsDigit(c) || IsSign(c); }
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
