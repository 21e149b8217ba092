// The types of objects that have properties.
#pragma once

#include <cstdint>

#include "rc/foldedname.h"

namespace brelt::resprops {

enum class ObjectType : std::uint8_t {
  kBitmapbutton,
  kCheckbox,
  kCombobox,
  kDialog,
  kEdit,
  kEditwindow,
  kGroupbox,
  kIcon,
  kIconlist,
  kImage,
  kLabel,
  kListbox,
  kMenuitem,
  kProgressbar,
  kPushbutton,
  kRadiobutton,
  kRicheditwindow,
  kScrollbar,
  kShape,
  kNone,  // anything else
};

// What a type is in RC text.
struct ObjectTypeRow {
  constexpr ObjectTypeRow(ObjectType which, std::string_view typeName, std::string_view window,
                          std::string_view statement) noexcept
      : key(typeName), type(which), name(typeName), className(window), keyword(statement) {}

  rc::FoldedName key;
  ObjectType type;
  std::string_view name;
  std::string_view className;
  std::string_view keyword;  // empty where other properties decide it
};

inline constexpr std::array<ObjectTypeRow, 19> kObjectTypes = {{
    {ObjectType::kBitmapbutton, "Bitmapbutton", "BITMAPBUTTON", "CONTROL"},
    {ObjectType::kCheckbox, "Checkbox", "BUTTON", "CHECKBOX"},
    {ObjectType::kCombobox, "Combobox", "COMBOBOX", "COMBOBOX"},
    {ObjectType::kDialog, "Dialog", "", "DIALOG"},
    {ObjectType::kEdit, "Edit", "EDIT", "EDITTEXT"},
    {ObjectType::kEditwindow, "Editwindow", "EDITWINDOW", "DIALOG"},
    {ObjectType::kGroupbox, "Groupbox", "BUTTON", "GROUPBOX"},
    {ObjectType::kIcon, "Icon", "STATIC", "ICON"},
    {ObjectType::kIconlist, "Iconlist", "ICONLIST", "CONTROL"},
    {ObjectType::kImage, "Image", "IMAGE", "CONTROL"},
    {ObjectType::kLabel, "Label", "STATIC", ""},
    {ObjectType::kListbox, "Listbox", "LISTBOX", "LISTBOX"},
    {ObjectType::kMenuitem, "Menuitem", "MENUITEM", "MENUITEM"},
    {ObjectType::kProgressbar, "Progressbar", "PROGRESSBAR", "CONTROL"},
    {ObjectType::kPushbutton, "Pushbutton", "BUTTON", ""},
    {ObjectType::kRadiobutton, "Radiobutton", "BUTTON", "RADIOBUTTON"},
    {ObjectType::kRicheditwindow, "Richeditwindow", "RICHEDITWINDOW", "DIALOG"},
    {ObjectType::kScrollbar, "Scrollbar", "SCROLLBAR", "SCROLLBAR"},
    {ObjectType::kShape, "Shape", "SHAPE", "CONTROL"},
}};
static_assert(rc::IsStrictlySorted(kObjectTypes));

consteval bool RowsStandInTheOrderOfTheirTypes() {
  for (std::size_t i = 0; i < kObjectTypes.size(); ++i) {
    if (static_cast<std::size_t>(kObjectTypes[i].type) != i) return false;
  }
  return kObjectTypes.size() == static_cast<std::size_t>(ObjectType::kNone);
}
static_assert(RowsStandInTheOrderOfTheirTypes());

// Ignoring case; kNone for a name that isn't in the table.
constexpr ObjectType FindObjectType(std::string_view name) noexcept {
  const ObjectTypeRow* row = rc::FindByName(kObjectTypes, name);
  return row != nullptr ? row->type : ObjectType::kNone;
}

constexpr bool IsWindowType(ObjectType type) noexcept {
  return type == ObjectType::kDialog || type == ObjectType::kEditwindow ||
         type == ObjectType::kRicheditwindow;
}

}  // namespace brelt::resprops
