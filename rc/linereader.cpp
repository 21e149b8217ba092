#include "rc/linereader.h"

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

// Whether more of the file is needed to say where the line ends. A pair may be split between two reads of the
// file, so that one character more than a line must be at hand.
bool LineReader::IsStarved(const char* lineFeed) const noexcept {
  return lineFeed == nullptr && !atEnd_ && end_ - next_ <= kLineLength;
}

void LineReader::Seek(std::uint64_t offset) noexcept {
  terminator_ = nullptr;
  next_ = end_ = buffer_;
  bufferOffset_ = offset;
  failed_ = atEnd_ = !file_.Seek(offset);
}

bool LineReader::Next(Line& line) noexcept {
  if (terminator_ != nullptr) *terminator_ = overwritten_;
  terminator_ = nullptr;
  char* lineFeed = nullptr;
  for (;;) {
    lineFeed = static_cast<char*>(std::memchr(next_, '\n', static_cast<std::size_t>(end_ - next_)));
    if (!IsStarved(lineFeed)) break;
    Fill();
  }
  if (next_ == end_) return false;

  line.text = next_;
  char* behind = lineFeed != nullptr ? lineFeed + 1 : end_;
  char* textEnd = behind;
  if (lineFeed != nullptr && lineFeed > next_ && lineFeed[-1] == '\r') {
    // The pair becomes one line feed where the carriage return stood.
    lineFeed[-1] = '\n';
    textEnd = lineFeed;
  }
  if (textEnd - next_ > kLineLength) {
    // Only a piece goes out, and its pair, if it has one, must be found whole by a later read.
    if (textEnd == lineFeed) lineFeed[-1] = '\r';
    textEnd = behind = next_ + kLineLength;
  }
  line.length = static_cast<int>(textEnd - next_);
  next_ = behind;
  terminator_ = textEnd;
  overwritten_ = *textEnd;
  *textEnd = '\0';
  return true;
}

}  // namespace brelt::rc
