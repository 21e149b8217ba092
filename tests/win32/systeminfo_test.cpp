#include <brelt.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/guarded.h"
#include "tests/win32/support/imports.h"

namespace brelt::test {
namespace {

struct Version {
  DWORD platform;
  DWORD major;
  DWORD minor;
};

// What GetVersionExA is made to say, and whether it was asked with a proper record.
Version pretended;
bool askedProperly;

BOOL WINAPI PretendVersion(OSVERSIONINFOA* version) {
  askedProperly = version->dwOSVersionInfoSize == sizeof(OSVERSIONINFOA) && version->dwMajorVersion == 0;
  version->dwPlatformId = pretended.platform;
  version->dwMajorVersion = pretended.major;
  version->dwMinorVersion = pretended.minor;
  return FALSE;  // the result is nothing to go by
}

class SystemInfoTest : public ::testing::Test {
 protected:
  void Pretend(const Version& version) { pretended = version; }
  std::string Name() {
    GuardedBuffer buffer(60);
    SystemInfo(buffer.data(), 60, &major_, &minor_, &bits_);
    EXPECT_TRUE(buffer.IsIntact());
    EXPECT_TRUE(askedProperly);
    return buffer.Text();
  }

  uint32_t major_ = 1111;
  uint32_t minor_ = 2222;
  uint32_t bits_ = 3333;

 private:
  ReplacedImport import_{"GetVersionExA", reinterpret_cast<void*>(&PretendVersion)};
};

TEST_F(SystemInfoTest, NamesEachSystemAndGivesItsVersionWith32Bits) {
  struct Case {
    Version version;
    const char* name;
  };
  constexpr DWORD kNt = 2;
  constexpr DWORD kOther = 1;
  const Case cases[] = {
      {{kNt, 6, 2}, "Windows 8"},      {{kNt, 6, 1}, "Windows 7"},     {{kNt, 6, 0}, "Windows Vista"},
      {{kNt, 5, 2}, "Windows 2003"},   {{kNt, 5, 1}, "Windows XP"},    {{kNt, 5, 0}, "Windows 2000"},
      {{kNt, 6, 3}, "Windows NT"},     {{kNt, 5, 3}, "Windows NT"},    {{kNt, 4, 0}, "Windows NT"},
      {{kNt, 4, 10}, "Windows NT"},    {{kNt, 3, 51}, "Windows NT"},   {{kNt, 10, 0}, "Windows NT"},
      {{kNt, 0, 0}, "Windows NT"},     {{kOther, 4, 0}, "Windows 95"}, {{kOther, 4, 10}, "Windows 98"},
      {{kOther, 4, 90}, "Windows ME"}, {{kOther, 4, 1}, "Windows"},    {{kOther, 6, 1}, "Windows"},
      {{kOther, 5, 1}, "Windows"},     {{0, 4, 0}, "Windows 95"},      {{0, 3, 11}, "Windows"},
      {{2 | 1, 6, 1}, "Windows 7"},    {{4, 4, 0}, "Windows 95"},      {{kNt, 0xFFFFFFFF, 2}, "Windows NT"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(::testing::Message()
                 << c.version.platform << " " << c.version.major << "." << c.version.minor);
    Pretend(c.version);
    EXPECT_EQ(Name(), c.name);
    EXPECT_EQ(major_, c.version.major);
    EXPECT_EQ(minor_, c.version.minor);
    EXPECT_EQ(bits_, 32u);
  }
}

TEST_F(SystemInfoTest, CutsTheNameToTheBuffer) {
  Pretend({2, 6, 0});
  ExpectCallCutToFit("Windows Vista",
                     [this](char* buffer, int size) { SystemInfo(buffer, size, &major_, &minor_, &bits_); });
}

TEST_F(SystemInfoTest, FillsTheVersionEvenWhereOnlyAnEmptyNameFits) {
  Pretend({2, 6, 1});
  GuardedBuffer one(1);
  SystemInfo(one.data(), 1, &major_, &minor_, &bits_);
  EXPECT_TRUE(one.IsIntact());
  EXPECT_EQ(one.Text(), "");
  EXPECT_EQ(major_, 6u);
  EXPECT_EQ(minor_, 1u);
  EXPECT_EQ(bits_, 32u);
}

TEST_F(SystemInfoTest, WritesNothingAtAllWhenAnArgumentIsMissing) {
  Pretend({2, 6, 1});
  struct Case {
    const char* what;
    bool buffer, major, minor, bits;
    int32_t size;
  };
  const Case cases[] = {
      {"no buffer", false, true, true, true, 20}, {"size 0", true, true, true, true, 0},
      {"size -1", true, true, true, true, -1},    {"no major", true, false, true, true, 20},
      {"no minor", true, true, false, true, 20},  {"no bits", true, true, true, false, 20},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    char buffer[20] = "unset";
    SystemInfo(c.buffer ? buffer : nullptr, c.size, c.major ? &major_ : nullptr, c.minor ? &minor_ : nullptr,
               c.bits ? &bits_ : nullptr);
    EXPECT_STREQ(buffer, "unset");
    EXPECT_EQ(major_, 1111u);
    EXPECT_EQ(minor_, 2222u);
    EXPECT_EQ(bits_, 3333u);
  }
}

}  // namespace
}  // namespace brelt::test
