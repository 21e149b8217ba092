// Combostyle, Combotext and MaxLength.
#include <string>

#include "tests/support/guarded.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

using Allocations = CountedImport<struct AllocTag, HGLOBAL, UINT, SIZE_T>;

class ComboTest : public PropertyTest {
 protected:
  static std::string Text(int32_t id) {
    char text[2048] = "unset";
    EXPECT_EQ(GetCombotext(kFormName, id, text, sizeof text), RTX_OK);
    return text;
  }
  static int32_t Limit(int32_t id) {
    int32_t limit = -1;
    EXPECT_EQ(GetMaxLength(kFormName, id, &limit), RTX_OK);
    return limit;
  }
};

TEST_F(ComboTest, StyleIsZeroDropDownOneSimpleTwoDropDownList) {
  struct Case {
    int32_t id;
    int32_t style;
  };
  for (const Case& c : {Case{kDropDown, 0}, Case{kSimple, 1}, Case{kDropDownList, 2}}) {
    int32_t style = -1;
    EXPECT_EQ(GetCombostyle(kFormName, c.id, &style), RTX_OK);
    EXPECT_EQ(style, c.style);
  }
}

TEST_F(ComboTest, TextIsThatOfTheField) {
  for (const int32_t id : {int32_t{kDropDown}, int32_t{kSimple}}) {
    SCOPED_TRACE(id);
    EXPECT_EQ(SetCombotext(kFormName, id, "typed"), RTX_OK);
    EXPECT_EQ(Text(id), "typed");
    char text[20] = "";
    GetWindowTextA(Control(id), text, sizeof text);
    EXPECT_STREQ(text, "typed");
    EXPECT_EQ(SetCombotext(kFormName, id, ""), RTX_OK);
    EXPECT_EQ(Text(id), "");
  }
}

TEST_F(ComboTest, TextOfADropDownListIsEmptyAndCantBeSet) {
  SendMessageA(Control(kDropDownList), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
  SendMessageA(Control(kDropDownList), CB_SETCURSEL, 0, 0);
  EXPECT_EQ(Text(kDropDownList), "");
  const MessageSpy spy;
  EXPECT_EQ(SetCombotext(kFormName, kDropDownList, "other"), RTX_OK);
  EXPECT_TRUE(spy.sent().empty());
  char text[20] = "";
  GetWindowTextA(Control(kDropDownList), text, sizeof text);
  EXPECT_STREQ(text, "item");
}

TEST_F(ComboTest, TextIsCutToTheBuffer) {
  for (const int32_t id : {int32_t{kDropDown}, int32_t{kSimple}}) {
    SCOPED_TRACE(id);
    SetCombotext(kFormName, id, "combo text");
    ExpectCallCutToFit("combo text",
                       [&](char* text, int32_t size) { GetCombotext(kFormName, id, text, size); });
  }
  ExpectCallCutToFit("",
                     [&](char* text, int32_t size) { GetCombotext(kFormName, kDropDownList, text, size); });
}

TEST_F(ComboTest, TextIsCutToTheLimitThatTheProgramSet) {
  struct Case {
    int32_t limit;
    const char* kept;
  };
  for (const Case& c : {Case{0, "0123456789"}, Case{1, "0"}, Case{9, "012345678"}, Case{10, "0123456789"},
                        Case{11, "0123456789"}, Case{-1, "0123456789"}}) {
    SCOPED_TRACE(c.limit);
    EXPECT_EQ(SetMaxLength(kFormName, kDropDown, c.limit), RTX_OK);
    EXPECT_EQ(SetCombotext(kFormName, kDropDown, "0123456789"), RTX_OK);
    EXPECT_EQ(Text(kDropDown), c.kept);
  }
}

TEST_F(ComboTest, TextWithoutMemoryStaysAsItWas) {
  SetCombotext(kFormName, kDropDown, "old");
  {
    const Allocations none("GlobalAlloc", Allocations::kAlways);
    EXPECT_EQ(SetCombotext(kFormName, kDropDown, "new"), RTX_NO_MEMORY);
    EXPECT_EQ(SetCombotext(kFormName, kDropDownList, "new"), RTX_OK);
  }
  EXPECT_EQ(Text(kDropDown), "old");
}

// ---- MaxLength ----

TEST_F(ComboTest, MaxLengthIsKeptInTheRowAndPassedOnToTheControl) {
  struct Case {
    int32_t id;
    UINT message;
  };
  for (const Case& c :
       {Case{kField, EM_LIMITTEXT}, Case{kDropDown, CB_LIMITTEXT}, Case{kSimple, CB_LIMITTEXT}}) {
    SCOPED_TRACE(c.id);
    EXPECT_EQ(Limit(c.id), 0);
    MessageSpy spy;
    EXPECT_EQ(SetMaxLength(kFormName, c.id, 12), RTX_OK);
    EXPECT_EQ(Limit(c.id), 12);
    const auto limits = spy.To(Control(c.id), c.message);
    ASSERT_EQ(limits.size(), 1u);
    EXPECT_EQ(limits[0].wParam, 12u);
    EXPECT_EQ(SetMaxLength(kFormName, c.id, 0), RTX_OK);
    EXPECT_EQ(Limit(c.id), 0);
  }
  SetMaxLength(kFormName, kField, 12);
  EXPECT_EQ(SendMessageA(Control(kField), EM_GETLIMITTEXT, 0, 0), 12);
}

TEST_F(ComboTest, MaxLengthOfADropDownListIsZeroAndCantBeSet) {
  const MessageSpy spy;
  EXPECT_EQ(SetMaxLength(kFormName, kDropDownList, 12), RTX_OK);
  EXPECT_EQ(Limit(kDropDownList), 0);
  EXPECT_TRUE(spy.sent().empty());
  // Nor is a limit that came in another way told.
  SendMessageA(form(), XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(Control(kDropDownList)), 5);
  EXPECT_EQ(Limit(kDropDownList), 0);
}

}  // namespace
}  // namespace brelt::test
