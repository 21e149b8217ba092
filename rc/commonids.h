// The identifiers that need no #define.
#pragma once

#include <cstdint>

namespace brelt::rc {

// 1 to 9 for IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO, IDCLOSE and IDHELP, ignoring case; 0
// for any other word and for null.
std::int32_t CommonIdValue(const char* name) noexcept;

}  // namespace brelt::rc
