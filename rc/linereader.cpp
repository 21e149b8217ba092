#include "rc/linereader.h"

#include <algorithm>
#include <cstring>

namespace brelt::rc {
namespace {

constexpr char kEndOfText = 26;

}  // namespace

void LineReader::Fill() noexcept {
  const auto kept = static_cast<std::size_t>(end_ - next_);
  bufferOffset_ = Offset();
  std::memmove(buffer_, next_, kept);
  next_ = buffer_;
  end_ = buffer_ + kept;
  const int count = file_.Read(end_, kBufferSize - static_cast<int>(kept));
  failed_ = count < 0;
  if (count <= 0) {
    atEnd_ = true;
    return;
  }
  void* endMark = std::memchr(end_, kEndOfText, static_cast<std::size_t>(count));
  atEnd_ = endMark != nullptr;
  end_ = atEnd_ ? static_cast<char*>(endMark) : end_ + count;
}

// The line feed that ends the next line, or null. Where it stands further off than a line and a carriage
// return can reach, only a piece goes out and it isn't looked at yet.
char* LineReader::FindLineFeed() const noexcept {
  const auto window = static_cast<std::size_t>(std::min(end_ - next_, std::ptrdiff_t{kLineLength + 1}));
  return static_cast<char*>(std::memchr(next_, '\n', window));
}

void LineReader::Seek(std::uint64_t offset) noexcept {
  if (!failed_ && offset >= Offset() && offset - Offset() <= static_cast<std::uint64_t>(end_ - next_)) {
    // What lies behind the lines handed out is still as it was read.
    next_ += offset - Offset();
    return;
  }
  terminator_ = nullptr;
  next_ = end_ = buffer_;
  bufferOffset_ = offset;
  failed_ = atEnd_ = !file_.Seek(offset);
}

bool LineReader::Next(Line& line) noexcept {
  if (terminator_ != nullptr) *terminator_ = overwritten_;
  terminator_ = nullptr;
  char* lineFeed = FindLineFeed();
  while (lineFeed == nullptr && !atEnd_ && end_ - next_ <= kLineLength) {
    Fill();
    lineFeed = FindLineFeed();
  }
  if (next_ == end_) return false;

  char* behind = lineFeed != nullptr ? lineFeed + 1 : end_;
  char* textEnd = behind;
  if (lineFeed != nullptr && lineFeed > next_ && lineFeed[-1] == '\r') {
    // The pair becomes one line feed where the carriage return stood.
    lineFeed[-1] = '\n';
    textEnd = lineFeed;
  }
  if (textEnd - next_ > kLineLength) textEnd = behind = next_ + kLineLength;
  line = {next_, static_cast<int>(textEnd - next_)};
  next_ = behind;
  terminator_ = textEnd;
  overwritten_ = *textEnd;
  *textEnd = '\0';
  return true;
}

}  // namespace brelt::rc
