// Text, TextLength, Selection, SelText, Modify, Readonly and PasswordChar: what can be typed in.
#include "editwin/edittext.h"
#include "forms/clipboard.h"
#include "forms/property.h"
#include "forms/textcopy.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr const char* kEdit = "EDIT";

// A property of the text of an edit window and of "EDIT" controls; every other object is refused.
template <typename OnWindow, typename OnControl>
std::int32_t OnText(const ObjectCall& call, OnWindow onWindow, OnControl onControl) noexcept {
  if (call.code() != RTX_OK) return call.code();
  if (call.id() == 0 && IsAnyEditwindow(call.window())) return onWindow(call.window());
  if (ClassMatches(call.control(), kEdit)) return onControl(call.control());
  return Refuse(call);
}

// The clipboard needs no window. What is null is refused as ever.
bool IsClipboardCall(const ObjectCall& call, const char* name) noexcept {
  return IsClipboardName(name) && (call.code() == RTX_OK || call.code() == RTX_NO_WINDOW);
}

struct TextRange {
  DWORD start = 0;
  DWORD end = 0;
};

TextRange SelectedRange(HWND edit) noexcept {
  TextRange range;
  SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&range.start), reinterpret_cast<LPARAM>(&range.end));
  return range;
}

// Copies the selected text by way of a copy of the whole: the control gives nothing less.
void FillSelectedText(HWND edit, rc::TextBuffer out) noexcept {
  const TextRange range = SelectedRange(edit);
  if (range.end <= range.start) return;
  const int length = GetWindowTextLengthA(edit);
  const host::Block<char> whole(static_cast<std::size_t>(length) + 1);
  if (!whole) return;
  GetWindowTextA(edit, whole.get(), length + 1);
  const std::string_view text(whole.get());
  if (range.start < text.size()) out.Assign(text.substr(range.start, range.end - range.start));
}

std::int32_t SetControlText(HWND edit, const char* text) noexcept {
  const host::Block<char> copy = TextToCrLf(text);
  if (!copy) return RTX_NO_MEMORY;
  CutToLimit(copy.get(), TextLimitOf(edit));
  SetWindowTextA(edit, copy.get());
  SendMessageA(edit, EM_SETMODIFY, FALSE, 0);
  Repaint(edit, false);
  return RTX_OK;
}

// A text that would go beyond the limit isn't inserted in part: it is refused by a beep.
std::int32_t ReplaceSelection(HWND edit, const char* text) noexcept {
  const host::Block<char> copy = TextToCrLf(text);
  if (!copy) return RTX_NO_MEMORY;
  const std::int32_t limit = TextLimitOf(edit);
  const TextRange range = SelectedRange(edit);
  const std::int64_t after = std::int64_t{GetWindowTextLengthA(edit)} - range.end + range.start +
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

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetText(const char* name, int32_t id, char* text, int32_t size) {
  const ObjectCall call(__func__, name, id, TextOutput{text, size});
  const rc::TextBuffer out(text, size);
  if (IsClipboardCall(call, name)) {
    GetClipboardText(out);
    return RTX_OK;
  }
  return OnText(
      call,
      [&](HWND window) {
        GetEditText(window, out);
        return RTX_OK;
      },
      [&](HWND edit) {
        if (out.IsWritable())
          SendMessageA(edit, WM_GETTEXT, out.size(), reinterpret_cast<LPARAM>(out.data()));
        return RTX_OK;
      });
}

int32_t __stdcall SetText(const char* name, int32_t id, const char* text) {
  const ObjectCall call(__func__, name, id, TextInput{text});
  if (IsClipboardCall(call, name)) return SetClipboardText(text);
  return OnText(
      call, [&](HWND window) { return SetEditText(window, text); },
      [&](HWND edit) { return SetControlText(edit, text); });
}

int32_t __stdcall GetTextLength(const char* name, int32_t id, int32_t* length) {
  const ObjectCall call(__func__, name, id, NumberOutput{length});
  if (IsClipboardCall(call, name)) {
    *length = GetClipboardTextLength();
    return RTX_OK;
  }
  return OnText(
      call,
      [&](HWND window) {
        *length = GetEditTextLength(window);
        return RTX_OK;
      },
      [&](HWND edit) {
        *length = GetWindowTextLengthA(edit);
        return RTX_OK;
      });
}

int32_t __stdcall GetSelText(const char* name, int32_t id, char* text, int32_t size) {
  const rc::TextBuffer out(text, size);
  return OnText(
      ObjectCall(__func__, name, id, TextOutput{text, size}),
      [&](HWND window) {
        GetEditSelText(window, out);
        return RTX_OK;
      },
      [&](HWND edit) {
        FillSelectedText(edit, out);
        return RTX_OK;
      });
}

int32_t __stdcall SetSelText(const char* name, int32_t id, const char* text) {
  return OnText(
      ObjectCall(__func__, name, id, TextInput{text}),
      [&](HWND window) { return SetEditSelText(window, text); },
      [&](HWND edit) { return ReplaceSelection(edit, text); });
}

// Positions count from 1.
int32_t __stdcall GetSelection(const char* name, int32_t id, int32_t* start, int32_t* length) {
  return OnText(
      ObjectCall(__func__, name, id, NumberOutput{start}, NumberOutput{length}),
      [&](HWND window) {
        const EditSelection selection = GetEditSelection(window);
        *start = selection.start + 1;
        *length = selection.length;
        return RTX_OK;
      },
      [&](HWND edit) {
        const TextRange range = SelectedRange(edit);
        *start = static_cast<int32_t>(range.start) + 1;
        *length = static_cast<int32_t>(range.end - range.start);
        return RTX_OK;
      });
}

int32_t __stdcall SetSelection(const char* name, int32_t id, int32_t start, int32_t length) {
  // Wild numbers wrap rather than overflow; the control clamps what it gets.
  const auto from = static_cast<uint32_t>(start) - 1;
  const auto to = from + static_cast<uint32_t>(length);
  return OnText(
      ObjectCall(__func__, name, id),
      [&](HWND window) {
        SetEditSelection(window, {static_cast<int32_t>(from), length});
        return RTX_OK;
      },
      [&](HWND edit) {
        SendMessageA(edit, EM_SETSEL, from, static_cast<LPARAM>(to));
        SendMessageA(edit, EM_SCROLLCARET, 0, 0);
        return RTX_OK;
      });
}

int32_t __stdcall GetModify(const char* name, int32_t id, uint8_t* isModified) {
  return OnText(
      ObjectCall(__func__, name, id, TruthOutput{isModified}),
      [&](HWND window) {
        *isModified = IsEditModified(window) ? 1 : 0;
        return RTX_OK;
      },
      [&](HWND edit) {
        *isModified = SendMessageA(edit, EM_GETMODIFY, 0, 0) != 0 ? 1 : 0;
        return RTX_OK;
      });
}

int32_t __stdcall SetModify(const char* name, int32_t id, uint8_t isModified) {
  return OnText(
      ObjectCall(__func__, name, id),
      [&](HWND window) {
        SetEditModified(window, isModified != 0);
        return RTX_OK;
      },
      [&](HWND edit) {
        SendMessageA(edit, EM_SETMODIFY, isModified != 0, 0);
        return RTX_OK;
      });
}

int32_t __stdcall GetReadonly(const char* name, int32_t id, uint8_t* isReadOnly) {
  static constexpr GetRow<uint8_t> kRow = {
      .controls = {{kEdit, [](const ObjectCall& call) noexcept -> uint8_t {
                      return (StyleOf(call.control()) & ES_READONLY) != 0 ? 1 : 0;
                    }}}};
  return GetProperty(ObjectCall(__func__, name, id, TruthOutput{isReadOnly}), kRow, isReadOnly);
}

int32_t __stdcall GetPasswordChar(const char* name, int32_t id, int32_t* character) {
  static constexpr GetRow<int32_t> kRow = {.controls = {{kEdit, PasswordChar}}};
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{character}), kRow, character);
}

int32_t __stdcall SetPasswordChar(const char* name, int32_t id, int32_t character) {
  static constexpr SetRow<int32_t> kRow = {.controls = {{kEdit, SetPasswordCharOf}}};
  return SetProperty(ObjectCall(__func__, name, id), kRow, character);
}

int32_t __stdcall GetTokens(const char* name, int32_t id, char* text, int32_t size) {
  const ObjectCall call(__func__, name, id, TextOutput{text, size});
  if (call.code() != RTX_OK) return call.code();
  if (id != 0 || !IsAnyEditwindow(call.window())) return Refuse(call);
  GetEditTokens(call.window(), {text, size});
  return RTX_OK;
}

int32_t __stdcall SetTokens(const char* name, int32_t id, const char* text) {
  const ObjectCall call(__func__, name, id, TextInput{text});
  if (call.code() != RTX_OK) return call.code();
  if (id != 0 || !IsAnyEditwindow(call.window())) return Refuse(call);
  return SetEditTokens(call.window(), text);
}
