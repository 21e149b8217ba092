// Items that a program adds to its menu and removes at run time.
#include <climits>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/menus.h"

namespace brelt::test {
namespace {

constexpr const char* kMenu =
    "Bar MENU\n"
    "BEGIN\n"
    "  POPUP \"File\"\n"
    "  BEGIN\n"
    "    MENUITEM \"Open\\tF5\", 201\n"
    "    MENUITEM SEPARATOR\n"
    "    POPUP \"Deep\"\n"
    "    BEGIN\n"
    "      MENUITEM \"Inner\", 202\n"
    "      POPUP \"Deeper\"\n"
    "      BEGIN\n"
    "        MENUITEM \"Core\", 203\n"
    "      END\n"
    "    END\n"
    "    MENUITEM \"Close\", 204\n"
    "  END\n"
    "  MENUITEM \"Help\", 205\n"
    "END\n";

// The menu above, with what stands at five places of it.
std::string Lines(const std::string& behindOpen = "", const std::string& behindInner = "",
                  const std::string& behindCore = "", const std::string& behindClose = "",
                  const std::string& behindHelp = "") {
  return "> File\n  201 Open\tF5\n" + behindOpen + "  0 -\n  > Deep\n    202 Inner\n" + behindInner +
         "    > Deeper\n      203 Core\n" + behindCore + "  204 Close\n" + behindClose + "205 Help\n" +
         behindHelp;
}

using DrawMenuBarCount = CountedImport<struct DrawMenuBarTag, BOOL, HWND>;

class MenuitemsTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    const LoadResult form = LoadText("Form", std::string(kMenu) +
                                                 "Form DIALOG 0, 0, 100, 100\nSTYLE WS_CAPTION\nMENU Bar\n"
                                                 "BEGIN\n  PUSHBUTTON \"a\", 101, 0, 0, 50, 10\nEND\n");
    ASSERT_EQ(form.code, RTX_OK) << form.message;
    window_ = form.window;
    ASSERT_EQ(Items(), Lines());
  }
  std::string Items() const { return MenuLines(GetMenu(window_)); }
  HMENU Popup() const { return GetSubMenu(GetMenu(window_), 0); }

  HWND window_ = nullptr;
};

// ---- AddMenuitem ----

TEST_F(MenuitemsTest, AnItemComesBehindTheOneThatItFollows) {
  ASSERT_EQ(AddMenuitem("Form", 201, 300, "New"), RTX_OK);
  EXPECT_EQ(Items(), Lines("  300 New\n"));
}

TEST_F(MenuitemsTest, AnItemBehindTheLastOfAPopupEndsThatPopup) {
  ASSERT_EQ(AddMenuitem("Form", 204, 300, "New"), RTX_OK);
  EXPECT_EQ(Items(), Lines("", "", "", "  300 New\n"));
  ASSERT_EQ(AddMenuitem("Form", 300, 301, "Newer"), RTX_OK);
  EXPECT_EQ(Items(), Lines("", "", "", "  300 New\n  301 Newer\n"));
}

TEST_F(MenuitemsTest, AnItemGoesToPopupsAtAnyDepthAndToTheBarItself) {
  ASSERT_EQ(AddMenuitem("Form", 202, 300, "a"), RTX_OK);
  ASSERT_EQ(AddMenuitem("Form", 203, 301, "b"), RTX_OK);
  ASSERT_EQ(AddMenuitem("Form", 205, 302, "c"), RTX_OK);
  EXPECT_EQ(Items(), Lines("", "    300 a\n", "      301 b\n", "", "302 c\n"));
}

TEST_F(MenuitemsTest, AnAddedItemIsAPlainEnabledTextItem) {
  ASSERT_EQ(AddMenuitem("Form", 201, 300, "New\tF9"), RTX_OK);
  EXPECT_EQ(GetMenuState(Popup(), 1, MF_BYPOSITION), static_cast<UINT>(MF_STRING | MF_ENABLED));
  SendMessageA(window_, WM_COMMAND, 300, 0);
  EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 300 0\n");
}

TEST_F(MenuitemsTest, AnEmptyTextIsAText) {
  ASSERT_EQ(AddMenuitem("Form", 201, 300, ""), RTX_OK);
  EXPECT_EQ(Items(), Lines("  300 \n"));
}

TEST_F(MenuitemsTest, AddingAnItemTwiceIsHarmless) {
  DrawMenuBarCount drawn("DrawMenuBar");
  EXPECT_EQ(AddMenuitem("Form", 201, 204, "Other"), RTX_OK);
  EXPECT_EQ(AddMenuitem("Form", 205, 203, "Other"), RTX_OK);
  EXPECT_EQ(Items(), Lines());
  EXPECT_EQ(drawn.calls(), 0);
}

TEST_F(MenuitemsTest, AnIdThatAControlHasIsRefused) {
  DrawMenuBarCount drawn("DrawMenuBar");
  EXPECT_EQ(AddMenuitem("Form", 201, 101, "New"), RTX_WRONG_KIND);
  EXPECT_EQ(Items(), Lines());
  EXPECT_EQ(drawn.calls(), 0);
  // Also if an item has it as well.
  ASSERT_TRUE(AppendMenuA(GetMenu(window_), MF_STRING, 101, "Both"));
  EXPECT_EQ(AddMenuitem("Form", 201, 101, "New"), RTX_WRONG_KIND);
}

// Separators have the id 0, so the platform says that the menu holds it; no place is found behind it.
TEST_F(MenuitemsTest, NothingIsAddedBehindASeparator) {
  const uint32_t ids[] = {300, 301, 0};
  EXPECT_EQ(AddMenuitem("Form", 0, 300, "New"), RTX_OK);
  EXPECT_EQ(AddMenuitems("Form", 0, ids, "New\nNewer\n"), RTX_OK);
  EXPECT_EQ(Items(), Lines());
}

TEST_F(MenuitemsTest, TheFirstItemOfAnIdIsTheOneThatCounts) {
  ASSERT_TRUE(AppendMenuA(GetMenu(window_), MF_STRING, 202, "Second"));
  ASSERT_EQ(AddMenuitem("Form", 202, 300, "New"), RTX_OK);
  EXPECT_EQ(Items(), Lines("", "    300 New\n", "", "", "202 Second\n"));
}

TEST_F(MenuitemsTest, EachChangeDrawsTheBarOnce) {
  DrawMenuBarCount drawn("DrawMenuBar");
  const uint32_t ids[] = {301, 302, 0};
  ASSERT_EQ(AddMenuitem("Form", 201, 300, "New"), RTX_OK);
  EXPECT_EQ(drawn.calls(), 1);
  ASSERT_EQ(AddMenuitems("Form", 201, ids, "a\nb\n"), RTX_OK);
  EXPECT_EQ(drawn.calls(), 2);
  ASSERT_EQ(RemoveMenuitem("Form", 300), RTX_OK);
  EXPECT_EQ(drawn.calls(), 3);
  ASSERT_EQ(RemoveMenuitems("Form", 301, 2), RTX_OK);
  EXPECT_EQ(drawn.calls(), 4);
}

// ---- AddMenuitems ----

TEST_F(MenuitemsTest, ManyItemsFollowInTheOrderOfTheirIds) {
  struct Case {
    uint32_t afterId;
    std::string lines;
  };
  const Case cases[] = {{201, Lines("  303 a\n  301 b\n  302 c\n")},
                        {202, Lines("", "    303 a\n    301 b\n    302 c\n")},
                        {203, Lines("", "", "      303 a\n      301 b\n      302 c\n")},
                        {204, Lines("", "", "", "  303 a\n  301 b\n  302 c\n")},
                        {205, Lines("", "", "", "", "303 a\n301 b\n302 c\n")}};
  const uint32_t ids[] = {303, 301, 302, 0};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.afterId);
    ASSERT_EQ(AddMenuitems("Form", c.afterId, ids, "a\nb\nc\n"), RTX_OK);
    EXPECT_EQ(Items(), c.lines);
    ASSERT_EQ(RemoveMenuitems("Form", 303, 3), RTX_OK);
    ASSERT_EQ(Items(), Lines());
  }
}

TEST_F(MenuitemsTest, EachIdTakesALineAndIdsBehindTheLastLineAnEmptyText) {
  struct Case {
    const char* what;
    std::string texts;
    std::string lines;
  };
  const std::string line255(255, 'x');
  const std::string line256(256, 'x');
  const Case cases[] = {
      {"a line too few", "a\n", "  301 a\n  302 \n"},
      {"no text at all", "", "  301 \n  302 \n"},
      {"a line too many", "a\nb\nc\n", "  301 a\n  302 b\n"},
      {"an empty line between", "\nb\n", "  301 \n  302 b\n"},
      {"a last line without a line feed doesn't exist", "a\nb", "  301 a\n  302 \n"},
      {"carriage returns go with the line feed", "a\r\nb\r\r\n", "  301 a\n  302 b\n"},
      {"255 characters", line255 + "\nb\n", "  301 " + line255 + "\n  302 b\n"},
      {"256 characters", line256 + "\nb\n", "  301 " + line256 + "\n  302 b\n"},
      {"257 characters are cut to 256", line256 + "y\nb\n", "  301 " + line256 + "\n  302 b\n"},
      {"300 characters are cut to 256", line256 + std::string(44, 'y') + "\nb\n",
       "  301 " + line256 + "\n  302 b\n"},
  };
  const uint32_t ids[] = {301, 302, 0};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ASSERT_EQ(AddMenuitems("Form", 201, ids, c.texts.c_str()), RTX_OK);
    EXPECT_EQ(Items(), Lines(c.lines));
    ASSERT_EQ(RemoveMenuitems("Form", 301, 2), RTX_OK);
  }
}

TEST_F(MenuitemsTest, TheFirst0EndsTheIds) {
  const uint32_t none[] = {0, 301};
  EXPECT_EQ(AddMenuitems("Form", 201, none, "a\nb\n"), RTX_OK);
  EXPECT_EQ(Items(), Lines());
  const uint32_t one[] = {301, 0, 302, 0};
  EXPECT_EQ(AddMenuitems("Form", 201, one, "a\nb\n"), RTX_OK);
  EXPECT_EQ(Items(), Lines("  301 a\n"));
}

TEST_F(MenuitemsTest, NothingIsAddedIfAnyIdIsTaken) {
  DrawMenuBarCount drawn("DrawMenuBar");
  const std::vector<uint32_t> lists[] = {{101, 0},      {300, 101, 0}, {300, 301, 101, 0}, {204, 0},
                                         {300, 203, 0}, {201, 300, 0}, {300, 205, 0},      {101, 201, 0}};
  for (const std::vector<uint32_t>& ids : lists) {
    SCOPED_TRACE(ids.front());
    EXPECT_EQ(AddMenuitems("Form", 201, ids.data(), "a\nb\nc\n"), RTX_WRONG_KIND);
    EXPECT_EQ(Items(), Lines());
  }
  EXPECT_EQ(drawn.calls(), 0);
}

TEST_F(MenuitemsTest, AThousandItemsCanBeAddedAndRemovedAtOnce) {
  std::vector<uint32_t> ids;
  std::string texts;
  std::string lines;
  for (uint32_t id = 1000; id < 2000; ++id) {
    ids.push_back(id);
    texts += "item " + std::to_string(id) + "\n";
    lines += "  " + std::to_string(id) + " item " + std::to_string(id) + "\n";
  }
  ids.push_back(0);
  ASSERT_EQ(AddMenuitems("Form", 201, ids.data(), texts.c_str()), RTX_OK);
  EXPECT_EQ(Items(), Lines(lines));
  ASSERT_EQ(RemoveMenuitems("Form", 1000, 1000), RTX_OK);
  EXPECT_EQ(Items(), Lines());
}

// ---- RemoveMenuitem and RemoveMenuitems ----

TEST_F(MenuitemsTest, AnItemIsRemovedWhereverItIs) {
  ASSERT_EQ(RemoveMenuitem("Form", 203), RTX_OK);
  EXPECT_EQ(Items(),
            "> File\n  201 Open\tF5\n  0 -\n  > Deep\n    202 Inner\n    > Deeper\n  204 Close\n205 Help\n");
  ASSERT_EQ(RemoveMenuitem("Form", 201), RTX_OK);
  ASSERT_EQ(RemoveMenuitem("Form", 205), RTX_OK);
  EXPECT_EQ(Items(), "> File\n  0 -\n  > Deep\n    202 Inner\n    > Deeper\n  204 Close\n");
}

TEST_F(MenuitemsTest, RemovingAnUnknownItemIsNoFailure) {
  DrawMenuBarCount drawn("DrawMenuBar");
  EXPECT_EQ(RemoveMenuitem("Form", 999), RTX_OK);
  EXPECT_EQ(RemoveMenuitem("Form", 101), RTX_OK);
  EXPECT_EQ(RemoveMenuitems("Form", 999, 5), RTX_OK);
  EXPECT_EQ(Items(), Lines());
  EXPECT_EQ(drawn.calls(), 0);
}

TEST_F(MenuitemsTest, ManyItemsAreRemovedFromTheFirstOnDownward) {
  struct Case {
    uint32_t firstId;
    int32_t count;
    std::string lines;
  };
  const std::string deep = "  > Deep\n    202 Inner\n    > Deeper\n      203 Core\n";
  const Case cases[] = {
      {201, 0, Lines()},
      {201, -1, Lines()},
      {201, INT_MIN, Lines()},
      {201, 1, "> File\n  0 -\n" + deep + "  204 Close\n205 Help\n"},
      {201, 2, "> File\n" + deep + "  204 Close\n205 Help\n"},
      {201, 3, "> File\n  204 Close\n205 Help\n"},
      {201, 4, "> File\n205 Help\n"},
      {201, 5, "> File\n205 Help\n"},
      {201, INT_MAX, "> File\n205 Help\n"},
      {202, 1,
       "> File\n  201 Open\tF5\n  0 -\n  > Deep\n    > Deeper\n      203 Core\n  204 Close\n205 Help\n"},
      {202, 100, "> File\n  201 Open\tF5\n  0 -\n  > Deep\n  204 Close\n205 Help\n"},
      {204, 2, "> File\n  201 Open\tF5\n  0 -\n" + deep + "205 Help\n"},
      {205, 9, "> File\n  201 Open\tF5\n  0 -\n" + deep + "  204 Close\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.count) + " from " + std::to_string(c.firstId));
    DestroyLibraryWindows();
    SetUp();
    EXPECT_EQ(RemoveMenuitems("Form", c.firstId, c.count), RTX_OK);
    EXPECT_EQ(Items(), c.lines);
  }
}

// Removing an item deletes what the platform finds under its id, and all separators have the id 0.
TEST_F(MenuitemsTest, RemovingTheIdOfSeparatorsRemovesTheFirst) {
  ASSERT_EQ(RemoveMenuitem("Form", 0), RTX_OK);
  EXPECT_EQ(Items(),
            "> File\n  201 Open\tF5\n  > Deep\n    202 Inner\n    > Deeper\n      203 Core\n  204 Close\n205 "
            "Help\n");
  EXPECT_EQ(RemoveMenuitems("Form", 0, 1), RTX_OK);
}

TEST_F(MenuitemsTest, APopupGoesWithItsItems) {
  HMENU deep = GetSubMenu(Popup(), 2);
  ASSERT_TRUE(IsMenu(deep));
  ASSERT_EQ(RemoveMenuitems("Form", 201, 3), RTX_OK);
  EXPECT_FALSE(IsMenu(deep));
}

// ---- Keys ----

void CALLBACK EndLoop(HWND, UINT, UINT_PTR, DWORD) { PostQuitMessage(0); }

// Presses F5 in the main loop, which ends when all input has been handled.
std::string ClicksOfF5(HWND window) {
  Log().Clear();
  SetForegroundWindow(window);
  PressKey(VK_F5);
  const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, EndLoop);
  MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr);
  KillTimer(nullptr, timer);
  return Log().Of({EV_CLICK, EV_KEYPRESS});
}

TEST_F(MenuitemsTest, AKeyOfARemovedItemDoesNothing) {
  EXPECT_EQ(ClicksOfF5(window_), "EV_KEYPRESS 101 116\nEV_CLICK 201 0\n");
  ASSERT_EQ(RemoveMenuitem("Form", 201), RTX_OK);
  EXPECT_EQ(ClicksOfF5(window_), "EV_KEYPRESS 101 116\n");
  // An item that comes under the same id gets the key.
  ASSERT_EQ(AddMenuitem("Form", 204, 201, "Open again"), RTX_OK);
  EXPECT_EQ(ClicksOfF5(window_), "EV_KEYPRESS 101 116\nEV_CLICK 201 0\n");
}

}  // namespace
}  // namespace brelt::test
