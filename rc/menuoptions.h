// What the two readers of a MENU share: the option words and the way a failure is reported.
#pragma once

#include "include/events.h"
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

// The first failure of a reader: its text, and the code that goes with it.
struct MenuFault {
  FixedText<1023> message;
  std::int32_t code = RTX_OK;

  explicit operator bool() const noexcept { return !message.IsEmpty(); }
  void Set(std::int32_t failureCode, std::string_view text, std::string_view word = {}) noexcept {
    code = failureCode;
    message.Assign(text);
    message.Append(word);
  }
};

// {"," option}: the bits of the options. The comma must be there. Reads nothing once a failure is set, and
// stops at a word that is no option, with "Unknown menu option: " and the word.
std::uint32_t ReadMenuOptions(const char* text, std::int32_t& position, MenuFault& fault) noexcept;

}  // namespace brelt::rc
