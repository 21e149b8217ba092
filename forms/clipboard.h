// The clipboard as an object with a text.
#pragma once

#include <cstdint>

#include "rc/text.h"

namespace brelt {

bool IsClipboardName(const char* name) noexcept;

// The text, cut to the buffer; empty when there is none or the clipboard can't be opened.
void GetClipboardText(rc::TextBuffer text) noexcept;
std::int32_t GetClipboardTextLength() noexcept;
// 0, or RTX_NO_MEMORY. A clipboard that can't be opened is no failure.
std::int32_t SetClipboardText(const char* text) noexcept;

}  // namespace brelt
