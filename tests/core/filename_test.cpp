#include "rc/filename.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/guarded.h"
#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

TEST(SplitPath, DividesIntoDriveDirectoryNameAndExtension) {
  const struct {
    const char *path, *drive, *directory, *name, *extension;
  } cases[] = {{"", "", "", "", ""},
               {"c:\\dir\\sub\\file.ext", "c:", "\\dir\\sub\\", "file", ".ext"},
               {"c:/dir/file.ext", "c:", "/dir/", "file", ".ext"},
               {"c:\\dir/file", "c:", "\\dir/", "file", ""},
               {"c:file.rc", "c:", "", "file", ".rc"},
               {"c:", "c:", "", "", ""},
               {"c:\\", "c:", "\\", "", ""},
               {"\\file", "", "\\", "file", ""},
               {"sub\\file.rc", "", "sub\\", "file", ".rc"},
               {"file.tar.gz", "", "", "file.tar", ".gz"},
               {"file.", "", "", "file", "."},
               {".rc", "", "", "", ".rc"},
               {"a.b\\file", "", "a.b\\", "file", ""},
               {"9:\\file", "", "9:\\", "file", ""},
               {"c", "", "", "c", ""}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.path);
    const PathParts parts = SplitPath(expected.path);
    EXPECT_EQ(parts.drive, expected.drive);
    EXPECT_EQ(parts.directory, expected.directory);
    EXPECT_EQ(parts.name, expected.name);
    EXPECT_EQ(parts.extension, expected.extension);
    EXPECT_EQ(parts.Folder(), std::string(expected.drive) + expected.directory);
    EXPECT_EQ(parts.File(), std::string(expected.name) + expected.extension);
  }
}

TEST(FileNameRules, AcceptAFullPathOrABareNameAndNothingElse) {
  const struct {
    const char* name;
    bool full, bare;
  } cases[] = {{"", false, false},
               {"c:\\a.rc", true, false},
               {"c:/a", true, false},
               {"c:\\dir\\a.rc", true, false},
               {"Z:/dir\\a", true, false},
               {"c:\\", false, false},
               {"c:\\dir\\", false, false},
               {"c:\\.rc", false, false},
               {"c:a.rc", false, false},
               {"c:dir\\a.rc", false, false},
               {"\\file.rc", false, false},
               {"/file.rc", false, false},
               {"sub\\file.rc", false, false},
               {"sub/file.rc", false, false},
               {"..\\file.rc", false, false},
               {"file.rc", false, true},
               {"file", false, true},
               {"file.", false, true},
               {".rc", false, false},
               {"\\\\server\\share\\a.rc", false, false}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.name);
    EXPECT_EQ(IsFullPathName(expected.name), expected.full);
    EXPECT_EQ(IsBareFileName(expected.name), expected.bare);
    EXPECT_EQ(IsAcceptedFileName(expected.name), expected.full || expected.bare);
  }
  EXPECT_FALSE(IsFullPathName(nullptr));
  EXPECT_FALSE(IsBareFileName(nullptr));
}

TEST(FileMessages, ShowAtMost260CharactersOfTheName) {
  const std::string name = std::string(260, 'n');
  EXPECT_EQ(BadFileNameMessage("sub\\a.rc").view(),
            "The file <sub\\a.rc> should be a full path with a drive letter or just a filename");
  EXPECT_EQ(BadFileNameMessage((name + "xyz").c_str()).view(),
            "The file <" + name + "> should be a full path with a drive letter or just a filename");
  EXPECT_EQ(MissingFileMessage("c:\\a.rc").view(), "The file <c:\\a.rc> does not exist");
  EXPECT_EQ(MissingFileMessage((name + "xyz").c_str()).view(), "The file <" + name + "> does not exist");
  EXPECT_EQ(UnreadableFileMessage("c:\\a.rc").view(), "The file <c:\\a.rc> could not be opened");
  EXPECT_EQ(UnreadableFileMessage((name + "xyz").c_str()).view(),
            "The file <" + name + "> could not be opened");
}

class FileTest : public ::testing::Test {
 protected:
  FileTest() { test::ResetHost(); }
};

using FileSizeOf_ = FileTest;

TEST_F(FileSizeOf_, TellsAnEmptyFileFromAMissingOne) {
  test::WriteFile("c:\\home\\a.rc", "12345");
  test::WriteFile("c:\\home\\empty.rc", "");
  EXPECT_EQ(FileSizeOf("c:\\home\\a.rc"), 5);
  EXPECT_EQ(FileSizeOf("a.rc"), 5);
  EXPECT_EQ(FileSizeOf("empty.rc"), 0);
  EXPECT_EQ(FileSizeOf("missing.rc"), -1);
}

TEST_F(FileSizeOf_, RefusesNullEmptyDirectoriesAndDoubleBackslashes) {
  test::WriteFile("c:\\home\\a.rc", "12345");
  test::WriteFile("c:\\home\\\\b.rc", "12345");
  test::MakeDirectory("c:\\home\\dir");
  EXPECT_EQ(FileSizeOf(nullptr), -1);
  EXPECT_EQ(FileSizeOf(""), -1);
  EXPECT_EQ(FileSizeOf("c:\\home\\dir"), -1);
  EXPECT_EQ(FileSizeOf("c:\\home\\\\b.rc"), -1);
  EXPECT_EQ(FileSizeOf("\\\\server\\a.rc"), -1);
  EXPECT_EQ(FileSizeOf("c:\\home\\a.rc"), 5);
}

TEST_F(FileSizeOf_, GivesBothWordsOfTheSizeAndAllOnesOnFailure) {
  test::WriteFile("a.rc", "12345");
  FileSizeWords words{7, 7};
  EXPECT_EQ(FileSizeOf("a.rc", &words), 5);
  EXPECT_EQ(words.low, 5u);
  EXPECT_EQ(words.high, 0u);
  EXPECT_EQ(FileSizeOf("missing.rc", &words), -1);
  EXPECT_EQ(words.low, 0xFFFFFFFFu);
  EXPECT_EQ(words.high, 0xFFFFFFFFu);
}

TEST_F(FileSizeOf_, ClampsToTheSignedRange) {
  test::WriteFile("a.rc", "12345");
  const struct {
    std::uint64_t size;
    std::int32_t result;
    std::uint32_t low, high;
  } cases[] = {{0x7FFFFFFE, 0x7FFFFFFE, 0x7FFFFFFE, 0},
               {0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF, 0},
               {0x80000000, 0x7FFFFFFF, 0x80000000, 0},
               {0x500000001, 0x7FFFFFFF, 1, 5}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.size);
    test::PretendSize("a.rc", expected.size);
    FileSizeWords words{};
    EXPECT_EQ(FileSizeOf("a.rc", &words), expected.result);
    EXPECT_EQ(words.low, expected.low);
    EXPECT_EQ(words.high, expected.high);
  }
}

using CurrentDirectoryText_ = FileTest;

TEST_F(CurrentDirectoryText_, EndsInASeparator) {
  const struct {
    const char *directory, *text;
  } cases[] = {{"c:\\home", "c:\\home\\"}, {"c:\\", "c:\\"}, {"c:/home/", "c:/home/"}, {"", ""}};
  for (const auto& expected : cases) {
    test::SetCurrentDirectory(expected.directory);
    test::ExpectCutToFit(expected.text, CurrentDirectoryText, test::Behind::kZero);
  }
}

class FindFileNearProgram_ : public FileTest {
 protected:
  static std::string Find(const char* name) {
    host::Path result;
    result.Assign("soil");
    FindFileNearProgram(nullptr, name, result);
    return std::string(result.view());
  }
};

TEST_F(FindFileNearProgram_, LooksInTheCurrentDirectoryAndThenBesideTheProgram) {
  test::SetCurrentDirectory("c:\\home");
  test::SetProgramPath("d:\\program\\test.exe");
  EXPECT_EQ(Find("a.rc"), "");
  test::WriteFile("d:\\program\\a.rc", "");
  EXPECT_EQ(Find("a.rc"), "d:\\program\\a.rc");
  test::WriteFile("c:\\home\\a.rc", "");
  EXPECT_EQ(Find("a.rc"), "c:\\home\\a.rc");
}

TEST_F(FindFileNearProgram_, AsksForTheModuleThatIsNamed) {
  const int module = 0;
  test::WriteFile("d:\\modules\\a.rc", "");
  test::SetModulePath(&module, "d:\\modules\\control.dll");
  host::Path result;
  FindFileNearProgram(&module, "a.rc", result);
  EXPECT_EQ(result.view(), "d:\\modules\\a.rc");
  EXPECT_EQ(Find("a.rc"), "");
}

TEST_F(FindFileNearProgram_, TakesAFullPathAsItStandsAndNothingFurther) {
  test::WriteFile("c:\\home\\a.rc", "");
  EXPECT_EQ(Find("c:\\home\\a.rc"), "c:\\home\\a.rc");
  EXPECT_EQ(Find("C:/Home/A.rc"), "C:/Home/A.rc");
  EXPECT_EQ(Find("c:\\other\\a.rc"), "");
  EXPECT_EQ(Find("c:a.rc"), "");
  EXPECT_EQ(Find("c:\\home\\"), "");
}

TEST_F(FindFileNearProgram_, RefusesADirectoryWithoutADrive) {
  test::WriteFile("c:\\home\\sub\\a.rc", "");
  test::WriteFile("c:\\home\\a.rc", "");
  EXPECT_EQ(Find("sub\\a.rc"), "");
  EXPECT_EQ(Find(".\\a.rc"), "");
  EXPECT_EQ(Find("\\home\\a.rc"), "");
}

TEST_F(FindFileNearProgram_, FindsNothingForEmptyNames) {
  EXPECT_EQ(Find(nullptr), "");
  EXPECT_EQ(Find(""), "");
  test::WriteFile("c:\\home\\.rc", "");
  EXPECT_EQ(Find(".rc"), "");
}

TEST_F(FindFileNearProgram_, CutsToTheBuffer) {
  test::WriteFile("c:\\home\\a.rc", "");
  test::ExpectCutToFit("c:\\home\\a.rc",
                       [](TextBuffer buffer) { FindFileNearProgram(nullptr, "a.rc", buffer); });
}

TEST_F(FindFileNearProgram_, ANameTooLongForAPathIsNotFoundCut) {
  const std::string folder = "c:\\" + std::string(240, 'd');
  test::SetCurrentDirectory(folder);
  test::WriteFile(folder + "\\0123456789abcde", "");
  EXPECT_EQ(Find("0123456789abcde"), folder + "\\0123456789abcde");
  EXPECT_EQ(Find("0123456789abcdef"), "");
}

TEST(QualifyFileName, PutsTogetherWhatIsMissing) {
  const struct {
    const char *name, *directory, *result;
  } cases[] = {
      // Drive and rooted directory: unchanged.
      {"d:\\x\\a.rc", "c:\\home\\", "d:\\x\\a.rc"},
      {"d:/a.rc", "c:\\home\\", "d:/a.rc"},
      // No drive, rooted directory: the drive.
      {"\\x\\a.rc", "c:\\home\\", "c:\\x\\a.rc"},
      {"/a.rc", "c:/home/", "c:/a.rc"},
      // No drive, relative directory: drive and directory.
      {"x\\a.rc", "c:\\home\\", "c:\\home\\x\\a.rc"},
      {"..\\a.rc", "c:\\home\\", "c:\\home\\..\\a.rc"},
      // Bare file name: drive and directory.
      {"a.rc", "c:\\home\\", "c:\\home\\a.rc"},
      {"a", "c:\\", "c:\\a"},
      {"a", "c:/", "c:/a"},
      // Where the rule doesn't apply.
      {"", "c:\\home\\", ""},
      {".rc", "c:\\home\\", ""},
      {"x\\", "c:\\home\\", ""},
      {"d:a.rc", "c:\\home\\", ""},
      {"d:x\\a.rc", "c:\\home\\", ""},
      {"a.rc", "", ""},
      {"a.rc", "\\home\\", ""},
      {"a.rc", "c:home\\", ""},
      {"a.rc", "c:\\home", ""},
      {"a.rc", "c:\\home\\.x", ""},
      {"a.rc", "c:", ""},
      {nullptr, "c:\\", ""},
      {"a.rc", nullptr, ""},
  };
  for (const auto& expected : cases) {
    SCOPED_TRACE(::testing::Message() << View(expected.name) << " against " << View(expected.directory));
    host::Path result;
    result.Assign("soil");
    QualifyFileName(expected.name, expected.directory, result);
    EXPECT_EQ(result.view(), expected.result);
  }
}

TEST(QualifyFileName, MayOverwriteItsName) {
  host::Path name;
  name.Assign("a.rc");
  QualifyFileName(name.c_str(), "c:\\home\\", name);
  EXPECT_EQ(name.view(), "c:\\home\\a.rc");
}

TEST(QualifyFileName, CutsToTheBuffer) {
  test::ExpectCutToFit("c:\\home\\a.rc",
                       [](TextBuffer buffer) { QualifyFileName("a.rc", "c:\\home\\", buffer); });
}

}  // namespace
}  // namespace brelt::rc
