// The examples of docs/toolkit.md, compiled and run. Each block of the page stands here word for word; what follows it is checked.
#include "tests/toolkit/HelperProcess.h"
#include "tests/toolkit/TestWindows.h"
#include "toolkit/SystemSecurity.h"
#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>

namespace {

const toolkit::TaskManLight tools;

TEST(ToolkitExamples, Processes)
{
    const tests::HelperProcess helper("top:Main closes");
    const DWORD pid = helper.Id();

    // Give way to others, if it is still there.
    if (tools.ExistsPID(pid))
        tools.SetPriorityFromPID(pid, BELOW_NORMAL_PRIORITY_CLASS);

    // Ask it to close; kill it when it has not listened for five seconds.
    const base::KernelHandle process(tools.OpenHndProcessByPID(pid, PROCESS_TERMINATE | PROCESS_QUERY_INFORMATION | SYNCHRONIZE));
    tools.CloseProcessByPID(pid);
    if (WaitForSingleObject(process.Get(), 5000) == WAIT_TIMEOUT)
        tools.KillProcessByHnd(process.Get());

    EXPECT_TRUE(helper.Ends());
}

TEST(ToolkitExamples, Paths)
{
    const tests::HelperProcess helper("");
    const DWORD pid = helper.Id();

    const base::String path = tools.GetPathFromPID(pid);                                // C:\Tools\Agent.exe
    const base::String device = tools.GetNTPathFromPID(pid);                            // \Device\HarddiskVolume1\Tools\Agent.exe
    const bool same = base::EqualsIgnoringCase(tools.GetPathFromNTPath(device), path);  // true

    std::vector<base::String> modules;
    tools.GetDLLsFromPID(pid, modules);  // the exe first, then its libraries

    EXPECT_TRUE(same && modules.front() == path);
}

TEST(ToolkitExamples, Instances)
{
    const tests::HelperProcess first("top:One"), second("top:Two");
    const DWORD pid = first.Id();

    std::vector<DWORD> others;
    const int count = tools.GetAllInstancesPIDsByPID(pid, others, false);  // without `pid` itself

    EXPECT_EQ(count, 1);
}

TEST(ToolkitExamples, Windows)
{
    const tests::HelperProcess helper("top:Notes owned:Search child:Text");

    const HWND window = tools.FindHWndByCaption(TEXT("Notes"), true);  // not this program's own
    const DWORD pid = tools.GetPIDFromhWnd(window);
    if (tools.GetMainWindowFromPID(pid) == window && tools.GetHWndByCaptionCount(TEXT("Search"), true) == 1)
        tools.MakeWindowVisible(window);

    std::vector<HWND> all;
    tools.GetHWndFromPID(pid, all);  // top-level windows, each followed by all windows in it
    for (const HWND each : all)
        if (tools.GetWindowTitle(each) == TEXT("Search"))
            tools.CloseWindow(each);

    EXPECT_TRUE(IsWindowVisible(window));
}

TEST(ToolkitExamples, OwnWindow)
{
    tests::TestWindows windows;
    const HWND form = windows.Top(TEXT("form"));

    toolkit::TaskManLight own;
    own.FirstFormWindow = [form] { return form; };  // the application says which window it is
    own.ActivateMyWindow();

    LockSetForegroundWindow(LSFW_UNLOCK);
    EXPECT_TRUE(IsWindowVisible(form));
}

TEST(ToolkitExamples, Threads)
{
    const tests::HelperProcess helper("thread");
    const DWORD thread = helper.ThreadId();

    const int before = tools.SospendiThread(thread);  // how often it was suspended already
    if (before >= 0)
        tools.RiattivaThread(thread);
    const base::String user = tools.GetActualDomain() + TEXT("\\") + tools.GetActualUser();

    EXPECT_TRUE(before == 1 && user.size() > 2);
}

TEST(ToolkitExamples, Memory)
{
    SIZE_T now = 0, peak = 0, other[6]{};
    DWORD pageFaults = 0;
    if (tools.GetMemoryUsageFromPID(tools.GetMyPID(), now, peak, pageFaults, other[0], other[1], other[2], other[3], other[4], other[5]))
        tools.TrimWorkingSetCurrentProcess();
    const bool busy = tools.GetMemLoad() > 90 || tools.GetPhysMemAvailable() < 64u << 20;

    EXPECT_TRUE(busy || now > 0);
}

TEST(ToolkitExamples, Privileges)
{
    const int debugging = toolkit::SystemSecurity::GetDebugPrivilege();

    toolkit::SystemSecurity security;
    if (security.SetDebugPrivilege(1)) {
        // Here processes of other users may be opened.
        security.RestoreDebugPrivilege();
    }

    std::int32_t before = 0;
    if (toolkit::SystemSecurity::SetPrivilege(TEXT("SeShutdownPrivilege"), 1, before) == 1)
        toolkit::SystemSecurity::SetPrivilege(TEXT("SeShutdownPrivilege"), before, before);

    EXPECT_EQ(toolkit::SystemSecurity::GetDebugPrivilege(), debugging);
}

}  // namespace
