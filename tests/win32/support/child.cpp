#include "tests/win32/support/child.h"

#include <gtest/gtest.h>

#include "tests/win32/support/forms.h"

namespace brelt::test {

namespace {

// Makes a file that a child can write to.
HANDLE OpenForChild(const std::string& path) {
  SECURITY_ATTRIBUTES inherited = {};
  inherited.nLength = sizeof inherited;
  inherited.bInheritHandle = TRUE;
  return CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
}

}  // namespace

ChildProcess::ChildProcess(const std::string& program, const std::string& arguments,
                           const std::string& output) {
  std::string command = "\"" + ProgramFolder() + program + "\" " + arguments;
  const bool prints = !output.empty();
  STARTUPINFOA start = {};
  start.cb = sizeof start;
  if (prints) {
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = OpenForChild(output);
    EXPECT_NE(start.hStdOutput, INVALID_HANDLE_VALUE);
  }
  EXPECT_TRUE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, prints, 0, nullptr, nullptr, &start,
                             &process_));
  if (prints) CloseHandle(start.hStdOutput);
}

ChildProcess::~ChildProcess() {
  TerminateProcess(process_.hProcess, 1);
  WaitForSingleObject(process_.hProcess, INFINITE);
  CloseHandle(process_.hProcess);
  CloseHandle(process_.hThread);
}

bool ChildProcess::EndsWithin(DWORD milliseconds) const {
  return WaitForSingleObject(process_.hProcess, milliseconds) == WAIT_OBJECT_0;
}

DWORD ChildProcess::ExitCode() const {
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

NamedEvent::NamedEvent(const std::string& name) : event_(CreateEventA(nullptr, TRUE, FALSE, name.c_str())) {}

NamedEvent::~NamedEvent() { CloseHandle(event_); }

bool NamedEvent::IsSetWithin(DWORD milliseconds) const {
  return WaitForSingleObject(event_, milliseconds) == WAIT_OBJECT_0;
}

void NamedEvent::Set() const { SetEvent(event_); }

}  // namespace brelt::test
