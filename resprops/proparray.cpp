#include "resprops/proparray.h"

#include <algorithm>

#include "rc/chars.h"
#include "rc/host.h"

namespace brelt::resprops {
namespace {

bool ArePointersReadable(const PropertyArray& array) noexcept {
  if (array.count < 0) return false;
  const auto bytes = std::uint64_t{static_cast<std::uint32_t>(array.count)} * sizeof(char*);
  return array.HasRows() && bytes <= SIZE_MAX &&
         host::IsReadable(array.rows, static_cast<std::size_t>(bytes));
}

bool IsValidRow(const char* row, int size) noexcept {
  const auto bytes = static_cast<std::size_t>(size);
  if (!host::IsReadable(row, bytes)) return false;
  const char* end = static_cast<const char*>(std::memchr(row, '\0', bytes));
  if (end == nullptr) return false;
  const auto isForbidden = [](char c) { return c != '\n' && rc::IsControl(c); };
  return std::none_of(row, end, isForbidden) &&
         std::all_of(end, row + size, [](char c) { return c == '\0'; });
}

}  // namespace

bool PropertyArray::IsWritable() const noexcept {
  if (size < 1 || !ArePointersReadable(*this)) return false;
  return std::all_of(rows, rows + count,
                     [this](char* row) { return host::IsWritable(row, static_cast<std::size_t>(size)); });
}

bool PropertyArray::Clear() const noexcept {
  if (!IsWritable()) return false;
  for (int i = 0; i < count; ++i) std::memset(rows[i], 0, static_cast<std::size_t>(size));
  return true;
}

bool ValidatePropertyArray(const PropertyArray& array) noexcept {
  if (array.size < 1 || !ArePointersReadable(array)) return false;
  return std::all_of(array.rows, array.rows + array.count,
                     [&array](const char* row) { return IsValidRow(row, array.size); });
}

}  // namespace brelt::resprops
