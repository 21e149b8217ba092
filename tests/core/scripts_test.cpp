// Scripts in the layouts that people use, in tests/scripts: each is read as its golden file says.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/golden.h"
#include "tests/support/scriptreport.h"

namespace brelt::rc {
namespace {

std::vector<std::string> ScriptNames() {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(test::ProjectPath("tests/scripts"), error)) {
    names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

TEST(Scripts, AreFound) { EXPECT_GE(ScriptNames().size(), 30u); }

class Script : public ::testing::TestWithParam<std::string> {};

TEST_P(Script, IsReadAsItsGoldenFileSays) {
  const auto bytes = test::LoadBytes(test::ProjectPath("tests/scripts/" + GetParam() + ".rc"));
  ASSERT_TRUE(bytes.has_value());
  test::ExpectGolden("scripts/" + GetParam() + ".txt", test::ReportScript(*bytes));
}

// A file's line ends are no part of what it says.
TEST_P(Script, ReadsTheSameWithOtherLineEnds) {
  const auto bytes = test::LoadBytes(test::ProjectPath("tests/scripts/" + GetParam() + ".rc"));
  ASSERT_TRUE(bytes.has_value());
  std::string feeds;
  for (std::size_t i = 0; i < bytes->size(); ++i) {
    if (bytes->compare(i, 2, "\r\n") != 0) feeds += (*bytes)[i];
  }
  std::string pairs;
  for (const char c : feeds) pairs += c == '\n' ? std::string("\r\n") : std::string(1, c);
  EXPECT_EQ(test::ReportScript(feeds), test::ReportScript(pairs));
}

INSTANTIATE_TEST_SUITE_P(All, Script, ::testing::ValuesIn(ScriptNames()),
                         [](const auto& script) { return script.param; });

}  // namespace
}  // namespace brelt::rc
