// FontName, FontSize, FontBold and FontItalic, of a window by its handle or, with a null handle, of the
// printer.
#include "forms/controls.h"
#include "forms/fonts.h"
#include "forms/printer.h"
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr std::int32_t kKeep = -1;

// What a change asks for; null and -1 keep what is there.
struct FontChange {
  const char* face = nullptr;
  std::int32_t size = kKeep;
  std::int32_t bold = kKeep;
  std::int32_t italic = kKeep;

  bool IsNone() const noexcept {
    return face == nullptr && size == kKeep && bold == kKeep && italic == kKeep;
  }
};

// None of a window of another program, whose font is a number of that program.
HFONT FontOf(HWND window) noexcept {
  if (!IsOfThisProgram(window)) return nullptr;
  return reinterpret_cast<HFONT>(SendMessageA(window, IsDialog(window) ? XM_GETDRAWFONT : WM_GETFONT, 0, 0));
}

bool ReadFont(HGDIOBJ font, LOGFONTA& logical) noexcept {
  logical = {};
  return font != nullptr && GetObjectA(font, sizeof logical, &logical) != 0;
}

host::FontChoice DescribeFont(HFONT font) noexcept {
  LOGFONTA logical;
  host::FontChoice choice;
  if (!ReadFont(font, logical)) return choice;
  choice.face.Assign(logical.lfFaceName);
  choice.size =
      MulDiv(logical.lfHeight < 0 ? -logical.lfHeight : logical.lfHeight, 72, DisplayPixelsPerInch());
  choice.bold = logical.lfWeight >= FW_BOLD;
  choice.italic = logical.lfItalic != 0;
  return choice;
}

// A damaged font heap gives itself away by these: they guard every change.
bool IsFontHeapSound() noexcept {
  if (DisplayMeasure(LOGPIXELSY) == 0) return false;
  for (const int stock : {ANSI_FIXED_FONT, ANSI_VAR_FONT, SYSTEM_FONT, DEFAULT_GUI_FONT}) {
    LOGFONTA logical;
    if (!ReadFont(GetStockObject(stock), logical)) return false;
  }
  return true;
}

bool HasSoundFace(HWND window) noexcept {
  const host::FontChoice font = DescribeFont(FontOf(window));
  const char first = *font.face.c_str();
  return rc::IsLetter(first) || first == '_' || first == '@';
}

// The form around a control or a part of one; null for a window on its own.
HWND FormAround(HWND window) noexcept {
  HWND root = GetAncestor(window, GA_ROOT);
  return root != window && RecordOfHandle(root) != nullptr ? root : nullptr;
}

// Whether a window has its font from one around it: the form, which gives its font to all controls, or a
// control that gave its own to its parts.
bool IsFontFromAround(HWND window, HWND form, HFONT font) noexcept {
  if (form == nullptr) return false;
  for (HWND outer = GetAncestor(window, GA_PARENT); outer != form; outer = GetAncestor(outer, GA_PARENT)) {
    if (outer == nullptr) return false;
    if (GetPropA(outer, kFontProperty) == font) return true;
  }
  return RecordOf(form)->font == font;
}

// Hands a window its new font; the one before goes, unless it is that of a window around this one. What a
// control has instead goes with it.
void ReplaceFont(HWND window, OwnedFont font) noexcept {
  HFONT before = FontOf(window);
  HWND form = FormAround(window);
  const OwnedFont own(static_cast<HFONT>(RemovePropA(window, kFontProperty)));
  const bool stays = before == own.get() || IsFontFromAround(window, form, before);
  const OwnedFont previous(stays ? nullptr : before);
  HFONT next = font.release();
  if (form != nullptr) KeepForControl(window, kFontProperty, next);
  if (IsDialog(window)) {
    SendMessageA(window, XM_SETDRAWFONT, reinterpret_cast<WPARAM>(next), 0);
  } else {
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(next), TRUE);
  }
}

std::int32_t ChangeFont(HWND window, const FontChange& change) noexcept {
  if (change.IsNone()) return RTX_OK;
  if (!IsOfThisProgram(window)) return RTX_NO_WINDOW;
  if (!IsFontHeapSound() || (IsWindowObject(window) && !HasSoundFace(window))) return RTX_BAD_FONT;
  const host::FontChoice now = DescribeFont(FontOf(window));
  OwnedFont font = MakeFont(change.face != nullptr ? change.face : now.face.c_str(),
                            change.size != kKeep ? change.size : now.size,
                            change.bold != kKeep ? change.bold != 0 : now.bold,
                            change.italic != kKeep ? change.italic != 0 : now.italic);
  if (!font) return RTX_BAD_FONT;
  ReplaceFont(window, std::move(font));
  if (IsAnyEditwindow(window)) InvalidateRect(window, nullptr, TRUE);
  return IsFontHeapSound() && HasSoundFace(window) ? RTX_OK : RTX_BAD_FONT;
}

// A null handle is the printer. Without a print job it has no font, and none can be set.
std::int32_t SetFont(HWND window, const FontChange& change) noexcept {
  if (window != nullptr) return ChangeFont(window, change);
  return change.IsNone() ? RTX_OK : SetPrinterFont(change.face, change.size, change.bold, change.italic);
}

host::FontChoice GetFont(HWND window) noexcept {
  return window != nullptr ? DescribeFont(FontOf(window)) : PrinterFont();
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetFontName(HWND window, char* text, int32_t size) {
  TraceCall(__func__);
  rc::TextBuffer(text, size).Assign(GetFont(window).face.view());
  return RTX_OK;
}

int32_t __stdcall SetFontName(HWND window, const char* text) {
  TraceCall(__func__);
  return SetFont(window, {.face = text});
}

int32_t __stdcall GetFontSize(HWND window, int32_t* value) {
  TraceCall(__func__);
  if (value != nullptr) *value = GetFont(window).size;
  return RTX_OK;
}

int32_t __stdcall SetFontSize(HWND window, int32_t value) {
  TraceCall(__func__);
  return SetFont(window, {.size = value});
}

int32_t __stdcall GetFontBold(HWND window, uint8_t* value) {
  TraceCall(__func__);
  if (value != nullptr) *value = GetFont(window).bold ? 1 : 0;
  return RTX_OK;
}

int32_t __stdcall SetFontBold(HWND window, uint8_t value) {
  TraceCall(__func__);
  return SetFont(window, {.bold = value != 0 ? 1 : 0});
}

int32_t __stdcall GetFontItalic(HWND window, uint8_t* value) {
  TraceCall(__func__);
  if (value != nullptr) *value = GetFont(window).italic ? 1 : 0;
  return RTX_OK;
}

int32_t __stdcall SetFontItalic(HWND window, uint8_t value) {
  TraceCall(__func__);
  return SetFont(window, {.italic = value != 0 ? 1 : 0});
}
