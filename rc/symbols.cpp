#include "rc/symbols.h"

#include <algorithm>

#include "rc/dialog.h"
#include "rc/filename.h"
#include "rc/foldhash.h"
#include "rc/menuparser.h"
#include "rc/record.h"

namespace brelt::rc {

// ---- SymbolIndex ----

SymbolIndex::SymbolIndex(std::span<const SymbolRecord> rows) noexcept : rows_(rows) {
  while (count_ < static_cast<int>(rows_.size()) && count_ < kSymbolCount &&
         !(*this)[count_].Name.IsEmpty()) {
    Add();
  }
}

// The slot that holds a name, or the free one where it belongs.
std::uint32_t SymbolIndex::SlotOf(std::string_view name) const noexcept {
  std::uint32_t slot = FoldedHash(name) % kSlots;
  while (slots_[slot] != 0 && !EqualIgnoreCase((*this)[slots_[slot] - 1].Name.view(), name)) {
    slot = (slot + 1) % kSlots;
  }
  return slot;
}

int SymbolIndex::Find(std::string_view name) const noexcept {
  return name.empty() ? kNone : static_cast<int>(slots_[SlotOf(name)]) - 1;
}

void SymbolIndex::Add() noexcept {
  std::uint16_t& slot = slots_[SlotOf((*this)[count_].Name.view())];
  ++count_;
  if (slot == 0) slot = static_cast<std::uint16_t>(count_);
}

std::int32_t FindSymbolValue(const SymbolIndex& symbols, const char* name) noexcept {
  const int row = symbols.Find(View(name));
  return row == SymbolIndex::kNone ? 0 : symbols[row].Value;
}

namespace {

// A symbol table while it is filled: each name goes in once, up to the room there is.
class GrowingTable {
 public:
  explicit GrowingTable(std::span<SymbolRecord> rows) noexcept : rows_(rows), index_(rows) {}

  void Add(std::string_view name, std::int32_t value) noexcept {
    const int room = std::min(static_cast<int>(rows_.size()), kSymbolCount);
    if (index_.count() >= room || index_.Find(name) != SymbolIndex::kNone) return;
    SymbolRecord& row = rows_[static_cast<std::size_t>(index_.count())];
    row.Name.Assign(name);
    row.Value = value;
    row.Uses = 0;
    index_.Add();
  }
  int count() const noexcept { return index_.count(); }
  const SymbolIndex& index() const noexcept { return index_; }

 private:
  std::span<SymbolRecord> rows_;
  SymbolIndex index_;
};

void ClearRows(std::span<SymbolRecord> rows) noexcept {
  for (SymbolRecord& row : rows) row = {};
}

// The longest numeric prefix of a value token: hexadecimal behind 0x, otherwise decimal. Limited to the
// signed range, so that 0xFFFFFFFF is 0x7FFFFFFF.
std::int32_t DefinedValue(const char* token) noexcept {
  if (!HasHexPrefix(token)) return DecimalValue(token);
  const std::uint32_t value = HexDigitsValue(token + 2);
  return static_cast<std::int32_t>(std::min(value, std::uint32_t{INT32_MAX}));
}

// definition = "#define" name value. The mark must be the line's very first character with the word right
// behind it, in lower case. A name that begins with '_' is no word for the scanner and so has no row. A
// comment needs no removing: the scanner reads no token of it.
void ReadDefinition(const char* line, GrowingTable& table) noexcept {
  if (*line != '#') return;
  std::int32_t position = 1;
  Name token;
  ScanToken(line, position, token);
  if (token.view() != "define") return;
  Name name;
  ScanToken(line, position, name);
  if (name.IsEmpty()) return;
  ScanToken(line, position, token);
  table.Add(name.view(), DefinedValue(token.c_str()));
}

// Finds the resource that names the header. False when the file has none.
bool LocateInclude(const char* fileName, TextBuffer text, LineRange& lines) noexcept {
  return LocateResource(fileName, "1", "TEXTINCLUDE", text, &lines) > 0 ||
         LocateResource(fileName, "DLGINCLUDE", "RCDATA", text, &lines) > 0;
}

// The first string of an include resource, decoded; its usual \0 at the end becomes the end of the name.
void ReadIncludeName(const char* text, TextBuffer includeName) noexcept {
  includeName.Clear();
  const char* mark = std::strchr(text, '"');
  if (mark == nullptr) return;
  std::int32_t position = 0;
  Token token;
  ScanToken(mark, position, token);
  Token body;
  body.Assign(StringBody(token.view()));
  UnescapeText(body.c_str(), includeName);
}

// Longer than a path can be, so that a name isn't cut before a message shows it, or to that of another file.
using SymbolPath = FixedText<2 * host::kPathLength>;

// The file that holds the #define lines of an RC file, and what the file says of it.
void FindSymbolFile(const char* fileName, SymbolReport& report, SymbolPath& symbolFile) noexcept {
  FixedText<519> include;
  symbolFile.Assign(View(fileName));
  if (!LocateInclude(fileName, include, report.includeLines)) return;
  ReadIncludeName(include.c_str(), report.includeName);
  if (IsFullPathName(fileName) && IsBareFileName(report.includeName.c_str())) {
    symbolFile.Assign(SplitPath(fileName).Folder());
    symbolFile.Append(report.includeName.view());
  } else {
    symbolFile.Assign(report.includeName.view());
  }
}

void ReadSymbolFile(const char* path, GrowingTable& table, SymbolReport& report) noexcept {
  if (!IsAcceptedFileName(path)) {
    report.message.Assign(BadFileNameMessage(path).view());
    return;
  }
  if (FileSizeOf(path) < 0) {
    report.message.Assign(MissingFileMessage(path).view());
    return;
  }
  LineReader reader(path);
  if (!reader.IsOpen()) {
    report.message.Format("The file <%-.*s> could not be opened", kShownPathLength, path);
    return;
  }
  Line line;
  while (reader.Next(line)) ReadDefinition(line.text, table);
}

// Adds the words of the records' names; a word that the file doesn't define has the value 0.
void AddNames(RecordTable& records, bool isMenu, const SymbolIndex& defined, GrowingTable& table) noexcept {
  for (int i = 1; i < kRecordCount; ++i) {
    const ResourceRecord& record = *records[i];
    if ((isMenu ? record.keyword.IsEmpty() : record.name.IsEmpty())) return;
    if (!record.name.IsEmpty()) table.Add(record.name.view(), FindSymbolValue(defined, record.name.c_str()));
  }
}

// Fills in the uses of rows that a file defines; a word that it doesn't define keeps 0.
bool FillUses(const char* fileName, std::span<SymbolRecord> defined, const SymbolIndex& index,
              std::span<SymbolRecord> rows) noexcept {
  if (!CountSymbolUses(fileName, defined)) return false;
  for (SymbolRecord& row : rows) {
    const int found = index.Find(row.Name.view());
    if (found != SymbolIndex::kNone) row.Uses = index[found].Uses;
  }
  return true;
}

// Takes the words of one DIALOG and its MENU. A resource that is missing or doesn't parse simply has none.
bool LoadDialogSymbols(const char* fileName, const char* dialogName, const SymbolIndex& defined,
                       GrowingTable& table) noexcept {
  RecordArray records;
  const host::Block<char> text(kResourceTextSize);
  if (!records || !text) return false;
  const TextBuffer buffer(text.get(), kResourceTextSize);
  FixedText<1023> ignored;
  if (LocateResource(fileName, dialogName, "DIALOG", buffer) == 0) return true;
  ParseDialog(text.get(), records.table(), ignored);
  AddNames(records.table(), false, defined, table);
  const Name menuName = records[0].menuName;
  if (menuName.IsEmpty() || LocateResource(fileName, menuName.c_str(), "MENU", buffer) == 0) return true;
  ParseMenu(text.get(), records.table(), ignored);
  AddNames(records.table(), true, defined, table);
  return true;
}

bool HasEqualValues(std::span<const SymbolRecord> rows) noexcept {
  std::int32_t values[kSymbolCount];
  std::int32_t* end = values;
  for (const SymbolRecord& row : rows) *end++ = row.Value;
  std::sort(values, end);
  return std::adjacent_find(values, end) != end;
}

void Renumber(std::span<SymbolRecord> rows) noexcept {
  constexpr std::int32_t kFirstNumber = 100;
  std::int32_t number = kFirstNumber;
  for (SymbolRecord& row : rows) row.Value = number++;
}

}  // namespace

int LoadSymbols(const char* fileName, const char* resourceName, std::int32_t flags,
                std::span<SymbolRecord> symbols, SymbolReport& report) noexcept {
  report = {};
  ClearRows(symbols);
  const host::Block<SymbolRecord> working(symbols.size());
  SymbolPath symbolFile;
  FindSymbolFile(fileName, report, symbolFile);
  if (!working) {
    report.message.Assign("Not enough memory to load the symbols");
    return 0;
  }
  GrowingTable defined({working.get(), working.count()});
  ReadSymbolFile(symbolFile.c_str(), defined, report);
  if (!report.message.IsEmpty()) return 0;

  int count = 0;
  if (IsEmpty(resourceName)) {
    count = defined.count();
    std::copy_n(working.get(), count, symbols.begin());
  } else {
    GrowingTable table(symbols);
    if (!LoadDialogSymbols(fileName, resourceName, defined.index(), table)) {
      report.message.Assign("Not enough memory for loading the dialog symbols");
      return 0;
    }
    count = table.count();
  }
  const std::span<SymbolRecord> rows = symbols.first(static_cast<std::size_t>(count));
  if (count > 0 && (flags & kCountUses) != 0 &&
      !FillUses(fileName, {working.get(), working.count()}, defined.index(), rows)) {
    report.message.Assign("Not enough memory for sorting the symbols");
    ClearRows(symbols);
    return 0;
  }
  SortSymbols(symbols, count, flags);
  if ((flags & kRenumber) != 0 && HasEqualValues(rows)) Renumber(rows);
  return count;
}

void SortSymbols(std::span<SymbolRecord> symbols, int count, std::int32_t flags) noexcept {
  if (count < 2) return;
  const std::span<SymbolRecord> rows = symbols.first(static_cast<std::size_t>(count));
  const auto nameLess = [](const SymbolRecord& a, const SymbolRecord& b) {
    return CompareIgnoreCase(a.Name.view(), b.Name.view()) < 0;
  };
  if ((flags & kSortByName) != 0) {
    std::sort(rows.begin(), rows.end(), nameLess);
  } else if ((flags & kSortByValue) != 0) {
    // Not the standard stable sort, which takes memory; names keep the order of equal values from being
    // chance.
    std::sort(rows.begin(), rows.end(), [nameLess](const SymbolRecord& a, const SymbolRecord& b) {
      return a.Value != b.Value ? a.Value < b.Value : nameLess(a, b);
    });
  }
}

}  // namespace brelt::rc
