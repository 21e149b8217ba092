// Who an object is: its handle, name, kind and event function.
#include "frame/library.h"
#include "frame/objectcall.h"
#include "frame/winobject.h"
#include "include/brelt.h"

namespace brelt {
namespace {

// A control by the name of its row, the only way from such a name to a handle.
HWND FindControlByName(HWND window, const char* controlName) noexcept {
  const WindowRow* record = IsDialog(window) ? RecordOf(window) : nullptr;
  if (record == nullptr || rc::IsEmpty(controlName)) return nullptr;
  for (int row = 1; row < kDialogRows; ++row) {
    if (rc::EqualIgnoreCase(record[row].name.view(), controlName)) return record[row].handle;
  }
  return nullptr;
}

// The objects without windows, in the form in which they are named.
const char* WindowlessObject(const char* name) noexcept {
  constexpr const char* kObjects[] = {"Printer", "Screen", "Clipboard"};
  for (const char* object : kObjects) {
    if (rc::EqualIgnoreCase(name, object)) return object;
  }
  return nullptr;
}

const char* WindowKind(HWND window) noexcept {
  if (IsDialog(window)) return "Dialog";
  if (IsEditwindow(window)) return "Editwindow";
  return IsRicheditwindow(window) ? "Richeditwindow" : "";
}

}  // namespace
}  // namespace brelt

using namespace brelt;

HWND __stdcall GetHandle(const char* name, int32_t id, const char* controlName) {
  const ObjectCall call(__func__, name, id);
  if (call.code() != RTX_OK) return nullptr;
  HWND found = call.control();
  if (id == 0) found = call.window();
  if (id == -1) found = FindControlByName(call.window(), controlName);
  return IsWindow(found) ? found : nullptr;
}

int32_t __stdcall GetName(const char* name, int32_t id, char* buffer, int32_t size) {
  const ObjectCall call(__func__, name, id, TextOutput{buffer, size});
  if (call.code() != RTX_OK) return call.code();
  const WindowRow* row = id == 0 ? RecordOf(call.window()) : RowOfControl(call.window(), call.control());
  if (row != nullptr) rc::TextBuffer(buffer, size).Assign(row->name.view());
  return RTX_OK;
}

int32_t __stdcall GetTypeof(const char* name, int32_t id, char* buffer, uint32_t size) {
  const int32_t room = size > INT32_MAX ? INT32_MAX : static_cast<int32_t>(size);
  const ObjectCall call(__func__, name, id, TextOutput{buffer, room});
  if (buffer == nullptr || name == nullptr) return RTX_OK;
  const rc::TextBuffer out(buffer, room);
  if (const char* object = WindowlessObject(name); object != nullptr) {
    out.Assign(object);
  } else if (call.code() != RTX_OK) {
    return RTX_OK;
  } else if (id == 0) {
    out.Assign(WindowKind(call.window()));
  } else if (call.control() != nullptr) {
    ObjectTypeOf(call.control(), nullptr, 0, out);
  } else if (call.IsMenuItem()) {
    out.Assign("Menuitem");
  }
  return RTX_OK;
}

EventFunction __stdcall GetFuncptr(const char* name, int32_t id) {
  const ObjectCall call(__func__, name, id);
  if (!IsWindowObject(call.window())) return nullptr;
  return reinterpret_cast<EventFunction>(ReadSlot(call.window(), SLOT_FUNCPTR));
}
