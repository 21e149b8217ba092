#include "rc/symbols.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/dump.h"
#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

constexpr const char* kPath = "c:\\home\\a.rc";

struct Loaded {
  int count;
  std::string rows;
  SymbolReport report;
};

class LoadSymbols_ : public ::testing::Test {
 protected:
  LoadSymbols_() { test::ResetHost(); }

  static Loaded Load(const char* file, const char* resource = nullptr, int flags = 0,
                     std::size_t size = kSymbolCount) {
    std::vector<SymbolRecord> table(size);
    for (SymbolRecord& row : table) {
      row.Name.Assign("soil");
      row.Value = row.Uses = -77;
    }
    Loaded loaded{};
    loaded.report.message.Assign("soil");
    loaded.report.includeName.Assign("soil");
    loaded.count = LoadSymbols(file, resource, flags, table, loaded.report);
    loaded.rows = test::DumpSymbols(table);
    for (std::size_t i = static_cast<std::size_t>(loaded.count); i < size; ++i) {
      EXPECT_TRUE(table[i].Name.IsEmpty() && table[i].Value == 0 && table[i].Uses == 0) << i;
    }
    EXPECT_EQ(std::count(loaded.rows.begin(), loaded.rows.end(), '\n'), loaded.count);
    EXPECT_EQ(test::LiveAllocations(), 0);
    EXPECT_EQ(test::OpenFiles(), 0);
    return loaded;
  }
  // The rows of a file's own definitions.
  static std::string RowsOf(const std::string& text) {
    test::WriteFile(kPath, text);
    const Loaded loaded = Load(kPath);
    EXPECT_EQ(loaded.report.message.view(), "");
    return loaded.rows;
  }
};

TEST_F(LoadSymbols_, AFileWithoutAnIncludeResourceHasItsOwnDefinitions) {
  test::WriteFile(
      kPath, "#include \"a.h\"\n#define IDC_A 100\n#define IDC_B 0x65\r\nA ICON a.ico\n#define IDC_C -3");
  const Loaded loaded = Load(kPath);
  EXPECT_EQ(loaded.count, 3);
  EXPECT_EQ(loaded.rows, "IDC_A 100 0\nIDC_B 101 0\nIDC_C -3 0\n");
  EXPECT_EQ(loaded.report.message.view(), "");
  EXPECT_EQ(loaded.report.includeName.view(), "");
  EXPECT_EQ(loaded.report.includeLines.first, 0);
  EXPECT_EQ(loaded.report.includeLines.last, 0);
  EXPECT_EQ(Load(kPath, "").rows, loaded.rows);
}

constexpr const char* kTextInclude = "#define OWN 1\n1 TEXTINCLUDE DISCARDABLE\nBEGIN\n  \"a.h\\0\"\nEND\n";
constexpr const char* kDialogInclude =
    "#define OWN 1\nDLGINCLUDE RCDATA DISCARDABLE\nBEGIN\n  \"a.h\\0\"\nEND\n";

TEST_F(LoadSymbols_, TheIncludeResourceOfAFullPathNamesAHeaderInTheSameDirectory) {
  test::SetCurrentDirectory("c:\\elsewhere");
  test::WriteFile("c:\\home\\a.h", "#define BESIDE 2\n");
  test::WriteFile("c:\\elsewhere\\a.h", "#define CURRENT 3\n");
  for (const char* file : {kTextInclude, kDialogInclude}) {
    test::WriteFile(kPath, file);
    const Loaded loaded = Load(kPath);
    EXPECT_EQ(loaded.rows, "BESIDE 2 0\n");
    EXPECT_EQ(loaded.report.includeName.view(), "a.h");
    EXPECT_EQ(loaded.report.includeLines.first, 2);
    EXPECT_EQ(loaded.report.includeLines.last, 5);
  }
}

TEST_F(LoadSymbols_, TheIncludeResourceOfABareNameNamesAHeaderInTheCurrentDirectory) {
  test::SetCurrentDirectory("c:\\elsewhere");
  test::WriteFile("c:\\elsewhere\\a.rc", kTextInclude);
  test::WriteFile("c:\\elsewhere\\a.h", "#define CURRENT 3\n");
  test::WriteFile("c:\\home\\a.h", "#define BESIDE 2\n");
  EXPECT_EQ(Load("a.rc").rows, "CURRENT 3 0\n");
}

TEST_F(LoadSymbols_, AHeaderWithAFullPathIsTakenAsItStands) {
  test::WriteFile(kPath, "1 TEXTINCLUDE\nBEGIN\n \"d:\\\\inc\\\\a.h\\0\"\nEND\n");
  test::WriteFile("d:\\inc\\a.h", "#define THERE 4\n");
  const Loaded loaded = Load(kPath);
  EXPECT_EQ(loaded.rows, "THERE 4 0\n");
  EXPECT_EQ(loaded.report.includeName.view(), "d:\\inc\\a.h");
}

TEST_F(LoadSymbols_, TheTextIncludeComesAheadOfTheDialogInclude) {
  test::WriteFile(kPath,
                  "DLGINCLUDE RCDATA\nBEGIN\n \"b.h\\0\"\nEND\n1 TEXTINCLUDE\nBEGIN\n \"a.h\\0\"\nEND\n");
  test::WriteFile("a.h", "#define A 1\n");
  test::WriteFile("b.h", "#define B 1\n");
  EXPECT_EQ(Load(kPath).rows, "A 1 0\n");
}

TEST_F(LoadSymbols_, TheHeaderNameIsTheFirstStringDecoded) {
  test::WriteFile("a.h", "#define A 1\n");
  const char* strings[] = {
      "\"a.h\"",     "\"a.h\\0\"",           "\"\\x61.h\\0more\"", "1, \"a.h\\0\" \"b.h\"",
      "\"a.h\"\"\"", "/* \"b.h\" */ \"a.h\""};
  const bool found[] = {true, true, true, true, false, true};
  for (int i = 0; i < 6; ++i) {
    SCOPED_TRACE(strings[i]);
    test::WriteFile(kPath, std::string("1 TEXTINCLUDE\nBEGIN\n ") + strings[i] + "\nEND\n");
    EXPECT_EQ(Load(kPath).rows, found[i] ? "A 1 0\n" : "");
  }
}

TEST_F(LoadSymbols_, TheIncludeResourceIsReadIntoABufferOf520) {
  test::WriteFile("a.h", "#define A 1\n");
  const std::string header = "1 TEXTINCLUDE\nBEGIN\n";
  // The string ends at character 519, and one behind it.
  for (const int blanks : {492, 493}) {
    const std::string filler(static_cast<std::size_t>(blanks), ' ');
    test::WriteFile(kPath, header + filler + "\"a.h\\0\"\nEND\n");
    const Loaded loaded = Load(kPath);
    if (blanks == 492) {
      EXPECT_EQ(loaded.rows, "A 1 0\n");
    } else {
      EXPECT_EQ(loaded.report.message.view(),
                "The file <> should be a full path with a drive letter or just a filename");
    }
  }
}

struct FailureCase {
  const char* include;  // the line in the include resource, or null for none
  const char* message;
  const char* includeName;
};

TEST_F(LoadSymbols_, ASymbolFileThatCannotBeReadIsToldWithTheHeadersName) {
  const FailureCase cases[] = {
      {R"("sub\\a.h\0")", "The file <sub\\a.h> should be a full path with a drive letter or just a filename",
       "sub\\a.h"},
      {R"("\\a.h\0")", "The file <\\a.h> should be a full path with a drive letter or just a filename",
       "\\a.h"},
      {"a.h", "The file <> should be a full path with a drive letter or just a filename", ""},
      {R"("")", "The file <> should be a full path with a drive letter or just a filename", ""},
      {R"("missing.h\0")", "The file <c:\\home\\missing.h> does not exist", "missing.h"},
      {R"("d:\\x\\missing.h\0")", "The file <d:\\x\\missing.h> does not exist", "d:\\x\\missing.h"},
      {R"("dir\0")", "The file <c:\\home\\dir> does not exist", "dir"},
  };
  test::MakeDirectory("c:\\home\\dir");
  for (const FailureCase& expected : cases) {
    SCOPED_TRACE(expected.include);
    test::WriteFile(kPath,
                    std::string("#define OWN 1\n1 TEXTINCLUDE\nBEGIN\n") + expected.include + "\nEND\n");
    const Loaded loaded = Load(kPath);
    EXPECT_EQ(loaded.count, 0);
    EXPECT_EQ(loaded.report.message.view(), expected.message);
    // What the file says of its header is given all the same.
    EXPECT_EQ(loaded.report.includeName.view(), expected.includeName);
    EXPECT_EQ(loaded.report.includeLines.first, 2);
    EXPECT_EQ(loaded.report.includeLines.last, 5);
  }
}

TEST_F(LoadSymbols_, AnRcFileThatCannotBeReadIsToldWithItsOwnName) {
  const std::string folder = "c:\\" + std::string(300, 'd');
  const std::string odd = "sub\\" + std::string(300, 'd');
  const struct {
    std::string file;
    std::string message;
  } cases[] = {
      {"missing.rc", "The file <missing.rc> does not exist"},
      {"c:\\x\\missing.rc", "The file <c:\\x\\missing.rc> does not exist"},
      {"sub\\a.rc", "The file <sub\\a.rc> should be a full path with a drive letter or just a filename"},
      {"", "The file <> should be a full path with a drive letter or just a filename"},
      {folder, "The file <" + folder.substr(0, 260) + "> does not exist"},
      {odd,
       "The file <" + odd.substr(0, 260) + "> should be a full path with a drive letter or just a filename"},
  };
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.file);
    const Loaded loaded = Load(expected.file.c_str());
    EXPECT_EQ(loaded.count, 0);
    EXPECT_EQ(loaded.report.message.view(), expected.message);
  }
  EXPECT_EQ(Load(nullptr).report.message.view(),
            "The file <> should be a full path with a drive letter or just a filename");
}

TEST_F(LoadSymbols_, AFileThatDoesNotOpenIsTold) {
  test::WriteFile(kPath, "#define A 1\n");
  // Two searches for an include resource of five operations each (size, open, two reads, close), then the
  // size.
  test::FailFileOperation(11);
  const Loaded loaded = Load(kPath);
  EXPECT_EQ(loaded.count, 0);
  EXPECT_EQ(loaded.report.message.view(), "The file <c:\\home\\a.rc> could not be opened");
}

TEST_F(LoadSymbols_, AHeaderThatDoesNotOpenIsToldWithItsPath) {
  test::WriteFile(kPath, kTextInclude);
  test::WriteFile("c:\\home\\a.h", "#define A 1\n");
  // The search for the include resource takes four operations (size, open, read, close); then comes the
  // header's size.
  test::FailFileOperation(5);
  const Loaded loaded = Load(kPath);
  EXPECT_EQ(loaded.count, 0);
  EXPECT_EQ(loaded.report.message.view(), "The file <c:\\home\\a.h> could not be opened");
  EXPECT_EQ(loaded.report.includeName.view(), "a.h");
}

TEST_F(LoadSymbols_, AnEmptyFileHasNoRowsAndNoMessage) {
  test::WriteFile(kPath, "");
  const Loaded loaded = Load(kPath);
  EXPECT_EQ(loaded.count, 0);
  EXPECT_EQ(loaded.report.message.view(), "");
}

TEST_F(LoadSymbols_, OnlyAMarkInTheFirstColumnWithDefineInLowerCaseDefines) {
  const struct {
    const char* line;
    const char* rows;
  } cases[] = {{"#define A 1", "A 1 0\n"},
               {"#define\tA\t1", "A 1 0\n"},
               {"#define A 1 // comment", "A 1 0\n"},
               {"#define A 1// comment", "A 1 0\n"},
               {"#define A 1 trailing", "A 1 0\n"},
               {"#define A", "A 0 0\n"},
               {"#define A // 1", "A 0 0\n"},
               {"#define A /* c */ 1", "A 0 0\n"},
               {" #define A 1", ""},
               {"# define A 1", ""},
               {"#\tdefine A 1", ""},
               {"#DEFINE A 1", ""},
               {"#Define A 1", ""},
               {"#defines A 1", ""},
               {"#defineA 1", ""},
               {"#undef A", ""},
               {"##define A 1", ""},
               {"//#define A 1", ""},
               {"define A 1", ""},
               {"#define", ""},
               {"#define ", ""},
               {"#define _HIDDEN 1", ""},
               {"#define ;A 1", ""},
               {"#define 5 6", "5 6 0\n"},
               {"#define \"A\" 1", "\\\"A\\\" 1 0\n"},
               {"#define MAX(a) 1", "MAX 0 0\n"}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.line);
    EXPECT_EQ(RowsOf(std::string(expected.line) + "\n"), expected.rows);
    EXPECT_EQ(RowsOf(expected.line), expected.rows);
  }
}

TEST_F(LoadSymbols_, TheValueIsTheLongestNumericPrefixOfItsToken) {
  const struct {
    const char* token;
    std::int32_t value;
  } cases[] = {{"1", 1},
               {"-5", -5},
               {"+5", 5},
               {"0x10", 16},
               {"0X1f", 31},
               {"0x10L", 16},
               {"0x", 0},
               {"0xg", 0},
               {"10L", 10},
               {"1.5", 1},
               {"1e5", 1},
               {"(100)", 0},
               {"word", 0},
               {"\"5\"", 0},
               {"[5]", 0},
               {"$5", 0},
               {"-0x10", 0},
               {"0", 0},
               {"010", 10},
               {"0x7FFFFFFF", 0x7FFFFFFF},
               {"0x80000000", 0x7FFFFFFF},
               {"0xFFFFFFFF", 0x7FFFFFFF},
               {"0x1FFFFFFFF", 0x7FFFFFFF},
               {"2147483647", 2147483647},
               {"2147483648", 2147483647},
               {"-2147483648", INT32_MIN},
               {"-2147483649", INT32_MIN}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.token);
    EXPECT_EQ(RowsOf(std::string("#define A ") + expected.token + "\n"),
              "A " + std::to_string(expected.value) + " 0\n");
  }
}

TEST_F(LoadSymbols_, TheFirstDefinitionOfAWordWinsIgnoringCase) {
  EXPECT_EQ(RowsOf("#define A 1\n#define a 2\n#define B 3\n#define A 4\n"), "A 1 0\nB 3 0\n");
}

TEST_F(LoadSymbols_, NamesAreHeldTo40Characters) {
  const std::string name(40, 'n');
  EXPECT_EQ(RowsOf("#define " + name + "x 1\n#define " + name + "y 2\n"), name + " 1 0\n");
}

TEST_F(LoadSymbols_, ALongLineIsReadInPieces) {
  // The second piece is a definition of its own.
  EXPECT_EQ(RowsOf("#define A 1" + std::string(1013, ' ') + "#define B 2\n"), "A 1 0\nB 2 0\n");
}

std::string Definitions(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += "#define W" + std::to_string(i) + " " + std::to_string(i) + "\n";
  return text;
}

TEST_F(LoadSymbols_, The1001stNameIsDroppedWithoutAMessage) {
  test::WriteFile(kPath, Definitions(1001));
  const Loaded loaded = Load(kPath);
  EXPECT_EQ(loaded.count, 1000);
  EXPECT_EQ(loaded.report.message.view(), "");
  EXPECT_EQ(loaded.rows.substr(loaded.rows.size() - 14), "\nW1000 1000 0\n");
}

TEST_F(LoadSymbols_, ATableOfOtherSizesTakesWhatItHolds) {
  test::WriteFile(kPath, Definitions(5));
  EXPECT_EQ(Load(kPath, nullptr, 0, 3).rows, "W1 1 0\nW2 2 0\nW3 3 0\n");
  EXPECT_EQ(Load(kPath, nullptr, 0, 0).count, 0);
  test::WriteFile(kPath, Definitions(1100));
  EXPECT_EQ(Load(kPath, nullptr, 0, 1100).count, 1000);
}

constexpr const char* kForms =
    "#define IDC_ONE 101\n"
    "#define IDC_TWO 102\n"
    "#define IDM_OPEN 201\n"
    "#define UNUSED 999\n"
    "FORM DIALOG 0,0,100,100\n"
    "MENU MAIN\n"
    "BEGIN\n"
    "  LTEXT \"a\",IDC_TWO,0,0,1,1\n"
    "  LTEXT \"a\",idc_one,0,0,1,1\n"
    "  LTEXT \"a\",IDC_TWO,0,0,1,1\n"
    "  LTEXT \"a\",-1,0,0,1,1\n"
    "  LTEXT \"a\",IDC_NOWHERE,0,0,1,1\n"
    "  PUSHBUTTON \"a\",IDOK,0,0,1,1\n"
    "END\n"
    "MAIN MENU\n"
    "BEGIN\n"
    "  POPUP \"&File\"\n"
    "  BEGIN\n"
    "    MENUITEM \"&Open\",IDM_OPEN\n"
    "    MENUITEM SEPARATOR\n"
    "    MENUITEM \"&Two\",IDC_TWO\n"
    "    MENUITEM \"&New\",IDM_NOWHERE\n"
    "  END\n"
    "END\n"
    "OTHER DIALOG 0,0,100,100\n"
    "MENU MAIN\n"
    "BEGIN\n"
    "  LTEXT \"a\",IDC_ONE,0,0,1,1\n"
    "END\n"
    "NOMENU DIALOG 0,0,100,100\n"
    "MENU MISSING\n"
    "BEGIN\n"
    "  LTEXT \"a\",IDC_ONE,0,0,1,1\n"
    "END\n"
    "BADMENU DIALOG 0,0,100,100\n"
    "MENU BAD\n"
    "BEGIN\n"
    "  LTEXT \"a\",UNUSED,0,0,1,1\n"
    "END\n"
    "BAD MENU\n"
    "BEGIN\n"
    "  MENUITEM \"a\",UNUSED\n"
    "  NONSENSE\n"
    "END\n"
    "BROKEN DIALOG 0,0,100,100\n"
    "MENU MAIN\n"
    "BEGIN\n"
    "  LTEXT \"a\",UNUSED,0,0,1,1\n"
    "  NONSENSE\n"
    "END\n";

TEST_F(LoadSymbols_, OneDialogGivesItsWordsAndThoseOfItsMenuInOrder) {
  test::WriteFile(kPath, kForms);
  const char* rows =
      "IDC_TWO 102 0\nidc_one 101 0\n-1 0 0\nIDC_NOWHERE 0 0\nIDOK 0 0\nIDM_OPEN 201 0\nIDM_NOWHERE 0 0\n";
  EXPECT_EQ(Load(kPath, "FORM").rows, rows);
  EXPECT_EQ(Load(kPath, "form").rows, rows);
  EXPECT_EQ(Load(kPath, "FORM").report.message.view(), "");
}

TEST_F(LoadSymbols_, ADialogOrMenuThatCannotBeReadSimplyYieldsNoRows) {
  test::WriteFile(kPath, kForms);
  const struct {
    const char* dialog;
    const char* rows;
  } cases[] = {{"NONE", ""},
               {"MAIN", ""},
               {"BROKEN", ""},
               {"NOMENU", "IDC_ONE 101 0\n"},
               {"BADMENU", "UNUSED 999 0\n"}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.dialog);
    const Loaded loaded = Load(kPath, expected.dialog);
    EXPECT_EQ(loaded.rows, expected.rows);
    EXPECT_EQ(loaded.report.message.view(), "");
  }
}

TEST_F(LoadSymbols_, OneDialogsRowsStopAtTheTablesSize) {
  test::WriteFile(kPath, kForms);
  EXPECT_EQ(Load(kPath, "FORM", 0, 2).rows, "IDC_TWO 102 0\nidc_one 101 0\n");
}

TEST_F(LoadSymbols_, UsesAreCountedOverAllDialogsAndAMenuOnceForEachOfThem) {
  test::WriteFile(kPath, kForms);
  EXPECT_EQ(Load(kPath, nullptr, 32).rows, "IDC_ONE 101 3\nIDC_TWO 102 4\nIDM_OPEN 201 2\nUNUSED 999 1\n");
  EXPECT_EQ(Load(kPath, nullptr, 0).rows, "IDC_ONE 101 0\nIDC_TWO 102 0\nIDM_OPEN 201 0\nUNUSED 999 0\n");
  // A word that the file doesn't define keeps 0.
  EXPECT_EQ(
      Load(kPath, "FORM", 32).rows,
      "IDC_TWO 102 4\nidc_one 101 3\n-1 0 0\nIDC_NOWHERE 0 0\nIDOK 0 0\nIDM_OPEN 201 2\nIDM_NOWHERE 0 0\n");
}

TEST_F(LoadSymbols_, AllOfAFullDialogAndMenuAreSeen) {
  std::string controls;
  std::string items;
  std::string words;
  std::string rows;
  for (int i = 1; i <= 255; ++i) {
    const std::string n = std::to_string(i);
    controls += "LTEXT \"\",C" + n + ",1,1,1,1\n";
    items += "MENUITEM \"\",M" + n + "\n";
  }
  for (const char* prefix : {"C", "M"}) {
    for (int i = 1; i <= 255; ++i) {
      const std::string n = std::to_string(i);
      words += std::string("#define ") + prefix + n + " " + n + "\n";
      rows += prefix + n + " " + n + " 1\n";
    }
  }
  test::WriteFile(kPath,
                  words + "F DIALOG\nMENU M\nBEGIN\n" + controls + "END\nM MENU\nBEGIN\n" + items + "END\n");
  EXPECT_EQ(Load(kPath, "F", 32).rows, rows);
}

TEST_F(LoadSymbols_, TextsOfDialogAndMenuMayHave65534Characters) {
  const std::string dialog = "F DIALOG\nMENU M\nBEGIN\n LTEXT \"\",A,1,1,1,1\n";
  const std::string menu = "M MENU\nBEGIN\n MENUITEM \"\",B\n";
  const auto padded = [](const std::string& head, std::size_t length) {
    std::string text = head;
    while (text.size() + 3 < length)
      text += std::string(std::min<std::size_t>(999, length - 4 - text.size()), ' ') + "\n";
    return text + "END";
  };
  const std::string defines = "#define A 1\n#define B 2\n";
  const struct {
    std::size_t dialog, menu;
    const char* rows;
    const char* uses;
  } cases[] = {{65534, 65534, "A 1 0\nB 2 0\n", "A 1 1\nB 2 1\n"},
               {65535, 100, "", "A 1 0\nB 2 0\n"},
               {100, 65535, "A 1 0\n", "A 1 1\nB 2 0\n"}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(::testing::Message() << expected.dialog << " and " << expected.menu);
    test::WriteFile(kPath, defines + padded(dialog, expected.dialog) + "\n" + padded(menu, expected.menu));
    EXPECT_EQ(Load(kPath, "F").rows, expected.rows);
    EXPECT_EQ(Load(kPath, nullptr, 32).rows, expected.uses);
  }
}

TEST_F(LoadSymbols_, ASecondDialogOfANameCountsTheFirstAgain) {
  test::WriteFile(kPath,
                  "#define A 1\n#define B 2\nF DIALOG 0,0,1,1\nBEGIN\nLTEXT \"\",A,1,1,1,1\nEND\n"
                  "f DIALOG 0,0,1,1\nBEGIN\nLTEXT \"\",B,1,1,1,1\nEND\n");
  EXPECT_EQ(Load(kPath, nullptr, 32).rows, "A 1 2\nB 2 0\n");
}

TEST_F(LoadSymbols_, UsesOfAHeadersWordsAreCountedInTheRcFile) {
  test::WriteFile(
      kPath, "1 TEXTINCLUDE\nBEGIN\n \"a.h\\0\"\nEND\nF DIALOG 0,0,1,1\nBEGIN\nLTEXT \"\",A,1,1,1,1\nEND\n");
  test::WriteFile("c:\\home\\a.h", "#define A 1\n#define B 2\n");
  EXPECT_EQ(Load(kPath, nullptr, 32).rows, "A 1 1\nB 2 0\n");
}

TEST_F(LoadSymbols_, SortsByNameOrValueAsTheFlagsTell) {
  test::WriteFile(kPath, "#define b 2\n#define A_ 5\n#define AB 1\n#define C -4\n#define aa 3\n");
  const std::string byName = "A_ 5 0\naa 3 0\nAB 1 0\nb 2 0\nC -4 0\n";
  const std::string byValue = "C -4 0\nAB 1 0\nb 2 0\naa 3 0\nA_ 5 0\n";
  EXPECT_EQ(Load(kPath, nullptr, 1).rows, byName);
  EXPECT_EQ(Load(kPath, nullptr, 2).rows, byValue);
  EXPECT_EQ(Load(kPath, nullptr, 3).rows, byName);
}

TEST_F(LoadSymbols_, EqualValuesAnywhereRenumberEveryRow) {
  test::WriteFile(kPath, "#define D 7\n#define C 9\n#define B 7\n#define A 1\n");
  EXPECT_EQ(Load(kPath, nullptr, 16).rows, "D 100 0\nC 101 0\nB 102 0\nA 103 0\n");
  EXPECT_EQ(Load(kPath, nullptr, 17).rows, "A 100 0\nB 101 0\nC 102 0\nD 103 0\n");
  const std::string byValue = Load(kPath, nullptr, 18).rows;
  EXPECT_EQ(byValue, "A 100 0\nB 101 0\nD 102 0\nC 103 0\n");
}

TEST_F(LoadSymbols_, DistinctValuesAreLeftAlone) {
  test::WriteFile(kPath, "#define A 7\n#define B 8\n");
  EXPECT_EQ(Load(kPath, nullptr, 16).rows, "A 7 0\nB 8 0\n");
  EXPECT_EQ(RowsOf("#define A 7\n"), "A 7 0\n");
  EXPECT_EQ(Load(kPath, nullptr, 16).rows, "A 7 0\n");
}

TEST_F(LoadSymbols_, AllFlagsTogether) {
  test::WriteFile(kPath, kForms);
  EXPECT_EQ(Load(kPath, "FORM", 49).rows,
            "-1 100 0\nIDC_NOWHERE 101 0\nidc_one 102 3\nIDC_TWO 103 4\nIDM_NOWHERE 104 0\nIDM_OPEN 105 2\n"
            "IDOK 106 0\n");
}

TEST_F(LoadSymbols_, EachAllocationThatFailsIsToldAndNothingIsLeft) {
  std::string file = kForms;
  for (int i = 0; i < 300; ++i) file += "N" + std::to_string(i) + " ICON a.ico\n";
  test::WriteFile(kPath, file);
  const std::string whole = Load(kPath, "FORM", 49).rows;
  // The working table; a table of records and a text; a table of records, two texts and a directory that
  // grows.
  const int first = 1;
  const int dialog = first + 257;
  const int uses = dialog + 256 + 2 + 4;
  for (int n = 0; n <= uses; ++n) {
    SCOPED_TRACE(n);
    test::FailAllocation(n);
    const Loaded loaded = Load(kPath, "FORM", 49);
    EXPECT_EQ(loaded.rows, n < uses ? "" : whole);
    EXPECT_EQ(loaded.report.message.view(), n < first    ? "Not enough memory to load the symbols"
                                            : n < dialog ? "Not enough memory for loading the dialog symbols"
                                            : n < uses   ? "Not enough memory for sorting the symbols"
                                                         : "");
  }
}

TEST_F(LoadSymbols_, TheIncludeIsToldEvenWithoutMemory) {
  test::WriteFile(kPath, kTextInclude);
  test::FailAllocation(0);
  const Loaded loaded = Load(kPath);
  EXPECT_EQ(loaded.report.message.view(), "Not enough memory to load the symbols");
  EXPECT_EQ(loaded.report.includeName.view(), "a.h");
  EXPECT_EQ(loaded.report.includeLines.last, 5);
}

TEST_F(LoadSymbols_, EachFileOperationThatFailsLeavesNothingOpen) {
  test::WriteFile(kPath, std::string(kForms) + kTextInclude);
  test::WriteFile("c:\\home\\a.h", "#define IDC_ONE 1\n#define IDC_TWO 2\n");
  for (const bool stay : {false, true}) {
    for (int n = 0;; ++n) {
      SCOPED_TRACE(n);
      test::FailFileOperation(n, stay);
      const Loaded loaded = Load(kPath, "FORM", 49);
      if (n >= test::FileOperationCount()) {
        EXPECT_EQ(loaded.count, 7);
        EXPECT_GT(n, 20);
        break;
      }
      EXPECT_TRUE(loaded.count == 0 || loaded.report.message.IsEmpty());
    }
  }
}

// Whoever rewrites a file by its symbols would drop those that a failed read has left out.
TEST_F(LoadSymbols_, NoReadThatFailsLeavesOutARowInSilence) {
  test::WriteFile(kPath, std::string(kForms) + kTextInclude);
  test::WriteFile("c:\\home\\a.h", "#define IDC_ONE 1\n#define IDC_TWO 2\n");
  for (const char* dialog : {"", "FORM"}) {
    test::FailFileOperation(-1);
    const Loaded whole = Load(kPath, dialog, 49);
    const int count = test::FileOperationCount();
    for (int n = 0; n < count; ++n) {
      SCOPED_TRACE(n);
      test::FailFileOperation(n);
      const Loaded loaded = Load(kPath, dialog, 49);
      if (loaded.report.message.IsEmpty()) {
        EXPECT_EQ(loaded.rows, whole.rows);
      }
    }
  }
}

TEST(SortSymbols, LeavesRowsBehindTheCountAndShortTablesAlone) {
  SymbolRecord rows[4]{};
  const char* names[] = {"d", "c", "b", "a"};
  for (int i = 0; i < 4; ++i) {
    rows[i].Name.Assign(names[i]);
    rows[i].Value = 4 - i;
  }
  SortSymbols(rows, 1, kSortByName);
  SortSymbols(rows, 0, kSortByName);
  SortSymbols(rows, 4, 0);
  SortSymbols(rows, 4, kRenumber | kCountUses);
  EXPECT_EQ(test::DumpSymbols(rows), "d 4 0\nc 3 0\nb 2 0\na 1 0\n");
  SortSymbols(rows, 2, kSortByName);
  EXPECT_EQ(test::DumpSymbols(rows), "c 3 0\nd 4 0\nb 2 0\na 1 0\n");
  SortSymbols(rows, 3, kSortByName);
  EXPECT_EQ(test::DumpSymbols(rows), "b 2 0\nc 3 0\nd 4 0\na 1 0\n");
  SortSymbols(rows, 4, kSortByValue);
  EXPECT_EQ(test::DumpSymbols(rows), "a 1 0\nb 2 0\nc 3 0\nd 4 0\n");
}

TEST(SymbolIndex, FindsTheFirstRowOfANameIgnoringCase) {
  SymbolRecord rows[5]{};
  const char* names[] = {"One", "TWO", "one", "", "Behind"};
  for (int i = 0; i < 5; ++i) {
    rows[i].Name.Assign(names[i]);
    rows[i].Value = i + 1;
  }
  const SymbolIndex index(rows);
  EXPECT_EQ(index.count(), 3);
  const struct {
    const char* name;
    std::int32_t value;
  } cases[] = {{"One", 1},  {"ONE", 1}, {"two", 2},   {"Behind", 0},
               {"none", 0}, {"", 0},    {nullptr, 0}, {"One ", 0}};
  for (const auto& expected : cases) {
    EXPECT_EQ(FindSymbolValue(index, expected.name), expected.value) << View(expected.name);
  }
  EXPECT_EQ(FindSymbolValue(SymbolIndex({}), "One"), 0);
}

TEST(SymbolIndex, CoversAFullTable) {
  std::vector<SymbolRecord> rows(1100);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].Name.Assign("W" + std::to_string(i));
    rows[i].Value = static_cast<std::int32_t>(i) + 1;
  }
  const SymbolIndex index(rows);
  EXPECT_EQ(index.count(), 1000);
  for (int i = 0; i < 1000; ++i) {
    ASSERT_EQ(FindSymbolValue(index, ("w" + std::to_string(i)).c_str()), i + 1);
  }
  EXPECT_EQ(FindSymbolValue(index, "W1000"), 0);
}

}  // namespace
}  // namespace brelt::rc
