// A caller's buffer between guard bytes, so that a write outside it shows.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

#include "rc/text.h"

namespace brelt::test {

class GuardedBuffer {
 public:
  // The bytes start as something that is neither zero nor text. A size below 0 has the guard bytes alone.
  explicit GuardedBuffer(int size)
      : size_(std::max(size, 0)), bytes_(static_cast<std::size_t>(size_ + 2 * kGuard), kFill) {}

  rc::TextBuffer buffer() { return {bytes_.data() + kGuard, size_}; }
  char* data() { return bytes_.data() + kGuard; }
  int size() const { return size_; }

  bool IsIntact() const {
    const auto isFill = [](char c) { return c == kFill; };
    return std::all_of(bytes_.begin(), bytes_.begin() + kGuard, isFill) &&
           std::all_of(bytes_.end() - kGuard, bytes_.end(), isFill);
  }
  // The bytes up to the terminator, or all of them and a remark when there is none.
  std::string Text() const {
    const auto begin = bytes_.begin() + kGuard;
    const auto end = std::find(begin, begin + size_, '\0');
    return std::string(begin, end) + (end == begin + size_ && size_ > 0 ? "<not terminated>" : "");
  }
  // Whether every byte from the terminator on is zero.
  bool IsZeroBehindText() const {
    const auto begin = bytes_.begin() + kGuard;
    const auto end = std::find(begin, begin + size_, '\0');
    return std::all_of(end, begin + size_, [](char c) { return c == '\0'; });
  }

 private:
  static constexpr int kGuard = 16;
  static constexpr char kFill = '\x5A';

  int size_;
  std::vector<char> bytes_;
};

enum class Behind { kAnything, kZero };

// Calls write with buffers around the size that full needs, and with sizes 0 and 1: the text must be cut to
// what fits, terminated, and nothing outside the buffer touched. With kZero the rest of the buffer must be
// zero too.
template <typename Write>
void ExpectCutToFit(const std::string& full, Write write, Behind behind = Behind::kAnything) {
  const int length = static_cast<int>(full.size());
  for (const int size : {0, 1, 2, length - 1, length, length + 1, length + 2, length + 40}) {
    if (size < 0) continue;
    SCOPED_TRACE(::testing::Message() << "buffer of " << size);
    GuardedBuffer guarded(size);
    write(guarded.buffer());
    EXPECT_TRUE(guarded.IsIntact());
    if (size == 0) continue;
    EXPECT_EQ(guarded.Text(), full.substr(0, static_cast<std::size_t>(size) - 1));
    if (behind == Behind::kZero) {
      EXPECT_TRUE(guarded.IsZeroBehindText());
    }
  }
  write(rc::TextBuffer());
}

// The same for a call that takes a pointer and a size as a program passes them, so that the sizes below 1
// reach it with a pointer: nothing may be written then.
template <typename Call>
void ExpectCallCutToFit(const std::string& full, Call call) {
  const int length = static_cast<int>(full.size());
  for (const int size : {INT_MIN, -1, 0, 1, 2, length - 1, length, length + 1, length + 2, length + 40}) {
    SCOPED_TRACE(::testing::Message() << "buffer of " << size);
    GuardedBuffer guarded(size);
    call(guarded.data(), size);
    EXPECT_TRUE(guarded.IsIntact());
    if (size < 1) continue;
    EXPECT_EQ(guarded.Text(), full.substr(0, static_cast<std::size_t>(size) - 1));
  }
  call(nullptr, length + 1);
}

}  // namespace brelt::test
