#include "tests/e2e/EndToEnd.h"

namespace e2e {

void EndToEnd::SetUp()
{
    ASSERT_TRUE(FileExists(exe_)) << "the environment variable VELMORA_UTILITY names the exe to test";
    ASSERT_TRUE(FileExists(agent_)) << "the environment variable VELMORA_AGENT names the stand-in agent";
    RemoveAutoStartValue();
    ASSERT_TRUE(RemoveService());
}

void EndToEnd::TearDown()
{
    RemoveAutoStartValue();
    EXPECT_TRUE(RemoveService());
    EndProcesses(agent_);
}

}  // namespace e2e
