#include "resprops/textfile.h"

#include <gtest/gtest.h>

#include "resprops/errortext.h"
#include "tests/support/memoryhost.h"

namespace brelt::resprops {
namespace {

constexpr const char* kPath = "c:\\home\\a.txt";

TEST(TextFile, WritesNothingBehindABlockThatIsMissing) {
  const std::string text(200000, '-');
  for (int n = 1; n <= 4; ++n) {
    SCOPED_TRACE(n);
    test::ResetHost();
    // The first operation is the opening.
    test::FailFileOperation(n);
    TextFile file(kPath, host::OpenMode::kReplace);
    file.Write(text);
    EXPECT_FALSE(file.Close());
    EXPECT_LT(test::ReadFile(kPath).size(), 65536u * static_cast<unsigned>(n));
  }
}

TEST(TextFile, IsWholeOnlyWhereAllOfItAndTheCloseSucceed) {
  for (int n = 0; n <= 3; ++n) {
    SCOPED_TRACE(n);
    test::ResetHost();
    test::FailFileOperation(n);
    TextFile file(kPath, host::OpenMode::kReplace);
    file.Write("a\nb");
    // The opening, one write and the close.
    EXPECT_EQ(file.Close(), n == 3);
  }
  EXPECT_EQ(test::ReadFile(kPath), "a\r\nb");
}

TEST(ErrorText, KeepsTheFirstMessage) {
  char buffer[20];
  ErrorText error({buffer, sizeof buffer});
  error.Take("");
  EXPECT_FALSE(error.IsFailure());
  error.Format("%s %i", "first", 1);
  error.Format("%s", "second");
  error.Take("third", "of all");
  EXPECT_TRUE(error.IsFailure());
  EXPECT_STREQ(buffer, "first 1");
}

}  // namespace
}  // namespace brelt::resprops
