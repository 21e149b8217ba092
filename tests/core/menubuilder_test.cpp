#include "rc/menubuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/support/dump.h"
#include "tests/support/memoryhost.h"
#include "tests/support/menucases.h"
#include "tests/support/menumodel.h"

namespace brelt::rc {
namespace {

constexpr const char* kPath = "c:\\home\\a.rc";

struct Built {
  std::string menu;
  std::string keys;
  std::string message;
  int code;
  bool made;
};

template <typename Build>
Built BuildWith(Build build) {
  AcceleratorTable keys{};
  Failure fault;
  fault.Set(99, "soil");
  host::MenuHandle* menu = build(keys, fault);
  const Built built{test::DumpMenu(menu), test::DumpAccelerators(keys), std::string(fault.message.view()),
                    fault.code, menu != nullptr};
  if (menu != nullptr) host::DestroyMenuTree(menu);
  EXPECT_EQ(test::LiveMenus(), 0);
  return built;
}

Built BuildText(const std::string& text) {
  return BuildWith([&text](AcceleratorTable& keys, Failure& fault) {
    return BuildMenu(text.c_str(), test::MenuCaseSymbols(), keys, fault);
  });
}

class MenuBuilderTest : public ::testing::Test {
 protected:
  MenuBuilderTest() {
    test::ResetHost();
    test::FailMenu(-1);
  }

  static Built BuildFile(const char* file, const char* name) {
    const Built built = BuildWith([file, name](AcceleratorTable& keys, Failure& fault) {
      keys[0] = keys[99] = {1, 2, 3};
      return BuildMenuFromFile(file, name, test::MenuCaseSymbols(), keys, fault);
    });
    EXPECT_EQ(test::LiveAllocations(), 0);
    EXPECT_EQ(test::OpenFiles(), 0);
    return built;
  }
};

TEST_F(MenuBuilderTest, BuildsTheSharedCases) {
  for (const test::MenuCase& expected : test::kMenuCases) {
    SCOPED_TRACE(expected.text);
    const Built built = BuildText(expected.text);
    EXPECT_EQ(built.menu, expected.menu);
    EXPECT_EQ(built.message, expected.message);
    EXPECT_EQ(built.code, expected.code);
    EXPECT_EQ(built.made, built.message.empty());
    if (built.made) {
      EXPECT_EQ(built.keys, expected.keys);
    }
  }
}

TEST_F(MenuBuilderTest, EachMenuOrEntryThatCannotBeHadIsToldAndNothingIsLeft) {
  const std::string text =
      "M MENU\nBEGIN\nPOPUP \"a\"\nBEGIN\nPOPUP \"b\"\nBEGIN\n"
      "MENUITEM \"c\",1\nMENUITEM SEPARATOR\nEND\nEND\nEND";
  const char* places[] = {"2, col 1", "3, col 7",  "3, col 7", "5, col 7",
                          "5, col 7", "7, col 10", "8, col 10"};
  for (int n = 0; n <= 7; ++n) {
    SCOPED_TRACE(n);
    test::FailMenu(n);
    const Built built = BuildText(text);
    EXPECT_EQ(built.message,
              n < 7 ? std::string("Not enough memory to create menu (Line ") + places[n] + ")" : "");
    EXPECT_EQ(built.code, n < 7 ? RTX_NO_MEMORY : RTX_OK);
    EXPECT_EQ(built.made, n == 7);
  }
}

TEST_F(MenuBuilderTest, AFaultOfTheTextStandsAheadOfAnEntryThatCannotBeHad) {
  test::FailMenu(1);
  const Built built = BuildText("M MENU BEGIN MENUITEM \"a\",NONE END");
  EXPECT_EQ(built.message, "Menu command identifier not defined: NONE (Line 1, col 23)");
  EXPECT_EQ(built.code, RTX_UNDEFINED_ID);
}

TEST_F(MenuBuilderTest, TextsAreCutTo1024Characters) {
  const std::string x1023(1023, 'x');
  EXPECT_EQ(BuildText("M MENU BEGIN MENUITEM \"" + x1023 + "yz\",1 END").menu, "0000 1 " + x1023 + "\n");
  // A title token that is cut loses its last character all the same.
  EXPECT_EQ(BuildText("M MENU BEGIN POPUP \"" + x1023 + "yz\" BEGIN END END").menu,
            "0010 -1 " + x1023.substr(1) + "\n");
}

TEST_F(MenuBuilderTest, ThereIsNoLimitOnElements) {
  std::string text = "M MENU BEGIN\n";
  std::string menu;
  for (int i = 1; i <= 300; ++i) {
    text += "MENUITEM \"i\"," + std::to_string(i) + "\n";
    menu += "0000 " + std::to_string(i) + " i\n";
  }
  EXPECT_EQ(BuildText(text + "END").menu, menu);
}

TEST_F(MenuBuilderTest, PopupsMayNestAsDeepAsAFileCanHold) {
  constexpr int kDepth = 5000;
  std::string text = "M MENU BEGIN ";
  for (int i = 0; i < kDepth; ++i) text += "POPUP,BEGIN ";
  ASSERT_LT(text.size(), 65535u);
  // Without its ENDs the menu is a failure, and the whole tree goes.
  const Built built = BuildText(text);
  EXPECT_EQ(built.message, "END expected (Line 1, col " + std::to_string(text.size() - 11) + ")");
  EXPECT_FALSE(built.made);
}

TEST_F(MenuBuilderTest, AFaultyItemLeavesNoMenu) {
  const Built built = BuildText("M MENU BEGIN MENUITEM \"a\\tF1\",NONE END");
  EXPECT_FALSE(built.made);
  EXPECT_EQ(built.code, RTX_UNDEFINED_ID);
}

constexpr const char* kFile =
    "A DIALOG 0,0,1,1\nBEGIN\nEND\n"
    "MAIN MENU\nBEGIN\n  MENUITEM \"&Open\\tF3\",IDM_OPEN // c\n  /* c */ MENUITEM SEPARATOR\nEND\n"
    "BAD MENU\nBEGIN\n  MENUITEM \"a\" 5\nEND\n";

TEST_F(MenuBuilderTest, BuildsFromAFileAndClearsTheKeysFirst) {
  test::WriteFile(kPath, kFile);
  for (const char* name : {"MAIN", "main"}) {
    const Built built = BuildFile(kPath, name);
    EXPECT_EQ(built.menu, "0000 101 &Open\\tF3\n0800 0 \n");
    EXPECT_EQ(built.keys, "2 114 101\n18 79 0\n");
    EXPECT_EQ(built.message, "");
    EXPECT_EQ(built.code, RTX_OK);
  }
}

TEST_F(MenuBuilderTest, NullAndEmptyNamesAreNoFailure) {
  test::WriteFile(kPath, kFile);
  const char* cases[][2] = {
      {nullptr, "MAIN"}, {"", "MAIN"}, {kPath, nullptr}, {kPath, ""}, {nullptr, nullptr}};
  for (const auto& arguments : cases) {
    const Built built = BuildFile(arguments[0], arguments[1]);
    EXPECT_FALSE(built.made);
    EXPECT_EQ(built.keys, "");
    EXPECT_EQ(built.message, "");
    EXPECT_EQ(built.code, RTX_OK);
  }
}

TEST_F(MenuBuilderTest, EachFailureOfTheFileHasItsMessageAndCode) {
  test::WriteFile(kPath, kFile);
  const std::string name300(300, 'n');
  const std::string path300 = "c:\\" + name300;
  const struct {
    std::string file;
    std::string name;
    std::string message;
    int code;
  } cases[] = {
      {"sub\\a.rc", "MAIN",
       "The file <sub\\a.rc> should be a full path with a drive letter or just a filename",
       RTX_RESOURCE_FILE},
      {"missing.rc", "MAIN", "The file <missing.rc> does not exist", RTX_RESOURCE_FILE},
      {path300, "MAIN", "The file <" + path300.substr(0, 260) + "> does not exist", RTX_RESOURCE_FILE},
      {kPath, "NONE", "Menu <NONE>, cannot be found in resource file", RTX_NO_MENU},
      {kPath, "A", "Menu <A>, cannot be found in resource file", RTX_NO_MENU},
      {kPath, name300, "Menu <" + name300.substr(0, 40) + ">, cannot be found in resource file", RTX_NO_MENU},
      {kPath, "bad", "Menu <bad>, Comma expected (Line 3, col 16)", RTX_MENU_SYNTAX},
  };
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.message);
    const Built built = BuildFile(expected.file.c_str(), expected.name.c_str());
    EXPECT_FALSE(built.made);
    EXPECT_EQ(built.keys, "");
    EXPECT_EQ(built.message, expected.message);
    EXPECT_EQ(built.code, expected.code);
  }
}

TEST_F(MenuBuilderTest, TheTextOfAMenuMayHave65534Characters) {
  const std::string head = "M MENU\nBEGIN\n";
  for (const int length : {65534, 65535}) {
    std::string lines;
    while (head.size() + lines.size() + 3 < static_cast<std::size_t>(length)) {
      lines += std::string(std::min<std::size_t>(999, length - 4 - head.size() - lines.size()), ' ') + "\n";
    }
    const std::string text = head + lines + "END";
    ASSERT_EQ(text.size(), static_cast<std::size_t>(length));
    test::WriteFile(kPath, text);
    const Built built = BuildFile(kPath, "M");
    EXPECT_EQ(built.made, length == 65534);
    if (built.made) continue;
    // What is cut off is missing, and the parser says so.
    EXPECT_EQ(built.message, "Menu <M>, END expected (Line " +
                                 std::to_string(std::count(text.begin(), text.end(), '\n') + 1) + ", col 1)");
  }
}

TEST_F(MenuBuilderTest, WithoutMemoryForTheTextItTellsTheMenusName) {
  test::WriteFile(kPath, kFile);
  test::FailAllocation(0);
  const Built built = BuildFile(kPath, "MAIN");
  EXPECT_FALSE(built.made);
  EXPECT_EQ(built.message, "Menu <MAIN>, not enough memory to create menu");
  EXPECT_EQ(built.code, RTX_NO_MEMORY);
  // This is looked at ahead of the file.
  test::FailAllocation(0);
  EXPECT_EQ(BuildFile("missing.rc", "MAIN").code, RTX_NO_MEMORY);
  test::FailAllocation(1);
  EXPECT_TRUE(BuildFile(kPath, "MAIN").made);
}

TEST_F(MenuBuilderTest, EachFileOperationThatFailsIsAMissingFileOrMenu) {
  test::WriteFile(kPath, kFile);
  for (const bool stay : {false, true}) {
    for (int n = 0;; ++n) {
      SCOPED_TRACE(n);
      test::FailFileOperation(n, stay);
      const Built built = BuildFile(kPath, "MAIN");
      if (n >= test::FileOperationCount()) {
        EXPECT_TRUE(built.made);
        break;
      }
      // The size twice, opening and reading; a failed close hurts nobody who only reads.
      const char* message = n == 0  ? "The file <c:\\home\\a.rc> does not exist"
                            : n < 4 ? "Menu <MAIN>, cannot be found in resource file"
                                    : "";
      EXPECT_EQ(built.message, message);
      EXPECT_EQ(built.made, n >= 4);
    }
  }
}

}  // namespace
}  // namespace brelt::rc
