// Packed bitmaps that a program or a control hands over by their address alone.
#pragma once

#include <cstdint>

namespace brelt {

// The bytes of the packed bitmap at an address; 0 for null, for what is no picture, and where the memory of
// the whole block can't be read.
std::uint32_t ReadablePictureSize(const void* picture) noexcept;

}  // namespace brelt
