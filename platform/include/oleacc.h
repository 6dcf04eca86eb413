// Active accessibility as the Windows SDK names it.
#pragma once

#include "windef.h"

extern "C" HANDLE WINAPI GetProcessHandleFromHwnd(HWND window);
