// Starting and closing the agent.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

namespace {

bool ShowsRunning(const Utility& utility)
{
    return !utility.Enabled("CommandStartVelmora") && utility.Enabled("CommandCloseVelmora");
}

bool ShowsNotRunning(const Utility& utility)
{
    return utility.Enabled("CommandStartVelmora") && !utility.Enabled("CommandCloseVelmora");
}

}  // namespace

TEST_F(EndToEnd, Agent_StartedAndPolitelyClosedByItsButtons)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    EXPECT_TRUE(ShowsNotRunning(utility));
    utility.Enter("TextPassword", TEXT("abc"));
    utility.Click("CommandStartVelmora");
    ASSERT_TRUE(Eventually([] { return IsWindowVisible(AgentWindow()); }));
    EXPECT_TRUE(utility.Responds()) << "the agent is not waited for";
    EXPECT_TRUE(Eventually([&] { return ShowsRunning(utility); }, agentTick));
    EXPECT_EQ(tests::TextOf(FindWindowExW(AgentWindow(), nullptr, TEXT("Static"), nullptr)), TEXT("Shutdown password: abc"))
        << "the password is saved before the agent starts";
    EXPECT_EQ(tests::BytesOf(log_), "window\r\n") << "started without switches";

    const base::KernelHandle agent = AgentProcess();
    utility.Click("CommandCloseVelmora");
    EXPECT_EQ(WaitForSingleObject(agent.Get(), 15000), WAIT_OBJECT_0);
    EXPECT_EQ(tests::BytesOf(log_), "window\r\nclosed\r\n") << "asked to close, not ended";
    EXPECT_TRUE(Eventually([&] { return ShowsNotRunning(utility); }, agentTick));
}

}  // namespace e2e
