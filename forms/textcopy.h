// Copies of a program's texts in the form that a control takes, and the limit that a form sets for one.
#pragma once

#include <windows.h>

#include <cstdint>

#include "rc/host.h"

namespace brelt {

// A copy in which each line feed that no carriage return precedes has one; a lone carriage return stays. A
// null text gives an empty copy; without memory the result is empty as a block.
host::Block<char> TextToCrLf(const char* text) noexcept;

// A plain copy; without memory the result is empty as a block.
host::Block<char> CopyText(const char* text) noexcept;

// The text limit that a program has set for a control of a form; 0 for none.
std::int32_t TextLimitOf(HWND control) noexcept;

// Cuts a text to a limit; 0 is none.
void CutToLimit(char* text, std::int32_t limit) noexcept;

}  // namespace brelt
