// The command-line sample that shows the designer's calls: what a person types and what comes back.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/win32/support/child.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

constexpr const char* kFile =
    "// head\r\n#define IDC_KEEP 102\r\n#define ID_QUIT 202\r\n\r\nEntryMenu MENU\r\nBEGIN\r\n"
    "MENUITEM \"&Quit\",ID_QUIT\r\nEND\r\n\r\n// the form\r\nEntry DIALOG 1,2,3,4\r\nSTYLE WS_BORDER\r\n"
    "FONT 9,\"Arial\"\r\nMENU EntryMenu\r\nBEGIN\r\nAUTOCHECKBOX \"&Keep it\",IDC_KEEP,5,6,7,8\r\nEND\r\n\r\n"
    "// the other form\r\nAbout DIALOG 0,0,1,1\r\nBEGIN\r\nEND\r\n\r\n// tail\r\n";

struct Outcome {
  std::string printed;
  DWORD code;

  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  return out << outcome.code << " and\n" << outcome.printed;
}

class PropsSampleTest : public ::testing::Test {
 protected:
  // Runs a command on the file and gives what it prints, errors too.
  Outcome Props(const std::string& verb, const std::string& words = "") const {
    constexpr DWORD kPatience = 20000;
    const std::string output = TestFolder() + "printed.txt";
    const ChildProcess program("props.exe", verb + " " + path_ + " " + words, output);
    EXPECT_TRUE(program.EndsWithin(kPatience));
    std::string printed = ReadTestFile(output);
    printed.erase(std::remove(printed.begin(), printed.end(), '\r'), printed.end());
    return {printed, program.ExitCode()};
  }

  const std::string path_ = WriteTestFile("props.rc", kFile);
};

TEST_F(PropsSampleTest, ListsResourcesAndSymbolsAndShowsOne) {
  EXPECT_EQ(Props("list"), (Outcome{"EntryMenu,MENU\nEntry,DIALOG\nAbout,DIALOG\n", 0}));
  EXPECT_EQ(Props("symbols"), (Outcome{"IDC_KEEP 102 1\nID_QUIT 202 1\n", 0}));
  EXPECT_EQ(Props("show", "entrymenu"),
            (Outcome{"EntryMenu MENU\nBEGIN\nMENUITEM \"&Quit\",ID_QUIT\nEND\n", 0}));
  EXPECT_EQ(Props("show", "None"), (Outcome{"Resource <None> was not in the RC file\n", 1}));
}

TEST_F(PropsSampleTest, ReadsAFormAsProperties) {
  EXPECT_EQ(
      Props("read", "Entry"),
      (Outcome{
          "ALIGNMENT=0\nBORDERSTYLE=1\nCAPTION=\"\"\nCLOSEBOX=0\nFLAGS=0\nFONTNAME=\"Arial\"\nFONTSIZE=9\n"
          "MAXBUTTON=0\nMENU=EntryMenu\nMINBUTTON=0\nNAME=Entry\nOWNER=1\nPOSITION=1 2 3 4\n"
          "TYPEOF=Dialog\n\n"
          "ALIGNMENT=2\nCAPTION=\"&Keep it\"\nENABLED=1\nGROUP=0\nNAME=IDC_KEEP\nPOSITION=5 6 7 8\n"
          "TABSTOP=0\nTYPEOF=Checkbox\nVISIBLE=1\n\n",
          0}));
  EXPECT_EQ(Props("read", "None"),
            (Outcome{"Resource file does not contain DIALOG or MENU resource named: None\n", 1}));
}

TEST_F(PropsSampleTest, SetsAPropertyAndKeepsTheRest) {
  EXPECT_EQ(Props("set", "Entry IDC_KEEP CAPTION \"Keep &all\""), (Outcome{"", 0}));
  EXPECT_EQ(Props("set", "Entry Entry POSITION \"9 8 7 6\""), (Outcome{"", 0}));
  EXPECT_EQ(ReadTestFile(path_),
            "// head\r\n#define IDC_KEEP 102\r\n#define ID_QUIT  202\r\n\r\n// the form\r\nEntryMenu "
            "MENU\r\nBEGIN\r\n"
            "    MENUITEM \"&Quit\",ID_QUIT\r\nEND\r\n\r\nEntry DIALOG 9,8,7,6\r\nFONT 9,\"Arial\"\r\n"
            "MENU EntryMenu \r\nSTYLE WS_BORDER\r\nBEGIN\r\n"
            "    CHECKBOX       \"Keep &all\",IDC_KEEP,5,6,7,8,BS_AUTOCHECKBOX\r\nEND\r\n\r\n"
            "// the other form\r\nAbout DIALOG 0,0,1,1\r\nBEGIN\r\nEND\r\n\r\n// tail\r\n");
  EXPECT_EQ(Props("set", "Entry IDC_NONE CAPTION x"), (Outcome{"Entry has no control named IDC_NONE\n", 1}));
  EXPECT_EQ(Props("set", "About About SORTED 1").code, 1U);
}

TEST_F(PropsSampleTest, RenamesAndDeletes) {
  EXPECT_EQ(Props("rename", "About Info"), (Outcome{"", 0}));
  EXPECT_EQ(Props("list"), (Outcome{"EntryMenu,MENU\nEntry,DIALOG\nInfo,DIALOG\n", 0}));
  EXPECT_EQ(Props("rename", "About Info"), (Outcome{"Cannot rename <About>, it does not exist.\n", 1}));
  EXPECT_EQ(Props("delete", "Entry"), (Outcome{"", 0}));
  EXPECT_EQ(ReadTestFile(path_),
            "// head\r\n\r\n// the form\r\n// the other form\r\nInfo DIALOG "
            "0,0,1,1\r\nBEGIN\r\nEND\r\n\r\n// tail\r\n");
}

TEST_F(PropsSampleTest, TellsHowToUseItWhereItIsUsedWrongly) {
  const Outcome outcome = Props("paint");
  EXPECT_EQ(outcome.code, 2U);
  EXPECT_EQ(outcome.printed.substr(0, outcome.printed.find('\n')),
            "props list FILE                        the resources");
  EXPECT_EQ(Props("show"), outcome);
}

}  // namespace
}  // namespace brelt::test
