// Properties of what an object looks like and where it stands: ALIGNMENT, BORDERSTYLE, BUTTONSTYLE,
// COMBOSTYLE, POSITION, SCROLLBARS, SHAPE. Included by the table only.
#pragma once

#include "rc/scan.h"
#include "rc/stylewords.h"
#include "resprops/property.h"

namespace brelt::resprops {

// ---- ALIGNMENT ----

inline std::int32_t ReadStaticAlignment(std::uint32_t typeBits) noexcept {
  switch (typeBits) {
    case rc::StyleBits("SS_CENTER"):
      return 1;
    case rc::StyleBits("SS_RIGHT"):
      return 2;
    case rc::StyleBits("SS_LEFTNOWORDWRAP"):
      return 3;
    default:
      return 0;
  }
}

inline std::int32_t ReadAlignment(const ObjectView& object) noexcept {
  if (object.isWindow) return object.Has(rc::StyleBits("DS_CENTER"));
  switch (object.controlClass) {
    case ControlClass::kStatic:
      return ReadStaticAlignment(object.TypeBits());
    case ControlClass::kEdit:
      if (object.Has(rc::StyleBits("ES_CENTER"))) return 1;
      return object.Has(rc::StyleBits("ES_RIGHT")) ? 2 : 0;
    case ControlClass::kButton:
      return object.Has(rc::StyleBits("BS_LEFTTEXT")) ? 0 : 2;
    case ControlClass::kScrollbar:
    case ControlClass::kProgressbar:
      return object.Has(rc::StyleBits("SBS_VERT")) ? 5 : 4;
    default:
      return 0;
  }
}

inline void WriteAlignment(const PropertyLine& line, rc::ResourceRecord& record) noexcept {
  const std::int32_t number = line.number;
  switch (line.type) {
    case ObjectType::kDialog:
    case ObjectType::kEditwindow:
    case ObjectType::kRicheditwindow:
      if (number == 0 || number == 1) PutBits(record, rc::StyleBits("DS_CENTER"), number == 1);
      break;
    case ObjectType::kCheckbox:
    case ObjectType::kRadiobutton:
      if (number == 0 || number == 2) PutBits(record, rc::StyleBits("BS_LEFTTEXT"), number == 0);
      break;
    case ObjectType::kEdit:
      if (number == 1) SetBits(record, rc::StyleBits("ES_CENTER"));
      if (number == 2) SetBits(record, rc::StyleBits("ES_RIGHT"));
      break;
    case ObjectType::kLabel:
      if (number == 1) SetBits(record, rc::StyleBits("SS_CENTER"));
      if (number == 2) SetBits(record, rc::StyleBits("SS_RIGHT"));
      if (number == 3) SetBits(record, rc::StyleBits("SS_LEFTNOWORDWRAP"));
      break;
    default:  // a scroll bar or a progress bar
      static_assert(rc::StyleBits("SBS_VERT") == rc::StyleBits("PI_VERTICAL"));
      if (number == 4 || number == 5) PutBits(record, rc::StyleBits("SBS_VERT"), number == 5);
  }
}

inline constexpr Property kAlignment("ALIGNMENT", &ReadAlignment, &WriteAlignment);

// ---- BORDERSTYLE ----

inline std::int32_t ReadBorderStyle(const ObjectView& object) noexcept {
  if (object.isWindow) {
    if (object.Has(rc::StyleBits("DS_MODALFRAME"))) return 3;
    if (object.Has(rc::StyleBits("WS_THICKFRAME"))) return 2;
  } else if (object.controlClass == ControlClass::kShape) {
    if (object.Has(rc::StyleBits("SH_DOTTED"))) return 3;
    if (object.Has(rc::StyleBits("SH_DASH"))) return 2;
    return object.Has(rc::StyleBits("SH_SOLID"));
  }
  return object.Has(rc::StyleBits("WS_BORDER"));
}

inline void WriteWindowBorder(std::int32_t number, rc::ResourceRecord& window) noexcept {
  switch (number) {
    case 0:
      ClearBits(window, rc::StyleBits("WS_BORDER|WS_THICKFRAME|DS_MODALFRAME"));
      break;
    case 1:
      SetBits(window, rc::StyleBits("WS_BORDER"));
      break;
    case 2:
      SetBits(window, rc::StyleBits("WS_THICKFRAME"));
      break;
    case 3:
      SetBits(window, rc::StyleBits("DS_MODALFRAME"));
      break;
    default:
      break;
  }
}

inline void WriteBorderStyle(const PropertyLine& line, rc::ResourceRecord& record) noexcept {
  if (IsWindowType(line.type)) {
    WriteWindowBorder(line.number, record);
  } else if (line.type == ObjectType::kShape) {
    if (line.number == 1) SetBits(record, rc::StyleBits("SH_SOLID"));
    if (line.number == 2) SetBits(record, rc::StyleBits("SH_DASH"));
    if (line.number == 3) SetBits(record, rc::StyleBits("SH_DOTTED"));
  } else if (line.number == 0 || line.number == 1) {
    PutBits(record, rc::StyleBits("WS_BORDER"), line.number == 1);
  }
}

inline constexpr Property kBorderStyle("BORDERSTYLE", &ReadBorderStyle, &WriteBorderStyle);

// ---- BUTTONSTYLE ----

inline constexpr Property kButtonStyle(
    "BUTTONSTYLE",
    [](const ObjectView& object) noexcept -> std::int32_t {
      if (object.controlClass != ControlClass::kBitmapbutton) return 0;
      if (object.Has(rc::StyleBits("BB_RADIOSTYLE"))) return 2;
      return object.Has(rc::StyleBits("BB_CHECKSTYLE"));
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      if (line.number == 1) SetBits(record, rc::StyleBits("BB_CHECKSTYLE"));
      if (line.number == 2) SetBits(record, rc::StyleBits("BB_RADIOSTYLE"));
    });

// ---- COMBOSTYLE ----

inline constexpr Property kComboStyle(
    "COMBOSTYLE",
    [](const ObjectView& object) noexcept -> std::int32_t {
      if (object.controlClass != ControlClass::kCombobox) return 0;
      if (object.TypeBits() == rc::StyleBits("CBS_DROPDOWN")) return 0;
      return object.TypeBits() == rc::StyleBits("CBS_SIMPLE") ? 1 : 2;
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      if (line.number == 0) SetBits(record, rc::StyleBits("CBS_DROPDOWN"));
      if (line.number == 1) SetBits(record, rc::StyleBits("CBS_SIMPLE"));
      if (line.number == 2) SetBits(record, rc::StyleBits("CBS_DROPDOWNLIST"));
    });

// ---- POSITION ----

inline void ReadPosition(const ObjectView& object, rc::TextWriter& value) noexcept {
  const rc::ResourceRecord& record = object.record;
  AppendNumber(value, record.x);
  if (object.isMenuRow) return;
  for (const std::int32_t number : {record.y, record.width, record.height}) {
    AppendNumber(value.Append(' '), number);
  }
}

// Reads a decimal number behind any white space and moves behind it; 0, and no move, where none stands.
inline std::int32_t NextNumber(const char* text, std::int32_t& position) noexcept {
  std::int32_t start = position;
  rc::SkipSpace(text, start);
  std::int32_t end = start;
  rc::ScanSignedDigits(text, end);
  if (end == start || !rc::IsDigit(text[end - 1])) return 0;
  position = end;
  return rc::DecimalValue(text + start);
}

inline void WritePosition(const PropertyLine& line, rc::ResourceRecord& record) noexcept {
  const char* text = line.value.c_str();
  std::int32_t position = 0;
  record.x = NextNumber(text, position);
  if (line.type == ObjectType::kMenuitem) return;
  record.y = NextNumber(text, position);
  record.width = NextNumber(text, position);
  record.height = NextNumber(text, position);
}

inline constexpr Property kPosition("POSITION", &ReadPosition, &WritePosition);

// ---- SCROLLBARS ----

inline std::int32_t ReadScrollbars(const ObjectView& object) noexcept {
  const bool canScroll =
      object.controlClass == ControlClass::kListbox || object.controlClass == ControlClass::kIconlist ||
      (object.controlClass == ControlClass::kEdit && object.Has(rc::StyleBits("ES_MULTILINE")));
  if (!canScroll) return 0;
  return (object.Has(rc::StyleBits("WS_VSCROLL")) ? 2 : 0) +
         (object.Has(rc::StyleBits("WS_HSCROLL")) ? 1 : 0);
}

inline void WriteScrollbars(const PropertyLine& line, rc::ResourceRecord& record) noexcept {
  const bool known = line.number >= 1 && line.number <= 3;
  if (line.type != ObjectType::kEdit) {
    // A list keeps its scroll bars in sight also when nothing is to scroll.
    if (known || line.number == 0) PutBits(record, rc::StyleBits("LBS_DISABLENOSCROLL"), known);
    SetBits(record, rc::StyleBits("LBS_NOINTEGRALHEIGHT"));
  }
  if (known && (line.number & 1) != 0) SetBits(record, rc::StyleBits("WS_HSCROLL"));
  if (known && (line.number & 2) != 0) SetBits(record, rc::StyleBits("WS_VSCROLL"));
}

inline constexpr Property kScrollbars("SCROLLBARS", &ReadScrollbars, &WriteScrollbars);

// ---- SHAPE ----

inline std::int32_t ReadShape(const ObjectView& object) noexcept {
  if (object.controlClass != ControlClass::kShape) return 0;
  if (object.Has(rc::StyleBits("SH_ROUNDRECT"))) return 4;
  if (object.Has(rc::StyleBits("SH_CIRCLE"))) return 3;
  if (object.Has(rc::StyleBits("SH_ELLIPSE"))) return 2;
  return object.Has(rc::StyleBits("SH_SQUARE"));
}

inline void WriteShape(const PropertyLine& line, rc::ResourceRecord& record) noexcept {
  switch (line.number) {
    case 1:
      SetBits(record, rc::StyleBits("SH_SQUARE"));
      break;
    case 2:
      SetBits(record, rc::StyleBits("SH_ELLIPSE"));
      break;
    case 3:
      SetBits(record, rc::StyleBits("SH_CIRCLE"));
      break;
    case 4:
      SetBits(record, rc::StyleBits("SH_ROUNDRECT"));
      break;
    default:
      break;
  }
}

inline constexpr Property kShapeKind("SHAPE", &ReadShape, &WriteShape);

}  // namespace brelt::resprops
