#include "frame/winobject.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "include/brelt.h"
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

// ---- Slots ----

TEST(Slots, StandAtTheirNumbers) {
  EXPECT_EQ(kSlotBytes, 40);
  EXPECT_EQ(SLOT_RECORD, 0);
  EXPECT_EQ(SLOT_ARRAYVALUES, 1);
  EXPECT_EQ(SLOT_CANVAS, 2);
  EXPECT_EQ(SLOT_CANVASANCHOR, 3);
  EXPECT_EQ(SLOT_LASTFOCUS, 4);
  EXPECT_EQ(SLOT_PREVACTIVE, 5);
  EXPECT_EQ(SLOT_ACCELTABLE, 6);
  EXPECT_EQ(SLOT_FUNCPTR, 7);
  EXPECT_EQ(SLOT_FLAGS, 8);
  EXPECT_EQ(SLOT_EDITPROC, 9);
}

TEST(Slots, HaveTheirFlagBits) {
  EXPECT_EQ(kEditRichVersionMask, 0xFu);
  EXPECT_EQ(EWS_ALLOWOVERWRITE, 0x10u);
  EXPECT_EQ(EWS_AUTOINDENT, 0x20u);
  EXPECT_EQ(EWS_HILITE, 0x40u);
  EXPECT_EQ(EWS_READONLY, 0x80u);
  EXPECT_EQ(EWS_SELECTALL, 0x100u);
  EXPECT_EQ(EWS_STATUSBAR, 0x200u);
  EXPECT_EQ(EWS_TABSHIFT, 0x400u);
  EXPECT_EQ(EWS_NUMBERBAR, 0x1000u);
  EXPECT_EQ(kEditOverwriteOn, 0x2000u);
  EXPECT_EQ(WF_MODAL, 0x10000u);
  EXPECT_EQ(WF_CANVAS, 0x40000u);
  EXPECT_EQ(WF_CANVASYUP, 0x80000u);
}

TEST(Slots, AreReadAndWrittenAtFourTimesTheirNumber) {
  const TestClass own("brelt.forty", 40);
  const TestWindow window(own.name());
  for (int slot = 0; slot < 10; ++slot) {
    SCOPED_TRACE(slot);
    EXPECT_EQ(ReadSlot(window.get(), slot), 0);
    WriteSlot(window.get(), slot, 1000 + slot);
    EXPECT_EQ(GetWindowLongA(window.get(), 4 * slot), 1000 + slot);
    EXPECT_EQ(ReadSlot(window.get(), slot), 1000 + slot);
  }
}

TEST(Slots, OfForeignWindowsAreZeroAndAreNeverWritten) {
  for (const int extra : {0, 4, 36, 44, 80}) {
    SCOPED_TRACE(extra);
    const TestClass foreign("brelt.foreign", extra);
    const TestWindow window(foreign.name());
    if (extra >= 4) SetWindowLongA(window.get(), 0, 77);
    EXPECT_EQ(ReadSlot(window.get(), 0), 0);
    WriteSlot(window.get(), 0, 88);
    EXPECT_EQ(GetWindowLongA(window.get(), 0), extra >= 4 ? 77 : 0);
  }
}

TEST(Slots, OfWindowsThatArentThereAreZero) {
  for (const UINT_PTR value : {UINT_PTR{0}, UINT_PTR{1}, UINT_PTR{0xDEADBEEF}}) {
    const auto window = reinterpret_cast<HWND>(value);
    EXPECT_EQ(ReadSlot(window, 0), 0);
    WriteSlot(window, 0, 1);
  }
}

// What lies outside the ten would be the window's own words, such as its style.
TEST(Slots, OutsideTheTenAreNotWritten) {
  const TestClass own("brelt.forty", 40);
  const TestWindow window(own.name());
  const LONG style = GetWindowLongA(window.get(), GWL_STYLE);
  const LONG id = GetWindowLongA(window.get(), GWL_ID);
  for (const int slot : {-1, -3, -4, -5, 10, 11, 0x40000000, INT32_MIN, INT32_MAX}) {
    SCOPED_TRACE(slot);
    WriteSlot(window.get(), slot, 0x5A5A);
    EXPECT_EQ(GetWindowLongA(window.get(), GWL_STYLE), style);
    EXPECT_EQ(GetWindowLongA(window.get(), GWL_ID), id);
    for (int index = 0; index < 40; index += 4) EXPECT_EQ(GetWindowLongA(window.get(), index), 0);
  }
}

// A class whose registration was changed under its windows tells the two tests apart: the one reads the
// window's class word, the other asks for the registration under the window's own instance.
TEST(Slots, AreReadByTheClassWordAndWrittenByTheRegistration) {
  const TestClass own("brelt.forty", 40);
  const TestWindow window(own.name());
  SetWindowLongA(window.get(), 0, 5);
  SetWindowLongA(window.get(), GWL_HINSTANCE, reinterpret_cast<LONG>(GetModuleHandleA("gdi32.dll")));
  EXPECT_EQ(ReadSlot(window.get(), 0), 5);
  WriteSlot(window.get(), 0, 6);
  EXPECT_EQ(GetWindowLongA(window.get(), 0), 5);
}

TEST(WindowRecord, HasRowsOf47WordsInTheirFixedPlaces) {
  struct Field {
    const char* name;
    std::size_t offset;
    std::size_t word;
  };
  const Field fields[] = {{"name", offsetof(WindowRow, name), 0},
                          {"id", offsetof(WindowRow, id), 11},
                          {"handle", offsetof(WindowRow, handle), 12},
                          {"module", offsetof(WindowRow, module), 13},
                          {"maxLength", offsetof(WindowRow, maxLength), 14},
                          {"font", offsetof(WindowRow, font), 15},
                          {"drawFont", offsetof(WindowRow, drawFont), 16},
                          {"foreColour", offsetof(WindowRow, foreColour), 17},
                          {"backColour", offsetof(WindowRow, backColour), 18},
                          {"currentX", offsetof(WindowRow, currentX), 19},
                          {"currentY", offsetof(WindowRow, currentY), 20},
                          {"canvasX", offsetof(WindowRow, canvasX), 21},
                          {"canvasY", offsetof(WindowRow, canvasY), 22},
                          {"defaultId", offsetof(WindowRow, defaultId), 23},
                          {"systemMinMax", offsetof(WindowRow, systemMinMax), 24},
                          {"minPosition", offsetof(WindowRow, minPosition), 34},
                          {"maxPosition", offsetof(WindowRow, maxPosition), 38},
                          {"resizePending", offsetof(WindowRow, resizePending), 42},
                          {"clientWidth", offsetof(WindowRow, clientWidth), 43},
                          {"clientHeight", offsetof(WindowRow, clientHeight), 44},
                          {"loaded", offsetof(WindowRow, loaded), 45},
                          {"quietEdit", offsetof(WindowRow, quietEdit), 46}};
  for (const Field& field : fields) EXPECT_EQ(field.offset, field.word * 4) << field.name;
  EXPECT_EQ(sizeof(WindowRow), 47u * 4);
  EXPECT_EQ(kDialogRows, 256);
  EXPECT_EQ(decltype(WindowRow::name)::kCapacity, 40);
}

// ---- Patterns ----

TEST(TextMatches, ComparesWholeTailOrBeginning) {
  struct Case {
    const char* pattern;
    const char* text;
    bool exact;       // mode 0
    bool ignoreCase;  // mode 1
  };
  const Case cases[] = {
      {"Main", "Main", true, true},    {"Main", "main", false, true},
      {"Main", "Mai", false, false},   {"Main", "Mains", false, false},
      {"*in", "Main", true, true},     {"*IN", "Main", false, true},
      {"*Main", "Main", true, true},   {"*xMain", "Main", false, false},
      {"*", "Main", true, true},       {"*", "", true, true},
      {"Ma*", "Main", true, true},     {"mA*", "Main", false, true},
      {"Main*", "Main", true, true},   {"Mainx*", "Main", false, false},
      {"*ain*", "Main", false, false}, {"*ain*", "xain*", true, true},
      {"*AIN*", "xain*", false, true}, {"**", "x*", true, true},
      {"**", "x", false, false},       {"M*n", "Main", false, false},
      {"M*n", "M*n", true, true},      {"", "", true, true},
      {"", "x", false, false},         {"x", "", false, false},
      {"\xE4", "\xE4", true, true},    {"\xE4", "\xC4", false, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.pattern) + " on " + c.text);
    EXPECT_EQ(TextMatches(c.pattern, c.text, 0), c.exact);
    EXPECT_EQ(TextMatches(c.pattern, c.text, 1), c.ignoreCase);
    for (const int mode : {2, -1, 100}) EXPECT_EQ(TextMatches(c.pattern, c.text, mode), c.exact);
  }
}

TEST(TextMatches, IsFalseForNullOnEitherSide) {
  for (const int mode : {0, 1, 2}) {
    EXPECT_FALSE(TextMatches(nullptr, "x", mode));
    EXPECT_FALSE(TextMatches("*", nullptr, mode));
    EXPECT_FALSE(TextMatches(nullptr, nullptr, mode));
  }
}

TEST(ClassMatches, IgnoresCaseAndTakesPatterns) {
  const TestClass family("Shape.1.3.2207");
  const TestWindow window(family.name());
  for (const char* pattern : {"Shape.1.3.2207", "SHAPE.1.3.2207", "Shape.*", "shape.*", "*2207", "*.1.3.2207",
                              "*Shape.1.3.2207", "*"}) {
    EXPECT_TRUE(ClassMatches(window.get(), pattern)) << pattern;
  }
  for (const char* pattern :
       {"Shape", "Shapes.*", "*Shape", "*xShape.1.3.2207", "Shape.1.3.2207x", "*Shape.*", ""}) {
    EXPECT_FALSE(ClassMatches(window.get(), pattern)) << pattern;
  }
  EXPECT_FALSE(ClassMatches(window.get(), nullptr));
}

TEST(ClassMatches, ASingleStarMatchesEveryWindowAndNoneThatIsGone) {
  HWND gone = nullptr;
  {
    const TestWindow window("STATIC");
    gone = window.get();
    EXPECT_TRUE(ClassMatches(gone, "*"));
    EXPECT_FALSE(ClassMatches(gone, ""));
  }
  EXPECT_FALSE(ClassMatches(gone, "*"));
  EXPECT_FALSE(ClassMatches(nullptr, "*"));
  EXPECT_TRUE(ClassMatches(GetDesktopWindow(), "*"));
}

TEST(ClassMatches, ReadsTheFirst32CharactersOfAClassName) {
  const std::string first32 = "abcdefghijklmnopqrstuvwxyz012345";
  const TestClass longer(first32 + "6789");
  const TestWindow window(longer.name());
  EXPECT_EQ(ClassNameOf(window.get()).view(), first32);
  EXPECT_TRUE(ClassMatches(window.get(), first32.c_str()));
  EXPECT_TRUE(ClassMatches(window.get(), "*2345"));
  EXPECT_FALSE(ClassMatches(window.get(), "*6789"));
  EXPECT_FALSE(ClassMatches(window.get(), (first32 + "6789").c_str()));
}

// ---- Names ----

// A window with a record of its own making.
class NamedWindow {
 public:
  NamedWindow(const TestClass& own, const std::string& name, DWORD style = WS_POPUP, HWND parent = nullptr)
      : window_(own.name(), "", style, parent) {
    row_.name.Assign(name);
    WritePointer(window_.get(), SLOT_RECORD, &row_);
  }

  HWND get() const { return window_.get(); }

 private:
  WindowRow row_ = {};
  TestWindow window_;
};

TEST(ResolveName, FindsAWindowWhateverTheCaseOfItsName) {
  const TestClass own("brelt.forty", 40);
  const NamedWindow window(own, "Main");
  for (const char* name : {"Main", "main", "MAIN"}) EXPECT_EQ(ResolveName(name), window.get()) << name;
  for (const char* name : {"Mai", "Mains", "", "*", "Main*", " Main"})
    EXPECT_EQ(ResolveName(name), nullptr) << name;
  EXPECT_EQ(ResolveName(nullptr), nullptr);
}

TEST(ResolveName, TakesTheFirst40CharactersOfALongerName) {
  const TestClass own("brelt.forty", 40);
  const std::string name40(40, 'n');
  const NamedWindow window(own, name40);
  EXPECT_EQ(ResolveName(name40.c_str()), window.get());
  EXPECT_EQ(ResolveName((name40 + "x").c_str()), window.get());
  EXPECT_EQ(ResolveName((name40 + std::string(500, 'y')).c_str()), window.get());
  EXPECT_EQ(ResolveName(name40.substr(1).c_str()), nullptr);
}

TEST(ResolveName, PassesOverWindowsWithoutARecord) {
  const TestClass own("brelt.forty", 40);
  const TestClass foreign("brelt.foreign", 44);
  const NamedWindow window(own, "Main");
  const TestWindow without(own.name());  // as a box is
  const TestWindow other(foreign.name());
  SetWindowLongA(other.get(), 0, 0x10);  // no record of anybody's, and never looked at
  EXPECT_EQ(ResolveName("Main"), window.get());
  EXPECT_EQ(ResolveName(""), nullptr);
}

TEST(ResolveName, NeverFindsAChildWindow) {
  const TestClass own("brelt.forty", 40);
  const NamedWindow parent(own, "Parent");
  const NamedWindow child(own, "Child", WS_CHILD, parent.get());
  EXPECT_EQ(ResolveName("Child"), nullptr);
}

BOOL CALLBACK FindFirst(HWND window, LPARAM context) {
  auto* found = reinterpret_cast<HWND*>(context);
  if (ReadSlot(window, SLOT_RECORD) == 0) return TRUE;
  *found = window;
  return FALSE;
}

TEST(ResolveName, GivesTheFirstOfTwoWindowsInThePlatformsOrder) {
  const TestClass own("brelt.forty", 40);
  const NamedWindow one(own, "Main");
  const NamedWindow two(own, "Main");
  for (HWND top : {one.get(), two.get()}) {
    SetWindowPos(top, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    HWND first = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindFirst, reinterpret_cast<LPARAM>(&first));
    EXPECT_EQ(ResolveName("Main"), first);
  }
}

DWORD WINAPI ResolveMain(LPVOID) { return ResolveName("Main") == nullptr ? 1 : 2; }

TEST(ResolveName, SeesTheCallingThreadsWindowsOnly) {
  const TestClass own("brelt.forty", 40);
  const NamedWindow window(own, "Main");
  HANDLE thread = CreateThread(nullptr, 0, ResolveMain, nullptr, 0, nullptr);
  ASSERT_EQ(WaitForSingleObject(thread, 30000), WAIT_OBJECT_0);
  DWORD result = 0;
  GetExitCodeThread(thread, &result);
  CloseHandle(thread);
  EXPECT_EQ(result, 1u);
  EXPECT_EQ(ResolveName("Main"), window.get());
}

TEST(EnumerationCallbacks, EndTheEnumerationWithoutAContext) {
  const TestWindow window("STATIC");
  EXPECT_FALSE(Enum_GetOurWindowHandle(window.get(), 0));
  EXPECT_FALSE(Enum_FindWindowHandle(window.get(), 0));
  EXPECT_FALSE(Enum_FindOverlappedWindow(window.get(), 0));
  EXPECT_FALSE(Enum_AppWindowsExist(window.get(), 0));
  EXPECT_FALSE(Enum_GetEnabledWindows(window.get(), 0));
}

// ---- Rows ----

class RowTest : public FormTest {};

TEST_F(RowTest, IsFoundByTheControlsHandle) {
  const LoadResult form = LoadDialog("Main",
                                     "  LTEXT \"a\", 100, 0, 0, 9, 9\n"
                                     "  EDITTEXT 101, 0, 9, 9, 9");
  ASSERT_EQ(form.code, RTX_OK);
  WindowRecord record = RecordOf(form.window);
  EXPECT_EQ(RowOfControl(form.window, GetDlgItem(form.window, 100)), &record[1]);
  EXPECT_EQ(RowOfControl(form.window, GetDlgItem(form.window, 101)), &record[2]);
  EXPECT_EQ(RowOfControl(form.window, form.window), nullptr);  // row 0 is no control's
  EXPECT_EQ(RowOfControl(form.window, nullptr), nullptr);
  EXPECT_EQ(RowOfControl(nullptr, GetDlgItem(form.window, 100)), nullptr);
}

TEST_F(RowTest, IsNotLookedForInTheRecordOfAnotherClass) {
  const TestClass own("brelt.forty", 40);
  const NamedWindow window(own, "Short");  // a record of one row, as an edit window has
  const TestWindow control("STATIC", "", WS_CHILD, window.get());
  EXPECT_EQ(RowOfControl(window.get(), control.get()), nullptr);
}

// ---- Kinds ----

std::string KindByText(const char* className, std::uint32_t style) {
  char kind[41] = "unset";
  const bool found = ObjectTypeOf(nullptr, className, style, {kind, sizeof kind});
  EXPECT_EQ(found, *kind != '\0');
  return kind;
}

std::string KindOfWindow(const char* className, DWORD style) {
  const TestWindow parent("STATIC");
  const TestWindow control(className, "", WS_CHILD | style, parent.get());
  // A button that is created with type 8 is changed into a push button by the platform.
  SetWindowLongA(control.get(), GWL_STYLE, static_cast<LONG>(WS_CHILD | style));
  char kind[41] = "unset";
  // The class and style given beside a window don't count.
  EXPECT_TRUE(ObjectTypeOf(control.get(), "EDIT", 0, {kind, sizeof kind}));
  return kind;
}

TEST(ObjectTypeOf, GoesByClassAndTheLowFourBitsOfTheStyle) {
  struct Case {
    const char* className;
    const char* kinds[16];  // by the low four bits
  };
  const Case cases[] = {
      {"BUTTON",
       {"Pushbutton", "Pushbutton", "Checkbox", "Checkbox", "Radiobutton", "Checkbox", "Checkbox", "Groupbox",
        "Button", "Radiobutton", "Button", "Pushbutton", "Button", "Button", "Button", "Button"}},
      {"STATIC",
       {"Label", "Label", "Label", "Icon", "Label", "Label", "Label", "Label", "Label", "Label", "Static",
        "Label", "Label", "Static", "Static", "Static"}},
  };
  for (const Case& c : cases) {
    for (std::uint32_t type = 0; type < 16; ++type) {
      SCOPED_TRACE(std::string(c.className) + " " + std::to_string(type));
      EXPECT_EQ(KindByText(c.className, type), c.kinds[type]);
      EXPECT_EQ(KindByText(c.className, 0x50010FF0 | type), c.kinds[type]);
      EXPECT_EQ(KindOfWindow(c.className, type), c.kinds[type]);
    }
  }
}

TEST(ObjectTypeOf, OfTheOtherStandardClassesIsOneForAllStyles) {
  const char* const classes[][2] = {
      {"COMBOBOX", "Combobox"}, {"EDIT", "Edit"}, {"LISTBOX", "Listbox"}, {"SCROLLBAR", "Scrollbar"}};
  for (const auto& [className, kind] : classes) {
    for (std::uint32_t type = 0; type < 16; ++type) EXPECT_EQ(KindByText(className, type), kind);
    EXPECT_EQ(KindOfWindow(className, 0), kind);
  }
}

TEST(ObjectTypeOf, IsTheClassUpToItsFirstPointForAnyOther) {
  const char* const cases[][2] = {{"ICONLIST.1.3.2207", "Iconlist"},
                                  {"bitmapbutton.1", "Bitmapbutton"},
                                  {"ShApE.x.y", "Shape"},
                                  {"Plain", "Plain"},
                                  {"UPPER", "Upper"},
                                  {".x", ""},
                                  {"", ""},
                                  {"button", "Pushbutton"},
                                  {"Static.", "Static"},
                                  {"BUTTONS", "Buttons"}};
  for (const auto& [className, kind] : cases) EXPECT_EQ(KindByText(className, 0), kind) << className;
  EXPECT_EQ(KindByText(nullptr, 0), "");
  const TestClass own("PROGRESSBAR.1.3.2207");
  EXPECT_EQ(KindOfWindow(own.name(), 0), "Progressbar");
}

TEST(ObjectTypeOf, CutsTheKindToTheBuffer) {
  char kind[] = "unset";
  EXPECT_TRUE(ObjectTypeOf(nullptr, "LISTBOX", 0, {kind, 4}));
  EXPECT_STREQ(kind, "Lis");
  EXPECT_EQ(kind[4], 't');
  EXPECT_FALSE(ObjectTypeOf(nullptr, "LISTBOX", 0, {kind, 1}));
  EXPECT_STREQ(kind, "");
}

}  // namespace
}  // namespace brelt::test
