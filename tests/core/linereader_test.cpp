#include "rc/linereader.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

class LineReaderTest : public ::testing::Test {
 protected:
  LineReaderTest() { test::ResetHost(); }

  static std::vector<std::string> Lines(const std::string& bytes) {
    test::WriteFile("a.rc", bytes);
    LineReader reader("a.rc");
    EXPECT_TRUE(reader.IsOpen());
    std::vector<std::string> lines;
    Line line;
    while (reader.Next(line)) {
      lines.emplace_back(line.text, static_cast<std::size_t>(line.length));
      EXPECT_EQ(line.text[line.length], '\0');
      EXPECT_EQ(line.HasLineFeed(), line.text[line.length - 1] == '\n');
    }
    EXPECT_FALSE(reader.HasFailed());
    return lines;
  }
};

using Strings = std::vector<std::string>;

TEST_F(LineReaderTest, ReadsInTextMode) {
  const struct {
    std::string bytes;
    Strings lines;
  } cases[] = {{"", {}},
               {"a", {"a"}},
               {"a\n", {"a\n"}},
               {"a\r\nb\r\n", {"a\n", "b\n"}},
               {"\r\n\n\r\n", {"\n", "\n", "\n"}},
               {"a\nlast", {"a\n", "last"}},
               // A carriage return of its own is a character like others.
               {"a\rb\n", {"a\rb\n"}},
               {"a\r\r\n", {"a\r\n"}},
               {"a\r", {"a\r"}},
               // Byte 26 ends the file.
               {"a\nb\x1A"
                "c\nd\n",
                {"a\n", "b"}},
               {"\x1A"
                "a\n",
                {}},
               {"a\n\x1A", {"a\n"}},
               {"a\r\x1A\n", {"a\r"}},
               // A zero byte doesn't end what is read.
               {std::string("a\0b\nc", 5), {std::string("a\0b\n", 4), "c"}}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.bytes);
    EXPECT_EQ(Lines(expected.bytes), expected.lines);
  }
}

TEST_F(LineReaderTest, ALineIsOneReadOfAtMost1024CharactersItsLineFeedCounted) {
  for (const std::string& end : {std::string("\n"), std::string("\r\n")}) {
    for (const std::size_t length : {1022u, 1023u, 1024u, 1025u, 2047u, 2048u, 3000u}) {
      SCOPED_TRACE(length);
      SCOPED_TRACE(end.size());
      const std::string text = std::string(length, 'x');
      Strings expected;
      std::string rest = text + "\n";
      for (; rest.size() > 1024; rest.erase(0, 1024)) expected.push_back(rest.substr(0, 1024));
      expected.push_back(rest);
      expected.emplace_back("next\n");
      EXPECT_EQ(Lines(text + end + "next\n"), expected);
    }
  }
}

TEST_F(LineReaderTest, ALineOf1024CharactersWithoutALineFeedIsOneRead) {
  EXPECT_EQ(Lines(std::string(1024, 'x')), Strings{std::string(1024, 'x')});
  EXPECT_EQ(Lines(std::string(1025, 'x')), (Strings{std::string(1024, 'x'), "x"}));
}

TEST_F(LineReaderTest, ReturnsAroundTheCutStayWhatTheyAre) {
  const std::string x1022(1022, 'x');
  const std::string x1023(1023, 'x');
  EXPECT_EQ(Lines(x1022 + "\r\ry\n"), (Strings{x1022 + "\r\r", "y\n"}));
  EXPECT_EQ(Lines(x1023 + "\r\r\n"), (Strings{x1023 + "\r", "\n"}));
  EXPECT_EQ(Lines(x1023 + "\r\n"), Strings{x1023 + "\n"});
  EXPECT_EQ(Lines(x1023 + "x\r\n"), (Strings{x1023 + "x", "\n"}));
}

// The reader fills its buffer in blocks; wherever a block ends, the lines must be the same.
TEST_F(LineReaderTest, BlocksOfTheFileDoNotShow) {
  for (std::size_t first = 32700; first < 32800; ++first) {
    SCOPED_TRACE(first);
    std::string bytes;
    Strings expected;
    while (bytes.size() + 101 <= first) {
      bytes += std::string(99, 'a') + "\r\n";
      expected.push_back(std::string(99, 'a') + "\n");
    }
    const std::string filler(first - bytes.size(), 'b');
    bytes += filler + "\r\n" + std::string(1030, 'c') + "\r\nend";
    expected.push_back(filler + "\n");
    expected.push_back(std::string(1024, 'c'));
    expected.push_back(std::string(6, 'c') + "\n");
    expected.push_back("end");
    EXPECT_EQ(Lines(bytes), expected);
  }
}

TEST_F(LineReaderTest, AFileMayComeInAnyPieces) {
  test::WriteFile("a.rc", "one\r\ntwo\r\n\r\nthree");
  for (int most = 1; most < 12; ++most) {
    SCOPED_TRACE(most);
    test::LimitReads(most);
    LineReader reader("a.rc");
    Strings lines;
    Line line;
    while (reader.Next(line)) lines.emplace_back(line.text);
    EXPECT_EQ(lines, (Strings{"one\n", "two\n", "\n", "three"}));
  }
}

TEST_F(LineReaderTest, ALineOfFullLengthMayEndInTheNextPiece) {
  const std::string x1023(1023, 'x');
  for (const int most : {1022, 1023, 1024, 1025}) {
    SCOPED_TRACE(most);
    test::LimitReads(most);
    EXPECT_EQ(Lines(x1023 + "\r\nnext\n"), (Strings{x1023 + "\n", "next\n"}));
    EXPECT_EQ(Lines(x1023 + "\nnext\n"), (Strings{x1023 + "\n", "next\n"}));
  }
}

TEST_F(LineReaderTest, ChangingALineInPlaceLeavesTheNextOneAlone) {
  test::WriteFile("a.rc", "one\r\ntwo\n");
  LineReader reader("a.rc");
  Line line;
  ASSERT_TRUE(reader.Next(line));
  for (int i = 0; i <= line.length; ++i) line.text[i] = 'z';
  ASSERT_TRUE(reader.Next(line));
  EXPECT_STREQ(line.text, "two\n");
}

TEST_F(LineReaderTest, SeeksToTheOffsetsThatItGave) {
  std::string bytes;
  for (int i = 0; i < 3000; ++i)
    bytes += std::string(static_cast<std::size_t>(i % 40), 'x') + std::to_string(i) + "\r\n";
  bytes += std::string(3000, 'y') + "\nend";
  test::WriteFile("a.rc", bytes);
  LineReader reader("a.rc");
  std::vector<std::uint64_t> offsets;
  Strings lines;
  Line line;
  for (;;) {
    offsets.push_back(reader.Offset());
    if (!reader.Next(line)) break;
    lines.emplace_back(line.text);
  }
  ASSERT_EQ(offsets.front(), 0u);
  ASSERT_EQ(offsets.back(), bytes.size());
  for (std::size_t i = lines.size(); i-- > 0;) {
    reader.Seek(offsets[i]);
    ASSERT_TRUE(reader.Next(line));
    ASSERT_EQ(line.text, lines[i]) << i;
    ASSERT_EQ(reader.Offset(), offsets[i + 1]) << i;
  }
  // Forward too, over lines within the buffer and beyond it, from wherever a line was left.
  for (const std::size_t step : {1u, 2u, 7u, 500u}) {
    reader.Seek(0);
    for (std::size_t i = 0; i < lines.size(); i += step) {
      reader.Seek(offsets[i]);
      ASSERT_TRUE(reader.Next(line));
      ASSERT_EQ(line.text, lines[i]) << i;
      line.text[0] = line.text[line.length] = '!';
    }
  }
  reader.Seek(offsets.back());
  EXPECT_FALSE(reader.Next(line));
  reader.Seek(bytes.size() + 5);
  EXPECT_FALSE(reader.Next(line));
  EXPECT_FALSE(reader.HasFailed());
}

TEST_F(LineReaderTest, AMissingFileIsNotOpen) {
  const LineReader reader("missing.rc");
  EXPECT_FALSE(reader.IsOpen());
}

TEST_F(LineReaderTest, AFailedReadEndsTheLinesAndIsTold) {
  test::WriteFile("a.rc", std::string(40000, 'x'));
  test::FailFileOperation(2);  // open, read, read
  LineReader reader("a.rc");
  Line line;
  int length = 0;
  while (reader.Next(line)) length += line.length;
  EXPECT_TRUE(reader.HasFailed());
  EXPECT_EQ(length, 32768);
}

TEST_F(LineReaderTest, AFailedSeekIsToldAndEndsTheLines) {
  test::WriteFile("a.rc", "one\ntwo\n");
  LineReader reader("a.rc");
  Line line;
  ASSERT_TRUE(reader.Next(line));
  test::FailFileOperation(0);
  reader.Seek(0);
  EXPECT_TRUE(reader.HasFailed());
  EXPECT_FALSE(reader.Next(line));
}

TEST_F(LineReaderTest, AnEmptyLineHasNoLineFeed) {
  char nothing[] = "";
  EXPECT_FALSE((Line{nothing, 0}.HasLineFeed()));
}

TEST_F(LineReaderTest, ClosesItsFile) {
  test::WriteFile("a.rc", "one\n");
  {
    const LineReader reader("a.rc");
    EXPECT_EQ(test::OpenFiles(), 1);
  }
  EXPECT_EQ(test::OpenFiles(), 0);
}

}  // namespace
}  // namespace brelt::rc
