// Cards that the user moves and sizes with the mouse: a press on one of them starts the tracking, which goes
// on until a press elsewhere or a key.
#include <brelt.h>
#include <stdio.h>

namespace {

constexpr const char* kForm = "Table";

void TrackCard(int32_t id) {
  constexpr int32_t kUntilPressElsewhere = 0;
  constexpr int32_t kHandleSize = 7;
  constexpr int32_t kSmallest = 24;
  int32_t x, y, width, height;
  if (GetPosition(kForm, id, 0, &x, &y, &width, &height) != RTX_OK) return;
  TrackRect(kForm, kUntilPressElsewhere, kHandleSize, kSmallest, kSmallest, 2, 0, 0, 10000, 10000, &x, &y,
            &width, &height);
  SetPosition(kForm, id, 0, x, y, width, height);
}

int32_t __stdcall OnEvent(HWND, uint32_t event, uint32_t wParam, int32_t lParam) {
  printf("event %u, wParam %u, lParam %d\n", unsigned(event), unsigned(wParam), int(lParam));
  if (event == EV_MOUSEDOWN && wParam != 0) TrackCard(static_cast<int32_t>(wParam));
  return 0;
}

}  // namespace

int main() {
  setvbuf(stdout, nullptr, _IONBF, 0);
  HINSTANCE instance = GetModuleHandleA(nullptr);
  HWND form = nullptr;
  char message[256];
  const int32_t code =
      Load(instance, kForm, "trackrect.rc", OnEvent, &form, nullptr, message, sizeof message);
  if (code != RTX_OK) return printf("%d: %s\n", int(code), message), 1;
  return MainLoop(instance, form, nullptr, nullptr);
}
