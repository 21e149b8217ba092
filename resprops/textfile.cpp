#include "resprops/textfile.h"

#include <algorithm>

namespace brelt::resprops {

void TextFile::Write(std::string_view text) noexcept {
  for (std::size_t end; (end = text.find('\n')) != std::string_view::npos; text.remove_prefix(end + 1)) {
    WriteLine(text.substr(0, end));
  }
  WriteBytes(text);
}

void TextFile::WriteBlocks(std::string_view bytes) noexcept {
  while (!bytes.empty()) {
    if (used_ == kBufferSize) Flush();
    const std::size_t count = std::min(bytes.size(), kBufferSize - used_);
    std::memcpy(buffer_ + used_, bytes.data(), count);
    used_ += count;
    bytes.remove_prefix(count);
  }
}

void TextFile::Flush() noexcept {
  if (used_ == 0 || !file_) return;
  // Behind a block that is missing no further one may stand.
  if (!failed_) failed_ = !file_.Write(buffer_, static_cast<int>(used_));
  used_ = 0;
}

bool TextFile::Close() noexcept {
  if (!file_) return false;
  Flush();
  return file_.Close() && !failed_;
}

}  // namespace brelt::resprops
