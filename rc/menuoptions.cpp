#include "rc/menuoptions.h"

namespace brelt::rc {
namespace {

struct Option {
  std::string_view word;
  std::uint32_t bit;
};
constexpr Option kOptions[] = {
    {"GRAYED", kMenuGrayed},         {"INACTIVE", kMenuInactive}, {"CHECKED", kMenuChecked},
    {"MENUBARBREAK", kMenuBarBreak}, {"MENUBREAK", kMenuBreak},
};

// 0 for a word that is no option.
std::uint32_t OptionBit(std::string_view word) noexcept {
  for (const Option& option : kOptions) {
    if (EqualIgnoreCase(word, option.word)) return option.bit;
  }
  return 0;
}

}  // namespace

std::uint32_t ReadMenuOptions(const char* text, std::int32_t& position, Failure& failure) noexcept {
  std::uint32_t options = 0;
  Token token;
  while (!failure && text[position] == ',') {
    ScanToken(text, position, token);
    ScanToken(text, position, token);
    const std::uint32_t bit = OptionBit(token.view());
    if (bit == 0) failure.Set(RTX_MENU_SYNTAX, "Unknown menu option: ", token.view());
    options |= bit;
  }
  return options;
}

}  // namespace brelt::rc
