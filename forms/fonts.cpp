#include "forms/fonts.h"

#include <cstring>

#include "rc/text.h"

namespace brelt {
namespace {

OwnedDc DisplayContext() noexcept { return OwnedDc(CreateICA("DISPLAY", nullptr, nullptr, nullptr)); }

}  // namespace

int DisplayMeasure(int measure) noexcept {
  const OwnedDc display = DisplayContext();
  return display ? GetDeviceCaps(display.get(), measure) : 0;
}

int DisplayPixelsPerInch() noexcept {
  constexpr int kUsual = 96;
  const int pixels = DisplayMeasure(LOGPIXELSY);
  return pixels != 0 ? pixels : kUsual;
}

OwnedFont MakeFont(const char* face, int pointSize, bool bold, bool italic) noexcept {
  LOGFONTA font = {};
  font.lfHeight = -MulDiv(DisplayPixelsPerInch(), pointSize, 72);
  font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = italic ? TRUE : FALSE;
  rc::TextBuffer(font.lfFaceName, LF_FACESIZE).Assign(rc::View(face));
  return OwnedFont(CreateFontIndirectA(&font));
}

int LetterBaseUnit(HDC dc) noexcept {
  constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  SIZE size = {};
  GetTextExtentPointA(dc, kLetters, static_cast<int>(std::strlen(kLetters)), &size);
  return (size.cx / 26 + 1) / 2;
}

BaseUnits FontBaseUnits(HFONT font) noexcept {
  const OwnedDc display = DisplayContext();
  const Selected selected(display.get(),
                          font != nullptr ? static_cast<HGDIOBJ>(font) : GetStockObject(SYSTEM_FONT));
  TEXTMETRICA metrics = {};
  GetTextMetricsA(display.get(), &metrics);
  // Despite its name the bit is set for fonts of variable pitch.
  const bool variablePitch = (metrics.tmPitchAndFamily & TMPF_FIXED_PITCH) != 0;
  return {variablePitch ? LetterBaseUnit(display.get()) : static_cast<int>(metrics.tmAveCharWidth),
          static_cast<int>(metrics.tmHeight)};
}

}  // namespace brelt
