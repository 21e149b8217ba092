// Properties that need no control: drawing position, resolution, page measures, and the flags of a window.
#include "forms/canvas.h"
#include "forms/edittext.h"
#include "forms/fonts.h"
#include "forms/printer.h"
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

std::int32_t Dpi(const char* name, std::int32_t printerDpi, int measure) noexcept {
  if (name == nullptr) return 0;
  return IsPrinterName(name) ? printerDpi : DisplayMeasure(measure);
}

// The measures of a page, of the screen, or of a window's canvas.
struct PageMeasure {
  std::int32_t PrinterState::*printer;
  int screen;
  std::int32_t CanvasSize::*canvas;
};

constexpr PageMeasure kPageHeight = {&PrinterState::pageHeight, VERTRES, &CanvasSize::height};
constexpr PageMeasure kPageWidth = {&PrinterState::pageWidth, HORZRES, &CanvasSize::width};

std::int32_t MeasurePage(const char* name, const PageMeasure& measure) noexcept {
  if (IsPrinterName(name)) return PrinterNow().*measure.printer;
  if (rc::EqualIgnoreCase(name, "SCREEN")) return DisplayMeasure(measure.screen);
  return CanvasSizeOf(ResolveName(name)).*measure.canvas;
}

std::int32_t GetPageMeasure(const char* name, std::int32_t* value, const PageMeasure& measure) noexcept {
  if (value == nullptr) return RTX_OK;
  *value = name != nullptr ? MeasurePage(name, measure) : 0;
  return RTX_OK;
}

// Measures that only the printer has.
std::int32_t GetPhysical(const char* name, std::int32_t* value, std::int32_t PrinterState::*field) noexcept {
  if (value == nullptr) return RTX_OK;
  *value = IsPrinterName(name) ? PrinterNow().*field : 0;
  return RTX_OK;
}

// One coordinate of the drawing position, of a window or, with a null handle, of the printer.
struct Coordinate {
  std::int32_t WindowRow::*window;
  std::int32_t PrinterState::*printer;
};

constexpr Coordinate kX = {&WindowRow::currentX, &PrinterState::currentX};
constexpr Coordinate kY = {&WindowRow::currentY, &PrinterState::currentY};

std::int32_t GetCoordinate(HWND window, std::int32_t* value, const Coordinate& coordinate) noexcept {
  if (value == nullptr) return RTX_OK;
  const WindowRow* record = RecordOfHandle(window);
  *value = window == nullptr   ? PrinterNow().*coordinate.printer
           : record != nullptr ? record->*coordinate.window
                               : 0;
  return RTX_OK;
}

std::int32_t SetCoordinate(HWND window, std::int32_t value, const Coordinate& coordinate) noexcept {
  if (window == nullptr) {
    PrinterState printer = PrinterNow();
    printer.*coordinate.printer = value;
    SetPrinterPosition(printer.currentX, printer.currentY);
  } else if (WindowRecord record = RecordOfHandle(window); record != nullptr) {
    record->*coordinate.window = value;
  }
  return RTX_OK;
}

// Takes over the low 16 bits; the others are the library's.
void ChangeFlags(HWND window, std::uint32_t wanted) noexcept {
  constexpr std::uint32_t kProgramBits = 0xFFFF;
  const std::uint32_t before = FlagsOf(window);
  const std::uint32_t flags = (before & ~kProgramBits) | (wanted & kProgramBits);
  WriteSlot(window, SLOT_FLAGS, static_cast<LONG>(flags));
  if (IsAnyEditwindow(window) && ((before ^ flags) & (EWS_STATUSBAR | EWS_NUMBERBAR)) != 0)
    LayOutEdit(window);
  Repaint(window, false);
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetFlags(const char* name, int32_t* flags) {
  const ObjectCall call(__func__, name, 0, NumberOutput{flags});
  if (call.code() == RTX_OK) *flags = static_cast<int32_t>(FlagsOf(call.window()));
  return call.code();
}

int32_t __stdcall SetFlags(const char* name, int32_t flags) {
  const ObjectCall call(__func__, name, 0);
  if (call.code() == RTX_OK) ChangeFlags(call.window(), static_cast<uint32_t>(flags));
  return call.code();
}

int32_t __stdcall GetDpiX(const char* name) {
  TraceCall(__func__);
  return Dpi(name, PrinterNow().dpiX, LOGPIXELSX);
}

int32_t __stdcall GetDpiY(const char* name) {
  TraceCall(__func__);
  return Dpi(name, PrinterNow().dpiY, LOGPIXELSY);
}

int32_t __stdcall GetPageHeight(const char* name, int32_t* value) {
  TraceCall(__func__);
  return GetPageMeasure(name, value, kPageHeight);
}

int32_t __stdcall GetPageWidth(const char* name, int32_t* value) {
  TraceCall(__func__);
  return GetPageMeasure(name, value, kPageWidth);
}

int32_t __stdcall GetPhysicalHeight(const char* name, int32_t* value) {
  TraceCall(__func__);
  return GetPhysical(name, value, &PrinterState::physicalHeight);
}

int32_t __stdcall GetPhysicalWidth(const char* name, int32_t* value) {
  TraceCall(__func__);
  return GetPhysical(name, value, &PrinterState::physicalWidth);
}

int32_t __stdcall GetPhysicalOffsetX(const char* name, int32_t* value) {
  TraceCall(__func__);
  return GetPhysical(name, value, &PrinterState::physicalOffsetX);
}

int32_t __stdcall GetPhysicalOffsetY(const char* name, int32_t* value) {
  TraceCall(__func__);
  return GetPhysical(name, value, &PrinterState::physicalOffsetY);
}

int32_t __stdcall GetCurrentX(HWND window, int32_t* value) {
  TraceCall(__func__);
  return GetCoordinate(window, value, kX);
}

int32_t __stdcall SetCurrentX(HWND window, int32_t value) {
  TraceCall(__func__);
  return SetCoordinate(window, value, kX);
}

int32_t __stdcall GetCurrentY(HWND window, int32_t* value) {
  TraceCall(__func__);
  return GetCoordinate(window, value, kY);
}

int32_t __stdcall SetCurrentY(HWND window, int32_t value) {
  TraceCall(__func__);
  return SetCoordinate(window, value, kY);
}

int32_t __stdcall GetPage(void) {
  TraceCall(__func__);
  return PrinterNow().page;
}

int32_t __stdcall GetPrinterStatus(void) {
  TraceCall(__func__);
  return PrinterNow().status;
}
