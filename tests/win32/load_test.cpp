// What Load makes of a DIALOG.
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/guarded.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/record.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

constexpr const char* kNoControls = "DIALOG 0, 0, 100, 100\nBEGIN\nEND\n";

HMODULE Program() { return GetModuleHandleA(nullptr); }

LONG SlotOf(HWND window, Slot slot) { return GetWindowLongA(window, slot * 4); }

class LoadTest : public FormTest {};

TEST_F(LoadTest, MakesAHiddenWindowWithItsControls) {
  const LoadResult form = LoadDialog("Main", "  PUSHBUTTON \"OK\", IDOK, 10, 10, 50, 14");
  EXPECT_EQ(form.message, "");
  ASSERT_EQ(form.code, RTX_OK);
  ASSERT_TRUE(IsWindow(form.window));
  EXPECT_FALSE(IsWindowVisible(form.window));
  EXPECT_EQ(Log().All(), "EV_LOAD 0 0\n");
  EXPECT_TRUE(IsWindow(GetDlgItem(form.window, IDOK)));
}

TEST_F(LoadTest, NeverMakesAVisibleWindow) {
  const LoadResult form =
      LoadText("Main", "Main DIALOG 0, 0, 100, 100\nSTYLE WS_VISIBLE | WS_POPUP\nBEGIN\nEND\n");
  ASSERT_EQ(form.code, RTX_OK);
  EXPECT_FALSE(IsWindowVisible(form.window));
}

// ---- The name ----

TEST_F(LoadTest, OfANameThatExistsDoesNothing) {
  const LoadResult first = LoadDialog("Main", "  LTEXT \"a\", 100, 0, 0, 9, 9");
  ASSERT_EQ(first.code, RTX_OK);
  Log().Clear();
  for (const char* name : {"Main", "MAIN", "main"}) {
    SCOPED_TRACE(name);
    auto* unchanged = reinterpret_cast<HWND>(0x1234);
    HWND window = unchanged;
    char message[20] = "unset";
    // Not even the file's name is looked at, nor the array values.
    EXPECT_EQ(Load(Program(), name, "no such file", nullptr, &window, "a=b\0", message, sizeof message),
              RTX_OK);
    EXPECT_EQ(window, unchanged);
    EXPECT_STREQ(message, "");
  }
  EXPECT_EQ(LibraryWindows().size(), 1u);
  EXPECT_EQ(Log().All(), "");
  EXPECT_EQ(GetFuncptr("Main", 0), RecordEvent);
  EXPECT_EQ(SlotOf(first.window, SLOT_ARRAYVALUES), 0);
}

TEST_F(LoadTest, StoresTheCallersNameAndFindsTheDialogInAnyCase) {
  WriteTestFile("Main.rc", std::string("main ") + kNoControls);
  ASSERT_EQ(Load(Program(), "MaIn", "Main.rc", nullptr, nullptr, nullptr, nullptr, 0), RTX_OK);
  EXPECT_STREQ(RecordOf(GetHandle("main", 0, nullptr))->name.c_str(), "MaIn");
}

TEST_F(LoadTest, OfANameOf40CharactersStoresThemAll) {
  const std::string name(40, 'n');
  const LoadResult form = LoadText(name, name + " " + kNoControls);
  ASSERT_EQ(form.code, RTX_OK);
  EXPECT_EQ(RecordOf(form.window)->name.view(), name);
  // A longer name finds this window, so that there is nothing to load.
  EXPECT_EQ(Load(Program(), (name + "more").c_str(), "no such file", nullptr, nullptr, nullptr, nullptr, 0),
            RTX_OK);
  EXPECT_EQ(LibraryWindows().size(), 1u);
}

TEST_F(LoadTest, LoadsASecondWindowUnderASecondNameOnly) {
  const std::string text = std::string("One ") + "DIALOG 0, 0, 9, 9\nSTYLE WS_POPUP\nBEGIN\nEND\nTwo " +
                           "DIALOG 0, 0, 9, 9\nSTYLE WS_POPUP\nBEGIN\nEND\n";
  const std::string path = WriteTestFile("both.rc", text);
  for (const char* name : {"One", "Two", "One"}) {
    EXPECT_EQ(Load(Program(), name, path.c_str(), nullptr, nullptr, nullptr, nullptr, 0), RTX_OK);
  }
  EXPECT_EQ(LibraryWindows().size(), 2u);
}

// ---- The file ----

std::string CaptionOf(const char* name) {
  char text[100] = "";
  GetWindowTextA(GetHandle(name, 0, nullptr), text, sizeof text);
  return text;
}

TEST_F(LoadTest, TakesABareFileNameFromTheCurrentFolderAndThenFromTheProgramsFolder) {
  const std::string beside = ProgramFolder() + "near.rc";
  std::ofstream(beside) << "Main DIALOG 0, 0, 9, 9\nCAPTION \"near the program\"\nBEGIN\nEND\n";
  ASSERT_EQ(Load(Program(), "Main", "near.rc", nullptr, nullptr, nullptr, nullptr, 0), RTX_OK);
  EXPECT_EQ(CaptionOf("Main"), "near the program");
  DestroyLibraryWindows();
  WriteTestFile("near.rc", "Main DIALOG 0, 0, 9, 9\nCAPTION \"current folder\"\nBEGIN\nEND\n");
  ASSERT_EQ(Load(Program(), "Main", "near.rc", nullptr, nullptr, nullptr, nullptr, 0), RTX_OK);
  EXPECT_EQ(CaptionOf("Main"), "current folder");
  DestroyLibraryWindows();
  ASSERT_EQ(Load(Program(), "Main", beside.c_str(), nullptr, nullptr, nullptr, nullptr, 0), RTX_OK);
  EXPECT_EQ(CaptionOf("Main"), "near the program");
  EXPECT_TRUE(DeleteFileA(beside.c_str()));
  EXPECT_TRUE(DeleteFileA("near.rc"));
}

TEST_F(LoadTest, WorksWithoutAnInstance) {
  WriteTestFile("Main.rc", std::string("Main ") + kNoControls);
  HWND window = nullptr;
  ASSERT_EQ(Load(nullptr, "Main", "Main.rc", RecordEvent, &window, nullptr, nullptr, 0), RTX_OK);
  EXPECT_EQ(GetHandle("Main", 0, nullptr), window);
  EXPECT_EQ(Log().All(), "EV_LOAD 0 0\n");
}

// ---- The window ----

TEST_F(LoadTest, CreatesTheWindowSmallWithCaptionStyleOwnerAndInstance) {
  const MessageSpy spy;
  const LoadResult form = LoadText(
      "Main",
      "Main DIALOG 10, 10, 100, 100\nCAPTION \"The caption\"\nSTYLE WS_POPUP | WS_CAPTION | DS_MODALFRAME\n"
      "BEGIN\nEND\n");
  ASSERT_EQ(form.code, RTX_OK);
  ASSERT_EQ(spy.creations().size(), 1u);
  const Creation& creation = spy.creations()[0];
  EXPECT_EQ(creation.window, form.window);
  EXPECT_EQ(creation.className, "Dialog.1.3.2207");
  EXPECT_EQ(creation.text, "The caption");
  EXPECT_EQ(creation.style & ~static_cast<DWORD>(WS_CLIPSIBLINGS), static_cast<DWORD>(WS_POPUP | WS_CAPTION));
  EXPECT_EQ(creation.exStyle & ~static_cast<DWORD>(WS_EX_WINDOWEDGE),
            static_cast<DWORD>(WS_EX_DLGMODALFRAME));
  EXPECT_EQ(creation.x, 0);
  EXPECT_EQ(creation.y, 0);
  EXPECT_EQ(creation.width, 20);
  EXPECT_EQ(creation.height, 20);
  EXPECT_EQ(creation.menu, nullptr);
  EXPECT_EQ(creation.instance, Program());
  EXPECT_EQ(creation.data, nullptr);
}

TEST_F(LoadTest, GivesAWindowOfNoStyleSystemMenuAndModalFrame) {
  const LoadResult form = LoadText("Main", std::string("Main ") + kNoControls);
  ASSERT_EQ(form.code, RTX_OK);
  const LONG style = GetWindowLongA(form.window, GWL_STYLE);
  EXPECT_EQ(style & (WS_POPUP | WS_SYSMENU | WS_VISIBLE | 0x80), static_cast<LONG>(WS_POPUP | WS_SYSMENU));
  EXPECT_EQ(GetWindowLongA(form.window, GWL_EXSTYLE) & (WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE),
            WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE);
}

TEST_F(LoadTest, FillsSlotsAndRecord) {
  const LoadResult form = LoadDialog("Main",
                                     "  LTEXT \"a\", 100, 0, 0, 9, 9\n"
                                     "  DEFPUSHBUTTON \"b\", 101, 0, 0, 9, 9\n"
                                     "  DEFPUSHBUTTON \"c\", 102, 0, 0, 9, 9");
  ASSERT_EQ(form.code, RTX_OK);
  EXPECT_EQ(SlotOf(form.window, SLOT_FUNCPTR), reinterpret_cast<LONG>(RecordEvent));
  EXPECT_EQ(SlotOf(form.window, SLOT_FLAGS), static_cast<LONG>(WF_CANVAS));
  for (const Slot slot : {SLOT_ARRAYVALUES, SLOT_CANVAS, SLOT_CANVASANCHOR, SLOT_LASTFOCUS, SLOT_PREVACTIVE,
                          SLOT_ACCELTABLE, SLOT_EDITPROC}) {
    EXPECT_EQ(SlotOf(form.window, slot), 0) << slot;
  }
  const WindowRow* record = RecordOf(form.window);
  EXPECT_EQ(GlobalSize(GlobalHandle(record)), 256u * 188);
  EXPECT_STREQ(record->name.c_str(), "Main");
  EXPECT_EQ(record->id, 0);
  EXPECT_EQ(record->handle, form.window);
  EXPECT_EQ(record->module, nullptr);
  EXPECT_EQ(record->foreColour, 0u);
  EXPECT_EQ(record->backColour, 0xFFFFFFu);
  EXPECT_EQ(record->defaultId, 101);
  EXPECT_EQ(record->loaded, 1);
  EXPECT_EQ(record->quietEdit, 0);
  EXPECT_NE(record->font, nullptr);
  EXPECT_NE(record->drawFont, nullptr);
  EXPECT_NE(record->font, record->drawFont);
  EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageA(form.window, WM_GETFONT, 0, 0)), record->font);
  for (int row = 4; row < 256; ++row) EXPECT_TRUE(record[row].name.IsEmpty());
}

TEST_F(LoadTest, TakesTheFirstDefaultButtonInTheirOrder) {
  struct Case {
    const char* controls;
    int32_t id;
  };
  const Case cases[] = {
      {"  PUSHBUTTON \"a\", 1, 0, 0, 9, 9", 0},
      {"  CHECKBOX \"a\", 5, 0, 0, 9, 9\n  DEFPUSHBUTTON \"b\", 7, 0, 0, 9, 9\n  DEFPUSHBUTTON \"c\", 6, 0, "
       "0, 9, 9",
       7},
      {"  CONTROL \"a\", 9, \"button\", BS_DEFPUSHBUTTON, 0, 0, 9, 9", 9},
      // The same type bits mean something else in other classes.
      {"  CTEXT \"a\", 5, 0, 0, 9, 9\n  EDITTEXT 6, 0, 0, 9, 9, ES_CENTER", 0},
      {"  CTEXT \"a\", 5, 0, 0, 9, 9\n  DEFPUSHBUTTON \"b\", 7, 0, 0, 9, 9", 7},
      {"", 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.controls);
    const LoadResult form = LoadDialog("Main", c.controls);
    ASSERT_EQ(form.code, RTX_OK);
    EXPECT_EQ(RecordOf(form.window)->defaultId, c.id);
    DestroyLibraryWindows();
  }
}

// The window is there for whoever looks for it while its controls are made, and nothing of its size is told
// yet.
TEST_F(LoadTest, FindsTheWindowByItsNameWhileItLoads) {
  static HWND found;
  static int32_t loaded;
  found = nullptr;
  struct Hook {
    static LRESULT CALLBACK Look(int code, WPARAM wParam, LPARAM lParam) {
      if (code == HCBT_CREATEWND && found == nullptr) {
        found = GetHandle("Main", 0, nullptr);
        if (found != nullptr) loaded = RecordOf(found)->loaded;
      }
      return CallNextHookEx(nullptr, code, wParam, lParam);
    }
  };
  HHOOK hook = SetWindowsHookExA(WH_CBT, Hook::Look, nullptr, GetCurrentThreadId());
  const LoadResult form = LoadDialog("Main", "  LTEXT \"a\", 100, 0, 0, 9, 9");
  UnhookWindowsHookEx(hook);
  ASSERT_EQ(form.code, RTX_OK);
  EXPECT_EQ(found, form.window);
  EXPECT_EQ(loaded, 0);
}

// ---- Owners ----

constexpr const char* kOverlapped = "STYLE WS_CAPTION | WS_SYSMENU\n";
constexpr const char* kPopup = "STYLE WS_POPUP | WS_CAPTION\n";

HWND askedOwner;

HWND WINAPI RecordOwner(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width,
                        int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID data) {
  askedOwner = parent;
  return CreateWindowExA(exStyle, className, text, style, x, y, width, height, parent, menu, instance, data);
}

TEST_F(LoadTest, GivesTheDesktopForAnOwnerWhereThereIsNoOther) {
  const ReplacedImport create("CreateWindowExA", reinterpret_cast<void*>(&RecordOwner));
  for (const char* style : {kPopup, kOverlapped}) {
    ASSERT_EQ(LoadDialog("Main", "", style).code, RTX_OK);
    EXPECT_EQ(askedOwner, GetDesktopWindow());
    DestroyLibraryWindows();
  }
}

TEST_F(LoadTest, OwnsPopupsByTheFirstOverlappedWindow) {
  const LoadResult early = LoadDialog("Early", "", kPopup);
  ASSERT_EQ(early.code, RTX_OK);
  EXPECT_EQ(GetWindow(early.window, GW_OWNER), nullptr);
  const LoadResult main = LoadDialog("Main", "", kOverlapped);
  ASSERT_EQ(main.code, RTX_OK);
  EXPECT_EQ(GetWindow(main.window, GW_OWNER), nullptr);
  EXPECT_EQ(GetWindowLongA(main.window, GWL_STYLE) & static_cast<LONG>(WS_POPUP), 0);
  for (const char* name : {"One", "Two"}) {
    const LoadResult popup = LoadDialog(name, "", kPopup);
    ASSERT_EQ(popup.code, RTX_OK);
    EXPECT_EQ(GetWindow(popup.window, GW_OWNER), main.window);
  }
}

TEST_F(LoadTest, RefusesASecondOverlappedWindowAsLongAsThereIsOne) {
  ASSERT_EQ(LoadDialog("Main", "", kOverlapped).code, RTX_OK);
  for (int i = 0; i < 2; ++i) {
    const LoadResult second = LoadDialog("Second", "", kOverlapped);
    EXPECT_EQ(second.code, RTX_SECOND_OWNER);
    EXPECT_EQ(second.message, "Only allowed one top level owner window");
    EXPECT_EQ(second.window, nullptr);
    EXPECT_EQ(LibraryWindows().size(), 1u);
  }
  Unload("Main");
  EXPECT_EQ(LoadDialog("Second", "", kOverlapped).code, RTX_OK);
}

// A style whose words are none of a DIALOG's is not the same as no style.
TEST_F(LoadTest, TakesAStyleOfNoLegalWordForAnOverlappedWindow) {
  ASSERT_EQ(LoadDialog("Main", "", "STYLE WS_VISIBLE\n").code, RTX_OK);
  EXPECT_EQ(LoadDialog("Second", "", "STYLE WS_VISIBLE\n").code, RTX_SECOND_OWNER);
  EXPECT_EQ(LoadDialog("Third", "", "").code, RTX_OK);
}

// ---- The event ----

TEST_F(LoadTest, RaisesTheLoadEventWhenAllIsThere) {
  HWND given = nullptr;
  const std::string path =
      WriteTestFile("Main.rc",
                    "Main DIALOG 0, 0, 9, 9\nMENU Bar\nBEGIN\n  LTEXT \"a\", 100, 0, 0, 9, 9\nEND\n"
                    "Bar MENU\nBEGIN\n  MENUITEM \"b\", 200\nEND\n");
  int events = 0;
  Log().onEvent = [&](HWND window, const Event& event) {
    EXPECT_EQ(event, (Event{EV_LOAD, 0, 0}));
    ++events;
    EXPECT_EQ(given, window);
    EXPECT_FALSE(IsWindowVisible(window));
    EXPECT_EQ(GetHandle("Main", 0, nullptr), window);
    EXPECT_TRUE(GetHandle("Main", 100, nullptr));
    EXPECT_EQ(GetMenuItemCount(GetMenu(window)), 1);
    EXPECT_EQ(RecordOf(window)->loaded, 1);
    EXPECT_STREQ(reinterpret_cast<const char*>(
                     SendMessageA(window, XM_GETARRAYVALUE, reinterpret_cast<WPARAM>("k"), 0)),
                 "v");
    return 0;
  };
  EXPECT_EQ(Load(Program(), "Main", path.c_str(), RecordEvent, &given, "k=v\0", nullptr, 0), RTX_OK);
  EXPECT_EQ(events, 1);
}

TEST_F(LoadTest, SurvivesAFunctionThatUnloadsTheWindowInItsLoadEvent) {
  Log().onEvent = [](HWND, const Event& event) {
    if (event.event == EV_LOAD) Unload("Main");
    return 0;
  };
  const LoadResult form = LoadDialog("Main", "  LTEXT \"a\", 100, 0, 0, 9, 9");
  EXPECT_EQ(form.code, RTX_OK);
  EXPECT_NE(form.window, nullptr);
  EXPECT_FALSE(IsWindow(form.window));
  EXPECT_TRUE(LibraryWindows().empty());
}

TEST_F(LoadTest, MayLoadAnotherWindowInTheLoadEvent) {
  Log().onEvent = [](HWND, const Event& event) {
    if (event.event == EV_LOAD && GetHandle("Inner", 0, nullptr) == nullptr) {
      const LoadResult inner = LoadDialog("Inner", "  LTEXT \"a\", 100, 0, 0, 9, 9");
      EXPECT_EQ(inner.code, RTX_OK);
    }
    return 0;
  };
  EXPECT_EQ(LoadDialog("Main", "  LTEXT \"a\", 100, 0, 0, 9, 9").code, RTX_OK);
  EXPECT_EQ(LibraryWindows().size(), 2u);
}

TEST_F(LoadTest, WorksWithoutAnEventFunction) {
  const LoadResult form = LoadText("Main", std::string("Main ") + kNoControls, nullptr);
  EXPECT_EQ(form.code, RTX_OK);
  EXPECT_EQ(RecordOf(form.window)->loaded, 1);
}

TEST_F(LoadTest, WorksWithoutAWindowOutput) {
  WriteTestFile("Main.rc", std::string("Main ") + kNoControls);
  EXPECT_EQ(Load(Program(), "Main", "Main.rc", nullptr, nullptr, nullptr, nullptr, 0), RTX_OK);
  EXPECT_TRUE(GetHandle("Main", 0, nullptr));
}

// ---- Array values ----

TEST_F(LoadTest, StoresItsOwnCopyOfTheArrayValues) {
  const std::string path = WriteTestFile("Main.rc", std::string("Main ") + kNoControls);
  char values[] = "one=1\0two=2\0";
  HWND window = nullptr;
  ASSERT_EQ(Load(Program(), "Main", path.c_str(), nullptr, &window, values, nullptr, 0), RTX_OK);
  std::fill(std::begin(values), std::end(values), 'x');
  const auto* block = reinterpret_cast<const char*>(SendMessageA(window, XM_GETARRAYVALUES, 0, 0));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(std::string(block, 13), std::string("one=1\0two=2\0\0", 13));
}

TEST_F(LoadTest, TakesAnEmptyBlockForNoArrayValues) {
  const std::string path = WriteTestFile("Main.rc", std::string("Main ") + kNoControls);
  HWND window = nullptr;
  ASSERT_EQ(Load(Program(), "Main", path.c_str(), nullptr, &window, "", nullptr, 0), RTX_OK);
  EXPECT_EQ(SlotOf(window, SLOT_ARRAYVALUES), 0);
}

// ---- The menu ----

TEST_F(LoadTest, GivesTheWindowItsMenuAndTheTableOfItsKeys) {
  const LoadResult form =
      LoadText("Main",
               "#define IDM_OPEN 200\n"
               "Main DIALOG 0, 0, 9, 9\nMENU Bar\nBEGIN\nEND\n"
               "Bar MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n"
               "    MENUITEM \"Open\\tCtrl+O\", IDM_OPEN\n  END\n  MENUITEM \"Run\\tF5\", 201\nEND\n");
  ASSERT_EQ(form.message, "");
  ASSERT_EQ(form.code, RTX_OK);
  HMENU menu = GetMenu(form.window);
  ASSERT_EQ(GetMenuItemCount(menu), 2);
  EXPECT_EQ(GetMenuItemID(GetSubMenu(menu, 0), 0), 200u);
  EXPECT_EQ(GetMenuItemID(menu, 1), 201u);
  const auto* table = reinterpret_cast<const rc::AcceleratorRow*>(SlotOf(form.window, SLOT_ACCELTABLE));
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(GlobalSize(GlobalHandle(table)), 600u);
  const rc::AcceleratorRow expected[] = {{10, 'O', 200}, {2, VK_F5, 201}, {18, 'F', 0}, {0, 0, 0}};
  for (int row = 0; row < 4; ++row) {
    SCOPED_TRACE(row);
    EXPECT_EQ(table[row].Flags, expected[row].Flags);
    EXPECT_EQ(table[row].Key, expected[row].Key);
    EXPECT_EQ(table[row].Command, expected[row].Command);
  }
}

// Whoever watches the creation of windows may have given it one.
TEST_F(LoadTest, DestroysAMenuThatTheWindowHasAlready) {
  static HMENU earlier;
  earlier = nullptr;
  struct Hook {
    static LRESULT CALLBACK Give(int code, WPARAM wParam, LPARAM lParam) {
      const auto* made = reinterpret_cast<const CBT_CREATEWNDA*>(lParam);
      if (code == HCBT_CREATEWND && (made->lpcs->style & WS_CHILD) != 0) {
        earlier = CreateMenu();
        SetMenu(made->lpcs->hwndParent, earlier);
      }
      return CallNextHookEx(nullptr, code, wParam, lParam);
    }
  };
  HHOOK hook = SetWindowsHookExA(WH_CBT, Hook::Give, nullptr, GetCurrentThreadId());
  const LoadResult form =
      LoadText("Main",
               "Main DIALOG 0, 0, 9, 9\nMENU Bar\nBEGIN\n  LTEXT \"a\", 100, 0, 0, 9, 9\nEND\n"
               "Bar MENU\nBEGIN\n  MENUITEM \"a\", 200\nEND\n");
  UnhookWindowsHookEx(hook);
  ASSERT_EQ(form.code, RTX_OK);
  ASSERT_NE(earlier, nullptr);
  EXPECT_FALSE(IsMenu(earlier));
  EXPECT_EQ(GetMenuItemID(GetMenu(form.window), 0), 200u);
}

TEST_F(LoadTest, DrawsTheMenuBarForTheMenuAndForTheSystemMenu) {
  const CountedImport<struct Drawing, BOOL, HWND> drawing("DrawMenuBar");
  ASSERT_EQ(LoadDialog("Main", "").code, RTX_OK);
  EXPECT_EQ(drawing.calls(), 1);
  DestroyLibraryWindows();
  ASSERT_EQ(
      LoadText("Main",
               "Main DIALOG 0, 0, 9, 9\nMENU Bar\nBEGIN\nEND\nBar MENU\nBEGIN\n  MENUITEM \"a\", 1\nEND\n")
          .code,
      RTX_OK);
  EXPECT_EQ(drawing.calls(), 3);
}

TEST_F(LoadTest, TrimsTheSystemMenu) {
  const LoadResult form =
      LoadDialog("Main", "", "STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX\n");
  ASSERT_EQ(form.code, RTX_OK);
  HMENU menu = GetSystemMenu(form.window, FALSE);
  for (const UINT gone : {SC_SIZE, SC_MAXIMIZE}) {
    EXPECT_EQ(GetMenuState(menu, gone, MF_BYCOMMAND), static_cast<UINT>(-1));
  }
  for (const UINT kept : {SC_MINIMIZE, SC_RESTORE, SC_MOVE, SC_CLOSE}) {
    EXPECT_NE(GetMenuState(menu, kept, MF_BYCOMMAND), static_cast<UINT>(-1));
  }
}

// ---- The message buffer ----

TEST_F(LoadTest, CutsItsMessageToTheBuffer) {
  const std::string message = "Window object name is invalid.";
  ExpectCallCutToFit(message, [](char* buffer, int size) {
    EXPECT_EQ(Load(Program(), "", "x.rc", nullptr, nullptr, nullptr, buffer, size), RTX_NO_DIALOG);
  });
}

TEST_F(LoadTest, EmptiesItsMessageOnSuccess) {
  WriteTestFile("Main.rc", std::string("Main ") + kNoControls);
  char message[] = "unset";
  ASSERT_EQ(Load(Program(), "Main", "Main.rc", nullptr, nullptr, nullptr, message, sizeof message), RTX_OK);
  EXPECT_STREQ(message, "");
  message[0] = 'x';
  ASSERT_EQ(Load(Program(), "Main", "Main.rc", nullptr, nullptr, nullptr, message, 1), RTX_OK);
  EXPECT_STREQ(message, "");
}

// ---- Edit windows ----

// Edit windows have no inner control yet, so that they go again; what they are given until then is there to
// be seen when they do.
struct GoingWindow {
  LONG flags;
  LONG tokenTableSize;
  std::size_t tokenBytes;
  std::size_t recordBytes;
  std::string name;
};
GoingWindow going;

LRESULT CALLBACK OnGoing(int code, WPARAM wParam, LPARAM lParam) {
  const auto window = reinterpret_cast<HWND>(wParam);
  // The platform's own windows for input come and go with the program's.
  if (code == HCBT_DESTROYWND && GetClassLongA(window, GCL_CBWNDEXTRA) == kSlotBytes) {
    going = {SlotOf(window, SLOT_FLAGS), SlotOf(window, SLOT_CANVASANCHOR),
             GlobalSize(GlobalHandle(reinterpret_cast<void*>(SlotOf(window, SLOT_CANVAS)))),
             GlobalSize(GlobalHandle(RecordOf(window))), RecordOf(window)->name.c_str()};
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(LoadTest, OfAnEditWindowGivesItFlagsRecordAndTokenTable) {
  struct Case {
    const char* exStyle;
    LONG flags;
  };
  const Case cases[] = {
      {"", 0},
      {"EXSTYLE EWS_ALLOWOVERWRITE | EWS_AUTOINDENT | EWS_HILITE | EWS_SELECTALL | EWS_STATUSBAR | "
       "EWS_TABSHIFT | "
       "EWS_NUMBERBAR\n",
       0x1770},
      {"EXSTYLE EWS_READONLY\n", 0x80},
      {"EXSTYLE EWS_READONLY | EWS_ALLOWOVERWRITE | EWS_AUTOINDENT | EWS_HILITE | EWS_SELECTALL | "
       "EWS_STATUSBAR | "
       "EWS_TABSHIFT | EWS_NUMBERBAR\n",
       0x1380},
  };
  HHOOK hook = SetWindowsHookExA(WH_CBT, OnGoing, nullptr, GetCurrentThreadId());
  for (const char* className : {"Editwindow", "EDITWINDOW", "Richeditwindow", "richeditwindow"}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(className) + " " + c.exStyle);
      going = {};
      const LoadResult form =
          LoadDialog("Main", "", std::string("STYLE WS_POPUP\nCLASS \"") + className + "\"\n" + c.exStyle);
      EXPECT_EQ(form.code, RTX_NO_MEMORY);
      EXPECT_EQ(form.message, "Could not create multi line control for window Main");
      EXPECT_EQ(form.window, nullptr);
      EXPECT_TRUE(LibraryWindows().empty());
      EXPECT_EQ(going.flags, c.flags);
      EXPECT_EQ(going.tokenTableSize, 25500);
      EXPECT_EQ(going.tokenBytes, 25500u);
      EXPECT_EQ(going.recordBytes, 188u);
      EXPECT_EQ(going.name, "Main");
    }
  }
  UnhookWindowsHookEx(hook);
  EXPECT_EQ(Log().All(), "");
}

TEST_F(LoadTest, OfAnEditWindowUsesItsOwnClass) {
  const MessageSpy spy;
  LoadDialog("One", "", "CLASS \"editWINDOW\"\n");
  LoadDialog("Two", "", "CLASS \"RICHeditwindow\"\n");
  LoadDialog("Three", "", "CLASS \"dialog\"\n");
  ASSERT_EQ(spy.creations().size(), 3u);
  EXPECT_EQ(spy.creations()[0].className, "Editwindow.1.3.2207");
  EXPECT_EQ(spy.creations()[1].className, "Richeditwindow.1.3.2207");
  EXPECT_EQ(spy.creations()[2].className, "Dialog.1.3.2207");
}

}  // namespace
}  // namespace brelt::test
