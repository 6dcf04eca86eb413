#include "tests/toolkit/HelperProcess.h"

#include <gtest/gtest.h>

namespace tests {

HelperProcess::HelperProcess(const std::string& script)
{
    Start(script);
    EXPECT_NE(Id(), 0u) << "the helper did not start: " << script;
}

HelperProcess::~HelperProcess()
{
    if (process_ && !Ends(0))
        TerminateProcess(process_.Get(), 0);
}

DWORD HelperProcess::ExitCode() const
{
    DWORD code = 0;
    GetExitCodeProcess(process_.Get(), &code);
    return code;
}

}  // namespace tests
