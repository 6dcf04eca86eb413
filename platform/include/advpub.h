// The advanced INF installer as the Windows SDK names it.
#pragma once

#include "windef.h"

BOOL WINAPI IsNTAdmin(DWORD reserved, DWORD* reservedToo);
