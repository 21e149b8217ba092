#include "rc/filename.h"

#include <limits>

namespace brelt::rc {
namespace {

constexpr bool IsSeparator(char c) noexcept { return c == '\\' || c == '/'; }

// Whether a file exists in a folder, which ends in a separator or is empty, and its path. A path that is too
// long for the platform names no file, where its beginning might.
bool FindIn(std::string_view folder, std::string_view name, host::Path& path) noexcept {
  if (folder.size() + name.size() > host::kPathLength) return false;
  path.Assign(folder);
  path.Append(name);
  return FileSizeOf(path.c_str()) != -1;
}

}  // namespace

PathParts SplitPath(std::string_view path) noexcept {
  PathParts parts;
  if (path.size() >= 2 && IsLetter(path[0]) && path[1] == ':') {
    parts.drive = path.substr(0, 2);
    path.remove_prefix(2);
  }
  const std::size_t separator = path.find_last_of("\\/");
  if (separator != std::string_view::npos) {
    parts.directory = path.substr(0, separator + 1);
    path.remove_prefix(separator + 1);
  }
  const std::size_t point = path.rfind('.');
  parts.name = path.substr(0, point);
  parts.extension = path.substr(parts.name.size());
  return parts;
}

bool IsFullPathName(const char* name) noexcept {
  const PathParts parts = SplitPath(View(name));
  return !parts.drive.empty() && parts.IsRooted() && !parts.name.empty();
}

bool IsBareFileName(const char* name) noexcept {
  const PathParts parts = SplitPath(View(name));
  return parts.drive.empty() && parts.directory.empty() && !parts.name.empty();
}

FileMessage BadFileNameMessage(const char* name) noexcept {
  FileMessage message;
  message.Format("The file <%-.*s> should be a full path with a drive letter or just a filename",
                 kShownPathLength, name);
  return message;
}

FileMessage MissingFileMessage(const char* name) noexcept {
  FileMessage message;
  message.Format("The file <%-.*s> does not exist", kShownPathLength, name);
  return message;
}

std::int32_t FileSizeOf(const char* name, FileSizeWords* sizeOut) noexcept {
  constexpr std::uint64_t kMost = std::numeric_limits<std::int32_t>::max();
  std::uint64_t size = 0;
  const bool found =
      !IsEmpty(name) && std::strstr(name, "\\\\") == nullptr && host::QueryFileSize(name, size);
  if (!found) size = ~std::uint64_t{0};
  if (sizeOut != nullptr) {
    *sizeOut = {static_cast<std::uint32_t>(size), static_cast<std::uint32_t>(size >> 32)};
  }
  if (!found) return -1;
  return static_cast<std::int32_t>(size < kMost ? size : kMost);
}

void CurrentDirectoryText(TextBuffer buffer) noexcept {
  buffer.Zero();
  host::CurrentDirectory(buffer);
  const std::string_view path(buffer.c_str());
  if (!path.empty() && !IsSeparator(path.back())) TextWriter::Continue(buffer).Append('\\');
}

void FindFileNearProgram(const void* module, const char* name, TextBuffer result) noexcept {
  result.Clear();
  const PathParts parts = SplitPath(View(name));
  if (!parts.drive.empty() || !parts.directory.empty()) {
    if (IsFullPathName(name) && FileSizeOf(name) != -1) result.Assign(name);
    return;
  }
  if (parts.name.empty()) return;
  host::Path folder;
  host::Path found;
  CurrentDirectoryText(folder);
  if (!FindIn(folder.view(), name, found)) {
    host::ModulePath(module, folder);
    if (!FindIn(SplitPath(folder.view()).Folder(), name, found)) return;
  }
  result.Assign(found.view());
}

void QualifyFileName(const char* name, const char* directory, TextBuffer result) noexcept {
  const PathParts file = SplitPath(View(name));
  const PathParts base = SplitPath(View(directory));
  const bool complete = !file.name.empty() && (file.drive.empty() || file.IsRooted()) &&
                        !base.drive.empty() && base.IsRooted() && base.name.empty() && base.extension.empty();
  if (!complete) {
    result.Clear();
    return;
  }
  host::Path path;
  TextWriter writer(path);
  if (file.drive.empty()) writer.Append(base.drive);
  if (file.drive.empty() && !file.IsRooted()) writer.Append(base.directory);
  writer.Append(name);
  result.Assign(path.view());
}

}  // namespace brelt::rc
