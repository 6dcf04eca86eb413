// Network management as the Windows SDK names it.
#pragma once

#include "windef.h"

using NET_API_STATUS = DWORD;
#define NET_API_FUNCTION WINAPI
#define NERR_Success 0

struct WKSTA_USER_INFO_1 {
    LPWSTR wkui1_username, wkui1_logon_domain, wkui1_oth_domains, wkui1_logon_server;
};
using LPWKSTA_USER_INFO_1 = WKSTA_USER_INFO_1*;

NET_API_STATUS NET_API_FUNCTION NetWkstaUserGetInfo(LPWSTR reserved, DWORD level, LPBYTE* buffer);
NET_API_STATUS NET_API_FUNCTION NetApiBufferFree(LPVOID buffer);
