// The record that every parser of RC text fills, and the table of them that makes a parsed DIALOG or MENU.
#pragma once

#include <cstdint>

#include "rc/text.h"

namespace brelt::rc {

inline constexpr int kRecordCount = 256;
// Elements 1 to 255; element 0 is the resource itself.
inline constexpr int kElementCount = kRecordCount - 1;

// A coordinate that no text has set.
inline constexpr std::int32_t kUnset = INT32_MIN;

struct ResourceRecord {
  // In a DIALOG: place and size in dialog units. In a MENU: x is the nesting level of an element, from 1.
  std::int32_t x;
  std::int32_t y;
  std::int32_t width;
  std::int32_t height;
  FixedText<255> text;      // caption or control text, decoded
  FixedText<32> className;  // element 0: as the CLASS statement writes it; controls: upper case
  FixedText<40> menuName;   // element 0 only
  FixedText<32> fontName;   // element 0 only
  std::int32_t fontSize;    // element 0 only; points
  FixedText<40> keyword;    // a statement's keyword as written; empty behind the last element of a MENU
  FixedText<40> name;       // the resource's name or the identifier as written; empty behind the last control
  std::uint32_t style;      // window style, or the option bits of a menu element
  std::uint32_t exStyle;    // element 0 only

  ResourceRecord() noexcept { Clear(); }
  // Makes each field 0 or empty.
  void Clear() noexcept;
};

// 256 pointers to records that AllocRecordArray made. The parsers overwrite the records and never allocate.
using RecordTable = ResourceRecord* [kRecordCount];

// Clears the pointers and allocates the records, zero-filled. False at the first failure, with those already
// allocated left in the table.
bool AllocRecordArray(RecordTable& table) noexcept;

// Frees every record that is there; safe on a table that is half full.
void FreeRecordArray(RecordTable& table) noexcept;

// Makes every record of a table empty. An element that holds anything has a keyword or a name, and only those
// are touched: clearing 256 records whole would cost more than the parse that follows.
void ClearRecords(RecordTable& table) noexcept;

// Owns a table and its records.
class RecordArray {
 public:
  RecordArray() noexcept : complete_(AllocRecordArray(table_)) {}
  RecordArray(const RecordArray&) = delete;
  RecordArray& operator=(const RecordArray&) = delete;
  ~RecordArray() { FreeRecordArray(table_); }

  explicit operator bool() const noexcept { return complete_; }
  RecordTable& table() noexcept { return table_; }
  ResourceRecord& operator[](int index) noexcept { return *table_[index]; }

 private:
  RecordTable table_;
  bool complete_;
};

}  // namespace brelt::rc
