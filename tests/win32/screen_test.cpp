#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

class ScreenTest : public FormTest {};

TEST_F(ScreenTest, AFormCoversItsPlaceOnTheScreen) {
  const LoadResult form = LoadDialog("Main", "  LTEXT \"Hello\", 100, 10, 10, 50, 14");
  ASSERT_EQ(form.code, RTX_OK);
  ASSERT_EQ(Show(GetModuleHandleA(nullptr), "Main", "Main.rc", RecordEvent, nullptr, 0, nullptr), RTX_OK);
  Pump();
  POINT middle = {100, 100};
  ClientToScreen(form.window, &middle);
  HDC screen = GetDC(nullptr);
  EXPECT_TRUE(PumpUntil([&] { return GetPixel(screen, middle.x, middle.y) == GetSysColor(COLOR_BTNFACE); }));
  ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace brelt::test
