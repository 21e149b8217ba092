// Arrays of controls and of menu items, and groups of buttons.
#include <climits>
#include <random>
#include <vector>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

// A call's output where it succeeds, which it must.
constexpr int32_t kFailed = -99;

int32_t ArrayMember(int32_t id, int32_t index) {
  int32_t member = kFailed;
  EXPECT_EQ(Controlarray("Form", id, index, &member), RTX_OK);
  return member;
}

int32_t ArrayPosition(int32_t id, int32_t memberId) {
  int32_t index = kFailed;
  EXPECT_EQ(Controlarraypos("Form", id, "Form", memberId, &index), RTX_OK);
  return index;
}

int32_t LowerBound(int32_t id) {
  int32_t bound = kFailed;
  EXPECT_EQ(ControlLbound("Form", id, &bound), RTX_OK);
  return bound;
}

int32_t UpperBound(int32_t id) {
  int32_t bound = kFailed;
  EXPECT_EQ(ControlUbound("Form", id, &bound), RTX_OK);
  return bound;
}

// Tries an array from each of its members, with both bases.
void ExpectArray(const std::vector<int32_t>& ids) {
  const auto count = static_cast<int32_t>(ids.size());
  for (const int32_t base : {0, 1}) {
    SetOptionBase(base);
    for (const int32_t id : ids) {
      SCOPED_TRACE("array of " + std::to_string(id) + ", base " + std::to_string(base));
      EXPECT_EQ(LowerBound(id), base);
      EXPECT_EQ(UpperBound(id), base + count - 1);
      for (int32_t i = 0; i < count; ++i) {
        EXPECT_EQ(ArrayMember(id, base + i), ids[static_cast<std::size_t>(i)]);
        EXPECT_EQ(ArrayPosition(id, ids[static_cast<std::size_t>(i)]), base + i);
      }
      for (const int32_t index : {base - 1, base + count, base + count + 1, INT_MIN, INT_MAX}) {
        EXPECT_EQ(ArrayMember(id, index), -1) << index;
      }
    }
  }
}

class ControlArrayTest : public FormTest {
 protected:
  void TearDown() override {
    SetOptionBase(1);
    FormTest::TearDown();
  }
};

// ---- Arrays of controls ----

TEST_F(ControlArrayTest, IsARunOfNeighboursOfOneKind) {
  ASSERT_EQ(LoadDialog("Form",
                       "  AUTOCHECKBOX \"a\", 101, 0, 0, 50, 10\n"
                       "  AUTOCHECKBOX \"b\", 105, 0, 10, 50, 10\n"
                       "  AUTOCHECKBOX \"c\", 103, 0, 20, 50, 10\n"
                       "  EDITTEXT 110, 0, 30, 50, 10\n"
                       "  AUTOCHECKBOX \"d\", 102, 0, 40, 50, 10\n"
                       "  AUTOCHECKBOX \"e\", 104, 0, 50, 50, 10\n")
                .code,
            RTX_OK);
  ExpectArray({101, 105, 103});
  ExpectArray({110});
  ExpectArray({102, 104});
}

TEST_F(ControlArrayTest, GoesByKindAndNotByClassOrStyle) {
  ASSERT_EQ(LoadDialog("Form",
                       // Four types of one kind, then others of the same class, then two types of a label.
                       "  CHECKBOX \"a\", 101, 0, 0, 50, 10\n"
                       "  AUTOCHECKBOX \"b\", 102, 0, 0, 50, 10\n"
                       "  CONTROL \"c\", 103, \"BUTTON\", 0x5, 0, 0, 50, 10\n"
                       "  CONTROL \"d\", 104, \"BUTTON\", 0x6, 0, 0, 50, 10\n"
                       "  RADIOBUTTON \"e\", 105, 0, 0, 50, 10\n"
                       "  AUTORADIOBUTTON \"f\", 106, 0, 0, 50, 10\n"
                       "  GROUPBOX \"g\", 107, 0, 0, 50, 10\n"
                       "  DEFPUSHBUTTON \"h\", 108, 0, 0, 50, 10\n"
                       "  PUSHBUTTON \"i\", 109, 0, 0, 50, 10\n"
                       "  LTEXT \"j\", 110, 0, 0, 50, 10\n"
                       "  CTEXT \"k\", 111, 0, 0, 50, 10\n")
                .code,
            RTX_OK);
  ExpectArray({101, 102, 103, 104});
  ExpectArray({105, 106});
  ExpectArray({107});
  ExpectArray({108, 109});
  ExpectArray({110, 111});
}

TEST_F(ControlArrayTest, OfCustomControlsGoesByFamily) {
  const LoadResult form = LoadDialog("Form",
                                     "  CONTROL \"\", 101, \"ICONLIST\", WS_VISIBLE, 0, 0, 50, 50\n"
                                     "  CONTROL \"\", 102, \"ICONLIST\", WS_VISIBLE, 0, 0, 50, 50\n"
                                     "  CONTROL \"\", 103, \"SHAPE\", WS_VISIBLE, 0, 0, 50, 50\n"
                                     "  LISTBOX 104, 0, 0, 50, 50\n");
  ASSERT_EQ(form.code, RTX_OK) << form.message;
  ExpectArray({101, 102});
  ExpectArray({103});
  ExpectArray({104});
}

TEST_F(ControlArrayTest, FollowsTheWindowOrder) {
  const LoadResult form = LoadDialog("Form",
                                     "  PUSHBUTTON \"a\", 101, 0, 0, 50, 10\n"
                                     "  PUSHBUTTON \"b\", 102, 0, 0, 50, 10\n"
                                     "  EDITTEXT 103, 0, 0, 50, 10\n"
                                     "  PUSHBUTTON \"c\", 104, 0, 0, 50, 10\n");
  ASSERT_EQ(form.code, RTX_OK);
  ExpectArray({101, 102});
  SetWindowPos(GetDlgItem(form.window, 103), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ExpectArray({101, 102, 104});
  SetWindowPos(GetDlgItem(form.window, 101), HWND_BOTTOM, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ExpectArray({102, 104, 101});
}

TEST_F(ControlArrayTest, GivesMinus1ForWhatIsNotInIt) {
  ASSERT_EQ(LoadText("Form",
                     "Bar MENU\nBEGIN\n  MENUITEM \"x\", 201\nEND\n"
                     "Form DIALOG 0, 0, 100, 100\nMENU Bar\nBEGIN\n"
                     "  PUSHBUTTON \"a\", 101, 0, 0, 50, 10\n"
                     "  EDITTEXT 102, 0, 0, 50, 10\n"
                     "  PUSHBUTTON \"b\", 103, 0, 0, 50, 10\nEND\n")
                .code,
            RTX_OK);
  // Of another kind, of another run of the same kind, no control at all, and a menu item.
  for (const int32_t memberId : {102, 103, 999, 0, -1, 201}) {
    EXPECT_EQ(ArrayPosition(101, memberId), -1) << memberId;
  }
  for (const int32_t memberId : {101, 102, 999, 0, -1}) EXPECT_EQ(ArrayPosition(201, memberId), -1);
}

TEST_F(ControlArrayTest, HasAProgramsOwnChildrenButNoneByTheIdZero) {
  const LoadResult form = LoadDialog("Form", "  LTEXT \"a\", 101, 0, 0, 50, 10\n");
  ASSERT_EQ(form.code, RTX_OK);
  const TestWindow own("STATIC", "own", WS_CHILD, form.window);
  ASSERT_EQ(GetDlgCtrlID(own.get()), 0);
  EXPECT_EQ(UpperBound(101), 2);
  EXPECT_EQ(ArrayMember(101, 2), 0);
  EXPECT_EQ(ArrayPosition(101, 0), -1);
}

// The kind of a class whose name begins with a point is empty, and makes no neighbours.
TEST_F(ControlArrayTest, OfAControlWithoutAKindIsThatControlAlone) {
  const LoadResult form = LoadDialog("Form", "");
  ASSERT_EQ(form.code, RTX_OK);
  const TestClass nameless(".NAMELESS");
  nameless.MakeChild(form.window, 101);
  nameless.MakeChild(form.window, 102);
  ExpectArray({101});
  ExpectArray({102});
  DestroyLibraryWindows();
}

// Forms of random kinds against a plain list of them.
TEST_F(ControlArrayTest, AgreesWithTheOrderOfTheStatementsInAnyForm) {
  const char* const kStatements[] = {"AUTOCHECKBOX \"x\", %d, 0, 0, 9, 9\n",
                                     "PUSHBUTTON \"x\", %d, 0, 0, 9, 9\n", "EDITTEXT %d, 0, 0, 9, 9\n",
                                     "LISTBOX %d, 0, 0, 9, 9\n"};
  std::mt19937 random(4711);
  for (int round = 0; round < 8; ++round) {
    std::string text;
    std::vector<std::vector<int32_t>> arrays;
    std::size_t previous = 99;
    for (int32_t id = 101; id < 125; ++id) {
      const std::size_t kind = random() % (round % 4 + 1);
      char line[64];
      std::snprintf(line, sizeof line, kStatements[kind], static_cast<int>(id));
      text += line;
      if (kind != previous) arrays.emplace_back();
      previous = kind;
      arrays.back().push_back(id);
    }
    SCOPED_TRACE(text);
    ASSERT_EQ(LoadDialog("Form", text).code, RTX_OK);
    for (const std::vector<int32_t>& array : arrays) ExpectArray(array);
    DestroyLibraryWindows();
  }
}

// ---- Arrays of menu items ----

TEST_F(ControlArrayTest, OfAMenuItemIsItsPopupWithSeparatorsAndPopups) {
  ASSERT_EQ(LoadText("Form",
                     "Bar MENU\nBEGIN\n"
                     "  POPUP \"File\"\n  BEGIN\n"
                     "    MENUITEM \"a\", 201\n    MENUITEM SEPARATOR\n    MENUITEM \"b\", 202\n"
                     "    POPUP \"Deep\"\n    BEGIN\n      MENUITEM \"c\", 203\n    END\n"
                     "    MENUITEM \"d\", 204\n  END\n"
                     "  MENUITEM \"e\", 205\nEND\n"
                     "Form DIALOG 0, 0, 100, 100\nMENU Bar\nBEGIN\n  EDITTEXT 101, 0, 0, 50, 10\nEND\n")
                .code,
            RTX_OK);
  struct Case {
    int32_t id;
    std::vector<int32_t> items;  // as the platform tells them: 0 a separator, -1 a popup
  };
  const Case cases[] = {
      {201, {201, 0, 202, -1, 204}}, {204, {201, 0, 202, -1, 204}}, {203, {203}}, {205, {-1, 205}}};
  for (const int32_t base : {0, 1}) {
    SetOptionBase(base);
    for (const Case& c : cases) {
      SCOPED_TRACE(std::to_string(c.id) + ", base " + std::to_string(base));
      const auto count = static_cast<int32_t>(c.items.size());
      EXPECT_EQ(LowerBound(c.id), base);
      EXPECT_EQ(UpperBound(c.id), base + count - 1);
      for (int32_t i = 0; i < count; ++i) {
        const int32_t item = c.items[static_cast<std::size_t>(i)];
        EXPECT_EQ(ArrayMember(c.id, base + i), item);
        if (item > 0) {
          EXPECT_EQ(ArrayPosition(c.id, item), base + i);
        }
      }
      for (const int32_t index : {base - 1, base + count, INT_MIN, INT_MAX}) {
        EXPECT_EQ(ArrayMember(c.id, index), -1) << index;
      }
    }
    // Items of a popup below or above are no members, and neither is what isn't in the menu.
    EXPECT_EQ(ArrayPosition(201, 203), -1);
    EXPECT_EQ(ArrayPosition(201, 205), -1);
    EXPECT_EQ(ArrayPosition(205, 201), -1);
    EXPECT_EQ(ArrayPosition(203, 202), -1);
    EXPECT_EQ(ArrayPosition(201, 999), -1);
    EXPECT_EQ(ArrayPosition(201, 101), -1);
    EXPECT_EQ(ArrayPosition(201, 0), -1);
  }
}

TEST_F(ControlArrayTest, OfMenuItemsFollowsTheMenu) {
  ASSERT_EQ(LoadText("Form",
                     "Bar MENU\nBEGIN\n  POPUP \"File\"\n  BEGIN\n    MENUITEM \"a\", 201\n  END\nEND\n"
                     "Form DIALOG 0, 0, 100, 100\nMENU Bar\nBEGIN\nEND\n")
                .code,
            RTX_OK);
  ASSERT_EQ(AddMenuitem("Form", 201, 202, "b"), RTX_OK);
  EXPECT_EQ(UpperBound(201), 2);
  EXPECT_EQ(ArrayPosition(201, 202), 2);
  ASSERT_EQ(RemoveMenuitem("Form", 201), RTX_OK);
  EXPECT_EQ(UpperBound(202), 1);
  EXPECT_EQ(ArrayMember(202, 1), 202);
}

TEST_F(ControlArrayTest, OfAControlCountsAheadOfAMenuItemWithItsId) {
  ASSERT_EQ(LoadText("Form",
                     "Bar MENU\nBEGIN\n  MENUITEM \"a\", 101\n  MENUITEM \"b\", 102\nEND\n"
                     "Form DIALOG 0, 0, 100, 100\nMENU Bar\nBEGIN\n  EDITTEXT 101, 0, 0, 50, 10\nEND\n")
                .code,
            RTX_OK);
  EXPECT_EQ(UpperBound(101), 1);
  EXPECT_EQ(UpperBound(102), 2);
}

// ---- Groups ----

struct Selected {
  int32_t code;
  int32_t id;
  int32_t position;

  bool operator==(const Selected&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Selected& selected) {
  return out << "code " << selected.code << ", id " << selected.id << ", position " << selected.position;
}

Selected SelectionOf(int32_t id) {
  Selected selected = {kFailed, kFailed, kFailed};
  selected.code = Controlselection("Form", id, &selected.id);
  EXPECT_EQ(Controlselectionpos("Form", id, &selected.position), selected.code);
  return selected;
}

void TurnOn(HWND window, int id, WPARAM state = BST_CHECKED) {
  SendMessageA(GetDlgItem(window, id), BM_SETCHECK, state, 0);
}

TEST_F(ControlArrayTest, SelectionIsTheFirstButtonThatIsOn) {
  const LoadResult form = LoadDialog("Form",
                                     "  AUTORADIOBUTTON \"a\", 101, 0, 0, 50, 10\n"
                                     "  AUTORADIOBUTTON \"b\", 102, 0, 0, 50, 10\n"
                                     "  AUTORADIOBUTTON \"c\", 103, 0, 0, 50, 10\n"
                                     "  EDITTEXT 110, 0, 0, 50, 10\n"
                                     "  AUTORADIOBUTTON \"d\", 104, 0, 0, 50, 10\n");
  ASSERT_EQ(form.code, RTX_OK);
  for (const int32_t id : {101, 102, 103, 104}) EXPECT_EQ(SelectionOf(id), (Selected{0, -1, -1}));
  TurnOn(form.window, 102);
  for (const int32_t base : {1, 0}) {
    SetOptionBase(base);
    for (const int32_t id : {101, 102, 103}) EXPECT_EQ(SelectionOf(id), (Selected{0, 102, base + 1}));
    EXPECT_EQ(SelectionOf(104), (Selected{0, -1, -1}));
  }
  TurnOn(form.window, 101);
  EXPECT_EQ(SelectionOf(103), (Selected{0, 101, 0}));
  TurnOn(form.window, 104);
  EXPECT_EQ(SelectionOf(104), (Selected{0, 104, 0}));
  // A missing output only means that the result goes nowhere.
  EXPECT_EQ(Controlselection("Form", 101, nullptr), RTX_OK);
  EXPECT_EQ(Controlselectionpos("Form", 101, nullptr), RTX_OK);
}

// The test is on the style's bits, so that more than radio buttons pass it. Programs rely on it.
TEST_F(ControlArrayTest, SelectionIsAllowedByTheBitsOfTheStyle) {
  struct Case {
    const char* statement;
    int32_t code;
  };
  const Case cases[] = {{"PUSHBUTTON \"x\", 101, 0, 0, 50, 10", 703},
                        {"DEFPUSHBUTTON \"x\", 101, 0, 0, 50, 10", 703},
                        {"CHECKBOX \"x\", 101, 0, 0, 50, 10", 703},
                        {"AUTOCHECKBOX \"x\", 101, 0, 0, 50, 10", 703},
                        {"RADIOBUTTON \"x\", 101, 0, 0, 50, 10", 0},
                        {"CONTROL \"x\", 101, \"BUTTON\", 0x5, 0, 0, 50, 10", 0},
                        {"CONTROL \"x\", 101, \"BUTTON\", 0x6, 0, 0, 50, 10", 0},
                        {"GROUPBOX \"x\", 101, 0, 0, 50, 10", 0},
                        {"CONTROL \"x\", 101, \"BUTTON\", 0x8, 0, 0, 50, 10", 703},
                        {"AUTORADIOBUTTON \"x\", 101, 0, 0, 50, 10", 0},
                        {"CONTROL \"x\", 101, \"BUTTON\", 0xA, 0, 0, 50, 10", 703},
                        {"CONTROL \"x\", 101, \"BUTTON\", 0xB, 0, 0, 50, 10", 0},
                        {"CONTROL \"\", 101, \"BITMAPBUTTON\", 0x0, 0, 0, 50, 10", 703},
                        {"CONTROL \"\", 101, \"BITMAPBUTTON\", 0x2, 0, 0, 50, 10", 703},
                        {"CONTROL \"\", 101, \"BITMAPBUTTON\", 0x4, 0, 0, 50, 10", 0},
                        {"CONTROL \"\", 101, \"BITMAPBUTTON\", 0x9, 0, 0, 50, 10", 703},
                        {"CONTROL \"x\", 101, \"STATIC\", 0x4, 0, 0, 50, 10", 703},
                        {"CONTROL \"\", 101, \"ICONLIST\", 0x4, 0, 0, 50, 10", 703}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.statement);
    const LoadResult form = LoadDialog("Form", std::string("  ") + c.statement + "\n");
    ASSERT_EQ(form.code, RTX_OK) << form.message;
    EXPECT_EQ(SelectionOf(101), (Selected{c.code, -1, -1}));
    DestroyLibraryWindows();
  }
}

TEST_F(ControlArrayTest, SelectionCountsAnyStateButOff) {
  const LoadResult form = LoadDialog("Form",
                                     "  CONTROL \"a\", 101, \"BUTTON\", 0x6, 0, 0, 50, 10\n"
                                     "  CONTROL \"b\", 102, \"BUTTON\", 0x6, 0, 0, 50, 10\n");
  ASSERT_EQ(form.code, RTX_OK);
  TurnOn(form.window, 102, BST_INDETERMINATE);
  EXPECT_EQ(SelectionOf(101), (Selected{0, 102, 2}));
}

// The walk begins at the first of the run of one kind, wherever the button stands in it.
TEST_F(ControlArrayTest, SelectionEndsAtAButtonOfAnotherType) {
  const LoadResult form = LoadDialog("Form",
                                     "  AUTORADIOBUTTON \"a\", 101, 0, 0, 50, 10\n"
                                     "  AUTORADIOBUTTON \"b\", 102, 0, 0, 50, 10\n"
                                     "  RADIOBUTTON \"c\", 103, 0, 0, 50, 10\n"
                                     "  AUTORADIOBUTTON \"d\", 104, 0, 0, 50, 10\n");
  ASSERT_EQ(form.code, RTX_OK);
  TurnOn(form.window, 103);
  TurnOn(form.window, 104);
  for (const int32_t id : {101, 102, 103, 104}) EXPECT_EQ(SelectionOf(id), (Selected{0, -1, -1})) << id;
  TurnOn(form.window, 102);
  for (const int32_t id : {101, 102, 103, 104}) EXPECT_EQ(SelectionOf(id), (Selected{0, 102, 2})) << id;
}

TEST_F(ControlArrayTest, SelectionOfBitmapButtonsIsThatOfTheirFamily) {
  const LoadResult form = LoadDialog("Form",
                                     "  CONTROL \"\", 101, \"BITMAPBUTTON\", 0x4, 0, 0, 50, 10\n"
                                     "  CONTROL \"\", 102, \"BITMAPBUTTON\", 0x4, 0, 0, 50, 10\n"
                                     "  AUTORADIOBUTTON \"x\", 103, 0, 0, 50, 10\n");
  ASSERT_EQ(form.code, RTX_OK) << form.message;
  TurnOn(form.window, 103);
  EXPECT_EQ(SelectionOf(101), (Selected{0, -1, -1}));
  TurnOn(form.window, 102);
  EXPECT_EQ(SelectionOf(101), (Selected{0, 102, 2}));
  EXPECT_EQ(SelectionOf(103), (Selected{0, 103, 1}));
}

}  // namespace
}  // namespace brelt::test
