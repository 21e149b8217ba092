#include "rc/textkit.h"

namespace brelt::rc {

bool IsIdentifier(const char* text) noexcept {
  if (text == nullptr || !IsWordChar(*text) || IsDigit(*text)) return false;
  while (IsWordChar(*text)) ++text;
  return *text == '\0';
}

bool IsDecimalText(const char* text) noexcept {
  if (text == nullptr) return false;
  if (IsSign(*text)) ++text;
  if (!IsDigit(*text)) return false;
  while (IsDigit(*text)) ++text;
  return *text == '\0';
}

bool IsHexText(const char* text) noexcept {
  if (text == nullptr || text[0] != '0' || ToLower(text[1]) != 'x') return false;
  text += 2;
  if (!IsHexDigit(*text)) return false;
  while (IsHexDigit(*text)) ++text;
  return *text == '\0';
}

bool IsAllSpace(const char* text) noexcept {
  if (IsEmpty(text)) return false;
  while (IsSpace(*text)) ++text;
  return *text == '\0';
}

void ReplaceChar(char* buffer, int length, char from, char to) noexcept {
  if (buffer == nullptr) return;
  for (int i = 0; i < length; ++i) {
    if (buffer[i] == from) buffer[i] = to;
  }
}

int CountChar(const char* text, char character) noexcept {
  int count = 0;
  for (const char c : View(text)) count += c == character ? 1 : 0;
  return count;
}

void TrimLineEnd(char* text) noexcept {
  std::size_t length = std::strlen(text);
  while (length > 0 && (text[length - 1] == '\r' || text[length - 1] == '\n')) --length;
  text[length] = '\0';
}

std::string_view TrimBlanks(std::string_view text) noexcept {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

bool LineWalk::Next(std::string_view& line) noexcept {
  const char* end = next_ != nullptr ? std::strchr(next_, '\n') : nullptr;
  if (end == nullptr) {
    line = {};
    return false;
  }
  line = {next_, static_cast<std::size_t>(end + 1 - next_)};
  next_ = end + 1;
  return true;
}

void NthLine(const char* text, int number, TextBuffer line) noexcept {
  line.Clear();
  LineWalk walk(text);
  std::string_view found;
  for (int n = 1; walk.Next(found); ++n) {
    if (n != number) continue;
    line.Assign(found);
    return;
  }
}

Place LineAndColumn(const char* text, std::int32_t offset) noexcept {
  const std::string_view all = View(text);
  if (offset < 0 || static_cast<std::size_t>(offset) >= all.size()) return {};
  Place place{1, 1};
  for (const char c : all.substr(0, static_cast<std::size_t>(offset))) {
    ++place.column;
    if (c == '\n') place = {place.line + 1, 1};
  }
  return place;
}

void TokenPlaceText(const char* text, std::int32_t position, TextBuffer out) noexcept {
  std::int32_t at = position;
  while (at > 0 && IsSpace(text[at - 1])) --at;
  while (at > 0 && !IsSpace(text[at - 1])) --at;
  const Place place = LineAndColumn(text, at);
  TextWriter(out).Format("(Line %ld, col %ld)", static_cast<long>(place.line),
                         static_cast<long>(place.column));
}

void BadWordText(const char* text, std::int32_t& position, TextBuffer out) noexcept {
  TextWriter writer(out);
  for (; IsLetterOrDigit(text[position]) || IsPunctuation(text[position]); ++position) {
    writer.Append(text[position]);
  }
}

}  // namespace brelt::rc
