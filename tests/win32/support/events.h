// Records the events that windows raise, and lets a test act inside one.
#pragma once

#include <brelt.h>

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

// The event function for Load and Show: records and asks onEvent.
int32_t __stdcall RecordEvent(HWND window, uint32_t event, uint32_t wParam, int32_t lParam);

}  // namespace brelt::test
