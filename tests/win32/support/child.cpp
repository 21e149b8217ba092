#include "tests/win32/support/child.h"

#include <gtest/gtest.h>

#include "tests/win32/support/forms.h"

namespace brelt::test {

ChildProcess::ChildProcess(const std::string& program, const std::string& arguments) {
  std::string command = "\"" + ProgramFolder() + program + "\" " + arguments;
  STARTUPINFOA start = {};
  start.cb = sizeof start;
  EXPECT_TRUE(CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                             &process_));
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
