// Programs that a test starts beside itself.
#pragma once

#include <windows.h>

#include <string>

namespace brelt::test {

// A program of the tests' own folder, with its arguments. It is ended with this if it still runs. With the
// path of an output file that file takes what the program prints, errors too.
class ChildProcess {
 public:
  ChildProcess(const std::string& program, const std::string& arguments, const std::string& output = "");
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess();

  bool EndsWithin(DWORD milliseconds) const;
  // STILL_ACTIVE as long as it runs.
  DWORD ExitCode() const;

 private:
  PROCESS_INFORMATION process_ = {};
};

// An event that a child knows by its name: one of the two signals it and the other waits.
class NamedEvent {
 public:
  explicit NamedEvent(const std::string& name);
  NamedEvent(const NamedEvent&) = delete;
  NamedEvent& operator=(const NamedEvent&) = delete;
  ~NamedEvent();

  bool IsSetWithin(DWORD milliseconds) const;
  void Set() const;

 private:
  HANDLE event_;
};

}  // namespace brelt::test
