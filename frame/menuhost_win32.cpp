// The six menu operations on Windows.
#include <windows.h>

#include "rc/menuhost.h"

namespace brelt::host {
namespace {

HMENU AsMenu(MenuHandle* menu) noexcept { return reinterpret_cast<HMENU>(menu); }

}  // namespace

MenuHandle* MakeMenu() noexcept { return reinterpret_cast<MenuHandle*>(CreateMenu()); }
MenuHandle* MakePopupMenu() noexcept { return reinterpret_cast<MenuHandle*>(CreatePopupMenu()); }

bool AppendItem(MenuHandle* menu, std::uint32_t flags, std::int32_t id, const char* text) noexcept {
  return AppendMenuA(AsMenu(menu), flags, static_cast<UINT_PTR>(id), text) != FALSE;
}

bool AppendPopup(MenuHandle* menu, std::uint32_t flags, MenuHandle* popup, const char* text) noexcept {
  return AppendMenuA(AsMenu(menu), flags, reinterpret_cast<UINT_PTR>(popup), text) != FALSE;
}

int CountItems(MenuHandle* menu) noexcept {
  const int count = GetMenuItemCount(AsMenu(menu));
  return count > 0 ? count : 0;
}

void ItemTextAt(MenuHandle* menu, int position, rc::TextBuffer text) noexcept {
  text.Clear();
  if (!text.IsWritable()) return;
  GetMenuStringA(AsMenu(menu), static_cast<UINT>(position), text.data(), text.size(), MF_BYPOSITION);
  // Some systems leave a text open that they had to cut.
  text.data()[text.room()] = '\0';
}

void DestroyMenuTree(MenuHandle* menu) noexcept { DestroyMenu(AsMenu(menu)); }

}  // namespace brelt::host
