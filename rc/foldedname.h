// A word of at most 31 characters in lower case, packed so that two compare in a few instructions. The
// keyword tables are searched with it once or more for every statement and style word of a DIALOG.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string_view>

#include "rc/chars.h"

namespace brelt::rc {

class FoldedName {
 public:
  static constexpr std::size_t kMostCharacters = 31;

  constexpr FoldedName() noexcept = default;
  // A longer word becomes a key that equals no word's.
  constexpr explicit FoldedName(std::string_view word) noexcept {
    if (word.size() > kMostCharacters) {
      words_[0] = ~Word{0};
      return;
    }
    for (std::size_t i = 0; i < word.size(); ++i) {
      const Word byte = static_cast<unsigned char>(ToLower(word[i]));
      words_[i / sizeof(Word)] |= byte << 8 * (sizeof(Word) - 1 - i % sizeof(Word));
    }
  }

  // The order of the lower-case forms, byte by byte.
  constexpr std::strong_ordering operator<=>(const FoldedName&) const noexcept = default;
  constexpr bool operator==(const FoldedName&) const noexcept = default;

 private:
  // As much as the processor takes at once; the first character stands in its highest byte.
  using Word = std::size_t;

  std::array<Word, (kMostCharacters + 1) / sizeof(Word)> words_{};
};

// The number of a word's row in an array sorted by the member key; Count when there is no such row.
template <typename Row, std::size_t Count>
constexpr std::size_t IndexByName(const std::array<Row, Count>& rows, std::string_view word) noexcept {
  const FoldedName sought(word);
  std::size_t low = 0;
  std::size_t high = Count;
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    if (rows[middle].key < sought) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low < Count && rows[low].key == sought ? low : Count;
}

// The row itself; null when there is none.
template <typename Row, std::size_t Count>
constexpr const Row* FindByName(const std::array<Row, Count>& rows, std::string_view word) noexcept {
  const std::size_t index = IndexByName(rows, word);
  return index < Count ? &rows[index] : nullptr;
}

// For static_assert: sorted, and no name twice.
template <typename Row, std::size_t Count>
constexpr bool IsStrictlySorted(const std::array<Row, Count>& rows) noexcept {
  for (std::size_t i = 1; i < Count; ++i) {
    if (!(rows[i - 1].key < rows[i].key)) return false;
  }
  return true;
}

}  // namespace brelt::rc
