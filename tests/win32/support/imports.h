// Fault injection: one imported function of the DLL is replaced by a test's.
#pragma once

#include <windows.h>

namespace brelt::test {

// Puts replacement in place of a function that brelt.dll imports, as long as it lives. That the DLL doesn't
// import the function fails the test: nothing would be injected.
class ReplacedImport {
 public:
  ReplacedImport(const char* function, void* replacement);
  ReplacedImport(const ReplacedImport&) = delete;
  ReplacedImport& operator=(const ReplacedImport&) = delete;
  ~ReplacedImport();

  // The function that was replaced; null if the DLL doesn't import it.
  void* original() const { return original_; }
  // Leaves the replacement where it is, for a DLL that goes first.
  void Abandon() { slot_ = nullptr; }

 private:
  void** slot_;
  void* original_;
};

// Replaces an import by one that counts its calls, and fails at one of them without doing anything. Tag keeps
// two functions of the same form apart: CountedImport<struct Alloc, HGLOBAL, UINT, SIZE_T>
// allocations("GlobalAlloc", 3). One at a time of each form.
template <typename Tag, typename Result, typename... Arguments>
class CountedImport {
 public:
  static constexpr int kNever = 0;
  static constexpr int kAlways = -1;

  // failAt is the number of the call that fails, from 1; failure what it returns then.
  explicit CountedImport(const char* function, int failAt = kNever, Result failure = {})
      : import_(function, reinterpret_cast<void*>(&Call)) {
    state = {reinterpret_cast<Function>(import_.original()), 0, failAt, failure};
  }

  int calls() const { return state.calls; }
  // Whether the call that was to fail has come.
  bool HasFailed() const { return state.failAt == kAlways ? state.calls > 0 : state.calls >= state.failAt; }

 private:
  using Function = Result(WINAPI*)(Arguments...);
  struct State {
    Function original;
    int calls;
    int failAt;
    Result failure;
  };

  static Result WINAPI Call(Arguments... arguments) {
    const bool fails = ++state.calls == state.failAt || state.failAt == kAlways;
    return fails ? state.failure : state.original(arguments...);
  }

  static inline State state = {};
  ReplacedImport import_;
};

}  // namespace brelt::test
