// Reads the text of a DIALOG resource into records.
#pragma once

#include "rc/record.h"

namespace brelt::rc {

// Fills element 0 with the window and elements 1 to 255 with its controls in file order; an empty name ends
// them. All records are cleared first, and again on failure, so that no half-read dialog can be used. The
// message is empty on success; the first failure stands and ends the parse. It should have room for 1024
// bytes.
bool ParseDialog(const char* text, RecordTable& records, TextBuffer message) noexcept;

}  // namespace brelt::rc
