// The two key filters by themselves: which messages they look at, and when a key counts as used up.
#include "forms/keys.h"
#include "frame/library.h"
#include "frame/winobject.h"
#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

MSG KeyMessage(UINT message, WPARAM key, HWND window) {
  MSG result = {};
  result.hwnd = window;
  result.message = message;
  result.wParam = key;
  return result;
}

// Holds modifiers down as far as this thread can tell.
class HeldKeys {
 public:
  explicit HeldKeys(std::initializer_list<BYTE> keys) {
    GetKeyboardState(before_);
    BYTE state[256];
    GetKeyboardState(state);
    for (const BYTE key : {BYTE{VK_SHIFT}, BYTE{VK_CONTROL}, BYTE{VK_MENU}}) state[key] = 0;
    for (const BYTE key : keys) state[key] = 0x80;
    SetKeyboardState(state);
  }
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;
  ~HeldKeys() { SetKeyboardState(before_); }

 private:
  BYTE before_[256];
};

class KeyFilterTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    window_ =
        LoadText("Main",
                 "MainMenu MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"Go\\tF5\", 201\n"
                 "    MENUITEM \"Grey\\tF6\", 202, GRAYED\n  END\nEND\n"
                 "Main DIALOG 10, 10, 200, 150\nMENU MainMenu\nBEGIN\n"
                 "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14\n  PUSHBUTTON \"B\", 2, 10, 30, 50, 14\nEND\n")
            .window;
    ShowForm("Main");
    Pump();
    Log().Clear();
  }
  void TearDown() override {
    Library.UserBreak = 0;
    FormTest::TearDown();
  }

  bool Preview(UINT message, WPARAM key) const {
    return KeyPreview(window_, KeyMessage(message, key, window_));
  }
  const rc::AcceleratorRow* Table() const {
    return ReadPointer<rc::AcceleratorRow>(window_, SLOT_ACCELTABLE);
  }
  bool Keys(UINT message, WPARAM key) const {
    return MenuKeys(window_, Table(), KeyMessage(message, key, window_));
  }
  void AnswerKeys(int32_t answer) const {
    Log().onEvent = [answer](HWND, const Event& event) { return event.event == EV_KEYPRESS ? answer : 0; };
  }

  HWND window_ = nullptr;
};

// ---- Preview ----

TEST_F(KeyFilterTest, ThePreviewLooksAtKeysThatGoDown) {
  const HeldKeys none({});
  for (const UINT message : {WM_KEYDOWN, WM_SYSKEYDOWN}) {
    Log().Clear();
    EXPECT_FALSE(Preview(message, VK_F2));
    EXPECT_TRUE(Heard({{EV_KEYPRESS, 101, VK_F2}}));
  }
  Log().Clear();
  AnswerKeys(1);
  for (const UINT message : {WM_KEYUP, WM_SYSKEYUP, WM_CHAR, WM_SYSCHAR, WM_DEADCHAR, WM_COMMAND, WM_NULL}) {
    EXPECT_FALSE(Preview(message, VK_F2)) << message;
    EXPECT_FALSE(Preview(message, VK_CANCEL)) << message;
    EXPECT_FALSE(Preview(message, VK_ESCAPE)) << message;
  }
  EXPECT_TRUE(Heard(std::vector<Event>{}));
  EXPECT_EQ(GetUserBreak(), 0);
}

TEST_F(KeyFilterTest, ThePreviewNeedsAWindow) {
  AnswerKeys(1);
  const HeldKeys none({});
  for (const HWND window : {HWND{nullptr}, reinterpret_cast<HWND>(0x5A5A5A)}) {
    EXPECT_FALSE(KeyPreview(window, KeyMessage(WM_KEYDOWN, VK_F2, window_)));
    EXPECT_FALSE(KeyPreview(window, KeyMessage(WM_KEYDOWN, VK_CANCEL, window_)));
  }
  EXPECT_EQ(GetUserBreak(), 0);
}

TEST_F(KeyFilterTest, AKeyIsUsedUpWhenItsWindowIsGone) {
  const struct {
    WPARAM key;
    std::initializer_list<BYTE> held;
  } kKeys[] = {{VK_F2, {}}, {VK_ESCAPE, {}}, {VK_RETURN, {}}, {'A', {VK_CONTROL}}, {VK_CANCEL, {VK_CONTROL}}};
  for (const auto& row : kKeys) {
    SCOPED_TRACE(row.key);
    const HWND window = LoadDialog("Second", "  PUSHBUTTON \"B\", 2, 10, 30, 50, 14").window;
    Log().onEvent = [](HWND source, const Event& event) {
      if (event.event == EV_KEYPRESS || event.event == EV_USERBREAK) DestroyWindow(source);
      return 0;
    };
    const HeldKeys held(row.held);
    EXPECT_TRUE(KeyPreview(window, KeyMessage(WM_KEYDOWN, row.key, window)));
    EXPECT_FALSE(IsWindow(window));
  }
}

TEST_F(KeyFilterTest, ThePreviewOfAWindowThatIsNoDialogGivesNoFocusId) {
  const TestClass foreign("FOREIGN", kSlotBytes, 0, Dialog_proc);
  const TestWindow window(foreign.name());
  WriteSlot(window.get(), SLOT_FUNCPTR, reinterpret_cast<LONG>(RecordEvent));
  SetFocus(GetDlgItem(window_, 101));
  Log().Clear();
  const HeldKeys none({});
  KeyPreview(window.get(), KeyMessage(WM_KEYDOWN, VK_F2, nullptr));
  EXPECT_TRUE(Heard({{window.get(), {EV_KEYPRESS, 0, VK_F2}}}));
}

TEST_F(KeyFilterTest, EscapeCountsAsButtonTwoUnlessTheProgramTookIt) {
  const HeldKeys none({});
  for (const int32_t answer : {0, -1, 1}) {
    SCOPED_TRACE(answer);
    AnswerKeys(answer);
    Library.LastButtonId = 77;
    EXPECT_TRUE(Preview(WM_KEYDOWN, VK_ESCAPE));
    EXPECT_EQ(Library.LastButtonId, answer > 0 ? 77 : 2);
  }
  DestroyWindow(GetDlgItem(window_, 2));
  for (const int32_t answer : {0, -1, 1}) {
    SCOPED_TRACE(answer);
    AnswerKeys(answer);
    Library.LastButtonId = 77;
    EXPECT_EQ(Preview(WM_KEYDOWN, VK_ESCAPE), answer > 0);
    EXPECT_EQ(Library.LastButtonId, 77);
  }
}

// Every key with every set of modifiers, by the rule of which each is heard.
TEST_F(KeyFilterTest, ThePreviewHearsOfExactlyTheListedKeys) {
  AnswerKeys(1);
  const auto isPlain = [](int key) {
    return key == VK_RETURN || (key >= 33 && key <= 40) || key == VK_DELETE ||
           (key >= VK_F1 && key <= VK_F12) || key == VK_ESCAPE;
  };
  for (int held = 0; held < 8; ++held) {
    const BYTE shift = (held & 1) != 0 ? VK_SHIFT : 0;
    const BYTE control = (held & 2) != 0 ? VK_CONTROL : 0;
    const BYTE alt = (held & 4) != 0 ? VK_MENU : 0;
    const HeldKeys keys({shift, control, alt});
    for (int key = 1; key < 256; ++key) {
      if (key == VK_CANCEL) continue;
      Log().Clear();
      const bool taken = Preview(WM_KEYDOWN, static_cast<WPARAM>(key));
      std::vector<Event> expected;
      if (held == 0 && isPlain(key)) expected = {{EV_KEYPRESS, 101, key}};
      if (held == 2 && key >= 'A' && key <= 'Z') expected = {{EV_KEYPRESS, 101, 0x1100 | key}};
      EXPECT_EQ(Log().events, expected) << "key " << key << ", held " << held;
      EXPECT_EQ(taken, !expected.empty());
    }
    Log().Clear();
    Library.UserBreak = 0;
    EXPECT_FALSE(Preview(WM_KEYDOWN, VK_CANCEL));
    EXPECT_TRUE(Heard({{EV_USERBREAK, 0, 0}}));
    EXPECT_EQ(Library.UserBreak, 1);
  }
}

// ---- Menu keys ----

TEST_F(KeyFilterTest, MenuKeysLookAtKeysThatGoDown) {
  const HeldKeys none({});
  for (const UINT message : {WM_KEYDOWN, WM_SYSKEYDOWN}) {
    Log().Clear();
    EXPECT_TRUE(Keys(message, VK_F5));
    EXPECT_TRUE(Heard({{EV_CLICK, 201, 0}}));
    EXPECT_TRUE(Keys(message, VK_F6)) << "The key of a grey item is used up";
    EXPECT_FALSE(Keys(message, VK_F7));
  }
  Log().Clear();
  for (const UINT message : {WM_KEYUP, WM_SYSKEYUP, WM_CHAR, WM_SYSCHAR}) EXPECT_FALSE(Keys(message, VK_F5));
  EXPECT_TRUE(Heard(std::vector<Event>{}));
}

TEST_F(KeyFilterTest, MenuKeysNeedAWindowATableAndAMenu) {
  const HeldKeys none({});
  const MSG key = KeyMessage(WM_KEYDOWN, VK_F5, window_);
  EXPECT_FALSE(MenuKeys(nullptr, Table(), key));
  EXPECT_FALSE(MenuKeys(window_, nullptr, key));
  HMENU menu = GetMenu(window_);
  SetMenu(window_, nullptr);
  EXPECT_FALSE(MenuKeys(window_, Table(), key));
  SetMenu(window_, menu);
  EXPECT_TRUE(MenuKeys(window_, Table(), key));
}

TEST_F(KeyFilterTest, F10AloneIsUsedUpInAnyCase) {
  const MSG key = KeyMessage(WM_SYSKEYDOWN, VK_F10, window_);
  {
    const HeldKeys none({});
    EXPECT_TRUE(MenuKeys(window_, Table(), key));
    EXPECT_TRUE(MenuKeys(window_, nullptr, key));
    EXPECT_TRUE(MenuKeys(nullptr, nullptr, key));
    EXPECT_FALSE(MenuKeys(window_, Table(), KeyMessage(WM_SYSKEYUP, VK_F10, window_)));
    EXPECT_FALSE(MenuKeys(window_, Table(), KeyMessage(WM_KEYDOWN, VK_F10, window_)));
  }
  for (const BYTE held : {BYTE{VK_SHIFT}, BYTE{VK_CONTROL}, BYTE{VK_MENU}}) {
    const HeldKeys keys({held});
    EXPECT_FALSE(MenuKeys(window_, Table(), key));
  }
}

TEST_F(KeyFilterTest, AltLetGoIsLeftToTheWindowThatIsActive) {
  const MSG key = KeyMessage(WM_SYSKEYUP, VK_MENU, window_);
  ASSERT_EQ(GetActiveWindow(), window_);
  EXPECT_FALSE(MenuKeys(window_, Table(), key));
}

}  // namespace
}  // namespace brelt::test
