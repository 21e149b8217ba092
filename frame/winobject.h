// Window objects: how a window of the library is recognised, what it carries, and how a name becomes a
// handle.
#pragma once

#include <windows.h>

#include <cstdint>

#include "rc/accelerators.h"
#include "rc/record.h"
#include "rc/text.h"

namespace brelt {

// A window is the library's own if its class has exactly this much extra data: ten 32-bit slots.
inline constexpr int kSlotBytes = 40;

// What a slot holds depends on the class; the second line of each tells of edit windows where they differ.
enum Slot : int {
  SLOT_RECORD = 0,       // WindowRecord; 0 in boxes, so that they can't be found by name
  SLOT_ARRAYVALUES = 1,  // block of key=value texts, or 0
  SLOT_CANVAS = 2,       // canvas bitmap, or 0; the token table. Boxes: the result buffer
  SLOT_CANVASANCHOR =
      3,  // the canvas anchor, x in the low word; size of the token table. Input box: buffer size
  SLOT_LASTFOCUS = 4,   // the child that last had the focus
  SLOT_PREVACTIVE = 5,  // the window to reactivate when this modal one closes, or 0
  SLOT_ACCELTABLE = 6,  // AcceleratorTable, or 0. Boxes: the rectangle that gets the final position
  SLOT_FUNCPTR = 7,     // EventFunction, or 0. Boxes: the result word
  SLOT_FLAGS = 8,       // the WF_ and EWS_ bits
  SLOT_EDITPROC = 9,    // edit windows: the inner control's own procedure
};

// SLOT_FLAGS. A program sets the low 16 bits only.
inline constexpr std::uint32_t kEditRichVersionMask = 0xF;  // generation of the rich edit control, 0 for none
inline constexpr std::uint32_t EWS_ALLOWOVERWRITE = 0x10;
inline constexpr std::uint32_t EWS_AUTOINDENT = 0x20;
inline constexpr std::uint32_t EWS_HILITE = 0x40;
inline constexpr std::uint32_t EWS_READONLY = 0x80;
inline constexpr std::uint32_t EWS_SELECTALL = 0x100;
inline constexpr std::uint32_t EWS_STATUSBAR = 0x200;
inline constexpr std::uint32_t EWS_TABSHIFT = 0x400;
inline constexpr std::uint32_t EWS_NUMBERBAR = 0x1000;
inline constexpr std::uint32_t kEditOverwriteOn = 0x2000;
inline constexpr std::uint32_t WF_MODAL = 0x10000;      // being shown modally
inline constexpr std::uint32_t WF_CANVAS = 0x40000;     // can have a canvas; every Dialog has this bit
inline constexpr std::uint32_t WF_CANVASYUP = 0x80000;  // the canvas's y axis runs upward

struct Placement {
  std::int32_t x;
  std::int32_t y;
  std::int32_t width;
  std::int32_t height;

  bool HasSize() const noexcept { return width > 0 && height > 0; }
};

// One row of a WindowRecord: row 0 describes the window, each further one a control by its first five fields.
// Custom controls and debuggers read it, so the places of the fields are fixed.
struct WindowRow {
  rc::FixedText<40> name;  // the window's, or the control's id text as the RC file writes it
  std::int32_t id;         // 0 in row 0
  HWND handle;
  HMODULE module;          // of a custom control; row 0: of the rich edit control
  std::int32_t maxLength;  // text limit, 0 for none
  HFONT font;              // of the controls
  HFONT drawFont;          // of text on the canvas; null in edit windows
  COLORREF foreColour;
  COLORREF backColour;
  std::int32_t currentX;  // drawing position
  std::int32_t currentY;
  std::int32_t canvasX;  // where the canvas lies in the client area
  std::int32_t canvasY;
  std::int32_t defaultId;      // of the first BS_DEFPUSHBUTTON, or 0
  MINMAXINFO systemMinMax;     // the first one the platform offered
  Placement minPosition;       // x and y stay 0; width 0 is unset
  Placement maxPosition;       // width 0 is unset
  std::int32_t resizePending;  // a size change has been seen and not yet reported
  std::int32_t clientWidth;    // client size when it was seen
  std::int32_t clientHeight;
  std::int32_t loaded;     // 0 while the window loads; no size change is reported until then
  std::int32_t quietEdit;  // edit windows: the library itself moves text or selection
};
static_assert(sizeof(WindowRow) == 47 * 4);

// 256 rows for a Dialog, row 0 alone for an edit window. The window owns it.
using WindowRecord = WindowRow*;
inline constexpr int kDialogRows = rc::kRecordCount;

// The slot's value; 0 if the window isn't the library's own. slot isn't checked.
LONG ReadSlot(HWND window, int slot) noexcept;
// Writes if the window's class, as registered under the window's own instance, has the ten slots and slot is
// one of them. That ReadSlot asks the window and this its registration is deliberate: a foreign window of
// that size may be read, never written.
void WriteSlot(HWND window, int slot, LONG value) noexcept;

template <typename T>
T* ReadPointer(HWND window, Slot slot) noexcept {
  return reinterpret_cast<T*>(ReadSlot(window, slot));
}
template <typename T>
void WritePointer(HWND window, Slot slot, T* value) noexcept {
  WriteSlot(window, slot, reinterpret_cast<LONG>(value));
}

inline WindowRecord RecordOf(HWND window) noexcept { return ReadPointer<WindowRow>(window, SLOT_RECORD); }
inline std::uint32_t FlagsOf(HWND window) noexcept {
  return static_cast<std::uint32_t>(ReadSlot(window, SLOT_FLAGS));
}
inline void SetFlag(HWND window, std::uint32_t flag, bool on) noexcept {
  const std::uint32_t flags = FlagsOf(window);
  WriteSlot(window, SLOT_FLAGS, static_cast<LONG>(on ? flags | flag : flags & ~flag));
}

inline std::uint32_t StyleOf(HWND window) noexcept {
  return static_cast<std::uint32_t>(GetWindowLongA(window, GWL_STYLE));
}
// The low four bits, where the control families keep their type.
inline std::uint32_t TypeBitsOf(HWND window) noexcept { return StyleOf(window) & 0xF; }

using ClassName = rc::FixedText<32>;
// The name of a window's class, cut to 32 characters; empty if there is no such window.
ClassName ClassNameOf(HWND window) noexcept;

// A pattern with a leading "*" matches the end of a text, one with a trailing "*" its beginning, any other
// the whole. The leading star is looked at first, so one with both is a tail that ends in a star. Any mode
// but kIgnoreCase is exact.
inline constexpr int kIgnoreCase = 1;
bool TextMatches(const char* pattern, const char* text, int mode) noexcept;
// The same for the class of a window, ignoring case; false without a window or a pattern.
bool ClassMatches(HWND window, const char* pattern) noexcept;

// Whether a window is of one of the three classes that programs load.
bool IsDialog(HWND window) noexcept;
bool IsEditwindow(HWND window) noexcept;
bool IsRicheditwindow(HWND window) noexcept;
inline bool IsAnyEditwindow(HWND window) noexcept { return IsEditwindow(window) || IsRicheditwindow(window); }
inline bool IsWindowObject(HWND window) noexcept { return IsDialog(window) || IsAnyEditwindow(window); }

// Whether a window, by any handle, belongs to this program. What a window of another program keeps are
// addresses and handles of that program.
bool IsOfThisProgram(HWND window) noexcept;
// The record of a window that a program names by its handle; null unless it is one of the three classes and
// of this program.
WindowRecord RecordOfHandle(HWND window) noexcept;

// The first top-level window of this thread with a name, in the platform's order; null for none.
HWND ResolveName(const char* name) noexcept;

// The kind of a control, or, when there is no window, of a class and style.
bool ObjectTypeOf(HWND window, const char* className, std::uint32_t style, rc::TextBuffer out) noexcept;

// The row of a control in its window's record; null if it has none.
WindowRow* RowOfControl(HWND window, HWND control) noexcept;

// Calls visit(child) for each direct child in window order.
template <typename Visit>
void ForEachChild(HWND window, Visit visit) noexcept {
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    visit(child);
  }
}

// The first direct child that passes a test, or null.
template <typename Test>
HWND FindChild(HWND window, Test test) noexcept {
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    if (test(child)) return child;
  }
  return nullptr;
}

}  // namespace brelt
