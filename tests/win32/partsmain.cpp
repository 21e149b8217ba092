// The parts are linked into this program, which is then what a DLL's module would be to them.
#include <gtest/gtest.h>
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);

int main(int count, char** arguments) {
  ::testing::InitGoogleTest(&count, arguments);
  if (!DllMain(GetModuleHandleA(nullptr), DLL_PROCESS_ATTACH, nullptr)) return 1;
  return RUN_ALL_TESTS();
}
