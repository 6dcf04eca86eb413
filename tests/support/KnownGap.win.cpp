// KnownGap: turns the outcome of a marked test round where the program runs on Wine.
#include "tests/support/KnownGap.h"

#include <windows.h>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace tests {

namespace {

bool OnWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace

struct KnownGap::Hold {
    const char* reason;
    testing::TestPartResultArray results;
    testing::ScopedFakeTestPartResultReporter reporter{testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results};
};

KnownGap::KnownGap(const char* reason) : hold_(OnWine() ? new Hold{reason, {}} : nullptr) {}

KnownGap::~KnownGap()
{
    if (!hold_)
        return;
    bool failed = false;
    for (int index = 0; index < hold_->results.size(); ++index)
        failed = failed || hold_->results.GetTestPartResult(index).failed();
    const char* reason = hold_->reason;
    hold_.reset();
    if (!failed)
        ADD_FAILURE() << "this gap has closed, take its mark out: " << reason;
}

}  // namespace tests
