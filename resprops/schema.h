// Which properties an object of a type has and how each is to be edited: the contract with form designers,
// and the filter for what is read and written. A descriptor is KEY=TYPE, where TYPE is for the designer
// alone; the library never looks at it.
#pragma once

#include "rc/text.h"
#include "resprops/objecttype.h"

namespace brelt::resprops {

// A set of types, as bits.
using TypeSet = std::uint32_t;

template <typename... Types>
constexpr TypeSet Of(Types... types) noexcept {
  return ((TypeSet{1} << static_cast<unsigned>(types)) | ...);
}

constexpr bool Holds(TypeSet set, ObjectType type) noexcept {
  return type != ObjectType::kNone && (set & Of(type)) != 0;
}

struct Descriptor {
  std::string_view text;  // what stands in the schema, without its line feed
  TypeSet types;

  constexpr std::string_view Key() const noexcept { return text.substr(0, text.find('=')); }
};

namespace schema {

using enum ObjectType;

inline constexpr TypeSet kWindows = Of(kDialog, kEditwindow, kRicheditwindow);
inline constexpr TypeSet kEveryType = Of(kNone) - 1;

// The place of the palette's colours in a descriptor.
inline constexpr std::string_view kPaletteMark = "%";

// Sorted by key. The variants of a key differ on purpose, also where only the order of the alternatives does.
inline constexpr Descriptor kDescriptors[] = {
    {"ALIGNMENT=INTEGER(0-LeftText,1-CentreText,2-RightText)", Of(kEdit)},
    {"ALIGNMENT=INTEGER(0-LeftText,1-CentreText,2-RightText,3-LeftNoWrap)", Of(kLabel)},
    {"ALIGNMENT=INTEGER(0-None,1-Centre)", kWindows},
    {"ALIGNMENT=INTEGER(2-RightText,0-LeftText)", Of(kCheckbox, kRadiobutton)},
    {"ALIGNMENT=INTEGER(4-\"Left to right\",5-\"Up and down\")", Of(kProgressbar, kScrollbar)},
    {"BACKCOLOUR=COLOUR(0:15)", Of(kProgressbar, kShape)},
    {"BORDERSTYLE=INTEGER(0-None,1-\"Fixed single\",2-Resizable,3-\"Fixed double\")", kWindows},
    {"BORDERSTYLE=INTEGER(0-\"No border\",1-Border)", Of(kImage, kLabel)},
    {"BORDERSTYLE=INTEGER(1-Border,0-\"No border\")", Of(kEdit, kIconlist, kListbox, kProgressbar)},
    {"BORDERSTYLE=INTEGER(1-\"Thin solid\",2-Dashed,3-Dotted,0-\"No border\")", Of(kShape)},
    {"BUTTONSTYLE=INTEGER(0-PushStyle,1-CheckStyle,2-RadioStyle)", Of(kBitmapbutton)},
    {"CAPTION=STRING(255)",
     kWindows | Of(kCheckbox, kGroupbox, kIconlist, kLabel, kMenuitem, kPushbutton, kRadiobutton)},
    {"CHECKED=INTEGER(0-No,1-Yes)", Of(kMenuitem)},
    {"CLOSEBOX=INTEGER(1-Yes,0-No)", kWindows},
    {"COMBOSTYLE=INTEGER(0-\"Drop down combo\",1-\"Simple combo\",2-\"Drop down list\")", Of(kCombobox)},
    {"DEFAULT=INTEGER(0-No,1-Yes)", Of(kPushbutton)},
    {"ENABLED=INTEGER(1-Yes,0-No)", Of(kBitmapbutton, kCheckbox, kCombobox, kEdit, kIconlist, kListbox,
                                       kMenuitem, kPushbutton, kRadiobutton, kScrollbar)},
    {"FLAGS=HIDDEN", Of(kDialog)},
    {"FLAGS=INTEGER{16-Overwrite,32-Autoindent,64-Hilite,128-Readonly,256-SelectAll,512-StatusBar,1024-"
     "Tabshift,"
     "4096-NumberBar}",
     Of(kEditwindow, kRicheditwindow)},
    {"FONTNAME=STRING(32)", kWindows},
    {"FONTSIZE=INTEGER(6:48)", kWindows},
    {"FORECOLOUR=COLOUR(0:15)", Of(kProgressbar, kShape)},
    {"GROUP=INTEGER(0-No,1-Yes)", Of(kBitmapbutton, kCheckbox, kPushbutton, kRadiobutton)},
    {"GROUP=INTEGER(1-Yes,0-No)", Of(kGroupbox, kLabel)},
    {"MAXBUTTON=INTEGER(1-Yes,0-No)", kWindows},
    {"MENU=CONST", kWindows},
    {"MINBUTTON=INTEGER(1-Yes,0-No)", kWindows},
    {"MULTILINE=INTEGER(0-No,1-Yes)", Of(kEdit)},
    {"NAME=NAME(1:40)", kEveryType},
    {"OWNER=INTEGER(0-No,1-Yes)", kWindows},
    {"PICTURE=FILENAME(bmp)", Of(kImage)},
    {"PICTURE=FILENAME(bmp,ico)", Of(kBitmapbutton)},
    {"PICTURE=FILENAME(ico)", Of(kIcon)},
    {"POSITION=INTEGER(0:9)", Of(kMenuitem)},
    {"POSITION=INTEGER[1:4]", kEveryType & ~Of(kMenuitem)},
    {"READONLY=INTEGER(0-No,1-Yes)", Of(kEdit)},
    {"SCROLLBARS=INTEGER(0-None,1-Horizontal,2-Vertical,3-Both)", Of(kEdit, kIconlist, kListbox)},
    {"SHAPE=INTEGER(0-Rectangle,1-Square,2-Ellipse,3-Circle,4-\"Rounded rectangle\")", Of(kShape)},
    {"SORTED=INTEGER(0-No,1-Yes)", Of(kCombobox, kIconlist, kListbox)},
    {"TABSTOP=INTEGER(1-Yes,0-No)",
     Of(kCheckbox, kCombobox, kEdit, kIconlist, kListbox, kPushbutton, kRadiobutton, kScrollbar)},
    {"TRANSPARENTCOLOUR=INTEGER(0xFFFFFFFF-None,%)", Of(kBitmapbutton)},
    {"TYPEOF=CONST", kEveryType},
    {"USETABSTOPS=INTEGER(0-No,1-Yes)", Of(kIconlist, kListbox)},
    {"VISIBLE=INTEGER(1-Yes,0-No)", kEveryType & ~(kWindows | Of(kMenuitem))},
};

consteval bool IsSortedAndUnambiguous() {
  TypeSet seen = 0;
  std::string_view key;
  for (const Descriptor& descriptor : kDescriptors) {
    if (descriptor.Key() < key) return false;
    if (descriptor.Key() != key) seen = 0;
    if ((seen & descriptor.types) != 0) return false;
    seen |= descriptor.types;
    key = descriptor.Key();
  }
  return true;
}
static_assert(IsSortedAndUnambiguous());

}  // namespace schema

// The types whose schema has a key; none for a word that is no key.
constexpr TypeSet TypesWithKey(std::string_view key) noexcept {
  TypeSet types = 0;
  for (const Descriptor& descriptor : schema::kDescriptors) {
    if (descriptor.Key() == key) types |= descriptor.types;
  }
  return types;
}

// The type whose schema a name selects: at most 40 characters of it count, without blanks at their ends,
// whatever the case. kNone for a name without a schema.
ObjectType SchemaTypeOf(std::string_view typeName) noexcept;

// The schema of a type: its descriptors, a line feed behind each, in the order of their keys. A buffer that
// is too small cuts it without a sign; the buffer is cleared whole first. The name is taken up to 40
// characters, without blanks at its ends and whatever its case; a name without a schema, and null, give an
// empty text.
void ResourceTypelist(const char* typeName, rc::TextBuffer buffer) noexcept;

}  // namespace brelt::resprops
