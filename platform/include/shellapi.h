// The shell's functions as the Windows SDK names them: dropped files, opening documents.
#pragma once

#include "windef.h"

DECLARE_HANDLE(HDROP);

UINT WINAPI DragQueryFileW(HDROP drop, UINT file, LPWSTR buffer, UINT size);
VOID WINAPI DragFinish(HDROP drop);
HINSTANCE WINAPI ShellExecuteA(HWND window, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR folder, INT show);
