#include "rc/commonids.h"

#include <gtest/gtest.h>

namespace brelt::rc {
namespace {

TEST(CommonIdValue, KnowsNineWordsIgnoringCase) {
  const struct {
    const char* name;
    std::int32_t value;
  } cases[] = {{"IDOK", 1},  {"IDCANCEL", 2}, {"IDABORT", 3}, {"IDRETRY", 4}, {"IDIGNORE", 5},  {"IDYES", 6},
               {"IDNO", 7},  {"IDCLOSE", 8},  {"IDHELP", 9},  {"idok", 1},    {"IdHelp", 9},    {"", 0},
               {"IDOK ", 0}, {"IDO", 0},      {"IDOKAY", 0},  {"1", 0},       {"IDTRYAGAIN", 0}};
  for (const auto& expected : cases) {
    EXPECT_EQ(CommonIdValue(expected.name), expected.value) << expected.name;
  }
  EXPECT_EQ(CommonIdValue(nullptr), 0);
}

}  // namespace
}  // namespace brelt::rc
