// Whatever file operation fails, and if all fail from it on, no text is lost.
#include <sstream>

#include "resprops/resourcewrite.h"
#include "tests/resprops/surgerysupport.h"
#include "tests/support/rows.h"

namespace brelt::resprops {
namespace {

using test::kRc;

constexpr const char* kStranger = "c:\\home\\1.tmp";

struct Scenario {
  const char* name;
  std::string before;  // of the file; there is none where it is "none"
  void (*operate)();
  std::vector<std::string> kept;  // lines that no outcome may lack, in their order
};

const std::string kNone = "none";

// Two forms, of which Other must come through everything, and text of people between them.
const std::string kForms =
    "// head\n#define OK 100\n#define KEPT 7\n#define GONE 102\n\n// icons\nI1 ICON 1.ico\n\nI2 ICON 2.ico\n"
    "Kept ICON kept.ico\n\nM MENU\nBEGIN\nMENUITEM \"a\",GONE\nEND\n\n// the form\nForm DIALOG 1,2,3,4\nMENU "
    "M\nBEGIN\n"
    "ICON \"I1\",-1,1,2,3,4\nICON I2,-1,1,2,3,4\nLTEXT \"x\",OK,1,2,3,4\nEND\n\n// the other form\n"
    "Other DIALOG 1,2,3,4\nBEGIN\nLTEXT \"\",KEPT,1,2,3,4\nEND\n// tail";
const std::vector<std::string> kKept = {"// head",
                                        "#define KEPT 7",
                                        "// icons",
                                        "Kept ICON kept.ico",
                                        "// the form",
                                        "// the other form",
                                        "Other DIALOG 1,2,3,4",
                                        "LTEXT \"\",KEPT,1,2,3,4",
                                        "// tail"};

std::vector<std::string> With(std::vector<std::string> lines, const std::string& behind,
                              const std::string& line) {
  lines.insert(std::find(lines.begin(), lines.end(), behind) + 1, line);
  return lines;
}

void WriteForm() {
  static test::Rows dialog(300);
  static test::Rows menu(300);
  dialog.Fill({"BORDERSTYLE=1\nMENU=M\nNAME=Form\nTYPEOF=Dialog\n",
               "NAME=New\nPICTURE=\"new.ico\"\nTYPEOF=Icon\n", "NAME=OK\nTYPEOF=Label\n"});
  menu.Fill(
      {"NAME=M\nPOSITION=0\nTYPEOF=Menuitem\n", "CAPTION=\"b\"\nNAME=Item\nPOSITION=1\nTYPEOF=Menuitem\n"});
  test::MessageOf([&](rc::TextBuffer error) {
    ResourceWrite({dialog.pointers(), 256, 300}, {menu.pointers(), 256, 300}, kRc, error);
  });
}

std::vector<Scenario> Scenarios() {
  const std::string withHeader =
      "// head\n#include \"resource.h\"\n1 TEXTINCLUDE\nBEGIN\n\"resource.h\\0\"\nEND\n\n" +
      kForms.substr(kForms.find("// icons"));
  std::vector<std::string> keptWithHeader = kKept;
  keptWithHeader.erase(keptWithHeader.begin() + 1);
  return {
      {"delete a form", kForms, [] { test::Delete("Form"); }, kKept},
      {"delete an icon", kForms, [] { test::Delete("I1"); },
       With(kKept, "// the form", "Form DIALOG 1,2,3,4")},
      {"delete the only resource", "I1 ICON 1.ico\n", [] { test::Delete("I1"); }, {}},
      {"rename", kForms, [] { test::Rename("Form", "Changed"); },
       With(kKept, "// the form", "LTEXT \"x\",OK,1,2,3,4")},
      {"replace", kForms, [] { test::WriteText("Form ICON f.ico\n"); }, kKept},
      {"append", kForms, [] { test::WriteText("New ICON new.ico\n"); },
       With(kKept, "// the form", "Form DIALOG 1,2,3,4")},
      {"append behind a mark", kForms + "\n\x1A", [] { test::WriteText("New ICON new.ico\n"); }, kKept},
      {"append to nothing", kNone, [] { test::WriteText("New ICON new.ico\n"); }, {}},
      {"write a form", kForms, &WriteForm, kKept},
      {"write a new form", kNone, &WriteForm, {}},
      {"write a form with a header", withHeader, &WriteForm, keptWithHeader},
      {"write a form beside text behind a mark", kForms + "\n\x1Amore", &WriteForm,
       With(kKept, "// tail", "\x1Amore")},
  };
}

void Prepare(const Scenario& scenario) {
  test::ResetHost();
  if (scenario.before != kNone) test::WriteFile(kRc, scenario.before);
  test::WriteFile(kStranger, "somebody's");
  test::WriteFile("c:\\home\\resource.h", "#define OK 100\n#define KEPT 7\n");
}

// The whole texts that the file goes through when nothing fails.
std::vector<std::string> WholeTexts(const Scenario& scenario) {
  Prepare(scenario);
  scenario.operate();
  std::vector<std::string> texts = test::RenamedTexts();
  texts.push_back(test::ReadFile(kRc));
  if (scenario.before != kNone) texts.push_back(scenario.before.substr(0, scenario.before.find('\x1A')));
  return texts;
}

// A line with its runs of blanks as one: #define lines are aligned anew.
std::string Squeezed(const std::string& line) {
  std::istringstream words(line);
  std::string squeezed;
  for (std::string word; words >> word;) squeezed += (squeezed.empty() ? "" : " ") + word;
  return squeezed;
}

bool HoldsInOrder(const std::string& text, const std::vector<std::string>& lines) {
  std::istringstream stream(text);
  std::size_t next = 0;
  for (std::string line; next < lines.size() && std::getline(stream, line);) {
    if (Squeezed(line) == Squeezed(lines[next])) ++next;
  }
  return next == lines.size();
}

// Whether some file has all that must be left: a whole text as the file had it at some time, at most with a
// part of what was to be appended behind it; or, in the file itself, all lines that are nobody's business.
::testing::AssertionResult NothingIsLost(const Scenario& scenario,
                                         const std::vector<std::string>& wholeTexts) {
  if (scenario.before == kNone) return ::testing::AssertionSuccess();
  std::string found;
  for (const std::string& path : test::ListFiles()) {
    if (path == kStranger) continue;
    const std::string text = test::ReadFile(path);
    for (const std::string& whole : wholeTexts) {
      if (!whole.empty() && text.starts_with(whole)) return ::testing::AssertionSuccess();
    }
    found += "---- " + path + "\n" + text;
  }
  if (!scenario.kept.empty() && HoldsInOrder(test::ReadFile(kRc), scenario.kept))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << found;
}

// How often the form stands in the file: a look at the file that failed must not put it there twice.
int CountForms() {
  std::istringstream stream(test::ReadFile(kRc));
  int forms = 0;
  for (std::string line; std::getline(stream, line);) forms += Squeezed(line).starts_with("Form ");
  return forms;
}

TEST(Faults, NoFileOperationThatFailsLosesTextOrDoublesAResource) {
  for (const Scenario& scenario : Scenarios()) {
    SCOPED_TRACE(scenario.name);
    const std::vector<std::string> wholeTexts = WholeTexts(scenario);
    ASSERT_TRUE(NothingIsLost(scenario, wholeTexts));
    Prepare(scenario);
    test::FailFileOperation(-1);
    scenario.operate();
    const int count = test::FileOperationCount();
    ASSERT_GE(count, 6);
    for (const bool killed : {false, true}) {
      for (int n = 0; n < count; ++n) {
        SCOPED_TRACE((killed ? "killed at " : "failed at ") + std::to_string(n));
        Prepare(scenario);
        test::FailFileOperation(n, killed);
        scenario.operate();
        EXPECT_TRUE(NothingIsLost(scenario, wholeTexts));
        EXPECT_LE(CountForms(), 1) << test::ReadFile(kRc);
        EXPECT_EQ(test::ReadFile(kStranger), "somebody's");
        EXPECT_EQ(test::OpenFiles(), 0);
        EXPECT_EQ(test::LiveAllocations(), 0);
      }
    }
  }
}

// A change of one resource happens whole or not at all, also where the file is read in several goes.
TEST(Faults, AFileOperationThatFailsLeavesTheOldTextOrTheNewOne) {
  struct Change {
    const char* name;
    std::string (*operate)();
  };
  const Change changes[] = {
      {"delete", [] { return test::Delete("M"); }},
      {"rename", [] { return test::Rename("M", "Changed"); }},
      {"rename to the name of the last", [] { return test::Rename("M", "Other"); }},
      {"replace", [] { return test::WriteText("M ICON m.ico\n"); }},
      {"append", [] { return test::WriteText("New ICON new.ico\n"); }},
  };
  const std::string before = test::Crlf(kForms + "\n");
  const auto run = [&before](const Change& change, int n) {
    test::SetFile(before);
    test::LimitReads(100);
    test::FailFileOperation(n);
    return change.operate();
  };
  for (const Change& change : changes) {
    SCOPED_TRACE(change.name);
    const std::string usual = run(change, -1);
    const std::string after = test::ReadFile(kRc);
    const int count = test::FileOperationCount();
    ASSERT_GT(count, 10);
    int told = 0;
    for (int n = 0; n < count; ++n) {
      SCOPED_TRACE(n);
      const std::string message = run(change, n);
      const std::string text = test::ReadFile(kRc);
      told += message != usual ? 1 : 0;
      // Beside half a file the old one is whole, under its temporary name.
      if (text == before || text == after || test::ReadFile("c:\\home\\1.tmp") == before) continue;
      // A file whose size can't be had at first counts as none, and nothing is put between it and what comes.
      EXPECT_EQ(text, before + test::Crlf("New ICON new.ico\n\n"));
    }
    EXPECT_GE(told, 8);
  }
}

}  // namespace
}  // namespace brelt::resprops
