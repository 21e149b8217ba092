#include <array>
#include <charconv>

#include "resprops/colourprops.h"
#include "resprops/lookprops.h"
#include "resprops/property.h"
#include "resprops/stateprops.h"
#include "resprops/textprops.h"
#include "resprops/windowprops.h"

namespace brelt::resprops {
namespace {

constexpr std::array kProperties = {
    kAlignment,   kBackColour, kBorderStyle, kButtonStyle,       kCaption,
    kChecked,     kCloseBox,   kComboStyle,  kDefault,           kEnabled,
    kFlags,       kFontName,   kFontSize,    kForeColour,        kGroup,
    kMaxButton,   kMenu,       kMinButton,   kMultiline,         kName,
    kOwner,       kPicture,    kPosition,    kReadOnly,          kScrollbars,
    kShapeKind,   kSorted,     kTabStop,     kTransparentColour, kTypeof,
    kUseTabStops, kVisible,
};

consteval bool StandsForTheSchema() {
  std::size_t next = 0;
  std::string_view key;
  for (const Descriptor& descriptor : schema::kDescriptors) {
    if (descriptor.Key() == key) continue;
    key = descriptor.Key();
    if (next == kProperties.size() || kProperties[next++].key != key) return false;
  }
  return next == kProperties.size();
}
static_assert(StandsForTheSchema(), "a property for each key of the schema, in its order");

struct ClassRow {
  constexpr ClassRow(std::string_view name, ControlClass which) noexcept : key(name), controlClass(which) {}

  rc::FoldedName key;
  ControlClass controlClass;
};

constexpr std::array<ClassRow, 14> kClasses = {{
    {"BITMAPBUTTON", ControlClass::kBitmapbutton},
    {"BUTTON", ControlClass::kButton},
    {"COMBOBOX", ControlClass::kCombobox},
    {"DIALOG", ControlClass::kDialog},
    {"EDIT", ControlClass::kEdit},
    {"EDITWINDOW", ControlClass::kEditwindow},
    {"ICONLIST", ControlClass::kIconlist},
    {"IMAGE", ControlClass::kImage},
    {"LISTBOX", ControlClass::kListbox},
    {"PROGRESSBAR", ControlClass::kProgressbar},
    {"RICHEDITWINDOW", ControlClass::kRicheditwindow},
    {"SCROLLBAR", ControlClass::kScrollbar},
    {"SHAPE", ControlClass::kShape},
    {"STATIC", ControlClass::kStatic},
}};
static_assert(rc::IsStrictlySorted(kClasses));

bool IsMenuKeyword(std::string_view keyword) noexcept {
  for (const std::string_view word : {"MENU", "POPUP", "MENUITEM"}) {
    if (rc::EqualIgnoreCase(keyword, word)) return true;
  }
  return false;
}

}  // namespace

std::span<const Property> Properties() noexcept { return kProperties; }

const Property* FindProperty(std::string_view key) noexcept {
  std::size_t low = 0;
  std::size_t high = kProperties.size();
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    const int order = kProperties[middle].key.compare(key);
    if (order == 0) return &kProperties[middle];
    (order < 0 ? low : high) = order < 0 ? middle + 1 : middle;
  }
  return nullptr;
}

ControlClass FindControlClass(std::string_view className) noexcept {
  if (className.empty()) return ControlClass::kDialog;
  const ClassRow* row = rc::FindByName(kClasses, className);
  return row != nullptr ? row->controlClass : ControlClass::kOther;
}

ObjectView::ObjectView(const rc::ResourceRecord& parsed, int index, bool inDialog,
                       ReadingRun& reading) noexcept
    : record(parsed),
      run(reading),
      controlClass(FindControlClass(parsed.className.view())),
      isFirst(index == 0),
      isWindow(inDialog && index == 0),
      isMenuRow(IsMenuKeyword(parsed.keyword.view())) {}

void AppendNumber(rc::TextWriter& value, std::int32_t number) noexcept {
  char digits[12];
  const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, number);
  value.Append({digits, static_cast<std::size_t>(result.ptr - digits)});
}

void IconFiles::Find(const char* iconName, host::Path& file) noexcept {
  if (!directory_) directory_.emplace(rcFile_);
  if (!directory_->IsComplete()) {
    rc::ResourceIconFile(rcFile_, iconName, file);
    return;
  }
  rc::FixedText<rc::kShortTextSize - 1> text;
  file.Clear();
  if (!rc::IsEmpty(iconName) && directory_->Locate(iconName, "ICON", text) > 0)
    rc::IconFileOf(text.c_str(), file);
}

std::string_view PropertyLine::Text() const noexcept {
  std::string_view text = value.view();
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return text;
  text.remove_prefix(1);
  text.remove_suffix(1);
  return text;
}

std::int32_t ParseInteger(const char* text) noexcept {
  if (!rc::HasHexPrefix(text)) return rc::DecimalValue(text);
  std::uint32_t value = 0;
  for (const char* digit = text + 2; rc::IsHexDigit(*digit); ++digit) {
    value = value << 4 | static_cast<std::uint32_t>(rc::HexDigitValue(*digit));
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace brelt::resprops
