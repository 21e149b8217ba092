// Real input: keys and mouse as the user would give them.
#pragma once

#include <windows.h>

#include <initializer_list>

namespace brelt::test {

// Presses and releases a key while modifiers are held (VK_SHIFT, VK_CONTROL, VK_MENU).
void PressKey(WORD key, std::initializer_list<WORD> held = {});
void KeyDown(WORD key);
void KeyUp(WORD key);

// Moves the pointer to a place in a window's client area.
void MovePointer(HWND window, int x, int y);
void MovePointerTo(POINT screen);
void LeftDown();
void LeftUp();
void RightDown();
void RightUp();
// Moves to the middle of a control and clicks.
void ClickControl(HWND control);
void DoubleClickControl(HWND control);

}  // namespace brelt::test
