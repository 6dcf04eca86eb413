// KernelObject: what CloseHandle closes and the wait functions wait for.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <memory>
#include <utility>

namespace platform {

/// One open handle of a kernel object: a file, a process, a thread, a token, a mutex.
class KernelObject : public Object {
public:
    explicit KernelObject(DWORD access) : access_(access) {}

    [[nodiscard]] bool Grants(DWORD access) const { return (access_ & access) == access; }
    [[nodiscard]] bool GrantsAny(DWORD access) const { return (access_ & access) != 0; }

    /// Whether the wait functions can wait for it, and whether a wait would end now.
    [[nodiscard]] virtual bool Waitable() const { return false; }
    [[nodiscard]] virtual bool Signalled() const { return false; }
    /// A wait ended on it: a mutex gets its owner here.
    virtual void WaitEnded() {}

private:
    DWORD access_;
};

/// Opens a handle that the program has to close.
[[nodiscard]] inline HANDLE OpenHandle(SimPc& pc, std::shared_ptr<KernelObject> object)
{
    return AsHandle<HANDLE>(pc.Handles().Open(std::move(object)));
}

}  // namespace platform
