// Reads the text of a MENU resource into records.
#pragma once

#include "rc/record.h"

namespace brelt::rc {

// Fills element 0 with the menu and elements 1 to 255 with its items and popups in the order of the text; an
// empty keyword ends them. BEGIN and END make no records: nesting is told by the level in x alone. An
// identifier stays a word. All records are cleared first, and again on failure. The message is empty on
// success; a failure has the line and column within the text at its end.
bool ParseMenu(const char* text, RecordTable& records, TextBuffer message) noexcept;

}  // namespace brelt::rc
