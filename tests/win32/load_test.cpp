#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

class LoadTest : public FormTest {};

TEST_F(LoadTest, MakesAHiddenWindowWithItsControls) {
  const LoadResult form = LoadDialog("Main", "  PUSHBUTTON \"OK\", IDOK, 10, 10, 50, 14");
  EXPECT_EQ(form.message, "");
  ASSERT_EQ(form.code, RTX_OK);
  ASSERT_TRUE(IsWindow(form.window));
  EXPECT_FALSE(IsWindowVisible(form.window));
  EXPECT_EQ(Log().All(), "EV_LOAD 0 0\n");
  EXPECT_TRUE(IsWindow(GetDlgItem(form.window, IDOK)));
}

}  // namespace
}  // namespace brelt::test
