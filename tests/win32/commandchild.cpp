// A program with one hidden form, Child, of the RC file that is its first argument. It signals the event of
// its second argument when the form is there, and writes each text that it is sent as a line of id, blank and
// bytes in hexadecimal to the file of its third. The id 999 ends it; its exit code is the number of texts.
#include <brelt.h>

#include <cstdio>

namespace {

constexpr uint32_t kEnd = 999;
const char* logPath = nullptr;
int texts = 0;

void LogText(uint32_t id, const char* text) {
  std::FILE* log = std::fopen(logPath, "a");
  if (log == nullptr) return;
  std::fprintf(log, "%u ", static_cast<unsigned>(id));
  for (; *text != '\0'; ++text) std::fprintf(log, "%02X", static_cast<unsigned char>(*text));
  std::fprintf(log, "\n");
  std::fclose(log);
}

int32_t __stdcall OnEvent(HWND, uint32_t event, uint32_t wParam, int32_t lParam) {
  if (event != EV_CLICK) return 0;
  ++texts;
  LogText(wParam, reinterpret_cast<const char*>(lParam));
  if (wParam == kEnd) Unload("Child");
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 4) return -1;
  logPath = arguments[3];
  HWND window = nullptr;
  if (Load(GetModuleHandleA(nullptr), "Child", arguments[1], OnEvent, &window, nullptr, nullptr, 0) != RTX_OK)
    return -2;
  SetEvent(OpenEventA(EVENT_MODIFY_STATE, FALSE, arguments[2]));
  MainLoop(GetModuleHandleA(nullptr), nullptr, nullptr, nullptr);
  return texts;
}
