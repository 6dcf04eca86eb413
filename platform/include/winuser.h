// Windows, messages, input and the system's controls, as the Windows SDK names them.
// https://learn.microsoft.com/windows/win32/api/winuser/
#pragma once

#include "windef.h"

#include "wingdi.h"

#include <cstdarg>

// ---- Windows, messages, input, painting, metrics ----

using WNDPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);
using TIMERPROC = void(CALLBACK*)(HWND, UINT, UINT_PTR, DWORD);
using WNDENUMPROC = BOOL(CALLBACK*)(HWND, LPARAM);

#define IS_INTRESOURCE(value) ((reinterpret_cast<ULONG_PTR>(value) >> 16) == 0)

// Window classes.

#define CS_VREDRAW 0x0001
#define CS_HREDRAW 0x0002
#define CS_DBLCLKS 0x0008
#define CS_PARENTDC 0x0080
#define CS_NOCLOSE 0x0200
#define CS_SAVEBITS 0x0800
#define CS_GLOBALCLASS 0x4000

struct WNDCLASSEXW {
    UINT cbSize;
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCWSTR lpszMenuName;
    LPCWSTR lpszClassName;
    HICON hIconSm;
};
using LPWNDCLASSEXW = WNDCLASSEXW*;

struct CREATESTRUCTW {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCWSTR lpszName;
    LPCWSTR lpszClass;
    DWORD dwExStyle;
};
using LPCREATESTRUCTW = CREATESTRUCTW*;

ATOM WINAPI RegisterClassExW(const WNDCLASSEXW* windowClass);
BOOL WINAPI UnregisterClassW(LPCWSTR className, HINSTANCE instance);
int WINAPI GetClassNameW(HWND window, LPWSTR className, int capacity);
UINT WINAPI RealGetWindowClassW(HWND window, LPWSTR className, UINT capacity);

// Creating, destroying, styles and window data.

#define WS_OVERLAPPED 0x00000000
#define WS_POPUP 0x80000000
#define WS_CHILD 0x40000000
#define WS_MINIMIZE 0x20000000
#define WS_VISIBLE 0x10000000
#define WS_DISABLED 0x08000000
#define WS_CLIPSIBLINGS 0x04000000
#define WS_CLIPCHILDREN 0x02000000
#define WS_CAPTION 0x00C00000
#define WS_BORDER 0x00800000
#define WS_DLGFRAME 0x00400000
#define WS_VSCROLL 0x00200000
#define WS_HSCROLL 0x00100000
#define WS_SYSMENU 0x00080000
#define WS_THICKFRAME 0x00040000
#define WS_TABSTOP 0x00010000
#define WS_MINIMIZEBOX 0x00020000
#define WS_MAXIMIZEBOX 0x00010000
#define WS_OVERLAPPEDWINDOW (WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX)

#define WS_EX_DLGMODALFRAME 0x00000001
#define WS_EX_NOPARENTNOTIFY 0x00000004
#define WS_EX_TOPMOST 0x00000008
#define WS_EX_ACCEPTFILES 0x00000010
#define WS_EX_TRANSPARENT 0x00000020
#define WS_EX_TOOLWINDOW 0x00000080
#define WS_EX_WINDOWEDGE 0x00000100
#define WS_EX_CLIENTEDGE 0x00000200
#define WS_EX_RTLREADING 0x00002000
#define WS_EX_STATICEDGE 0x00020000
#define WS_EX_NOACTIVATE 0x08000000

#define CW_USEDEFAULT (static_cast<int>(0x80000000))
#define HWND_MESSAGE (reinterpret_cast<HWND>(static_cast<INT_PTR>(-3)))
#define HWND_TOP (static_cast<HWND>(nullptr))
#define HWND_BOTTOM (reinterpret_cast<HWND>(static_cast<INT_PTR>(1)))
#define HWND_TOPMOST (reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)))
#define HWND_NOTOPMOST (reinterpret_cast<HWND>(static_cast<INT_PTR>(-2)))

#define GWLP_WNDPROC (-4)
#define GWLP_HINSTANCE (-6)
#define GWLP_HWNDPARENT (-8)
#define GWLP_ID (-12)
#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GWLP_USERDATA (-21)

#define GW_HWNDFIRST 0
#define GW_HWNDLAST 1
#define GW_HWNDNEXT 2
#define GW_HWNDPREV 3
#define GW_OWNER 4
#define GW_CHILD 5
#define GA_PARENT 1
#define GA_ROOT 2
#define GA_ROOTOWNER 3

HWND WINAPI CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR name, DWORD style, int x, int y, int width, int height, HWND parent,
                            HMENU menu, HINSTANCE instance, LPVOID parameter);
BOOL WINAPI DestroyWindow(HWND window);
BOOL WINAPI IsWindow(HWND window);
BOOL WINAPI IsChild(HWND parent, HWND window);
HWND WINAPI GetParent(HWND window);
HWND WINAPI SetParent(HWND child, HWND newParent);
HWND WINAPI GetAncestor(HWND window, UINT which);
HWND WINAPI GetWindow(HWND window, UINT relation);
LONG WINAPI GetWindowLongW(HWND window, int index);
LONG WINAPI SetWindowLongW(HWND window, int index, LONG value);
LONG_PTR WINAPI GetWindowLongPtrW(HWND window, int index);
LONG_PTR WINAPI SetWindowLongPtrW(HWND window, int index, LONG_PTR value);
BOOL WINAPI SetWindowTextW(HWND window, LPCWSTR text);
int WINAPI GetWindowTextW(HWND window, LPWSTR text, int capacity);
int WINAPI GetWindowTextLengthW(HWND window);
int WINAPI InternalGetWindowText(HWND window, LPWSTR text, int capacity);
DWORD WINAPI GetWindowThreadProcessId(HWND window, LPDWORD process);
HWND WINAPI FindWindowA(LPCSTR className, LPCSTR text);
HWND WINAPI FindWindowExA(HWND parent, HWND after, LPCSTR className, LPCSTR text);
HWND WINAPI FindWindowW(LPCWSTR className, LPCWSTR text);
HWND WINAPI FindWindowExW(HWND parent, HWND after, LPCWSTR className, LPCWSTR text);
BOOL WINAPI EnumWindows(WNDENUMPROC callback, LPARAM parameter);
BOOL WINAPI EnumChildWindows(HWND parent, WNDENUMPROC callback, LPARAM parameter);
HWND WINAPI WindowFromPoint(POINT point);
HWND WINAPI GetDesktopWindow();

// Place, size and visibility.

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

// Activation, focus, capture.

#define WA_INACTIVE 0
#define WA_ACTIVE 1
#define WA_CLICKACTIVE 2
#define MA_ACTIVATE 1
#define MA_ACTIVATEANDEAT 2
#define MA_NOACTIVATE 3
#define MA_NOACTIVATEANDEAT 4
#define LSFW_LOCK 1
#define LSFW_UNLOCK 2

HWND WINAPI GetForegroundWindow();
BOOL WINAPI SetForegroundWindow(HWND window);
BOOL WINAPI AllowSetForegroundWindow(DWORD process);
BOOL WINAPI LockSetForegroundWindow(UINT lock);
BOOL WINAPI LockWorkStation();
HWND WINAPI GetActiveWindow();
BOOL WINAPI AttachThreadInput(DWORD attach, DWORD attachTo, BOOL doAttach);
HWND WINAPI SetFocus(HWND window);
HWND WINAPI GetFocus();
HWND WINAPI SetCapture(HWND window);
BOOL WINAPI ReleaseCapture();
HWND WINAPI GetCapture();

// Messages.

#define WM_CREATE 0x0001
#define WM_DESTROY 0x0002
#define WM_MOVE 0x0003
#define WM_SIZE 0x0005
#define WM_ACTIVATE 0x0006
#define WM_SETFOCUS 0x0007
#define WM_KILLFOCUS 0x0008
#define WM_ENABLE 0x000A
#define WM_SETTEXT 0x000C
#define WM_GETTEXT 0x000D
#define WM_GETTEXTLENGTH 0x000E
#define WM_PAINT 0x000F
#define WM_CLOSE 0x0010
#define WM_QUIT 0x0012
#define WM_ERASEBKGND 0x0014
#define WM_SYSCOLORCHANGE 0x0015
#define WM_SHOWWINDOW 0x0018
#define WM_ACTIVATEAPP 0x001C
#define WM_CANCELMODE 0x001F
#define WM_SETCURSOR 0x0020
#define WM_MOUSEACTIVATE 0x0021
#define WM_CHILDACTIVATE 0x0022
#define WM_GETMINMAXINFO 0x0024
#define WM_DRAWITEM 0x002B
#define WM_SETFONT 0x0030
#define WM_GETFONT 0x0031
#define WM_WINDOWPOSCHANGING 0x0046
#define WM_WINDOWPOSCHANGED 0x0047
#define WM_NOTIFY 0x004E
#define WM_CONTEXTMENU 0x007B
#define WM_STYLECHANGING 0x007C
#define WM_STYLECHANGED 0x007D
#define WM_GETICON 0x007F
#define WM_SETICON 0x0080
#define WM_NCCREATE 0x0081
#define WM_NCDESTROY 0x0082
#define WM_NCCALCSIZE 0x0083
#define WM_NCHITTEST 0x0084
#define WM_NCPAINT 0x0085
#define WM_NCACTIVATE 0x0086
#define WM_NCMOUSEMOVE 0x00A0
#define WM_NCLBUTTONDOWN 0x00A1
#define WM_NCLBUTTONUP 0x00A2
#define WM_NCLBUTTONDBLCLK 0x00A3
#define WM_KEYFIRST 0x0100
#define WM_KEYDOWN 0x0100
#define WM_KEYUP 0x0101
#define WM_CHAR 0x0102
#define WM_SYSKEYDOWN 0x0104
#define WM_SYSKEYUP 0x0105
#define WM_SYSCHAR 0x0106
#define WM_KEYLAST 0x0109
#define WM_COMMAND 0x0111
#define WM_SYSCOMMAND 0x0112
#define WM_TIMER 0x0113
#define WM_UPDATEUISTATE 0x0128
#define WM_MOUSEFIRST 0x0200
#define WM_MOUSEMOVE 0x0200
#define WM_LBUTTONDOWN 0x0201
#define WM_LBUTTONUP 0x0202
#define WM_LBUTTONDBLCLK 0x0203
#define WM_RBUTTONDOWN 0x0204
#define WM_RBUTTONUP 0x0205
#define WM_RBUTTONDBLCLK 0x0206
#define WM_MBUTTONDOWN 0x0207
#define WM_MBUTTONUP 0x0208
#define WM_MBUTTONDBLCLK 0x0209
#define WM_MOUSEWHEEL 0x020A
#define WM_MOUSELAST 0x020E
#define WM_PARENTNOTIFY 0x0210
#define WM_CAPTURECHANGED 0x0215
#define WM_DROPFILES 0x0233
#define WM_NCMOUSELEAVE 0x02A2
#define WM_MOUSELEAVE 0x02A3
#define WM_PRINTCLIENT 0x0318
#define WM_THEMECHANGED 0x031A
#define WM_USER 0x0400
#define WM_APP 0x8000

#define HTERROR (-2)
#define HTTRANSPARENT (-1)
#define HTNOWHERE 0
#define HTCLIENT 1
#define HTCAPTION 2
#define HTHSCROLL 6
#define HTVSCROLL 7
#define HTMINBUTTON 8
#define HTMAXBUTTON 9
#define HTLEFT 10
#define HTRIGHT 11
#define HTTOP 12
#define HTTOPLEFT 13
#define HTTOPRIGHT 14
#define HTBOTTOM 15
#define HTBOTTOMLEFT 16
#define HTBOTTOMRIGHT 17
#define HTBORDER 18
#define HTCLOSE 20

#define SC_MOVE 0xF010
#define SC_MINIMIZE 0xF020
#define SC_MAXIMIZE 0xF030
#define SC_CLOSE 0xF060
#define SC_MOUSEMENU 0xF090
#define SC_KEYMENU 0xF100
#define SC_RESTORE 0xF120

#define MK_LBUTTON 0x0001
#define MK_RBUTTON 0x0002
#define MK_SHIFT 0x0004
#define MK_CONTROL 0x0008
#define MK_MBUTTON 0x0010
#define CF_TEXT 1
#define CF_BITMAP 2
#define CF_UNICODETEXT 13
#define CF_HDROP 15
#define WHEEL_DELTA 120
#define GET_X_LPARAM(value) (static_cast<int>(static_cast<short>(LOWORD(value))))
#define GET_Y_LPARAM(value) (static_cast<int>(static_cast<short>(HIWORD(value))))
#define GET_WHEEL_DELTA_WPARAM(value) (static_cast<short>(HIWORD(value)))

#define ICON_SMALL 0
#define ICON_BIG 1

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};
using LPMSG = MSG*;

struct NMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};
using LPNMHDR = NMHDR*;

#define PM_REMOVE 0x0001
#define SMTO_NORMAL 0x0000
#define SMTO_ABORTIFHUNG 0x0002
#define QS_KEY 0x0001
#define QS_MOUSEMOVE 0x0002
#define QS_MOUSEBUTTON 0x0004
#define QS_POSTMESSAGE 0x0008
#define QS_TIMER 0x0010
#define QS_PAINT 0x0020
#define QS_SENDMESSAGE 0x0040
#define QS_HOTKEY 0x0080
#define QS_MOUSE (QS_MOUSEMOVE | QS_MOUSEBUTTON)
#define QS_INPUT (QS_MOUSE | QS_KEY)
#define QS_ALLEVENTS (QS_INPUT | QS_POSTMESSAGE | QS_TIMER | QS_PAINT | QS_HOTKEY)
#define QS_ALLINPUT (QS_ALLEVENTS | QS_SENDMESSAGE)
#define USER_TIMER_MINIMUM 0x0000000A
#define USER_TIMER_MAXIMUM 0x7FFFFFFF

LRESULT WINAPI SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT WINAPI SendMessageTimeoutW(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags, UINT timeout, DWORD_PTR* result);
BOOL WINAPI PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void WINAPI PostQuitMessage(int exitCode);
BOOL WINAPI GetMessageW(LPMSG message, HWND window, UINT first, UINT last);
BOOL WINAPI PeekMessageW(LPMSG message, HWND window, UINT first, UINT last, UINT remove);
BOOL WINAPI WaitMessage();
BOOL WINAPI TranslateMessage(const MSG* message);
LRESULT WINAPI DispatchMessageW(const MSG* message);
LRESULT WINAPI CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT WINAPI DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
DWORD WINAPI GetQueueStatus(UINT flags);
DWORD WINAPI MsgWaitForMultipleObjects(DWORD count, const HANDLE* handles, BOOL waitAll, DWORD milliseconds, DWORD wakeMask);
UINT_PTR WINAPI SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
BOOL WINAPI KillTimer(HWND window, UINT_PTR id);

// Mouse, keyboard, cursors.

#define VK_LBUTTON 0x01
#define VK_RBUTTON 0x02
#define VK_MBUTTON 0x04
#define VK_BACK 0x08
#define VK_TAB 0x09
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_CONTROL 0x11
#define VK_MENU 0x12
#define VK_CAPITAL 0x14
#define VK_ESCAPE 0x1B
#define VK_SPACE 0x20
#define VK_PRIOR 0x21
#define VK_NEXT 0x22
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_INSERT 0x2D
#define VK_DELETE 0x2E
#define VK_APPS 0x5D
#define VK_NUMPAD0 0x60
#define VK_NUMPAD9 0x69
#define VK_MULTIPLY 0x6A
#define VK_ADD 0x6B
#define VK_SUBTRACT 0x6D
#define VK_DECIMAL 0x6E
#define VK_DIVIDE 0x6F
#define VK_F1 0x70
#define VK_F4 0x73
#define VK_F5 0x74
#define VK_F6 0x75
#define VK_F10 0x79
#define VK_LSHIFT 0xA0
#define VK_RSHIFT 0xA1
#define VK_LCONTROL 0xA2
#define VK_RCONTROL 0xA3
#define VK_LMENU 0xA4
#define VK_RMENU 0xA5
#define VK_OEM_1 0xBA
#define VK_OEM_PLUS 0xBB
#define VK_OEM_COMMA 0xBC
#define VK_OEM_MINUS 0xBD
#define VK_OEM_PERIOD 0xBE
#define VK_PACKET 0xE7

#define TME_HOVER 0x00000001
#define TME_LEAVE 0x00000002
#define TME_NONCLIENT 0x00000010
#define TME_QUERY 0x40000000
#define TME_CANCEL 0x80000000

struct TRACKMOUSEEVENT {
    DWORD cbSize;
    DWORD dwFlags;
    HWND hwndTrack;
    DWORD dwHoverTime;
};
using LPTRACKMOUSEEVENT = TRACKMOUSEEVENT*;

#define INPUT_MOUSE 0
#define INPUT_KEYBOARD 1
#define MOUSEEVENTF_MOVE 0x0001
#define MOUSEEVENTF_LEFTDOWN 0x0002
#define MOUSEEVENTF_LEFTUP 0x0004
#define MOUSEEVENTF_RIGHTDOWN 0x0008
#define MOUSEEVENTF_RIGHTUP 0x0010
#define MOUSEEVENTF_MIDDLEDOWN 0x0020
#define MOUSEEVENTF_MIDDLEUP 0x0040
#define MOUSEEVENTF_WHEEL 0x0800
#define MOUSEEVENTF_ABSOLUTE 0x8000
#define KEYEVENTF_EXTENDEDKEY 0x0001
#define KEYEVENTF_KEYUP 0x0002
#define KEYEVENTF_UNICODE 0x0004

struct MOUSEINPUT {
    LONG dx;
    LONG dy;
    DWORD mouseData;
    DWORD dwFlags;
    DWORD time;
    ULONG_PTR dwExtraInfo;
};
struct KEYBDINPUT {
    WORD wVk;
    WORD wScan;
    DWORD dwFlags;
    DWORD time;
    ULONG_PTR dwExtraInfo;
};
struct HARDWAREINPUT {
    DWORD uMsg;
    WORD wParamL;
    WORD wParamH;
};
struct INPUT {
    DWORD type;
    union {
        MOUSEINPUT mi;
        KEYBDINPUT ki;
        HARDWAREINPUT hi;
    };
};
using LPINPUT = INPUT*;

#define IDC_ARROW MAKEINTRESOURCEW(32512)
#define IDC_IBEAM MAKEINTRESOURCEW(32513)
#define IDC_WAIT MAKEINTRESOURCEW(32514)
#define IDC_CROSS MAKEINTRESOURCEW(32515)
#define IDC_UPARROW MAKEINTRESOURCEW(32516)
#define IDC_SIZENWSE MAKEINTRESOURCEW(32642)
#define IDC_SIZENESW MAKEINTRESOURCEW(32643)
#define IDC_SIZEWE MAKEINTRESOURCEW(32644)
#define IDC_SIZENS MAKEINTRESOURCEW(32645)
#define IDC_SIZEALL MAKEINTRESOURCEW(32646)
#define IDC_NO MAKEINTRESOURCEW(32648)
#define IDC_APPSTARTING MAKEINTRESOURCEW(32650)
#define IDC_HELP MAKEINTRESOURCEW(32651)
#define IMAGE_ICON 1
#define IMAGE_CURSOR 2
#define LR_DEFAULTCOLOR 0x0000
#define LR_LOADFROMFILE 0x0010
#define LR_DEFAULTSIZE 0x0040
#define LR_SHARED 0x8000
#define LR_VGACOLOR 0x00000080

UINT WINAPI SendInput(UINT count, LPINPUT inputs, int size);
BOOL WINAPI TrackMouseEvent(LPTRACKMOUSEEVENT track);
SHORT WINAPI GetKeyState(int key);
SHORT WINAPI GetAsyncKeyState(int key);
BOOL WINAPI GetCursorPos(LPPOINT point);
UINT WINAPI GetDoubleClickTime();
HCURSOR WINAPI LoadCursorW(HINSTANCE instance, LPCWSTR name);
HCURSOR WINAPI SetCursor(HCURSOR cursor);
HANDLE WINAPI LoadImageW(HINSTANCE instance, LPCWSTR name, UINT type, int width, int height, UINT flags);
BOOL WINAPI DestroyIcon(HICON icon);

// Painting.

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

// Metrics, colours, parameters, characters.

#define SM_CXSCREEN 0
#define SM_CYSCREEN 1
#define SM_CXVSCROLL 2
#define SM_CYHSCROLL 3
#define SM_CYCAPTION 4
#define SM_CXBORDER 5
#define SM_CYBORDER 6
#define SM_CXDLGFRAME 7
#define SM_CYDLGFRAME 8
#define SM_CXICON 11
#define SM_CYICON 12
#define SM_CXCURSOR 13
#define SM_CYCURSOR 14
#define SM_CYMENU 15
#define SM_MOUSEPRESENT 19
#define SM_CYVSCROLL 20
#define SM_CXHSCROLL 21
#define SM_SWAPBUTTON 23
#define SM_CXMIN 28
#define SM_CYMIN 29
#define SM_CXSIZE 30
#define SM_CYSIZE 31
#define SM_CXSIZEFRAME 32
#define SM_CYSIZEFRAME 33
#define SM_CXMINTRACK 34
#define SM_CYMINTRACK 35
#define SM_CXDOUBLECLK 36
#define SM_CYDOUBLECLK 37
#define SM_CXEDGE 45
#define SM_CYEDGE 46
#define SM_CXSMICON 49
#define SM_CYSMICON 50
#define SM_CYSMCAPTION 51
#define SM_CXMENUCHECK 71
#define SM_CYMENUCHECK 72
#define SM_XVIRTUALSCREEN 76
#define SM_YVIRTUALSCREEN 77
#define SM_CXVIRTUALSCREEN 78
#define SM_CYVIRTUALSCREEN 79
#define SM_CXFOCUSBORDER 83
#define SM_CYFOCUSBORDER 84
#define SM_CXPADDEDBORDER 92
#define SM_REMOTESESSION 0x1000

#define COLOR_SCROLLBAR 0
#define COLOR_BACKGROUND 1
#define COLOR_ACTIVECAPTION 2
#define COLOR_INACTIVECAPTION 3
#define COLOR_WINDOW 5
#define COLOR_WINDOWFRAME 6
#define COLOR_WINDOWTEXT 8
#define COLOR_CAPTIONTEXT 9
#define COLOR_ACTIVEBORDER 10
#define COLOR_HIGHLIGHT 13
#define COLOR_HIGHLIGHTTEXT 14
#define COLOR_BTNFACE 15
#define COLOR_BTNSHADOW 16
#define COLOR_GRAYTEXT 17
#define COLOR_BTNTEXT 18
#define COLOR_INACTIVECAPTIONTEXT 19
#define COLOR_BTNHIGHLIGHT 20
#define COLOR_3DDKSHADOW 21
#define COLOR_3DLIGHT 22
#define COLOR_INFOTEXT 23
#define COLOR_INFOBK 24
#define COLOR_MENUBAR 30

#define SPI_GETNONCLIENTMETRICS 0x0029
#define SPI_GETWORKAREA 0x0030
#define SPI_GETWHEELSCROLLLINES 0x0068
#define SPI_GETKEYBOARDCUES 0x100A

struct NONCLIENTMETRICSW {
    UINT cbSize;
    int iBorderWidth;
    int iScrollWidth;
    int iScrollHeight;
    int iCaptionWidth;
    int iCaptionHeight;
    LOGFONTW lfCaptionFont;
    int iSmCaptionWidth;
    int iSmCaptionHeight;
    LOGFONTW lfSmCaptionFont;
    int iMenuWidth;
    int iMenuHeight;
    LOGFONTW lfMenuFont;
    LOGFONTW lfStatusFont;
    LOGFONTW lfMessageFont;
    int iPaddedBorderWidth;
};

int WINAPI GetSystemMetrics(int index);
DWORD WINAPI GetSysColor(int index);
BOOL WINAPI SystemParametersInfoW(UINT action, UINT parameter, PVOID data, UINT flags);
BOOL WINAPI SystemParametersInfoA(UINT action, UINT parameter, PVOID data, UINT flags);
DWORD WINAPI CharUpperBuffW(LPWSTR text, DWORD length);

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

// Rectangles.

BOOL WINAPI OffsetRect(LPRECT rectangle, int x, int y);
BOOL WINAPI EqualRect(const RECT* first, const RECT* second);

// ---- The system's controls: Button, Edit, ComboBox, Static, message boxes ----

// What controls ask of the window above them, and what they share.
#define WM_CTLCOLOREDIT 0x0133
#define WM_CTLCOLORLISTBOX 0x0134
#define WM_CTLCOLORBTN 0x0135
#define WM_CTLCOLORSTATIC 0x0138

// Button. https://learn.microsoft.com/windows/win32/controls/button-styles
#define BS_PUSHBUTTON 0x0000
#define BS_3STATE 0x0005
#define BS_TYPEMASK 0x000F
#define BS_LEFTTEXT 0x0020
#define BS_LEFT 0x0100
#define BS_RIGHT 0x0200
#define BS_CENTER 0x0300
#define BS_PUSHLIKE 0x1000
#define BS_MULTILINE 0x2000
#define BS_NOTIFY 0x4000
#define BN_CLICKED 0
#define BN_DBLCLK 5
#define BN_SETFOCUS 6
#define BN_KILLFOCUS 7
#define BM_GETCHECK 0x00F0
#define BM_SETCHECK 0x00F1
#define BM_GETSTATE 0x00F2
#define BST_UNCHECKED 0x0000
#define BST_CHECKED 0x0001
#define BST_INDETERMINATE 0x0002
#define BST_PUSHED 0x0004
#define BST_FOCUS 0x0008

// Edit. https://learn.microsoft.com/windows/win32/controls/edit-control-styles
#define ES_CENTER 0x0001
#define ES_RIGHT 0x0002
#define ES_MULTILINE 0x0004
#define ES_UPPERCASE 0x0008
#define ES_LOWERCASE 0x0010
#define ES_PASSWORD 0x0020
#define ES_AUTOVSCROLL 0x0040
#define ES_AUTOHSCROLL 0x0080
#define ES_NOHIDESEL 0x0100
#define ES_READONLY 0x0800
#define ES_NUMBER 0x2000
#define EN_SETFOCUS 0x0100
#define EN_KILLFOCUS 0x0200
#define EN_CHANGE 0x0300
#define EN_UPDATE 0x0400
#define EN_MAXTEXT 0x0501
#define EN_HSCROLL 0x0601
#define EN_VSCROLL 0x0602
#define EM_GETSEL 0x00B0
#define EM_SETSEL 0x00B1
#define EM_SCROLLCARET 0x00B7
#define EM_GETMODIFY 0x00B8
#define EM_SETMODIFY 0x00B9
#define EM_GETLINECOUNT 0x00BA
#define EM_LINEINDEX 0x00BB
#define EM_LINELENGTH 0x00C1
#define EM_REPLACESEL 0x00C2
#define EM_GETLINE 0x00C4
#define EM_LIMITTEXT 0x00C5
#define EM_CANUNDO 0x00C6
#define EM_UNDO 0x00C7
#define EM_LINEFROMCHAR 0x00C9
#define EM_SETPASSWORDCHAR 0x00CC
#define EM_EMPTYUNDOBUFFER 0x00CD
#define EM_GETFIRSTVISIBLELINE 0x00CE
#define EM_SETREADONLY 0x00CF
#define EM_GETPASSWORDCHAR 0x00D2
#define EM_GETLIMITTEXT 0x00D5
#define EM_CHARFROMPOS 0x00D7
#define EM_SETLIMITTEXT EM_LIMITTEXT

// What scroll bars say in WM_HSCROLL and WM_VSCROLL.

// ComboBox. https://learn.microsoft.com/windows/win32/controls/combo-box-styles
#define CBS_DROPDOWNLIST 0x0003
#define CBS_SORT 0x0100
#define CBS_HASSTRINGS 0x0200
#define CB_ERR (-1)
#define CBN_SELCHANGE 1
#define CBN_SETFOCUS 3
#define CBN_KILLFOCUS 4
#define CBN_DROPDOWN 7
#define CBN_CLOSEUP 8
#define CBN_SELENDOK 9
#define CBN_SELENDCANCEL 10
#define CB_ADDSTRING 0x0143
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_SETCURSEL 0x014E
#define CB_SHOWDROPDOWN 0x014F
#define CB_GETDROPPEDSTATE 0x0157

// Static. https://learn.microsoft.com/windows/win32/controls/static-control-styles
#define SS_LEFT 0x0000

// Message boxes. https://learn.microsoft.com/windows/win32/api/winuser/nf-winuser-messageboxindirectw
#define MB_OK 0x00000000
#define MB_OKCANCEL 0x00000001
#define MB_YESNO 0x00000004
#define MB_ICONHAND 0x00000010
#define MB_ICONEXCLAMATION 0x00000030
#define MB_USERICON 0x00000080
#define MB_ICONMASK 0x000000F0
#define IDOK 1
#define IDYES 6

struct HELPINFO {
    UINT cbSize;
    int iContextType;
    int iCtrlId;
    HANDLE hItemHandle;
    DWORD_PTR dwContextId;
    POINT MousePos;
};
using LPHELPINFO = HELPINFO*;
using MSGBOXCALLBACK = void(CALLBACK*)(LPHELPINFO help);

struct MSGBOXPARAMSW {
    UINT cbSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    LPCWSTR lpszText;
    LPCWSTR lpszCaption;
    DWORD dwStyle;
    LPCWSTR lpszIcon;
    DWORD_PTR dwContextHelpId;
    MSGBOXCALLBACK lpfnMsgBoxCallback;
    DWORD dwLanguageId;
};
using LPMSGBOXPARAMSW = MSGBOXPARAMSW*;

int WINAPI MessageBoxIndirectW(const MSGBOXPARAMSW* parameters);
