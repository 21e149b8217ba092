#include "rc/text.h"

#include <cstdio>

namespace brelt::rc {

TextWriter& TextWriter::AppendFill(char c, int count) noexcept {
  for (int i = 0; i < count; ++i) Append(c);
  return *this;
}

TextWriter& TextWriter::Format(const char* format, ...) noexcept {
  std::va_list arguments;
  va_start(arguments, format);
  FormatList(format, arguments);
  va_end(arguments);
  return *this;
}

TextWriter& TextWriter::FormatList(const char* format, std::va_list arguments) noexcept {
  const int room = buffer_.room() - length_;
  if (room <= 0) return *this;
  const int wanted =
      std::vsnprintf(buffer_.data() + length_, static_cast<std::size_t>(room) + 1, format, arguments);
  if (wanted > 0) length_ += wanted < room ? wanted : room;
  return *this;
}

}  // namespace brelt::rc
