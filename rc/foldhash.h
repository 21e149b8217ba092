// A hash of names that pays no regard to case.
#pragma once

#include <cstdint>

#include "rc/chars.h"

namespace brelt::rc {

constexpr std::uint32_t FoldedHash(std::string_view name) noexcept {
  std::uint32_t hash = 2166136261u;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(ToLower(c))) * 16777619u;
  return hash ^ hash >> 15;
}

}  // namespace brelt::rc
