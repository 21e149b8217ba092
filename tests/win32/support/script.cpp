#include "tests/win32/support/script.h"

#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

constexpr DWORD kTimeLimit = 30000;  // milliseconds

Script* running = nullptr;

// Timers come when there is nothing else, but a loop that looks for some messages only may leave others.
bool IsQueueEmpty() { return HIWORD(GetQueueStatus(QS_INPUT | QS_POSTMESSAGE | QS_SENDMESSAGE)) == 0; }

}  // namespace

Script::Script() : start_(GetTickCount()), timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTick)) {
  running = this;
}

Script::~Script() {
  KillTimer(nullptr, timer_);
  running = nullptr;
  if (!failed_ && !IsDone()) ADD_FAILURE() << "The loop ended before: " << steps_[next_].what;
}

Script& Script::Do(std::function<void()> action) {
  steps_.push_back({"step " + std::to_string(steps_.size() + 1), std::move(action), nullptr});
  return *this;
}

Script& Script::Until(const std::string& what, std::function<bool()> condition) {
  steps_.push_back({what, nullptr, std::move(condition)});
  return *this;
}

Script& Script::DestroyAll() { return Do(DestroyLibraryWindows); }

void CALLBACK Script::OnTick(HWND, UINT, UINT_PTR, DWORD) {
  if (running != nullptr) running->Tick();
}

void Script::Tick() {
  if (failed_ || GetTickCount() - start_ > kTimeLimit) return GiveUp();
  // A step may pump, too; the next one waits for the loop that the script is for.
  if (testing_ || IsPumping() || IsDone() || !IsQueueEmpty()) return;
  // A copy: the step may add others.
  const Step step = steps_[next_];
  if (step.condition) {
    testing_ = true;
    if (step.condition()) ++next_;
    testing_ = false;
  } else {
    ++next_;
    step.action();
  }
}

void Script::GiveUp() {
  if (!failed_) ADD_FAILURE() << "Waited in vain for: " << (IsDone() ? "the end" : steps_[next_].what);
  failed_ = true;
  DestroyLibraryWindows();
  PostQuitMessage(0);
}

}  // namespace brelt::test
