#include "rc/commonids.h"

#include "rc/text.h"

namespace brelt::rc {

std::int32_t CommonIdValue(const char* name) noexcept {
  // In the order of their numbers, from 1.
  constexpr std::string_view kNames[] = {"IDOK",  "IDCANCEL", "IDABORT", "IDRETRY", "IDIGNORE",
                                         "IDYES", "IDNO",     "IDCLOSE", "IDHELP"};
  std::int32_t value = 0;
  for (const std::string_view known : kNames) {
    ++value;
    if (EqualIgnoreCase(View(name), known)) return value;
  }
  return 0;
}

}  // namespace brelt::rc
