// Properties that are on or off: CHECKED, DEFAULT, ENABLED, GROUP, MULTILINE, READONLY, SORTED, TABSTOP,
// USETABSTOPS, VISIBLE. Included by the table only.
#pragma once

#include "rc/menuoptions.h"
#include "rc/stylewords.h"
#include "resprops/property.h"

namespace brelt::resprops {

// A property that is one bit of the style and nothing else.
template <std::uint32_t kBit>
inline constexpr Property BitProperty(std::string_view key) noexcept {
  return {key, [](const ObjectView& object) noexcept -> std::int32_t { return object.Has(kBit); },
          [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
            PutBits(record, kBit, line.number != 0);
          }};
}

inline constexpr Property kGroup = BitProperty<rc::StyleBits("WS_GROUP")>("GROUP");
inline constexpr Property kReadOnly = BitProperty<rc::StyleBits("ES_READONLY")>("READONLY");
inline constexpr Property kTabStop = BitProperty<rc::StyleBits("WS_TABSTOP")>("TABSTOP");
inline constexpr Property kUseTabStops = BitProperty<rc::StyleBits("LBS_USETABSTOPS")>("USETABSTOPS");
inline constexpr Property kVisible = BitProperty<rc::StyleBits("WS_VISIBLE")>("VISIBLE");

inline constexpr Property kChecked(
    "CHECKED", [](const ObjectView& object) noexcept -> std::int32_t { return object.Has(rc::kMenuChecked); },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      if (line.number == 1) SetBits(record, rc::kMenuChecked);
    });

inline constexpr Property kDefault(
    "DEFAULT",
    [](const ObjectView& object) noexcept -> std::int32_t {
      return object.controlClass == ControlClass::kButton &&
             object.TypeBits() == rc::StyleBits("BS_DEFPUSHBUTTON");
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      if (line.number != 0) SetBits(record, rc::StyleBits("BS_DEFPUSHBUTTON"));
    });

// INACTIVE and GRAYED menu items are both disabled; a disabled one is written as GRAYED.
inline constexpr Property kEnabled(
    "ENABLED",
    [](const ObjectView& object) noexcept -> std::int32_t {
      const std::uint32_t disabled =
          object.isMenuRow ? rc::kMenuGrayed | rc::kMenuInactive : rc::StyleBits("WS_DISABLED");
      return !object.HasAny(disabled);
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      const bool isMenuitem = line.type == ObjectType::kMenuitem;
      PutBits(record, isMenuitem ? rc::kMenuGrayed : rc::StyleBits("WS_DISABLED"), line.number == 0);
    });

inline constexpr Property kMultiline(
    "MULTILINE",
    [](const ObjectView& object) noexcept -> std::int32_t {
      return object.controlClass == ControlClass::kEdit && object.Has(rc::StyleBits("ES_MULTILINE"));
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      // A line that doesn't break scrolls instead.
      PutBits(record, rc::StyleBits("ES_MULTILINE|ES_WANTRETURN"), line.number != 0);
      PutBits(record, rc::StyleBits("ES_AUTOHSCROLL"), line.number == 0);
    });

inline constexpr Property kSorted(
    "SORTED",
    [](const ObjectView& object) noexcept -> std::int32_t {
      switch (object.controlClass) {
        case ControlClass::kListbox:
        case ControlClass::kIconlist:
          return object.Has(rc::StyleBits("LBS_SORT"));
        case ControlClass::kCombobox:
          return object.Has(rc::StyleBits("CBS_SORT"));
        default:
          return 0;
      }
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      if (line.number != 1) return;
      SetBits(record,
              line.type == ObjectType::kCombobox ? rc::StyleBits("CBS_SORT") : rc::StyleBits("LBS_SORT"));
    });

}  // namespace brelt::resprops
