#include <brelt.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/win32/support/classes.h"

namespace brelt::test {
namespace {

class FindWindowTest : public ::testing::Test {
 protected:
  const TestClass class_{"Brelt.Find.Class"};
  const TestWindow window_{class_.name(), "A Title of its own"};
};

TEST_F(FindWindowTest, ComparesClassAndTitleExactlyInMode0AndWithoutCaseInMode1) {
  struct Case {
    const char* className;
    const char* title;
    bool mode0, mode1;
  };
  const Case cases[] = {
      {"Brelt.Find.Class", "A Title of its own", true, true},
      {"brelt.find.class", "A Title of its own", false, true},
      {"Brelt.Find.Class", "a title OF ITS own", false, true},
      {"Brelt.Find.Class", "A Title", false, false},
      {"Brelt.Find", "A Title of its own", false, false},
      {"Brelt.*", "*own", true, true},
      {"BRELT.*", "*OWN", false, true},
      {"*.Class", "A Title*", true, true},
      {"*.class", "a title*", false, true},
      {"*Find*", "A Title*", false, false},
      {"Brelt.Find.Class", "*", true, true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.className) + " / " + c.title);
    for (const int32_t threadOnly : {0, 1, 2, -1}) {
      EXPECT_EQ(FindWindowHandle(c.className, c.title, 0, threadOnly), c.mode0 ? window_.get() : nullptr);
      EXPECT_EQ(FindWindowHandle(c.className, c.title, 1, threadOnly), c.mode1 ? window_.get() : nullptr);
    }
  }
}

TEST_F(FindWindowTest, KnowsNoOtherMode) {
  for (const int32_t mode : {2, -1, 256, INT32_MIN}) {
    EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", "A Title of its own", mode, 1), nullptr) << mode;
  }
}

TEST_F(FindWindowTest, NeedsBothTexts) {
  const TestWindow untitled(class_.name(), "");
  for (const int32_t threadOnly : {0, 1}) {
    EXPECT_EQ(FindWindowHandle(nullptr, "*", 0, threadOnly), nullptr);
    EXPECT_EQ(FindWindowHandle("", "*", 0, threadOnly), nullptr);
    EXPECT_EQ(FindWindowHandle("*", nullptr, 0, threadOnly), nullptr);
    EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", "", 0, threadOnly), nullptr);
  }
}

TEST_F(FindWindowTest, TakesAWindowWithoutATitleForAStar) {
  SetWindowTextA(window_.get(), "");
  EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", "*", 0, 1), window_.get());
}

TEST_F(FindWindowTest, GivesTheFirstThatMatchesBoth) {
  const TestClass other("Brelt.Other.Class");
  const TestWindow sameTitle(other.name(), "A Title of its own");
  const TestWindow sameClass(class_.name(), "Another title");
  for (HWND top : {sameTitle.get(), sameClass.get(), window_.get()}) {
    SetWindowPos(top, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", "A Title of its own", 0, 1), window_.get());
  }
  // Two that match: the one that the platform names first.
  const TestWindow twin(class_.name(), "A Title of its own");
  for (HWND top : {twin.get(), window_.get()}) {
    SetWindowPos(top, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    HWND first = GetTopWindow(nullptr);
    while (first != twin.get() && first != window_.get()) first = GetWindow(first, GW_HWNDNEXT);
    EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", "A Title of its own", 0, 1), first);
  }
}

TEST_F(FindWindowTest, FindsNoChildWindow) {
  const TestWindow child(class_.name(), "A child", WS_CHILD, window_.get());
  EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", "A child", 0, 1), nullptr);
  EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", "A child", 0, 0), nullptr);
}

TEST_F(FindWindowTest, CutsTheClassTo32Characters) {
  const std::string first32 = "abcdefghijklmnopqrstuvwxyz012345";
  const TestClass longer(first32 + "6789");
  const TestWindow window(longer.name(), "long class");
  EXPECT_EQ(FindWindowHandle(longer.name(), "long class", 0, 1), window.get());
  EXPECT_EQ(FindWindowHandle((first32 + "other").c_str(), "long class", 0, 1), window.get());
  EXPECT_EQ(FindWindowHandle(first32.c_str(), "long class", 0, 1), window.get());
  EXPECT_EQ(FindWindowHandle(first32.substr(0, 31).c_str(), "long class", 0, 1), nullptr);
  // The star of a longer pattern is cut off with the rest.
  EXPECT_EQ(FindWindowHandle((first32.substr(0, 31) + "x*").c_str(), "long class", 0, 1), nullptr);
  EXPECT_EQ(FindWindowHandle((first32.substr(0, 31) + "*").c_str(), "long class", 0, 1), window.get());
}

TEST_F(FindWindowTest, CutsTheTitleTo255Characters) {
  const std::string first255(255, 't');
  SetWindowTextA(window_.get(), (first255 + "uvw").c_str());
  EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", (first255 + "uvw").c_str(), 0, 1), window_.get());
  EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", (first255 + "other").c_str(), 0, 1), window_.get());
  EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", first255.c_str(), 0, 1), window_.get());
  EXPECT_EQ(FindWindowHandle("Brelt.Find.Class", first255.substr(1).c_str(), 0, 1), nullptr);
}

// Makes a window on a thread of its own and answers its messages until the owner of this lets it end.
class WindowOfAnotherThread {
 public:
  WindowOfAnotherThread() : ready_(CreateEventA(nullptr, TRUE, FALSE, nullptr)) {
    thread_ = CreateThread(nullptr, 0, Run, this, 0, &id_);
    EXPECT_EQ(WaitForSingleObject(ready_, 30000), WAIT_OBJECT_0);
  }
  WindowOfAnotherThread(const WindowOfAnotherThread&) = delete;
  WindowOfAnotherThread& operator=(const WindowOfAnotherThread&) = delete;
  ~WindowOfAnotherThread() {
    PostThreadMessageA(id_, WM_QUIT, 0, 0);
    WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
    CloseHandle(ready_);
  }

  HWND get() const { return window_; }

 private:
  static DWORD WINAPI Run(LPVOID context) {
    auto* self = static_cast<WindowOfAnotherThread*>(context);
    const TestWindow window("STATIC", "Of another thread");
    self->window_ = window.get();
    SetEvent(self->ready_);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
    return 0;
  }

  HANDLE ready_;
  HANDLE thread_ = nullptr;
  DWORD id_ = 0;
  HWND window_ = nullptr;
};

TEST_F(FindWindowTest, LooksAtOtherThreadsWindowsUnlessToldNotTo) {
  const WindowOfAnotherThread other;
  EXPECT_EQ(FindWindowHandle("STATIC", "of another thread", 1, 1), nullptr);
  for (const int32_t threadOnly : {0, 2, -1}) {
    EXPECT_EQ(FindWindowHandle("STATIC", "of another thread", 1, threadOnly), other.get()) << threadOnly;
  }
}

}  // namespace
}  // namespace brelt::test
