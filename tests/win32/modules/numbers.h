// Controls that are nothing but numbers: each even message from 1296 on gets one, the odd one behind it sets
// it from lParam.
#pragma once

#include <windows.h>

namespace brelt::module {

inline constexpr UINT kFirstMessage = 1296;

template <int Count>
struct Numbers {
  LRESULT values[Count];
};

// Keeps the numbers in the window's own pointer; initial tells what they are at first. settable is how many
// of them can be set.
template <int Count>
LRESULT HandleNumbers(HWND window, UINT message, WPARAM wParam, LPARAM lParam, const Numbers<Count>& initial,
                      int settable) noexcept {
  auto* numbers = reinterpret_cast<Numbers<Count>*>(GetWindowLongA(window, 0));
  if (message == WM_NCCREATE) {
    numbers = new (std::nothrow) Numbers<Count>(initial);
    SetWindowLongA(window, 0, reinterpret_cast<LONG>(numbers));
  } else if (message == WM_NCDESTROY) {
    SetWindowLongA(window, 0, 0);
    delete numbers;
  } else if (numbers != nullptr && message >= kFirstMessage && message < kFirstMessage + 2 * Count) {
    const int index = static_cast<int>(message - kFirstMessage) / 2;
    if ((message - kFirstMessage) % 2 == 0) return numbers->values[index];
    if (index < settable) numbers->values[index] = lParam;
    InvalidateRect(window, nullptr, TRUE);
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace brelt::module
