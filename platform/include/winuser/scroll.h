// Scroll bars and scrolling, as winuser.h has them.
#pragma once

#include "../windef.h"

#define SB_HORZ 0
#define SB_VERT 1

#define SB_LINEUP 0
#define SB_LINEDOWN 1
#define SB_PAGEUP 2
#define SB_PAGEDOWN 3
#define SB_THUMBPOSITION 4
#define SB_THUMBTRACK 5
#define SB_TOP 6
#define SB_BOTTOM 7

#define SIF_RANGE 0x0001
#define SIF_PAGE 0x0002
#define SIF_POS 0x0004

#define SW_SCROLLCHILDREN 0x0001
#define SW_INVALIDATE 0x0002
#define SW_ERASE 0x0004

struct SCROLLINFO {
    UINT cbSize;
    UINT fMask;
    int nMin;
    int nMax;
    UINT nPage;
    int nPos;
    int nTrackPos;
};
using LPSCROLLINFO = SCROLLINFO*;
using LPCSCROLLINFO = const SCROLLINFO*;

int WINAPI SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw);
BOOL WINAPI GetScrollInfo(HWND window, int bar, LPSCROLLINFO info);
int WINAPI ScrollWindowEx(HWND window, int dx, int dy, const RECT* scrolled, const RECT* clip, HRGN update, LPRECT updated, UINT flags);
