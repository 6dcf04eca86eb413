// The shell's folders as the Windows SDK names them.
#pragma once

#include "windef.h"

#include "objidl.h"
#include "winbase.h"

#define CSIDL_DESKTOP 0x0000
#define CSIDL_PROGRAMS 0x0002
#define CSIDL_PERSONAL 0x0005
#define CSIDL_STARTUP 0x0007
#define CSIDL_STARTMENU 0x000B
#define CSIDL_APPDATA 0x001A
#define CSIDL_LOCAL_APPDATA 0x001C
#define CSIDL_COMMON_APPDATA 0x0023
#define CSIDL_WINDOWS 0x0024
#define CSIDL_SYSTEM 0x0025
#define CSIDL_PROGRAM_FILES 0x0026
#define CSIDL_PROFILE 0x0028
#define CSIDL_SYSTEMX86 0x0029
#define CSIDL_FLAG_CREATE 0x8000

BOOL WINAPI SHGetSpecialFolderPathW(HWND window, LPWSTR path, INT folder, BOOL create);
HRESULT WINAPI SHCreateStdEnumFmtEtc(UINT count, const FORMATETC* formats, IEnumFORMATETC** enumerator);
// IsNTAdmin lives in advpack.dll and is declared in advpub.h.

struct DROPFILES {
    DWORD pFiles;
    POINT pt;
    BOOL fNC, fWide;
};
