#include "forms/fonts.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "rc/host.h"

namespace brelt::test {
namespace {

LOGFONTA Describe(HFONT font) {
  LOGFONTA description = {};
  EXPECT_EQ(GetObjectA(font, sizeof description, &description), static_cast<int>(sizeof description));
  return description;
}

int PixelsPerInch() {
  const OwnedDc display(CreateICA("DISPLAY", nullptr, nullptr, nullptr));
  return GetDeviceCaps(display.get(), LOGPIXELSY);
}

TEST(MakeFont, HasFaceHeightWeightAndSlant) {
  struct Case {
    const char* face;
    int size;
    bool bold;
    bool italic;
  };
  for (const Case& c :
       {Case{"Tahoma", 8, false, false}, Case{"Courier", 12, true, false}, Case{"Arial", 0, false, true},
        Case{"System", 72, true, true}, Case{"", 10, false, false}}) {
    SCOPED_TRACE(c.face);
    const OwnedFont font = MakeFont(c.face, c.size, c.bold, c.italic);
    LOGFONTA expected = {};
    expected.lfHeight = -MulDiv(PixelsPerInch(), c.size, 72);
    expected.lfWeight = c.bold ? 700 : 400;
    expected.lfItalic = c.italic ? 1 : 0;
    std::strcpy(expected.lfFaceName, c.face);
    const LOGFONTA made = Describe(font.get());
    EXPECT_EQ(std::memcmp(&made, &expected, offsetof(LOGFONTA, lfFaceName)), 0);
    EXPECT_STREQ(made.lfFaceName, c.face);
  }
}

TEST(MakeFont, CutsTheFaceTo31Characters) {
  const std::string face(40, 'f');
  const OwnedFont font = MakeFont(face.c_str(), 10, false, false);
  EXPECT_EQ(std::string(Describe(font.get()).lfFaceName), face.substr(0, 31));
  EXPECT_STREQ(Describe(MakeFont(nullptr, 10, false, false).get()).lfFaceName, "");
}

// What the letters and the metrics of a font give, measured in another context than the library's.
struct Measured {
  int average;
  int height;
  int byLetters;
  bool variablePitch;
};

Measured Measure(HGDIOBJ font) {
  const OwnedDc display(CreateCompatibleDC(nullptr));
  const Selected selected(display.get(), font);
  TEXTMETRICA metrics = {};
  GetTextMetricsA(display.get(), &metrics);
  const std::string letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  SIZE size = {};
  GetTextExtentPoint32A(display.get(), letters.c_str(), 52, &size);
  return {metrics.tmAveCharWidth, metrics.tmHeight, (size.cx / 26 + 1) / 2,
          (metrics.tmPitchAndFamily & 1) != 0};
}

TEST(FontBaseUnits, AreHeightAndTheWidthOfTheLettersForVariablePitch) {
  int differing = 0;
  for (const char* face : {"MS Sans Serif", "Tahoma", "Arial", "Times New Roman", "System"}) {
    for (const int size : {8, 9, 10, 12, 14, 18, 24, 36}) {
      SCOPED_TRACE(std::string(face) + " " + std::to_string(size));
      const OwnedFont font = MakeFont(face, size, false, false);
      const Measured measured = Measure(font.get());
      EXPECT_TRUE(measured.variablePitch);
      const BaseUnits units = FontBaseUnits(font.get());
      EXPECT_EQ(units.width, measured.byLetters);
      EXPECT_EQ(units.height, measured.height);
      differing += measured.byLetters != measured.average ? 1 : 0;
    }
  }
  EXPECT_GT(differing, 0);  // or the test couldn't tell the two widths apart
}

TEST(FontBaseUnits, AreHeightAndAverageWidthForFixedPitch) {
  for (const int size : {8, 10, 12, 20}) {
    const OwnedFont font = MakeFont("Courier", size, false, false);
    const Measured measured = Measure(font.get());
    EXPECT_FALSE(measured.variablePitch);
    const BaseUnits units = FontBaseUnits(font.get());
    EXPECT_EQ(units.width, measured.average);
    EXPECT_EQ(units.height, measured.height);
  }
}

TEST(FontBaseUnits, AreThoseOfTheSystemFontForNull) {
  const Measured system = Measure(GetStockObject(SYSTEM_FONT));
  const BaseUnits units = FontBaseUnits(nullptr);
  EXPECT_EQ(units.width, system.byLetters);
  EXPECT_EQ(units.height, system.height);
}

TEST(BaseUnits, ScaleByQuartersAndEighthsCutTowardsZero) {
  struct Case {
    std::int32_t units;
    int width, height;
    int x, y;
  };
  for (const Case& c :
       {Case{0, 7, 13, 0, 0}, Case{1, 7, 13, 1, 1}, Case{3, 7, 13, 5, 4}, Case{-1, 7, 13, -1, -1},
        Case{-3, 7, 13, -5, -4}, Case{100, 8, 16, 200, 200}, Case{5, 0, 0, 0, 0}}) {
    SCOPED_TRACE(c.units);
    const BaseUnits units{c.width, c.height};
    EXPECT_EQ(units.PixelsX(c.units), c.x);
    EXPECT_EQ(units.PixelsY(c.units), c.y);
  }
}

}  // namespace
}  // namespace brelt::test
