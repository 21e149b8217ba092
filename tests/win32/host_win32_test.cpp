// The core's host as Windows gives it.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "rc/host.h"
#include "rc/menuhost.h"
#include "tests/support/guarded.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

using host::OpenMode;

// ---- Memory ----

TEST(HostMemory, IsZeroFilledGlobalMemory) {
  for (const std::size_t size :
       {std::size_t{1}, std::size_t{188}, std::size_t{65535}, std::size_t{1} << 20}) {
    auto* block = static_cast<char*>(host::AllocateZeroed(size));
    ASSERT_NE(block, nullptr);
    EXPECT_TRUE(std::all_of(block, block + size, [](char c) { return c == 0; }));
    const HGLOBAL handle = GlobalHandle(block);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(GlobalFlags(handle) & GMEM_LOCKCOUNT, 1u);
    EXPECT_GE(GlobalSize(handle), size);
    std::memset(block, 'x', size);
    host::Release(block);
  }
}

TEST(HostMemory, IsNullForMoreThanThereIs) { EXPECT_EQ(host::AllocateZeroed(0x7FFFFFFF), nullptr); }

TEST(HostMemory, LetsGoOfNothingThatIsNoBlock) { host::Release(nullptr); }

// ---- Files ----

class HostFileTest : public ::testing::Test {
 protected:
  const std::string path_ = TestFolder() + "host.bin";
};

TEST_F(HostFileTest, ReadsBytesAsTheyAre) {
  WriteTestFile("host.bin", std::string("a\r\nb\x1A\0c", 7));
  host::File file(path_.c_str(), OpenMode::kRead);
  ASSERT_TRUE(file);
  char bytes[20] = "";
  EXPECT_EQ(file.Read(bytes, 3), 3);
  EXPECT_EQ(std::string(bytes, 3), "a\r\n");
  EXPECT_EQ(file.Read(bytes, 20), 4);
  EXPECT_EQ(std::string(bytes, 4), std::string("b\x1A\0c", 4));
  EXPECT_EQ(file.Read(bytes, 20), 0);
  EXPECT_TRUE(file.Seek(5));
  EXPECT_EQ(file.Read(bytes, 20), 2);
  EXPECT_TRUE(file.Close());
}

TEST_F(HostFileTest, OpensForReadingWhatIsThereOnly) {
  host::RemoveFile(path_.c_str());
  EXPECT_FALSE(host::File(path_.c_str(), OpenMode::kRead));
  EXPECT_FALSE(host::File(TestFolder().c_str(), OpenMode::kRead));
  EXPECT_EQ(GetFileAttributesA(path_.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(HostFileTest, ReplacesAndAppends) {
  for (int i = 0; i < 2; ++i) {
    host::File file(path_.c_str(), OpenMode::kReplace);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.Write("one\n", 4));
  }
  {
    host::File file(path_.c_str(), OpenMode::kAppend);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.Write("two", 3));
  }
  EXPECT_EQ(ReadTestFile(path_), "one\ntwo");
  EXPECT_TRUE(host::RemoveFile(path_.c_str()));
  EXPECT_FALSE(host::RemoveFile(path_.c_str()));
  {
    host::File file(path_.c_str(), OpenMode::kAppend);  // made where there is none
    EXPECT_TRUE(file.Write("three", 5));
  }
  EXPECT_EQ(ReadTestFile(path_), "three");
}

TEST_F(HostFileTest, TellsTheSizeOfAFileAndOfNothingElse) {
  std::uint64_t size = 77;
  WriteTestFile("host.bin", std::string(1234, 'x'));
  EXPECT_TRUE(host::QueryFileSize(path_.c_str(), size));
  EXPECT_EQ(size, 1234u);
  WriteTestFile("host.bin", "");
  EXPECT_TRUE(host::QueryFileSize(path_.c_str(), size));
  EXPECT_EQ(size, 0u);
  size = 77;
  host::RemoveFile(path_.c_str());
  EXPECT_FALSE(host::QueryFileSize(path_.c_str(), size));
  EXPECT_FALSE(host::QueryFileSize(TestFolder().substr(0, TestFolder().size() - 1).c_str(), size));
  EXPECT_EQ(size, 77u);
}

TEST_F(HostFileTest, RenamesAFileButOverNoOther) {
  const std::string other = TestFolder() + "other.bin";
  host::RemoveFile(other.c_str());
  WriteTestFile("host.bin", "x");
  EXPECT_TRUE(host::RenameFile(path_.c_str(), other.c_str()));
  EXPECT_FALSE(host::RenameFile(path_.c_str(), other.c_str()));
  WriteTestFile("host.bin", "y");
  EXPECT_FALSE(host::RenameFile(path_.c_str(), other.c_str()));
  EXPECT_EQ(ReadTestFile(other), "x");
  EXPECT_TRUE(host::RemoveFile(other.c_str()));
}

TEST_F(HostFileTest, CreatesOnlyWhatIsNotThere) {
  host::RemoveFile(path_.c_str());
  {
    host::File file(path_.c_str(), OpenMode::kCreate);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.Write("one", 3));
  }
  EXPECT_FALSE(host::File(path_.c_str(), OpenMode::kCreate));
  EXPECT_EQ(ReadTestFile(path_), "one");
  EXPECT_FALSE(host::File(TestFolder().c_str(), OpenMode::kCreate));
}

TEST_F(HostFileTest, CutsAFileThatIsThere) {
  WriteTestFile("host.bin", "one two");
  EXPECT_TRUE(host::CutFile(path_.c_str(), 3));
  EXPECT_EQ(ReadTestFile(path_), "one");
  EXPECT_TRUE(host::CutFile(path_.c_str(), 0));
  EXPECT_EQ(ReadTestFile(path_), "");
  host::RemoveFile(path_.c_str());
  EXPECT_FALSE(host::CutFile(path_.c_str(), 0));
  EXPECT_EQ(GetFileAttributesA(path_.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(HostFileTest, CanRewriteAFileThatNobodyElseHasOpen) {
  WriteTestFile("host.bin", "x");
  EXPECT_TRUE(host::CanRewriteFile(path_.c_str()));
  {
    host::File file(path_.c_str(), OpenMode::kRead);
    EXPECT_FALSE(host::CanRewriteFile(path_.c_str()));
  }
  EXPECT_EQ(ReadTestFile(path_), "x");
  host::RemoveFile(path_.c_str());
  EXPECT_FALSE(host::CanRewriteFile(path_.c_str()));
}

// ---- Surroundings ----

TEST(HostPlaces, AreWholeOrEmpty) {
  char current[MAX_PATH];
  GetCurrentDirectoryA(MAX_PATH, current);
  char program[MAX_PATH];
  GetModuleFileNameA(nullptr, program, MAX_PATH);
  struct Case {
    std::string full;
    void (*ask)(rc::TextBuffer);
  };
  const Case cases[] = {{current, host::CurrentDirectory},
                        {program, [](rc::TextBuffer path) { host::ModulePath(nullptr, path); }}};
  for (const Case& c : cases) {
    const int length = static_cast<int>(c.full.size());
    for (const int size : {1, 2, length - 1, length, length + 1, length + 2, 260}) {
      SCOPED_TRACE(c.full + " in a buffer of " + std::to_string(size));
      GuardedBuffer buffer(size);
      c.ask(buffer.buffer());
      EXPECT_TRUE(buffer.IsIntact());
      EXPECT_EQ(buffer.Text(), size > length ? c.full : "");
    }
  }
}

TEST(HostPlaces, OfAModuleAreThoseOfItsFile) {
  host::Path path;
  host::ModulePath(GetModuleHandleA("kernel32.dll"), path);
  EXPECT_TRUE(rc::EqualIgnoreCase(path.view().substr(path.view().size() - 13), "\\kernel32.dll"));
  path.Assign("unset");
  host::ModulePath(reinterpret_cast<void*>(0x10), path);
  EXPECT_EQ(path.view(), "");
}

// ---- Menus ----

TEST(HostMenu, IsThePlatformsMenu) {
  host::MenuHandle* menu = host::MakeMenu();
  host::MenuHandle* popup = host::MakePopupMenu();
  const auto bar = reinterpret_cast<HMENU>(menu);
  const auto sub = reinterpret_cast<HMENU>(popup);
  EXPECT_EQ(host::CountItems(menu), 0);
  EXPECT_TRUE(host::AppendPopup(menu, MF_POPUP | MF_GRAYED, popup, "&File"));
  EXPECT_TRUE(host::AppendItem(popup, 0, 100, "&Open"));
  EXPECT_TRUE(host::AppendItem(popup, MF_SEPARATOR, 0, nullptr));
  EXPECT_TRUE(host::AppendItem(popup, MF_CHECKED, -5, "&Close"));
  EXPECT_EQ(host::CountItems(menu), 1);
  EXPECT_EQ(host::CountItems(popup), 3);
  EXPECT_EQ(GetSubMenu(bar, 0), sub);
  EXPECT_EQ(GetMenuState(bar, 0, MF_BYPOSITION) & (MF_POPUP | MF_GRAYED),
            static_cast<UINT>(MF_POPUP | MF_GRAYED));
  EXPECT_EQ(GetMenuItemID(sub, 0), 100u);
  EXPECT_EQ(GetMenuState(sub, 1, MF_BYPOSITION) & MF_SEPARATOR, static_cast<UINT>(MF_SEPARATOR));
  EXPECT_EQ(static_cast<int>(GetMenuState(sub, 2, MF_BYPOSITION) & MF_CHECKED), MF_CHECKED);
  ExpectCutToFit("&File", [&](rc::TextBuffer text) { host::ItemTextAt(menu, 0, text); });
  char text[10] = "unset";
  host::ItemTextAt(menu, 7, {text, sizeof text});
  EXPECT_STREQ(text, "");
  host::DestroyMenuTree(menu);
  EXPECT_FALSE(IsMenu(bar));
  EXPECT_FALSE(IsMenu(sub));
  EXPECT_EQ(host::CountItems(menu), 0);
  EXPECT_FALSE(host::AppendItem(menu, 0, 100, "&Open"));
  host::MenuHandle* orphan = host::MakePopupMenu();
  EXPECT_FALSE(host::AppendPopup(menu, MF_POPUP, orphan, "&File"));
  EXPECT_TRUE(IsMenu(reinterpret_cast<HMENU>(orphan)));
  host::DestroyMenuTree(orphan);
}

}  // namespace
}  // namespace brelt::test
