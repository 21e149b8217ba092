// What becomes of the style of a DIALOG, and what a window's system menu keeps.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "forms/topwindow.h"
#include "rc/stylekeywords.h"
#include "tests/win32/support/classes.h"

namespace brelt::test {
namespace {

constexpr std::uint32_t kWindowEdge = 0x100;
constexpr std::uint32_t kModalFrame = 0x1;  // WS_EX_DLGMODALFRAME

struct Styles {
  std::uint32_t style;
  std::uint32_t exStyle;
};

Styles Normalise(std::string_view system, bool hasMenu, Styles styles) {
  NormaliseWindowStyle(system, hasMenu, styles.style, styles.exStyle);
  return styles;
}

TEST(NormaliseWindowStyle, MakesAPopupWithSystemMenuAndModalFrameOfNoStyle) {
  for (const bool hasMenu : {false, true}) {
    const Styles styles = Normalise("Windows 7", hasMenu, {0, 0});
    EXPECT_EQ(styles.style, 0x80080000u);  // WS_POPUP and WS_SYSMENU; the frame is an extended style by now
    EXPECT_EQ(styles.exStyle, kModalFrame | kWindowEdge);
  }
}

TEST(NormaliseWindowStyle, KeepsTheLegalWordsOfADialogAndNeverVisible) {
  const std::uint32_t legal = rc::FindStyleKeyword("DIALOG")->legal.bits;
  const Styles styles = Normalise("Windows 7", false, {0xFFFFFFFF, 0xFFFFFFFF});
  EXPECT_EQ(styles.style, legal & ~static_cast<std::uint32_t>(WS_VISIBLE | DS_MODALFRAME));
  EXPECT_EQ(styles.exStyle, kModalFrame | kWindowEdge);
  // Nothing but words that are not legal leaves an overlapped window, not the popup of a missing style.
  EXPECT_EQ(Normalise("Windows 7", false, {WS_VISIBLE, 0}).style, 0u);
  EXPECT_EQ(Normalise("Windows 7", false, {WS_CHILD, 0}).style, 0u);
}

TEST(NormaliseWindowStyle, TakesTheExtendedStyleFromTheModalFrameAlone) {
  struct Case {
    Styles in;
    Styles out;
  };
  const Case cases[] = {
      {{WS_POPUP | DS_MODALFRAME, 0}, {WS_POPUP, kModalFrame | kWindowEdge}},
      {{WS_POPUP, kModalFrame}, {WS_POPUP, kWindowEdge}},
      {{WS_POPUP, WS_EX_CLIENTEDGE}, {WS_POPUP, kWindowEdge}},
      {{WS_POPUP | DS_MODALFRAME | WS_MINIMIZEBOX, 0},
       {WS_POPUP | WS_MINIMIZEBOX, kModalFrame | kWindowEdge}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.in.style);
    const Styles styles = Normalise("Windows 7", true, c.in);
    EXPECT_EQ(styles.style, c.out.style);
    EXPECT_EQ(styles.exStyle, c.out.exStyle);
  }
}

// No system that the library can ask for has this name; what is done for it stays as it was.
TEST(NormaliseWindowStyle, GivesUpTheModalFrameForBoxesOrAMenuOnTheOldestSystem) {
  struct Case {
    std::uint32_t style;
    bool hasMenu;
    Styles out;
  };
  constexpr std::uint32_t kFramed = WS_POPUP | DS_MODALFRAME;
  const Case cases[] = {
      {kFramed | WS_MINIMIZEBOX, false, {WS_POPUP | WS_MINIMIZEBOX | WS_BORDER, 0}},
      {kFramed | WS_MAXIMIZEBOX, false, {WS_POPUP | WS_MAXIMIZEBOX | WS_BORDER, 0}},
      {kFramed, true, {WS_POPUP | WS_BORDER, 0}},
      {kFramed, false, {WS_POPUP, kModalFrame}},
      {WS_POPUP | WS_MINIMIZEBOX, true, {WS_POPUP | WS_MINIMIZEBOX, 0}},
      {0, true, {WS_POPUP | WS_SYSMENU | WS_BORDER, 0}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(::testing::Message() << std::hex << c.style << (c.hasMenu ? " with menu" : ""));
    const Styles styles = Normalise("Windows v3", c.hasMenu, {c.style, 0});
    EXPECT_EQ(styles.style, c.out.style);
    EXPECT_EQ(styles.exStyle, c.out.exStyle);
  }
  // The extended style counts like the style.
  EXPECT_EQ(Normalise("Windows v3", true, {WS_POPUP, kModalFrame}).style, WS_POPUP | WS_BORDER);
}

// ---- The system menu ----

std::set<UINT> Commands(HMENU menu) {
  std::set<UINT> commands;
  for (const UINT command : {SC_SIZE, SC_MOVE, SC_MINIMIZE, SC_MAXIMIZE, SC_RESTORE, SC_CLOSE}) {
    if (GetMenuState(menu, command, MF_BYCOMMAND) != static_cast<UINT>(-1)) commands.insert(command);
  }
  return commands;
}

TEST(TrimSystemMenu, TakesOutWhatTheWindowCantDo) {
  struct Case {
    DWORD style;
    std::set<UINT> kept;
  };
  const Case cases[] = {
      {0, {SC_MOVE, SC_CLOSE}},
      {WS_THICKFRAME, {SC_SIZE, SC_MOVE, SC_CLOSE}},
      {WS_MINIMIZEBOX, {SC_MINIMIZE, SC_RESTORE, SC_MOVE, SC_CLOSE}},
      {WS_MAXIMIZEBOX, {SC_MAXIMIZE, SC_RESTORE, SC_MOVE, SC_CLOSE}},
      {WS_MINIMIZEBOX | WS_MAXIMIZEBOX, {SC_MINIMIZE, SC_MAXIMIZE, SC_RESTORE, SC_MOVE, SC_CLOSE}},
      {WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX,
       {SC_SIZE, SC_MINIMIZE, SC_MAXIMIZE, SC_RESTORE, SC_MOVE, SC_CLOSE}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.style);
    const TestWindow window("STATIC", "", WS_POPUP | WS_CAPTION | WS_SYSMENU | c.style);
    TrimSystemMenu(window.get());
    EXPECT_EQ(Commands(GetSystemMenu(window.get(), FALSE)), c.kept);
  }
}

TEST(TrimSystemMenu, GreysTheTaskListWhereThereIsOne) {
  const TestWindow window("STATIC", "", WS_POPUP | WS_CAPTION | WS_SYSMENU);
  HMENU menu = GetSystemMenu(window.get(), FALSE);
  TrimSystemMenu(window.get());
  EXPECT_EQ(GetMenuState(menu, SC_TASKLIST, MF_BYCOMMAND), static_cast<UINT>(-1));
  AppendMenuA(menu, MF_STRING, SC_TASKLIST, "Tasks");
  TrimSystemMenu(window.get());
  EXPECT_EQ(GetMenuState(menu, SC_TASKLIST, MF_BYCOMMAND), static_cast<UINT>(MF_GRAYED));
}

TEST(TrimSystemMenu, OfAWindowWithoutOneIsHarmless) {
  const TestWindow window("STATIC", "", WS_POPUP);
  TrimSystemMenu(window.get());
  TrimSystemMenu(nullptr);
}

}  // namespace
}  // namespace brelt::test
