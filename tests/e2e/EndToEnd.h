// EndToEnd: what surrounds every test here: a folder with the exes, and a PC without the service and the auto-start value.
#pragma once

#include "tests/e2e/Machine.h"
#include "tests/e2e/Utility.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/SentMessages.h"

#include <gtest/gtest.h>

namespace e2e {

class EndToEnd : public testing::Test {
    std::vector<base::String> copies_;  // comes before the members that are made by putting copies

protected:
    void SetUp() override;
    void TearDown() override;

    /// Puts a copy of the utility or of the agent into the folder under this name; its full path.
    base::String PutUtility(base::StringView name) { return Put(TEXT("VELMORA_UTILITY"), name); }
    base::String PutAgent(base::StringView name) { return Put(TEXT("VELMORA_AGENT"), name); }

    tests::ScratchFolder folder_;
    base::String exe_ = PutUtility(TEXT("Velmora Setup Utility.exe"));
    base::String agent_ = PutAgent(TEXT("Velmora.exe"));
    base::String settings_ = folder_.Expect(TEXT("Velmora.ini"));
    base::String log_ = folder_.Expect(TEXT("Velmora.log"));
    /// The same with the file that the environment variable names.
    base::String Put(const WCHAR* variable, base::StringView name);
};

}  // namespace e2e
