// Common controls and window subclassing, as the Windows SDK names them.
#pragma once

#include "windef.h"
#include "winuser.h"

// https://learn.microsoft.com/windows/win32/api/commctrl/ns-commctrl-initcommoncontrolsex
#define ICC_WIN95_CLASSES 0x000000FF
#define ICC_STANDARD_CLASSES 0x00004000

struct INITCOMMONCONTROLSEX {
    DWORD dwSize;
    DWORD dwICC;
};
using LPINITCOMMONCONTROLSEX = INITCOMMONCONTROLSEX*;

BOOL WINAPI InitCommonControlsEx(const INITCOMMONCONTROLSEX* controls);

// Tooltips. https://learn.microsoft.com/windows/win32/controls/tooltip-control-reference
#define TOOLTIPS_CLASSW TEXT("tooltips_class32")
#define TTS_ALWAYSTIP 0x01
#define TTS_NOPREFIX 0x02
#define TTS_BALLOON 0x40
#define TTF_CENTERTIP 0x0002
#define TTF_SUBCLASS 0x0010
#define TTF_TRACK 0x0020
#define TTDT_AUTOMATIC 0
#define TTDT_RESHOW 1
#define TTDT_AUTOPOP 2
#define TTDT_INITIAL 3
#define TTI_NONE 0
#define TTI_INFO 1
#define TTI_WARNING 2
#define TTI_ERROR 3
#define TTM_SETDELAYTIME (WM_USER + 3)
#define TTM_GETTOOLCOUNT (WM_USER + 13)
#define TTM_TRACKACTIVATE (WM_USER + 17)
#define TTM_TRACKPOSITION (WM_USER + 18)
#define TTM_SETTIPBKCOLOR (WM_USER + 19)
#define TTM_SETTIPTEXTCOLOR (WM_USER + 20)
#define TTM_GETDELAYTIME (WM_USER + 21)
#define TTM_GETTIPBKCOLOR (WM_USER + 22)
#define TTM_GETTIPTEXTCOLOR (WM_USER + 23)
#define TTM_SETMAXTIPWIDTH (WM_USER + 24)
#define TTM_GETMAXTIPWIDTH (WM_USER + 25)
#define TTM_SETTITLEW (WM_USER + 33)
#define TTM_ADDTOOLW (WM_USER + 50)
#define TTM_GETTOOLINFOW (WM_USER + 53)
#define TTN_FIRST (0U - 520U)
#define TTN_SHOW (TTN_FIRST - 1)
#define TTN_POP (TTN_FIRST - 2)

// Newer systems know more members; a version-5 library refuses a record that is longer than the one it knows.
struct TTTOOLINFOW {
    UINT cbSize;
    UINT uFlags;
    HWND hwnd;
    UINT_PTR uId;
    RECT rect;
    HINSTANCE hinst;
    LPWSTR lpszText;
    LPARAM lParam;
    void* lpReserved;
};
using TOOLINFOW = TTTOOLINFOW;
using LPTTTOOLINFOW = TTTOOLINFOW*;
#define TTTOOLINFOW_V1_SIZE (offsetof(TTTOOLINFOW, lParam))
#define TTTOOLINFOW_V2_SIZE (offsetof(TTTOOLINFOW, lpReserved))
#define TTTOOLINFOW_V3_SIZE (sizeof(TTTOOLINFOW))

// Window subclassing. https://learn.microsoft.com/windows/win32/api/commctrl/nf-commctrl-setwindowsubclass
using SUBCLASSPROC = LRESULT(CALLBACK*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data);
BOOL WINAPI SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data);
BOOL WINAPI RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);
LRESULT WINAPI DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
