// The library's global state: one program, one thread that owns the windows, and so no lock.
#pragma once

#include <windows.h>

#include <cstdint>

namespace brelt {

struct WindowRow;

struct LibraryState {
  HINSTANCE ModuleInstance = nullptr;  // registers the classes
  std::int32_t TraceMode = 0;
  std::int32_t OptionBase = 1;       // index of the first element of every list and array, 0 or 1
  std::int32_t UserBreak = 0;        // set by the break key; clearing it is the program's duty
  std::int32_t LastButtonId = 0;     // the push button pressed last in a modal show
  HWND DebugWindowHandle = nullptr;  // while it is visible and enabled a program gets no timer events
  int CallOutDepth = 0;              // calls of the library into other people's code that haven't come back
  WindowRow* DepartedRecords = nullptr;  // of windows that went meanwhile; see ReleaseDepartedModules
};
// Constant-initialised: a constructor would run under the loader's lock.
inline constinit LibraryState Library;

// Stands around a call into a program or a control module. Windows may go in it whose modules' code is still
// on the stack.
class CallOut {
 public:
  CallOut() noexcept { ++Library.CallOutDepth; }
  CallOut(const CallOut&) = delete;
  CallOut& operator=(const CallOut&) = delete;
  ~CallOut() { --Library.CallOutDepth; }
};

// Version and release, apart and as they stand at the end of each class and module name.
#define BRELT_VERSION "1.3"
#define BRELT_RELEASE "2207"
#define BRELT_SUFFIX "." BRELT_VERSION "." BRELT_RELEASE

inline constexpr const char* kDialogClass = "Dialog" BRELT_SUFFIX;
inline constexpr const char* kEditwindowClass = "Editwindow" BRELT_SUFFIX;
inline constexpr const char* kRicheditwindowClass = "Richeditwindow" BRELT_SUFFIX;
inline constexpr const char* kDebugClass = "DEBUG" BRELT_SUFFIX;
inline constexpr const char* kTooltipsClass = "TOOLTIPS" BRELT_SUFFIX;
inline constexpr const char* kPrinterClass = "PRINTER" BRELT_SUFFIX;
inline constexpr const char* kCancelDlgClass = "CANCELDLG" BRELT_SUFFIX;
inline constexpr const char* kMsgBoxClass = "MSGBOX" BRELT_SUFFIX;
inline constexpr const char* kInputBoxClass = "INPUTBOX" BRELT_SUFFIX;
inline constexpr const char* kListBoxClass = "LISTBOX" BRELT_SUFFIX;

// Longest class name that the library looks at.
inline constexpr int kClassNameLength = 32;

}  // namespace brelt
