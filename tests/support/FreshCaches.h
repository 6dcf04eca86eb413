// FreshCaches: the base of tests of what the program keeps for the life of its process.
#pragma once

#include "app/helpers/Caches.h"

#include <gtest/gtest.h>

namespace tests {

class FreshCaches : public testing::Test {
protected:
    FreshCaches() { helpers::ForgetCaches(); }
    ~FreshCaches() override { helpers::ForgetCaches(); }
};

}  // namespace tests
