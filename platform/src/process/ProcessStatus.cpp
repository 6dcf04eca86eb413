// Process status: lists of processes and modules, image paths, memory. https://learn.microsoft.com/windows/win32/api/psapi/
#include "platform/sim/Volumes.h"
#include "platform/src/core/Gate.h"
#include "platform/src/process/ProcessHandle.h"
#include "platform/src/text/Buffers.h"

#include <psapi.h>
#include <windows.h>

#include <algorithm>
#include <cstring>

using namespace platform;

namespace {

constexpr std::uintptr_t kFirstModule = 0x400000;
constexpr std::uintptr_t kModuleStep = 0x10000;

/// Reading another process's module list takes both rights.
std::shared_ptr<Process> FindReadable(HANDLE handle)
{
    return FindProcess(handle, PROCESS_VM_READ) ? FindProcess(handle, PROCESS_QUERY_INFORMATION) : nullptr;
}

}  // namespace

BOOL WINAPI EnumProcesses(DWORD* processes, DWORD size, DWORD* needed)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, size);
    const std::vector<DWORD> ids = SimPc::Current().Get<Processes>().All();
    const std::size_t count = std::min(ids.size(), size / sizeof(DWORD));
    std::copy_n(ids.begin(), count, processes);
    *needed = static_cast<DWORD>(count * sizeof(DWORD));
    return TRUE;
}

BOOL WINAPI EnumProcessModules(HANDLE process, HMODULE* modules, DWORD size, LPDWORD needed)
{
    SIM_CALL(FALSE, ERROR_PARTIAL_COPY, process, size);
    const auto found = FindReadable(process);
    if (!found)
        return FALSE;
    const std::size_t count = std::min(found->modules.size(), size / sizeof(HMODULE));
    for (std::size_t index = 0; index < count; ++index)
        modules[index] = AsHandle<HMODULE>(kFirstModule + index * kModuleStep);
    *needed = static_cast<DWORD>(found->modules.size() * sizeof(HMODULE));
    return TRUE;
}

DWORD WINAPI GetModuleFileNameExW(HANDLE process, HMODULE module, LPWSTR buffer, DWORD size)
{
    SIM_CALL(0, ERROR_INVALID_HANDLE, process, module, size);
    SimPc& pc = SimPc::Current();
    const auto found = FindReadable(process);
    if (!found)
        return 0;
    const std::size_t index = module ? (reinterpret_cast<std::uintptr_t>(module) - kFirstModule) / kModuleStep : 0;
    if (index >= found->modules.size())
        return pc.Fail(ERROR_INVALID_HANDLE, 0);
    const std::u16string& path = found->modules[index];
    const DWORD length = CopyCut(path, buffer, size);
    if (length == path.size())
        return length;
    return pc.Fail(ERROR_INSUFFICIENT_BUFFER, size);
}

DWORD WINAPI GetProcessImageFileNameW(HANDLE process, LPWSTR buffer, DWORD size)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, process, size);
    SimPc& pc = SimPc::Current();
    const auto found = FindProcess(process, kQueryProcess);
    if (!found)
        return 0;
    const std::u16string path = pc.Get<Volumes>().DevicePath(found->image);
    if (size <= path.size())
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, 0);
    return CopyCut(path, buffer, size);
}

BOOL WINAPI GetProcessMemoryInfo(HANDLE process, PPROCESS_MEMORY_COUNTERS counters, DWORD size)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process, size);
    SimPc& pc = SimPc::Current();
    const auto found = FindReadable(process);
    if (!found)
        return FALSE;
    if (size < sizeof(PROCESS_MEMORY_COUNTERS))
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    // Figures that tell the fields apart; only the working set follows what is done to the process.
    *counters = {
        sizeof(PROCESS_MEMORY_COUNTERS), 1501, 0x700000, found->workingSet, 0x21000, 0x20000, 0x11000, 0x10000, 0x300000, 0x400000};
    return TRUE;
}
