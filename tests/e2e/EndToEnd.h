// EndToEnd: what surrounds every test here: a folder with the exes, and a PC without the service and the auto-start value.
#pragma once

#include "tests/e2e/Machine.h"
#include "tests/e2e/Utility.h"

#include <gtest/gtest.h>

namespace e2e {

class EndToEnd : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    Folder folder_;
    base::String exe_ = folder_.PutUtility();
    base::String agent_ = folder_.PutAgent();
    base::String settings_ = folder_ / TEXT("Velmora.ini");
};

}  // namespace e2e
