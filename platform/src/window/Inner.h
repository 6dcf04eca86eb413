// Inner: what is known of windows, as the system itself asks for it, past the gate. Nothing here sends a message.
//
// Each function does what the Windows function of the same name does. The system's own steps use these, and those of the areas above,
// so that they show up in no trace and are struck by no fault.
#pragma once

#include "platform/src/window/Window.h"

#include <windows.h>

#include <string>
#include <string_view>

namespace platform::inner {

BOOL IsWindowEnabled(HWND window);
BOOL IsWindowVisible(HWND window);
HWND GetParent(HWND window);
HWND GetAncestor(HWND window, UINT which);
RECT GetClientRect(HWND window);
RECT GetWindowRect(HWND window);
/// The window's stored text, not asked by message.
std::u16string GetText(HWND window);
void SetText(HWND window, std::u16string_view text);
/// From the client area of one window to that of another; NULL is the screen.
POINT MapPoint(HWND from, HWND to, POINT point);
DWORD GetStyle(HWND window);
/// The identifier of a child window.
int GetId(HWND window);
/// Changes style bits without any message.
void SetStyle(HWND window, DWORD clear, DWORD set);

HDC GetDC(HWND window);
HDC GetWindowDC(HWND window);
void ReleaseDC(HWND window, HDC dc);

}  // namespace platform::inner
