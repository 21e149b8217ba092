#include "rc/stylewords.h"

#include <gtest/gtest.h>

#include <string>

#include "rc/chars.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace brelt::rc {
namespace {

TEST(StyleWordTable, HasExactly156WordsInOrder) {
  EXPECT_EQ(kStyleWordTable.size(), 156u);
  for (std::size_t i = 1; i < kStyleWordTable.size(); ++i) {
    EXPECT_LT(CompareIgnoreCase(kStyleWordTable[i - 1].name, kStyleWordTable[i].name), 0)
        << kStyleWordTable[i].name;
  }
}

struct Word {
  const char* name;
  std::uint32_t value;
};

constexpr Word kOwnWords[] = {
    {"BB_PUSHSTYLE", 0x0},        {"PI_VERTICAL", 0x1},   {"BB_CHECKSTYLE", 0x2},     {"PI_VALUE", 0x2},
    {"BB_RADIOSTYLE", 0x4},       {"PI_PERCENT", 0x4},    {"BB_TCOL_R", 0x100},       {"PI_BGCOL_R", 0x10},
    {"BB_TCOL_G", 0x200},         {"PI_BGCOL_G", 0x20},   {"BB_TCOL_B", 0x400},       {"PI_BGCOL_B", 0x40},
    {"BB_TCOL_Y", 0x800},         {"PI_BGCOL_Y", 0x80},   {"BB_TRANSPARENT", 0x1000}, {"PI_FGCOL_R", 0x100},
    {"EWS_ALLOWOVERWRITE", 0x10}, {"PI_FGCOL_G", 0x200},  {"EWS_AUTOINDENT", 0x20},   {"PI_FGCOL_B", 0x400},
    {"EWS_HILITE", 0x40},         {"PI_FGCOL_Y", 0x800},  {"EWS_READONLY", 0x80},     {"SH_RECT", 0x0},
    {"EWS_SELECTALL", 0x100},     {"SH_SQUARE", 0x1},     {"EWS_STATUSBAR", 0x200},   {"SH_ELLIPSE", 0x2},
    {"EWS_TABSHIFT", 0x400},      {"SH_CIRCLE", 0x4},     {"EWS_NUMBERBAR", 0x1000},  {"SH_ROUNDRECT", 0x8},
    {"SH_SOLID", 0x10},           {"SH_BGCOL_R", 0x100},  {"SH_DASH", 0x20},          {"SH_BGCOL_G", 0x200},
    {"SH_DOTTED", 0x40},          {"SH_BGCOL_B", 0x400},  {"SH_TRANSPARENT", 0x80},   {"SH_BGCOL_Y", 0x800},
    {"SH_FGCOL_R", 0x1000},       {"SH_FGCOL_B", 0x4000}, {"SH_FGCOL_G", 0x2000},     {"SH_FGCOL_Y", 0x8000},
};

TEST(StyleWordTable, HoldsTheLibrarys44OwnWords) {
  EXPECT_EQ(std::size(kOwnWords), 44u);
  for (const Word& word : kOwnWords) EXPECT_EQ(StyleWordValue(word.name), word.value) << word.name;
  for (const StyleWord& row : kStyleWordTable) {
    const std::string_view family = row.name.substr(0, row.name.find('_'));
    if (family != "BB" && family != "EWS" && family != "PI" && family != "SH") continue;
    bool known = false;
    for (const Word& word : kOwnWords) known = known || word.name == row.name;
    EXPECT_TRUE(known) << row.name;
  }
}

// The words of the platform: each by its own name, and where the platform's header is there, by its value.
constexpr const char* kWindowsWordNames[] = {
#define BRELT_WORD(name) #name,
#include "tests/core/windowswords.inc"
#undef BRELT_WORD
};

TEST(StyleWordTable, Holds112WordsOfThePlatform) {
  EXPECT_EQ(std::size(kWindowsWordNames), 112u);
  for (const char* name : kWindowsWordNames) {
    bool known = false;
    for (const StyleWord& row : kStyleWordTable) known = known || row.name == name;
    EXPECT_TRUE(known) << name;
  }
}

#ifdef _WIN32
TEST(StyleWordTable, PlatformWordsHaveThePlatformsValues) {
#define BRELT_WORD(name) EXPECT_EQ(StyleWordValue(#name), static_cast<std::uint32_t>(name)) << #name;
#include "tests/core/windowswords.inc"
#undef BRELT_WORD
}
#endif

TEST(StyleWordTable, NumbersOfTheWordsThatGrammarsRelyOn) {
  const Word words[] = {{"WS_OVERLAPPED", 0},
                        {"WS_POPUP", 0x80000000},
                        {"WS_CHILD", 0x40000000},
                        {"WS_MINIMIZE", 0x20000000},
                        {"WS_VISIBLE", 0x10000000},
                        {"WS_DISABLED", 0x08000000},
                        {"WS_CAPTION", 0x00C00000},
                        {"WS_TABSTOP", 0x00010000},
                        {"WS_MAXIMIZEBOX", 0x00010000},
                        {"WS_GROUP", 0x00020000},
                        {"SBS_HORZ", 0},
                        {"ES_LEFT", 0},
                        {"SS_LEFT", 0},
                        {"BS_PUSHBUTTON", 0},
                        {"BS_CHECKBOX", 2},
                        {"LBS_NOTIFY", 1},
                        {"LBS_SORT", 2},
                        {"MF_GRAYED", 1},
                        {"MF_DISABLED", 2},
                        {"MF_CHECKED", 8}};
  for (const Word& word : words) EXPECT_EQ(StyleWordValue(word.name), word.value) << word.name;
}

TEST(StyleWordValue, FindsEveryWordInAnyCase) {
  for (const StyleWord& row : kStyleWordTable) {
    std::string lower(row.name);
    for (char& c : lower) c = ToLower(c);
    EXPECT_EQ(StyleWordValue(row.name), row.value) << row.name;
    EXPECT_EQ(StyleWordValue(lower), row.value) << lower;
  }
  EXPECT_EQ(StyleWordValue("ws_visible"), 0x10000000u);
}

TEST(StyleWordValue, OnlyHexadecimalNumbersAreNumbers) {
  const struct {
    const char* word;
    std::uint32_t value;
  } cases[] = {{"0X10", 16},
               {"0x10", 16},
               {"16", 0},
               {"-1", 0},
               {"0xFFFFFFFF", 0xFFFFFFFF},
               {"0x80000000", 0x80000000},
               {"0x1FFFFFFFF", 0xFFFFFFFF},
               {"0x000000001", 1},
               {"0x10L", 16},
               {"0x10g5", 16},
               {"0x", 0},
               {"0xg", 0},
               {"0", 0}};
  for (const auto& expected : cases)
    EXPECT_EQ(StyleWordValue(expected.word), expected.value) << expected.word;
}

TEST(StyleWordValue, UnknownWordsAreWorthNothing) {
  for (const char* word : {"", "BS_FLAT", "NOT", "SS_BITMAP", "ES_NUMBER", "BS_ICON", "WS_VISIBL",
                           "WS_VISIBLEX", "WS_EX_LAYERED", "DS_SETFONT", "DS_3DLOOK", "|", "WS_VISIBLE ",
                           "WS_A_WORD_OF_MORE_THAN_31_CHARACTERS", "0"}) {
    EXPECT_EQ(StyleWordValue(word), 0u) << word;
  }
}

}  // namespace
}  // namespace brelt::rc
