// Position, MaxPosition and MinPosition.
#include "forms/printer.h"
#include "forms/property.h"
#include "include/brelt.h"
#include "rc/scan.h"
#include "rc/textkit.h"

namespace brelt {
namespace {

// The four outputs of a position.
struct PlacementOut {
  static constexpr std::int32_t kMissing = RTX_NULL_INT;
  std::int32_t* x;
  std::int32_t* y;
  std::int32_t* width;
  std::int32_t* height;

  bool IsMissing() const noexcept {
    return x == nullptr || y == nullptr || width == nullptr || height == nullptr;
  }
  void Clear() const noexcept {
    for (std::int32_t* value : {x, y, width, height}) NumberOutput{value}.Clear();
  }
  void Store(const Placement& placement) const noexcept {
    *x = placement.x;
    *y = placement.y;
    *width = placement.width;
    *height = placement.height;
  }
};

Placement ToPlacement(const RECT& area) noexcept {
  return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

// ---- Position ----

constexpr std::int32_t kClientSize = 0;  // modes of a window's position
constexpr std::int32_t kOuterSize = 1;

bool IsScreenName(const char* name) noexcept { return rc::EqualIgnoreCase(rc::View(name), "SCREEN"); }

bool IsWindowlessName(const char* name) noexcept { return IsScreenName(name) || IsPrinterName(name); }

// Besides a name, the handle of any window as a hexadecimal text.
HWND ResolveNameOrHandle(const char* name) noexcept {
  if (!rc::IsHexText(name)) return ResolveName(name);
  const auto window = reinterpret_cast<HWND>(rc::HexDigitsValue(name + 2));
  return IsWindow(window) ? window : nullptr;
}

bool IsWindowlessCall(const ObjectCall& call, const char* name) noexcept {
  return IsWindowlessName(name) && (call.code() == RTX_OK || call.code() == RTX_NO_WINDOW);
}

// The printer has no place; the screen's is its work area.
Placement WindowlessPlacement(const char* name) noexcept {
  RECT area = {};
  if (IsScreenName(name)) SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  return ToPlacement(area);
}

// A control's place within its parent.
RECT ControlArea(HWND control) noexcept {
  RECT area = {};
  GetWindowRect(control, &area);
  MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&area), 2);
  return area;
}

Placement WindowPlacement(HWND window, std::int32_t mode) noexcept {
  RECT outer = {};
  GetWindowRect(window, &outer);
  Placement placement = ToPlacement(outer);
  if (mode == kClientSize) {
    RECT client = {};
    GetClientRect(window, &client);
    placement.width = client.right;
    placement.height = client.bottom;
  }
  return placement;
}

bool IsChildWindow(HWND window) noexcept { return (StyleOf(window) & WS_CHILD) != 0; }

// A child window has its id where others have their menu, and the platform gives it for one.
bool HasMenuBar(HWND window) noexcept { return !IsChildWindow(window) && GetMenu(window) != nullptr; }

// Gives a client size the outer size that goes with it.
void WidenToOuter(HWND window, std::int32_t& width, std::int32_t& height) noexcept {
  RECT area = {0, 0, width, height};
  AdjustWindowRectEx(&area, StyleOf(window), HasMenuBar(window),
                     static_cast<DWORD>(GetWindowLongA(window, GWL_EXSTYLE)));
  width = area.right - area.left;
  height = area.bottom - area.top;
}

void MoveControl(const ObjectCall& call, const Placement& placement) noexcept {
  const RECT before = ControlArea(call.control());
  InvalidateRect(call.window(), &before, TRUE);
  MoveWindow(call.control(), placement.x, placement.y, placement.width, placement.height, FALSE);
  const RECT after = ControlArea(call.control());
  InvalidateRect(call.window(), &after, TRUE);
  UpdateWindow(call.window());
}

// The place is one on the screen. Only a window that was named by its handle can be a child, whose place the
// platform counts from its parent.
void MoveWholeWindow(HWND window, std::int32_t mode, Placement placement) noexcept {
  if (mode == kClientSize) WidenToOuter(window, placement.width, placement.height);
  POINT corner = {placement.x, placement.y};
  if (IsChildWindow(window)) ScreenToClient(GetParent(window), &corner);
  MoveWindow(window, corner.x, corner.y, placement.width, placement.height, TRUE);
}

bool IsKnownMode(std::int32_t mode) noexcept { return mode == kClientSize || mode == kOuterSize; }

std::int32_t ReadPosition(const ObjectCall& call, std::int32_t mode, const PlacementOut& out) noexcept {
  if (call.code() != RTX_OK) return call.code();
  if (call.control() != nullptr) {
    out.Store(ToPlacement(ControlArea(call.control())));
  } else if (call.id() != 0) {
    return Refuse(call);
  } else if (IsKnownMode(mode)) {
    out.Store(WindowPlacement(call.window(), mode));
  }
  return RTX_OK;
}

std::int32_t WritePosition(const ObjectCall& call, std::int32_t mode, const Placement& placement) noexcept {
  if (call.code() != RTX_OK) return call.code();
  if (call.control() != nullptr) {
    MoveControl(call, placement);
  } else if (call.id() != 0) {
    return Refuse(call);
  } else if (IsKnownMode(mode)) {
    MoveWholeWindow(call.window(), mode, placement);
  }
  return RTX_OK;
}

// ---- Limits ----

using Limit = Placement WindowRow::*;

Placement SystemLimit(const WindowRow& record, Limit limit) noexcept {
  const MINMAXINFO& info = record.systemMinMax;
  if (limit == &WindowRow::minPosition) return {0, 0, info.ptMinTrackSize.x, info.ptMinTrackSize.y};
  return {info.ptMaxPosition.x, info.ptMaxPosition.y, info.ptMaxSize.x, info.ptMaxSize.y};
}

// The frame's thickness on each side, by the kind of frame.
SIZE FrameOf(HWND window) noexcept {
  const std::uint32_t style = StyleOf(window);
  if ((style & WS_THICKFRAME) != 0) return {GetSystemMetrics(SM_CXFRAME), GetSystemMetrics(SM_CYFRAME)};
  if ((GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME) != 0) {
    return {GetSystemMetrics(SM_CXDLGFRAME), GetSystemMetrics(SM_CYDLGFRAME)};
  }
  if ((style & WS_BORDER) != 0) return {GetSystemMetrics(SM_CXBORDER), GetSystemMetrics(SM_CYBORDER)};
  return {0, 0};
}

// Takes frame, title and menu bar off an outer size.
void ReduceToClient(HWND window, std::int32_t& width, std::int32_t& height) noexcept {
  const SIZE frame = FrameOf(window);
  width -= 2 * frame.cx;
  height -= 2 * frame.cy;
  if ((StyleOf(window) & WS_CAPTION) == WS_CAPTION) height -= GetSystemMetrics(SM_CYCAPTION);
  if (HasMenuBar(window)) height -= GetSystemMetrics(SM_CYMENU);
  if (width < 0) width = 0;
  if (height < 0) height = 0;
}

std::int32_t ReadLimit(const ObjectCall& call, std::int32_t outer, Limit limit,
                       const PlacementOut& out) noexcept {
  if (call.code() != RTX_OK) return call.code();
  if (call.id() != 0) return Refuse(call);
  const WindowRow* record = RecordOf(call.window());
  if (record == nullptr) return RTX_OK;
  Placement placement = (record->*limit).HasSize() ? record->*limit : SystemLimit(*record, limit);
  if (outer == 0) ReduceToClient(call.window(), placement.width, placement.height);
  out.Store(placement);
  return RTX_OK;
}

// Only a window that the user can size takes limits. Width and height both 0 bring the system's back.
std::int32_t WriteLimit(const ObjectCall& call, std::int32_t outer, Limit limit,
                        Placement placement) noexcept {
  if (call.code() != RTX_OK) return call.code();
  if (call.id() != 0) return Refuse(call);
  WindowRecord record = RecordOf(call.window());
  if (record == nullptr || (StyleOf(call.window()) & WS_THICKFRAME) == 0) return RTX_OK;
  const bool isMinimum = limit == &WindowRow::minPosition;
  if (placement.width == 0 && placement.height == 0) {
    record->*limit = isMinimum ? Placement{} : SystemLimit(*record, limit);
    return RTX_OK;
  }
  if (outer == 0) WidenToOuter(call.window(), placement.width, placement.height);
  if (isMinimum) placement.x = placement.y = 0;
  record->*limit = placement;
  return RTX_OK;
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetPosition(const char* name, int32_t id, int32_t mode, int32_t* x, int32_t* y,
                              int32_t* width, int32_t* height) {
  const PlacementOut out{x, y, width, height};
  const ObjectCall call(ResolveNameOrHandle, __func__, name, id, out);
  if (!IsWindowlessCall(call, name)) return ReadPosition(call, mode, out);
  out.Store(WindowlessPlacement(name));
  return RTX_OK;
}

int32_t __stdcall SetPosition(const char* name, int32_t id, int32_t mode, int32_t x, int32_t y, int32_t width,
                              int32_t height) {
  const ObjectCall call(ResolveNameOrHandle, __func__, name, id);
  if (IsWindowlessCall(call, name)) return RTX_OK;
  return WritePosition(call, mode, {x, y, width, height});
}

int32_t __stdcall GetMaxPosition(const char* name, int32_t id, int32_t outer, int32_t* x, int32_t* y,
                                 int32_t* width, int32_t* height) {
  const PlacementOut out{x, y, width, height};
  return ReadLimit(ObjectCall(__func__, name, id, out), outer, &WindowRow::maxPosition, out);
}

int32_t __stdcall SetMaxPosition(const char* name, int32_t id, int32_t outer, int32_t x, int32_t y,
                                 int32_t width, int32_t height) {
  return WriteLimit(ObjectCall(__func__, name, id), outer, &WindowRow::maxPosition, {x, y, width, height});
}

int32_t __stdcall GetMinPosition(const char* name, int32_t id, int32_t outer, int32_t* x, int32_t* y,
                                 int32_t* width, int32_t* height) {
  const PlacementOut out{x, y, width, height};
  return ReadLimit(ObjectCall(__func__, name, id, out), outer, &WindowRow::minPosition, out);
}

int32_t __stdcall SetMinPosition(const char* name, int32_t id, int32_t outer, int32_t x, int32_t y,
                                 int32_t width, int32_t height) {
  return WriteLimit(ObjectCall(__func__, name, id), outer, &WindowRow::minPosition, {x, y, width, height});
}
