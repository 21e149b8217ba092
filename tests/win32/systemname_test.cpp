#include "frame/systemname.h"

#include <gtest/gtest.h>

namespace brelt {
namespace {

TEST(SystemNameOf, ReadsWindowsNtForALaterVersionThanItKnows) {
  EXPECT_STREQ(SystemNameOf(true, 6, 3), "Windows NT");
}

}  // namespace
}  // namespace brelt
