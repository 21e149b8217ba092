// The core's host on Windows.
#include <windows.h>

#include "frame/owners.h"
#include "frame/systemname.h"
#include "rc/host.h"

namespace brelt::host {

// ---- Memory ----

void* AllocateZeroed(std::size_t bytes) noexcept {
  const HGLOBAL handle = GlobalAlloc(GHND, bytes);
  if (handle == nullptr) return nullptr;
  void* block = GlobalLock(handle);
  if (block == nullptr) GlobalFree(handle);
  return block;
}

void Release(void* block) noexcept {
  const HGLOBAL handle = GlobalHandle(block);
  if (handle == nullptr) return;
  GlobalUnlock(handle);
  GlobalFree(handle);
}

bool IsReadable(const void* memory, std::size_t bytes) noexcept {
  return IsBadReadPtr(memory, bytes) == FALSE;
}

bool IsWritable(void* memory, std::size_t bytes) noexcept { return IsBadWritePtr(memory, bytes) == FALSE; }

// ---- Files ----

namespace {

HANDLE AsHandle(FileHandle* file) noexcept { return reinterpret_cast<HANDLE>(file); }

HANDLE OpenExisting(const char* path, DWORD access, DWORD sharing) noexcept {
  return CreateFileA(path, access, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

struct OpenWay {
  DWORD access;
  DWORD disposition;
};

constexpr OpenWay WayOf(OpenMode mode) noexcept {
  switch (mode) {
    case OpenMode::kReplace:
      return {GENERIC_WRITE, CREATE_ALWAYS};
    case OpenMode::kAppend:
      return {GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS};
    case OpenMode::kCreate:
      return {GENERIC_WRITE, CREATE_NEW};
    default:
      return {GENERIC_READ, OPEN_EXISTING};
  }
}

}  // namespace

FileHandle* OpenFile(const char* path, OpenMode mode) noexcept {
  const OpenWay way = WayOf(mode);
  const HANDLE file = CreateFileA(path, way.access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  way.disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  if (mode == OpenMode::kAppend) SetFilePointer(file, 0, nullptr, FILE_END);
  return reinterpret_cast<FileHandle*>(file);
}

int ReadBytes(FileHandle* file, char* buffer, int size) noexcept {
  DWORD count = 0;
  if (!::ReadFile(AsHandle(file), buffer, static_cast<DWORD>(size), &count, nullptr)) return -1;
  return static_cast<int>(count);
}

bool SeekFile(FileHandle* file, std::uint64_t offset) noexcept {
  LARGE_INTEGER distance;
  distance.QuadPart = static_cast<LONGLONG>(offset);
  return SetFilePointerEx(AsHandle(file), distance, nullptr, FILE_BEGIN) != FALSE;
}

bool WriteBytes(FileHandle* file, const char* bytes, int size) noexcept {
  DWORD count = 0;
  return ::WriteFile(AsHandle(file), bytes, static_cast<DWORD>(size), &count, nullptr) &&
         count == static_cast<DWORD>(size);
}

bool CloseFile(FileHandle* file) noexcept { return CloseHandle(AsHandle(file)) != FALSE; }

bool QueryFileSize(const char* path, std::uint64_t& size) noexcept {
  // Opened like this a folder is no file.
  const HANDLE file = OpenExisting(path, 0, FILE_SHARE_READ);
  if (file == INVALID_HANDLE_VALUE) return false;
  LARGE_INTEGER bytes;
  const bool known = GetFileSizeEx(file, &bytes) != FALSE;
  CloseHandle(file);
  if (known) size = static_cast<std::uint64_t>(bytes.QuadPart);
  return known;
}

bool RemoveFile(const char* path) noexcept { return DeleteFileA(path) != FALSE; }

bool RenameFile(const char* from, const char* to) noexcept { return MoveFileA(from, to) != FALSE; }

bool CutFile(const char* path, std::uint64_t size) noexcept {
  const HANDLE file = OpenExisting(path, GENERIC_WRITE, FILE_SHARE_READ);
  if (file == INVALID_HANDLE_VALUE) return false;
  const bool cut = SeekFile(reinterpret_cast<FileHandle*>(file), size) && SetEndOfFile(file) != FALSE;
  return CloseHandle(file) != FALSE && cut;
}

bool CanRewriteFile(const char* path) noexcept {
  // Asked apart, because somebody with all rights may be let in all the same.
  if ((GetFileAttributesA(path) & FILE_ATTRIBUTE_READONLY) != 0) return false;
  const HANDLE file = OpenExisting(path, GENERIC_WRITE, 0);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

// ---- Surroundings ----

void CurrentDirectory(rc::TextBuffer path) noexcept {
  path.Clear();
  if (GetCurrentDirectoryA(static_cast<DWORD>(path.size()), path.data()) >= static_cast<DWORD>(path.size())) {
    path.Clear();
  }
}

void ModulePath(const void* module, rc::TextBuffer path) noexcept {
  path.Clear();
  const auto handle = static_cast<HMODULE>(const_cast<void*>(module));
  const DWORD length = GetModuleFileNameA(handle, path.data(), static_cast<DWORD>(path.size()));
  if (length >= static_cast<DWORD>(path.size())) path.Clear();
}

FontChoice DefaultFont() noexcept {
  FontChoice font;
  if (SystemMajorVersion() > 4) {
    font.face.Assign("Microsoft Sans Serif");
    font.size = 8;
    return font;
  }
  LOGFONTA variable = {};
  GetObjectA(GetStockObject(ANSI_VAR_FONT), sizeof variable, &variable);
  const OwnedDc display(CreateICA("DISPLAY", nullptr, nullptr, nullptr));
  const int pixelsPerInch = display ? GetDeviceCaps(display.get(), LOGPIXELSY) : 96;
  const LONG height = variable.lfHeight < 0 ? -variable.lfHeight : variable.lfHeight;
  font.face.Assign(variable.lfFaceName);
  font.size = MulDiv(height, 72, pixelsPerInch);
  font.bold = variable.lfWeight >= FW_BOLD;
  font.italic = variable.lfItalic != 0;
  return font;
}

}  // namespace brelt::host
