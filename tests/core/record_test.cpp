#include "rc/record.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/dump.h"
#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

class RecordTableTest : public ::testing::Test {
 protected:
  RecordTableTest() { test::ResetHost(); }
};

TEST_F(RecordTableTest, HasRoomForTheTextsThatRecordsHold) {
  const ResourceRecord record;
  EXPECT_EQ(record.text.kCapacity, 255);
  EXPECT_EQ(record.className.kCapacity, 32);
  EXPECT_EQ(record.menuName.kCapacity, 40);
  EXPECT_EQ(record.fontName.kCapacity, 32);
  EXPECT_EQ(record.keyword.kCapacity, 40);
  EXPECT_EQ(record.name.kCapacity, 40);
}

TEST_F(RecordTableTest, Holds256SeparateEmptyRecords) {
  RecordTable table;
  ASSERT_TRUE(AllocRecordArray(table));
  EXPECT_EQ(std::set<ResourceRecord*>(table, table + kRecordCount).size(), 256u);
  EXPECT_EQ(test::LiveAllocations(), 256);
  EXPECT_EQ(test::DumpRecords(table), "");
  FreeRecordArray(table);
  EXPECT_EQ(test::LiveAllocations(), 0);
  EXPECT_EQ(std::set<ResourceRecord*>(table, table + kRecordCount), std::set<ResourceRecord*>{nullptr});
  FreeRecordArray(table);
  EXPECT_EQ(test::LiveAllocations(), 0);
}

TEST_F(RecordTableTest, KeepsWhatItHasWhenMemoryRunsOut) {
  for (const int failing : {0, 1, 100, 255}) {
    SCOPED_TRACE(failing);
    RecordTable table;
    test::FailAllocation(failing);
    EXPECT_FALSE(AllocRecordArray(table));
    EXPECT_EQ(test::LiveAllocations(), failing);
    for (int i = 0; i < kRecordCount; ++i) EXPECT_EQ(table[i] != nullptr, i < failing) << i;
    FreeRecordArray(table);
    EXPECT_EQ(test::LiveAllocations(), 0);
  }
}

TEST_F(RecordTableTest, ItsOwnerFreesIt) {
  test::FailAllocation(10);
  EXPECT_FALSE(RecordArray());
  EXPECT_EQ(test::LiveAllocations(), 0);
  test::FailAllocation(-1);
  {
    RecordArray records;
    EXPECT_TRUE(static_cast<bool>(records));
    EXPECT_EQ(&records[255], records.table()[255]);
  }
  EXPECT_EQ(test::LiveAllocations(), 0);
}

TEST_F(RecordTableTest, ClearingEmptiesEveryFieldOfRecordsWithAKeywordOrAName) {
  RecordArray records;
  for (int i = 0; i < kRecordCount; ++i) {
    ResourceRecord& record = records[i];
    record.x = record.y = record.width = record.height = record.fontSize = 5;
    record.style = record.exStyle = 5;
    record.text.Assign("t");
    record.className.Assign("c");
    record.menuName.Assign("m");
    record.fontName.Assign("f");
    if (i % 2 == 0) {
      record.keyword.Assign("k");
    } else {
      record.name.Assign("n");
    }
  }
  ClearRecords(records.table());
  EXPECT_EQ(test::DumpRecords(records.table()), "");
}

TEST_F(RecordTableTest, ClearingEmptiesTheResourceItselfWhateverItHolds) {
  RecordArray records;
  records[0].text.Assign("t");
  records[0].style = 1;
  ClearRecords(records.table());
  EXPECT_EQ(test::DumpRecords(records.table()), "");
}

}  // namespace
}  // namespace brelt::rc
