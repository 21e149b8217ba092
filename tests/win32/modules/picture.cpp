#include "tests/win32/modules/picture.h"

#include <cstring>
#include <new>

#include "include/events.h"
#include "tests/win32/modules/module.h"

namespace brelt::module {
namespace {

DWORD ColourBytes(const BITMAPINFOHEADER& header) noexcept {
  if (header.biClrUsed != 0) return header.biClrUsed * sizeof(RGBQUAD);
  return header.biBitCount <= 8 ? (1u << header.biBitCount) * static_cast<DWORD>(sizeof(RGBQUAD)) : 0;
}

// The size of a packed bitmap; 0 for a header that isn't a plain one.
DWORD PackedSize(const void* packed) noexcept {
  BITMAPINFOHEADER header;
  std::memcpy(&header, packed, sizeof header);
  if (header.biSize != sizeof header || header.biCompression != BI_RGB) return 0;
  const LONG height = header.biHeight < 0 ? -header.biHeight : header.biHeight;
  const DWORD row = (static_cast<DWORD>(header.biWidth) * header.biBitCount + 31) / 32 * 4;
  return header.biSize + ColourBytes(header) + row * static_cast<DWORD>(height);
}

// The whole of a file, in a block of the heap; null when it can't be read.
void* ReadWhole(const char* path, DWORD& size) noexcept {
  HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  size = GetFileSize(file, nullptr);
  void* bytes = HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, size + 1);
  DWORD count = 0;
  if (bytes != nullptr && (!ReadFile(file, bytes, size, &count, nullptr) || count != size)) {
    HeapFree(GetProcessHeap(), 0, bytes);
    bytes = nullptr;
  }
  CloseHandle(file);
  return bytes;
}

}  // namespace

void PictureData::Replace(const void* packed) noexcept {
  void* previous = picture;
  picture = nullptr;
  const DWORD size = packed != nullptr ? PackedSize(packed) : 0;
  if (size > 0) picture = HeapAlloc(GetProcessHeap(), 0, size);
  if (picture != nullptr) std::memcpy(picture, packed, size);
  if (previous != nullptr) HeapFree(GetProcessHeap(), 0, previous);
}

void PictureData::ReadFromText(const char* text) noexcept {
  char path[MAX_PATH];
  lstrcpynA(path, text != nullptr ? text : "", MAX_PATH);
  path[std::strcspn(path, "\n")] = '\0';
  DWORD size = 0;
  void* bytes = ReadWhole(path, size);
  const auto* header = static_cast<const BITMAPFILEHEADER*>(bytes);
  const bool isBitmap = bytes != nullptr && size > sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER) &&
                        header->bfType == 0x4D42;
  Replace(isBitmap ? header + 1 : nullptr);
  if (bytes != nullptr) HeapFree(GetProcessHeap(), 0, bytes);
}

PictureData* DataOf(HWND window) noexcept {
  return reinterpret_cast<PictureData*>(GetWindowLongA(window, PointerIndex()));
}

bool HandlePicture(HWND window, UINT message, LPARAM lParam, LRESULT& result) noexcept {
  PictureData* data = DataOf(window);
  switch (message) {
    case WM_NCCREATE:
      data = new (std::nothrow) PictureData;
      SetWindowLongA(window, PointerIndex(), reinterpret_cast<LONG>(data));
      if (data != nullptr) data->ReadFromText(reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName);
      return false;
    case WM_SETTEXT:
      if (data != nullptr) data->ReadFromText(reinterpret_cast<const char*>(lParam));
      return false;
    case WM_NCDESTROY:
      SetWindowLongA(window, PointerIndex(), 0);
      delete data;
      return false;
    case CM_GETPICTURE:
      result = data != nullptr ? reinterpret_cast<LRESULT>(data->picture) : 0;
      return true;
    case CM_SETPICTURE:
      if (data != nullptr) data->Replace(reinterpret_cast<const void*>(lParam));
      InvalidateRect(window, nullptr, TRUE);
      result = 0;
      return true;
    default:
      return false;
  }
}

}  // namespace brelt::module
