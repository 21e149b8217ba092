#include "rc/scan.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brelt::rc {
namespace {

struct ScanCase {
  std::string text;
  std::vector<std::string> tokens;  // up to the first empty one
  int position;                     // where the first empty one was found
};

TEST(ScanToken, ReadsEachKindOfToken) {
  const ScanCase cases[] = {
      {"", {}, 0},
      {"_abc", {}, 0},
      {"abc_1 x", {"abc_1", "x"}, 7},
      {"0X1Fl", {"0X1F", "l"}, 5},
      {"0x1FL", {"0x1FL"}, 5},
      {"0x", {"0x"}, 2},
      {"- 5", {"-", "5"}, 3},
      {"1.5e3", {"1.5e3"}, 5},
      {"1.e3", {"1", ".", "e3"}, 4},
      {"1e", {"1", "e"}, 2},
      {"1e+", {}, 3},
      {"1e+x", {}, 3},
      {"\"a\"\"b\"", {"\"a\"\"b\""}, 6},
      {"\"a\tb\"", {}, 3},
      {"[ 1 .. 2 , -3 : +4 ]", {"[ 1 .. 2 , -3 : +4 ]"}, 20},
      {"[1 2]", {"[1 2]"}, 5},
      {"[]", {"[]"}, 2},
      {"[   ]", {"[   ]"}, 5},
      {"[1", {}, 2},
      {"[x]", {}, 1},
      {"<>", {"<>"}, 2},
      {"<", {}, 0},
      {"<=", {}, 0},
      {"=>", {"=>"}, 2},
      {"==", {"=", "="}, 2},
      {"#", {"#"}, 1},
      {"$abc_1", {"$abc_1"}, 6},
      {"10+5", {"10", "+5"}, 4},
      {"10 + 5", {"10", "+", "5"}, 6},
  };
  for (const ScanCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    std::int32_t position = 0;
    std::vector<std::string> tokens;
    Token token;
    for (;;) {
      ScanToken(expected.text.c_str(), position, token);
      if (token.IsEmpty()) break;
      tokens.emplace_back(token.view());
    }
    EXPECT_EQ(tokens, expected.tokens);
    EXPECT_EQ(position, expected.position);
  }
}

}  // namespace
}  // namespace brelt::rc
