#include "rc/objectkind.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/guarded.h"

namespace brelt::rc {
namespace {

std::string KindOf(std::string_view className, std::uint32_t style) {
  FixedText<60> kind("soil");
  const bool known = ObjectKind(className, style, kind);
  EXPECT_EQ(known, !kind.IsEmpty());
  return std::string(kind.view());
}

TEST(ObjectKind, OfAButtonOrAStaticIsToldByItsTypeBits) {
  const char* buttons[16] = {"Pushbutton",  "Pushbutton",  "Checkbox", "Checkbox",
                             "Radiobutton", "Checkbox",    "Checkbox", "Groupbox",
                             "Button",      "Radiobutton", "Button",   "Pushbutton",
                             "Button",      "Button",      "Button",   "Button"};
  const char* statics[16] = {"Label", "Label", "Label",  "Icon",  "Label", "Label",  "Label",  "Label",
                             "Label", "Label", "Static", "Label", "Label", "Static", "Static", "Static"};
  for (std::uint32_t type = 0; type < 16; ++type) {
    SCOPED_TRACE(type);
    // Only the low four bits count.
    for (const std::uint32_t others : {0x0u, 0x10010000u, 0xFFFFFFF0u}) {
      EXPECT_EQ(KindOf("BUTTON", type | others), buttons[type]);
      EXPECT_EQ(KindOf("static", type | others), statics[type]);
    }
  }
}

TEST(ObjectKind, OfOtherStandardClassesIsTheSameForAnyStyle) {
  const struct {
    const char* className;
    const char* kind;
  } cases[] = {{"COMBOBOX", "Combobox"}, {"ComboBox", "Combobox"}, {"EDIT", "Edit"},
               {"edit", "Edit"},         {"LISTBOX", "Listbox"},   {"Scrollbar", "Scrollbar"}};
  for (const auto& expected : cases) {
    for (std::uint32_t type = 0; type < 16; ++type) {
      EXPECT_EQ(KindOf(expected.className, type), expected.kind) << expected.className << ' ' << type;
    }
  }
}

TEST(ObjectKind, OfAnyOtherClassIsItsNameUpToTheFirstPoint) {
  const struct {
    const char* className;
    const char* kind;
  } cases[] = {{"Iconlist.1.3.2207", "Iconlist"},
               {"ICONLIST.1.3", "Iconlist"},
               {"shape", "Shape"},
               {"SysListView32", "Syslistview32"},
               {"BUTTONS", "Buttons"},
               {"x", "X"},
               {"9A", "9a"},
               {"\xC4"
                "B",
                "\xC4"
                "b"}};
  for (const auto& expected : cases)
    EXPECT_EQ(KindOf(expected.className, 3), expected.kind) << expected.className;
}

TEST(ObjectKind, IsNoneForAnEmptyNameOrOneThatBeginsWithAPoint) {
  EXPECT_EQ(KindOf("", 0), "");
  EXPECT_EQ(KindOf(".BUTTON", 0), "");
}

TEST(ObjectKind, IsCutToTheBuffer) {
  test::ExpectCutToFit("Radiobutton", [](TextBuffer buffer) {
    EXPECT_EQ(ObjectKind("BUTTON", 9, buffer), buffer.room() > 0);
  });
}

}  // namespace
}  // namespace brelt::rc
