#include "resprops/resourceinfo.h"

#include "rc/filename.h"
#include "rc/symbols.h"
#include "rc/textkit.h"
#include "resprops/errortext.h"

namespace brelt::resprops {
namespace {

constexpr const char* kControls = "Controls";

// One query. Each part leaves a message where it fails.
class Query {
 public:
  Query(const char* rcFile, const char* type, const char* name, rc::TextBuffer output,
        ErrorText& error) noexcept
      : rcFile_(rcFile), type_(type), name_(name), output_(output), error_(error) {}

  void Run(std::int32_t flags) noexcept {
    if (!Check()) return;
    if (IsSymbolQuery()) {
      ListSymbols(flags);
    } else {
      Locate();
    }
  }

 private:
  bool Check() noexcept;
  bool IsKnownType() const noexcept;
  void ListSymbols(std::int32_t flags) noexcept;
  void Locate() noexcept;
  void FailOne(const char* reason) noexcept;

  bool IsSymbolQuery() const noexcept { return rc::EqualIgnoreCase(type_, kControls); }
  bool IsList() const noexcept { return name_ == rc::kAny; }
  bool IsAnyType() const noexcept { return type_ == rc::kAny; }
  // A text that just fits counts as cut: there is no telling.
  bool IsFull() const noexcept { return static_cast<int>(std::strlen(output_.c_str())) >= output_.room(); }

  const char* rcFile_;
  const char* type_;
  const char* name_;
  rc::TextBuffer output_;
  ErrorText& error_;
};

bool Query::Check() noexcept {
  if (rcFile_ == nullptr || type_ == nullptr || name_ == nullptr || !output_.IsWritable()) {
    error_.Take("Input strings are missing");
  } else if (*type_ == '\0') {
    error_.Take("Don't know what type of resource to get");
  } else if (*name_ == '\0') {
    error_.Take("Resource name is missing, don't know what to get");
  } else if (!rc::IsAcceptedFileName(rcFile_)) {
    error_.Format("RC file <%-.*s> should be a full path with a drive letter or just a filename",
                  rc::kShownPathLength, rcFile_);
  } else if (rc::FileSizeOf(rcFile_) < 0) {
    error_.Format("RC file <%-.*s> does not exist", rc::kShownPathLength, rcFile_);
  } else if (!IsKnownType()) {
    error_.Format("<%-.*s> is an unknown resource type", rc::kNameLength, type_);
  }
  return !error_.IsFailure();
}

// The names of types are identifiers. A line feed makes a list of types, in which anything may stand.
bool Query::IsKnownType() const noexcept {
  return IsAnyType() || rc::IsIdentifier(type_) || std::strchr(type_, '\n') != nullptr;
}

void Query::ListSymbols(std::int32_t flags) noexcept {
  const host::Block<rc::SymbolRecord> symbols(rc::kSymbolCount);
  if (!symbols) return error_.Take("Not enough memory to load symbols");
  rc::SymbolReport report;
  const int count =
      rc::LoadSymbols(rcFile_, IsList() ? "" : name_, flags, {symbols.get(), symbols.count()}, report);
  error_.Take(report.message.view());
  rc::TextWriter writer(output_);
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    writer.Format("%s %i", symbols[i].Name.c_str(), symbols[i].Value);
    if ((flags & rc::kCountUses) != 0) writer.Format(" %i", symbols[i].Uses);
    writer.Append('\n');
  }
  if (IsFull()) error_.Take("Buffer string is not big enough");
}

void Query::Locate() noexcept {
  rc::LineRange lines;
  const int length = rc::LocateResource(rcFile_, name_, type_, output_, &lines);
  if (lines.broken) {
    // Half an answer looks like a whole one.
    error_.Take(rc::UnreadableFileMessage(rcFile_).view());
  } else if (IsList()) {
    if (IsFull()) error_.Take("Buffer string is not big enough");
  } else if (length == 0) {
    FailOne("> was not in the RC file");
  } else if (IsFull()) {
    FailOne(">, buffer is too small");
  }
}

void Query::FailOne(const char* reason) noexcept {
  error_.Format("%-.*s <%-.*s%s", rc::kNameLength, IsAnyType() ? "Resource" : type_, rc::kNameLength, name_,
                reason);
}

}  // namespace

void ResourceInfo(const char* rcFile, const char* type, const char* name, std::int32_t flags,
                  rc::TextBuffer output, rc::TextBuffer error) noexcept {
  output.Clear();
  ErrorText errorText(error);
  if (!errorText.IsWanted()) return;
  Query(rcFile, type, name, output, errorText).Run(flags);
  if (errorText.IsFailure()) output.Clear();
}

}  // namespace brelt::resprops
