#include "rc/fields.h"

#include <gtest/gtest.h>

#include <string>

#include "rc/statements.h"
#include "tests/support/guarded.h"

namespace brelt::rc {
namespace {

struct TextFieldCase {
  std::string text;
  std::string field;
  int position;
};

TEST(ParseOptionalString, ReadsAStringWithoutItsMarksUndecoded) {
  const TextFieldCase cases[] = {
      {"\"abc\" next", "abc", 6},
      {"\"\" next", "", 3},
      {R"("a""b\n" next)", R"(a""b\n)", 9},
      {"\"a\"\n,", "a", 4},
      {"word", "", 0},
      {"5", "", 0},
      {" \"a\"", "", 0},
      {"", "", 0},
      // A string that breaks off is consumed up to where it does.
      {"\"ab\tc\"", "", 4},
      {"\"abc", "", 4},
  };
  for (const TextFieldCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    FixedText<50> out("soil");
    std::int32_t position = 0;
    ParseOptionalString(expected.text.c_str(), position, out);
    EXPECT_EQ(out.view(), expected.field);
    EXPECT_EQ(position, expected.position);
  }
}

TEST(ParseOptionalString, IsCutAndThenLosesAMarkAtItsEnd) {
  const auto read = [](const char* text, auto& out) {
    std::int32_t position = 0;
    ParseOptionalString(text, position, out);
    EXPECT_EQ(position, static_cast<std::int32_t>(std::strlen(text)));
    return std::string(out.view());
  };
  FixedText<4> four;
  EXPECT_EQ(read("\"abc\"", four), "abc");
  EXPECT_EQ(read("\"abcd\"", four), "abcd");
  EXPECT_EQ(read("\"abcde\"", four), "abcd");
  // The last character that fits is a mark, though not the closing one.
  EXPECT_EQ(read("\"abc\"\"def\"", four), "abc");
}

TEST(ParseOptionalString, StaysInItsBuffer) {
  test::ExpectCutToFit("abcdef", [](TextBuffer buffer) {
    std::int32_t position = 0;
    ParseOptionalString("\"abcdef\" x", position, buffer);
    EXPECT_EQ(position, 9);
  });
}

TEST(ParseOptionalString, ATokenHoldsAtMost1024Characters) {
  const std::string text = "\"" + std::string(2000, 'x') + "\"";
  FixedText<3000> out;
  std::int32_t position = 0;
  ParseOptionalString(text.c_str(), position, out);
  EXPECT_EQ(out.view(), std::string(1023, 'x'));
  EXPECT_EQ(position, 2002);
}

TEST(ParseOptionalId, ReadsAnythingThatBeginsWithALetterDigitOrSign) {
  const TextFieldCase cases[] = {
      {"IDC_A , 5", "IDC_A", 6},
      {"-1,5", "-1", 2},
      {"+", "+", 1},
      {"0x10L,", "0x10L", 5},
      {"1.5e3 x", "1.5e3", 6},
      {"_A", "", 0},
      {"\"a\"", "", 0},
      {",", "", 0},
      {"", "", 0},
      {" A", "", 0},
      {"1e+x", "", 3},
  };
  for (const TextFieldCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    FixedText<50> out("soil");
    std::int32_t position = 0;
    ParseOptionalId(expected.text.c_str(), position, out);
    EXPECT_EQ(out.view(), expected.field);
    EXPECT_EQ(position, expected.position);
  }
  test::ExpectCutToFit("IDC_NAME", [](TextBuffer buffer) {
    std::int32_t position = 0;
    ParseOptionalId("IDC_NAME,", position, buffer);
    EXPECT_EQ(position, 8);
  });
}

struct ExpressionCase {
  const char* text;
  std::int32_t value;
  int position;
};

TEST(ParseExpression, IsEvaluatedStrictlyFromLeftToRight) {
  const ExpressionCase cases[] = {
      {"10", 10, 2},       {"-10", -10, 3}, {"+10", 10, 3},     {"10-5", 5, 4},     {"10+5", 15, 4},
      {"2*3+1", 7, 5},     {"1+2*3", 9, 5}, {"10 -5", 5, 5},    {"10 - 5 ,", 5, 7}, {"10--5", 15, 5},
      {"10+-5", 5, 5},     {"2*-3", -6, 4}, {"1+2+3+4", 10, 7}, {"10 5", 10, 3},    {"10,5", 10, 2},
      {"10\n+\n5", 15, 6}, {"12.7", 12, 4}, {"1.5", 1, 3},      {"0x10", 0, 4},     {"0x10+3", 3, 6},
      {"1e3", 1, 3},       {"10/2", 10, 2}, {"10)", 10, 2},     {"1e+x", 0, 3},
  };
  for (const ExpressionCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    std::int32_t position = 0;
    EXPECT_EQ(ParseExpression(expected.text, position), expected.value);
    EXPECT_EQ(position, expected.position);
  }
}

TEST(ParseExpression, IsUnsetWhereNoNumberStands) {
  const ExpressionCase cases[] = {{"", kUnset, 0},      {"x", kUnset, 0},    {"(5)", kUnset, 0},
                                  {",", kUnset, 0},     {" 5", kUnset, 0},   {"*5", kUnset, 0},
                                  {"5+", kUnset, 2},    {"5+x", kUnset, 2},  {"5*(3)", kUnset, 2},
                                  {"5 + ,", kUnset, 4}, {"5+*3", kUnset, 4}, {"5**", kUnset, 3}};
  for (const ExpressionCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    std::int32_t position = 0;
    EXPECT_EQ(ParseExpression(expected.text, position), expected.value);
    EXPECT_EQ(position, expected.position);
  }
}

TEST(ParseExpression, ABrokenOneGoesOnToItsEnd) {
  // A number behind the fault is still part of the expression, which stays broken.
  std::int32_t position = 0;
  EXPECT_EQ(ParseExpression("1+*2+3,4", position), kUnset);
  EXPECT_EQ(position, 6);
}

TEST(ParseExpression, NumbersClampAndSumsWrap) {
  const ExpressionCase cases[] = {{"2147483647", INT32_MAX, 10},
                                  {"2147483648", INT32_MAX, 10},
                                  {"-9999999999", INT32_MIN, 11},
                                  {"2147483647+1", INT32_MIN, 12},
                                  {"2147483647+2", INT32_MIN + 1, 12},
                                  {"-2147483648-1", INT32_MAX, 13},
                                  {"65536*65536", 0, 11},
                                  {"65536*32768", INT32_MIN, 11},
                                  {"-1*2147483647", -INT32_MAX, 13}};
  for (const ExpressionCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    std::int32_t position = 0;
    EXPECT_EQ(ParseExpression(expected.text, position), expected.value);
    EXPECT_EQ(position, expected.position);
  }
}

TEST(ParseExpression, ATokenHoldsAtMost33Characters) {
  std::int32_t position = 0;
  EXPECT_EQ(ParseExpression("0000000000000000000000000000000012345", position), 1);
  EXPECT_EQ(position, 37);
}

TEST(ParseCoordinates, ReadsFourExpressionsWithOrWithoutCommas) {
  const struct {
    const char* text;
    Rectangle rectangle;
    int position;
  } cases[] = {
      {"1,2,3,4", {1, 2, 3, 4}, 7},
      {"1 2 3 4", {1, 2, 3, 4}, 7},
      {"1 , 2 ,3, 4 ,5", {1, 2, 3, 4}, 12},
      {"1+1,2*2,-3,10-5", {2, 4, -3, 5}, 15},
      {"-1,-2 3 +4", {-1, -2, 7, kUnset}, 10},
      {"1,2,3", {1, 2, 3, kUnset}, 5},
      {"1,2,3,", {1, 2, 3, kUnset}, 6},
      {"1,,3,4", {1, kUnset, 3, 4}, 6},
      {"1,2,,4", {1, 2, kUnset, 4}, 6},
      // Only one comma may stand between two of them.
      {"1,,,4", {1, kUnset, kUnset, 4}, 5},
      {"1+,2,3,4", {kUnset, 2, 3, 4}, 8},
      {"x", {}, 0},
      {",1,2,3,4", {}, 0},
      {"", {}, 0},
  };
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.text);
    std::int32_t position = 0;
    const Rectangle rectangle = ParseCoordinates(expected.text, position);
    EXPECT_EQ(rectangle.x, expected.rectangle.x);
    EXPECT_EQ(rectangle.y, expected.rectangle.y);
    EXPECT_EQ(rectangle.width, expected.rectangle.width);
    EXPECT_EQ(rectangle.height, expected.rectangle.height);
    EXPECT_EQ(position, expected.position);
    const Rectangle& r = expected.rectangle;
    EXPECT_EQ(rectangle.IsComplete(),
              r.x != kUnset && r.y != kUnset && r.width != kUnset && r.height != kUnset);
  }
}

struct StyleCase {
  const char* text;
  std::uint32_t before;
  std::uint32_t after;
  int position;
};

void ExpectStyle(const StyleCase& expected) {
  SCOPED_TRACE(expected.text);
  std::uint32_t style = expected.before;
  std::int32_t position = 0;
  ParseStyleList(expected.text, position, style);
  EXPECT_EQ(style, expected.after);
  EXPECT_EQ(position, expected.position);
}

TEST(ParseStyleList, AddsWordsAndTakesAwayThoseBehindNot) {
  const StyleCase cases[] = {
      {",WS_TABSTOP", 0, 0x10000, 11},
      {", WS_TABSTOP | WS_GROUP x", 0, 0x30000, 24},
      {",ws_tabstop|Ws_Group", 0x10000000, 0x10030000, 20},
      {",NOT WS_VISIBLE", 0x10000000, 0, 15},
      {",not ws_visible | WS_BORDER", 0x10000000, 0x800000, 27},
      {",WS_BORDER|NOT WS_VISIBLE", 0x10000000, 0x800000, 25},
      {",NOT WS_CAPTION", 0x10800000, 0x10000000, 15},
      {",0x10|0XF", 0, 0x1F, 9},
      {",NOT 0x3", 7, 4, 8},
      {",0x123456789", 0, 0xFFFFFFFF, 12},
      {",\n WS_BORDER\n|\n WS_GROUP\n", 0, 0x820000, 25},
  };
  for (const StyleCase& expected : cases) ExpectStyle(expected);
}

TEST(ParseStyleList, UnknownWordsAndDecimalNumbersDoNothing) {
  const StyleCase cases[] = {
      {",WS_UNKNOWN", 5, 5, 11}, {",16", 5, 5, 3},    {",NOT WS_UNKNOWN", 5, 5, 15},
      {",NOT NOT", 5, 5, 8},     {",\"a\"", 5, 5, 4}, {",16|WS_BORDER", 5, 0x800005, 13},
      {",|WS_BORDER", 5, 5, 2},  {",", 5, 5, 1},      {",WS_BORDER|", 0, 0x800000, 11},
      {",END", 5, 5, 4},
  };
  for (const StyleCase& expected : cases) ExpectStyle(expected);
}

TEST(ParseStyleList, NeedsItsComma) {
  ExpectStyle({"WS_BORDER", 5, 5, 0});
  ExpectStyle({"", 5, 5, 0});
  ExpectStyle({" ,WS_BORDER", 5, 5, 0});
}

TEST(ParseStyleList, ACommaAheadOfAControlKeywordIsATrailingOne) {
  for (const ControlStatement& row : kControlStatements) {
    const std::string text = ",\n" + std::string(row.name) + " ";
    ExpectStyle({text.c_str(), 5, 5, 2});
  }
  // The tail of a keyword counts, in its own case only, and only its letters are looked at.
  ExpectStyle({",TEXT WS_BORDER", 5, 5, 1});
  ExpectStyle({", X_WORD", 5, 5, 2});
  ExpectStyle({",LTEXT5", 5, 5, 1});
  ExpectStyle({",ltext", 5, 5, 6});
  ExpectStyle({",LTEX", 5, 5, 5});
  ExpectStyle({",LTEXTS", 5, 5, 7});
}

TEST(ParseStyleList, LooksAheadOverAtMost40Letters) {
  // 40 letters that are no keyword's tail, whatever comes behind them.
  const std::string text = "," + std::string(40, 'A') + "LTEXT";
  ExpectStyle({text.c_str(), 5, 5, 46});
}

TEST(KeywordHasText, KnowsTheStatementsThatBeginWithATextByTheirOwnCase) {
  for (const char* keyword :
       {"AUTOCHECKBOX", "AUTORADIOBUTTON", "CHECKBOX", "CONTROL", "CTEXT", "DEFPUSHBUTTON", "GROUPBOX",
        "ICON", "LTEXT", "PUSHBUTTON", "RADIOBUTTON", "RTEXT"}) {
    EXPECT_TRUE(KeywordHasText(keyword)) << keyword;
  }
  for (const char* keyword :
       {"COMBOBOX", "EDITTEXT", "LISTBOX", "SCROLLBAR", "", "ltext", "Icon", "TEXT", "LTEXTX", "DIALOG",
        "BUTTON", "AUTOCHECKBOX\nAUTORADIOBUTTON", "AWORDOFFORTYCHARACTERSAWORDOFFORTYCHARAC"}) {
    EXPECT_FALSE(KeywordHasText(keyword)) << keyword;
  }
}

}  // namespace
}  // namespace brelt::rc
