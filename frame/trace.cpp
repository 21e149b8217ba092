#include "frame/trace.h"

#include <cstdio>

#include "frame/library.h"

namespace brelt {
namespace {

enum TraceTarget : std::int32_t { kNowhere, kDebugger, kFile };

void AppendTraceFile(const char* text) noexcept {
  std::FILE* file = std::fopen("\\trace.txt", "a+t");
  if (file == nullptr) return;
  std::fputs(text, file);
  std::fputs("\n", file);
  std::fclose(file);
}

}  // namespace

void TraceCall(const char* text) noexcept {
  switch (Library.TraceMode) {
    case kDebugger:
      OutputDebugStringA(text);
      OutputDebugStringA("\n");
      break;
    case kFile:
      AppendTraceFile(text);
      break;
    default:
      break;
  }
}

}  // namespace brelt
