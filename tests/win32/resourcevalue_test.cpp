// The numbers of words for the running program, from the file of definitions beside it.
#include <brelt.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <string>

namespace brelt::test {
namespace {

class ResourceValueTest : public ::testing::Test {
 protected:
  ResourceValueTest() { DeleteFiles(); }
  ~ResourceValueTest() override { DeleteFiles(); }

  // The program's path with another extension.
  static std::string BesideProgram(const char* extension) {
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program = path;
    return program.substr(0, program.rfind('.')) + extension;
  }
  static void Give(const char* extension, const char* text) {
    FILE* file = fopen(BesideProgram(extension).c_str(), "wb");
    ASSERT_NE(file, nullptr);
    fputs(text, file);
    fclose(file);
  }
  static void DeleteFiles() {
    for (const char* extension : {".rc", ".rcx"}) DeleteFileA(BesideProgram(extension).c_str());
  }
};

TEST_F(ResourceValueTest, WithoutAFileNoWordHasANumber) {
  EXPECT_EQ(ResourceValue("IDOK"), 32767);
  EXPECT_EQ(ResourceCommonId("IDOK"), 1);
  Give(".rc", "");
  EXPECT_EQ(ResourceValue("IDOK"), 32767);
}

TEST_F(ResourceValueTest, WordsHaveTheNumbersOfTheFileBesideTheProgram) {
  Give(".rc",
       "#define IDC_A 100\r\n  #define IDC_B 0x10 // b\r\n#define IDC_C 0x10L\r\n\x1A#define IDC_D 5\r\n");
  const struct {
    const char* word;
    int32_t value;
  } cases[] = {{"IDC_A", 100}, {"idc_b", 16}, {"IDC_C", 32767}, {"IDC_D", 32767},
               {"IDOK", 1},    {"idhelp", 9}, {"", 32767},      {nullptr, 32767}};
  for (const auto& expected : cases) {
    EXPECT_EQ(ResourceValue(expected.word), expected.value)
        << (expected.word != nullptr ? expected.word : "null");
  }
  // The file of the longer extension comes first, unless it is empty.
  Give(".rcx", "");
  EXPECT_EQ(ResourceValue("IDC_A"), 100);
  Give(".rcx", "#define IDC_A 7\n");
  EXPECT_EQ(ResourceValue("IDC_A"), 7);
  EXPECT_EQ(ResourceValue("IDC_B"), 32767);
}

TEST(ResourceCommonIdTest, KnowsTheNineWords) {
  const char* words[] = {"IDOK",  "IDCANCEL", "IDABORT", "IDRETRY", "IDIGNORE",
                         "IDYES", "IDNO",     "IDCLOSE", "idhelp"};
  for (int32_t i = 0; i < 9; ++i) EXPECT_EQ(ResourceCommonId(words[i]), i + 1) << words[i];
  EXPECT_EQ(ResourceCommonId("IDC_A"), 0);
  EXPECT_EQ(ResourceCommonId(""), 0);
  EXPECT_EQ(ResourceCommonId(nullptr), 0);
}

}  // namespace
}  // namespace brelt::test
