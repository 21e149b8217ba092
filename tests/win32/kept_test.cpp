// The fonts, the default button and the text limits that a window keeps.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

class KeptTest : public FormTest {
 protected:
  static LRESULT Send(HWND window, UINT message, const void* wParam, const void* lParam = nullptr) {
    return SendMessageA(window, message, reinterpret_cast<WPARAM>(wParam), reinterpret_cast<LPARAM>(lParam));
  }
};

// ---- Fonts ----

TEST_F(KeptTest, TheFontIsTakenOnlyWhileThereIsNoControl) {
  const HWND window = LoadShown("Main", "  LTEXT \"A\", 101, 1, 1, 10, 10");
  const LONG font = SendMessageA(window, WM_GETFONT, 0, 0);
  EXPECT_NE(font, 0);
  EXPECT_EQ(font, RecordWordOf(window, kWordFont));
  EXPECT_EQ(SendMessageA(window, WM_SETFONT, 0x1234, TRUE), 0);
  EXPECT_EQ(SendMessageA(window, WM_GETFONT, 0, 0), font);
  DestroyWindow(GetDlgItem(window, 101));
  EXPECT_EQ(SendMessageA(window, WM_SETFONT, 0x1234, TRUE), 0);
  EXPECT_EQ(SendMessageA(window, WM_GETFONT, 0, 0), 0x1234);
  EXPECT_EQ(SendMessageA(window, WM_SETFONT, static_cast<WPARAM>(font), FALSE), 0);
  EXPECT_EQ(RecordWordOf(window, kWordFont), font);
}

TEST_F(KeptTest, TheDrawFontIsAnotherOneAndCanBeReplaced) {
  const HWND window = LoadShown("Main", "  LTEXT \"A\", 101, 1, 1, 10, 10");
  const LRESULT font = SendMessageA(window, XM_GETDRAWFONT, 0, 0);
  EXPECT_EQ(font, RecordWordOf(window, kWordDrawFont));
  EXPECT_NE(font, 0);
  EXPECT_NE(font, SendMessageA(window, WM_GETFONT, 0, 0));
  EXPECT_EQ(SendMessageA(window, XM_SETDRAWFONT, 0x1234, 0), 0);
  EXPECT_EQ(SendMessageA(window, XM_GETDRAWFONT, 0, 0), 0x1234);
  EXPECT_EQ(RecordWordOf(window, kWordDrawFont), 0x1234);
  SendMessageA(window, XM_SETDRAWFONT, static_cast<WPARAM>(font), 0);
}

// ---- The default button ----

TEST_F(KeptTest, TheDefaultButtonIsItsIdWithAMark) {
  const HWND window = LoadShown("Main",
                                "  PUSHBUTTON \"A\", 101, 1, 1, 10, 10\n"
                                "  DEFPUSHBUTTON \"B\", 102, 1, 1, 10, 10\n"
                                "  DEFPUSHBUTTON \"C\", 103, 1, 1, 10, 10");
  EXPECT_EQ(SendMessageA(window, DM_GETDEFID, 0, 0), static_cast<LRESULT>(0x534B0000 | 102));
  const struct {
    int32_t id;
    LRESULT answer;
  } kIds[] = {{0, 0}, {1, 0x534B0001}, {0x12345, 0x534B2345}, {-1, 0x534BFFFF}, {0x10000, 0x534B0000}};
  for (const auto& row : kIds) {
    RecordWordOf(window, kWordDefaultId) = row.id;
    EXPECT_EQ(SendMessageA(window, DM_GETDEFID, 7, 8), row.answer) << row.id;
  }
}

TEST_F(KeptTest, AFormWithoutADefaultButtonHasNone) {
  const HWND window = LoadShown("Main", "  PUSHBUTTON \"A\", 101, 1, 1, 10, 10");
  EXPECT_EQ(SendMessageA(window, DM_GETDEFID, 0, 0), 0);
}

TEST_F(KeptTest, AnIdOverTheWordIsKeptWholeAndToldCut) {
  const HWND window = LoadShown("Main", "  DEFPUSHBUTTON \"A\", 70103, 1, 1, 10, 10");
  EXPECT_EQ(RecordWordOf(window, kWordDefaultId), 70103);
  EXPECT_EQ(SendMessageA(window, DM_GETDEFID, 0, 0), static_cast<LRESULT>(0x534B0000 | (70103 & 0xFFFF)));
}

// ---- Text limits ----

constexpr const char* kFields =
    "  EDITTEXT 101, 10, 10, 50, 14\n"
    "  COMBOBOX 102, 10, 30, 50, 50, CBS_DROPDOWN\n"
    "  LTEXT \"A\", 103, 10, 80, 10, 10";

TEST_F(KeptTest, ATextLimitIsKeptInTheControlsRow) {
  const HWND window = LoadShown("Main", kFields);
  int row = 0;
  for (const int id : {101, 102, 103}) {
    ++row;
    const HWND control = GetDlgItem(window, id);
    EXPECT_EQ(Send(window, XM_GETMAXLENGTH, control), 0);
    EXPECT_EQ(SendMessageA(window, XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(control), id), 0);
    EXPECT_EQ(Send(window, XM_GETMAXLENGTH, control), id);
    EXPECT_EQ(RecordWordOf(window, kWordMaxLength, row), id);
  }
  EXPECT_EQ(RecordWordOf(window, kWordMaxLength), 0) << "The window's own row stays";
}

TEST_F(KeptTest, ATextLimitReachesTheControl) {
  const HWND window = LoadShown("Main", kFields);
  const HWND field = GetDlgItem(window, 101);
  const HWND combo = GetDlgItem(window, 102);
  SendMessageA(window, XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(field), 3);
  SendMessageA(window, XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(combo), 4);
  EXPECT_EQ(SendMessageA(field, EM_GETLIMITTEXT, 0, 0), 3);
  EXPECT_EQ(SendMessageA(GetWindow(combo, GW_CHILD), EM_GETLIMITTEXT, 0, 0), 4);
}

std::vector<std::pair<UINT, WPARAM>> limitsTold;
LRESULT CALLBACK ListenToLimits(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == EM_LIMITTEXT || message == CB_LIMITTEXT) limitsTold.push_back({message, wParam});
  return DefWindowProcA(window, message, wParam, lParam);
}

// Only a field gets the field's message; each other class gets the combo box's.
TEST_F(KeptTest, ATextLimitOfAnyOtherControlGoesAsToAComboBox) {
  const HWND window = LoadShown("Main", kFields);
  const HWND label = GetDlgItem(window, 103);
  SetWindowLongA(label, GWL_WNDPROC, reinterpret_cast<LONG>(ListenToLimits));
  limitsTold.clear();
  SendMessageA(window, XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(label), 5);
  EXPECT_EQ(limitsTold, (std::vector<std::pair<UINT, WPARAM>>{{CB_LIMITTEXT, 5}}));
}

TEST_F(KeptTest, AHandleThatIsNoControlHasNoLimitAndTakesNone) {
  const HWND window = LoadShown("Main", kFields);
  const HWND other = LoadShown("Other", kFields);
  const HWND inner = GetWindow(GetDlgItem(window, 102), GW_CHILD);
  for (const HWND handle :
       {HWND{nullptr}, window, other, GetDlgItem(other, 101), inner, reinterpret_cast<HWND>(0x5A5A)}) {
    EXPECT_EQ(SendMessageA(window, XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(handle), 5), 0);
    EXPECT_EQ(Send(window, XM_GETMAXLENGTH, handle), 0);
  }
  EXPECT_EQ(Send(other, XM_GETMAXLENGTH, GetDlgItem(other, 101)), 0);
}

}  // namespace
}  // namespace brelt::test
