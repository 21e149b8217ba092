// The DLL's coming and going. The program that holds these tests doesn't import it, so that it can be loaded
// and freed at will.
#include <gtest/gtest.h>
#include <windows.h>

#include <fstream>
#include <string>
#include <vector>

#include "include/events.h"
#include "tests/win32/support/imports.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);

namespace brelt::test {
namespace {

constexpr const char* kDialogClass = "Dialog.1.3.2207";

class LoadedDll {
 public:
  LoadedDll() : module_(LoadLibraryA("brelt.dll")) { EXPECT_TRUE(module_); }
  LoadedDll(const LoadedDll&) = delete;
  LoadedDll& operator=(const LoadedDll&) = delete;
  ~LoadedDll() { Free(); }

  HMODULE get() const { return module_; }
  void Free() {
    if (module_ == nullptr) return;
    EXPECT_TRUE(FreeLibrary(module_));
    module_ = nullptr;
    EXPECT_EQ(GetModuleHandleA("brelt.dll"), nullptr);
  }
  template <typename Function>
  Function Find(const char* name) const {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
  }
  // Loads a window of the plainest kind; null when that fails.
  HWND LoadForm() const {
    std::ofstream("C:\\work\\Main.rc") << "Main DIALOG 0, 0, 100, 100\nBEGIN\nEND\n";
    using LoadFunction =
        int32_t(__stdcall*)(HMODULE, const char*, const char*, void*, HWND*, const char*, char*, int32_t);
    HWND window = nullptr;
    EXPECT_EQ(Find<LoadFunction>("Load")(GetModuleHandleA(nullptr), "Main", "C:\\work\\Main.rc", nullptr,
                                         &window, nullptr, nullptr, 0),
              RTX_OK);
    return window;
  }

 private:
  HMODULE module_;
};

bool ClassExists(HINSTANCE instance, const char* name) {
  WNDCLASSEXA info = {};
  info.cbSize = sizeof info;
  return GetClassInfoExA(instance, name, &info) != FALSE;
}

TEST(ModuleEntry, ReturnsOneForEveryReason) {
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  EXPECT_EQ(DllMain(instance, DLL_THREAD_ATTACH, nullptr), 1);
  EXPECT_EQ(DllMain(instance, DLL_THREAD_DETACH, nullptr), 1);
  EXPECT_EQ(DllMain(instance, DLL_PROCESS_DETACH, nullptr), 1);
  EXPECT_EQ(DllMain(instance, DLL_PROCESS_ATTACH, nullptr), 1);
}

TEST(ModuleEntry, RegistersNoClassOfItsOwn) {
  const LoadedDll dll;
  for (const char* name :
       {"Dialog.1.3.2207", "Editwindow.1.3.2207", "Richeditwindow.1.3.2207", "TOOLTIPS.1.3.2207"}) {
    EXPECT_FALSE(ClassExists(dll.get(), name)) << name;
  }
}

// Their classes may be there by way of another module, so that the import is looked for, too. It is called
// once, when the DLL comes.
TEST(ModuleEntry, BringsTheCommonControls) {
  const LoadedDll dll;
  EXPECT_TRUE(ClassExists(nullptr, "msctls_trackbar32"));
  const ReplacedImport import("InitCommonControls", nullptr);
  EXPECT_NE(import.original(), nullptr);
}

TEST(ModuleTeardown, UnregistersTheClassThatWasUsed) {
  LoadedDll dll;
  const HWND window = dll.LoadForm();
  ASSERT_TRUE(DestroyWindow(window));
  EXPECT_TRUE(ClassExists(GetModuleHandleA(nullptr), kDialogClass));
  dll.Free();
  EXPECT_FALSE(ClassExists(GetModuleHandleA(nullptr), kDialogClass));
}

// A class that a first loading had left behind would have a procedure that is no longer there.
TEST(ModuleTeardown, LetsASecondLoadingRegisterAnew) {
  for (int i = 0; i < 3; ++i) {
    LoadedDll dll;
    const HWND window = dll.LoadForm();
    ASSERT_TRUE(IsWindow(window));
    EXPECT_EQ(reinterpret_cast<void*>(GetClassLongA(window, GCL_WNDPROC)),
              dll.Find<void*>("_Dialog_proc@16"));
    EXPECT_TRUE(DestroyWindow(window));
  }
}

TEST(ModuleTeardown, StartsASecondLoadingWithItsFirstSettings) {
  using SetFunction = int32_t(__stdcall*)(int32_t);
  using GetFunction = void(__stdcall*)(int32_t*);
  for (int i = 0; i < 2; ++i) {
    const LoadedDll dll;
    int32_t base = -1;
    dll.Find<GetFunction>("GetOptionBase")(&base);
    EXPECT_EQ(base, 1);
    dll.Find<SetFunction>("SetOptionBase")(0);
  }
}

// There are little more than a thousand indexes in a process.
TEST(ModuleTeardown, GivesItsThreadLocalStorageBack) {
  const auto countFree = [] {
    std::vector<DWORD> free;
    for (DWORD index = TlsAlloc(); index != TLS_OUT_OF_INDEXES; index = TlsAlloc()) free.push_back(index);
    for (const DWORD index : free) TlsFree(index);
    return free.size();
  };
  const auto loadAndFree = [] {
    const LoadedDll dll;
    EXPECT_TRUE(DestroyWindow(dll.LoadForm()));
  };
  loadAndFree();
  const std::size_t before = countFree();
  EXPECT_GT(before, 0u);
  for (int i = 0; i < 5; ++i) loadAndFree();
  EXPECT_EQ(countFree(), before);
}

std::vector<std::string> asked;
std::vector<std::string> unregistered;
BOOL answer;

BOOL WINAPI RecordAsked(HINSTANCE, LPCSTR name, LPWNDCLASSEXA info) {
  EXPECT_EQ(info->cbSize, sizeof(WNDCLASSEXA));
  asked.emplace_back(name);
  return answer;
}
BOOL WINAPI RecordUnregistered(LPCSTR name, HINSTANCE) {
  unregistered.emplace_back(name);
  return TRUE;
}

TEST(ModuleTeardown, VisitsTheTenClassesInTheirOrderAndUnregistersThoseThatExist) {
  const std::vector<std::string> classes = {
      "Dialog.1.3.2207",   "Editwindow.1.3.2207", "Richeditwindow.1.3.2207", "DEBUG.1.3.2207",
      "TOOLTIPS.1.3.2207", "PRINTER.1.3.2207",    "CANCELDLG.1.3.2207",      "MSGBOX.1.3.2207",
      "INPUTBOX.1.3.2207", "LISTBOX.1.3.2207"};
  for (const BOOL exists : {TRUE, FALSE}) {
    SCOPED_TRACE(exists);
    asked.clear();
    unregistered.clear();
    answer = exists;
    LoadedDll dll;
    ReplacedImport info("GetClassInfoExA", reinterpret_cast<void*>(&RecordAsked));
    ReplacedImport unregister("UnregisterClassA", reinterpret_cast<void*>(&RecordUnregistered));
    dll.Free();
    info.Abandon();
    unregister.Abandon();
    EXPECT_EQ(asked, classes);
    EXPECT_EQ(unregistered, exists ? classes : std::vector<std::string>());
  }
}

}  // namespace
}  // namespace brelt::test
