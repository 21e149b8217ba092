// Forms that come and go a great many times leave nothing behind.
#include <fstream>
#include <string>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/handles.h"

namespace brelt::test {
namespace {

class LeakTest : public FormTest {
 protected:
  // Loads the form of a file as Main and unloads it.
  static void LoadAndUnload(const std::string& path) {
    ASSERT_EQ(
        Load(GetModuleHandleA(nullptr), "Main", path.c_str(), nullptr, nullptr, "key=value\0", nullptr, 0),
        RTX_OK);
    ASSERT_EQ(Unload("Main"), 0);
    Pump();
  }

  // Does so a few times, until the platform has made what it keeps, and then finds as much after a number of
  // rounds as before them.
  static void ExpectNothingLeft(const std::string& path, int rounds) {
    constexpr int kWarmUp = 20;
    for (int i = 0; i < kWarmUp; ++i) LoadAndUnload(path);
    const HandleCount before = CountHandles();
    for (int i = 0; i < rounds && !HasFatalFailure(); ++i) LoadAndUnload(path);
    EXPECT_EQ(ToText(CountHandles()), ToText(before));
    // The counts know a module that is there, not how often it was loaded.
    for (const char* family : {"BITMAPBUTTON", "ICONLIST", "IMAGE", "PROGRESSBAR", "SHAPE"}) {
      EXPECT_EQ(GetModuleHandleA((std::string(family) + ".1.3.2207.dll").c_str()), nullptr) << family;
    }
  }
};

TEST_F(LeakTest, AFormOf255ControlsWithAMenuLeavesNothingInAThousandRounds) {
  const char* const statements[] = {"LTEXT \"Label\",",
                                    "EDITTEXT",
                                    "PUSHBUTTON \"Button\",",
                                    "CHECKBOX \"Check\",",
                                    "LISTBOX",
                                    "COMBOBOX",
                                    "SCROLLBAR",
                                    "GROUPBOX \"Group\",",
                                    "CTEXT \"Label\",",
                                    "RADIOBUTTON \"Radio\","};
  std::string text = "Main DIALOG 0, 0, 300, 300\nMENU Bar\nBEGIN\n";
  for (int i = 0; i < 254; ++i) {
    text += std::string("  ") + statements[i % 10] + " " + std::to_string(100 + i) + ", " +
            std::to_string(i % 16 * 18) + ", " + std::to_string(i / 16 * 18) + ", 16, 14\n";
  }
  text += "  CONTROL \"\", 354, \"Shape\", 0, 0, 0, 9, 9\nEND\n";
  text += "Bar MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"Open\\tCtrl+O\", 400\n  END\nEND\n";
  ExpectNothingLeft(WriteTestFile("large.rc", text), 1000);
}

TEST_F(LeakTest, AFormWithIconsMenuAndControlModulesLeavesNothing) {
  std::string icon("\0\0\1\0\1\0\x10\x10\2\0\1\0\1\0\xB0\0\0\0\x16\0\0\0", 22);
  icon += std::string(
      "\x28\0\0\0\x10\0\0\0\x20\0\0\0\1\0\1\0\0\0\0\0\x80\0\0\0\0\0\0\0\0\0\0\0\2\0\0\0\2\0\0\0", 40);
  icon += std::string(8, '\x55') + std::string(128, '\xAA');
  WriteTestFile("small.ico", icon);
  WriteTestFile(
      "small.bmp",
      std::string("BM\x3A\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0\0\0\0\0\4\0\0\0", 38) +
          std::string(20, '\0'));
  const std::string path =
      WriteTestFile("mixed.rc",
                    "Picture ICON \"small.ico\"\n"
                    "Main DIALOG 0, 0, 300, 300\nMENU Bar\nFONT 9, \"Tahoma\"\nBEGIN\n"
                    "  ICON Picture, 100, 0, 0, 9, 9\n"
                    "  ICON Picture, 101, 0, 0, 9, 9\n"
                    "  CONTROL \"small.bmp\\nhint\", 102, \"Bitmapbutton\", 0, 0, 0, 9, 9\n"
                    "  CONTROL \"small.bmp\", 103, \"Image\", 0, 0, 0, 9, 9\n"
                    "  CONTROL \"\", 104, \"Shape\", 0, 0, 0, 9, 9\n"
                    "  CONTROL \"\", 105, \"Shape\", 0, 0, 0, 9, 9\n"
                    "  CONTROL \"\", 106, \"Progressbar\", 0, 0, 0, 9, 9\n"
                    "  CONTROL \"\", 107, \"Iconlist\", 0, 0, 0, 9, 9\n"
                    "  CONTROL \"one\\ntwo\", 108, \"LISTBOX\", 0, 0, 0, 9, 9\n"
                    "  CONTROL \"one\\ntwo\", 109, \"COMBOBOX\", 0, 0, 0, 9, 9\n"
                    "END\n"
                    "Bar MENU\nBEGIN\n  POPUP \"&File\"\n  BEGIN\n    MENUITEM \"Open\\tCtrl+O\", 200\n"
                    "    POPUP \"More\"\n    BEGIN\n      MENUITEM \"Last\", 201\n    END\n  END\nEND\n");
  ExpectNothingLeft(path, 100);
}

}  // namespace
}  // namespace brelt::test
