#include "forms/textcopy.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace brelt::test {
namespace {

TEST(TextToCrLf, GivesEachLineFeedACarriageReturnThatHasNone) {
  struct Case {
    const char* text;
    const char* copy;
  };
  for (const Case& c :
       {Case{"", ""}, Case{"a", "a"}, Case{"\n", "\r\n"}, Case{"\r\n", "\r\n"}, Case{"\r", "\r"},
        Case{"a\nb", "a\r\nb"}, Case{"a\r\nb", "a\r\nb"}, Case{"a\rb", "a\rb"}, Case{"\n\n", "\r\n\r\n"},
        Case{"\r\n\n", "\r\n\r\n"}, Case{"\r\r\n", "\r\r\n"}, Case{"\n\r", "\r\n\r"},
        Case{"a\n\nb\r\n\rc", "a\r\n\r\nb\r\n\rc"}, Case{static_cast<const char*>(nullptr), ""}}) {
    const host::Block<char> copy = TextToCrLf(c.text);
    ASSERT_TRUE(copy);
    EXPECT_STREQ(copy.get(), c.copy);
    EXPECT_EQ(copy.count(), std::string(c.copy).size() + 1);
  }
}

TEST(CopyText, IsAPlainCopy) {
  for (const char* text : {"", "a", "a\nb\r"}) {
    const host::Block<char> copy = CopyText(text);
    ASSERT_TRUE(copy);
    EXPECT_STREQ(copy.get(), text);
    EXPECT_NE(copy.get(), text);
  }
  EXPECT_STREQ(CopyText(nullptr).get(), "");
}

TEST(CutToLimit, CutsWhatIsLongerAndZeroIsNoLimit) {
  struct Case {
    std::int32_t limit;
    const char* kept;
  };
  for (const Case& c : {Case{0, "abc"}, Case{1, "a"}, Case{2, "ab"}, Case{3, "abc"}, Case{4, "abc"},
                        Case{INT_MAX, "abc"}, Case{-1, "abc"}, Case{INT_MIN, "abc"}}) {
    SCOPED_TRACE(c.limit);
    char text[] = "abc";
    CutToLimit(text, c.limit);
    EXPECT_STREQ(text, c.kept);
  }
}

}  // namespace
}  // namespace brelt::test
