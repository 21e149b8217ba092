// The style words of RC text and their numbers. The numbers of the WS_, DS_, BS_, CBS_, ES_, LBS_, SBS_, SS_
// and MF_ words are the Windows SDK's; the BB_, EWS_, PI_ and SH_ words are this library's own, for its own
// control types. A word of a later Windows than the table's is an unknown word, and the table is not to be
// widened: what a file meant yesterday it means tomorrow.
#pragma once

#include "rc/foldedname.h"

namespace brelt::rc {

struct StyleWord {
  constexpr StyleWord(std::string_view word, std::uint32_t bits) noexcept
      : key(word), name(word), value(bits) {}

  FoldedName key;
  std::string_view name;
  std::uint32_t value;
};

// Sorted for the search by halves. Families reuse bits, so a number doesn't tell its word.
inline constexpr auto kStyleWordTable = std::to_array<StyleWord>({
    {"BB_CHECKSTYLE", 0x2},
    {"BB_PUSHSTYLE", 0x0},
    {"BB_RADIOSTYLE", 0x4},
    {"BB_TCOL_B", 0x400},
    {"BB_TCOL_G", 0x200},
    {"BB_TCOL_R", 0x100},
    {"BB_TCOL_Y", 0x800},
    {"BB_TRANSPARENT", 0x1000},
    {"BS_3STATE", 0x5},
    {"BS_AUTO3STATE", 0x6},
    {"BS_AUTOCHECKBOX", 0x3},
    {"BS_AUTORADIOBUTTON", 0x9},
    {"BS_CHECKBOX", 0x2},
    {"BS_DEFPUSHBUTTON", 0x1},
    {"BS_GROUPBOX", 0x7},
    {"BS_LEFTTEXT", 0x20},
    {"BS_OWNERDRAW", 0xB},
    {"BS_PUSHBUTTON", 0x0},
    {"BS_RADIOBUTTON", 0x4},
    {"CBS_AUTOHSCROLL", 0x40},
    {"CBS_DISABLENOSCROLL", 0x800},
    {"CBS_DROPDOWN", 0x2},
    {"CBS_DROPDOWNLIST", 0x3},
    {"CBS_HASSTRINGS", 0x200},
    {"CBS_NOINTEGRALHEIGHT", 0x400},
    {"CBS_OEMCONVERT", 0x80},
    {"CBS_OWNERDRAWFIXED", 0x10},
    {"CBS_OWNERDRAWVARIABLE", 0x20},
    {"CBS_SIMPLE", 0x1},
    {"CBS_SORT", 0x100},
    {"DS_CENTER", 0x800},
    {"DS_LOCALEDIT", 0x20},
    {"DS_MODALFRAME", 0x80},
    {"DS_NOIDLEMSG", 0x100},
    {"DS_SYSMODAL", 0x2},
    {"ES_AUTOHSCROLL", 0x80},
    {"ES_AUTOVSCROLL", 0x40},
    {"ES_CENTER", 0x1},
    {"ES_LEFT", 0x0},
    {"ES_LOWERCASE", 0x10},
    {"ES_MULTILINE", 0x4},
    {"ES_NOHIDESEL", 0x100},
    {"ES_OEMCONVERT", 0x400},
    {"ES_PASSWORD", 0x20},
    {"ES_READONLY", 0x800},
    {"ES_RIGHT", 0x2},
    {"ES_UPPERCASE", 0x8},
    {"ES_WANTRETURN", 0x1000},
    {"EWS_ALLOWOVERWRITE", 0x10},
    {"EWS_AUTOINDENT", 0x20},
    {"EWS_HILITE", 0x40},
    {"EWS_NUMBERBAR", 0x1000},
    {"EWS_READONLY", 0x80},
    {"EWS_SELECTALL", 0x100},
    {"EWS_STATUSBAR", 0x200},
    {"EWS_TABSHIFT", 0x400},
    {"LBS_DISABLENOSCROLL", 0x1000},
    {"LBS_EXTENDEDSEL", 0x800},
    {"LBS_HASSTRINGS", 0x40},
    {"LBS_MULTICOLUMN", 0x200},
    {"LBS_MULTIPLESEL", 0x8},
    {"LBS_NOINTEGRALHEIGHT", 0x100},
    {"LBS_NOREDRAW", 0x4},
    {"LBS_NOTIFY", 0x1},
    {"LBS_OWNERDRAWFIXED", 0x10},
    {"LBS_OWNERDRAWVARIABLE", 0x20},
    {"LBS_SORT", 0x2},
    {"LBS_STANDARD", 0xA00003},
    {"LBS_USETABSTOPS", 0x80},
    {"LBS_WANTKEYBOARDINPUT", 0x400},
    {"MF_CHECKED", 0x8},
    {"MF_DISABLED", 0x2},
    {"MF_GRAYED", 0x1},
    {"PI_BGCOL_B", 0x40},
    {"PI_BGCOL_G", 0x20},
    {"PI_BGCOL_R", 0x10},
    {"PI_BGCOL_Y", 0x80},
    {"PI_FGCOL_B", 0x400},
    {"PI_FGCOL_G", 0x200},
    {"PI_FGCOL_R", 0x100},
    {"PI_FGCOL_Y", 0x800},
    {"PI_PERCENT", 0x4},
    {"PI_VALUE", 0x2},
    {"PI_VERTICAL", 0x1},
    {"SBS_BOTTOMALIGN", 0x4},
    {"SBS_HORZ", 0x0},
    {"SBS_LEFTALIGN", 0x2},
    {"SBS_RIGHTALIGN", 0x4},
    {"SBS_SIZEBOX", 0x8},
    {"SBS_SIZEBOXBOTTOMRIGHTALIGN", 0x4},
    {"SBS_SIZEBOXTOPLEFTALIGN", 0x2},
    {"SBS_TOPALIGN", 0x2},
    {"SBS_VERT", 0x1},
    {"SH_BGCOL_B", 0x400},
    {"SH_BGCOL_G", 0x200},
    {"SH_BGCOL_R", 0x100},
    {"SH_BGCOL_Y", 0x800},
    {"SH_CIRCLE", 0x4},
    {"SH_DASH", 0x20},
    {"SH_DOTTED", 0x40},
    {"SH_ELLIPSE", 0x2},
    {"SH_FGCOL_B", 0x4000},
    {"SH_FGCOL_G", 0x2000},
    {"SH_FGCOL_R", 0x1000},
    {"SH_FGCOL_Y", 0x8000},
    {"SH_RECT", 0x0},
    {"SH_ROUNDRECT", 0x8},
    {"SH_SOLID", 0x10},
    {"SH_SQUARE", 0x1},
    {"SH_TRANSPARENT", 0x80},
    {"SS_BLACKFRAME", 0x7},
    {"SS_BLACKRECT", 0x4},
    {"SS_CENTER", 0x1},
    {"SS_GRAYFRAME", 0x8},
    {"SS_GRAYRECT", 0x5},
    {"SS_ICON", 0x3},
    {"SS_LEFT", 0x0},
    {"SS_LEFTNOWORDWRAP", 0xC},
    {"SS_NOPREFIX", 0x80},
    {"SS_RIGHT", 0x2},
    {"SS_SIMPLE", 0xB},
    {"SS_WHITEFRAME", 0x9},
    {"SS_WHITERECT", 0x6},
    {"WS_BORDER", 0x800000},
    {"WS_CAPTION", 0xC00000},
    {"WS_CHILD", 0x40000000},
    {"WS_CHILDWINDOW", 0x40000000},
    {"WS_CLIPCHILDREN", 0x2000000},
    {"WS_CLIPSIBLINGS", 0x4000000},
    {"WS_DISABLED", 0x8000000},
    {"WS_DLGFRAME", 0x400000},
    {"WS_EX_ACCEPTFILES", 0x10},
    {"WS_EX_CLIENTEDGE", 0x200},
    {"WS_EX_CONTEXTHELP", 0x400},
    {"WS_EX_DLGMODALFRAME", 0x1},
    {"WS_EX_MDICHILD", 0x40},
    {"WS_EX_NOPARENTNOTIFY", 0x4},
    {"WS_EX_TOOLWINDOW", 0x80},
    {"WS_EX_TOPMOST", 0x8},
    {"WS_EX_TRANSPARENT", 0x20},
    {"WS_EX_WINDOWEDGE", 0x100},
    {"WS_GROUP", 0x20000},
    {"WS_HSCROLL", 0x100000},
    {"WS_MAXIMIZE", 0x1000000},
    {"WS_MAXIMIZEBOX", 0x10000},
    {"WS_MINIMIZE", 0x20000000},
    {"WS_MINIMIZEBOX", 0x20000},
    {"WS_OVERLAPPED", 0x0},
    {"WS_OVERLAPPEDWINDOW", 0xCF0000},
    {"WS_POPUP", 0x80000000},
    {"WS_POPUPWINDOW", 0x80880000},
    {"WS_SYSMENU", 0x80000},
    {"WS_TABSTOP", 0x10000},
    {"WS_THICKFRAME", 0x40000},
    {"WS_VISIBLE", 0x10000000},
    {"WS_VSCROLL", 0x200000},
});
static_assert(kStyleWordTable.size() == 156);
static_assert(IsStrictlySorted(kStyleWordTable));

// The bits of words joined by the pipe character; every word must be in the table. Compile time only.
consteval std::uint32_t StyleBits(std::string_view words) {
  std::uint32_t bits = 0;
  for (;;) {
    const std::size_t pipe = words.find('|');
    bits |= FindByName(kStyleWordTable, words.substr(0, pipe))->value;
    if (pipe == std::string_view::npos) return bits;
    words.remove_prefix(pipe + 1);
  }
}

// The number of a style word: a text that begins with 0x or 0X as far as its hexadecimal digits go, otherwise
// the word's row in the table, ignoring case. 0 for anything else, decimal numbers included: an unknown word
// can't be told from a word of value 0.
std::uint32_t StyleWordValue(std::string_view word) noexcept;

}  // namespace brelt::rc
