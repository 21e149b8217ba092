#include "tests/win32/support/menus.h"

#include <vector>

namespace brelt::test {
namespace {

std::string TextAt(HMENU menu, UINT position) {
  const int length = GetMenuStringA(menu, position, nullptr, 0, MF_BYPOSITION);
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  GetMenuStringA(menu, position, text.data(), length + 1, MF_BYPOSITION);
  text.pop_back();
  return text;
}

}  // namespace

std::string MenuLines(HMENU menu, int depth) {
  std::string lines;
  const auto count = static_cast<UINT>(GetMenuItemCount(menu));
  for (UINT position = 0; position < count; ++position) {
    const UINT state = GetMenuState(menu, position, MF_BYPOSITION);
    HMENU below = GetSubMenu(menu, static_cast<int>(position));
    lines.append(static_cast<std::size_t>(depth) * 2, ' ');
    if (below != nullptr) {
      lines += "> " + TextAt(menu, position) + "\n" + MenuLines(below, depth + 1);
    } else {
      lines += std::to_string(GetMenuItemID(menu, static_cast<int>(position))) + " " +
               ((state & MF_SEPARATOR) != 0 ? "-" : TextAt(menu, position)) + "\n";
    }
  }
  return lines;
}

}  // namespace brelt::test
