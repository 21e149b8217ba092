// Text, TextLength, Selection, SelText, Modify, Readonly and PasswordChar: what can be typed in.
#include "forms/clipboard.h"
#include "forms/edittext.h"
#include "forms/property.h"
#include "forms/textcopy.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr const char* kEdit = "EDIT";

// The clipboard needs no window. What is null is refused as ever.
bool IsClipboardCall(const ObjectCall& call, const char* name) noexcept {
  return IsClipboardName(name) && (call.code() == RTX_OK || call.code() == RTX_NO_WINDOW);
}

EditSelection SelectionOf(const ObjectCall& call) noexcept {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageA(call.control(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end - start)};
}

// Wild numbers wrap rather than overflow; the control clamps what it gets.
void Select(const ObjectCall& call, EditSelection selection) noexcept {
  const std::uint32_t end =
      static_cast<std::uint32_t>(selection.start) + static_cast<std::uint32_t>(selection.length);
  SendMessageA(call.control(), EM_SETSEL, static_cast<WPARAM>(selection.start), static_cast<LPARAM>(end));
  SendMessageA(call.control(), EM_SCROLLCARET, 0, 0);
}

void FillText(const ObjectCall& call, rc::TextBuffer out) noexcept {
  if (out.IsWritable())
    SendMessageA(call.control(), WM_GETTEXT, static_cast<WPARAM>(out.size()),
                 reinterpret_cast<LPARAM>(out.data()));
}

// Copies the selected text by way of a copy of the whole: the control gives nothing less.
void FillSelectedText(const ObjectCall& call, rc::TextBuffer out) noexcept {
  const EditSelection selection = SelectionOf(call);
  if (selection.length <= 0) return;
  const int length = GetWindowTextLengthA(call.control());
  const host::Block<char> whole(static_cast<std::size_t>(length) + 1);
  if (!whole) return;
  GetWindowTextA(call.control(), whole.get(), length + 1);
  const std::string_view text(whole.get());
  const auto start = static_cast<std::size_t>(selection.start);
  if (start < text.size()) out.Assign(text.substr(start, static_cast<std::size_t>(selection.length)));
}

std::int32_t SetControlText(const ObjectCall& call, const char* text) noexcept {
  HWND edit = call.control();
  const host::Block<char> copy = TextToCrLf(text);
  if (!copy) return RTX_NO_MEMORY;
  CutToLimit(copy.get(), TextLimitOf(edit));
  SetWindowTextA(edit, copy.get());
  SendMessageA(edit, EM_SETMODIFY, FALSE, 0);
  Repaint(edit, false);
  return RTX_OK;
}

// A text that would go beyond the limit isn't inserted in part: it is refused by a beep.
std::int32_t ReplaceSelection(const ObjectCall& call, const char* text) noexcept {
  HWND edit = call.control();
  const host::Block<char> copy = TextToCrLf(text);
  if (!copy) return RTX_NO_MEMORY;
  const std::int32_t limit = TextLimitOf(edit);
  const std::int64_t after = std::int64_t{GetWindowTextLengthA(edit)} - SelectionOf(call).length +
                             static_cast<std::int64_t>(std::strlen(copy.get()));
  if (limit != 0 && after > limit) {
    MessageBeep(static_cast<UINT>(-1));
    return RTX_OK;
  }
  SendMessageA(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(copy.get()));
  return RTX_OK;
}

constexpr std::int32_t kAsterisk = 42;
constexpr std::int32_t kBlackCircle = 9679;

bool ShowsCircle(HWND edit) noexcept { return SendMessageW(edit, EM_GETPASSWORDCHAR, 0, 0) == kBlackCircle; }

// The narrow form of the message has no number for the circle; the wide one has others for some bytes.
std::int32_t PasswordChar(const ObjectCall& call) noexcept {
  HWND edit = call.control();
  if (ShowsCircle(edit)) return kBlackCircle;
  return static_cast<std::uint8_t>(SendMessageA(edit, EM_GETPASSWORDCHAR, 0, 0));
}

// For the asterisk a black circle is tried first, which needs the wide form of the message.
void SetPasswordCharOf(const ObjectCall& call, std::int32_t character) noexcept {
  HWND edit = call.control();
  if (character == kAsterisk) {
    SendMessageW(edit, EM_SETPASSWORDCHAR, kBlackCircle, 0);
    if (!ShowsCircle(edit)) SendMessageA(edit, EM_SETPASSWORDCHAR, kAsterisk, 0);
  } else {
    SendMessageA(edit, EM_SETPASSWORDCHAR, static_cast<WPARAM>(character & 0xFF), 0);
  }
  Repaint(edit);
}

// ---- The rows ----

constexpr SetRow<rc::TextBuffer> kGetText = {
    .editWindow = [](const ObjectCall& call,
                     rc::TextBuffer text) noexcept { GetEditText(call.window(), text); },
    .controls = {{kEdit, FillText}}};

constexpr ActRow<const char*> kSetText = {
    .editWindow = [](const ObjectCall& call,
                     const char* text) noexcept { return SetEditText(call.window(), text); },
    .controls = {{kEdit, SetControlText}}};

constexpr GetRow<std::int32_t> kGetTextLength = {
    .editWindow = [](const ObjectCall& call) noexcept { return GetEditTextLength(call.window()); },
    .controls = {{kEdit, [](const ObjectCall& call) noexcept -> std::int32_t {
                    return GetWindowTextLengthA(call.control());
                  }}}};

constexpr SetRow<rc::TextBuffer> kGetSelText = {
    .editWindow = [](const ObjectCall& call,
                     rc::TextBuffer text) noexcept { GetEditSelText(call.window(), text); },
    .controls = {{kEdit, FillSelectedText}}};

constexpr ActRow<const char*> kSetSelText = {
    .editWindow = [](const ObjectCall& call,
                     const char* text) noexcept { return SetEditSelText(call.window(), text); },
    .controls = {{kEdit, ReplaceSelection}}};

constexpr GetRow<EditSelection> kGetSelection = {
    .editWindow = [](const ObjectCall& call) noexcept { return GetEditSelection(call.window()); },
    .controls = {{kEdit, SelectionOf}}};

constexpr SetRow<EditSelection> kSetSelection = {
    .editWindow = [](const ObjectCall& call,
                     EditSelection selection) noexcept { SetEditSelection(call.window(), selection); },
    .controls = {{kEdit, Select}}};

constexpr GetRow<std::uint8_t> kGetModify = {
    .editWindow = [](const ObjectCall& call) noexcept { return Truth(IsEditModified(call.window())); },
    .controls = {{kEdit, [](const ObjectCall& call) noexcept {
                    return Truth(SendMessageA(call.control(), EM_GETMODIFY, 0, 0) != 0);
                  }}}};

constexpr SetRow<std::uint8_t> kSetModify = {
    .editWindow = [](const ObjectCall& call,
                     std::uint8_t modified) noexcept { SetEditModified(call.window(), modified != 0); },
    .controls = {{kEdit, [](const ObjectCall& call, std::uint8_t modified) noexcept {
                    SendMessageA(call.control(), EM_SETMODIFY, modified != 0, 0);
                  }}}};

constexpr GetRow<std::uint8_t> kGetReadonly = {
    .controls = {{kEdit, [](const ObjectCall& call) noexcept {
                    return Truth((StyleOf(call.control()) & ES_READONLY) != 0);
                  }}}};

constexpr GetRow<std::int32_t> kGetPasswordChar = {.controls = {{kEdit, PasswordChar}}};
constexpr SetRow<std::int32_t> kSetPasswordChar = {.controls = {{kEdit, SetPasswordCharOf}}};

constexpr SetRow<rc::TextBuffer> kGetTokens = {
    .editWindow = [](const ObjectCall& call, rc::TextBuffer text) noexcept {
      GetEditTokens(call.window(), text);
    }};

constexpr ActRow<const char*> kSetTokens = {
    .editWindow = [](const ObjectCall& call, const char* text) noexcept {
      return SetEditTokens(call.window(), text);
    }};

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetText(const char* name, int32_t id, char* text, int32_t size) {
  const ObjectCall call(__func__, name, id, TextOutput{text, size});
  if (!IsClipboardCall(call, name)) return SetProperty(call, kGetText, {text, size});
  GetClipboardText({text, size});
  return RTX_OK;
}

int32_t __stdcall SetText(const char* name, int32_t id, const char* text) {
  const ObjectCall call(__func__, name, id, TextInput{text});
  return IsClipboardCall(call, name) ? SetClipboardText(text) : ActOnProperty(call, kSetText, text);
}

int32_t __stdcall GetTextLength(const char* name, int32_t id, int32_t* length) {
  const ObjectCall call(__func__, name, id, NumberOutput{length});
  if (!IsClipboardCall(call, name)) return GetProperty(call, kGetTextLength, length);
  *length = GetClipboardTextLength();
  return RTX_OK;
}

int32_t __stdcall GetSelText(const char* name, int32_t id, char* text, int32_t size) {
  return SetProperty(ObjectCall(__func__, name, id, TextOutput{text, size}), kGetSelText, {text, size});
}

int32_t __stdcall SetSelText(const char* name, int32_t id, const char* text) {
  return ActOnProperty(ObjectCall(__func__, name, id, TextInput{text}), kSetSelText, text);
}

// A program's positions count from 1.
int32_t __stdcall GetSelection(const char* name, int32_t id, int32_t* start, int32_t* length) {
  EditSelection selection;
  const int32_t code = GetProperty(ObjectCall(__func__, name, id, NumberOutput{start}, NumberOutput{length}),
                                   kGetSelection, &selection);
  if (code != RTX_OK) return code;
  *start = selection.start + 1;
  *length = selection.length;
  return RTX_OK;
}

int32_t __stdcall SetSelection(const char* name, int32_t id, int32_t start, int32_t length) {
  const auto first = static_cast<int32_t>(static_cast<uint32_t>(start) - 1);
  return SetProperty(ObjectCall(__func__, name, id), kSetSelection, {first, length});
}

int32_t __stdcall GetModify(const char* name, int32_t id, uint8_t* isModified) {
  return GetProperty(ObjectCall(__func__, name, id, TruthOutput{isModified}), kGetModify, isModified);
}

int32_t __stdcall SetModify(const char* name, int32_t id, uint8_t isModified) {
  return SetProperty(ObjectCall(__func__, name, id), kSetModify, isModified);
}

int32_t __stdcall GetReadonly(const char* name, int32_t id, uint8_t* isReadOnly) {
  return GetProperty(ObjectCall(__func__, name, id, TruthOutput{isReadOnly}), kGetReadonly, isReadOnly);
}

int32_t __stdcall GetPasswordChar(const char* name, int32_t id, int32_t* character) {
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{character}), kGetPasswordChar, character);
}

int32_t __stdcall SetPasswordChar(const char* name, int32_t id, int32_t character) {
  return SetProperty(ObjectCall(__func__, name, id), kSetPasswordChar, character);
}

int32_t __stdcall GetTokens(const char* name, int32_t id, char* text, int32_t size) {
  return SetProperty(ObjectCall(__func__, name, id, TextOutput{text, size}), kGetTokens, {text, size});
}

int32_t __stdcall SetTokens(const char* name, int32_t id, const char* text) {
  return ActOnProperty(ObjectCall(__func__, name, id, TextInput{text}), kSetTokens, text);
}
