// The main function of every test program.
#include "tests/support/Environment.h"

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    tests::PrepareEnvironment();
    return RUN_ALL_TESTS();
}
