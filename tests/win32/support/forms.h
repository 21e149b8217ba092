// Forms for tests: RC text written to a file and loaded through the DLL.
#pragma once

#include <brelt.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/win32/support/events.h"

namespace brelt::test {

// Files in the test's own folder on drive C.
std::string TestFolder();                                                      // with a separator at its end
std::string WriteTestFile(const std::string& name, const std::string& bytes);  // gives the full path
std::string ReadTestFile(const std::string& path);
// The folder of the running program, with a separator at its end.
std::string ProgramFolder();

struct LoadResult {
  int32_t code;
  std::string message;
  HWND window;
};
// Loads a DIALOG of an RC text, which is written to <name>.rc.
LoadResult LoadText(const std::string& name, const std::string& rcText, EventFunction function = RecordEvent);
// A DIALOG with this body (statements and BEGIN ... END) under a name.
LoadResult LoadDialog(const std::string& name, const std::string& controls,
                      const std::string& statements = "STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU\n");

// Loads and shows a DIALOG, handles what that brings, and clears the event log.
HWND LoadShown(const std::string& name, const std::string& controls,
               const std::string& statements = "STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU\n");
// Shows a loaded window as a program does.
int32_t ShowForm(const std::string& name, bool modal = false, int32_t* result = nullptr);

// The text of a window, cut at 2,047 characters.
std::string TextOf(HWND window);

// Handles waiting messages as MainLoop does not: just dispatches.
void Pump();
bool IsPumping();
// Pumps until a condition holds; false when it doesn't within the time.
bool PumpUntil(const std::function<bool()>& condition, DWORD milliseconds = 5000);

// The top-level windows of this thread that are of the library's classes.
std::vector<HWND> LibraryWindows();
void DestroyLibraryWindows();

// Empties the event log before each test, and destroys all windows after it.
class FormTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
};

}  // namespace brelt::test
