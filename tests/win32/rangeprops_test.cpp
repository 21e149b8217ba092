// Max, Min and Value: scroll bars, progress bars, buttons and radio groups.
#include <climits>
#include <string>
#include <vector>

#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

struct Range {
  int32_t low, high;

  bool operator==(const Range&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Range& range) {
  return out << range.low << " to " << range.high;
}

constexpr int32_t kBars[] = {kScrollBar, kProgressBar};

class RangeTest : public PropertyTest {
 protected:
  static int32_t Read(int32_t(__stdcall* get)(const char*, int32_t, int32_t*), int32_t id) {
    int32_t value = -77777;
    EXPECT_EQ(get(kFormName, id, &value), RTX_OK);
    return value;
  }
  static Range RangeOf(int32_t id) { return {Read(GetMin, id), Read(GetMax, id)}; }
  static int32_t Value(int32_t id) { return Read(GetValue, id); }
  // Puts a range in place whatever the calls would say to it.
  void Force(int32_t id, Range range) const {
    if (id == kScrollBar) {
      SetScrollRange(Control(id), SB_CTL, range.low, range.high, FALSE);
    } else {
      SendMessageA(Control(id), 1299, 0, range.low);
      SendMessageA(Control(id), 1301, 0, range.high);
    }
  }
};

TEST_F(RangeTest, IsZeroToHundredAtFirst) {
  for (const int32_t id : kBars) EXPECT_EQ(RangeOf(id), (Range{0, 100}));
}

TEST_F(RangeTest, EachEndIsSetWithTheOtherKept) {
  for (const int32_t id : kBars) {
    EXPECT_EQ(SetMax(kFormName, id, 500), RTX_OK);
    EXPECT_EQ(RangeOf(id), (Range{0, 500}));
    EXPECT_EQ(SetMin(kFormName, id, -20), RTX_OK);
    EXPECT_EQ(RangeOf(id), (Range{-20, 500}));
  }
  int low = 0;
  int high = 0;
  GetScrollRange(Control(kScrollBar), SB_CTL, &low, &high);
  EXPECT_EQ((Range{low, high}), (Range{-20, 500}));
}

TEST_F(RangeTest, OutsideSixteenBitsIsRefusedInSilence) {
  struct Case {
    int32_t(__stdcall* set)(const char*, int32_t, int32_t);
    int32_t value;
    Range before, after;
  };
  const Case cases[] = {
      {SetMax, 32767, {0, 100}, {0, 32767}},
      {SetMax, 32768, {0, 100}, {0, 100}},
      {SetMax, 40000, {0, 100}, {0, 100}},
      {SetMax, 32768, {1, 100}, {1, 100}},
      {SetMax, INT_MAX, {0, 100}, {0, 100}},
      {SetMax, 32766, {-1, 100}, {-1, 32766}},
      {SetMax, 32767, {-1, 100}, {-1, 100}},
      {SetMax, 32767, {-2, 100}, {-2, 100}},
      {SetMin, -32768, {-100, -1}, {-32768, -1}},
      {SetMin, -32769, {-100, -1}, {-100, -1}},
      {SetMin, -32769, {-40000, -39000}, {-40000, -39000}},
      {SetMin, -32768, {-100, 0}, {-100, 0}},
      {SetMin, -32767, {-100, 0}, {-32767, 0}},
      {SetMin, INT_MIN, {-100, 0}, {-100, 0}},
      {SetMin, INT_MIN, {-100, 32767}, {-100, 32767}},
      {SetMax, 10, {-40000, -39000}, {-40000, -39000}},
      {SetMin, 0, {-10, 40000}, {-10, 40000}},
  };
  for (const int32_t id : kBars) {
    for (const Case& c : cases) {
      SCOPED_TRACE(::testing::Message() << id << ": " << c.value << " at " << c.before);
      Force(id, c.before);
      EXPECT_EQ(c.set(kFormName, id, c.value), RTX_OK);
      EXPECT_EQ(RangeOf(id), c.after);
    }
  }
}

TEST_F(RangeTest, OfAProgressBarIsSentMinimumFirst) {
  MessageSpy spy;
  EXPECT_EQ(SetMax(kFormName, kProgressBar, 50), RTX_OK);
  std::vector<UINT> sent;
  for (const SentMessage& message : spy.sent()) {
    if (message.window == Control(kProgressBar) && message.message >= 1296) sent.push_back(message.message);
  }
  EXPECT_EQ(sent, (std::vector<UINT>{1298, 1300, 1299, 1301}));
  ASSERT_EQ(spy.To(Control(kProgressBar), 1299).size(), 1u);
  EXPECT_EQ(spy.To(Control(kProgressBar), 1299)[0].lParam, 0);
  EXPECT_EQ(spy.To(Control(kProgressBar), 1301)[0].lParam, 50);
  EXPECT_EQ(spy.To(Control(kProgressBar), 1301)[0].wParam, 0u);
}

// ---- Value ----

TEST_F(RangeTest, ValueOfABarIsHeldWithinItsRange) {
  struct Case {
    int32_t value;
    int32_t held;
  };
  for (const int32_t id : kBars) {
    Force(id, {-10, 50});
    for (const Case& c : {Case{0, 0}, Case{-10, -10}, Case{50, 50}, Case{-11, -10}, Case{51, 50},
                          Case{INT_MIN, -10}, Case{INT_MAX, 50}, Case{7, 7}}) {
      SCOPED_TRACE(::testing::Message() << id << ": " << c.value);
      EXPECT_EQ(SetValue(kFormName, id, c.value), RTX_OK);
      EXPECT_EQ(Value(id), c.held);
    }
  }
  EXPECT_EQ(GetScrollPos(Control(kScrollBar), SB_CTL), 7);
  EXPECT_EQ(SendMessageA(Control(kProgressBar), 1296, 0, 0), 7);
}

TEST_F(RangeTest, ValueOfAButtonIsItsCheck) {
  for (const int32_t id : {int32_t{kCheck}, int32_t{kAutoCheck}}) {
    SCOPED_TRACE(id);
    EXPECT_EQ(Value(id), 0);
    EXPECT_EQ(SetValue(kFormName, id, 1), RTX_OK);
    EXPECT_EQ(Value(id), 1);
    EXPECT_EQ(SendMessageA(Control(id), BM_GETCHECK, 0, 0), 1);
    EXPECT_EQ(SetValue(kFormName, id, 0), RTX_OK);
    EXPECT_EQ(Value(id), 0);
  }
}

TEST_F(RangeTest, ValueOfAnyOtherButtonIsSentAsItIs) {
  for (const int32_t id :
       {int32_t{kPush}, int32_t{kCheck}, int32_t{kAutoCheck}, int32_t{kGroupBox}, int32_t{kBitmapButton}}) {
    for (const int32_t value : {0, 1, 2, 5, -1}) {
      SCOPED_TRACE(::testing::Message() << id << ": " << value);
      const MessageSpy spy;
      EXPECT_EQ(SetValue(kFormName, id, value), RTX_OK);
      const auto checks = spy.To(Control(id), BM_SETCHECK);
      ASSERT_EQ(checks.size(), 1u);
      EXPECT_EQ(static_cast<int32_t>(checks[0].wParam), value);
    }
  }
}

TEST_F(RangeTest, ValueOfABitmapButtonIsItsCheck) {
  const LoadResult other =
      LoadDialog("Other", "  CONTROL \"\", 100, \"BITMAPBUTTON\", BB_CHECKSTYLE, 0, 0, 9, 9");
  ASSERT_EQ(other.code, RTX_OK);
  int32_t value = -7;
  EXPECT_EQ(SetValue("Other", 100, 1), RTX_OK);
  EXPECT_EQ(GetValue("Other", 100, &value), RTX_OK);
  EXPECT_EQ(value, 1);
}

// Of bitmap buttons only the type 4 is a radio button, of buttons the type 9 as well.
TEST_F(RangeTest, ABitmapButtonOfAnyOtherTypeIsSetAlone) {
  const LoadResult other = LoadDialog("Other",
                                      "  CONTROL \"\", 100, \"BITMAPBUTTON\", 0x9, 0, 0, 9, 9\n"
                                      "  CONTROL \"\", 101, \"BITMAPBUTTON\", 0x9, 0, 0, 9, 9");
  ASSERT_EQ(other.code, RTX_OK);
  ASSERT_EQ(GetWindowLongA(GetDlgItem(other.window, 101), GWL_STYLE) & 0xF, 9);
  const MessageSpy spy;
  EXPECT_EQ(SetValue("Other", 101, 1), RTX_OK);
  EXPECT_TRUE(spy.To(GetDlgItem(other.window, 100), BM_SETCHECK).empty());
  EXPECT_EQ(spy.To(GetDlgItem(other.window, 101), BM_SETCHECK).size(), 1u);
}

// ---- Radio groups ----

// A form of buttons, each by a letter: r radio, a automatic radio, c check box, p push button, b bitmap
// radio, l a label; in upper case with WS_GROUP. The ids count from 100.
LoadResult LoadButtons(const std::string& letters) {
  std::string controls;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const std::string id = std::to_string(100 + i);
    const bool starts = letters[i] >= 'A' && letters[i] <= 'Z';
    const std::string style = starts ? " | WS_GROUP" : "";
    switch (letters[i] | 0x20) {
      case 'r':
        controls += "  CONTROL \"\", " + id + ", \"BUTTON\", BS_RADIOBUTTON" + style + ", 0, 0, 9, 9\n";
        break;
      case 'a':
        controls += "  CONTROL \"\", " + id + ", \"BUTTON\", BS_AUTORADIOBUTTON" + style + ", 0, 0, 9, 9\n";
        break;
      case 'c':
        controls += "  CONTROL \"\", " + id + ", \"BUTTON\", BS_CHECKBOX" + style + ", 0, 0, 9, 9\n";
        break;
      case 'p':
        controls += "  CONTROL \"\", " + id + ", \"BUTTON\", BS_PUSHBUTTON" + style + ", 0, 0, 9, 9\n";
        break;
      case 'b':
        controls += "  CONTROL \"\", " + id + ", \"BITMAPBUTTON\", BB_RADIOSTYLE" + style + ", 0, 0, 9, 9\n";
        break;
      default:
        controls += "  CONTROL \"\", " + id + ", \"STATIC\", SS_CENTER" + style + ", 0, 0, 9, 9\n";
    }
  }
  return LoadDialog("Group", controls);
}

std::string Checks(HWND window, std::size_t count) {
  std::string checks;
  for (std::size_t i = 0; i < count; ++i) {
    checks += IsDlgButtonChecked(window, static_cast<int>(100 + i)) == 1 ? '1' : '0';
  }
  return checks;
}

TEST_F(RangeTest, TurningARadioButtonOnTurnsTheOthersOfItsGroupOff) {
  struct Case {
    const char* letters;
    int button;          // the one that is turned on; all are on before
    const char* checks;  // then
  };
  const Case cases[] = {
      {"rrr", 0, "100"},
      {"rrr", 1, "010"},
      {"rrr", 2, "001"},
      {"aaa", 1, "010"},
      {"bbb", 1, "010"},
      {"bbb", 2, "001"},
      {"Rrr", 0, "100"},
      {"Rrr", 2, "001"},
      {"rRr", 0, "111"},
      {"rRr", 1, "110"},
      {"rRr", 2, "101"},
      {"RrRr", 1, "0111"},
      {"RrRr", 2, "1110"},
      {"rrlrr", 1, "01011"},
      {"rrlrr", 3, "11010"},
      {"rraa", 1, "0100"},
      {"rrbb", 1, "0111"},
      {"rrbb", 2, "1110"},
      {"Bbrr", 0, "1011"},
      // Check boxes are of the same class and so in the same group.
      {"rcr", 0, "100"},
      {"crc", 1, "010"},
      {"rCr", 0, "111"},
      {"rCr", 2, "101"},
      {"R", 0, "1"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.letters) + " " + std::to_string(c.button));
    const LoadResult group = LoadButtons(c.letters);
    ASSERT_EQ(group.code, RTX_OK);
    const std::string letters = c.letters;
    for (std::size_t i = 0; i < letters.size(); ++i) {
      SendDlgItemMessageA(group.window, static_cast<int>(100 + i), BM_SETCHECK, letters[i] == 'l' ? 0 : 1, 0);
    }
    EXPECT_EQ(SetValue("Group", 100 + c.button, 1), RTX_OK);
    std::string expected = c.checks;
    EXPECT_EQ(Checks(group.window, letters.size()), expected);
    DestroyWindow(group.window);
  }
}

TEST_F(RangeTest, EveryButtonOfTheGroupIsTold) {
  const LoadResult group = LoadButtons("lRrpl");
  ASSERT_EQ(group.code, RTX_OK);
  const MessageSpy spy;
  EXPECT_EQ(SetValue("Group", 102, 1), RTX_OK);
  std::string told;
  for (const SentMessage& sent : spy.sent()) {
    if (sent.message != BM_SETCHECK) continue;
    told += std::to_string(GetDlgCtrlID(sent.window)) + "=" + std::to_string(sent.wParam) + " ";
  }
  EXPECT_EQ(told, "101=0 102=1 103=0 ");
}

TEST_F(RangeTest, AnyOtherValueTurnsARadioButtonOffAlone) {
  for (const char* letters : {"rrr", "aaa", "bbb"}) {
    for (const int32_t value : {0, 2, -1, INT_MAX}) {
      SCOPED_TRACE(std::string(letters) + " " + std::to_string(value));
      const LoadResult group = LoadButtons(letters);
      ASSERT_EQ(group.code, RTX_OK);
      for (int id = 100; id < 103; ++id) SendDlgItemMessageA(group.window, id, BM_SETCHECK, 1, 0);
      EXPECT_EQ(SetValue("Group", 101, value), RTX_OK);
      EXPECT_EQ(Checks(group.window, 3), "101");
      DestroyWindow(group.window);
    }
  }
}

TEST_F(RangeTest, SettingAValueRaisesNoEvent) {
  ShowForm();
  Log().Clear();
  for (const int32_t id : {int32_t{kCheck}, int32_t{kAutoCheck}, int32_t{kAutoRadio}, int32_t{kScrollBar}}) {
    SetValue(kFormName, id, 1);
  }
  Pump();
  EXPECT_EQ(Log().Of({EV_CLICK, EV_CHANGE}), "");
}

}  // namespace
}  // namespace brelt::test
