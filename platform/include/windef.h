// The basic types of the Windows SDK, for a machine whose `long` may be 64 bits wide: LONG, DWORD and BOOL are 32 bits everywhere.
#pragma once

#include <cstddef>
#include <cstdint>

#define WINAPI
#define CALLBACK
#define FALSE 0
#define TRUE 1
#define MAX_PATH 260
#define VOID void

using BOOL = std::int32_t;
using BOOLEAN = std::uint8_t;
using BYTE = std::uint8_t;
using UCHAR = std::uint8_t;
using CHAR = char;
using SHORT = std::int16_t;
using USHORT = std::uint16_t;
using WORD = std::uint16_t;
using INT = std::int32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using COLORREF = DWORD;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using DWORD64 = std::uint64_t;
using FLOAT = float;
using WCHAR = char16_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using SIZE_T = std::uintptr_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using HRESULT = LONG;
using NTSTATUS = LONG;
using ATOM = WORD;
using LANGID = WORD;
using LCID = DWORD;
using ACCESS_MASK = DWORD;

using PVOID = void*;
using LPVOID = void*;
using LPCVOID = const void*;
using PBYTE = BYTE*;
using LPBYTE = BYTE*;
using PDWORD = DWORD*;
using LPDWORD = DWORD*;
using PULONG = ULONG*;
using PBOOL = BOOL*;
using PBOOLEAN = BOOLEAN*;
using LPBOOL = BOOL*;
using LPINT = INT*;
using LPLONG = LONG*;
using LPWORD = WORD*;
using PDWORD_PTR = DWORD_PTR*;
using LPSTR = CHAR*;
using LPCSTR = const CHAR*;
using LPWSTR = WCHAR*;
using PWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using PCWSTR = const WCHAR*;
using HANDLE = void*;
using LPHANDLE = HANDLE*;
using PHANDLE = HANDLE*;

#define TEXT(literal) u##literal
#define MAKEINTRESOURCEW(id) (reinterpret_cast<LPCWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id))))
#define MAKELONG(low, high) (static_cast<LONG>(static_cast<WORD>(low) | (static_cast<DWORD>(static_cast<WORD>(high)) << 16)))
#define MAKEWPARAM(low, high) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKELPARAM(low, high) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKELRESULT(low, high) (static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(low, high))))
#define LOWORD(value) (static_cast<WORD>(static_cast<DWORD_PTR>(value) & 0xFFFF))
#define HIWORD(value) (static_cast<WORD>((static_cast<DWORD_PTR>(value) >> 16) & 0xFFFF))

#define DECLARE_HANDLE(name) \
    struct name##__ {        \
        int unused;          \
    };                       \
    using name = name##__*
DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HINSTANCE);
DECLARE_HANDLE(HKEY);
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HICON);
DECLARE_HANDLE(HACCEL);
DECLARE_HANDLE(HRSRC);
DECLARE_HANDLE(HMONITOR);
DECLARE_HANDLE(HBITMAP);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HRGN);
DECLARE_HANDLE(HPALETTE);
using HMODULE = HINSTANCE;
using HCURSOR = HICON;
using HGDIOBJ = void*;
using HGLOBAL = HANDLE;
using HLOCAL = HANDLE;
using PHKEY = HKEY*;
using FARPROC = INT_PTR (*)();
using PROC = INT_PTR (*)();

struct RECT {
    LONG left, top, right, bottom;
};
struct POINT {
    LONG x, y;
};
struct SIZE {
    LONG cx, cy;
};
struct POINTS {
    SHORT x, y;
};
using PRECT = RECT*;
using LPRECT = RECT*;
using LPCRECT = const RECT*;
using PPOINT = POINT*;
using LPPOINT = POINT*;
using LPSIZE = SIZE*;
using POINTL = POINT;

struct FILETIME {
    DWORD dwLowDateTime, dwHighDateTime;
};
struct LUID {
    DWORD LowPart;
    LONG HighPart;
};
using PLUID = LUID*;
struct GUID {
    ULONG Data1;
    USHORT Data2, Data3;
    UCHAR Data4[8];
};
