// Inner: the functions of windows, messages and input as the system itself calls them, past the gate.
//
// Each does what the Windows function of the same name does. System window classes and the areas of the PC use these, so that
// their own steps show up in no trace and are struck by no fault.
#pragma once

#include "platform/src/window/Window.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <string_view>

namespace platform::inner {

// Messages.
LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT DefWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CallWindowProc(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL GetMessage(MSG& message, HWND window, UINT first, UINT last);
BOOL PeekMessage(MSG& message, HWND window, UINT first, UINT last, UINT remove);
BOOL TranslateMessage(const MSG& message);
LRESULT DispatchMessage(const MSG& message);
void PostQuitMessage(int exitCode);
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
BOOL KillTimer(HWND window, UINT_PTR id);

// Windows.
HWND CreateWindowEx(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height, HWND parent,
                    HMENU menu, HINSTANCE instance, LPVOID parameter);
BOOL DestroyWindow(HWND window);
BOOL ShowWindow(HWND window, int command);
BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);
BOOL EnableWindow(HWND window, BOOL enable);
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

// Subclasses.
BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data);
BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);
LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Focus, capture, keys.
HWND SetFocus(HWND window);
HWND GetFocus();
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
SHORT GetKeyState(int key);
BOOL TrackMouseEvent(TRACKMOUSEEVENT& track);
HWND SetActiveWindow(HWND window);
HWND GetActiveWindow();

// Painting.
void InvalidateRect(HWND window, const RECT* rectangle, bool erase);
void ValidateRect(HWND window, const RECT* rectangle);
void UpdateWindow(HWND window);
BOOL RedrawWindow(HWND window, const RECT* rectangle, const Region* region, UINT flags);
HDC BeginPaint(HWND window, PAINTSTRUCT& paint);
void EndPaint(HWND window, const PAINTSTRUCT& paint);
HDC GetDC(HWND window);
HDC GetWindowDC(HWND window);
void ReleaseDC(HWND window, HDC dc);

}  // namespace platform::inner
