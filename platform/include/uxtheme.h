// Visual styles, as the Windows SDK names them. https://learn.microsoft.com/windows/win32/api/uxtheme/
#pragma once

#include "windef.h"

#include "wingdi.h"

using HTHEME = HANDLE;

#define DTT_GRAYED 0x00000001

BOOL WINAPI IsThemeActive();
BOOL WINAPI IsAppThemed();
HTHEME WINAPI OpenThemeData(HWND window, LPCWSTR classList);
HRESULT WINAPI CloseThemeData(HTHEME theme);
HRESULT WINAPI SetWindowTheme(HWND window, LPCWSTR applicationName, LPCWSTR classList);
HRESULT WINAPI DrawThemeBackground(HTHEME theme, HDC dc, int part, int state, const RECT* rectangle, const RECT* clip);
HRESULT WINAPI DrawThemeText(HTHEME theme, HDC dc, int part, int state, LPCWSTR text, int length, DWORD textFlags, DWORD secondFlags,
                             const RECT* rectangle);
HRESULT WINAPI GetThemeBackgroundRegion(HTHEME theme, HDC dc, int part, int state, const RECT* rectangle, HRGN* region);
