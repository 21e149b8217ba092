// A text that another part of the program, or another program, sends to a window one character at a time.
#include "forms/events.h"
#include "forms/handlers.h"
#include "frame/winobject.h"

namespace brelt {
namespace {

constexpr std::uint64_t kWaitUnits = 20000000;  // 2 seconds of 100 nanoseconds

std::uint64_t Now() noexcept {
  SYSTEMTIME time;
  FILETIME units;
  GetSystemTime(&time);
  SystemTimeToFileTime(&time, &units);
  return std::uint64_t{units.dwHighDateTime} << 32 | units.dwLowDateTime;
}

// Waits for the next character; false when the time is up. It waits actively: the rest was posted with the
// first.
bool NextCharacter(HWND window, std::uint64_t start, char& character) noexcept {
  while (Now() - start <= kWaitUnits) {
    MSG next;
    if (!PeekMessageA(&next, window, XM_COMMANDCHAR, XM_COMMANDCHAR, PM_REMOVE | PM_NOYIELD)) continue;
    character = static_cast<char>(next.lParam);
    return true;
  }
  return false;
}

}  // namespace

LRESULT OnCommandChar(const Message& message) noexcept {
  const std::uint64_t start = Now();
  rc::FixedText<259> text;
  rc::TextWriter writer(text);
  char character = static_cast<char>(message.lParam);
  do {
    if (character == '\0') break;
    writer.Append(character);
  } while (NextCharacter(message.window, start, character));
  if (IsWindowEnabled(message.window) && !writer.IsEmpty()) {
    RaiseEvent(message.window, EV_CLICK, static_cast<std::uint32_t>(message.wParam),
               reinterpret_cast<std::int32_t>(text.c_str()));
  }
  return 0;
}

}  // namespace brelt
