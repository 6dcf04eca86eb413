// Window classes, windows and what is kept with them, as winuser.h has them.
#pragma once

#include "../windef.h"

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
