// The rules by which the library accepts a file name. Paths are Windows paths on every host, since RC files
// hold Windows paths.
#pragma once

#include <cstdint>

#include "rc/host.h"
#include "rc/text.h"

namespace brelt::rc {

// The four parts of a path, as views into it. The directory keeps its separators at both ends, the extension
// its point, the drive its colon.
struct PathParts {
  std::string_view drive;
  std::string_view directory;
  std::string_view name;
  std::string_view extension;

  // Whether the directory starts at the root.
  bool IsRooted() const noexcept {
    return !directory.empty() && (directory.front() == '\\' || directory.front() == '/');
  }
  // Drive and directory together, as they stand in the path that was split.
  std::string_view Folder() const noexcept {
    return drive.empty() ? directory : std::string_view(drive.data(), drive.size() + directory.size());
  }
  // File name and extension together.
  std::string_view File() const noexcept { return {name.data(), name.size() + extension.size()}; }
};
PathParts SplitPath(std::string_view path) noexcept;

// Drive, rooted directory and file name; an extension isn't needed.
bool IsFullPathName(const char* name) noexcept;

// A file name with neither drive nor directory.
bool IsBareFileName(const char* name) noexcept;

// The one rule for RC files: a full path with a drive letter or just a filename.
inline bool IsAcceptedFileName(const char* name) noexcept {
  return IsFullPathName(name) || IsBareFileName(name);
}

// How many characters of a file name a message shows.
inline constexpr int kShownPathLength = 260;
// Room for a message about a file name.
using FileMessage = FixedText<400>;

// The messages about a file that a caller can't use.
FileMessage BadFileNameMessage(const char* name) noexcept;
FileMessage MissingFileMessage(const char* name) noexcept;
FileMessage UnreadableFileMessage(const char* name) noexcept;

// The low and the high 32 bits of a file's size.
struct FileSizeWords {
  std::uint32_t low;
  std::uint32_t high;
};

// The size of an existing file, at most 0x7fffffff, or -1: for a null or empty name, a name with a double
// backslash anywhere (network paths are refused on purpose), a file that can't be opened, a directory.
// sizeOut may be null; it gets the true size, all ones on failure.
std::int32_t FileSizeOf(const char* name, FileSizeWords* sizeOut = nullptr) noexcept;

// The current directory with a separator at its end; empty when it can't be had. Clears the whole buffer
// first.
void CurrentDirectoryText(TextBuffer buffer) noexcept;

// Finds an existing file: a full path as it stands; a bare name in the current directory and then, programs
// rely on this order, in the folder of the module. Empty when nothing is found and for every other form of
// name.
void FindFileNearProgram(const void* module, const char* name, TextBuffer result) noexcept;

// The full path of a name against a directory that ends in a separator. Tests nothing on the disk; empty
// where the parts don't make a full path. The result may overwrite the name.
void QualifyFileName(const char* name, const char* directory, TextBuffer result) noexcept;

}  // namespace brelt::rc
