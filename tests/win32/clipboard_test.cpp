// The clipboard as an object with a text.
#include <climits>
#include <cstring>
#include <string>

#include "tests/support/guarded.h"
#include "tests/win32/support/classes.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

constexpr const char* kClipboard = "Clipboard";

std::string Text(const char* name = kClipboard, int32_t id = 0) {
  char text[2048] = "unset";
  EXPECT_EQ(GetText(name, id, text, sizeof text), RTX_OK);
  return text;
}

int32_t Length(const char* name = kClipboard, int32_t id = 0) {
  int32_t length = -77;
  EXPECT_EQ(GetTextLength(name, id, &length), RTX_OK);
  return length;
}

// What another program would do with the clipboard; null for format takes all away.
void PutOnClipboard(UINT format, const std::string& bytes) {
  const TestWindow owner("STATIC");
  ASSERT_TRUE(OpenClipboard(owner.get()));
  EmptyClipboard();
  if (format != 0) {
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    std::memcpy(GlobalLock(block), bytes.data(), bytes.size());
    GlobalUnlock(block);
    EXPECT_NE(SetClipboardData(format, block), nullptr);
  }
  CloseClipboard();
}

std::string TakeFromClipboard() {
  const TestWindow owner("STATIC");
  if (!OpenClipboard(owner.get())) return "<not opened>";
  HANDLE block = GetClipboardData(CF_TEXT);
  std::string text = block != nullptr ? static_cast<const char*>(GlobalLock(block)) : "<none>";
  if (block != nullptr) GlobalUnlock(block);
  CloseClipboard();
  return text;
}

class ClipboardTest : public FormTest {};

TEST_F(ClipboardTest, TakesATextAndGivesItBack) {
  for (const std::string& text :
       {std::string("one"), std::string(""), std::string("a\nb\r\n\tc\xE4"), std::string(1500, 'x')}) {
    EXPECT_EQ(SetText(kClipboard, 0, text.c_str()), RTX_OK);
    EXPECT_EQ(TakeFromClipboard(), text);
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(Length(), static_cast<int32_t>(text.size()));
  }
}

TEST_F(ClipboardTest, IsKnownInAnyCaseAndNeedsNoWindowAndNoId) {
  PutOnClipboard(CF_TEXT, std::string("text\0", 5));
  const EditFrame frame(kPlainFrameClass, "clipboard");
  for (const char* name : {"Clipboard", "CLIPBOARD", "clipboard"}) {
    for (const int32_t id : {0, 1, 101, -1, INT_MAX}) {
      EXPECT_EQ(Text(name, id), "text");
      EXPECT_EQ(Length(name, id), 4);
      EXPECT_EQ(SetText(name, id, "text"), RTX_OK);
    }
  }
  char text[4] = "x";
  EXPECT_EQ(GetText("Clipboards", 0, text, sizeof text), RTX_NO_WINDOW);
  EXPECT_EQ(SetText("Clipboar", 0, text), RTX_NO_WINDOW);
}

// The other properties know no clipboard.
TEST_F(ClipboardTest, HasNoOtherProperty) {
  int32_t number = -77;
  char text[4] = "x";
  EXPECT_EQ(GetSelText(kClipboard, 0, text, sizeof text), RTX_NO_WINDOW);
  EXPECT_EQ(GetSelection(kClipboard, 0, &number, &number), RTX_NO_WINDOW);
  EXPECT_EQ(GetCaption(kClipboard, 0, text, sizeof text), RTX_NO_WINDOW);
}

TEST_F(ClipboardTest, RefusesWhatIsNull) {
  int32_t length = 0;
  char text[4] = "x";
  EXPECT_EQ(GetText(kClipboard, 0, nullptr, 4), RTX_NULL_ARG);
  EXPECT_EQ(SetText(kClipboard, 0, nullptr), RTX_NULL_ARG);
  EXPECT_EQ(GetTextLength(kClipboard, 0, nullptr), RTX_NULL_INT);
  EXPECT_EQ(GetText(nullptr, 0, text, sizeof text), RTX_NULL_ARG);
  EXPECT_EQ(GetTextLength(nullptr, 0, &length), RTX_NULL_ARG);
}

TEST_F(ClipboardTest, IsCutToTheBuffer) {
  PutOnClipboard(CF_TEXT, std::string("clipboard text\0", 15));
  ExpectCallCutToFit("clipboard text", [](char* text, int32_t size) { GetText(kClipboard, 0, text, size); });
}

TEST_F(ClipboardTest, WithoutATextIsEmpty) {
  PutOnClipboard(0, "");
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(Length(), 0);
  PutOnClipboard(RegisterClipboardFormatA("brelt.test"), "something else");
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(Length(), 0);
}

// Another program may have put a block there that nothing ends. What follows such a block is told from it by
// its size alone.
TEST_F(ClipboardTest, ATextEndsWithItsBlock) {
  static HANDLE block;
  struct Replacement {
    static HANDLE WINAPI Data(UINT) { return block; }
    static SIZE_T WINAPI Size(HGLOBAL) { return 3; }
  };
  block = GlobalAlloc(GMEM_FIXED, 8);
  std::memcpy(block, "abcmore", 8);
  PutOnClipboard(CF_TEXT, std::string("abc\0", 4));
  {
    const ReplacedImport data("GetClipboardData", reinterpret_cast<void*>(&Replacement::Data));
    const ReplacedImport size("GlobalSize", reinterpret_cast<void*>(&Replacement::Size));
    EXPECT_EQ(Text(), "abc");
    EXPECT_EQ(Length(), 3);
  }
  GlobalFree(block);
}

// ---- Held by another ----

// Opens the clipboard for a window of another thread as long as this lives.
class HeldClipboard {
 public:
  HeldClipboard() {
    thread_ = CreateThread(nullptr, 0, Hold, this, 0, nullptr);
    EXPECT_EQ(WaitForSingleObject(held_, 30000), WAIT_OBJECT_0);
  }
  HeldClipboard(const HeldClipboard&) = delete;
  HeldClipboard& operator=(const HeldClipboard&) = delete;
  ~HeldClipboard() {
    SetEvent(done_);
    EXPECT_EQ(WaitForSingleObject(thread_, 30000), WAIT_OBJECT_0);
    for (HANDLE handle : {thread_, held_, done_}) CloseHandle(handle);
  }

 private:
  static DWORD WINAPI Hold(LPVOID argument) {
    const auto& self = *static_cast<HeldClipboard*>(argument);
    HWND window = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(OpenClipboard(window));
    SetEvent(self.held_);
    WaitForSingleObject(self.done_, 30000);
    CloseClipboard();
    DestroyWindow(window);
    return 0;
  }

  HANDLE held_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  HANDLE done_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  HANDLE thread_;
};

using Frees = CountedImport<struct FreeTag, HGLOBAL, HGLOBAL>;

TEST_F(ClipboardTest, ThatAnotherHoldsOpenIsEmptyAndTakesNothingWithoutACode) {
  PutOnClipboard(CF_TEXT, std::string("kept\0", 5));
  {
    const HeldClipboard held;
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(Length(), 0);
    const Frees frees("GlobalFree");
    EXPECT_EQ(SetText(kClipboard, 0, "new"), RTX_OK);
    EXPECT_EQ(frees.calls(), 1);
  }
  EXPECT_EQ(Text(), "kept");
}

TEST_F(ClipboardTest, IsClosedAgain) {
  PutOnClipboard(CF_TEXT, std::string("text\0", 5));
  Text();
  Length();
  SetText(kClipboard, 0, "new");
  const HeldClipboard another;
}

// ---- Failures ----

TEST_F(ClipboardTest, WithoutMemoryStaysAsItIs) {
  PutOnClipboard(CF_TEXT, std::string("kept\0", 5));
  {
    using Allocations = CountedImport<struct AllocTag, HGLOBAL, UINT, SIZE_T>;
    const Allocations none("GlobalAlloc", Allocations::kAlways);
    EXPECT_EQ(SetText(kClipboard, 0, "new"), RTX_NO_MEMORY);
  }
  EXPECT_EQ(Text(), "kept");
  {
    using Locks = CountedImport<struct LockTag, LPVOID, HGLOBAL>;
    const Locks none("GlobalLock", Locks::kAlways);
    const Frees frees("GlobalFree");
    EXPECT_EQ(SetText(kClipboard, 0, "new"), RTX_NO_MEMORY);
    EXPECT_EQ(frees.calls(), 1);
    EXPECT_EQ(Text(), "");
  }
  EXPECT_EQ(Text(), "kept");
}

TEST_F(ClipboardTest, ThatTakesNoBlockLosesNone) {
  using Settings = CountedImport<struct SetTag, HANDLE, UINT, HANDLE>;
  using Emptyings = CountedImport<struct EmptyTag, BOOL>;
  {
    const Settings none("SetClipboardData", Settings::kAlways);
    const Frees frees("GlobalFree");
    EXPECT_EQ(SetText(kClipboard, 0, "new"), RTX_OK);
    EXPECT_EQ(frees.calls(), 1);
  }
  {
    const Emptyings none("EmptyClipboard", Emptyings::kAlways);
    const Settings settings("SetClipboardData");
    const Frees frees("GlobalFree");
    EXPECT_EQ(SetText(kClipboard, 0, "new"), RTX_OK);
    EXPECT_EQ(settings.calls(), 0);
    EXPECT_EQ(frees.calls(), 1);
  }
  {
    const Frees frees("GlobalFree");
    EXPECT_EQ(SetText(kClipboard, 0, "new"), RTX_OK);
    EXPECT_EQ(frees.calls(), 0);
  }
  EXPECT_EQ(Text(), "new");
}

}  // namespace
}  // namespace brelt::test
