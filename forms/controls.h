// Makes the controls of a window from parsed records.
#pragma once

#include <windows.h>

#include "forms/fonts.h"
#include "frame/winobject.h"
#include "rc/failure.h"
#include "rc/record.h"
#include "rc/symbols.h"

namespace brelt {

struct ControlSource {
  const char* programFolder;  // where custom control modules are sought first; ends in a separator
  const char* rcPath;         // icons and pictures are named relative to its folder
  const rc::SymbolIndex& symbols;
  rc::RecordTable& records;
  BaseUnits units;
};

// Makes one child and one row of the window's record for each element from 1 on. The window must have its
// record and control font. The first failure ends it and leaves the controls made so far, which go with the
// window. So does a control whose code destroys the window: it is for the caller to see whether that still
// is.
void CreateControls(const ControlSource& source, HWND window, rc::Failure& failure) noexcept;

// Lets go of what the library loaded for the controls of a window that is going: the icons, which no control
// frees.
void ReleaseControlIcons(HWND window) noexcept;

}  // namespace brelt
