// The key table of a window's menu. It has the form of the platform's ACCEL array.
#pragma once

#include <cstdint>

namespace brelt::rc {

// Bits of AcceleratorRow::Flags, those of the platform's ACCEL record without its virtual-key bit.
inline constexpr std::uint8_t kAccelNoInvert = 2;
inline constexpr std::uint8_t kAccelShift = 4;
inline constexpr std::uint8_t kAccelControl = 8;
inline constexpr std::uint8_t kAccelAlt = 16;

struct AcceleratorRow {
  std::uint8_t Flags;
  std::uint16_t Key;      // virtual key; 0 ends the table
  std::uint16_t Command;  // 0 opens the menu bar's title of that key
};
static_assert(sizeof(AcceleratorRow) == 6);

inline constexpr int kAcceleratorCount = 100;
// The last row is never filled, so that the table always ends in a zero row.
using AcceleratorTable = AcceleratorRow[kAcceleratorCount];

// Adds a row for each key that stands behind the first tab of a menu item's text: "F1" to "F12", "Ctrl+x" and
// "Alt+x", divided by commas. What isn't one of these is passed over; what has no row left is dropped.
void AddAccelerators(const char* itemText, std::int32_t command, AcceleratorTable& accelerators) noexcept;

}  // namespace brelt::rc
