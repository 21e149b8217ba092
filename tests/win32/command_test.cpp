// Texts that are sent to a window's event function, from this thread and program or another.
#include <cstdio>
#include <vector>

#include "tests/win32/support/child.h"
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"

namespace brelt::test {
namespace {

constexpr DWORD kTimeLimit = 30000;

struct Sent {
  uint32_t id;
  std::string text;

  bool operator==(const Sent&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Sent& sent) { return out << sent.id << " " << sent.text; }

struct Posted {
  HWND window;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;

  bool operator==(const Posted&) const = default;
};
std::vector<Posted> posted;
BOOL WINAPI CollectPost(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  posted.push_back({window, message, wParam, lParam});
  return TRUE;
}

std::string AllCharacters() {
  std::string text;
  for (int c = 1; c < 256; ++c) text += static_cast<char>(c);
  return text;
}

class CommandCallTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    const LoadResult form = LoadDialog("Form", "  PUSHBUTTON \"a\", 101, 0, 0, 50, 10\n");
    ASSERT_EQ(form.code, RTX_OK);
    window_ = form.window;
    Pump();
    Log().Clear();
    Log().onEvent = [this](HWND, const Event& event) {
      if (event.event == EV_CLICK && event.lParam != 0) {
        sent_.push_back({event.wParam, reinterpret_cast<const char*>(event.lParam)});
      }
      return 0;
    };
  }
  void PostCharacters(const std::string& characters, WPARAM id = 101) const {
    for (const char c : characters) PostMessageA(window_, XM_COMMANDCHAR, id, c);
  }

  HWND window_ = nullptr;
  std::vector<Sent> sent_;
};

TEST_F(CommandCallTest, ReportsTextThenWindowThenClassThenId) {
  const TestClass boxClass("MSGBOX.1.3.2207", 40);
  const TestWindow box(boxClass.name());
  HWND control = GetDlgItem(window_, 101);
  HWND gone = nullptr;
  {
    const TestWindow window("STATIC");
    gone = window.get();
  }
  struct Case {
    const char* what;
    HWND window;
    int32_t id;
    const char* text;
    int32_t code;
  };
  const Case cases[] = {{"null text ahead of all", nullptr, 0, nullptr, 756},
                        {"null text", window_, 1, nullptr, 756},
                        {"null window ahead of the id", nullptr, 0, "x", 702},
                        {"a window that is gone", gone, 1, "x", 702},
                        {"no handle at all", reinterpret_cast<HWND>(0x7654), 1, "x", 702},
                        {"a control ahead of the id", control, 0, "x", 703},
                        {"the desktop", GetDesktopWindow(), 1, "x", 703},
                        {"a box of the library", box.get(), 1, "x", 703},
                        {"id 0", window_, 0, "x", 727},
                        {"id -1", window_, -1, "x", 727},
                        {"id 1", window_, 1, "x", 0},
                        {"the largest id", window_, 0x7FFFFFFF, "x", 0}};
  const ReplacedImport post("PostMessageA", reinterpret_cast<void*>(&CollectPost));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    posted.clear();
    EXPECT_EQ(Command(c.window, c.id, c.text), c.code);
    EXPECT_EQ(posted.size(), c.code == RTX_OK ? 2u : 0u);
  }
}

TEST_F(CommandCallTest, PostsEachCharacterSignedAndThenA0) {
  const ReplacedImport post("PostMessageA", reinterpret_cast<void*>(&CollectPost));
  posted.clear();
  ASSERT_EQ(Command(window_, 70000, "a\x7F\x80\xFF"), RTX_OK);
  EXPECT_EQ(posted, (std::vector<Posted>{{window_, 1282, 70000, 'a'},
                                         {window_, 1282, 70000, 127},
                                         {window_, 1282, 70000, -128},
                                         {window_, 1282, 70000, -1},
                                         {window_, 1282, 70000, 0}}));
  posted.clear();
  ASSERT_EQ(Command(window_, 5, ""), RTX_OK);
  EXPECT_EQ(posted, (std::vector<Posted>{{window_, 1282, 5, 0}}));
}

TEST_F(CommandCallTest, PostsAtMost259Characters) {
  const ReplacedImport post("PostMessageA", reinterpret_cast<void*>(&CollectPost));
  for (const std::size_t length : {258u, 259u, 260u, 5000u}) {
    posted.clear();
    ASSERT_EQ(Command(window_, 1, std::string(length, 'x').c_str()), RTX_OK);
    EXPECT_EQ(posted.size(), std::min<std::size_t>(length, 259) + 1);
    EXPECT_EQ(posted.back().lParam, 0);
  }
}

TEST_F(CommandCallTest, ReachesAllThreeKindsOfWindows) {
  const ReplacedImport post("PostMessageA", reinterpret_cast<void*>(&CollectPost));
  for (const char* name : {"Editwindow.1.3.2207", "Richeditwindow.1.3.2207"}) {
    SCOPED_TRACE(name);
    const TestClass editClass(name, 40);
    const TestWindow edit(editClass.name());
    posted.clear();
    EXPECT_EQ(Command(edit.get(), 1, ""), RTX_OK);
    EXPECT_EQ(posted, (std::vector<Posted>{{edit.get(), 1282, 1, 0}}));
  }
}

TEST_F(CommandCallTest, ComesAsAClickWhenMessagesAreHandledNext) {
  ASSERT_EQ(Command(window_, 70001, "a text"), RTX_OK);
  ASSERT_EQ(Command(window_, 2, AllCharacters().c_str()), RTX_OK);
  ASSERT_EQ(Command(window_, 3, ""), RTX_OK);
  ASSERT_EQ(Command(window_, 101, std::string(300, 'y').c_str()), RTX_OK);
  EXPECT_TRUE(sent_.empty());
  Pump();
  EXPECT_EQ(sent_,
            (std::vector<Sent>{{70001, "a text"}, {2, AllCharacters()}, {101, std::string(259, 'y')}}));
  EXPECT_EQ(Log().events.size(), 3u);
  EXPECT_EQ(Log().windows, std::vector<HWND>(3, window_));
}

TEST_F(CommandCallTest, ReachesAnEventFunctionThatSendsAnother) {
  Log().onEvent = [this](HWND window, const Event& event) {
    if (event.event != EV_CLICK) return 0;
    sent_.push_back({event.wParam, reinterpret_cast<const char*>(event.lParam)});
    if (event.wParam < 4) Command(window, static_cast<int32_t>(event.wParam) + 1, sent_.back().text.c_str());
    Pump();
    return 0;
  };
  ASSERT_EQ(Command(window_, 1, "again"), RTX_OK);
  Pump();
  EXPECT_EQ(sent_, (std::vector<Sent>{{1, "again"}, {2, "again"}, {3, "again"}, {4, "again"}}));
}

TEST_F(CommandCallTest, TakesTheIdOfItsFirstCharacter) {
  PostCharacters("ab", 7);
  PostCharacters(std::string("c\0", 2), 8);
  Pump();
  EXPECT_EQ(sent_, (std::vector<Sent>{{7, "abc"}}));
}

TEST_F(CommandCallTest, KeepsAtMost259CharactersOfWhatOthersPost) {
  PostCharacters(std::string(300, 'z') + '\0');
  Pump();
  EXPECT_EQ(sent_, (std::vector<Sent>{{101, std::string(259, 'z')}}));
}

TEST_F(CommandCallTest, WhoseEndNeverComesIsDeliveredAfterTwoSeconds) {
  PostCharacters("abc");
  const DWORD start = GetTickCount();
  ASSERT_TRUE(PumpUntil([this] { return !sent_.empty(); }, kTimeLimit));
  const DWORD waited = GetTickCount() - start;
  EXPECT_GE(waited, 1950u);
  EXPECT_LT(waited, 10000u);
  EXPECT_EQ(sent_, (std::vector<Sent>{{101, "abc"}}));
}

// Posts the rest of a text when the library has looked for it in vain a few times.
struct LateRest {
  BOOL(WINAPI* peek)(MSG*, HWND, UINT, UINT, UINT);
  HWND window;
  int misses;
};
LateRest late;

BOOL WINAPI PeekAndPostLate(MSG* message, HWND window, UINT first, UINT last, UINT flags) {
  if (late.peek(message, window, first, last, flags)) return TRUE;
  if (++late.misses == 5) {
    for (const char c : std::string("late\0", 5)) PostMessageA(late.window, XM_COMMANDCHAR, 101, c);
  }
  return FALSE;
}

TEST_F(CommandCallTest, IsWaitedForWhileItComes) {
  const ReplacedImport peek("PeekMessageA", reinterpret_cast<void*>(&PeekAndPostLate));
  late = {reinterpret_cast<decltype(late.peek)>(peek.original()), window_, 0};
  PostCharacters("not too ");
  ASSERT_TRUE(PumpUntil([this] { return !sent_.empty(); }, kTimeLimit));
  EXPECT_EQ(late.misses, 5);
  EXPECT_EQ(sent_, (std::vector<Sent>{{101, "not too late"}}));
}

TEST_F(CommandCallTest, IsDroppedByADisabledWindow) {
  EnableWindow(window_, FALSE);
  ASSERT_EQ(Command(window_, 1, "unheard"), RTX_OK);
  Pump();
  EnableWindow(window_, TRUE);
  Pump();
  EXPECT_TRUE(sent_.empty());
  ASSERT_EQ(Command(window_, 1, "heard"), RTX_OK);
  Pump();
  EXPECT_EQ(sent_, (std::vector<Sent>{{1, "heard"}}));
}

TEST_F(CommandCallTest, GoesWithItsWindow) {
  ASSERT_EQ(Command(window_, 1, "unheard"), RTX_OK);
  DestroyWindow(window_);
  Pump();
  EXPECT_TRUE(sent_.empty());
}

// ---- Another thread ----

struct OtherThread {
  HANDLE ready = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  HWND window = nullptr;
  std::vector<Sent> sent;
};
OtherThread* other = nullptr;

int32_t __stdcall HearInOtherThread(HWND window, uint32_t event, uint32_t wParam, int32_t lParam) {
  if (event != EV_CLICK) return 0;
  other->sent.push_back({wParam, reinterpret_cast<const char*>(lParam)});
  if (wParam == 999) DestroyWindow(window);
  return 0;
}

DWORD WINAPI RunOtherThread(LPVOID) {
  other->window =
      LoadText("Other", "Other DIALOG 0, 0, 9, 9\nSTYLE WS_POPUP\nBEGIN\nEND\n", HearInOtherThread).window;
  SetEvent(other->ready);
  MSG message;
  while (IsWindow(other->window) && GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}

TEST_F(CommandCallTest, ReachesAWindowOfAnotherThread) {
  OtherThread state;
  other = &state;
  HANDLE thread = CreateThread(nullptr, 0, RunOtherThread, nullptr, 0, nullptr);
  ASSERT_EQ(WaitForSingleObject(state.ready, kTimeLimit), WAIT_OBJECT_0);
  EXPECT_EQ(Command(state.window, 5, "across threads"), RTX_OK);
  EXPECT_EQ(Command(state.window, 6, ""), RTX_OK);
  EXPECT_EQ(Command(state.window, 7, AllCharacters().c_str()), RTX_OK);
  EXPECT_EQ(Command(state.window, 8, std::string(260, 'x').c_str()), RTX_OK);
  EXPECT_EQ(Command(state.window, 999, "end"), RTX_OK);
  ASSERT_EQ(WaitForSingleObject(thread, kTimeLimit), WAIT_OBJECT_0);
  CloseHandle(thread);
  CloseHandle(state.ready);
  EXPECT_EQ(state.sent,
            (std::vector<Sent>{
                {5, "across threads"}, {7, AllCharacters()}, {8, std::string(259, 'x')}, {999, "end"}}));
  EXPECT_TRUE(sent_.empty());
}

// ---- Another program ----

std::string Line(uint32_t id, const std::string& text) {
  std::string line = std::to_string(id) + " ";
  for (const char c : text) {
    char digits[4];
    std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned char>(c));
    line += digits;
  }
  return line + "\r\n";
}

TEST_F(CommandCallTest, ReachesAWindowOfAnotherProgram) {
  const std::string script =
      WriteTestFile("child.rc", "Child DIALOG 0, 0, 9, 9\nCAPTION \"Command child\"\nBEGIN\nEND\n");
  const std::string log = TestFolder() + "child.txt";
  std::remove(log.c_str());
  const NamedEvent ready("brelt.commandchild");
  const ChildProcess child("commandchild.exe", script + " brelt.commandchild " + log);
  ASSERT_TRUE(ready.IsSetWithin(kTimeLimit));
  HWND window = FindWindowHandle("Dialog.*", "Command child", 0, 0);
  ASSERT_TRUE(IsWindow(window));
  EXPECT_EQ(Command(window, 5, "across programs"), RTX_OK);
  EXPECT_EQ(Command(window, 6, ""), RTX_OK);
  EXPECT_EQ(Command(window, 7, AllCharacters().c_str()), RTX_OK);
  EXPECT_EQ(Command(window, 8, std::string(260, 'x').c_str()), RTX_OK);
  EXPECT_EQ(Command(window, 999, "end"), RTX_OK);
  ASSERT_TRUE(child.EndsWithin(kTimeLimit));
  EXPECT_EQ(child.ExitCode(), 4u);
  EXPECT_EQ(ReadTestFile(log), Line(5, "across programs") + Line(7, AllCharacters()) +
                                   Line(8, std::string(259, 'x')) + Line(999, "end"));
  EXPECT_EQ(Command(window, 5, "gone"), RTX_NO_WINDOW);
  EXPECT_TRUE(sent_.empty());
}

}  // namespace
}  // namespace brelt::test
