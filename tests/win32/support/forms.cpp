#include "tests/win32/support/forms.h"

#include <fstream>
#include <sstream>

namespace brelt::test {

std::string TestFolder() { return "C:\\work\\"; }

std::string WriteTestFile(const std::string& name, const std::string& bytes) {
  const std::string path = TestFolder() + name;
  std::ofstream(path, std::ios::binary) << bytes;
  return path;
}

std::string ReadTestFile(const std::string& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

std::string ProgramFolder() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, MAX_PATH);
  const std::string whole = path;
  return whole.substr(0, whole.find_last_of("\\/") + 1);
}

LoadResult LoadText(const std::string& name, const std::string& rcText, EventFunction function) {
  const std::string path = WriteTestFile(name + ".rc", rcText);
  LoadResult result{0, "", nullptr};
  char message[1024] = "unset";
  result.code = Load(GetModuleHandleA(nullptr), name.c_str(), path.c_str(), function, &result.window, nullptr,
                     message, sizeof message);
  result.message = message;
  return result;
}

LoadResult LoadDialog(const std::string& name, const std::string& controls, const std::string& statements) {
  return LoadText(name, name + " DIALOG 10, 10, 200, 150\n" + statements + "BEGIN\n" + controls + "\nEND\n");
}

int32_t ShowForm(const std::string& name, bool modal, int32_t* result) {
  return Show(GetModuleHandleA(nullptr), name.c_str(), "unused.rc", RecordEvent, nullptr, modal ? 1 : 0,
              result);
}

HWND LoadShown(const std::string& name, const std::string& controls, const std::string& statements) {
  const LoadResult form = LoadDialog(name, controls, statements);
  EXPECT_EQ(form.code, RTX_OK) << form.message;
  EXPECT_EQ(ShowForm(name), RTX_OK);
  Pump();
  Log().Clear();
  return form.window;
}

std::string TextOf(HWND window) {
  char text[2048] = "";
  GetWindowTextA(window, text, sizeof text);
  return text;
}

namespace {

int pumps = 0;

}  // namespace

bool IsPumping() { return pumps > 0; }

void Pump() {
  ++pumps;
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  --pumps;
}

bool PumpUntil(const std::function<bool()>& condition, DWORD milliseconds) {
  const DWORD start = GetTickCount();
  for (;;) {
    Pump();
    if (condition()) return true;
    if (GetTickCount() - start > milliseconds) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
}

namespace {

BOOL CALLBACK CollectWindow(HWND window, LPARAM context) {
  if (GetClassLongA(window, GCL_CBWNDEXTRA) == 40)
    reinterpret_cast<std::vector<HWND>*>(context)->push_back(window);
  return TRUE;
}

}  // namespace

std::vector<HWND> LibraryWindows() {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), CollectWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

void DestroyLibraryWindows() {
  for (HWND window : LibraryWindows()) DestroyWindow(window);
}

void FormTest::SetUp() {
  DestroyLibraryWindows();
  Pump();
  Log() = EventLog();
}

void FormTest::TearDown() {
  Log().onEvent = nullptr;
  DestroyLibraryWindows();
  Pump();
}

}  // namespace brelt::test
