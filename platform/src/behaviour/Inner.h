// Inner: what makes, shows, places, paints and ends windows, past the gate; it sends the messages that Windows sends.
#pragma once

#include "platform/src/input/Inner.h"

#include <commctrl.h>

namespace platform::inner {

HWND CreateWindowEx(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height, HWND parent,
                    HMENU menu, HINSTANCE instance, LPVOID parameter);
BOOL DestroyWindow(HWND window);
BOOL ShowWindow(HWND window, int command);
BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);
BOOL EnableWindow(HWND window, BOOL enable);
LRESULT DefWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

void InvalidateRect(HWND window, const RECT* rectangle, bool erase);
void ValidateRect(HWND window, const RECT* rectangle);
void UpdateWindow(HWND window);
BOOL RedrawWindow(HWND window, const RECT* rectangle, const Region* region, UINT flags);
HDC BeginPaint(HWND window, PAINTSTRUCT& paint);
void EndPaint(HWND window, const PAINTSTRUCT& paint);

BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data);
BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);
LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace platform::inner
