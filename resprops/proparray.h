// Property arrays: 256 rows of one size that belong to the caller, each the property list of one object as
// lines KEY=value with a line feed behind each.
#pragma once

#include "rc/record.h"
#include "resprops/errortext.h"

namespace brelt::resprops {

inline constexpr int kRowCount = rc::kRecordCount;

// Rows as a caller hands them over: nothing about them is certain until it is tested.
struct PropertyArray {
  char** rows;
  int count;
  int size;  // bytes of each row

  // Makes all rows zero. Does nothing and is false where the pointers can't be read, the size is below 1 or a
  // row can't be written.
  bool Clear() const noexcept;

  bool HasRows() const noexcept { return rows != nullptr; }
  bool HasRightCount() const noexcept { return count == kRowCount; }

 private:
  bool IsWritable() const noexcept;
};

// Whether each row can be read, is a terminated text without control characters other than the line feed, and
// is zero from its terminator to its end.
bool ValidatePropertyArray(const PropertyArray& array) noexcept;

// Fills rows, which are zero, from the records up to the first without a keyword. rcFile is where ICON
// resources are sought. Stops at an object whose type has no schema, with a message; resource is the name for
// it. What doesn't fit a row is cut without a sign.
void RecordsToProperties(rc::RecordTable& records, const char* rcFile, const char* resource,
                         const PropertyArray& array, ErrorText& error) noexcept;

// Fills records, which are clear, from the rows up to the first that is empty or has no TYPEOF line behind
// another line. Lines whose key the schema of the type doesn't name are skipped. Of a row the first 1024
// characters count.
void PropertiesToRecords(const PropertyArray& array, rc::RecordTable& records) noexcept;

}  // namespace brelt::resprops
