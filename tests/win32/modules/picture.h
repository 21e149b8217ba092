// The picture of a control: a packed bitmap, which is header, colours and pixel rows in one block.
#pragma once

#include <windows.h>

namespace brelt::module {

// What a control with a picture keeps.
struct PictureData {
  void* picture = nullptr;
  char hint[256] = "";

  ~PictureData() { Replace(nullptr); }
  // Takes a copy of a packed bitmap, or none for null.
  void Replace(const void* packed) noexcept;
  // Reads the bitmap file that a window text names, up to the text's first line feed; anything else leaves no
  // picture.
  void ReadFromText(const char* text) noexcept;
};

// Keeps a PictureData in the window's own pointer and answers the messages about the picture; true when
// result is the answer.
bool HandlePicture(HWND window, UINT message, LPARAM lParam, LRESULT& result) noexcept;
PictureData* DataOf(HWND window) noexcept;

}  // namespace brelt::module
