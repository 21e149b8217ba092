// The core's host on the C library, for benchmarks on a machine without the platform. Drive c is the current
// directory.
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "rc/host.h"

namespace brelt::host {
namespace {

std::string LocalPath(const char* path) {
  std::string local = path;
  for (char& c : local) c = c == '\\' ? '/' : c;
  return local.size() > 2 && local[1] == ':' ? "." + local.substr(2) : local;
}

std::FILE* AsFile(FileHandle* file) { return reinterpret_cast<std::FILE*>(file); }

}  // namespace

void* AllocateZeroed(std::size_t bytes) noexcept { return std::calloc(1, bytes); }
void Release(void* block) noexcept { std::free(block); }

// Callers of benchmarks hand over memory of their own.
bool IsReadable(const void*, std::size_t) noexcept { return true; }
bool IsWritable(void*, std::size_t) noexcept { return true; }

FileHandle* OpenFile(const char* path, OpenMode mode) noexcept {
  const char* how = mode == OpenMode::kRead      ? "rb"
                    : mode == OpenMode::kReplace ? "wb"
                    : mode == OpenMode::kCreate  ? "wbx"
                                                 : "ab";
  std::FILE* file = std::fopen(LocalPath(path).c_str(), how);
  // The core reads and writes in blocks of its own.
  if (file != nullptr) std::setvbuf(file, nullptr, _IONBF, 0);
  return reinterpret_cast<FileHandle*>(file);
}

int ReadBytes(FileHandle* file, char* buffer, int size) noexcept {
  const std::size_t count = std::fread(buffer, 1, static_cast<std::size_t>(size), AsFile(file));
  return std::ferror(AsFile(file)) != 0 ? -1 : static_cast<int>(count);
}

bool SeekFile(FileHandle* file, std::uint64_t offset) noexcept {
  return fseeko(AsFile(file), static_cast<off_t>(offset), SEEK_SET) == 0;
}

bool WriteBytes(FileHandle* file, const char* bytes, int size) noexcept {
  return std::fwrite(bytes, 1, static_cast<std::size_t>(size), AsFile(file)) ==
         static_cast<std::size_t>(size);
}

bool CloseFile(FileHandle* file) noexcept { return std::fclose(AsFile(file)) == 0; }

bool QueryFileSize(const char* path, std::uint64_t& size) noexcept {
  struct stat information;
  if (stat(LocalPath(path).c_str(), &information) != 0 || S_ISDIR(information.st_mode)) return false;
  size = static_cast<std::uint64_t>(information.st_size);
  return true;
}

bool RemoveFile(const char* path) noexcept { return std::remove(LocalPath(path).c_str()) == 0; }

bool RenameFile(const char* from, const char* to) noexcept {
  return std::rename(LocalPath(from).c_str(), LocalPath(to).c_str()) == 0;
}

bool CutFile(const char* path, std::uint64_t size) noexcept {
  return truncate(LocalPath(path).c_str(), static_cast<off_t>(size)) == 0;
}

bool CanRewriteFile(const char* path) noexcept { return access(LocalPath(path).c_str(), W_OK) == 0; }

void CurrentDirectory(rc::TextBuffer path) noexcept { path.Assign("c:\\"); }
void ModulePath(const void*, rc::TextBuffer path) noexcept { path.Assign("c:\\program.exe"); }

FontChoice DefaultFont() noexcept {
  FontChoice font;
  font.face.Assign("Microsoft Sans Serif");
  font.size = 8;
  return font;
}

}  // namespace brelt::host
