// The kinds of objects that programs and form designers know, by class and style.
#pragma once

#include <cstdint>

#include "rc/text.h"

namespace brelt::rc {

// Stores the kind of a control, such as "Checkbox": that of a standard class by its type bits, otherwise the
// class name up to its first point; in lower case but for the first letter. False when it is empty.
bool ObjectKind(std::string_view className, std::uint32_t style, TextBuffer out) noexcept;

}  // namespace brelt::rc
