#include "resprops/resourcewrite.h"

#include <bitset>

#include "rc/commonids.h"
#include "resprops/escape.h"
#include "resprops/rcfile.h"
#include "resprops/rctext.h"
#include "resprops/surgery.h"

namespace brelt::resprops {
namespace {

bool HoldsWindow(const char* row) noexcept {
  for (const char* line : {"TYPEOF=Dialog\n", "TYPEOF=Editwindow\n", "TYPEOF=Richeditwindow\n"}) {
    if (std::strstr(row, line) != nullptr) return true;
  }
  return false;
}

// One write. A step that fails leaves its message, of which the first stays, and the next step follows all
// the same.
class Writing {
 public:
  Writing(const PropertyArray& dialog, const PropertyArray& menu, const char* rcFile,
          ErrorText& error) noexcept
      : dialogRows_(dialog), menuRows_(menu), rcFile_(rcFile), error_(error) {
    CompleteFileName(rcFile, path_);
  }

  void Run() noexcept {
    if (!Check()) return;
    PropertiesToRecords(dialogRows_, dialog_.table());
    PropertiesToRecords(menuRows_, menu_.table());
    DeleteResource(path_.c_str(), WindowName(), DeleteMode::kStub, error_);
    WriteIconsAndMenu();
    RecordsToText(dialog_.table(), output());
    ReplaceOrAppendResource(WindowName(), text_.get(), path_.c_str(), error_);
    WriteSymbols();
  }

 private:
  bool Check() noexcept;
  void CheckRows(const char* which, const PropertyArray& array) noexcept;
  void WriteIconsAndMenu() noexcept;
  void WriteIcons(rc::TextWriter& text) noexcept;
  void NameIcon(const rc::ResourceRecord& icon, rc::TextBuffer name) noexcept;
  void WriteSymbols() noexcept;
  int AddNames(int count, int added) noexcept;

  bool HasMemory() const noexcept {
    return text_ && menuText_ && iconNames_ && dialog_ && menu_ && all_ && own_;
  }
  const char* WindowName() noexcept { return dialog_[0].name.c_str(); }
  static rc::TextBuffer Whole(const host::Block<char>& block) noexcept {
    return {block.get(), rc::kResourceTextSize};
  }
  rc::TextBuffer output() noexcept { return Whole(text_); }

  PropertyArray dialogRows_;
  PropertyArray menuRows_;
  const char* rcFile_;
  ErrorText& error_;
  RcPath path_;
  host::Block<char> text_{rc::kResourceTextSize};
  host::Block<char> menuText_{rc::kResourceTextSize};
  host::Block<char> iconNames_{rc::kResourceTextSize};  // each on a line of its own
  rc::RecordArray dialog_;
  rc::RecordArray menu_;
  host::Block<rc::SymbolRecord> all_{rc::kSymbolCount};  // the symbols of the file
  host::Block<rc::SymbolRecord> own_{rc::kSymbolCount};  // the names of the window and its menu
};

bool Writing::Check() noexcept {
  if (rc::IsEmpty(rcFile_) || !dialogRows_.HasRows() || !menuRows_.HasRows()) {
    error_.Take("RC file name or Property lists are invalid or empty.");
  } else if (!rc::IsFullPathName(path_.c_str())) {
    error_.Take(rc::BadFileNameMessage(rcFile_).view());
  } else if (!HasMemory()) {
    error_.Take("Insufficient memory for writing the properties.");
  } else if (!dialogRows_.HasRightCount() || !menuRows_.HasRightCount()) {
    error_.Format("Property arrays are the wrong size, they need space for %i elements.", kRowCount);
  } else {
    CheckRows("Dialog", dialogRows_);
    CheckRows("Menu", menuRows_);
    if (!error_.IsFailure() && !HoldsWindow(dialogRows_.rows[0])) {
      error_.Take("Property lists do not contain a Dialog or Editwindow or Richeditwindow object");
    }
  }
  return !error_.IsFailure();
}

void Writing::CheckRows(const char* which, const PropertyArray& array) noexcept {
  if (error_.IsFailure() || ValidatePropertyArray(array)) return;
  error_.Format("%s property array is not valid, it requires %i rows of %i chars each.", which, kRowCount,
                array.size);
}

// The ICONs and the MENU go in front of the window: with a stub of it they take the place of the stub that
// the old window has left.
void Writing::WriteIconsAndMenu() noexcept {
  rc::TextWriter text(output());
  WriteIcons(text);
  if (!dialog_[0].menuName.IsEmpty() && !menu_[0].keyword.IsEmpty()) {
    RecordsToText(menu_.table(), Whole(menuText_));
    text.Append(menuText_.get()).Append('\n');
  }
  if (text.IsEmpty()) return;
  text.Append(StubDialog(WindowName()).view());
  ReplaceOrAppendResource(WindowName(), text_.get(), path_.c_str(), error_);
}

// From here on an icon control's text is the name of its resource.
void Writing::WriteIcons(rc::TextWriter& text) noexcept {
  rc::TextWriter(Whole(iconNames_)).Append('\n');
  rc::LocateResource(path_.c_str(), "*", "ICON", {iconNames_.get() + 1, rc::kResourceTextSize - 1});
  for (int i = 0; i < rc::kRecordCount && !dialog_[i].keyword.IsEmpty(); ++i) {
    rc::ResourceRecord& record = dialog_[i];
    if (record.keyword.view() != "ICON" || record.text.IsEmpty()) continue;
    rc::FixedText<100> name;
    EscapedText file;
    NameIcon(record, name);
    EscapeText(record.text.view(), file);
    text.Format("%s ICON \"%.*s\"\n\n", name.c_str(), rc::kShownPathLength, file.c_str());
    record.text.Assign(name.view());
  }
}

// The names of the file's own ICONs have a comma behind them, so that only a name of this run is taken.
void Writing::NameIcon(const rc::ResourceRecord& icon, rc::TextBuffer name) noexcept {
  const std::string_view taken(iconNames_.get());
  rc::FixedText<100> line;
  const auto make = [&](const char* counter) {
    rc::TextWriter(name).Format("%.*s_%.*s%s", rc::kNameLength, WindowName(), rc::kNameLength,
                                icon.name.c_str(), counter);
    line.Format("\n%s\n", name.c_str());
  };
  make("");
  for (int counter = 1; taken.find(line.view()) != std::string_view::npos; ++counter) {
    rc::FixedText<12> ending;
    make(ending.Format("_%i", counter).c_str());
  }
  rc::TextWriter::Continue(Whole(iconNames_)).Append(line.view().substr(1));
}

void Writing::WriteSymbols() noexcept {
  const std::span<rc::SymbolRecord> all(all_.get(), all_.count());
  rc::SymbolReport report;
  rc::SymbolReport ownReport;
  int count = rc::LoadSymbols(path_.c_str(), "", rc::kRenumber | rc::kCountUses, all, report);
  const int added = rc::LoadSymbols(path_.c_str(), WindowName(), 0, {own_.get(), own_.count()}, ownReport);
  error_.Take(report.message.view());
  error_.Take(ownReport.message.view());
  // With a part of the symbols the lines of all the others would go.
  if (!report.message.IsEmpty() || !ownReport.message.IsEmpty()) return;
  count = AddNames(count, added);
  const std::span<rc::SymbolRecord> rows = all.first(static_cast<std::size_t>(count));
  for (rc::SymbolRecord& row : rows) {
    if (rc::CommonIdValue(row.Name.c_str()) > 0) row.Uses = 0;
  }
  rc::SortSymbols(rows, count, rc::kSortByValue);
  RewriteSymbols(path_.c_str(), rows, report.includeLines, report.includeName.view());
}

// Names without a number get one, each once, as the window's names are told once each; a name beyond the
// table's room is dropped. A common identifier gets one too, which nobody else can then have, though its line
// is never written.
int Writing::AddNames(int count, int added) noexcept {
  const rc::SymbolIndex index({all_.get(), all_.count()});
  for (int i = 0; i < added && count < rc::kSymbolCount; ++i) {
    const rc::SymbolRecord& name = own_[static_cast<std::size_t>(i)];
    if (index.Find(name.Name.view()) != rc::SymbolIndex::kNone) continue;
    rc::SymbolRecord& row = all_[static_cast<std::size_t>(count)];
    row.Value = NextFreeId({all_.get(), static_cast<std::size_t>(count)});
    row.Name = name.Name;
    row.Uses = 1;
    ++count;
  }
  return count;
}

}  // namespace

std::int32_t NextFreeId(std::span<const rc::SymbolRecord> symbols) noexcept {
  constexpr std::int32_t kFirstId = 100;
  // As many symbols as there are can't take one number more.
  std::bitset<rc::kSymbolCount + 1> taken;
  for (const rc::SymbolRecord& symbol : symbols) {
    const std::int64_t place = std::int64_t{symbol.Value} - kFirstId;
    if (place >= 0 && place < static_cast<std::int64_t>(taken.size()))
      taken.set(static_cast<std::size_t>(place));
  }
  std::size_t place = 0;
  while (place < taken.size() && taken.test(place)) ++place;
  return kFirstId + static_cast<std::int32_t>(place);
}

void ResourceWrite(const PropertyArray& dialog, const PropertyArray& menu, const char* rcFile,
                   rc::TextBuffer error) noexcept {
  ErrorText errorText(error);
  if (errorText.IsWanted()) Writing(dialog, menu, rcFile, errorText).Run();
}

}  // namespace brelt::resprops
