// What controls and menus tell their window.
#include <richedit.h>

#include "forms/events.h"
#include "forms/handlers.h"
#include "frame/library.h"
#include "frame/winobject.h"

namespace brelt {
namespace {

struct Command {
  HWND window;
  std::int32_t id;
  WORD code;
  HWND control;
};

void Raise(const Command& command, std::uint32_t event) noexcept {
  RaiseEvent(command.window, event, static_cast<std::uint32_t>(command.id), 0);
}

void RefuseByBeep() noexcept { MessageBeep(static_cast<UINT>(-1)); }

// Ids 1 to 9 belong to the common identifiers: a menu item with one of them is silent unless a control has
// it, too. Forms use such items for the platform's own keys.
void FromMenu(const Command& command) noexcept {
  constexpr std::int32_t kLastCommonId = 9;
  if (command.id > kLastCommonId || GetDlgItem(command.window, command.id) != nullptr)
    Raise(command, EV_CLICK);
}

void FromButton(const Command& command) noexcept {
  if (command.code != BN_CLICKED) return;
  switch (TypeBitsOf(command.control)) {
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
      Library.LastButtonId = command.id;
      return Raise(command, EV_CLICK);
    case BS_AUTORADIOBUTTON:
      // Once for the button that is turned on, not for the one that goes off.
      if (SendMessageA(command.control, BM_GETCHECK, 0, 0) == BST_CHECKED) Raise(command, EV_CLICK);
      return;
    case BS_AUTOCHECKBOX:
      return Raise(command, EV_CLICK);
    default:
      return;
  }
}

// Check and radio buttons of this kind are read by their value and raise nothing.
void FromBitmapButton(const Command& command) noexcept {
  constexpr std::uint32_t kCheckOrRadio = 2 | 4;
  if ((StyleOf(command.control) & kCheckOrRadio) == 0 && command.code == BN_CLICKED) Raise(command, EV_CLICK);
}

void FromRichEdit(const Command& command) noexcept {
  switch (command.code) {
    case EN_CHANGE:
      if (IsRicheditwindow(command.window)) RaiseEvent(command.window, EV_CHANGE, 0, 0);
      return;
    case EN_ERRSPACE:
    case EN_MAXTEXT:
      return RefuseByBeep();
    default:
      return;
  }
}

void FromEdit(const Command& command) noexcept {
  if (command.code == EN_ERRSPACE) return RefuseByBeep();
  if (command.code != EN_CHANGE) return;
  if (IsEditwindow(command.window)) {
    RaiseEvent(command.window, EV_CHANGE, 0, 0);
  } else if (IsDialog(command.window) && GetFocus() == command.control) {
    // Without the focus it was the program that changed the text.
    Raise(command, EV_CHANGE);
  }
}

void FromList(const Command& command) noexcept {
  if (!IsDialog(command.window) || GetFocus() != command.control) return;
  if (command.code == LBN_SELCHANGE) Raise(command, EV_CHANGE);
  if (command.code == LBN_DBLCLK) Raise(command, EV_DBLCLICK);
}

void FromComboBox(const Command& command) noexcept {
  if (!IsDialog(command.window)) return;
  if (command.code == CBN_SELCHANGE) Raise(command, EV_CHANGE);
  if (command.code == CBN_DBLCLK) Raise(command, EV_DBLCLICK);
}

struct CommandRoute {
  const char* classPattern;
  void (*handle)(const Command& command) noexcept;
};

constexpr CommandRoute kCommandRoutes[] = {
    {"BUTTON", FromButton},      {"Bitmapbutton.*", FromBitmapButton},
    {"RICHEDIT*", FromRichEdit}, {"EDIT", FromEdit},
    {"LISTBOX", FromList},       {"Iconlist.*", FromList},
    {"COMBOBOX", FromComboBox},
};

}  // namespace

LRESULT OnCommand(const Message& message) noexcept {
  const Command command{message.window, LOWORD(message.wParam), HIWORD(message.wParam),
                        reinterpret_cast<HWND>(message.lParam)};
  if (command.control == nullptr) {
    FromMenu(command);
    return 0;
  }
  for (const CommandRoute& route : kCommandRoutes) {
    if (!ClassMatches(command.control, route.classPattern)) continue;
    route.handle(command);
    break;
  }
  return 0;
}

}  // namespace brelt
