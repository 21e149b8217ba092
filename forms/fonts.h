// Fonts of windows and the dialog units that follow from them.
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/owners.h"

namespace brelt {

// A measure of the display as GetDeviceCaps numbers them; 0 when it can't be asked.
int DisplayMeasure(int measure) noexcept;
// The vertical pixels per inch of the display; 96 when it can't be asked.
int DisplayPixelsPerInch() noexcept;

// A font by face (cut to 31 characters) and size in points.
OwnedFont MakeFont(const char* face, int pointSize, bool bold, bool italic) noexcept;

// What dialog units are measured by: x units are a quarter of the width, y units an eighth of the height.
struct BaseUnits {
  int width = 0;
  int height = 0;

  // Pixels of a length in dialog units, cut towards 0.
  int PixelsX(std::int32_t units) const noexcept { return Scale(units, width, 4); }
  int PixelsY(std::int32_t units) const noexcept { return Scale(units, height, 8); }

 private:
  static int Scale(std::int32_t units, int base, int parts) noexcept {
    return static_cast<int>(std::int64_t{units} * base / parts);
  }
};
// The base units of a font, of the system font for null.
BaseUnits FontBaseUnits(HFONT font) noexcept;

// The horizontal base unit of the font that is selected into a context, from the width of 52 letters.
int LetterBaseUnit(HDC dc) noexcept;

}  // namespace brelt
