// Place, size and visibility of windows, and rectangles, as winuser.h has them.
#pragma once

#include "../windef.h"

#define SW_HIDE 0
#define SW_SHOWNORMAL 1
#define SW_SHOWMINIMIZED 2
#define SW_SHOWNOACTIVATE 4
#define SW_SHOW 5
#define SW_MINIMIZE 6
#define SW_SHOWNA 8
#define SW_RESTORE 9
#define SW_SHOWDEFAULT 10

#define SWP_NOSIZE 0x0001
#define SWP_NOMOVE 0x0002
#define SWP_NOZORDER 0x0004
#define SWP_NOREDRAW 0x0008
#define SWP_NOACTIVATE 0x0010
#define SWP_FRAMECHANGED 0x0020
#define SWP_SHOWWINDOW 0x0040
#define SWP_HIDEWINDOW 0x0080
#define SWP_NOOWNERZORDER 0x0200
#define SWP_NOSENDCHANGING 0x0400

#define SIZE_RESTORED 0
#define SIZE_MINIMIZED 1
#define WVR_REDRAW 0x0300

struct WINDOWPOS {
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
};
struct NCCALCSIZE_PARAMS {
    RECT rgrc[3];
    WINDOWPOS* lppos;
};
struct MINMAXINFO {
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
};
struct STYLESTRUCT {
    DWORD styleOld;
    DWORD styleNew;
};

BOOL WINAPI ShowWindow(HWND window, int command);
BOOL WINAPI SetWindowPos(HWND window, HWND insertAfter, int x, int y, int width, int height, UINT flags);
BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL WINAPI EnableWindow(HWND window, BOOL enable);
BOOL WINAPI IsWindowEnabled(HWND window);
BOOL WINAPI IsWindowVisible(HWND window);
BOOL WINAPI GetWindowRect(HWND window, LPRECT rectangle);
BOOL WINAPI GetClientRect(HWND window, LPRECT rectangle);
BOOL WINAPI AdjustWindowRectEx(LPRECT rectangle, DWORD style, BOOL hasMenu, DWORD exStyle);
int WINAPI MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count);
BOOL WINAPI ClientToScreen(HWND window, LPPOINT point);
int WINAPI SetWindowRgn(HWND window, HRGN region, BOOL redraw);
int WINAPI GetWindowRgn(HWND window, HRGN region);

// Rectangles.

BOOL WINAPI OffsetRect(LPRECT rectangle, int x, int y);
