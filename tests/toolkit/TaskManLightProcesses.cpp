#include "base/Handles.h"
#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>

#include <algorithm>

using base::String;

namespace {

class TaskManLightProcesses : public testing::Test {
protected:
    TaskManLightProcesses() { toolkit::ForgetWow64(); }
    toolkit::TaskManLight tools;
};

TEST_F(TaskManLightProcesses, OwnProcess_ExistsAndOpens)
{
    const DWORD own = tools.GetMyPID();
    EXPECT_TRUE(tools.ExistsPID(own));
    const base::KernelHandle process(tools.OpenHndProcessByPID(own, PROCESS_QUERY_INFORMATION));
    EXPECT_TRUE(tools.IsProcessRunningByHnd(process.Get()));
    EXPECT_EQ(tools.GetPIDFromHndProcess(process.Get()), own);
    std::vector<DWORD> all;
    const int count = tools.GetAllPID(all);
    EXPECT_EQ(count, std::ssize(all));
    EXPECT_EQ(std::count(all.begin(), all.end(), own), 1);
}

TEST_F(TaskManLightProcesses, ImpossibleIds_AreNotAsked)
{
    // Windows rounds an id down to a multiple of 4, so these would open this very process.
    for (const DWORD process : {DWORD{0}, tools.GetMyPID() + 1, tools.GetMyPID() + 2, tools.GetMyPID() + 3}) {
        EXPECT_FALSE(tools.ExistsPID(process));
        EXPECT_EQ(tools.OpenHndProcessByPID(process, PROCESS_QUERY_INFORMATION), nullptr);
        EXPECT_EQ(tools.GetNTPathFromPID(process), TEXT(""));
        EXPECT_EQ(tools.KillProcessByPID(process), 0);
    }
    EXPECT_FALSE(tools.IsProcessRunningByHnd(nullptr));
    EXPECT_EQ(tools.KillProcessByHnd(nullptr), 0);
}

TEST_F(TaskManLightProcesses, OwnPath_AgreesInAllItsForms)
{
    WCHAR name[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, name, MAX_PATH);
    const DWORD own = tools.GetMyPID();
    EXPECT_TRUE(base::EqualsIgnoringCase(tools.GetPathFromPID(own), name));
    const String path = tools.GetNTPathFromPID(own);
    EXPECT_TRUE(path.starts_with(TEXT("\\Device\\")));
    EXPECT_TRUE(base::EqualsIgnoringCase(tools.GetPathFromNTPath(path), name));
    EXPECT_TRUE(String(name).ends_with(tools.GetFileNameFromPID(own)));
    EXPECT_FALSE(tools.GetFileNameFromPID(own).empty());
    EXPECT_EQ(tools.GetPathFromPID(0), TEXT(""));
    EXPECT_EQ(tools.GetPathFromPID(4), TEXT(""));
    EXPECT_EQ(tools.GetPathFromNTPath(TEXT("\\Nowhere\\x")), TEXT(""));
    EXPECT_EQ(tools.GetNtDeviceNameByLogicalDrive(TEXT("")), TEXT(""));
    std::vector<String> drives;
    const int count = tools.GetLogicalDrives(drives);
    EXPECT_EQ(count, std::ssize(drives));
    EXPECT_EQ(std::count(drives.begin(), drives.end(), TEXT("C:")), 1);
    std::vector<String> modules;
    EXPECT_EQ(tools.GetDLLsFromPID(own, modules), 1);
    ASSERT_FALSE(modules.empty());
    EXPECT_TRUE(base::EqualsIgnoringCase(modules.front(), name));
}

TEST_F(TaskManLightProcesses, PriorityAndAffinity_AreReadAsTheyWereSet)
{
    EXPECT_NE(tools.SetCurrentProcessPriority(BELOW_NORMAL_PRIORITY_CLASS), 0);
    EXPECT_EQ(tools.GetCurrentProcessPriority(), static_cast<DWORD>(BELOW_NORMAL_PRIORITY_CLASS));
    EXPECT_NE(tools.SetPriorityFromPID(tools.GetMyPID(), NORMAL_PRIORITY_CLASS), 0);
    EXPECT_EQ(tools.GetPriorityFromPID(tools.GetMyPID()), static_cast<DWORD>(NORMAL_PRIORITY_CLASS));
    EXPECT_EQ(tools.GetPriorityFromPID(0), 0u);

    DWORD_PTR before = 0;
    DWORD_PTR available = 0;
    ASSERT_EQ(tools.GetAffinityMaskFromPID(tools.GetMyPID(), before, available), 1);
    const DWORD_PTR lowest = available & (~available + 1);
    EXPECT_EQ(tools.SetAffinityMaskFromPID(tools.GetMyPID(), lowest), 1);
    DWORD_PTR now = 0;
    EXPECT_EQ(tools.GetAffinityMaskFromPID(tools.GetMyPID(), now, available), 1);
    EXPECT_EQ(now, lowest);
    EXPECT_EQ(tools.SetAffinityMaskFromPID(tools.GetMyPID(), before), 1);
    now = 77;
    EXPECT_EQ(tools.GetAffinityMaskFromPID(0, now, available), 0);
    EXPECT_EQ(now, 77u) << "outputs stay on failure";
}

TEST_F(TaskManLightProcesses, Memory_IsPlausible)
{
    SIZE_T sizes[8] = {};
    DWORD faults = 0;
    const auto usage = [&](DWORD process) {
        return tools.GetMemoryUsageFromPID(process, sizes[0], sizes[1], faults, sizes[2], sizes[3], sizes[4], sizes[5], sizes[6], sizes[7]);
    };
    EXPECT_EQ(usage(0), 0);
    EXPECT_EQ(sizes[0], 0u);
    EXPECT_EQ(usage(tools.GetMyPID()), 1);
    EXPECT_GT(sizes[0], 0u);
    EXPECT_GE(sizes[1], sizes[0]) << "the peak";
    EXPECT_GE(tools.GetPhysMemTotal(), tools.GetPhysMemAvailable());
    EXPECT_GE(tools.GetVirtMemTotal(), tools.GetVirtMemAvailable());
    EXPECT_GE(tools.GetPageFileMemTotal(), tools.GetPageFileMemAvailable());
    EXPECT_GT(tools.GetPhysMemTotal(), 0u);
    EXPECT_LE(tools.GetMemLoad(), 100);
    EXPECT_GE(tools.GetCPUCount(), 1);
    tools.TrimWorkingSetCurrentProcess();
    EXPECT_FALSE(tools.GetActualUser().empty());
    EXPECT_EQ(tools.GetActualUser().back() == TEXT('\0'), false);
}

TEST_F(TaskManLightProcesses, InstanceCount_IsAtLeastOneWithoutAnyWindow)
{
    EXPECT_EQ(tools.GetAllMyInstancesCount(), 1);
    std::vector<DWORD> others;
    EXPECT_EQ(tools.GetAllMyOtherInstancesPID(others), 0);
    EXPECT_EQ(tools.GetAllInstancesPIDsByPID(3, others, true), 0);
}

TEST_F(TaskManLightProcesses, Threads_ThatAreNotThereFail)
{
    EXPECT_EQ(tools.SospendiThread(0), -1);
    EXPECT_EQ(tools.RiattivaThread(0), -1);
    EXPECT_EQ(tools.KillThread(0), 0);
}

}  // namespace
