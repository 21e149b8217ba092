// The calls by which a form designer reads and rewrites RC files, and asks for the number of a word.
#include "frame/trace.h"
#include "rc/commonids.h"
#include "rc/symbols.h"
#include "resprops/resourceinfo.h"
#include "resprops/resourceread.h"
#include "resprops/resourcewrite.h"
#include "resprops/schema.h"
#include "resprops/surgery.h"

using brelt::TraceCall;
namespace resprops = brelt::resprops;

// Programs of an older form pass a word ahead of the arguments of three of these calls; it has no meaning.
using Ignored = std::uintptr_t;

extern "C" {

void __stdcall ResourceTypelist(const char* typeName, char* buffer, std::int32_t size) noexcept {
  TraceCall(__func__);
  resprops::ResourceTypelist(typeName, {buffer, size});
}

void __stdcall ResourceRead(Ignored, const char* rcFile, const char* resource, char** rows,
                            std::int32_t rowCount, std::int32_t rowSize, char* error,
                            std::int32_t errorSize) noexcept {
  TraceCall(__func__);
  resprops::ResourceRead(rcFile, resource, rows, rowCount, rowSize, {error, errorSize});
}

void __stdcall ResourceWrite(Ignored, char** dialogRows, std::int32_t dialogRowCount,
                             std::int32_t dialogRowSize, char** menuRows, std::int32_t menuRowCount,
                             std::int32_t menuRowSize, const char* rcFile, char* error,
                             std::int32_t errorSize) noexcept {
  TraceCall(__func__);
  resprops::ResourceWrite({dialogRows, dialogRowCount, dialogRowSize}, {menuRows, menuRowCount, menuRowSize},
                          rcFile, {error, errorSize});
}

void __stdcall ResourceDelete(const char* rcFile, const char* resource, char* error,
                              std::int32_t errorSize) noexcept {
  TraceCall(__func__);
  resprops::ResourceDelete(rcFile, resource, {error, errorSize});
}

void __stdcall ResourceRename(const char* rcFile, const char* oldName, const char* newName, char* error,
                              std::int32_t errorSize) noexcept {
  TraceCall(__func__);
  resprops::ResourceRename(rcFile, oldName, newName, {error, errorSize});
}

void __stdcall ResourceWriteText(Ignored, const char* rcFile, const char* text, char* error,
                                 std::int32_t errorSize) noexcept {
  TraceCall(__func__);
  resprops::ResourceWriteText(rcFile, text, {error, errorSize});
}

void __stdcall ResourceInfo(const char* rcFile, const char* type, const char* name, std::int32_t flags,
                            char* output, std::int32_t outputSize, char* error,
                            std::int32_t errorSize) noexcept {
  TraceCall(__func__);
  resprops::ResourceInfo(rcFile, type, name, flags, {output, outputSize}, {error, errorSize});
}

std::int32_t __stdcall ResourceCommonId(const char* name) noexcept {
  TraceCall(__func__);
  return brelt::rc::CommonIdValue(name);
}

std::int32_t __stdcall ResourceValue(const char* name) noexcept {
  TraceCall(__func__);
  return brelt::rc::ResourceWordValue(name);
}

}  // extern "C"
