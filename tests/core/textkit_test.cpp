#include "rc/textkit.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/guarded.h"

namespace brelt::rc {
namespace {

using Predicate = bool (*)(const char*);

struct PredicateCase {
  const char* text;
  bool holds;
};

template <std::size_t Count>
void ExpectEach(Predicate predicate, const PredicateCase (&cases)[Count]) {
  EXPECT_FALSE(predicate(nullptr));
  for (const PredicateCase& expected : cases) {
    EXPECT_EQ(predicate(expected.text), expected.holds) << '<' << expected.text << '>';
  }
}

TEST(IsIdentifier, IsALetterOrUnderlineThenLettersDigitsAndUnderlines) {
  ExpectEach(IsIdentifier, {{"", false},
                            {"a", true},
                            {"_", true},
                            {"_abc", true},
                            {"A1_b", true},
                            {"1a", false},
                            {"a-b", false},
                            {"a b", false},
                            {"a ", false},
                            {"\xE4", false},
                            {"a\xE4", false},
                            {"#a", false}});
}

TEST(IsDecimalText, IsAnOptionalSignAndDigitsAndNothingElse) {
  ExpectEach(IsDecimalText, {{"", false},
                             {"0", true},
                             {"-5", true},
                             {"+5", true},
                             {"+", false},
                             {"-", false},
                             {"--5", false},
                             {"5-", false},
                             {"1.5", false},
                             {" 5", false},
                             {"5 ", false},
                             {"0x5", false},
                             {"123456789012345678901234567890", true}});
}

TEST(IsHexText, IsTheMarkAndDigitsWithoutATrailingL) {
  ExpectEach(IsHexText, {{"", false},
                         {"0", false},
                         {"0x", false},
                         {"0X", false},
                         {"0x1", true},
                         {"0XaF09", true},
                         {"0x1L", false},
                         {"0x1 ", false},
                         {"0xg", false},
                         {"1x1", false},
                         {"-0x1", false},
                         {"x1", false}});
}

TEST(IsAllSpace, IsWhiteSpaceThroughoutAndNotEmpty) {
  ExpectEach(IsAllSpace, {{"", false}, {" ", true}, {" \t\n\v\f\r", true}, {" a", false}, {"\xA0", false}});
}

TEST(ReplaceChar, GoesOnBehindZeroBytes) {
  char bytes[] = {'a', '\0', 'a', 'b', 'a', 'a'};
  ReplaceChar(bytes, 5, 'a', 'x');
  EXPECT_EQ(std::string(bytes, 6), std::string("x\0xbxa", 6));
  ReplaceChar(bytes, 6, '\0', '-');
  EXPECT_EQ(std::string(bytes, 6), "x-xbxa");
}

TEST(ReplaceChar, DoesNothingWithALengthBelowOne) {
  char bytes[] = "aaa";
  ReplaceChar(bytes, 0, 'a', 'x');
  ReplaceChar(bytes, -1, 'a', 'x');
  ReplaceChar(nullptr, 3, 'a', 'x');
  EXPECT_STREQ(bytes, "aaa");
}

TEST(CountChar, CountsAndIsZeroForNullAndEmpty) {
  EXPECT_EQ(CountChar("a,b,,c", ','), 3);
  EXPECT_EQ(CountChar("abc", ','), 0);
  EXPECT_EQ(CountChar("", ','), 0);
  EXPECT_EQ(CountChar(nullptr, ','), 0);
}

TEST(TrimLineEnd, RemovesAllReturnsAndLineFeedsAtTheEndOnly) {
  const struct {
    const char* text;
    const char* trimmed;
  } cases[] = {{"", ""},           {"a", "a"},           {"a\n", "a"},       {"a\r\n", "a"},
               {"a\n\r\r\n", "a"}, {"\r\n", ""},         {"a\nb\n", "a\nb"}, {"a \n", "a "},
               {"a\n ", "a\n "},   {"\n\ra\n", "\n\ra"}, {"a\t\r\n", "a\t"}};
  for (const auto& expected : cases) {
    char text[16];
    TextBuffer(text, sizeof text).Assign(expected.text);
    TrimLineEnd(text);
    EXPECT_STREQ(text, expected.trimmed) << expected.text;
  }
}

TEST(TrimBlanks, RemovesTheCharacter32AtBothEndsOnly) {
  const struct {
    const char* text;
    const char* trimmed;
  } cases[] = {{"", ""},
               {"   ", ""},
               {"a", "a"},
               {"  a b ", "a b"},
               {" \ta", "\ta"},
               {"a\n ", "a\n"},
               {"\xA0"
                "a\xA0",
                "\xA0"
                "a\xA0"}};
  for (const auto& expected : cases) EXPECT_EQ(TrimBlanks(expected.text), expected.trimmed) << expected.text;
}

std::string LineOf(const char* text, int number) {
  FixedText<100> line("soil");
  NthLine(text, number, line);
  return std::string(line.view());
}

TEST(NthLine, CountsFromOneAndKeepsTheLineFeed) {
  const char* text = "one\n\nthree\r\nrest";
  EXPECT_EQ(LineOf(text, 1), "one\n");
  EXPECT_EQ(LineOf(text, 2), "\n");
  EXPECT_EQ(LineOf(text, 3), "three\r\n");
}

TEST(NthLine, ALineThatNoLineFeedClosesDoesNotExist) {
  EXPECT_EQ(LineOf("one\nrest", 2), "");
  EXPECT_EQ(LineOf("rest", 1), "");
}

TEST(NthLine, IsEmptyForANumberOutsideTheText) {
  EXPECT_EQ(LineOf("one\n", 0), "");
  EXPECT_EQ(LineOf("one\n", -1), "");
  EXPECT_EQ(LineOf("one\n", 2), "");
  EXPECT_EQ(LineOf("", 1), "");
  EXPECT_EQ(LineOf(nullptr, 1), "");
}

TEST(NthLine, CutsToTheBuffer) {
  test::ExpectCutToFit("second\n", [](TextBuffer buffer) { NthLine("first\nsecond\nthird\n", 2, buffer); });
}

TEST(LineWalk, GivesTheLinesThatNthLineGives) {
  for (const char* text : {"", "a", "a\n", "\n\n", "a\nbc\n\nrest", "a\r\nb\r\n"}) {
    SCOPED_TRACE(text);
    LineWalk walk(text);
    std::string_view line("soil");
    for (int n = 1;; ++n) {
      const bool more = walk.Next(line);
      EXPECT_EQ(line, LineOf(text, n));
      EXPECT_EQ(more, !line.empty());
      if (!more) break;
    }
    EXPECT_FALSE(walk.Next(line));
  }
  std::string_view line;
  EXPECT_FALSE(LineWalk(nullptr).Next(line));
}

TEST(LineAndColumn, CountsFromOneAndOnlyLineFeedsBreakLines) {
  const char* text = "ab\n\tc\r\n\nd";
  const struct {
    int offset, line, column;
  } cases[] = {{0, 1, 1},
               {1, 1, 2},
               {2, 1, 3},
               {3, 2, 1},
               {4, 2, 2},
               {5, 2, 3},
               {6, 2, 4},
               {7, 3, 1},
               {8, 4, 1},
               // Outside the text.
               {-1, 0, 0},
               {9, 0, 0},
               {1000, 0, 0}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.offset);
    const Place place = LineAndColumn(text, expected.offset);
    EXPECT_EQ(place.line, expected.line);
    EXPECT_EQ(place.column, expected.column);
  }
  EXPECT_EQ(LineAndColumn("", 0).line, 0);
  EXPECT_EQ(LineAndColumn(nullptr, 0).column, 0);
}

std::string PlaceOf(const std::string& text, int position) {
  FixedText<60> out("soil");
  TokenPlaceText(text.c_str(), position, out);
  return std::string(out.view());
}

TEST(TokenPlaceText, NamesTheBeginningOfTheTokenThatEndsBeforeThePosition) {
  const std::string text = "one two\n  three  \n\nfour";
  EXPECT_EQ(PlaceOf(text, 4), "(Line 1, col 1)");
  EXPECT_EQ(PlaceOf(text, 7), "(Line 1, col 5)");
  EXPECT_EQ(PlaceOf(text, 10), "(Line 1, col 5)");
  EXPECT_EQ(PlaceOf(text, 19), "(Line 2, col 3)");
  EXPECT_EQ(PlaceOf(text, static_cast<int>(text.size())), "(Line 4, col 1)");
}

TEST(TokenPlaceText, GivesTheFirstPlaceWhenItReachesTheStart) {
  EXPECT_EQ(PlaceOf("abc", 3), "(Line 1, col 1)");
  EXPECT_EQ(PlaceOf("abc", 0), "(Line 1, col 1)");
  EXPECT_EQ(PlaceOf(" \n abc", 3), "(Line 1, col 1)");
}

TEST(TokenPlaceText, AnEmptyTextHasNoPlace) { EXPECT_EQ(PlaceOf("", 0), "(Line 0, col 0)"); }

TEST(TokenPlaceText, CutsToTheBuffer) {
  test::ExpectCutToFit("(Line 2, col 3)", [](TextBuffer buffer) { TokenPlaceText("a\n  bc", 6, buffer); });
}

struct BadWord {
  std::string word;
  int position;
};

BadWord BadWordOf(const std::string& text) {
  FixedText<60> out("soil");
  std::int32_t position = 0;
  BadWordText(text.c_str(), position, out);
  return {std::string(out.view()), position};
}

TEST(BadWordText, CopiesVisibleCharactersUpToTheFirstBlankOrOther) {
  const struct {
    const char* text;
    const char* word;
  } cases[] = {{"", ""},       {" a", ""},           {"_abc def", "_abc"}, {"a\tb", "a"},
               {"a\nb", "a"},  {";", ";"},           {"\xE4", ""},         {"a\xE4", "a"},
               {"a\x7F", "a"}, {"/*x*/ y", "/*x*/"}, {"\x01", ""},         {"a\"b'c", "a\"b'c"}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.text);
    const BadWord found = BadWordOf(expected.text);
    EXPECT_EQ(found.word, expected.word);
    EXPECT_EQ(found.position, static_cast<int>(found.word.size()));
  }
}

TEST(BadWordText, ConsumesWhatDoesNotFit) {
  test::ExpectCutToFit(";abcdef", [](TextBuffer buffer) {
    std::int32_t position = 0;
    BadWordText(";abcdef ;x", position, buffer);
    EXPECT_EQ(position, 7);
  });
}

}  // namespace
}  // namespace brelt::rc
