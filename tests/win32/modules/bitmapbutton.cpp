// The family Bitmapbutton: a button with a picture and a hint. Its styles BB_CHECKSTYLE and BB_RADIOSTYLE are
// the bits of a check box and a radio button, so that a platform's button does the rest.
#include "include/events.h"
#include "tests/win32/modules/module.h"
#include "tests/win32/modules/picture.h"

namespace brelt::module {
namespace {

LRESULT GetHint(const PictureData& data, WPARAM size, char* buffer) noexcept {
  if (buffer == nullptr || size == 0) return 0;
  lstrcpynA(buffer, data.hint, static_cast<int>(size));
  return lstrlenA(buffer);
}

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (HandlePicture(window, message, lParam, result)) return result;
  PictureData* data = DataOf(window);
  if (message == CM_GETHINT && data != nullptr) {
    return GetHint(*data, wParam, reinterpret_cast<char*>(lParam));
  }
  if (message == CM_SETHINT && data != nullptr) {
    const auto* text = reinterpret_cast<const char*>(lParam);
    lstrcpynA(data->hint, text != nullptr ? text : "", sizeof data->hint);
    return 0;
  }
  return CallBase(window, message, wParam, lParam);
}

}  // namespace

bool DescribeClass(WNDCLASSEXA& info) noexcept {
  if (!BuildOn("BUTTON", info)) return false;
  info.lpfnWndProc = Procedure;
  return true;
}

}  // namespace brelt::module
