#include "forms/canvas.h"

#include "frame/owners.h"
#include "frame/winobject.h"
#include "include/events.h"

namespace brelt {

CanvasSize CanvasSizeOf(HWND window) noexcept {
  HBITMAP bitmap = IsDialog(window) ? ReadPointer<HBITMAP__>(window, SLOT_CANVAS) : nullptr;
  BITMAP size = {};
  if (bitmap == nullptr || GetObjectA(bitmap, sizeof size, &size) == 0) return {};
  return {size.bmWidth, size.bmHeight};
}

// Programs can't draw yet, and so can't make a canvas to read.
std::int32_t ReadCanvas(HWND, void*, std::int32_t) noexcept { return RTX_NO_CANVAS; }

std::int32_t ShowPictureOnCanvas(HWND, const void*) noexcept { return RTX_NO_CANVAS; }

}  // namespace brelt
