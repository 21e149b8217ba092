// Text, TextLength, Selection, SelText, Modify, Readonly and PasswordChar of edit fields, and what the same
// calls say of edit windows as long as those have no inner control.
#include <climits>
#include <cstring>
#include <string>
#include <vector>

#include "tests/support/guarded.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

using Allocations = CountedImport<struct AllocTag, HGLOBAL, UINT, SIZE_T>;
using Beeps = CountedImport<struct BeepTag, BOOL, UINT>;

enum FieldId : int32_t { kSingle = 100, kLines, kLocked, kPassword };
constexpr int32_t kBoth[] = {kSingle, kLines};

class TextTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    const LoadResult form = LoadDialog("Fields",
                                       "  EDITTEXT 100, 0, 0, 80, 14, ES_AUTOHSCROLL\n"
                                       "  EDITTEXT 101, 0, 20, 80, 40, ES_MULTILINE | ES_AUTOVSCROLL\n"
                                       "  EDITTEXT 102, 0, 70, 80, 14, ES_READONLY\n"
                                       "  EDITTEXT 103, 0, 90, 80, 14, ES_PASSWORD");
    ASSERT_EQ(form.code, RTX_OK);
    form_ = form.window;
  }

  HWND Field(int32_t id) const { return GetDlgItem(form_, id); }
  static std::string Text(int32_t id) {
    std::string text(70000, 'x');
    EXPECT_EQ(GetText("Fields", id, text.data(), static_cast<int32_t>(text.size())), RTX_OK);
    return text.c_str();
  }
  static std::string SelText(int32_t id) {
    char text[2048] = "unset";
    EXPECT_EQ(GetSelText("Fields", id, text, sizeof text), RTX_OK);
    return text;
  }
  static void Set(int32_t id, const std::string& text) {
    EXPECT_EQ(SetText("Fields", id, text.c_str()), RTX_OK);
  }
  static void Select(int32_t id, int32_t start, int32_t length) {
    EXPECT_EQ(SetSelection("Fields", id, start, length), RTX_OK);
  }

  HWND form_ = nullptr;
};

// ---- Text ----

TEST_F(TextTest, IsSetAndGivenBackWithItsLength) {
  for (const int32_t id : kBoth) {
    for (const std::string& text : {std::string("a text \xE4"), std::string(), std::string(2000, 'y')}) {
      Set(id, text);
      EXPECT_EQ(Text(id), text);
      int32_t length = -77;
      EXPECT_EQ(GetTextLength("Fields", id, &length), RTX_OK);
      EXPECT_EQ(length, static_cast<int32_t>(text.size()));
    }
  }
}

TEST_F(TextTest, IsCutToTheBuffer) {
  for (const int32_t id : kBoth) {
    Set(id, "some text");
    ExpectCallCutToFit("some text", [&](char* text, int32_t size) { GetText("Fields", id, text, size); });
  }
}

TEST_F(TextTest, GetsTheLineEndsOfThePlatform) {
  Set(kLines, "a\nb\r\nc\rd\n");
  EXPECT_EQ(Text(kLines), "a\r\nb\r\nc\rd\r\n");
  int32_t length = -77;
  GetTextLength("Fields", kLines, &length);
  EXPECT_EQ(length, 11);
}

TEST_F(TextTest, IsCutToTheLimitOfTheFieldWithItsNewLineEnds) {
  struct Case {
    int32_t limit;
    const char* kept;
  };
  for (const Case& c : {Case{0, "ab\r\ncd"}, Case{1, "a"}, Case{2, "ab"}, Case{3, "ab\r"}, Case{5, "ab\r\nc"},
                        Case{6, "ab\r\ncd"}, Case{7, "ab\r\ncd"}}) {
    SCOPED_TRACE(c.limit);
    SetMaxLength("Fields", kLines, c.limit);
    Set(kLines, "ab\ncd");
    EXPECT_EQ(Text(kLines), c.kept);
  }
}

TEST_F(TextTest, ThatIsSetIsntModifiedAndIsPaintedWithoutErasing) {
  static std::vector<BOOL> erasures;
  struct Replacement {
    static BOOL WINAPI Invalidate(HWND window, const RECT* area, BOOL erase) {
      EXPECT_EQ(area, nullptr);
      erasures.push_back(erase);
      return InvalidateRect(window, area, erase);
    }
  };
  ShowWindow(form_, SW_SHOW);
  for (const int32_t id : kBoth) {
    SetModify("Fields", id, 1);
    erasures.clear();
    const MessageSpy spy;
    {
      const ReplacedImport invalidate("InvalidateRect", reinterpret_cast<void*>(&Replacement::Invalidate));
      Set(id, "new");
    }
    EXPECT_EQ(erasures, std::vector<BOOL>{FALSE});
    // Not every control clears the mark by itself.
    const auto marks = spy.To(Field(id), EM_SETMODIFY);
    ASSERT_EQ(marks.size(), 1u);
    EXPECT_EQ(marks[0].wParam, 0u);
    EXPECT_GE(PaintingOf(spy, Field(id)).paints, 1);
    uint8_t modified = 77;
    EXPECT_EQ(GetModify("Fields", id, &modified), RTX_OK);
    EXPECT_EQ(modified, 0);
  }
}

TEST_F(TextTest, WithoutMemoryStaysAsItWas) {
  for (const int32_t id : kBoth) {
    Set(id, "old");
    Select(id, 1, 2);
    {
      const Allocations none("GlobalAlloc", Allocations::kAlways);
      EXPECT_EQ(SetText("Fields", id, "new"), RTX_NO_MEMORY);
      EXPECT_EQ(SetSelText("Fields", id, "new"), RTX_NO_MEMORY);
    }
    EXPECT_EQ(Text(id), "old");
  }
}

// ---- Selection ----

TEST_F(TextTest, SelectionCountsFromOne) {
  struct Case {
    int32_t start, length;
    int32_t gotStart, gotLength;
  };
  const Case cases[] = {
      {1, 0, 1, 0},   {1, 3, 1, 3},   {4, 5, 4, 5},       {10, 1, 10, 1},  {11, 0, 11, 0},
      {1, 10, 1, 10}, {1, 99, 1, 10}, {5, 1000000, 5, 6}, {100, 5, 11, 0},
  };
  for (const int32_t id : kBoth) {
    Set(id, "0123456789");
    for (const Case& c : cases) {
      SCOPED_TRACE(::testing::Message() << id << ": " << c.start << ", " << c.length);
      Select(id, c.start, c.length);
      int32_t start = -77;
      int32_t length = -77;
      EXPECT_EQ(GetSelection("Fields", id, &start, &length), RTX_OK);
      EXPECT_EQ(start, c.gotStart);
      EXPECT_EQ(length, c.gotLength);
    }
  }
}

TEST_F(TextTest, SettingTheSelectionScrollsTheCaretIntoView) {
  Set(kSingle, std::string(300, 'x'));
  const MessageSpy spy;
  Select(kSingle, 250, 3);
  const auto sent = spy.To(Field(kSingle), EM_SETSEL);
  ASSERT_EQ(sent.size(), 1u);
  EXPECT_EQ(sent[0].wParam, 249u);
  EXPECT_EQ(sent[0].lParam, 252);
  EXPECT_EQ(spy.To(Field(kSingle), EM_SCROLLCARET).size(), 1u);
}

TEST_F(TextTest, WildSelectionsAreHarmless) {
  Set(kSingle, "0123456789");
  for (const int32_t start : {INT_MIN, -1, 0, 1, INT_MAX}) {
    for (const int32_t length : {INT_MIN, -1, 0, 1, INT_MAX}) {
      Select(kSingle, start, length);
      int32_t gotStart = -77;
      int32_t gotLength = -77;
      EXPECT_EQ(GetSelection("Fields", kSingle, &gotStart, &gotLength), RTX_OK);
      EXPECT_GE(gotStart, 1);
      EXPECT_GE(gotLength, 0);
      EXPECT_LE(gotStart + gotLength, 11);
    }
  }
}

// ---- SelText ----

TEST_F(TextTest, SelTextIsWhatIsSelected) {
  for (const int32_t id : kBoth) {
    Set(id, "0123456789");
    EXPECT_EQ(SelText(id), "");
    Select(id, 3, 4);
    EXPECT_EQ(SelText(id), "2345");
    Select(id, 1, 10);
    EXPECT_EQ(SelText(id), "0123456789");
    Select(id, 11, 0);
    EXPECT_EQ(SelText(id), "");
    Select(id, 10, 1);
    EXPECT_EQ(SelText(id), "9");
  }
  Set(kLines, "ab\ncd");
  Select(kLines, 2, 4);
  EXPECT_EQ(SelText(kLines), "b\r\nc");
}

TEST_F(TextTest, SelTextIsCutToTheBuffer) {
  Set(kSingle, "0123456789");
  Select(kSingle, 3, 5);
  ExpectCallCutToFit("23456", [](char* text, int32_t size) { GetSelText("Fields", kSingle, text, size); });
}

TEST_F(TextTest, SelTextWithoutMemoryIsEmpty) {
  Set(kSingle, "0123456789");
  Select(kSingle, 3, 5);
  const Allocations none("GlobalAlloc", Allocations::kAlways);
  EXPECT_EQ(SelText(kSingle), "");
  EXPECT_EQ(none.calls(), 1);
}

TEST_F(TextTest, SetSelTextReplacesTheSelectionWithTheLineEndsOfThePlatform) {
  Set(kLines, "0123456789");
  Select(kLines, 3, 4);
  MessageSpy spy;
  EXPECT_EQ(SetSelText("Fields", kLines, "a\nb"), RTX_OK);
  EXPECT_EQ(Text(kLines), "01a\r\nb6789");
  const auto sent = spy.To(Field(kLines), EM_REPLACESEL);
  ASSERT_EQ(sent.size(), 1u);
  EXPECT_EQ(sent[0].wParam, 0u);  // can't be undone
  Select(kLines, 1, 0);
  EXPECT_EQ(SetSelText("Fields", kLines, "x"), RTX_OK);
  EXPECT_EQ(Text(kLines), "x01a\r\nb6789");
  Select(kLines, 1, 3);
  EXPECT_EQ(SetSelText("Fields", kLines, ""), RTX_OK);
  EXPECT_EQ(Text(kLines), "a\r\nb6789");
}

TEST_F(TextTest, SetSelTextBeyondTheLimitOnlyBeeps) {
  struct Case {
    int32_t limit;
    int32_t start, length;
    const char* text;
    const char* after;  // null: refused
  };
  const Case cases[] = {
      {0, 1, 0, "abcdefghij", "abcdefghij01234"},
      {6, 1, 0, "a", "a01234"},
      {6, 1, 0, "ab", nullptr},
      {5, 1, 0, "a", nullptr},
      {5, 1, 1, "a", "a1234"},
      {5, 1, 5, "abcde", "abcde"},
      {5, 1, 5, "abcdef", nullptr},
      {6, 6, 0, "\n", nullptr},  // two characters in the field
      {7, 6, 0, "\n", "01234\r\n"},
      {3, 1, 0, "", nullptr},  // too long already
      {3, 1, 2, "", "234"},
      {3, 1, 2, "a", nullptr},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(::testing::Message()
                 << "limit " << c.limit << ": " << c.text << " at " << c.start << ", " << c.length);
    SetMaxLength("Fields", kLines, 0);
    Set(kLines, "01234");
    SetMaxLength("Fields", kLines, c.limit);
    Select(kLines, c.start, c.length);
    const Beeps beeps("MessageBeep");
    EXPECT_EQ(SetSelText("Fields", kLines, c.text), RTX_OK);
    EXPECT_EQ(Text(kLines), c.after != nullptr ? c.after : "01234");
    EXPECT_EQ(beeps.calls(), c.after != nullptr ? 0 : 1);
  }
}

TEST_F(TextTest, TheBeepIsTheSimpleOne) {
  static UINT kind;
  struct Replacement {
    static BOOL WINAPI Beep(UINT type) {
      kind = type;
      return TRUE;
    }
  };
  SetMaxLength("Fields", kSingle, 1);
  const ReplacedImport beep("MessageBeep", reinterpret_cast<void*>(&Replacement::Beep));
  SetSelText("Fields", kSingle, "ab");
  EXPECT_EQ(kind, 0xFFFFFFFFu);
}

// ---- Modify, Readonly ----

TEST_F(TextTest, ModifyIsThePlatformsMark) {
  for (const int32_t id : kBoth) {
    const auto modified = [&] {
      uint8_t value = 77;
      EXPECT_EQ(GetModify("Fields", id, &value), RTX_OK);
      return static_cast<int>(value);
    };
    EXPECT_EQ(modified(), 0);
    EXPECT_EQ(SetModify("Fields", id, 1), RTX_OK);
    EXPECT_EQ(modified(), 1);
    EXPECT_NE(SendMessageA(Field(id), EM_GETMODIFY, 0, 0), 0);
    EXPECT_EQ(SetModify("Fields", id, 0), RTX_OK);
    EXPECT_EQ(modified(), 0);
    EXPECT_EQ(SetSelText("Fields", id, "x"), RTX_OK);
    EXPECT_EQ(modified(), 1);
  }
}

TEST_F(TextTest, ReadonlyIsTheStyle) {
  const auto isReadOnly = [](int32_t id) {
    uint8_t value = 77;
    EXPECT_EQ(GetReadonly("Fields", id, &value), RTX_OK);
    return static_cast<int>(value);
  };
  EXPECT_EQ(isReadOnly(kSingle), 0);
  EXPECT_EQ(isReadOnly(kLocked), 1);
  SendMessageA(Field(kSingle), EM_SETREADONLY, TRUE, 0);
  EXPECT_EQ(isReadOnly(kSingle), 1);
}

// ---- PasswordChar ----

int32_t Password(int32_t id) {
  int32_t character = -77;
  EXPECT_EQ(GetPasswordChar("Fields", id, &character), RTX_OK);
  return character;
}

TEST_F(TextTest, PasswordCharIsTheLowByte) {
  EXPECT_EQ(Password(kSingle), 0);
  EXPECT_NE(Password(kPassword), 0);
  struct Case {
    int32_t character;
    int32_t kept;
  };
  for (const Case& c : {Case{'x', 'x'}, Case{0, 0}, Case{'#', '#'}, Case{0x178, 'x'}, Case{0x7FFFFF41, 'A'},
                        Case{256, 0}, Case{0x95, 0x95}, Case{0x12A, '*'}, Case{9679, 0xCF}}) {
    SCOPED_TRACE(c.character);
    const MessageSpy spy;
    EXPECT_EQ(SetPasswordChar("Fields", kSingle, c.character), RTX_OK);
    const auto sent = spy.To(Field(kSingle), EM_SETPASSWORDCHAR);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].wParam & 0xFF, static_cast<WPARAM>(c.kept));
    EXPECT_EQ(Password(kSingle), c.kept);
  }
}

TEST_F(TextTest, PasswordCharForAnAsteriskIsABlackCircle) {
  EXPECT_EQ(SetPasswordChar("Fields", kSingle, 42), RTX_OK);
  EXPECT_EQ(Password(kSingle), 9679);
  EXPECT_EQ(SendMessageW(Field(kSingle), EM_GETPASSWORDCHAR, 0, 0), 9679);
}

LRESULT CALLBACK WithoutCircle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto before = reinterpret_cast<WNDPROC>(GetPropA(window, "before"));
  if (message == EM_SETPASSWORDCHAR && wParam > 255) return 0;
  return CallWindowProcA(before, window, message, wParam, lParam);
}

TEST_F(TextTest, PasswordCharForAnAsteriskIsAnAsteriskWhereThereIsNoCircle) {
  HWND field = Field(kSingle);
  const LONG before = SetWindowLongA(field, GWL_WNDPROC, reinterpret_cast<LONG>(WithoutCircle));
  SetPropA(field, "before", reinterpret_cast<HANDLE>(before));
  EXPECT_EQ(SetPasswordChar("Fields", kSingle, 42), RTX_OK);
  EXPECT_EQ(Password(kSingle), 42);
  SetWindowLongA(field, GWL_WNDPROC, before);
  RemovePropA(field, "before");
}

TEST_F(TextTest, SettingThePasswordCharPaintsTheFieldWithItsBackground) {
  ShowWindow(form_, SW_SHOW);
  UpdateWindow(form_);
  for (const int32_t character : {42, 'x' + 0, 0}) {
    const MessageSpy spy;
    EXPECT_EQ(SetPasswordChar("Fields", kSingle, character), RTX_OK);
    EXPECT_GE(PaintingOf(spy, Field(kSingle)).paints, 1);
    EXPECT_GE(PaintingOf(spy, Field(kSingle)).erasures, 1);
    EXPECT_FALSE(GetUpdateRect(Field(kSingle), nullptr, FALSE));
  }
}

// ---- Edit windows ----

// Their inner control is still to come: until then they answer as without a text.
TEST_F(TextTest, OfAnEditWindowIsEmptyYet) {
  for (const char* className : {kPlainFrameClass, kRichFrameClass}) {
    SCOPED_TRACE(className);
    const EditFrame frame(className, "Frame");
    char text[20];
    for (auto get : {GetText, GetSelText, GetTokens}) {
      std::memset(text, 'x', sizeof text);
      EXPECT_EQ(get("Frame", 0, text, sizeof text), RTX_OK);
      EXPECT_STREQ(text, "");
      ExpectCallCutToFit("", [&](char* out, int32_t size) { get("Frame", 0, out, size); });
    }
    for (auto set : {SetText, SetSelText, SetTokens}) EXPECT_EQ(set("Frame", 0, "text"), RTX_OK);
    int32_t start = -77;
    int32_t length = -77;
    EXPECT_EQ(GetTextLength("Frame", 0, &length), RTX_OK);
    EXPECT_EQ(length, 0);
    EXPECT_EQ(SetSelection("Frame", 0, 3, 4), RTX_OK);
    EXPECT_EQ(GetSelection("Frame", 0, &start, &length), RTX_OK);
    EXPECT_EQ(start, 1);
    EXPECT_EQ(length, 0);
    uint8_t modified = 77;
    EXPECT_EQ(SetModify("Frame", 0, 1), RTX_OK);
    EXPECT_EQ(GetModify("Frame", 0, &modified), RTX_OK);
    EXPECT_EQ(modified, 0);
  }
}

}  // namespace
}  // namespace brelt::test
