// The procedure of the message, input and list boxes, on boxes that the test makes itself.
#include <cstring>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

constexpr int kSlotBytes = 40;

class BoxTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    result_ = 77;
    rectangle_ = {};
    selection_ = 77;
    std::memset(text_, '#', sizeof text_);
  }

  // A box of a kind with a content control and buttons, its slots filled as its caller fills them.
  HWND MakeBox(const TestClass& boxClass, const char* contentClass) {
    const HWND box = CreateWindowExA(0, boxClass.name(), "Box", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                     GetModuleHandleA(nullptr), nullptr);
    SetWindowPos(box, nullptr, 30, 40, 200, 150, SWP_NOZORDER | SWP_NOACTIVATE);
    if (contentClass != nullptr) {
      CreateWindowExA(0, contentClass, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP | LBS_NOTIFY, 5, 5, 100, 60,
                      box, reinterpret_cast<HMENU>(121), GetModuleHandleA(nullptr), nullptr);
    }
    CreateWindowExA(0, "BUTTON", "OK", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 5, 70, 50, 20, box,
                    reinterpret_cast<HMENU>(101), GetModuleHandleA(nullptr), nullptr);
    WriteSlot(box, kSlotAccelTable, reinterpret_cast<LONG>(&rectangle_));
    WriteSlot(box, kSlotFuncptr, reinterpret_cast<LONG>(&result_));
    return box;
  }
  HWND MakeMessageBox() { return MakeBox(messageClass_, nullptr); }
  HWND MakeInputBox(int size = 20) {
    const HWND box = MakeBox(inputClass_, "EDIT");
    WriteSlot(box, kSlotCanvas, reinterpret_cast<LONG>(text_));
    WriteSlot(box, kSlotCanvasAnchor, size);
    return box;
  }
  HWND MakeListBox() {
    const HWND box = MakeBox(listClass_, "LISTBOX");
    for (const char* item : {"one", "two", "three"}) {
      SendDlgItemMessageA(box, 121, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    }
    WriteSlot(box, kSlotCanvas, reinterpret_cast<LONG>(&selection_));
    return box;
  }

  static LRESULT Command(HWND box, int id, int code = 0) {
    return SendMessageA(box, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(GetDlgItem(box, id)));
  }
  void ExpectPlace() const {
    const RECT place = {30, 40, 230, 190};
    EXPECT_TRUE(EqualRect(&rectangle_, &place));
  }

  int32_t result_ = 0;
  RECT rectangle_ = {};
  int32_t selection_ = 0;
  char text_[64];
  TestClass messageClass_{"MSGBOX.1.3.2207", kSlotBytes, 0, winobj_proc};
  TestClass inputClass_{"INPUTBOX.1.3.2207", kSlotBytes, 0, winobj_proc};
  TestClass listClass_{"LISTBOX.1.3.2207", kSlotBytes, 0, winobj_proc};
};

// ---- Closing ----

TEST_F(BoxTest, AClosedBoxGivesTwoAndItsPlace) {
  const HWND box = MakeMessageBox();
  EXPECT_EQ(SendMessageA(box, WM_CLOSE, 0, 0), 0);
  EXPECT_FALSE(IsWindow(box));
  EXPECT_EQ(result_, 2);
  ExpectPlace();
}

TEST_F(BoxTest, AClosedBoxWakesTheLoopThatWaitsForIt) {
  const HWND box = MakeMessageBox();
  SendMessageA(box, WM_CLOSE, 0, 0);
  MSG message = {};
  ASSERT_TRUE(PeekMessageA(&message, reinterpret_cast<HWND>(-1), 0, 0, PM_REMOVE));
  EXPECT_EQ(message.message, 0u);
  EXPECT_EQ(message.hwnd, nullptr);
}

TEST_F(BoxTest, AClosedInputBoxGivesItsText) {
  const HWND box = MakeInputBox();
  SetDlgItemTextA(box, 121, "typed");
  SendMessageA(box, WM_CLOSE, 0, 0);
  EXPECT_EQ(result_, 2);
  EXPECT_STREQ(text_, "typed");
  ExpectPlace();
}

TEST_F(BoxTest, AnInputBoxesTextIsCutToTheBuffer) {
  const struct {
    int size;
    std::string expected;
  } kSizes[] = {{6, "typed"}, {5, "type"}, {2, "t"}, {1, ""}};
  for (const auto& row : kSizes) {
    SCOPED_TRACE(row.size);
    std::memset(text_, '#', sizeof text_);
    const HWND box = MakeInputBox(row.size);
    SetDlgItemTextA(box, 121, "typed");
    SendMessageA(box, WM_CLOSE, 0, 0);
    EXPECT_EQ(text_, row.expected);
    for (std::size_t i = static_cast<std::size_t>(row.size); i < sizeof text_; ++i) EXPECT_EQ(text_[i], '#');
  }
  for (const int size : {0, -1}) {
    std::memset(text_, '#', sizeof text_);
    SendMessageA(MakeInputBox(size), WM_CLOSE, 0, 0);
    EXPECT_EQ(text_[0], '#');
  }
}

TEST_F(BoxTest, AClosedListBoxGivesItsSelection) {
  for (const int chosen : {-1, 0, 2}) {
    const HWND box = MakeListBox();
    SendDlgItemMessageA(box, 121, LB_SETCURSEL, static_cast<WPARAM>(chosen), 0);
    SendMessageA(box, WM_CLOSE, 0, 0);
    EXPECT_EQ(result_, 2);
    EXPECT_EQ(selection_, chosen);
    ExpectPlace();
  }
}

TEST_F(BoxTest, AMessageBoxHasNoContent) {
  const HWND box = MakeMessageBox();
  WriteSlot(box, kSlotCanvas, reinterpret_cast<LONG>(text_));
  WriteSlot(box, kSlotCanvasAnchor, 20);
  SendMessageA(box, WM_CLOSE, 0, 0);
  EXPECT_EQ(text_[0], '#');
}

TEST_F(BoxTest, EmptySlotsAreNoDanger) {
  for (const bool closes : {true, false}) {
    for (HWND box : {MakeMessageBox(), MakeInputBox(), MakeListBox()}) {
      for (const Slot slot : {kSlotCanvas, kSlotAccelTable, kSlotFuncptr}) WriteSlot(box, slot, 0);
      closes ? SendMessageA(box, WM_CLOSE, 0, 0) : Command(box, 101);
      EXPECT_FALSE(IsWindow(box));
    }
  }
}

TEST_F(BoxTest, AClosedBoxGoesBackToTheWindowItCameFrom) {
  const HWND main = LoadShown("Main", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14");
  for (const bool closes : {true, false}) {
    const HWND box = MakeMessageBox();
    ShowWindow(box, SW_SHOW);
    WriteSlot(box, kSlotPrevActive, reinterpret_cast<LONG>(main));
    EnableWindow(main, FALSE);
    closes ? SendMessageA(box, WM_CLOSE, 0, 0) : Command(box, 101);
    EXPECT_TRUE(IsWindowEnabled(main));
    EXPECT_EQ(GetActiveWindow(), main);
  }
}

// ---- Commands ----

TEST_F(BoxTest, EachButtonAndEnterAndEscapeEndABoxWithTheirId) {
  for (const int id : {1, 2, 101, 102, 103, 104, 105, 106, 107}) {
    const HWND box = MakeMessageBox();
    EXPECT_EQ(Command(box, id), 0);
    EXPECT_FALSE(IsWindow(box));
    EXPECT_EQ(result_, id);
    ExpectPlace();
  }
}

TEST_F(BoxTest, OtherCommandsDoNotEndABox) {
  const HWND box = MakeListBox();
  for (const int id : {0, 3, 9, 100, 108, 120, 122, 65535}) EXPECT_EQ(Command(box, id), 0);
  for (const int code : {0, 1, 3, 4, 5}) EXPECT_EQ(Command(box, 121, code), 0);
  EXPECT_TRUE(IsWindow(box));
  EXPECT_EQ(result_, 77);
  EXPECT_EQ(selection_, 77);
  SendMessageA(box, WM_CLOSE, 0, 0);
}

TEST_F(BoxTest, AButtonsCodeDoesNotMatter) {
  const HWND box = MakeMessageBox();
  Command(box, 103, 5);
  EXPECT_EQ(result_, 103);
}

TEST_F(BoxTest, AButtonOfAnInputBoxGivesTheText) {
  const HWND box = MakeInputBox();
  SetDlgItemTextA(box, 121, "typed");
  Command(box, 101);
  EXPECT_EQ(result_, 101);
  EXPECT_STREQ(text_, "typed");
}

TEST_F(BoxTest, AButtonOfAListBoxGivesTheSelection) {
  const HWND box = MakeListBox();
  SendDlgItemMessageA(box, 121, LB_SETCURSEL, 1, 0);
  Command(box, 102);
  EXPECT_EQ(result_, 102);
  EXPECT_EQ(selection_, 1);
}

TEST_F(BoxTest, ADoubleClickInTheListCountsAsEnter) {
  const HWND box = MakeListBox();
  SendDlgItemMessageA(box, 121, LB_SETCURSEL, 2, 0);
  Command(box, 121, LBN_DBLCLK);
  EXPECT_FALSE(IsWindow(box));
  EXPECT_EQ(result_, 1);
  EXPECT_EQ(selection_, 2);
}

// ---- Focus and the rest ----

TEST_F(BoxTest, ABoxRemembersItsFocus) {
  const HWND main = LoadShown("Main", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14");
  const HWND box = MakeInputBox();
  WriteSlot(box, kSlotLastFocus, reinterpret_cast<LONG>(GetDlgItem(box, 121)));
  ShowWindow(box, SW_SHOW);
  SetActiveWindow(box);
  EXPECT_EQ(GetFocus(), GetDlgItem(box, 121)) << "The caller names the first one";
  SetFocus(GetDlgItem(box, 101));
  SetActiveWindow(main);
  EXPECT_EQ(WindowInSlot(box, kSlotLastFocus), GetDlgItem(box, 101));
  SetActiveWindow(box);
  EXPECT_EQ(GetFocus(), GetDlgItem(box, 101));
  EXPECT_EQ(SendMessageA(box, WM_ACTIVATE, WA_ACTIVE, 0), 0);
  EXPECT_EQ(SendMessageA(box, WM_ACTIVATE, WA_INACTIVE, 0), 0);
  DestroyWindow(box);
}

TEST_F(BoxTest, ABoxHasNoNameAndRaisesNoEvent) {
  const HWND box = MakeMessageBox();
  EXPECT_EQ(GetHandle("Box", 0, nullptr), nullptr);
  EXPECT_EQ(SendMessageA(box, WM_DESTROY, 0, 0), 0);
  EXPECT_TRUE(IsWindow(box));
  // Messages that other windows of the library answer.
  EXPECT_EQ(SendMessageA(box, EV_CUSTOM, 1, 2), 0);
  EXPECT_EQ(SendMessageA(box, EV_KEYPRESS, 1, 2), 0);
  EXPECT_EQ(SendMessageA(box, XM_GETARRAYVALUES, 0, 0), 0);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  SendMessageA(box, WM_CLOSE, 0, 0);
}

TEST_F(BoxTest, OtherMessagesHaveThePlatformsMeaning) {
  const HWND box = MakeMessageBox();
  SetWindowTextA(box, "Title");
  char title[20] = "";
  GetWindowTextA(box, title, sizeof title);
  EXPECT_STREQ(title, "Title");
  EXPECT_EQ(SendMessageA(box, WM_NCHITTEST, 0, MAKELPARAM(100, 100)), HTCLIENT);
  SendMessageA(box, WM_CLOSE, 0, 0);
}

}  // namespace
}  // namespace brelt::test
