#include "tests/support/menumodel.h"

#include <cstdio>
#include <vector>

#include "tests/support/dump.h"

namespace brelt::host {

struct MenuItem {
  std::uint32_t flags;
  std::int32_t id;
  MenuHandle* popup;
  std::string text;
};

struct MenuHandle {
  std::vector<MenuItem> items;
};

namespace {

int failAt = -1;
int made = 0;
int live = 0;

// Counts whatever needs memory: a menu or an entry.
bool HasRoom() { return made++ != failAt; }

MenuHandle* Make() {
  if (!HasRoom()) return nullptr;
  ++live;
  return new MenuHandle;
}

}  // namespace

MenuHandle* MakeMenu() noexcept { return Make(); }
MenuHandle* MakePopupMenu() noexcept { return Make(); }

bool AppendItem(MenuHandle* menu, std::uint32_t flags, std::int32_t id, const char* text) noexcept {
  if (!HasRoom()) return false;
  menu->items.push_back({flags, id, nullptr, text != nullptr ? text : ""});
  return true;
}

bool AppendPopup(MenuHandle* menu, std::uint32_t flags, MenuHandle* popup, const char* text) noexcept {
  if (!HasRoom()) return false;
  menu->items.push_back({flags, -1, popup, text});
  return true;
}

int CountItems(MenuHandle* menu) noexcept { return static_cast<int>(menu->items.size()); }

void ItemTextAt(MenuHandle* menu, int position, rc::TextBuffer text) noexcept {
  text.Assign(menu->items[static_cast<std::size_t>(position)].text);
}

void DestroyMenuTree(MenuHandle* menu) noexcept {
  for (const MenuItem& item : menu->items) {
    if (item.popup != nullptr) DestroyMenuTree(item.popup);
  }
  --live;
  delete menu;
}

}  // namespace brelt::host

namespace brelt::test {
namespace {

void Dump(const host::MenuHandle* menu, int depth, std::string& out) {
  for (const host::MenuItem& item : menu->items) {
    char head[64];
    std::snprintf(head, sizeof head, "%*s%04X %d ", depth * 2, "", static_cast<unsigned>(item.flags),
                  static_cast<int>(item.id));
    out += head;
    out += Visible(item.text);
    out += '\n';
    if (item.popup != nullptr) Dump(item.popup, depth + 1, out);
  }
}

}  // namespace

std::string DumpMenu(const host::MenuHandle* menu) {
  std::string out;
  if (menu != nullptr) Dump(menu, 0, out);
  return out;
}

void FailMenu(int n) {
  host::failAt = n;
  host::made = 0;
}

int LiveMenus() { return host::live; }

}  // namespace brelt::test
