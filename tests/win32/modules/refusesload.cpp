// A module that can't be loaded: it is there, but it refuses.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, LPVOID) { return FALSE; }
