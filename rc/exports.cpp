// The exports that ask for the number of a word.
#include "frame/trace.h"
#include "include/brelt.h"
#include "rc/commonids.h"
#include "rc/symbols.h"

int32_t __stdcall ResourceCommonId(const char* name) {
  brelt::TraceCall(__func__);
  return brelt::rc::CommonIdValue(name);
}

int32_t __stdcall ResourceValue(const char* name) {
  brelt::TraceCall(__func__);
  return brelt::rc::ResourceWordValue(name);
}
