#include "graphics/rubberband.h"

#include <algorithm>

namespace brelt::graphics {
namespace {

// A handle's place as column and row, -1, 0 or 1 each: which edges of the box it moves.
int ColumnOf(int handle) noexcept { return (handle - 1) % 3 - 1; }
int RowOf(int handle) noexcept { return (handle - 1) / 3 - 1; }

// Where a handle begins on one axis.
Unit HandleStart(Unit low, Unit high, int place, Unit side) noexcept {
  if (place < 0) return low;
  return place > 0 ? high - side : (low + high) / 2 - side / 2;
}

Unit PlaceOn(Unit low, Unit high, int place) noexcept {
  if (place < 0) return low;
  return place > 0 ? high : (low + high) / 2;
}

}  // namespace

Box HandleBox(const Box& box, int handle, Unit side) noexcept {
  if (handle == kBody) return box;
  const Unit left = HandleStart(box.left, box.right, ColumnOf(handle), side);
  const Unit top = HandleStart(box.top, box.bottom, RowOf(handle), side);
  return {left, top, left + side, top + side};
}

int HitTest(const Box& box, Unit side, Point point) noexcept {
  for (const int handle : {1, 2, 3, 4, 6, 7, 8, 9, kBody}) {
    if (HandleBox(box, handle, side).Holds(point)) return handle;
  }
  return kNoHandle;
}

Point HandlePoint(const Box& box, int handle) noexcept {
  return {PlaceOn(box.left, box.right, ColumnOf(handle)), PlaceOn(box.top, box.bottom, RowOf(handle))};
}

Box Drag::Moved(Box box, Point mouse) const noexcept {
  if (handle == kBody) {
    const Unit dx = mouse.x - anchor.x;
    const Unit dy = mouse.y - anchor.y;
    return {from.left + dx, from.top + dy, from.right + dx, from.bottom + dy};
  }
  if (ColumnOf(handle) < 0) box.left = std::min(mouse.x, box.right - minWidth);
  if (ColumnOf(handle) > 0) box.right = std::max(mouse.x, box.left + minWidth);
  if (RowOf(handle) < 0) box.top = std::min(mouse.y, box.bottom - minHeight);
  if (RowOf(handle) > 0) box.bottom = std::max(mouse.y, box.top + minHeight);
  return box;
}

}  // namespace brelt::graphics
