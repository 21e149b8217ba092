#include "forms/windowclass.h"

#include <gtest/gtest.h>

#include "frame/library.h"
#include "frame/winobject.h"
#include "include/brelt.h"
#include "tests/win32/support/classes.h"

namespace brelt::test {
namespace {

class WindowClassTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {kDialogClass, kEditwindowClass, kRicheditwindowClass}) {
      UnregisterClassA(name, Library.ModuleInstance);
    }
  }

  static bool Find(const char* name, WNDCLASSEXA& info) {
    info = {};
    info.cbSize = sizeof info;
    return GetClassInfoExA(Library.ModuleInstance, name, &info) != FALSE;
  }
};

TEST_F(WindowClassTest, IsRegisteredWithItsStyleAndTenSlots) {
  struct Case {
    const char* name;
    UINT style;
    WNDPROC procedure;
  };
  const Case cases[] = {{"Dialog.1.3.2207", 0x4008, Dialog_proc},
                        {"Editwindow.1.3.2207", 0x400B, Editwindow_proc},
                        {"Richeditwindow.1.3.2207", 0x400B, Richeditwindow_proc}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    WNDCLASSEXA info;
    EXPECT_FALSE(Find(c.name, info));
    RegisterWindowClass(c.name);
    ASSERT_TRUE(Find(c.name, info));
    EXPECT_EQ(info.style, c.style);
    EXPECT_EQ(info.lpfnWndProc, c.procedure);
    EXPECT_EQ(info.cbClsExtra, 0);
    EXPECT_EQ(info.cbWndExtra, 40);
    EXPECT_EQ(info.hInstance, Library.ModuleInstance);
    EXPECT_EQ(info.hIcon, LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION)));
    EXPECT_EQ(info.hCursor, LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
    EXPECT_EQ(info.hbrBackground, reinterpret_cast<HBRUSH>(16));
    EXPECT_EQ(info.lpszMenuName, nullptr);
  }
}

TEST_F(WindowClassTest, OfAnotherNameIsNotRegistered) {
  for (const char* name : {"Dialog", "DEBUG.1.3.2207", "TOOLTIPS.1.3.2207", "LISTBOX.1.3.2207", ""}) {
    RegisterWindowClass(name);
    WNDCLASSEXA info;
    EXPECT_FALSE(Find(name, info)) << name;
  }
}

TEST_F(WindowClassTest, IsChosenByTheClassWordInAnyCase) {
  struct Case {
    const char* word;
    const char* className;
    bool isEdit;
    bool loadable;
  };
  const Case cases[] = {{"", kDialogClass, false, true},
                        {"Dialog", kDialogClass, false, true},
                        {"dIALOG", kDialogClass, false, true},
                        {"Editwindow", kEditwindowClass, true, true},
                        {"EDITWINDOW", kEditwindowClass, true, true},
                        {"Richeditwindow", kRicheditwindowClass, true, true},
                        {"richeditWINDOW", kRicheditwindowClass, true, true},
                        {"Edit", kDialogClass, false, false},
                        {"Dialog.1.3.2207", kDialogClass, false, false},
                        {"Dialogs", kDialogClass, false, false}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.word);
    EXPECT_STREQ(KindOfClass(c.word).className, c.className);
    EXPECT_EQ(KindOfClass(c.word).isEdit, c.isEdit);
    EXPECT_EQ(IsLoadableClass(c.word), c.loadable);
  }
}

TEST_F(WindowClassTest, IsUsableOnceItIsTheLibrarysOwn) {
  const WindowKind& kind = KindOfClass("Dialog");
  EXPECT_TRUE(HasUsableClass(kind, GetModuleHandleA(nullptr)));
  EXPECT_TRUE(HasUsableClass(kind, nullptr));
  WNDCLASSEXA info;
  EXPECT_TRUE(Find(kind.className, info));
}

TEST_F(WindowClassTest, IsNotUsableWithAnotherProcedureOrOnlyForTheModule) {
  struct Case {
    const char* what;
    UINT style;
    WNDPROC procedure;
    bool usable;
  };
  const Case cases[] = {{"foreign procedure", CS_GLOBALCLASS, DefWindowProcA, false},
                        {"not global", CS_DBLCLKS, Dialog_proc, false},
                        {"its own", CS_GLOBALCLASS, Dialog_proc, true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const TestClass taken(kDialogClass, 40, c.style, c.procedure);
    EXPECT_EQ(HasUsableClass(KindOfClass("Dialog"), Library.ModuleInstance), c.usable);
  }
}

}  // namespace
}  // namespace brelt::test
