#include "rc/directory.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

constexpr const char* kPath = "c:\\home\\a.rc";

class ResourceDirectoryTest : public ::testing::Test {
 protected:
  ResourceDirectoryTest() { test::ResetHost(); }

  // Both ways to a resource must give the same text.
  static void ExpectSameAsSearch(ResourceDirectory& directory, const std::string& name, const char* types) {
    SCOPED_TRACE(name + " of " + types);
    FixedText<9999> searched;
    FixedText<9999> looked("soil");
    const int length = LocateResource(kPath, name.c_str(), types, searched);
    EXPECT_EQ(directory.Locate(name, types, looked), length);
    EXPECT_EQ(looked.view(), searched.view());
  }
};

TEST_F(ResourceDirectoryTest, FindsWhatASearchFromTheTopFinds) {
  std::string file =
      "#include \"a.h\"\r\nA DIALOG 0,0,1,1 // c\r\nBEGIN\r\n/* END\r\n */ LTEXT \"//\",1,1,1,1,1\r\nEND\r\n"
      "B ICON b.ico\r\na MENU\r\nBEGIN\r\nEND\r\nB DIALOG 0,0,1,1\r\nBEGIN\r\nEND\r\n"
      "STRINGTABLE FIXED\r\nBEGIN\r\nEND\r\nLANGUAGE LANG_X, SUB\r\n" +
      std::string(3000, '-') + "\r\nC LOG\r\nBEGIN\r\nBEGIN\r\nEND\r\nEND\r\n";
  for (int i = 0; i < 600; ++i) {
    file += "N" + std::to_string(i * 7919 % 600) + " MENU\r\nBEGIN\r\n MENUITEM \"" + std::to_string(i) +
            "\",1\r\nEND\r\n";
  }
  // It swallows whatever stands behind it.
  file += "LAST MENU\r\nBEGIN\r\n POPUP \"x\"\r\nBEHIND ICON b.ico\r\n";
  test::WriteFile(kPath, file);
  ResourceDirectory directory(kPath);
  ASSERT_TRUE(directory.IsComplete());
  for (const char* types : {"DIALOG", "MENU", "*", "", "DIALOG\nMENU\n", "ICON"}) {
    for (const char* name : {"A", "a", "B", "b", "1", "LANG_X", "C", "LAST", "BEHIND", "NONE", "", "BEGIN"}) {
      ExpectSameAsSearch(directory, name, types);
    }
  }
  for (int i = 599; i >= 0; i -= 13) ExpectSameAsSearch(directory, "n" + std::to_string(i), "MENU");
  FixedText<99> out;
  for (const char* name : {"A", "n0", "n599", "LAST"}) EXPECT_GT(directory.Locate(name, "*", out), 0) << name;
}

TEST_F(ResourceDirectoryTest, AFileThatCannotBeReadIsACompleteDirectoryOfNothing) {
  test::WriteFile("c:\\home\\sub\\a.rc", "A ICON a.ico\n");
  for (const char* path : {"missing.rc", "sub\\a.rc"}) {
    ResourceDirectory directory(path);
    EXPECT_TRUE(directory.IsComplete());
    FixedText<99> out("soil");
    EXPECT_EQ(directory.Locate("A", "*", out), 0);
    EXPECT_TRUE(out.IsEmpty());
  }
}

TEST_F(ResourceDirectoryTest, TellsWhenMemoryRunsOut) {
  std::string file;
  for (int i = 0; i < 300; ++i) file += "N" + std::to_string(i) + " ICON a.ico\n";
  test::WriteFile(kPath, file);
  // Two blocks for the first 256 entries, two for the next.
  for (int n = 0; n < 4; ++n) {
    test::FailAllocation(n);
    EXPECT_FALSE(ResourceDirectory(kPath).IsComplete()) << n;
    EXPECT_EQ(test::LiveAllocations(), 0);
  }
  test::FailAllocation(4);
  EXPECT_TRUE(ResourceDirectory(kPath).IsComplete());
}

TEST_F(ResourceDirectoryTest, AFailedSeekFindsNothing) {
  test::WriteFile(kPath, "A ICON a.ico\n");
  ResourceDirectory directory(kPath);
  FixedText<99> out("soil");
  test::FailFileOperation(0);
  EXPECT_EQ(directory.Locate("A", "ICON", out), 0);
  EXPECT_TRUE(out.IsEmpty());
  EXPECT_EQ(directory.Locate("A", "ICON", out), 13);
  EXPECT_EQ(directory.Locate("A", "ICON", TextBuffer()), 0);
}

}  // namespace
}  // namespace brelt::rc
