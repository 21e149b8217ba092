// Properties whose value is a text: CAPTION, FONTNAME, MENU, NAME, PICTURE, TYPEOF. Included by the table
// only.
#pragma once

#include "rc/objectkind.h"
#include "rc/scan.h"
#include "rc/stylewords.h"
#include "rc/textkit.h"
#include "resprops/classkeyword.h"
#include "resprops/escape.h"
#include "resprops/property.h"

namespace brelt::resprops {

inline void AppendQuoted(rc::TextWriter& value, std::string_view text) noexcept {
  value.Append('"').Append(text).Append('"');
}

// ---- CAPTION ----

// A window with a title bar and no title shows as a blank, so that it differs from one without a title bar.
inline void ReadCaption(const ObjectView& object, rc::TextWriter& value) noexcept {
  EscapedText escaped;
  EscapeText(object.record.text.view(), escaped);
  const bool bareTitleBar =
      object.isWindow && object.record.text.IsEmpty() && object.Has(rc::StyleBits("WS_CAPTION"));
  AppendQuoted(value, bareTitleBar ? " " : escaped.view());
}

inline void WriteWindowCaption(const PropertyLine& line, const char* caption,
                               rc::ResourceRecord& window) noexcept {
  if (!line.HasFrame()) {
    ClearBits(window, rc::StyleBits("WS_CAPTION"));
    window.text.Clear();
  } else if (*caption == '\0') {
    // A frame without a title bar.
    ClearBits(window, rc::StyleBits("WS_DLGFRAME"));
    SetBits(window, rc::StyleBits("WS_BORDER"));
  } else {
    SetBits(window, rc::StyleBits("WS_CAPTION"));
    window.text.Assign(rc::IsAllSpace(caption) ? "" : caption);
  }
}

inline void WriteCaption(const PropertyLine& line, rc::ResourceRecord& record) noexcept {
  const rc::FixedText<kLineLimit> escaped(line.Text());
  rc::FixedText<kLineLimit> caption;
  rc::UnescapeText(escaped.c_str(), caption);
  if (IsWindowType(line.type)) {
    WriteWindowCaption(line, caption.c_str(), record);
  } else {
    record.text.Assign(caption.view());
  }
}

inline constexpr Property kCaption("CAPTION", &ReadCaption, &WriteCaption);

// ---- FONTNAME ----

inline constexpr Property kFontName(
    "FONTNAME",
    [](const ObjectView& object, rc::TextWriter& value) noexcept {
      const bool named = !object.record.fontName.IsEmpty();
      AppendQuoted(value, named ? object.record.fontName.view() : host::DefaultFont().face.view());
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      record.fontName.Assign(line.Text());
    });

// ---- MENU ----

inline constexpr Property kMenu(
    "MENU",
    [](const ObjectView& object, rc::TextWriter& value) noexcept {
      value.Append(object.record.menuName.view());
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      if (line.HasFrame()) record.menuName.Assign(line.Text());
    });

// ---- NAME ----

// A number is no name for a designer's object: such controls get one of their own.
inline void ReadName(const ObjectView& object, rc::TextWriter& value) noexcept {
  const char* name = object.record.name.c_str();
  if (!object.isFirst && (rc::IsDecimalText(name) || rc::HasHexPrefix(name))) {
    value.Format("Noname%i", ++object.run.replacedNames);
  } else {
    value.Append(name);
  }
}

inline constexpr Property kName("NAME", &ReadName,
                                [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
                                  record.name.Assign(line.Text());
                                });

// ---- PICTURE ----

// File names are neither escaped nor decoded: they are full of backslashes.
inline void ReadPicture(const ObjectView& object, rc::TextWriter& value) noexcept {
  rc::FixedText<255> text(object.record.text.view().substr(0, object.record.text.view().find('\n')));
  host::Path file;
  if (object.controlClass == ControlClass::kBitmapbutton || object.controlClass == ControlClass::kImage) {
    file.Assign(text.view());
  } else if (object.controlClass == ControlClass::kStatic && object.TypeBits() == rc::StyleBits("SS_ICON")) {
    object.run.icons.Find(text.c_str(), file);
  }
  AppendQuoted(value, file.view());
}

inline constexpr Property kPicture("PICTURE", &ReadPicture,
                                   [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
                                     record.text.Assign(line.Text());
                                   });

// ---- TYPEOF ----

inline void ReadTypeof(const ObjectView& object, rc::TextWriter& value) noexcept {
  rc::FixedText<40> kind;
  if (object.isMenuRow) {
    kind.Assign("Menuitem");
  } else if (object.controlClass == ControlClass::kDialog) {
    kind.Assign("Dialog");
  } else {
    // EDITWINDOW and RICHEDITWINDOW are their own kinds.
    rc::ObjectKind(object.record.className.view(), object.record.style, kind);
  }
  value.Append(kind.view());
}

// The bits that every control of a type has and no property stands for.
inline std::uint32_t OwnBits(std::string_view type) noexcept {
  switch (FindObjectType(type)) {
    case ObjectType::kCheckbox:
      return rc::StyleBits("BS_AUTOCHECKBOX");
    case ObjectType::kCombobox:
      return rc::StyleBits("WS_BORDER|CBS_HASSTRINGS");
    case ObjectType::kListbox:
      return rc::StyleBits("LBS_HASSTRINGS|LBS_NOTIFY");
    case ObjectType::kRadiobutton:
      return rc::StyleBits("BS_AUTORADIOBUTTON");
    default:
      return 0;
  }
}

inline void WriteTypeof(const PropertyLine& line, rc::ResourceRecord& record) noexcept {
  constexpr std::string_view kDefaultKey = "\nDEFAULT=";
  constexpr std::string_view kAlignmentKey = "\nALIGNMENT=";
  const std::string_view row(line.row);
  const std::size_t defaultAt = row.find(kDefaultKey);
  const std::size_t alignmentAt = row.find(kAlignmentKey);
  const bool isDefault =
      defaultAt != std::string_view::npos && line.row[defaultAt + kDefaultKey.size()] == '1';
  const std::int32_t alignment =
      alignmentAt != std::string_view::npos ? ParseInteger(line.row + alignmentAt + kAlignmentKey.size()) : 0;
  ClassAndKeywordOf(line.type, isDefault, alignment, record);
  SetBits(record, OwnBits(line.value.view()));
}

inline constexpr Property kTypeof("TYPEOF", &ReadTypeof, &WriteTypeof);

}  // namespace brelt::resprops
