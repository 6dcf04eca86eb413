// ProcessHandle, ThreadHandle: open handles to processes and threads.
#pragma once

#include "platform/sim/Processes.h"
#include "platform/src/core/KernelObject.h"

namespace platform {

class ProcessHandle : public KernelObject {
public:
    ProcessHandle(DWORD access, std::shared_ptr<Process> opened) : KernelObject(access), process(std::move(opened)) {}
    [[nodiscard]] bool Waitable() const override { return Grants(SYNCHRONIZE); }
    [[nodiscard]] bool Signalled() const override { return !process->Runs(); }

    const std::shared_ptr<Process> process;
};

class ThreadHandle : public KernelObject {
public:
    ThreadHandle(DWORD access, std::shared_ptr<Thread> opened) : KernelObject(access), thread(std::move(opened)) {}
    [[nodiscard]] bool Waitable() const override { return Grants(SYNCHRONIZE); }
    [[nodiscard]] bool Signalled() const override { return thread->ended; }

    const std::shared_ptr<Thread> thread;
};

/// The process behind a handle that grants any bit of `anyAccess`; the pseudo-handle of the own process grants everything.
/// Empty with the last error set: 6 no such handle, 5 not granted.
[[nodiscard]] std::shared_ptr<Process> FindProcess(HANDLE handle, DWORD anyAccess);
[[nodiscard]] std::shared_ptr<Thread> FindThread(HANDLE handle, DWORD anyAccess);

/// What both kinds of query right open.
inline constexpr DWORD kQueryProcess = PROCESS_QUERY_INFORMATION | PROCESS_QUERY_LIMITED_INFORMATION;

}  // namespace platform
