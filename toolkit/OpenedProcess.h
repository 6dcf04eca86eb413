// OpenedProcess: opens a process or a thread, does something with it and closes it.
#pragma once

#include "base/Handles.h"

namespace toolkit {

/// `action(handle)`, or `failure` when the process cannot be opened with `rights`.
/// https://learn.microsoft.com/windows/win32/api/processthreadsapi/nf-processthreadsapi-openprocess
template <class Result, class Action>
Result WithProcess(DWORD process, DWORD rights, Result failure, Action action)
{
    const base::KernelHandle handle(OpenProcess(rights, FALSE, process));
    return handle ? static_cast<Result>(action(handle.Get())) : failure;
}

/// The same for a thread.
template <class Result, class Action>
Result WithThread(DWORD thread, DWORD rights, Result failure, Action action)
{
    const base::KernelHandle handle(OpenThread(rights, FALSE, thread));
    return handle ? static_cast<Result>(action(handle.Get())) : failure;
}

}  // namespace toolkit
