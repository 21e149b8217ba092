#include "rc/menuparser.h"

#include <gtest/gtest.h>

#include <string>

#include "rc/menuoptions.h"
#include "tests/support/dump.h"
#include "tests/support/guarded.h"
#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

using test::ReadMenu;

struct MenuText {
  std::string text;
  std::string result;
};

template <std::size_t Count>
void ExpectEach(const MenuText (&cases)[Count]) {
  for (const MenuText& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(ReadMenu(expected.text), expected.result);
  }
}

// The elements of a menu named M, without the line of the menu itself.
std::string ReadElements(const std::string& elements) {
  const std::string result = ReadMenu("M MENU\nBEGIN\n" + elements + "\nEND\n");
  const std::string menu = "0 MENU M - \"\" 0,0,0,0 00000000\n";
  return result.rfind(menu, 0) == 0 ? result.substr(menu.size()) : result;
}

TEST(MenuHeader, IsANameASecondTokenAndLoadOptions) {
  ExpectEach({
      {"M MENU BEGIN END", "0 MENU M - \"\" 0,0,0,0 00000000\n"},
      {"\n m menu begin end", "0 menu m - \"\" 0,0,0,0 00000000\n"},
      {"_M 5 BEGIN END",
       "! The resource string should start with the name of a MENU resource, instead <?> was "
       "found (Line 1, col 1)\n"},
      // The second token is not tested.
      {"M 5 BEGIN END", "0 5 M - \"\" 0,0,0,0 00000000\n"},
      {"M MENU PRELOAD loadoncall FIXED MOVEABLE Discardable PURE IMPURE PURE BEGIN END",
       "0 MENU M - \"\" 0,0,0,0 00000000\n"},
      {"M MENU BEGIN END nonsense ; \"", "0 MENU M - \"\" 0,0,0,0 00000000\n"},
      {std::string(50, 'n') + " MENU BEGIN END",
       "0 MENU " + std::string(40, 'n') + " - \"\" 0,0,0,0 00000000\n"},
      {"M " + std::string(50, 'k') + " BEGIN END",
       "0 " + std::string(40, 'k') + " M - \"\" 0,0,0,0 00000000\n"},
  });
}

TEST(MenuHeader, TheNameMustBeAnIdentifier) {
  const std::string front = "! The resource string should start with the name of a MENU resource, instead <";
  ExpectEach({{"100 MENU\nBEGIN\nEND", front + "100> was found (Line 2, col 1)\n"},
              {"", front + "?> was found (Line 0, col 0)\n"},
              {"   ", front + "?> was found (Line 1, col 1)\n"},
              {"\"M\" MENU FIXED BEGIN END", front + "\\\"M\\\"> was found (Line 1, col 16)\n"},
              // This comes ahead of a missing BEGIN.
              {"100 MENU END", front + "100> was found (Line 1, col 10)\n"}});
}

TEST(MenuHeader, WhatStandsInPlaceOfBeginIsShown) {
  const std::string front = "! Menu <M>, BEGIN is expected instead of <";
  ExpectEach({{"M MENU END", front + "END> (Line 1, col 8)\n"},
              {"M MENU\n{\n}", front + "{> (Line 2, col 1)\n"},
              {"M MENU", front + "?> (Line 1, col 3)\n"},
              {"M MENU FIXED\n  _x;y z", front + "_x;y> (Line 2, col 3)\n"},
              {"M MENU \xE4", front + "?> (Line 1, col 3)\n"},
              {"M MENU " + std::string(50, 'w'), front + std::string(40, 'w') + "> (Line 1, col 8)\n"}});
}

TEST(MenuElements, ItemsHaveLevelTextIdentifierAndOptions) {
  EXPECT_EQ(ReadElements("MENUITEM \"&Open\\tF3\",IDM_OPEN\nmenuitem \"a\"\"b\" , -5 , GRAYED"),
            "1 MENUITEM IDM_OPEN - \"&Open\\tF3\" 1,0,0,0 00000000\n"
            "2 menuitem -5 - \"a\\\"b\" 1,0,0,0 00000001\n");
}

TEST(MenuElements, ASeparatorHasNeitherTextNorName) {
  EXPECT_EQ(ReadElements("MENUITEM SEPARATOR menuitem separator"),
            "1 MENUITEM - - \"\" 1,0,0,0 00000800\n2 menuitem - - \"\" 1,0,0,0 00000800\n");
}

TEST(MenuElements, EachOptionHasItsBit) {
  EXPECT_EQ(
      ReadElements("MENUITEM \"a\",1,GRAYED MENUITEM \"a\",1,INACTIVE MENUITEM \"a\",1,CHECKED MENUITEM "
                   "\"a\",1,MENUBARBREAK MENUITEM \"a\",1,menubreak MENUITEM \"a\",1,CHECKED,GRAYED"),
      "1 MENUITEM 1 - \"a\" 1,0,0,0 00000001\n2 MENUITEM 1 - \"a\" 1,0,0,0 00000002\n"
      "3 MENUITEM 1 - \"a\" 1,0,0,0 00000008\n4 MENUITEM 1 - \"a\" 1,0,0,0 00000020\n"
      "5 MENUITEM 1 - \"a\" 1,0,0,0 00000040\n6 MENUITEM 1 - \"a\" 1,0,0,0 00000009\n");
}

TEST(MenuElements, TheLevelTellsTheNesting) {
  EXPECT_EQ(
      ReadElements("POPUP \"&File\" BEGIN MENUITEM \"a\",1 POPUP \"b\",GRAYED BEGIN MENUITEM \"c\",2 END "
                   "MENUITEM \"d\",3 END MENUITEM \"e\",4"),
      "1 POPUP - - \"&File\" 1,0,0,0 00000010\n2 MENUITEM 1 - \"a\" 2,0,0,0 00000000\n"
      "3 POPUP - - \"b\" 2,0,0,0 00000011\n4 MENUITEM 2 - \"c\" 3,0,0,0 00000000\n"
      "5 MENUITEM 3 - \"d\" 2,0,0,0 00000000\n6 MENUITEM 4 - \"e\" 1,0,0,0 00000000\n");
}

TEST(MenuElements, APopupNeedsNoStringAndItsTextIsDecoded) {
  EXPECT_EQ(ReadElements("POPUP BEGIN END POPUP \"a\\tb\" BEGIN END"),
            "1 POPUP - - \"\" 1,0,0,0 00000010\n2 POPUP - - \"a\\tb\" 1,0,0,0 00000010\n");
}

TEST(MenuElements, BeginsAndEndsAreOnlyCounted) {
  EXPECT_EQ(ReadElements("BEGIN MENUITEM \"a\",1 END POPUP \"b\" MENUITEM \"c\",2"),
            "1 MENUITEM 1 - \"a\" 2,0,0,0 00000000\n2 POPUP - - \"b\" 1,0,0,0 00000010\n"
            "3 MENUITEM 2 - \"c\" 1,0,0,0 00000000\n");
}

TEST(MenuElements, AnIdentifierIsNotTestedAndStaysAWord) {
  EXPECT_EQ(ReadElements("MENUITEM \"a\",IDM_NONE MENUITEM \"b\",\"x\" MENUITEM \"c\",0x10L MENUITEM \"d\"," +
                         std::string(50, 'i')),
            "1 MENUITEM IDM_NONE - \"a\" 1,0,0,0 00000000\n2 MENUITEM \\\"x\\\" - \"b\" 1,0,0,0 00000000\n"
            "3 MENUITEM 0x10L - \"c\" 1,0,0,0 00000000\n4 MENUITEM " +
                std::string(40, 'i') + " - \"d\" 1,0,0,0 00000000\n");
}

TEST(MenuElements, AnItemsTextIsDecodedAndThenCutAPopupsCutAndThenDecoded) {
  std::string escapes;
  for (int i = 0; i < 200; ++i) escapes += "\\\\";
  std::string all;
  for (int i = 0; i < 200; ++i) all += "\\\\";
  EXPECT_EQ(ReadElements("MENUITEM \"" + escapes + "\",1"),
            "1 MENUITEM 1 - \"" + all + "\" 1,0,0,0 00000000\n");
  EXPECT_EQ(ReadElements("POPUP \"" + escapes + "\" BEGIN END"),
            "1 POPUP - - \"" + all.substr(0, 254) + "\" 1,0,0,0 00000010\n");
  EXPECT_EQ(ReadElements("MENUITEM \"" + std::string(300, 'x') + "\",1"),
            "1 MENUITEM 1 - \"" + std::string(255, 'x') + "\" 1,0,0,0 00000000\n");
  EXPECT_EQ(ReadElements("POPUP \"" + std::string(300, 'x') + "\" BEGIN END"),
            "1 POPUP - - \"" + std::string(255, 'x') + "\" 1,0,0,0 00000010\n");
}

TEST(MenuElements, EachFaultHasItsMessageAndPlace) {
  ExpectEach(
      {{"M MENU\nBEGIN\n  MENUITEM 5,5\nEND", "! Menu <M>, Menu option string expected (Line 3, col 12)\n"},
       {"M MENU\nBEGIN\n  MENUITEM \"a\" 100\nEND", "! Menu <M>, Comma expected (Line 3, col 16)\n"},
       {"M MENU\nBEGIN\n  MENUITEM \"a\",100, HELP\nEND",
        "! Menu <M>, Unknown menu option: HELP (Line 3, col 21)\n"},
       {"M MENU\nBEGIN\n  POPUP \"a\", X\nBEGIN END END",
        "! Menu <M>, Unknown menu option: X (Line 3, col 14)\n"},
       {"M MENU\nBEGIN\n  MENUITEM \"a\",100,", "! Menu <M>, Unknown menu option:  (Line 3, col 12)\n"}});
}

TEST(MenuElements, AnythingElseIsNotExpected) {
  const std::string front = "! Menu <M>, <";
  ExpectEach(
      {{"M MENU BEGIN MENUITEM \"a\",100,CHECKED GRAYED END",
        front + "GRAYED> is not expected here (Line 1, col 39)\n"},
       {"M MENU\nBEGIN\n STATEMENT\nEND", front + "STATEMENT> is not expected here (Line 3, col 2)\n"},
       {"M MENU\nBEGIN\n }\nEND", front + "}> is not expected here (Line 3, col 2)\n"},
       {"M MENU\nBEGIN\n  _x;y z\nEND", front + "_x;y> is not expected here (Line 3, col 3)\n"},
       {"M MENU\nBEGIN\n  \xE4\nEND", front + "?> is not expected here (Line 2, col 1)\n"},
       {"M MENU\nBEGIN\n", front + "?> is not expected here (Line 2, col 1)\n"},
       {"M MENU\nBEGIN\n " + std::string(50, 'w'),
        front + std::string(40, 'w') + "> is not expected here (Line 3, col 2)\n"},
       {"M MENU BEGIN POPUP abc BEGIN END END", front + "abc> is not expected here (Line 1, col 20)\n"},
       {"M MENU BEGIN MENUITEM SEPARATOR, GRAYED END",
        front + ",> is not expected here (Line 1, col 23)\n"}});
}

TEST(MenuElements, ThereAreAtMost255) {
  std::string text = "M MENU\nBEGIN\n";
  std::string result = "0 MENU M - \"\" 0,0,0,0 00000000\n";
  for (int i = 1; i <= 255; ++i) {
    const std::string number = std::to_string(i);
    text += "MENUITEM \"i\"," + number + "\n";
    result += number + " MENUITEM " + number + " - \"i\" 1,0,0,0 00000000\n";
  }
  EXPECT_EQ(ReadMenu(text + "END"), result);
  // The place is that of the token in hand, the one behind the element.
  EXPECT_EQ(ReadMenu(text + "  POPUP \"x\"\n  BEGIN\n"),
            "! Menu <M>, too many menu elements, maximum number is 255 (Line 259, col 3)\n");
  EXPECT_EQ(ReadMenu(text + "MENUITEM \"x\" 1\nEND"), "! Menu <M>, Comma expected (Line 258, col 14)\n");
}

TEST(MenuElements, CommentsThatBecameBlanksKeepPlacesRight) {
  EXPECT_EQ(ReadMenu("M MENU        \nBEGIN\n          \n            MENUITEM \"a\" 5\nEND"),
            "! Menu <M>, Comma expected (Line 4, col 26)\n");
}

TEST(ParseMenu, CutsItsMessageToTheBuffer) {
  test::ResetHost();
  RecordArray records;
  test::ExpectCutToFit("Menu <M>, <X> is not expected here (Line 1, col 14)", [&records](TextBuffer buffer) {
    EXPECT_FALSE(ParseMenu("M MENU BEGIN X END", records.table(), buffer));
  });
  test::ExpectCutToFit("", [&records](TextBuffer buffer) {
    EXPECT_TRUE(ParseMenu("M MENU BEGIN END", records.table(), buffer));
  });
}

TEST(ParseMenu, TakesNoMemory) {
  test::ResetHost();
  RecordArray records;
  test::FailAllocation(0);
  FixedText<1023> message;
  EXPECT_TRUE(ParseMenu("M MENU BEGIN MENUITEM \"a\",1 END", records.table(), message));
  EXPECT_EQ(test::AllocationCount(), 0);
}

TEST(ReadMenuOptions, ReadsNothingOnceAFailureIsSet) {
  Failure fault;
  fault.Set(5, "first");
  std::int32_t position = 0;
  EXPECT_EQ(ReadMenuOptions(",GRAYED", position, fault), 0u);
  EXPECT_EQ(position, 0);
  EXPECT_EQ(fault.message.view(), "first");
  EXPECT_EQ(fault.code, 5);
}

TEST(ReadMenuOptions, StopsAtAnUnknownWord) {
  Failure fault;
  std::int32_t position = 0;
  EXPECT_EQ(ReadMenuOptions(", GRAYED , other , CHECKED", position, fault), kMenuGrayed);
  EXPECT_EQ(fault.message.view(), "Unknown menu option: other");
  EXPECT_EQ(fault.code, RTX_MENU_SYNTAX);
  EXPECT_EQ(position, 17);
}

TEST(ReadMenuOptions, StopsWhereNoCommaStands) {
  Failure fault;
  std::int32_t position = 0;
  EXPECT_EQ(ReadMenuOptions("GRAYED", position, fault), 0u);
  EXPECT_EQ(position, 0);
  EXPECT_EQ(ReadMenuOptions(",GRAYED CHECKED", position, fault), kMenuGrayed);
  EXPECT_EQ(position, 8);
  EXPECT_FALSE(fault);
}

}  // namespace
}  // namespace brelt::rc
