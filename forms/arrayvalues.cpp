#include "forms/arrayvalues.h"

#include <cstring>

namespace brelt {
namespace {

using Entry = rc::FixedText<1024>;

// key=
Entry KeyPrefix(const char* key) noexcept {
  Entry prefix(rc::View(key));
  prefix.Append("=");
  return prefix;
}

}  // namespace

ArrayPlace LocateArrayValue(const char* block, const char* key) noexcept {
  const Entry prefix = KeyPrefix(key);
  constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);
  std::size_t found = kNowhere;
  std::size_t at = 0;
  while (block != nullptr && block[at] != '\0') {
    const std::string_view entry(block + at);
    if (rc::StartsWithIgnoreCase(entry, prefix.view())) found = at;
    at += entry.size() + 1;
  }
  return {found == kNowhere ? at : found, at};
}

const char* FindArrayValue(const char* block, const char* key) noexcept {
  const ArrayPlace place = LocateArrayValue(block, key);
  return place.IsFound() ? block + place.position + KeyPrefix(key).view().size() : nullptr;
}

host::Block<char> WithArrayValue(const char* block, const char* key, const char* value) noexcept {
  Entry entry = KeyPrefix(key);
  entry.Append(rc::View(value));
  const ArrayPlace place = LocateArrayValue(block, key);
  const std::size_t head = place.position;
  const std::size_t skipped = place.IsFound() ? std::strlen(block + head) + 1 : 0;
  const std::size_t tail = place.size - head - skipped;
  const std::size_t length = entry.view().size() + 1;
  host::Block<char> result(head + length + tail + 1);
  if (!result) return result;
  if (head > 0) std::memcpy(result.get(), block, head);
  std::memcpy(result.get() + head, entry.c_str(), length);
  if (tail > 0) std::memcpy(result.get() + head + length, block + head + skipped, tail);
  return result;
}

host::Block<char> CopyArrayValues(const char* block) noexcept {
  const std::size_t size = LocateArrayValue(block, "*").size + 1;
  host::Block<char> copy(size);
  if (copy && block != nullptr) std::memcpy(copy.get(), block, size);
  return copy;
}

}  // namespace brelt
