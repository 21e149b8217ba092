#include "tests/resprops/surgerysupport.h"

namespace brelt::resprops {
namespace {

using test::AfterDelete;
using test::Crlf;
using test::Delete;
using test::kRc;

constexpr const char* kMenu = "M MENU\nBEGIN\nMENUITEM \"a\",A\nEND\n";

TEST(ResourceDelete, TakesTheLinesOfTheResourceAndAnEmptyOneBehindIt) {
  struct Case {
    const char* before;
    const char* after;
  };
  const Case cases[] = {
      {"I ICON a.ico\nM MENU\nBEGIN\nEND\nX ICON x.ico\n", "I ICON a.ico\nX ICON x.ico\n"},
      {"M MENU\nBEGIN\nEND\n\nX ICON x.ico\n", "X ICON x.ico\n"},
      {"M MENU\nBEGIN\nEND\n\n\nX ICON x.ico\n", "\nX ICON x.ico\n"},
      {"M MENU\nBEGIN\nEND\n// a comment\n\nX ICON x.ico\n", "// a comment\n\nX ICON x.ico\n"},
      {"M MENU\nBEGIN\nEND\n \nX ICON x.ico\n", " \nX ICON x.ico\n"},
      {"// first\n\nM MENU\nBEGIN\nEND\n\n// last", "// first\n\n// last\n"},
      {"// first\nm menu /* all */ begin end\nend\n", "// first\n"},
      {"X ICON x.ico\nM BITMAP m.bmp\nM MENU\nBEGIN\nEND\n", "X ICON x.ico\nM MENU\nBEGIN\nEND\n"},
      {"X ICON x.ico\nM MENU\nBEGIN\n", "X ICON x.ico\n"},
      {"X ICON x.ico\r\n\r\nM ICON m.ico\r\n\r\nY ICON y.ico\r\n", "X ICON x.ico\n\nY ICON y.ico\n"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.before);
    EXPECT_EQ(AfterDelete(expected.before, "M"), Crlf(expected.after));
  }
}

TEST(ResourceDelete, FindsEachKindOfResourceByItsName) {
  const std::string rest = "X ICON x.ico\n";
  EXPECT_EQ(AfterDelete("STRINGTABLE DISCARDABLE\nBEGIN\n1 \"a\"\nEND\n" + rest, "1"), Crlf(rest));
  EXPECT_EQ(AfterDelete("LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US\n" + rest, "lang_english"), Crlf(rest));
  EXPECT_EQ(AfterDelete("7 ACCELERATORS\nBEGIN\nEND\n" + rest, "7"), Crlf(rest));
  EXPECT_EQ(AfterDelete("A B c.d\nEND\n" + rest, "a"), Crlf(rest));
}

TEST(ResourceDelete, OfADialogTakesItsMenuItsIconsAndTheNamesThatNothingUses) {
  const std::string before =
      "#define OK 100\n#define A 101\n#define KEPT 102\n\n"
      "I1 ICON 1.ico\n\nI2 ICON 2.ico\n\nI3 ICON 3.ico\n\n" +
      std::string(kMenu) +
      "\nD DIALOG 1,2,3,4\nMENU M\nBEGIN\nICON \"I1\",-1,1,2,3,4\nICON I2,-1,1,2,3,4\nLTEXT "
      "\"I3\",OK,1,2,3,4\nEND\n\n"
      "E DIALOG 1,2,3,4\nBEGIN\nLTEXT \"\",KEPT,1,2,3,4\nEND\n";
  EXPECT_EQ(
      AfterDelete(before, "D"),
      Crlf("#define KEPT 102\n\nI3 ICON 3.ico\n\nE DIALOG 1,2,3,4\nBEGIN\nLTEXT \"\",KEPT,1,2,3,4\nEND\n"));
}

TEST(ResourceDelete, OfADialogLeavesTheIconsThatOtherControlsThanIconsName) {
  // Check boxes have the same low bits as icons.
  EXPECT_EQ(AfterDelete("I ICON i.ico\nD DIALOG 1,2,3,4\nBEGIN\nAUTOCHECKBOX \"I\",-1,1,2,3,4\n"
                        "CONTROL \"I\",-1,\"IMAGE\",0x3,1,2,3,4\nEND\n",
                        "D"),
            Crlf("I ICON i.ico\n"));
}

TEST(ResourceDelete, OfADialogTakesAMenuAlsoWhereAnotherUsesIt) {
  const std::string form = " DIALOG 1,2,3,4\nMENU M\nBEGIN\nEND\n";
  EXPECT_EQ(AfterDelete(std::string(kMenu) + "D" + form + "E" + form, "D"), Crlf("E" + form));
}

TEST(ResourceDelete, TakesWhatStandsUnderTheNamesOfMenusAndIconsWhateverItIs) {
  // A DIALOG named by a MENU statement goes with its own menu and icons; a chain of them to its end.
  EXPECT_EQ(AfterDelete("X ICON x.ico\nI ICON i.ico\n" + std::string(kMenu) +
                            "C DIALOG 1,2,3,4\nMENU M\nBEGIN\nEND\n"
                            "B DIALOG 1,2,3,4\nMENU C\nBEGIN\nICON \"I\",-1,1,2,3,4\nEND\n"
                            "A DIALOG 1,2,3,4\nMENU B\nBEGIN\nEND\n",
                        "A"),
            Crlf("X ICON x.ico\n"));
  EXPECT_EQ(AfterDelete("X ICON x.ico\nA DIALOG 1,2,3,4\nMENU A\nBEGIN\nEND\n", "A"), Crlf("X ICON x.ico\n"));
  EXPECT_EQ(
      AfterDelete("X ICON x.ico\nB BITMAP b.bmp\nA DIALOG 1,2,3,4\nBEGIN\nICON \"B\",-1,1,2,3,4\nEND\n", "A"),
      Crlf("X ICON x.ico\n"));
  EXPECT_EQ(AfterDelete("X ICON x.ico\nA DIALOG 1,2,3,4\nBEGIN\nICON \"NONE\",-1,1,2,3,4\nEND\n", "A"),
            Crlf("X ICON x.ico\n"));
}

TEST(ResourceDelete, FollowsAChainOfAnyLength) {
  constexpr int kLength = 300;
  std::string text = "X ICON x.ico\n";
  for (int i = 0; i < kLength; ++i) {
    text += "D" + std::to_string(i) + " DIALOG 1,2,3,4\nMENU D" + std::to_string(i + 1) + "\nBEGIN\nEND\n";
  }
  EXPECT_EQ(AfterDelete(text, "D0"), Crlf("X ICON x.ico\n"));
  EXPECT_EQ(test::LiveAllocations(), 0);
}

TEST(ResourceDelete, OfADialogThatDoesNotParseTakesNothingElse) {
  EXPECT_EQ(AfterDelete(std::string(kMenu) + "D DIALOG 1,2,3,4\nMENU M\nBEGIN\nWRONG\nEND\n", "D"),
            Crlf(kMenu));
}

TEST(ResourceDelete, OfAMenuOrAnIconLeavesTheDefineLines) {
  const std::string defines = "#define A 1\n#define B 1\n\n";
  const std::string rest = "D DIALOG 1,2,3,4\nMENU M\nBEGIN\nICON \"I\",A,1,2,3,4\nEND\n";
  EXPECT_EQ(AfterDelete(defines + kMenu + rest, "M"), Crlf(defines + rest));
  EXPECT_EQ(AfterDelete(defines + "I ICON i.ico\n\n" + rest, "I"), Crlf(defines + rest));
}

TEST(ResourceDelete, KeepsTheLinesOfCommonIdentifiersThatAreStillUsed) {
  const std::string form = " DIALOG 1,2,3,4\nBEGIN\nLTEXT \"\",IDOK,1,2,3,4\nEND\n";
  EXPECT_EQ(AfterDelete("#define IDOK 1\n#define IDCANCEL 2\n\nD" + form + "E" + form, "D"),
            Crlf("#define IDOK 1\n\nE" + form));
}

TEST(ResourceDelete, MakesNoBlockWhereTheFileHasNoDefines) {
  const std::string rest = "E DIALOG 1,2,3,4\nBEGIN\nLTEXT \"\",KEPT,1,2,3,4\nEND\n";
  EXPECT_EQ(AfterDelete("D DIALOG 1,2,3,4\nBEGIN\nEND\n\n" + rest, "D"), Crlf(rest));
}

TEST(ResourceDelete, LeavesAnEmptyLineWhereNoNameIsUsedAnyMore) {
  EXPECT_EQ(
      AfterDelete("#define A 1\nX ICON x.ico\nD DIALOG 1,2,3,4\nBEGIN\nLTEXT \"\",A,1,2,3,4\nEND\n", "D"),
      Crlf("\nX ICON x.ico\n"));
}

TEST(ResourceDelete, OfTheOnlyResourceLeavesAnEmptyFileAndTheOldOneBesideIt) {
  const std::string text = "M MENU\nBEGIN\nEND\n";
  test::SetFile(text);
  EXPECT_EQ(Delete("M"), "");
  EXPECT_TRUE(test::FileExists(kRc));
  EXPECT_EQ(test::ReadFile(kRc), "");
  EXPECT_EQ(test::ReadFile("c:\\home\\1.tmp"), text);
}

TEST(ResourceDelete, TellsWhyItCannot) {
  test::SetFile("A ICON a.ico\n");
  test::SetReadOnly(kRc, true);
  EXPECT_EQ(Delete("A"), "Cannot modify the following read-only file: c:\\home\\a.rc");
  EXPECT_EQ(Delete("A", "a.rc"), "Cannot modify the following read-only file: c:\\home\\a.rc");
  EXPECT_EQ(Delete("NONE"), "Cannot modify the following read-only file: c:\\home\\a.rc");
  EXPECT_EQ(test::ReadFile(kRc), "A ICON a.ico\n");
  for (const char* name : {"sub\\a.rc", "c:a.rc", "\\work\\a.rc"}) {
    EXPECT_EQ(Delete("A", name), "The file <" + std::string(name) +
                                     "> should be a full path with a drive letter or just a filename");
  }
  EXPECT_EQ(Delete("A", nullptr), "The file <> should be a full path with a drive letter or just a filename");
}

TEST(ResourceDelete, ShowsTheNameAsItIsWhereThereIsNoCurrentDirectory) {
  test::SetFile("A ICON a.ico\n");
  test::SetCurrentDirectory("");
  const std::string message = "The file <a.rc> should be a full path with a drive letter or just a filename";
  EXPECT_EQ(Delete("A", "a.rc"), message);
  EXPECT_EQ(test::Rename("A", "B", "a.rc"), message);
  EXPECT_EQ(test::WriteText("A ICON b.ico\n", "a.rc"), message);
}

TEST(ResourceDelete, SaysNothingAboutWhatIsNotThere) {
  test::SetFile("A ICON a.ico\n");
  test::MakeDirectory("c:\\home\\folder.rc");
  EXPECT_EQ(Delete("NONE"), "");
  EXPECT_EQ(Delete(""), "");
  EXPECT_EQ(Delete("", "sub\\a.rc"), "");
  EXPECT_EQ(Delete("*"), "");
  EXPECT_EQ(Delete("A", "none.rc"), "");
  EXPECT_EQ(Delete("A", "folder.rc"), "");
  EXPECT_EQ(Delete("A", "c:\\\\home\\a.rc"), "");
  EXPECT_EQ(test::MessageOf([](rc::TextBuffer error) { ResourceDelete(kRc, nullptr, error); }), "");
  ResourceDelete(kRc, "A", {});
  // Not even that there is no memory for it.
  test::FailAllocation(0);
  EXPECT_EQ(Delete("A", "none.rc"), "");
  EXPECT_EQ(test::ReadFile(kRc), "A ICON a.ico\n");
  EXPECT_EQ(test::ListFiles().size(), 2U);
}

TEST(ResourceDelete, TakesABareNameInTheCurrentDirectoryAndCutsNamesAt40) {
  const std::string name(40, 'n');
  test::SetFile("X ICON x.ico\n" + name + " ICON a.ico\n");
  EXPECT_EQ(Delete(name + "more", "A.RC"), "");
  EXPECT_EQ(test::ReadFile(kRc), Crlf("X ICON x.ico\n"));
}

TEST(ResourceDelete, CutsItsMessageToTheBuffer) {
  test::SetFile("A ICON a.ico\n");
  test::SetReadOnly(kRc, true);
  test::ExpectCutToFit(Delete("A"), [](rc::TextBuffer error) { ResourceDelete(kRc, "A", error); });
}

TEST(ResourceDelete, EachAllocationThatFailsIsToldAndLeavesTheFileOrTakesAllOfIt) {
  const std::string before = "#define A 1\n\nX ICON x.ico\nI ICON i.ico\n" + std::string(kMenu) +
                             "D DIALOG 1,2,3,4\nMENU M\nBEGIN\nICON \"I\",A,1,2,3,4\nEND\n";
  const std::string after = AfterDelete(before, "D");
  for (int n = 0;; ++n) {
    SCOPED_TRACE(n);
    test::SetFile(before);
    test::FailAllocation(n);
    const std::string message = Delete("D");
    if (n >= test::AllocationCount()) {
      EXPECT_EQ(message, "");
      EXPECT_EQ(test::ReadFile(kRc), after);
      EXPECT_GT(n, 256);
      break;
    }
    EXPECT_EQ(test::LiveAllocations(), 0);
    EXPECT_EQ(test::ListFiles().size(), 1U);
    if (test::ReadFile(kRc) == before) {
      EXPECT_EQ(message, "Ran out of memory while deleting the following resource: D");
    } else if (message.empty()) {
      // The symbols couldn't be loaded; their message is nobody's, and their lines stay.
      EXPECT_EQ(test::ReadFile(kRc), Crlf("#define A 1\n\nX ICON x.ico\n"));
    } else {
      EXPECT_EQ(message, "Ran out of memory while deleting the following resource: D");
    }
  }
}

}  // namespace
}  // namespace brelt::resprops
