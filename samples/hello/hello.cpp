// A form that stands in hello.rc: prints the events it hears and ends when a button closes it.
#include <brelt.h>
#include <stdio.h>

static int32_t __stdcall OnEvent(HWND, uint32_t event, uint32_t wParam, int32_t lParam) {
  printf("event %u, wParam %u, lParam %d\n", unsigned(event), unsigned(wParam), int(lParam));
  if (event == EV_CLICK && (wParam == IDOK || wParam == IDCANCEL || wParam == 202)) Unload("Hello");
  return 0;
}

int main() {
  setvbuf(stdout, nullptr, _IONBF, 0);
  HWND window = nullptr;
  char message[256];
  const int32_t code = Load(GetModuleHandleA(nullptr), "Hello", "hello.rc", OnEvent, &window, nullptr,
                            message, sizeof message);
  if (code != RTX_OK) return printf("%d: %s\n", int(code), message), 1;
  return MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr);
}
