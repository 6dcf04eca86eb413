// Code pages as the Windows SDK names them.
#pragma once

#include "windef.h"

#define CP_ACP 0
#define CP_UTF8 65001
#define MB_PRECOMPOSED 0x00000001
#define MB_ERR_INVALID_CHARS 0x00000008
#define WC_NO_BEST_FIT_CHARS 0x00000400
#define WC_ERR_INVALID_CHARS 0x00000080
#define LOCALE_INVARIANT 0x007F
#define LOCALE_USER_DEFAULT 0x0400

INT WINAPI MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, INT textSize, LPWSTR buffer, INT size);
INT WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, INT textSize, LPSTR buffer, INT size, LPCSTR substitute,
                               LPBOOL substituted);
