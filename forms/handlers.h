// The message handlers that window procedures route to, one per message. A handler may find its window gone
// after any call that reaches the program: an event, or a message to a window that isn't the library's.
#pragma once

#include "forms/route.h"

namespace brelt {

// Opening and closing (closing.cpp)
LRESULT OnClose(const Message& message) noexcept;
LRESULT OnShowWindow(const Message& message) noexcept;
LRESULT OnDestroy(const Message& message) noexcept;
LRESULT OnNcDestroy(const Message& message) noexcept;

// Size (sizing.cpp)
LRESULT OnMoveOrSize(const Message& message) noexcept;
LRESULT OnWindowPosChanging(const Message& message) noexcept;
LRESULT OnGetMinMaxInfo(const Message& message) noexcept;

// Canvas (painting.cpp)
LRESULT OnPaint(const Message& message) noexcept;
LRESULT OnEraseBackground(const Message& message) noexcept;

// Focus (activation.cpp)
LRESULT OnActivate(const Message& message) noexcept;
LRESULT OnNextDlgCtl(const Message& message) noexcept;
LRESULT OnSysCommand(const Message& message) noexcept;

// Mouse (mouse.cpp)
LRESULT OnSetCursor(const Message& message) noexcept;
LRESULT OnNcHitTest(const Message& message) noexcept;
LRESULT OnMouseMove(const Message& message) noexcept;
LRESULT OnLeftDown(const Message& message) noexcept;
LRESULT OnRightDown(const Message& message) noexcept;
LRESULT OnLeftDoubleClick(const Message& message) noexcept;
LRESULT OnParentNotify(const Message& message) noexcept;
LRESULT OnCancelMode(const Message& message) noexcept;

// Controls (commands.cpp, scrolling.cpp, commandtext.cpp)
LRESULT OnCommand(const Message& message) noexcept;
LRESULT OnScroll(const Message& message) noexcept;
LRESULT OnCommandChar(const Message& message) noexcept;

// What the window keeps (recordmessages.cpp)
LRESULT OnSetFont(const Message& message) noexcept;
LRESULT OnGetFont(const Message& message) noexcept;
LRESULT OnGetDrawFont(const Message& message) noexcept;
LRESULT OnSetDrawFont(const Message& message) noexcept;
LRESULT OnGetDefId(const Message& message) noexcept;
LRESULT OnGetMaxLength(const Message& message) noexcept;
LRESULT OnSetMaxLength(const Message& message) noexcept;
LRESULT OnGetArrayValue(const Message& message) noexcept;
LRESULT OnSetArrayValue(const Message& message) noexcept;
LRESULT OnGetArrayValues(const Message& message) noexcept;
LRESULT OnSetArrayValues(const Message& message) noexcept;

// Events that travel as messages (eventmessages.cpp)
LRESULT OnTimer(const Message& message) noexcept;
LRESULT OnCustomEvent(const Message& message) noexcept;
LRESULT OnActivateEvent(const Message& message) noexcept;
LRESULT OnAnsweredEvent(const Message& message) noexcept;
LRESULT OnLoadEvent(const Message& message) noexcept;

}  // namespace brelt
