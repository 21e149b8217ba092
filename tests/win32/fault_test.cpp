#include <brelt.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/win32/support/child.h"

namespace brelt::test {
namespace {

constexpr DWORD kReturned = 99;
constexpr const char* kEventName = "brelt.faultchild";

// A process that calls RaiseGuiRtx with a code; it has said that it is about to.
struct FaultChild {
  explicit FaultChild(int code)
      : ready(kEventName), process("faultchild.exe", std::to_string(code) + " " + kEventName) {
    EXPECT_TRUE(ready.IsSetWithin(30000));
  }

  NamedEvent ready;
  ChildProcess process;
};

TEST(RaiseGuiRtx, RaisesTheFaultOfItsCode) {
  struct Case {
    int code;
    DWORD exception;
  };
  const Case cases[] = {{5, EXCEPTION_ACCESS_VIOLATION},
                        {29, EXCEPTION_ILLEGAL_INSTRUCTION},
                        {150, EXCEPTION_PRIV_INSTRUCTION}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.code);
    FaultChild child(c.code);
    ASSERT_TRUE(child.process.EndsWithin(30000));
    EXPECT_EQ(child.process.ExitCode(), c.exception);
  }
}

TEST(RaiseGuiRtx, NeverComesBackFromCode253) {
  FaultChild child(253);
  EXPECT_FALSE(child.process.EndsWithin(300));
}

TEST(RaiseGuiRtx, ComesBackAtOnceFromEveryOtherCode) {
  FaultChild child(6);
  ASSERT_TRUE(child.process.EndsWithin(30000));
  EXPECT_EQ(child.process.ExitCode(), kReturned);
  for (int code = -1; code < 1000; ++code) {
    if (code == 5 || code == 29 || code == 150 || code == 253) continue;
    RaiseGuiRtx(code);
  }
  for (const int32_t code : {INT32_MIN, INT32_MAX, 256 + 5, 0x10005}) RaiseGuiRtx(code);
}

}  // namespace
}  // namespace brelt::test
