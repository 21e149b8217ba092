// Names, handles, kinds and event functions of objects.
#include <string>

#include "tests/support/guarded.h"
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

constexpr const char* kText =
    "#define IDC_FIELD 102\n"
    "Main DIALOG 0, 0, 100, 100\n"
    "MENU Bar\n"
    "BEGIN\n"
    "  PUSHBUTTON \"OK\", IDOK, 0, 0, 9, 9\n"
    "  LTEXT \"a\", +100, 0, 0, 9, 9\n"
    "  EDITTEXT IDC_FIELD, 0, 0, 9, 9\n"
    "  LISTBOX -1, 0, 0, 9, 9\n"
    "  GROUPBOX \"b\", 103, 0, 0, 9, 9\n"
    "  ICON \"\", 104, 0, 0, 9, 9\n"
    "  CHECKBOX \"c\", 105, 0, 0, 9, 9\n"
    "  RADIOBUTTON \"d\", 106, 0, 0, 9, 9\n"
    "  COMBOBOX 107, 0, 0, 9, 9\n"
    "  SCROLLBAR 108, 0, 0, 9, 9\n"
    "  CONTROL \"\", 109, \"Shape\", 0, 0, 0, 9, 9\n"
    "END\n"
    "Bar MENU\n"
    "BEGIN\n"
    "  POPUP \"File\"\n"
    "  BEGIN\n"
    "    MENUITEM \"Open\", 200\n"
    "  END\n"
    "END\n";

class IdentityTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    const LoadResult form = LoadText("Main", kText);
    ASSERT_EQ(form.message, "");
    ASSERT_EQ(form.code, RTX_OK);
    window_ = form.window;
  }

  static std::string NameOf(const char* name, int32_t id) {
    char text[50] = "unset";
    GetName(name, id, text, sizeof text);
    return text;
  }
  static std::string TypeOf(const char* name, int32_t id) {
    char text[50] = "unset";
    GetTypeof(name, id, text, sizeof text);
    return text;
  }

  HWND window_ = nullptr;
};

// ---- GetHandle ----

TEST_F(IdentityTest, HandleOfId0IsTheWindow) {
  EXPECT_EQ(GetHandle("Main", 0, nullptr), window_);
  EXPECT_EQ(GetHandle("MAIN", 0, "102"), window_);
  EXPECT_EQ(GetHandle("Nobody", 0, nullptr), nullptr);
  EXPECT_EQ(GetHandle("", 0, nullptr), nullptr);
  EXPECT_EQ(GetHandle(nullptr, 0, nullptr), nullptr);
}

TEST_F(IdentityTest, HandleOfAnyOtherIdIsTheControl) {
  for (const int32_t id : {1, 100, 102, 103, 109})
    EXPECT_EQ(GetHandle("Main", id, nullptr), GetDlgItem(window_, id));
  for (const int32_t id : {-2, 2, 101, 200, INT32_MAX, INT32_MIN})
    EXPECT_EQ(GetHandle("Main", id, "100"), nullptr);
  EXPECT_EQ(GetHandle("Nobody", 100, nullptr), nullptr);
}

TEST_F(IdentityTest, HandleOfIdMinus1IsTheControlOfAName) {
  struct Case {
    const char* controlName;
    int32_t id;
  };
  for (const Case& c : {Case{"IDOK", 1}, Case{"idok", 1}, Case{"+100", 100}, Case{"IDC_FIELD", 102},
                        Case{"idc_Field", 102}, Case{"-1", -1}, Case{"109", 109}}) {
    EXPECT_EQ(GetHandle("Main", -1, c.controlName), GetDlgItem(window_, c.id)) << c.controlName;
    EXPECT_NE(GetDlgItem(window_, c.id), nullptr);
  }
  for (const char* missing : {"IDCANCEL", "100", "IDC_FIEL", "IDC_FIELDS", "Main", "", "200"}) {
    EXPECT_EQ(GetHandle("Main", -1, missing), nullptr) << missing;
  }
  EXPECT_EQ(GetHandle("Main", -1, nullptr), nullptr);
  EXPECT_EQ(GetHandle("Nobody", -1, "IDOK"), nullptr);
}

TEST_F(IdentityTest, HandleOfAControlThatIsGoneIsNull) {
  DestroyWindow(GetDlgItem(window_, 102));
  EXPECT_EQ(GetHandle("Main", -1, "IDC_FIELD"), nullptr);
  EXPECT_EQ(GetHandle("Main", 102, nullptr), nullptr);
}

DWORD WINAPI AskFromAnotherThread(LPVOID) {
  uint8_t modal = 7;
  const bool nothing = GetHandle("Main", 0, nullptr) == nullptr && GetFuncptr("Main", 0) == nullptr &&
                       Hide("Main") == RTX_NO_WINDOW && Unload("Main") == RTX_NO_WINDOW &&
                       IsModal("Main", &modal) == RTX_OK && modal == 0;
  return nothing ? 1 : 2;
}

TEST_F(IdentityTest, WindowsOfThisThreadAreNotSeenFromAnother) {
  HANDLE thread = CreateThread(nullptr, 0, AskFromAnotherThread, nullptr, 0, nullptr);
  ASSERT_EQ(WaitForSingleObject(thread, 30000), WAIT_OBJECT_0);
  DWORD result = 0;
  GetExitCodeThread(thread, &result);
  CloseHandle(thread);
  EXPECT_EQ(result, 1u);
  EXPECT_TRUE(IsWindow(window_));
}

// ---- GetName ----

TEST_F(IdentityTest, NameIsTheWindowsOrTheControlsAsTheFileWritesIt) {
  struct Case {
    int32_t id;
    const char* name;
  };
  for (const Case& c : {Case{0, "Main"}, Case{1, "IDOK"}, Case{100, "+100"}, Case{102, "IDC_FIELD"},
                        Case{-1, "-1"}, Case{103, "103"}, Case{109, "109"}}) {
    EXPECT_EQ(NameOf("main", c.id), c.name) << c.id;
  }
}

TEST_F(IdentityTest, NameOfAnythingElseIsEmpty) {
  for (const int32_t id : {200, 2, 99, INT32_MIN}) EXPECT_EQ(NameOf("Main", id), "") << id;
  for (const int32_t id : {0, 100}) {
    EXPECT_EQ(NameOf("Nobody", id), "");
    EXPECT_EQ(NameOf("", id), "");
    EXPECT_EQ(NameOf(nullptr, id), "");
  }
}

TEST_F(IdentityTest, NameOfAControlIsFoundByItsHandle) {
  // A second control of an id is a control of the window, but has no row.
  const TestWindow stranger("STATIC", "", WS_CHILD, window_);
  SetWindowLongA(stranger.get(), GWL_ID, 500);
  EXPECT_EQ(NameOf("Main", 500), "");
  // A control that was given another id keeps its name.
  SetWindowLongA(GetDlgItem(window_, 102), GWL_ID, 600);
  EXPECT_EQ(NameOf("Main", 600), "IDC_FIELD");
}

TEST_F(IdentityTest, NameIsCutToTheBuffer) {
  for (const int32_t id : {0, 102}) {
    ExpectCallCutToFit(id == 0 ? "Main" : "IDC_FIELD",
                       [id](char* buffer, int size) { GetName("Main", id, buffer, size); });
  }
}

// ---- GetTypeof ----

TEST_F(IdentityTest, TypeIsTheKindOfTheObject) {
  struct Case {
    int32_t id;
    const char* kind;
  };
  for (const Case& c :
       {Case{0, "Dialog"}, Case{1, "Pushbutton"}, Case{100, "Label"}, Case{102, "Edit"}, Case{-1, "Listbox"},
        Case{103, "Groupbox"}, Case{104, "Icon"}, Case{105, "Checkbox"}, Case{106, "Radiobutton"},
        Case{107, "Combobox"}, Case{108, "Scrollbar"}, Case{109, "Shape"}, Case{200, "Menuitem"}, Case{2, ""},
        Case{201, ""}, Case{INT32_MIN, ""}}) {
    EXPECT_EQ(TypeOf("MAIN", c.id), c.kind) << c.id;
  }
  EXPECT_EQ(TypeOf("Nobody", 0), "");
  EXPECT_EQ(TypeOf("", 0), "");
}

TEST_F(IdentityTest, TypeOfTheObjectsWithoutWindowsIsTheirNameInItsNormalForm) {
  const char* const names[][2] = {{"printer", "Printer"},
                                  {"PRINTER", "Printer"},
                                  {"Screen", "Screen"},
                                  {"sCREEN", "Screen"},
                                  {"clipboard", "Clipboard"},
                                  {"CLIPBOARD", "Clipboard"},
                                  {"printers", ""},
                                  {"print", ""},
                                  {" printer", ""}};
  for (const auto& [name, kind] : names) {
    for (const int32_t id : {0, 1, -1, 12345}) EXPECT_EQ(TypeOf(name, id), kind) << name;
  }
}

TEST_F(IdentityTest, TypeIsThatOfAnObjectWithoutWindowEvenWhereAWindowHasItsName) {
  ASSERT_EQ(LoadDialog("Screen", "  LTEXT \"a\", 100, 0, 0, 9, 9").code, RTX_OK);
  EXPECT_EQ(TypeOf("screen", 0), "Screen");
  EXPECT_EQ(TypeOf("screen", 100), "Screen");
}

TEST_F(IdentityTest, TypeIsCutToTheBuffer) {
  struct Case {
    const char* name;
    int32_t id;
    const char* kind;
  };
  for (const Case& c : {Case{"Main", 0, "Dialog"}, Case{"Main", 100, "Label"}, Case{"Main", 200, "Menuitem"},
                        Case{"printer", 0, "Printer"}, Case{"Nobody", 0, ""}}) {
    SCOPED_TRACE(c.kind);
    ExpectCallCutToFit(c.kind, [&c](char* buffer, int size) {
      // The size is unsigned: what is negative here would be a very large buffer.
      if (size >= 0) GetTypeof(c.name, c.id, buffer, static_cast<uint32_t>(size));
    });
  }
  GuardedBuffer buffer(40);
  GetTypeof("Main", 0, buffer.data(), UINT32_MAX);
  EXPECT_EQ(buffer.Text(), "Dialog");
  EXPECT_TRUE(buffer.IsIntact());
}

TEST_F(IdentityTest, TypeOfANullNameClearsTheBufferAndDoesNothingMore) {
  EXPECT_EQ(TypeOf(nullptr, 0), "");
  EXPECT_EQ(TypeOf(nullptr, 100), "");
}

// ---- GetFuncptr ----

int32_t __stdcall OtherFunction(HWND, uint32_t, uint32_t, int32_t) { return 0; }

TEST_F(IdentityTest, FunctionIsTheOneThatTheWindowWasLoadedWith) {
  for (const int32_t id : {0, 100, 200, 999, -1}) EXPECT_EQ(GetFuncptr("main", id), RecordEvent);
  ASSERT_EQ(LoadText("Other", "Other DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", OtherFunction).code, RTX_OK);
  EXPECT_EQ(GetFuncptr("Other", 0), OtherFunction);
  ASSERT_EQ(LoadText("Silent", "Silent DIALOG 0, 0, 9, 9\nBEGIN\nEND\n", nullptr).code, RTX_OK);
  EXPECT_EQ(GetFuncptr("Silent", 0), nullptr);
  EXPECT_EQ(GetFuncptr("Nobody", 0), nullptr);
  EXPECT_EQ(GetFuncptr(nullptr, 0), nullptr);
}

// A record as another kind of the library's windows could have it.
struct ForeignRecord {
  char bytes[188] = "Foreign";
};

TEST_F(IdentityTest, ObjectsOfOtherClassesHaveNoFunctionNoKindAndNoControlNames) {
  const TestClass own("brelt.forty", 40);
  const TestWindow window(own.name());
  const TestWindow control("STATIC", "", WS_CHILD, window.get());
  SetWindowLongA(control.get(), GWL_ID, 100);
  ForeignRecord record;
  SetWindowLongA(window.get(), 0, reinterpret_cast<LONG>(&record));
  SetWindowLongA(window.get(), 7 * 4, 0x1234);
  EXPECT_EQ(GetHandle("Foreign", 0, nullptr), window.get());
  EXPECT_EQ(GetFuncptr("Foreign", 0), nullptr);
  EXPECT_EQ(TypeOf("Foreign", 0), "");
  EXPECT_EQ(NameOf("Foreign", 0), "Foreign");
  EXPECT_EQ(NameOf("Foreign", 100), "");
  EXPECT_EQ(GetHandle("Foreign", -1, "100"), nullptr);
  EXPECT_EQ(TypeOf("Foreign", 100), "Label");
  SetWindowLongA(window.get(), 0, 0);
}

}  // namespace
}  // namespace brelt::test
