#include "forms/keys.h"

#include "forms/events.h"
#include "frame/library.h"
#include "frame/winobject.h"

namespace brelt {
namespace {

struct Modifiers {
  bool shift = GetKeyState(VK_SHIFT) < 0;
  bool control = GetKeyState(VK_CONTROL) < 0;
  bool alt = GetKeyState(VK_MENU) < 0;

  bool None() const noexcept { return !shift && !control && !alt; }
  bool ControlOnly() const noexcept { return control && !shift && !alt; }
};

bool IsKeyDown(const MSG& message) noexcept {
  return message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
}

// Keys that programs hear of when no modifier is held.
bool IsPlainKey(WPARAM key) noexcept {
  return key == VK_RETURN || (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_DELETE ||
         (key >= VK_F1 && key <= VK_F12);
}

// The id of the control with the focus. A window that has it itself has no id; what the platform would give
// for one is its menu.
int FocusId(HWND window) noexcept {
  HWND focus = GetFocus();
  return IsDialog(window) && (StyleOf(focus) & WS_CHILD) != 0 ? GetDlgCtrlID(focus) : 0;
}

// The event; whether the program used the key up.
bool SendKey(HWND window, LPARAM key) noexcept {
  return SendMessageA(window, EV_KEYPRESS, static_cast<WPARAM>(FocusId(window)), key) > 0;
}

// Escape closes nothing by itself: it counts as the button with id 2, and the program decides.
bool PreviewEscape(HWND window) noexcept {
  const bool used = SendKey(window, VK_ESCAPE);
  if (!ClassMatches(GetDlgItem(window, IDCANCEL), "BUTTON")) return used;
  if (!used) Library.LastButtonId = IDCANCEL;
  return true;
}

bool PreviewKey(HWND window, WPARAM key) noexcept {
  constexpr LPARAM kControlKey = 0x1100;
  const Modifiers held;
  if (key == VK_CANCEL) {
    Library.UserBreak = 1;
    RaiseEvent(window, EV_USERBREAK, 0, 0);
    return false;
  }
  if (held.None() && IsPlainKey(key)) return SendKey(window, static_cast<LPARAM>(key));
  if (held.None() && key == VK_ESCAPE) return PreviewEscape(window);
  if (held.ControlOnly() && key >= 'A' && key <= 'Z')
    return SendKey(window, kControlKey | static_cast<LPARAM>(key));
  return false;
}

// The modifier entries test their own key only, so that one for Ctrl also takes Ctrl with Shift.
bool AppliesTo(std::uint8_t flags, const Modifiers& held) noexcept {
  switch (flags & ~rc::kAccelNoInvert) {
    case 0:
      return held.None();
    case rc::kAccelShift:
      return held.shift;
    case rc::kAccelControl:
      return held.control;
    case rc::kAccelAlt:
      return held.alt;
    default:
      return false;
  }
}

const rc::AcceleratorRow* FindAccelerator(const rc::AcceleratorRow* table, WPARAM key) noexcept {
  const Modifiers held;
  for (int i = 0; i < rc::kAcceleratorCount && table[i].Key != 0; ++i) {
    if (table[i].Key == key && AppliesTo(table[i].Flags, held)) return &table[i];
  }
  return nullptr;
}

// Whether a command is in a menu with no grey or disabled item on the way to it.
bool IsEnabledCommand(HMENU menu, UINT command) noexcept {
  const int count = GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position) {
    const UINT state = GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION);
    if ((state & (MF_GRAYED | MF_DISABLED)) != 0) continue;
    if (HMENU popup = GetSubMenu(menu, position); popup != nullptr) {
      // A popup's state has its number of items in the bits that mark a separator elsewhere.
      if (IsEnabledCommand(popup, command)) return true;
    } else if ((state & MF_SEPARATOR) == 0 && GetMenuItemID(menu, position) == command) {
      return true;
    }
  }
  return false;
}

// Opens the menu bar, at the title of a key or, for 0, at its first.
void OpenMenuBar(HWND window, LPARAM key) noexcept {
  if (IsIconic(window)) ShowWindow(window, SW_SHOWNORMAL);
  SetActiveWindow(window);
  SendMessageA(window, WM_SYSCOMMAND, SC_KEYMENU, key);
}

// Turns the highlight of an item of the menu bar on or off.
void Highlight(HWND window, UINT command, UINT how) noexcept {
  HiliteMenuItem(window, GetMenu(window), command, MF_BYCOMMAND | how);
}

void SendCommand(HWND window, const rc::AcceleratorRow& row) noexcept {
  const bool inverts = (row.Flags & rc::kAccelNoInvert) == 0;
  if (inverts) Highlight(window, row.Command, MF_HILITE);
  SendMessageA(window, WM_COMMAND, row.Command, 0);
  if (inverts && IsWindow(window)) Highlight(window, row.Command, MF_UNHILITE);
}

// Whether the key is one of the table's. One whose item is grey or gone is used up without effect.
bool WorkAccelerator(HWND window, const rc::AcceleratorRow* table, WPARAM key) noexcept {
  const rc::AcceleratorRow* row = FindAccelerator(table, key);
  if (row == nullptr) return false;
  if (row->Command == 0 && (row->Flags & rc::kAccelAlt) != 0) {
    OpenMenuBar(window, static_cast<LPARAM>(key));
  } else if (IsEnabledCommand(GetMenu(window), row->Command)) {
    // The table goes with the window, which the program may destroy while it has the command.
    SendCommand(window, rc::AcceleratorRow(*row));
  }
  return true;
}

}  // namespace

bool KeyPreview(HWND window, const MSG& message) noexcept {
  if (!IsKeyDown(message) || !IsWindow(window)) return false;
  return PreviewKey(window, message.wParam) || !IsWindow(window);
}

bool MenuKeys(HWND window, const rc::AcceleratorRow* table, const MSG& message) noexcept {
  const bool hasMenu = IsWindow(window) && GetMenu(window) != nullptr;
  if (hasMenu && table != nullptr && IsKeyDown(message) && WorkAccelerator(window, table, message.wParam))
    return true;
  // F10 alone would open the menu.
  if (message.message == WM_SYSKEYDOWN && message.wParam == VK_F10 && Modifiers().None()) return true;
  // Alt let go in another window of the program goes to the main window's menu.
  const bool altUp = message.message == WM_SYSKEYUP && message.wParam == VK_MENU;
  if (!hasMenu || !altUp || table == nullptr || GetActiveWindow() == window) return false;
  OpenMenuBar(window, 0);
  return true;
}

}  // namespace brelt
