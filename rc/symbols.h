// The numbers of the words that name controls and menu items: #define lines of the file that an RC file names
// as its header, or of the RC file itself.
#pragma once

#include <cstdint>
#include <span>

#include "rc/linereader.h"
#include "rc/locate.h"
#include "rc/scan.h"

namespace brelt::rc {

struct SymbolRecord {
  FixedText<kNameLength> Name;  // as the #define writes it; empty behind the last row
  std::int32_t Value;           // 0 also means not defined
  std::int32_t Uses;            // how often controls and menu elements name it; filled on request
};

// Every caller gives room for this many rows; a file's further symbols are left out and nothing is said.
inline constexpr int kSymbolCount = 1000;

// Flags of LoadSymbols; programs pass them too.
enum SymbolFlag : std::int32_t {
  kSortByName = 1,
  kSortByValue = 2,  // ignored when kSortByName is set
  kRenumber = 16,    // if two rows share a value, row i gets 100 + i
  kCountUses = 32,
};

// Finds the rows of a symbol table by name, without regard to case. Of rows with one name the first is found.
class SymbolIndex {
 public:
  static constexpr int kNone = -1;

  // Covers the rows up to the first with an empty name.
  explicit SymbolIndex(std::span<const SymbolRecord> rows) noexcept;

  // The number of a row, or kNone.
  int Find(std::string_view name) const noexcept;
  // Takes in the row behind the last one.
  void Add() noexcept;
  int count() const noexcept { return count_; }
  const SymbolRecord& operator[](int row) const noexcept { return rows_[static_cast<std::size_t>(row)]; }

 private:
  // Twice the rows and a power of two; slots hold a row's number plus 1.
  static constexpr std::uint32_t kSlots = 2048;

  std::uint32_t SlotOf(std::string_view name) const noexcept;

  std::span<const SymbolRecord> rows_;
  int count_ = 0;
  std::uint16_t slots_[kSlots] = {};
};

// The value of the symbol of a name; 0 for none and for an empty name.
std::int32_t FindSymbolValue(const SymbolIndex& symbols, const char* name) noexcept;

// What LoadSymbols tells besides the rows.
struct SymbolReport {
  LineRange includeLines;      // of the resource that names the header; 0 when there is none
  FixedText<259> includeName;  // the header as the RC file writes it; empty when there is none
  FixedText<1023> message;     // the failure, empty on success
};

// Loads the symbols of an RC file, or with the name of a DIALOG the words that it and its MENU use. The
// result is the number of rows; the rows behind are empty. A name is taken once, its first definition counts.
// On a failure, told in the report, there are no rows.
int LoadSymbols(const char* fileName, const char* resourceName, std::int32_t flags,
                std::span<SymbolRecord> symbols, SymbolReport& report) noexcept;

// Sorts the first count rows by name ignoring case, or by value and then by name, as flags tell.
void SortSymbols(std::span<SymbolRecord> symbols, int count, std::int32_t flags) noexcept;

enum class Reading { kDone, kNoMemory, kUnreadable };

// Adds to Uses of each row how often the DIALOGs of a file and their MENUs name it; a menu counts once for
// each dialog that has it. Unless it is done the numbers are good for nothing.
Reading CountSymbolUses(const char* fileName, std::span<SymbolRecord> symbols) noexcept;

// The number of a word for the running program: from the file of #define lines beside it, <program>.rcx or
// else <program>.rc. kNoValue when the word has none there, or there is no such file.
inline constexpr std::int32_t kNoValue = 32767;
std::int32_t ResourceWordValue(const char* name) noexcept;

}  // namespace brelt::rc
