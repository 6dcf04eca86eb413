// HelperProcess: another process for tests to look at, with windows as its script tells. It is ended with this object.
#pragma once

#include "base/Handles.h"

#include <string>

namespace tests {

class HelperProcess {
public:
    /// `script` is what TestWindows makes; the word `thread` adds a thread that stands still from its start. All is there on return.
    explicit HelperProcess(const std::string& script);
    ~HelperProcess();
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;

    /// Opened with every right.
    [[nodiscard]] HANDLE Handle() const { return process_.Get(); }
    [[nodiscard]] DWORD Id() const { return GetProcessId(process_.Get()); }
    /// The thread that stands still, 0 without one.
    [[nodiscard]] DWORD ThreadId() const { return thread_; }
    /// Waits so many milliseconds for its end.
    [[nodiscard]] bool Ends(DWORD milliseconds = 10'000) const
    {
        return WaitForSingleObject(process_.Get(), milliseconds) == WAIT_OBJECT_0;
    }
    [[nodiscard]] DWORD ExitCode() const;

private:
    /// Each build's own way to a running process.
    void Start(const std::string& script);

    base::KernelHandle process_;
    DWORD thread_ = 0;
};

}  // namespace tests
