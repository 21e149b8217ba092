// Records the events that windows raise, and lets a test act inside one.
#pragma once

#include <brelt.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace brelt::test {

struct Event {
  uint32_t event;
  uint32_t wParam;
  int32_t lParam;

  bool operator==(const Event&) const = default;
};

// "EV_CLICK 101 0", for messages and sequences that are compared as text.
std::string ToText(const Event& event);
std::ostream& operator<<(std::ostream& out, const Event& event);

// All that happened since Clear, of all windows. OnEvent, when set, is called for each event and gives the
// result.
struct EventLog {
  std::vector<Event> events;
  std::vector<HWND> windows;
  std::function<int32_t(HWND window, const Event& event)> onEvent;

  void Clear();
  // The events of some numbers only, one a line in ToText's form.
  std::string Of(std::initializer_list<uint32_t> numbers) const;
  std::string All() const;
  int Count(uint32_t number) const;
};
EventLog& Log();

// An event and the window that raised it.
struct WindowEvent {
  HWND window;
  Event event;

  bool operator==(const WindowEvent&) const = default;
};

// Whether exactly these events were heard since the log was cleared, in this order. A failure shows what was
// expected and what was heard side by side.
::testing::AssertionResult Heard(const std::vector<Event>& expected);
::testing::AssertionResult Heard(const std::vector<WindowEvent>& expected);

// A handle or a pair of words as an event carries it in lParam.
inline int32_t AsParam(const void* pointer) { return reinterpret_cast<int32_t>(pointer); }
inline int32_t AsPoint(int x, int y) { return MAKELONG(x, y); }

// The event function for Load and Show: records and asks onEvent.
int32_t __stdcall RecordEvent(HWND window, uint32_t event, uint32_t wParam, int32_t lParam);

}  // namespace brelt::test
