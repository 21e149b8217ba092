// Menus as a model in memory, in place of the platform's.
#pragma once

#include <string>

#include "rc/menuhost.h"

namespace brelt::test {

// The menu as lines: nesting by two blanks, then flags, id (-1 for a popup) and text with its escapes, as in
// "  0008 101 &Open\tCtrl+O".
std::string DumpMenu(const host::MenuHandle* menu);
// The n-th menu or entry to be made from now on (from 0) can't be had; -1 for none.
void FailMenu(int n);
int LiveMenus();

}  // namespace brelt::test
