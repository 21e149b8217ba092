// Loading while the platform fails: each allocation in turn, and each of the functions that make something.
#include <string>
#include <utility>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/handles.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/record.h"

namespace brelt::test {
namespace {

// A form with everything that a load takes memory for. word is the id of its first control.
std::string FormText(const std::string& word) {
  return "#define IDC_WORD 100\n"
         "#define IDM_WORD 200\n"
         "Main DIALOG 0, 0, 100, 100\nMENU Bar\nBEGIN\n"
         "  LTEXT \"a\", " +
         word +
         ", 0, 0, 9, 9\n"
         "  CONTROL \"\", 101, \"Shape\", 0, 0, 0, 9, 9\n"
         "  CONTROL \"one\\ntwo\", 102, \"LISTBOX\", 0, 0, 0, 9, 9\n"
         "END\n"
         "Bar MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"Open\", 200\n  END\nEND\n";
}

struct Outcome {
  int32_t code;
  std::string message;

  bool operator==(const Outcome&) const = default;
};
void PrintTo(const Outcome& outcome, std::ostream* out) {
  *out << outcome.code << " \"" << outcome.message << "\"";
}

class LoadMemoryTest : public FormTest {
 protected:
  // Loads the form with array values; a load that fails must leave nothing.
  static Outcome LoadForm(const std::string& path) {
    auto* unchanged = reinterpret_cast<HWND>(0x1234);
    HWND window = unchanged;
    char message[1100] = "unset";
    Log().Clear();
    const int32_t code = Load(GetModuleHandleA(nullptr), "Main", path.c_str(), RecordEvent, &window,
                              "key=value\0", message, sizeof message);
    if (code != RTX_OK) {
      EXPECT_EQ(window, unchanged);
      EXPECT_TRUE(LibraryWindows().empty());
      EXPECT_EQ(Log().All(), "");
      EXPECT_EQ(GetModuleHandleA("SHAPE.1.3.2207.dll"), nullptr);
    } else {
      EXPECT_EQ(Log().All(), "EV_LOAD 0 0\n");
      DestroyLibraryWindows();
    }
    return {code, message};
  }
};

// How often in a row the same came out.
using Runs = std::vector<std::pair<Outcome, int>>;

void Add(Runs& runs, const Outcome& outcome) {
  if (runs.empty() || runs.back().first != outcome) runs.push_back({outcome, 0});
  ++runs.back().second;
}

const Outcome kNoMemoryToLoad = {708, "Insufficient memory to load window: Main"};

// The text, the symbols and the 256 records; the table in which the symbols are sorted out; the window's
// record; the key table; the menu's text; the array values.
Runs ExpectedRuns(const Outcome& withoutSymbols) {
  return {{kNoMemoryToLoad, 258},
          {withoutSymbols, 1},
          {{708, "Not enough memory for window Main"}, 1},
          {kNoMemoryToLoad, 1},
          {{708, "Menu <Bar>, not enough memory to create menu"}, 1},
          {{708, ""}, 1}};
}

using Allocations = CountedImport<struct Allocating, HGLOBAL, UINT, SIZE_T>;
using Locks = CountedImport<struct Locking, LPVOID, HGLOBAL>;
using Frees = CountedImport<struct Freeing, HGLOBAL, HGLOBAL>;

// Lets each allocation of a load fail in turn, by one of its two steps, until a load needs no more of them.
template <typename FailingStep>
Runs FailInTurn(const char* step, const std::function<Outcome()>& load) {
  Runs runs;
  for (int failAt = 1; failAt < 1000; ++failAt) {
    SCOPED_TRACE(::testing::Message() << step << " number " << failAt);
    const Frees frees("GlobalFree");
    int allocated = 0;
    bool failed = false;
    Outcome outcome;
    if constexpr (std::is_same_v<FailingStep, Allocations>) {
      const Allocations allocations(step, failAt);
      outcome = load();
      failed = allocations.HasFailed();
      allocated = allocations.calls() - (failed ? 1 : 0);
    } else {
      const Allocations allocations("GlobalAlloc");
      const FailingStep failing(step, failAt);
      outcome = load();
      failed = failing.HasFailed();
      allocated = allocations.calls();
    }
    EXPECT_EQ(frees.calls(), allocated);
    if (!failed) {
      EXPECT_EQ(outcome, (Outcome{RTX_OK, ""}));
      return runs;
    }
    Add(runs, outcome);
  }
  ADD_FAILURE() << "the load never succeeded";
  return runs;
}

TEST_F(LoadMemoryTest, ReportsEachAllocationThatFailsAndLeavesNothing) {
  const std::string path = WriteTestFile("Main.rc", FormText("100"));
  const auto load = [&] { return LoadForm(path); };
  ASSERT_EQ(load(), (Outcome{RTX_OK, ""}));
  // Without memory for its symbols a form loads all the same where it needs none.
  EXPECT_EQ(FailInTurn<Allocations>("GlobalAlloc", load), ExpectedRuns({RTX_OK, ""}));
  const HandleCount before = CountHandles();
  EXPECT_EQ(FailInTurn<Allocations>("GlobalAlloc", load), ExpectedRuns({RTX_OK, ""}));
  EXPECT_EQ(FailInTurn<Locks>("GlobalLock", load), ExpectedRuns({RTX_OK, ""}));
  EXPECT_EQ(ToText(CountHandles()), ToText(before));
}

TEST_F(LoadMemoryTest, MissesTheSymbolsThatThereWasNoMemoryFor) {
  const std::string path = WriteTestFile("Main.rc", FormText("IDC_WORD"));
  const auto load = [&] { return LoadForm(path); };
  ASSERT_EQ(load(), (Outcome{RTX_OK, ""}));
  EXPECT_EQ(FailInTurn<Allocations>("GlobalAlloc", load),
            ExpectedRuns({723, "Dialog <Main>, Control Type <LTEXT>, Control i/d <IDC_WORD> is undefined"}));
}

TEST_F(LoadMemoryTest, ReportsTheTokenTableOfAnEditWindowAsItsRecord) {
  const std::string path =
      WriteTestFile("Main.rc", "Main DIALOG 0, 0, 9, 9\nCLASS \"Editwindow\"\nBEGIN\nEND\n");
  const auto allocationOfEdit = [&](int failAt) {
    const Frees frees("GlobalFree");
    const Allocations allocations("GlobalAlloc", failAt);
    const Outcome outcome = LoadForm(path);
    EXPECT_EQ(frees.calls(), allocations.calls() - 1);
    return outcome;
  };
  EXPECT_EQ(allocationOfEdit(260), (Outcome{708, "Not enough memory for window Main"}));
  EXPECT_EQ(allocationOfEdit(261), (Outcome{708, "Not enough memory for window Main"}));
}

TEST_F(LoadMemoryTest, NamesTheWindowWholeInItsMessages) {
  const std::string name(40, 'n');
  const std::string path = WriteTestFile("Main.rc", name + " DIALOG 0, 0, 9, 9\nBEGIN\nEND\n");
  const Allocations allocations("GlobalAlloc", 260);
  char message[200];
  EXPECT_EQ(Load(GetModuleHandleA(nullptr), name.c_str(), path.c_str(), nullptr, nullptr, nullptr, message,
                 sizeof message),
            RTX_NO_MEMORY);
  EXPECT_EQ(std::string(message), "Not enough memory for window " + name);
}

TEST_F(LoadMemoryTest, IsReportedBehindAMissingNameAndAheadOfABadFile) {
  const CountedImport<struct Allocating, HGLOBAL, UINT, SIZE_T> allocations("GlobalAlloc", -1);
  const auto loadOf = [](const char* name, const char* file) {
    char message[200];
    const int32_t code =
        Load(GetModuleHandleA(nullptr), name, file, nullptr, nullptr, nullptr, message, sizeof message);
    return Outcome{code, message};
  };
  EXPECT_EQ(loadOf("", "sub\\x.rc"), (Outcome{721, "Window object name is invalid."}));
  EXPECT_EQ(loadOf("Main", "sub\\x.rc"), kNoMemoryToLoad);
}

TEST_F(LoadMemoryTest, IsntNeededForAWindowThatExists) {
  const std::string path = WriteTestFile("Main.rc", FormText("100"));
  ASSERT_EQ(Load(GetModuleHandleA(nullptr), "Main", path.c_str(), nullptr, nullptr, nullptr, nullptr, 0),
            RTX_OK);
  const CountedImport<struct Allocating, HGLOBAL, UINT, SIZE_T> allocations("GlobalAlloc", -1);
  EXPECT_EQ(Load(GetModuleHandleA(nullptr), "Main", path.c_str(), nullptr, nullptr, nullptr, nullptr, 0),
            RTX_OK);
}

// ---- What else can't be had ----

TEST_F(LoadMemoryTest, FailsWith708WithoutAMenu) {
  const std::string path = WriteTestFile("Main.rc", FormText("100"));
  {
    const CountedImport<struct Menus, HMENU> menus("CreateMenu", 1);
    EXPECT_EQ(LoadForm(path), (Outcome{708, "Menu <Bar>, Not enough memory to create menu (Line 2, col 1)"}));
  }
  const HandleCount before = CountHandles();
  {
    const CountedImport<struct Popups, HMENU> popups("CreatePopupMenu", 1);
    EXPECT_EQ(LoadForm(path), (Outcome{708, "Menu <Bar>, Not enough memory to create menu (Line 3, col 9)"}));
  }
  const char* places[] = {"(Line 3, col 9)", "(Line 5, col 22)"};
  for (int failAt = 1; failAt <= 2; ++failAt) {
    const CountedImport<struct Appending, BOOL, HMENU, UINT, UINT_PTR, LPCSTR> appending("AppendMenuA",
                                                                                         failAt);
    EXPECT_EQ(LoadForm(path), (Outcome{708, std::string("Menu <Bar>, Not enough memory to create menu ") +
                                                places[failAt - 1]}));
  }
  EXPECT_EQ(ToText(CountHandles()), ToText(before));
}

TEST_F(LoadMemoryTest, KeepsNoMenuThatTheWindowDoesntTake) {
  const std::string path = WriteTestFile("Main.rc", FormText("100"));
  LoadForm(path);
  const HandleCount before = CountHandles();
  for (int failAt = 1; failAt <= 2; ++failAt) {
    const CountedImport<struct Setting, BOOL, HWND, HMENU> setting("SetMenu", failAt);
    EXPECT_EQ(LoadForm(path), (Outcome{RTX_OK, ""}));
  }
  EXPECT_EQ(ToText(CountHandles()), ToText(before));
}

TEST_F(LoadMemoryTest, GoesOnWithoutFonts) {
  const std::string path = WriteTestFile("Main.rc", FormText("100"));
  for (const int failAt : {1, 2, -1}) {
    SCOPED_TRACE(failAt);
    const CountedImport<struct Fonts, HFONT, const LOGFONTA*> fonts("CreateFontIndirectA", failAt);
    HWND window = nullptr;
    ASSERT_EQ(Load(GetModuleHandleA(nullptr), "Main", path.c_str(), nullptr, &window, nullptr, nullptr, 0),
              RTX_OK);
    EXPECT_EQ(RecordOf(window)->font == nullptr, failAt != 2);
    EXPECT_EQ(RecordOf(window)->drawFont == nullptr, failAt != 1);
    DestroyLibraryWindows();
  }
}

TEST_F(LoadMemoryTest, GoesOnWithoutADisplayContext) {
  const std::string path = WriteTestFile("Main.rc", FormText("100"));
  const CountedImport<struct Contexts, HDC, LPCSTR, LPCSTR, LPCSTR, const DEVMODEA*> contexts("CreateICA",
                                                                                              -1);
  EXPECT_EQ(LoadForm(path), (Outcome{RTX_OK, ""}));
}

TEST_F(LoadMemoryTest, GoesOnWithoutControls) {
  const std::string path = WriteTestFile("Main.rc", FormText("100"));
  LoadForm(path);
  const HandleCount before = CountHandles();
  for (int failAt = 2; failAt <= 4; ++failAt) {
    SCOPED_TRACE(failAt);
    const CountedImport<struct Creating, HWND, DWORD, LPCSTR, LPCSTR, DWORD, int, int, int, int, HWND, HMENU,
                        HINSTANCE, LPVOID>
        creating("CreateWindowExA", failAt);
    HWND window = nullptr;
    ASSERT_EQ(Load(GetModuleHandleA(nullptr), "Main", path.c_str(), nullptr, &window, nullptr, nullptr, 0),
              RTX_OK);
    for (int row = 1; row <= 3; ++row) EXPECT_EQ(RecordOf(window)[row].handle == nullptr, row == failAt - 1);
    DestroyLibraryWindows();
  }
  EXPECT_EQ(ToText(CountHandles()), ToText(before));
}

}  // namespace
}  // namespace brelt::test
