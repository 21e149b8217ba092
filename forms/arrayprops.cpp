// ArrayValue and ArrayValues: the named strings that a window carries.
#include "forms/arrayvalues.h"
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

const char* ValuesOf(HWND window) noexcept {
  return reinterpret_cast<const char*>(SendMessageA(window, XM_GETARRAYVALUES, 0, 0));
}

// Walks the entries of a block, which may be null: calls visit(entry).
template <typename Visit>
void ForEachEntry(const char* block, Visit visit) noexcept {
  while (!rc::IsEmpty(block)) {
    const std::string_view entry(block);
    visit(entry);
    block += entry.size() + 1;
  }
}

// Whether an entry belongs to the array name[...], whatever stands for the index. Gives its value.
bool IsElement(std::string_view entry, std::string_view arrayName, std::string_view& value) noexcept {
  const std::size_t equals = entry.find('=');
  if (equals == std::string_view::npos || equals < arrayName.size() + 2) return false;
  if (!rc::StartsWithIgnoreCase(entry, arrayName) || entry[arrayName.size()] != '[') return false;
  value = entry.substr(equals + 1);
  return entry[equals - 1] == ']';
}

// A caller's block while it is filled: counts what it would need, and writes as long as it fits.
class BlockWriter {
 public:
  BlockWriter(char* buffer, std::int32_t size) noexcept
      : buffer_(buffer), size_(buffer != nullptr ? size : 0) {}

  void Put(std::string_view bytes) noexcept {
    if (needed_ + static_cast<std::int64_t>(bytes.size()) <= size_) {
      std::memcpy(buffer_ + needed_, bytes.data(), bytes.size());
    }
    needed_ += static_cast<std::int64_t>(bytes.size());
  }
  void PutText(std::string_view text) noexcept {
    Put(text);
    Put(std::string_view("\0", 1));
  }
  // What the whole needs; a block that doesn't hold it is left empty.
  std::int32_t Finish() noexcept {
    if (needed_ > size_ && size_ > 0) buffer_[0] = '\0';
    return static_cast<std::int32_t>(needed_);
  }

 private:
  char* buffer_;
  std::int64_t size_;
  std::int64_t needed_ = 0;
};

std::int32_t CopyWhole(const char* values, BlockWriter& writer) noexcept {
  if (rc::IsEmpty(values)) return 0;
  writer.Put({values, LocateArrayValue(values, "*").size + 1});
  return writer.Finish();
}

std::int32_t CopyElements(const char* values, std::string_view arrayName, BlockWriter& writer) noexcept {
  bool found = false;
  ForEachEntry(values, [&](std::string_view entry) {
    std::string_view value;
    if (!IsElement(entry, arrayName, value)) return;
    writer.PutText(value);
    found = true;
  });
  if (!found) return 0;
  writer.PutText("");
  return writer.Finish();
}

struct BlockRequest {
  std::string_view pattern;
  char* block;
  std::int32_t size;
};

// "*" asks for the whole block, "name[]" for the values of an array; anything else for nothing.
std::int32_t FillArrayValues(HWND window, const BlockRequest& request) noexcept {
  BlockWriter writer(request.block, request.size);
  const std::string_view pattern = request.pattern;
  if (pattern == "*") return CopyWhole(ValuesOf(window), writer);
  if (pattern.size() < 3 || !pattern.ends_with("[]")) return 0;
  return CopyElements(ValuesOf(window), pattern.substr(0, pattern.size() - 2), writer);
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetArrayValue(const char* name, int32_t id, const char* key, char* text, int32_t size) {
  const ObjectCall call(__func__, name, id, TextOutput{text, size}, TextInput{key});
  if (call.code() != RTX_OK) return call.code();
  if (id != 0) return Refuse(call);
  const auto* value = reinterpret_cast<const char*>(
      SendMessageA(call.window(), XM_GETARRAYVALUE, reinterpret_cast<WPARAM>(key), 0));
  rc::TextBuffer(text, size).Assign(rc::View(value));
  return RTX_OK;
}

int32_t __stdcall SetArrayValue(const char* name, int32_t id, const char* key, const char* value) {
  const ObjectCall call(__func__, name, id, TextInput{key}, TextInput{value});
  if (call.code() != RTX_OK) return call.code();
  if (id != 0) return Refuse(call);
  return static_cast<int32_t>(SendMessageA(call.window(), XM_SETARRAYVALUE, reinterpret_cast<WPARAM>(key),
                                           reinterpret_cast<LPARAM>(value)));
}

// The block may be null: the call then only tells the size that is needed.
int32_t __stdcall GetArrayValues(const char* name, int32_t id, const char* pattern, char* block, int32_t size,
                                 int32_t* needed) {
  rc::TextBuffer(block, size).Clear();
  const ObjectCall call(__func__, name, id, TextInput{pattern}, NumberOutput{needed});
  if (call.code() != RTX_OK) return call.code();
  if (id != 0) return Refuse(call);
  *needed = FillArrayValues(call.window(), {pattern, block, size});
  return RTX_OK;
}

int32_t __stdcall SetArrayValues(const char* name, int32_t id, const char* block) {
  const ObjectCall call(__func__, name, id, ArrayInput{block});
  if (call.code() != RTX_OK) return call.code();
  if (id != 0) return Refuse(call);
  return static_cast<int32_t>(
      SendMessageA(call.window(), XM_SETARRAYVALUES, 0, reinterpret_cast<LPARAM>(block)));
}
