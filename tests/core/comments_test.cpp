#include <gtest/gtest.h>

#include <string>

#include "rc/locate.h"
#include "rc/text.h"

namespace brelt::rc {
namespace {

struct CommentCase {
  std::string text;
  std::string result;
};

std::string Strip(const std::string& line) {
  std::string copy = line;
  StripLineComment(copy.data());
  return copy.c_str();
}

TEST(StripLineComment, RemovesFromTheMarkToTheLineEndAndKeepsTheEnd) {
  const CommentCase cases[] = {
      {"", ""},
      {"a", "a"},
      {"a\n", "a\n"},
      {"a // b", "a "},
      {"a // b\n", "a \n"},
      {"a // b\r\n", "a \r\n"},
      {"a // b\n\r\r\n", "a \n\r\r\n"},
      {"// b", ""},
      {"//", ""},
      {"//\n", "\n"},
      {"a//b//c\n", "a\n"},
      {"a / b\n", "a / b\n"},
      {"a /", "a /"},
      {"///\n", "\n"},
      {"a // \"b\"\n", "a \n"},
      {"a /* b // c */\n", "a /* b \n"},
      {"a \\\\ b\n", "a \\\\ b\n"},
  };
  for (const CommentCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(Strip(expected.text), expected.result);
  }
}

TEST(StripLineComment, MarksBetweenQuotationMarksDoNotCount) {
  const CommentCase cases[] = {
      {"\"a // b\"\n", "\"a // b\"\n"},
      {"\"a // b\" // c\n", "\"a // b\" \n"},
      {"\"a\"\"// b\" // c\n", "\"a\"\"// b\" \n"},
      {"\"a // b\n", "\"a // b\n"},
      {"\"a\" /\"/ b\n", "\"a\" /\"/ b\n"},
      // A backslash protects no quotation mark.
      {"\"a\\\" // b\"\n", "\"a\\\" \n"},
      {"'// a'\n", "'\n"},
  };
  for (const CommentCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(Strip(expected.text), expected.result);
  }
}

TEST(StripLineComment, AZeroByteEndsTheLine) {
  EXPECT_EQ(Strip(std::string("a // b\0c\n", 9)), "a ");
  EXPECT_EQ(Strip(std::string("a\0// b\n", 7)), "a");
}

std::string Blank(const std::string& text) {
  std::string copy = text;
  BlankBlockComments(copy.data());
  return copy;
}

TEST(BlankBlockComments, BlanksEverythingButLineEnds) {
  const CommentCase cases[] = {
      {"", ""},
      {"a", "a"},
      {"a/*b*/c", "a     c"},
      {"a/*b\r\nc\td*/e", "a   \r\n     e"},
      {"a/**/b", "a    b"},
      {"a/*/b*/c", "a      c"},
      {"a/*b", "a   "},
      {"a/*", "a  "},
      {"a/* /* b */ c", "a           c"},
      {"/*a*//*b*/", "          "},
      {"a / * b", "a / * b"},
      {"a * / b", "a * / b"},
      {"a/", "a/"},
      {"a*", "a*"},
  };
  for (const CommentCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(Blank(expected.text), expected.result);
  }
}

TEST(BlankBlockComments, AClosingMarkWithNoCommentOpenIsBlankedAllTheSame) {
  EXPECT_EQ(Blank("a */ b"), "a    b");
  EXPECT_EQ(Blank("*/"), "  ");
  EXPECT_EQ(Blank("a /* b */ c */ d"), "a         c    d");
}

TEST(BlankBlockComments, MarksInStringsDoNotCountAndQuotationMarksInCommentsNeither) {
  const CommentCase cases[] = {
      {"\"/*a*/\"", "\"/*a*/\""},
      {"\"a\"/*b*/\"c\"", "\"a\"     \"c\""},
      {"/*\"*/a/*b*/", "     a     "},
      {"/*a\"b*/\"/*c*/\"", "       \"/*c*/\""},
      {"\"a\"\"/*b*/\"", "\"a\"\"/*b*/\""},
      // The string state goes on over line ends.
      {"\"a\n/*b*/\n\"/*c*/", "\"a\n/*b*/\n\"     "},
      {"\"a*/\"", "\"a*/\""},
  };
  for (const CommentCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(Blank(expected.text), expected.result);
  }
}

TEST(BlankBlockComments, KeepsEveryLineAndColumn) {
  const std::string text = "A MENU /* one\ntwo */ BEGIN\r\n/**/END/* \x80\xFF */\n";
  const std::string blanked = Blank(text);
  ASSERT_EQ(blanked.size(), text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    EXPECT_EQ(text[i] == '\n', blanked[i] == '\n') << i;
    EXPECT_EQ(text[i] == '\r', blanked[i] == '\r') << i;
  }
}

}  // namespace
}  // namespace brelt::rc
