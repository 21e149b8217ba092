// Writes files as text: each line feed becomes a carriage return and a line feed, on every host.
#pragma once

#include "rc/host.h"

namespace brelt::resprops {

// Gathers what is written and hands it to the file in large blocks. Takes no memory but its own, so that
// writing can't fail for lack of it.
class TextFile {
 public:
  // mode is one of those that write.
  TextFile(const char* path, host::OpenMode mode) noexcept : file_(path, mode) {}
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;
  ~TextFile() { Close(); }

  bool IsOpen() const noexcept { return static_cast<bool>(file_); }
  void Write(std::string_view text) noexcept;
  // A line without its line feed, which is written behind it.
  void WriteLine(std::string_view line) noexcept {
    WriteBytes(line);
    WriteBytes("\r\n");
  }
  // Bytes as they are.
  void WriteBytes(std::string_view bytes) noexcept {
    if (bytes.size() > kBufferSize - used_) return WriteBlocks(bytes);
    std::memcpy(buffer_ + used_, bytes.data(), bytes.size());
    used_ += bytes.size();
  }
  // Whether all that was written has reached the file.
  bool Close() noexcept;

 private:
  static constexpr std::size_t kBufferSize = 65536;

  void WriteBlocks(std::string_view bytes) noexcept;
  void Flush() noexcept;

  host::File file_;
  std::size_t used_ = 0;
  bool failed_ = false;
  char buffer_[kBufferSize];
};

}  // namespace brelt::resprops
