// Property calls on windows that any program can name by a handle, but that belong to another program, or
// keep something else where forms have their record.
#include <climits>
#include <cstdio>
#include <memory>
#include <string>

#include "tests/win32/support/child.h"
#include "tests/win32/support/classes.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

constexpr DWORD kTimeLimit = 30000;

constexpr const char* kChildForm =
    "Child DIALOG 0, 0, 90, 60\n"
    "STYLE WS_POPUP | WS_CAPTION\n"
    "CAPTION \"Other program\"\n"
    "BEGIN\n"
    "  EDITTEXT 101, 0, 0, 40, 14\n"
    "END\n";

struct Place {
  int32_t x, y, width, height;

  bool operator==(const Place&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Place& place) {
  return out << place.x << ", " << place.y << ", " << place.width << ", " << place.height;
}

class OtherProgramTest : public PropertyTest {
 protected:
  void SetUp() override {
    PropertyTest::SetUp();
    const NamedEvent ready("brelt.otherprogram");
    child_ = std::make_unique<ChildProcess>(
        "commandchild.exe",
        WriteTestFile("child.rc", kChildForm) + " brelt.otherprogram " + TestFolder() + "child.txt");
    ASSERT_TRUE(ready.IsSetWithin(kTimeLimit));
    window_ = FindWindowHandle("Dialog.*", "Other program", 0, 0);
    ASSERT_TRUE(IsWindow(window_));
  }
  void TearDown() override {
    // The id 999 ends it.
    EXPECT_EQ(Command(window_, 999, "end"), RTX_OK);
    EXPECT_TRUE(child_->EndsWithin(kTimeLimit));
    PropertyTest::TearDown();
  }

  HWND window() const { return window_; }
  HWND field() const { return GetDlgItem(window_, 101); }

 private:
  std::unique_ptr<ChildProcess> child_;
  HWND window_ = nullptr;
};

// The record is an address of the other program.
TEST_F(OtherProgramTest, ItsDrawingPositionIsZeroAndStaysSo) {
  for (const int32_t value : {5, INT_MIN}) {
    EXPECT_EQ(SetCurrentX(window(), value), RTX_OK);
    EXPECT_EQ(SetCurrentY(window(), value), RTX_OK);
    int32_t x = -77;
    int32_t y = -77;
    EXPECT_EQ(GetCurrentX(window(), &x), RTX_OK);
    EXPECT_EQ(GetCurrentY(window(), &y), RTX_OK);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
  }
}

// A font of the other program has a number that may be that of a font of this one, so it isn't even asked
// for.
TEST_F(OtherProgramTest, ItsFontIsNoneAndCantBeChanged) {
  const CountedImport<struct SendTag, LRESULT, HWND, UINT, WPARAM, LPARAM> sendings("SendMessageA");
  for (HWND window : {this->window(), field()}) {
    ASSERT_TRUE(IsWindow(window));
    EXPECT_EQ(FontLookOf(window), kNoFont);
    EXPECT_EQ(SetFontName(window, "Courier"), RTX_NO_WINDOW);
    EXPECT_EQ(SetFontSize(window, 20), RTX_NO_WINDOW);
    EXPECT_EQ(SetFontBold(window, 1), RTX_NO_WINDOW);
    EXPECT_EQ(SetFontItalic(window, 1), RTX_NO_WINDOW);
    EXPECT_EQ(SetFontName(window, nullptr), RTX_OK);
  }
  EXPECT_EQ(sendings.calls(), 0);
}

TEST_F(OtherProgramTest, ItsPlaceCanBeAskedAndSetByItsHandle) {
  char name[20];
  std::snprintf(name, sizeof name, "0x%x", static_cast<unsigned>(reinterpret_cast<UINT_PTR>(window())));
  for (const int32_t mode : {0, 1}) {
    SCOPED_TRACE(mode);
    const Place place = {70 + mode, 80, 310, 220};
    EXPECT_EQ(SetPosition(name, 0, mode, place.x, place.y, place.width, place.height), RTX_OK);
    Place now = {-7, -7, -7, -7};
    EXPECT_EQ(GetPosition(name, 0, mode, &now.x, &now.y, &now.width, &now.height), RTX_OK);
    EXPECT_EQ(now, place);
  }
  const Place place = {11, 12, 90, 20};
  EXPECT_EQ(SetPosition(name, 101, 0, place.x, place.y, place.width, place.height), RTX_OK);
  Place now = {-7, -7, -7, -7};
  EXPECT_EQ(GetPosition(name, 101, 0, &now.x, &now.y, &now.width, &now.height), RTX_OK);
  EXPECT_EQ(now, place);
}

// The library's other windows are made with the same extra data.
TEST(OtherWindow, WithSomethingElseForARecordHasNoDrawingPosition) {
  WindowRow block = {};
  block.currentX = 7;
  const TestClass debugClass("DEBUG.1.3.2207", kSlotBytes);
  const TestWindow debug(debugClass.name());
  SetWindowLongA(debug.get(), 4 * SLOT_RECORD, reinterpret_cast<LONG>(&block));
  EXPECT_EQ(SetCurrentX(debug.get(), 5), RTX_OK);
  int32_t x = -77;
  EXPECT_EQ(GetCurrentX(debug.get(), &x), RTX_OK);
  EXPECT_EQ(x, 0);
  EXPECT_EQ(block.currentX, 7);
  SetWindowLongA(debug.get(), 4 * SLOT_RECORD, 0);
}

}  // namespace
}  // namespace brelt::test
