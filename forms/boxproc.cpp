// The window procedure of the message, input and list boxes. The caller of a box waits in a loop of its own;
// what it gets is written through pointers that the box's slots hold, so that it is there when the window is
// gone.
#include "forms/closing.h"
#include "forms/focus.h"
#include "forms/modal.h"
#include "forms/route.h"
#include "frame/library.h"
#include "frame/winobject.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr WORD kContentId = 121;  // the list, or the edit field
constexpr WORD kFirstButton = 101;
constexpr WORD kLastButton = 107;

// Slots that mean something else in other windows.
constexpr Slot kResultSlot = SLOT_FUNCPTR;
constexpr Slot kRectangleSlot = SLOT_ACCELTABLE;
constexpr Slot kContentSlot = SLOT_CANVAS;
constexpr Slot kContentSizeSlot = SLOT_CANVASANCHOR;

void StoreResult(int32_t* result, int32_t value) noexcept {
  if (result != nullptr) *result = value;
}

void StoreRectangle(HWND box) noexcept {
  if (auto* rectangle = ReadPointer<RECT>(box, kRectangleSlot); rectangle != nullptr)
    GetWindowRect(box, rectangle);
}

// The selection of a list box, the text of an input box; a message box has neither.
void StoreContent(HWND box) noexcept {
  void* content = ReadPointer<void>(box, kContentSlot);
  if (content == nullptr) return;
  if (ClassMatches(box, kListBoxClass)) {
    *static_cast<int32_t*>(content) =
        static_cast<int32_t>(SendDlgItemMessageA(box, kContentId, LB_GETCURSEL, 0, 0));
  } else if (ClassMatches(box, kInputBoxClass)) {
    const rc::TextBuffer text(static_cast<char*>(content), ReadSlot(box, kContentSizeSlot));
    if (text.IsWritable()) GetDlgItemTextA(box, kContentId, text.data(), text.size());
  }
}

LRESULT OnBoxClose(const Message& message) noexcept {
  HWND box = message.window;
  ReactivatePrevious(box);
  StoreRectangle(box);
  StoreResult(ReadPointer<int32_t>(box, kResultSlot), IDCANCEL);
  StoreContent(box);
  DestroyWindow(box);
  WakeMainLoop();
  return 0;
}

LRESULT OnBoxDestroy(const Message&) noexcept { return 0; }

LRESULT OnBoxActivate(const Message& message) noexcept {
  if (LOWORD(message.wParam) == WA_INACTIVE) {
    SaveFocus(message.window);
  } else {
    RestoreFocus(message.window);
  }
  return 0;
}

// The result of a command; 0 for one that doesn't end the box.
int32_t ResultOf(WORD id, WORD code) noexcept {
  if (id == IDOK || id == IDCANCEL || (id >= kFirstButton && id <= kLastButton)) return id;
  return id == kContentId && code == LBN_DBLCLK ? IDOK : 0;
}

LRESULT OnBoxCommand(const Message& message) noexcept {
  HWND box = message.window;
  const int32_t value = ResultOf(LOWORD(message.wParam), HIWORD(message.wParam));
  if (value == 0) return 0;
  // The slots go with the window.
  auto* result = ReadPointer<int32_t>(box, kResultSlot);
  StoreRectangle(box);
  StoreContent(box);
  SendMessageA(box, WM_CLOSE, 0, 0);
  StoreResult(result, value);
  return 0;
}

constexpr RouteTable<4> kBoxRoutes = {{
    {WM_CLOSE, OnBoxClose},
    {WM_DESTROY, OnBoxDestroy},
    {WM_ACTIVATE, OnBoxActivate},
    {WM_COMMAND, OnBoxCommand},
}};
constexpr auto kBoxTable = ComposeRoutes(kBoxRoutes);
static_assert(HasEachNumberOnce(kBoxTable));

}  // namespace
}  // namespace brelt

using namespace brelt;

LRESULT __stdcall winobj_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(kBoxTable, {window, message, wParam, lParam});
}
