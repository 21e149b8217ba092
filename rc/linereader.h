// Reads a file line by line in text mode: a carriage return and line feed pair is one line feed, byte 26 ends
// the file.
#pragma once

#include "rc/host.h"

namespace brelt::rc {

// A line is what one read of at most this many characters gives, its line feed counted. A longer line arrives
// in pieces, each a line of its own.
inline constexpr int kLineLength = 1024;

// A line within the reader's buffer, good until the next read. It is terminated and may be changed in place;
// a zero byte in the file ends the text early, though not what is read.
struct Line {
  char* text;
  int length;  // characters, a line feed included

  bool HasLineFeed() const noexcept { return length > 0 && text[length - 1] == '\n'; }
};

// Takes no memory but its own, so that reading can't fail for lack of it: it may stand on the stack.
class LineReader {
 public:
  explicit LineReader(const char* path) noexcept : file_(path, host::OpenMode::kRead) {}

  bool IsOpen() const noexcept { return static_cast<bool>(file_); }
  // False at the end of the file.
  bool Next(Line& line) noexcept;
  // Where in the file the next line begins, for Seek.
  std::uint64_t Offset() const noexcept {
    return bufferOffset_ + static_cast<std::uint64_t>(next_ - buffer_);
  }
  // Goes on with the line at an offset that Offset gave.
  void Seek(std::uint64_t offset) noexcept;
  // Whether a read failed, so that the end that Next reported may not be the file's.
  bool HasFailed() const noexcept { return failed_; }

 private:
  static constexpr int kBufferSize = 32768;

  void Fill() noexcept;
  char* FindLineFeed() const noexcept;

  host::File file_;
  std::uint64_t bufferOffset_ = 0;  // where in the file the buffer begins
  char* next_ = buffer_;            // first byte not handed out
  char* end_ = buffer_;             // behind the last byte read
  char* terminator_ = nullptr;      // where a byte was overwritten to end the last line
  char overwritten_ = '\0';
  bool atEnd_ = false;
  bool failed_ = false;
  char buffer_[kBufferSize + 1];
};

}  // namespace brelt::rc
