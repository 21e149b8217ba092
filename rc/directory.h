// Where each resource of an RC file stands, found in one walk, so that many resources can be read without a
// walk from the top for each.
#pragma once

#include "rc/linereader.h"
#include "rc/locate.h"

namespace brelt::rc {

class ResourceDirectory {
 public:
  // Walks the file. Check IsComplete before anything else.
  explicit ResourceDirectory(const char* fileName) noexcept;

  // False when memory couldn't be had. A file that can't be read is a complete directory of nothing.
  bool IsComplete() const noexcept { return complete_; }
  // Whether the file couldn't be read, by the walk or by the last Locate.
  bool HasFailed() const noexcept { return !reader_.IsOpen() || reader_.HasFailed(); }
  // As LocateResource for a name: of resources with one name only the first is seen.
  int Locate(std::string_view name, const char* typeList, TextBuffer out) noexcept;

 private:
  struct Entry {
    std::uint64_t offset;
    Name name;
    Name keyword;
  };

  void Walk() noexcept;
  bool Add(std::uint64_t offset, const ResourceWalk& walk) noexcept;
  bool Grow() noexcept;
  std::uint32_t SlotOf(std::string_view name) const noexcept;

  LineReader reader_;
  host::Block<Entry> entries_;
  host::Block<std::uint32_t> slots_;  // a hash of names: an entry's number plus 1
  std::uint32_t count_ = 0;
  bool complete_ = true;
};

}  // namespace brelt::rc
