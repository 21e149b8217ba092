#include "tests/resprops/surgerysupport.h"

namespace brelt::resprops {
namespace {

using test::AfterWriteText;
using test::Crlf;
using test::kRc;
using test::WriteText;

TEST(ResourceWriteText, TakesTheExactPlaceOfTheResourceOfThatNameWhateverItsType) {
  struct Case {
    const char* before;
    const char* resource;
    const char* after;
  };
  const Case cases[] = {
      {"X ICON x.ico\n\nA MENU\nBEGIN\nEND\n\n\nY ICON y.ico\n", "a BITMAP a.bmp\n",
       "X ICON x.ico\n\na BITMAP a.bmp\n\n\nY ICON y.ico\n"},
      {"A ICON a.ico", "A MENU\nBEGIN\nEND\n", "A MENU\nBEGIN\nEND\n"},
      {"A ICON a.ico\nA ICON b.ico\n", "A ICON c.ico\n", "A ICON c.ico\nA ICON b.ico\n"},
      {"A ICON a.ico\n", "A MENU  \r\n\r\nBEGIN\r\r\nEND\r\n", "A MENU  \n\nBEGIN\nEND\n"},
      // The last line needs its line feed.
      {"X ICON x.ico\nA ICON a.ico\n", "A MENU\nBEGIN\nEND", "X ICON x.ico\nA MENU\nBEGIN\n"},
      {"X ICON x.ico\nA ICON a.ico\n", "A ICON b.ico", "X ICON x.ico\n"},
      {"A ICON a.ico\n", " \t\n A ICON b.ico\n", " \t\n A ICON b.ico\n"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(std::string(expected.before) + " with " + expected.resource);
    EXPECT_EQ(AfterWriteText(expected.before, expected.resource), Crlf(expected.after));
  }
}

TEST(ResourceWriteText, GoesToTheEndOfTheFileBehindAnEmptyLine) {
  struct Case {
    const char* before;
    const char* after;
  };
  const Case cases[] = {
      {"", "N ICON n.ico\n\n"},
      {"X ICON x.ico\r\n", "X ICON x.ico\r\n\nN ICON n.ico\n\n"},
      {"X ICON x.ico\r\n\r\n", "X ICON x.ico\r\n\r\nN ICON n.ico\n\n"},
      {"X ICON x.ico\n\n\n", "X ICON x.ico\n\n\nN ICON n.ico\n\n"},
      {"X ICON x.ico", "X ICON x.ico\nN ICON n.ico\n\n"},
      {"X ICON x.ico\n ", "X ICON x.ico\n \nN ICON n.ico\n\n"},
      {"\r\n", "\r\nN ICON n.ico\n\n"},
      {"\r", "\rN ICON n.ico\n\n"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.before);
    // What was there stays byte for byte; only what comes is written as text.
    const std::string before = expected.before;
    EXPECT_EQ(AfterWriteText(before, "N ICON n.ico\n"),
              before + Crlf(std::string(expected.after).substr(before.size())));
  }
}

TEST(ResourceWriteText, StandsByItselfBehindALastLineOfAnyLength) {
  for (const std::size_t length : {1, 1023, 1024, 1025, 2048, 5000}) {
    SCOPED_TRACE(length);
    const std::string line(length, '-');
    EXPECT_EQ(AfterWriteText(line + "\n", "N ICON n.ico\n"), line + "\n" + Crlf("\nN ICON n.ico\n\n"));
    EXPECT_EQ(AfterWriteText(line, "N ICON n.ico\n"), line + Crlf("\nN ICON n.ico\n\n"));
    EXPECT_EQ(AfterWriteText(line + "\n\n", "N ICON n.ico\n"), line + "\n\n" + Crlf("N ICON n.ico\n\n"));
  }
}

// Behind a mark nobody would ever find it. Only a file whose size can't be had at first counts as none.
TEST(ResourceWriteText, IsRefusedWhereAMarkCannotBeTakenOff) {
  const std::string before = "X ICON x.ico\n\x1A";
  test::SetFile(before);
  test::FailFileOperation(-1);
  WriteText("N ICON n.ico\n");
  const int count = test::FileOperationCount();
  int refused = 0;
  int unseen = 0;
  for (int n = 0; n < count; ++n) {
    SCOPED_TRACE(n);
    test::SetFile(before);
    test::FailFileOperation(n);
    const std::string message = WriteText("N ICON n.ico\n");
    const std::string text = test::ReadFile(kRc);
    const std::size_t added = text.find("N ICON");
    unseen += added != std::string::npos && text.find('\x1A') < added ? 1 : 0;
    if (text != before || message.empty()) continue;
    EXPECT_TRUE(message == "Cannot modify the following read-only file: c:\\home\\a.rc" ||
                message == "The file <c:\\home\\a.rc> could not be opened")
        << message;
    ++refused;
  }
  EXPECT_LE(unseen, 1);
  EXPECT_GE(refused, 5);
}

TEST(ResourceWriteText, TakesAMarkOffTheEndAheadOfWhatItAppends) {
  EXPECT_EQ(AfterWriteText("X ICON x.ico\n\x1A", "N ICON n.ico\n"), "X ICON x.ico\n\r\nN ICON n.ico\r\n\r\n");
  EXPECT_EQ(AfterWriteText("\x1A", "N ICON n.ico\n"), "N ICON n.ico\r\n\r\n");
  // What stands behind a mark is no text; it stays, and so does the mark.
  EXPECT_EQ(AfterWriteText("X ICON x.ico\n\x1Axyz", "N ICON n.ico\n"),
            "X ICON x.ico\n\x1Axyz\r\nN ICON n.ico\r\n\r\n");
}

TEST(ResourceWriteText, MakesTheFile) {
  test::ResetHost();
  EXPECT_EQ(WriteText("N ICON n.ico\n"), "");
  EXPECT_EQ(test::ReadFile(kRc), Crlf("N ICON n.ico\n\n"));
  EXPECT_EQ(WriteText("N ICON n.ico\n", "b.rc"), "");
  EXPECT_EQ(test::ReadFile("c:\\home\\b.rc"), Crlf("N ICON n.ico\n\n"));
}

TEST(ResourceWriteText, AppendsOnlyLinesThatEndInALineFeedAndKeepsCarriageReturns) {
  EXPECT_EQ(AfterWriteText("", "N MENU\nBEGIN\nEND"), Crlf("N MENU\nBEGIN\n\n"));
  EXPECT_EQ(AfterWriteText("", "N ICON n.ico"), "\r\n");
  EXPECT_EQ(AfterWriteText("", "N MENU\r\nBEGIN\r\nEND\r\n"), "N MENU\r\r\nBEGIN\r\r\nEND\r\r\n\r\n");
}

TEST(ResourceWriteText, CutsLongLinesDifferentlyOnTheTwoPaths) {
  for (const int length : {1022, 1023, 1024, 1025, 5000}) {
    SCOPED_TRACE(length);
    const std::string line = "N ICON " + std::string(static_cast<std::size_t>(length - 7), 'n');
    const std::string resource = line + "\nX ICON x.ico\n";
    // 1023 characters are kept, the line feed among them: without it the line runs on into the next.
    EXPECT_EQ(AfterWriteText("", resource), Crlf((line + "\n").substr(0, 1023) + "X ICON x.ico\n\n"));
    EXPECT_EQ(AfterWriteText("N ICON a\n", resource), Crlf(line.substr(0, 1024) + "\nX ICON x.ico\n"));
  }
}

TEST(ResourceWriteText, TellsWhyItCannotInAFixedOrder) {
  struct Case {
    const char* file;
    const char* text;
    const char* message;
  };
  constexpr const char* kMissing = "RC file name or resource text are invalid or empty.";
  constexpr const char* kNoName = "The resource name or resource type is missing.";
  const Case cases[] = {
      {nullptr, "A ICON a\n", kMissing},
      {"", "A ICON a\n", kMissing},
      {kRc, nullptr, kMissing},
      {kRc, "", kMissing},
      {"sub\\a.rc", nullptr, kMissing},
      {"sub\\a.rc", "A", "The file <sub\\a.rc> should be a full path with a drive letter or just a filename"},
      {kRc, "A", kNoName},
      {kRc, " \n", kNoName},
      {kRc, "A\n", kNoName},
      {kRc, "_A ICON a\n", kNoName},
      {kRc, "A _ICON a\n", kNoName},
      {kRc, "A ICON a\n", "Cannot modify the following read-only file: c:\\home\\a.rc"},
      {"a.rc", "B ICON a\n", "Cannot modify the following read-only file: c:\\home\\a.rc"},
  };
  test::SetFile("A ICON a.ico\n");
  test::SetReadOnly(kRc, true);
  for (const Case& expected : cases) {
    SCOPED_TRACE(std::string(expected.file != nullptr ? expected.file : "null") + " " +
                 (expected.text != nullptr ? expected.text : "null"));
    EXPECT_EQ(test::MessageOf(
                  [&](rc::TextBuffer error) { ResourceWriteText(expected.file, expected.text, error); }),
              expected.message);
  }
  ResourceWriteText("b.rc", "A ICON a\n", {});
  EXPECT_EQ(test::ListFiles().size(), 1U);
  EXPECT_EQ(test::ReadFile(kRc), "A ICON a.ico\n");
}

TEST(ResourceWriteText, CutsItsMessageToTheBuffer) {
  test::SetFile("A ICON a.ico\n");
  test::ExpectCutToFit(WriteText("A"), [](rc::TextBuffer error) { ResourceWriteText(kRc, "A", error); });
}

TEST(ResourceWriteText, DoesNothingToAFolder) {
  test::ResetHost();
  test::MakeDirectory(kRc);
  EXPECT_EQ(WriteText("A ICON a\n"), "");
  EXPECT_EQ(test::ListFiles().size(), 1U);
}

TEST(ReplaceOrAppendResource, TellsWhyItCannotInAFixedOrder) {
  struct Case {
    const char* name;
    const char* text;
    const char* path;
    const char* message;
  };
  const Case cases[] = {
      {nullptr, "A ICON a\n", "a.rc", "There is no resource to write."},
      {"A", nullptr, "a.rc", "There is no resource to write."},
      {"A", "", "a.rc", "There is no resource to write."},
      {"A", "A ICON a\n", nullptr, "File name <> is not a full path."},
      {"A", "A ICON a\n", "", "File name <> is not a full path."},
      {"A", "A ICON a\n", "a.rc", "File name <a.rc> is not a full path."},
      {"A", "A ICON a\n", kRc, "Cannot modify the following read-only file: c:\\home\\a.rc"},
  };
  test::SetFile("A ICON a.ico\n");
  test::SetReadOnly(kRc, true);
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.message);
    EXPECT_EQ(test::MessageOf([&](rc::TextBuffer buffer) {
                ErrorText error(buffer);
                ReplaceOrAppendResource(expected.name, expected.text, expected.path, error);
              }),
              expected.message);
  }
}

// ---- The temporary file ----

TEST(Rewrite, UsesTheFirstFreeNumberAndLeavesOthersAlone) {
  test::SetFile("A ICON a.ico\nB ICON b.ico\n");
  test::WriteFile("c:\\home\\1.tmp", "somebody's");
  test::WriteFile("c:\\home\\3.tmp", "somebody else's");
  test::MakeDirectory("c:\\home\\2.tmp");
  EXPECT_EQ(WriteText("A ICON c.ico\n"), "");
  EXPECT_EQ(test::ReadFile(kRc), Crlf("A ICON c.ico\nB ICON b.ico\n"));
  EXPECT_EQ(test::ReadFile("c:\\home\\1.tmp"), "somebody's");
  EXPECT_EQ(test::ReadFile("c:\\home\\3.tmp"), "somebody else's");
  EXPECT_EQ(test::ListFiles().size(), 4U);
}

TEST(Rewrite, BreaksLongLinesIntoPiecesAndKeepsOthersAsTheyAre) {
  for (const int length : {1022, 1023, 1024, 1025, 2047, 2048, 2049, 5000}) {
    for (const char* lineEnd : {"\n", "\r\n", ""}) {
      SCOPED_TRACE(std::to_string(length) + test::Crlf(lineEnd));
      const std::string line(static_cast<std::size_t>(length), '-');
      std::string pieces;
      for (std::size_t at = 0; at < line.size(); at += 1024) pieces += line.substr(at, 1024) + "\n";
      EXPECT_EQ(AfterWriteText("A ICON a.ico\n" + line + lineEnd, "A ICON b.ico\n"),
                Crlf("A ICON b.ico\n" + pieces));
    }
  }
}

TEST(Rewrite, KeepsZeroBytesAndWhatStandsBehindAMark) {
  using std::string_literals::operator""s;
  EXPECT_EQ(AfterWriteText("x\0y\nA ICON a.ico\n\0\nz"s, "A ICON b.ico\n"),
            Crlf("x\0y\nA ICON b.ico\n\0\nz\n"s));
  EXPECT_EQ(AfterWriteText("A ICON a.ico\nX\n\x1A", "A ICON b.ico\n"), Crlf("A ICON b.ico\nX\n"));
  EXPECT_EQ(AfterWriteText("A ICON a.ico\nX\n\x1A\nmore\x1A\0\r\n"s, "A ICON b.ico\n"),
            Crlf("A ICON b.ico\nX\n") + "\x1A\nmore\x1A\0\r\n"s);
  const std::string rest(20000, 'r');
  EXPECT_EQ(AfterWriteText("A ICON a.ico\nX\x1A" + rest, "A ICON b.ico\n"),
            Crlf("A ICON b.ico\nX\n") + "\x1A" + rest);
}

TEST(Rewrite, KeepsAnEmptyLineBehindAPieceOfALineThatWent) {
  // The second piece of the long line is a resource to the readers.
  const std::string dashes(1024, '-');
  EXPECT_EQ(test::AfterDelete(dashes + "A ICON a.ico\n\n\nX ICON x.ico\n", "A"),
            Crlf(dashes + "\n\nX ICON x.ico\n"));
}

TEST(Rewrite, NormalisesLineEnds) {
  EXPECT_EQ(AfterWriteText("A ICON a.ico\nb\r\nc\r\r\nd\re\n\r\nf\r", "A ICON b.ico\n"),
            Crlf("A ICON b.ico\nb\nc\nd\re\n\nf\n"));
}

TEST(Rewrite, TakesLargeFilesInBlocks) {
  std::string lines;
  for (int i = 0; i < 20000; ++i) lines += "// line " + std::to_string(i) + "\n";
  EXPECT_EQ(AfterWriteText(lines + "A ICON a.ico\n" + lines, "A ICON b.ico\n"),
            Crlf(lines + "A ICON b.ico\n" + lines));
}

TEST(Rewrite, TellsThatAFileCannotBeChangedWhereItCannotBeMoved) {
  // No name is left: the folder takes no new file.
  test::SetFile("A ICON a.ico\n");
  for (int i = 1; i <= 40; ++i) test::MakeDirectory("c:\\home\\" + std::to_string(i) + ".tmp");
  const std::string message = "Cannot modify the following read-only file: c:\\home\\a.rc";
  EXPECT_EQ(WriteText("A ICON b.ico\n"), message);
  EXPECT_EQ(test::Rename("A", "B"), message);
  EXPECT_EQ(test::Delete("A"), message);
  EXPECT_EQ(test::ReadFile(kRc), "A ICON a.ico\n");
}

}  // namespace
}  // namespace brelt::resprops
