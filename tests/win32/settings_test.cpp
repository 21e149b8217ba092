#include <brelt.h>
#include <gtest/gtest.h>

namespace brelt::test {
namespace {

int32_t CurrentOptionBase() {
  int32_t base = -7;
  GetOptionBase(&base);
  return base;
}

class SettingsTest : public ::testing::Test {
 protected:
  void TearDown() override {
    SetOptionBase(1);
    SetUserBreak(0);
    SetTrace(0);
  }
};

TEST_F(SettingsTest, OptionBaseTakesZeroAndOneOnlyAndGivesBackItsArgument) {
  EXPECT_EQ(CurrentOptionBase(), 1);
  struct Case {
    int32_t argument;
    int32_t baseAfter;
  };
  for (const Case& c : {Case{0, 0}, Case{2, 0}, Case{-1, 0}, Case{1, 1}, Case{2, 1}, Case{INT32_MIN, 1}}) {
    SCOPED_TRACE(c.argument);
    EXPECT_EQ(SetOptionBase(c.argument), c.argument);
    EXPECT_EQ(CurrentOptionBase(), c.baseAfter);
  }
}

TEST_F(SettingsTest, OptionBaseOfANullPointerIsHarmless) { GetOptionBase(nullptr); }

TEST_F(SettingsTest, UserBreakTakesZeroAndOneOnly) {
  EXPECT_EQ(GetUserBreak(), 0);
  struct Case {
    int32_t argument;
    int32_t breakAfter;
  };
  for (const Case& c : {Case{2, 0}, Case{-1, 0}, Case{1, 1}, Case{2, 1}, Case{-1, 1}, Case{0, 0}}) {
    SCOPED_TRACE(c.argument);
    SetUserBreak(c.argument);
    EXPECT_EQ(GetUserBreak(), c.breakAfter);
  }
}

TEST_F(SettingsTest, SetTraceGivesBackItsArgumentAcceptedOrNot) {
  for (const int32_t mode : {0, 1, 2, 3, -1, INT32_MIN, INT32_MAX, 0}) EXPECT_EQ(SetTrace(mode), mode);
}

}  // namespace
}  // namespace brelt::test
