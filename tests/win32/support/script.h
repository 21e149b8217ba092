// Acts while a loop of the library runs: MainLoop, a modal show, a scroll bar's or a menu's own loop.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace brelt::test {

// Steps that run one after the other, each when the messages and the input before it have been handled. A
// step may itself enter a loop, in which the next ones run. A script that doesn't come to its end in time
// fails the test, destroys the windows and ends the loops.
class Script {
 public:
  Script();
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;
  // Fails the test if steps are left.
  ~Script();

  Script& Do(std::function<void()> action);
  // Waits for a condition; what tells of it in a failure.
  Script& Until(const std::string& what, std::function<bool()> condition);
  // The usual last step: destroys the library's windows.
  Script& DestroyAll();
  bool IsDone() const { return next_ == steps_.size(); }

 private:
  struct Step {
    std::string what;
    std::function<void()> action;     // what it does, or
    std::function<bool()> condition;  // what it waits for
  };
  static void CALLBACK OnTick(HWND, UINT, UINT_PTR, DWORD);
  void Tick();
  void GiveUp();

  std::vector<Step> steps_;
  std::size_t next_ = 0;
  bool testing_ = false;  // a condition is being asked
  bool failed_ = false;
  DWORD start_;
  UINT_PTR timer_;
};

}  // namespace brelt::test
