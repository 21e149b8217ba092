// The canvas of a Dialog, a bitmap behind its window that programs draw on, as far as the property calls need
// it; the drawing calls provide it.
#pragma once

#include <windows.h>

#include <cstdint>

namespace brelt {

struct CanvasSize {
  std::int32_t width = 0;
  std::int32_t height = 0;

  bool IsEmpty() const noexcept { return width < 1 || height < 1; }
};

// The size of what a window has for a canvas; 0 by 0 for none.
CanvasSize CanvasSizeOf(HWND window) noexcept;

// Copies a canvas as a packed bitmap; 0 or a failure code. Only for a window that has one.
std::int32_t ReadCanvas(HWND window, void* buffer, std::int32_t size) noexcept;

// Shows a packed bitmap on a window in place of its canvas; a picture without a size only takes the canvas
// away.
std::int32_t ShowPictureOnCanvas(HWND window, const void* picture) noexcept;

}  // namespace brelt
