// Memory of processes and of the PC, and its processors.
#include "toolkit/OpenedProcess.h"
#include "toolkit/TaskManLight.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>

namespace toolkit {

namespace {

MEMORYSTATUS MemoryStatus()
{
    MEMORYSTATUS status{};
    status.dwLength = sizeof status;
    GlobalMemoryStatus(&status);
    return status;
}

std::uint32_t Saturated(SIZE_T bytes)
{
    return static_cast<std::uint32_t>(std::min<SIZE_T>(bytes, 0xFFFFFFFF));
}

}  // namespace

void TaskManLight::TrimWorkingSet(DWORD In_PID) const
{
    constexpr auto empty = static_cast<SIZE_T>(-1);
    WithProcess(In_PID, PROCESS_SET_QUOTA, FALSE, [](HANDLE process) { return SetProcessWorkingSetSize(process, empty, empty); });
}

void TaskManLight::TrimWorkingSetCurrentProcess() const
{
    TrimWorkingSet(GetCurrentProcessId());
}

Flag TaskManLight::GetMemoryUsageFromPID(DWORD In_PID, SIZE_T& Out_WorkingSetSize, SIZE_T& Out_PeakWorkingSetSize,
                                         DWORD& Out_PageFaultCount, SIZE_T& Out_QuotaPagedPoolUsage, SIZE_T& Out_QuotaPeakPagedPoolUsage,
                                         SIZE_T& Out_QuotaNonPagedPoolUsage, SIZE_T& Out_QuotaPeakNonPagedPoolUsage,
                                         SIZE_T& Out_PagefileUsage, SIZE_T& Out_PeakPagefileUsage) const
{
    return WithProcess(In_PID, PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, Flag{0}, [&](HANDLE process) {
        PROCESS_MEMORY_COUNTERS counters{};
        counters.cb = sizeof counters;
        if (!GetProcessMemoryInfo(process, &counters, sizeof counters))
            return false;
        Out_WorkingSetSize = counters.WorkingSetSize;
        Out_PeakWorkingSetSize = counters.PeakWorkingSetSize;
        Out_PageFaultCount = counters.PageFaultCount;
        Out_QuotaPagedPoolUsage = counters.QuotaPagedPoolUsage;
        Out_QuotaPeakPagedPoolUsage = counters.QuotaPeakPagedPoolUsage;
        Out_QuotaNonPagedPoolUsage = counters.QuotaNonPagedPoolUsage;
        Out_QuotaPeakNonPagedPoolUsage = counters.QuotaPeakNonPagedPoolUsage;
        Out_PagefileUsage = counters.PagefileUsage;
        Out_PeakPagefileUsage = counters.PeakPagefileUsage;
        return true;
    });
}

std::int16_t TaskManLight::GetCPUCount() const
{
    // The record's size differs between 32 and 64 bits, and Windows accepts no other.
    SYSTEM_BASIC_INFORMATION information{};
    if (NtQuerySystemInformation(SystemBasicInformation, &information, sizeof information, nullptr) != 0)
        return -1;
    return static_cast<std::uint8_t>(information.NumberOfProcessors);
}

std::uint32_t TaskManLight::GetPhysMemTotal() const
{
    return Saturated(MemoryStatus().dwTotalPhys);
}

std::uint32_t TaskManLight::GetVirtMemTotal() const
{
    return Saturated(MemoryStatus().dwTotalVirtual);
}

std::uint32_t TaskManLight::GetPageFileMemTotal() const
{
    return Saturated(MemoryStatus().dwTotalPageFile);
}

std::uint32_t TaskManLight::GetPhysMemAvailable() const
{
    return Saturated(MemoryStatus().dwAvailPhys);
}

std::uint32_t TaskManLight::GetVirtMemAvailable() const
{
    return Saturated(MemoryStatus().dwAvailVirtual);
}

std::uint32_t TaskManLight::GetPageFileMemAvailable() const
{
    return Saturated(MemoryStatus().dwAvailPageFile);
}

std::int16_t TaskManLight::GetMemLoad() const
{
    return static_cast<std::int16_t>(MemoryStatus().dwMemoryLoad);
}

}  // namespace toolkit
