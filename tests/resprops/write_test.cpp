#include "resprops/resourcewrite.h"

#include "tests/resprops/propsupport.h"
#include "tests/resprops/surgerysupport.h"

namespace brelt::resprops {
namespace {

using test::Crlf;
using test::kRc;
using test::Rows;
using Texts = std::vector<std::string>;

constexpr const char* kWindow = "BORDERSTYLE=1\nCAPTION=\"\"\nNAME=Main\nPOSITION=1 2 3 4\nTYPEOF=Dialog\n";
constexpr const char* kWindowText = "Main DIALOG 1,2,3,4\nSTYLE WS_BORDER\nBEGIN\n";

std::string Label(const std::string& name) { return "NAME=" + name + "\nTYPEOF=Label\nVISIBLE=1\nGROUP=1\n"; }
std::string LabelText(const std::string& name) { return "    LTEXT          \"\"," + name + ",0,0,0,0\n"; }
std::string Icon(const std::string& name, const std::string& file) {
  return "NAME=" + name + "\nPICTURE=\"" + file + "\"\nTYPEOF=Icon\nVISIBLE=1\n";
}
std::string IconText(const std::string& name, const std::string& resource) {
  return "    ICON           \"" + resource + "\"," + name + ",0,0,0,0\n";
}

std::string Write(const Texts& dialog, const Texts& menu = {}, const char* file = kRc) {
  Rows dialogRows;
  Rows menuRows(300);
  dialogRows.Fill(dialog);
  menuRows.Fill(menu);
  const std::string message = test::MessageOf([&](rc::TextBuffer error) {
    ResourceWrite({dialogRows.pointers(), 256, dialogRows.size()},
                  {menuRows.pointers(), 256, menuRows.size()}, file, error);
  });
  EXPECT_EQ(dialogRows.Texts(), dialog) << "rows are the caller's";
  EXPECT_EQ(menuRows.Texts(), menu);
  return message;
}

// The file after a write that has no message and leaves no other file.
std::string AfterWrite(const std::string& before, const Texts& dialog, const Texts& menu = {}) {
  test::SetFile(before);
  EXPECT_EQ(Write(dialog, menu), "");
  EXPECT_EQ(test::ListFiles().size(), 1U);
  EXPECT_EQ(test::LiveAllocations(), 0);
  return test::ReadFile(kRc);
}

const Texts kDemo = {
    "ALIGNMENT=0\nBORDERSTYLE=3\nCAPTION=\"Demo\"\nCLOSEBOX=1\nFLAGS=0\nFONTNAME=\"Courier\"\nFONTSIZE=8\n"
    "MAXBUTTON=0\nMENU=MainMenu\nMINBUTTON=0\nNAME=Main\nOWNER=0\nPOSITION=10 20 200 100\nTYPEOF=Dialog\n",
    "CAPTION=\"OK\"\nDEFAULT=1\nENABLED=1\nGROUP=0\nNAME=OkBtn\nPOSITION=10 10 50 14\nTABSTOP=1\n"
    "TYPEOF=Pushbutton\nVISIBLE=1\n",
    "ALIGNMENT=0\nBORDERSTYLE=0\nCAPTION=\"Hello\"\nGROUP=1\nNAME=Noname1\nPOSITION=10 30 50 "
    "8\nTYPEOF=Label\n"
    "VISIBLE=1\n",
    "ALIGNMENT=2\nCAPTION=\"Keep\"\nENABLED=1\nGROUP=0\nNAME=Chk1\nPOSITION=10 50 50 10\nTABSTOP=1\n"
    "TYPEOF=Checkbox\nVISIBLE=1\n",
    "NAME=Ico1\nPICTURE=\"c:\\pics\\a.ico\"\nPOSITION=10 70 20 20\nTYPEOF=Icon\nVISIBLE=1\n"};
const Texts kDemoMenu = {"NAME=MainMenu\nPOSITION=0\nTYPEOF=Menuitem\n",
                         "CAPTION=\"&File\"\nNAME=\nPOSITION=1\nTYPEOF=Menuitem\n",
                         "CAPTION=\"&Open\"\nNAME=FileOpen\nPOSITION=2\nTYPEOF=Menuitem\n",
                         "CAPTION=\"\"\nNAME=\nPOSITION=2\nTYPEOF=Menuitem\n",
                         "CAPTION=\"E&xit\"\nNAME=FileExit\nPOSITION=2\nTYPEOF=Menuitem\n"};
constexpr const char* kDemoText =
    R"(#define OkBtn    100
#define Noname1  101
#define Chk1     102
#define Ico1     103
#define FileOpen 104
#define FileExit 105

Main_Ico1 ICON "c:\\pics\\a.ico"

MainMenu MENU
BEGIN
    POPUP "&File"
    BEGIN
        MENUITEM "&Open",FileOpen
        MENUITEM SEPARATOR
        MENUITEM "E&xit",FileExit
    END
END

)"
    "Main DIALOG 10,20,200,100\nCAPTION \"Demo\"\nFONT 8,\"Courier\"\nMENU MainMenu \n"
    R"(STYLE WS_POPUP|WS_CAPTION|WS_SYSMENU|DS_MODALFRAME
BEGIN
    DEFPUSHBUTTON  "OK",OkBtn,10,10,50,14
    LTEXT          "Hello",Noname1,10,30,50,8
    CHECKBOX       "Keep",Chk1,10,50,50,10,BS_AUTOCHECKBOX|WS_TABSTOP
    ICON           "Main_Ico1",Ico1,10,70,20,20
END

)";

// ---- The result ----

TEST(ResourceWrite, MakesTheFileWithTheWindowItsMenuItsIconsAndItsSymbols) {
  test::ResetHost();
  EXPECT_EQ(Write(kDemo, kDemoMenu, "a.rc"), "");
  EXPECT_EQ(test::ReadFile(kRc), Crlf(kDemoText));
  EXPECT_EQ(test::ListFiles().size(), 1U);
}

TEST(ResourceWrite, OfTheSameRowsChangesNothing) {
  EXPECT_EQ(AfterWrite(kDemoText, kDemo, kDemoMenu), Crlf(kDemoText));
}

TEST(ResourceWrite, GivesBackTheRowsThatItWasGiven) {
  AfterWrite("// head\n", kDemo, kDemoMenu);
  test::WriteFile(test::kRcFile, test::ReadFile(kRc));
  EXPECT_EQ(test::ReadRows("Main"), kDemo);
  // A menu's rows come back with all of their keys.
  EXPECT_EQ(test::Flat(test::ReadRows("MainMenu"))[4],
            "CAPTION=\"E&xit\", CHECKED=0, ENABLED=1, NAME=FileExit, POSITION=2, TYPEOF=Menuitem");
}

TEST(ResourceWrite, OfAButtonWithoutATabStopSaysSo) {
  Texts rows = kDemo;
  rows[1].replace(rows[1].find("TABSTOP=1"), 9, "TABSTOP=0");
  const std::string text = AfterWrite("", rows, kDemoMenu);
  EXPECT_NE(text.find("\r\n    DEFPUSHBUTTON  \"OK\",OkBtn,10,10,50,14,NOT WS_TABSTOP\r\n"),
            std::string::npos)
      << text;
}

TEST(ResourceWrite, OfAShapeNamesItsBitsInTheOrderOfTheTable) {
  const std::string text = AfterWrite(
      "", {kWindow,
           "BORDERSTYLE=1\nFORECOLOUR=128\nNAME=S\nPOSITION=1 2 3 4\nSHAPE=0\nTYPEOF=Shape\nVISIBLE=1\n"});
  EXPECT_NE(text.find("\r\n    CONTROL        \"\",S,\"SHAPE\",SH_FGCOL_R|SH_SOLID,1,2,3,4\r\n"),
            std::string::npos)
      << text;
}

TEST(ResourceWrite, PutsTheWindowWhereItStoodAndKeepsEverythingElse) {
  const std::string before =
      "// head\n#define A 5\n#define UNUSED 6\n\n// icons\nI ICON i.ico\n\nX ICON x.ico\n\n// menu\nM "
      "MENU\nBEGIN\n"
      "MENUITEM \"a\",B\nEND\n\n\n// window\nmain DIALOG 0,0,0,0\nMENU M\nBEGIN\n// inside\nICON "
      "\"I\",A,1,2,3,4\nEND\n"
      "// behind\nOther DIALOG 1,2,3,4\nBEGIN\nLTEXT \"\",UNUSED,1,2,3,4\nEND\n";
  EXPECT_EQ(AfterWrite(before, {kWindow, Label("A"), Label("C")}),
            Crlf("// head\n#define A      5\n#define UNUSED 6\n#define C      100\n\n// icons\nX ICON "
                 "x.ico\n\n// menu\n"
                 "\n// window\n" +
                 std::string(kWindowText) + LabelText("A") + LabelText("C") +
                 "END\n\n// behind\nOther DIALOG 1,2,3,4\nBEGIN\nLTEXT \"\",UNUSED,1,2,3,4\nEND\n"));
}

TEST(ResourceWrite, PutsANewWindowAtTheEnd) {
  // What is appended to a file leaves the rest of it byte for byte.
  EXPECT_EQ(AfterWrite("X ICON x.ico\n", {kWindow}),
            "X ICON x.ico\n" + Crlf("\n" + std::string(kWindowText) + "END\n\n"));
  EXPECT_EQ(AfterWrite("X ICON x.ico\nMain BITMAP m.bmp\nY ICON y.ico\n", {kWindow}),
            Crlf("X ICON x.ico\nY ICON y.ico\n\n" + std::string(kWindowText) + "END\n\n"));
}

TEST(ResourceWrite, WritesNoMenuUnlessTheWindowNamesOneAndThereAreRows) {
  const Texts menu = {"NAME=M\nPOSITION=0\nTYPEOF=Menuitem\n"};
  const std::string withMenu = "BORDERSTYLE=1\nMENU=Other\nNAME=Main\nTYPEOF=Dialog\n";
  EXPECT_EQ(AfterWrite("", {kWindow}, menu), Crlf(std::string(kWindowText) + "END\n\n"));
  EXPECT_EQ(AfterWrite("", {withMenu}),
            Crlf("Main DIALOG 0,0,0,0\nMENU Other \nSTYLE WS_BORDER\nBEGIN\nEND\n\n"));
  // The menu has its own name, whatever the window calls it.
  EXPECT_EQ(AfterWrite("", {withMenu}, menu),
            Crlf("M MENU\nBEGIN\nEND\n\nMain DIALOG 0,0,0,0\nMENU Other \nSTYLE WS_BORDER\nBEGIN\nEND\n\n"));
}

TEST(ResourceWrite, NamesAnIconResourceForEachIconControl) {
  EXPECT_EQ(AfterWrite("X ICON x.ico\n", {kWindow, Icon("A", "a.ico"), Icon("A", "b\\\"c.ico"), Icon("B", ""),
                                          Icon("A", "a.ico")}),
            Crlf("#define A 100\n#define B 101\n\nX ICON x.ico\n\nMain_A ICON \"a.ico\"\n\n"
                 "Main_A_1 ICON \"b\\\\\"\"c.ico\"\n\nMain_A_2 ICON \"a.ico\"\n\n" +
                 std::string(kWindowText) + IconText("A", "Main_A") + IconText("A", "Main_A_1") +
                 IconText("B", "") + IconText("A", "Main_A_2") + "END\n\n"));
}

TEST(ResourceWrite, TakesOnlyNamesOfThisRunForTakenAndHeedsTheirCase) {
  // Another window's icon has the name already, and now it stands there twice.
  EXPECT_EQ(
      AfterWrite("Main_A ICON other.ico\n", {kWindow, Icon("A", "a.ico"), Icon("a", "b.ico")}),
      Crlf("#define A 100\n\nMain_A ICON other.ico\n\nMain_A ICON \"a.ico\"\n\nMain_a ICON \"b.ico\"\n\n" +
           std::string(kWindowText) + IconText("A", "Main_A") + IconText("a", "Main_a") + "END\n\n"));
}

TEST(ResourceWrite, CutsTheFileOfAnIconInItsWrittenForm) {
  const std::string name(38, 'n');
  const std::string file(255, '\xE4');
  std::string escaped;
  for (int i = 0; i < 65; ++i) escaped += "\\xE4";
  const std::string text = AfterWrite("", {"NAME=" + name + "\nTYPEOF=Dialog\n", Icon(name, file)});
  EXPECT_NE(text.find("\r\n" + name + "_" + name + " ICON \"" + escaped + "\"\r\n\r\n"), std::string::npos)
      << text;
}

// ---- Odd rows ----

TEST(ResourceWrite, WritesALonelyEndForAWindowWhoseTypeStandsInTheFirstLine) {
  EXPECT_EQ(AfterWrite("X ICON x.ico\n", {"TYPEOF=Dialog\nNAME=Main\n"}),
            "X ICON x.ico\n" + Crlf("\nEND\n\n"));
}

TEST(ResourceWrite, DropsTheRowsBehindOneOfNoKnownStatement) {
  EXPECT_EQ(AfterWrite("", {kWindow, Label("A"), "ALIGNMENT=9\nNAME=B\nTYPEOF=Label\n", Label("C")}),
            Crlf("#define A 100\n\n" + std::string(kWindowText) + LabelText("A") + "END\n\n"));
}

// ---- Symbols ----

TEST(ResourceWrite, GivesNewNamesTheLowestFreeNumbersFrom100) {
  EXPECT_EQ(
      AfterWrite(
          "#define X 100\n#define Y 102\n#define Z 50\n\nO DIALOG 0,0,1,1\nBEGIN\nLTEXT \"\",X,1,2,3,4\n"
          "LTEXT \"\",Y,1,2,3,4\nLTEXT \"\",Z,1,2,3,4\nEND\n",
          {kWindow, Label("New1"), Label("x"), Label("New2"), Label("NEW1")}),
      Crlf("#define Z    50\n#define X    100\n#define New1 101\n#define Y    102\n#define New2 103\n\n"
           "O DIALOG 0,0,1,1\nBEGIN\nLTEXT \"\",X,1,2,3,4\nLTEXT \"\",Y,1,2,3,4\nLTEXT "
           "\"\",Z,1,2,3,4\nEND\n\n" +
           std::string(kWindowText) + LabelText("New1") + LabelText("x") + LabelText("New2") +
           LabelText("NEW1") + "END\n\n"));
}

TEST(ResourceWrite, DropsTheLinesOfCommonIdentifiersUnusedNamesAndHiddenOnes) {
  EXPECT_EQ(AfterWrite("#define IDOK 1\n#define UNUSED 7\n#define _HIDDEN 8\n#define A 9\n\n",
                       {kWindow, Label("IDOK"), Label("A"), Label("IDCANCEL"), Label("B")}),
            Crlf("#define A 9\n#define B 101\n\n" + std::string(kWindowText) + LabelText("IDOK") +
                 LabelText("A") + LabelText("IDCANCEL") + LabelText("B") + "END\n\n"));
}

TEST(ResourceWrite, NumbersAllSymbolsAnewWhereTwoHaveOneNumber) {
  EXPECT_EQ(AfterWrite("#define A 7\n#define B 9\n#define C 7\n\n",
                       {kWindow, Label("C"), Label("B"), Label("A"), Label("D")}),
            Crlf("#define A 100\n#define B 101\n#define C 102\n#define D 103\n\n" + std::string(kWindowText) +
                 LabelText("C") + LabelText("B") + LabelText("A") + LabelText("D") + "END\n\n"));
}

TEST(ResourceWrite, DrawsTheSymbolsOfAHeaderIntoTheFile) {
  const std::string before =
      "#include \"resource.h\"\n#include \"other.h\"\n\nX ICON x.ico\n\n1 "
      "TEXTINCLUDE\nBEGIN\n\"resource.h\\0\"\nEND\n\n"
      "// tail\n";
  test::SetFile(before);
  test::WriteFile("c:\\home\\resource.h", "#define A 7\n#define UNUSED 8\n");
  EXPECT_EQ(Write({kWindow, Label("A"), Label("B")}), "");
  EXPECT_EQ(test::ReadFile(kRc),
            Crlf("#define A 7\n#define B 100\n\n#include \"resource.h\"\n#include \"other.h\"\n\nX ICON "
                 "x.ico\n\n// tail\n\n" +
                 std::string(kWindowText) + LabelText("A") + LabelText("B") + "END\n\n"));
  EXPECT_EQ(test::ReadFile("c:\\home\\resource.h"), "#define A 7\n#define UNUSED 8\n");
}

TEST(ResourceWrite, LeavesTheSymbolsAloneWhereTheirHeaderIsMissing) {
  const std::string head = "#define A 7\n\n1 TEXTINCLUDE\nBEGIN\n\"none.h\\0\"\nEND\n";
  test::SetFile(head);
  EXPECT_EQ(Write({kWindow, Label("A")}), "The file <c:\\home\\none.h> does not exist");
  EXPECT_EQ(test::ReadFile(kRc), Crlf(head + "\n" + kWindowText + LabelText("A") + "END\n\n")
                                     .substr(0)
                                     .replace(0, Crlf(head).size(), head));
}

TEST(ResourceWrite, DropsNamesBeyondTheThousandth) {
  std::string before;
  for (int i = 0; i < 998; ++i)
    before += "#define S" + std::to_string(i) + " " + std::to_string(i + 100) + "\n";
  std::string form = "Other DIALOG 0,0,1,1\nBEGIN\nLTEXT \"\",S997,1,2,3,4\nEND\n";
  const std::string text = AfterWrite(
      before + "\n" + form, {kWindow, Label("S5"), Label("N1"), Label("N2"), Label("N3"), Label("S6")});
  EXPECT_EQ(
      text,
      Crlf("#define S5   105\n#define S6   106\n#define S997 1097\n#define N1   1098\n#define N2   1099\n\n" +
           form + "\n" + kWindowText + LabelText("S5") + LabelText("N1") + LabelText("N2") + LabelText("N3") +
           LabelText("S6") + "END\n\n"));
}

TEST(NextFreeId, IsTheLowestNumberFrom100ThatNoSymbolHas) {
  std::vector<rc::SymbolRecord> symbols;
  const auto add = [&symbols](std::int32_t value) {
    symbols.emplace_back();
    symbols.back().Value = value;
  };
  EXPECT_EQ(NextFreeId(symbols), 100);
  add(101);
  EXPECT_EQ(NextFreeId(symbols), 100);
  add(100);
  add(100);
  EXPECT_EQ(NextFreeId(symbols), 102);
  for (const std::int32_t value : {99, 0, -1, INT32_MIN, INT32_MAX, 103}) add(value);
  EXPECT_EQ(NextFreeId(symbols), 102);
  symbols.clear();
  for (int i = 0; i < 1000; ++i) add(1099 - i);
  EXPECT_EQ(NextFreeId(symbols), 1100);
}

// ---- Failures ----

class ResourceWriteArguments : public ::testing::Test {
 protected:
  void SetUp() override {
    test::ResetHost();
    dialog_.Fill({kWindow, Label("A")});
  }
  std::string Message(const char* file = "a.rc") {
    return test::MessageOf(
        [&](rc::TextBuffer error) { ResourceWrite(dialogArray_, menuArray_, file, error); });
  }

  Rows dialog_{200, 257};
  Rows menu_{100, 257};
  PropertyArray dialogArray_{dialog_.pointers(), 256, 200};
  PropertyArray menuArray_{menu_.pointers(), 256, 100};

 private:
  // The menu's rows are empty.
  const bool filled_ = (menu_.Fill({}), true);
};

constexpr const char* kMissing = "RC file name or Property lists are invalid or empty.";
constexpr const char* kCount = "Property arrays are the wrong size, they need space for 256 elements.";

TEST_F(ResourceWriteArguments, AreCheckedInAFixedOrder) {
  EXPECT_EQ(Message(nullptr), kMissing);
  EXPECT_EQ(Message(""), kMissing);
  dialogArray_ = {nullptr, 255, -1};
  EXPECT_EQ(Message("sub\\a.rc"), kMissing);
  dialogArray_ = {dialog_.pointers(), 255, -1};
  menuArray_ = {nullptr, 255, -1};
  EXPECT_EQ(Message("sub\\a.rc"), kMissing);
  menuArray_ = {menu_.pointers(), 255, -1};
  EXPECT_EQ(Message("sub\\a.rc"),
            "The file <sub\\a.rc> should be a full path with a drive letter or just a filename");
  test::FailAllocation(0);
  EXPECT_EQ(Message(), "Insufficient memory for writing the properties.");
  EXPECT_EQ(Message(), kCount);
  dialogArray_.count = 256;
  EXPECT_EQ(Message(), kCount);
  menuArray_.count = 256;
  EXPECT_EQ(Message(), "Dialog property array is not valid, it requires 256 rows of -1 chars each.");
  dialogArray_.size = 200;
  EXPECT_EQ(Message(), "Menu property array is not valid, it requires 256 rows of -1 chars each.");
  menuArray_.size = 100;
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(test::ListFiles().size(), 1U);
}

TEST_F(ResourceWriteArguments, MustBe256RowsEach) {
  for (const int count : {0, 1, 255, 257, -256}) {
    dialogArray_.count = count;
    EXPECT_EQ(Message(), kCount);
    dialogArray_.count = 256;
    menuArray_.count = count;
    EXPECT_EQ(Message(), kCount);
    menuArray_.count = 256;
  }
  EXPECT_TRUE(test::ListFiles().empty());
}

TEST_F(ResourceWriteArguments, MustHoldTextsAndNothingElse) {
  constexpr const char* kDialog =
      "Dialog property array is not valid, it requires 256 rows of 200 chars each.";
  constexpr const char* kMenu = "Menu property array is not valid, it requires 256 rows of 100 chars each.";
  dialog_.row(255)[0] = '\t';
  EXPECT_EQ(Message(), kDialog);
  dialog_.row(255)[0] = '\0';
  dialog_.row(255)[199] = 'x';
  EXPECT_EQ(Message(), kDialog);
  dialog_.row(255)[199] = '\0';
  std::memset(menu_.row(0), 'x', 100);
  EXPECT_EQ(Message(), kMenu);
  std::memset(menu_.row(0), 0, 100);
  test::DeclareUnreadable(menu_.row(9), 1);
  EXPECT_EQ(Message(), kMenu);
  EXPECT_TRUE(test::ListFiles().empty());
  EXPECT_TRUE(dialog_.AreGuardsIntact() && menu_.AreGuardsIntact());
}

TEST_F(ResourceWriteArguments, MustBeginWithAWindow) {
  const Texts refused = {"",
                         "NAME=A\n",
                         "NAME=A\nTYPEOF=Label\n",
                         "NAME=A\nTYPEOF=Dialog",
                         "NAME=A\nTYPEOF=dialog\n",
                         "NAME=A\nTYPEOF=Dialog \n",
                         "NAME=A\nTYPEOF=Menuitem\n"};
  for (const std::string& row : refused) {
    dialog_.Fill({row});
    EXPECT_EQ(Message(), "Property lists do not contain a Dialog or Editwindow or Richeditwindow object")
        << row;
  }
  EXPECT_TRUE(test::ListFiles().empty());
  for (const char* type : {"Dialog", "Editwindow", "Richeditwindow"}) {
    dialog_.Fill({std::string("NAME=A\nTYPEOF=") + type + "\n"});
    EXPECT_EQ(Message(), "");
  }
}

TEST_F(ResourceWriteArguments, DoNothingWithoutAnErrorBuffer) {
  ResourceWrite(dialogArray_, menuArray_, "a.rc", {});
  EXPECT_TRUE(test::ListFiles().empty());
  EXPECT_EQ(test::LiveAllocations(), 0);
}

TEST_F(ResourceWriteArguments, CutTheMessageToItsBuffer) {
  menuArray_.size = 0;
  test::ExpectCutToFit(
      Message(), [this](rc::TextBuffer error) { ResourceWrite(dialogArray_, menuArray_, "a.rc", error); });
  EXPECT_TRUE(test::ListFiles().empty());
}

TEST_F(ResourceWriteArguments, ARowOfOneByteIsEmpty) {
  menuArray_ = {menu_.pointers(), 256, 1};
  EXPECT_EQ(Message(), "");
}

TEST(ResourceWrite, FailsEachStepOnAReadOnlyFileAndLeavesItAsItWas) {
  test::SetFile("X ICON x.ico\n");
  test::SetReadOnly(kRc, true);
  EXPECT_EQ(Write(kDemo, kDemoMenu), "Cannot modify the following read-only file: c:\\home\\a.rc");
  EXPECT_EQ(test::ReadFile(kRc), "X ICON x.ico\n");
  EXPECT_EQ(test::ListFiles().size(), 1U);
}

TEST(ResourceWrite, TellsThatAFolderIsNoFile) {
  test::ResetHost();
  test::MakeDirectory(kRc);
  EXPECT_EQ(Write(kDemo, kDemoMenu), "The file <c:\\home\\a.rc> does not exist");
  EXPECT_EQ(test::ListFiles().size(), 1U);
}

TEST(ResourceWrite, EachAllocationThatFailsIsToldAndLosesNothing) {
  const std::string before = "#define KEPT 7\n\n" +
                             std::string(kDemoText).substr(std::string(kDemoText).find("Main_Ico1")) +
                             "Other DIALOG 0,0,1,1\nBEGIN\nLTEXT \"\",KEPT,1,2,3,4\nEND\n";
  const std::string after = AfterWrite(before, kDemo, kDemoMenu);
  test::SetFile(before);
  test::FailAllocation(-1);
  Write(kDemo, kDemoMenu);
  const int count = test::AllocationCount();
  EXPECT_GT(count, 1000);
  // The records of a table are of one kind: after the first tables every seventh is enough.
  for (int n = 0; n < count; n += n < 40 ? 1 : 7) {
    SCOPED_TRACE(n);
    test::SetFile(before);
    test::FailAllocation(n);
    const std::string message = Write(kDemo, kDemoMenu);
    EXPECT_EQ(test::LiveAllocations(), 0);
    EXPECT_EQ(test::ListFiles().size(), 1U);
    const std::string text = test::ReadFile(kRc);
    if (text == before) {
      EXPECT_EQ(message, "Insufficient memory for writing the properties.");
    } else if (message == "Ran out of memory while deleting the following resource: Main") {
      EXPECT_NE(text.find("Other DIALOG"), std::string::npos);
    } else {
      EXPECT_TRUE(message == "Not enough memory to load the symbols" ||
                  message == "Not enough memory for loading the dialog symbols" ||
                  message == "Not enough memory for sorting the symbols")
          << message;
    }
    EXPECT_NE(text.find("#define KEPT"), std::string::npos);
    EXPECT_NE(text.find("LTEXT \"\",KEPT,1,2,3,4"), std::string::npos);
  }
}

}  // namespace
}  // namespace brelt::resprops
