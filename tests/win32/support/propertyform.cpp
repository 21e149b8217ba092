#include "tests/win32/support/propertyform.h"

#include <ostream>

namespace brelt::test {
namespace {

constexpr const char* kText = R"(Props DIALOG 10, 10, 300, 200
STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX
CAPTION "Title"
MENU Bar
BEGIN
  PUSHBUTTON "Push", 101, 0, 0, 40, 14
  CHECKBOX "Check", 102, 0, 15, 40, 14
  AUTOCHECKBOX "Autocheck", 103, 0, 30, 40, 14
  RADIOBUTTON "Radio", 104, 0, 45, 40, 14
  AUTORADIOBUTTON "Autoradio", 105, 0, 60, 40, 14
  GROUPBOX "Group", 106, 0, 75, 40, 14
  LTEXT "Label", 107, 50, 0, 40, 14
  ICON "", 108, 50, 15, 20, 20
  EDITTEXT 109, 50, 40, 40, 14
  LISTBOX 110, 50, 60, 40, 40
  COMBOBOX 111, 100, 0, 40, 60, CBS_DROPDOWN
  COMBOBOX 112, 100, 20, 40, 60, CBS_SIMPLE
  COMBOBOX 113, 100, 90, 40, 60, CBS_DROPDOWNLIST
  SCROLLBAR 114, 150, 0, 40, 14
  CONTROL "", 115, "SHAPE", SH_DASH, 150, 20, 40, 14
  CONTROL "", 116, "PROGRESSBAR", 0x0, 150, 40, 40, 14
  CONTROL "", 117, "IMAGE", 0x0, 150, 60, 40, 14
  CONTROL "", 118, "BITMAPBUTTON", BB_PUSHSTYLE, 150, 80, 40, 14
  CONTROL "Icons", 119, "ICONLIST", LBS_NOTIFY | LBS_HASSTRINGS, 200, 0, 40, 40
END
Bar MENU
BEGIN
  POPUP "File"
  BEGIN
    MENUITEM "Item", 200
    MENUITEM "Other", 201
  END
END
)";

}  // namespace

void PropertyTest::SetUp() {
  FormTest::SetUp();
  SetOptionBase(1);
  const LoadResult form = LoadText(kFormName, kText);
  EXPECT_EQ(form.message, "");
  ASSERT_EQ(form.code, RTX_OK);
  form_ = form.window;
}

void PropertyTest::TearDown() {
  SetOptionBase(1);
  FormTest::TearDown();
}

void PropertyTest::ShowForm() const {
  ShowWindow(form_, SW_SHOW);
  UpdateWindow(form_);
  Pump();
}

FontLook FontLookOf(HWND window) {
  char face[64] = "unset";
  int32_t size = -77;
  uint8_t bold = 77;
  uint8_t italic = 77;
  EXPECT_EQ(GetFontName(window, face, sizeof face), RTX_OK);
  EXPECT_EQ(GetFontSize(window, &size), RTX_OK);
  EXPECT_EQ(GetFontBold(window, &bold), RTX_OK);
  EXPECT_EQ(GetFontItalic(window, &italic), RTX_OK);
  return {face, size, bold, italic};
}

std::ostream& operator<<(std::ostream& out, const FontLook& font) {
  return out << '"' << font.face << "\" " << font.size << (font.bold != 0 ? " bold" : "")
             << (font.italic != 0 ? " italic" : "");
}

Painting PaintingOf(const MessageSpy& spy, HWND window) {
  return {static_cast<int>(spy.To(window, WM_PAINT).size()),
          static_cast<int>(spy.To(window, WM_ERASEBKGND).size())};
}

std::ostream& operator<<(std::ostream& out, const Painting& painting) {
  return out << painting.paints << " paints, " << painting.erasures << " erasures";
}

EditFrame::EditFrame(const char* className, const std::string& name) : className_(className) {
  WNDCLASSEXA info = {};
  info.cbSize = sizeof info;
  info.lpfnWndProc = className_ == kRichFrameClass ? Richeditwindow_proc : Editwindow_proc;
  info.cbWndExtra = kSlotBytes;
  info.hInstance = GetModuleHandleA(nullptr);
  info.lpszClassName = className_.c_str();
  EXPECT_TRUE(RegisterClassExA(&info)) << className_;
  window_ = CreateWindowExA(0, className_.c_str(), "", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr,
                            info.hInstance, nullptr);
  EXPECT_TRUE(window_);
  // The window's procedure frees it, as it does with the library's own.
  auto* record = static_cast<WindowRow*>(GlobalLock(GlobalAlloc(GHND, sizeof(WindowRow))));
  record->name.Assign(name);
  record->handle = window_;
  SetWindowLongA(window_, 4 * SLOT_RECORD, reinterpret_cast<LONG>(record));
}

EditFrame::~EditFrame() {
  DestroyWindow(window_);
  EXPECT_TRUE(UnregisterClassA(className_.c_str(), GetModuleHandleA(nullptr)));
}

std::string PackedPicture(int width, int height, char fill) {
  BITMAPINFOHEADER header = {};
  header.biSize = sizeof header;
  header.biWidth = width;
  header.biHeight = height;
  header.biPlanes = 1;
  header.biBitCount = 24;
  std::string picture(reinterpret_cast<const char*>(&header), sizeof header);
  const auto row = static_cast<std::size_t>((width * 24 + 31) / 32 * 4);
  return picture.append(row * static_cast<std::size_t>(height), fill);
}

}  // namespace brelt::test
