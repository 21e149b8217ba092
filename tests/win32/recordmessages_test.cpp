// The messages that ask for what a window keeps, or change it.
#include <cstring>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/handles.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/slots.h"
#include "tests/win32/support/testclass.h"

namespace brelt::test {
namespace {

class RecordTest : public FormTest {
 protected:
  static LRESULT Send(HWND window, UINT message, const void* wParam, const void* lParam = nullptr) {
    return SendMessageA(window, message, reinterpret_cast<WPARAM>(wParam), reinterpret_cast<LPARAM>(lParam));
  }
};

// ---- Fonts ----

TEST_F(RecordTest, TheFontIsTakenOnlyWhileThereIsNoControl) {
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

TEST_F(RecordTest, TheDrawingFontCanBeAskedAndSet) {
  const HWND window = LoadShown("Main", "  LTEXT \"A\", 101, 1, 1, 10, 10");
  const LONG font = SendMessageA(window, XM_GETDRAWFONT, 0, 0);
  EXPECT_EQ(font, RecordWordOf(window, kWordDrawFont));
  EXPECT_NE(font, RecordWordOf(window, kWordFont)) << "It is a font of its own";
  EXPECT_EQ(SendMessageA(window, XM_SETDRAWFONT, 0x1234, 0), 0);
  EXPECT_EQ(SendMessageA(window, XM_GETDRAWFONT, 5, 6), 0x1234);
  EXPECT_EQ(SendMessageA(window, XM_SETDRAWFONT, static_cast<WPARAM>(font), 0), 0);
}

// ---- The default button ----

TEST_F(RecordTest, TheDefaultButtonIsItsIdWithAMark) {
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

TEST_F(RecordTest, AFormWithoutADefaultButtonHasNone) {
  const HWND window = LoadShown("Main", "  PUSHBUTTON \"A\", 101, 1, 1, 10, 10");
  EXPECT_EQ(SendMessageA(window, DM_GETDEFID, 0, 0), 0);
}

// ---- Text limits ----

constexpr const char* kFields =
    "  EDITTEXT 101, 10, 10, 50, 14\n"
    "  COMBOBOX 102, 10, 30, 50, 50, CBS_DROPDOWN\n"
    "  LTEXT \"A\", 103, 10, 80, 10, 10";

TEST_F(RecordTest, ATextLimitIsKeptInTheControlsRow) {
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

TEST_F(RecordTest, ATextLimitReachesTheControl) {
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
TEST_F(RecordTest, ATextLimitOfAnyOtherControlGoesAsToAComboBox) {
  const HWND window = LoadShown("Main", kFields);
  const HWND label = GetDlgItem(window, 103);
  SetWindowLongA(label, GWL_WNDPROC, reinterpret_cast<LONG>(ListenToLimits));
  limitsTold.clear();
  SendMessageA(window, XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(label), 5);
  EXPECT_EQ(limitsTold, (std::vector<std::pair<UINT, WPARAM>>{{CB_LIMITTEXT, 5}}));
}

TEST_F(RecordTest, AHandleThatIsNoControlHasNoLimitAndTakesNone) {
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

// ---- Array values ----

// A block of entries as text with bars for the ends, the last end included.
std::string BlockText(const char* block) {
  if (block == nullptr) return "none";
  std::string text;
  for (; *block != '\0'; block += std::strlen(block) + 1) text += std::string(block) + "|";
  return text + "|";
}

class ArrayValueTest : public RecordTest {
 protected:
  void SetUp() override {
    RecordTest::SetUp();
    window_ = LoadShown("Main", "  LTEXT \"A\", 101, 1, 1, 10, 10");
  }
  const char* Get(const std::string& key) const {
    return reinterpret_cast<const char*>(Send(window_, XM_GETARRAYVALUE, key.c_str()));
  }
  LRESULT Set(const std::string& key, const std::string& value) const {
    return Send(window_, XM_SETARRAYVALUE, key.c_str(), value.c_str());
  }
  const char* Block() const {
    return reinterpret_cast<const char*>(SendMessageA(window_, XM_GETARRAYVALUES, 0, 0));
  }
  std::string All() const { return BlockText(Block()); }
  LRESULT SetAll(const char* block) const { return Send(window_, XM_SETARRAYVALUES, nullptr, block); }

  HWND window_ = nullptr;
};

TEST_F(ArrayValueTest, AWindowStartsWithNone) {
  EXPECT_EQ(Block(), nullptr);
  EXPECT_EQ(Get("key"), nullptr);
  EXPECT_EQ(ReadSlot(window_, kSlotArrayValues), 0);
}

TEST_F(ArrayValueTest, AValueCanBeAddedAskedAndReplaced) {
  EXPECT_EQ(Set("one", "1"), RTX_OK);
  EXPECT_EQ(Set("two", "2"), RTX_OK);
  EXPECT_EQ(Set("three", ""), RTX_OK);
  EXPECT_EQ(All(), "one=1|two=2|three=||");
  EXPECT_STREQ(Get("two"), "2");
  EXPECT_STREQ(Get("three"), "");
  EXPECT_EQ(Set("two", "a longer one"), RTX_OK);
  EXPECT_EQ(All(), "one=1|two=a longer one|three=||");
  EXPECT_EQ(Set("one", ""), RTX_OK);
  EXPECT_EQ(All(), "one=|two=a longer one|three=||");
  EXPECT_EQ(Set("three", "3"), RTX_OK);
  EXPECT_EQ(All(), "one=|two=a longer one|three=3||");
  EXPECT_EQ(reinterpret_cast<const char*>(ReadSlot(window_, kSlotArrayValues)), Block());
}

TEST_F(ArrayValueTest, KeysAreComparedWithoutRegardToCase) {
  Set("Key", "1");
  EXPECT_STREQ(Get("KEY"), "1");
  Set("kEY", "2");
  EXPECT_EQ(All(), "kEY=2||");
}

TEST_F(ArrayValueTest, AKeyIsNoBeginningOfAnother) {
  Set("long", "1");
  EXPECT_EQ(Get("lon"), nullptr);
  EXPECT_EQ(Get("longer"), nullptr);
  EXPECT_EQ(Get(""), nullptr);
  Set("lon", "2");
  EXPECT_EQ(All(), "long=1|lon=2||");
}

TEST_F(ArrayValueTest, OfSeveralEntriesTheLastCounts) {
  SetAll("a=1\0b=2\0A=3\0c=4\0");
  EXPECT_STREQ(Get("a"), "3");
  Set("a", "5");
  EXPECT_EQ(All(), "a=1|b=2|a=5|c=4||");
}

TEST_F(ArrayValueTest, AKeyThatHoldsAnEqualsSignMatchesAsThePrefixAskedFor) {
  SetAll("a=b=1\0");
  EXPECT_STREQ(Get("a=b"), "1");
  EXPECT_STREQ(Get("a"), "b=1");
}

TEST_F(ArrayValueTest, AnEntryIsCutTo1024Characters) {
  const std::string value(2000, 'v');
  EXPECT_EQ(Set("key", value), RTX_OK);
  EXPECT_EQ(All(), "key=" + std::string(1020, 'v') + "||");
  EXPECT_EQ(Set("key", std::string(1020, 'w')), RTX_OK);
  EXPECT_EQ(All(), "key=" + std::string(1020, 'w') + "||");
  // A key alone can fill it.
  const std::string key(1500, 'k');
  EXPECT_EQ(SetAll(""), RTX_OK);
  EXPECT_EQ(Set(key, "lost"), RTX_OK);
  EXPECT_EQ(All(), std::string(1024, 'k') + "||");
}

TEST_F(ArrayValueTest, ABlockIsReplacedAsAWhole) {
  Set("old", "1");
  EXPECT_EQ(SetAll("a=1\0b=2\0"), RTX_OK);
  EXPECT_EQ(All(), "a=1|b=2||");
  EXPECT_EQ(SetAll("x=9\0"), RTX_OK);
  EXPECT_EQ(All(), "x=9||");
}

TEST_F(ArrayValueTest, AnEmptyBlockLeavesTheWindowWithNone) {
  Set("a", "1");
  EXPECT_EQ(SetAll(""), RTX_OK);
  EXPECT_EQ(Block(), nullptr);
  Set("a", "1");
  EXPECT_EQ(SetAll(nullptr), RTX_OK);
  EXPECT_EQ(Block(), nullptr);
  EXPECT_EQ(ReadSlot(window_, kSlotArrayValues), 0);
}

TEST_F(ArrayValueTest, TheWindowKeepsACopy) {
  char block[] = "a=1\0b=2\0";
  SetAll(block);
  block[0] = 'z';
  EXPECT_EQ(All(), "a=1|b=2||");
}

TEST_F(ArrayValueTest, AWindowsOwnBlockAndValuesCanBeGivenBackToIt) {
  SetAll("a=1\0b=2\0");
  EXPECT_EQ(SetAll(Block()), RTX_OK);
  EXPECT_EQ(All(), "a=1|b=2||");
  EXPECT_EQ(Send(window_, XM_SETARRAYVALUE, "a", Get("b")), RTX_OK);
  EXPECT_EQ(All(), "a=2|b=2||");
}

TEST_F(ArrayValueTest, MissingTextsChangeNothing) {
  Set("a", "1");
  EXPECT_EQ(Send(window_, XM_SETARRAYVALUE, nullptr, "x"), 0);
  EXPECT_EQ(Send(window_, XM_SETARRAYVALUE, "x", nullptr), 0);
  EXPECT_EQ(Send(window_, XM_GETARRAYVALUE, nullptr), 0);
  EXPECT_EQ(All(), "a=1||");
}

HGLOBAL WINAPI FailToAllocate(UINT, SIZE_T) { return nullptr; }

TEST_F(ArrayValueTest, WithoutMemoryTheBlockStaysAsItIs) {
  SetAll("a=1\0b=2\0");
  const ReplacedImport import("GlobalAlloc", reinterpret_cast<void*>(FailToAllocate));
  EXPECT_EQ(Set("a", "5"), RTX_NO_MEMORY);
  EXPECT_EQ(Set("new", "5"), RTX_NO_MEMORY);
  EXPECT_EQ(SetAll("x=1\0"), RTX_NO_MEMORY);
  EXPECT_EQ(All(), "a=1|b=2||");
  EXPECT_EQ(SetAll(""), RTX_OK) << "Letting the block go needs none";
  EXPECT_EQ(Block(), nullptr);
}

TEST_F(ArrayValueTest, NoBlockIsLeftBehind) {
  Set("a", "1");
  const int blocks = CountHandles().memoryBlocks;
  for (int i = 0; i < 100; ++i) {
    Set("a", std::string(static_cast<std::size_t>(i), 'x'));
    SetAll("a=1\0b=2\0");
  }
  EXPECT_EQ(CountHandles().memoryBlocks, blocks);
}

}  // namespace
}  // namespace brelt::test
