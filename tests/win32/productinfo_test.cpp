#include <brelt.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/guarded.h"

namespace brelt::test {
namespace {

std::string ProductText(char letter) {
  GuardedBuffer buffer(100);
  EXPECT_EQ(GetProductInformation(letter, buffer.data(), 100), buffer.data());
  EXPECT_TRUE(buffer.IsIntact());
  return buffer.Text();
}

TEST(ProductInformation, TellsWhatItsLetterStandsFor) {
  EXPECT_EQ(ProductText('B'), "Quorvane Software");
  EXPECT_EQ(ProductText('P'), "Quorvane");
  EXPECT_EQ(ProductText('R'), "2207");
  EXPECT_EQ(ProductText('S'), ".cls");
  EXPECT_EQ(ProductText('V'), "1.3");
}

TEST(ProductInformation, HasOneLineOfCopyrightAndAddresses) {
  const std::string copyright = ProductText('C');
  EXPECT_NE(copyright.find("Quorvane Software"), std::string::npos);
  EXPECT_EQ(copyright.find('\n'), std::string::npos);
  EXPECT_NE(ProductText('E').find('@'), std::string::npos);
  EXPECT_NE(ProductText('W').find('.'), std::string::npos);
}

TEST(ProductInformation, IsEmptyForEveryOtherByte) {
  const std::string known = "BCEPRSVW";
  for (int value = -128; value < 128; ++value) {
    const auto letter = static_cast<char>(value);
    if (letter != '\0' && known.find(letter) != std::string::npos) continue;
    SCOPED_TRACE(value);
    EXPECT_EQ(ProductText(letter), "");
  }
}

TEST(ProductInformation, CutsItsTextToTheBuffer) {
  const std::string maker = "Quorvane Software";
  ExpectCallCutToFit(maker, [](char* buffer, int size) {
    // The size is unsigned: what is negative here would be a very large buffer.
    if (size >= 0) {
      EXPECT_EQ(GetProductInformation('B', buffer, static_cast<uint32_t>(size)), buffer);
    }
  });
  GuardedBuffer two(2);
  GetProductInformation('V', two.data(), 2);
  EXPECT_EQ(two.Text(), "1");
}

TEST(ProductInformation, TakesTheLargestSizeThereIs) {
  GuardedBuffer buffer(40);
  GetProductInformation('V', buffer.data(), UINT32_MAX);
  EXPECT_EQ(buffer.Text(), "1.3");
  EXPECT_TRUE(buffer.IsIntact());
}

TEST(ProductInformation, WritesNothingToABufferOfNoSize) {
  char byte = 'x';
  EXPECT_EQ(GetProductInformation('V', &byte, 0), &byte);
  EXPECT_EQ(byte, 'x');
  EXPECT_EQ(GetProductInformation('V', nullptr, 10), nullptr);
}

}  // namespace
}  // namespace brelt::test
