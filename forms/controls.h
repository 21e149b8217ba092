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

// Marks the font that a property call has made for a control, on the control.
inline constexpr const char* kFontProperty = "brelt.font";

// Remembers under a property's name what the library has made for a control of a form, or for a part of one.
// False when it can't be remembered and so wouldn't be freed.
bool KeepForControl(HWND control, const char* property, HANDLE handle) noexcept;

// Lets go of what the library made for the controls of a window that is going and no control frees: icons and
// fonts.
void ReleaseControlHandles(HWND window) noexcept;

}  // namespace brelt
