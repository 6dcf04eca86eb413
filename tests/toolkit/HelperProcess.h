// HelperProcess: another process for tests to look at, with windows as its script tells. It is ended with this object.
#pragma once

#include "base/Handles.h"

#include <gtest/gtest.h>

#include <string>

namespace tests {

class HelperProcess {
public:
    /// `script` is what TestWindows makes; the word `thread` adds a thread that stands still from its start. All is there on return.
    explicit HelperProcess(const std::string& script)
    {
        Start(script);
        EXPECT_NE(Id(), 0u) << "the helper did not start: " << script;
    }
    ~HelperProcess()
    {
        if (process_ && !Ends(0))
            TerminateProcess(process_.Get(), 0);
    }
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
    [[nodiscard]] DWORD ExitCode() const
    {
        DWORD code = 0;
        GetExitCodeProcess(process_.Get(), &code);
        return code;
    }

private:
    /// Each build's own way to a running process.
    void Start(const std::string& script);

    base::KernelHandle process_;
    DWORD thread_ = 0;
};

}  // namespace tests
