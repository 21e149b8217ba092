#include "forms/closing.h"

#include <algorithm>

#include "forms/controls.h"
#include "forms/events.h"
#include "forms/handlers.h"
#include "forms/modal.h"
#include "forms/tooltip.h"
#include "frame/library.h"
#include "frame/owners.h"
#include "frame/winobject.h"
#include "rc/host.h"

namespace brelt {
namespace {

// Takes what a slot holds out of it, so that it has one owner while it goes.
template <typename T>
T* TakePointer(HWND window, Slot slot) noexcept {
  T* held = ReadPointer<T>(window, slot);
  WriteSlot(window, slot, 0);
  return held;
}

void ReleaseSlot(HWND window, Slot slot) noexcept {
  if (void* block = TakePointer<void>(window, slot); block != nullptr) host::Release(block);
}

bool HasModules(const WindowRow* record, int rows) noexcept {
  return std::any_of(record, record + rows, [](const WindowRow& row) { return row.module != nullptr; });
}

// While a record waits for its modules to be freed, its first row has no other use.
struct Departed {
  WindowRecord record;

  int& rows() const noexcept { return record->maxLength; }
  WindowRecord next() const noexcept { return reinterpret_cast<WindowRecord>(record->handle); }
  void SetNext(WindowRecord other) const noexcept { record->handle = reinterpret_cast<HWND>(other); }
};

void ReleaseRecord(HWND window) noexcept {
  const int rows = IsDialog(window) ? kDialogRows : 1;
  WindowRecord record = TakePointer<WindowRow>(window, SLOT_RECORD);
  if (record == nullptr) return;
  const OwnedFont font(record->font);
  const OwnedFont drawFont(record->drawFont);
  if (!HasModules(record, rows)) return host::Release(record);
  const Departed departed{record};
  departed.rows() = rows;
  departed.SetNext(std::exchange(Library.DepartedRecords, record));
  ReleaseDepartedModules();
}

}  // namespace

void ReleaseDepartedModules() noexcept {
  if (Library.CallOutDepth > 0) return;
  while (Library.DepartedRecords != nullptr) {
    const Departed departed{Library.DepartedRecords};
    Library.DepartedRecords = departed.next();
    for (int row = 0; row < departed.rows(); ++row) const OwnedModule module(departed.record[row].module);
    host::Release(departed.record);
  }
}

void WakeMainLoop() noexcept { PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0); }

void CloseWindowObject(HWND window) noexcept {
  ReactivatePrevious(window);
  CloseTooltip();
  DestroyWindow(window);
  WakeMainLoop();
}

LRESULT OnClose(const Message& message) noexcept {
  if (RaiseEvent(message.window, EV_CLOSE, 0, 0) != 0) return 0;
  if (IsWindow(message.window)) CloseWindowObject(message.window);
  return 0;
}

LRESULT OnShowWindow(const Message& message) noexcept {
  const bool hidesItself = message.wParam == 0 && LOWORD(message.lParam) == 0;
  if (hidesItself && (FlagsOf(message.window) & WF_MODAL) != 0) ReactivatePrevious(message.window);
  return message.Default();
}

// The last moment at which the controls are there.
LRESULT OnDestroy(const Message& message) noexcept {
  ReleaseControlHandles(message.window);
  return message.Default();
}

// Frees what the window owns. The controls are gone, so that their modules can go, too.
LRESULT OnNcDestroy(const Message& message) noexcept {
  HWND window = message.window;
  const bool isDialog = IsDialog(window);
  ReleaseRecord(window);
  ReleaseSlot(window, SLOT_ARRAYVALUES);
  ReleaseSlot(window, SLOT_ACCELTABLE);
  if (isDialog) {
    const OwnedBitmap canvas(TakePointer<HBITMAP__>(window, SLOT_CANVAS));
  } else if (ReadSlot(window, SLOT_CANVAS) != 0 && ReadSlot(window, SLOT_CANVASANCHOR) != 0) {
    ReleaseSlot(window, SLOT_CANVAS);  // the token table, whose size stands in the other slot
    WriteSlot(window, SLOT_CANVASANCHOR, 0);
  }
  return message.Default();
}

}  // namespace brelt
