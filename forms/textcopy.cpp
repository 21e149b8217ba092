#include "forms/textcopy.h"

#include <cstring>

#include "include/events.h"

namespace brelt {

host::Block<char> TextToCrLf(const char* text) noexcept {
  const std::string_view source = rc::View(text);
  std::size_t length = source.size();
  char before = '\0';
  for (const char c : source) {
    if (c == '\n' && before != '\r') ++length;
    before = c;
  }
  host::Block<char> copy(length + 1);
  if (!copy) return copy;
  char* to = copy.get();
  before = '\0';
  for (const char c : source) {
    if (c == '\n' && before != '\r') *to++ = '\r';
    *to++ = before = c;
  }
  return copy;
}

host::Block<char> CopyText(const char* text) noexcept {
  const std::string_view source = rc::View(text);
  host::Block<char> copy(source.size() + 1);
  if (copy && !source.empty()) std::memcpy(copy.get(), source.data(), source.size());
  return copy;
}

std::int32_t TextLimitOf(HWND control) noexcept {
  return static_cast<std::int32_t>(
      SendMessageA(GetParent(control), XM_GETMAXLENGTH, reinterpret_cast<WPARAM>(control), 0));
}

void CutToLimit(char* text, std::int32_t limit) noexcept {
  if (limit > 0 && std::strlen(text) > static_cast<std::size_t>(limit)) text[limit] = '\0';
}

}  // namespace brelt
