#include "rc/scan.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

#include "tests/support/guarded.h"

namespace brelt::rc {
namespace {

std::string Scan(const std::string& text, std::int32_t& position) {
  Token token;
  ScanToken(text.c_str(), position, token);
  return std::string(token.view());
}

TEST(CharacterClasses, AreThePlainAsciiOnesForEveryByte) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(byte);
    const char c = static_cast<char>(byte);
    const bool ascii = byte < 128;
    EXPECT_EQ(IsDigit(c), ascii && std::isdigit(byte) != 0);
    EXPECT_EQ(IsLetter(c), ascii && std::isalpha(byte) != 0);
    EXPECT_EQ(IsLetterOrDigit(c), ascii && std::isalnum(byte) != 0);
    EXPECT_EQ(IsHexDigit(c), ascii && std::isxdigit(byte) != 0);
    EXPECT_EQ(IsSpace(c), ascii && std::isspace(byte) != 0);
    EXPECT_EQ(IsControl(c), ascii && std::iscntrl(byte) != 0);
    EXPECT_EQ(IsPunctuation(c), ascii && std::ispunct(byte) != 0);
    EXPECT_EQ(IsOctalDigit(c), byte >= '0' && byte <= '7');
    EXPECT_EQ(ToUpper(c), ascii ? static_cast<char>(std::toupper(byte)) : c);
    EXPECT_EQ(ToLower(c), ascii ? static_cast<char>(std::tolower(byte)) : c);
  }
}

TEST(CharacterClasses, NamesCompareByTheirLowerCaseFormsByteByByte) {
  EXPECT_EQ(CompareIgnoreCase("abc", "ABC"), 0);
  EXPECT_LT(CompareIgnoreCase("ab", "ABC"), 0);
  EXPECT_GT(CompareIgnoreCase("ABC", "ab"), 0);
  EXPECT_GT(CompareIgnoreCase("abd", "ABC"), 0);
  // Folded to lower case, '_' comes ahead of every letter; folded to upper case it would come behind.
  EXPECT_LT(CompareIgnoreCase("a_b", "aab"), 0);
  EXPECT_GT(CompareIgnoreCase("\xE4", "z"), 0);
  EXPECT_NE(CompareIgnoreCase("\xE4", "\xC4"), 0);
  EXPECT_FALSE(EqualIgnoreCase("ab", "abc"));
  EXPECT_TRUE(StartsWithIgnoreCase("ALTx", "alt"));
  EXPECT_FALSE(StartsWithIgnoreCase("al", "alt"));
}

struct ScanCase {
  std::string text;
  std::vector<std::string> tokens;  // up to the first empty one
  int position;                     // where the first empty one was found
};

void ExpectTokens(const ScanCase& expected) {
  SCOPED_TRACE(expected.text);
  std::int32_t position = 0;
  std::vector<std::string> tokens;
  for (;;) {
    const std::string token = Scan(expected.text, position);
    if (token.empty()) break;
    tokens.push_back(token);
  }
  EXPECT_EQ(tokens, expected.tokens);
  EXPECT_EQ(position, expected.position);
}

TEST(ScanToken, ReadsWordsOfLettersDigitsAndUnderlinesThatBeginWithALetter) {
  const ScanCase cases[] = {
      {"abc_1 x", {"abc_1", "x"}, 7},
      {"a-b", {"a", "-", "b"}, 3},
      {"Z9\xE4", {"Z9"}, 2},
      {"_abc", {}, 0},
      {"a__", {"a__"}, 3},
      {"9a", {"9", "a"}, 2},
  };
  for (const ScanCase& expected : cases) ExpectTokens(expected);
}

TEST(ScanToken, ReadsHexadecimalNumbersWithOneUpperCaseL) {
  const ScanCase cases[] = {
      {"0X1Fl", {"0X1F", "l"}, 5}, {"0x1FL", {"0x1FL"}, 5},     {"0x", {"0x"}, 2},
      {"0xL", {"0xL"}, 3},         {"0x1LL", {"0x1L", "L"}, 5}, {"0xg", {"0x", "g"}, 3},
      {"00x1", {"00", "x1"}, 4},   {"-0x1", {"-0", "x1"}, 4},
  };
  for (const ScanCase& expected : cases) ExpectTokens(expected);
}

TEST(ScanToken, ReadsNumbersWithSignFractionAndExponent) {
  const ScanCase cases[] = {
      {"0", {"0"}, 1},
      {"-5", {"-5"}, 2},
      {"+", {"+"}, 1},
      {"- 5", {"-", "5"}, 3},
      {"--5", {"-", "-5"}, 3},
      {"10+5", {"10", "+5"}, 4},
      {"10 + 5", {"10", "+", "5"}, 6},
      {"1.5e3", {"1.5e3"}, 5},
      {"1.e3", {"1", ".", "e3"}, 4},
      {"1.", {"1", "."}, 2},
      {".5", {".", "5"}, 2},
      {"1.2.3", {"1.2", ".", "3"}, 5},
      {"-.5", {"-.5"}, 3},
      {"1e", {"1", "e"}, 2},
      {"1ex", {"1", "ex"}, 3},
      {"1E5", {"1E5"}, 3},
      {"1e-5x", {"1e-5", "x"}, 5},
      {"1e+5", {"1e+5"}, 4},
      {"+e5", {"+e5"}, 3},
  };
  for (const ScanCase& expected : cases) ExpectTokens(expected);
}

TEST(ScanToken, FailsOnAnExponentSignWithoutDigits) {
  ExpectTokens({"1e+", {}, 3});
  ExpectTokens({"1e+x", {}, 3});
  ExpectTokens({"1.5E- 7", {}, 6});
}

TEST(ScanToken, ReadsStringsWithTheirMarksDoubledOnesIncluded) {
  const ScanCase cases[] = {
      {"\"\"", {"\"\""}, 2},
      {"\"a\"\"b\"", {"\"a\"\"b\""}, 6},
      {"\"\"\"\"", {"\"\"\"\""}, 4},
      {"\"a\" \"b\"", {"\"a\"", "\"b\""}, 7},
      {"\"\x80\xFF\x7F\"", {"\"\x80\xFF\x7F\""}, 5},
  };
  for (const ScanCase& expected : cases) ExpectTokens(expected);
}

TEST(ScanToken, ABackslashProtectsNoQuotationMark) { ExpectTokens({R"("a\"b)", {R"("a\")", "b"}, 5}); }

TEST(ScanToken, AStringBreaksOffAtAnyByteBelow32) {
  for (int byte = 1; byte < 32; ++byte) {
    SCOPED_TRACE(byte);
    const std::string text = std::string("\"a") + static_cast<char>(byte) + "b\"";
    std::int32_t position = 0;
    EXPECT_EQ(Scan(text, position), "");
    // White space is skipped behind a failed token too.
    EXPECT_EQ(position, IsSpace(static_cast<char>(byte)) ? 3 : 2);
  }
  ExpectTokens({"\"abc", {}, 4});
  ExpectTokens({"\"a\"\"", {}, 4});
}

TEST(ScanToken, AStringStoppedByATabLeavesThePositionBehindTheWhiteSpace) {
  std::int32_t position = 0;
  EXPECT_EQ(Scan("\"a\t \tb\"", position), "");
  EXPECT_EQ(position, 5);
}

TEST(ScanToken, ReadsRangesWithTheirBlanks) {
  const ScanCase cases[] = {
      {"[ 1 .. 2 , -3 : +4 ]", {"[ 1 .. 2 , -3 : +4 ]"}, 20},
      {"[]", {"[]"}, 2},
      {"[   ]", {"[   ]"}, 5},
      {"[1]", {"[1]"}, 3},
      {"[1 2]", {"[1 2]"}, 5},
      {"[1:2,3..4]x", {"[1:2,3..4]", "x"}, 11},
      {"[1..]", {"[1..]"}, 5},
      {"[-]", {"[-]"}, 3},
      {"[1,]", {"[1,]"}, 4},
      {"[1,  2]", {"[1,  2]"}, 7},
  };
  for (const ScanCase& expected : cases) ExpectTokens(expected);
}

TEST(ScanToken, ABrokenRangeLeavesThePositionOnTheOffendingCharacter) {
  const ScanCase cases[] = {
      {"[1", {}, 2},    {"[x]", {}, 1},   {"[", {}, 1},       {"[,1]", {}, 1},
      {"[1.2]", {}, 2}, {"[1;2]", {}, 2}, {"[1 2 3]", {}, 5},
  };
  for (const ScanCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    std::int32_t position = 0;
    EXPECT_EQ(Scan(expected.text, position), "");
    EXPECT_EQ(position, expected.position);
  }
}

TEST(ScanToken, OnlyBlanksMayStandInARange) {
  std::int32_t position = 0;
  EXPECT_EQ(Scan("[\t1]", position), "");
  EXPECT_EQ(position, 2);
}

TEST(ScanToken, ReadsMarkedWordsAndTheMarkAlone) {
  const ScanCase cases[] = {
      {"#", {"#"}, 1},           {"$", {"$"}, 1},     {"#define X", {"#define", "X"}, 9},
      {"$abc_1", {"$abc_1"}, 6}, {"#_9", {"#_9"}, 3}, {"##", {"#", "#"}, 2},
  };
  for (const ScanCase& expected : cases) ExpectTokens(expected);
}

TEST(ScanToken, ReadsSingleCharactersAndAssignments) {
  const ScanCase cases[] = {
      {"(){},|.", {"(", ")", "{", "}", ",", "|", "."}, 7},
      {"=>", {"=>"}, 2},
      {"==", {"=", "="}, 2},
      {"= >", {"="}, 2},
      {"<>", {"<>"}, 2},
      {"<", {}, 0},
      {"<=", {}, 0},
  };
  for (const ScanCase& expected : cases) ExpectTokens(expected);
}

TEST(ScanToken, EveryOtherByteBeginsNoTokenAndDoesNotMove) {
  const std::string beginners = "+-\"[#$(){},|.=<";
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    if (IsLetterOrDigit(c) || beginners.find(c) != std::string::npos) continue;
    SCOPED_TRACE(byte);
    const std::string text = std::string("ab") + c + "  cd";
    std::int32_t position = 2;
    EXPECT_EQ(Scan(text, position), "");
    EXPECT_EQ(position, 2);
  }
}

TEST(ScanToken, AnEmptyTextGivesAnEmptyTokenForEver) {
  std::int32_t position = 0;
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(Scan("", position), "");
    EXPECT_EQ(position, 0);
  }
}

TEST(ScanToken, SkipsWhiteSpaceBehindATokenAndNeverInFront) {
  std::int32_t position = 0;
  EXPECT_EQ(Scan(" a", position), "");
  EXPECT_EQ(position, 0);
  SkipSpace(" a", position);
  EXPECT_EQ(position, 1);
  position = 0;
  EXPECT_EQ(Scan("a \t\n\v\f\r b", position), "a");
  EXPECT_EQ(position, 8);
}

TEST(ScanToken, HasNoStateBesideThePosition) {
  const std::string text = "one two three";
  std::int32_t position = 0;
  Scan(text, position);
  std::int32_t ahead = position;
  EXPECT_EQ(Scan(text, ahead), "two");
  EXPECT_EQ(Scan(text, ahead), "three");
  EXPECT_EQ(Scan(text, position), "two");
}

TEST(ScanToken, CutsALongTokenAndStandsBehindTheWholeOfIt) {
  const std::string words[] = {"abcdefgh",    "\"a string\"", "[1..2, 3..4]",
                               "0x1234ABCDL", "-12.5e-10",    "#define"};
  for (const std::string& word : words) {
    SCOPED_TRACE(word);
    test::ExpectCutToFit(word, [&word](TextBuffer buffer) {
      std::int32_t position = 0;
      ScanToken((word + " next").c_str(), position, buffer);
      EXPECT_EQ(position, static_cast<std::int32_t>(word.size()) + 1);
    });
  }
}

TEST(ScanToken, AFailureClearsTheToken) {
  for (const char* text : {"", "_", "\"a", "[x", "1e+"}) {
    SCOPED_TRACE(text);
    test::ExpectCutToFit("", [text](TextBuffer buffer) {
      std::int32_t position = 0;
      ScanToken(text, position, buffer);
    });
  }
}

TEST(ScanSignedDigits, PassesOneSignAndDigitsPerhapsNothing) {
  const struct {
    const char* text;
    int position;
  } cases[] = {{"", 0}, {"x", 0}, {"12x", 2}, {"-12", 3}, {"+", 1}, {"--1", 1}, {"1-2", 1}, {" 1", 0}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.text);
    std::int32_t position = 0;
    ScanSignedDigits(expected.text, position);
    EXPECT_EQ(position, expected.position);
  }
}

TEST(StringBody, IsWhatStandsBetweenTheMarks) {
  EXPECT_EQ(StringBody("\"ab\""), "ab");
  EXPECT_EQ(StringBody("\"\""), "");
  EXPECT_EQ(StringBody("\"cut"), "cut");
  EXPECT_EQ(StringBody("\""), "");
  EXPECT_EQ(StringBody("word"), "");
  EXPECT_EQ(StringBody(""), "");
}

TEST(DecimalValue, ReadsSignAndDigitsAndClampsToTheSignedRange) {
  const struct {
    const char* text;
    std::int32_t value;
  } cases[] = {{"", 0},
               {"x", 0},
               {"0", 0},
               {"12.7", 12},
               {"0x10", 0},
               {"-5", -5},
               {"+5", 5},
               {"-", 0},
               {"+-5", 0},
               {"007", 7},
               {"2147483646", 2147483646},
               {"2147483647", 2147483647},
               {"2147483648", 2147483647},
               {"99999999999999999999999999", 2147483647},
               {"-2147483647", -2147483647},
               {"-2147483648", INT32_MIN},
               {"-2147483649", INT32_MIN},
               {"-21474836470", INT32_MIN},
               {"-99999999999999999999999999", INT32_MIN}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(DecimalValue(expected.text), expected.value);
  }
}

TEST(HexDigitsValue, ReadsLeadingDigitsAndIsAllOnesBeyondEight) {
  const struct {
    const char* text;
    std::uint32_t value;
  } cases[] = {{"", 0},
               {"g", 0},
               {"1F", 0x1F},
               {"fFx", 0xFF},
               {"10L", 0x10},
               {"ffffffff", 0xFFFFFFFF},
               {"fffffff0", 0xFFFFFFF0},
               {"0000000012345678", 0x12345678},
               {"100000000", 0xFFFFFFFF},
               {"123456789ABCDEF0", 0xFFFFFFFF}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(HexDigitsValue(expected.text), expected.value);
  }
  EXPECT_TRUE(HasHexPrefix("0x"));
  EXPECT_TRUE(HasHexPrefix("0X1"));
  EXPECT_FALSE(HasHexPrefix("0"));
  EXPECT_FALSE(HasHexPrefix("1x"));
  EXPECT_FALSE(HasHexPrefix("0y"));
}

TEST(IsLoadOption, KnowsSevenWordsIgnoringCase) {
  for (const char* word : {"PRELOAD", "LOADONCALL", "FIXED", "MOVEABLE", "DISCARDABLE", "PURE", "IMPURE",
                           "preload", "Discardable"}) {
    EXPECT_TRUE(IsLoadOption(word)) << word;
  }
  for (const char* word : {"", "BEGIN", "MOVABLE", "PURE1", "PUR", "SHARED", "NONSHARED"}) {
    EXPECT_FALSE(IsLoadOption(word)) << word;
  }
}

}  // namespace
}  // namespace brelt::rc
