// Process status as the Windows SDK names it.
#pragma once

#include "windef.h"

struct PROCESS_MEMORY_COUNTERS {
    DWORD cb, PageFaultCount;
    SIZE_T PeakWorkingSetSize, WorkingSetSize, QuotaPeakPagedPoolUsage, QuotaPagedPoolUsage, QuotaPeakNonPagedPoolUsage,
        QuotaNonPagedPoolUsage, PagefileUsage, PeakPagefileUsage;
};
using PPROCESS_MEMORY_COUNTERS = PROCESS_MEMORY_COUNTERS*;

BOOL WINAPI EnumProcesses(DWORD* processes, DWORD size, DWORD* needed);
BOOL WINAPI EnumProcessModules(HANDLE process, HMODULE* modules, DWORD size, LPDWORD needed);
DWORD WINAPI GetModuleFileNameExW(HANDLE process, HMODULE module, LPWSTR buffer, DWORD size);
DWORD WINAPI GetProcessImageFileNameW(HANDLE process, LPWSTR buffer, DWORD size);
BOOL WINAPI GetProcessMemoryInfo(HANDLE process, PPROCESS_MEMORY_COUNTERS counters, DWORD size);
