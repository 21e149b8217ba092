#include <gtest/gtest.h>

#include "forms/menuitems.h"
#include "frame/owners.h"

namespace brelt::test {
namespace {

constexpr UINT kNoId = static_cast<UINT>(-1);

HMENU AddPopup(HMENU menu) {
  HMENU popup = CreatePopupMenu();
  AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), "popup");
  return popup;
}

void AddItem(HMENU menu, UINT id) { AppendMenuA(menu, MF_STRING, id, "item"); }

void ExpectPlace(const MenuPlace& place, HMENU menu, int position) {
  EXPECT_EQ(place.menu, menu);
  EXPECT_EQ(place.position, position);
}

TEST(MenuFindItem, GivesMenuAndPositionOfTheFirstMatch) {
  const OwnedMenu bar(CreateMenu());
  AddItem(bar.get(), 1);
  HMENU first = AddPopup(bar.get());
  AddItem(first, 2);
  HMENU deep = AddPopup(first);
  AddItem(deep, 3);
  AddItem(first, 4);
  HMENU second = AddPopup(bar.get());
  AddItem(second, 5);
  AddItem(second, 3);
  AddItem(bar.get(), 4);
  AddItem(bar.get(), 6);

  ExpectPlace(MenuFindItem(bar.get(), 1, true), bar.get(), 0);
  ExpectPlace(MenuFindItem(bar.get(), 2, true), first, 0);
  ExpectPlace(MenuFindItem(bar.get(), 3, true), deep, 0);
  ExpectPlace(MenuFindItem(bar.get(), 4, true), first, 2);
  ExpectPlace(MenuFindItem(bar.get(), 5, true), second, 0);
  ExpectPlace(MenuFindItem(bar.get(), 6, true), bar.get(), 4);
  ExpectPlace(MenuFindItem(bar.get(), 7, true), nullptr, -1);
  // Without going deeper an item behind the popups is the first.
  ExpectPlace(MenuFindItem(bar.get(), 4, false), bar.get(), 3);
  ExpectPlace(MenuFindItem(bar.get(), 3, false), nullptr, -1);
  ExpectPlace(MenuFindItem(second, 3, false), second, 1);
  EXPECT_EQ(MenuOwnerOf(bar.get(), 3), deep);
  EXPECT_EQ(MenuOwnerOf(bar.get(), 7), nullptr);
}

TEST(MenuFindItem, NeverFindsSeparatorsPopupsOrAnythingInNoMenu) {
  const OwnedMenu bar(CreateMenu());
  AppendMenuA(bar.get(), MF_SEPARATOR, 0, nullptr);
  AddItem(bar.get(), 0);
  AddPopup(bar.get());
  AddItem(bar.get(), kNoId);
  AddItem(bar.get(), 1);
  ExpectPlace(MenuFindItem(bar.get(), 0, true), nullptr, -1);
  ExpectPlace(MenuFindItem(bar.get(), kNoId, true), nullptr, -1);
  ExpectPlace(MenuFindItem(bar.get(), 1, true), bar.get(), 4);
  ExpectPlace(MenuFindItem(nullptr, 1, true), nullptr, -1);
  ExpectPlace(MenuFindItem(reinterpret_cast<HMENU>(GetDesktopWindow()), 1, true), nullptr, -1);
  EXPECT_EQ(MenuOwnerOf(nullptr, 1), nullptr);
}

TEST(MenuFindItem, GoesDownAsDeepAsPopupsGo) {
  const OwnedMenu bar(CreateMenu());
  HMENU menu = bar.get();
  for (int depth = 0; depth < 200; ++depth) menu = AddPopup(menu);
  AddItem(menu, 9);
  ExpectPlace(MenuFindItem(bar.get(), 9, true), menu, 0);
}

}  // namespace
}  // namespace brelt::test
