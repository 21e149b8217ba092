#include "resprops/schema.h"

#include <gtest/gtest.h>

#include "resprops/palette.h"
#include "resprops/property.h"
#include "tests/support/golden.h"
#include "tests/support/guarded.h"

namespace brelt::resprops {
namespace {

std::string SchemaOf(const char* name) {
  rc::FixedText<1024> schema;
  ResourceTypelist(name, schema);
  return std::string(schema.view());
}

TEST(Schema, OfEachTypeIsAsItWasAgreed) {
  std::string all;
  for (const ObjectTypeRow& row : kObjectTypes) {
    const std::string name(row.name);
    all += "[" + name + "]\n" + SchemaOf(name.c_str());
  }
  test::ExpectGolden("resprops/schema.txt", all);
}

TEST(Schema, IsChosenByTheNameWhateverItsCaseAndTheBlanksAroundIt) {
  const std::string expected = SchemaOf("Pushbutton");
  ASSERT_FALSE(expected.empty());
  for (const char* name : {"PUSHBUTTON", "pushbutton", "pUsHbUtToN", " Pushbutton", "Pushbutton   ",
                           "      pushbutton  ", "Pushbutton                              and more"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(SchemaOf(name), expected);
  }
}

TEST(Schema, IsEmptyForAnyOtherName) {
  const std::string blanks31(31, ' ');
  for (const char* name : {"", "  ", "Menu", "Clipboard", "Printer", "Screen", "Push button", "\tPushbutton",
                           "Pushbutton\t", "Pushbuttons", "Pushbutto", "Dialog.1.3.2207",
                           "Pushbuttonxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", (const char*)nullptr}) {
    SCOPED_TRACE(name == nullptr ? "null" : name);
    EXPECT_EQ(SchemaOf(name), "");
  }
  // The cut comes before the blanks go: of this one the last letter is lost.
  EXPECT_EQ(SchemaOf((blanks31 + "Pushbutton").c_str()), "");
  EXPECT_EQ(SchemaOf((blanks31.substr(1) + "Pushbutton").c_str()), SchemaOf("Pushbutton"));
}

TEST(Schema, OfRadiobuttonIsThatOfCheckbox) { EXPECT_EQ(SchemaOf("Radiobutton"), SchemaOf("Checkbox")); }

TEST(Schema, OfTheEditWindowsDiffersFromDialogInFlagsOnly) {
  const std::string flags =
      "FLAGS=INTEGER{16-Overwrite,32-Autoindent,64-Hilite,128-Readonly,256-SelectAll,512-StatusBar,"
      "1024-Tabshift,4096-NumberBar}\n";
  std::string expected = SchemaOf("Dialog");
  const std::size_t hidden = expected.find("FLAGS=HIDDEN\n");
  ASSERT_NE(hidden, std::string::npos);
  expected.replace(hidden, std::string("FLAGS=HIDDEN\n").size(), flags);
  EXPECT_EQ(SchemaOf("Editwindow"), expected);
  EXPECT_EQ(SchemaOf("Richeditwindow"), expected);
}

TEST(Schema, IsCutToTheBufferWithoutASign) {
  EXPECT_EQ(SchemaOf("Pushbutton").substr(0, 15), "CAPTION=STRING(");
  for (const char* name : {"Pushbutton", "Bitmapbutton", "Menu"}) {
    SCOPED_TRACE(name);
    test::ExpectCutToFit(
        SchemaOf(name), [name](rc::TextBuffer buffer) { ResourceTypelist(name, buffer); },
        test::Behind::kZero);
  }
}

TEST(Schema, FitsTheRoomThatDesignersGiveIt) {
  for (const ObjectTypeRow& row : kObjectTypes) {
    EXPECT_LT(SchemaOf(std::string(row.name).c_str()).size(), 1024U) << row.name;
  }
}

// A key counts for a type if its text is anywhere in the schema. That is the same as having the key only as
// long as no key that a type lacks is the end of one it has.
TEST(Schema, HoldsTheTextOfAKeyExactlyWhereATypeHasIt) {
  for (const ObjectTypeRow& row : kObjectTypes) {
    const std::string schema = SchemaOf(std::string(row.name).c_str());
    for (const Property& property : Properties()) {
      SCOPED_TRACE(std::string(row.name) + " " + std::string(property.key));
      EXPECT_EQ(schema.find(std::string(property.key) + "=") != std::string::npos,
                Holds(property.types, row.type));
    }
  }
}

TEST(Palette, GivesTheValueOfEachSetOfBits) {
  for (unsigned index = 0; index < 16; ++index) {
    SCOPED_TRACE(index);
    const ColourBits bits{(index & 4) != 0, (index & 2) != 0, (index & 1) != 0, (index & 8) != 0};
    EXPECT_EQ(ColourFromBits(bits), kPalette[index].value);
  }
}

TEST(Palette, TakesAValueOrAnIndexOrTheLowByteOfAnyOtherNumber) {
  struct Case {
    std::int32_t colour;
    int index;
  };
  const Case cases[] = {
      {0, 0},        {1, 1},        {7, 7},         {15, 15},       {16, 0},        {0x800000, 1},
      {0x808080, 7}, {0xC0C0C0, 8}, {0xFFFFFF, 15}, {0x0000FF, 12}, {128, 4},       {255, 12},
      {0x123456, 6}, {0xFF0001, 1}, {-1, 15},       {-2, 14},       {INT32_MIN, 0}, {0x00FF00, 10},
      {0xFF00, 10},  {0x8080, 6},   {0x800080, 5},  {129, 1},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.colour);
    const ColourBits bits = BitsFromColour(expected.colour);
    EXPECT_EQ(bits.y * 8 + bits.r * 4 + bits.g * 2 + bits.b, expected.index);
  }
}

}  // namespace
}  // namespace brelt::resprops
