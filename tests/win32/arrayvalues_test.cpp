// The named strings that a window keeps, and how they are asked for and changed.
#include <cstring>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/handles.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

// A block of entries as text with bars for the ends, the last end included.
std::string BlockText(const char* block) {
  if (block == nullptr) return "none";
  std::string text;
  for (; *block != '\0'; block += std::strlen(block) + 1) text += std::string(block) + "|";
  return text + "|";
}

class ArrayValueTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    window_ = LoadShown("Main", "  LTEXT \"A\", 101, 1, 1, 10, 10");
  }
  const char* Get(const std::string& key) const {
    return reinterpret_cast<const char*>(Send(XM_GETARRAYVALUE, key.c_str()));
  }
  LRESULT Set(const std::string& key, const std::string& value) const {
    return Send(XM_SETARRAYVALUE, key.c_str(), value.c_str());
  }
  const char* Block() const {
    return reinterpret_cast<const char*>(SendMessageA(window_, XM_GETARRAYVALUES, 0, 0));
  }
  std::string All() const { return BlockText(Block()); }
  LRESULT SetAll(const char* block) const { return Send(XM_SETARRAYVALUES, nullptr, block); }

  LRESULT Send(UINT message, const void* wParam, const void* lParam = nullptr) const {
    return SendMessageA(window_, message, reinterpret_cast<WPARAM>(wParam), reinterpret_cast<LPARAM>(lParam));
  }

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
  EXPECT_EQ(Send(XM_SETARRAYVALUE, "a", Get("b")), RTX_OK);
  EXPECT_EQ(All(), "a=2|b=2||");
}

TEST_F(ArrayValueTest, MissingTextsChangeNothing) {
  Set("a", "1");
  EXPECT_EQ(Send(XM_SETARRAYVALUE, nullptr, "x"), 0);
  EXPECT_EQ(Send(XM_SETARRAYVALUE, "x", nullptr), 0);
  EXPECT_EQ(Send(XM_GETARRAYVALUE, nullptr), 0);
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
