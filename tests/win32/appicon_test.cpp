// The icon that AppIcon gives the window classes.
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <vector>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/forms.h"
#include "tests/win32/support/handles.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/redraws.h"

namespace brelt::test {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0);

// ---- Icon files ----

struct Image {
  int side;
  COLORREF colour;
};

void Append(std::string& bytes, uint32_t value, int count) {
  for (; count > 0; --count, value >>= 8) bytes += static_cast<char>(value & 0xFF);
}

// An opaque picture of 24 bits and its empty mask.
std::string ImageBytes(const Image& image) {
  std::string bytes;
  Append(bytes, 40, 4);
  Append(bytes, static_cast<uint32_t>(image.side), 4);
  Append(bytes, static_cast<uint32_t>(image.side) * 2, 4);
  Append(bytes, 1, 2);
  Append(bytes, 24, 2);
  for (int i = 0; i < 6; ++i) Append(bytes, 0, 4);
  for (int i = 0; i < image.side * image.side; ++i) {
    Append(bytes, GetBValue(image.colour), 1);
    Append(bytes, GetGValue(image.colour), 1);
    Append(bytes, GetRValue(image.colour), 1);
  }
  bytes.append(static_cast<std::size_t>(image.side) * 4, '\0');
  return bytes;
}

std::string IconFile(const std::vector<Image>& images) {
  std::string directory;
  std::string pictures;
  Append(directory, 0, 2);
  Append(directory, 1, 2);
  Append(directory, static_cast<uint32_t>(images.size()), 2);
  for (const Image& image : images) {
    const std::string picture = ImageBytes(image);
    Append(directory, static_cast<uint32_t>(image.side), 1);
    Append(directory, static_cast<uint32_t>(image.side), 1);
    Append(directory, 0, 2);
    Append(directory, 1, 2);
    Append(directory, 24, 2);
    Append(directory, static_cast<uint32_t>(picture.size()), 4);
    Append(directory, static_cast<uint32_t>(6 + 16 * images.size() + pictures.size()), 4);
    pictures += picture;
  }
  return directory + pictures;
}

// ---- What the classes have ----

struct ClassIcons {
  HICON large;
  HICON little;

  bool operator==(const ClassIcons&) const = default;
};

ClassIcons IconsOf(HWND window) {
  return {reinterpret_cast<HICON>(GetClassLongA(window, GCL_HICON)),
          reinterpret_cast<HICON>(GetClassLongA(window, GCL_HICONSM))};
}

// The side of an icon and the colour in its middle.
Image Look(HICON icon) {
  ICONINFO info = {};
  EXPECT_TRUE(GetIconInfo(icon, &info));
  BITMAP bitmap = {};
  GetObjectA(info.hbmColor, sizeof bitmap, &bitmap);
  HDC dc = CreateCompatibleDC(nullptr);
  HGDIOBJ before = SelectObject(dc, info.hbmColor);
  const Image image = {static_cast<int>(bitmap.bmWidth),
                       GetPixel(dc, bitmap.bmWidth / 2, bitmap.bmHeight / 2)};
  SelectObject(dc, before);
  DeleteDC(dc);
  DeleteObject(info.hbmColor);
  DeleteObject(info.hbmMask);
  return image;
}

void ExpectImage(HICON icon, const Image& expected) {
  const Image image = Look(icon);
  EXPECT_EQ(image.side, expected.side);
  EXPECT_EQ(image.colour, expected.colour);
}

// That the class icons are what the platform finds in a file, and new ones.
void ExpectIconsOfFile(HWND window, const ClassIcons& before, const std::string& file) {
  HICON large = nullptr;
  HICON little = nullptr;
  ASSERT_EQ(ExtractIconExA(file.c_str(), 0, &large, &little, 1), 2u);
  const ClassIcons after = IconsOf(window);
  EXPECT_NE(after.large, before.large);
  EXPECT_NE(after.little, before.little);
  ExpectImage(after.large, Look(large));
  ExpectImage(after.little, Look(little));
  DestroyIcon(large);
  DestroyIcon(little);
}

int32_t SetIcon(const std::string& file) { return AppIcon(GetModuleHandleA(nullptr), file.c_str()); }

class AppIconTest : public FormTest {
 protected:
  void SetUp() override {
    FormTest::SetUp();
    const LoadResult form = LoadDialog("Form", "");
    ASSERT_EQ(form.code, RTX_OK);
    window_ = form.window;
  }
  // A file of its own, so that no test finds that of another.
  static std::string Write(const std::vector<Image>& images) {
    return WriteTestFile("appicon.ico", IconFile(images));
  }

  HWND window_ = nullptr;
};

TEST_F(AppIconTest, SetsTheLargeAndTheSmallIconOfTheClass) {
  const RedrawSpy redraws;
  const std::string file = Write({{32, kRed}, {16, kBlue}});
  const ClassIcons before = IconsOf(window_);
  EXPECT_EQ(SetIcon(file), RTX_OK);
  ExpectIconsOfFile(window_, before, file);
  const ClassIcons after = IconsOf(window_);
  ExpectImage(after.large, {32, kRed});
  EXPECT_EQ(redraws.lines(), RedrawLine(nullptr, nullptr, 1281));
  // It stays with the class when the file and the windows are gone.
  std::remove(file.c_str());
  DestroyLibraryWindows();
  const LoadResult form = LoadDialog("Later", "");
  EXPECT_EQ(IconsOf(form.window), after);
}

TEST_F(AppIconTest, SetsTheIconOfEachClassThatHasAWindow) {
  const TestClass editClass("Editwindow.1.3.2207", 40);
  const TestClass richClass("Richeditwindow.1.3.2207", 40);
  const TestClass boxClass("MSGBOX.1.3.2207", 40);
  const TestWindow edit(editClass.name(), "with a title");
  const TestWindow rich(richClass.name());
  const TestWindow box(boxClass.name());
  const ClassIcons boxBefore = IconsOf(box.get());
  ASSERT_EQ(SetIcon(Write({{32, kGreen}})), RTX_OK);
  for (HWND window : {window_, edit.get(), rich.get()}) {
    ExpectImage(IconsOf(window).large, {32, kGreen});
    ExpectImage(IconsOf(window).little, {16, kGreen});
  }
  EXPECT_EQ(IconsOf(box.get()), boxBefore);
}

TEST_F(AppIconTest, DoesNotNeedADialog) {
  DestroyLibraryWindows();
  const TestClass richClass("Richeditwindow.1.3.2207", 40);
  const TestWindow rich(richClass.name());
  ASSERT_EQ(SetIcon(Write({{32, kBlue}})), RTX_OK);
  ExpectImage(IconsOf(rich.get()).large, {32, kBlue});
}

TEST_F(AppIconTest, NeedsAnInstanceAndAFileName) {
  const ClassIcons before = IconsOf(window_);
  const std::string file = Write({{32, kRed}});
  EXPECT_EQ(AppIcon(nullptr, file.c_str()), RTX_BAD_ICON);
  EXPECT_EQ(AppIcon(GetModuleHandleA(nullptr), nullptr), RTX_BAD_ICON);
  EXPECT_EQ(AppIcon(GetModuleHandleA(nullptr), ""), RTX_BAD_ICON);
  EXPECT_EQ(AppIcon(nullptr, "no such file.ico"), RTX_BAD_ICON);
  DestroyLibraryWindows();
  EXPECT_EQ(AppIcon(nullptr, file.c_str()), RTX_BAD_ICON);
  EXPECT_EQ(IconsOf(LoadDialog("Later", "").window), before);
}

TEST_F(AppIconTest, DoesNothingWithoutTheFileOrAWindowOfTheThread) {
  const RedrawSpy redraws;
  const ClassIcons before = IconsOf(window_);
  EXPECT_EQ(SetIcon("no such file.ico"), RTX_OK);
  EXPECT_EQ(SetIcon("C:\\no such folder\\app.ico"), RTX_OK);
  EXPECT_EQ(IconsOf(window_), before);
  const std::string file = Write({{32, kRed}});
  struct Call {
    const std::string& file;
    static DWORD WINAPI Run(LPVOID call) {
      return static_cast<DWORD>(SetIcon(static_cast<Call*>(call)->file));
    }
  } call = {file};
  HANDLE thread = CreateThread(nullptr, 0, Call::Run, &call, 0, nullptr);
  ASSERT_EQ(WaitForSingleObject(thread, 30000), WAIT_OBJECT_0);
  DWORD code = 1;
  GetExitCodeThread(thread, &code);
  CloseHandle(thread);
  EXPECT_EQ(code, 0u);
  EXPECT_EQ(IconsOf(window_), before);
  DestroyLibraryWindows();
  EXPECT_EQ(SetIcon(file), RTX_OK);
  EXPECT_EQ(IconsOf(LoadDialog("Later", "").window), before);
  EXPECT_EQ(redraws.lines(), "");
}

TEST_F(AppIconTest, FindsABareFileNameInTheCurrentFolder) {
  ASSERT_EQ(SetIcon(Write({{32, kBlue}})), RTX_OK);
  WriteTestFile("bare.ico", IconFile({{32, kGreen}}));
  EXPECT_EQ(SetIcon("bare.ico"), RTX_OK);
  ExpectImage(IconsOf(window_).large, {32, kGreen});
}

TEST_F(AppIconTest, TakesTheFirstIconOfAProgram) {
  char program[MAX_PATH];
  GetWindowsDirectoryA(program, sizeof program);
  const std::string file = std::string(program) + "\\notepad.exe";
  const ClassIcons before = IconsOf(window_);
  EXPECT_EQ(SetIcon(file), RTX_OK);
  ExpectIconsOfFile(window_, before, file);
}

TEST_F(AppIconTest, LeavesTheIconsThatAFileDoesntHave) {
  ASSERT_EQ(SetIcon(Write({{32, kRed}})), RTX_OK);
  const ClassIcons before = IconsOf(window_);
  EXPECT_EQ(SetIcon(WriteTestFile("text.ico", "this is no icon")), RTX_OK);
  EXPECT_EQ(SetIcon(WriteTestFile("empty.ico", "")), RTX_OK);
  EXPECT_EQ(IconsOf(window_), before);
  // One of two that can't be copied.
  const CountedImport<struct CopyIconTag, HICON, HICON> copies("CopyIcon", 1);
  EXPECT_EQ(SetIcon(Write({{32, kGreen}})), RTX_OK);
  EXPECT_TRUE(copies.HasFailed());
  EXPECT_EQ(IconsOf(window_).large, before.large);
  ExpectImage(IconsOf(window_).little, {16, kGreen});
}

// What the classes have they keep; all else is given back.
TEST_F(AppIconTest, KeepsNothingButTheTwoIconsOfTheClasses) {
  const TestClass editClass("Editwindow.1.3.2207", 40);
  const TestWindow edit(editClass.name());
  const std::string file = Write({{32, kRed}, {16, kBlue}});
  const std::string text = WriteTestFile("text.ico", "this is no icon");
  SetIcon(file);
  const HandleCount before = CountHandles();
  for (int i = 0; i < 10; ++i) {
    SetIcon(text);
    SetIcon("no such file.ico");
  }
  EXPECT_EQ(ToText(CountHandles()), ToText(before));
  for (int i = 0; i < 10; ++i) SetIcon(file);
  EXPECT_EQ(CountHandles().icons, before.icons + 20);
  EXPECT_EQ(CountHandles().modules, before.modules);
  EXPECT_EQ(CountHandles().contexts, before.contexts);
}

}  // namespace
}  // namespace brelt::test
