// The NT layer as the Windows SDK names it.
#pragma once

#include "windef.h"

enum SYSTEM_INFORMATION_CLASS { SystemBasicInformation = 0 };

struct SYSTEM_BASIC_INFORMATION {
    BYTE Reserved1[24];
    PVOID Reserved2[4];
    CHAR NumberOfProcessors;
};

NTSTATUS WINAPI NtQuerySystemInformation(SYSTEM_INFORMATION_CLASS kind, PVOID buffer, ULONG size, PULONG needed);
