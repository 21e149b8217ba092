// BackColour, ForeColour and BorderStyle. Colours are 0x00BBGGRR.
#include "forms/printer.h"
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr const char* kShape = "Shape.*";
constexpr const char* kProgressBar = "Progressbar.*";

using ColourField = COLORREF WindowRow::*;
using PrinterField = COLORREF PrinterState::*;

template <UINT Message>
std::int32_t AskControl(const ObjectCall& call) noexcept {
  return static_cast<std::int32_t>(SendMessageA(call.control(), Message, 0, 0));
}

template <UINT Message>
void TellControl(const ObjectCall& call, std::int32_t colour) noexcept {
  SendMessageA(call.control(), Message, 0, colour);
}

template <ColourField Field>
std::int32_t WindowColour(const ObjectCall& call) noexcept {
  const WindowRow* record = RecordOf(call.window());
  return record != nullptr ? static_cast<std::int32_t>(record->*Field) : 0;
}

template <ColourField Field>
void SetWindowColour(const ObjectCall& call, std::int32_t colour) noexcept {
  if (WindowRecord record = RecordOf(call.window()); record != nullptr) {
    record->*Field = static_cast<COLORREF>(colour);
  }
}

constexpr GetRow<std::int32_t> kGetBackColour = {
    .window = WindowColour<&WindowRow::backColour>,
    .controls = {{kShape, AskControl<CM_GETSHAPEBACK>}, {kProgressBar, AskControl<CM_GETPROGRESSBACK>}}};

constexpr SetRow<std::int32_t> kSetBackColour = {
    .window = SetWindowColour<&WindowRow::backColour>,
    .controls = {{kShape, TellControl<CM_SETSHAPEBACK>}, {kProgressBar, TellControl<CM_SETPROGRESSBACK>}}};

constexpr GetRow<std::int32_t> kGetForeColour = {
    .window = WindowColour<&WindowRow::foreColour>,
    .controls = {{kShape, AskControl<CM_GETSHAPEFORE>}, {kProgressBar, AskControl<CM_GETPROGRESSFORE>}}};

constexpr SetRow<std::int32_t> kSetForeColour = {
    .window = SetWindowColour<&WindowRow::foreColour>,
    .controls = {{kShape, TellControl<CM_SETSHAPEFORE>}, {kProgressBar, TellControl<CM_SETPROGRESSFORE>}}};

// The name "Printer" needs no window, and then the control doesn't matter. What is null is refused as ever.
bool IsPrinterCall(const ObjectCall& call, const char* name) noexcept {
  return IsPrinterName(name) && (call.code() == RTX_OK || call.code() == RTX_NO_WINDOW);
}

std::int32_t GetColour(const ObjectCall& call, const char* name, const GetRow<std::int32_t>& row,
                       PrinterField field, std::int32_t* colour) noexcept {
  if (!IsPrinterCall(call, name)) return GetProperty(call, row, colour);
  *colour = static_cast<std::int32_t>(PrinterNow().*field);
  return RTX_OK;
}

std::int32_t SetColour(const ObjectCall& call, const char* name, const SetRow<std::int32_t>& row,
                       PrinterField field, std::int32_t colour) noexcept {
  if (!IsPrinterCall(call, name)) return SetProperty(call, row, colour);
  PrinterState printer = PrinterNow();
  printer.*field = static_cast<COLORREF>(colour);
  SetPrinterColours(printer.foreColour, printer.backColour);
  return RTX_OK;
}

std::int32_t WindowBorder(const ObjectCall& call) noexcept {
  const std::uint32_t style = StyleOf(call.window());
  const LONG exStyle = GetWindowLongA(call.window(), GWL_EXSTYLE);
  if ((exStyle & WS_EX_DLGMODALFRAME) != 0) return 3;
  if ((style & WS_THICKFRAME) != 0) return 2;
  return (style & WS_BORDER) != 0 ? 1 : 0;
}

// The extended style that is looked at is the window's and not the control's: a bordered standard control,
// which has a sunken edge for its border, reports none in a window without that style. Programs know it so.
std::int32_t ControlBorder(const ObjectCall& call) noexcept {
  const bool hasBorder = (StyleOf(call.control()) & WS_BORDER) != 0;
  const bool hasEdge = (GetWindowLongA(call.window(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
  return hasBorder || hasEdge ? 1 : 0;
}

constexpr GetRow<std::int32_t> kGetBorderStyle = {
    .window = WindowBorder,
    .controls = {{kShape, AskControl<CM_GETSHAPEBORDER>}, {kAnyControl, ControlBorder}}};

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetBackColour(const char* name, int32_t id, int32_t* colour) {
  return GetColour(ObjectCall(__func__, name, id, NumberOutput{colour}), name, kGetBackColour,
                   &PrinterState::backColour, colour);
}

int32_t __stdcall SetBackColour(const char* name, int32_t id, int32_t colour) {
  return SetColour(ObjectCall(__func__, name, id), name, kSetBackColour, &PrinterState::backColour, colour);
}

int32_t __stdcall GetForeColour(const char* name, int32_t id, int32_t* colour) {
  return GetColour(ObjectCall(__func__, name, id, NumberOutput{colour}), name, kGetForeColour,
                   &PrinterState::foreColour, colour);
}

int32_t __stdcall SetForeColour(const char* name, int32_t id, int32_t colour) {
  return SetColour(ObjectCall(__func__, name, id), name, kSetForeColour, &PrinterState::foreColour, colour);
}

int32_t __stdcall GetBorderStyle(const char* name, int32_t id, int32_t* style) {
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{style}), kGetBorderStyle, style);
}
