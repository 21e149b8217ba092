// Texts of MENU resources with the menu, the key table or the failure that building them gives. The tests of
// the builder run them on menus in memory, those of the library on the platform's.
#pragma once

#include <iterator>

#include "include/events.h"
#include "rc/symbols.h"

namespace brelt::test {

struct MenuSymbol {
  const char* name;
  int value;
};

// The symbols that every case is built with.
inline constexpr MenuSymbol kMenuSymbols[] = {
    {"IDM_OPEN", 101}, {"IDM_SAVE", 102}, {"IDM_EXIT", 103}, {"IDM_ZERO", 0}};

// The same as an index for the builder.
inline const rc::SymbolIndex& MenuCaseSymbols() {
  static rc::SymbolRecord rows[std::size(kMenuSymbols)];
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    rows[i].Name.Assign(kMenuSymbols[i].name);
    rows[i].Value = kMenuSymbols[i].value;
  }
  static const rc::SymbolIndex index(rows);
  return index;
}

struct MenuCase {
  const char* text;
  // Nesting by two blanks, then flags, id (-1 for a popup) and text with its escapes; empty also for a menu
  // without items.
  const char* menu;
  const char* keys;     // as DumpAccelerators gives it
  const char* message;  // empty where a menu is built
  int code = RTX_OK;
};

inline constexpr MenuCase kMenuCases[] = {
    // The frame of a menu.
    {"M MENU BEGIN END", "", "", ""},
    {"\n  m menu\nbegin\nend\n", "", "", ""},
    {"100 MENU BEGIN END", "", "", ""},
    {"M MENU PRELOAD loadoncall FIXED MOVEABLE Discardable PURE IMPURE PURE BEGIN END", "", "", ""},
    {"M MENU BEGIN END nonsense ; \"", "", "", ""},
    {"", "", "", "MENU expected (Line 0, col 0)", RTX_MENU_SYNTAX},
    {"M", "", "", "MENU expected (Line 1, col 1)", RTX_MENU_SYNTAX},
    {"M MENUEX BEGIN END", "", "", "MENU expected (Line 1, col 3)", RTX_MENU_SYNTAX},
    {"M DIALOG BEGIN END", "", "", "MENU expected (Line 1, col 3)", RTX_MENU_SYNTAX},
    {"M MENU", "", "", "BEGIN expected (Line 1, col 3)", RTX_MENU_SYNTAX},
    {"M MENU { }", "", "", "BEGIN expected (Line 1, col 8)", RTX_MENU_SYNTAX},
    {"M MENU\nFIXED\n  END", "", "", "BEGIN expected (Line 3, col 3)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN", "", "", "END expected (Line 1, col 8)", RTX_MENU_SYNTAX},
    {"M MENU\nBEGIN\n  BEGIN\n  END\nEND", "", "", "END expected (Line 3, col 3)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN STATEMENT END", "", "", "END expected (Line 1, col 14)", RTX_MENU_SYNTAX},

    // Items.
    {"M MENU BEGIN MENUITEM \"a\",IDM_OPEN END", "0000 101 a\n", "", ""},
    {"M MENU BEGIN menuitem \"a\" , idm_open MenuItem \"b\",5 end", "0000 101 a\n0000 5 b\n", "", ""},
    {"M MENU BEGIN MENUITEM \"a\\tb\"\"c\\\\d\",5 END", "0000 5 a\\tb\\\"c\\\\d\n", "", ""},
    {"M MENU BEGIN MENUITEM \"\",5 END", "0000 5 \n", "", ""},
    {"M MENU BEGIN MENUITEM SEPARATOR menuitem separator END", "0800 0 \n0800 0 \n", "", ""},
    {"M MENU BEGIN MENUITEM 5,5 END", "", "", "Menu option string expected (Line 1, col 23)",
     RTX_MENU_SYNTAX},
    {"M MENU\nBEGIN\nMENUITEM\nEND", "", "", "Menu option string expected (Line 4, col 1)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN MENUITEM \"a END", "", "", "Menu option string expected (Line 1, col 26)",
     RTX_MENU_SYNTAX},
    {"M MENU\nBEGIN\n  MENUITEM \"a\" 100\nEND", "", "", "Comma expected (Line 3, col 16)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN MENUITEM \"a\" END", "", "", "Comma expected (Line 1, col 27)", RTX_MENU_SYNTAX},

    // Commands: numbers stand for themselves, words need a definition, the common identifiers too.
    {"M MENU BEGIN MENUITEM \"a\",0 MENUITEM \"b\",-5 MENUITEM \"c\",+7 MENUITEM \"d\",12.7 END",
     "0000 0 a\n0000 -5 b\n0000 7 c\n0000 12 d\n", "", ""},
    {"M MENU BEGIN MENUITEM \"a\",0x10 END", "0000 0 a\n", "", ""},
    {"M MENU BEGIN MENUITEM \"a\",IDOK END", "", "",
     "Menu command identifier not defined: IDOK (Line 1, col 23)", RTX_UNDEFINED_ID},
    {"M MENU BEGIN MENUITEM \"a\", idm_none END", "", "",
     "Menu command identifier not defined: IDM_NONE (Line 1, col 28)", RTX_UNDEFINED_ID},
    {"M MENU BEGIN MENUITEM \"a\", IDM_ZERO END", "", "",
     "Menu command identifier not defined: IDM_ZERO (Line 1, col 28)", RTX_UNDEFINED_ID},
    {"M MENU BEGIN MENUITEM \"a\", \"idm\" END", "", "",
     "Menu command identifier not defined: \"IDM\" (Line 1, col 28)", RTX_UNDEFINED_ID},
    {"M MENU BEGIN MENUITEM \"a\", _x END", "", "", "Menu command identifier not defined:  (Line 1, col 23)",
     RTX_UNDEFINED_ID},
    // The failure is placed at the identifier, and options behind it aren't read.
    {"M MENU BEGIN MENUITEM \"a\", idm_none, NONSENSE END", "", "",
     "Menu command identifier not defined: IDM_NONE (Line 1, col 28)", RTX_UNDEFINED_ID},

    // Options.
    {"M MENU BEGIN MENUITEM \"a\",1,GRAYED MENUITEM \"b\",2,INACTIVE MENUITEM \"c\",3,CHECKED "
     "MENUITEM \"d\",4,MENUBARBREAK MENUITEM \"e\",5,menubreak END",
     "0001 1 a\n0002 2 b\n0008 3 c\n0020 4 d\n0040 5 e\n", "", ""},
    {"M MENU BEGIN MENUITEM \"a\",100,CHECKED,GRAYED END", "0009 100 a\n", "", ""},
    {"M MENU BEGIN MENUITEM \"a\",100 , grayed , Grayed , inactive END", "0003 100 a\n", "", ""},
    {"M MENU BEGIN MENUITEM \"a\",100,CHECKED GRAYED END", "", "", "END expected (Line 1, col 39)",
     RTX_MENU_SYNTAX},
    {"M MENU BEGIN MENUITEM \"a\",100 CHECKED END", "", "", "END expected (Line 1, col 31)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN MENUITEM \"a\",100, HELP END", "", "", "Unknown menu option: HELP (Line 1, col 32)",
     RTX_MENU_SYNTAX},
    {"M MENU BEGIN MENUITEM \"a\",100, END", "", "", "Unknown menu option: END (Line 1, col 32)",
     RTX_MENU_SYNTAX},
    {"M MENU BEGIN MENUITEM \"a\",100,", "", "", "Unknown menu option:  (Line 1, col 23)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN MENUITEM \"a\",100,CHECKED, NONE END", "", "",
     "Unknown menu option: NONE (Line 1, col 40)", RTX_MENU_SYNTAX},

    // Popups.
    {"M MENU BEGIN POPUP \"a\" BEGIN END END", "0010 -1 a\n", "", ""},
    {"M MENU BEGIN popup \"a\" begin MENUITEM \"b\",1 POPUP \"c\",GRAYED BEGIN MENUITEM \"d\",2 END "
     "MENUITEM SEPARATOR END MENUITEM \"e\",3 END",
     "0010 -1 a\n  0000 1 b\n  0011 -1 c\n    0000 2 d\n  0800 0 \n0000 3 e\n", "", ""},
    {"M MENU BEGIN POPUP \"a\",CHECKED,MENUBREAK BEGIN END END", "0058 -1 a\n", "", ""},
    // Escapes in a title reach the menu bar as written.
    {"M MENU BEGIN POPUP \"a\\tb\"\"c\" BEGIN END END", "0010 -1 a\\\\tb\\\"\\\"c\n", "", ""},
    // Whatever token stands for the title loses its first and last character.
    {"M MENU BEGIN POPUP abcd BEGIN END POPUP , BEGIN END POPUP \"\" BEGIN END POPUP ab BEGIN END END",
     "0010 -1 bc\n0010 -1 \n0010 -1 \n0010 -1 \n", "", ""},
    {"M MENU BEGIN POPUP BEGIN END END", "", "", "BEGIN expected (Line 1, col 26)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN POPUP ; BEGIN END END", "", "", "BEGIN expected (Line 1, col 14)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN POPUP \"a\" END END", "", "", "BEGIN expected (Line 1, col 24)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN POPUP \"a\", X BEGIN END END", "", "", "Unknown menu option: X (Line 1, col 25)",
     RTX_MENU_SYNTAX},
    {"M MENU BEGIN POPUP \"a\" BEGIN END", "", "", "END expected (Line 1, col 30)", RTX_MENU_SYNTAX},
    {"M MENU BEGIN\nPOPUP \"a\" BEGIN\nMENUITEM \"b\",1\nX\nEND END", "", "", "END expected (Line 4, col 1)",
     RTX_MENU_SYNTAX},
    {"M MENU BEGIN POPUP \"a\" BEGIN POPUP \"b\" BEGIN MENUITEM \"c\" 1 END END END", "", "",
     "Comma expected (Line 1, col 59)", RTX_MENU_SYNTAX},

    // Keys of items.
    {"M MENU BEGIN MENUITEM \"&Save\\tCtrl+S,F2\",IDM_SAVE END", "0000 102 &Save\\tCtrl+S,F2\n",
     "10 83 102\n2 113 102\n18 83 0\n", ""},
    {"M MENU BEGIN POPUP \"x\" BEGIN MENUITEM \"a\\tAlt+x\",IDM_EXIT END END",
     "0010 -1 x\n  0000 103 a\\tAlt+x\n", "18 88 103\n", ""},
    // A tab that is no escape ends a string.
    {"M MENU BEGIN MENUITEM \"a\tF1\",1 END", "", "", "Menu option string expected (Line 1, col 23)",
     RTX_MENU_SYNTAX},

    // Keys of the bar's titles: Alt and the letter behind the first mark, with command 0.
    {"M MENU BEGIN POPUP \"&File\" BEGIN MENUITEM \"&Open\",1 END POPUP \"E&dit\" BEGIN END MENUITEM "
     "\"&go\",2 END",
     "0010 -1 &File\n  0000 1 &Open\n0010 -1 E&dit\n0000 2 &go\n", "18 70 0\n18 68 0\n18 71 0\n", ""},
    {"M MENU BEGIN POPUP \"&1\" BEGIN END POPUP \"none\" BEGIN END POPUP \"end&\" BEGIN END POPUP \"&&x\" "
     "BEGIN END "
     "POPUP \"& y\" BEGIN END END",
     "0010 -1 &1\n0010 -1 none\n0010 -1 end&\n0010 -1 &&x\n0010 -1 & y\n", "", ""},
    // Rows of items come ahead of those of titles.
    {"M MENU BEGIN POPUP \"&F\" BEGIN MENUITEM \"a\\tF1\",1 END MENUITEM \"&b\\tF2\",2 END",
     "0010 -1 &F\n  0000 1 a\\tF1\n0000 2 &b\\tF2\n", "2 112 1\n2 113 2\n18 70 0\n18 66 0\n", ""},
    {"M MENU BEGIN MENUITEM SEPARATOR END", "0800 0 \n", "", ""},
};

}  // namespace brelt::test
