#include <gtest/gtest.h>

#include <string>

#include "rc/symbols.h"
#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

class ResourceWordValue_ : public ::testing::Test {
 protected:
  ResourceWordValue_() {
    test::ResetHost();
    test::SetProgramPath("c:\\program\\test.exe");
  }

  static void GiveWords(const std::string& text) { test::WriteFile("c:\\program\\test.rc", text); }
};

TEST_F(ResourceWordValue_, WithoutAFileNotEvenACommonIdHasANumber) {
  EXPECT_EQ(ResourceWordValue("IDOK"), 32767);
  test::WriteFile("c:\\program\\test.rcx", "");
  test::WriteFile("c:\\program\\test.rc", "");
  EXPECT_EQ(ResourceWordValue("IDOK"), 32767);
  GiveWords(" ");
  EXPECT_EQ(ResourceWordValue("IDOK"), 1);
  EXPECT_EQ(ResourceWordValue("idhelp"), 9);
}

TEST_F(ResourceWordValue_, PrefersTheRcxFileUnlessItIsEmpty) {
  GiveWords("#define A 1\n");
  EXPECT_EQ(ResourceWordValue("A"), 1);
  test::WriteFile("c:\\program\\test.rcx", "");
  EXPECT_EQ(ResourceWordValue("A"), 1);
  test::WriteFile("c:\\program\\test.rcx", "#define A 2\n");
  EXPECT_EQ(ResourceWordValue("A"), 2);
  // What the first file lacks isn't sought in the other.
  GiveWords("#define B 1\n");
  EXPECT_EQ(ResourceWordValue("B"), 32767);
}

TEST_F(ResourceWordValue_, ReplacesOnlyTheProgramsExtension) {
  test::SetProgramPath("d:\\my.dir\\my.program.exe");
  test::WriteFile("d:\\my.dir\\my.program.rc", "#define A 5");
  EXPECT_EQ(ResourceWordValue("A"), 5);
  test::SetProgramPath("d:\\my.dir\\bare");
  test::WriteFile("d:\\my.dir\\bare.rcx", "#define A 6");
  EXPECT_EQ(ResourceWordValue("A"), 6);
}

TEST_F(ResourceWordValue_, ANullOrEmptyNameHasNoNumber) {
  GiveWords("#define A 1\n");
  EXPECT_EQ(ResourceWordValue(nullptr), 32767);
  EXPECT_EQ(ResourceWordValue(""), 32767);
}

TEST_F(ResourceWordValue_, ACommonIdComesAheadOfTheFile) {
  GiveWords("#define IDOK 99\n");
  EXPECT_EQ(ResourceWordValue("IDOK"), 1);
}

TEST_F(ResourceWordValue_, TheFirstDefinitionDecides) {
  GiveWords(
      "#define A x\n"
      "#define A 2\n"
      "  \t#define INDENTED 3\n"
      "#DEFINE UPPER 4\n"
      "# define SPACED 5\n"
      "#define C 7 // comment\n"
      "text #define D 8\n"
      "#define B 6\n"
      "#define\n"
      "#define LAST 9");
  const struct {
    const char* name;
    std::int32_t value;
  } cases[] = {{"A", 32767},     {"a", 32767},      {"INDENTED", 3}, {"indented", 3},
               {"UPPER", 32767}, {"SPACED", 32767}, {"B", 6},        {"C", 7},
               {"D", 32767},     {"LAST", 9},       {"NONE", 32767}, {"define", 32767}};
  for (const auto& expected : cases) {
    EXPECT_EQ(ResourceWordValue(expected.name), expected.value) << expected.name;
  }
}

TEST_F(ResourceWordValue_, TheNumberMustBeWhollyOne) {
  const struct {
    const char* token;
    std::int32_t value;
  } cases[] = {{"10", 10},
               {"-10", -10},
               {"+10", 10},
               {"0x10", 16},
               {"0X1f", 31},
               {"0x10L", 32767},
               {"0x", 32767},
               {"(10)", 32767},
               {"\"10\"", 32767},
               {"1.5", 32767},
               {"word", 32767},
               {"", 32767},
               {"-", 32767},
               {"0x7FFFFFFF", 0x7FFFFFFF},
               {"0xFFFFFFFF", 0x7FFFFFFF},
               {"0x123456789", 0x7FFFFFFF},
               {"99999999999", 0x7FFFFFFF},
               {"-99999999999", INT32_MIN}};
  for (const auto& expected : cases) {
    GiveWords(std::string("#define W ") + expected.token + "\n");
    EXPECT_EQ(ResourceWordValue("W"), expected.value) << expected.token;
  }
}

TEST_F(ResourceWordValue_, TokensAreHeldTo40Characters) {
  const std::string word(40, 'w');
  GiveWords("#define " + word + "x 5\n");
  EXPECT_EQ(ResourceWordValue((word + "x").c_str()), 32767);
  EXPECT_EQ(ResourceWordValue(word.c_str()), 5);
}

TEST_F(ResourceWordValue_, ReadsTheFileAnewEachTime) {
  GiveWords("#define A 1\r\n");
  EXPECT_EQ(ResourceWordValue("A"), 1);
  GiveWords("#define A 2\r\n");
  EXPECT_EQ(ResourceWordValue("A"), 2);
  EXPECT_EQ(test::OpenFiles(), 0);
}

TEST_F(ResourceWordValue_, AFileThatWillNotOpenHasNoNumbers) {
  GiveWords("#define A 1\n");
  // Asking for the size of two files comes ahead of opening.
  test::FailFileOperation(2);
  EXPECT_EQ(ResourceWordValue("A"), 32767);
  test::FailFileOperation(3, true);
  EXPECT_EQ(ResourceWordValue("A"), 32767);
  EXPECT_EQ(test::OpenFiles(), 0);
}

}  // namespace
}  // namespace brelt::rc
