// Calls an export as a compiler would and tells whether it took its arguments off the stack.
#pragma once

#include <cstdint>
#include <span>

namespace brelt::test {

struct CallOutcome {
  std::uint32_t result;
  int poppedBytes;  // how far the stack pointer stands above where it was before the arguments were pushed,
                    // plus what was pushed
};

// Pushes the words from the last to the first and calls the function, with the stack shifted by 0 to 3 words:
// the platform promises an alignment of one word and no more.
CallOutcome CallExport(void* function, std::span<const std::uint32_t> words, int shift);

}  // namespace brelt::test
