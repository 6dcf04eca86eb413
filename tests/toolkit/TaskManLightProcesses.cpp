// Processes, their paths, instances and threads, held against what Windows' own functions say of a helper that runs beside the tests.
#include "base/Handles.h"
#include "base/Wow64.h"
#include "tests/toolkit/HelperProcess.h"
#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>
#include <psapi.h>

#include <algorithm>

using base::String;
using tests::HelperProcess;

namespace {

constexpr DWORD killed = STILL_ACTIVE;  // what a killed process ends with

class TaskManLightProcesses : public testing::Test {
protected:
    TaskManLightProcesses() { base::ForgetWow64(); }

    bool IsListed(DWORD process) const
    {
        std::vector<DWORD> all;
        const int count = tools.GetAllPID(all);
        EXPECT_EQ(count, std::ssize(all));
        return std::count(all.begin(), all.end(), process) == 1;
    }

    toolkit::TaskManLight tools;
};

TEST_F(TaskManLightProcesses, Process_IsListedAndOpenedWhileItRuns)
{
    EXPECT_TRUE(IsListed(tools.GetMyPID()));
    const DWORD gone = HelperProcess("").Id();
    EXPECT_FALSE(IsListed(gone));
    const HelperProcess helper("");
    EXPECT_TRUE(IsListed(helper.Id()));
    EXPECT_TRUE(tools.ExistsPID(helper.Id()));
    EXPECT_EQ(tools.GetPIDFromHndProcess(helper.Handle()), helper.Id());
    const base::KernelHandle opened(tools.OpenHndProcessByPID(helper.Id(), PROCESS_QUERY_INFORMATION));
    EXPECT_EQ(GetProcessId(opened.Get()), helper.Id());
    ASSERT_TRUE(TerminateProcess(helper.Handle(), 7));
    ASSERT_TRUE(helper.Ends());
    EXPECT_FALSE(tools.IsProcessRunningByHnd(helper.Handle()));
    EXPECT_FALSE(tools.ExistsPID(helper.Id()));
    EXPECT_EQ(tools.OpenHndProcessByPID(helper.Id(), PROCESS_QUERY_INFORMATION), nullptr);
    EXPECT_EQ(tools.KillProcessByHnd(helper.Handle()), 0);
    EXPECT_EQ(helper.ExitCode(), 7u);
}

TEST_F(TaskManLightProcesses, ImpossibleIds_AreNotAsked)
{
    const HelperProcess helper("");
    // Windows rounds an id down to a multiple of 4, so these would open the helper.
    for (const DWORD process : {DWORD{0}, helper.Id() + 1, helper.Id() + 2, helper.Id() + 3}) {
        EXPECT_FALSE(tools.ExistsPID(process));
        EXPECT_EQ(tools.OpenHndProcessByPID(process, PROCESS_QUERY_INFORMATION), nullptr);
        EXPECT_EQ(tools.GetNTPathFromPID(process), TEXT(""));
        EXPECT_EQ(tools.KillProcessByPID(process), 0);
    }
    EXPECT_EQ(tools.KillProcessByHnd(nullptr), 0);
    EXPECT_EQ(tools.CloseProcessByPID(0), 0);
    EXPECT_FALSE(helper.Ends(0));
}

TEST_F(TaskManLightProcesses, Closing_AsksWhatHasWindowsAndKillsTheRest)
{
    const HelperProcess polite("top:Main owned:Dialog closes");
    const HelperProcess untitled("top: top: closes");
    const HelperProcess stubborn("top:Main");
    const HelperProcess windowless("");
    for (const HelperProcess* helper : {&polite, &untitled, &stubborn, &windowless})
        EXPECT_EQ(tools.CloseProcessByPID(helper->Id()), 1);
    for (const HelperProcess* helper : {&polite, &untitled, &windowless})
        EXPECT_TRUE(helper->Ends());
    EXPECT_EQ(polite.ExitCode(), 0u);
    EXPECT_EQ(untitled.ExitCode(), 0u);
    EXPECT_EQ(windowless.ExitCode(), killed);
    EXPECT_FALSE(stubborn.Ends(300));
    EXPECT_EQ(tools.KillProcessByPID(stubborn.Id()), 1);
    EXPECT_TRUE(stubborn.Ends());
    EXPECT_EQ(stubborn.ExitCode(), killed);

    const HelperProcess byHandle("top:Main closes");
    tools.CloseProcessByHnd(byHandle.Handle());
    EXPECT_TRUE(byHandle.Ends());
}

TEST_F(TaskManLightProcesses, WindowHandle_OpensItsProcess)
{
    const HelperProcess helper("top:OPENED-BY-ITS-WINDOW");
    const HWND window = FindWindowW(nullptr, TEXT("OPENED-BY-ITS-WINDOW"));
    EXPECT_EQ(tools.GetPIDFromhWnd(window), helper.Id());
    const base::KernelHandle opened(tools.OpenHndProcessByHWnd(window));
    EXPECT_EQ(WaitForSingleObject(opened.Get(), 0), static_cast<DWORD>(WAIT_TIMEOUT));
    tools.QuitWindow(window);
    EXPECT_TRUE(helper.Ends());
    EXPECT_EQ(WaitForSingleObject(opened.Get(), 0), static_cast<DWORD>(WAIT_OBJECT_0)) << "it stands for the helper";
}

TEST_F(TaskManLightProcesses, Paths_AgreeInAllTheirForms)
{
    const HelperProcess helper("");
    WCHAR name[MAX_PATH]{};
    GetModuleFileNameExW(helper.Handle(), nullptr, name, MAX_PATH);
    const String path = name;
    ASSERT_TRUE(path.ends_with(TEXT("\\toolkit_helper.exe")));
    EXPECT_EQ(tools.GetPathFromPID(helper.Id()), path);
    EXPECT_TRUE(tools.GetNTPathFromPID(helper.Id()).starts_with(TEXT("\\Device\\")));
    EXPECT_EQ(tools.GetFileNameFromPID(helper.Id()), TEXT("toolkit_helper.exe"));
    std::vector<String> modules;
    ASSERT_EQ(tools.GetDLLsFromPID(helper.Id(), modules), 1);
    EXPECT_EQ(modules.front(), path);
    EXPECT_GT(modules.size(), 1u);
    for (const DWORD systems : {0, 4})
        EXPECT_EQ(tools.GetPathFromPID(systems), TEXT(""));
    EXPECT_EQ(tools.GetPathFromNTPath(TEXT("\\Nowhere\\x")), TEXT(""));
    EXPECT_EQ(tools.GetNtDeviceNameByLogicalDrive(TEXT("")), TEXT(""));
    std::vector<String> drives;
    const int count = tools.GetLogicalDrives(drives);
    EXPECT_EQ(count, std::ssize(drives));
    EXPECT_EQ(std::count(drives.begin(), drives.end(), TEXT("C:")), 1);
}

TEST_F(TaskManLightProcesses, Instances_AreThoseOfTheSameImageWithAWindow)
{
    EXPECT_EQ(tools.GetAllMyInstancesCount(), 1) << "without any window";
    const HelperProcess first("top:");
    const HelperProcess second("top:Main");
    const HelperProcess windowless("");
    std::vector<DWORD> found = {7};
    EXPECT_EQ(tools.GetAllInstancesPIDsByPID(first.Id(), found, false), 1);
    EXPECT_EQ(found, (std::vector<DWORD>{7, second.Id()})) << "the list grows";
    EXPECT_EQ(tools.GetAllInstancesPIDsByPID(3, found, true), 0);
    EXPECT_EQ(found.size(), 2u);
    EXPECT_EQ(tools.GetAppInstanceCountByPID(first.Id()), 2);
    EXPECT_EQ(tools.GetAppInstanceCountByPID(windowless.Id()), 2);
    EXPECT_EQ(tools.GetAllMyOtherInstancesPID(found), 0);
}

TEST_F(TaskManLightProcesses, Threads_AreCountedAndKilledWithTheirOwnCode)
{
    const HelperProcess helper("thread");
    const base::KernelHandle thread(OpenThread(THREAD_ALL_ACCESS, FALSE, helper.ThreadId()));
    EXPECT_EQ(tools.SospendiThread(helper.ThreadId()), 1) << "it was started suspended";
    EXPECT_EQ(SuspendThread(thread.Get()), 2u);
    EXPECT_EQ(tools.RiattivaThread(helper.ThreadId()), 3);
    EXPECT_EQ(ResumeThread(thread.Get()), 2u);
    EXPECT_NE(tools.KillThread(helper.ThreadId()), 0);
    EXPECT_EQ(WaitForSingleObject(thread.Get(), 5000), static_cast<DWORD>(WAIT_OBJECT_0));
    DWORD code = 0;
    EXPECT_TRUE(GetExitCodeThread(thread.Get(), &code));
    EXPECT_EQ(code, static_cast<DWORD>(STILL_ACTIVE));
    EXPECT_FALSE(helper.Ends(0));
    EXPECT_EQ(tools.SospendiThread(0), -1);
    EXPECT_EQ(tools.RiattivaThread(0), -1);
    EXPECT_EQ(tools.KillThread(0), 0);
}

}  // namespace
