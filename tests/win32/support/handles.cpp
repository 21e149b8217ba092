#include "tests/win32/support/handles.h"

#include <windows.h>

#include <psapi.h>

#include <cstdio>

namespace brelt::test {
namespace {

// The system's own counters are stubs under Wine, so the table of drawing objects that the process shares
// with it is walked instead. On Windows itself the counters work.
struct GdiEntry {
  unsigned long long object;
  unsigned owner;
  unsigned short unique;
  unsigned char type;
  unsigned char flags;
  unsigned long long user;
};

GdiEntry* GdiTable() {
  BYTE* environment = nullptr;
  __asm__("movl %%fs:0x30,%0" : "=r"(environment));
  return *reinterpret_cast<GdiEntry**>(environment + 0x94);
}

void CountGdi(HandleCount& count) {
  constexpr int kEntries = 0x4000;
  constexpr unsigned kStock = 0x80;
  const GdiEntry* table = GdiTable();
  if (table == nullptr) return;
  for (int i = 0; i < kEntries; ++i) {
    if (table[i].type == 0 || (table[i].unique & kStock) != 0) continue;
    switch (table[i].unique & 0x7f) {
      case 0x01:
      case 0x21:
      case 0x41:
      case 0x66:
        ++count.contexts;
        break;
      case 0x04:
        ++count.regions;
        break;
      case 0x09:
        ++count.bitmaps;
        break;
      case 0x0a:
        ++count.fonts;
        break;
      case 0x10:
        ++count.brushes;
        break;
      case 0x30:
      case 0x50:
        ++count.pens;
        break;
      default:
        break;
    }
  }
}

void CountUser(HandleCount& count) {
  constexpr UINT_PTR kFirst = 0x20;
  constexpr UINT_PTR kLast = kFirst + 0x4000;
  for (UINT_PTR value = kFirst; value < kLast; value += 2) {
    if (IsWindow(reinterpret_cast<HWND>(value))) {
      DWORD process = 0;
      GetWindowThreadProcessId(reinterpret_cast<HWND>(value), &process);
      if (process == GetCurrentProcessId()) ++count.windows;
    } else if (IsMenu(reinterpret_cast<HMENU>(value))) {
      ++count.menus;
    } else {
      ICONINFO icon;
      if (!GetIconInfo(reinterpret_cast<HICON>(value), &icon)) continue;
      ++count.icons;
      DeleteObject(icon.hbmColor);
      DeleteObject(icon.hbmMask);
    }
  }
}

void CountMemory(HandleCount& count) {
  PROCESS_HEAP_ENTRY entry = {};
  HANDLE heap = GetProcessHeap();
  HeapLock(heap);
  while (HeapWalk(heap, &entry)) {
    if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) ++count.memoryBlocks;
  }
  HeapUnlock(heap);
}

}  // namespace

HandleCount CountHandles() {
  HandleCount count;
  CountGdi(count);
  CountUser(count);
  HMODULE modules[512];
  DWORD bytes = 0;
  if (EnumProcessModules(GetCurrentProcess(), modules, sizeof modules, &bytes)) {
    count.modules = static_cast<int>(bytes / sizeof(HMODULE));
  }
  CountMemory(count);
  return count;
}

std::string ToText(const HandleCount& count) {
  char text[256];
  std::snprintf(
      text, sizeof text,
      "fonts %d bitmaps %d brushes %d pens %d regions %d contexts %d windows %d menus %d icons %d modules %d "
      "blocks %d",
      count.fonts, count.bitmaps, count.brushes, count.pens, count.regions, count.contexts, count.windows,
      count.menus, count.icons, count.modules, count.memoryBlocks);
  return text;
}

}  // namespace brelt::test
