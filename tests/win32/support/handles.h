// Counts what this process holds, for tests that nothing is left behind.
#pragma once

#include <string>

namespace brelt::test {

struct HandleCount {
  int fonts = 0;
  int bitmaps = 0;
  int brushes = 0;
  int pens = 0;
  int regions = 0;
  int contexts = 0;
  int windows = 0;
  int menus = 0;
  int icons = 0;
  int modules = 0;
  int memoryBlocks = 0;  // blocks of GlobalAlloc

  bool operator==(const HandleCount&) const = default;
};
HandleCount CountHandles();
std::string ToText(const HandleCount& count);

}  // namespace brelt::test
