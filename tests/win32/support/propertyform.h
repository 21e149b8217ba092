// A form with a control of each kind that has properties, a menu, and edit windows beside it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/record.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {

inline constexpr const char* kFormName = "Props";

enum PropertyId : int32_t {
  kPush = 101,
  kCheck,
  kAutoCheck,
  kRadio,
  kAutoRadio,
  kGroupBox,
  kLabel,
  kIcon,
  kField,
  kListBox,
  kDropDown,
  kSimple,
  kDropDownList,
  kScrollBar,
  kShape,
  kProgressBar,
  kImage,
  kBitmapButton,
  kIconList,
  kItem = 200,      // a menu item
  kUnknown = 9999,  // neither control nor menu item
};

// Each test gets the form anew.
class PropertyTest : public FormTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  HWND form() const { return form_; }
  HWND Control(int32_t id) const { return GetDlgItem(form_, id); }
  HMENU menu() const { return GetMenu(form_); }
  WindowRow* record() const { return RecordOf(form_); }
  // Makes the form visible and has it painted.
  void ShowForm() const;

 private:
  HWND form_ = nullptr;
};

// What the four calls tell of a window's font.
struct FontLook {
  std::string face;
  int32_t size;
  int bold;
  int italic;

  bool operator==(const FontLook&) const = default;
};
FontLook FontLookOf(HWND window);
std::ostream& operator<<(std::ostream& out, const FontLook& font);
inline const FontLook kNoFont = {"", 0, 0, 0};

// How often a window was painted while a spy listened, and its background erased for it.
struct Painting {
  int paints;
  int erasures;

  bool operator==(const Painting&) const = default;
};
Painting PaintingOf(const MessageSpy& spy, HWND window);
std::ostream& operator<<(std::ostream& out, const Painting& painting);

// A window of an edit window's class as far as property calls look at it: with its name, its messages and its
// flags, without an inner control.
class EditFrame {
 public:
  EditFrame(const char* className, const std::string& name);
  EditFrame(const EditFrame&) = delete;
  EditFrame& operator=(const EditFrame&) = delete;
  ~EditFrame();

  HWND get() const { return window_; }

 private:
  std::string className_;
  HWND window_;
};
inline constexpr const char* kPlainFrameClass = "Editwindow.1.3.2207";
inline constexpr const char* kRichFrameClass = "Richeditwindow.1.3.2207";

// A packed bitmap of the Windows kind: 24 bits without a colour table, each byte of a pixel as given.
std::string PackedPicture(int width, int height, char fill);

}  // namespace brelt::test
