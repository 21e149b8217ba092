// The 16 colours of the library. Properties carry them as numbers with blue in the high byte and red in the
// low one; a style word holds one as the four bits of its place in the palette.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace brelt::resprops {

struct PaletteColour {
  std::uint32_t value;  // 0x00BBGGRR
  std::string_view name;
};

inline constexpr std::array<PaletteColour, 16> kPalette = {{
    {0x000000, "Black"},
    {0x800000, "Dark blue"},
    {0x008000, "Dark green"},
    {0x808000, "Dark cyan"},
    {0x000080, "Dark red"},
    {0x800080, "Dark magenta"},
    {0x008080, "Dark yellow"},
    {0x808080, "Dark grey"},
    {0xC0C0C0, "Light grey"},
    {0xFF0000, "Light blue"},
    {0x00FF00, "Light green"},
    {0xFFFF00, "Light cyan"},
    {0x0000FF, "Light red"},
    {0xFF00FF, "Light magenta"},
    {0x00FFFF, "Light yellow"},
    {0xFFFFFF, "White"},
}};

// The bits of a palette index: red, green and blue, and y for the lighter half.
struct ColourBits {
  bool r;
  bool g;
  bool b;
  bool y;
};

constexpr std::uint32_t ColourFromBits(ColourBits bits) noexcept {
  return kPalette[static_cast<std::size_t>(bits.y * 8 + bits.r * 4 + bits.g * 2 + bits.b)].value;
}

// Takes a palette value or, where the number is none, an index: its low byte. So a number off the palette
// keeps what its low byte gives; designers pass indexes as well as values.
constexpr ColourBits BitsFromColour(std::int32_t colour) noexcept {
  std::uint32_t index = static_cast<std::uint32_t>(colour) & 0xFF;
  for (std::size_t i = 0; i < kPalette.size(); ++i) {
    if (kPalette[i].value == static_cast<std::uint32_t>(colour)) index = static_cast<std::uint32_t>(i);
  }
  return {(index & 4) != 0, (index & 2) != 0, (index & 1) != 0, (index & 8) != 0};
}

}  // namespace brelt::resprops
