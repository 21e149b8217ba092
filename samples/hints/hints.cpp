// Buttons with hints. The library asks each control of the family "Bitmapbutton." for its hint; here that is
// a class of the program's own, a push button that also answers CM_GETHINT.
#include <brelt.h>
#include <stdio.h>

namespace {

struct Button {
  int id;
  const char* caption;
  const char* hint;
};
constexpr Button kButtons[] = {{101, "New", "Adds an empty note"},
                               {102, "Open", "Reads notes from a file,\nafter asking for its name"},
                               {103, "Save", "Writes all notes to their file"}};
constexpr const char* kClass = "Bitmapbutton.hints";
WNDPROC pushButton = nullptr;

LRESULT CALLBACK OnButton(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != CM_GETHINT) return CallWindowProcA(pushButton, window, message, wParam, lParam);
  for (const Button& button : kButtons) {
    if (button.id != GetDlgCtrlID(window)) continue;
    lstrcpynA(reinterpret_cast<char*>(lParam), button.hint, static_cast<int>(wParam));
    return lstrlenA(button.hint);
  }
  return 0;
}

void RegisterButtons(HINSTANCE instance) {
  WNDCLASSA info = {};
  GetClassInfoA(nullptr, "BUTTON", &info);
  pushButton = info.lpfnWndProc;
  info.lpfnWndProc = OnButton;
  info.hInstance = instance;
  info.lpszClassName = kClass;
  RegisterClassA(&info);
}

void MakeButtons(HWND form) {
  int x = 10;
  for (const Button& button : kButtons) {
    HWND made = CreateWindowExA(0, kClass, button.caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP, x, 8, 56, 26,
                                form, reinterpret_cast<HMENU>(button.id), GetModuleHandleA(nullptr), nullptr);
    SendMessageA(made, WM_SETFONT, static_cast<WPARAM>(SendMessageA(form, WM_GETFONT, 0, 0)), FALSE);
    x += 62;
  }
}

int32_t __stdcall OnEvent(HWND form, uint32_t event, uint32_t wParam, int32_t lParam) {
  printf("event %u, wParam %u, lParam %d\n", unsigned(event), unsigned(wParam), int(lParam));
  if (event == EV_LOAD) MakeButtons(form);
  return 0;
}

}  // namespace

int main() {
  setvbuf(stdout, nullptr, _IONBF, 0);
  HINSTANCE instance = GetModuleHandleA(nullptr);
  RegisterButtons(instance);
  HWND form = nullptr;
  char message[256];
  const int32_t code = Load(instance, "Hints", "hints.rc", OnEvent, &form, nullptr, message, sizeof message);
  if (code != RTX_OK) return printf("%d: %s\n", int(code), message), 1;
  return MainLoop(instance, form, nullptr, nullptr);
}
