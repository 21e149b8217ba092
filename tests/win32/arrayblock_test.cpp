// The block of named strings that a window carries.
#include "forms/arrayvalues.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace brelt::test {
namespace {

using namespace std::string_literals;

// A block from its entries; the literal's own zero ends it.
const char* const kNoBlock = nullptr;

// All bytes of a block up to and with the empty entry.
std::string Bytes(const char* block) { return {block, LocateArrayValue(block, "*").size + 1}; }

TEST(LocateArrayValue, FindsTheLastEntryOfAKeyAndTheSizeOfAll) {
  struct Case {
    std::string block;  // without the empty entry at the end
    const char* key;
    std::size_t position;
  };
  constexpr std::size_t kNone = std::string::npos;
  const Case cases[] = {
      {"", "a", kNone},         {"a=1\0"s, "a", 0},           {"a=1\0"s, "b", kNone},
      {"a=1\0"s, "", kNone},    {"a=1\0b=2\0"s, "b", 4},      {"a=1\0b=2\0A=3\0"s, "a", 8},
      {"ab=1\0a=2\0"s, "a", 5}, {"a=1\0ab=2\0"s, "a", 0},     {"a\0b=1\0"s, "a", kNone},
      {"\xE4=1\0"s, "\xE4", 0}, {"\xE4=1\0"s, "\xC4", kNone}, {"=1\0"s, "", 0},
      {"a=b=c\0"s, "a=b", 0},   {"*=1\0"s, "*", 0},           {"a b=1\0"s, "A B", 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.block + " for " + c.key);
    const ArrayPlace place = LocateArrayValue(c.block.c_str(), c.key);
    EXPECT_EQ(place.size, c.block.size());
    EXPECT_EQ(place.position, c.position == kNone ? c.block.size() : c.position);
    EXPECT_EQ(place.IsFound(), c.position != kNone);
  }
  const ArrayPlace nowhere = LocateArrayValue(kNoBlock, "a");
  EXPECT_EQ(nowhere.size, 0u);
  EXPECT_EQ(nowhere.position, 0u);
}

TEST(LocateArrayValue, ComparesAtMost1024CharactersOfKeyAndEqualsSign) {
  struct Case {
    std::size_t length;  // of the key
    bool found;          // in a block with the key of that length and another character behind it
  };
  for (const Case& c : {Case{1022, false}, Case{1023, false}, Case{1024, true}, Case{3000, true}}) {
    SCOPED_TRACE(c.length);
    const std::string key(c.length, 'k');
    const std::string block = key + "more=1\0"s;
    EXPECT_EQ(LocateArrayValue(block.c_str(), key.c_str()).IsFound(), c.found);
  }
}

TEST(FindArrayValue, GivesWhatStandsBehindTheEqualsSign) {
  const std::string block = "a=1\0b==2=\0empty=\0a=3\0"s;
  EXPECT_STREQ(FindArrayValue(block.c_str(), "A"), "3");
  EXPECT_STREQ(FindArrayValue(block.c_str(), "b"), "=2=");
  EXPECT_STREQ(FindArrayValue(block.c_str(), "b="), "2=");
  EXPECT_STREQ(FindArrayValue(block.c_str(), "empty"), "");
  EXPECT_EQ(FindArrayValue(block.c_str(), "c"), nullptr);
  EXPECT_EQ(FindArrayValue(kNoBlock, "a"), nullptr);
}

TEST(WithArrayValue, AddsAtTheEndOrReplacesTheLastInItsPlace) {
  struct Case {
    std::string before;
    const char* key;
    const char* value;
    std::string after;
  };
  const Case cases[] = {
      {"", "a", "1", "a=1\0\0"s},
      {"", "", "", "=\0\0"s},
      {"a=1\0"s, "b", "2", "a=1\0b=2\0\0"s},
      {"a=1\0"s, "A", "22", "A=22\0\0"s},
      {"a=1\0b=2\0c=3\0"s, "b", "", "a=1\0b=\0c=3\0\0"s},
      {"a=1\0b=2\0c=3\0"s, "b", "two", "a=1\0b=two\0c=3\0\0"s},
      {"a=1\0b=2\0c=3\0"s, "c", "3", "a=1\0b=2\0c=3\0\0"s},
      {"a=1\0b=2\0a=3\0b=4\0"s, "a", "5", "a=1\0b=2\0a=5\0b=4\0\0"s},
      {"a\0"s, "a", "1", "a\0a=1\0\0"s},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.before + " with " + c.key + "=" + c.value);
    const host::Block<char> after = WithArrayValue(c.before.c_str(), c.key, c.value);
    ASSERT_TRUE(after);
    EXPECT_EQ(Bytes(after.get()), c.after);
    EXPECT_EQ(after.count(), c.after.size());
  }
  EXPECT_EQ(Bytes(WithArrayValue(kNoBlock, "a", "1").get()), "a=1\0\0"s);
}

TEST(WithArrayValue, CutsAnEntryTo1024Characters) {
  for (const std::size_t length : {1021u, 1022u, 1023u, 5000u}) {
    SCOPED_TRACE(length);
    const std::string value(length, 'v');
    const std::string entry = ("k=" + value).substr(0, 1024);
    EXPECT_EQ(Bytes(WithArrayValue("a=1\0", "k", value.c_str()).get()), "a=1\0"s + entry + "\0\0"s);
  }
  const std::string key(2000, 'k');
  EXPECT_EQ(Bytes(WithArrayValue(kNoBlock, key.c_str(), "v").get()), key.substr(0, 1024) + "\0\0"s);
}

TEST(CopyArrayValues, CopiesUpToTheEmptyEntry) {
  EXPECT_EQ(Bytes(CopyArrayValues("a=1\0b=2\0\0c=3\0").get()), "a=1\0b=2\0\0"s);
  EXPECT_EQ(Bytes(CopyArrayValues("*=1\0").get()), "*=1\0\0"s);
  EXPECT_EQ(Bytes(CopyArrayValues("").get()), "\0"s);
  EXPECT_EQ(Bytes(CopyArrayValues(kNoBlock).get()), "\0"s);
}

}  // namespace
}  // namespace brelt::test
