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

// Whether the last line of a text isn't empty.
bool EndsInText(rc::LineReader& reader) noexcept {
  rc::Line line;
  bool hasText = false;
  bool isOpenLine = false;
  while (reader.Next(line)) {
    // The line feed of a line that fills its pieces comes as a piece of its own, and is no empty line.
    const bool endsOpenLine = isOpenLine;
    isOpenLine = !line.HasLineFeed();
    TrimLine(line);
    hasText = line.length > 0 || endsOpenLine;
  }
  return hasText;
}

// Gets a file that exists ready for a text at its end, and gives its size; needsEmptyLine tells whether an
// empty line must come first so that the text stands by itself. A mark that ends the file's text goes: what
// came behind it would never be read. False where something of this can't be done.
bool PrepareEnd(const char* path, std::uint64_t& size, bool& needsEmptyLine) noexcept {
  if (!host::QueryFileSize(path, size)) return false;
  if (size == 0) return true;
  std::uint64_t end = 0;
  {
    rc::LineReader reader(path);
    if (!reader.IsOpen()) return false;
    needsEmptyLine = EndsInText(reader);
    if (reader.HasFailed()) return false;
    end = reader.Offset();
  }
  if (end + 1 != size) return true;
  size = end;
  return host::CutFile(path, end);
}

void Append(const char* text, const char* path, bool existed, ErrorText& error) noexcept {
  std::uint64_t size = 0;
  bool needsEmptyLine = false;
  if (existed && !PrepareEnd(path, size, needsEmptyLine)) return error.Take(kReadOnlyMessage, path);
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
    Append(text, path, exists, error);
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
