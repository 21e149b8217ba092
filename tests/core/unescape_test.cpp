#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "rc/scan.h"
#include "tests/support/guarded.h"

namespace brelt::rc {
namespace {

struct UnescapeCase {
  std::string source;
  std::string decoded;
};

// The bytes that UnescapeText writes, up to the last that isn't zero.
std::string Decode(const std::string& source) {
  // Exactly as long as the text, so that the sanitizer sees a read behind the terminator.
  const auto exact = std::make_unique<char[]>(source.size() + 1);
  std::copy(source.begin(), source.end(), exact.get());
  exact[source.size()] = '\0';
  test::GuardedBuffer guarded(200);
  UnescapeText(exact.get(), guarded.buffer());
  EXPECT_TRUE(guarded.IsIntact());
  std::string bytes(guarded.data(), static_cast<std::size_t>(guarded.size()));
  while (!bytes.empty() && bytes.back() == '\0') bytes.pop_back();
  return bytes;
}

void ExpectDecoded(const std::vector<UnescapeCase>& cases) {
  for (const UnescapeCase& expected : cases) {
    SCOPED_TRACE(expected.source);
    EXPECT_EQ(Decode(expected.source), expected.decoded);
  }
}

TEST(UnescapeText, TwoQuotationMarksBecomeOneAndASingleOneStays) {
  ExpectDecoded({{R"(a""b)", R"(a"b)"},
                 {R"(a"b)", R"(a"b)"},
                 {R"(""")", R"("")"},
                 {R"("""")", R"("")"},
                 {R"("a""b")", R"("a"b")"}});
}

TEST(UnescapeText, LetterEscapesInEitherCase) {
  ExpectDecoded(
      {{R"(\n\N)", "\n\n"}, {R"(\r\R)", "\r\r"}, {R"(\t\T)", "\t\t"}, {R"(\\)", "\\"}, {R"(\\n)", "\\n"}});
}

TEST(UnescapeText, AnyOtherLetterGoesWithItsBackslash) {
  const std::string escapes = "01234567NnRrTt\\x";
  for (int byte = 1; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    if (escapes.find(c) != std::string::npos) continue;
    SCOPED_TRACE(byte);
    EXPECT_EQ(Decode(std::string("a\\") + c + "b"), "ab");
  }
}

TEST(UnescapeText, ABackslashWithAQuotationMarkVanishesWhole) {
  ExpectDecoded({{R"(a\"b)", "ab"}, {R"(a\""b)", R"(a"b)"}});
}

TEST(UnescapeText, OctalTakesEveryOctalDigitAndKeepsTheLowEightBits) {
  ExpectDecoded({{R"(\101)", "A"},
                 {R"(\0101)", "A"},
                 {R"(\00000000101)", "A"},
                 {R"(\7)", "\x07"},
                 {R"(\1018)", "A8"},
                 {R"(\501)", "A"},
                 {R"(\377)", "\xFF"},
                 {R"(\777777777777777777777)", "\xFF"}});
}

TEST(UnescapeText, OctalZeroIsAByteOfZero) {
  EXPECT_EQ(Decode(R"(a\0b)"), std::string("a\0b", 3));
  EXPECT_EQ(Decode(R"(a\400b)"), std::string("a\0b", 3));
}

TEST(UnescapeText, HexadecimalTakesTwoBytesWhateverTheyAre) {
  ExpectDecoded({{R"(\x41)", "A"},
                 {R"(\x4a\x4A)", "JJ"},
                 {R"(\xFFz)", "\xFFz"},
                 {R"(\x411)", "A1"},
                 // A first byte that is no digit counts as 0, a second one is lost.
                 {R"(\xg5)", "\x05"},
                 {R"(\x5g)", "\x05"},
                 {R"(\x5"b)",
                  "\x05"
                  "b"},
                 {R"(\x5\n)", "\x05n"}});
  EXPECT_EQ(Decode(R"(a\xgzb)"), std::string("a\0b", 3));
}

TEST(UnescapeText, HexadecimalAtTheEndStoresOneByteAndReadsNoFurther) {
  EXPECT_EQ(Decode(R"(\x4)"), "\x04");
  EXPECT_EQ(Decode(R"(a\x)"), "a");
  // What stands behind the terminator is never a digit.
  const char text[] =
      "\\x\0"
      "41";
  test::GuardedBuffer guarded(8);
  UnescapeText(text, guarded.buffer());
  EXPECT_EQ(guarded.Text(), "");
}

TEST(UnescapeText, UpperCaseXIsNoEscape) { ExpectDecoded({{R"(\X41)", "41"}}); }

TEST(UnescapeText, ABackslashAtTheEndVanishes) { ExpectDecoded({{"a\\", "a"}, {"\\", ""}}); }

TEST(UnescapeText, OtherBytesAreCopied) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) {
    if (byte != '\\') all += static_cast<char>(byte);
  }
  test::GuardedBuffer guarded(300);
  UnescapeText(all.c_str(), guarded.buffer());
  EXPECT_EQ(guarded.Text(), all);
}

TEST(UnescapeText, DropsWhatDoesNotFitAndClearsTheWholeDestination) {
  test::ExpectCutToFit(
      "a\"b\nc\\d", [](TextBuffer buffer) { UnescapeText(R"(a""b\nc\\d)", buffer); }, test::Behind::kZero);
  test::ExpectCutToFit(
      "", [](TextBuffer buffer) { UnescapeText("", buffer); }, test::Behind::kZero);
}

TEST(UnescapeText, AScannedStringKeepsItsOuterMarks) {
  std::int32_t position = 0;
  Token token;
  ScanToken(R"("a""b")", position, token);
  EXPECT_EQ(token.view().size(), 6u);
  EXPECT_EQ(Decode(std::string(token.view())), R"("a"b")");
}

TEST(UnescapeInPlace, DecodesATextOfFullLength) {
  FixedText<8> text("abc\\ndef");
  UnescapeInPlace(text);
  EXPECT_EQ(text.view(), "abc\ndef");
  FixedText<8> plain("abcdefgh");
  UnescapeInPlace(plain);
  EXPECT_EQ(plain.view(), "abcdefgh");
  FixedText<8> marks("a\"\"b");
  UnescapeInPlace(marks);
  EXPECT_EQ(marks.view(), "a\"b");
}

}  // namespace
}  // namespace brelt::rc
