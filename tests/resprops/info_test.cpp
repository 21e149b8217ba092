#include "resprops/resourceinfo.h"

#include "tests/resprops/surgerysupport.h"

namespace brelt::resprops {
namespace {

using test::GuardedBuffer;
using test::kRc;

// The output, or "! " and the message.
std::string Ask(const char* file, const char* type, const char* name, std::int32_t flags = 0,
                int size = 4096) {
  GuardedBuffer output(size);
  GuardedBuffer error(1024);
  ResourceInfo(file, type, name, flags, output.buffer(), error.buffer());
  EXPECT_TRUE(output.IsIntact());
  EXPECT_TRUE(error.IsIntact());
  if (error.Text().empty()) return output.Text();
  EXPECT_EQ(output.Text(), "");
  return "! " + error.Text();
}

constexpr const char* kFile =
    "#define ONE 3\n#define TWO 2\n#define OTHER 1\n"
    "I ICON i.ico // comment\n"
    "D Dialog 1,2,3,4\nMENU M\nBEGIN\n/* block */ LTEXT \"\",TWO,1,2,3,4\nEND\n"
    "M MENU\nBEGIN\nMENUITEM \"a\",ONE\nMENUITEM \"b\",TWO\nEND\n"
    "E dialog 1,2,3,4\nBEGIN\nEND\n"
    "LANGUAGE LANG_ENGLISH, 1\n";

TEST(ResourceInfo, AnswersEachKindOfQuestion) {
  struct Case {
    const char* type;
    const char* name;
    std::int32_t flags;
    const char* answer;
  };
  const Case cases[] = {
      {"*", "*", 0, "I,ICON\nD,DIALOG\nM,MENU\nE,DIALOG\nLANG_ENGLISH,LANGUAGE\n"},
      {"*", "m", 0, "M MENU\nBEGIN\nMENUITEM \"a\",ONE\nMENUITEM \"b\",TWO\nEND\n"},
      {"*", "I", 0, "I ICON i.ico \n"},
      {"Dialog", "*", 0, "D,DIALOG\nE,DIALOG\n"},
      {"dialog", "d", 0, "D Dialog 1,2,3,4\nMENU M\nBEGIN\n            LTEXT \"\",TWO,1,2,3,4\nEND\n"},
      {"MENU", "*", 0, "M,MENU\n"},
      {"Icon", "i", 0, "I ICON i.ico \n"},
      {"LANGUAGE", "*", 0, "LANG_ENGLISH,LANGUAGE\n"},
      {"Cursor", "*", 0, ""},
      {"ICON\nMENU\n", "*", 0, "I,ICON\nM,MENU\n"},
      {"ICON\nMENU\n", "M", 0, "M MENU\nBEGIN\nMENUITEM \"a\",ONE\nMENUITEM \"b\",TWO\nEND\n"},
      {"no type, 1 2 3\n", "*", 0, ""},
      {"Controls", "*", 0, "ONE 3\nTWO 2\nOTHER 1\n"},
      {"CONTROLS", "*", 1, "ONE 3\nOTHER 1\nTWO 2\n"},
      {"controls", "*", 2, "OTHER 1\nTWO 2\nONE 3\n"},
      {"Controls", "*", 32, "ONE 3 1\nTWO 2 2\nOTHER 1 0\n"},
      {"Controls", "d", 0, "TWO 2\nONE 3\n"},
      {"Controls", "D", 34, "TWO 2 2\nONE 3 1\n"},
      {"Controls", "NONE", 0, ""},
      // Whoever names a resource like a list gets the list.
      {"ICON", "*", 0, "I,ICON\n"},
  };
  test::SetFile(kFile);
  for (const Case& expected : cases) {
    SCOPED_TRACE(std::string(expected.type) + " " + expected.name + " " + std::to_string(expected.flags));
    EXPECT_EQ(Ask(kRc, expected.type, expected.name, expected.flags), expected.answer);
    EXPECT_EQ(Ask("a.rc", expected.type, expected.name, expected.flags), expected.answer);
  }
}

TEST(ResourceInfo, TellsWhyItCannotInAFixedOrder) {
  struct Case {
    const char* file;
    const char* type;
    const char* name;
    const char* message;
  };
  constexpr const char* kMissing = "! Input strings are missing";
  const Case cases[] = {
      {nullptr, "", "", kMissing},
      {"", nullptr, "", kMissing},
      {"", "", nullptr, kMissing},
      {"", "", "", "! Don't know what type of resource to get"},
      {"", "*", "", "! Resource name is missing, don't know what to get"},
      {"", "1", "x", "! RC file <> should be a full path with a drive letter or just a filename"},
      {"sub\\a.rc", "1", "x",
       "! RC file <sub\\a.rc> should be a full path with a drive letter or just a filename"},
      {"none.rc", "1", "x", "! RC file <none.rc> does not exist"},
      {"c:\\home\\folder", "*", "*", "! RC file <c:\\home\\folder> does not exist"},
      {"a.rc", "1", "x", "! <1> is an unknown resource type"},
      {"a.rc", "**", "x", "! <**> is an unknown resource type"},
      {"a.rc", " Dialog", "x", "! < Dialog> is an unknown resource type"},
      {"a.rc", "*", "NONE", "! Resource <NONE> was not in the RC file"},
      {"a.rc", "Menu", "D", "! Menu <D> was not in the RC file"},
      {"a.rc", "ICON\nMENU\n", "D", "! ICON\nMENU\n <D> was not in the RC file"},
      {"a.rc", "MENU", "i", "! MENU <i> was not in the RC file"},
      {"a.rc", "icon", "Ii", "! icon <Ii> was not in the RC file"},
  };
  test::SetFile(kFile);
  test::MakeDirectory("c:\\home\\folder");
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.message);
    EXPECT_EQ(Ask(expected.file, expected.type, expected.name), expected.message);
  }
  const std::string longName(60, 'n');
  EXPECT_EQ(Ask(kRc, longName.c_str(), longName.c_str()),
            "! " + longName.substr(20) + " <" + longName.substr(20) + "> was not in the RC file");
  EXPECT_EQ(Ask(kRc, ("1" + longName).c_str(), "x"),
            "! <1" + longName.substr(21) + "> is an unknown resource type");
}

TEST(ResourceInfo, PassesOnWhatIsWrongWithTheSymbols) {
  test::SetFile("1 TEXTINCLUDE\nBEGIN\n\"none.h\\0\"\nEND\n");
  EXPECT_EQ(Ask(kRc, "Controls", "*"), "! The file <c:\\home\\none.h> does not exist");
}

TEST(ResourceInfo, TakesATextThatFillsTheOutputForACutOne) {
  struct Case {
    const char* type;
    const char* name;
    const char* message;
  };
  const Case cases[] = {
      {"*", "*", "! Buffer string is not big enough"},
      {"Dialog", "*", "! Buffer string is not big enough"},
      {"Controls", "*", "! Buffer string is not big enough"},
      {"Controls", "D", "! Buffer string is not big enough"},
      {"*", "M", "! Resource <M>, buffer is too small"},
      {"Menu", "M", "! Menu <M>, buffer is too small"},
  };
  test::SetFile(kFile);
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.message);
    const std::string answer = Ask(kRc, expected.type, expected.name);
    const int length = static_cast<int>(answer.size());
    EXPECT_EQ(Ask(kRc, expected.type, expected.name, 0, length + 2), answer);
    EXPECT_EQ(Ask(kRc, expected.type, expected.name, 0, length + 1), expected.message);
    EXPECT_EQ(Ask(kRc, expected.type, expected.name, 0, length), expected.message);
    EXPECT_EQ(Ask(kRc, expected.type, expected.name, 0, 2), expected.message);
  }
}

TEST(ResourceInfo, FailsWithAnOutputOfOneByteOrNone) {
  test::SetFile(kFile);
  EXPECT_EQ(Ask(kRc, "*", "*", 0, 1), "! Buffer string is not big enough");
  EXPECT_EQ(Ask(kRc, "Cursor", "*", 0, 1), "! Buffer string is not big enough");
  EXPECT_EQ(Ask(kRc, "Controls", "*", 0, 1), "! Buffer string is not big enough");
  EXPECT_EQ(Ask(kRc, "*", "M", 0, 1), "! Resource <M> was not in the RC file");
  EXPECT_EQ(Ask(kRc, "Menu", "M", 0, 1), "! Menu <M> was not in the RC file");
  EXPECT_EQ(Ask(kRc, "*", "*", 0, 0), "! Input strings are missing");
}

TEST(ResourceInfo, ClearsTheOutputAndNothingElseWithoutAnErrorBuffer) {
  test::SetFile(kFile);
  char output[20] = "old text";
  ResourceInfo(kRc, "*", "*", 0, {output, sizeof output}, {});
  EXPECT_STREQ(output, "");
  EXPECT_EQ(output[1], 'l');
}

TEST(ResourceInfo, CutsItsMessageToTheBuffer) {
  test::SetFile(kFile);
  char output[100];
  test::ExpectCutToFit("Menu <NONE> was not in the RC file", [&](rc::TextBuffer error) {
    ResourceInfo(kRc, "Menu", "NONE", 0, {output, sizeof output}, error);
  });
  // The output is empty also where the message can't be shown.
  char error[1];
  ResourceInfo(kRc, "Menu", "M", 0, {output, 10}, {error, 1});
  EXPECT_STREQ(output, "");
}

TEST(ResourceInfo, GivesAWholeAnswerOrAMessageWhateverFileOperationFails) {
  struct Case {
    const char* type;
    const char* name;
  };
  const Case cases[] = {{"*", "*"}, {"*", "M"}, {"Dialog", "*"}, {"Dialog", "D"}, {"Controls", "*"}};
  test::SetFile(kFile);
  // Then the file takes several reads.
  test::LimitReads(40);
  for (const Case& asked : cases) {
    SCOPED_TRACE(std::string(asked.type) + " " + asked.name);
    test::FailFileOperation(-1);
    const std::string whole = Ask(kRc, asked.type, asked.name);
    const int count = test::FileOperationCount();
    ASSERT_GT(count, 6);
    for (int n = 0; n < count; ++n) {
      SCOPED_TRACE(n);
      test::FailFileOperation(n);
      const std::string answer = Ask(kRc, asked.type, asked.name);
      EXPECT_TRUE(answer == whole || answer == "! RC file <c:\\home\\a.rc> does not exist" ||
                  answer == "! The file <c:\\home\\a.rc> does not exist" ||
                  answer == "! The file <c:\\home\\a.rc> could not be opened")
          << answer;
      EXPECT_EQ(test::OpenFiles(), 0);
    }
  }
}

TEST(ResourceInfo, EachAllocationThatFailsIsTold) {
  test::SetFile(kFile);
  const std::string whole = Ask(kRc, "Controls", "D", 32);
  for (int n = 0;; ++n) {
    SCOPED_TRACE(n);
    test::FailAllocation(n);
    const std::string answer = Ask(kRc, "Controls", "D", 32);
    if (n >= test::AllocationCount()) {
      EXPECT_EQ(answer, whole);
      break;
    }
    const char* message = n == 0    ? "! Not enough memory to load symbols"
                          : n == 1  ? "! Not enough memory to load the symbols"
                          : n < 259 ? "! Not enough memory for loading the dialog symbols"
                                    : "! Not enough memory for sorting the symbols";
    EXPECT_EQ(answer, message);
    EXPECT_EQ(test::LiveAllocations(), 0);
  }
}

}  // namespace
}  // namespace brelt::resprops
