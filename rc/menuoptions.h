// What the two readers of a MENU share: the option words and the way a failure is reported.
#pragma once

#include "rc/failure.h"
#include "rc/scan.h"

namespace brelt::rc {

// The bits of a menu element's style, each the value of the Windows menu flag of that meaning.
inline constexpr std::uint32_t kMenuGrayed = 1;
inline constexpr std::uint32_t kMenuInactive = 2;
inline constexpr std::uint32_t kMenuChecked = 8;
inline constexpr std::uint32_t kMenuPopup = 16;
inline constexpr std::uint32_t kMenuBarBreak = 32;
inline constexpr std::uint32_t kMenuBreak = 64;
inline constexpr std::uint32_t kMenuSeparator = 2048;

inline constexpr const char* kMenuNoMemory = "Not enough memory to create menu";
inline constexpr const char* kMenuStringExpected = "Menu option string expected";
inline constexpr const char* kMenuCommaExpected = "Comma expected";

// {"," option}: the bits of the options. The comma must be there. Reads nothing once a failure is set, and
// stops at a word that is no option, with "Unknown menu option: " and the word.
std::uint32_t ReadMenuOptions(const char* text, std::int32_t& position, Failure& failure) noexcept;

}  // namespace brelt::rc
