// Showing, hiding and unloading a window by its name.
#include "forms/load.h"
#include "forms/mainloop.h"
#include "forms/modal.h"
#include "frame/library.h"
#include "frame/objectcall.h"
#include "frame/trace.h"
#include "frame/winobject.h"

namespace brelt {
namespace {

// Finds the window of a request, after loading it if need be; null with a failure code.
HWND FindOrLoad(const LoadRequest& request, HWND* window, int32_t& code) noexcept {
  if (HWND found = ResolveName(request.name); found != nullptr) return found;
  rc::Failure failure;
  LoadWindow(request, window, failure);
  code = failure.code;
  if (failure) return nullptr;
  HWND loaded = ResolveName(request.name);
  if (loaded == nullptr) code = RTX_NO_WINDOW;
  return loaded;
}

int32_t ShowModeless(HWND window) noexcept {
  HWND active = GetActiveWindow();
  const bool modalInTheWay =
      IsModalWindow(active) && GetWindowLongA(active, GWL_HINSTANCE) == GetWindowLongA(window, GWL_HINSTANCE);
  if (modalInTheWay) return RTX_SHOW_MODELESS;
  ShowInPlace(window);
  return RTX_OK;
}

int32_t ShowModal(HWND window, int32_t& result) noexcept {
  if (IsWindowVisible(window)) return RTX_SHOW_MODAL;  // as a modal one is, too
  ModalSet set;
  EnterModal(window, set);
  Library.LastButtonId = 0;
  RunModalLoop(window);
  // The one button of the whole program: a modal show within this one may have set it.
  result = Library.LastButtonId;
  LeaveModal(window, set);
  return RTX_OK;
}

int32_t ShowWindowObject(const LoadRequest& request, HWND* window, bool modal, int32_t& result) noexcept {
  int32_t code = RTX_OK;
  HWND found = FindOrLoad(request, window, code);
  if (found == nullptr) return code;
  // Without a name there would be no window by now.
  if (request.instance == nullptr || request.rcFile == nullptr || !IsWindowEnabled(found)) {
    return modal ? RTX_SHOW_MODAL : RTX_SHOW_MODELESS;
  }
  return modal ? ShowModal(found, result) : ShowModeless(found);
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall Show(HMODULE instance, const char* name, const char* rcFile, EventFunction eventFunction,
                       HWND* window, int32_t modal, int32_t* result) {
  TraceCall(__func__);
  int32_t button = 0;
  const int32_t code =
      ShowWindowObject({instance, name, rcFile, eventFunction, nullptr}, window, modal != 0, button);
  if (result != nullptr) *result = button;
  return code;
}

int32_t __stdcall Hide(const char* name) {
  const ObjectCall call(__func__, name, 0);
  if (call.code() != RTX_OK) return call.code();
  RECT area = {};
  GetWindowRect(call.window(), &area);
  ShowWindow(call.window(), SW_HIDE);
  // What lay below is repainted at once, whosever it is.
  RedrawWindow(nullptr, &area, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW | RDW_FRAME);
  return RTX_OK;
}

int32_t __stdcall Unload(const char* name) {
  const ObjectCall call(__func__, name, 0);
  if (call.code() != RTX_OK) return call.code();
  return static_cast<int32_t>(SendMessageA(call.window(), WM_CLOSE, 0, 0));
}
