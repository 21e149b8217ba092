// Holds the file of its first argument open for reading, as an editor may do. It signals the event of its
// second argument when it has the file, and ends when that of its third is signalled.
#include <windows.h>

int main(int count, char** arguments) {
  constexpr DWORD kPatience = 20000;
  if (count < 4) return 1;
  const HANDLE file =
      CreateFileA(arguments[1], GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 2;
  SetEvent(OpenEventA(EVENT_MODIFY_STATE, FALSE, arguments[2]));
  const DWORD waited = WaitForSingleObject(OpenEventA(SYNCHRONIZE, FALSE, arguments[3]), kPatience);
  CloseHandle(file);
  return waited == WAIT_OBJECT_0 ? 0 : 3;
}
