#include "forms/tooltip.h"

#include "forms/route.h"
#include "frame/library.h"
#include "frame/owners.h"
#include "frame/winobject.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr const char* kTitle = "Tooltip_window";
constexpr int kShownText = 101;
constexpr int kWaitingText = 102;
using HintText = rc::FixedText<255>;

// Slots that mean something else in other windows.
constexpr Slot kWaitingControl = SLOT_CANVAS;      // the pointer rests on it, its timer runs
constexpr Slot kShownControl = SLOT_CANVASANCHOR;  // its hint shows

enum TooltipTimer : UINT { kPopUp = 1, kTimeUp = 2, kWatch = 3 };
constexpr UINT kFirstDelay = 1000;  // milliseconds
constexpr UINT kNextDelay = 100;    // when one hint follows another
constexpr UINT kShowTime = 5000;
constexpr UINT kWatchTime = 200;

constexpr int kMargin = 4;

HWND FindTooltip() noexcept { return FindWindowHandle(kTooltipsClass, kTitle, 0, 1); }

HWND ControlIn(HWND tooltip, Slot slot) noexcept { return ReadPointer<HWND__>(tooltip, slot); }

void SetText(HWND tooltip, int id, const char* text) noexcept { SetDlgItemTextA(tooltip, id, text); }

void ClearTexts(HWND tooltip) noexcept {
  SetText(tooltip, kShownText, "");
  SetText(tooltip, kWaitingText, "");
}

void StopTimers(HWND tooltip) noexcept {
  for (const UINT timer : {kPopUp, kTimeUp, kWatch}) KillTimer(tooltip, timer);
}

POINT PointerPosition() noexcept {
  POINT point = {};
  GetCursorPos(&point);
  return point;
}

bool IsPointerIn(HWND window) noexcept {
  RECT area = {};
  return IsWindow(window) && GetWindowRect(window, &area) && PtInRect(&area, PointerPosition());
}

void RegisterTooltipClass() noexcept {
  WNDCLASSEXA info = {};
  info.cbSize = sizeof info;
  if (GetClassInfoExA(Library.ModuleInstance, kTooltipsClass, &info)) return;
  info = {};
  info.cbSize = sizeof info;
  info.style = CS_GLOBALCLASS;
  info.lpfnWndProc = ToolTip_proc;
  info.cbWndExtra = kSlotBytes;
  info.hInstance = Library.ModuleInstance;
  info.hIcon = LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION));
  info.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
  info.lpszClassName = kTooltipsClass;
  RegisterClassExA(&info);
}

void CreateText(HWND tooltip, HINSTANCE instance, int id, DWORD visible) noexcept {
  HWND text =
      CreateWindowExA(0, "STATIC", "", WS_CHILD | SS_NOPREFIX | SS_LEFTNOWORDWRAP | visible, 0, 0, 0, 0,
                      tooltip, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
  SendMessageA(text, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_VAR_FONT)), FALSE);
}

HWND CreateTooltip(HWND window) noexcept {
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongA(window, GWL_HINSTANCE));
  HWND tooltip = CreateWindowExA(WS_EX_TOOLWINDOW, kTooltipsClass, kTitle, WS_POPUP, 0, 0, 10, 10, nullptr,
                                 nullptr, instance, nullptr);
  if (tooltip == nullptr) return nullptr;
  CreateText(tooltip, instance, kShownText, WS_VISIBLE);
  CreateText(tooltip, instance, kWaitingText, 0);
  WriteSlot(tooltip, kWaitingControl, 0);
  WriteSlot(tooltip, kShownControl, 0);
  return tooltip;
}

// The size of a text without wrapping; one line end at its end isn't measured.
SIZE MeasureHint(HintText text) noexcept {
  std::string_view measured = text.view();
  if (measured.ends_with('\n')) {
    measured.remove_suffix(1);
    if (measured.ends_with('\r')) measured.remove_suffix(1);
  }
  text.Assign(measured);
  const WindowDc screen(nullptr);
  const Selected font(screen.get(), GetStockObject(ANSI_VAR_FONT));
  RECT box = {0, 0, 10000, 10000};
  DrawTextA(screen.get(), text.c_str(), -1, &box, DT_CALCRECT | DT_NOCLIP | DT_EXPANDTABS | DT_NOPREFIX);
  return {box.right - box.left, box.bottom - box.top};
}

// Sizes the window to its text and puts it below the pointer, without making it active.
void PlaceTooltip(HWND tooltip, const SIZE& text) noexcept {
  MoveWindow(GetDlgItem(tooltip, kShownText), kMargin, kMargin, text.cx, text.cy, FALSE);
  RECT outer = {0, 0, text.cx + 2 * kMargin, text.cy + 2 * kMargin};
  AdjustWindowRectEx(&outer, WS_POPUP, FALSE, WS_EX_TOOLWINDOW);
  const POINT pointer = PointerPosition();
  MoveWindow(tooltip, pointer.x, pointer.y + GetSystemMetrics(SM_CYCURSOR) / 2, outer.right - outer.left,
             outer.bottom - outer.top, FALSE);
  SetWindowPos(tooltip, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  RedrawWindow(tooltip, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void PopUp(HWND tooltip) noexcept {
  KillTimer(tooltip, kPopUp);
  HWND control = ControlIn(tooltip, kWaitingControl);
  if (!IsPointerIn(control)) return;
  if (IsWindowVisible(tooltip)) ShowWindow(tooltip, SW_HIDE);
  HintText text;
  GetDlgItemTextA(tooltip, kWaitingText, text.data(), text.buffer().size());
  ClearTexts(tooltip);
  WriteSlot(tooltip, kWaitingControl, 0);
  WriteSlot(tooltip, kShownControl, 0);
  SetText(tooltip, kShownText, text.c_str());
  PlaceTooltip(tooltip, MeasureHint(text));
  WritePointer(tooltip, kShownControl, control);
  SetTimer(tooltip, kTimeUp, kShowTime, nullptr);
  SetTimer(tooltip, kWatch, kWatchTime, nullptr);
}

// The hint stays while the pointer moves within the window of its control.
void Watch(HWND tooltip) noexcept {
  if (IsWindowVisible(tooltip) && !IsPointerIn(GetParent(ControlIn(tooltip, kShownControl)))) HideTooltip();
}

LRESULT OnTooltipTimer(const Message& message) noexcept {
  switch (message.wParam) {
    case kPopUp:
      PopUp(message.window);
      break;
    case kTimeUp:
      KillTimer(message.window, kTimeUp);
      HideTooltip();
      break;
    case kWatch:
      Watch(message.window);
      break;
    default:
      break;
  }
  return 0;
}

LRESULT OnTooltipMouseMove(const Message&) noexcept {
  HideTooltip();
  return 0;
}

LRESULT OnTooltipTextColour(const Message& message) noexcept {
  SetBkColor(reinterpret_cast<HDC>(message.wParam), GetSysColor(COLOR_INFOBK));
  return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_INFOBK));
}

void FillBar(HDC dc, RECT bar, COLORREF colour) noexcept {
  SetBkColor(dc, colour);
  ExtTextOutA(dc, 0, 0, ETO_OPAQUE, &bar, nullptr, 0, nullptr);
}

LRESULT OnTooltipErase(const Message& message) noexcept {
  constexpr COLORREF kLight = 0xFFFFFF;
  constexpr COLORREF kDark = 0x404040;
  const auto dc = reinterpret_cast<HDC>(message.wParam);
  RECT client = {};
  GetClientRect(message.window, &client);
  FillRect(dc, &client, GetSysColorBrush(COLOR_INFOBK));
  const SavedDc saved(dc);
  FillBar(dc, {0, 0, client.right, 1}, kLight);
  FillBar(dc, {0, 0, 1, client.bottom}, kLight);
  FillBar(dc, {0, client.bottom - 1, client.right, client.bottom}, kDark);
  FillBar(dc, {client.right - 1, 0, client.right, client.bottom}, kDark);
  return 1;
}

LRESULT OnTooltipDestroy(const Message& message) noexcept {
  StopTimers(message.window);
  return 0;
}

constexpr RouteTable<5> kTooltipRoutes = {{
    {WM_TIMER, OnTooltipTimer},
    {WM_MOUSEMOVE, OnTooltipMouseMove},
    {WM_CTLCOLORSTATIC, OnTooltipTextColour},
    {WM_ERASEBKGND, OnTooltipErase},
    {WM_DESTROY, OnTooltipDestroy},
}};
constexpr auto kTooltipTable = ComposeRoutes(kTooltipRoutes);
static_assert(HasEachNumberOnce(kTooltipTable));

// Makes a control the one whose hint is next, or prolongs what is there.
void WaitFor(HWND tooltip, HWND control, const char* text) noexcept {
  const bool isShown = control == ControlIn(tooltip, kShownControl);
  const bool visible = IsWindowVisible(tooltip) != FALSE;
  if (control == ControlIn(tooltip, kWaitingControl)) {
    if (visible) {
      if (!isShown) SetTimer(tooltip, kPopUp, kNextDelay, nullptr);
      return;
    }
  } else if (isShown) {
    if (visible) SetTimer(tooltip, kTimeUp, kShowTime, nullptr);
    return;
  } else {
    WritePointer(tooltip, kWaitingControl, control);
    SetText(tooltip, kWaitingText, text);
  }
  SetTimer(tooltip, kPopUp, kFirstDelay, nullptr);
}

}  // namespace

void ShowTooltip(HWND window, HWND control, const char* text) noexcept {
  if (control == nullptr || window == nullptr || GetParent(control) != window || rc::IsEmpty(text)) {
    return HideTooltip();
  }
  RegisterTooltipClass();
  HWND tooltip = FindTooltip();
  if (tooltip == nullptr) tooltip = CreateTooltip(window);
  if (tooltip != nullptr) WaitFor(tooltip, control, text);
}

void HideTooltip() noexcept {
  HWND tooltip = FindTooltip();
  if (tooltip == nullptr) return;
  if (!IsPointerIn(ControlIn(tooltip, kShownControl))) {
    HWND waiting = ControlIn(tooltip, kWaitingControl);
    const bool onWaiting = IsPointerIn(waiting);
    // The waiting control counts as shown from here on, which keeps the next hint quick.
    WritePointer(tooltip, kShownControl, onWaiting ? waiting : static_cast<HWND>(nullptr));
    WriteSlot(tooltip, kWaitingControl, 0);
    if (!onWaiting) ClearTexts(tooltip);
  }
  if (IsWindowVisible(tooltip)) ShowWindow(tooltip, SW_HIDE);
  StopTimers(tooltip);
}

void CloseTooltip() noexcept {
  if (HWND tooltip = FindTooltip(); tooltip != nullptr) SendMessageA(tooltip, WM_CLOSE, 0, 0);
}

}  // namespace brelt

using namespace brelt;

LRESULT __stdcall ToolTip_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(kTooltipTable, {window, message, wParam, lParam});
}
