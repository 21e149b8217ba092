#include "rc/directory.h"

#include "rc/filename.h"
#include "rc/foldhash.h"

namespace brelt::rc {

ResourceDirectory::ResourceDirectory(const char* fileName) noexcept : reader_(fileName) {
  if (reader_.IsOpen() && IsAcceptedFileName(fileName)) Walk();
}

void ResourceDirectory::Walk() noexcept {
  ResourceWalk walk;
  Line line;
  std::uint64_t offset = 0;
  while (complete_ && reader_.Next(line)) {
    walk.Feed(line.text);
    if (walk.IsHeader()) complete_ = Add(offset, walk);
    offset = reader_.Offset();
  }
}

bool ResourceDirectory::Grow() noexcept {
  const std::size_t capacity = entries_.count() == 0 ? 256 : entries_.count() * 2;
  host::Block<Entry> entries(capacity);
  host::Block<std::uint32_t> slots(capacity * 2);
  if (!entries || !slots) return false;
  for (std::uint32_t i = 0; i < count_; ++i) entries[i] = entries_[i];
  entries_ = std::move(entries);
  slots_ = std::move(slots);
  for (std::uint32_t i = 0; i < count_; ++i) slots_[SlotOf(entries_[i].name.view())] = i + 1;
  return true;
}

bool ResourceDirectory::Add(std::uint64_t offset, const ResourceWalk& walk) noexcept {
  if (count_ == entries_.count() && !Grow()) return false;
  std::uint32_t& slot = slots_[SlotOf(walk.name().view())];
  if (slot != 0) return true;
  entries_[count_] = {offset, walk.name(), walk.keyword()};
  slot = ++count_;
  return true;
}

// The slot that holds a name, or the free one where it belongs.
std::uint32_t ResourceDirectory::SlotOf(std::string_view name) const noexcept {
  const auto mask = static_cast<std::uint32_t>(slots_.count() - 1);
  std::uint32_t slot = FoldedHash(name) & mask;
  while (slots_[slot] != 0 && !EqualIgnoreCase(entries_[slots_[slot] - 1].name.view(), name)) {
    slot = (slot + 1) & mask;
  }
  return slot;
}

int ResourceDirectory::Locate(std::string_view name, const char* typeList, TextBuffer out) noexcept {
  TextWriter writer(out);
  if (count_ == 0) return 0;
  const std::uint32_t slot = slots_[SlotOf(name)];
  if (slot == 0) return 0;
  const Entry& entry = entries_[slot - 1];
  if (!TypeList(typeList).Holds(entry.keyword)) return 0;
  reader_.Seek(entry.offset);
  ResourceWalk walk;
  Line line;
  while (!walk.IsLastLine() && reader_.Next(line)) {
    StripLineComment(line.text);
    walk.Feed(line.text);
    writer.Append(line.text);
  }
  if (out.IsWritable()) BlankBlockComments(out.data());
  return writer.length();
}

}  // namespace brelt::rc
