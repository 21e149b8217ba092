#include <climits>
#include <vector>

#include "tests/support/guarded.h"
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

constexpr const char* kControls =
    "  LTEXT \"a\", 101, 0, 0, 50, 10\n"
    "  COMBOBOX IDC_NAMES, 0, 0, 50, 50, CBS_DROPDOWN\n"
    "  PUSHBUTTON \"b\", IDOK, 0, 0, 50, 10\n"
    "  CONTROL \"\", 0103, \"ICONLIST\", 0x0, 0, 0, 50, 50\n";
constexpr int kControlCount = 4;

class ControlListTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    const LoadResult form = LoadText("Form", std::string("#define IDC_NAMES 102\n"
                                                         "Form DIALOG 0, 0, 100, 100\nBEGIN\n") +
                                                 kControls + "END\n");
    ASSERT_EQ(form.code, RTX_OK) << form.message;
    window_ = form.window;
  }
  std::string Handle(int id) const {
    char text[20];
    std::snprintf(text, sizeof text, "0x%x", reinterpret_cast<unsigned>(GetDlgItem(window_, id)));
    return text;
  }
  std::string Details() const {
    return "101,Label," + Handle(101) + "\nIDC_NAMES,Combobox," + Handle(102) + "\nIDOK,Pushbutton," +
           Handle(1) + "\n0103,Iconlist," + Handle(103) + "\n";
  }

  HWND window_ = nullptr;
};

TEST_F(ControlListTest, NamesTheControlsAsTheScriptDoes) {
  // The field of the combo box is a window within it.
  ASSERT_NE(GetWindow(GetDlgItem(window_, 102), GW_CHILD), nullptr);
  char text[200] = "unset";
  int32_t count = -1;
  EXPECT_EQ(ControlList("Form", 0, text, sizeof text, &count), kControlCount);
  EXPECT_EQ(count, kControlCount);
  EXPECT_STREQ(text, "101\nIDC_NAMES\nIDOK\n0103\n");
}

TEST_F(ControlListTest, AddsKindAndHandleWithDetails) {
  for (const uint8_t details : {uint8_t{1}, uint8_t{2}, uint8_t{255}}) {
    char text[300] = "unset";
    int32_t count = -1;
    EXPECT_EQ(ControlList("FORM", details, text, sizeof text, &count), kControlCount);
    EXPECT_EQ(count, kControlCount);
    EXPECT_EQ(text, Details());
  }
}

TEST_F(ControlListTest, CutsTheTextAndCountsOn) {
  for (const bool details : {false, true}) {
    const std::string full = details ? Details() : "101\nIDC_NAMES\nIDOK\n0103\n";
    // Each size, so that the cut falls everywhere: in a name, on a comma, in a handle.
    for (int size = 1; size <= static_cast<int>(full.size()) + 2; ++size) {
      SCOPED_TRACE(size);
      GuardedBuffer guarded(size);
      int32_t count = -1;
      EXPECT_EQ(ControlList("Form", details ? 1 : 0, guarded.data(), size, &count), kControlCount);
      EXPECT_EQ(count, kControlCount);
      EXPECT_TRUE(guarded.IsIntact());
      EXPECT_EQ(guarded.Text(), full.substr(0, static_cast<std::size_t>(size) - 1));
    }
  }
}

TEST_F(ControlListTest, DoesNothingUnlessAllIsGivenAndTheWindowIsADialog) {
  const TestWindow foreign("STATIC", "Foreign");
  // A window of another of the library's classes; its record begins with its name.
  char record[47 * 4] = "Edit";
  const TestClass editClass("Editwindow.1.3.2207", 40);
  const TestWindow edit(editClass.name());
  SetWindowLongA(edit.get(), 0, reinterpret_cast<LONG>(record));
  ASSERT_EQ(GetHandle("Edit", 0, nullptr), edit.get());
  for (const char* name : {static_cast<const char*>(nullptr), "", "nobody", "Edit", "Foreign"}) {
    SCOPED_TRACE(name != nullptr ? name : "null");
    char text[100] = "unset";
    int32_t count = -1;
    EXPECT_EQ(ControlList(name, 0, text, sizeof text, &count), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(count, 0);
  }
  int32_t count = -1;
  EXPECT_EQ(ControlList("Form", 0, nullptr, 100, &count), 0);
  EXPECT_EQ(count, 0);
  char text[100] = "unset";
  EXPECT_EQ(ControlList("Form", 0, text, sizeof text, nullptr), 0);
  EXPECT_STREQ(text, "");
  for (const int32_t size : {0, -1, INT_MIN}) {
    GuardedBuffer guarded(1);
    count = -1;
    EXPECT_EQ(ControlList("Form", 0, guarded.data(), size, &count), 0);
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(guarded.IsIntact());
    EXPECT_NE(guarded.data()[0], '\0');
  }
}

TEST_F(ControlListTest, OfAFormWithoutControlsIsEmpty) {
  ASSERT_EQ(LoadDialog("Empty", "").code, RTX_OK);
  char text[100] = "unset";
  int32_t count = -1;
  EXPECT_EQ(ControlList("Empty", 1, text, sizeof text, &count), 0);
  EXPECT_EQ(count, 0);
  EXPECT_STREQ(text, "");
}

TEST_F(ControlListTest, HasTheMostControlsThatAFormCanHave) {
  std::string controls;
  std::string names;
  for (int id = 1001; id <= 1255; ++id) {
    controls += "  LTEXT \"x\", " + std::to_string(id) + ", 0, 0, 9, 9\n";
    names += std::to_string(id) + "\n";
  }
  ASSERT_EQ(LoadDialog("Full", controls).code, RTX_OK);
  std::vector<char> text(names.size() + 1);
  int32_t count = -1;
  EXPECT_EQ(ControlList("Full", 0, text.data(), static_cast<int32_t>(text.size()), &count), 255);
  EXPECT_EQ(text.data(), names);
}

// A program's own child has no name, as it has no row.
TEST_F(ControlListTest, HasAProgramsOwnChildrenWithoutAName) {
  const TestWindow child("STATIC", "own", WS_CHILD, window_);
  char text[200] = "";
  int32_t count = -1;
  EXPECT_EQ(ControlList("Form", 0, text, sizeof text, &count), kControlCount + 1);
  EXPECT_STREQ(text, "101\nIDC_NAMES\nIDOK\n0103\n\n");
}

TEST_F(ControlListTest, CallbackEndsTheEnumerationWithoutAContext) {
  EXPECT_FALSE(Enum_ControlList(window_, 0));
}

}  // namespace
}  // namespace brelt::test
