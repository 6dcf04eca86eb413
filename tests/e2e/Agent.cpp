// Starting and closing the agent, and following one that others start and end.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

namespace {

bool ShowsRunning(const Utility& utility)
{
    return !utility.Enabled(Place::CommandStartVelmora) && utility.Enabled(Place::CommandCloseVelmora);
}

bool ShowsNotRunning(const Utility& utility)
{
    return utility.Enabled(Place::CommandStartVelmora) && !utility.Enabled(Place::CommandCloseVelmora);
}

}  // namespace

TEST_F(EndToEnd, Agent_StartedAndPolitelyClosedByItsButtons)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    EXPECT_TRUE(ShowsNotRunning(utility));
    utility.Enter(Place::TextPassword, TEXT("abc"));
    utility.Click(Place::CommandStartVelmora);
    ASSERT_TRUE(Eventually([&] { return ProcessOf(agent_) != 0; }));
    EXPECT_TRUE(Eventually([&] { return !utility.Enabled(Place::CommandStartVelmora); }));
    EXPECT_TRUE(utility.Responds()) << "the agent is not waited for";
    const DWORD agentId = ProcessOf(agent_);
    ASSERT_TRUE(Eventually([&] { return AgentWindow(agentId) != nullptr; }));
    EXPECT_TRUE(Eventually([&] { return ShowsRunning(utility); }, AGENT_TICK));
    WCHAR shown[64] = {};
    const HWND label = FindWindowExW(AgentWindow(agentId), nullptr, TEXT("Static"), nullptr);
    SendMessageW(label, WM_GETTEXT, ARRAYSIZE(shown), reinterpret_cast<LPARAM>(shown));
    EXPECT_STREQ(shown, TEXT("Shutdown password: abc")) << "the password is saved before the agent starts";
    EXPECT_EQ(ReadFile(folder_ / TEXT("Velmora.log")), "window\r\n") << "started without switches";

    utility.Click(Place::CommandCloseVelmora);
    EXPECT_TRUE(Eventually([&] { return ProcessOf(agent_) == 0; }));
    EXPECT_EQ(ReadFile(folder_ / TEXT("Velmora.log")), "window\r\nclosed\r\n") << "asked to close, not ended";
    EXPECT_TRUE(Eventually([&] { return ShowsNotRunning(utility); }, AGENT_TICK));
}

TEST_F(EndToEnd, Agent_StartedAndEndedBySomebodyElse_IsFollowedWithinATick)
{
    const base::KernelHandle before = RunAgent(agent_);
    ASSERT_TRUE(Eventually([&] { return AgentWindow(ProcessOf(agent_)) != nullptr; }));
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    EXPECT_TRUE(ShowsRunning(utility)) << "already at the first display";
    EndProcesses(agent_);
    EXPECT_TRUE(Eventually([&] { return ShowsNotRunning(utility); }, AGENT_TICK));
    const base::KernelHandle after = RunAgent(agent_);
    ASSERT_TRUE(Eventually([&] { return AgentWindow(ProcessOf(agent_)) != nullptr; }));
    EXPECT_TRUE(Eventually([&] { return ShowsRunning(utility); }, AGENT_TICK));
}

TEST_F(EndToEnd, Agent_ClosedThoughItsWindowIsHidden)
{
    SetAutoStartValue(TEXT("\"") + agent_ + TEXT("\" /Hidden /SoundStart"));
    base::String commandLine = AutoStartValue().value_or(base::String());
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process));
    CloseHandle(process.hThread);
    const base::KernelHandle agent(process.hProcess);
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    EXPECT_TRUE(Eventually([&] { return ShowsRunning(utility); }, AGENT_TICK));
    EXPECT_FALSE(IsWindowVisible(AgentWindow(process.dwProcessId)));
    utility.Click(Place::CommandCloseVelmora);
    EXPECT_EQ(WaitForSingleObject(agent.Get(), 5000), WAIT_OBJECT_0);
    EXPECT_EQ(ReadFile(folder_ / TEXT("Velmora.log")), "window, hidden, with a sound\r\nclosed\r\n");
}

TEST_F(EndToEnd, Agent_DeletedMeanwhile_LeavesTheStartButtonOn)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    ASSERT_TRUE(DeleteFileW(agent_.c_str()));
    utility.Click(Place::CommandStartVelmora);
    EXPECT_TRUE(Throughout(Milliseconds(500), [&] { return utility.Enabled(Place::CommandStartVelmora) && !utility.MessageBox(); }));
}

}  // namespace e2e
