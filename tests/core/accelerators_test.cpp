#include "rc/accelerators.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/dump.h"

namespace brelt::rc {
namespace {

std::string KeysOf(const std::string& itemText, int command = 7) {
  AcceleratorTable table{};
  AddAccelerators(itemText.c_str(), command, table);
  return test::DumpAccelerators(table);
}

struct KeyCase {
  const char* text;
  const char* rows;
};

template <std::size_t Count>
void ExpectKeys(const KeyCase (&cases)[Count]) {
  for (const KeyCase& expected : cases) EXPECT_EQ(KeysOf(expected.text), expected.rows) << expected.text;
}

TEST(AddAccelerators, LooksOnlyBehindTheFirstTab) {
  ExpectKeys({{"", ""},
              {"F1", ""},
              {"&Save Ctrl+S", ""},
              {"a\tF1", "2 112 7\n"},
              {"\tF1", "2 112 7\n"},
              {"a\t", ""},
              {"a\t\tF1", ""},
              {"a\tF1\tF2", "2 112 7\n"},
              {"a\t  F1", "2 112 7\n"}});
}

TEST(AddAccelerators, FunctionKeysAreOneToTwelve) {
  for (int i = 1; i <= 12; ++i) {
    EXPECT_EQ(KeysOf("a\tF" + std::to_string(i)), "2 " + std::to_string(111 + i) + " 7\n");
  }
  ExpectKeys({{"\tf5", "2 116 7\n"},
              {"\tF12", "2 123 7\n"},
              {"\tF13", ""},
              {"\tF0", ""},
              {"\tF", ""},
              {"\tF-1", ""},
              {"\tF+1", ""},
              {"\tF 1", ""},
              {"\tFx", ""},
              {"\tF1x", "2 112 7\n"},
              {"\tF001", "2 112 7\n"},
              {"\tF99999999999", ""}});
}

TEST(AddAccelerators, ControlAndAltTakeTheCharacterBehindTheFirstSeparator) {
  ExpectKeys({{"\tCtrl+S", "10 83 7\n"},
              {"\tctrl+s", "10 83 7\n"},
              {"\tCtrl-S", "10 83 7\n"},
              {"\tCtrl + S", ""},
              {"\tCtrl +S", "10 83 7\n"},
              {"\tCtrl+1", "10 49 7\n"},
              {"\tAlt+x", "18 88 7\n"},
              {"\tALT-9", "18 57 7\n"},
              {"\tCtrl+Shift+A", "10 83 7\n"},
              {"\tCtrl+Del", "10 68 7\n"},
              {"\tCtrl+", ""},
              {"\tCtrl", ""},
              {"\tCtrl++", ""},
              {"\tCtrl+\xE4", ""},
              {"\tCtrl+_", ""},
              {"\tCtrlX-S", "10 83 7\n"},
              {"\tAlternative-S", "18 83 7\n"},
              {"\tControl+S", ""},
              {"\tShift+F1", ""},
              {"\tS", ""},
              {"\tDel", ""}});
}

TEST(AddAccelerators, CommasDivideEntriesAndWhatIsNoKeyIsPassedOver) {
  ExpectKeys({{"\tCtrl+S,F2", "10 83 7\n2 113 7\n"},
              {"\tF1, F2 , Alt+A", "2 112 7\n2 113 7\n18 65 7\n"},
              {"\tX,F1", "2 112 7\n"},
              {"\t,F1", "2 112 7\n"},
              {"\tF1,", "2 112 7\n"},
              {"\tF1,,F2", "2 112 7\n2 113 7\n"},
              {"\tF13,F1", "2 112 7\n"},
              // The comma comes ahead of any other separator.
              {"\tCtrl,F1", "2 112 7\n"},
              {"\tCtrl,Alt+B", "18 66 7\n"},
              {"\tCtrl+,F1", "2 112 7\n"}});
}

TEST(AddAccelerators, EqualKeysMakeRowsOfTheirOwn) { EXPECT_EQ(KeysOf("\tF1,F1"), "2 112 7\n2 112 7\n"); }

TEST(AddAccelerators, TheCommandHas16Bits) {
  EXPECT_EQ(KeysOf("\tF1", 0), "2 112 0\n");
  EXPECT_EQ(KeysOf("\tF1", 65535), "2 112 65535\n");
  EXPECT_EQ(KeysOf("\tF1", -1), "2 112 65535\n");
  EXPECT_EQ(KeysOf("\tF1", 0x12345), "2 112 9029\n");
}

TEST(AddAccelerators, A100thIsDroppedSoThatTheTableEndsInAZeroRow) {
  AcceleratorTable table{};
  std::string rows;
  for (int i = 1; i <= 99; ++i) {
    AddAccelerators("\tF1", i, table);
    rows += "2 112 " + std::to_string(i) + "\n";
  }
  EXPECT_EQ(test::DumpAccelerators(table), rows);
  AddAccelerators("\tF2,Ctrl+A", 100, table);
  EXPECT_EQ(test::DumpAccelerators(table), rows);
  EXPECT_EQ(table[99].Key, 0);
}

}  // namespace
}  // namespace brelt::rc
