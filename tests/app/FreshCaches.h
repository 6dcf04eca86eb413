// FreshCaches: the base of tests of what the program keeps for the life of its process.
#pragma once

#include "app/helpers/CommonControls.h"
#include "app/helpers/IniFolder.h"
#include "app/helpers/Paths.h"
#include "app/helpers/SpecialFolders.h"
#include "base/Wow64.h"

#include <gtest/gtest.h>

namespace tests {

/// As at the start of the process.
inline void ForgetCaches()
{
    helpers::ForgetPaths();
    helpers::ForgetUserDataFolder();
    helpers::ForgetIniFolder();
    helpers::ReleaseShellLibrary();
    base::ForgetWow64();
}

class FreshCaches : public testing::Test {
protected:
    FreshCaches() { ForgetCaches(); }
    ~FreshCaches() override { ForgetCaches(); }
};

}  // namespace tests
