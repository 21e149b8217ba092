#include <gtest/gtest.h>

#include "tests/resprops/propsupport.h"
#include "tests/resprops/surgerysupport.h"

namespace brelt::resprops {
namespace {

using test::Flat;
using test::ReadRows;
using test::ReadRowsOf;
using test::Rows;
using test::ValueOf;
using Texts = std::vector<std::string>;

std::string FormWith(const std::string& controls, const std::string& statements = "") {
  return "Form DIALOG 1,2,3,4\n" + statements + "BEGIN\n" + controls + "\nEND\n";
}

// ---- Whole rows ----

TEST(ResourceRead, GivesTheWindowAndItsControlsInTheOrderOfTheFile) {
  const char* text = R"(Main DIALOG 10,20,200,100
CAPTION "Demo"
FONT 8,"Courier"
STYLE WS_POPUP|WS_CAPTION|WS_SYSMENU|DS_MODALFRAME
BEGIN
    PUSHBUTTON     "OK",OkBtn,10,10,50,14
    LTEXT          "Hello",1000,10,30,50,8
END
)";
  const Texts expected = {
      "ALIGNMENT=0\nBORDERSTYLE=3\nCAPTION=\"Demo\"\nCLOSEBOX=1\nFLAGS=0\nFONTNAME=\"Courier\"\nFONTSIZE=8\n"
      "MAXBUTTON=0\nMENU=\nMINBUTTON=0\nNAME=Main\nOWNER=0\nPOSITION=10 20 200 100\nTYPEOF=Dialog\n",
      "CAPTION=\"OK\"\nDEFAULT=0\nENABLED=1\nGROUP=0\nNAME=OkBtn\nPOSITION=10 10 50 14\nTABSTOP=1\n"
      "TYPEOF=Pushbutton\nVISIBLE=1\n",
      "ALIGNMENT=0\nBORDERSTYLE=0\nCAPTION=\"Hello\"\nGROUP=1\nNAME=Noname1\nPOSITION=10 30 50 "
      "8\nTYPEOF=Label\n"
      "VISIBLE=1\n"};
  EXPECT_EQ(ReadRowsOf(text, "Main"), expected);
  EXPECT_EQ(ReadRowsOf(text, "mAIN"), expected);
}

TEST(ResourceRead, GivesEachTypeThePropertiesOfItsSchema) {
  struct Case {
    const char* statement;
    const char* row;
  };
  const Case cases[] = {
      {"CONTROL \"a.bmp\",B,\"BITMAPBUTTON\",BB_RADIOSTYLE,1,2,3,4",
       "BUTTONSTYLE=2, ENABLED=1, GROUP=0, NAME=B, PICTURE=\"a.bmp\", POSITION=1 2 3 4, "
       "TRANSPARENTCOLOUR=-1, "
       "TYPEOF=Bitmapbutton, VISIBLE=1"},
      {"AUTOCHECKBOX \"a\",B,1,2,3,4,WS_TABSTOP",
       "ALIGNMENT=2, CAPTION=\"a\", ENABLED=1, GROUP=0, NAME=B, POSITION=1 2 3 4, TABSTOP=1, "
       "TYPEOF=Checkbox, "
       "VISIBLE=1"},
      {"COMBOBOX B,1,2,3,4,CBS_DROPDOWN|CBS_SORT",
       "COMBOSTYLE=0, ENABLED=1, NAME=B, POSITION=1 2 3 4, SORTED=1, TABSTOP=0, TYPEOF=Combobox, VISIBLE=1"},
      {"EDITTEXT B,1,2,3,4",
       "ALIGNMENT=0, BORDERSTYLE=1, ENABLED=1, MULTILINE=0, NAME=B, POSITION=1 2 3 4, READONLY=0, "
       "SCROLLBARS=0, "
       "TABSTOP=1, TYPEOF=Edit, VISIBLE=1"},
      {"GROUPBOX \"a\",B,1,2,3,4,WS_GROUP",
       "CAPTION=\"a\", GROUP=1, NAME=B, POSITION=1 2 3 4, TYPEOF=Groupbox, VISIBLE=1"},
      {"ICON \"None\",B,1,2,3,4", "NAME=B, PICTURE=\"\", POSITION=1 2 3 4, TYPEOF=Icon, VISIBLE=1"},
      {"CONTROL \"a\",B,\"ICONLIST\",LBS_SORT|WS_BORDER|LBS_USETABSTOPS,1,2,3,4",
       "BORDERSTYLE=1, CAPTION=\"a\", ENABLED=1, NAME=B, POSITION=1 2 3 4, SCROLLBARS=0, SORTED=1, "
       "TABSTOP=0, "
       "TYPEOF=Iconlist, USETABSTOPS=1, VISIBLE=1"},
      {"CONTROL \"a.bmp\",B,\"IMAGE\",WS_BORDER,1,2,3,4",
       "BORDERSTYLE=1, NAME=B, PICTURE=\"a.bmp\", POSITION=1 2 3 4, TYPEOF=Image, VISIBLE=1"},
      {"CTEXT \"a\",B,1,2,3,4",
       "ALIGNMENT=1, BORDERSTYLE=0, CAPTION=\"a\", GROUP=1, NAME=B, POSITION=1 2 3 4, TYPEOF=Label, "
       "VISIBLE=1"},
      {"LISTBOX B,1,2,3,4",
       "BORDERSTYLE=1, ENABLED=1, NAME=B, POSITION=1 2 3 4, SCROLLBARS=0, SORTED=0, TABSTOP=0, "
       "TYPEOF=Listbox, "
       "USETABSTOPS=0, VISIBLE=1"},
      {"CONTROL \"\",B,\"PROGRESSBAR\",PI_VERTICAL|PI_BGCOL_Y,1,2,3,4",
       "ALIGNMENT=5, BACKCOLOUR=12632256, BORDERSTYLE=0, FORECOLOUR=0, NAME=B, POSITION=1 2 3 4, "
       "TYPEOF=Progressbar, VISIBLE=1"},
      {"DEFPUSHBUTTON \"a\",B,1,2,3,4,WS_GROUP",
       "CAPTION=\"a\", DEFAULT=1, ENABLED=1, GROUP=1, NAME=B, POSITION=1 2 3 4, TABSTOP=1, "
       "TYPEOF=Pushbutton, "
       "VISIBLE=1"},
      {"RADIOBUTTON \"a\",B,1,2,3,4,BS_LEFTTEXT",
       "ALIGNMENT=0, CAPTION=\"a\", ENABLED=1, GROUP=0, NAME=B, POSITION=1 2 3 4, TABSTOP=0, "
       "TYPEOF=Radiobutton, "
       "VISIBLE=1"},
      {"SCROLLBAR B,1,2,3,4,SBS_VERT|NOT WS_VISIBLE|WS_DISABLED",
       "ALIGNMENT=5, ENABLED=0, NAME=B, POSITION=1 2 3 4, TABSTOP=0, TYPEOF=Scrollbar, VISIBLE=0"},
      {"CONTROL \"\",B,\"SHAPE\",SH_ROUNDRECT|SH_DASH|SH_FGCOL_R,1,2,3,4",
       "BACKCOLOUR=0, BORDERSTYLE=2, FORECOLOUR=128, NAME=B, POSITION=1 2 3 4, SHAPE=4, TYPEOF=Shape, "
       "VISIBLE=1"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.statement);
    const Texts rows = ReadRowsOf(FormWith(expected.statement));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(Flat(rows[1]), expected.row);
    EXPECT_EQ(rows[1].back(), '\n');
  }
}

TEST(ResourceRead, GivesTheThreeKindsOfWindow) {
  struct Case {
    const char* statements;
    const char* row;
  };
  const Case cases[] = {
      {"",
       "ALIGNMENT=0, BORDERSTYLE=0, CAPTION=\"\", CLOSEBOX=0, FLAGS=0, FONTNAME=\"Microsoft Sans Serif\", "
       "FONTSIZE=8, MAXBUTTON=0, MENU=, MINBUTTON=0, NAME=Form, OWNER=1, POSITION=1 2 3 4, TYPEOF=Dialog"},
      {"CLASS \"Dialog\"\nEXSTYLE 0x20\nMENU MainMenu\n",
       "ALIGNMENT=0, BORDERSTYLE=0, CAPTION=\"\", CLOSEBOX=0, FLAGS=0, FONTNAME=\"Microsoft Sans Serif\", "
       "FONTSIZE=8, MAXBUTTON=0, MENU=MainMenu, MINBUTTON=0, NAME=Form, OWNER=1, POSITION=1 2 3 4, "
       "TYPEOF=Dialog"},
      {"CLASS \"EditWindow\"\nEXSTYLE EWS_HILITE|EWS_NUMBERBAR\nSTYLE DS_CENTER|WS_CAPTION\n",
       "ALIGNMENT=1, BORDERSTYLE=1, CAPTION=\" \", CLOSEBOX=0, FLAGS=4160, FONTNAME=\"Microsoft Sans "
       "Serif\", "
       "FONTSIZE=8, MAXBUTTON=0, MENU=, MINBUTTON=0, NAME=Form, OWNER=1, POSITION=1 2 3 4, "
       "TYPEOF=Editwindow"},
      {"CLASS \"richeditwindow\"\nEXSTYLE 0xFFFFFFFF\nFONT 12,\"Arial\"\n",
       "ALIGNMENT=0, BORDERSTYLE=0, CAPTION=\"\", CLOSEBOX=0, FLAGS=-1, FONTNAME=\"Arial\", FONTSIZE=12, "
       "MAXBUTTON=0, MENU=, MINBUTTON=0, NAME=Form, OWNER=1, POSITION=1 2 3 4, TYPEOF=Richeditwindow"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.statements);
    EXPECT_EQ(Flat(ReadRowsOf(FormWith("", expected.statements))), Texts{expected.row});
  }
}

TEST(ResourceRead, GivesAMenuWithItsLevels) {
  const char* text = R"(Form menu
begin
  POPUP "&File", INACTIVE
  BEGIN
    menuitem "&Open\tCtrl+O",FileOpen
    MENUITEM separator
    Popup "More", GRAYED
    BEGIN
      MENUITEM "Deep",101,CHECKED,GRAYED
    END
  END
  MENUITEM "&Help",0x20,CHECKED
END
)";
  EXPECT_EQ(
      Flat(ReadRowsOf(text)),
      (Texts{"CAPTION=\"\", CHECKED=0, ENABLED=1, NAME=Form, POSITION=0, TYPEOF=Menuitem",
             "CAPTION=\"&File\", CHECKED=0, ENABLED=0, NAME=, POSITION=1, TYPEOF=Menuitem",
             "CAPTION=\"&Open\\tCtrl+O\", CHECKED=0, ENABLED=1, NAME=FileOpen, POSITION=2, TYPEOF=Menuitem",
             "CAPTION=\"\", CHECKED=0, ENABLED=1, NAME=, POSITION=2, TYPEOF=Menuitem",
             "CAPTION=\"More\", CHECKED=0, ENABLED=0, NAME=, POSITION=2, TYPEOF=Menuitem",
             "CAPTION=\"Deep\", CHECKED=1, ENABLED=0, NAME=Noname1, POSITION=3, TYPEOF=Menuitem",
             "CAPTION=\"&Help\", CHECKED=1, ENABLED=1, NAME=Noname2, POSITION=1, TYPEOF=Menuitem"}));
}

// ---- Single values ----

struct ValueCase {
  const char* text;
  const char* key;
  const char* value;
};

TEST(ResourceRead, ReadsTheWindowsPropertiesFromItsStatements) {
  const ValueCase cases[] = {
      {"STYLE DS_MODALFRAME|WS_THICKFRAME|WS_BORDER\n", "BORDERSTYLE", "3"},
      {"STYLE WS_THICKFRAME|WS_BORDER\n", "BORDERSTYLE", "2"},
      {"STYLE WS_BORDER\n", "BORDERSTYLE", "1"},
      {"STYLE WS_DLGFRAME\n", "BORDERSTYLE", "0"},
      {"STYLE WS_CAPTION\n", "CAPTION", "\" \""},
      {"STYLE WS_BORDER\n", "CAPTION", "\"\""},
      {"STYLE WS_DLGFRAME\n", "CAPTION", "\"\""},
      {"STYLE WS_CAPTION\nCAPTION \"x\"\n", "CAPTION", "\"x\""},
      {"CAPTION \"x\"\n", "CAPTION", "\"x\""},
      {"STYLE WS_SYSMENU\n", "CLOSEBOX", "0"},
      {"STYLE WS_SYSMENU|WS_BORDER\n", "CLOSEBOX", "1"},
      {"STYLE WS_SYSMENU|DS_MODALFRAME\n", "CLOSEBOX", "1"},
      {"STYLE WS_SYSMENU|WS_THICKFRAME\n", "CLOSEBOX", "1"},
      {"STYLE WS_BORDER\n", "CLOSEBOX", "0"},
      {"STYLE WS_MAXIMIZEBOX\n", "MAXBUTTON", "0"},
      {"STYLE WS_MAXIMIZEBOX|WS_BORDER\n", "MAXBUTTON", "1"},
      {"STYLE WS_MINIMIZEBOX\n", "MINBUTTON", "0"},
      {"STYLE WS_MINIMIZEBOX|WS_THICKFRAME\n", "MINBUTTON", "1"},
      {"STYLE WS_POPUP\n", "OWNER", "0"},
      {"STYLE WS_CHILD\n", "OWNER", "0"},
      {"STYLE WS_VISIBLE\n", "OWNER", "1"},
      {"STYLE DS_CENTER\n", "ALIGNMENT", "1"},
      {"FONT 12,\"a\\b\"\"c\"\n", "FONTNAME", "\"a\\b\"\"c\""},
      {"FONT 12,\"Arial\"\n", "FONTSIZE", "12"},
      {"FONT 12,\"\"\n", "FONTSIZE", "8"},
      {"CAPTION \"a\\tb\"\"c\\\\d\"\n", "CAPTION", "\"a\\tb\"\"c\\\\d\""},
  };
  for (const ValueCase& expected : cases) {
    SCOPED_TRACE(std::string(expected.text) + expected.key);
    const Texts rows = ReadRowsOf(FormWith("", expected.text));
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(ValueOf(rows[0], expected.key), expected.value);
  }
}

TEST(ResourceRead, ReadsTheControlsPropertiesFromTheirStyles) {
  const ValueCase cases[] = {
      {"LTEXT \"\",B,1,2,3,4", "ALIGNMENT", "0"},
      {"RTEXT \"\",B,1,2,3,4", "ALIGNMENT", "2"},
      {"LTEXT \"\",B,1,2,3,4,SS_LEFTNOWORDWRAP", "ALIGNMENT", "3"},
      {"CONTROL \"\",B,\"STATIC\",0x4,1,2,3,4", "ALIGNMENT", "0"},
      {"EDITTEXT B,1,2,3,4,ES_CENTER", "ALIGNMENT", "1"},
      {"EDITTEXT B,1,2,3,4,ES_RIGHT", "ALIGNMENT", "2"},
      {"EDITTEXT B,1,2,3,4,ES_CENTER|ES_RIGHT", "ALIGNMENT", "1"},
      {"EDITTEXT B,1,2,3,4,ES_MULTILINE", "ALIGNMENT", "0"},
      {"EDITTEXT B,1,2,3,4,ES_MULTILINE|ES_RIGHT", "ALIGNMENT", "2"},
      {"CHECKBOX \"\",B,1,2,3,4,BS_LEFTTEXT", "ALIGNMENT", "0"},
      {"CHECKBOX \"\",B,1,2,3,4", "ALIGNMENT", "2"},
      {"SCROLLBAR B,1,2,3,4", "ALIGNMENT", "4"},
      {"CONTROL \"\",B,\"progressbar\",0,1,2,3,4", "ALIGNMENT", "4"},
      {"CONTROL \"\",B,\"PROGRESSBAR\",PI_BGCOL_R|PI_BGCOL_G|PI_BGCOL_B|PI_BGCOL_Y,1,2,3,4", "BACKCOLOUR",
       "16777215"},
      {"CONTROL \"\",B,\"PROGRESSBAR\",PI_FGCOL_B|PI_FGCOL_Y,1,2,3,4", "FORECOLOUR", "16711680"},
      {"CONTROL \"\",B,\"SHAPE\",SH_BGCOL_G,1,2,3,4", "BACKCOLOUR", "32768"},
      {"CONTROL \"\",B,\"SHAPE\",SH_FGCOL_R|SH_FGCOL_G,1,2,3,4", "FORECOLOUR", "32896"},
      {"CONTROL \"\",B,\"SHAPE\",SH_DOTTED|SH_DASH|SH_SOLID,1,2,3,4", "BORDERSTYLE", "3"},
      {"CONTROL \"\",B,\"SHAPE\",SH_SOLID,1,2,3,4", "BORDERSTYLE", "1"},
      {"CONTROL \"\",B,\"SHAPE\",WS_BORDER,1,2,3,4", "BORDERSTYLE", "0"},
      {"EDITTEXT B,1,2,3,4,NOT WS_BORDER", "BORDERSTYLE", "0"},
      {"CONTROL \"\",B,\"BITMAPBUTTON\",BB_CHECKSTYLE|BB_RADIOSTYLE,1,2,3,4", "BUTTONSTYLE", "2"},
      {"CONTROL \"\",B,\"BITMAPBUTTON\",BB_CHECKSTYLE,1,2,3,4", "BUTTONSTYLE", "1"},
      {"CONTROL \"\",B,\"BITMAPBUTTON\",BB_PUSHSTYLE,1,2,3,4", "BUTTONSTYLE", "0"},
      {"CONTROL \"\",B,\"BITMAPBUTTON\",BB_TCOL_R|BB_TCOL_Y,1,2,3,4", "TRANSPARENTCOLOUR", "-1"},
      {"CONTROL \"\",B,\"BITMAPBUTTON\",BB_TRANSPARENT|BB_TCOL_R|BB_TCOL_Y,1,2,3,4", "TRANSPARENTCOLOUR",
       "255"},
      {"CONTROL \"\",B,\"BITMAPBUTTON\",BB_TRANSPARENT,1,2,3,4", "TRANSPARENTCOLOUR", "0"},
      {"COMBOBOX B,1,2,3,4,CBS_SIMPLE", "COMBOSTYLE", "1"},
      {"COMBOBOX B,1,2,3,4,CBS_DROPDOWNLIST", "COMBOSTYLE", "2"},
      {"COMBOBOX B,1,2,3,4", "COMBOSTYLE", "2"},
      {"COMBOBOX B,1,2,3,4,LBS_SORT", "SORTED", "0"},
      {"LISTBOX B,1,2,3,4,LBS_SORT", "SORTED", "1"},
      {"LISTBOX B,1,2,3,4,CBS_SORT", "SORTED", "0"},
      {"PUSHBUTTON \"\",B,1,2,3,4,NOT WS_TABSTOP", "TABSTOP", "0"},
      {"PUSHBUTTON \"\",B,1,2,3,4,WS_DISABLED", "ENABLED", "0"},
      {"EDITTEXT B,1,2,3,4,ES_MULTILINE", "MULTILINE", "1"},
      {"EDITTEXT B,1,2,3,4,ES_READONLY", "READONLY", "1"},
      {"EDITTEXT B,1,2,3,4,WS_HSCROLL|WS_VSCROLL", "SCROLLBARS", "0"},
      {"EDITTEXT B,1,2,3,4,ES_MULTILINE|WS_HSCROLL|WS_VSCROLL", "SCROLLBARS", "3"},
      {"LISTBOX B,1,2,3,4,WS_VSCROLL", "SCROLLBARS", "2"},
      {"CONTROL \"\",B,\"ICONLIST\",WS_HSCROLL,1,2,3,4", "SCROLLBARS", "1"},
      {"LISTBOX B,1,2,3,4,LBS_USETABSTOPS", "USETABSTOPS", "1"},
      {"CONTROL \"\",B,\"SHAPE\",SH_RECT,1,2,3,4", "SHAPE", "0"},
      {"CONTROL \"\",B,\"SHAPE\",SH_SQUARE,1,2,3,4", "SHAPE", "1"},
      {"CONTROL \"\",B,\"SHAPE\",SH_ELLIPSE|SH_SQUARE,1,2,3,4", "SHAPE", "2"},
      {"CONTROL \"\",B,\"SHAPE\",SH_CIRCLE|SH_ELLIPSE,1,2,3,4", "SHAPE", "3"},
      {"CONTROL \"a\\nb\",B,\"IMAGE\",0,1,2,3,4", "PICTURE", "\"a\""},
      {"CONTROL \"c:\\\\a\"\"b\",B,\"IMAGE\",0,1,2,3,4", "PICTURE", "\"c:\\a\"b\""},
      {"LTEXT \"a\\tb\"\"c\\\\d\\x7f\xE4\",B,1,2,3,4", "CAPTION", "\"a\\tb\"\"c\\\\d\\x7F\\xE4\""},
      {"LTEXT \"\",B,-1,-2,3+4,2*5", "POSITION", "-1 -2 7 10"},
      // A class of one of our families with a version behind it has the schema of the family and the values
      // of any other class.
      {"CONTROL \"\",B,\"SHAPE.1.3\",SH_DOTTED|SH_ROUNDRECT,1,2,3,4", "SHAPE", "0"},
      {"CONTROL \"\",B,\"SHAPE.1.3\",WS_BORDER,1,2,3,4", "BORDERSTYLE", "1"},
      {"CONTROL \"\",B,\"SHAPE.1.3\",WS_BORDER,1,2,3,4", "TYPEOF", "Shape"},
      {"CONTROL \"x.bmp\",B,\"IMAGE.1.3\",0,1,2,3,4", "PICTURE", "\"\""},
      {"CONTROL \"\",B,\"BITMAPBUTTON.1.3\",BB_RADIOSTYLE|BB_TRANSPARENT,1,2,3,4", "BUTTONSTYLE", "0"},
      {"CONTROL \"\",B,\"BITMAPBUTTON.1.3\",BB_RADIOSTYLE|BB_TRANSPARENT,1,2,3,4", "TRANSPARENTCOLOUR", "-1"},
      {"CONTROL \"\",B,\"PROGRESSBAR.1.3\",0xFFF,1,2,3,4", "ALIGNMENT", "0"},
      {"CONTROL \"\",B,\"PROGRESSBAR.1.3\",0xFFF,1,2,3,4", "BACKCOLOUR", "0"},
      {"CONTROL \"\",B,\"PROGRESSBAR.1.3\",0xFFF,1,2,3,4", "FORECOLOUR", "0"},
      {"CONTROL \"\",B,\"ICONLIST.1.3\",WS_HSCROLL|LBS_SORT,1,2,3,4", "SCROLLBARS", "0"},
      {"CONTROL \"\",B,\"ICONLIST.1.3\",WS_HSCROLL|LBS_SORT,1,2,3,4", "SORTED", "0"},
      {"CONTROL \"\",B,\"COMBOBOX.1\",CBS_SIMPLE|CBS_SORT,1,2,3,4", "COMBOSTYLE", "0"},
      {"CONTROL \"\",B,\"COMBOBOX.1\",CBS_SIMPLE|CBS_SORT,1,2,3,4", "SORTED", "0"},
      {"CONTROL \"\",B,\"EDIT.1\",ES_CENTER|ES_MULTILINE|WS_VSCROLL,1,2,3,4", "ALIGNMENT", "0"},
      {"CONTROL \"\",B,\"EDIT.1\",ES_CENTER|ES_MULTILINE|WS_VSCROLL,1,2,3,4", "MULTILINE", "0"},
      {"CONTROL \"\",B,\"EDIT.1\",ES_CENTER|ES_MULTILINE|WS_VSCROLL,1,2,3,4", "SCROLLBARS", "0"},
      {"CONTROL \"\",B,\"EDITWINDOW.1\",0,1,2,3,4", "TYPEOF", "Editwindow"},
      {"CONTROL \"\",B,\"PUSHBUTTON\",BS_DEFPUSHBUTTON,1,2,3,4", "DEFAULT", "0"},
      {"CONTROL \"\",B,\"CHECKBOX\",0,1,2,3,4", "ALIGNMENT", "0"},
      {"CONTROL \"\",B,\"ICON\",SS_ICON,1,2,3,4", "PICTURE", "\"\""},
      // The kinds of windows and menu items as classes of controls.
      {"CONTROL \"\",B,\"DIALOG\",WS_CAPTION|DS_CENTER,1,2,3,4", "TYPEOF", "Dialog"},
      {"CONTROL \"\",B,\"DIALOG\",WS_CAPTION|DS_CENTER,1,2,3,4", "CAPTION", "\"\""},
      {"CONTROL \"\",B,\"DIALOG\",WS_CAPTION|DS_CENTER,1,2,3,4", "ALIGNMENT", "0"},
      {"CONTROL \"\",B,\"DIALOG\",DS_MODALFRAME,1,2,3,4", "BORDERSTYLE", "0"},
      {"CONTROL \"\",B,\"EDITWINDOW\",0,1,2,3,4", "FLAGS", "0"},
      {"CONTROL \"\",B,\"EDITWINDOW\",0,1,2,3,4", "TYPEOF", "Editwindow"},
      {"CONTROL \"\",B,\"MENUITEM\",WS_DISABLED,1,2,3,4", "ENABLED", "0"},
      {"CONTROL \"\",B,\"MENUITEM\",MF_GRAYED,1,2,3,4", "ENABLED", "1"},
      {"CONTROL \"\",B,\"MENUITEM\",MF_CHECKED,1,2,3,4", "CHECKED", "1"},
      {"CONTROL \"\",B,\"MENUITEM\",0,1,2,3,4", "POSITION", "1 2 3 4"},
  };
  for (const ValueCase& expected : cases) {
    SCOPED_TRACE(std::string(expected.text) + " " + expected.key);
    const Texts rows = ReadRowsOf(FormWith(expected.text));
    ASSERT_EQ(rows.size(), 2U) << rows[0];
    EXPECT_EQ(ValueOf(rows[1], expected.key), expected.value);
  }
}

TEST(ResourceRead, CallsControlsWithNumbersForNamesNonameInTheirOrder) {
  const Texts rows =
      ReadRowsOf(FormWith("LTEXT \"\",100,1,2,3,4\n"
                          "LTEXT \"\",IDC_A,1,2,3,4\n"
                          "LTEXT \"\",-1,1,2,3,4\n"
                          "LTEXT \"\",0x20,1,2,3,4\n"
                          "LTEXT \"\",0X,1,2,3,4\n"
                          "LTEXT \"\",1.5,1,2,3,4\n"
                          "LTEXT \"\",+7,1,2,3,4\n"));
  Texts names;
  for (const std::string& row : rows) names.push_back(ValueOf(row, "NAME"));
  EXPECT_EQ(names, (Texts{"Form", "Noname1", "IDC_A", "Noname2", "Noname3", "Noname4", "1.5", "Noname5"}));
}

TEST(ResourceRead, ShowsTheFileOfAnIconControlsResource) {
  const std::string text = "I1 ICON \"c:\\\\pics\\\\a.ico\"\nFORM2 ICON PRELOAD b.ico\nX BITMAP \"x.bmp\"\n" +
                           FormWith(
                               "ICON \"i1\",A,1,2,3,4\nICON Form2,B,1,2,3,4\nICON \"X\",C,1,2,3,4\n"
                               "ICON \"\",D,1,2,3,4\nICON \"I1\\nmore\",E,1,2,3,4\n"
                               "CONTROL \"I1\",F,\"STATIC\",SS_ICON,1,2,3,4");
  Texts pictures;
  for (const std::string& row : ReadRowsOf(text)) pictures.push_back(ValueOf(row, "PICTURE"));
  EXPECT_EQ(pictures, (Texts{"none", "\"c:\\pics\\a.ico\"", "\"b.ico\"", "\"\"", "\"\"",
                             "\"c:\\pics\\a.ico\"", "\"c:\\pics\\a.ico\""}));
}

TEST(ResourceRead, CutsTheFileNameOfAnIconAt259Characters) {
  const std::string name(300, 'n');
  const Texts rows = ReadRowsOf("I1 ICON \"" + name + "\"\n" + FormWith("ICON \"I1\",A,1,2,3,4"));
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(ValueOf(rows[1], "PICTURE"), "\"" + name.substr(0, 259) + "\"");
}

// No reader makes records like these, but whoever fills rows from a table of his own may.
TEST(RecordsToProperties, KeepsTheNumberOfTheFirstRecordAndShowsNamesCutAt40) {
  test::ResetHost();
  Rows rows(200);
  rows.Fill({});
  rc::RecordArray records;
  const auto fill = [&](const std::string& resource) {
    return test::MessageOf([&](rc::TextBuffer buffer) {
      ErrorText error(buffer);
      RecordsToProperties(records.table(), "none.rc", resource.c_str(), {rows.pointers(), 256, rows.size()},
                          error);
    });
  };
  records[0].keyword.Assign("MENU");
  records[0].name.Assign("100");
  records[1].keyword.Assign("MENUITEM");
  records[1].name.Assign("0x1");
  EXPECT_EQ(fill("M"), "");
  EXPECT_EQ(ValueOf(rows.Text(0), "NAME"), "100");
  EXPECT_EQ(ValueOf(rows.Text(1), "NAME"), "Noname1");
  const std::string letters(60, 'n');
  records[1].keyword.Assign(letters);
  records[1].name.Assign(letters);
  EXPECT_EQ(fill(letters), "Window <" + letters.substr(20) + ">, object 1 <" + letters.substr(20) +
                               ">, RC type <" + letters.substr(20) + "> has properties which can't be read.");
}

// ---- Limits ----

TEST(ResourceRead, CutsALineOf1024CharactersWithItsLineFeed) {
  // 255 characters of four each, the key and two quotation marks make 1030.
  const std::string statement = "MENUITEM \"" + std::string(255, '\xE4') + "\",B";
  const Texts rows = ReadRowsOf("Form MENU\nBEGIN\n" + statement + "\nEND\n");
  ASSERT_EQ(rows.size(), 2U);
  std::string caption;
  for (int i = 0; i < 255; ++i) caption += "\\xE4";
  EXPECT_EQ(rows[1], ("CAPTION=\"" + caption).substr(0, 1024) + "CHECKED=0\nENABLED=1\nNAME=B\nPOSITION=1\n" +
                         "TYPEOF=Menuitem\n");
}

TEST(ResourceRead, CutsARowAtItsSizeWithoutAMessage) {
  test::ResetHost();
  test::WriteFile(test::kRcFile, FormWith("PUSHBUTTON \"OK\",B,1,2,3,4"));
  const Texts whole = ReadRows("Form");
  ASSERT_EQ(whole.size(), 2U);
  for (int size = 1; size < static_cast<int>(whole[0].size()) + 3; ++size) {
    SCOPED_TRACE(size);
    const auto cut = [size](const std::string& row) {
      return row.substr(0, static_cast<std::size_t>(size - 1));
    };
    Texts expected;
    if (size > 1) expected = {cut(whole[0]), cut(whole[1])};
    EXPECT_EQ(ReadRows("Form", size), expected);
  }
}

TEST(ResourceRead, Takes255ControlsAndNoMore) {
  std::string controls;
  for (int i = 1; i <= 255; ++i) controls += "LTEXT \"\",C" + std::to_string(i) + ",1,2,3,4\n";
  const Texts rows = ReadRowsOf(FormWith(controls));
  ASSERT_EQ(rows.size(), 256U);
  EXPECT_EQ(ValueOf(rows[255], "NAME"), "C255");
  EXPECT_EQ(ReadRowsOf(FormWith(controls + "LTEXT \"\",C256,1,2,3,4\n")),
            Texts{"! Dialog <Form>, too many controls, maximum number is 255"});
}

TEST(ResourceRead, FailsOnAResourceThatIsCutAt65535Bytes) {
  std::string controls;
  for (int i = 1; i <= 100; ++i) controls += "// " + std::string(900, 'x') + "\nLTEXT \"a\",C,1,2,3,4\n";
  // Comments don't count: they are gone before the text is gathered.
  EXPECT_EQ(ReadRowsOf(FormWith(controls)).size(), 101U);
  controls.clear();
  for (int i = 1; i <= 100; ++i) controls += std::string(900, ' ') + "\nLTEXT \"a\",C,1,2,3,4\n";
  const Texts rows = ReadRowsOf(FormWith(controls));
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0], "! Dialog <Form>, Control Type <?>, Control i/d <?>, Statement 72 has incorrect syntax");
}

// ---- Which resource ----

TEST(ResourceRead, TakesTheFirstOfADialogAndAMenuOfOneName) {
  const std::string dialog = FormWith("");
  const std::string menu = "FORM MENU\nBEGIN\nEND\n";
  EXPECT_EQ(ValueOf(ReadRowsOf(dialog + menu)[0], "TYPEOF"), "Dialog");
  EXPECT_EQ(ValueOf(ReadRowsOf(menu + dialog)[0], "TYPEOF"), "Menuitem");
}

TEST(ResourceRead, GivesNoRowsForAResourceUnderTheTailOfAKeyword) {
  EXPECT_EQ(ReadRowsOf("Form LOG 1,2,3,4\nBEGIN\nEND\n"), Texts{});
  EXPECT_EQ(ReadRowsOf("Form ENU\nBEGIN\nEND\n"), Texts{});
}

// ---- Failures ----

TEST(ResourceRead, SaysWhyItCannotRead) {
  struct Case {
    const char* text;
    const char* message;
  };
  const Case cases[] = {
      {"", "Resource file does not contain DIALOG or MENU resource named: Form"},
      {"Other DIALOG 1,2,3,4\nBEGIN\nEND\n",
       "Resource file does not contain DIALOG or MENU resource named: Form"},
      {"Form ICON \"a.ico\"\nForm DIALOG 1,2,3,4\nBEGIN\nEND\n",
       "Resource file does not contain DIALOG or MENU resource named: Form"},
      {"Form DIALOG 1,2,3,4\nSTYLE WS_POPUP\nEND\n", "Dialog <Form>, BEGIN is expected instead of <END>"},
      {"Form DIALOG 1,2,3,4\nBEGIN\nLTEXT \"a\",B,1,2,3\nEND\n",
       "Dialog <Form>, Control Type <LTEXT>, Control i/d <B>, Statement 1 has incorrect syntax"},
      {"Form MENU\nBEGIN\nMENUITEM \"a\" 100\nEND\n", "Menu <Form>, Comma expected (Line 3, col 14)"},
      {"Form DIALOG 1,2,3,4\nCLASS \"Button\"\nBEGIN\nEND\n",
       "Window <Form> has a class of <Button> which is not allowed."},
      {"Form DIALOG 1,2,3,4\nCLASS \"Dialog.1.3.2207\"\nBEGIN\nEND\n",
       "Window <Form> has a class of <Dialog.1.3.2207> which is not allowed."},
      {"Form DIALOG 1,2,3,4\nBEGIN\nLTEXT \"a\",A,1,2,3,4\nCONTROL \"a\",B,\"Gauge\",0,1,2,3,4\n"
       "CONTROL \"a\",C,\"Meter\",0,1,2,3,4\nEND\n",
       "Window <Form>, object 2 <B>, RC type <CONTROL> has properties which can't be read."},
      {"Form DIALOG 1,2,3,4\nBEGIN\nCONTROL \"a\",B,\"BUTTON\",0x8,1,2,3,4\nEND\n",
       "Window <Form>, object 1 <B>, RC type <CONTROL> has properties which can't be read."},
      {"Form DIALOG 1,2,3,4\nBEGIN\nCONTROL \"a\",B,\"\",0,1,2,3,4\nEND\n",
       "Window <Form>, object 1 <B>, RC type <CONTROL> has properties which can't be read."},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(ReadRowsOf(expected.text), Texts{std::string("! ") + expected.message});
  }
}

TEST(ResourceRead, ShowsTheNameInAMessageAsItWasGivenCutAt40WhereTheMessageIsCut) {
  EXPECT_EQ(ReadRowsOf("Form DIALOG 1,2,3,4\nCLASS \"Button\"\nBEGIN\nEND\n", "fORM"),
            Texts{"! Window <fORM> has a class of <Button> which is not allowed."});
  const std::string name(60, 'n');
  EXPECT_EQ(ReadRowsOf(FormWith(""), name),
            Texts{"! Resource file does not contain DIALOG or MENU resource named: " + name});
  EXPECT_EQ(ReadRowsOf(FormWith(""), "*"),
            Texts{"! Resource file does not contain DIALOG or MENU resource named: *"});
}

struct Arguments {
  const char* rcFile = "forms.rc";
  const char* resource = "Form";
  int count = 256;
  int size = 100;
};

std::string MessageFor(Rows& rows, const Arguments& arguments) {
  test::GuardedBuffer error(1024);
  ResourceRead(arguments.rcFile, arguments.resource, rows.pointers(), arguments.count, arguments.size,
               error.buffer());
  EXPECT_TRUE(error.IsIntact());
  EXPECT_TRUE(rows.AreGuardsIntact());
  return error.Text();
}

constexpr const char* kNamesMessage = "Dialog or Window strings are invalid or empty";
constexpr const char* kRowsMessage =
    "Property array is invalid or is the wrong size, it needs space for 256 elements.";

class ResourceReadArguments : public ::testing::Test {
 protected:
  void SetUp() override {
    test::ResetHost();
    test::WriteFile(test::kRcFile, FormWith(""));
    rows_.Fill(Texts(257, "old"));
  }
  bool NoneCleared() const { return rows_.Texts() == Texts(257, "old"); }

  Rows rows_{100, 257};
};

TEST_F(ResourceReadArguments, TheNamesAreCheckedFirstAndTheRowsClearedAllTheSame) {
  const Arguments cases[] = {{nullptr, "Form"}, {"", "Form"}, {"forms.rc", nullptr}, {"forms.rc", ""}};
  for (Arguments arguments : cases) {
    rows_.Fill(Texts(257, "old"));
    EXPECT_EQ(MessageFor(rows_, arguments), kNamesMessage);
    EXPECT_TRUE(rows_.IsZero(0) && rows_.IsZero(255));
    EXPECT_EQ(rows_.Text(256), "old");
    arguments.count = 5;
    rows_.Fill(Texts(257, "old"));
    EXPECT_EQ(MessageFor(rows_, arguments), kNamesMessage);
    EXPECT_TRUE(rows_.IsZero(4));
    EXPECT_EQ(rows_.Text(5), "old");
  }
}

TEST_F(ResourceReadArguments, AWrongCountOfGoodRowsIsClearedAndRefused) {
  for (const int count : {1, 255, 257}) {
    SCOPED_TRACE(count);
    rows_.Fill(Texts(257, "old"));
    EXPECT_EQ(MessageFor(rows_, {.count = count}), kRowsMessage);
    EXPECT_TRUE(rows_.IsZero(0) && rows_.IsZero(count - 1));
    if (count < 257) {
      EXPECT_EQ(rows_.Text(count), "old");
    }
  }
}

TEST_F(ResourceReadArguments, ACountOrASizeBelowOneReachesNoRow) {
  for (const int count : {0, -1, -256, INT32_MIN}) {
    EXPECT_EQ(MessageFor(rows_, {.count = count}), kRowsMessage);
    EXPECT_TRUE(NoneCleared());
  }
  for (const int size : {0, -1, INT32_MIN}) {
    EXPECT_EQ(MessageFor(rows_, {.size = size}), kRowsMessage);
    EXPECT_TRUE(NoneCleared());
  }
}

TEST_F(ResourceReadArguments, OneRowThatCannotBeWrittenLeavesAllAsTheyWere) {
  for (const int bad : {0, 100, 255}) {
    SCOPED_TRACE(bad);
    test::ResetHost();
    test::WriteFile(test::kRcFile, FormWith(""));
    test::DeclareUnwritable(rows_.row(bad) + 99, 1);
    EXPECT_EQ(MessageFor(rows_, {}), kRowsMessage);
    EXPECT_TRUE(NoneCleared());
    EXPECT_EQ(MessageFor(rows_, {.size = 99}), "");
    rows_.Fill(Texts(257, "old"));
  }
}

TEST_F(ResourceReadArguments, PointersThatCannotBeReadAndNullRowsAreRefused) {
  rows_.pointers()[200] = nullptr;
  EXPECT_EQ(MessageFor(rows_, {}), kRowsMessage);
  EXPECT_EQ(rows_.Text(0), "old");
  test::DeclareUnreadable(rows_.pointers() + 255, 1);
  EXPECT_EQ(MessageFor(rows_, {}), kRowsMessage);
  EXPECT_EQ(MessageFor(rows_, {.count = INT32_MAX}), kRowsMessage);
  test::GuardedBuffer error(200);
  ResourceRead("forms.rc", "Form", nullptr, 256, 100, error.buffer());
  EXPECT_EQ(error.Text(), kRowsMessage);
  ResourceRead("forms.rc", nullptr, nullptr, 256, 100, error.buffer());
  EXPECT_EQ(error.Text(), kNamesMessage);
}

TEST_F(ResourceReadArguments, WithoutAnErrorBufferNothingIsDone) {
  ResourceRead("forms.rc", "Form", rows_.pointers(), 256, 100, {});
  EXPECT_TRUE(NoneCleared());
  EXPECT_EQ(test::LiveAllocations(), 0);
}

TEST_F(ResourceReadArguments, TheErrorTextIsCutToItsBuffer) {
  for (const char* name : {"Nothing", "Form"}) {
    const std::string message = MessageFor(rows_, {.resource = name});
    test::ExpectCutToFit(message, [this, name](rc::TextBuffer error) {
      ResourceRead("forms.rc", name, rows_.pointers(), 256, 100, error);
    });
  }
}

TEST_F(ResourceReadArguments, AFailureCountsAlsoWhereTheBufferIsTooSmallToShowIt) {
  test::WriteFile(test::kRcFile, FormWith("LTEXT \"a\",A,1,2,3,4\nCONTROL \"a\",B,\"Gauge\",0,1,2,3,4"));
  char error[1] = {'x'};
  ResourceRead("forms.rc", "Form", rows_.pointers(), 256, 100, {error, 1});
  EXPECT_EQ(error[0], '\0');
  EXPECT_TRUE(rows_.IsZero(0) && rows_.IsZero(1));
}

TEST_F(ResourceReadArguments, TheFileMustBeAFullPathOrABareName) {
  const char* refused[] = {"sub\\forms.rc", "\\work\\forms.rc", "c:forms.rc", "c:\\home\\", ".\\forms.rc"};
  for (const char* name : refused) {
    EXPECT_EQ(
        MessageFor(rows_, {.rcFile = name}),
        "The file <" + std::string(name) + "> should be a full path with a drive letter or just a filename");
    EXPECT_TRUE(rows_.IsZero(0));
  }
  for (const char* name : {"forms.rc", "FORMS.RC", "c:\\home\\forms.rc", "C:/home/forms.rc"}) {
    EXPECT_EQ(MessageFor(rows_, {.rcFile = name}), "") << name;
    EXPECT_EQ(rows_.Text(0).substr(0, 12), "ALIGNMENT=0\n");
  }
}

TEST_F(ResourceReadArguments, AFileThatIsNoneIsNamedInFull) {
  test::MakeDirectory("c:\\home\\folder.rc");
  test::WriteFile("c:\\home\\empty.rc", "");
  EXPECT_EQ(MessageFor(rows_, {.rcFile = "none.rc"}),
            "Resource file <c:\\home\\none.rc> is invalid or missing.");
  EXPECT_EQ(MessageFor(rows_, {.rcFile = "folder.rc"}),
            "Resource file <c:\\home\\folder.rc> is invalid or missing.");
  EXPECT_EQ(MessageFor(rows_, {.rcFile = "c:\\\\home\\forms.rc"}),
            "Resource file <c:\\\\home\\forms.rc> is invalid or missing.");
  EXPECT_EQ(MessageFor(rows_, {.rcFile = "empty.rc"}),
            "Resource file does not contain DIALOG or MENU resource named: Form");
}

TEST_F(ResourceReadArguments, EachAllocationThatFailsIsToldAndNothingLeaks) {
  test::WriteFile(test::kRcFile, "I ICON \"a.ico\"\n" + FormWith("ICON \"I\",A,1,2,3,4"));
  const Texts whole = ReadRows("Form", 200);
  test::FailAllocation(-1);
  ReadRows("Form", 200);
  const int count = test::AllocationCount();
  ASSERT_GT(count, 256);
  int told = 0;
  for (int n = 0; n < count; ++n) {
    SCOPED_TRACE(n);
    test::FailAllocation(n);
    const Texts rows = ReadRows("Form", 200);
    // Without the memory for a directory of icons each is sought by itself.
    if (rows != whole) {
      EXPECT_EQ(rows, Texts{"! Insufficient memory to read properties for window: Form"});
      ++told;
    }
    EXPECT_EQ(test::LiveAllocations(), 0);
    EXPECT_EQ(test::OpenFiles(), 0);
  }
  EXPECT_EQ(told, 257);
}

TEST_F(ResourceReadArguments, EachFileOperationThatFailsIsToldUnlessItWasOnlyForAnIcon) {
  test::WriteFile(test::kRcFile, "I ICON \"a.ico\"\n" + FormWith("ICON \"I\",A,1,2,3,4"));
  const Texts whole = ReadRows("Form", 200);
  Texts withoutIcon = whole;
  withoutIcon[1].replace(withoutIcon[1].find("a.ico"), 5, "");
  test::FailFileOperation(-1);
  ReadRows("Form", 200);
  const int count = test::FileOperationCount();
  for (int n = 0; n < count; ++n) {
    SCOPED_TRACE(n);
    test::FailFileOperation(n);
    const Texts rows = ReadRows("Form", 200);
    EXPECT_TRUE(rows == whole || rows == withoutIcon ||
                rows == Texts{"! Resource file <c:\\home\\forms.rc> is invalid or missing."});
    EXPECT_EQ(test::LiveAllocations(), 0);
    EXPECT_EQ(test::OpenFiles(), 0);
  }
}

}  // namespace
}  // namespace brelt::resprops
