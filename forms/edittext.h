// What the property calls ask of an edit window: one function for each, which the edit windows provide. The
// windows of the two classes are frames whose inner control is still to come, so that each answers as for a
// window without text.
#pragma once

#include <windows.h>

#include <cstdint>

#include "rc/text.h"

namespace brelt {

struct EditSelection {
  std::int32_t start = 0;  // from 0
  std::int32_t length = 0;
};

void GetEditText(HWND window, rc::TextBuffer text) noexcept;
// 0, or RTX_NO_MEMORY, as those below that give a code.
std::int32_t SetEditText(HWND window, const char* text) noexcept;
std::int32_t GetEditTextLength(HWND window) noexcept;
void GetEditSelText(HWND window, rc::TextBuffer text) noexcept;
std::int32_t SetEditSelText(HWND window, const char* text) noexcept;
EditSelection GetEditSelection(HWND window) noexcept;
void SetEditSelection(HWND window, EditSelection selection) noexcept;
bool IsEditModified(HWND window) noexcept;
void SetEditModified(HWND window, bool modified) noexcept;
void GetEditTokens(HWND window, rc::TextBuffer text) noexcept;
std::int32_t SetEditTokens(HWND window, const char* text) noexcept;
// Lays out the inner control after a change of the bars.
void LayOutEdit(HWND window) noexcept;

}  // namespace brelt
