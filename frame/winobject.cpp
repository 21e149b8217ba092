#include "frame/winobject.h"

#include "frame/library.h"
#include "include/brelt.h"
#include "rc/objectkind.h"

namespace brelt {
namespace {

struct NameSearch {
  rc::FixedText<40> name;
  HWND found = nullptr;
};

bool TailMatches(std::string_view pattern, std::string_view text, bool ignoreCase) noexcept {
  if (pattern.size() > text.size()) return false;
  text = text.substr(text.size() - pattern.size());
  return ignoreCase ? rc::EqualIgnoreCase(text, pattern) : text == pattern;
}

bool HeadMatches(std::string_view pattern, std::string_view text, bool ignoreCase) noexcept {
  text = text.substr(0, pattern.size());
  return ignoreCase ? rc::EqualIgnoreCase(text, pattern) : text == pattern;
}

bool WholeMatches(std::string_view pattern, std::string_view text, bool ignoreCase) noexcept {
  return ignoreCase ? rc::EqualIgnoreCase(text, pattern) : text == pattern;
}

bool PatternMatches(std::string_view pattern, std::string_view text, bool ignoreCase) noexcept {
  if (pattern.starts_with('*')) return TailMatches(pattern.substr(1), text, ignoreCase);
  if (pattern.ends_with('*')) return HeadMatches(pattern.substr(0, pattern.size() - 1), text, ignoreCase);
  return WholeMatches(pattern, text, ignoreCase);
}

}  // namespace

LONG ReadSlot(HWND window, int slot) noexcept {
  if (GetClassLongA(window, GCL_CBWNDEXTRA) != kSlotBytes) return 0;
  return GetWindowLongA(window, slot * 4);
}

void WriteSlot(HWND window, int slot, LONG value) noexcept {
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongA(window, GWL_HINSTANCE));
  char name[256];
  if (GetClassNameA(window, name, sizeof name) == 0) return;
  WNDCLASSEXA info = {};
  info.cbSize = sizeof info;
  if (!GetClassInfoExA(instance, name, &info) || info.cbWndExtra != kSlotBytes) return;
  if (slot < 0 || slot >= kSlotBytes / 4) return;
  SetWindowLongA(window, slot * 4, value);
}

ClassName ClassNameOf(HWND window) noexcept {
  ClassName name;
  GetClassNameA(window, name.data(), ClassName::kCapacity + 1);
  return name;
}

bool TextMatches(const char* pattern, const char* text, int mode) noexcept {
  return pattern != nullptr && text != nullptr && PatternMatches(pattern, text, mode == kIgnoreCase);
}

bool ClassMatches(HWND window, const char* pattern) noexcept {
  if (rc::IsEmpty(pattern)) return false;
  const ClassName name = ClassNameOf(window);
  return !name.IsEmpty() && PatternMatches(pattern, name.view(), true);
}

bool IsDialog(HWND window) noexcept { return ClassMatches(window, kDialogClass); }
bool IsEditwindow(HWND window) noexcept { return ClassMatches(window, kEditwindowClass); }
bool IsRicheditwindow(HWND window) noexcept { return ClassMatches(window, kRicheditwindowClass); }

bool IsOfThisProgram(HWND window) noexcept {
  DWORD process = 0;
  return GetWindowThreadProcessId(window, &process) != 0 && process == GetCurrentProcessId();
}

WindowRecord RecordOfHandle(HWND window) noexcept {
  return IsWindowObject(window) && IsOfThisProgram(window) ? RecordOf(window) : nullptr;
}

HWND ResolveName(const char* name) noexcept {
  if (name == nullptr) return nullptr;
  NameSearch search;
  search.name.Assign(name);
  EnumThreadWindows(GetCurrentThreadId(), Enum_GetOurWindowHandle, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

bool ObjectTypeOf(HWND window, const char* className, std::uint32_t style, rc::TextBuffer out) noexcept {
  if (IsWindow(window)) return rc::ObjectKind(ClassNameOf(window).view(), StyleOf(window), out);
  return rc::ObjectKind(rc::View(className), style, out);
}

WindowRow* RowOfControl(HWND window, HWND control) noexcept {
  // Only a Dialog's record has rows for controls.
  WindowRecord record = IsDialog(window) ? RecordOf(window) : nullptr;
  if (record == nullptr || control == nullptr) return nullptr;
  for (int row = 1; row < kDialogRows; ++row) {
    if (record[row].handle == control) return &record[row];
  }
  return nullptr;
}

}  // namespace brelt

using namespace brelt;

BOOL __stdcall Enum_GetOurWindowHandle(HWND window, LPARAM context) {
  auto* search = reinterpret_cast<NameSearch*>(context);
  if (search == nullptr) return FALSE;
  const WindowRow* record = RecordOf(window);
  if (record == nullptr || !rc::EqualIgnoreCase(record->name.view(), search->name.view())) return TRUE;
  search->found = window;
  return FALSE;
}
