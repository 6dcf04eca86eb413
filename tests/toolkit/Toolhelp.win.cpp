// The same questions asked on a way of Windows that the toolkit does not take: the tool help snapshots and the newer functions.
#include "base/Handles.h"
#include "base/String.h"
#include "tests/toolkit/HelperProcess.h"
#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>
#include <tlhelp32.h>

#include <algorithm>

namespace {

/// All entries of a snapshot, as `read` finds them.
template <class Entry, class Part>
std::vector<Part> Snapshot(DWORD kind, DWORD process, BOOL(WINAPI* first)(HANDLE, Entry*), BOOL(WINAPI* next)(HANDLE, Entry*),
                           Part (*read)(const Entry&))
{
    const base::KernelHandle snapshot(CreateToolhelp32Snapshot(kind, process));
    Entry entry = {};
    entry.dwSize = sizeof(entry);
    std::vector<Part> parts;
    for (BOOL more = first(snapshot.Get(), &entry); more; more = next(snapshot.Get(), &entry))
        parts.push_back(read(entry));
    return parts;
}

TEST(Toolhelp, SeesTheSameProcessesModulesAndFigures)
{
    const toolkit::TaskManLight tools;
    const tests::HelperProcess helper("");
    std::vector<DWORD> processes;
    tools.GetAllPID(processes);
    auto expected = Snapshot<PROCESSENTRY32W, DWORD>(TH32CS_SNAPPROCESS, 0, Process32FirstW, Process32NextW,
                                                     [](const PROCESSENTRY32W& entry) { return entry.th32ProcessID; });
    std::sort(processes.begin(), processes.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(processes, expected);

    std::vector<base::String> modules;
    tools.GetDLLsFromPID(helper.Id(), modules);
    EXPECT_EQ(modules, (Snapshot<MODULEENTRY32W, base::String>(TH32CS_SNAPMODULE, helper.Id(), Module32FirstW, Module32NextW,
                                                               [](const MODULEENTRY32W& entry) { return base::String(entry.szExePath); })));
    WCHAR path[MAX_PATH] = {};
    for (const auto& [flag, read] : {std::pair{DWORD{0}, &toolkit::TaskManLight::GetPathFromPID},
                                     std::pair{DWORD{PROCESS_NAME_NATIVE}, &toolkit::TaskManLight::GetNTPathFromPID}}) {
        DWORD size = MAX_PATH;
        ASSERT_TRUE(QueryFullProcessImageNameW(helper.Handle(), flag, path, &size));
        EXPECT_EQ((tools.*read)(helper.Id()), path);
    }

    SYSTEM_INFO system = {};
    GetSystemInfo(&system);
    EXPECT_EQ(static_cast<DWORD>(tools.GetCPUCount()), system.dwNumberOfProcessors);
    MEMORYSTATUSEX memory = {};
    memory.dwLength = sizeof(memory);
    ASSERT_TRUE(GlobalMemoryStatusEx(&memory));
    const auto capped = [](DWORDLONG bytes) { return static_cast<std::uint32_t>(std::min<DWORDLONG>(bytes, 0xFFFFFFFF)); };
    EXPECT_EQ(tools.GetPhysMemTotal(), capped(memory.ullTotalPhys));
    EXPECT_EQ(tools.GetVirtMemTotal(), capped(memory.ullTotalVirtual));
    EXPECT_EQ(tools.GetPageFileMemTotal(), capped(memory.ullTotalPageFile));
}

}  // namespace
