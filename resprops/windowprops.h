// Properties of windows alone: CLOSEBOX, FLAGS, FONTSIZE, MAXBUTTON, MINBUTTON, OWNER. Included by the table
// only.
#pragma once

#include "rc/stylewords.h"
#include "resprops/property.h"

namespace brelt::resprops {

// A title bar's box: it shows only where the window has a frame of any kind.
template <std::uint32_t kBox>
inline constexpr Property BoxProperty(std::string_view key) noexcept {
  return {key,
          [](const ObjectView& object) noexcept -> std::int32_t {
            return object.Has(kBox) && object.HasAny(rc::StyleBits("DS_MODALFRAME|WS_BORDER|WS_THICKFRAME"));
          },
          [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
            if (line.HasFrame() && line.number == 1) SetBits(record, kBox);
          }};
}

inline constexpr Property kCloseBox = BoxProperty<rc::StyleBits("WS_SYSMENU")>("CLOSEBOX");
inline constexpr Property kMaxButton = BoxProperty<rc::StyleBits("WS_MAXIMIZEBOX")>("MAXBUTTON");
inline constexpr Property kMinButton = BoxProperty<rc::StyleBits("WS_MINIMIZEBOX")>("MINBUTTON");

inline constexpr Property kFlags(
    "FLAGS",
    [](const ObjectView& object) noexcept -> std::int32_t {
      const bool isEditWindow = object.controlClass == ControlClass::kEditwindow ||
                                object.controlClass == ControlClass::kRicheditwindow;
      return isEditWindow ? static_cast<std::int32_t>(object.record.exStyle) : 0;
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      record.exStyle = line.type == ObjectType::kDialog ? 0 : static_cast<std::uint32_t>(line.number);
    });

inline constexpr Property kFontSize(
    "FONTSIZE",
    [](const ObjectView& object) noexcept -> std::int32_t {
      return object.record.fontName.IsEmpty() ? host::DefaultFont().size : object.record.fontSize;
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept { record.fontSize = line.number; });

inline constexpr Property kOwner(
    "OWNER",
    [](const ObjectView& object) noexcept -> std::int32_t {
      return !object.HasAny(rc::StyleBits("WS_POPUP|WS_CHILD"));
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      ClearBits(record, rc::StyleBits("WS_POPUP|WS_CHILD"));
      if (line.number != 1) SetBits(record, rc::StyleBits("WS_POPUP"));
    });

}  // namespace brelt::resprops
