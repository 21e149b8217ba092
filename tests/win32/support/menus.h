// Menus as text, for tests that compare what one holds.
#pragma once

#include <windows.h>

#include <string>

namespace brelt::test {

// A line for each item, popups with theirs behind them and two blanks deeper: "201 Open", "0 -" for a
// separator, "> Deep" for a popup.
std::string MenuLines(HMENU menu, int depth = 0);

}  // namespace brelt::test
