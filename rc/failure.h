// How an operation that can fail in several steps reports: by a failure code and a text in words.
#pragma once

#include <cstdint>

#include "include/events.h"
#include "rc/text.h"

namespace brelt::rc {

// The first failure stands; later ones are not taken.
struct Failure {
  FixedText<1023> message;
  std::int32_t code = RTX_OK;

  explicit operator bool() const noexcept { return code != RTX_OK; }
  void Set(std::int32_t failureCode, std::string_view text, std::string_view word = {}) noexcept {
    if (code != RTX_OK) return;
    code = failureCode;
    message.Assign(text);
    message.Append(word);
  }
  void Format(std::int32_t failureCode, const char* format, ...) noexcept BRELT_PRINTF(3, 4) {
    if (code != RTX_OK) return;
    code = failureCode;
    std::va_list arguments;
    va_start(arguments, format);
    TextWriter(message).FormatList(format, arguments);
    va_end(arguments);
  }
  // Puts a text ahead of the message.
  void Prefix(std::string_view text) noexcept {
    const FixedText<1023> rest = message;
    message.Assign(text);
    message.Append(rest.view());
  }
};

}  // namespace brelt::rc
