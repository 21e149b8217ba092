// Caption: the text on windows, buttons, labels, icon lists and menu items.
#include <string>

#include "tests/support/guarded.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

class CaptionTest : public PropertyTest {
 protected:
  static std::string Caption(int32_t id, const char* name = kFormName) {
    char text[2048] = "unset";
    EXPECT_EQ(GetCaption(name, id, text, sizeof text), RTX_OK);
    return text;
  }
};

TEST_F(CaptionTest, IsTheTextThatTheFormGives) {
  EXPECT_EQ(Caption(0), "Title");
  EXPECT_EQ(Caption(kPush), "Push");
  EXPECT_EQ(Caption(kGroupBox), "Group");
  EXPECT_EQ(Caption(kLabel), "Label");
  EXPECT_EQ(Caption(kIcon), "");
  EXPECT_EQ(Caption(kIconList), "Icons");
  EXPECT_EQ(Caption(kItem), "Item");
}

TEST_F(CaptionTest, OfEachObjectIsCutToTheBuffer) {
  for (const int32_t id : {int32_t{0}, int32_t{kPush}, int32_t{kLabel}, int32_t{kIconList}, int32_t{kItem}}) {
    SCOPED_TRACE(id);
    const std::string text = "A caption\xE4 of some length";
    ASSERT_EQ(SetCaption(kFormName, id, text.c_str()), RTX_OK);
    ExpectCallCutToFit(text, [&](char* out, int32_t size) { GetCaption(kFormName, id, out, size); });
  }
}

TEST_F(CaptionTest, OfAnEditWindowIsItsTitle) {
  const EditFrame frame(kPlainFrameClass, "Plain");
  EXPECT_EQ(SetCaption("Plain", 0, "New"), RTX_OK);
  EXPECT_EQ(TextOf(frame.get()), "New");
  EXPECT_EQ(Caption(0, "Plain"), "New");
}

TEST_F(CaptionTest, IsSetAndTheControlPaintedWithItsBackground) {
  ShowForm();
  for (const int32_t id :
       {int32_t{kPush}, int32_t{kCheck}, int32_t{kAutoRadio}, int32_t{kLabel}, int32_t{kIconList}}) {
    SCOPED_TRACE(id);
    MessageSpy spy;
    EXPECT_EQ(SetCaption(kFormName, id, "New"), RTX_OK);
    EXPECT_EQ(TextOf(Control(id)), "New");
    EXPECT_GE(PaintingOf(spy, Control(id)).paints, 1);
    EXPECT_GE(PaintingOf(spy, Control(id)).erasures, 1);
    EXPECT_FALSE(GetUpdateRect(Control(id), nullptr, FALSE));
  }
}

TEST_F(CaptionTest, OfAWindowIsOnlySet) {
  ShowForm();
  const MessageSpy spy;
  EXPECT_EQ(SetCaption(kFormName, 0, "New"), RTX_OK);
  EXPECT_EQ(TextOf(form()), "New");
  EXPECT_EQ(spy.To(form(), WM_SETTEXT).size(), 1u);
  EXPECT_EQ(PaintingOf(spy, form()), (Painting{0, 0}));
}

TEST_F(CaptionTest, OfAnIconListIsCutTo1024AndLosesATabAtItsVeryEnd) {
  struct Case {
    std::string text;
    std::string kept;
  };
  const std::string filler(1023, 'x');
  const Case cases[] = {
      {"a\tb", "a\tb"},
      {"a\tb\t", "a\tb"},
      {"a\t\t", "a\t"},
      {"\t", ""},
      {"a\t ", "a\t "},
      {"", ""},
      {filler + "y\t", filler + "y"},
      {filler + "\ty", filler},
      {filler + "yz", filler + "y"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(SetCaption(kFormName, kIconList, c.text.c_str()), RTX_OK);
    EXPECT_EQ(TextOf(Control(kIconList)), c.kept);
  }
  // Buttons and labels take what they are given.
  for (const int32_t id : {int32_t{kPush}, int32_t{kLabel}}) {
    EXPECT_EQ(SetCaption(kFormName, id, (filler + "yz\t").c_str()), RTX_OK);
    EXPECT_EQ(TextOf(Control(id)), filler + "yz\t");
  }
}

TEST_F(CaptionTest, OfAMenuItemKeepsIdCheckMarkAndGreyingAndRedrawsTheBar) {
  for (const UINT state :
       {UINT{MF_ENABLED}, UINT{MF_CHECKED}, UINT{MF_GRAYED}, UINT{MF_CHECKED | MF_GRAYED}}) {
    SCOPED_TRACE(state);
    CheckMenuItem(menu(), kItem, MF_BYCOMMAND | (state & MF_CHECKED));
    EnableMenuItem(menu(), kItem, MF_BYCOMMAND | (state & MF_GRAYED));
    const CountedImport<struct BarTag, BOOL, HWND> bar("DrawMenuBar");
    EXPECT_EQ(SetCaption(kFormName, kItem, "&New\tCtrl+N"), RTX_OK);
    EXPECT_EQ(bar.calls(), 1);
    EXPECT_EQ(Caption(kItem), "&New\tCtrl+N");
    EXPECT_EQ(GetMenuState(menu(), kItem, MF_BYCOMMAND) & (MF_CHECKED | MF_GRAYED | MF_DISABLED),
              state & (MF_CHECKED | MF_GRAYED));
    HMENU popup = GetSubMenu(menu(), 0);
    EXPECT_EQ(GetMenuItemID(popup, 0), static_cast<UINT>(kItem));
    EXPECT_EQ(GetMenuItemCount(popup), 2);
  }
}

}  // namespace
}  // namespace brelt::test
