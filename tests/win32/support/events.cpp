#include "tests/win32/support/events.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <ostream>

namespace brelt::test {
namespace {

const char* NameOf(uint32_t event) {
  static const std::map<uint32_t, const char*> names = {
      {EV_USERBREAK, "EV_USERBREAK"}, {EV_CUSTOM, "EV_CUSTOM"},         {EV_ACTIVATE, "EV_ACTIVATE"},
      {EV_CHANGE, "EV_CHANGE"},       {EV_MOUSEDOWN, "EV_MOUSEDOWN"},   {EV_CLICK, "EV_CLICK"},
      {EV_DBLCLICK, "EV_DBLCLICK"},   {EV_DEACTIVATE, "EV_DEACTIVATE"}, {EV_KEYPRESS, "EV_KEYPRESS"},
      {EV_LOAD, "EV_LOAD"},           {EV_RIGHTDOWN, "EV_RIGHTDOWN"},   {EV_RESIZE, "EV_RESIZE"},
      {EV_SELCHANGE, "EV_SELCHANGE"}, {EV_TIMER, "EV_TIMER"},           {EV_CLOSE, "EV_CLOSE"}};
  const auto found = names.find(event);
  return found == names.end() ? "?" : found->second;
}

}  // namespace

std::string ToText(const Event& event) {
  return std::string(NameOf(event.event)) + " " + std::to_string(event.wParam) + " " +
         std::to_string(event.lParam);
}

std::ostream& operator<<(std::ostream& out, const Event& event) { return out << ToText(event); }

void EventLog::Clear() {
  events.clear();
  windows.clear();
}

std::string EventLog::Of(std::initializer_list<uint32_t> numbers) const {
  std::string text;
  for (const Event& event : events) {
    for (const uint32_t number : numbers) {
      if (event.event == number) text += ToText(event) + "\n";
    }
  }
  return text;
}

std::string EventLog::All() const {
  std::string text;
  for (const Event& event : events) text += ToText(event) + "\n";
  return text;
}

int EventLog::Count(uint32_t number) const {
  int count = 0;
  for (const Event& event : events) count += event.event == number ? 1 : 0;
  return count;
}

namespace {

using Lines = std::vector<std::string>;

Lines LinesOf(const std::vector<Event>& events) {
  Lines lines;
  for (const Event& event : events) lines.push_back(ToText(event));
  return lines;
}

Lines LinesOf(const std::vector<WindowEvent>& events) {
  Lines lines;
  for (const WindowEvent& event : events) {
    char window[16];
    std::snprintf(window, sizeof window, "%p ", static_cast<void*>(event.window));
    lines.push_back(window + ToText(event.event));
  }
  return lines;
}

::testing::AssertionResult CompareColumns(const Lines& expected, const Lines& heard) {
  if (expected == heard) return ::testing::AssertionSuccess();
  ::testing::AssertionResult failure = ::testing::AssertionFailure();
  failure << "\n   expected                                  heard\n";
  for (std::size_t i = 0; i < std::max(expected.size(), heard.size()); ++i) {
    const std::string left = i < expected.size() ? expected[i] : "-";
    const std::string right = i < heard.size() ? heard[i] : "-";
    failure << (left == right ? "   " : " ! ") << left
            << std::string(left.size() < 41 ? 41 - left.size() : 1, ' ') << " " << right << "\n";
  }
  return failure;
}

}  // namespace

::testing::AssertionResult Heard(const std::vector<Event>& expected) {
  return CompareColumns(LinesOf(expected), LinesOf(Log().events));
}

::testing::AssertionResult Heard(const std::vector<WindowEvent>& expected) {
  std::vector<WindowEvent> heard;
  for (std::size_t i = 0; i < Log().events.size(); ++i) {
    heard.push_back({Log().windows[i], Log().events[i]});
  }
  return CompareColumns(LinesOf(expected), LinesOf(heard));
}

EventLog& Log() {
  static EventLog log;
  return log;
}

int32_t __stdcall RecordEvent(HWND window, uint32_t event, uint32_t wParam, int32_t lParam) {
  const Event happened{event, wParam, lParam};
  Log().events.push_back(happened);
  Log().windows.push_back(window);
  return Log().onEvent ? Log().onEvent(window, happened) : 0;
}

}  // namespace brelt::test
