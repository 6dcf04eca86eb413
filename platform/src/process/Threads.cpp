// Threads of other programs and of the program itself. https://learn.microsoft.com/windows/win32/api/processthreadsapi/
#include "platform/src/core/Gate.h"
#include "platform/src/process/ProcessHandle.h"

#include <windows.h>

#include <algorithm>

using namespace platform;

namespace {
const HANDLE kCurrentThread = reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-2));
constexpr DWORD kFailed = static_cast<DWORD>(-1);
}  // namespace

namespace platform {

std::shared_ptr<Thread> FindThread(HANDLE handle, DWORD anyAccess)
{
    SimPc& pc = SimPc::Current();
    if (handle == kCurrentThread)
        return pc.Get<Processes>().FindThread(pc.CurrentActor().thread);
    const auto opened = pc.Handles().Find<ThreadHandle>(handle);
    if (!opened || !opened->GrantsAny(anyAccess))
        return pc.Fail(opened ? ERROR_ACCESS_DENIED : ERROR_INVALID_HANDLE, std::shared_ptr<Thread>());
    return opened->thread;
}

}  // namespace platform

HANDLE WINAPI GetCurrentThread()
{
    SIM_NOTE();
    return kCurrentThread;
}

DWORD WINAPI GetCurrentThreadId()
{
    SIM_NOTE();
    return SimPc::Current().CurrentActor().thread;
}

HANDLE WINAPI OpenThread(DWORD access, BOOL inherit, DWORD threadId)
{
    SIM_CALL(nullptr, ERROR_ACCESS_DENIED, access, inherit, threadId);
    SimPc& pc = SimPc::Current();
    const auto thread = pc.Get<Processes>().FindThread(threadId & ~3u);
    if (!thread)
        return pc.Fail<HANDLE>(ERROR_INVALID_PARAMETER, nullptr);
    return OpenHandle(pc, std::make_shared<ThreadHandle>(access, thread));
}

BOOL WINAPI GetExitCodeThread(HANDLE thread, LPDWORD code)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, thread);
    const auto found = FindThread(thread, THREAD_QUERY_INFORMATION);
    if (found)
        *code = found->exitCode;
    return found != nullptr;
}

BOOL WINAPI TerminateThread(HANDLE thread, DWORD code)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, thread, code);
    SimPc& pc = SimPc::Current();
    const auto found = FindThread(thread, THREAD_TERMINATE);
    if (!found)
        return FALSE;
    if (found->id == pc.CurrentActor().thread) {
        pc.Unsupported("TerminateThread of the running thread");
        return FALSE;
    }
    Processes& processes = pc.Get<Processes>();
    const auto process = processes.Find(found->process);
    std::erase(process->threads, found);
    found->exitCode = code;
    found->ended = true;
    if (process->threads.empty()) {  // A process ends with its last thread.
        process->threads.push_back(found);
        processes.End(process->id, code);
    }
    return TRUE;
}

DWORD WINAPI SuspendThread(HANDLE thread)
{
    SIM_CALL(kFailed, ERROR_ACCESS_DENIED, thread);
    const auto found = FindThread(thread, THREAD_SUSPEND_RESUME);
    return found ? found->suspended++ : kFailed;
}

DWORD WINAPI ResumeThread(HANDLE thread)
{
    SIM_CALL(kFailed, ERROR_ACCESS_DENIED, thread);
    const auto found = FindThread(thread, THREAD_SUSPEND_RESUME);
    if (!found)
        return kFailed;
    return found->suspended == 0 ? 0 : found->suspended--;
}
