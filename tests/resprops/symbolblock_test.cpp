#include "tests/resprops/surgerysupport.h"

namespace brelt::resprops {
namespace {

using test::Crlf;
using test::kRc;

struct Include {
  std::int32_t first = 0;
  std::int32_t last = 0;
  const char* name = "";
};

std::vector<rc::SymbolRecord> SomeSymbols() {
  std::vector<rc::SymbolRecord> symbols(4);
  const char* names[] = {"IDC_A", "UNUSED_BUT_LONG", "B", "MINUS"};
  const std::int32_t values[] = {100, 101, 102, -5};
  const std::int32_t uses[] = {1, 0, 3, 1};
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    symbols[i].Name.Assign(names[i]);
    symbols[i].Value = values[i];
    symbols[i].Uses = uses[i];
  }
  return symbols;
}

constexpr const char* kBlock = "#define IDC_A 100\n#define B     102\n#define MINUS -5\n\n";

std::string AfterRewrite(const std::string& text, const Include& include = {},
                         const std::vector<rc::SymbolRecord>& symbols = SomeSymbols()) {
  test::SetFile(text);
  RewriteSymbols(kRc, symbols, {include.first, include.last}, include.name);
  EXPECT_EQ(test::ListFiles().size(), 1U);
  return test::ReadFile(kRc);
}

TEST(RewriteSymbols, WritesTheBlockWhereTheDefinesBeganAheadOfTheResources) {
  struct Case {
    const char* before;
    const char* after;  // "%" stands for the block
  };
  const Case cases[] = {
      {"#define X 1\nA ICON a\n", "%A ICON a\n"},
      {"// head\n\n#define X 1\n#define Y 2\n\nA ICON a\n", "// head\n\n%A ICON a\n"},
      {"// head\n#define X 1\n// between\n#define Y 2\n\n\nA ICON a\n", "// head\n%// between\n\nA ICON a\n"},
      {"\n\n#define X 1\n", "\n\n%"},
      {"// head\n#define X 1", "// head\n%"},
      {"#include \"other.h\"\n#define X 1\nA ICON a\n#define Y\nB ICON b\n",
       "#include \"other.h\"\n%A ICON a\nB ICON b\n"},
      {"#define X 1\n\nA ICON a\n#define Y 2\n\n\nB ICON b\n", "%A ICON a\n\nB ICON b\n"},
      // The first #define behind a resource: the block goes to the top.
      {"// head\nA ICON a\n#define X 1\n\nB ICON b\n", "%// head\nA ICON a\nB ICON b\n"},
      {"\nA ICON a\n#define X 1\n", "%A ICON a\n"},
      {"A ICON a\n", "%A ICON a\n"},
      {"// no resource\n", "%// no resource\n"},
      {"#include <other.h>\nA ICON a\n", "%#include <other.h>\nA ICON a\n"},
      // A line of one word passes for a resource.
      {"word\n#define X 1\n", "%word\n"},
      {"two words\n#define X 1\n", "two words\n%"},
      {"// words\n#define X 1\n", "// words\n%"},
      {"1 TEXTINCLUDE\n#define X 1\n", "1 TEXTINCLUDE\n%"},
      {"A icon a\n#define X 1\n", "A icon a\n%"},
      {"A DIA\n#define X 1\n", "A DIA\n%"},
      {"A LOG\n#define X 1\n", "%A LOG\n"},
      {"A DIALOG\n#define X 1\n", "%A DIALOG\n"},
      {"\t A LANGUAGE\n#define X 1\n", "%\t A LANGUAGE\n"},
      // Only the first column and lower case make a #define.
      {" #define X 1\n#DEFINE X 1\n# define X 1\n#defined\nA ICON a\n",
       " #define X 1\n#DEFINE X 1\n# define X 1\n%A ICON a\n"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.before);
    std::string after = expected.after;
    after.replace(after.find('%'), 1, kBlock);
    EXPECT_EQ(AfterRewrite(expected.before), Crlf(after));
  }
}

TEST(RewriteSymbols, DrawsTheSymbolsOfAHeaderIntoTheFile) {
  const std::string head = "// head\n#include \"other.h\"\n";
  const std::string block = "1 TEXTINCLUDE\nBEGIN\n\"resource.h\\0\"\nEND\n";
  const std::string rest = "#include \"sub/RESOURCE.H\"\nA ICON a\n";
  for (const char* line :
       {"#include \"resource.h\"\n", "#include <Resource.h>\n", "#include   RESOURCE.H  // x\n",
        "#include\t\"resource.h\" // x\n", "#include\"resource.h\"\n", "#include \"resource.h\n"}) {
    SCOPED_TRACE(line);
    EXPECT_EQ(AfterRewrite(head + line + block + "\n" + rest, {4, 7, "resource.h"}),
              Crlf(kBlock + head + rest));
  }
  for (const char* line : {"#include \"resource.hpp\"\n", " #include \"resource.h\"\n", "#include\n",
                           "#INCLUDE <resource.h>\n"}) {
    SCOPED_TRACE(line);
    EXPECT_EQ(AfterRewrite(head + line + block + "\n\n" + rest, {4, 7, "resource.h"}),
              Crlf(kBlock + head + line + "\n" + rest));
  }
}

TEST(RewriteSymbols, DropsAnIncludeBlockThatBeginsAtTheTop) {
  const std::string block = "1 TEXTINCLUDE\nBEGIN\n\"resource.h\\0\"\nEND\n";
  EXPECT_EQ(AfterRewrite(block + "\nA ICON a\n", {1, 4, "resource.h"}),
            Crlf(std::string(kBlock) + "A ICON a\n"));
  // With such a block #define lines ahead of the resources don't matter.
  EXPECT_EQ(AfterRewrite("// head\n#define X 1\n" + block + "A ICON a\n", {3, 6, "resource.h"}),
            Crlf(std::string(kBlock) + "// head\nA ICON a\n"));
  // At the top an #include is taken over, even that of the header.
  EXPECT_EQ(AfterRewrite("#include \"resource.h\"\n" + block + "A ICON a\n", {2, 5, "resource.h"}),
            Crlf(std::string(kBlock) + "#include \"resource.h\"\nA ICON a\n"));
}

TEST(RewriteSymbols, KeepsAnIncludeWithoutANameWhereTheFileNamesNoHeader) {
  EXPECT_EQ(AfterRewrite("// head\n#include\n#include \"\"\n#define X 1\n"),
            Crlf(std::string("// head\n#include\n#include \"\"\n") + kBlock));
}

TEST(RewriteSymbols, WritesAnEmptyLineEvenWhereNoRowHasAUse) {
  std::vector<rc::SymbolRecord> symbols = SomeSymbols();
  for (rc::SymbolRecord& symbol : symbols) symbol.Uses = 0;
  EXPECT_EQ(AfterRewrite("A ICON a\n", {}, symbols), Crlf("\nA ICON a\n"));
}

TEST(RewriteSymbols, IsTheSameWhenDoneAgain) {
  for (const char* text :
       {"#define X 1\n\n\n\nA ICON a\n", "A ICON a\n\n\n", "// x\n#define X 1\n\n\nA ICON a\n"}) {
    const std::string once = AfterRewrite(text);
    EXPECT_EQ(AfterRewrite(once), once);
  }
}

TEST(RewriteSymbols, DoesNothingWhereItCannotAndSaysNothing) {
  const std::string text = "A ICON a\n";
  EXPECT_EQ(AfterRewrite(text, {}, {}), text);
  EXPECT_EQ(AfterRewrite(""), "");
  test::SetFile(text);
  test::SetReadOnly(kRc, true);
  const std::vector<rc::SymbolRecord> symbols = SomeSymbols();
  for (const char* path : {kRc, "a.rc", "c:\\home\\none.rc", "", (const char*)nullptr}) {
    RewriteSymbols(path, symbols, {}, "");
  }
  EXPECT_EQ(test::ReadFile(kRc), text);
  EXPECT_EQ(test::ListFiles().size(), 1U);
}

}  // namespace
}  // namespace brelt::resprops
