// Caption: what stands on a window, a button, a label, an icon list or a menu item.
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

using CaptionText = rc::FixedText<1024>;

void FillItemCaption(const ObjectCall& call, rc::TextBuffer text) noexcept {
  if (!text.IsWritable()) return;
  GetMenuStringA(call.menu(), static_cast<UINT>(call.id()), text.data(), text.size(), MF_BYCOMMAND);
  // Some systems leave a text open that they had to cut.
  text.data()[text.room()] = '\0';
}

void SetControlCaption(const ObjectCall& call, const char* text) noexcept {
  SetWindowTextA(call.control(), text);
  Repaint(call.control());
}

// The columns of an icon list's caption are divided by tabs; one at the very end would make an empty column.
void SetIconListCaption(const ObjectCall& call, const char* text) noexcept {
  CaptionText caption{std::string_view(text)};
  std::string_view kept = caption.view();
  if (kept.ends_with('\t')) kept.remove_suffix(1);
  caption.Assign(kept);
  SetControlCaption(call, caption.c_str());
}

void SetItemCaption(const ObjectCall& call, const char* text) noexcept {
  const auto id = static_cast<UINT>(call.id());
  const UINT state = GetMenuState(call.menu(), id, MF_BYCOMMAND) & (MF_CHECKED | MF_GRAYED);
  ModifyMenuA(call.menu(), id, MF_BYCOMMAND | MF_STRING | state, id, text);
  DrawMenuBar(call.window());
}

void FillControlCaption(const ObjectCall& call, rc::TextBuffer text) noexcept {
  GetWindowTextA(call.control(), text.data(), text.size());
}

constexpr SetRow<rc::TextBuffer> kGetCaption = {
    .window = [](const ObjectCall& call,
                 rc::TextBuffer text) noexcept { GetWindowTextA(call.window(), text.data(), text.size()); },
    .controls = {{"BUTTON", FillControlCaption},
                 {"STATIC", FillControlCaption},
                 {"Iconlist.*", FillControlCaption}},
    .menuItem = FillItemCaption};

constexpr SetRow<const char*> kSetCaption = {
    .window = [](const ObjectCall& call, const char* text) noexcept { SetWindowTextA(call.window(), text); },
    .controls = {{"BUTTON", SetControlCaption},
                 {"STATIC", SetControlCaption},
                 {"Iconlist.*", SetIconListCaption}},
    .menuItem = SetItemCaption};

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetCaption(const char* name, int32_t id, char* text, int32_t size) {
  const ObjectCall call(__func__, name, id, TextOutput{text, size});
  return SetProperty(call, kGetCaption, {text, size});
}

int32_t __stdcall SetCaption(const char* name, int32_t id, const char* text) {
  return SetProperty(ObjectCall(__func__, name, id, TextInput{text}), kSetCaption, text);
}
