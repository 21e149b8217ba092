// The one form of all pictures: a packed bitmap, which is a header, a colour table and pixel rows in one
// block. The first 32-bit word tells the kind by the header's size.
#pragma once

#include <cstdint>

namespace brelt::graphics {

inline constexpr std::uint32_t kWindowsHeaderSize = 40;
inline constexpr std::uint32_t kOs2HeaderSize = 12;
inline constexpr std::int32_t kWindowsPicture = 'W';
inline constexpr std::int32_t kOs2Picture = 'O';

struct PictureInfo {
  std::int32_t kind = 0;  // kWindowsPicture, kOs2Picture, or 0 for what is no picture
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int32_t bits = 0;      // of a pixel
  std::uint32_t colours = 0;  // entries of the colour table
};

// What a header says; kind 0 unless it is one of the two with 1 plane. The header must be readable.
PictureInfo ReadPictureHeader(const void* picture) noexcept;

// The bytes of a header by its first word; 0 for another word.
std::uint32_t PictureHeaderSize(const void* picture) noexcept;

// The bytes of one row of pixels.
std::uint64_t PictureRowBytes(std::int32_t width, std::int32_t bits) noexcept;

// The bytes of the whole block; 0 for null, for what is no picture, and for a size that no block can have.
std::uint32_t PictureSize(const void* picture) noexcept;

}  // namespace brelt::graphics
