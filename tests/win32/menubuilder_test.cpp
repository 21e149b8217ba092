// The menu builder on the platform's menus: the same cases that the core runs on menus in memory.
#include "rc/menubuilder.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <string>

#include "frame/owners.h"
#include "tests/support/dump.h"
#include "tests/support/menucases.h"

namespace brelt::test {
namespace {

// A menu of the platform as the cases write it.
std::string Dump(HMENU menu, int depth = 0) {
  std::string lines;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    char text[200] = "";
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
    item.dwTypeData = text;
    item.cch = sizeof text;
    EXPECT_TRUE(GetMenuItemInfoA(menu, static_cast<UINT>(i), TRUE, &item));
    const bool popup = item.hSubMenu != nullptr;
    // The platform disables separators by itself.
    const UINT state = (item.fType & MFT_SEPARATOR) != 0 ? 0 : item.fState;
    const UINT flags = item.fType | state | (popup ? MF_POPUP : 0);
    char head[60];
    std::snprintf(head, sizeof head, "%*s%04X %d ", depth * 2, "", flags,
                  popup ? -1 : static_cast<int>(item.wID));
    lines += head + Visible(text) + "\n";
    if (popup) lines += Dump(item.hSubMenu, depth + 1);
  }
  return lines;
}

TEST(MenuBuilder, BuildsTheSharedCasesOnThePlatformsMenus) {
  for (const MenuCase& expected : kMenuCases) {
    SCOPED_TRACE(expected.text);
    rc::AcceleratorTable keys{};
    rc::Failure failure;
    const OwnedMenu menu(
        reinterpret_cast<HMENU>(rc::BuildMenu(expected.text, MenuCaseSymbols(), keys, failure)));
    EXPECT_STREQ(failure.message.c_str(), expected.message);
    EXPECT_EQ(failure.code, expected.code);
    ASSERT_EQ(static_cast<bool>(menu), expected.code == RTX_OK);
    if (!menu) continue;
    EXPECT_TRUE(IsMenu(menu.get()));
    EXPECT_EQ(Dump(menu.get()), expected.menu);
    EXPECT_EQ(DumpAccelerators(keys), expected.keys);
  }
}

TEST(MenuBuilder, PopupsOfThePlatformMayNestAsDeepAsAFileCanHold) {
  constexpr int kDepth = 4000;
  std::string text = "M MENU BEGIN ";
  for (int i = 0; i < kDepth; ++i) text += "POPUP,BEGIN ";
  std::string whole = text;
  for (int i = 0; i <= kDepth; ++i) whole += "END ";
  ASSERT_LT(whole.size(), 65535u);
  rc::AcceleratorTable keys{};
  rc::Failure failure;
  {
    const OwnedMenu menu(
        reinterpret_cast<HMENU>(rc::BuildMenu(whole.c_str(), MenuCaseSymbols(), keys, failure)));
    int depth = 0;
    for (HMENU popup = menu.get(); GetMenuItemCount(popup) == 1; popup = GetSubMenu(popup, 0)) ++depth;
    EXPECT_EQ(depth, kDepth);
  }
  // Without its ENDs the menu is a failure, and the whole tree goes.
  EXPECT_EQ(rc::BuildMenu(text.c_str(), MenuCaseSymbols(), keys, failure), nullptr);
  EXPECT_EQ(failure.code, RTX_MENU_SYNTAX);
}

}  // namespace
}  // namespace brelt::test
