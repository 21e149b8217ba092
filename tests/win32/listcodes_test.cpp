// What the calls on menus, arrays, lists and groups report, whichever of their arguments are bad.
#include <string>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"

namespace brelt::test {
namespace {

// Of the form that all calls are tried on.
enum : int32_t { kList = 101, kCombo, kEdit, kRadio, kItem = 201, kUnknown = 999 };

constexpr const char* kForm =
    "Bar MENU\nBEGIN\n  MENUITEM \"item\", 201\nEND\n"
    "Form DIALOG 0, 0, 100, 100\nMENU Bar\nBEGIN\n"
    "  LISTBOX 101, 0, 0, 50, 50\n"
    "  COMBOBOX 102, 0, 0, 50, 50, CBS_DROPDOWNLIST\n"
    "  EDITTEXT 103, 0, 0, 50, 10\n"
    "  AUTORADIOBUTTON \"radio\", 104, 0, 0, 50, 10\n"
    "END\n";

constexpr int32_t kUntouched = 77;

// One try of a call: out and text are null when the call's required argument is to be missing.
struct Try {
  const char* name;
  int32_t id;
  int32_t* out;
  const char* text;
};

struct Row {
  const char* function;
  int32_t (*call)(const Try& arguments);
  int32_t missing;  // the code for the missing argument, 0 for a call that needs none
  bool hasOutput;
  // The code by what the id is.
  int32_t zero, unknown, list, combo, edit, radio, item;
};

const Row kRows[] = {
    {"AddItem", [](const Try& a) { return AddItem(a.name, a.id, -1, a.text, nullptr); }, 756, false, 727, 727,
     0, 0, 703, 703, 727},
    {"RemoveItem", [](const Try& a) { return RemoveItem(a.name, a.id, 1); }, 0, false, 727, 727, 0, 0, 703,
     703, 727},
    {"Clear", [](const Try& a) { return Clear(a.name, a.id); }, 0, false, 727, 727, 0, 0, 703, 703, 727},
    {"AlignItems", [](const Try& a) { return AlignItems(a.name, a.id); }, 0, false, 703, 727, 0, 703, 703,
     703, 703},
    {"Controlarray", [](const Try& a) { return Controlarray(a.name, a.id, 1, a.out); }, 753, true, 707, 727,
     0, 0, 0, 0, 0},
    {"Controlarraypos", [](const Try& a) { return Controlarraypos(a.name, a.id, a.name, kEdit, a.out); }, 753,
     true, 707, 727, 0, 0, 0, 0, 0},
    {"ControlLbound", [](const Try& a) { return ControlLbound(a.name, a.id, a.out); }, 753, true, 707, 727, 0,
     0, 0, 0, 0},
    {"ControlUbound", [](const Try& a) { return ControlUbound(a.name, a.id, a.out); }, 753, true, 707, 727, 0,
     0, 0, 0, 0},
    // A missing output is no failure of these two.
    {"Controlselection", [](const Try& a) { return Controlselection(a.name, a.id, a.out); }, 0, true, 727,
     727, 703, 703, 703, 0, 727},
    {"Controlselectionpos", [](const Try& a) { return Controlselectionpos(a.name, a.id, a.out); }, 0, true,
     727, 727, 703, 703, 703, 0, 727},
    // The id is the item that the new one follows.
    {"AddMenuitem",
     [](const Try& a) { return AddMenuitem(a.name, static_cast<uint32_t>(a.id), 300, a.text); }, 756, false,
     727, 727, 727, 727, 727, 727, 0},
    {"AddMenuitems",
     [](const Try& a) {
       const uint32_t ids[] = {301, 0};
       return AddMenuitems(a.name, static_cast<uint32_t>(a.id), ids, a.text);
     },
     756, false, 727, 727, 727, 727, 727, 727, 0},
    {"RemoveMenuitem", [](const Try& a) { return RemoveMenuitem(a.name, static_cast<uint32_t>(a.id)); }, 0,
     false, 0, 0, 0, 0, 0, 0, 0},
    {"RemoveMenuitems", [](const Try& a) { return RemoveMenuitems(a.name, static_cast<uint32_t>(a.id), 1); },
     0, false, 0, 0, 0, 0, 0, 0, 0},
};

struct Id {
  int32_t id;
  int32_t Row::*code;
};
constexpr Id kIds[] = {{0, &Row::zero},       {kUnknown, &Row::unknown}, {kList, &Row::list},
                       {kCombo, &Row::combo}, {kEdit, &Row::edit},       {kRadio, &Row::radio},
                       {kItem, &Row::item}};

std::vector<std::string> traced;
void WINAPI CollectDebugString(const char* text) { traced.emplace_back(text); }

class ListCodesTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    ASSERT_EQ(LoadText("Form", kForm).code, RTX_OK);
  }
  void TearDown() override {
    SetTrace(0);
    FormTest::TearDown();
  }
};

int32_t Expected(const Row& row, const char* name, bool missing, const Id& id) {
  if (name == nullptr) return RTX_NULL_ARG;
  if (missing && row.missing != 0) return row.missing;
  return std::string(name) == "Form" ? row.*id.code : std::int32_t{RTX_NO_WINDOW};
}

TEST_F(ListCodesTest, ReportNameThenMissingArgumentThenWindowThenIdThenKind) {
  for (const Row& row : kRows) {
    for (const Id& id : kIds) {
      for (const bool missing : {true, false}) {
        for (const char* name : {static_cast<const char*>(nullptr), "nobody", "Form"}) {
          SCOPED_TRACE(std::string(row.function) + " of " + (name != nullptr ? name : "null") + ", id " +
                       std::to_string(id.id) + (missing ? " with an argument missing" : ""));
          int32_t out = kUntouched;
          const Try arguments = {name, id.id, missing ? nullptr : &out, missing ? nullptr : "text\n"};
          const int32_t expected = Expected(row, name, missing, id);
          EXPECT_EQ(row.call(arguments), expected);
          if (expected != RTX_OK) {
            const bool cleared = row.hasOutput && !missing;
            EXPECT_EQ(out, cleared ? -1 : kUntouched);
          }
        }
      }
    }
    // Items that the calls added or removed.
    DestroyLibraryWindows();
    ASSERT_EQ(LoadText("Form", kForm).code, RTX_OK);
  }
}

TEST_F(ListCodesTest, TraceTheCallsOwnNameAlsoWhenItFails) {
  const ReplacedImport output("OutputDebugStringA", reinterpret_cast<void*>(&CollectDebugString));
  SetTrace(1);
  int32_t out = 0;
  for (const Row& row : kRows) {
    for (const char* name : {static_cast<const char*>(nullptr), "Form"}) {
      traced.clear();
      row.call({name, kList, &out, "text"});
      EXPECT_EQ(traced, (std::vector<std::string>{row.function, "\n"}));
    }
  }
  const struct {
    const char* function;
    void (*call)();
  } others[] = {{"ControlList", [] { ControlList(nullptr, 0, nullptr, 0, nullptr); }},
                {"Command", [] { Command(nullptr, 0, nullptr); }},
                {"AppIcon", [] { AppIcon(nullptr, nullptr); }},
                {"TrackRect",
                 [] { TrackRect(nullptr, 0, 0, 0, 0, 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr); }}};
  for (const auto& other : others) {
    traced.clear();
    other.call();
    EXPECT_EQ(traced, (std::vector<std::string>{other.function, "\n"}));
  }
}

TEST_F(ListCodesTest, OfControlarrayposNeedBothNamesAndBothWindows) {
  ASSERT_EQ(LoadDialog("Other", "  LISTBOX 101, 0, 0, 50, 50\n", "STYLE WS_POPUP\n").code, RTX_OK);
  struct Case {
    const char* what;
    const char* name;
    int32_t id;
    const char* memberName;
    bool output;
    int32_t code;
  };
  const Case cases[] = {
      {"null member name", "Form", kList, nullptr, true, 756},
      {"null member name ahead of a null output", "Form", kList, nullptr, false, 756},
      {"null member name ahead of an unknown window", "nobody", kList, nullptr, true, 756},
      {"null output ahead of an unknown member window", "Form", kList, "nobody", false, 753},
      {"unknown member window", "Form", kList, "nobody", true, 702},
      {"unknown member window ahead of id 0", "Form", 0, "nobody", true, 702},
      {"id 0 ahead of different windows", "Form", 0, "Other", true, 707},
      {"different windows", "Form", kList, "Other", true, 727},
      {"different windows ahead of an unknown id", "Form", kUnknown, "Other", true, 727},
      {"the same window in another case", "Form", kList, "FORM", true, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    int32_t index = kUntouched;
    EXPECT_EQ(Controlarraypos(c.name, c.id, c.memberName, kList, c.output ? &index : nullptr), c.code);
    if (c.output) {
      EXPECT_EQ(index, c.code == RTX_OK ? 1 : -1);
    }
  }
}

TEST_F(ListCodesTest, OfMenuCallsHaveAnOrderOfTheirOwn) {
  ASSERT_EQ(LoadDialog("Bare", "  LISTBOX 101, 0, 0, 50, 50\n").code, RTX_OK);
  const uint32_t free[] = {300, 0};
  const uint32_t control[] = {300, kList, 0};
  const uint32_t present[] = {300, kItem, 0};
  struct Case {
    const char* what;
    int32_t result;
    int32_t code;
  };
  const Case cases[] = {
      {"AddMenuitem without a menu", AddMenuitem("Bare", kItem, 300, "x"), 727},
      {"AddMenuitem without a menu ahead of a control's id", AddMenuitem("Bare", kItem, kList, "x"), 727},
      {"AddMenuitem behind an unknown item ahead of a control's id", AddMenuitem("Form", 999, kList, "x"),
       727},
      {"AddMenuitem with a control's id", AddMenuitem("Form", kItem, kList, "x"), 703},
      {"AddMenuitems without texts ahead of no ids", AddMenuitems("Form", kItem, nullptr, nullptr), 756},
      {"AddMenuitems without a name ahead of no ids", AddMenuitems(nullptr, kItem, nullptr, "x"), 756},
      {"AddMenuitems without ids", AddMenuitems("Form", kItem, nullptr, "x"), 760},
      {"AddMenuitems without ids ahead of an unknown window", AddMenuitems("nobody", kItem, nullptr, "x"),
       760},
      {"AddMenuitems without a menu", AddMenuitems("Bare", kItem, free, "x"), 727},
      {"AddMenuitems behind an unknown item ahead of a control's id", AddMenuitems("Form", 999, control, "x"),
       727},
      {"AddMenuitems with a control's id", AddMenuitems("Form", kItem, control, "x"), 703},
      {"AddMenuitems with an item's id", AddMenuitems("Form", kItem, present, "x"), 703},
      {"RemoveMenuitem without a menu", RemoveMenuitem("Bare", kItem), 727},
      {"RemoveMenuitems without a menu", RemoveMenuitems("Bare", kItem, 1), 727},
      {"RemoveMenuitems of an unknown item", RemoveMenuitems("Form", 999, 1), 0},
  };
  for (const Case& c : cases) EXPECT_EQ(c.result, c.code) << c.what;
}

}  // namespace
}  // namespace brelt::test
