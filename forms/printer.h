// What the property calls ask of the printer of the running job; printing provides it.
#pragma once

#include <windows.h>

#include <cstdint>

#include "rc/host.h"

namespace brelt {

// Whether a name means the printer.
bool IsPrinterName(const char* name) noexcept;

// A copy of what the running job keeps. Without a job all of it is 0.
struct PrinterState {
  std::int32_t status = 0;  // 1 while the job takes drawing
  std::int32_t page = 0;
  std::int32_t pageWidth = 0;  // device pixels, as all that follows
  std::int32_t pageHeight = 0;
  std::int32_t physicalWidth = 0;
  std::int32_t physicalHeight = 0;
  std::int32_t physicalOffsetX = 0;
  std::int32_t physicalOffsetY = 0;
  std::int32_t dpiX = 0;
  std::int32_t dpiY = 0;
  std::int32_t currentX = 0;
  std::int32_t currentY = 0;
  COLORREF foreColour = 0;
  COLORREF backColour = 0;
};
PrinterState PrinterNow() noexcept;

// Change the running job; without one nothing is set.
void SetPrinterPosition(std::int32_t x, std::int32_t y) noexcept;
void SetPrinterColours(COLORREF foreColour, COLORREF backColour) noexcept;

// The font of the running job; empty without one.
host::FontChoice PrinterFont() noexcept;
// Changes it; a null face and -1 keep what is there. RTX_NO_PRINTER without a job.
std::int32_t SetPrinterFont(const char* face, std::int32_t size, std::int32_t bold,
                            std::int32_t italic) noexcept;

}  // namespace brelt
