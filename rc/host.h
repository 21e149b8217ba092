// What the platform-free core needs from outside: memory, files by Windows paths, the current directory, the
// program's path and the default font. The DLL links the Win32 implementation; tests link one that keeps
// files in memory and can be told to fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "rc/text.h"

namespace brelt::host {

// Longest path in characters; with the terminator it fills the platform's MAX_PATH.
inline constexpr int kPathLength = 259;
using Path = rc::FixedText<kPathLength>;

// ---- Memory ----

// A zero-filled block, or null when there is no memory. Goes back through Release.
void* AllocateZeroed(std::size_t bytes) noexcept;
void Release(void* block) noexcept;

// Owns a zero-filled array of plain values; null when the memory could not be had.
template <typename T>
class Block {
 public:
  Block() noexcept = default;
  explicit Block(std::size_t count) noexcept
      : data_(static_cast<T*>(AllocateZeroed(count * sizeof(T)))), count_(data_ != nullptr ? count : 0) {}
  Block(Block&& other) noexcept
      : data_(std::exchange(other.data_, nullptr)), count_(std::exchange(other.count_, 0)) {}
  Block& operator=(Block&& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(count_, other.count_);
    return *this;
  }
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;
  ~Block() {
    if (data_ != nullptr) Release(data_);
  }

  explicit operator bool() const noexcept { return data_ != nullptr; }
  T* get() const noexcept { return data_; }
  std::size_t count() const noexcept { return count_; }
  T& operator[](std::size_t index) const noexcept { return data_[index]; }
  // Gives the block away; whoever takes it calls Release.
  T* release() noexcept {
    count_ = 0;
    return std::exchange(data_, nullptr);
  }

 private:
  T* data_ = nullptr;
  std::size_t count_ = 0;
};

// Whether a program's memory may be read or written. The range may be null or wild, and is not changed. An
// empty range is both.
bool IsReadable(const void* memory, std::size_t bytes) noexcept;
bool IsWritable(void* memory, std::size_t bytes) noexcept;

// ---- Files ----

enum class OpenMode {
  kRead,     // existing files only
  kReplace,  // made, or emptied if it exists
  kAppend,   // made if need be; writes go to the end
  kCreate,   // new files only: fails where anything of that name exists
};

// An open file. Reads and writes are of raw bytes; the readers and writers of text do the translation.
struct FileHandle;

FileHandle* OpenFile(const char* path, OpenMode mode) noexcept;
// How many bytes were read, 0 at the end of the file, or -1.
int ReadBytes(FileHandle* file, char* buffer, int size) noexcept;
// Goes to a byte offset from the file's beginning.
bool SeekFile(FileHandle* file, std::uint64_t offset) noexcept;
// Whether all bytes were written.
bool WriteBytes(FileHandle* file, const char* bytes, int size) noexcept;
// Whether everything that was written has reached the file.
bool CloseFile(FileHandle* file) noexcept;

// Owns an open file; false when it couldn't be opened.
class File {
 public:
  File(const char* path, OpenMode mode) noexcept : handle_(OpenFile(path, mode)) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { Close(); }

  explicit operator bool() const noexcept { return handle_ != nullptr; }
  int Read(char* buffer, int size) noexcept { return ReadBytes(handle_, buffer, size); }
  bool Seek(std::uint64_t offset) noexcept { return SeekFile(handle_, offset); }
  bool Write(const char* bytes, int size) noexcept { return WriteBytes(handle_, bytes, size); }
  bool Close() noexcept { return handle_ == nullptr || CloseFile(std::exchange(handle_, nullptr)); }

 private:
  FileHandle* handle_;
};

// The size of an existing file; false where there is none and for a directory.
bool QueryFileSize(const char* path, std::uint64_t& size) noexcept;
bool RemoveFile(const char* path) noexcept;
// Fails where anything of the new name exists.
bool RenameFile(const char* from, const char* to) noexcept;
// Makes an existing file shorter.
bool CutFile(const char* path, std::uint64_t size) noexcept;
// Whether an existing file can be opened for writing while nobody else has it open.
bool CanRewriteFile(const char* path) noexcept;

// ---- Surroundings ----

// The current directory; empty when it can't be had.
void CurrentDirectory(rc::TextBuffer path) noexcept;
// The full path of a module's file, of the running program for null; empty when it can't be had.
void ModulePath(const void* module, rc::TextBuffer path) noexcept;

struct FontChoice {
  rc::FixedText<32> face;
  int size = 0;  // points
  bool bold = false;
  bool italic = false;
};
// The font of a window that names none.
FontChoice DefaultFont() noexcept;

}  // namespace brelt::host
