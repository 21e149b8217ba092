// The controls of a window: their ids, places, styles and what they are given.
#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/record.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

class ControlsTest : public FormTest {
 protected:
  static void ExpectFailure(const std::string& text, int32_t code, const std::string& message) {
    SCOPED_TRACE(text);
    const LoadResult form = LoadText("Main", text);
    EXPECT_EQ(form.code, code);
    EXPECT_EQ(form.message, message);
    EXPECT_EQ(form.window, nullptr);
    EXPECT_TRUE(LibraryWindows().empty());
  }
  static std::string WithControls(const std::string& controls) {
    return "Main DIALOG 0, 0, 100, 100\nBEGIN\n" + controls + "END\n";
  }
};

// ---- Ids ----

TEST_F(ControlsTest, HaveTheIdOfTheirNumberOrWord) {
  struct Case {
    const char* word;
    int32_t id;
  };
  const Case cases[] = {
      {"100", 100},
      {"+5", 5},
      {"-1", -1},
      {"-70000", -70000},
      {"12.7", 12},
      {"2147483647", INT32_MAX},
      {"99999999999", INT32_MAX},
      {"-99999999999", INT32_MIN},
      {"007", 7},
      {"1e3", 1},
      {"IDOK", 1},
      {"IDCANCEL", 2},
      {"idabort", 3},
      {"IDRETRY", 4},
      {"IDIGNORE", 5},
      {"IDYES", 6},
      {"IDNO", 7},
      {"IDCLOSE", 8},
      {"IDHELP", 9},
      {"IDC_A", 300},
      {"idc_a", 300},
      {"IDC_NEGATIVE", -3},
      {"IDC_HEX", 16},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.word);
    const LoadResult form =
        LoadText("Main",
                 "#define IDC_A 300\n#define IDC_NEGATIVE -3\n#define IDC_HEX 0x10\n"
                 "#define IDCANCEL 77\n" +
                     WithControls(std::string("  LTEXT \"a\", ") + c.word + ", 0, 0, 9, 9\n"));
    ASSERT_EQ(form.message, "");
    ASSERT_EQ(form.code, RTX_OK);
    const WindowRow& row = RecordOf(form.window)[1];
    EXPECT_EQ(row.id, c.id);
    EXPECT_EQ(row.name.view(), c.word);
    EXPECT_EQ(GetDlgCtrlID(row.handle), c.id);
    EXPECT_EQ(row.module, nullptr);
    EXPECT_EQ(row.maxLength, 0);
    DestroyLibraryWindows();
  }
}

TEST_F(ControlsTest, FailWith723ForAnIdOfZeroOrWithoutANumber) {
  for (const char* word :
       {"0", "+0", "-0", "0x10", "000", "IDC_ZERO", "IDC_TEXT", "IDC_UNKNOWN", "IDOKAY", "+", "-"}) {
    ExpectFailure(
        "#define IDC_ZERO 0\n#define IDC_TEXT abc\n" +
            WithControls(std::string("  PUSHBUTTON \"a\", ") + word + ", 0, 0, 9, 9\n"),
        RTX_UNDEFINED_ID,
        std::string("Dialog <Main>, Control Type <PUSHBUTTON>, Control i/d <") + word + "> is undefined");
  }
}

TEST_F(ControlsTest, AreNamedInTheMessageAsTheFileWritesThemCutTo40) {
  const std::string name40(40, 'd');
  const std::string word40(40, 'w');
  const std::string path =
      WriteTestFile("Main.rc", name40 + " DIALOG 0, 0, 9, 9\nBEGIN\n  pushButton \"a\", " + word40 +
                                   "xyz, 0, 0, 9, 9\nEND\n");
  char message[400];
  EXPECT_EQ(Load(GetModuleHandleA(nullptr), name40.c_str(), path.c_str(), nullptr, nullptr, nullptr, message,
                 sizeof message),
            RTX_UNDEFINED_ID);
  EXPECT_EQ(std::string(message),
            "Dialog <" + name40 + ">, Control Type <pushButton>, Control i/d <" + word40 + "> is undefined");
}

TEST_F(ControlsTest, BehindTheFirstFailureAreNotMade) {
  const MessageSpy spy;
  ExpectFailure(WithControls("  LTEXT \"a\", 100, 0, 0, 9, 9\n"
                             "  LTEXT \"b\", IDC_UNKNOWN, 0, 0, 9, 9\n"
                             "  LTEXT \"c\", 102, 0, 0, 9, 9\n"),
                RTX_UNDEFINED_ID,
                "Dialog <Main>, Control Type <LTEXT>, Control i/d <IDC_UNKNOWN> is undefined");
  ASSERT_EQ(spy.creations().size(), 2u);  // the window and the first control
  EXPECT_EQ(spy.creations()[1].text, "a");
  EXPECT_FALSE(IsWindow(spy.creations()[1].window));
}

TEST_F(ControlsTest, KeepTheirOrderInTheRecordAndAmongTheWindows) {
  std::string controls;
  for (int i = 0; i < 255; ++i) controls += "  LTEXT \"a\", " + std::to_string(1000 - i) + ", 0, 0, 9, 9\n";
  const LoadResult form = LoadText("Main", WithControls(controls));
  ASSERT_EQ(form.code, RTX_OK);
  HWND child = GetWindow(form.window, GW_CHILD);
  for (int row = 1; row <= 255; ++row) {
    EXPECT_EQ(RecordOf(form.window)[row].id, 1001 - row);
    EXPECT_EQ(RecordOf(form.window)[row].handle, child);
    child = GetWindow(child, GW_HWNDNEXT);
  }
  EXPECT_EQ(child, nullptr);
}

// ---- Creation ----

struct Units {
  int width;
  int height;
};

Units UnitsOf(HWND window) {
  HDC display = CreateCompatibleDC(nullptr);
  HGDIOBJ previous = SelectObject(display, RecordOf(window)->font);
  TEXTMETRICA metrics = {};
  GetTextMetricsA(display, &metrics);
  SIZE size = {};
  GetTextExtentPoint32A(display, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ", 52, &size);
  SelectObject(display, previous);
  DeleteDC(display);
  return {(size.cx / 26 + 1) / 2, metrics.tmHeight};
}

TEST_F(ControlsTest, AreCreatedWithTheirStyleTextPlaceAndId) {
  struct Case {
    const char* statement;
    const char* className;
    const char* text;
    DWORD style;  // without WS_CLIPSIBLINGS
    DWORD exStyle;
    int x, y, width, height;
  };
  const Case cases[] = {
      {"LTEXT \"Label\", 100, 3, 5, 33, 7", "STATIC", "Label", WS_CHILD | WS_VISIBLE | WS_GROUP, 0, 3, 5, 33,
       7},
      {"LTEXT \"Label\", 100, 3, 5, 33, 7, NOT WS_VISIBLE | WS_BORDER", "STATIC", "Label",
       WS_CHILD | WS_GROUP, WS_EX_CLIENTEDGE, 3, 5, 33, 7},
      {"EDITTEXT 100, 1, 1, 40, 12", "EDIT", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, WS_EX_CLIENTEDGE, 1, 1,
       40, 12},
      {"EDITTEXT 100, 1, 1, 40, 12, NOT WS_BORDER", "EDIT", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 1, 1,
       40, 12},
      {"LISTBOX 100, 1, 1, 40, 40", "LISTBOX", "", WS_CHILD | WS_VISIBLE | LBS_NOTIFY, WS_EX_CLIENTEDGE, 1, 1,
       40, 40},
      {"PUSHBUTTON \"&OK\", 100, -3, -5, 33, 7", "BUTTON", "&OK", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, -3,
       -5, 33, 7},
      {"GROUPBOX \"Group\", 100, 0, 0, 1, 1", "BUTTON", "Group", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, 0, 0, 0,
       1, 1},
      {"SCROLLBAR 100, 2, 2, 9, 50, SBS_VERT", "SCROLLBAR", "", WS_CHILD | WS_VISIBLE | SBS_VERT, 0, 2, 2, 9,
       50},
      {"CONTROL \"a\\nb\", 100, \"button\", WS_BORDER | BS_CHECKBOX, 1, 2, 3, 4", "BUTTON", "a\nb",
       WS_CHILD | WS_VISIBLE | BS_CHECKBOX, WS_EX_CLIENTEDGE, 1, 2, 3, 4},
      {"CONTROL \"x\", 100, \"Shape\", WS_BORDER, 1, 2, 3, 4", "SHAPE.1.3.2207", "x",
       WS_CHILD | WS_VISIBLE | WS_BORDER, 0, 1, 2, 3, 4},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.statement);
    const MessageSpy spy;
    const LoadResult form = LoadText("Main", WithControls(std::string("  ") + c.statement + "\n"));
    ASSERT_EQ(form.message, "");
    ASSERT_EQ(spy.creations().size(), 2u);
    const Creation& creation = spy.creations()[1];
    const Units units = UnitsOf(form.window);
    EXPECT_STRCASEEQ(creation.className.c_str(), c.className);
    EXPECT_EQ(creation.text, c.text);
    EXPECT_EQ(creation.style & ~static_cast<DWORD>(WS_CLIPSIBLINGS), c.style);
    EXPECT_EQ(creation.exStyle, c.exStyle);
    EXPECT_EQ(creation.x, units.width * c.x / 4);
    EXPECT_EQ(creation.y, units.height * c.y / 8);
    EXPECT_EQ(creation.width, units.width * c.width / 4);
    EXPECT_EQ(creation.height, units.height * c.height / 8);
    EXPECT_EQ(creation.parent, form.window);
    EXPECT_EQ(creation.menu, reinterpret_cast<HMENU>(100));
    EXPECT_EQ(creation.instance, GetModuleHandleA(nullptr));
    EXPECT_EQ(creation.data, nullptr);
    DestroyLibraryWindows();
  }
}

TEST_F(ControlsTest, GetTheFontWithoutBeingDrawn) {
  const MessageSpy spy;
  const LoadResult form = LoadText(
      "Main", WithControls("  LTEXT \"a\", 100, 0, 0, 9, 9\n  EDITTEXT 101, 0, 0, 9, 9\n"
                           "  CONTROL \"\", 102, \"Shape\", 0, 0, 0, 9, 9\n  LISTBOX 103, 0, 0, 9, 9\n"));
  ASSERT_EQ(form.code, RTX_OK);
  for (int id = 100; id <= 103; ++id) {
    SCOPED_TRACE(id);
    const std::vector<SentMessage> fonts = spy.To(GetDlgItem(form.window, id), WM_SETFONT);
    ASSERT_EQ(fonts.size(), 1u);
    EXPECT_EQ(fonts[0].wParam, reinterpret_cast<WPARAM>(RecordOf(form.window)->font));
    EXPECT_EQ(fonts[0].lParam, 0);
  }
}

// A name that is a piece of the list of standard classes counts as one of them, and is then refused by the
// platform: the control is missing, and nothing is said.
TEST_F(ControlsTest, ThatThePlatformRefusesLeaveARowWithoutAHandle) {
  for (const char* className : {"", "STAT", "N,C", "EDIT,LISTBOX", ","}) {
    SCOPED_TRACE(className);
    const LoadResult form =
        LoadText("Main", WithControls(std::string("  CONTROL \"a\", 100, \"") + className +
                                      "\", 0, 0, 0, 9, 9\n  LTEXT \"b\", 101, 0, 0, 9, 9\n"));
    ASSERT_EQ(form.message, "");
    ASSERT_EQ(form.code, RTX_OK);
    const WindowRow* record = RecordOf(form.window);
    EXPECT_EQ(record[1].handle, nullptr);
    EXPECT_EQ(record[1].id, 100);
    EXPECT_EQ(record[1].name.view(), "100");
    EXPECT_EQ(record[2].handle, GetDlgItem(form.window, 101));
    EXPECT_NE(record[2].handle, nullptr);
    DestroyLibraryWindows();
  }
}

// A class of 32 characters that happens to stand in the list can't be: the list's pieces are shorter. What is
// longer than 31 is cut before the platform is asked.
TEST_F(ControlsTest, OfAStandardClassAreAskedForWith31CharactersAtMost) {
  static std::vector<std::string> asked;
  asked.clear();
  struct Recorder {
    static HWND WINAPI Create(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y,
                              int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                              LPVOID data) {
      asked.emplace_back(className);
      return CreateWindowExA(exStyle, className, text, style, x, y, width, height, parent, menu, instance,
                             data);
    }
  };
  const ReplacedImport create("CreateWindowExA", reinterpret_cast<void*>(&Recorder::Create));
  ASSERT_EQ(
      LoadText("Main",
               WithControls("  CONTROL \"\", 100, \"BUTTON,COMBOBOX,EDIT,LISTBOX,SCR\", 0, 0, 0, 9, 9\n"))
          .code,
      RTX_OK);
  ASSERT_EQ(asked.size(), 2u);
  EXPECT_EQ(asked[1], "BUTTON,COMBOBOX,EDIT,LISTBOX,SC");
}

// ---- What they are given ----

using Items = std::vector<std::string>;

Items ItemsOf(HWND list, UINT count, UINT length, UINT text) {
  Items items;
  const LRESULT number = SendMessageA(list, count, 0, 0);
  for (LRESULT i = 0; i < number; ++i) {
    const auto index = static_cast<WPARAM>(i);
    std::string item(static_cast<std::size_t>(SendMessageA(list, length, index, 0)) + 1, '\0');
    SendMessageA(list, text, index, reinterpret_cast<LPARAM>(item.data()));
    item.pop_back();
    items.push_back(item);
  }
  return items;
}

TEST_F(ControlsTest, OfTheListClassesGetTheLinesOfTheirTextAsItems) {
  const LoadResult form = LoadText(
      "Main",
      WithControls("  CONTROL \"one\\r\\ntwo\\r\\n\\r\\nthree\", 100, \"LISTBOX\", 0, 0, 0, 90, 90\n"
                   "  CONTROL \"one\\ntwo\\n\", 101, \"COMBOBOX\", CBS_DROPDOWNLIST, 0, 0, 90, 90\n"));
  ASSERT_EQ(form.message, "");
  EXPECT_EQ(ItemsOf(GetDlgItem(form.window, 100), LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT),
            (Items{"one", "two", "", "three"}));
  EXPECT_EQ(ItemsOf(GetDlgItem(form.window, 101), CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT),
            (Items{"one", "two"}));
}

TEST_F(ControlsTest, OfListBoxesWithAHorizontalScrollBarGetAnExtentFromTheUnitsOfTheFont) {
  const MessageSpy spy;
  const LoadResult form = LoadText("Main", WithControls("  LISTBOX 100, 0, 0, 90, 90, WS_HSCROLL\n"
                                                        "  LISTBOX 101, 0, 0, 90, 90, WS_VSCROLL\n"));
  ASSERT_EQ(form.code, RTX_OK);
  const std::vector<SentMessage> extents = spy.To(GetDlgItem(form.window, 100), LB_SETHORIZONTALEXTENT);
  ASSERT_EQ(extents.size(), 1u);
  EXPECT_EQ(extents[0].wParam, (static_cast<WPARAM>(UnitsOf(form.window).width) << 10) | 30);
  EXPECT_TRUE(spy.To(GetDlgItem(form.window, 101), LB_SETHORIZONTALEXTENT).empty());
}

std::vector<BOOL> redrawn;
BOOL WINAPI RecordRedraw(HWND control, int bar, int least, int most, BOOL redraw) {
  redrawn.push_back(redraw);
  return SetScrollRange(control, bar, least, most, redraw);
}

TEST_F(ControlsTest, OfScrollBarsRunFrom0To100) {
  const ReplacedImport setting("SetScrollRange", reinterpret_cast<void*>(&RecordRedraw));
  redrawn.clear();
  const LoadResult form = LoadText("Main", WithControls("  SCROLLBAR 100, 0, 0, 90, 9\n"));
  int least = -1;
  int most = -1;
  ASSERT_TRUE(GetScrollRange(GetDlgItem(form.window, 100), SB_CTL, &least, &most));
  EXPECT_EQ(least, 0);
  EXPECT_EQ(most, 100);
  EXPECT_EQ(redrawn, std::vector<BOOL>{FALSE});
}

HWND WINAPI RefuseLists(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width,
                        int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID data) {
  if (std::strstr("LISTBOX,COMBOBOX,SCROLLBAR,STATIC", className) != nullptr) return nullptr;
  return CreateWindowExA(exStyle, className, text, style, x, y, width, height, parent, menu, instance, data);
}

TEST_F(ControlsTest, ThatWereRefusedAreGivenNothing) {
  const ReplacedImport create("CreateWindowExA", reinterpret_cast<void*>(&RefuseLists));
  const LoadResult form =
      LoadText("Main", WithControls("  CONTROL \"one\\ntwo\", 100, \"LISTBOX\", WS_HSCROLL, 0, 0, 90, 90\n"
                                    "  CONTROL \"one\\ntwo\", 101, \"COMBOBOX\", 0, 0, 0, 90, 90\n"
                                    "  SCROLLBAR 102, 0, 0, 90, 9\n  ICON \"\", 103, 0, 0, 9, 9\n"
                                    "  PUSHBUTTON \"a\", 104, 0, 0, 9, 9\n"));
  ASSERT_EQ(form.code, RTX_OK);
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(RecordOf(form.window)[row].handle, nullptr);
  EXPECT_EQ(RecordOf(form.window)[5].handle, GetDlgItem(form.window, 104));
}

// ---- Icons ----

// An icon file of one picture of 16 by 16 in two colours.
std::string IconFile() {
  std::string file("\0\0\1\0\1\0\x10\x10\2\0\1\0\1\0\xB0\0\0\0\x16\0\0\0", 22);
  file += std::string(
      "\x28\0\0\0\x10\0\0\0\x20\0\0\0\1\0\1\0\0\0\0\0\x80\0\0\0\0\0\0\0\0\0\0\0\2\0\0\0\2\0\0\0", 40);
  file += std::string("\0\0\0\0\xFF\xFF\xFF\0", 8);
  for (int row = 0; row < 16; ++row) file += std::string("\xAA\xAA\0\0", 4);
  for (int row = 0; row < 16; ++row) file += std::string("\0\0\0\0", 4);
  return file;
}

HICON IconOf(HWND window, int id) {
  return reinterpret_cast<HICON>(SendDlgItemMessageA(window, id, STM_GETICON, 0, 0));
}

class ControlIconsTest : public ControlsTest {
 protected:
  void SetUp() override {
    ControlsTest::SetUp();
    CreateDirectoryA("C:\\work\\icons", nullptr);
    WriteTestFile("icons\\two words.ico", IconFile());
    WriteTestFile("icons\\plain.ico", IconFile());
  }
  // A form in the folder of the icons.
  static LoadResult LoadIcon(const std::string& resource, const std::string& statement) {
    const std::string path =
        WriteTestFile("icons\\Main.rc", resource + WithControls("  " + statement + "\n"));
    LoadResult form{0, "", nullptr};
    char message[400] = "unset";
    form.code = Load(GetModuleHandleA(nullptr), "Main", path.c_str(), nullptr, &form.window, nullptr, message,
                     sizeof message);
    form.message = message;
    return form;
  }
};

TEST_F(ControlIconsTest, AreFoundInTheFileThatTheResourceNames) {
  for (const char* resource :
       {"Picture ICON \"plain.ico\"\n", "Picture ICON plain.ico\n",
        "picture icon \"C:\\\\work\\\\icons\\\\plain.ico\"\n",
        "Picture ICON \"C:\\work\\icons\\plain.ico\"\n", "Picture ICON DISCARDABLE \"  two words.ico \"\n",
        "Picture ICON \"..\\icons\\plain.ico\"\n", "Picture ICON \"\\work\\icons\\plain.ico\"\n"}) {
    SCOPED_TRACE(resource);
    for (const char* statement : {"ICON \"Picture\", 100, 0, 0, 9, 9", "ICON PICTURE, 100, 0, 0, 9, 9",
                                  "CONTROL \"Picture\", 100, \"static\", SS_ICON, 0, 0, 9, 9"}) {
      SCOPED_TRACE(statement);
      const LoadResult form = LoadIcon(resource, statement);
      ASSERT_EQ(form.message, "");
      EXPECT_NE(IconOf(form.window, 100), nullptr);
      // The text would be looked for as a resource of the program.
      EXPECT_EQ(TextOf(GetDlgItem(form.window, 100)), "");
      DestroyLibraryWindows();
    }
  }
}

TEST_F(ControlIconsTest, AreTakenAsTheirFirstFromTheProgramsInstance) {
  static std::string asked;
  static HINSTANCE instance;
  static UINT number;
  struct Recorder {
    static HICON WINAPI Extract(HINSTANCE module, LPCSTR file, UINT index) {
      asked = file;
      instance = module;
      number = index;
      return nullptr;
    }
  };
  const ReplacedImport extract("ExtractIconA", reinterpret_cast<void*>(&Recorder::Extract));
  number = 77;
  ASSERT_EQ(LoadIcon("Picture ICON \"plain.ico\"\n", "ICON Picture, 100, 0, 0, 9, 9").code, RTX_OK);
  EXPECT_EQ(asked, "C:\\work\\icons\\plain.ico");
  EXPECT_EQ(instance, GetModuleHandleA(nullptr));
  EXPECT_EQ(number, 0u);
}

// What can't be remembered couldn't be freed.
TEST_F(ControlIconsTest, AreNoneWhereTheWindowsCantKeepThem) {
  for (const int failAt : {1, 2}) {
    SCOPED_TRACE(failAt);
    const CountedImport<struct Keeping, BOOL, HWND, LPCSTR, HANDLE> keeping("SetPropA", failAt);
    const LoadResult form = LoadIcon("Picture ICON \"plain.ico\"\n", "ICON Picture, 100, 0, 0, 9, 9");
    ASSERT_EQ(form.message, "");
    EXPECT_TRUE(keeping.HasFailed());
    EXPECT_EQ(IconOf(form.window, 100), nullptr);
    DestroyLibraryWindows();
  }
}

TEST_F(ControlIconsTest, GoWithTheirWindow) {
  const LoadResult form = LoadIcon("Picture ICON \"plain.ico\"\n",
                                   "ICON Picture, 100, 0, 0, 9, 9\n  LTEXT \"a\", 101, 0, 0, 9, 9\n"
                                   "  ICON Picture, 102, 0, 0, 9, 9");
  ASSERT_EQ(form.message, "");
  ICONINFO info = {};
  HICON icons[] = {IconOf(form.window, 100), IconOf(form.window, 102)};
  for (HICON icon : icons) {
    ASSERT_TRUE(GetIconInfo(icon, &info));
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
  }
  DestroyLibraryWindows();
  for (HICON icon : icons) EXPECT_FALSE(GetIconInfo(icon, &info));
}

TEST_F(ControlIconsTest, AreNoneWithoutAText) {
  const LoadResult form = LoadIcon("Picture ICON \"plain.ico\"\n", "ICON \"\", 100, 0, 0, 9, 9");
  ASSERT_EQ(form.message, "");
  EXPECT_TRUE(GetDlgItem(form.window, 100));
  EXPECT_EQ(IconOf(form.window, 100), nullptr);
}

// What the file holds is not looked at further.
TEST_F(ControlIconsTest, AreNoneWhereTheFileIsMissingOrNoIconFile) {
  WriteTestFile("icons\\text.ico", "no icon at all");
  for (const char* resource : {"Picture ICON \"missing.ico\"\n", "Picture ICON \"text.ico\"\n"}) {
    SCOPED_TRACE(resource);
    const LoadResult form = LoadIcon(resource, "ICON Picture, 100, 0, 0, 9, 9");
    ASSERT_EQ(form.message, "");
    EXPECT_TRUE(GetDlgItem(form.window, 100));
    EXPECT_EQ(IconOf(form.window, 100), nullptr);
    DestroyLibraryWindows();
  }
}

TEST_F(ControlIconsTest, FailWith724WhereTheResourceNamesNoFile) {
  const char* message =
      "Dialog <Main>, Icon <100> contains an invalid filename, or is not in the resource file";
  for (const char* resource :
       {"", "Other ICON \"plain.ico\"\n", "Picture BITMAP \"plain.ico\"\n", "Picture ICON \"\"\n",
        "Picture ICON \"   \"\n", "Picture ICON \"C:plain.ico\"\n", "Picture ICON \"sub\\\"\n"}) {
    SCOPED_TRACE(resource);
    const LoadResult form = LoadIcon(resource, "ICON Picture, 100, 0, 0, 9, 9");
    EXPECT_EQ(form.code, RTX_ICON_FILE);
    EXPECT_EQ(form.message, message);
    EXPECT_TRUE(LibraryWindows().empty());
  }
  // Ahead of an id that is wrong as well.
  EXPECT_EQ(LoadIcon("", "ICON Picture, 0, 0, 0, 9, 9").message,
            "Dialog <Main>, Icon <0> contains an invalid filename, or is not in the resource file");
}

TEST_F(ControlIconsTest, AreNamedInTheMessageCutTo40) {
  const std::string word(45, 'w');
  EXPECT_EQ(LoadIcon("", "ICON Picture, " + word + ", 0, 0, 9, 9").message,
            "Dialog <Main>, Icon <" + word.substr(0, 40) +
                "> contains an invalid filename, or is not in the resource file");
}

TEST_F(ControlIconsTest, AreFoundWhateverTheCurrentFolderIs) {
  CreateDirectoryA("C:\\work\\elsewhere", nullptr);
  SetCurrentDirectoryA("C:\\work\\elsewhere");
  const LoadResult form = LoadIcon("Picture ICON \"plain.ico\"\n", "ICON Picture, 100, 0, 0, 9, 9");
  SetCurrentDirectoryA("C:\\work");
  ASSERT_EQ(form.message, "");
  EXPECT_NE(IconOf(form.window, 100), nullptr);
}

}  // namespace
}  // namespace brelt::test
