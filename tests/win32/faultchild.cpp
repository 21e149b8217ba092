// Raises the fault whose code is its first argument and ends with the exception's code, or with 99 when the
// call comes back. Its second argument is an event that it signals before the call.
#include <brelt.h>

#include <cstdlib>

namespace {

constexpr UINT kReturned = 99;

// Reached only by a fault that nothing else has caught. A write to address 0 is told apart from other
// accesses.
LONG WINAPI EndWithCode(EXCEPTION_POINTERS* pointers) {
  const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
  DWORD code = record.ExceptionCode;
  if (code == EXCEPTION_ACCESS_VIOLATION &&
      (record.ExceptionInformation[0] != 1 || record.ExceptionInformation[1] != 0)) {
    code = 0;
  }
  TerminateProcess(GetCurrentProcess(), code);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) return 1;
  SetUnhandledExceptionFilter(EndWithCode);
  SetEvent(OpenEventA(EVENT_MODIFY_STATE, FALSE, arguments[2]));
  RaiseGuiRtx(std::atoi(arguments[1]));
  return kReturned;
}
