#include "rc/accelerators.h"

#include "rc/scan.h"

namespace brelt::rc {
namespace {

constexpr std::uint16_t kBeforeF1 = 111;  // the virtual key of F1 is 112

// Finds the key behind the first separator of an entry: only that one is looked at, so no row can carry two
// modifiers, and "Ctrl+Shift+A" is Ctrl and S.
std::uint16_t ModifiedKey(const char* entry) noexcept {
  const char* separator = std::strpbrk(entry, "+-,");
  if (separator == nullptr || *separator == ',' || !IsLetterOrDigit(separator[1])) return 0;
  return static_cast<std::uint16_t>(ToUpper(separator[1]));
}

std::uint16_t FunctionKey(const char* digits) noexcept {
  if (!IsDigit(*digits)) return 0;
  const std::int32_t number = DecimalValue(digits);
  return number >= 1 && number <= 12 ? static_cast<std::uint16_t>(kBeforeF1 + number) : 0;
}

// A row with Key 0 where the entry names no key.
AcceleratorRow ReadEntry(const char* entry) noexcept {
  if (StartsWithIgnoreCase(entry, "Alt")) return {kAccelAlt | kAccelNoInvert, ModifiedKey(entry + 3), 0};
  if (StartsWithIgnoreCase(entry, "Ctrl")) return {kAccelControl | kAccelNoInvert, ModifiedKey(entry + 4), 0};
  if (StartsWithIgnoreCase(entry, "F")) return {kAccelNoInvert, FunctionKey(entry + 1), 0};
  return {};
}

void AddRow(const AcceleratorRow& row, AcceleratorTable& accelerators) noexcept {
  for (int i = 0; i < kAcceleratorCount - 1; ++i) {
    if (accelerators[i].Key != 0) continue;
    accelerators[i] = row;
    return;
  }
}

}  // namespace

void AddAccelerators(const char* itemText, std::int32_t command, AcceleratorTable& accelerators) noexcept {
  const char* behind = std::strchr(itemText, '\t');
  while (behind != nullptr) {
    const char* entry = behind + 1;
    while (*entry == ' ') ++entry;
    AcceleratorRow row = ReadEntry(entry);
    row.Command = static_cast<std::uint16_t>(command);
    if (row.Key != 0) AddRow(row, accelerators);
    behind = std::strchr(entry, ',');
  }
}

}  // namespace brelt::rc
