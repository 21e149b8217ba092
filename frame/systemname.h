// Which system the library runs on.
#pragma once

#include <cstdint>

#include "rc/text.h"

namespace brelt {

// Stores the name of the system and gives its version and bits. The bits are always 32.
void QuerySystemName(rc::TextBuffer name, std::uint32_t& major, std::uint32_t& minor,
                     std::uint32_t& bits) noexcept;

// The major version alone.
std::uint32_t SystemMajorVersion() noexcept;

// The name that belongs to a version, for the NT family or the other.
const char* SystemNameOf(bool ntFamily, std::uint32_t major, std::uint32_t minor) noexcept;

}  // namespace brelt
