// The order in which every call on an object looks at its arguments.
#include "frame/objectcall.h"

#include <gtest/gtest.h>

#include <string>

#include "include/brelt.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

class ObjectCallTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    ASSERT_EQ(LoadText("Main",
                       "Main DIALOG 0, 0, 100, 100\nMENU Bar\nBEGIN\n  LTEXT \"a\", 100, 0, 0, 9, 9\nEND\n"
                       "Bar MENU\nBEGIN\n  MENUITEM \"b\", 200\nEND\n")
                  .code,
              RTX_OK);
  }
};

TEST_F(ObjectCallTest, ReportsANullNameAheadOfANullOutputAheadOfAMissingWindow) {
  std::uint8_t truth = 1;
  std::int32_t number = 1;
  char text[4] = "x";
  struct Case {
    const char* name;
    bool outputs;
    std::int32_t truthCode, numberCode, textCode, inputCode;
  };
  const Case cases[] = {{nullptr, true, 756, 756, 756, 756},   {nullptr, false, 756, 756, 756, 756},
                        {"nobody", false, 751, 753, 756, 756}, {"nobody", true, 702, 702, 702, 702},
                        {"Main", false, 751, 753, 756, 756},   {"Main", true, 0, 0, 0, 0}};
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.name != nullptr ? c.name : "null") + (c.outputs ? "" : " without output"));
    EXPECT_EQ(ObjectCall("call", c.name, 0, TruthOutput{c.outputs ? &truth : nullptr}).code(), c.truthCode);
    EXPECT_EQ(ObjectCall("call", c.name, 0, NumberOutput{c.outputs ? &number : nullptr}).code(),
              c.numberCode);
    EXPECT_EQ(ObjectCall("call", c.name, 0, TextOutput{c.outputs ? text : nullptr, 4}).code(), c.textCode);
    EXPECT_EQ(ObjectCall("call", c.name, 0, TextInput{c.outputs ? text : nullptr}).code(), c.inputCode);
  }
}

TEST_F(ObjectCallTest, ReportsTheFirstMissingOfSeveralOutputs) {
  std::int32_t number = 1;
  EXPECT_EQ(ObjectCall("call", "Main", 0, NumberOutput{nullptr}, TextOutput{nullptr, 4}).code(), 753);
  EXPECT_EQ(ObjectCall("call", "Main", 0, NumberOutput{&number}, TextOutput{nullptr, 4}).code(), 756);
}

TEST_F(ObjectCallTest, ClearsItsOutputsWhateverComesThen) {
  for (const char* name : {static_cast<const char*>(nullptr), "nobody", "Main"}) {
    std::uint8_t truth = 1;
    std::int32_t number = 1;
    std::int32_t position = 1;
    char text[4] = "x";
    const ObjectCall call("call", name, 0, TruthOutput{&truth}, NumberOutput{&number},
                          NumberOutput{&position, -1}, TextOutput{text, 4}, TextInput{nullptr});
    EXPECT_NE(call.code(), RTX_OK);
    EXPECT_EQ(truth, 0);
    EXPECT_EQ(number, 0);
    EXPECT_EQ(position, -1);
    EXPECT_STREQ(text, "");
  }
}

TEST_F(ObjectCallTest, FindsWindowMenuAndControl) {
  const ObjectCall window("call", "MAIN", 0);
  EXPECT_TRUE(IsWindow(window.window()));
  EXPECT_EQ(window.control(), nullptr);
  EXPECT_EQ(window.menu(), GetMenu(window.window()));
  EXPECT_FALSE(window.IsMenuItem());
  const ObjectCall control("call", "Main", 100);
  EXPECT_EQ(control.control(), GetDlgItem(window.window(), 100));
  EXPECT_NE(control.control(), nullptr);
  const ObjectCall item("call", "Main", 200);
  EXPECT_EQ(item.control(), nullptr);
  EXPECT_TRUE(item.IsMenuItem());
  EXPECT_FALSE(ObjectCall("call", "Main", 300).IsMenuItem());
  EXPECT_FALSE(ObjectCall("call", "nobody", 200).IsMenuItem());
}

DWORD WINAPI CallFromAnotherThread(LPVOID) {
  return static_cast<DWORD>(ObjectCall("call", "Main", 0).code());
}

TEST_F(ObjectCallTest, SeesNoWindowFromAnotherThread) {
  HANDLE thread = CreateThread(nullptr, 0, CallFromAnotherThread, nullptr, 0, nullptr);
  ASSERT_EQ(WaitForSingleObject(thread, 30000), WAIT_OBJECT_0);
  DWORD code = 0;
  GetExitCodeThread(thread, &code);
  CloseHandle(thread);
  EXPECT_EQ(code, 702u);
}

}  // namespace
}  // namespace brelt::test
