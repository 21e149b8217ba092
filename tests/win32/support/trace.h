// Collects what the library traces while it lives.
#pragma once

#include <string>

#include "tests/win32/support/imports.h"

namespace brelt::test {

class TraceLog {
 public:
  TraceLog();
  TraceLog(const TraceLog&) = delete;
  TraceLog& operator=(const TraceLog&) = delete;
  ~TraceLog();

  // All that was traced so far, each line with its end.
  std::string Text() const;

 private:
  ReplacedImport output_;
};

}  // namespace brelt::test
