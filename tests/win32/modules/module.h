// What the custom control modules of the tests have in common: a module registers one class when it is
// loaded, under the name of its own file, and takes it back when it goes.
#pragma once

#include <windows.h>

namespace brelt::module {

// Each module's own part: fills in the procedure, and for a class that builds on another what it takes from
// that. False registers nothing.
bool DescribeClass(WNDCLASSEXA& info) noexcept;

// Takes over all of a platform's class but its name, and gives room for one pointer behind its extra bytes.
bool BuildOn(const char* className, WNDCLASSEXA& info) noexcept;
// Where that pointer stands.
int PointerIndex() noexcept;
// The procedure of the class that this one builds on; DefWindowProcA when there is none.
LRESULT CallBase(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

}  // namespace brelt::module
