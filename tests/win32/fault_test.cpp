#include <brelt.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

constexpr DWORD kReturned = 99;
constexpr const char* kEventName = "brelt.faultchild";

// A process that calls RaiseGuiRtx with a code; it has said that it is about to.
class FaultChild {
 public:
  explicit FaultChild(int code) : event_(CreateEventA(nullptr, TRUE, FALSE, kEventName)) {
    std::string command =
        "\"" + ProgramFolder() + "faultchild.exe\" " + std::to_string(code) + " " + kEventName;
    STARTUPINFOA start = {};
    start.cb = sizeof start;
    EXPECT_TRUE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                               &process_));
    EXPECT_EQ(WaitForSingleObject(event_, 30000), WAIT_OBJECT_0);
  }
  FaultChild(const FaultChild&) = delete;
  FaultChild& operator=(const FaultChild&) = delete;
  ~FaultChild() {
    TerminateProcess(process_.hProcess, 1);
    WaitForSingleObject(process_.hProcess, INFINITE);
    CloseHandle(process_.hProcess);
    CloseHandle(process_.hThread);
    CloseHandle(event_);
  }

  bool EndsWithin(DWORD milliseconds) {
    return WaitForSingleObject(process_.hProcess, milliseconds) == WAIT_OBJECT_0;
  }
  DWORD ExitCode() {
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
  }

 private:
  HANDLE event_;
  PROCESS_INFORMATION process_ = {};
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
    ASSERT_TRUE(child.EndsWithin(30000));
    EXPECT_EQ(child.ExitCode(), c.exception);
  }
}

TEST(RaiseGuiRtx, NeverComesBackFromCode253) {
  FaultChild child(253);
  EXPECT_FALSE(child.EndsWithin(300));
}

TEST(RaiseGuiRtx, ComesBackAtOnceFromEveryOtherCode) {
  FaultChild child(6);
  ASSERT_TRUE(child.EndsWithin(30000));
  EXPECT_EQ(child.ExitCode(), kReturned);
  for (int code = -1; code < 1000; ++code) {
    if (code == 5 || code == 29 || code == 150 || code == 253) continue;
    RaiseGuiRtx(code);
  }
  for (const int32_t code : {INT32_MIN, INT32_MAX, 256 + 5, 0x10005}) RaiseGuiRtx(code);
}

}  // namespace
}  // namespace brelt::test
