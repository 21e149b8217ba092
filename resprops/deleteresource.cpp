#include "rc/dialog.h"
#include "rc/stylewords.h"
#include "resprops/rewrite.h"
#include "resprops/surgery.h"

namespace brelt::resprops {
namespace {

// Texts, the one put in last on top. Takes memory as it grows.
class TextStack {
 public:
  bool Push(std::string_view text) noexcept {
    const std::size_t needed = used_ + text.size() + 1;
    if (needed > bytes_.count() && !Grow(needed)) return false;
    if (!text.empty()) std::memcpy(bytes_.get() + used_, text.data(), text.size());
    bytes_[needed - 1] = '\0';
    used_ = needed;
    return true;
  }
  // False when there is none.
  bool Pop(rc::TextBuffer text) noexcept {
    if (used_ == 0) return false;
    std::size_t start = used_ - 1;
    while (start > 0 && bytes_[start - 1] != '\0') --start;
    text.Assign(bytes_.get() + start);
    used_ = start;
    return true;
  }

 private:
  bool Grow(std::size_t needed) noexcept {
    host::Block<char> bytes(needed * 2);
    if (!bytes) return false;
    if (used_ > 0) std::memcpy(bytes.get(), bytes_.get(), used_);
    bytes_ = std::move(bytes);
    return true;
  }

  host::Block<char> bytes_;
  std::size_t used_ = 0;
};

// One deletion with all that it takes along. What a DIALOG takes along may be a DIALOG again, and so on for
// as many as a file has: what is still to be done is kept in a list of its own and not on the program's
// stack.
class Deletion {
 public:
  Deletion(const char* path, ErrorText& error) noexcept
      : path_(path), error_(error), text_(rc::kResourceTextSize), symbols_(rc::kSymbolCount) {}

  void Run(const char* name, DeleteMode mode) noexcept;

 private:
  // Stands in the list for: bring the #define lines up to date.
  static constexpr std::string_view kSymbolsMark{};

  bool HasMemory() const noexcept { return records_ && text_ && symbols_; }
  void DeleteOne(const char* name, DeleteMode mode) noexcept;
  bool RemoveLines(const rc::LineRange& lines, const char* stub) noexcept;
  void ListCompanions(DeleteMode mode, const char* name) noexcept;
  bool PushCompanions(DeleteMode mode) noexcept;
  void UpdateSymbols() noexcept;
  void ReportMemory(const char* name) noexcept {
    error_.Take("Ran out of memory while deleting the following resource: ", name);
  }

  const char* path_;
  ErrorText& error_;
  rc::RecordArray records_;
  host::Block<char> text_;
  host::Block<rc::SymbolRecord> symbols_;
  TextStack pending_;
};

void Deletion::Run(const char* name, DeleteMode mode) noexcept {
  if (!HasMemory()) return ReportMemory(name);
  DeleteOne(name, mode);
  rc::FixedText<255> next;
  while (pending_.Pop(next)) {
    if (next.view() == kSymbolsMark) {
      UpdateSymbols();
    } else {
      DeleteOne(next.c_str(), DeleteMode::kDelete);
    }
  }
}

void Deletion::DeleteOne(const char* name, DeleteMode mode) noexcept {
  if (rc::FileSizeOf(path_) < 0) return;
  if (IsReadOnlyFile(path_)) return error_.Take(kReadOnlyMessage, path_);
  rc::LineRange lines;
  rc::LocateResource(path_, name, "*", {text_.get(), rc::kResourceTextSize}, &lines);
  if (lines.broken) return error_.Take(rc::UnreadableFileMessage(path_).view());
  if (lines.first == 0) return;
  const bool isDialog = rc::ResourceTypeIs(text_.get(), "DIALOG");
  rc::Name written;
  std::int32_t position = 0;
  rc::ScanToken(text_.get(), position, written);
  const bool leavesStub = isDialog && mode == DeleteMode::kStub;
  if (RemoveLines(lines, leavesStub ? StubDialog(written.c_str()).c_str() : nullptr) && isDialog) {
    ListCompanions(mode, name);
  }
}

bool Deletion::RemoveLines(const rc::LineRange& lines, const char* stub) noexcept {
  Rewrite rewrite(path_);
  while (rewrite.Next()) {
    if (rewrite.number() == lines.first && stub != nullptr) {
      rewrite.Write(stub);
      rewrite.Write("\n");
    }
    const bool isInside = rewrite.number() >= lines.first && rewrite.number() <= lines.last;
    const bool isEmptyBehind = rewrite.number() == lines.last + 1 && rewrite.IsEmptyLine();
    if (!isInside && !isEmptyBehind) rewrite.Keep();
  }
  return rewrite.Finish(error_);
}

// A DIALOG that doesn't parse has no companions.
void Deletion::ListCompanions(DeleteMode mode, const char* name) noexcept {
  rc::FixedText<1023> ignored;
  rc::ParseDialog(text_.get(), records_.table(), ignored);
  if (!PushCompanions(mode)) ReportMemory(name);
}

// The symbols come last, the records in their order: so all is put in the other way round.
bool Deletion::PushCompanions(DeleteMode mode) noexcept {
  if (mode == DeleteMode::kDelete && !pending_.Push(kSymbolsMark)) return false;
  int count = 0;
  while (count < rc::kRecordCount && !records_[count].keyword.IsEmpty()) ++count;
  for (int i = count - 1; i >= 0; --i) {
    const rc::ResourceRecord& record = records_[i];
    const bool isIcon = rc::EqualIgnoreCase(record.className.view(), "STATIC") &&
                        (record.style & 0xF) == rc::StyleBits("SS_ICON");
    if (isIcon && !record.text.IsEmpty() && !pending_.Push(record.text.view())) return false;
    if (!record.menuName.IsEmpty() && !pending_.Push(record.menuName.view())) return false;
  }
  return true;
}

// Common identifiers keep their lines as long as something uses them.
void Deletion::UpdateSymbols() noexcept {
  rc::SymbolReport report;
  const int count = rc::LoadSymbols(path_, "", rc::kSortByValue | rc::kCountUses,
                                    {symbols_.get(), symbols_.count()}, report);
  RewriteSymbols(path_, {symbols_.get(), static_cast<std::size_t>(count)}, report.includeLines,
                 report.includeName.view());
}

}  // namespace

rc::FixedText<120> StubDialog(const char* name) noexcept {
  rc::FixedText<120> stub;
  stub.Format("%s DIALOG 0,0,20,20\nSTYLE WS_POPUP\nBEGIN\nEND\n", name);
  return stub;
}

void DeleteResource(const char* path, const char* name, DeleteMode mode, ErrorText& error) noexcept {
  if (rc::IsEmpty(name)) return;
  if (!rc::IsFullPathName(path)) return error.Take(rc::BadFileNameMessage(path).view());
  // Whoever deletes from a file that isn't there hears nothing, not even that memory is short.
  if (rc::FileSizeOf(path) < 0) return;
  Deletion(path, error).Run(name, mode);
}

void ResourceDelete(const char* rcFile, const char* resource, rc::TextBuffer error) noexcept {
  ErrorText errorText(error);
  if (!errorText.IsWanted()) return;
  RcPath path;
  CompleteFileName(rcFile, path);
  const rc::Name name(rc::View(resource));
  DeleteResource(path.c_str(), name.c_str(), DeleteMode::kDelete, errorText);
}

}  // namespace brelt::resprops
