// The small global settings.
#include "frame/library.h"
#include "frame/trace.h"
#include "include/brelt.h"

using namespace brelt;

namespace {

constexpr bool IsZeroOrOne(int32_t value) noexcept { return value == 0 || value == 1; }

}  // namespace

int32_t __stdcall SetTrace(int32_t mode) {
  if (mode >= 0 && mode <= 2) Library.TraceMode = mode;
  return mode;
}

void __stdcall GetOptionBase(int32_t* base) {
  TraceCall(__func__);
  if (base != nullptr) *base = Library.OptionBase;
}

int32_t __stdcall SetOptionBase(int32_t base) {
  TraceCall(__func__);
  if (IsZeroOrOne(base)) Library.OptionBase = base;
  return base;
}

int32_t __stdcall GetUserBreak(void) { return Library.UserBreak; }

void __stdcall SetUserBreak(int32_t value) {
  if (IsZeroOrOne(value)) Library.UserBreak = value;
}
