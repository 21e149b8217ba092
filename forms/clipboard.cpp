#include "forms/clipboard.h"

#include <windows.h>

#include <cstring>

#include "frame/owners.h"
#include "include/events.h"

namespace brelt {
namespace {

// The clipboard while it is open.
class OpenedClipboard {
 public:
  OpenedClipboard() noexcept : open_(OpenClipboard(nullptr) != FALSE) {}
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  ~OpenedClipboard() {
    if (open_) CloseClipboard();
  }

  explicit operator bool() const noexcept { return open_; }

 private:
  bool open_;
};

// Calls use(text) with the clipboard's text, if it has one. The block may lack a terminator: its size is the
// limit.
template <typename Use>
void UseClipboardText(Use use) noexcept {
  const OpenedClipboard clipboard;
  HANDLE block = clipboard ? GetClipboardData(CF_TEXT) : nullptr;
  const auto* text = block != nullptr ? static_cast<const char*>(GlobalLock(block)) : nullptr;
  if (text == nullptr) return;
  const std::size_t size = GlobalSize(block);
  const void* end = std::memchr(text, '\0', size);
  use(std::string_view(
      text, end != nullptr ? static_cast<std::size_t>(static_cast<const char*>(end) - text) : size));
  GlobalUnlock(block);
}

}  // namespace

bool IsClipboardName(const char* name) noexcept { return rc::EqualIgnoreCase(rc::View(name), "Clipboard"); }

void GetClipboardText(rc::TextBuffer text) noexcept {
  text.Clear();
  UseClipboardText([&](std::string_view content) { text.Assign(content); });
}

std::int32_t GetClipboardTextLength() noexcept {
  std::int32_t length = 0;
  UseClipboardText([&](std::string_view content) { length = static_cast<std::int32_t>(content.size()); });
  return length;
}

std::int32_t SetClipboardText(const char* text) noexcept {
  const std::size_t size = std::strlen(text) + 1;
  OwnedGlobal block(GlobalAlloc(GMEM_MOVEABLE, size));
  void* memory = block ? GlobalLock(block.get()) : nullptr;
  if (memory == nullptr) return RTX_NO_MEMORY;
  std::memcpy(memory, text, size);
  GlobalUnlock(block.get());
  const OpenedClipboard clipboard;
  // What the clipboard takes is its own from then on.
  if (clipboard && EmptyClipboard() && SetClipboardData(CF_TEXT, block.get()) != nullptr) block.release();
  return RTX_OK;
}

}  // namespace brelt
