// Painting of windows, and the drawing that belongs to the window manager, as winuser.h has them.
#pragma once

#include "../windef.h"

#define RDW_INVALIDATE 0x0001
#define RDW_INTERNALPAINT 0x0002
#define RDW_ERASE 0x0004
#define RDW_VALIDATE 0x0008
#define RDW_NOINTERNALPAINT 0x0010
#define RDW_NOERASE 0x0020
#define RDW_NOCHILDREN 0x0040
#define RDW_ALLCHILDREN 0x0080
#define RDW_UPDATENOW 0x0100
#define RDW_ERASENOW 0x0200
#define RDW_FRAME 0x0400

struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
};
using LPPAINTSTRUCT = PAINTSTRUCT*;

HDC WINAPI BeginPaint(HWND window, LPPAINTSTRUCT paint);
BOOL WINAPI EndPaint(HWND window, const PAINTSTRUCT* paint);
BOOL WINAPI InvalidateRect(HWND window, const RECT* rectangle, BOOL erase);
BOOL WINAPI ValidateRect(HWND window, const RECT* rectangle);
BOOL WINAPI RedrawWindow(HWND window, const RECT* rectangle, HRGN region, UINT flags);
BOOL WINAPI UpdateWindow(HWND window);
BOOL WINAPI GetUpdateRect(HWND window, LPRECT rectangle, BOOL erase);
HDC WINAPI GetDC(HWND window);
HDC WINAPI GetWindowDC(HWND window);
int WINAPI ReleaseDC(HWND window, HDC dc);

// Drawing that belongs to the window manager: edges, text in rectangles, states, icons.

#define BDR_RAISEDOUTER 0x0001
#define BDR_SUNKENOUTER 0x0002
#define BDR_RAISEDINNER 0x0004
#define BDR_SUNKENINNER 0x0008
#define EDGE_RAISED (BDR_RAISEDOUTER | BDR_RAISEDINNER)
#define EDGE_SUNKEN (BDR_SUNKENOUTER | BDR_SUNKENINNER)
#define EDGE_ETCHED (BDR_SUNKENOUTER | BDR_RAISEDINNER)
#define BF_LEFT 0x0001
#define BF_TOP 0x0002
#define BF_RIGHT 0x0004
#define BF_BOTTOM 0x0008
#define BF_RECT (BF_LEFT | BF_TOP | BF_RIGHT | BF_BOTTOM)
#define BF_MIDDLE 0x0800
#define BF_SOFT 0x1000
#define BF_ADJUST 0x2000
#define BF_FLAT 0x4000
#define BF_MONO 0x8000

#define DT_TOP 0x00000000
#define DT_LEFT 0x00000000
#define DT_CENTER 0x00000001
#define DT_RIGHT 0x00000002
#define DT_VCENTER 0x00000004
#define DT_BOTTOM 0x00000008
#define DT_WORDBREAK 0x00000010
#define DT_SINGLELINE 0x00000020
#define DT_EXPANDTABS 0x00000040
#define DT_NOCLIP 0x00000100
#define DT_CALCRECT 0x00000400
#define DT_NOPREFIX 0x00000800
#define DT_EDITCONTROL 0x00002000
#define DT_END_ELLIPSIS 0x00008000
#define DT_RTLREADING 0x00020000
#define DT_WORD_ELLIPSIS 0x00040000
#define DT_HIDEPREFIX 0x00100000
#define DT_PREFIXONLY 0x00200000

#define DST_TEXT 0x0001
#define DST_PREFIXTEXT 0x0002
#define DST_ICON 0x0003
#define DSS_DISABLED 0x0020
#define DSS_MONO 0x0080
#define DSS_HIDEPREFIX 0x0200
using DRAWSTATEPROC = BOOL(CALLBACK*)(HDC, LPARAM, WPARAM, int, int);

#define DI_MASK 0x0001
#define DI_NORMAL 0x0003

struct ICONINFO {
    BOOL fIcon;
    DWORD xHotspot;
    DWORD yHotspot;
    HBITMAP hbmMask;
    HBITMAP hbmColor;
};

int WINAPI FillRect(HDC dc, const RECT* rectangle, HBRUSH brush);
int WINAPI FrameRect(HDC dc, const RECT* rectangle, HBRUSH brush);
BOOL WINAPI DrawFocusRect(HDC dc, const RECT* rectangle);
BOOL WINAPI DrawEdge(HDC dc, LPRECT rectangle, UINT edge, UINT flags);
int WINAPI DrawTextW(HDC dc, LPCWSTR text, int length, LPRECT rectangle, UINT format);
BOOL WINAPI DrawStateW(HDC dc, HBRUSH brush, DRAWSTATEPROC callback, LPARAM data, WPARAM dataLength, int x, int y, int width, int height,
                       UINT flags);
BOOL WINAPI GetIconInfo(HICON icon, ICONINFO* info);
BOOL WINAPI DrawIconEx(HDC dc, int left, int top, HICON icon, int width, int height, UINT step, HBRUSH flickerFree, UINT flags);
HICON WINAPI CreateIconFromResourceEx(BYTE* bits, DWORD size, BOOL isIcon, DWORD version, int width, int height, UINT flags);
