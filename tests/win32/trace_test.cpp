#include <brelt.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"

namespace brelt::test {
namespace {

constexpr const char* kTraceFile = "\\trace.txt";

std::vector<std::string> debugStrings;

void WINAPI CollectDebugString(const char* text) { debugStrings.emplace_back(text); }

class TraceTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    std::remove(kTraceFile);
    debugStrings.clear();
  }
  void TearDown() override {
    SetTrace(0);
    std::remove(kTraceFile);
    FormTest::TearDown();
  }
};

bool TraceFileExists() { return GetFileAttributesA(kTraceFile) != INVALID_FILE_ATTRIBUTES; }

TEST_F(TraceTest, WritesNothingInMode0) {
  ReplacedImport output("OutputDebugStringA", reinterpret_cast<void*>(&CollectDebugString));
  SetOptionBase(1);
  EXPECT_TRUE(debugStrings.empty());
  EXPECT_FALSE(TraceFileExists());
}

TEST_F(TraceTest, GivesTheDebuggerTheNameAndThenANewlineInMode1) {
  ReplacedImport output("OutputDebugStringA", reinterpret_cast<void*>(&CollectDebugString));
  SetTrace(1);
  SetOptionBase(1);
  EXPECT_EQ(debugStrings, (std::vector<std::string>{"SetOptionBase", "\n"}));
  EXPECT_FALSE(TraceFileExists());
}

TEST_F(TraceTest, AppendsALineToTheFileInTheRootOfTheDriveInMode2) {
  ReplacedImport output("OutputDebugStringA", reinterpret_cast<void*>(&CollectDebugString));
  SetTrace(2);
  SetOptionBase(1);
  GetOptionBase(nullptr);
  EXPECT_EQ(ReadTestFile("C:\\trace.txt"), "SetOptionBase\r\nGetOptionBase\r\n");
  EXPECT_TRUE(debugStrings.empty());
}

TEST_F(TraceTest, GoesOnBehindWhatTheFileHolds) {
  WriteTestFile("..\\trace.txt", "earlier\r\n");
  SetTrace(2);
  SetOptionBase(1);
  EXPECT_EQ(ReadTestFile("C:\\trace.txt"), "earlier\r\nSetOptionBase\r\n");
}

TEST_F(TraceTest, ClosesTheFileAfterEachLine) {
  SetTrace(2);
  SetOptionBase(1);
  EXPECT_EQ(std::remove(kTraceFile), 0);
  SetOptionBase(1);
  EXPECT_EQ(ReadTestFile("C:\\trace.txt"), "SetOptionBase\r\n");
}

TEST_F(TraceTest, DropsTheLineWhenTheFileCantBeOpened) {
  ASSERT_TRUE(CreateDirectoryA(kTraceFile, nullptr));
  SetTrace(2);
  EXPECT_EQ(SetOptionBase(1), 1);
  SetTrace(0);
  EXPECT_TRUE(RemoveDirectoryA(kTraceFile));
}

TEST_F(TraceTest, KeepsItsModeWhenAnUnknownOneIsAskedFor) {
  ReplacedImport output("OutputDebugStringA", reinterpret_cast<void*>(&CollectDebugString));
  SetTrace(1);
  for (const int32_t mode : {3, -1, 100}) {
    SCOPED_TRACE(mode);
    debugStrings.clear();
    EXPECT_EQ(SetTrace(mode), mode);
    SetOptionBase(1);
    EXPECT_EQ(debugStrings.size(), 2u);
  }
}

TEST_F(TraceTest, HasOneLineForACallThatFails) {
  SetTrace(2);
  char text[10];
  Load(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
  GetName(nullptr, 0, nullptr, 0);
  GetTypeof("nobody", 0, text, sizeof text);
  EXPECT_EQ(ReadTestFile("C:\\trace.txt"), "Load\r\nGetName\r\nGetTypeof\r\n");
}

TEST_F(TraceTest, HasOneLineForAWholeLoad) {
  SetTrace(2);
  ASSERT_EQ(LoadDialog("Main", "  LTEXT \"a\", 100, 0, 0, 9, 9\n  PUSHBUTTON \"b\", 101, 0, 9, 9, 9").code,
            RTX_OK);
  EXPECT_EQ(ReadTestFile("C:\\trace.txt"), "Load\r\n");
}

TEST_F(TraceTest, HasTheNameOfTheOuterCallAloneWhenShowLoads) {
  WriteTestFile("Main.rc", "Main DIALOG 0, 0, 100, 100\nBEGIN\nEND\n");
  SetTrace(2);
  ASSERT_EQ(Show(GetModuleHandleA(nullptr), "Main", "C:\\work\\Main.rc", nullptr, nullptr, 0, nullptr),
            RTX_OK);
  EXPECT_EQ(ReadTestFile("C:\\trace.txt"), "Show\r\n");
}

}  // namespace
}  // namespace brelt::test
