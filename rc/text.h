// Texts of limited size. A limit is part of the type or of the view, so that every copy into one cuts at the
// same place and leaves a terminator, and no caller has to remember it.
#pragma once

#include <cstdarg>
#include <cstring>
#include <string_view>

#include "rc/chars.h"

#if defined(__MINGW32__) && !defined(__clang__)
#define BRELT_PRINTF(formatIndex, firstIndex) __attribute__((format(gnu_printf, formatIndex, firstIndex)))
#else
#define BRELT_PRINTF(formatIndex, firstIndex) __attribute__((format(printf, formatIndex, firstIndex)))
#endif

namespace brelt::rc {

// A text that may be null, as a view; null counts as empty.
inline std::string_view View(const char* text) noexcept {
  return text != nullptr ? std::string_view(text) : std::string_view();
}

inline bool IsEmpty(const char* text) noexcept { return text == nullptr || *text == '\0'; }

// A caller's character buffer: pointer and size in bytes. With a null pointer or a size below 1 nothing is
// ever written. It owns nothing and keeps no length.
class TextBuffer {
 public:
  constexpr TextBuffer() noexcept = default;
  constexpr TextBuffer(char* data, int size) noexcept
      : data_(size > 0 ? data : nullptr), size_(data != nullptr && size > 0 ? size : 0) {}

  bool IsWritable() const noexcept { return size_ > 0; }
  char* data() const noexcept { return data_; }
  int size() const noexcept { return size_; }
  // How many characters fit in front of the terminator.
  int room() const noexcept { return size_ > 0 ? size_ - 1 : 0; }
  const char* c_str() const noexcept { return data_ != nullptr ? data_ : ""; }

  // Makes the text empty by its first byte.
  void Clear() const noexcept {
    if (size_ > 0) data_[0] = '\0';
  }
  // Makes all bytes zero.
  void Zero() const noexcept {
    if (size_ > 0) std::memset(data_, 0, static_cast<std::size_t>(size_));
  }
  // Copies what fits and terminates it. The source may lie in this buffer.
  void Assign(std::string_view text) const noexcept {
    if (size_ == 0) return;
    const int length = Fitting(text.size());
    // An empty view may have no address, which the platform's copying doesn't allow.
    if (length > 0) std::memmove(data_, text.data(), static_cast<std::size_t>(length));
    data_[length] = '\0';
  }

 private:
  int Fitting(std::size_t length) const noexcept {
    return length < static_cast<std::size_t>(size_) ? static_cast<int>(length) : size_ - 1;
  }

  char* data_ = nullptr;
  int size_ = 0;
};

// Builds a text in a buffer piece by piece; what doesn't fit is dropped without a mark. Starts empty.
class TextWriter {
 public:
  explicit TextWriter(TextBuffer buffer) noexcept : buffer_(buffer) { buffer_.Clear(); }

  // Goes on behind the text that a buffer holds.
  static TextWriter Continue(TextBuffer buffer) noexcept {
    return {buffer, static_cast<int>(std::strlen(buffer.c_str()))};
  }

  TextWriter& Append(std::string_view text) noexcept {
    const int room = buffer_.room() - length_;
    if (room <= 0 || text.empty()) return *this;
    const int length = text.size() < static_cast<std::size_t>(room) ? static_cast<int>(text.size()) : room;
    std::memcpy(buffer_.data() + length_, text.data(), static_cast<std::size_t>(length));
    length_ += length;
    buffer_.data()[length_] = '\0';
    return *this;
  }
  TextWriter& Append(char c) noexcept { return Append(std::string_view(&c, 1)); }
  TextWriter& AppendFill(char c, int count) noexcept;
  TextWriter& Format(const char* format, ...) noexcept BRELT_PRINTF(2, 3);
  TextWriter& FormatList(const char* format, std::va_list arguments) noexcept BRELT_PRINTF(2, 0);

  int length() const noexcept { return length_; }
  bool IsEmpty() const noexcept { return length_ == 0; }
  const char* c_str() const noexcept { return buffer_.c_str(); }
  std::string_view view() const noexcept { return {c_str(), static_cast<std::size_t>(length_)}; }

 private:
  TextWriter(TextBuffer buffer, int length) noexcept : buffer_(buffer), length_(length) {}

  TextBuffer buffer_;
  int length_ = 0;
};

// A text of at most Capacity characters, kept in place and always terminated; longer ones are cut.
// All-zero memory is an empty text.
template <int Capacity>
class FixedText {
 public:
  static constexpr int kCapacity = Capacity;

  FixedText() noexcept { chars_[0] = '\0'; }
  explicit FixedText(std::string_view text) noexcept { Assign(text); }

  void Assign(std::string_view text) noexcept { buffer().Assign(text); }
  void Append(std::string_view text) noexcept { TextWriter::Continue(buffer()).Append(text); }
  void Clear() noexcept { chars_[0] = '\0'; }
  FixedText& Format(const char* format, ...) noexcept BRELT_PRINTF(2, 3) {
    std::va_list arguments;
    va_start(arguments, format);
    TextWriter(buffer()).FormatList(format, arguments);
    va_end(arguments);
    return *this;
  }

  bool IsEmpty() const noexcept { return chars_[0] == '\0'; }
  const char* c_str() const noexcept { return chars_; }
  char* data() noexcept { return chars_; }
  std::string_view view() const noexcept { return chars_; }
  TextBuffer buffer() noexcept { return {chars_, Capacity + 1}; }
  operator TextBuffer() noexcept { return buffer(); }

 private:
  char chars_[Capacity + 1];
};

// Folds a terminated text to upper case in place.
inline void FoldToUpper(char* text) noexcept {
  for (; *text != '\0'; ++text) *text = ToUpper(*text);
}

}  // namespace brelt::rc
