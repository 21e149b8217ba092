// A window's named strings: a block of entries of the form key=value, each terminated, with an empty entry at
// the end. Keys are compared without regard to case.
#pragma once

#include <cstddef>

#include "rc/host.h"

namespace brelt {

struct ArrayPlace {
  std::size_t position;  // of the entry; equals size when there is none
  std::size_t size;      // of all entries, without the empty one at the end

  bool IsFound() const noexcept { return position < size; }
};

// Finds the entry of a key in a block, which may be null. Of several the last one counts.
ArrayPlace LocateArrayValue(const char* block, const char* key) noexcept;

// The value of a key within the block, or null.
const char* FindArrayValue(const char* block, const char* key) noexcept;

// A copy of a block with a value added, or replaced where the key stands; empty when memory couldn't be had.
// An entry longer than 1024 characters is cut.
host::Block<char> WithArrayValue(const char* block, const char* key, const char* value) noexcept;

// A copy of a block; empty when memory couldn't be had.
host::Block<char> CopyArrayValues(const char* block) noexcept;

}  // namespace brelt
