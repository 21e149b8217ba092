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

// The characters that follow a text's first one.
class CharacterQueue {
 public:
  explicit CharacterQueue(HWND window) noexcept : window_(window) {}
  CharacterQueue(const CharacterQueue&) = delete;
  CharacterQueue& operator=(const CharacterQueue&) = delete;
  ~CharacterQueue() {
    if (quits_) PostQuitMessage(exitCode_);
  }

  // Waits for the next character; false when the time is up, or the window gone, for which none can come any
  // more. It waits actively: the rest was posted with the first.
  bool Next(char& character) noexcept {
    while (IsWindow(window_) && Now() - start_ <= kWaitUnits) {
      MSG next;
      if (!PeekMessageA(&next, window_, XM_COMMANDCHAR, XM_COMMANDCHAR, PM_REMOVE | PM_NOYIELD)) continue;
      if (next.message == XM_COMMANDCHAR) {
        character = static_cast<char>(next.lParam);
        return true;
      }
      // WM_QUIT passes any filter. It is the loop's and goes back when the text is complete.
      quits_ = true;
      exitCode_ = static_cast<int>(next.wParam);
    }
    return false;
  }

 private:
  const std::uint64_t start_ = Now();
  HWND window_;
  bool quits_ = false;
  int exitCode_ = 0;
};

}  // namespace

LRESULT OnCommandChar(const Message& message) noexcept {
  CharacterQueue queue(message.window);
  rc::FixedText<259> text;
  rc::TextWriter writer(text);
  char character = static_cast<char>(message.lParam);
  do {
    if (character == '\0') break;
    writer.Append(character);
  } while (queue.Next(character));
  if (IsWindowEnabled(message.window) && !writer.IsEmpty()) {
    RaiseEvent(message.window, EV_CLICK, static_cast<std::uint32_t>(message.wParam),
               reinterpret_cast<std::int32_t>(text.c_str()));
  }
  return 0;
}

}  // namespace brelt
