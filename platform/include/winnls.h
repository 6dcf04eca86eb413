// Code pages as the Windows SDK names them.
#pragma once

#include "windef.h"

#define CP_ACP 0
#define CP_UTF8 65001
#define MB_ERR_INVALID_CHARS 0x00000008
#define WC_ERR_INVALID_CHARS 0x00000080
// What stands beyond the first 65,536 characters is a pair of units.
#define IS_HIGH_SURROGATE(unit) (((unit) >= 0xD800) && ((unit) <= 0xDBFF))

INT WINAPI MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, INT textSize, LPWSTR buffer, INT size);
INT WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, INT textSize, LPSTR buffer, INT size, LPCSTR substitute,
                               LPBOOL substituted);
