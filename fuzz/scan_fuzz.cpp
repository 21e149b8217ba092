// The scanner over any text, and the decoding of its tokens.
#include <cstring>
#include <memory>

#include "fuzz/input.h"
#include "rc/scan.h"
#include "rc/textkit.h"

namespace {

using brelt::fuzz::Require;

// Decodes into a buffer of exactly the size, so that the sanitizer sees a write behind it.
void Decode(const char* text, std::size_t size) {
  const auto exact = std::make_unique<char[]>(size);
  brelt::rc::UnescapeText(text, {exact.get(), static_cast<int>(size)});
  Require(size == 0 || std::memchr(exact.get(), '\0', size) != nullptr, "a decoded text is terminated");
}

// A short buffer gets the beginning of the token and leaves the position where a long one does.
void ScanShort(const char* text, std::int32_t from, std::string_view token, std::int32_t behind) {
  for (const std::size_t size : {std::size_t{1}, std::size_t{5}, token.size(), token.size() + 1}) {
    if (size == 0) continue;
    const auto exact = std::make_unique<char[]>(size);
    std::int32_t position = from;
    brelt::rc::ScanToken(text, position, {exact.get(), static_cast<int>(size)});
    Require(position == behind, "the position doesn't depend on the buffer");
    Require(token.substr(0, size - 1) == exact.get(), "a short buffer holds the beginning");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brelt::rc;
  const std::string text(reinterpret_cast<const char*>(data), size);
  const auto length = static_cast<std::int32_t>(std::strlen(text.c_str()));
  std::int32_t position = 0;
  FixedText<70000> token;
  while (position < length) {
    const std::int32_t before = position;
    SkipSpace(text.c_str(), position);
    const std::int32_t from = position;
    ScanToken(text.c_str(), position, token);
    Require(position >= from && position <= length, "the position stays in the text");
    Require(token.IsEmpty() || position > from, "a token is consumed");
    ScanShort(text.c_str(), from, token.view(), position);
    Decode(token.c_str(), token.view().size() + 1);
    Decode(token.c_str(), token.view().size() / 2);
    IsIdentifier(token.c_str());
    IsDecimalText(token.c_str());
    IsHexText(token.c_str());
    DecimalValue(token.c_str());
    StringBody(token.view());
    if (position == before) {
      FixedText<40> word;
      BadWordText(text.c_str(), position, word);
      if (position == before) ++position;
    }
    FixedText<60> place;
    TokenPlaceText(text.c_str(), position, place);
  }
  Decode(text.c_str(), size + 1);
  return 0;
}
