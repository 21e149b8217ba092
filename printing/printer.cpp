#include "forms/printer.h"

#include "include/events.h"
#include "rc/text.h"

namespace brelt {

bool IsPrinterName(const char* name) noexcept { return rc::EqualIgnoreCase(rc::View(name), "PRINTER"); }

// No print job can be started yet, so these are the answers without one.

PrinterState PrinterNow() noexcept { return {}; }

void SetPrinterPosition(std::int32_t, std::int32_t) noexcept {}

void SetPrinterColours(COLORREF, COLORREF) noexcept {}

host::FontChoice PrinterFont() noexcept { return {}; }

std::int32_t SetPrinterFont(const char*, std::int32_t, std::int32_t, std::int32_t) noexcept {
  return RTX_NO_PRINTER;
}

}  // namespace brelt
