// The shell's light-weight helpers as the Windows SDK names them: paths and DLL versions.
#pragma once

#include "windef.h"

BOOL WINAPI PathFileExistsW(LPCWSTR path);
BOOL WINAPI PathIsDirectoryW(LPCWSTR path);
LPWSTR WINAPI PathFindFileNameW(LPCWSTR path);
VOID WINAPI PathRemoveExtensionW(LPWSTR path);
LPWSTR WINAPI PathAddBackslashW(LPWSTR path);
LPWSTR WINAPI PathRemoveBackslashW(LPWSTR path);
BOOL WINAPI PathUnquoteSpacesW(LPWSTR path);
BOOL WINAPI PathQuoteSpacesW(LPWSTR path);
BOOL WINAPI PathIsRootW(LPCWSTR path);

struct DLLVERSIONINFO {
    DWORD cbSize, dwMajorVersion, dwMinorVersion, dwBuildNumber, dwPlatformID;
};
using DLLGETVERSIONPROC = HRESULT(CALLBACK*)(DLLVERSIONINFO*);
#define DLLVER_PLATFORM_NT 0x00000002
