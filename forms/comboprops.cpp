// Combostyle, Combotext and MaxLength.
#include "forms/property.h"
#include "forms/textcopy.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr const char* kComboBox = "COMBOBOX";

// A drop-down list has no field to type in, and so neither text nor limit.
bool IsDropDownList(HWND combo) noexcept {
  return ClassMatches(combo, kComboBox) && TypeBitsOf(combo) == CBS_DROPDOWNLIST;
}

std::int32_t ComboStyle(const ObjectCall& call) noexcept {
  switch (TypeBitsOf(call.control())) {
    case CBS_SIMPLE:
      return 1;
    case CBS_DROPDOWNLIST:
      return 2;
    default:
      return 0;
  }
}

std::int32_t LimitOf(const ObjectCall& call) noexcept {
  return IsDropDownList(call.control()) ? 0 : TextLimitOf(call.control());
}

void SetLimit(const ObjectCall& call, std::int32_t length) noexcept {
  if (IsDropDownList(call.control())) return;
  SendMessageA(call.window(), XM_SETMAXLENGTH, reinterpret_cast<WPARAM>(call.control()), length);
}

void FillComboText(const ObjectCall& call, rc::TextBuffer text) noexcept {
  if (!IsDropDownList(call.control())) GetWindowTextA(call.control(), text.data(), text.size());
}

std::int32_t SetComboText(const ObjectCall& call, const char* text) noexcept {
  if (IsDropDownList(call.control())) return RTX_OK;
  const host::Block<char> copy = CopyText(text);
  if (!copy) return RTX_NO_MEMORY;
  CutToLimit(copy.get(), TextLimitOf(call.control()));
  SetWindowTextA(call.control(), copy.get());
  return RTX_OK;
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetCombostyle(const char* name, int32_t id, int32_t* style) {
  static constexpr GetRow<int32_t> kRow = {.controls = {{kComboBox, ComboStyle}}};
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{style}), kRow, style);
}

int32_t __stdcall GetMaxLength(const char* name, int32_t id, int32_t* length) {
  static constexpr GetRow<int32_t> kRow = {.controls = {{"EDIT", LimitOf}, {kComboBox, LimitOf}}};
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{length}), kRow, length);
}

int32_t __stdcall SetMaxLength(const char* name, int32_t id, int32_t length) {
  static constexpr SetRow<int32_t> kRow = {.controls = {{"EDIT", SetLimit}, {kComboBox, SetLimit}}};
  return SetProperty(ObjectCall(__func__, name, id), kRow, length);
}

int32_t __stdcall GetCombotext(const char* name, int32_t id, char* text, int32_t size) {
  static constexpr SetRow<rc::TextBuffer> kRow = {.controls = {{kComboBox, FillComboText}}};
  return SetProperty(ObjectCall(__func__, name, id, TextOutput{text, size}), kRow, {text, size});
}

int32_t __stdcall SetCombotext(const char* name, int32_t id, const char* text) {
  static constexpr ActRow<const char*> kRow = {.controls = {{kComboBox, SetComboText}}};
  return ActOnProperty(ObjectCall(__func__, name, id, TextInput{text}), kRow, text);
}
