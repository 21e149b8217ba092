#include "rc/textkit.h"
#include "resprops/rewrite.h"
#include "resprops/surgery.h"

namespace brelt::resprops {
namespace {

// Characters of a line of a resource's text that are written, its line feed counted. The two paths differ by
// one.
constexpr std::size_t kReplacedLineLength = rc::kLineLength;
constexpr std::size_t kAppendedLineLength = rc::kLineLength - 1;

std::string_view TrimmedLine(std::string_view line) noexcept {
  line = line.substr(0, kReplacedLineLength);
  while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
  return line;
}

void Replace(const rc::LineRange& lines, const char* text, const char* path, ErrorText& error) noexcept {
  Rewrite rewrite(path);
  while (rewrite.Next()) {
    if (rewrite.number() == lines.first) {
      rc::LineWalk walk(text);
      std::string_view line;
      while (walk.Next(line)) {
        rewrite.Write(TrimmedLine(line));
        rewrite.Write("\n");
      }
    }
    if (rewrite.number() < lines.first || rewrite.number() > lines.last) rewrite.Keep();
  }
  rewrite.Finish(error);
}

// Whether an empty line must come first so that a text at the end of a file stands by itself. A mark that
// ends the text goes: what came behind it would never be read.
bool PrepareEnd(const char* path) noexcept {
  const std::int32_t size = rc::FileSizeOf(path);
  if (size < 1) return false;
  std::uint64_t end = 0;
  bool isOpen = false;
  bool hasText = false;
  {
    rc::LineReader reader(path);
    rc::Line line;
    isOpen = reader.IsOpen();
    while (isOpen && reader.Next(line)) {
      TrimLine(line);
      hasText = line.length > 0;
    }
    isOpen = isOpen && !reader.HasFailed();
    end = reader.Offset();
  }
  if (isOpen && end + 1 == static_cast<std::uint64_t>(size)) host::CutFile(path, end);
  return hasText;
}

void Append(const char* text, const char* path, ErrorText& error) noexcept {
  const bool needsEmptyLine = PrepareEnd(path);
  std::uint64_t size = 0;
  const bool existed = host::QueryFileSize(path, size);
  TextFile file(path, host::OpenMode::kAppend);
  if (!file.IsOpen()) return;
  if (needsEmptyLine) file.Write("\n");
  rc::LineWalk walk(text);
  std::string_view line;
  // A line that is too long loses its line feed with the rest of it, and runs on into the next.
  while (walk.Next(line)) file.Write(line.substr(0, kAppendedLineLength));
  file.Write("\n");
  if (file.Close()) return;
  // Half a resource would swallow what comes behind it.
  if (existed) host::CutFile(path, size);
  error.Take(kReadOnlyMessage, path);
}

}  // namespace

void ReplaceOrAppendResource(const char* name, const char* text, const char* path,
                             ErrorText& error) noexcept {
  if (name == nullptr || rc::IsEmpty(text)) return error.Take("There is no resource to write.");
  if (!rc::IsFullPathName(path)) {
    return error.Format("File name <%-.*s> is not a full path.", rc::kShownPathLength,
                        path != nullptr ? path : "");
  }
  if (IsReadOnlyFile(path)) return error.Take(kReadOnlyMessage, path);
  const bool exists = rc::FileSizeOf(path) >= 0;
  rc::LineRange lines;
  rc::LocateResource(path, name, "*", {}, &lines);
  if (exists && lines.broken) {
    // Appended all the same, the resource might stand there twice.
    error.Take(rc::UnreadableFileMessage(path).view());
  } else if (lines.first != 0) {
    Replace(lines, text, path, error);
  } else {
    Append(text, path, error);
  }
}

void ResourceWriteText(const char* rcFile, const char* text, rc::TextBuffer error) noexcept {
  ErrorText errorText(error);
  if (!errorText.IsWanted()) return;
  RcPath path;
  CompleteFileName(rcFile, path);
  if (rc::IsEmpty(rcFile) || rc::IsEmpty(text)) {
    return errorText.Take("RC file name or resource text are invalid or empty.");
  }
  if (!rc::IsFullPathName(path.c_str())) return errorText.Take(rc::BadFileNameMessage(rcFile).view());
  rc::Name name;
  rc::Name type;
  std::int32_t position = 0;
  rc::SkipSpace(text, position);
  rc::ScanToken(text, position, name);
  rc::ScanToken(text, position, type);
  if (name.IsEmpty() || type.IsEmpty()) {
    return errorText.Take("The resource name or resource type is missing.");
  }
  ReplaceOrAppendResource(name.c_str(), text, path.c_str(), errorText);
}

}  // namespace brelt::resprops
