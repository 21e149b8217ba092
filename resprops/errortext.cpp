#include "resprops/errortext.h"

namespace brelt::resprops {

void ErrorText::Take(std::string_view message, std::string_view detail) noexcept {
  if (failed_ || message.empty()) return;
  failed_ = true;
  rc::TextWriter(error_).Append(message).Append(detail);
}

void ErrorText::Format(const char* format, ...) noexcept {
  if (failed_) return;
  failed_ = true;
  std::va_list arguments;
  va_start(arguments, format);
  rc::TextWriter(error_).FormatList(format, arguments);
  va_end(arguments);
}

}  // namespace brelt::resprops
