// Drawing: device contexts, GDI objects, bitmaps, regions and text, as the Windows SDK names them.
// https://learn.microsoft.com/windows/win32/api/wingdi/
#pragma once

#include "windef.h"

// ---- Colours ----

#define RGB(red, green, blue)                                                                           \
    (static_cast<COLORREF>(static_cast<BYTE>(red) | static_cast<DWORD>(static_cast<BYTE>(green)) << 8 | \
                           static_cast<DWORD>(static_cast<BYTE>(blue)) << 16))
#define GetRValue(rgb) (static_cast<BYTE>((rgb)&0xFF))
#define GetGValue(rgb) (static_cast<BYTE>((rgb) >> 8 & 0xFF))
#define GetBValue(rgb) (static_cast<BYTE>((rgb) >> 16 & 0xFF))
#define CLR_INVALID 0xFFFFFFFFu

// ---- Records ----

#define LF_FACESIZE 32
#define LF_FULLFACESIZE 64

struct LOGFONTW {
    LONG lfHeight, lfWidth, lfEscapement, lfOrientation, lfWeight;
    BYTE lfItalic, lfUnderline, lfStrikeOut, lfCharSet, lfOutPrecision, lfClipPrecision, lfQuality, lfPitchAndFamily;
    WCHAR lfFaceName[LF_FACESIZE];
};
struct ENUMLOGFONTEXW {
    LOGFONTW elfLogFont;
    WCHAR elfFullName[LF_FULLFACESIZE];
    WCHAR elfStyle[LF_FACESIZE];
    WCHAR elfScript[LF_FACESIZE];
};
struct TEXTMETRICW {
    LONG tmHeight, tmAscent, tmDescent, tmInternalLeading, tmExternalLeading, tmAveCharWidth, tmMaxCharWidth, tmWeight, tmOverhang;
    LONG tmDigitizedAspectX, tmDigitizedAspectY;
    WCHAR tmFirstChar, tmLastChar, tmDefaultChar, tmBreakChar;
    BYTE tmItalic, tmUnderlined, tmStruckOut, tmPitchAndFamily, tmCharSet;
};
using LPTEXTMETRICW = TEXTMETRICW*;
using FONTENUMPROCW = int(CALLBACK*)(const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM);
struct LOGPEN {
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
};
struct LOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
};
struct BITMAP {
    LONG bmType, bmWidth, bmHeight, bmWidthBytes;
    WORD bmPlanes, bmBitsPixel;
    LPVOID bmBits;
};
struct BITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth, biHeight;
    WORD biPlanes, biBitCount;
    DWORD biCompression, biSizeImage;
    LONG biXPelsPerMeter, biYPelsPerMeter;
    DWORD biClrUsed, biClrImportant;
};
struct RGBQUAD {
    BYTE rgbBlue, rgbGreen, rgbRed, rgbReserved;
};
struct BITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};
using LPBITMAPINFO = BITMAPINFO*;
struct DIBSECTION {
    BITMAP dsBm;
    BITMAPINFOHEADER dsBmih;
    DWORD dsBitfields[3];
    HANDLE dshSection;
    DWORD dsOffset;
};
#pragma pack(push, 2)
struct BITMAPFILEHEADER {
    WORD bfType;
    DWORD bfSize;
    WORD bfReserved1, bfReserved2;
    DWORD bfOffBits;
};
#pragma pack(pop)

// ---- Constants ----

#define OBJ_PEN 1
#define OBJ_BRUSH 2
#define OBJ_FONT 6
#define OBJ_BITMAP 7

#define WHITE_BRUSH 0
#define LTGRAY_BRUSH 1
#define GRAY_BRUSH 2
#define DKGRAY_BRUSH 3
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define OEM_FIXED_FONT 10
#define ANSI_FIXED_FONT 11
#define ANSI_VAR_FONT 12
#define SYSTEM_FONT 13
#define DEVICE_DEFAULT_FONT 14
#define SYSTEM_FIXED_FONT 16
#define DEFAULT_GUI_FONT 17
#define DC_BRUSH 18
#define DC_PEN 19

#define PS_SOLID 0
#define PS_DASH 1
#define PS_DOT 2
#define PS_NULL 5
#define PS_INSIDEFRAME 6
#define PS_ALTERNATE 8
#define PS_COSMETIC 0
#define BS_SOLID 0
#define BS_NULL 1
#define BS_PATTERN 3

#define TRANSPARENT 1
#define OPAQUE 2

#define R2_COPYPEN 13

#define SRCCOPY 0x00CC0020u

#define ERROR 0
#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3
#define RGN_ERROR ERROR
#define RGN_COPY 5
#define ALTERNATE 1

#define BI_RGB 0u
#define DIB_RGB_COLORS 0

#define HORZSIZE 4
#define VERTSIZE 6
#define HORZRES 8
#define VERTRES 10
#define BITSPIXEL 12
#define PLANES 14
#define NUMCOLORS 24
#define RASTERCAPS 38
#define TECHNOLOGY 2
#define LOGPIXELSX 88
#define LOGPIXELSY 90

#define FW_NORMAL 400
#define FW_BOLD 700
#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1
#define SYMBOL_CHARSET 2
#define OEM_CHARSET 255
#define FIXED_PITCH 1
#define VARIABLE_PITCH 2
#define FF_SWISS 0x20
#define FF_MODERN 0x30
#define TMPF_FIXED_PITCH 0x01
#define TMPF_VECTOR 0x02
#define TMPF_TRUETYPE 0x04
#define RASTER_FONTTYPE 1
#define TRUETYPE_FONTTYPE 4

// ---- Device contexts ----

HDC WINAPI CreateCompatibleDC(HDC dc);
typedef struct _devicemodeW DEVMODEW;
HDC WINAPI CreateDCW(LPCWSTR driver, LPCWSTR device, LPCWSTR port, const DEVMODEW* mode);
BOOL WINAPI DeleteDC(HDC dc);
int WINAPI GetDeviceCaps(HDC dc, int index);
COLORREF WINAPI SetBkColor(HDC dc, COLORREF color);
COLORREF WINAPI GetBkColor(HDC dc);
COLORREF WINAPI SetTextColor(HDC dc, COLORREF color);
COLORREF WINAPI GetTextColor(HDC dc);
int WINAPI SetBkMode(HDC dc, int mode);
int WINAPI GetBkMode(HDC dc);
BOOL WINAPI SetViewportOrgEx(HDC dc, int x, int y, LPPOINT before);

// ---- Objects ----

HGDIOBJ WINAPI SelectObject(HDC dc, HGDIOBJ object);
BOOL WINAPI DeleteObject(HGDIOBJ object);
HGDIOBJ WINAPI GetStockObject(int index);
HGDIOBJ WINAPI GetCurrentObject(HDC dc, UINT type);
int WINAPI GetObjectW(HANDLE object, int size, LPVOID buffer);
HPEN WINAPI CreatePen(int style, int width, COLORREF color);
HPEN WINAPI ExtCreatePen(DWORD style, DWORD width, const LOGBRUSH* brush, DWORD dashCount, const DWORD* dashes);
HBRUSH WINAPI CreateSolidBrush(COLORREF color);
HBRUSH WINAPI CreatePatternBrush(HBITMAP bitmap);
HFONT WINAPI CreateFontIndirectW(const LOGFONTW* font);

// ---- Bitmaps ----

HBITMAP WINAPI CreateCompatibleBitmap(HDC dc, int width, int height);
HBITMAP WINAPI CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, VOID** bits, HANDLE section, DWORD offset);
int WINAPI StretchDIBits(HDC dc, int x, int y, int width, int height, int xSource, int ySource, int widthSource, int heightSource,
                         const VOID* bits, const BITMAPINFO* info, UINT usage, DWORD rop);
int WINAPI SetDIBitsToDevice(HDC dc, int x, int y, DWORD width, DWORD height, int xSource, int ySource, UINT firstRow, UINT rowCount,
                             const VOID* bits, const BITMAPINFO* info, UINT usage);
int WINAPI GetDIBits(HDC dc, HBITMAP bitmap, UINT firstRow, UINT rowCount, LPVOID bits, BITMAPINFO* info, UINT usage);
COLORREF WINAPI GetNearestColor(HDC dc, COLORREF color);
BOOL WINAPI BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int xSource, int ySource, DWORD rop);
COLORREF WINAPI SetPixel(HDC dc, int x, int y, COLORREF color);
BOOL WINAPI SetPixelV(HDC dc, int x, int y, COLORREF color);
COLORREF WINAPI GetPixel(HDC dc, int x, int y);

// ---- Lines and shapes ----

BOOL WINAPI MoveToEx(HDC dc, int x, int y, LPPOINT before);
BOOL WINAPI LineTo(HDC dc, int x, int y);
BOOL WINAPI Rectangle(HDC dc, int left, int top, int right, int bottom);
BOOL WINAPI RoundRect(HDC dc, int left, int top, int right, int bottom, int width, int height);

// ---- Regions and clipping ----

HRGN WINAPI CreateRectRgn(int left, int top, int right, int bottom);
HRGN WINAPI CreateRoundRectRgn(int left, int top, int right, int bottom, int width, int height);
HRGN WINAPI CreatePolygonRgn(const POINT* points, int count, int mode);
int WINAPI CombineRgn(HRGN target, HRGN first, HRGN second, int mode);
BOOL WINAPI EqualRgn(HRGN first, HRGN second);
BOOL WINAPI PtInRegion(HRGN region, int x, int y);

// ---- Text ----

BOOL WINAPI GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, LPSIZE size);
BOOL WINAPI GetTextExtentExPointW(HDC dc, LPCWSTR text, int length, int width, LPINT fit, LPINT widths, LPSIZE size);

// ---- Printing ----
constexpr int SP_ERROR = -1;
typedef struct _DOCINFOW {
    int cbSize;
    LPCWSTR lpszDocName;
    LPCWSTR lpszOutput;
    LPCWSTR lpszDatatype;
    DWORD fwType;
} DOCINFOW;
int WINAPI StartDocW(HDC dc, const DOCINFOW* info);
int WINAPI StartPage(HDC dc);
int WINAPI EndPage(HDC dc);
int WINAPI EndDoc(HDC dc);
int WINAPI AbortDoc(HDC dc);
BOOL WINAPI GetTextMetricsW(HDC dc, LPTEXTMETRICW metrics);
int WINAPI EnumFontFamiliesExW(HDC dc, LOGFONTW* font, FONTENUMPROCW callback, LPARAM parameter, DWORD flags);
