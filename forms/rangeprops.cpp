// Max, Min and Value: the ranges of scroll bars and progress bars, and what is on or off.
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr const char* kScrollBar = "SCROLLBAR";
constexpr const char* kProgressBar = "Progressbar.*";

struct Range {
  std::int32_t low;
  std::int32_t high;

  // The platform keeps scroll ranges in 16 bits, and programs rely on progress bars doing likewise.
  bool IsAllowed() const noexcept {
    return low >= -32768 && high < 32768 && std::int64_t{high} - low < 32768;
  }
  std::int32_t Clamp(std::int32_t value) const noexcept {
    return value < low ? low : value > high ? high : value;
  }
};

std::int32_t Ask(HWND control, UINT message) noexcept {
  return static_cast<std::int32_t>(SendMessageA(control, message, 0, 0));
}

Range ScrollRange(const ObjectCall& call) noexcept {
  int low = 0;
  int high = 0;
  GetScrollRange(call.control(), SB_CTL, &low, &high);
  return {low, high};
}

Range ProgressRange(const ObjectCall& call) noexcept {
  return {Ask(call.control(), CM_GETPROGRESSMIN), Ask(call.control(), CM_GETPROGRESSMAX)};
}

// A range out of bounds is refused without a word.
void SetScrollRangeOf(const ObjectCall& call, Range range) noexcept {
  if (range.IsAllowed()) SetScrollRange(call.control(), SB_CTL, range.low, range.high, TRUE);
}

void SetProgressRangeOf(const ObjectCall& call, Range range) noexcept {
  if (!range.IsAllowed()) return;
  SendMessageA(call.control(), CM_SETPROGRESSMIN, 0, range.low);
  SendMessageA(call.control(), CM_SETPROGRESSMAX, 0, range.high);
}

// ---- Radio groups ----

constexpr std::uint32_t kBitmapRadio = 4;

bool IsRadioButton(HWND control) noexcept {
  const std::uint32_t type = TypeBitsOf(control);
  if (ClassMatches(control, "BUTTON")) return type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON;
  return type == kBitmapRadio;
}

bool StartsGroup(HWND control) noexcept { return (StyleOf(control) & WS_GROUP) != 0; }

// A group is a run of windows of one class: WS_GROUP starts the next one.
void SelectInGroup(HWND button) noexcept {
  const ClassName className = ClassNameOf(button);
  const auto isAlike = [&](HWND other) { return other != nullptr && ClassMatches(other, className.c_str()); };
  HWND first = button;
  while (!StartsGroup(first) && isAlike(GetWindow(first, GW_HWNDPREV))) first = GetWindow(first, GW_HWNDPREV);
  for (HWND member = first; isAlike(member) && (member == first || !StartsGroup(member));
       member = GetWindow(member, GW_HWNDNEXT)) {
    SendMessageA(member, BM_SETCHECK, member == button ? BST_CHECKED : BST_UNCHECKED, 0);
  }
}

std::int32_t ButtonValue(const ObjectCall& call) noexcept {
  return static_cast<std::int32_t>(IsDlgButtonChecked(call.window(), call.id()));
}

void SetButtonValue(const ObjectCall& call, std::int32_t value) noexcept {
  if (!IsRadioButton(call.control())) {
    CheckDlgButton(call.window(), call.id(), static_cast<UINT>(value));
  } else if (value == 1) {
    SelectInGroup(call.control());
  } else {
    SendMessageA(call.control(), BM_SETCHECK, BST_UNCHECKED, 0);
  }
}

constexpr GetRow<std::int32_t> kGetMax = {
    .controls = {{kScrollBar, [](const ObjectCall& call) noexcept { return ScrollRange(call).high; }},
                 {kProgressBar,
                  [](const ObjectCall& call) noexcept { return Ask(call.control(), CM_GETPROGRESSMAX); }}}};

constexpr SetRow<std::int32_t> kSetMax = {
    .controls = {{kScrollBar,
                  [](const ObjectCall& call, std::int32_t value) noexcept {
                    SetScrollRangeOf(call, {ScrollRange(call).low, value});
                  }},
                 {kProgressBar, [](const ObjectCall& call, std::int32_t value) noexcept {
                    SetProgressRangeOf(call, {ProgressRange(call).low, value});
                  }}}};

constexpr GetRow<std::int32_t> kGetMin = {
    .controls = {{kScrollBar, [](const ObjectCall& call) noexcept { return ScrollRange(call).low; }},
                 {kProgressBar,
                  [](const ObjectCall& call) noexcept { return Ask(call.control(), CM_GETPROGRESSMIN); }}}};

constexpr SetRow<std::int32_t> kSetMin = {
    .controls = {{kScrollBar,
                  [](const ObjectCall& call, std::int32_t value) noexcept {
                    SetScrollRangeOf(call, {value, ScrollRange(call).high});
                  }},
                 {kProgressBar, [](const ObjectCall& call, std::int32_t value) noexcept {
                    SetProgressRangeOf(call, {value, ProgressRange(call).high});
                  }}}};

constexpr GetRow<std::int32_t> kGetValue = {
    .controls = {
        {"BUTTON", ButtonValue},
        {"Bitmapbutton.*", ButtonValue},
        {kScrollBar,
         [](const ObjectCall& call) noexcept {
           return static_cast<std::int32_t>(GetScrollPos(call.control(), SB_CTL));
         }},
        {kProgressBar, [](const ObjectCall& call) noexcept { return Ask(call.control(), CM_GETPROGRESS); }}}};

constexpr SetRow<std::int32_t> kSetValue = {
    .controls = {{"BUTTON", SetButtonValue},
                 {"Bitmapbutton.*", SetButtonValue},
                 {kScrollBar,
                  [](const ObjectCall& call, std::int32_t value) noexcept {
                    SetScrollPos(call.control(), SB_CTL, ScrollRange(call).Clamp(value), TRUE);
                  }},
                 {kProgressBar, [](const ObjectCall& call, std::int32_t value) noexcept {
                    SendMessageA(call.control(), CM_SETPROGRESS, 0, ProgressRange(call).Clamp(value));
                  }}}};

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetMax(const char* name, int32_t id, int32_t* value) {
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{value}), kGetMax, value);
}

int32_t __stdcall SetMax(const char* name, int32_t id, int32_t value) {
  return SetProperty(ObjectCall(__func__, name, id), kSetMax, value);
}

int32_t __stdcall GetMin(const char* name, int32_t id, int32_t* value) {
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{value}), kGetMin, value);
}

int32_t __stdcall SetMin(const char* name, int32_t id, int32_t value) {
  return SetProperty(ObjectCall(__func__, name, id), kSetMin, value);
}

int32_t __stdcall GetValue(const char* name, int32_t id, int32_t* value) {
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{value}), kGetValue, value);
}

int32_t __stdcall SetValue(const char* name, int32_t id, int32_t value) {
  return SetProperty(ObjectCall(__func__, name, id), kSetValue, value);
}
