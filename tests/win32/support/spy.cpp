#include "tests/win32/support/spy.h"

#include <cstring>

namespace brelt::test {
namespace {

MessageSpy* current = nullptr;

}  // namespace

MessageSpy::MessageSpy()
    : sentHook_(SetWindowsHookExA(WH_CALLWNDPROC, OnSent, nullptr, GetCurrentThreadId())),
      creationHook_(SetWindowsHookExA(WH_CBT, OnComputerTraining, nullptr, GetCurrentThreadId())) {
  current = this;
}

MessageSpy::~MessageSpy() {
  current = nullptr;
  UnhookWindowsHookEx(creationHook_);
  UnhookWindowsHookEx(sentHook_);
}

std::vector<SentMessage> MessageSpy::To(HWND window, UINT message) const {
  std::vector<SentMessage> messages;
  for (const SentMessage& sent : sent_) {
    if (sent.window == window && sent.message == message) messages.push_back(sent);
  }
  return messages;
}

LRESULT CALLBACK MessageSpy::OnSent(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION && current != nullptr) {
    const auto* sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
    current->sent_.push_back({sent->hwnd, sent->message, sent->wParam, sent->lParam});
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK MessageSpy::OnComputerTraining(int code, WPARAM wParam, LPARAM lParam) {
  const auto window = reinterpret_cast<HWND>(wParam);
  char className[256] = "";
  GetClassNameA(window, className, sizeof className);
  // The platform's own window for input comes and goes with the program's.
  if (code == HCBT_CREATEWND && current != nullptr && std::strcmp(className, "IME") != 0) {
    const CREATESTRUCTA& made = *reinterpret_cast<const CBT_CREATEWNDA*>(lParam)->lpcs;
    current->creations_.push_back({window, className, made.lpszName != nullptr ? made.lpszName : "",
                                   static_cast<DWORD>(made.style), made.dwExStyle, made.x, made.y, made.cx,
                                   made.cy, made.hwndParent, made.hMenu, made.hInstance,
                                   made.lpCreateParams});
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace brelt::test
