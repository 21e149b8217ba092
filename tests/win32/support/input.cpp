#include "tests/win32/support/input.h"

#include <vector>

namespace brelt::test {
namespace {

INPUT KeyInput(WORD key, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  return input;
}

void SendMouse(DWORD flags) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

void MoveToMiddle(HWND control) {
  RECT client = {};
  GetClientRect(control, &client);
  MovePointer(control, client.right / 2, client.bottom / 2);
}

}  // namespace

void KeyDown(WORD key) {
  INPUT input = KeyInput(key, 0);
  SendInput(1, &input, sizeof input);
}

void KeyUp(WORD key) {
  INPUT input = KeyInput(key, KEYEVENTF_KEYUP);
  SendInput(1, &input, sizeof input);
}

void PressKey(WORD key, std::initializer_list<WORD> held) {
  for (const WORD modifier : held) KeyDown(modifier);
  KeyDown(key);
  KeyUp(key);
  for (const WORD modifier : held) KeyUp(modifier);
}

void MovePointerTo(POINT screen) {
  const int width = GetSystemMetrics(SM_CXSCREEN);
  const int height = GetSystemMetrics(SM_CYSCREEN);
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dx = (screen.x * 65536 + width - 1) / width;
  input.mi.dy = (screen.y * 65536 + height - 1) / height;
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  SendInput(1, &input, sizeof input);
}

void MovePointer(HWND window, int x, int y) {
  POINT point = {x, y};
  ClientToScreen(window, &point);
  MovePointerTo(point);
}

void LeftDown() { SendMouse(MOUSEEVENTF_LEFTDOWN); }
void LeftUp() { SendMouse(MOUSEEVENTF_LEFTUP); }
void RightDown() { SendMouse(MOUSEEVENTF_RIGHTDOWN); }
void RightUp() { SendMouse(MOUSEEVENTF_RIGHTUP); }

void ClickControl(HWND control) {
  MoveToMiddle(control);
  LeftDown();
  LeftUp();
}

void DoubleClickControl(HWND control) {
  ClickControl(control);
  LeftDown();
  LeftUp();
}

}  // namespace brelt::test
