// TrackRect: the user moves and sizes a rectangle on a window with the mouse.
#include <windowsx.h>

#include "frame/objectcall.h"
#include "frame/owners.h"
#include "graphics/rubberband.h"
#include "include/brelt.h"

namespace brelt {
namespace {

using graphics::Box;
using graphics::Drag;
using graphics::Point;

constexpr std::int32_t kEndAtRelease = 1;  // flag: one drag is all

std::int32_t Clamp(std::int32_t value, std::int32_t low, std::int32_t high) noexcept {
  return value < low ? low : value > high ? high : value;
}

RECT ToRect(const Box& box) noexcept {
  return {static_cast<LONG>(box.left), static_cast<LONG>(box.top), static_cast<LONG>(box.right),
          static_cast<LONG>(box.bottom)};
}

Point ToPoint(POINT point) noexcept { return {point.x, point.y}; }

Point MessagePoint() noexcept {
  const DWORD position = GetMessagePos();
  return {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
}

bool IsLeftButtonDown() noexcept { return GetKeyState(VK_LBUTTON) < 0; }

LPCSTR CursorOf(int handle) noexcept {
  switch (handle) {
    case 1:
    case 9:
      return reinterpret_cast<LPCSTR>(IDC_SIZENWSE);
    case 2:
    case 8:
      return reinterpret_cast<LPCSTR>(IDC_SIZENS);
    case 3:
    case 7:
      return reinterpret_cast<LPCSTR>(IDC_SIZENESW);
    case 4:
    case 6:
      return reinterpret_cast<LPCSTR>(IDC_SIZEWE);
    case graphics::kBody:
      return reinterpret_cast<LPCSTR>(IDC_SIZEALL);
    default:
      return reinterpret_cast<LPCSTR>(IDC_ARROW);
  }
}

struct TrackSettings {
  std::int32_t flags;
  std::int32_t handleSize;
  std::int32_t minWidth;
  std::int32_t minHeight;
  std::int32_t penWidth;
  RECT bounds;  // client coordinates
};

// One run of the tracking. All its work is in screen coordinates, on a context of the whole display.
class Tracker {
 public:
  Tracker(HWND window, const TrackSettings& settings, const Box& box) noexcept
      : window_(window),
        settings_(settings),
        box_(box),
        screen_(CreateDCA("DISPLAY", nullptr, nullptr, nullptr)),
        pen_(CreatePen(settings.penWidth == 1 ? PS_SOLID : PS_INSIDEFRAME, settings.penWidth,
                       RGB(128, 128, 128))) {}

  // False when what drawing needs couldn't be made.
  bool IsReady() noexcept { return screen_ && pen_ && SetClip(); }

  // Runs until the tracking ends, and gives the rectangle.
  Box Run() noexcept;

 private:
  bool SetClip() noexcept;
  void DrawFrame() noexcept;
  void DrawBand() noexcept;
  void RepaintArea(const Box& area) noexcept;
  int Hit(Point point) const noexcept { return graphics::HitTest(box_, settings_.handleSize, point); }
  void ShowCursorAt(Point point) const noexcept { SetCursor(LoadCursorA(nullptr, CursorOf(Hit(point)))); }
  void StartDrag(int handle, Point mouse) noexcept;
  void FinishDrag() noexcept;
  void OnMouseMove(Point mouse) noexcept;
  bool OnMessage(const MSG& message) noexcept;

  HWND window_;
  const TrackSettings& settings_;
  Box box_;
  Box band_ = {};
  Drag drag_ = {};
  bool dragging_ = false;
  OwnedDc screen_;
  OwnedPen pen_;
};

// Bounds count only with a right and a bottom, and are cut to the client area.
bool Tracker::SetClip() noexcept {
  if (settings_.bounds.right == 0 || settings_.bounds.bottom == 0) return true;
  RECT area = {};
  GetClientRect(window_, &area);
  IntersectRect(&area, &area, &settings_.bounds);
  MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&area), 2);
  const OwnedRegion region(CreateRectRgnIndirect(&area));
  return region && SelectClipRgn(screen_.get(), region.get()) != ERROR;
}

void Tracker::DrawFrame() noexcept {
  HDC dc = screen_.get();
  const SavedDc saved(dc);
  SelectObject(dc, GetStockObject(BLACK_PEN));
  SelectObject(dc, GetStockObject(NULL_BRUSH));
  SetROP2(dc, R2_COPYPEN);
  const RECT frame = ToRect(box_);
  Rectangle(dc, frame.left, frame.top, frame.right, frame.bottom);
  SelectObject(dc, GetStockObject(BLACK_BRUSH));
  for (const int handle : {1, 2, 3, 4, 6, 7, 8, 9}) {
    const RECT square = ToRect(graphics::HandleBox(box_, handle, settings_.handleSize));
    Rectangle(dc, square.left, square.top, square.right, square.bottom);
  }
}

// Drawing it a second time takes it away.
void Tracker::DrawBand() noexcept {
  HDC dc = screen_.get();
  const SavedDc saved(dc);
  SelectObject(dc, pen_.get());
  SelectObject(dc, GetStockObject(NULL_BRUSH));
  SetROP2(dc, R2_XORPEN);
  const RECT band = ToRect(band_);
  Rectangle(dc, band.left, band.top, band.right, band.bottom);
}

// Has the window's painting on the screen at once. It may be kept back until the thread has looked for a
// message and found none, and would then cover what is drawn on the screen meanwhile.
void ShowPainting() noexcept {
  constexpr UINT kUnused = 0xBFFF;
  MSG none;
  PeekMessageA(&none, nullptr, kUnused, kUnused, PM_NOREMOVE);
}

void Tracker::RepaintArea(const Box& area) noexcept {
  RECT client = ToRect(area);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&client), 2);
  InvalidateRect(window_, &client, TRUE);
  UpdateWindow(window_);
  ShowPainting();
}

void Tracker::StartDrag(int handle, Point mouse) noexcept {
  // A press without a release before it begins anew.
  if (dragging_) DrawBand();
  drag_ = {handle, mouse, box_, settings_.minWidth, settings_.minHeight};
  band_ = box_;
  dragging_ = true;
  if (handle != graphics::kBody) {
    const Point corner = graphics::HandlePoint(box_, handle);
    SetCursorPos(static_cast<int>(corner.x), static_cast<int>(corner.y));
  }
  DrawBand();
  RECT client = {};
  GetClientRect(window_, &client);
  MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&client), 2);
  ++client.right;
  ++client.bottom;
  ClipCursor(&client);
}

void Tracker::OnMouseMove(Point mouse) noexcept {
  if (!dragging_) return ShowCursorAt(mouse);
  DrawBand();
  band_ = drag_.Moved(band_, mouse);
  DrawBand();
}

void Tracker::FinishDrag() noexcept {
  ClipCursor(nullptr);
  if (!dragging_) return;
  dragging_ = false;
  DrawBand();
  RepaintArea(box_);
  box_ = band_;
  DrawFrame();
}

// Takes a message out of the queue and gives the place of the mouse. A move may have gone on since it was
// seen: the platform joins moves that wait.
Point Take(const MSG& seen) noexcept {
  MSG taken = seen;
  PeekMessageA(&taken, seen.hwnd, seen.message, seen.message, PM_REMOVE);
  return ToPoint(taken.pt);
}

// Takes a message that waits in the queue, or leaves it there; false ends the tracking.
bool Tracker::OnMessage(const MSG& message) noexcept {
  switch (message.message) {
    case WM_TIMER:
      Take(message);
      return true;
    case WM_MOUSEMOVE:
      OnMouseMove(Take(message));
      return true;
    case WM_LBUTTONDOWN: {
      // A press outside is the program's.
      if (!box_.Holds(ToPoint(message.pt))) return false;
      const Point mouse = Take(message);
      StartDrag(Hit(mouse), mouse);
      return true;
    }
    case WM_LBUTTONUP:
      Take(message);
      FinishDrag();
      return (settings_.flags & kEndAtRelease) == 0;
    default:
      return false;
  }
}

Box Tracker::Run() noexcept {
  DrawFrame();
  const Point start = MessagePoint();
  ShowCursorAt(start);
  SetCapture(window_);
  if (const int handle = Hit(start); handle != graphics::kNoHandle) StartDrag(handle, start);
  // Waiting is for messages that come, so what is there is looked at first. The look lets in what other
  // threads have sent, too, by which the window may go; nothing need come after that.
  for (bool going = true; going;) {
    MSG message;
    const bool found = PeekMessageA(&message, nullptr, 0, WM_USER, PM_NOREMOVE) != FALSE;
    if (!IsWindow(window_)) break;
    if (found) {
      going = OnMessage(message);
    } else {
      WaitMessage();
    }
  }
  // A drag that another message broke off doesn't count.
  if (dragging_) DrawBand();
  ClipCursor(nullptr);
  ReleaseCapture();
  RepaintArea(box_);
  return box_;
}

// Where the caller's rectangle is on the screen.
Box ToScreen(HWND window, std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) noexcept {
  POINT origin = {};
  ClientToScreen(window, &origin);
  const graphics::Unit left = graphics::Unit{x} + origin.x;
  const graphics::Unit top = graphics::Unit{y} + origin.y;
  return {left, top, left + width, top + height};
}

struct TrackedRect {
  std::int32_t* x;
  std::int32_t* y;
  std::int32_t* width;
  std::int32_t* height;

  bool IsUsable() const noexcept {
    return x != nullptr && y != nullptr && width != nullptr && height != nullptr && *width >= 1 &&
           *height >= 1;
  }
};

// False for a refusal, which leaves the rectangle as it was.
bool Track(HWND window, const TrackSettings& settings, const TrackedRect& rect) noexcept {
  if (GetActiveWindow() != window || !IsLeftButtonDown() || !rect.IsUsable()) return false;
  Tracker tracker(window, settings, ToScreen(window, *rect.x, *rect.y, *rect.width, *rect.height));
  if (!tracker.IsReady()) return false;
  const Box box = tracker.Run();
  // A window that went meanwhile has no coordinates.
  if (!IsWindow(window)) return true;
  POINT origin = {};
  ClientToScreen(window, &origin);
  *rect.x = static_cast<std::int32_t>(box.left - origin.x);
  *rect.y = static_cast<std::int32_t>(box.top - origin.y);
  *rect.width = static_cast<std::int32_t>(box.Width());
  *rect.height = static_cast<std::int32_t>(box.Height());
  return true;
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall TrackRect(const char* name, int32_t flags, int32_t handleSize, int32_t minWidth,
                            int32_t minHeight, int32_t penWidth, int32_t boundLeft, int32_t boundTop,
                            int32_t boundRight, int32_t boundBottom, int32_t* x, int32_t* y, int32_t* width,
                            int32_t* height) {
  TraceCall(__func__);
  HWND window = ResolveName(name);
  if (window == nullptr) return RTX_NO_WINDOW;
  const TrackSettings settings{flags,
                               Clamp(handleSize, 0, 10),
                               Clamp(minWidth, 2, 100),
                               Clamp(minHeight, 2, 100),
                               Clamp(penWidth, 0, 10),
                               {boundLeft, boundTop, boundRight, boundBottom}};
  if (!Track(window, settings, {x, y, width, height})) MessageBeep(static_cast<UINT>(-1));
  return RTX_OK;
}
