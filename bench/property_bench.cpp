// What a property call costs beside the platform's call that it comes down to, and how much of it is neither
// the search for the window's name nor the platform's.
#include <brelt.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "bench/harness.h"
#include "tests/win32/support/imports.h"

namespace brelt::bench {
namespace {

constexpr int kRounds = 25;
constexpr int kCalls = 2000;
// The library's own share of a thousand calls is to be a millisecond at most.
constexpr double kOwnGoal = 1000.0;  // nanoseconds for one

enum ControlId : int { kField = 100, kCheckBox, kScrollBar };

void Require(bool holds) {
  if (!holds) std::abort();
}

// Forms of one thread; the first is the one that a search by name comes to last.
class Forms {
 public:
  explicit Forms(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
      text += NameOf(i) + " DIALOG 0, 0, 90, 90\nSTYLE WS_POPUP\nBEGIN\n  EDITTEXT 100, 0, 0, 80, 14\n" +
              "  CHECKBOX \"\", 101, 0, 20, 80, 14\n  SCROLLBAR 102, 0, 40, 80, 14\nEND\n";
    }
    std::ofstream("forms.rc") << text;
    windows_.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      Require(Load(GetModuleHandleA(nullptr), NameOf(i).c_str(), "forms.rc", nullptr,
                   &windows_[static_cast<std::size_t>(i)], nullptr, nullptr, 0) == RTX_OK);
    }
  }
  Forms(const Forms&) = delete;
  Forms& operator=(const Forms&) = delete;
  ~Forms() {
    for (HWND window : windows_) DestroyWindow(window);
  }

  static std::string NameOf(int number) { return "Form" + std::to_string(number); }
  HWND last() const { return windows_.front(); }

 private:
  std::vector<HWND> windows_;
};

// A call many times over.
template <typename Call>
Way Repeat(const char* name, Call call) {
  return {name, double(kCalls), [call] {
            for (int i = 0; i < kCalls; ++i) call(i);
          }};
}

// Reads what the library looks at ahead of its work, once each.
HWND LookUp(HWND window, int id) {
  Require(GetMenu(window) == nullptr);
  HWND control = GetDlgItem(window, id);
  char className[33];
  Require(GetClassNameA(control, className, sizeof className) != 0);
  return control;
}

// The ways are: the platform's call alone, with what is looked at ahead of it, the search for the name, and
// the property call.
void Compare(const std::string& headline, const std::vector<Way>& ways) {
  Print(headline + ", one call", Measure(ways, kRounds));
}

void BenchProperties(int count) {
  const Forms forms(count);
  HWND window = forms.last();
  const std::string name = Forms::NameOf(0);
  const std::string among = " among " + std::to_string(count) + " windows";
  const char* form = name.c_str();
  Require(SetText(form, kField, "a text of some length") == RTX_OK);
  const Way resolve =
      Repeat("the search for the name", [=](int) { Require(GetHandle(form, 0, nullptr) == window); });

  HWND field = GetDlgItem(window, kField);
  char text[64];
  const auto read = [&text](HWND control) {
    Keep(SendMessageA(control, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text)));
  };
  Compare("GetText of a field" + among,
          {Repeat("WM_GETTEXT", [=](int) { read(field); }),
           Repeat("with menu, control and class", [=](int) { read(LookUp(window, kField)); }), resolve,
           Repeat("GetText",
                  [form, &text](int) { Require(GetText(form, kField, text, sizeof text) == RTX_OK); })});

  const auto check = [window](int i) { CheckDlgButton(window, kCheckBox, static_cast<UINT>(i & 1)); };
  Compare(
      "SetValue of a check box" + among,
      {Repeat("CheckDlgButton", check),
       Repeat("with menu, control, class and style",
              [=](int i) {
                Keep(GetWindowLongA(LookUp(window, kCheckBox), GWL_STYLE));
                check(i);
              }),
       resolve, Repeat("SetValue", [form](int i) { Require(SetValue(form, kCheckBox, i & 1) == RTX_OK); })});

  const auto scroll = [](HWND bar, int i) { Keep(SetScrollPos(bar, SB_CTL, i & 1, TRUE)); };
  HWND bar = GetDlgItem(window, kScrollBar);
  Compare(
      "SetValue of a scroll bar" + among,
      {Repeat("SetScrollPos", [=](int i) { scroll(bar, i); }),
       Repeat("with menu, control, class and range",
              [=](int i) {
                HWND found = LookUp(window, kScrollBar);
                int low = 0;
                int high = 0;
                GetScrollRange(found, SB_CTL, &low, &high);
                scroll(found, i);
              }),
       resolve, Repeat("SetValue", [form](int i) { Require(SetValue(form, kScrollBar, i & 1) == RTX_OK); })});
}

// ---- The library alone ----

// Stands in for the platform: what the library asks for one form and one of its controls is answered at once,
// so that the time that is left is the library's own.
class InstantPlatform {
 public:
  InstantPlatform(HWND window, HWND control) {
    answers = {window, control, GetWindowLongA(window, 0), GetWindowLongA(control, GWL_STYLE), ""};
    GetClassNameA(control, answers.className, sizeof answers.className);
  }
  InstantPlatform(const InstantPlatform&) = delete;
  InstantPlatform& operator=(const InstantPlatform&) = delete;

 private:
  struct Answers {
    HWND window;
    HWND control;
    LONG record;
    LONG style;
    char className[33];
  };
  static inline Answers answers = {};

  static BOOL WINAPI EnumWindows(DWORD, WNDENUMPROC visit, LPARAM context) {
    return visit(answers.window, context);
  }
  static DWORD WINAPI ClassWord(HWND, int) { return 40; }
  static LONG WINAPI WindowWord(HWND window, int) {
    return window == answers.window ? answers.record : answers.style;
  }
  static HMENU WINAPI Menu(HWND) { return nullptr; }
  static HWND WINAPI Item(HWND, int) { return answers.control; }
  static int WINAPI ClassName(HWND, LPSTR name, int) {
    std::memcpy(name, answers.className, sizeof answers.className);
    return 1;
  }
  static LRESULT WINAPI Send(HWND, UINT, WPARAM, LPARAM) { return 0; }
  static BOOL WINAPI Check(HWND, int, UINT) { return TRUE; }
  static BOOL WINAPI Range(HWND, int, LPINT low, LPINT high) {
    *low = 0;
    *high = 100;
    return TRUE;
  }
  static int WINAPI Position(HWND, int, int, BOOL) { return 0; }

  template <typename Function>
  static void* Address(Function* function) {
    return reinterpret_cast<void*>(function);
  }

  const test::ReplacedImport imports_[10] = {{"EnumThreadWindows", Address(EnumWindows)},
                                             {"GetClassLongA", Address(ClassWord)},
                                             {"GetWindowLongA", Address(WindowWord)},
                                             {"GetMenu", Address(Menu)},
                                             {"GetDlgItem", Address(Item)},
                                             {"GetClassNameA", Address(ClassName)},
                                             {"SendMessageA", Address(Send)},
                                             {"CheckDlgButton", Address(Check)},
                                             {"GetScrollRange", Address(Range)},
                                             {"SetScrollPos", Address(Position)}};
};

void BenchOwnTime() {
  const Forms forms(1);
  const std::string name = Forms::NameOf(0);
  const char* form = name.c_str();
  char text[64] = "";
  const auto measure = [&](ControlId id, const Way& way) {
    const InstantPlatform platform(forms.last(), GetDlgItem(forms.last(), id));
    return Measure({way}, kRounds)[0];
  };
  const Measured own[] = {
      measure(kField, Repeat("GetText of a field",
                             [&](int) { Require(GetText(form, kField, text, sizeof text) == RTX_OK); })),
      measure(kCheckBox, Repeat("SetValue of a check box",
                                [&](int i) { Require(SetValue(form, kCheckBox, i & 1) == RTX_OK); })),
      measure(kScrollBar, Repeat("SetValue of a scroll bar",
                                 [&](int i) { Require(SetValue(form, kScrollBar, i & 1) == RTX_OK); }))};
  std::printf("\nThe library's own time, with a platform that answers at once, one call in nanoseconds\n");
  for (const Measured& call : own) PrintGoal(call.name, call.nanoseconds, Goal::kAtMost, kOwnGoal);
}

}  // namespace
}  // namespace brelt::bench

int main() {
  for (const int windows : {1, 10, 100}) brelt::bench::BenchProperties(windows);
  brelt::bench::BenchOwnTime();
  return 0;
}
