// The three classes of windows that programs load.
#pragma once

#include <windows.h>

#include <string_view>

namespace brelt {

struct WindowKind {
  std::string_view word;  // what a CLASS statement names it by
  const char* className;
  WNDPROC procedure;
  UINT classStyle;
  bool isEdit;
};

// The kind that a CLASS statement names, ignoring case; a Dialog for any other text.
const WindowKind& KindOfClass(std::string_view word) noexcept;

// Whether a CLASS statement may name a word: one of the three, or nothing.
bool IsLoadableClass(std::string_view word) noexcept;

// Registers the class of a name; another name than the three does nothing.
void RegisterWindowClass(const char* className) noexcept;

// Registers the class if instance doesn't see it yet, and tells whether what the library now sees is its own.
bool HasUsableClass(const WindowKind& kind, HINSTANCE instance) noexcept;

}  // namespace brelt
