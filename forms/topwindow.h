// Makes the window of a parsed DIALOG.
#pragma once

#include <windows.h>

#include "forms/fonts.h"
#include "include/brelt.h"
#include "rc/failure.h"
#include "rc/record.h"
#include "rc/symbols.h"

namespace brelt {

struct WindowSource {
  HMODULE instance;  // the program's module: owns the window, and its folder holds custom control modules
  const char* name;
  const rc::SymbolIndex& symbols;
  rc::RecordTable& records;
  EventFunction eventFunction;
  const char* rcPath;  // a full path
};

// Makes the window, hidden, with its record, fonts and controls, but without its menu. Null with a failure
// when there is no window; a Dialog with a control that couldn't be made comes back with the failure, and the
// caller destroys it.
HWND CreateTopWindow(const WindowSource& source, rc::Failure& failure) noexcept;

// The style and extended style of a window from those of its DIALOG: only legal words, never visible yet.
void NormaliseWindowStyle(std::string_view systemName, bool hasMenu, std::uint32_t& style,
                          std::uint32_t& exStyle) noexcept;

// Takes what a window can't do out of its system menu.
void TrimSystemMenu(HWND window) noexcept;

}  // namespace brelt
