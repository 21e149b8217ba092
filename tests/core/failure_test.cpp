#include "rc/failure.h"

#include <gtest/gtest.h>

namespace brelt::rc {
namespace {

TEST(Failure, TheFirstOneStands) {
  Failure failure;
  EXPECT_FALSE(failure);
  failure.Set(RTX_MENU_SYNTAX, "Unknown: ", "word");
  EXPECT_TRUE(static_cast<bool>(failure));
  failure.Set(RTX_NO_MEMORY, "later");
  failure.Format(RTX_NO_MEMORY, "%d", 5);
  EXPECT_EQ(failure.code, RTX_MENU_SYNTAX);
  EXPECT_EQ(failure.message.view(), "Unknown: word");
}

TEST(Failure, IsFormattedAndGetsATextInFront) {
  Failure failure;
  failure.Format(RTX_NO_MENU, "<%s> %d", "a", 5);
  EXPECT_EQ(failure.code, RTX_NO_MENU);
  failure.Prefix("Menu <M>, ");
  EXPECT_EQ(failure.message.view(), "Menu <M>, <a> 5");
}

}  // namespace
}  // namespace brelt::rc
