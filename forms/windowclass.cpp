#include "forms/windowclass.h"

#include "frame/library.h"
#include "frame/winobject.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr UINT kClassStyle = CS_GLOBALCLASS | CS_DBLCLKS;

constexpr WindowKind kKinds[] = {
    {"Dialog", kDialogClass, Dialog_proc, kClassStyle, false},
    {"Editwindow", kEditwindowClass, Editwindow_proc, kClassStyle | CS_HREDRAW | CS_VREDRAW, true},
    {"Richeditwindow", kRicheditwindowClass, Richeditwindow_proc, kClassStyle | CS_HREDRAW | CS_VREDRAW,
     true},
};

const WindowKind* FindKind(std::string_view word) noexcept {
  for (const WindowKind& kind : kKinds) {
    if (rc::EqualIgnoreCase(word, kind.word)) return &kind;
  }
  return nullptr;
}

bool FindClass(HINSTANCE instance, const char* className, WNDCLASSEXA& info) noexcept {
  info = {};
  info.cbSize = sizeof info;
  return GetClassInfoExA(instance, className, &info) != FALSE;
}

}  // namespace

const WindowKind& KindOfClass(std::string_view word) noexcept {
  const WindowKind* kind = FindKind(word);
  return kind != nullptr ? *kind : kKinds[0];
}

bool IsLoadableClass(std::string_view word) noexcept { return word.empty() || FindKind(word) != nullptr; }

void RegisterWindowClass(const char* className) noexcept {
  for (const WindowKind& kind : kKinds) {
    if (!rc::EqualIgnoreCase(kind.className, className)) continue;
    WNDCLASSEXA info = {};
    info.cbSize = sizeof info;
    info.style = kind.classStyle;
    info.lpfnWndProc = kind.procedure;
    info.cbWndExtra = kSlotBytes;
    info.hInstance = Library.ModuleInstance;
    info.hIcon = LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION));
    info.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    info.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    info.lpszClassName = kind.className;
    RegisterClassExA(&info);
  }
}

bool HasUsableClass(const WindowKind& kind, HINSTANCE instance) noexcept {
  WNDCLASSEXA info;
  if (!FindClass(instance, kind.className, info)) RegisterWindowClass(kind.className);
  return FindClass(Library.ModuleInstance, kind.className, info) &&
         info.hInstance == Library.ModuleInstance && info.lpfnWndProc == kind.procedure &&
         (info.style & CS_GLOBALCLASS) != 0;
}

}  // namespace brelt
