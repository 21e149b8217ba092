// Fault injection: one imported function of the DLL is replaced by a test's.
#pragma once

#include <windows.h>

namespace brelt::test {

// Puts replacement in place of a function that brelt.dll imports, as long as it lives.
class ReplacedImport {
 public:
  ReplacedImport(const char* function, void* replacement);
  ReplacedImport(const ReplacedImport&) = delete;
  ReplacedImport& operator=(const ReplacedImport&) = delete;
  ~ReplacedImport();

  // The function that was replaced; null if the DLL doesn't import it.
  void* original() const { return original_; }

 private:
  void** slot_;
  void* original_;
};

}  // namespace brelt::test
