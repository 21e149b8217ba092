// Command: a text for a window's event function, also of another thread or program. It is posted character by
// character, so that the call returns at once and no memory has to be shared.
#include "frame/trace.h"
#include "frame/winobject.h"
#include "include/brelt.h"

int32_t __stdcall Command(HWND window, int32_t id, const char* text) {
  brelt::TraceCall(__func__);
  if (text == nullptr) return RTX_NULL_ARG;
  if (!IsWindow(window)) return RTX_NO_WINDOW;
  if (!brelt::IsWindowObject(window)) return RTX_WRONG_KIND;
  if (id < 1) return RTX_NO_ITEM;
  const brelt::rc::FixedText<259> posted{std::string_view(text)};
  for (const char character : posted.view()) {
    PostMessageA(window, XM_COMMANDCHAR, static_cast<WPARAM>(id), static_cast<signed char>(character));
  }
  PostMessageA(window, XM_COMMANDCHAR, static_cast<WPARAM>(id), 0);
  return RTX_OK;
}
