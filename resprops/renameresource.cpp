#include "rc/textkit.h"
#include "resprops/rewrite.h"
#include "resprops/surgery.h"

namespace brelt::resprops {
namespace {

enum class Found { kNo, kYes, kUnreadable };

Found Find(const char* path, const char* name, rc::LineRange& lines) noexcept {
  rc::LocateResource(path, name, "*", {}, &lines);
  if (lines.broken) return Found::kUnreadable;
  return lines.first != 0 ? Found::kYes : Found::kNo;
}

// Makes the line "newName type rest" of the header that the rewrite has come to; false where the header has
// another name.
bool RenameHeader(const Rewrite& rewrite, const char* oldName, const char* newName,
                  rc::TextWriter& renamed) noexcept {
  const char* header = rewrite.line();
  std::int32_t position = 0;
  rc::Name name;
  rc::SkipSpace(header, position);
  rc::ScanToken(header, position, name);
  if (!rc::EqualIgnoreCase(name.view(), oldName)) return false;
  const std::int32_t typeStart = position;
  rc::Name type;
  rc::ScanToken(header, position, type);
  std::int32_t typeEnd = typeStart;
  while (rc::IsWordChar(header[typeEnd])) ++typeEnd;
  renamed.Append(newName)
      .Append(' ')
      .Append({header + typeStart, static_cast<std::size_t>(typeEnd - typeStart)})
      .Append(' ')
      .Append({header + position, static_cast<std::size_t>(rewrite.length() - position)});
  return true;
}

class Renaming {
 public:
  Renaming(const char* rcFile, const char* oldName, const char* newName, ErrorText& error) noexcept
      : oldName_(rc::View(oldName)), newName_(rc::View(newName)), error_(error) {
    CompleteFileName(rcFile, path_);
  }

  void Run() noexcept {
    if (CheckFile() && CheckNames() && CheckUse()) Rename();
  }

 private:
  bool CheckFile() noexcept;
  bool CheckNames() noexcept;
  bool CheckUse() noexcept;
  void Rename() noexcept;
  // "Cannot rename <name>, " and a reason.
  bool Refuse(const char* reason) noexcept {
    error_.Format("Cannot rename <%-.*s>, %s", rc::kNameLength, oldName_.c_str(), reason);
    return false;
  }

  RcPath path_;
  rc::Name oldName_;
  rc::Name newName_;
  ErrorText& error_;
  rc::LineRange lines_;
};

bool Renaming::CheckFile() noexcept {
  if (!rc::IsFullPathName(path_.c_str())) {
    error_.Take(rc::BadFileNameMessage(path_.c_str()).view());
  } else if (rc::FileSizeOf(path_.c_str()) < 0) {
    error_.Format("Resource file <%-.*s> is invalid or missing.", rc::kShownPathLength, path_.c_str());
  } else if (IsReadOnlyFile(path_.c_str())) {
    error_.Take(kReadOnlyMessage, path_.view());
  }
  return !error_.IsFailure();
}

bool Renaming::CheckNames() noexcept {
  if (oldName_.IsEmpty()) {
    error_.Take("Cannot rename resource, the name is missing.");
    return false;
  }
  if (newName_.IsEmpty()) return Refuse("the new name was not given.");
  return rc::IsIdentifier(newName_.c_str()) || Refuse("the new name is invalid.");
}

bool Renaming::CheckUse() noexcept {
  rc::LineRange other;
  const Found found = Find(path_.c_str(), oldName_.c_str(), lines_);
  if (found == Found::kNo) return Refuse("it does not exist.");
  const Found taken = Find(path_.c_str(), newName_.c_str(), other);
  if (found == Found::kUnreadable || taken == Found::kUnreadable) {
    error_.Take(rc::UnreadableFileMessage(path_.c_str()).view());
    return false;
  }
  return taken == Found::kNo || Refuse("the new name is already in use.");
}

void Renaming::Rename() noexcept {
  Rewrite rewrite(path_.c_str());
  while (rewrite.Next()) {
    rc::FixedText<rc::kLineLength + rc::kNameLength + 2> buffer;
    rc::TextWriter renamed(buffer);
    if (rewrite.number() != lines_.first) {
      rewrite.Keep();
    } else if (RenameHeader(rewrite, oldName_.c_str(), newName_.c_str(), renamed)) {
      rewrite.KeepAs(renamed.view());
    } else {
      // String tables and languages are found under names that don't stand in front.
      Refuse("it was not in the file.");
      rewrite.Keep();
    }
  }
  rewrite.Finish(error_);
}

}  // namespace

void ResourceRename(const char* rcFile, const char* oldName, const char* newName,
                    rc::TextBuffer error) noexcept {
  ErrorText errorText(error);
  if (errorText.IsWanted()) Renaming(rcFile, oldName, newName, errorText).Run();
}

}  // namespace brelt::resprops
