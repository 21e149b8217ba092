// The geometry of a rectangle that the user moves and sizes by its handles. Nothing here draws.
#pragma once

#include <cstdint>

namespace brelt::graphics {

// Wide enough that no rectangle of 32-bit coordinates overflows when it is moved.
using Unit = std::int64_t;

struct Point {
  Unit x;
  Unit y;
};

struct Box {
  Unit left;
  Unit top;
  Unit right;
  Unit bottom;

  // Right and bottom lie outside.
  bool Holds(Point point) const noexcept {
    return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
  }
  Unit Width() const noexcept { return right - left; }
  Unit Height() const noexcept { return bottom - top; }
  bool operator==(const Box&) const noexcept = default;
};

// Handles are numbered as on a numeric keypad turned upside down: 1 is top left, 9 bottom right, 5 the body.
inline constexpr int kNoHandle = 0;
inline constexpr int kBody = 5;

// The square of a handle, or the box itself for the body.
Box HandleBox(const Box& box, int handle, Unit side) noexcept;

// The handle at a point: corners and edges before the body, kNoHandle outside.
int HitTest(const Box& box, Unit side, Point point) noexcept;

// The point of a box that a handle stands for: a corner, or the middle of an edge.
Point HandlePoint(const Box& box, int handle) noexcept;

struct Drag {
  int handle;
  Point anchor;  // where the mouse was when the drag began
  Box from;      // the box then
  Unit minWidth;
  Unit minHeight;

  // What the drag has made of a box once the mouse is at a point. Sizes keep to the minimum; a move of the
  // body is free.
  Box Moved(Box box, Point mouse) const noexcept;
};

}  // namespace brelt::graphics
