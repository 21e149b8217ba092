// How long a form takes to load and to go, beside the same windows made by the platform alone, and how long a
// window's name takes to find.
#include <brelt.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "bench/harness.h"

namespace brelt::bench {
namespace {

constexpr int kRounds = 15;

HINSTANCE Program() { return GetModuleHandleA(nullptr); }

// ---- The form ----

constexpr const char* kFormName = "Form";

// Every kind of control that forms are mostly made of.
std::string FormText(int controls) {
  constexpr const char* kStatements[] = {
      "LTEXT \"A label\",",        "EDITTEXT", "LTEXT \"Another\",", "EDITTEXT", "CHECKBOX \"A check box\",",
      "RADIOBUTTON \"A choice\",", "COMBOBOX", "LTEXT \"A third\",", "LISTBOX",  "PUSHBUTTON \"A button\","};
  std::string text = std::string(kFormName) + " DIALOG 0, 0, 300, 300\nBEGIN\n";
  for (int i = 0; i < controls; ++i) {
    text += std::string("  ") + kStatements[i % 10] + " " + std::to_string(100 + i) + ", " +
            std::to_string(i % 16 * 18) + ", " + std::to_string(i / 16 * 18) + ", 16, 14\n";
  }
  return text + "END\n";
}

HWND LoadForm(const char* file) {
  HWND window = nullptr;
  if (Load(Program(), kFormName, file, nullptr, &window, nullptr, nullptr, 0) != RTX_OK) std::abort();
  return window;
}

// ---- The same windows, made by the platform alone ----

struct Window {
  std::string className;
  std::string text;
  DWORD style;
  DWORD exStyle;
  RECT place;
  HMENU id;
};

Window Describe(HWND window, HWND parent) {
  char className[64] = "";
  char text[256] = "";
  GetClassNameA(window, className, sizeof className);
  GetWindowTextA(window, text, sizeof text);
  RECT place = {};
  GetWindowRect(window, &place);
  if (parent != nullptr) MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
  return {className,
          text,
          static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)),
          static_cast<DWORD>(GetWindowLongA(window, GWL_EXSTYLE)),
          place,
          reinterpret_cast<HMENU>(parent != nullptr ? GetWindowLongA(window, GWL_ID) : 0)};
}

// A window and its controls as they are, to be made again.
class RawForm {
 public:
  explicit RawForm(HWND window) : form_(Describe(window, nullptr)) {
    form_.className = kClassName;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
      controls_.push_back(Describe(child, window));
    }
    LOGFONTA font = {};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    font_ = CreateFontIndirectA(&font);
  }
  RawForm(const RawForm&) = delete;
  RawForm& operator=(const RawForm&) = delete;
  ~RawForm() { DeleteObject(font_); }

  static void RegisterItsClass() {
    WNDCLASSA info = {};
    info.style = CS_DBLCLKS;
    info.lpfnWndProc = DefWindowProcA;
    info.hInstance = Program();
    info.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    info.lpszClassName = kClassName;
    RegisterClassA(&info);
  }

  HWND Make() const {
    HWND window = Create(form_, nullptr);
    for (const Window& control : controls_) {
      SendMessageA(Create(control, window), WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    }
    return window;
  }

 private:
  static constexpr const char* kClassName = "bench.raw";

  static HWND Create(const Window& window, HWND parent) {
    const RECT& place = window.place;
    HWND made = CreateWindowExA(window.exStyle, window.className.c_str(), window.text.c_str(), window.style,
                                place.left, place.top, place.right - place.left, place.bottom - place.top,
                                parent, window.id, Program(), nullptr);
    if (made == nullptr) std::abort();
    return made;
  }

  Window form_;
  std::vector<Window> controls_;
  HFONT font_;
};

struct Comparison {
  double loadedPerControl;  // nanoseconds
};

Comparison BenchForm(int controls) {
  const std::string file = "form" + std::to_string(controls) + ".rc";
  std::ofstream(file) << FormText(controls);
  HWND window = LoadForm(file.c_str());
  const RawForm raw(window);
  DestroyWindow(window);

  const auto makeRaw = [&] { window = raw.Make(); };
  const auto load = [&] { window = LoadForm(file.c_str()); };
  const auto destroy = [&] { DestroyWindow(window); };
  const std::string of = " of " + std::to_string(controls) + " controls";
  const bool hasGoal = controls >= 100;

  const std::vector<Measured> made =
      Measure({{"CreateWindowExA and WM_SETFONT", double(controls), makeRaw, {}, destroy},
               {"Load", double(controls), load, {}, destroy}},
              kRounds);
  Print("Making a form" + of + ", one control", made);
  if (hasGoal) PrintGoal("load beside raw creation", made[1].ratio, Goal::kAtMost, 1.10);
  const std::vector<Measured> gone =
      Measure({{"DestroyWindow of the raw form", double(controls), destroy, makeRaw, {}},
               {"DestroyWindow of the loaded form", double(controls), destroy, load, {}}},
              kRounds);
  Print("Destroying a form" + of + ", one control", gone);
  if (hasGoal) PrintGoal("destroying beside raw windows", gone[1].ratio, Goal::kAtMost, 1.10);
  return {made[1].nanoseconds};
}

void BenchForms() {
  BenchForm(10);
  const Comparison medium = BenchForm(100);
  const Comparison large = BenchForm(255);
  std::printf("\n");
  PrintGoal("one control of 255 beside one of 100", large.loadedPerControl / medium.loadedPerControl,
            Goal::kAtMost, 1.10);
}

// ---- Names ----

BOOL CALLBACK CountOwn(HWND window, LPARAM context) {
  if (GetClassLongA(window, GCL_CBWNDEXTRA) == 40) ++*reinterpret_cast<long*>(context);
  return TRUE;
}

void BenchNames(int windows) {
  constexpr int kCalls = 2000;
  std::string text;
  std::vector<std::string> names;
  for (int i = 0; i < windows; ++i) {
    names.push_back("Form" + std::to_string(i));
    text += names.back() + " DIALOG 0, 0, 9, 9\nSTYLE WS_POPUP\nBEGIN\nEND\n";
  }
  std::ofstream("names.rc") << text;
  std::vector<HWND> loaded(names.size());
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (Load(Program(), names[i].c_str(), "names.rc", nullptr, &loaded[i], nullptr, nullptr, 0) != RTX_OK)
      std::abort();
  }
  // The window that the platform names last.
  const char* last = names.front().c_str();
  const auto find = [&] {
    for (int i = 0; i < kCalls; ++i) {
      if (GetHandle(last, 0, nullptr) != loaded.front()) std::abort();
    }
  };
  const auto walk = [&] {
    long count = 0;
    for (int i = 0; i < kCalls; ++i)
      EnumThreadWindows(GetCurrentThreadId(), CountOwn, reinterpret_cast<LPARAM>(&count));
    Keep(count);
  };
  Print("Finding the last of " + std::to_string(windows) + " windows, one call",
        Measure({{"EnumThreadWindows and the class word alone", double(kCalls), walk},
                 {"GetHandle by name", double(kCalls), find}},
                kRounds));
  for (HWND window : loaded) DestroyWindow(window);
}

}  // namespace
}  // namespace brelt::bench

int main() {
  using namespace brelt::bench;
  RawForm::RegisterItsClass();
  BenchForms();
  for (const int windows : {1, 10, 100}) BenchNames(windows);
  return 0;
}
