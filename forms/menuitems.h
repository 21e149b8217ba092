// Finding an item in a window's menu.
#pragma once

#include <windows.h>

#include <cstdint>

namespace brelt {

struct MenuPlace {
  HMENU menu = nullptr;  // the menu or popup that holds the item; null when it wasn't found
  int position = -1;
};

// The first item of an id in a menu and, with recurse, in its popups. Id 0, which separators have, is never
// found.
MenuPlace MenuFindItem(HMENU menu, std::uint32_t id, bool recurse) noexcept;

// The menu or popup that holds the item of an id; null for none.
inline HMENU MenuOwnerOf(HMENU menu, std::uint32_t id) noexcept { return MenuFindItem(menu, id, true).menu; }

}  // namespace brelt
