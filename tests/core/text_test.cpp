#include "rc/text.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/guarded.h"

namespace brelt::rc {
namespace {

TEST(TextBuffer, WritesNothingWithANullPointerOrASizeBelowOne) {
  char bytes[] = "abc";
  const struct {
    char* data;
    int size;
  } cases[] = {{nullptr, 0}, {nullptr, 10}, {bytes, 0}, {bytes, -1}};
  for (const auto& arguments : cases) {
    const TextBuffer buffer(arguments.data, arguments.size);
    EXPECT_FALSE(buffer.IsWritable());
    EXPECT_EQ(buffer.size(), 0);
    EXPECT_EQ(buffer.room(), 0);
    EXPECT_STREQ(buffer.c_str(), "");
    buffer.Clear();
    buffer.Zero();
    buffer.Assign("xyz");
    EXPECT_EQ(TextWriter(buffer).Append("xyz").Append('c').AppendFill('-', 3).Format("%d", 5).length(), 0);
  }
  EXPECT_STREQ(bytes, "abc");
}

TEST(TextBuffer, CutsToItsSizeAndTerminates) {
  test::ExpectCutToFit("abcdef", [](TextBuffer buffer) { buffer.Assign("abcdef"); });
  test::ExpectCutToFit("", [](TextBuffer buffer) { buffer.Assign(""); });
  test::ExpectCutToFit(
      "", [](TextBuffer buffer) { buffer.Zero(); }, test::Behind::kZero);
}

TEST(TextBuffer, TakesAPieceOfItself) {
  char bytes[8] = "abcdef";
  TextBuffer(bytes, 8).Assign(std::string_view(bytes + 2, 3));
  EXPECT_STREQ(bytes, "cde");
}

TEST(TextWriter, CutsEachPieceToWhatIsLeft) {
  test::ExpectCutToFit("ab12cd--ef-007", [](TextBuffer buffer) {
    TextWriter writer(buffer);
    writer.Append("ab").Format("%d", 12).Append("cd").AppendFill('-', 2).Append('e').Append('f').Format(
        "%04d", -7);
    EXPECT_EQ(writer.view(), buffer.c_str());
    EXPECT_EQ(writer.length(), static_cast<int>(writer.view().size()));
    EXPECT_EQ(writer.IsEmpty(), writer.length() == 0);
  });
}

TEST(TextWriter, AFormattedTextIsCutWhereItsBufferEnds) {
  test::ExpectCutToFit("Menu <MAIN>, 255", [](TextBuffer buffer) {
    TextWriter(buffer).Format("Menu <%-.*s>, %i", 4, "MAINMENU", 255);
  });
}

TEST(TextWriter, AnEmptyFormattedTextAddsNothing) {
  FixedText<6> text;
  TextWriter writer(text);
  writer.Append("ab").Format("%s", "").Append("c");
  EXPECT_EQ(writer.view(), "abc");
}

TEST(TextWriter, ContinuesBehindWhatABufferHolds) {
  FixedText<6> text("abc");
  TextWriter::Continue(text).Append("defgh");
  EXPECT_EQ(text.view(), "abcdef");
}

TEST(FixedText, CutsOnEveryWayIn) {
  FixedText<5> text;
  EXPECT_TRUE(text.IsEmpty());
  text.Assign("1234567");
  EXPECT_EQ(text.view(), "12345");
  text.Append("8");
  EXPECT_EQ(text.view(), "12345");
  text.Assign("12");
  text.Append("34567");
  EXPECT_EQ(text.view(), "12345");
  EXPECT_EQ(text.Format("%d", 1234567).view(), "12345");
  EXPECT_EQ(FixedText<5>("123456").view(), "12345");
  text.Clear();
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text.buffer().size(), 6);
}

TEST(FixedText, FoldsToUpperCaseInAsciiOnly) {
  FixedText<10> text("aZ1_\xE4");
  FoldToUpper(text.data());
  EXPECT_EQ(text.view(), "AZ1_\xE4");
}

TEST(View, OfNullIsEmpty) {
  EXPECT_EQ(View(nullptr), "");
  EXPECT_EQ(View("a"), "a");
  EXPECT_TRUE(IsEmpty(nullptr));
  EXPECT_TRUE(IsEmpty(""));
  EXPECT_FALSE(IsEmpty("a"));
}

}  // namespace
}  // namespace brelt::rc
