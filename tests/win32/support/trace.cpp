#include "tests/win32/support/trace.h"

#include <brelt.h>

namespace brelt::test {
namespace {

std::string& Collected() {
  static std::string text;
  return text;
}

void WINAPI CollectOutput(const char* text) { Collected() += text; }

}  // namespace

TraceLog::TraceLog() : output_("OutputDebugStringA", reinterpret_cast<void*>(CollectOutput)) {
  Collected().clear();
  SetTrace(1);
}

TraceLog::~TraceLog() { SetTrace(0); }

std::string TraceLog::Text() const { return Collected(); }

}  // namespace brelt::test
