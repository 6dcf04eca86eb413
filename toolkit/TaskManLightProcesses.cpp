// Processes by id and by handle: opening, closing, killing, priority, affinity.
#include "base/PendingMessages.h"
#include "base/SystemExport.h"
#include "base/Wow64.h"
#include "toolkit/OpenedProcess.h"
#include "toolkit/ProcessIds.h"
#include "toolkit/TaskManLight.h"
#include "toolkit/WinMngHLP.h"

#include <psapi.h>

namespace toolkit {

DWORD TaskManLight::GetMyPID() const
{
    return GetCurrentProcessId();
}

DWORD TaskManLight::GetPIDFromhWnd(HWND In_hWnd) const
{
    DWORD process = 0;
    GetWindowThreadProcessId(In_hWnd, &process);
    return process;
}

HANDLE TaskManLight::OpenHndProcessByHWnd(HWND In_hWnd) const
{
    const base::SystemExport<HANDLE WINAPI(HWND)> getProcessHandle(TEXT("oleacc.dll"), "GetProcessHandleFromHwnd");
    return getProcessHandle ? getProcessHandle(In_hWnd) : nullptr;
}

DWORD TaskManLight::GetPIDFromHndProcess(HANDLE In_hProcess) const
{
    return GetProcessId(In_hProcess);
}

bool TaskManLight::IsProcessRunningByHnd(HANDLE In_hProcess) const
{
    DWORD code = 0;
    return In_hProcess && GetExitCodeProcess(In_hProcess, &code) && code == STILL_ACTIVE;
}

bool TaskManLight::ExistsPID(DWORD In_PID) const
{
    return IsPossiblePid(In_PID) &&
           WithProcess(In_PID, PROCESS_QUERY_INFORMATION, false, [&](HANDLE process) { return IsProcessRunningByHnd(process); });
}

HANDLE TaskManLight::OpenHndProcessByPID(DWORD In_PID, DWORD In_hRights) const
{
    if (!IsPossiblePid(In_PID))
        return nullptr;
    base::KernelHandle process(OpenProcess(In_hRights, FALSE, In_PID));
    return IsProcessRunningByHnd(process.Get()) ? process.Release() : nullptr;
}

Flag TaskManLight::KillProcessByHnd(HANDLE In_hProcess) const
{
    return IsProcessRunningByHnd(In_hProcess) && TerminateProcess(In_hProcess, STILL_ACTIVE);
}

Flag TaskManLight::KillProcessByPID(DWORD In_PID) const
{
    const base::KernelHandle process(OpenHndProcessByPID(In_PID, PROCESS_TERMINATE | PROCESS_QUERY_INFORMATION));
    return KillProcessByHnd(process.Get());
}

Flag TaskManLight::CloseProcessByPID(DWORD In_PID) const
{
    if (In_PID == 0)
        return 0;
    std::vector<HWND> windows;
    const std::int32_t count = CollectTopLevelWindows(In_PID, windows);
    if (count == 0)
        return KillProcessByPID(In_PID);
    // Inside another collection nothing is known of the windows, and a process that may have some is not killed.
    if (count < 0)
        return 0;
    if (const HWND main = GetMainWindowFromPID(In_PID))
        CloseWindow(main);
    base::DispatchPendingMessages();
    for (const HWND window : windows)
        if (IsWindow(window) && !GetWindow(window, GW_OWNER))
            CloseWindow(window);
    return 1;
}

void TaskManLight::CloseProcessByHnd(HANDLE In_hProcess) const
{
    CloseProcessByPID(GetPIDFromHndProcess(In_hProcess));
}

std::int32_t TaskManLight::GetAllPID(std::vector<DWORD>& Out_PID) const
{
    for (std::size_t room = 64;; room *= 2) {
        std::vector<DWORD> processes(room);
        const DWORD size = static_cast<DWORD>(room * sizeof(DWORD));
        DWORD used = 0;
        if (!EnumProcesses(processes.data(), size, &used))
            return -1;
        // A full buffer does not tell whether there are more.
        if (used < size) {
            processes.resize(used / sizeof(DWORD));
            Out_PID = std::move(processes);
            return static_cast<std::int32_t>(Out_PID.size());
        }
    }
}

std::int32_t TaskManLight::SetCurrentProcessPriority(DWORD In_Priority) const
{
    return SetPriorityFromPID(GetCurrentProcessId(), In_Priority);
}

DWORD TaskManLight::GetCurrentProcessPriority() const
{
    return GetPriorityFromPID(GetCurrentProcessId());
}

DWORD TaskManLight::GetPriorityFromPID(DWORD In_PID) const
{
    return WithProcess(In_PID, PROCESS_QUERY_INFORMATION, DWORD{0}, GetPriorityClass);
}

std::int32_t TaskManLight::SetPriorityFromPID(DWORD In_PID, DWORD In_Priority) const
{
    return WithProcess(In_PID, PROCESS_SET_INFORMATION, std::int32_t{0},
                       [&](HANDLE process) { return SetPriorityClass(process, In_Priority); });
}

Flag TaskManLight::GetAffinityMaskFromPID(DWORD In_PID, DWORD_PTR& Out_CPUAffinityMask, DWORD_PTR& Out_SystemAvailableCPUMask) const
{
    DWORD_PTR own = 0;
    DWORD_PTR available = 0;
    const Flag done = WithProcess(In_PID, PROCESS_QUERY_INFORMATION, Flag{0},
                                  [&](HANDLE process) { return GetProcessAffinityMask(process, &own, &available); });
    if (done) {
        Out_CPUAffinityMask = own;
        Out_SystemAvailableCPUMask = available;
    }
    return done;
}

Flag TaskManLight::SetAffinityMaskFromPID(DWORD In_ProcessID, DWORD_PTR In_CPUAffinityMask) const
{
    return WithProcess(In_ProcessID, PROCESS_SET_INFORMATION, Flag{0},
                       [&](HANDLE process) { return SetProcessAffinityMask(process, In_CPUAffinityMask); });
}

std::int32_t TaskManLight::Is32BitProcess(DWORD In_PID) const
{
    if (!base::IsWow64())
        return 1;
    const base::KernelHandle process(OpenHndProcessByPID(In_PID, PROCESS_QUERY_INFORMATION));
    if (!process)
        return -1;
    BOOL wow64 = FALSE;
    return IsWow64Process(process.Get(), &wow64) && wow64 ? 1 : 0;
}

}  // namespace toolkit
