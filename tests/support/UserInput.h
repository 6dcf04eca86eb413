// UserInput: mouse and keyboard through SendInput, the same on the stand-in PC and on Windows. Everything that follows is handled at once.
#pragma once

#include <windows.h>

namespace tests {

/// Moves the cursor to a point of the screen.
void MoveMouse(int x, int y);
/// Moves it to a point of a window's client area.
void MoveMouse(HWND window, int x, int y);
/// Puts it into the last corner of the screen, where no window is, without waiting for what follows.
void ParkMouse();
/// MOUSEEVENTF_LEFTDOWN and so on, where the cursor is.
void MouseButton(DWORD flag);
void ClickMouse();
void PressKey(WORD virtualKey);
/// With the key flags: KEYEVENTF_KEYUP.
void SendKey(WORD virtualKey, DWORD flags = 0);
/// A character of no key.
void SendCharacter(WCHAR character);

}  // namespace tests
