// Controls that live in modules of their own.
#include <cstring>
#include <string>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/record.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

// A bitmap file of 2 by 2 points in 24 bits, and its packed bitmap.
std::string PackedBitmap() {
  return std::string("\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x10\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0",
                     40) +
         std::string("\xFF\0\0\0\xFF\0\0\0\0\0\xFF\0\0\0\0\0", 16);
}
std::string BitmapFile() { return std::string("BM\x46\0\0\0\0\0\0\0\x36\0\0\0", 14) + PackedBitmap(); }

class CustomControlsTest : public FormTest {
 protected:
  static std::string Control(const std::string& className, const std::string& text = "") {
    return "  CONTROL \"" + text + "\", 100, \"" + className + "\", 0, 0, 0, 90, 90\n";
  }
  static LoadResult LoadControl(const std::string& className, const std::string& text = "") {
    return LoadDialog("Main", Control(className, text));
  }
  static LRESULT Send(const LoadResult& form, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendDlgItemMessageA(form.window, 100, message, wParam, lParam);
  }
};

TEST_F(CustomControlsTest, OfEachFamilyLoadTheirModuleForAsLongAsTheWindowLives) {
  for (const char* family : {"Bitmapbutton", "ICONLIST", "image", "ProgressBar", "Shape"}) {
    SCOPED_TRACE(family);
    const std::string module = std::string(family) + ".1.3.2207.dll";
    EXPECT_EQ(GetModuleHandleA(module.c_str()), nullptr);
    const LoadResult form = LoadControl(family);
    ASSERT_EQ(form.message, "");
    const WindowRow& row = RecordOf(form.window)[1];
    EXPECT_EQ(row.module, GetModuleHandleA(module.c_str()));
    EXPECT_NE(row.module, nullptr);
    EXPECT_EQ(row.handle, GetDlgItem(form.window, 100));
    char className[64] = "";
    GetClassNameA(row.handle, className, sizeof className);
    EXPECT_STRCASEEQ(className, (std::string(family) + ".1.3.2207").c_str());
    DestroyLibraryWindows();
    EXPECT_EQ(GetModuleHandleA(module.c_str()), nullptr);
  }
}

TEST_F(CustomControlsTest, OfOneFamilyHoldOneLoadOfTheModuleEach) {
  const LoadResult form = LoadDialog("Main",
                                     "  CONTROL \"\", 100, \"Shape\", 0, 0, 0, 9, 9\n"
                                     "  CONTROL \"\", 101, \"Shape\", 0, 0, 0, 9, 9\n");
  ASSERT_EQ(form.code, RTX_OK);
  const HMODULE module = GetModuleHandleA("SHAPE.1.3.2207.dll");
  EXPECT_EQ(RecordOf(form.window)[1].module, module);
  EXPECT_EQ(RecordOf(form.window)[2].module, module);
  EXPECT_TRUE(FreeLibrary(module));
  EXPECT_EQ(GetModuleHandleA("SHAPE.1.3.2207.dll"), module);
  LoadLibraryA((ProgramFolder() + "SHAPE.1.3.2207.dll").c_str());
}

// ---- What the families answer ----

TEST_F(CustomControlsTest, OfTheFamiliesWithAPictureReadItFromTheFilesFolder) {
  CreateDirectoryA("C:\\work\\pictures", nullptr);
  CreateDirectoryA("C:\\work\\elsewhere", nullptr);
  WriteTestFile("pictures\\a.bmp", BitmapFile());
  struct Case {
    const char* text;
    const char* windowText;
    const char* hint;  // of a Bitmapbutton
  };
  const Case cases[] = {
      {"a.bmp", "C:\\work\\pictures\\a.bmp", ""},
      {"  a.bmp  \\nA hint", "C:\\work\\pictures\\a.bmp\nA hint", "A hint"},
      {"..\\\\pictures\\\\a.bmp\\n", "C:\\work\\pictures\\..\\pictures\\a.bmp\n", ""},
      {"\\\\work\\\\pictures\\\\a.bmp\\nOne\\nTwo", "C:\\work\\pictures\\a.bmp\nOne\nTwo", "One\nTwo"},
      {"C:\\\\work\\\\pictures\\\\a.bmp", "C:\\work\\pictures\\a.bmp", ""},
  };
  SetCurrentDirectoryA("C:\\work\\elsewhere");
  for (const char* family : {"Bitmapbutton", "Image"}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(family) + " " + c.text);
      const std::string path = WriteTestFile(
          "pictures\\Main.rc", "Main DIALOG 0, 0, 9, 9\nBEGIN\n" + Control(family, c.text) + "END\n");
      LoadResult form{0, "", nullptr};
      form.code =
          Load(GetModuleHandleA(nullptr), "Main", path.c_str(), nullptr, &form.window, nullptr, nullptr, 0);
      ASSERT_EQ(form.code, RTX_OK);
      EXPECT_EQ(TextOf(GetDlgItem(form.window, 100)), c.windowText);
      const auto* picture = reinterpret_cast<const char*>(Send(form, CM_GETPICTURE));
      ASSERT_NE(picture, nullptr);
      EXPECT_EQ(std::string(picture, PackedBitmap().size()), PackedBitmap());
      if (std::strcmp(family, "Bitmapbutton") == 0) {
        char hint[256] = "unset";
        EXPECT_EQ(Send(form, CM_GETHINT, sizeof hint, reinterpret_cast<LPARAM>(hint)),
                  static_cast<LRESULT>(std::strlen(c.hint)));
        EXPECT_STREQ(hint, c.hint);
      }
      DestroyLibraryWindows();
    }
  }
  SetCurrentDirectoryA("C:\\work");
}

TEST_F(CustomControlsTest, WithoutAPictureFileKeepTheirHintAlone) {
  const LoadResult form = LoadControl("Bitmapbutton", "\\nThe hint");
  ASSERT_EQ(form.code, RTX_OK);
  EXPECT_EQ(TextOf(GetDlgItem(form.window, 100)), "\nThe hint");
  char hint[256] = "";
  Send(form, CM_GETHINT, sizeof hint, reinterpret_cast<LPARAM>(hint));
  EXPECT_STREQ(hint, "The hint");
}

// What doesn't fit into the text of a control is cut at its end.
TEST_F(CustomControlsTest, KeepTheFirst255CharactersOfPathAndHint) {
  const std::string hint(251, 'h');
  const LoadResult form = LoadControl("Bitmapbutton", "a\\n" + hint);
  ASSERT_EQ(form.code, RTX_OK);
  EXPECT_EQ(TextOf(GetDlgItem(form.window, 100)), ("C:\\work\\a\n" + hint).substr(0, 255));
}

TEST_F(CustomControlsTest, OfOtherFamiliesKeepTheirTextAsItIs) {
  for (const char* family : {"Shape", "Progressbar", "Iconlist"}) {
    SCOPED_TRACE(family);
    const LoadResult form = LoadControl(family, "a.bmp\\nhint");
    ASSERT_EQ(form.code, RTX_OK);
    EXPECT_EQ(TextOf(GetDlgItem(form.window, 100)), "a.bmp\nhint");
    DestroyLibraryWindows();
  }
}

// Whether a control takes a picture is looked up like the standard classes: each piece of the list counts.
TEST_F(CustomControlsTest, WhoseWordIsAPieceOfThePictureFamiliesGetTheirPath) {
  struct Case {
    const char* word;
    const char* windowText;
  };
  for (const Case& c : {Case{"MAP", "C:\\work\\a.bmp\nhint"}, Case{"BITMAPBUTTO", "C:\\work\\a.bmp\nhint"},
                        Case{"BITMAPBUTTONS", "a.bmp\nhint"}, Case{"IMAGES", "a.bmp\nhint"}}) {
    SCOPED_TRACE(c.word);
    const std::string module = ProgramFolder() + c.word + ".1.3.2207.dll";
    ASSERT_TRUE(CopyFileA((ProgramFolder() + "SHAPE.1.3.2207.dll").c_str(), module.c_str(), FALSE));
    const LoadResult form = LoadControl(c.word, "a.bmp\\nhint");
    EXPECT_EQ(form.message, "");
    EXPECT_EQ(TextOf(GetDlgItem(form.window, 100)), c.windowText);
    DestroyLibraryWindows();
    EXPECT_TRUE(DeleteFileA(module.c_str()));
  }
}

TEST_F(CustomControlsTest, OfTheFamilyBitmapbuttonAloneGetAHint) {
  for (const char* family : {"Bitmapbutton", "Image", "Shape", "Progressbar", "Iconlist"}) {
    SCOPED_TRACE(family);
    const MessageSpy spy;
    const LoadResult with = LoadControl(family, "a.bmp\\nhint");
    EXPECT_EQ(spy.To(GetDlgItem(with.window, 100), CM_SETHINT).size(),
              std::strcmp(family, "Bitmapbutton") == 0 ? 1u : 0u);
    DestroyLibraryWindows();
    const LoadResult without = LoadControl(family, "a.bmp");
    EXPECT_TRUE(spy.To(GetDlgItem(without.window, 100), CM_SETHINT).empty());
    DestroyLibraryWindows();
  }
}

TEST_F(CustomControlsTest, AnswerTheMessagesOfTheirFamily) {
  struct Pair {
    UINT get, set;
  };
  const LoadResult bar = LoadControl("Progressbar");
  for (const Pair& pair :
       {Pair{1296, 1297}, Pair{1298, 1299}, Pair{1300, 1301}, Pair{1302, 1303}, Pair{1304, 1305}}) {
    Send(bar, pair.set, 0, 17 + static_cast<LPARAM>(pair.set));
    EXPECT_EQ(Send(bar, pair.get), 17 + static_cast<LRESULT>(pair.set));
  }
  DestroyLibraryWindows();
  const LoadResult shape = LoadDialog("Main", "  CONTROL \"\", 100, \"Shape\", SH_DASH, 0, 0, 9, 9");
  for (const Pair& pair : {Pair{1296, 1297}, Pair{1298, 1299}}) {
    Send(shape, pair.set, 0, 17 + static_cast<LPARAM>(pair.set));
    EXPECT_EQ(Send(shape, pair.get), 17 + static_cast<LRESULT>(pair.set));
  }
  EXPECT_EQ(Send(shape, CM_GETSHAPEBORDER), 2);
  DestroyLibraryWindows();
  const LoadResult image = LoadControl("Image");
  EXPECT_EQ(Send(image, CM_GETPICTURE), 0);
  const std::string picture = PackedBitmap();
  Send(image, CM_SETPICTURE, 0, reinterpret_cast<LPARAM>(picture.data()));
  EXPECT_EQ(
      std::memcmp(reinterpret_cast<const void*>(Send(image, CM_GETPICTURE)), picture.data(), picture.size()),
      0);
  DestroyLibraryWindows();
  const LoadResult list = LoadControl("Iconlist");
  EXPECT_EQ(Send(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("one")), 0);
  Send(list, LB_SETITEMDATA, 0, 0x1234);
  EXPECT_EQ(Send(list, LB_GETITEMDATA), 0x1234);
  EXPECT_EQ(Send(list, LB_GETTEXTLEN), 3);
}

// ---- Where modules are found ----

std::string WindowsFolder() {
  char folder[MAX_PATH] = "";
  GetWindowsDirectoryA(folder, MAX_PATH);
  return folder;
}

TEST_F(CustomControlsTest, AreSoughtInTheProgramsFolderAndThenInTheWindowsFolder) {
  const std::string module = WindowsFolder() + "\\ELSEWHERE.1.3.2207.dll";
  ASSERT_TRUE(CopyFileA((ProgramFolder() + "SHAPE.1.3.2207.dll").c_str(), module.c_str(), FALSE));
  LoadResult form = LoadControl("Elsewhere");
  ASSERT_EQ(form.message, "");
  char path[MAX_PATH] = "";
  GetModuleFileNameA(RecordOf(form.window)[1].module, path, MAX_PATH);
  EXPECT_STRCASEEQ(path, module.c_str());
  DestroyLibraryWindows();
  // One in both folders comes from the program's.
  const std::string nearer = ProgramFolder() + "ELSEWHERE.1.3.2207.dll";
  ASSERT_TRUE(CopyFileA(module.c_str(), nearer.c_str(), FALSE));
  form = LoadControl("Elsewhere");
  ASSERT_EQ(form.message, "");
  GetModuleFileNameA(RecordOf(form.window)[1].module, path, MAX_PATH);
  EXPECT_STRCASEEQ(path, nearer.c_str());
  DestroyLibraryWindows();
  EXPECT_TRUE(DeleteFileA(module.c_str()));
  EXPECT_TRUE(DeleteFileA(nearer.c_str()));
}

std::vector<std::string> asked;
HMODULE answer;

HMODULE WINAPI RecordAsked(LPCSTR path) {
  asked.emplace_back(path);
  return answer;
}

UINT WINAPI FolderWithSeparator(LPSTR buffer, UINT size) {
  EXPECT_EQ(size, static_cast<UINT>(MAX_PATH));
  lstrcpynA(buffer, "X:\\", static_cast<int>(size));
  return 3;
}

TEST_F(CustomControlsTest, AreAskedForByFullPathsInTheTwoFolders) {
  const ReplacedImport loading("LoadLibraryA", reinterpret_cast<void*>(&RecordAsked));
  asked.clear();
  answer = nullptr;
  LoadControl("Shape");
  EXPECT_EQ(asked, (std::vector<std::string>{ProgramFolder() + "SHAPE.1.3.2207.dll",
                                             WindowsFolder() + "\\SHAPE.1.3.2207.dll"}));
  const ReplacedImport folder("GetWindowsDirectoryA", reinterpret_cast<void*>(&FolderWithSeparator));
  asked.clear();
  LoadControl("Shape");
  EXPECT_EQ(asked[1], "X:\\SHAPE.1.3.2207.dll");
  // A program without a path has no folder of its own.
  const CountedImport<struct Naming, DWORD, HMODULE, LPSTR, DWORD> naming("GetModuleFileNameA", -1);
  asked.clear();
  LoadControl("Shape");
  EXPECT_EQ(asked[0], "\\SHAPE.1.3.2207.dll");
}

TEST_F(CustomControlsTest, AreNotLoadedWithoutAnId) {
  const ReplacedImport loading("LoadLibraryA", reinterpret_cast<void*>(&RecordAsked));
  asked.clear();
  answer = nullptr;
  const LoadResult form = LoadDialog("Main", "  CONTROL \"\", IDC_UNKNOWN, \"Shape\", 0, 0, 0, 9, 9\n");
  EXPECT_EQ(form.code, RTX_UNDEFINED_ID);
  EXPECT_EQ(form.message, "Dialog <Main>, Control Type <CONTROL>, Control i/d <IDC_UNKNOWN> is undefined");
  EXPECT_TRUE(asked.empty());
}

// On old systems a result below 33 was the number of an error.
TEST_F(CustomControlsTest, FailWithAModuleHandleBelow33) {
  const ReplacedImport loading("LoadLibraryA", reinterpret_cast<void*>(&RecordAsked));
  for (const UINT_PTR value : {UINT_PTR{0}, UINT_PTR{1}, UINT_PTR{32}}) {
    SCOPED_TRACE(value);
    asked.clear();
    answer = reinterpret_cast<HMODULE>(value);
    const LoadResult form = LoadControl("Shape");
    EXPECT_EQ(form.code, RTX_CONTROL_DLL);
    EXPECT_EQ(form.message, "Dialog <Main>, Control Type <SHAPE>, Cannot load DLL <SHAPE.1.3.2207.dll>");
    EXPECT_EQ(asked.size(), 2u);  // in the second folder, too
  }
}

TEST_F(CustomControlsTest, FailWith701WhereTheModuleCantBeLoaded) {
  for (const char* className : {"MISSING", "REFUSESLOAD"}) {
    const LoadResult form = LoadControl(className);
    EXPECT_EQ(form.code, RTX_CONTROL_DLL);
    EXPECT_EQ(form.message, std::string("Dialog <Main>, Control Type <") + className +
                                ">, Cannot load DLL <" + className + ".1.3.2207.dll>");
    EXPECT_EQ(form.window, nullptr);
    EXPECT_TRUE(LibraryWindows().empty());
  }
}

TEST_F(CustomControlsTest, FailWith701WhereTheClassIsMissingOrItsProcedureIsNone) {
  for (const char* className : {"NOCLASS", "BADCODE"}) {
    SCOPED_TRACE(className);
    const std::string module = std::string(className) + ".1.3.2207.dll";
    const LoadResult form = LoadControl(className);
    EXPECT_EQ(form.code, RTX_CONTROL_DLL);
    EXPECT_EQ(form.message, std::string("Dialog <Main>, Control Type <") + className + ">, DLL <" + module +
                                "> has an invalid WNDPROC");
    EXPECT_EQ(form.window, nullptr);
    EXPECT_TRUE(LibraryWindows().empty());
    // What such a module would do if it were freed is anybody's guess, so it stays.
    EXPECT_NE(GetModuleHandleA(module.c_str()), nullptr);
    FreeLibrary(GetModuleHandleA(module.c_str()));
  }
}

TEST_F(CustomControlsTest, AreNamedByTheFirst32CharactersOfTheirClassWord) {
  const std::string word32(32, 'W');
  LoadResult form = LoadControl(word32 + "xyz");
  EXPECT_EQ(form.code, RTX_CONTROL_DLL);
  EXPECT_EQ(form.message,
            "Dialog <Main>, Control Type <" + word32 + ">, Cannot load DLL <" + word32 + ".1.3.2207.dll>");
}

TEST_F(CustomControlsTest, HaveAClassNameOf31CharactersAtMost) {
  const std::string word(26, 'L');
  const std::string module = ProgramFolder() + word + ".1.3.2207.dll";
  ASSERT_TRUE(CopyFileA((ProgramFolder() + "SHAPE.1.3.2207.dll").c_str(), module.c_str(), FALSE));
  const LoadResult form = LoadControl(word);
  EXPECT_EQ(form.message, "");
  char className[64] = "";
  GetClassNameA(GetDlgItem(form.window, 100), className, sizeof className);
  EXPECT_EQ(std::string(className), word + ".1.3.");
  DestroyLibraryWindows();
  EXPECT_TRUE(DeleteFileA(module.c_str()));
}

TEST_F(CustomControlsTest, WhoseWindowIsRefusedKeepTheirModuleInTheRow) {
  for (const char* className : {"REFUSES", "LOCALCLASS"}) {
    SCOPED_TRACE(className);
    const std::string module = std::string(className) + ".1.3.2207.dll";
    const LoadResult form = LoadDialog("Main", Control(className) + "  LTEXT \"a\", 101, 0, 0, 9, 9\n");
    ASSERT_EQ(form.message, "");
    EXPECT_EQ(RecordOf(form.window)[1].handle, nullptr);
    EXPECT_EQ(RecordOf(form.window)[1].module, GetModuleHandleA(module.c_str()));
    EXPECT_NE(RecordOf(form.window)[1].module, nullptr);
    EXPECT_TRUE(GetDlgItem(form.window, 101));
    DestroyLibraryWindows();
    EXPECT_EQ(GetModuleHandleA(module.c_str()), nullptr);
  }
}

// Nothing keeps a module's code from it.
TEST_F(CustomControlsTest, ThatDestroyTheirWindowMakeTheLoadFail) {
  for (const char* className : {"FELLS", "FELLSLATER"}) {
    SCOPED_TRACE(className);
    const LoadResult form = LoadDialog(
        "Main", "  LTEXT \"a\", 99, 0, 0, 9, 9\n" + Control(className) + "  LISTBOX 101, 0, 0, 9, 9\n",
        "STYLE WS_POPUP\nMENU Bar\n");
    EXPECT_EQ(form.code, RTX_CLASS);
    EXPECT_EQ(form.message, "Could not create window Main, class failed to register or not enough resources");
    EXPECT_EQ(form.window, nullptr);
    EXPECT_TRUE(LibraryWindows().empty());
    EXPECT_EQ(Log().All(), "");
    EXPECT_EQ(GetModuleHandleA((std::string(className) + ".1.3.2207.dll").c_str()), nullptr);
  }
}

// The button's code is still on the stack when its click has unloaded its window, and must be there until it
// is back.
TEST_F(CustomControlsTest, MayUnloadTheirWindowByTheEventTheyRaise) {
  const char* module = "BITMAPBUTTON.1.3.2207.dll";
  Log().onEvent = [](HWND, const Event& event) {
    if (event.event == EV_CLICK) {
      Unload("Main");
      EXPECT_EQ(GetHandle("Main", 0, nullptr), nullptr);
    }
    return 0;
  };
  struct Case {
    const char* loop;
    void (*run)();
  };
  const Case cases[] = {{"DoEvents", [] { DoEvents(); }},
                        {"MainLoop", [] { MainLoop(nullptr, nullptr, nullptr, nullptr); }},
                        {"Load", [] { LoadDialog("Other", ""); }}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.loop);
    Log().Clear();
    const LoadResult form = LoadControl("Bitmapbutton");
    ASSERT_EQ(form.code, RTX_OK);
    SendDlgItemMessageA(form.window, 100, BM_CLICK, 0, 0);
    EXPECT_EQ(Log().Of({EV_CLICK}), "EV_CLICK 100 0\n");
    EXPECT_FALSE(IsWindow(form.window));
    c.run();
    EXPECT_EQ(GetModuleHandleA(module), nullptr);
    DestroyLibraryWindows();
  }
}

TEST_F(CustomControlsTest, OfAModalWindowMayEndItByTheEventTheyRaise) {
  WriteTestFile("Main.rc", "Main DIALOG 0, 0, 99, 99\nBEGIN\n" + Control("Bitmapbutton") + "END\n");
  Log().onEvent = [](HWND window, const Event& event) {
    if (event.event == EV_ACTIVATE) PostMessageA(GetDlgItem(window, 100), BM_CLICK, 0, 0);
    if (event.event == EV_CLICK) Unload("Main");
    return 0;
  };
  EXPECT_EQ(Show(GetModuleHandleA(nullptr), "Main", "Main.rc", RecordEvent, nullptr, 1, nullptr), RTX_OK);
  EXPECT_EQ(Log().Count(EV_CLICK), 1);
  EXPECT_EQ(GetModuleHandleA("BITMAPBUTTON.1.3.2207.dll"), nullptr);
}

TEST_F(CustomControlsTest, AheadOfAFailureLetGoOfTheirModules) {
  const LoadResult form =
      LoadDialog("Main", "  CONTROL \"\", 99, \"Shape\", 0, 0, 0, 9, 9\n" + Control("MISSING"));
  EXPECT_EQ(form.code, RTX_CONTROL_DLL);
  EXPECT_EQ(GetModuleHandleA("SHAPE.1.3.2207.dll"), nullptr);
}

// The class is compared with its case, and CONTROL gives it in upper case: what is written otherwise is
// standard too.
TEST_F(CustomControlsTest, AreNotThoseOfTheStandardClasses) {
  const ReplacedImport loading("LoadLibraryA", reinterpret_cast<void*>(&RecordAsked));
  asked.clear();
  answer = nullptr;
  for (const char* className : {"button", "ComboBox", "EDIT", "listbox", "ScrollBar", "static"}) {
    EXPECT_EQ(LoadControl(className).message, "") << className;
    DestroyLibraryWindows();
  }
  EXPECT_TRUE(asked.empty());
}

}  // namespace
}  // namespace brelt::test
