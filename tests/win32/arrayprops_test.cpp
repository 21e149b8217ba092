// ArrayValue and ArrayValues: the strings that a program keeps with a window.
#include <algorithm>
#include <cctype>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/guarded.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

using namespace std::string_literals;

class ArrayPropsTest : public PropertyTest {
 protected:
  static std::string Value(const char* key, const char* name = kFormName) {
    char text[2048] = "unset";
    EXPECT_EQ(GetArrayValue(name, 0, key, text, sizeof text), RTX_OK);
    return text;
  }
  static int32_t Needed(const char* pattern, const char* name = kFormName) {
    int32_t needed = -1;
    EXPECT_EQ(GetArrayValues(name, 0, pattern, nullptr, 0, &needed), RTX_OK);
    return needed;
  }
  // What a pattern gives into a buffer of just the size that is needed, all its bytes.
  static std::string Values(const char* pattern, const char* name = kFormName) {
    const int32_t size = Needed(pattern, name);
    GuardedBuffer block(size);
    int32_t needed = -1;
    EXPECT_EQ(GetArrayValues(name, 0, pattern, block.data(), size, &needed), RTX_OK);
    EXPECT_EQ(needed, size);
    EXPECT_TRUE(block.IsIntact());
    return {block.data(), static_cast<std::size_t>(size)};
  }
  static void SetBlock(const std::string& block) {
    ASSERT_EQ(SetArrayValues(kFormName, 0, block.c_str()), RTX_OK);
  }
};

TEST_F(ArrayPropsTest, AMissingKeyGivesAnEmptyText) {
  EXPECT_EQ(Value("key"), "");
  EXPECT_EQ(SetArrayValue(kFormName, 0, "key", "value"), RTX_OK);
  EXPECT_EQ(Value("other"), "");
  EXPECT_EQ(Value("ke"), "");
  EXPECT_EQ(Value("keys"), "");
}

TEST_F(ArrayPropsTest, AValueIsKeptUnderItsKeyWhateverTheCase) {
  EXPECT_EQ(SetArrayValue(kFormName, 0, "Key", "value"), RTX_OK);
  EXPECT_EQ(Value("KEY"), "value");
  EXPECT_EQ(SetArrayValue("PROPS", 0, "kEY", ""), RTX_OK);
  EXPECT_EQ(Value("key"), "");
  EXPECT_EQ(Values("*"), "kEY=\0\0"s);
}

TEST_F(ArrayPropsTest, OfAKeyThatExistsTwiceTheLastIsReadAndReplaced) {
  SetBlock("a=1\0b=2\0A=3\0c=4\0"s);
  EXPECT_EQ(Value("a"), "3");
  EXPECT_EQ(SetArrayValue(kFormName, 0, "a", "five"), RTX_OK);
  EXPECT_EQ(Values("*"), "a=1\0b=2\0a=five\0c=4\0\0"s);
}

TEST_F(ArrayPropsTest, EntriesOfTwoWindowsAreApart) {
  const EditFrame plain(kPlainFrameClass, "Plain");
  const EditFrame rich(kRichFrameClass, "Rich");
  for (const char* name : {kFormName, "Plain", "Rich"}) {
    EXPECT_EQ(SetArrayValue(name, 0, "who", name), RTX_OK);
  }
  for (const char* name : {kFormName, "Plain", "Rich"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Value("who", name), name);
    EXPECT_EQ(Values("*", name), "who="s + name + "\0\0"s);
  }
}

TEST_F(ArrayPropsTest, AValueIsCutToTheBuffer) {
  SetBlock("key=value\0"s);
  ExpectCallCutToFit("value",
                     [](char* text, int32_t size) { GetArrayValue(kFormName, 0, "key", text, size); });
}

// ---- Blocks ----

TEST_F(ArrayPropsTest, AStarGivesTheWholeBlockWithTheEmptyEntry) {
  EXPECT_EQ(Needed("*"), 0);
  EXPECT_EQ(Values("*"), "");
  SetBlock("a=1\0b[1]=2\0c\0"s);
  EXPECT_EQ(Needed("*"), 14);
  EXPECT_EQ(Values("*"), "a=1\0b[1]=2\0c\0\0"s);
}

TEST_F(ArrayPropsTest, BracketsGiveTheValuesOfAnArrayInTheBlocksOrder) {
  struct Case {
    const char* pattern;
    std::string block;
    std::string values;  // empty: none, and nothing needed
  };
  const Case cases[] = {
      {"n[]", "n[1]=a\0n[2]=b\0"s, "a\0b\0\0"s},
      {"n[]", "n[2]=b\0n[1]=a\0"s, "b\0a\0\0"s},
      {"N[]", "n[1]=a\0"s, "a\0\0"s},
      {"n[]", "N[x y]=a\0"s, "a\0\0"s},
      {"n[]", "n[]=a\0"s, "a\0\0"s},
      {"n[]", "n[1]=\0"s, "\0\0"s},
      {"n[]", "n[1]=a=b\0"s, "a=b\0\0"s},
      {"n[]", "n[1]=a\0n=b\0m[1]=c\0nn[1]=d\0n[2]=e\0"s, "a\0e\0\0"s},
      {"n[]", "n[1][2]=a\0"s, "a\0\0"s},
      {"n[1][]", "n[1][2]=a\0"s, "a\0\0"s},
      {"n[]", "n1]=a\0"s, ""},
      {"n[]", "n[1=a\0"s, ""},
      {"n[]", "n[=a\0"s, ""},
      {"n[]", "n]=a\0"s, ""},
      {"n[]", "n[1]\0"s, ""},
      {"n[]", "n[1=2]=a\0"s, ""},
      {"n=[]", "n=[1]=a\0"s, ""},
      {"n[]", "", ""},
      {"n[]", "m[1]=a\0"s, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.pattern + " in "s + c.block);
    SetBlock(c.block);
    EXPECT_EQ(Needed(c.pattern), static_cast<int32_t>(c.values.size()));
    EXPECT_EQ(Values(c.pattern), c.values);
  }
}

TEST_F(ArrayPropsTest, AnyOtherPatternGivesNothing) {
  SetBlock("n[1]=a\0[1]=b\0n=c\0[]=d\0**=e\0"s);
  for (const char* pattern : {"", "n", "n[", "n]", "[]", "n[1]", "**", "* ", " *", "n[] ", "n*"}) {
    SCOPED_TRACE(pattern);
    char block[64];
    std::memset(block, 'x', sizeof block);
    int32_t needed = -1;
    EXPECT_EQ(GetArrayValues(kFormName, 0, pattern, block, sizeof block, &needed), RTX_OK);
    EXPECT_EQ(needed, 0);
    EXPECT_EQ(block[0], '\0');
  }
}

TEST_F(ArrayPropsTest, ABufferThatIsTooSmallIsClearedAndTheSizeToldAllTheSame) {
  SetBlock("n[1]=one\0n[2]=two\0"s);
  struct Case {
    const char* pattern;
    std::string values;
  };
  for (const Case& c : {Case{"*", "n[1]=one\0n[2]=two\0\0"s}, Case{"n[]", "one\0two\0\0"s}}) {
    const auto full = static_cast<int32_t>(c.values.size());
    for (const int32_t size : {INT32_MIN, -1, 0, 1, 4, 5, full - 1, full, full + 1, full + 50}) {
      SCOPED_TRACE(std::string(c.pattern) + " in a buffer of " + std::to_string(size));
      GuardedBuffer block(size);
      int32_t needed = -1;
      EXPECT_EQ(GetArrayValues(kFormName, 0, c.pattern, block.data(), size, &needed), RTX_OK);
      EXPECT_EQ(needed, full);
      EXPECT_TRUE(block.IsIntact());
      if (size >= full) {
        EXPECT_EQ(std::string(block.data(), static_cast<std::size_t>(full)), c.values);
      } else if (size > 0) {
        EXPECT_EQ(block.Text(), "");
      }
    }
  }
}

TEST_F(ArrayPropsTest, ABlockReplacesAllThereWasAndAnEmptyOneLeavesNone) {
  SetBlock("a=1\0b=2\0"s);
  SetBlock("c=3\0"s);
  EXPECT_EQ(Values("*"), "c=3\0\0"s);
  SetBlock("");
  EXPECT_EQ(Needed("*"), 0);
  EXPECT_EQ(SendMessageA(form(), XM_GETARRAYVALUES, 0, 0), 0);
  EXPECT_EQ(SetArrayValue(kFormName, 0, "a", "1"), RTX_OK);
  EXPECT_EQ(Values("*"), "a=1\0\0"s);
}

// A block that a window gives itself is read before the one that is there goes.
TEST_F(ArrayPropsTest, ABlockMayComeFromTheWindowItself) {
  SetBlock("a=1\0b=2\0"s);
  const LRESULT own = SendMessageA(form(), XM_GETARRAYVALUES, 0, 0);
  EXPECT_EQ(SetArrayValues(kFormName, 0, reinterpret_cast<const char*>(own)), RTX_OK);
  EXPECT_EQ(Values("*"), "a=1\0b=2\0\0"s);
  const LRESULT value = SendMessageA(form(), XM_GETARRAYVALUE, reinterpret_cast<WPARAM>("b"), 0);
  EXPECT_EQ(SetArrayValue(kFormName, 0, "a", reinterpret_cast<const char*>(value)), RTX_OK);
  EXPECT_EQ(Values("*"), "a=2\0b=2\0\0"s);
}

// ---- Memory ----

using Allocations = CountedImport<struct AllocTag, HGLOBAL, UINT, SIZE_T>;
using Locks = CountedImport<struct LockTag, LPVOID, HGLOBAL>;

TEST_F(ArrayPropsTest, WithoutMemoryTheOldBlockStays) {
  SetBlock("a=1\0"s);
  struct Case {
    const char* what;
    int32_t (*call)();
  };
  const Case cases[] = {
      {"new key", [] { return SetArrayValue(kFormName, 0, "b", "2"); }},
      {"replaced key", [] { return SetArrayValue(kFormName, 0, "a", "2"); }},
      {"block", [] { return SetArrayValues(kFormName, 0, "b=2\0"); }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    {
      const Allocations none("GlobalAlloc", Allocations::kAlways);
      EXPECT_EQ(c.call(), RTX_NO_MEMORY);
      EXPECT_EQ(none.calls(), 1);
    }
    EXPECT_EQ(Values("*"), "a=1\0\0"s);
    {
      const Locks none("GlobalLock", Locks::kAlways);
      EXPECT_EQ(c.call(), RTX_NO_MEMORY);
    }
    EXPECT_EQ(Values("*"), "a=1\0\0"s);
  }
}

TEST_F(ArrayPropsTest, WithoutMemoryNoFirstBlockComes) {
  {
    const Allocations none("GlobalAlloc", Allocations::kAlways);
    EXPECT_EQ(SetArrayValue(kFormName, 0, "a", "1"), RTX_NO_MEMORY);
    EXPECT_EQ(SetArrayValues(kFormName, 0, "a=1\0"), RTX_NO_MEMORY);
    // Taking all away needs none.
    EXPECT_EQ(SetArrayValues(kFormName, 0, ""), RTX_OK);
  }
  EXPECT_EQ(Needed("*"), 0);
}

// ---- Against a model ----

// The entries of a window as a plain list, with the same rules told in another way.
class Model {
 public:
  void Set(const std::string& key, const std::string& value) {
    const std::string entry = (key + "=" + value).substr(0, 1024);
    if (const int at = Find(key); at >= 0) {
      entries_[static_cast<std::size_t>(at)] = entry;
    } else {
      entries_.push_back(entry);
    }
  }
  std::string Get(const std::string& key) const {
    const int at = Find(key);
    return at < 0 ? "" : entries_[static_cast<std::size_t>(at)].substr(key.size() + 1);
  }
  void Replace(std::vector<std::string> entries) { entries_ = std::move(entries); }
  std::string Whole() const {
    std::string block;
    for (const std::string& entry : entries_) block += entry + '\0';
    return entries_.empty() ? "" : block + '\0';
  }
  std::string Array(const std::string& name) const {
    std::string block;
    for (const std::string& entry : entries_) {
      const std::string key = entry.substr(0, entry.find('='));
      const bool belongs = key.size() < entry.size() && key.size() >= name.size() + 2 &&
                           Lower(key.substr(0, name.size() + 1)) == Lower(name) + "[" && key.back() == ']';
      if (belongs) block += entry.substr(key.size() + 1) + '\0';
    }
    return block.empty() ? "" : block + '\0';
  }

 private:
  static std::string Lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
  }
  int Find(const std::string& key) const {
    int found = -1;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
      if (Lower(entries_[i].substr(0, key.size() + 1)) == Lower(key) + "=") found = static_cast<int>(i);
    }
    return found;
  }

  std::vector<std::string> entries_;
};

class RandomTexts {
 public:
  int Below(int limit) { return static_cast<int>(generator_() % static_cast<unsigned>(limit)); }
  std::string Key() {
    static const char* const names[] = {"a", "A", "b", "list", "LIST", "list2", "l", ""};
    std::string key = names[Below(8)];
    if (Below(2) == 0) key += "[" + std::to_string(Below(6)) + "]";
    return key;
  }
  std::string Value() {
    static const int lengths[] = {0, 1, 2, 10, 100, 1010, 1022, 1100};
    std::string value(static_cast<std::size_t>(lengths[Below(Below(20) == 0 ? 8 : 4)]), '\0');
    for (char& c : value) c = static_cast<char>('a' + Below(26));
    return value;
  }

 private:
  std::mt19937 generator_{20240607};
};

TEST_F(ArrayPropsTest, TenThousandRandomOperationsDoAsAPlainListDoes) {
  Model model;
  RandomTexts random;
  for (int operation = 0; operation < 10000; ++operation) {
    SCOPED_TRACE(operation);
    const std::string key = random.Key();
    switch (random.Below(40)) {
      case 0: {
        std::vector<std::string> entries;
        std::string block;
        for (int i = random.Below(12); i > 0; --i) {
          entries.push_back(random.Key() + "=" + random.Value());
          block += entries.back() + '\0';
        }
        model.Replace(entries);
        SetBlock(block);
        break;
      }
      case 1:
      case 2:
      case 3:
        ASSERT_EQ(Values("*"), model.Whole());
        break;
      case 4:
      case 5:
      case 6: {
        const std::string name = key.substr(0, key.find('['));
        ASSERT_EQ(Values((name + "[]").c_str()), name.empty() ? "" : model.Array(name));
        break;
      }
      default:
        if (random.Below(2) == 0) {
          const std::string value = random.Value();
          model.Set(key, value);
          ASSERT_EQ(SetArrayValue(kFormName, 0, key.c_str(), value.c_str()), RTX_OK);
        } else {
          ASSERT_EQ(Value(key.c_str()), model.Get(key));
        }
    }
  }
  EXPECT_EQ(Values("*"), model.Whole());
}

}  // namespace
}  // namespace brelt::test
