#include "forms/edittext.h"

#include "include/events.h"

namespace brelt {

void GetEditText(HWND, rc::TextBuffer text) noexcept { text.Clear(); }

std::int32_t SetEditText(HWND, const char*) noexcept { return RTX_OK; }

std::int32_t GetEditTextLength(HWND) noexcept { return 0; }

void GetEditSelText(HWND, rc::TextBuffer text) noexcept { text.Clear(); }

std::int32_t SetEditSelText(HWND, const char*) noexcept { return RTX_OK; }

EditSelection GetEditSelection(HWND) noexcept { return {}; }

void SetEditSelection(HWND, EditSelection) noexcept {}

bool IsEditModified(HWND) noexcept { return false; }

void SetEditModified(HWND, bool) noexcept {}

void GetEditTokens(HWND, rc::TextBuffer text) noexcept { text.Clear(); }

std::int32_t SetEditTokens(HWND, const char*) noexcept { return RTX_OK; }

void LayOutEdit(HWND) noexcept {}

}  // namespace brelt
