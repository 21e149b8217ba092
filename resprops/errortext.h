// The error text of a caller.
#pragma once

#include "rc/text.h"

namespace brelt::resprops {

// The first failure of a call stands. It counts also where the buffer is too small to show any of its
// message.
class ErrorText {
 public:
  // Clears the text.
  explicit ErrorText(rc::TextBuffer error) noexcept : error_(error) { error_.Clear(); }

  // Whether there is a buffer; without one the calls do nothing.
  bool IsWanted() const noexcept { return error_.IsWritable(); }
  bool IsFailure() const noexcept { return failed_; }

  // A message, of which detail is a caller's text of any length. An empty message is no failure.
  void Take(std::string_view message, std::string_view detail = {}) noexcept;
  void Format(const char* format, ...) noexcept BRELT_PRINTF(2, 3);

 private:
  rc::TextBuffer error_;
  bool failed_ = false;
};

}  // namespace brelt::resprops
