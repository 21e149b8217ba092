#include "rc/dialog.h"
#include "rc/directory.h"
#include "rc/menuparser.h"
#include "rc/record.h"
#include "rc/symbols.h"
#include "rc/textkit.h"

namespace brelt::rc {
namespace {

// Counts the uses that a parsed DIALOG or MENU makes of each symbol.
void CountNames(RecordTable& records, const SymbolIndex& index, std::span<SymbolRecord> symbols) noexcept {
  for (int i = 1; i < kRecordCount && !records[i]->keyword.IsEmpty(); ++i) {
    const int row = index.Find(records[i]->name.view());
    if (row != SymbolIndex::kNone) ++symbols[static_cast<std::size_t>(row)].Uses;
  }
}

}  // namespace

Reading CountSymbolUses(const char* fileName, std::span<SymbolRecord> symbols) noexcept {
  RecordArray records;
  const host::Block<char> list(kResourceTextSize);
  const host::Block<char> text(kResourceTextSize);
  ResourceDirectory directory(fileName);
  if (!records || !list || !text || !directory.IsComplete()) return Reading::kNoMemory;

  const SymbolIndex index(symbols);
  const TextBuffer buffer(text.get(), kResourceTextSize);
  FixedText<1023> ignored;
  LineRange listed;
  LocateResource(fileName, "*", "DIALOG", {list.get(), kResourceTextSize}, &listed);
  bool failed = listed.broken || directory.HasFailed();
  const auto locate = [&](std::string_view name, const char* type) {
    const bool found = directory.Locate(name, type, buffer) > 0;
    failed = failed || directory.HasFailed();
    return found;
  };
  LineWalk walk(list.get());
  std::string_view line;
  while (!failed && walk.Next(line)) {
    if (!locate(line.substr(0, line.find(',')), "DIALOG")) continue;
    if (!ParseDialog(text.get(), records.table(), ignored)) continue;
    CountNames(records.table(), index, symbols);
    const Name menuName = records[0].menuName;
    if (menuName.IsEmpty() || !locate(menuName.view(), "MENU")) continue;
    if (ParseMenu(text.get(), records.table(), ignored)) CountNames(records.table(), index, symbols);
  }
  return failed ? Reading::kUnreadable : Reading::kDone;
}

}  // namespace brelt::rc
