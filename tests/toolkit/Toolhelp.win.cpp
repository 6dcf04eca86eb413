// The same questions asked on a way of Windows that the toolkit does not take: the tool help snapshots and the newer functions.
#include "base/Handles.h"
#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>
#include <tlhelp32.h>

#include <algorithm>

namespace {

TEST(Toolhelp, SeesTheSameProcessesAndFigures)
{
    const toolkit::TaskManLight tools;
    std::vector<DWORD> processes, expected;
    tools.GetAllPID(processes);
    const base::KernelHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot.Get(), &entry); more; more = Process32NextW(snapshot.Get(), &entry))
        expected.push_back(entry.th32ProcessID);
    std::sort(processes.begin(), processes.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(processes, expected);

    SYSTEM_INFO system{};
    GetSystemInfo(&system);
    EXPECT_EQ(static_cast<DWORD>(tools.GetCPUCount()), system.dwNumberOfProcessors);
    MEMORYSTATUSEX memory{};
    memory.dwLength = sizeof memory;
    ASSERT_TRUE(GlobalMemoryStatusEx(&memory));
    EXPECT_EQ(tools.GetPhysMemTotal(), std::min<DWORDLONG>(memory.ullTotalPhys, 0xFFFFFFFF));
    EXPECT_EQ(tools.GetPageFileMemTotal(), std::min<DWORDLONG>(memory.ullTotalPageFile, 0xFFFFFFFF));
}

}  // namespace
