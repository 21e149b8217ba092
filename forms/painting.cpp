// The canvas of a Dialog on the screen. The controls paint themselves.
#include "forms/handlers.h"
#include "frame/owners.h"
#include "frame/winobject.h"

namespace brelt {
namespace {

struct Canvas {
  HBITMAP bitmap = nullptr;
  LONG width = 0;
  LONG height = 0;
  LONG left = 0;  // where it lies in the client area
  LONG top = 0;

  explicit operator bool() const noexcept { return width >= 1 && height >= 1; }
};

// What a window has for a canvas.
Canvas CanvasOf(HWND window) noexcept {
  const WindowRow* record = RecordOf(window);
  HBITMAP bitmap = ReadPointer<HBITMAP__>(window, SLOT_CANVAS);
  BITMAP size = {};
  if (record == nullptr || bitmap == nullptr || GetObjectA(bitmap, sizeof size, &size) == 0) return {};
  return {bitmap, size.bmWidth, size.bmHeight, record->canvasX, record->canvasY};
}

void FillWithClassBrush(HWND window, HDC dc) noexcept {
  RECT client = {};
  GetClientRect(window, &client);
  FillRect(dc, &client, reinterpret_cast<HBRUSH>(GetClassLongA(window, GCL_HBRBACKGROUND)));
}

}  // namespace

LRESULT OnPaint(const Message& message) noexcept {
  const PaintScope paint(message.window);
  const Canvas canvas = CanvasOf(message.window);
  if (!canvas) return 0;
  const OwnedDc memory(CreateCompatibleDC(paint.dc()));
  if (!memory) return 0;
  const Selected selected(memory.get(), canvas.bitmap);
  const RECT& area = paint.area();
  // Right and bottom are passed for width and height: the clipping of the paint region makes up for it.
  BitBlt(paint.dc(), area.left, area.top, area.right, area.bottom, memory.get(), area.left - canvas.left,
         area.top - canvas.top, SRCCOPY);
  return 0;
}

LRESULT OnEraseBackground(const Message& message) noexcept {
  const auto dc = reinterpret_cast<HDC>(message.wParam);
  const Canvas canvas = CanvasOf(message.window);
  if (!canvas) {
    FillWithClassBrush(message.window, dc);
    return 1;
  }
  // Without a saved state the whole area is filled rather than leaving a hole behind for good.
  const SavedDc saved(dc);
  if (saved) {
    ExcludeClipRect(dc, canvas.left, canvas.top, canvas.left + canvas.width, canvas.top + canvas.height);
  }
  FillWithClassBrush(message.window, dc);
  return 1;
}

}  // namespace brelt
