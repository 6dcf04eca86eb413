// Process handles: opening, asking, ending. https://learn.microsoft.com/windows/win32/api/processthreadsapi/
#include "platform/sim/Machine.h"
#include "platform/sim/Users.h"
#include "platform/src/core/Gate.h"
#include "platform/src/process/ProcessHandle.h"

#include <oleacc.h>
#include <windows.h>

using namespace platform;

namespace {

const HANDLE kCurrentProcess = reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1));
/// The rights that the accessibility layer asks for: none of them lets the caller ask for the process id.
constexpr DWORD kAccessibilityAccess = PROCESS_DUP_HANDLE | PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE | SYNCHRONIZE;

bool MayOpen(SimPc& pc, const Process& process)
{
    return !process.guarded || pc.Get<Users>().Enabled(SE_DEBUG_NAME);
}

DWORD_PTR SystemMask(SimPc& pc)
{
    return (DWORD_PTR{1} << pc.Get<Machine>().Processors()) - 1;
}

}  // namespace

namespace platform {

std::shared_ptr<Process> FindProcess(HANDLE handle, DWORD anyAccess)
{
    SimPc& pc = SimPc::Current();
    if (handle == kCurrentProcess)
        return pc.Get<Processes>().Find(pc.CurrentActor().process);
    const auto opened = pc.Handles().Find<ProcessHandle>(handle);
    if (!opened || !opened->GrantsAny(anyAccess))
        return pc.Fail(opened ? ERROR_ACCESS_DENIED : ERROR_INVALID_HANDLE, std::shared_ptr<Process>());
    return opened->process;
}

}  // namespace platform

HANDLE WINAPI OpenProcess(DWORD access, BOOL inherit, DWORD processId)
{
    SIM_CALL(nullptr, ERROR_ACCESS_DENIED, access, inherit, processId);
    SimPc& pc = SimPc::Current();
    const DWORD id = processId & ~3u;  // The two lowest bits of a process id do not count.
    if (id == 4)
        return pc.Fail<HANDLE>(ERROR_ACCESS_DENIED, nullptr);
    const auto process = pc.Get<Processes>().Find(id);
    if (!process)
        return pc.Fail<HANDLE>(ERROR_INVALID_PARAMETER, nullptr);
    if (!MayOpen(pc, *process))
        return pc.Fail<HANDLE>(ERROR_ACCESS_DENIED, nullptr);
    return OpenHandle(pc, std::make_shared<ProcessHandle>(access, process));
}

HANDLE WINAPI GetCurrentProcess()
{
    SIM_NOTE();
    return kCurrentProcess;
}

DWORD WINAPI GetCurrentProcessId()
{
    SIM_NOTE();
    return SimPc::Current().CurrentActor().process;
}

DWORD WINAPI GetProcessId(HANDLE process)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, process);
    const auto found = FindProcess(process, kQueryProcess);
    return found ? found->id : 0;
}

BOOL WINAPI GetExitCodeProcess(HANDLE process, LPDWORD code)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process);
    const auto found = FindProcess(process, kQueryProcess);
    if (found)
        *code = found->exitCode;
    return found != nullptr;
}

BOOL WINAPI TerminateProcess(HANDLE process, UINT code)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process, code);
    SimPc& pc = SimPc::Current();
    const auto found = FindProcess(process, PROCESS_TERMINATE);
    if (!found)
        return FALSE;
    if (found->id == SimPc::Own().process) {
        pc.Unsupported("TerminateProcess of the program itself");
        return FALSE;
    }
    if (!pc.Get<Processes>().IsRunning(found->id) || found->ignoresTermination)
        return pc.Fail(ERROR_ACCESS_DENIED, FALSE);
    pc.Get<Processes>().End(found->id, code);
    return TRUE;
}

DWORD WINAPI GetPriorityClass(HANDLE process)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, process);
    const auto found = FindProcess(process, kQueryProcess);
    return found ? found->priority : 0;
}

BOOL WINAPI SetPriorityClass(HANDLE process, DWORD priority)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process, priority);
    SimPc& pc = SimPc::Current();
    const auto found = FindProcess(process, PROCESS_SET_INFORMATION);
    if (!found)
        return FALSE;
    switch (priority) {
        case IDLE_PRIORITY_CLASS:
        case BELOW_NORMAL_PRIORITY_CLASS:
        case NORMAL_PRIORITY_CLASS:
        case ABOVE_NORMAL_PRIORITY_CLASS:
        case HIGH_PRIORITY_CLASS:
            found->priority = priority;
            return TRUE;
        case REALTIME_PRIORITY_CLASS:  // Without the privilege for it the system quietly gives the next lower class.
            found->priority = pc.Get<Users>().Administrator() ? REALTIME_PRIORITY_CLASS : HIGH_PRIORITY_CLASS;
            return TRUE;
        default:
            return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
    }
}

BOOL WINAPI GetProcessAffinityMask(HANDLE process, PDWORD_PTR processMask, PDWORD_PTR systemMask)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process);
    const auto found = FindProcess(process, kQueryProcess);
    if (!found)
        return FALSE;
    *systemMask = SystemMask(SimPc::Current());
    *processMask = found->affinity == 0 ? *systemMask : found->affinity;
    return TRUE;
}

BOOL WINAPI SetProcessAffinityMask(HANDLE process, DWORD_PTR mask)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process, mask);
    SimPc& pc = SimPc::Current();
    const auto found = FindProcess(process, PROCESS_SET_INFORMATION);
    if (!found)
        return FALSE;
    if (mask == 0 || (mask & ~SystemMask(pc)) != 0)
        return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
    found->affinity = mask;
    return TRUE;
}

BOOL WINAPI SetProcessWorkingSetSize(HANDLE process, SIZE_T minimum, SIZE_T maximum)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process, minimum, maximum);
    SimPc& pc = SimPc::Current();
    const auto found = FindProcess(process, PROCESS_SET_QUOTA);
    if (!found)
        return FALSE;
    constexpr SIZE_T kEmpty = ~SIZE_T{0};
    if (minimum != kEmpty || maximum != kEmpty) {
        pc.Unsupported("SetProcessWorkingSetSize to a size");
        return FALSE;
    }
    ++found->trims;
    found->workingSet = 0x1000;
    return TRUE;
}

BOOL WINAPI IsWow64Process(HANDLE process, PBOOL wow64)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process);
    const auto found = FindProcess(process, kQueryProcess);
    if (found)
        *wow64 = found->id == SimPc::Own().process ? SimPc::Current().Get<Machine>().Wow64() : found->wow64;
    return found != nullptr;
}

HANDLE WINAPI GetProcessHandleFromHwnd(HWND window)
{
    SIM_CALL(nullptr, ERROR_ACCESS_DENIED, window);
    SimPc& pc = SimPc::Current();
    const auto process = pc.Get<Processes>().OfWindow(window);
    if (!process)
        return pc.Fail<HANDLE>(ERROR_INVALID_WINDOW_HANDLE, nullptr);
    return OpenHandle(pc, std::make_shared<ProcessHandle>(kAccessibilityAccess, process));
}
