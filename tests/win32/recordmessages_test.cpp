// The messages by which a window tells what it keeps.
#include <cstring>
#include <string>

#include "frame/winobject.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

class RecordMessageTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    const LoadResult form = LoadDialog("Main",
                                       "  EDITTEXT 100, 0, 0, 9, 9\n"
                                       "  COMBOBOX 101, 0, 0, 9, 9\n"
                                       "  LTEXT \"a\", 102, 0, 0, 9, 9\n"
                                       "  DEFPUSHBUTTON \"b\", 70103, 0, 0, 9, 9");
    ASSERT_EQ(form.code, RTX_OK);
    window_ = form.window;
  }

  LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageA(window_, message, wParam, lParam);
  }
  WPARAM Control(int id) const { return reinterpret_cast<WPARAM>(GetDlgItem(window_, id)); }
  const WindowRow* Record() const { return reinterpret_cast<const WindowRow*>(GetWindowLongA(window_, 0)); }
  std::string Value(const char* key) const {
    const LRESULT value = Send(XM_GETARRAYVALUE, reinterpret_cast<WPARAM>(key), 0);
    return value != 0 ? reinterpret_cast<const char*>(value) : "<none>";
  }
  LRESULT SetValue(const char* key, const char* value) const {
    return Send(XM_SETARRAYVALUE, reinterpret_cast<WPARAM>(key), reinterpret_cast<LPARAM>(value));
  }
  LRESULT SetValues(const char* block) const {
    return Send(XM_SETARRAYVALUES, 0, reinterpret_cast<LPARAM>(block));
  }

  HWND window_ = nullptr;
};

TEST_F(RecordMessageTest, TextLimitIsKeptInTheRowAndPassedOnToTheControl) {
  struct Case {
    int id;
    UINT limit;  // the message that the control gets
  };
  for (const Case& c : {Case{100, EM_LIMITTEXT}, Case{101, CB_LIMITTEXT}, Case{102, CB_LIMITTEXT}}) {
    SCOPED_TRACE(c.id);
    EXPECT_EQ(Send(XM_GETMAXLENGTH, Control(c.id), 0), 0);
    const MessageSpy spy;
    EXPECT_EQ(Send(XM_SETMAXLENGTH, Control(c.id), 17), 0);
    EXPECT_EQ(Send(XM_GETMAXLENGTH, Control(c.id), 0), 17);
    const std::vector<SentMessage> limits = spy.To(GetDlgItem(window_, c.id), c.limit);
    ASSERT_EQ(limits.size(), 1u);
    EXPECT_EQ(limits[0].wParam, 17u);
    EXPECT_EQ(limits[0].lParam, 0);
  }
  EXPECT_EQ(SendMessageA(GetDlgItem(window_, 100), EM_GETLIMITTEXT, 0, 0), 17);
}

TEST_F(RecordMessageTest, TextLimitOfAHandleThatIsNoControlIsZero) {
  for (const WPARAM handle : {WPARAM{0}, WPARAM{1}, reinterpret_cast<WPARAM>(window_)}) {
    EXPECT_EQ(Send(XM_SETMAXLENGTH, handle, 17), 0);
    EXPECT_EQ(Send(XM_GETMAXLENGTH, handle, 0), 0);
  }
  EXPECT_EQ(Record()->maxLength, 0);
}

TEST_F(RecordMessageTest, DrawFontIsStoredAndGivenBack) {
  const LRESULT before = Send(XM_GETDRAWFONT, 0, 0);
  EXPECT_EQ(before, reinterpret_cast<LRESULT>(Record()->drawFont));
  EXPECT_NE(before, 0);
  EXPECT_NE(before, Send(WM_GETFONT, 0, 0));
  EXPECT_EQ(Send(XM_SETDRAWFONT, 0x123, 0), 0);
  EXPECT_EQ(Send(XM_GETDRAWFONT, 0, 0), 0x123);
  Send(XM_SETDRAWFONT, static_cast<WPARAM>(before), 0);
}

TEST_F(RecordMessageTest, DefaultButtonIsToldWithTheMarkOfAnAnswer) {
  EXPECT_EQ(Record()->defaultId, 70103);
  EXPECT_EQ(Send(DM_GETDEFID, 0, 0), static_cast<LRESULT>(0x534B0000 | (70103 & 0xFFFF)));
  const LoadResult other = LoadDialog("Other", "  PUSHBUTTON \"b\", 103, 0, 0, 9, 9");
  EXPECT_EQ(SendMessageA(other.window, DM_GETDEFID, 0, 0), 0);
}

TEST_F(RecordMessageTest, ArrayValuesAreFoundByKeyWithoutCase) {
  EXPECT_EQ(Send(XM_GETARRAYVALUES, 0, 0), 0);
  EXPECT_EQ(Value("one"), "<none>");
  EXPECT_EQ(SetValues("One=1\0two=2=3\0empty=\0"), 0);
  EXPECT_EQ(Value("one"), "1");
  EXPECT_EQ(Value("ONE"), "1");
  EXPECT_EQ(Value("two"), "2=3");
  EXPECT_EQ(Value("empty"), "");
  EXPECT_EQ(Value("on"), "<none>");
  EXPECT_EQ(Value(nullptr), "<none>");
  const auto* block = reinterpret_cast<const char*>(Send(XM_GETARRAYVALUES, 0, 0));
  EXPECT_EQ(std::memcmp(block, "One=1\0two=2=3\0empty=\0", 22), 0);
}

TEST_F(RecordMessageTest, ArrayValueIsAddedOrReplaced) {
  EXPECT_EQ(SetValue("one", "1"), 0);
  EXPECT_EQ(SetValue("two", "2"), 0);
  EXPECT_EQ(SetValue("ONE", "eleven"), 0);
  EXPECT_EQ(Value("one"), "eleven");
  EXPECT_EQ(Value("two"), "2");
  EXPECT_EQ(SetValue(nullptr, "x"), 0);
  EXPECT_EQ(SetValue("one", nullptr), 0);
  EXPECT_EQ(Value("one"), "eleven");
}

TEST_F(RecordMessageTest, ArrayValuesAreReplacedWhole) {
  SetValues("one=1\0");
  SetValues("two=2\0");
  EXPECT_EQ(Value("one"), "<none>");
  EXPECT_EQ(Value("two"), "2");
  EXPECT_EQ(SetValues(""), 0);
  EXPECT_EQ(Send(XM_GETARRAYVALUES, 0, 0), 0);
  SetValues("two=2\0");
  EXPECT_EQ(SetValues(nullptr), 0);
  EXPECT_EQ(Send(XM_GETARRAYVALUES, 0, 0), 0);
}

}  // namespace
}  // namespace brelt::test
