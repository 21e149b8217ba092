// A text that comes to a window one character at a time.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/imports.h"

namespace brelt::test {
namespace {

class CommandTextTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    window_ = LoadShown("Main", "  LTEXT \"A\", 101, 1, 1, 10, 10");
    texts_.clear();
    // The text lives for the event only.
    Log().onEvent = [this](HWND, const Event& event) {
      if (event.event == EV_CLICK) {
        EXPECT_NE(event.lParam, 0);
        if (event.lParam != 0) texts_.push_back(reinterpret_cast<const char*>(event.lParam));
      }
      return 0;
    };
  }

  void Post(const std::string& characters, WPARAM id = 7) const {
    for (const char c : characters) PostMessageA(window_, XM_COMMANDCHAR, id, c);
  }
  void PostText(const std::string& text, WPARAM id = 7) const { Post(text + '\0', id); }

  HWND window_ = nullptr;
  std::vector<std::string> texts_;
};

TEST_F(CommandTextTest, ATextIsOneClickWithTheIdThatCameWithIt) {
  PostText("Hello", 123);
  Pump();
  EXPECT_EQ(texts_, (std::vector<std::string>{"Hello"}));
  ASSERT_EQ(Log().events.size(), 1u);
  EXPECT_EQ(Log().events[0].event, static_cast<uint32_t>(EV_CLICK));
  EXPECT_EQ(Log().events[0].wParam, 123u);
}

TEST_F(CommandTextTest, TheFirstCharactersIdCounts) {
  PostMessageA(window_, XM_COMMANDCHAR, 5, 'a');
  PostMessageA(window_, XM_COMMANDCHAR, 6, 'b');
  PostMessageA(window_, XM_COMMANDCHAR, 8, 0);
  Pump();
  EXPECT_EQ(texts_, (std::vector<std::string>{"ab"}));
  EXPECT_EQ(Log().events[0].wParam, 5u);
}

TEST_F(CommandTextTest, SeveralTextsComeOneAfterTheOther) {
  PostText("one", 1);
  PostText("two", 2);
  PostText("three", 3);
  Pump();
  EXPECT_EQ(texts_, (std::vector<std::string>{"one", "two", "three"}));
}

TEST_F(CommandTextTest, ATextOver259CharactersIsCut) {
  for (const std::size_t length : {258u, 259u, 260u, 300u}) {
    texts_.clear();
    std::string text(length, 'x');
    text[0] = 'a';
    PostText(text);
    Pump();
    EXPECT_EQ(texts_, (std::vector<std::string>{text.substr(0, 259)})) << length;
  }
}

TEST_F(CommandTextTest, AnEmptyTextIsNotHeard) {
  PostText("");
  Pump();
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

TEST_F(CommandTextTest, AllBytesButZeroArrive) {
  std::string text;
  for (int c = 1; c < 256; ++c) text += static_cast<char>(c);
  PostText(text);
  Pump();
  EXPECT_EQ(texts_, (std::vector<std::string>{text}));
}

TEST_F(CommandTextTest, TheMessageGivesZero) {
  Log().onEvent = [](HWND, const Event&) { return 77; };
  PostMessageA(window_, XM_COMMANDCHAR, 7, 0);
  EXPECT_EQ(SendMessageA(window_, XM_COMMANDCHAR, 7, 'a'), 0);
  EXPECT_EQ(Log().Count(EV_CLICK), 1);
}

TEST_F(CommandTextTest, ADisabledWindowTakesTheTextWithoutAWord) {
  EnableWindow(window_, FALSE);
  PostText("lost");
  Pump();
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  EnableWindow(window_, TRUE);
  PostText("heard");
  Pump();
  EXPECT_EQ(texts_, (std::vector<std::string>{"heard"}));
}

TEST_F(CommandTextTest, AWindowTakesItsOwnCharactersOnly) {
  const HWND other = LoadDialog("Other", "  LTEXT \"A\", 101, 1, 1, 10, 10").window;
  Log().Clear();
  PostMessageA(window_, XM_COMMANDCHAR, 1, 'a');
  PostMessageA(other, XM_COMMANDCHAR, 2, 'x');
  PostMessageA(window_, XM_COMMANDCHAR, 1, 'b');
  PostMessageA(other, XM_COMMANDCHAR, 2, 'y');
  PostMessageA(window_, XM_COMMANDCHAR, 1, 0);
  PostMessageA(other, XM_COMMANDCHAR, 2, 0);
  Pump();
  EXPECT_EQ(texts_, (std::vector<std::string>{"ab", "xy"}));
  EXPECT_EQ(Log().windows, (std::vector<HWND>{window_, other}));
}

TEST_F(CommandTextTest, OtherMessagesWaitUntilTheTextIsThere) {
  PostMessageA(window_, XM_COMMANDCHAR, 1, 'a');
  PostMessageA(window_, EV_CUSTOM, 1, 1);
  PostMessageA(window_, XM_COMMANDCHAR, 1, 0);
  Pump();
  ASSERT_EQ(Log().events.size(), 2u);
  EXPECT_EQ(Log().events[0].event, static_cast<uint32_t>(EV_CLICK));
  EXPECT_EQ(Log().events[1], (Event{EV_CUSTOM, 1, 1}));
}

// Does something when the library has looked for the next character in vain three times.
class ThirdMiss {
 public:
  explicit ThirdMiss(const std::function<void()>& action)
      : import_("PeekMessageA", reinterpret_cast<void*>(&Peek)) {
    action_ = action;
    original_ = reinterpret_cast<decltype(original_)>(import_.original());
    misses_ = 0;
  }
  int misses() const { return misses_; }

 private:
  static BOOL WINAPI Peek(MSG* message, HWND window, UINT first, UINT last, UINT flags) {
    if (original_(message, window, first, last, flags)) return TRUE;
    if (++misses_ == 3) action_();
    return FALSE;
  }

  static inline std::function<void()> action_;
  static inline BOOL(WINAPI* original_)(MSG*, HWND, UINT, UINT, UINT);
  static inline int misses_;
  ReplacedImport import_;
};

TEST_F(CommandTextTest, CharactersThatComeLaterAreWaitedFor) {
  const ThirdMiss miss([this] { PostText("bc", 1); });
  SendMessageA(window_, XM_COMMANDCHAR, 1, 'a');
  EXPECT_EQ(miss.misses(), 3);
  EXPECT_EQ(texts_, (std::vector<std::string>{"abc"}));
}

// A message that another thread sends may take the window along while its text is awaited.
TEST_F(CommandTextTest, AWindowThatGoesWaitsForNoMoreCharacters) {
  const ThirdMiss miss([this] { DestroyWindow(window_); });
  SendMessageA(window_, XM_COMMANDCHAR, 1, 'a');
  EXPECT_EQ(miss.misses(), 3);
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

TEST_F(CommandTextTest, ATextWhoseEndNeverComesIsHeardAfterTwoSeconds) {
  Post("abc");
  const DWORD start = GetTickCount();
  Pump();
  const DWORD took = GetTickCount() - start;
  EXPECT_EQ(texts_, (std::vector<std::string>{"abc"}));
  EXPECT_GE(took, 1990u);
  EXPECT_LT(took, 6000u);
}

// A quit message is nobody's character, and is for the loop.
TEST_F(CommandTextTest, AQuitMessageThatComesInBetweenIsKept) {
  PostText("abc");
  MSG message = {};
  ASSERT_TRUE(PeekMessageA(&message, window_, XM_COMMANDCHAR, XM_COMMANDCHAR, PM_REMOVE));
  PostQuitMessage(9);
  DispatchMessageA(&message);
  EXPECT_EQ(texts_, (std::vector<std::string>{"abc"}));
  EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0)) << "The loop's turn";
  EXPECT_EQ(message.wParam, 9u);
}

TEST_F(CommandTextTest, AQuitMessageBehindHalfATextIsKept) {
  MSG message = {};
  const DWORD start = GetTickCount();
  Post("a");
  ASSERT_TRUE(PeekMessageA(&message, window_, XM_COMMANDCHAR, XM_COMMANDCHAR, PM_REMOVE));
  PostQuitMessage(9);
  DispatchMessageA(&message);
  EXPECT_EQ(texts_, (std::vector<std::string>{"a"}));
  EXPECT_GE(GetTickCount() - start, 1990u) << "It doesn't end the text either";
  ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 9u);
}

}  // namespace
}  // namespace brelt::test
