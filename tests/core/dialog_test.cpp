#include "rc/dialog.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/dump.h"
#include "tests/support/guarded.h"
#include "tests/support/memoryhost.h"

namespace brelt::rc {
namespace {

using test::ReadDialog;

struct DialogCase {
  std::string text;
  std::string result;
};

template <std::size_t Count>
void ExpectEach(const DialogCase (&cases)[Count]) {
  for (const DialogCase& expected : cases) {
    SCOPED_TRACE(expected.text);
    EXPECT_EQ(ReadDialog(expected.text), expected.result);
  }
}

// What a dialog named A with these statements parses to, the line of the dialog itself left out.
std::string ReadStatements(const std::string& statements) {
  const std::string result = ReadDialog("A DIALOG 0,0,0,0\n" + statements + "\nBEGIN\nEND\n");
  const std::string start = "0 DIALOG A - \"\" 0,0,0,0 00000000";
  return result.rfind(start, 0) == 0 ? result.substr(start.size()) : result;
}

std::string ReadControls(const std::string& controls) {
  const std::string result = ReadDialog("A DIALOG 0,0,10,10\nBEGIN\n" + controls + "\nEND\n");
  const std::string window = "0 DIALOG A - \"\" 0,0,10,10 00000000\n";
  return result.rfind(window, 0) == 0 ? result.substr(window.size()) : result;
}

TEST(DialogHeader, HasANameAKeywordAndCoordinates) {
  ExpectEach({
      {"A DIALOG 0,0,10,10\nBEGIN\nEND\n", "0 DIALOG A - \"\" 0,0,10,10 00000000\n"},
      {"\n  A DIALOG 0,0,10,10 BEGIN END", "0 DIALOG A - \"\" 0,0,10,10 00000000\n"},
      {"a dialog 1 2 3 4 begin end", "0 dialog a - \"\" 1,2,3,4 00000000\n"},
      {"A DIALOG 1+1,2*2,-3,4-1 BEGIN END", "0 DIALOG A - \"\" 2,4,-3,3 00000000\n"},
      // The second token is taken as it stands.
      {"A ANYTHING 0,0,10,10 BEGIN END", "0 ANYTHING A - \"\" 0,0,10,10 00000000\n"},
      {"_A 5 0,0,10,10 BEGIN END",
       "! The resource string should start with the name of a DIALOG resource, instead <?> was found\n"},
  });
}

TEST(DialogHeader, WithoutCoordinatesHasZeros) {
  ExpectEach({{"A DIALOG BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
              {"A DIALOG CAPTION \"x\" BEGIN END", "0 DIALOG A - \"x\" 0,0,0,0 00000000\n"}});
}

TEST(DialogHeader, ItsCoordinatesAreNeverValidated) {
  ExpectEach({{"A DIALOG 1,2,3 BEGIN END", "0 DIALOG A - \"\" 1,2,3,unset 00000000\n"},
              {"A DIALOG 1 BEGIN END", "0 DIALOG A - \"\" 1,unset,unset,unset 00000000\n"},
              {"A DIALOG 1+,2,3,4 BEGIN END", "0 DIALOG A - \"\" unset,2,3,4 00000000\n"}});
}

TEST(DialogHeader, LoadOptionsMayStandInAnyNumberAndOrder) {
  ExpectEach({{"A DIALOG DISCARDABLE 0,0,10,10 BEGIN END", "0 DIALOG A - \"\" 0,0,10,10 00000000\n"},
              {"A DIALOG PRELOAD loadoncall FIXED Moveable DISCARDABLE PURE IMPURE PURE 0,0,10,10 BEGIN END",
               "0 DIALOG A - \"\" 0,0,10,10 00000000\n"},
              {"A DIALOG DISCARDABLE BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
              // Only ahead of the coordinates.
              {"A DIALOG 0,0,10,10 DISCARDABLE BEGIN END",
               "! Dialog <A>, BEGIN is expected instead of <DISCARDABLE>\n"}});
}

TEST(DialogHeader, TheNameMustBeAnIdentifier) {
  const std::string front =
      "! The resource string should start with the name of a DIALOG resource, instead <";
  ExpectEach({{"100 DIALOG 0,0,10,10 BEGIN END", front + "100> was found\n"},
              {"", front + "?> was found\n"},
              {"\"A\" DIALOG BEGIN END", front + "\\\"A\\\"> was found\n"},
              {"; DIALOG BEGIN END", front + "?> was found\n"},
              {"#A DIALOG BEGIN END", front + "#A> was found\n"},
              {"-1.5e3 DIALOG BEGIN END", front + "-1.5e3> was found\n"},
              // This comes ahead of a missing BEGIN.
              {"100 DIALOG 0,0,10,10 END", front + "100> was found\n"}});
}

TEST(DialogHeader, AFailureLeavesNothingBehindEvenWithoutNameAndKeyword) {
  // Both tokens break off at a tab, and the caption is read before the name is tested.
  EXPECT_EQ(ReadDialog("\"a\t\"b\tCAPTION \"x\" STYLE WS_POPUP BEGIN END"),
            "! The resource string should start with the name of a DIALOG resource, instead <?> was found\n");
}

TEST(DialogHeader, TokensAreHeldTo40Characters) {
  const std::string name(40, 'N');
  EXPECT_EQ(ReadDialog(name + "x DIALOG BEGIN END"), "0 DIALOG " + name + " - \"\" 0,0,0,0 00000000\n");
  EXPECT_EQ(ReadDialog("A " + name + "x BEGIN END"), "0 " + name + " A - \"\" 0,0,0,0 00000000\n");
}

TEST(DialogHeader, WhatStandsInPlaceOfBeginIsShown) {
  const std::string front = "! Dialog <A>, BEGIN is expected instead of <";
  ExpectEach({{"A DIALOG 0,0,10,10 END", front + "END>\n"},
              {"A DIALOG 0,0,10,10 { }", front + "{>\n"},
              {"A DIALOG 0,0,10,10 \"x y\"", front + "\\\"x y\\\">\n"},
              {"A DIALOG 0,0,10,10", front + "?>\n"},
              {"A DIALOG 0,0,10,10 _x;y z", front + "_x;y>\n"},
              {"A DIALOG 0,0,10,10 // c", front + "//>\n"},
              {"A DIALOG 0,0,10,10 \xE4", front + "?>\n"},
              {"A DIALOG 0,0,10,10 ,5 BEGIN END", front + ",>\n"},
              {"A DIALOG 0,0,10,10 " + std::string(50, 'w'), front + std::string(40, 'w') + ">\n"},
              {"A DIALOG 0,0,10,10 ;" + std::string(50, 'w'), front + ";" + std::string(39, 'w') + ">\n"}});
}

TEST(DialogStatements, CaptionIsDecoded) {
  EXPECT_EQ(ReadDialog("A DIALOG CAPTION \"a\\nb\"\"c\\\\\" BEGIN END"),
            "0 DIALOG A - \"a\\nb\\\"c\\\\\" 0,0,0,0 00000000\n");
}

TEST(DialogStatements, ARepeatedCaptionIsAppendedAndDecodedAgain) {
  ExpectEach(
      {{"A DIALOG CAPTION \"one \" CAPTION \"two\" BEGIN END", "0 DIALOG A - \"one two\" 0,0,0,0 00000000\n"},
       {"A DIALOG CAPTION \"\\\\n\" CAPTION \"b\" BEGIN END", "0 DIALOG A - \"\\nb\" 0,0,0,0 00000000\n"}});
}

TEST(DialogStatements, ATokenThatIsNoStringIsConsumedAndIgnored) {
  ExpectEach(
      {{"A DIALOG CAPTION word BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
       {"A DIALOG CLASS word BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
       // The text that stands is not decoded again for it.
       {"A DIALOG CAPTION \"\\\\n\" CAPTION word BEGIN END", "0 DIALOG A - \"\\\\n\" 0,0,0,0 00000000\n"},
       {"A DIALOG CAPTION BEGIN END", "! Dialog <A>, BEGIN is expected instead of <END>\n"}});
}

TEST(DialogStatements, CaptionIsCutTo255CharactersBeforeItIsDecoded) {
  const std::string x255(255, 'x');
  EXPECT_EQ(ReadDialog("A DIALOG CAPTION \"" + x255 + "yz\" BEGIN END"),
            "0 DIALOG A - \"" + x255 + "\" 0,0,0,0 00000000\n");
  std::string escapes;
  for (int i = 0; i < 200; ++i) escapes += "\\\\";
  std::string decoded;
  for (int i = 0; i < 127; ++i) decoded += "\\\\";
  EXPECT_EQ(ReadDialog("A DIALOG CAPTION \"" + escapes + "\" BEGIN END"),
            "0 DIALOG A - \"" + decoded + "\" 0,0,0,0 00000000\n");
}

TEST(DialogStatements, ClassIsTakenAsWritten) {
  ExpectEach({{"A DIALOG CLASS \"My\\nClass\" BEGIN END", "0 DIALOG A My\\\\nClass \"\" 0,0,0,0 00000000\n"},
              {"A DIALOG CLASS \"One\" CLASS \"Two\" BEGIN END", "0 DIALOG A OneTwo \"\" 0,0,0,0 00000000\n"},
              {"A DIALOG CLASS \"" + std::string(40, 'c') + "\" BEGIN END",
               "0 DIALOG A " + std::string(32, 'c') + " \"\" 0,0,0,0 00000000\n"}});
}

TEST(DialogStatements, StyleAndExtendedStyleAddTheirWords) {
  ExpectEach({{"A DIALOG STYLE WS_POPUP|WS_CAPTION BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 80C00000\n"},
              {"A DIALOG STYLE 0x80000000|WS_CAPTION BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 80C00000\n"},
              {"A DIALOG STYLE ws_popup | ds_center STYLE WS_SYSMENU BEGIN END",
               "0 DIALOG A - \"\" 0,0,0,0 80080800\n"},
              {"A DIALOG EXSTYLE WS_EX_TOPMOST | 0x200 EXSTYLE WS_EX_MDICHILD BEGIN END",
               "0 DIALOG A - \"\" 0,0,0,0 00000000 ex 00000248\n"},
              {"A DIALOG STYLE WS_UNKNOWN | 5 BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
              {"A DIALOG STYLE 0xFFFFFFFFF BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 FFFFFFFF\n"},
              {"A DIALOG STYLE BEGIN END", "! Dialog <A>, BEGIN is expected instead of <END>\n"}});
}

TEST(DialogStatements, NotIsNoWordOfAStyle) {
  ExpectEach({{"A DIALOG STYLE WS_POPUP | NOT WS_VISIBLE BEGIN END",
               "! Dialog <A>, BEGIN is expected instead of <WS_VISIBLE>\n"},
              {"A DIALOG EXSTYLE NOT WS_EX_TOPMOST BEGIN END",
               "! Dialog <A>, BEGIN is expected instead of <WS_EX_TOPMOST>\n"},
              // A style has no default to take NOT from.
              {"A DIALOG STYLE NOT BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"}});
}

TEST(DialogStatements, FontTakesASizeAndAFace) {
  ExpectEach(
      {{"A DIALOG FONT 8, \"MS Sans Serif\" BEGIN END",
        "0 DIALOG A - \"\" 0,0,0,0 00000000 font 8 \"MS Sans Serif\"\n"},
       {"A DIALOG FONT 12.5 anything \"Arial\" BEGIN END",
        "0 DIALOG A - \"\" 0,0,0,0 00000000 font 12 \"Arial\"\n"},
       // A first token that begins with no digit gives no size.
       {"A DIALOG FONT -8, \"Arial\" BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000 font 0 \"Arial\"\n"},
       {"A DIALOG FONT 8, \"Arial\" FONT x, \" Black\" BEGIN END",
        "0 DIALOG A - \"\" 0,0,0,0 00000000 font 8 \"Arial Black\"\n"},
       // The third token is consumed whatever it is.
       {"A DIALOG FONT 8, Arial BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000 font 8 \"\"\n"},
       {"A DIALOG FONT 8, \"" + std::string(40, 'f') + "\" BEGIN END",
        "0 DIALOG A - \"\" 0,0,0,0 00000000 font 8 \"" + std::string(32, 'f') + "\"\n"},
       {"A DIALOG FONT 8 \"Arial\" BEGIN END", "! Dialog <A>, BEGIN is expected instead of <END>\n"}});
}

TEST(DialogStatements, ALongerFontFailsAtItsNextComma) {
  EXPECT_EQ(ReadDialog("A DIALOG FONT 8, \"Arial\", 400, 0, 1 BEGIN END"),
            "! Dialog <A>, BEGIN is expected instead of <,>\n");
}

TEST(DialogStatements, LanguageIsReadInPairsAndDropped) {
  ExpectEach({{"A DIALOG LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US BEGIN END",
               "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
              {"A DIALOG LANGUAGE 9, 1 CAPTION \"c\" BEGIN END", "0 DIALOG A - \"c\" 0,0,0,0 00000000\n"},
              {"A DIALOG LANGUAGE 1, 2, 3, 4 BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
              // One value and the word behind it are a pair too.
              {"A DIALOG LANGUAGE 9 BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
              {"A DIALOG LANGUAGE 9 1 BEGIN END", "! Dialog <A>, BEGIN is expected instead of <1>\n"}});
}

TEST(DialogStatements, MenuTakesAWordAndDropsANumber) {
  ExpectEach({{"A DIALOG MENU MAIN BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000 menu MAIN\n"},
              {"A DIALOG MENU 100 BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
              {"A DIALOG MENU \"MAIN\" BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000\n"},
              {"A DIALOG MENU ONE MENU TWO BEGIN END", "0 DIALOG A - \"\" 0,0,0,0 00000000 menu ONETWO\n"},
              {"A DIALOG MENU " + std::string(50, 'm') + " BEGIN END",
               "0 DIALOG A - \"\" 0,0,0,0 00000000 menu " + std::string(40, 'm') + "\n"}});
}

TEST(DialogStatements, StandInAnyOrderAndIgnoreCase) {
  EXPECT_EQ(ReadDialog("A DIALOG 1,2,3,4\nmenu M\nfont 9, \"F\"\nStyle WS_POPUP\nlanguage 1,2\nclass \"C\"\n"
                       "exstyle WS_EX_TOPMOST\ncaption \"T\"\nbegin\nend"),
            "0 DIALOG A C \"T\" 1,2,3,4 80000000 ex 00000008 menu M font 9 \"F\"\n");
}

TEST(DialogStatements, OthersAreUnknown) {
  for (const char* word : {"CHARACTERISTICS", "VERSION", "CAPTIONS", "DIALOG"}) {
    EXPECT_EQ(ReadStatements(word),
              std::string("! Dialog <A>, BEGIN is expected instead of <") + word + ">\n");
  }
}

TEST(DialogControls, EveryKeywordHasItsClassFieldsAndStyle) {
  const struct {
    const char* keyword;
    bool hasText;
    const char* className;
    const char* style;
  } cases[] = {{"AUTOCHECKBOX", true, "BUTTON", "10000003"}, {"AUTORADIOBUTTON", true, "BUTTON", "10000009"},
               {"CHECKBOX", true, "BUTTON", "10000002"},     {"COMBOBOX", false, "COMBOBOX", "10800000"},
               {"CTEXT", true, "STATIC", "10020001"},        {"DEFPUSHBUTTON", true, "BUTTON", "10010001"},
               {"EDITTEXT", false, "EDIT", "10810000"},      {"GROUPBOX", true, "BUTTON", "10000007"},
               {"ICON", true, "STATIC", "10000003"},         {"LISTBOX", false, "LISTBOX", "10800001"},
               {"LTEXT", true, "STATIC", "10020000"},        {"PUSHBUTTON", true, "BUTTON", "10010000"},
               {"RADIOBUTTON", true, "BUTTON", "10000004"},  {"RTEXT", true, "STATIC", "10020002"},
               {"SCROLLBAR", false, "SCROLLBAR", "10000000"}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.keyword);
    const std::string keyword = expected.keyword;
    const std::string record = std::string(" IDC_A ") + expected.className + " \"" +
                               (expected.hasText ? "a" : "") + "\" 1,2,3,4 " + expected.style + "\n";
    const std::string text = expected.hasText ? "\"a\"" : "";
    const std::string comma = expected.hasText ? "," : "";
    EXPECT_EQ(ReadControls(keyword + " " + text + comma + "IDC_A,1,2,3,4"), "1 " + keyword + record);
    EXPECT_EQ(ReadControls(keyword + " " + text + " IDC_A 1 2 3 4"), "1 " + keyword + record);
    EXPECT_EQ(ReadControls(keyword + "," + text + comma + "IDC_A,1,2,3,4"), "1 " + keyword + record);
    std::string lower = keyword;
    for (char& c : lower) c = ToLower(c);
    EXPECT_EQ(ReadControls(lower + " " + text + comma + "IDC_A,1,2,3,4"), "1 " + lower + record);
    // A field too many or too few is a fault, shown with what was read.
    const std::string front = "! Dialog <A>, Control Type <" + keyword +
                              ">, Control i/d <IDC_A>, Statement 1 has incorrect syntax\n";
    EXPECT_EQ(ReadControls(keyword + " " + text + comma + "IDC_A,1,2,3"), front);
    EXPECT_EQ(ReadControls(keyword + " " + text + comma + "IDC_A"), front);
    EXPECT_EQ(
        ReadControls(keyword + " " + text + comma + "1,2,3,4"),
        "! Dialog <A>, Control Type <" + keyword + ">, Control i/d <1>, Statement 1 has incorrect syntax\n");
  }
}

TEST(DialogControls, AMissingTextIsEmptyAndAMissingIdentifierAFault) {
  EXPECT_EQ(ReadControls("LTEXT IDC_A,1,2,3,4"), "1 LTEXT IDC_A STATIC \"\" 1,2,3,4 10020000\n");
  EXPECT_EQ(ReadControls("LTEXT \"a\",\"b\",1,2,3,4"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <?>, Statement 1 has incorrect syntax\n");
  EXPECT_EQ(ReadControls("LTEXT \"a\",,1,2,3,4"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <?>, Statement 1 has incorrect syntax\n");
  EXPECT_EQ(ReadControls("LTEXT"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <END>, Statement 1 has incorrect syntax\n");
}

TEST(DialogControls, AnEditFieldTakesNoText) {
  EXPECT_EQ(ReadControls("EDITTEXT \"a\",IDC_A,1,2,3,4"),
            "! Dialog <A>, Control Type <EDITTEXT>, Control i/d <?>, Statement 1 has incorrect syntax\n");
}

TEST(DialogControls, TheIdentifierStaysAWord) {
  EXPECT_EQ(ReadControls("LTEXT \"\",-1,1,2,3,4"), "1 LTEXT -1 STATIC \"\" 1,2,3,4 10020000\n");
  EXPECT_EQ(ReadControls("LTEXT \"\",0x10L,1,2,3,4"), "1 LTEXT 0x10L STATIC \"\" 1,2,3,4 10020000\n");
  EXPECT_EQ(ReadControls("LTEXT \"\"," + std::string(50, 'i') + ",1,2,3,4"),
            "1 LTEXT " + std::string(40, 'i') + " STATIC \"\" 1,2,3,4 10020000\n");
}

TEST(DialogControls, TextIsCutTo255CharactersAndDecoded) {
  EXPECT_EQ(ReadControls("LTEXT \"a\\tb\"\"c\",I,1,2,3,4"),
            "1 LTEXT I STATIC \"a\\tb\\\"c\" 1,2,3,4 10020000\n");
  EXPECT_EQ(ReadControls("LTEXT \"" + std::string(300, 'x') + "\",I,1,2,3,4"),
            "1 LTEXT I STATIC \"" + std::string(255, 'x') + "\" 1,2,3,4 10020000\n");
  EXPECT_EQ(ReadControls("CONTROL \"a\\nb\",I,\"C\",0x0,1,2,3,4"),
            "1 CONTROL I C \"a\\nb\" 1,2,3,4 10000000\n");
}

TEST(DialogControls, AStringCannotSpanLines) {
  EXPECT_EQ(ReadControls("LTEXT \"a\nb\",I,1,2,3,4"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <b>, Statement 1 has incorrect syntax\n");
}

TEST(DialogControls, CoordinatesMayBeSums) {
  EXPECT_EQ(ReadControls("LTEXT \"\",I,10-5,2*3+1,1+2*3,10 -5"), "1 LTEXT I STATIC \"\" 5,7,9,5 10020000\n");
  EXPECT_EQ(ReadControls("LTEXT \"\",I,1+,2,3,4"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <I>, Statement 1 has incorrect syntax\n");
  EXPECT_EQ(ReadControls("LTEXT \"\",I,(1),2,3,4"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <I>, Statement 1 has incorrect syntax\n");
  // A sign behind a blank is no new coordinate.
  EXPECT_EQ(ReadControls("LTEXT \"\",I,1 2 3 -4"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <I>, Statement 1 has incorrect syntax\n");
}

TEST(DialogControls, ABitOutsideTheLegalWordsVanishes) {
  const DialogCase cases[] = {
      {"LTEXT \"\",I,1,2,3,4,WS_TABSTOP", "1 LTEXT I STATIC \"\" 1,2,3,4 10020000\n"},
      {"LTEXT \"\",I,1,2,3,4,SS_NOPREFIX|WS_BORDER", "1 LTEXT I STATIC \"\" 1,2,3,4 10820080\n"},
      {"LISTBOX I,1,2,3,4,LBS_MULTICOLUMN|LBS_OWNERDRAWFIXED", "1 LISTBOX I LISTBOX \"\" 1,2,3,4 10800001\n"},
      {"COMBOBOX I,1,2,3,4,CBS_AUTOHSCROLL|CBS_DROPDOWN", "1 COMBOBOX I COMBOBOX \"\" 1,2,3,4 10800002\n"},
      {"EDITTEXT I,1,2,3,4,ES_OEMCONVERT|ES_READONLY", "1 EDITTEXT I EDIT \"\" 1,2,3,4 10810800\n"},
      {"PUSHBUTTON \"\",I,1,2,3,4,0xFFFFFFFF", "1 PUSHBUTTON I BUTTON \"\" 1,2,3,4 18030000\n"},
      {"LTEXT \"\",I,1,2,3,4,WS_NONSENSE|16", "1 LTEXT I STATIC \"\" 1,2,3,4 10020000\n"}};
  for (const DialogCase& expected : cases)
    EXPECT_EQ(ReadControls(expected.text), expected.result) << expected.text;
}

TEST(DialogControls, AControlThatNamesItsTypeKeepsIt) {
  const DialogCase cases[] = {
      {"LISTBOX I,1,2,3,4", "1 LISTBOX I LISTBOX \"\" 1,2,3,4 10800001\n"},
      {"LISTBOX I,1,2,3,4,LBS_SORT", "1 LISTBOX I LISTBOX \"\" 1,2,3,4 10800002\n"},
      {"LISTBOX I,1,2,3,4,LBS_STANDARD", "1 LISTBOX I LISTBOX \"\" 1,2,3,4 10A00003\n"},
      {"CHECKBOX \"\",I,1,2,3,4", "1 CHECKBOX I BUTTON \"\" 1,2,3,4 10000002\n"},
      {"CHECKBOX \"\",I,1,2,3,4,BS_AUTOCHECKBOX", "1 CHECKBOX I BUTTON \"\" 1,2,3,4 10000003\n"},
      {"AUTOCHECKBOX \"\",I,1,2,3,4,BS_LEFTTEXT", "1 AUTOCHECKBOX I BUTTON \"\" 1,2,3,4 10000023\n"},
      {"AUTOCHECKBOX \"\",I,1,2,3,4,NOT BS_AUTOCHECKBOX", "1 AUTOCHECKBOX I BUTTON \"\" 1,2,3,4 10000002\n"},
      {"RADIOBUTTON \"\",I,1,2,3,4,BS_AUTORADIOBUTTON", "1 RADIOBUTTON I BUTTON \"\" 1,2,3,4 10000009\n"},
      {"SCROLLBAR I,1,2,3,4,SBS_VERT", "1 SCROLLBAR I SCROLLBAR \"\" 1,2,3,4 10000001\n"}};
  for (const DialogCase& expected : cases)
    EXPECT_EQ(ReadControls(expected.text), expected.result) << expected.text;
}

TEST(DialogControls, NotTakesDefaultWordsAway) {
  EXPECT_EQ(ReadControls("LTEXT \"\",I,1,2,3,4,NOT WS_VISIBLE"), "1 LTEXT I STATIC \"\" 1,2,3,4 00020000\n");
  EXPECT_EQ(ReadControls("EDITTEXT I,1,2,3,4,NOT WS_BORDER | NOT WS_TABSTOP | WS_GROUP"),
            "1 EDITTEXT I EDIT \"\" 1,2,3,4 10020000\n");
}

TEST(DialogControls, AnIconTakesAStringOrAWord) {
  const DialogCase cases[] = {
      {"ICON IDI_APP,I,1,2,3,4", "1 ICON I STATIC \"IDI_APP\" 1,2,3,4 10000003\n"},
      {"ICON \"a.ico\",I,1,2,3,4", "1 ICON I STATIC \"a.ico\" 1,2,3,4 10000003\n"},
      {"ICON 5,I,1,2,3,4", "1 ICON I STATIC \"5\" 1,2,3,4 10000003\n"},
      {"ICON \"a\\\\b.ico\",I,1,2,3,4", "1 ICON I STATIC \"a\\\\b.ico\" 1,2,3,4 10000003\n"},
      {"ICON IDI_APP,I,1,2,3,4,WS_BORDER", "1 ICON I STATIC \"IDI_APP\" 1,2,3,4 10000003\n"},
      // All four coordinates must be there.
      {"ICON IDI_APP,I,1,2",
       "! Dialog <A>, Control Type <ICON>, Control i/d <I>, Statement 1 has incorrect syntax\n"}};
  for (const DialogCase& expected : cases)
    EXPECT_EQ(ReadControls(expected.text), expected.result) << expected.text;
}

TEST(DialogControls, ControlNamesItsClassAndIsNotMasked) {
  const std::string front =
      "! Dialog <A>, Control Type <CONTROL>, Control i/d <I>, Statement 1 has incorrect syntax\n";
  const DialogCase cases[] = {
      {"CONTROL \"t\",I,\"image\",0x1,1,2,3,4", "1 CONTROL I IMAGE \"t\" 1,2,3,4 10000001\n"},
      {"CONTROL \"t\",I,\"Shape\",SH_CIRCLE|SH_DASH,1,2,3,4", "1 CONTROL I SHAPE \"t\" 1,2,3,4 10000024\n"},
      {"CONTROL \"t\",I,\"BUTTON\",BS_OWNERDRAW|WS_CHILD|NOT WS_VISIBLE,1,2,3,4",
       "1 CONTROL I BUTTON \"t\" 1,2,3,4 4000000B\n"},
      {"CONTROL \"t\",I,\"X\",0xFFFFFFFF,1,2,3,4", "1 CONTROL I X \"t\" 1,2,3,4 FFFFFFFF\n"},
      {"CONTROL \"t\" I , \"x\" , 0x1 1 2 3 4", "1 CONTROL I X \"t\" 1,2,3,4 10000001\n"},
      // The comma ahead of the class is required, though any token passes for it.
      {"CONTROL \"t\",I;\"x\",0x1,1,2,3,4", front},
      {"CONTROL \"t\",I = \"x\",0x1,1,2,3,4", "1 CONTROL I X \"t\" 1,2,3,4 10000001\n"},
      {"CONTROL \"t\",I \"x\",0x1,1,2,3,4", "1 CONTROL I - \"t\" 1,2,3,4 10000001\n"},
      // A class without quotation marks isn't read, and the fields behind it don't fit.
      {"CONTROL \"t\",I,IMAGE,0x1,1,2,3,4", front},
      // With no class at all it stays empty.
      {"CONTROL \"t\",I,1,2,3,4", "1 CONTROL I - \"t\" 1,2,3,4 10000000\n"},
      // Without a style the first coordinate is taken for one.
      {"CONTROL \"t\",I,\"x\",1,2,3,4", front},
      {"CONTROL \"t\",I,\"x\",1,2,3,4,5", "1 CONTROL I X \"t\" 2,3,4,5 10000000\n"},
      // No style and no comma for one.
      {"CONTROL \"t\",I,\"x\" 1,2,3,4", "1 CONTROL I X \"t\" 1,2,3,4 10000000\n"},
      // No extended style behind the coordinates.
      {"CONTROL \"t\",I,\"x\",0x1,1,2,3,4,0x200",
       "! Dialog <A>, Control Type <,>, Control i/d <?>, Statement 2 has incorrect syntax\n"},
      {"CONTROL \"t\",I,\"" + std::string(40, 'c') + "\",0x1,1,2,3,4",
       "1 CONTROL I " + std::string(32, 'C') + " \"t\" 1,2,3,4 10000001\n"},
      {"CONTROL \"t\",I,\"\",0x1,1,2,3,4", "1 CONTROL I - \"t\" 1,2,3,4 10000001\n"}};
  for (const DialogCase& expected : cases)
    EXPECT_EQ(ReadControls(expected.text), expected.result) << expected.text;
}

TEST(DialogControls, FollowEachOtherOnOneLineOrSeveral) {
  EXPECT_EQ(ReadControls("LTEXT \"a\",I,1,2,3,4 LTEXT\n\"b\"\n,\nJ\n,5,\n6,7,8 RTEXT \"c\" K 1 2 3 4"),
            "1 LTEXT I STATIC \"a\" 1,2,3,4 10020000\n2 LTEXT J STATIC \"b\" 5,6,7,8 10020000\n"
            "3 RTEXT K STATIC \"c\" 1,2,3,4 10020002\n");
}

TEST(DialogControls, ATrailingCommaMayStandAheadOfAnotherControlButNotOfEnd) {
  EXPECT_EQ(ReadControls("LTEXT \"a\",I,1,2,3,4,\nRTEXT \"b\",J,1,2,3,4"),
            "1 LTEXT I STATIC \"a\" 1,2,3,4 10020000\n2 RTEXT J STATIC \"b\" 1,2,3,4 10020002\n");
  // END is read as a style word, so that the end of the text stands where a control should.
  EXPECT_EQ(ReadDialog("A DIALOG BEGIN LTEXT \"a\",I,1,2,3,4, END"),
            "! Dialog <A>, Control Type <?>, Control i/d <?>, Statement 2 has incorrect syntax\n");
}

TEST(DialogControls, AnUnknownKeywordEndsTheParse) {
  for (const char* keyword : {"PUSHBOX", "STATE3", "AUTO3STATE", "BEGIN", "X", "5", "{"}) {
    EXPECT_EQ(ReadControls(std::string("LTEXT \"a\",I,1,2,3,4\n") + keyword + " \"b\",J,1,2,3,4"),
              std::string("! Dialog <A>, Control Type <") + keyword +
                  ">, Control i/d <?>, Statement 2 has incorrect syntax\n");
  }
  EXPECT_EQ(ReadControls(std::string(50, 'k') + " \"b\",J,1,2,3,4"),
            "! Dialog <A>, Control Type <" + std::string(40, 'k') +
                ">, Control i/d <?>, Statement 1 has incorrect syntax\n");
}

TEST(DialogControls, WhatBeginsNoTokenIsShownAsTheControlType) {
  EXPECT_EQ(ReadControls("_x;y LTEXT"),
            "! Dialog <A>, Control Type <_x;y>, Control i/d <?>, Statement 1 has incorrect syntax\n");
  EXPECT_EQ(ReadControls("\xE4"),
            "! Dialog <A>, Control Type <?>, Control i/d <?>, Statement 1 has incorrect syntax\n");
  EXPECT_EQ(ReadControls("}"),
            "! Dialog <A>, Control Type <}>, Control i/d <?>, Statement 1 has incorrect syntax\n");
}

TEST(DialogControls, TheEndOfTheTextIsAFault) {
  EXPECT_EQ(ReadDialog("A DIALOG BEGIN LTEXT \"a\",I,1,2,3,4\n"),
            "! Dialog <A>, Control Type <?>, Control i/d <?>, Statement 2 has incorrect syntax\n");
  EXPECT_EQ(ReadDialog("A DIALOG BEGIN"),
            "! Dialog <A>, Control Type <?>, Control i/d <?>, Statement 1 has incorrect syntax\n");
}

TEST(DialogControls, TextBehindTheEndIsNotLookedAt) {
  EXPECT_EQ(ReadDialog("A DIALOG BEGIN END ; \" nonsense"), "0 DIALOG A - \"\" 0,0,0,0 00000000\n");
}

TEST(DialogControls, ThereAreAtMost255) {
  std::string text = "A DIALOG BEGIN\n";
  std::string result = "0 DIALOG A - \"\" 0,0,0,0 00000000\n";
  for (int i = 1; i <= 255; ++i) {
    const std::string number = std::to_string(i);
    text += "LTEXT \"" + number + "\",I" + number + ",1,2,3," + number + "\n";
    result += number + " LTEXT I" + number + " STATIC \"" + number + "\" 1,2,3," + number + " 10020000\n";
  }
  EXPECT_EQ(ReadDialog(text + "END"), result);
  const std::string more = text + "LTEXT \"a\",I,1,2,3,4\n";
  EXPECT_EQ(ReadDialog(more + "END"), "! Dialog <A>, too many controls, maximum number is 255\n");
  EXPECT_EQ(ReadDialog(more + more), "! Dialog <A>, too many controls, maximum number is 255\n");
  // A fault in that statement comes first.
  EXPECT_EQ(ReadDialog(text + "LTEXT \"a\",I,1,2,3\nEND"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <I>, Statement 256 has incorrect syntax\n");
}

TEST(DialogControls, TheFirstFaultStands) {
  EXPECT_EQ(ReadControls("LTEXT \"a\",I,1,2,3\nRTEXT\nNONSENSE"),
            "! Dialog <A>, Control Type <LTEXT>, Control i/d <I>, Statement 1 has incorrect syntax\n");
}

TEST(ParseDialog, CutsItsMessageToTheBuffer) {
  test::ResetHost();
  RecordArray records;
  test::ExpectCutToFit("Dialog <A>, BEGIN is expected instead of <END>", [&records](TextBuffer buffer) {
    EXPECT_FALSE(ParseDialog("A DIALOG END", records.table(), buffer));
  });
  test::ExpectCutToFit("", [&records](TextBuffer buffer) {
    EXPECT_TRUE(ParseDialog("A DIALOG BEGIN END", records.table(), buffer));
  });
}

TEST(ParseDialog, TakesNoMemory) {
  test::ResetHost();
  RecordArray records;
  test::FailAllocation(0);
  FixedText<1023> message;
  EXPECT_TRUE(ParseDialog("A DIALOG BEGIN LTEXT \"a\",I,1,2,3,4 END", records.table(), message));
  EXPECT_EQ(test::AllocationCount(), 0);
}

}  // namespace
}  // namespace brelt::rc
