// The messages that ask for what a window keeps, or change it.
#include "forms/arrayvalues.h"
#include "forms/handlers.h"
#include "frame/winobject.h"
#include "include/events.h"

namespace brelt {
namespace {

LRESULT AsResult(const void* pointer) noexcept { return reinterpret_cast<LRESULT>(pointer); }

const char* ArrayValuesOf(HWND window) noexcept { return ReadPointer<char>(window, SLOT_ARRAYVALUES); }

// Takes a block in place of the one there is; an empty one only lets that go.
void ReplaceArrayValues(HWND window, host::Block<char> block) noexcept {
  char* previous = ReadPointer<char>(window, SLOT_ARRAYVALUES);
  WritePointer(window, SLOT_ARRAYVALUES, block.release());
  if (previous != nullptr) host::Release(previous);
}

}  // namespace

// The font is settled once the controls have it.
LRESULT OnSetFont(const Message& message) noexcept {
  WindowRecord record = RecordOf(message.window);
  if (record != nullptr && GetWindow(message.window, GW_CHILD) == nullptr) {
    record->font = reinterpret_cast<HFONT>(message.wParam);
  }
  return 0;
}

LRESULT OnGetFont(const Message& message) noexcept {
  const WindowRow* record = RecordOf(message.window);
  return record != nullptr ? AsResult(record->font) : 0;
}

LRESULT OnGetDrawFont(const Message& message) noexcept {
  const WindowRow* record = RecordOf(message.window);
  return record != nullptr ? AsResult(record->drawFont) : 0;
}

LRESULT OnSetDrawFont(const Message& message) noexcept {
  WindowRecord record = RecordOf(message.window);
  if (record != nullptr) record->drawFont = reinterpret_cast<HFONT>(message.wParam);
  return 0;
}

// The answer has the id in 16 bits, below the platform's mark.
LRESULT OnGetDefId(const Message& message) noexcept {
  const WindowRow* record = RecordOf(message.window);
  if (record == nullptr || record->defaultId == 0) return 0;
  return MAKELRESULT(record->defaultId, DC_HASDEFID);
}

LRESULT OnGetMaxLength(const Message& message) noexcept {
  const WindowRow* row = RowOfControl(message.window, reinterpret_cast<HWND>(message.wParam));
  return row != nullptr ? row->maxLength : 0;
}

LRESULT OnSetMaxLength(const Message& message) noexcept {
  const auto control = reinterpret_cast<HWND>(message.wParam);
  WindowRow* row = RowOfControl(message.window, control);
  if (row == nullptr) return 0;
  row->maxLength = static_cast<std::int32_t>(message.lParam);
  SendMessageA(control, ClassMatches(control, "EDIT") ? EM_LIMITTEXT : CB_LIMITTEXT,
               static_cast<WPARAM>(message.lParam), 0);
  return 0;
}

LRESULT OnGetArrayValue(const Message& message) noexcept {
  const auto* key = reinterpret_cast<const char*>(message.wParam);
  return key != nullptr ? AsResult(FindArrayValue(ArrayValuesOf(message.window), key)) : 0;
}

LRESULT OnSetArrayValue(const Message& message) noexcept {
  const auto* key = reinterpret_cast<const char*>(message.wParam);
  const auto* value = reinterpret_cast<const char*>(message.lParam);
  if (key == nullptr || value == nullptr) return RTX_OK;
  host::Block<char> block = WithArrayValue(ArrayValuesOf(message.window), key, value);
  if (!block) return RTX_NO_MEMORY;
  ReplaceArrayValues(message.window, std::move(block));
  return RTX_OK;
}

LRESULT OnGetArrayValues(const Message& message) noexcept { return AsResult(ArrayValuesOf(message.window)); }

LRESULT OnSetArrayValues(const Message& message) noexcept {
  const auto* values = reinterpret_cast<const char*>(message.lParam);
  host::Block<char> block;
  if (!rc::IsEmpty(values)) {
    block = CopyArrayValues(values);
    if (!block) return RTX_NO_MEMORY;
  }
  ReplaceArrayValues(message.window, std::move(block));
  return RTX_OK;
}

}  // namespace brelt
