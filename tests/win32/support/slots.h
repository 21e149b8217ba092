// What the library's windows keep, at the places that custom controls and debuggers rely on.
#pragma once

#include <windows.h>

#include <cstdint>

namespace brelt::test {

// Window extra data, by number of the 32-bit slot.
enum Slot : int {
  kSlotRecord,
  kSlotArrayValues,
  kSlotCanvas,
  kSlotCanvasAnchor,
  kSlotLastFocus,
  kSlotPrevActive,
  kSlotAccelTable,
  kSlotFuncptr,
  kSlotFlags,
  kSlotEditProc,
};

// Words of the record that slot 0 points to.
enum RecordWord : int {
  kWordMaxLength = 14,
  kWordFont = 15,
  kWordDrawFont = 16,
  kWordCanvasX = 21,
  kWordCanvasY = 22,
  kWordDefaultId = 23,
  kWordSystemMinMax = 24,  // ten words
  kWordMinPosition = 34,   // x, y, width, height
  kWordMaxPosition = 38,
  kWordResizePending = 42,
  kWordClientWidth = 43,
  kWordClientHeight = 44,
  kWordLoaded = 45,
};
inline constexpr int kRecordWords = 47;
inline constexpr LONG kFlagModal = 0x10000;
inline constexpr LONG kFlagCanvas = 0x40000;

inline LONG ReadSlot(HWND window, Slot slot) { return GetWindowLongA(window, slot * 4); }
inline HWND WindowInSlot(HWND window, Slot slot) { return reinterpret_cast<HWND>(ReadSlot(window, slot)); }
inline void WriteSlot(HWND window, Slot slot, LONG value) { SetWindowLongA(window, slot * 4, value); }
inline bool HasFlag(HWND window, LONG flag) { return (ReadSlot(window, kSlotFlags) & flag) != 0; }

// A word of a row of the record: row 0 is the window, the others its controls.
inline int32_t& RecordWordOf(HWND window, RecordWord word, int row = 0) {
  return reinterpret_cast<int32_t*>(ReadSlot(window, kSlotRecord))[row * kRecordWords + word];
}

// A row of the key table that slot 6 points to.
struct KeyRow {
  uint8_t flags;
  uint16_t key;
  uint16_t command;
};
inline KeyRow* KeyTableOf(HWND window) {
  return reinterpret_cast<KeyRow*>(ReadSlot(window, kSlotAccelTable));
}

}  // namespace brelt::test
