// What Load reports when it fails, and that nothing of the window is left.
#include <cstring>
#include <string>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/handles.h"
#include "tests/win32/support/imports.h"

namespace brelt::test {
namespace {

constexpr const char* kDialogClass = "Dialog.1.3.2207";

HMODULE Program() { return GetModuleHandleA(nullptr); }
HMODULE Library() { return GetModuleHandleA("brelt.dll"); }

class LoadFailureTest : public FormTest {
 protected:
  // Loads a window and expects a failure that leaves the output and the windows as they were.
  static void ExpectFailure(const char* name, const char* rcFile, int32_t code, const std::string& message) {
    SCOPED_TRACE(::testing::Message() << "name " << (name != nullptr ? name : "null") << ", file "
                                      << (rcFile != nullptr ? rcFile : "null"));
    const std::size_t windows = LibraryWindows().size();
    auto* unchanged = reinterpret_cast<HWND>(0x1234);
    HWND window = unchanged;
    char text[1100];
    std::memset(text, 'x', sizeof text);
    EXPECT_EQ(Load(Program(), name, rcFile, RecordEvent, &window, nullptr, text, sizeof text), code);
    EXPECT_EQ(std::string(text), message);
    EXPECT_EQ(window, unchanged);
    EXPECT_EQ(LibraryWindows().size(), windows);
    EXPECT_EQ(Log().All(), "");
    // The code comes without a message buffer, too.
    EXPECT_EQ(Load(Program(), name, rcFile, RecordEvent, &window, nullptr, nullptr, 100), code);
  }

  // The same for a DIALOG of this text.
  static void ExpectTextFailure(const std::string& text, int32_t code, const std::string& message) {
    SCOPED_TRACE(text);
    const std::string path = WriteTestFile("Main.rc", text);
    ExpectFailure("Main", path.c_str(), code, message);
  }
};

TEST_F(LoadFailureTest, Is721WithoutAName) {
  for (const char* name : {static_cast<const char*>(nullptr), ""}) {
    // Ahead of everything that is wrong with the file.
    ExpectFailure(name, "sub\\x.rc", RTX_NO_DIALOG, "Window object name is invalid.");
    ExpectFailure(name, nullptr, RTX_NO_DIALOG, "Window object name is invalid.");
  }
}

TEST_F(LoadFailureTest, Is704ForAFileNameThatIsntAccepted) {
  WriteTestFile("Main.rc", "Main DIALOG 0, 0, 9, 9\nBEGIN\nEND\n");
  CreateDirectoryA("C:\\work\\sub", nullptr);
  WriteTestFile("sub\\Main.rc", "Main DIALOG 0, 0, 9, 9\nBEGIN\nEND\n");
  for (const char* file : {"", "sub\\Main.rc", "\\work\\Main.rc", "C:Main.rc", "C:", "C:\\", ".\\Main.rc",
                           "..\\x.rc", "C:\\work\\", "\\\\server\\share\\Main.rc", "C:\\work\\\\Main.rc"}) {
    ExpectFailure("Main", file, RTX_RESOURCE_FILE,
                  std::string("Resource file <") + file +
                      "> should be a full path with a drive letter or just a filename");
  }
  ExpectFailure("Main", nullptr, RTX_RESOURCE_FILE,
                "Resource file <> should be a full path with a drive letter or just a filename");
}

// A file that isn't there has no path, and is reported by the name that the caller gave.
TEST_F(LoadFailureTest, Is704WithTheCallersNameForAFileThatIsMissing) {
  for (const char* file :
       {"missing.rc", "C:\\work\\missing.rc", "C:\\missing\\Main.rc", "Q:\\Main.rc", "C:\\work"}) {
    ExpectFailure("Main", file, RTX_RESOURCE_FILE,
                  std::string("Resource file <") + file +
                      "> should be a full path with a drive letter or just a filename");
  }
}

TEST_F(LoadFailureTest, ShowsAtMost260CharactersOfAFileName) {
  for (const std::size_t length : {259u, 260u, 261u, 900u}) {
    const std::string file(length, 'f');
    ExpectFailure("Main", file.c_str(), RTX_RESOURCE_FILE,
                  "Resource file <" + file.substr(0, 260) +
                      "> should be a full path with a drive letter or just a filename");
  }
}

TEST_F(LoadFailureTest, Is704WithThePathForAFileThatVanishesInBetween) {
  WriteTestFile("Main.rc", "Main DIALOG 0, 0, 9, 9\nBEGIN\nEND\n");
  const CountedImport<struct Opening, HANDLE, LPCSTR, DWORD, DWORD, LPSECURITY_ATTRIBUTES, DWORD, DWORD,
                      HANDLE>
      opening("CreateFileA", 2, INVALID_HANDLE_VALUE);
  HWND window = nullptr;
  char message[300];
  EXPECT_EQ(Load(Program(), "Main", "Main.rc", nullptr, &window, nullptr, message, sizeof message),
            RTX_RESOURCE_FILE);
  EXPECT_STREQ(message, "Resource file <C:\\work\\Main.rc> is invalid or missing.");
  EXPECT_EQ(window, nullptr);
}

TEST_F(LoadFailureTest, Is721WhereTheFileHasNoSuchDialog) {
  const std::string name41(41, 'n');
  struct Case {
    std::string text;
    std::string name;
  };
  const Case cases[] = {{"", "Main"},
                        {"Other DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", "Main"},
                        {"Main MENU\nBEGIN\nEND\n", "Main"},
                        {"Main ICON \"a.ico\"\nMain DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", "Main"},
                        {"Main DIALOGEX 0, 0, 9, 9\nBEGIN\nEND\n", "Main"},
                        // The file's own word is cut to 40 characters, and then isn't the name any more.
                        {name41 + " DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", name41}};
  for (const Case& c : cases) {
    const std::string path = WriteTestFile("Main.rc", c.text);
    ExpectFailure(c.name.c_str(), path.c_str(), RTX_NO_DIALOG,
                  "Resource file does not contain a DIALOG resource named: " + c.name);
  }
}

TEST_F(LoadFailureTest, CutsItsMessageAt1023Characters) {
  const std::string name(2000, 'n');
  const std::string path = WriteTestFile("Main.rc", "Other DIALOG 0, 0, 9, 9\nBEGIN\nEND\n");
  ExpectFailure(name.c_str(), path.c_str(), RTX_NO_DIALOG,
                ("Resource file does not contain a DIALOG resource named: " + name).substr(0, 1023));
}

TEST_F(LoadFailureTest, Is725WithTheParsersMessage) {
  ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nEND\n", RTX_DIALOG_SYNTAX,
                    "Dialog <Main>, BEGIN is expected instead of <END>");
  ExpectTextFailure(
      "Main DIALOG 0, 0, 9, 9\nBEGIN\n  LTEXT \"a\", 100, 1, 2, 3\nEND\n", RTX_DIALOG_SYNTAX,
      "Dialog <Main>, Control Type <LTEXT>, Control i/d <100>, Statement 1 has incorrect syntax");
}

TEST_F(LoadFailureTest, MakesNoWindowWhereTheFileIsWrong) {
  const CountedImport<struct Creating, HWND, DWORD, LPCSTR, LPCSTR, DWORD, int, int, int, int, HWND, HMENU,
                      HINSTANCE, LPVOID>
      creating("CreateWindowExA");
  ExpectFailure("Main", "missing.rc", RTX_RESOURCE_FILE,
                "Resource file <missing.rc> should be a full path with a drive letter or just a filename");
  ExpectTextFailure("Other DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", RTX_NO_DIALOG,
                    "Resource file does not contain a DIALOG resource named: Main");
  ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nEND\n", RTX_DIALOG_SYNTAX,
                    "Dialog <Main>, BEGIN is expected instead of <END>");
  ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nCLASS \"x\"\nBEGIN\nEND\n", RTX_CLASS,
                    "Class 'x' is not allowed for window: Main");
  EXPECT_EQ(creating.calls(), 0);
}

std::string Controls(int count) {
  std::string text = "Main DIALOG 0, 0, 9, 9\nBEGIN\n";
  for (int i = 0; i < count; ++i) text += "  LTEXT \"a\", " + std::to_string(100 + i) + ", 0, 0, 9, 9\n";
  return text + "END\n";
}

TEST_F(LoadFailureTest, Is725ForMoreThan255Controls) {
  ExpectTextFailure(Controls(256), RTX_DIALOG_SYNTAX,
                    "Dialog <Main>, too many controls, maximum number is 255");
  const LoadResult form = LoadText("Main", Controls(255));
  ASSERT_EQ(form.code, RTX_OK);
  EXPECT_TRUE(IsWindow(GetDlgItem(form.window, 100 + 254)));
}

TEST_F(LoadFailureTest, Is728WithTheClassAsTheFileWritesItForAClassThatIsntAllowed) {
  for (const char* word : {"Other", "oThEr Class", "Dialogs", "Edit", "Dialog.1.3.2207", " Dialog"}) {
    ExpectTextFailure(std::string("Main DIALOG 0, 0, 9, 9\nCLASS \"") + word + "\"\nBEGIN\nEND\n", RTX_CLASS,
                      std::string("Class '") + word + "' is not allowed for window: Main");
  }
}

TEST_F(LoadFailureTest, Is723ForAWordThatNothingDefinesWhateverBecameOfTheHeader) {
  const char* message = "Dialog <Main>, Control Type <LTEXT>, Control i/d <IDC_A> is undefined";
  const std::string dialog = "Main DIALOG 0, 0, 9, 9\nBEGIN\n  LTEXT \"a\", IDC_A, 0, 0, 9, 9\nEND\n";
  ExpectTextFailure(dialog, RTX_UNDEFINED_ID, message);
  // A header that is missing is only found out by the word.
  ExpectTextFailure("1 TEXTINCLUDE\nBEGIN\n  \"missing.h\\0\"\nEND\n" + dialog, RTX_UNDEFINED_ID, message);
  const LoadResult form = LoadText("Main",
                                   "1 TEXTINCLUDE\nBEGIN\n  \"missing.h\\0\"\nEND\n"
                                   "Main DIALOG 0, 0, 9, 9\nBEGIN\n  LTEXT \"a\", 100, 0, 0, 9, 9\nEND\n");
  EXPECT_EQ(form.code, RTX_OK);
}

TEST_F(LoadFailureTest, OfTheMenuIsThatOfItsReader) {
  const std::string dialog = "Main DIALOG 0, 0, 9, 9\nMENU Bar\nBEGIN\nEND\n";
  ExpectTextFailure(dialog, RTX_NO_MENU, "Menu <Bar>, cannot be found in resource file");
  ExpectTextFailure(dialog + "Bar MENU\nBEGIN\n  MENUITEM \"a\" 200\nEND\n", RTX_MENU_SYNTAX,
                    "Menu <Bar>, Comma expected (Line 3, col 16)");
  ExpectTextFailure(dialog + "Bar MENU\nBEGIN\n  MENUITEM \"a\", idm_a\nEND\n", RTX_UNDEFINED_ID,
                    "Menu <Bar>, Menu command identifier not defined: IDM_A (Line 3, col 17)");
}

// ---- Classes ----

TEST_F(LoadFailureTest, Is728WhenTheClassCantBeRegistered) {
  UnregisterClassA(kDialogClass, Library());
  {
    const CountedImport<struct Registering, ATOM, const WNDCLASSEXA*> registering("RegisterClassExA", -1);
    ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", RTX_CLASS,
                      std::string("Could not create class ") + kDialogClass);
  }
  EXPECT_EQ(LoadDialog("Main", "").code, RTX_OK);
}

TEST_F(LoadFailureTest, Is728WhenTheClassIsSomebodyElses) {
  UnregisterClassA(kDialogClass, Library());
  {
    const TestClass taken(kDialogClass, 40, CS_GLOBALCLASS);
    ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", RTX_CLASS,
                      std::string("Could not create class ") + kDialogClass);
  }
  EXPECT_EQ(LoadDialog("Main", "").code, RTX_OK);
}

void (*spoilClass)(WNDCLASSEXA& info);
BOOL WINAPI AnswerSpoilt(HINSTANCE instance, LPCSTR name, LPWNDCLASSEXA info) {
  if (!GetClassInfoExA(instance, name, info)) return FALSE;
  spoilClass(*info);
  return TRUE;
}

TEST_F(LoadFailureTest, Is728WhenTheClassDiffersInModuleProcedureOrStyle) {
  ASSERT_EQ(LoadDialog("Other", "").code, RTX_OK);
  DestroyLibraryWindows();
  Log().Clear();
  const ReplacedImport asking("GetClassInfoExA", reinterpret_cast<void*>(&AnswerSpoilt));
  struct Case {
    const char* what;
    void (*spoil)(WNDCLASSEXA& info);
  };
  for (const Case& c : {Case{"module", [](WNDCLASSEXA& info) { info.hInstance = Program(); }},
                        Case{"procedure", [](WNDCLASSEXA& info) { info.lpfnWndProc = DefWindowProcA; }},
                        Case{"style", [](WNDCLASSEXA& info) { info.style &= ~UINT{CS_GLOBALCLASS}; }}}) {
    SCOPED_TRACE(c.what);
    spoilClass = c.spoil;
    ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", RTX_CLASS,
                      std::string("Could not create class ") + kDialogClass);
  }
}

TEST_F(LoadFailureTest, StandsAheadOfTheSecondOwner) {
  ASSERT_EQ(LoadDialog("Owner", "", "STYLE WS_CAPTION\n").code, RTX_OK);
  Log().Clear();
  const CountedImport<struct Asking, BOOL, HINSTANCE, LPCSTR, LPWNDCLASSEXA> asking("GetClassInfoExA", -1);
  ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nSTYLE WS_CAPTION\nBEGIN\nEND\n", RTX_CLASS,
                    std::string("Could not create class ") + kDialogClass);
}

TEST_F(LoadFailureTest, Is728WhenTheWindowCantBeCreated) {
  const CountedImport<struct Creating, HWND, DWORD, LPCSTR, LPCSTR, DWORD, int, int, int, int, HWND, HMENU,
                      HINSTANCE, LPVOID>
      creating("CreateWindowExA", -1);
  ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nBEGIN\n  LTEXT \"a\", 100, 0, 0, 9, 9\nEND\n", RTX_CLASS,
                    "Could not create window Main, class failed to register or not enough resources");
  EXPECT_EQ(creating.calls(), 2);  // one for each of the two loads: no control was tried
}

// ---- Several failures ----

TEST_F(LoadFailureTest, IsTheFirstOfSeveral) {
  const std::string controls =
      "BEGIN\n  LTEXT \"a\", IDC_A, 0, 0, 9, 9\n  LTEXT \"b\", IDC_B, 0, 0, 9, 9\nEND\n";
  // The first control, ahead of the second and of the menu.
  ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nMENU Bar\n" + controls, RTX_UNDEFINED_ID,
                    "Dialog <Main>, Control Type <LTEXT>, Control i/d <IDC_A> is undefined");
  // The class, ahead of all controls.
  ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nCLASS \"x\"\nMENU Bar\n" + controls, RTX_CLASS,
                    "Class 'x' is not allowed for window: Main");
  ASSERT_EQ(LoadDialog("Owner", "", "STYLE WS_CAPTION\n").code, RTX_OK);
  Log().Clear();
  ExpectTextFailure("Main DIALOG 0, 0, 9, 9\nSTYLE WS_CAPTION\n" + controls, RTX_SECOND_OWNER,
                    "Only allowed one top level owner window");
}

TEST_F(LoadFailureTest, TakesTheWindowAwayAgainWithAllThatItHad) {
  const std::string text =
      "Main DIALOG 0, 0, 9, 9\nMENU Bar\nBEGIN\n"
      "  LTEXT \"a\", 100, 0, 0, 9, 9\n"
      "  CONTROL \"\", 101, \"Shape\", 0, 0, 0, 9, 9\n"
      "  LISTBOX 102, 0, 0, 9, 9\n"
      "END\n"
      "Bar MENU\nBEGIN\n  POPUP \"a\"\n  BEGIN\n    MENUITEM \"b\", IDM_UNKNOWN\n  END\nEND\n";
  const auto fail = [&] { EXPECT_EQ(LoadText("Main", text).code, RTX_UNDEFINED_ID); };
  fail();
  const HandleCount before = CountHandles();
  for (int i = 0; i < 5; ++i) fail();
  EXPECT_EQ(ToText(CountHandles()), ToText(before));
  EXPECT_EQ(GetModuleHandleA("SHAPE.1.3.2207.dll"), nullptr);
}

}  // namespace
}  // namespace brelt::test
