// Nothing is left behind by showing and closing.
#include "tests/win32/support/forms.h"
#include "tests/win32/support/handles.h"
#include "tests/win32/support/input.h"
#include "tests/win32/support/script.h"
#include "tests/win32/support/slots.h"

namespace brelt::test {
namespace {

class ShowLeakTest : public FormTest {
 protected:
  // Runs a cycle some times for what the system keeps of each first use, and then ten times. What one cycle
  // leaves behind is there ten times then; the system's own caches may move by a few.
  static void ExpectNoGrowth(const std::function<void()>& cycle) {
    constexpr int kCycles = 10;
    for (int i = 0; i < 3; ++i) cycle();
    const HandleCount before = CountHandles();
    for (int i = 0; i < kCycles; ++i) cycle();
    const HandleCount after = CountHandles();
    SCOPED_TRACE("before: " + ToText(before) + "\nafter:  " + ToText(after));
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.menus, before.menus);
    EXPECT_EQ(after.modules, before.modules);
    for (int HandleCount::*kind :
         {&HandleCount::fonts, &HandleCount::bitmaps, &HandleCount::brushes, &HandleCount::pens,
          &HandleCount::regions, &HandleCount::contexts, &HandleCount::icons, &HandleCount::memoryBlocks}) {
      EXPECT_LT(after.*kind - before.*kind, kCycles);
    }
  }
};

constexpr const char* kForm =
    " DIALOG 10, 10, 200, 150\nSTYLE WS_POPUP | WS_CAPTION | WS_SYSMENU\nMENU TheMenu\nBEGIN\n"
    "  PUSHBUTTON \"OK\", 1, 10, 10, 50, 14\n"
    "  EDITTEXT 101, 10, 30, 50, 14\n"
    "  LISTBOX 102, 10, 50, 50, 30\n"
    "  COMBOBOX 103, 70, 50, 50, 30, CBS_DROPDOWN\n"
    "  CONTROL \"\\nHint\", 104, \"Bitmapbutton\", 0, 70, 10, 40, 20\nEND\n";
constexpr const char* kMenu =
    "TheMenu MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"Go\\tF5\", 201\n  END\nEND\n";

std::string FormText(const std::string& name) { return kMenu + name + kForm; }

TEST_F(ShowLeakTest, ShownAndUnloadedWindows) {
  ExpectNoGrowth([] {
    LoadText("Main", FormText("Main"));
    ShowForm("Main");
    Pump();
    Hide("Main");
    ShowForm("Main");
    Pump();
    Unload("Main");
  });
}

TEST_F(ShowLeakTest, WindowsWithACanvasAndArrayValues) {
  ExpectNoGrowth([] {
    const HWND window = LoadText("Main", FormText("Main")).window;
    HDC dc = GetDC(window);
    WriteSlot(window, kSlotCanvas, reinterpret_cast<LONG>(CreateCompatibleBitmap(dc, 40, 40)));
    ReleaseDC(window, dc);
    for (const char* key : {"a", "b", "c"}) {
      SendMessageA(window, XM_SETARRAYVALUE, reinterpret_cast<WPARAM>(key),
                   reinterpret_cast<LPARAM>("value"));
    }
    ShowForm("Main");
    Pump();
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    Unload("Main");
  });
}

TEST_F(ShowLeakTest, ModalShowsOneWithinTheOther) {
  const HWND main = LoadShown("Owner", "  PUSHBUTTON \"A\", 101, 10, 10, 50, 14", "STYLE WS_CAPTION\n");
  ExpectNoGrowth([] {
    LoadText("Outer", FormText("Outer"));
    Script script;
    script
        .Do([] {
          LoadText("Inner", FormText("Inner"));
          ShowForm("Inner", true);
        })
        .Do([] { ClickControl(GetHandle("Inner", 1, nullptr)); })
        .Do([] { Unload("Inner"); })
        .Do([] { PressKey(VK_F2); })
        .Do([] { Unload("Outer"); });
    ShowForm("Outer", true);
  });
  EXPECT_TRUE(IsWindow(main));
}

TEST_F(ShowLeakTest, MainLoopsFromTheirBeginningToTheirEnd) {
  ExpectNoGrowth([] {
    const HWND window = LoadText("Main", FormText("Main")).window;
    Script script;
    script.Do([] { PressKey(VK_F5); }).Do([] { Unload("Main"); });
    EXPECT_EQ(MainLoop(GetModuleHandleA(nullptr), window, nullptr, nullptr), 0);
  });
}

TEST_F(ShowLeakTest, HintsThatComeAndGo) {
  ExpectNoGrowth([] {
    const HWND window = LoadText("Main", FormText("Main")).window;
    ShowForm("Main");
    MovePointer(GetDlgItem(window, 104), 5, 5);
    Pump();
    const HWND tooltip = FindWindowHandle("TOOLTIPS.1.3.2207", "Tooltip_window", 0, 1);
    ASSERT_TRUE(IsWindow(tooltip));
    SendMessageA(tooltip, WM_TIMER, 1, 0);
    EXPECT_TRUE(IsWindowVisible(tooltip));
    Pump();
    Unload("Main");
  });
}

}  // namespace
}  // namespace brelt::test
