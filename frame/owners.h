// Owners of the platform's handles. The functions that release a handle or put a drawing object back are
// named in this header only.
#pragma once

#include <windows.h>

#include <utility>

namespace brelt {

// Owns a handle and releases it by a function.
template <typename Handle, auto Release>
class Owned {
 public:
  Owned() noexcept = default;
  explicit Owned(Handle handle) noexcept : handle_(handle) {}
  Owned(Owned&& other) noexcept : handle_(other.release()) {}
  Owned& operator=(Owned&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  ~Owned() {
    if (handle_ != nullptr) Release(handle_);
  }

  explicit operator bool() const noexcept { return handle_ != nullptr; }
  Handle get() const noexcept { return handle_; }
  // Gives the handle away.
  Handle release() noexcept { return std::exchange(handle_, nullptr); }

 private:
  Handle handle_ = nullptr;
};

// Named functions and no lambdas: a lambda is another type in each file that includes this.
inline void ReleaseFont(HFONT font) noexcept { DeleteObject(font); }
inline void ReleaseBitmap(HBITMAP bitmap) noexcept { DeleteObject(bitmap); }
inline void ReleasePen(HPEN pen) noexcept { DeleteObject(pen); }
inline void ReleaseRegion(HRGN region) noexcept { DeleteObject(region); }
inline void ReleaseIcon(HICON icon) noexcept { DestroyIcon(icon); }
inline void ReleaseModule(HMODULE module) noexcept { FreeLibrary(module); }
inline void ReleaseMenu(HMENU menu) noexcept { DestroyMenu(menu); }
inline void ReleaseWindow(HWND window) noexcept { DestroyWindow(window); }
inline void ReleaseContext(HDC dc) noexcept { DeleteDC(dc); }
inline void ReleaseGlobal(HGLOBAL block) noexcept { GlobalFree(block); }

using OwnedFont = Owned<HFONT, ReleaseFont>;
using OwnedBitmap = Owned<HBITMAP, ReleaseBitmap>;
using OwnedPen = Owned<HPEN, ReleasePen>;
using OwnedRegion = Owned<HRGN, ReleaseRegion>;
using OwnedIcon = Owned<HICON, ReleaseIcon>;
using OwnedModule = Owned<HMODULE, ReleaseModule>;
using OwnedMenu = Owned<HMENU, ReleaseMenu>;
using OwnedWindow = Owned<HWND, ReleaseWindow>;
// A context that was made, by CreateDC, CreateIC or CreateCompatibleDC.
using OwnedDc = Owned<HDC, ReleaseContext>;
// Memory that can go to the clipboard. What the library keeps itself is a host::Block.
using OwnedGlobal = Owned<HGLOBAL, ReleaseGlobal>;

// Selects an object into a context and puts the one before back.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) noexcept : dc_(dc), previous_(SelectObject(dc, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() {
    if (previous_ != nullptr) SelectObject(dc_, previous_);
  }

 private:
  HDC dc_;
  HGDIOBJ previous_;
};

// A context for painting, between BeginPaint and EndPaint.
class PaintScope {
 public:
  explicit PaintScope(HWND window) noexcept : window_(window), dc_(BeginPaint(window, &paint_)) {}
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;
  ~PaintScope() { EndPaint(window_, &paint_); }

  HDC dc() const noexcept { return dc_; }
  const RECT& area() const noexcept { return paint_.rcPaint; }

 private:
  PAINTSTRUCT paint_ = {};
  HWND window_;
  HDC dc_;
};

// The context of a window or, for null, of the screen.
class WindowDc {
 public:
  explicit WindowDc(HWND window) noexcept : window_(window), dc_(GetDC(window)) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() {
    if (dc_ != nullptr) ReleaseDC(window_, dc_);
  }

  explicit operator bool() const noexcept { return dc_ != nullptr; }
  HDC get() const noexcept { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

// Saves a context's state and restores it.
class SavedDc {
 public:
  explicit SavedDc(HDC dc) noexcept : dc_(dc), state_(SaveDC(dc)) {}
  SavedDc(const SavedDc&) = delete;
  SavedDc& operator=(const SavedDc&) = delete;
  ~SavedDc() {
    if (state_ != 0) RestoreDC(dc_, state_);
  }

  explicit operator bool() const noexcept { return state_ != 0; }

 private:
  HDC dc_;
  int state_;
};

}  // namespace brelt
