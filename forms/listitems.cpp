#include "forms/listitems.h"

#include "frame/winobject.h"

namespace brelt {

void FillListItems(HWND control, const char* text) noexcept {
  // The platform takes no window for all windows when it is told to draw one.
  if (control == nullptr) return;
  const bool isCombo = ClassMatches(control, "COMBOBOX");
  const UINT add = isCombo ? CB_ADDSTRING : LB_ADDSTRING;
  SendMessageA(control, WM_SETREDRAW, FALSE, 0);
  SendMessageA(control, isCombo ? CB_RESETCONTENT : LB_RESETCONTENT, 0, 0);

  rc::FixedText<kListItemLength> item;
  rc::TextWriter writer(item);
  const auto flush = [&] {
    SendMessageA(control, add, 0, reinterpret_cast<LPARAM>(item.c_str()));
    writer = rc::TextWriter(item);
  };
  for (const char c : rc::View(text)) {
    if (c == '\n') {
      flush();
    } else if (!rc::IsControl(c)) {
      writer.Append(c);
    }
  }
  if (!writer.IsEmpty()) flush();

  InvalidateRect(control, nullptr, TRUE);
  SendMessageA(control, WM_SETREDRAW, TRUE, 0);
}

}  // namespace brelt
