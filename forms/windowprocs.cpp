// The window procedures of the windows that programs load.
#include "forms/handlers.h"
#include "include/brelt.h"

namespace brelt {
namespace {

// What Dialog and edit windows have in common.
constexpr RouteTable<31> kSharedRoutes = {{
    {WM_MOVE, OnMoveOrSize},
    {WM_SIZE, OnMoveOrSize},
    {WM_ACTIVATE, OnActivate},
    {WM_CLOSE, OnClose},
    {WM_SHOWWINDOW, OnShowWindow},
    {WM_CANCELMODE, OnCancelMode},
    {WM_SETCURSOR, OnSetCursor},
    {WM_GETMINMAXINFO, OnGetMinMaxInfo},
    {WM_WINDOWPOSCHANGING, OnWindowPosChanging},
    {WM_NCDESTROY, OnNcDestroy},
    {WM_COMMAND, OnCommand},
    {WM_TIMER, OnTimer},
    {WM_HSCROLL, OnScroll},
    {WM_VSCROLL, OnScroll},
    {WM_LBUTTONDOWN, OnLeftDown},
    {WM_RBUTTONDOWN, OnRightDown},
    {WM_LBUTTONDBLCLK, OnLeftDoubleClick},
    {WM_PARENTNOTIFY, OnParentNotify},
    {WM_GETFONT, OnGetFont},
    {WM_SETFONT, OnSetFont},
    {XM_COMMANDCHAR, OnCommandChar},
    {XM_GETARRAYVALUE, OnGetArrayValue},
    {XM_SETARRAYVALUE, OnSetArrayValue},
    {XM_GETARRAYVALUES, OnGetArrayValues},
    {XM_SETARRAYVALUES, OnSetArrayValues},
    {EV_CUSTOM, OnCustomEvent},
    {EV_ACTIVATE, OnActivateEvent},
    {EV_MOUSEDOWN, OnAnsweredEvent},
    {EV_KEYPRESS, OnAnsweredEvent},
    {EV_RIGHTDOWN, OnAnsweredEvent},
    {EV_LOAD, OnLoadEvent},
    // EV_CLICK, EV_DBLCLICK and EV_DEACTIVATE are no messages that are passed on: EV_DEACTIVATE is posted on
    // each deactivation and ends in the default procedure. Programs have never seen it and don't expect to.
}};

constexpr RouteTable<12> kDialogRoutes = {{
    {WM_PAINT, OnPaint},
    {WM_ERASEBKGND, OnEraseBackground},
    {WM_NEXTDLGCTL, OnNextDlgCtl},
    {WM_DESTROY, OnDestroy},
    {WM_NCHITTEST, OnNcHitTest},
    {WM_SYSCOMMAND, OnSysCommand},
    {WM_MOUSEMOVE, OnMouseMove},
    {DM_GETDEFID, OnGetDefId},
    {XM_GETMAXLENGTH, OnGetMaxLength},
    {XM_SETMAXLENGTH, OnSetMaxLength},
    {XM_GETDRAWFONT, OnGetDrawFont},
    {XM_SETDRAWFONT, OnSetDrawFont},
}};

constexpr auto kDialogTable = ComposeRoutes(kSharedRoutes, kDialogRoutes);
static_assert(HasEachNumberOnce(kDialogTable));
constexpr auto kEditTable = ComposeRoutes(kSharedRoutes);
static_assert(HasEachNumberOnce(kEditTable));

}  // namespace
}  // namespace brelt

using namespace brelt;

LRESULT __stdcall Dialog_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(kDialogTable, {window, message, wParam, lParam});
}

LRESULT __stdcall Editwindow_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(kEditTable, {window, message, wParam, lParam});
}

LRESULT __stdcall Richeditwindow_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Editwindow_proc(window, message, wParam, lParam);
}
