// KernelObject: what CloseHandle closes and the wait functions wait for.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <memory>

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

/// The waitable object behind a handle, pseudo-handles included; empty with the last error set when there is none.
[[nodiscard]] std::shared_ptr<KernelObject> FindWaitable(HANDLE handle);

}  // namespace platform
