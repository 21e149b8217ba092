// Properties of colours: BACKCOLOUR, FORECOLOUR, TRANSPARENTCOLOUR. Included by the table only.
#pragma once

#include "rc/stylewords.h"
#include "resprops/palette.h"
#include "resprops/property.h"

namespace brelt::resprops {

// The style bits that hold one colour.
struct ColourWords {
  std::uint32_t r;
  std::uint32_t g;
  std::uint32_t b;
  std::uint32_t y;
};

inline constexpr ColourWords kProgressBack = {rc::StyleBits("PI_BGCOL_R"), rc::StyleBits("PI_BGCOL_G"),
                                              rc::StyleBits("PI_BGCOL_B"), rc::StyleBits("PI_BGCOL_Y")};
inline constexpr ColourWords kProgressFore = {rc::StyleBits("PI_FGCOL_R"), rc::StyleBits("PI_FGCOL_G"),
                                              rc::StyleBits("PI_FGCOL_B"), rc::StyleBits("PI_FGCOL_Y")};
inline constexpr ColourWords kShapeBack = {rc::StyleBits("SH_BGCOL_R"), rc::StyleBits("SH_BGCOL_G"),
                                           rc::StyleBits("SH_BGCOL_B"), rc::StyleBits("SH_BGCOL_Y")};
inline constexpr ColourWords kShapeFore = {rc::StyleBits("SH_FGCOL_R"), rc::StyleBits("SH_FGCOL_G"),
                                           rc::StyleBits("SH_FGCOL_B"), rc::StyleBits("SH_FGCOL_Y")};
inline constexpr ColourWords kTransparent = {rc::StyleBits("BB_TCOL_R"), rc::StyleBits("BB_TCOL_G"),
                                             rc::StyleBits("BB_TCOL_B"), rc::StyleBits("BB_TCOL_Y")};

inline std::int32_t ReadColour(const ObjectView& object, const ColourWords& words) noexcept {
  return static_cast<std::int32_t>(
      ColourFromBits({object.Has(words.r), object.Has(words.g), object.Has(words.b), object.Has(words.y)}));
}

inline void WriteColour(std::int32_t colour, const ColourWords& words, rc::ResourceRecord& record) noexcept {
  const ColourBits bits = BitsFromColour(colour);
  if (bits.r) SetBits(record, words.r);
  if (bits.g) SetBits(record, words.g);
  if (bits.b) SetBits(record, words.b);
  if (bits.y) SetBits(record, words.y);
}

// A colour that progress bars and shapes have, each in its own bits.
template <ColourWords kOfProgressbar, ColourWords kOfShape>
inline constexpr Property ColourProperty(std::string_view key) noexcept {
  return {key,
          [](const ObjectView& object) noexcept -> std::int32_t {
            if (object.controlClass == ControlClass::kProgressbar) return ReadColour(object, kOfProgressbar);
            return object.controlClass == ControlClass::kShape ? ReadColour(object, kOfShape) : 0;
          },
          [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
            WriteColour(line.number, line.type == ObjectType::kShape ? kOfShape : kOfProgressbar, record);
          }};
}

inline constexpr Property kBackColour = ColourProperty<kProgressBack, kShapeBack>("BACKCOLOUR");
inline constexpr Property kForeColour = ColourProperty<kProgressFore, kShapeFore>("FORECOLOUR");

inline constexpr std::int32_t kNoColour = -1;

inline constexpr Property kTransparentColour(
    "TRANSPARENTCOLOUR",
    [](const ObjectView& object) noexcept -> std::int32_t {
      const bool transparent =
          object.controlClass == ControlClass::kBitmapbutton && object.Has(rc::StyleBits("BB_TRANSPARENT"));
      return transparent ? ReadColour(object, kTransparent) : kNoColour;
    },
    [](const PropertyLine& line, rc::ResourceRecord& record) noexcept {
      if (line.number == kNoColour) return;
      SetBits(record, rc::StyleBits("BB_TRANSPARENT"));
      WriteColour(line.number, kTransparent, record);
    });

}  // namespace brelt::resprops
