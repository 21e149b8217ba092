#include "rc/locate.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/guarded.h"
#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

constexpr const char* kPath = "c:\\home\\a.rc";

struct Found {
  std::string text;
  int first;
  int last;
};

class Located : public ::testing::Test {
 protected:
  Located() { test::ResetHost(); }

  static Found Locate(const char* name, const char* types) {
    FixedText<9999> out("soil");
    LineRange lines{77, 77};
    const int length = LocateResource(kPath, name, types, out, &lines);
    EXPECT_EQ(length, static_cast<int>(out.view().size()));
    EXPECT_EQ(test::OpenFiles(), 0);
    return {std::string(out.view()), lines.first, lines.last};
  }
  static Found LocateIn(const std::string& file, const char* name, const char* types) {
    test::WriteFile(kPath, file);
    return Locate(name, types);
  }
  static std::string List(const std::string& file, const char* types = "*") {
    const Found found = LocateIn(file, "*", types);
    EXPECT_EQ(found.first, 0);
    EXPECT_EQ(found.last, 0);
    return found.text;
  }
};

void ExpectFound(const Found& found, const std::string& text, int first, int last) {
  EXPECT_EQ(found.text, text);
  EXPECT_EQ(found.first, first);
  EXPECT_EQ(found.last, last);
}

constexpr const char* kForms =
    "#include \"forms.h\"\n"
    "\n"
    "FIRST DIALOG 0,0,10,10\n"
    "BEGIN\n"
    "  LTEXT \"a\",IDC_A,1,2,3,4\n"
    "END\n"
    "SECOND MENU\n"
    "BEGIN\n"
    "  POPUP \"&File\"\n"
    "  BEGIN\n"
    "    MENUITEM \"&Open\",1\n"
    "  END\n"
    "END\n"
    "THIRD DIALOG 0,0,10,10\n"
    "BEGIN\n"
    "END";

TEST_F(Located, TheTextRunsFromTheHeaderToTheEndWithItsLineFeeds) {
  ExpectFound(LocateIn(kForms, "FIRST", "DIALOG"),
              "FIRST DIALOG 0,0,10,10\nBEGIN\n  LTEXT \"a\",IDC_A,1,2,3,4\nEND\n", 3, 6);
  ExpectFound(Locate("SECOND", "MENU"),
              "SECOND MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"&Open\",1\n  END\nEND\n", 7,
              13);
}

TEST_F(Located, AFileWithoutAFinalLineFeedIsReadToItsEnd) {
  ExpectFound(LocateIn(kForms, "THIRD", "DIALOG"), "THIRD DIALOG 0,0,10,10\nBEGIN\nEND", 14, 16);
}

TEST_F(Located, ReadsCarriageReturnsAndLineFeedsAsLineFeeds) {
  ExpectFound(LocateIn("A DIALOG 0,0,1,1\r\nBEGIN\r\nEND\r\n", "A", "DIALOG"),
              "A DIALOG 0,0,1,1\nBEGIN\nEND\n", 1, 3);
}

TEST_F(Located, Byte26EndsTheFile) {
  ExpectFound(LocateIn("A DIALOG 0,0,1,1\nBEGIN\n\x1A"
                       "END\nB MENU\nBEGIN\nEND\n",
                       "A", "DIALOG"),
              "A DIALOG 0,0,1,1\nBEGIN\n", 1, 2);
  ExpectFound(Locate("B", "MENU"), "", 0, 0);
}

TEST_F(Located, CaseDoesNotMatterAndTheTextKeepsItsOwn) {
  ExpectFound(LocateIn("foo dialog 0,0,1,1\nbegin\nend\n", "FOO", "DIALOG"),
              "foo dialog 0,0,1,1\nbegin\nend\n", 1, 3);
  ExpectFound(Locate("Foo", "Dialog\n"), "foo dialog 0,0,1,1\nbegin\nend\n", 1, 3);
}

TEST_F(Located, TheTypeMayBeAnyOrSeveral) {
  for (const char* types : {"*", "DIALOG", "DIALOG\n", "MENU\nDIALOG\n", "DIALOG\nMENU\n", "menu\ndialog"}) {
    SCOPED_TRACE(types);
    EXPECT_EQ(LocateIn(kForms, "FIRST", types).first, 3);
  }
  for (const char* types : {"", "MENU", "MENU\n", "DIALOGS", "DIALO", "**", "DIALOG,MENU", "DIALOG MENU"}) {
    SCOPED_TRACE(types);
    ExpectFound(LocateIn(kForms, "FIRST", types), "", 0, 0);
  }
}

TEST_F(Located, OfATypeListOnly1024CharactersAreLookedAt) {
  test::WriteFile(kPath, kForms);
  EXPECT_EQ(Locate("FIRST", (std::string(1016, 'X') + "\nDIALOG\n").c_str()).first, 3);
  EXPECT_EQ(Locate("FIRST", (std::string(1016, 'X') + "\nDIALOG").c_str()).first, 3);
  EXPECT_EQ(Locate("FIRST", (std::string(1017, 'X') + "\nDIALOG\n").c_str()).first, 0);
}

TEST_F(Located, AKeywordThatIsTheTailOfTheTypeSoughtIsFoundToo) {
  ExpectFound(LocateIn("A LOG 1\nBEGIN\nEND\n", "A", "DIALOG"), "A LOG 1\nBEGIN\nEND\n", 1, 3);
  EXPECT_EQ(List("A LOG 1\nBEGIN\nEND\n", "DIALOG"), "A,LOG\n");
}

TEST_F(Located, NothingIsFoundWithoutANameOrAType) {
  test::WriteFile(kPath, kForms);
  ExpectFound(Locate(nullptr, "*"), "", 0, 0);
  ExpectFound(Locate("", "*"), "", 0, 0);
  ExpectFound(Locate("FIRST", nullptr), "", 0, 0);
  ExpectFound(Locate("*", nullptr), "", 0, 0);
  ExpectFound(Locate("*", ""), "", 0, 0);
  ExpectFound(Locate("NONE", "*"), "", 0, 0);
}

TEST_F(Located, TheFileMustBeAFullPathOrABareNameAndHoldSomething) {
  test::WriteFile("c:\\home\\a.rc", kForms);
  test::WriteFile("c:\\home\\sub\\a.rc", kForms);
  test::WriteFile("c:\\home\\empty.rc", "");
  const struct {
    const char* file;
    bool found;
  } cases[] = {{"c:\\home\\a.rc", true}, {"c:/home/A.RC", true}, {"a.rc", true},     {"sub\\a.rc", false},
               {"\\work\\a.rc", false},  {"c:a.rc", false},      {"", false},        {nullptr, false},
               {"missing.rc", false},    {"empty.rc", false},    {"c:\\home", false}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(View(expected.file));
    FixedText<999> out("soil");
    LineRange lines{77, 77};
    EXPECT_EQ(LocateResource(expected.file, "FIRST", "DIALOG", out, &lines) > 0, expected.found);
    EXPECT_EQ(out.IsEmpty(), !expected.found);
    EXPECT_EQ(lines.first, expected.found ? 3 : 0);
  }
}

TEST_F(Located, TellsASearchThatFoundNothingFromOneThatCouldNotReadTheFile) {
  test::WriteFile(kPath, kForms);
  test::WriteFile("c:\\home\\empty.rc", "");
  LineRange lines;
  for (const char* whole : {kPath, "c:\\home\\empty.rc", "sub\\a.rc"}) {
    LocateResource(whole, "NOWHERE", "DIALOG", {}, &lines);
    EXPECT_FALSE(lines.broken) << whole;
  }
  LocateResource("c:\\home\\none.rc", "NOWHERE", "DIALOG", {}, &lines);
  EXPECT_TRUE(lines.broken);
  // Size, open and two reads; a failed close hurts nobody who only reads.
  for (int n = 0; n < 5; ++n) {
    test::FailFileOperation(n);
    LocateResource(kPath, "NOWHERE", "DIALOG", {}, &lines);
    EXPECT_EQ(lines.broken, n < 4) << n;
  }
}

TEST_F(Located, FailingFileOperationsFindNothing) {
  test::WriteFile(kPath, kForms);
  for (int n = 0;; ++n) {
    SCOPED_TRACE(n);
    test::FailFileOperation(n);
    FixedText<9999> out("soil");
    LineRange lines{77, 77};
    LocateResource(kPath, "THIRD", "DIALOG", out, &lines);
    const bool failed = n < test::FileOperationCount();
    EXPECT_EQ(test::OpenFiles(), 0);
    if (!failed) {
      EXPECT_EQ(lines.first, 14);
      break;
    }
    // Size, open and read; a failed close hurts nobody who only reads.
    if (n < 3) {
      ExpectFound({std::string(out.view()), lines.first, lines.last}, "", 0, 0);
    }
  }
}

TEST_F(Located, CutsToTheBufferWithoutASign) {
  test::WriteFile(kPath, kForms);
  test::ExpectCutToFit("THIRD DIALOG 0,0,10,10\nBEGIN\nEND", [](TextBuffer buffer) {
    const int length = LocateResource(kPath, "THIRD", "DIALOG", buffer);
    EXPECT_EQ(length, static_cast<int>(View(buffer.c_str()).size()));
  });
  test::ExpectCutToFit("FIRST,DIALOG\nSECOND,MENU\nTHIRD,DIALOG\n",
                       [](TextBuffer buffer) { LocateResource(kPath, "*", "*", buffer); });
  // The lines are those of the whole resource all the same.
  char small[10];
  LineRange lines;
  EXPECT_EQ(LocateResource(kPath, "FIRST", "DIALOG", {small, 10}, &lines), 9);
  EXPECT_EQ(lines.last, 6);
}

TEST_F(Located, ListsTheHeadersOfTheTypesInFileOrder) {
  EXPECT_EQ(List(kForms), "FIRST,DIALOG\nSECOND,MENU\nTHIRD,DIALOG\n");
  EXPECT_EQ(List(kForms, "DIALOG"), "FIRST,DIALOG\nTHIRD,DIALOG\n");
  EXPECT_EQ(List(kForms, "menu\nicon\n"), "SECOND,MENU\n");
  EXPECT_EQ(List("Abc menu\nbegin\nend\n"), "Abc,MENU\n");
  EXPECT_EQ(List("A ICON a.ico\nA ICON b.ico\n"), "A,ICON\nA,ICON\n");
}

TEST_F(Located, OnlyALetterOrDigitAndThenALetterMakeAHeader) {
  const struct {
    const char* line;
    const char* listed;
  } cases[] = {{"A ICON x.ico", "A,ICON\n"},
               {"1 ICON x.ico", "1,ICON\n"},
               {"  \tA ICON x.ico", "A,ICON\n"},
               {"A_1 icon x.ico", "A_1,ICON\n"},
               {"0x10 ICON x.ico", "0x10,ICON\n"},
               {"1.5 ICON x.ico", "1.5,ICON\n"},
               {"AICON \"x.ico\"", ""},
               {"A", ""},
               {"A 1", ""},
               {"A \"ICON\"", ""},
               {"\"A\" ICON x.ico", ""},
               {"+1 ICON x.ico", ""},
               {"_A ICON x.ico", ""},
               {"A _ICON x.ico", ""},
               {"#include ICON", ""},
               {"#define A ICON", ""},
               {"#ifdef ICON", ""},
               {"", ""},
               {"// A ICON x.ico", ""},
               {"A // ICON x.ico", ""},
               {"LANGUAGE 9, 1", ""},
               {"STRINGTABLE", ""},
               {"1e+ ICON", ""}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.line);
    EXPECT_EQ(List(std::string(expected.line) + "\n"), expected.listed);
  }
}

TEST_F(Located, EveryStringTableIsNamedOne) {
  const char* file = "STRINGTABLE DISCARDABLE\nBEGIN\n 1 \"a\"\nEND\nstringtable fixed\nBEGIN\nEND\n";
  EXPECT_EQ(List(file), "1,STRINGTABLE\n1,STRINGTABLE\n");
  ExpectFound(Locate("1", "STRINGTABLE"), "STRINGTABLE DISCARDABLE\nBEGIN\n 1 \"a\"\nEND\n", 1, 4);
}

TEST_F(Located, AStringTableOnALineOfItsOwnIsNoHeader) {
  EXPECT_EQ(List("STRINGTABLE\nBEGIN\n 1 \"a\"\nEND\nA ICON a.ico\n"), "A,ICON\n");
}

TEST_F(Located, ALanguageWordIsAOneLineResource) {
  const char* file = "LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US\nA ICON a.ico\nlanguage x, y\n";
  EXPECT_EQ(List(file), "LANG_ENGLISH,LANGUAGE\nA,ICON\nx,LANGUAGE\n");
  ExpectFound(Locate("lang_english", "LANGUAGE"), "LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US\n", 1, 1);
}

TEST_F(Located, TokensOfTheFileAreHeldTo40CharactersAndTheNameSoughtIsNot) {
  const std::string name(40, 'n');
  const std::string file = name + "xyz ICON a.ico\n";
  EXPECT_EQ(List(file), name + ",ICON\n");
  EXPECT_EQ(Locate(name.c_str(), "*").first, 1);
  EXPECT_EQ(Locate((name + "xyz").c_str(), "*").first, 0);
  const std::string keyword(40, 'K');
  EXPECT_EQ(List("A " + keyword + "xyz 1\nEND\n"), "A," + keyword + "\n");
}

TEST_F(Located, BlockKindsEndAtTheEndThatClosesTheirBegins) {
  for (const char* keyword :
       {"ACCELERATORS", "DBFILE", "DIALOG", "MENU", "RCDATA", "TEXTINCLUDE", "VERSIONINFO", "menu"}) {
    SCOPED_TRACE(keyword);
    const std::string text = std::string("A ") + keyword + "\nBEGIN\n x\n begin\n END\n y\nEnd\n";
    ExpectFound(LocateIn(text + "B ICON b.ico\n", "A", "*"), text, 1, 7);
    EXPECT_EQ(Locate("B", "*").first, 8);
  }
  const std::string table = "STRINGTABLE FIXED\nBEGIN\n 1 \"a\"\n BEGIN\n END\nEND\n";
  ExpectFound(LocateIn(table + "B ICON b.ico\n", "1", "*"), table, 1, 6);
}

TEST_F(Located, SingleLineKindsEndOnTheirHeader) {
  for (const char* keyword : {"BITMAP", "CURSOR", "FONT", "ICON", "DLGINCLUDE", "INCFILE", "icon"}) {
    SCOPED_TRACE(keyword);
    const std::string text = std::string("A ") + keyword + " a.x\n";
    ExpectFound(LocateIn(text + "B MENU\nBEGIN\nEND\n", "A", "*"), text, 1, 1);
    EXPECT_EQ(Locate("B", "*").first, 2);
  }
}

TEST_F(Located, OtherKindsEndAtTheFirstEndWhateverTheDepth) {
  for (const char* keyword : {"DIALOGEX", "MENUEX", "MYTYPE", "HTML", "MENUS", "TOOLBAR"}) {
    SCOPED_TRACE(keyword);
    const std::string text = std::string("A ") + keyword + "\nBEGIN\n BEGIN\n END\n";
    ExpectFound(LocateIn(text + "END\nB ICON b.ico\n", "A", "*"), text, 1, 4);
    EXPECT_EQ(Locate("B", "*").first, 6);
  }
}

TEST_F(Located, AUserDefinedKindSwallowsTheLinesUpToTheNextEnd) {
  const char* file = "MYDATA MYTYPE x.bin\nA DIALOG 0,0,1,1\nBEGIN\nEND\nB MENU\nBEGIN\nEND\n";
  EXPECT_EQ(List(file), "MYDATA,MYTYPE\nB,MENU\n");
  ExpectFound(Locate("A", "DIALOG"), "", 0, 0);
}

TEST_F(Located, TheTailOfAKindCountsAsThatKind) {
  // LOG is a block as DIALOG is: the inner END doesn't end it.
  for (const char* keyword : {"LOG", "ENU", "DATA", "S"}) {
    SCOPED_TRACE(keyword);
    const std::string text = std::string("A ") + keyword + "\nBEGIN\nBEGIN\nEND\nEND\n";
    ExpectFound(LocateIn(text + "x\n", "A", "*"), text, 1, 5);
  }
  for (const char* keyword : {"CON", "MAP", "NT"}) {
    SCOPED_TRACE(keyword);
    const std::string text = std::string("A ") + keyword + "\n";
    ExpectFound(LocateIn(text + "BEGIN\nEND\n", "A", "*"), text, 1, 1);
  }
}

TEST_F(Located, ATailOfBothKindsIsABlock) {
  for (const char* keyword : {"E", "INCLUDE", "FILE"}) {
    SCOPED_TRACE(keyword);
    const std::string text = std::string("A ") + keyword + "\nBEGIN\nEND\n";
    ExpectFound(LocateIn(text, "A", "*"), text, 1, 3);
  }
}

TEST_F(Located, TheBeginningOfAKindIsAnotherKind) {
  const std::string text = "A DIALO\nBEGIN\nBEGIN\nEND\n";
  ExpectFound(LocateIn(text + "END\n", "A", "*"), text, 1, 4);
}

TEST_F(Located, BeginAndEndCountOnlyAsAFirstToken) {
  const std::string text = "A MENU\nBEGIN\nx BEGIN\nx END\nPOPUP \"END\"\nBEGINNING\nENDING\nEND\n";
  ExpectFound(LocateIn(text + "x\n", "A", "MENU"), text, 1, 8);
}

TEST_F(Located, ABeginOnTheHeaderLineIsNotSeenAndTheFirstEndEnds) {
  const std::string text = "A DIALOG 0,0,1,1 BEGIN\n LTEXT \"a\",1,1,1,1,1\nEND\n";
  ExpectFound(LocateIn(text + "B ICON b.ico\n", "A", "DIALOG"), text, 1, 3);
  EXPECT_EQ(Locate("B", "ICON").first, 4);
}

TEST_F(Located, EndOnOneLineWithBeginIsNotSeen) {
  const std::string text = "A MENU\nBEGIN END\nB ICON b.ico\nEND\n";
  ExpectFound(LocateIn(text, "A", "MENU"), text, 1, 4);
}

TEST_F(Located, CurlyBracesMeanNothing) {
  const std::string text = "A DIALOG 0,0,1,1\n{\n}\nB MENU\nBEGIN\nEND\n";
  ExpectFound(LocateIn(text, "A", "DIALOG"), text, 1, 6);
  EXPECT_EQ(List(text), "A,DIALOG\n");
}

TEST_F(Located, BeginAndEndOutsideAResourceChangeNothing) {
  EXPECT_EQ(List("END\nEND\nBEGIN\nA MENU\nBEGIN\nEND\nEND\nB MENU\nBEGIN\nEND\n"), "A,MENU\nB,MENU\n");
}

TEST_F(Located, BeginAndEndWithAWordBehindThemOutsideAResourceAreHeaders) {
  EXPECT_EQ(List("BEGIN foo\nA ICON a.ico\nEND\nB ICON b.ico\n"), "BEGIN,FOO\nB,ICON\n");
  EXPECT_EQ(List("END foo\nB ICON b.ico\n"), "END,FOO\nB,ICON\n");
  // Its own BEGIN counts for a block.
  EXPECT_EQ(List("BEGIN MENU\nEND\nB ICON b.ico\n"), "BEGIN,MENU\nB,ICON\n");
}

TEST_F(Located, AnUnterminatedBlockEndsWithTheFile) {
  const std::string text = "A MENU\nBEGIN\n POPUP \"a\"\n BEGIN\n END\n";
  ExpectFound(LocateIn(text, "A", "MENU"), text, 1, 5);
}

TEST_F(Located, TheFirstResourceOfANameEndsTheSearchWhateverItsType) {
  test::WriteFile(kPath, "FOO ICON foo.ico\nFOO DIALOG 0,0,10,10\nBEGIN\nEND\n");
  ExpectFound(Locate("FOO", "DIALOG"), "", 0, 0);
  ExpectFound(Locate("FOO", "ICON"), "FOO ICON foo.ico\n", 1, 1);
  ExpectFound(Locate("FOO", "*"), "FOO ICON foo.ico\n", 1, 1);
}

TEST_F(Located, AStringTableWithAWordBehindItHidesTheTextIncludeOfItsName) {
  const std::string include = "1 TEXTINCLUDE DISCARDABLE\nBEGIN\n \"a.h\\0\"\nEND\n";
  EXPECT_EQ(LocateIn("STRINGTABLE DISCARDABLE\nBEGIN\nEND\n" + include, "1", "TEXTINCLUDE").text, "");
  EXPECT_EQ(LocateIn("STRINGTABLE\nBEGIN\nEND\n" + include, "1", "TEXTINCLUDE").text, include);
}

TEST_F(Located, ALineOfMoreThan1024CharactersArrivesInPiecesThatCountAsLines) {
  // The second piece of the long line is a header of its own.
  const std::string filler = "x " + std::string(1022, '-');
  const std::string dialog = "A DIALOG 0,0,1,1\n";
  ExpectFound(LocateIn(filler + dialog + "BEGIN\nEND\n", "A", "DIALOG"), dialog + "BEGIN\nEND\n", 2, 4);
  // An END that a cut moves to the beginning of a piece ends the resource.
  const std::string item = " MENUITEM \"" + std::string(1013, 'm');
  ASSERT_EQ(item.size(), 1024u);
  ExpectFound(LocateIn("B MENU\nBEGIN\n" + item + "END\",1\nEND\n", "B", "MENU"),
              "B MENU\nBEGIN\n" + item + "END\",1\n", 1, 4);
  // With its line feed a line of 1024 characters is one too long.
  ExpectFound(LocateIn(std::string(1024, '-') + "\nC ICON c.ico\n", "C", "*"), "C ICON c.ico\n", 3, 3);
  ExpectFound(LocateIn(std::string(1023, '-') + "\r\nC ICON c.ico\n", "C", "*"), "C ICON c.ico\n", 2, 2);
}

TEST_F(Located, AZeroByteEndsItsLine) {
  ExpectFound(LocateIn(std::string("A MENU\nBEGIN\n \"a\0b\"\nEND\n", 24), "A", "MENU"),
              "A MENU\nBEGIN\n \"aEND\n", 1, 4);
}

TEST_F(Located, LineCommentsAreGoneAndThoseInStringsKept) {
  ExpectFound(
      LocateIn("A DIALOG 0,0,1,1 // header\nCAPTION \"http://x\" // caption\n// BEGIN\nBEGIN // begin\n"
               "// END\nEND // end\n",
               "A", "DIALOG"),
      "A DIALOG 0,0,1,1 \nCAPTION \"http://x\" \n\nBEGIN \n\nEND \n", 1, 6);
}

TEST_F(Located, BlockCommentsAreBlankedInTheTextOnly) {
  // The locator walks the lines of a comment like any others: its END ends the resource.
  ExpectFound(LocateIn("A DIALOG 0,0,1,1 /* c */\nBEGIN\n/*\nEND\n*/\nEND\n", "A", "DIALOG"),
              "A DIALOG 0,0,1,1        \nBEGIN\n  \n   \n", 1, 4);
  EXPECT_EQ(List("/*\nA ICON a.ico\n*/\n"), "A,ICON\n");
  EXPECT_EQ(List("/* */ A ICON a.ico\n"), "");
}

TEST_F(Located, ALineCommentInABlockCommentTakesItsClosingMark) {
  ExpectFound(LocateIn("A MENU\nBEGIN\n/* see // there */\n MENUITEM \"a\",1\nEND\n", "A", "MENU"),
              "A MENU\nBEGIN\n       \n               \n   \n", 1, 5);
}

TEST_F(Located, TheTypeOfATextIsItsSecondToken) {
  EXPECT_TRUE(ResourceTypeIs("A DIALOG 0,0,1,1", "DIALOG"));
  EXPECT_TRUE(ResourceTypeIs("  A dialog", "Dialog"));
  EXPECT_FALSE(ResourceTypeIs("A DIALOGEX", "DIALOG"));
  EXPECT_FALSE(ResourceTypeIs("A", "DIALOG"));
  EXPECT_FALSE(ResourceTypeIs("", "DIALOG"));
  EXPECT_FALSE(ResourceTypeIs("DIALOG A", "DIALOG"));
}

class IconFile : public Located {
 protected:
  static std::string Of(const std::string& file, const char* name = "A") {
    test::WriteFile(kPath, file);
    host::Path out;
    out.Assign("soil");
    const int length = ResourceIconFile(kPath, name, out);
    EXPECT_EQ(length, static_cast<int>(out.view().size()));
    return std::string(out.view());
  }
};

TEST_F(IconFile, IsAQuotedNameWithDoubledBackslashesMadeOne) {
  EXPECT_EQ(Of("A ICON \"my.ico\"\n"), "my.ico");
  EXPECT_EQ(Of(" \tA ICON \"my.ico\"\n"), "my.ico");
  EXPECT_EQ(Of(R"(A ICON "c:\\icons\\my.ico")"), R"(c:\icons\my.ico)");
  EXPECT_EQ(Of(R"(A ICON "c:\icons\new.ico")"), R"(c:\icons\new.ico)");
  EXPECT_EQ(Of(R"(A ICON "\\\\server\\\x.ico")"), R"(\\server\\x.ico)");
  EXPECT_EQ(Of("A ICON \"a b.ico\" // comment\n"), "a b.ico");
  EXPECT_EQ(Of("A ICON \"a\"\"b.ico\"\n"), "a\"\"b.ico");
}

TEST_F(IconFile, MayStandAnywhereOnALineThatIsReadWhole) {
  const std::string line = "A ICON" + std::string(1010, ' ') + "\"i.ico\"";
  ASSERT_EQ(line.size(), 1023u);
  EXPECT_EQ(Of(line + "\n"), "i.ico");
}

TEST_F(IconFile, LoadOptionsMayStandAheadOfTheName) {
  EXPECT_EQ(Of("A ICON PRELOAD DISCARDABLE \"my.ico\"\n"), "my.ico");
  EXPECT_EQ(Of("A icon preload LOADONCALL fixed MOVEABLE DISCARDABLE PURE IMPURE PURE \"my.ico\"\n"),
            "my.ico");
  EXPECT_EQ(Of("A ICON DISCARDABLE my.ico\n"), "my.ico");
}

TEST_F(IconFile, AnUnquotedNameIsThreeTokens) {
  EXPECT_EQ(Of("A ICON my.ico\n"), "my.ico");
  EXPECT_EQ(Of("A ICON 16.ico\n"), "16.ico");
  EXPECT_EQ(Of("A ICON my\n"), "my");
  // Names of other shapes are cut or wrongly joined; quoting is the remedy.
  EXPECT_EQ(Of("A ICON my.icons.ico\n"), "my.icons");
  EXPECT_EQ(Of("A ICON icons\\my.ico\n"), "icons");
  EXPECT_EQ(Of("A ICON my . ico\n"), "my.ico");
}

TEST_F(IconFile, IsEmptyWhereThereIsNone) {
  EXPECT_EQ(Of("A ICON\n"), "");
  EXPECT_EQ(Of("A ICON \"my.ico\n"), "");
  EXPECT_EQ(Of("A ICON .ico\n"), "");
  EXPECT_EQ(Of("A ICON \"\"\n"), "");
  EXPECT_EQ(Of("A BITMAP \"my.ico\"\n"), "");
  EXPECT_EQ(Of("B ICON \"my.ico\"\n"), "");
  EXPECT_EQ(Of("A ICON \"my.ico\"\n", ""), "");
  EXPECT_EQ(Of("A ICON \"my.ico\"\n", nullptr), "");
  EXPECT_EQ(Of("", "A"), "");
}

TEST_F(IconFile, IsCutTo259CharactersAfterItsBackslashesAreCollapsed) {
  EXPECT_EQ(Of("A ICON \"" + std::string(400, 'x') + "\"\n"), std::string(259, 'x'));
  std::string doubled;
  for (int i = 0; i < 200; ++i) doubled += "\\\\x";
  std::string single;
  for (int i = 0; i < 200; ++i) single += "\\x";
  EXPECT_EQ(Of("A ICON \"" + doubled + "\"\n"), single.substr(0, 259));
}

}  // namespace
}  // namespace brelt::rc
