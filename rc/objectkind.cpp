#include "rc/objectkind.h"

namespace brelt::rc {
namespace {

// Which of the sixteen values of the low style bits a row covers, as one bit each.
template <typename... Types>
constexpr std::uint16_t OneOf(Types... types) noexcept {
  return static_cast<std::uint16_t>(((1u << types) | ...));
}
constexpr std::uint16_t kAnyType = 0xFFFF;

struct KindRow {
  std::string_view className;
  std::uint16_t types;
  std::string_view kind;
};

constexpr KindRow kKinds[] = {
    {"BUTTON", OneOf(2, 3, 5, 6), "Checkbox"},
    {"COMBOBOX", kAnyType, "Combobox"},
    {"EDIT", kAnyType, "Edit"},
    {"BUTTON", OneOf(7), "Groupbox"},
    {"STATIC", OneOf(3), "Icon"},
    {"STATIC", OneOf(0, 1, 2, 4, 5, 6, 7, 8, 9, 11, 12), "Label"},
    {"LISTBOX", kAnyType, "Listbox"},
    {"BUTTON", OneOf(0, 1, 11), "Pushbutton"},
    {"BUTTON", OneOf(4, 9), "Radiobutton"},
    {"SCROLLBAR", kAnyType, "Scrollbar"},
};

std::string_view KindOf(std::string_view className, std::uint32_t style) noexcept {
  for (const KindRow& row : kKinds) {
    if ((row.types >> (style & 0xF) & 1) != 0 && EqualIgnoreCase(className, row.className)) return row.kind;
  }
  return className.substr(0, className.find('.'));
}

}  // namespace

bool ObjectKind(std::string_view className, std::uint32_t style, TextBuffer out) noexcept {
  out.Assign(KindOf(className, style));
  if (IsEmpty(out.c_str())) return false;
  char* kind = out.data();
  *kind = ToUpper(*kind);
  for (++kind; *kind != '\0'; ++kind) *kind = ToLower(*kind);
  return true;
}

}  // namespace brelt::rc
