#include "tests/resprops/surgerysupport.h"

namespace brelt::resprops {
namespace {

using test::AfterRename;
using test::Crlf;
using test::kRc;
using test::Rename;

TEST(ResourceRename, ChangesTheFirstLineAndNothingElse) {
  struct Case {
    const char* before;
    const char* after;
  };
  const Case cases[] = {
      {"A DIALOG 0,0,1,1\nBEGIN\nEND\n", "NEW DIALOG 0,0,1,1\nBEGIN\nEND\n"},
      {"\t a \t menu   PRELOAD  DISCARDABLE // A\nBEGIN\nEND\n",
       "NEW menu PRELOAD  DISCARDABLE // A\nBEGIN\nEND\n"},
      {"A MENU\nBEGIN\nEND\n", "NEW MENU \nBEGIN\nEND\n"},
      {"A ICON\"a.ico\"", "NEW ICON \"a.ico\"\n"},
      {"#define A 1\n\n// A\nA ICON a.ico\n\nD DIALOG 0,0,1,1\nMENU A\nBEGIN\nICON \"A\",A,1,2,3,4\nEND\n",
       "#define A 1\n\n// A\nNEW ICON a.ico\n\nD DIALOG 0,0,1,1\nMENU A\nBEGIN\nICON \"A\",A,1,2,3,4\nEND\n"},
      {"A ICON a.ico\nA ICON b.ico\n", "NEW ICON a.ico\nA ICON b.ico\n"},
      {"A MENU /* x */ BEGIN\nEND\n", "NEW MENU /* x */ BEGIN\nEND\n"},
      {"A THISKEYWORDISLONGERTHANTHEFORTYCHARACTERSOFANAME x\nEND\n",
       "NEW THISKEYWORDISLONGERTHANTHEFORTYCHARACTERSOFANAME x\nEND\n"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.before);
    EXPECT_EQ(AfterRename(expected.before, "A", "NEW"), Crlf(expected.after));
  }
}

TEST(ResourceRename, KeepsWhatStandsBehindAZeroByte) {
  using std::string_literals::operator""s;
  EXPECT_EQ(AfterRename("A ICON a.ico\0 more\nB ICON b\n"s, "A", "NEW"),
            Crlf("NEW ICON a.ico\0 more\nB ICON b\n"s));
}

TEST(ResourceRename, TellsWhyItCannotInAFixedOrder) {
  struct Case {
    const char* from;
    const char* to;
    const char* message;
  };
  const Case cases[] = {
      {"", "", "Cannot rename resource, the name is missing."},
      {"", "B", "Cannot rename resource, the name is missing."},
      {"A", "", "Cannot rename <A>, the new name was not given."},
      {"NONE", "", "Cannot rename <NONE>, the new name was not given."},
      {"NONE", "9", "Cannot rename <NONE>, the new name is invalid."},
      {"A", "a b", "Cannot rename <A>, the new name is invalid."},
      {"A", " B", "Cannot rename <A>, the new name is invalid."},
      {"A", "*", "Cannot rename <A>, the new name is invalid."},
      {"NONE", "OTHER", "Cannot rename <NONE>, it does not exist."},
      {"*", "OTHER", "Cannot rename <*>, it does not exist."},
      {"a", "b", "Cannot rename <a>, the new name is already in use."},
      {"A", "A", "Cannot rename <A>, the new name is already in use."},
      {"A", "a", "Cannot rename <A>, the new name is already in use."},
  };
  const std::string text = "A ICON a.ico\nB MENU\nBEGIN\nEND\n";
  test::SetFile(text);
  for (const Case& expected : cases) {
    SCOPED_TRACE(std::string(expected.from) + " to " + expected.to);
    EXPECT_EQ(Rename(expected.from, expected.to), expected.message);
  }
  EXPECT_EQ(test::MessageOf([](rc::TextBuffer error) { ResourceRename(kRc, nullptr, "B", error); }),
            "Cannot rename resource, the name is missing.");
  EXPECT_EQ(test::MessageOf([](rc::TextBuffer error) { ResourceRename(kRc, "A", nullptr, error); }),
            "Cannot rename <A>, the new name was not given.");
  test::SetReadOnly(kRc, true);
  EXPECT_EQ(Rename("", ""), "Cannot modify the following read-only file: c:\\home\\a.rc");
  EXPECT_EQ(Rename("", "", "none.rc"), "Resource file <c:\\home\\none.rc> is invalid or missing.");
  test::MakeDirectory("c:\\home\\folder.rc");
  EXPECT_EQ(Rename("A", "C", "folder.rc"), "Resource file <c:\\home\\folder.rc> is invalid or missing.");
  EXPECT_EQ(Rename("", "", "sub\\a.rc"),
            "The file <sub\\a.rc> should be a full path with a drive letter or just a filename");
  EXPECT_EQ(Rename("", "", nullptr),
            "The file <> should be a full path with a drive letter or just a filename");
  EXPECT_EQ(test::ReadFile(kRc), text);
  EXPECT_EQ(test::ListFiles().size(), 2U);
}

TEST(ResourceRename, CopiesTheFileAndSaysSoWhereTheFirstLineHasAnotherName) {
  test::SetFile("STRINGTABLE DISCARDABLE\nBEGIN\nEND\nLANGUAGE LANG_ENGLISH, 1\n");
  EXPECT_EQ(Rename("1", "NEW"), "Cannot rename <1>, it was not in the file.");
  EXPECT_EQ(Rename("LANG_ENGLISH", "NEW"), "Cannot rename <LANG_ENGLISH>, it was not in the file.");
  EXPECT_EQ(test::ReadFile(kRc), Crlf("STRINGTABLE DISCARDABLE\nBEGIN\nEND\nLANGUAGE LANG_ENGLISH, 1\n"));
  EXPECT_EQ(test::ListFiles().size(), 1U);
}

TEST(ResourceRename, CutsNamesAt40) {
  const std::string longName(45, 'n');
  test::SetFile(longName + " ICON a.ico\n");
  EXPECT_EQ(Rename(longName, std::string(50, 'x')), "");
  EXPECT_EQ(test::ReadFile(kRc), Crlf(std::string(40, 'x') + " ICON a.ico\n"));
}

TEST(ResourceRename, CutsItsMessageToTheBuffer) {
  test::SetFile("A ICON a.ico\n");
  test::ExpectCutToFit(Rename("NONE", "B"),
                       [](rc::TextBuffer error) { ResourceRename(kRc, "NONE", "B", error); });
}

TEST(ResourceRename, DoesNothingWithoutAnErrorBuffer) {
  test::SetFile("A ICON a.ico\n");
  ResourceRename(kRc, "A", "B", {});
  EXPECT_EQ(test::ReadFile(kRc), "A ICON a.ico\n");
}

}  // namespace
}  // namespace brelt::resprops
