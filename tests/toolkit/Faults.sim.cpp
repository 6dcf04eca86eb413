// Every member while one Windows call after another fails inside it: its result, outputs left alone, nothing left open.
#include "base/Handles.h"
#include "platform/sim/Machine.h"
#include "platform/sim/Processes.h"
#include "platform/sim/Users.h"
#include "tests/toolkit/HelperProcess.h"
#include "tests/toolkit/TestWindows.h"
#include "toolkit/SystemSecurity.h"
#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using platform::SimPc;
using toolkit::SystemSecurity;

namespace {

constexpr DWORD query = PROCESS_QUERY_INFORMATION;

/// What a row may use: helpers with and without windows, and outputs that hold what they must keep.
struct Scene {
    explicit Scene(bool wow64)
    {
        pc.Get<platform::Machine>().Wow64(wow64);
        pc.Get<platform::Users>().Held(20)->enabled = true;
        toolkit::ForgetWow64();
        toolkit::IsRunningOnWow64();
        tools.FirstFormWindow = [form = own.Top(TEXT("form"))] { return form; };
    }

    SimPc& pc = SimPc::Current();
    toolkit::TaskManLight tools;
    SystemSecurity security;
    tests::TestWindows own;
    const tests::HelperProcess helper{"top:Main owned:Dialog child:Inner thread"}, other{"top:Main"}, windowless{""};
    const DWORD id = helper.Id(), idle = windowless.Id(), thread = helper.ThreadId();
    const HWND window = tools.GetMainWindowFromPID(id);
    std::vector<DWORD> ids = {7};
    std::vector<HWND> windows = {window};
    std::vector<base::String> texts = {TEXT("kept")};
    SIZE_T sizes[8] = {7, 7, 7, 7, 7, 7, 7, 7};
    DWORD_PTR masks[2] = {7, 7};
    DWORD faults = 7;
    std::int32_t state = 7;
};

/// Asked when a row is done: whether a process runs, how often its working set was emptied, whether the debug privilege is enabled.
struct Running {
    DWORD id;
};
struct Trims {
    DWORD id;
};
struct Debugging {};

std::string Text(Running process)
{
    return SimPc::Current().Get<platform::Processes>().IsRunning(process.id) ? "runs" : "ended";
}

std::string Text(Trims process)
{
    return std::to_string(SimPc::Current().Get<platform::Processes>().Find(process.id)->trims);
}

std::string Text(Debugging)
{
    return SimPc::Current().Get<platform::Users>().Enabled(SE_DEBUG_NAME) ? "on" : "off";
}

std::string Text(const base::String& text)
{
    return '"' + std::string(text.begin(), text.end()) + '"';
}

std::string Text(const std::vector<base::String>& texts)
{
    std::string all;
    for (const base::String& text : texts)
        all += Text(text);
    return all;
}

template <class T>
std::string Text(const std::vector<T>& list)
{
    return "list of " + std::to_string(list.size());
}

template <class T>
std::string Text(const T& value)
{
    if constexpr (std::is_pointer_v<T>)
        return value ? "handle" : "none";
    else
        return std::to_string(value);
}

/// A result and what it left in its outputs.
template <class... Values>
std::string All(const Values&... values)
{
    std::string all;
    ((all += (all.empty() ? "" : " ") + Text(values)), ...);
    return all;
}

/// A handle that is the caller's to close.
std::string Opened(HANDLE handle)
{
    return All(base::KernelHandle(handle).Get());
}

std::string Memory(Scene& s)
{
    SIZE_T* const z = s.sizes;
    const int done = s.tools.GetMemoryUsageFromPID(s.id, z[0], z[1], s.faults, z[2], z[3], z[4], z[5], z[6], z[7]);
    return All(done, s.faults, std::count(z, z + 8, SIZE_T{7}));
}

std::string Modules(Scene& s)
{
    const int done = s.tools.GetDLLsFromPID(s.id, s.texts);
    return All(done, s.texts.size(), std::count(s.texts.begin(), s.texts.end(), base::String()));
}

struct Row {
    const char* member;
    std::string (*use)(Scene& s);
    const char* whole;
    const char* failed;
    /// Calls whose failure ends in something else: "GetProcessId", or "GetProcessId, call 2" for the second call that can fail.
    std::map<std::string, const char*> others = {};
    bool wow64 = false;
};

// clang-format off
const Row rows[] = {
    {"GetPIDFromHndProcess", [](Scene& s) { return All(s.tools.GetPIDFromHndProcess(s.helper.Handle()) == s.id); }, "1", "0"},
    {"OpenHndProcessByHWnd", [](Scene& s) { return Opened(s.tools.OpenHndProcessByHWnd(s.window)); }, "handle", "none", {{"GetModuleHandleW", "handle"}}},
    {"IsProcessRunningByHnd", [](Scene& s) { return All(s.tools.IsProcessRunningByHnd(s.helper.Handle())); }, "1", "0"},
    {"ExistsPID", [](Scene& s) { return All(s.tools.ExistsPID(s.id)); }, "1", "0"},
    {"OpenHndProcessByPID", [](Scene& s) { return Opened(s.tools.OpenHndProcessByPID(s.id, query)); }, "handle", "none"},
    {"KillProcessByHnd", [](Scene& s) { return All(s.tools.KillProcessByHnd(s.helper.Handle()), Running{s.id}); }, "1 ended", "0 runs"},
    {"KillProcessByPID", [](Scene& s) { return All(s.tools.KillProcessByPID(s.id), Running{s.id}); }, "1 ended", "0 runs"},
    {"CloseProcessByPID with windows", [](Scene& s) { return All(s.tools.CloseProcessByPID(s.id), Running{s.id}); }, "1 runs", "1 runs", {{"EnumWindows, call 1", "1 ended"}}},
    {"CloseProcessByPID without", [](Scene& s) { return All(s.tools.CloseProcessByPID(s.idle), Running{s.idle}); }, "1 ended", "0 runs", {{"EnumWindows", "1 ended"}}},
    {"CloseProcessByHnd", [](Scene& s) { return (s.tools.CloseProcessByHnd(s.windowless.Handle()), All(Running{s.idle})); }, "ended", "runs", {{"EnumWindows", "ended"}}},
    {"GetAllPID", [](Scene& s) { return All(s.tools.GetAllPID(s.ids), s.ids); }, "6 list of 6", "-1 list of 1"},
    {"GetPriorityFromPID", [](Scene& s) { return All(s.tools.GetPriorityFromPID(s.id)); }, "32", "0"},
    {"GetCurrentProcessPriority", [](Scene& s) { return All(s.tools.GetCurrentProcessPriority()); }, "32", "0"},
    {"SetPriorityFromPID", [](Scene& s) { return All(s.tools.SetPriorityFromPID(s.id, IDLE_PRIORITY_CLASS)); }, "1", "0"},
    {"SetCurrentProcessPriority", [](Scene& s) { return All(s.tools.SetCurrentProcessPriority(IDLE_PRIORITY_CLASS)); }, "1", "0"},
    {"TrimWorkingSet", [](Scene& s) { return (s.tools.TrimWorkingSet(s.id), All(Trims{s.id})); }, "1", "0"},
    {"TrimWorkingSetCurrentProcess", [](Scene& s) { return (s.tools.TrimWorkingSetCurrentProcess(), All(Trims{GetCurrentProcessId()})); }, "1", "0"},
    {"GetAffinityMaskFromPID", [](Scene& s) { return All(s.tools.GetAffinityMaskFromPID(s.id, s.masks[0], s.masks[1]), s.masks[0], s.masks[1]); }, "1 15 15", "0 7 7"},
    {"SetAffinityMaskFromPID", [](Scene& s) { return All(s.tools.SetAffinityMaskFromPID(s.id, 2)); }, "1", "0"},
    {"GetMemoryUsageFromPID", Memory, "1 1501 0", "0 7 8"},
    {"GetDLLsFromPID", Modules, "1 3 0", "0 1 0", {{"GetModuleFileNameExW", "1 3 1"}}},
    {"Is32BitProcess", [](Scene& s) { return All(s.tools.Is32BitProcess(s.id)); }, "0", "-1", {{"IsWow64Process", "0"}}, true},
    {"IsRunningOnWow64", [](Scene&) { return (toolkit::ForgetWow64(), All(toolkit::IsRunningOnWow64())); }, "1", "0", {{"GetModuleHandleW", "1"}}, true},
    {"GetNTPathFromPID", [](Scene& s) { return All(s.tools.GetNTPathFromPID(s.id)); }, "\"\\Device\\HarddiskVolume1\\Tools\\toolkit_helper.exe\"", "\"\""},
    {"GetPathFromPID", [](Scene& s) { return All(s.tools.GetPathFromPID(s.id)); }, "\"C:\\Tools\\toolkit_helper.exe\"", "\"\""},
    {"GetPathFromPID on WOW64", [](Scene& s) { return All(s.tools.GetPathFromPID(s.id)); }, "\"C:\\Tools\\toolkit_helper.exe\"", "\"\"", {{"OpenProcess", "\"C:\\Tools\\toolkit_helper.exe\""}, {"GetProcessImageFileNameW", "\"C:\\Tools\\toolkit_helper.exe\""}}, true},
    {"GetFileNameFromPID", [](Scene& s) { return All(s.tools.GetFileNameFromPID(s.id)); }, "\"toolkit_helper.exe\"", "\"\""},
    {"GetLogicalDrives", [](Scene& s) { return All(s.tools.GetLogicalDrives(s.texts), s.texts); }, "1 \"C:\"", "0 "},
    {"GetNtDeviceNameByLogicalDrive", [](Scene& s) { return All(s.tools.GetNtDeviceNameByLogicalDrive(TEXT("C:"))); }, "\"\\Device\\HarddiskVolume1\"", "\"\""},
    {"GetPathFromNTPath", [](Scene& s) { return All(s.tools.GetPathFromNTPath(TEXT("\\Device\\HarddiskVolume1\\x"))); }, "\"C:\\x\"", "\"\""},
    {"GetAllInstancesPIDsByPID", [](Scene& s) { return All(s.tools.GetAllInstancesPIDsByPID(s.id, s.ids, false), s.ids); }, "1 list of 2", "0 list of 1", {{"OpenProcess, call 4", "1 list of 2"}, {"GetProcessImageFileNameW, call 5", "1 list of 2"}}},
    {"GetAllMyInstancesCount", [](Scene& s) { return All(s.tools.GetAllMyInstancesCount()); }, "1", "1"},
    {"GetHWndFromPID", [](Scene& s) { return All(s.tools.GetHWndFromPID(s.id, s.windows), s.windows); }, "3 list of 3", "0 list of 0"},
    {"GetMainWindowsHWndFromPID", [](Scene& s) { return All(s.tools.GetMainWindowsHWndFromPID(s.id, s.windows), s.windows); }, "1 list of 1", "0 list of 0"},
    {"GetMainWindowFromPID", [](Scene& s) { return All(s.tools.GetMainWindowFromPID(s.id)); }, "handle", "none"},
    {"IsMainWindow", [](Scene& s) { return All(s.tools.IsMainWindow(s.window)); }, "1", "0"},
    {"GetWindowTitle", [](Scene& s) { return All(s.tools.GetWindowTitle(s.window)); }, "\"Main\"", "\"\""},
    {"GetClassNameFromHWnd", [](Scene& s) { return All(s.tools.GetClassNameFromHWnd(s.window, false)); }, "\"VelmoraTestWindow\"", "\"\""},
    {"GetClassNameFromHWnd, the real one", [](Scene& s) { return All(s.tools.GetClassNameFromHWnd(s.window, true)); }, "\"VelmoraTestWindow\"", "\"\""},
    {"GetLenTextByHWnd", [](Scene& s) { return All(s.tools.GetLenTextByHWnd(s.window)); }, "4", "0"},
    {"GetTextByHWnd", [](Scene& s) { return All(s.tools.GetTextByHWnd(s.window)); }, "\"Main\"", "\"\""},
    {"FindHWndByCaption", [](Scene& s) { return All(s.tools.FindHWndByCaption(TEXT("Inner"), true)); }, "handle", "none"},
    {"GetHWndByCaptionCount", [](Scene& s) { return All(s.tools.GetHWndByCaptionCount(TEXT("Main"), true)); }, "1", "0"},
    {"ActivateMyWindow", [](Scene& s) { return (s.tools.ActivateMyWindow(), All(s.tools.IsForegroundWindow(s.tools.FirstFormWindow()))); }, "1", "1"},
    {"GetRGBPixelColorFromPos", [](Scene& s) { return All(s.tools.GetRGBPixelColorFromPos(0, 0) == CLR_INVALID); }, "0", "1"},
    {"KillThread", [](Scene& s) { return All(s.tools.KillThread(s.thread)); }, "1", "0", {{"GetExitCodeThread", "1"}}},
    {"SospendiThread", [](Scene& s) { return All(s.tools.SospendiThread(s.thread)); }, "1", "-1"},
    {"RiattivaThread", [](Scene& s) { return All(s.tools.RiattivaThread(s.thread)); }, "1", "-1"},
    {"LockComputer", [](Scene& s) { return All(s.tools.LockComputer()); }, "1", "0"},
    {"GetActualUser", [](Scene& s) { return All(s.tools.GetActualUser()); }, "\"Anna\"", "\"\""},
    {"GetActualDomain", [](Scene& s) { return All(s.tools.GetActualDomain()); }, "\"OFFICE\"", "\"\""},
    {"GetCPUCount", [](Scene& s) { return All(s.tools.GetCPUCount()); }, "4", "-1"},
    {"EnableDebugPrivilege", [](Scene& s) { return (s.tools.EnableDebugPrivilege(), All(s.tools.DebugPrivilegeResult)); }, "1", "0", {{"GetModuleHandleW", "1"}}},
    {"DisableDebugPrivilege", [](Scene& s) { return (s.tools.DisableDebugPrivilege(), All(s.tools.DebugPrivilegeResult, Debugging{})); }, "1 off", "0 on", {{"GetModuleHandleW", "1 off"}}},
    {"SetPrivilegeEx", [](Scene&) { return All(SystemSecurity::SetPrivilegeEx(20, false), Debugging{}); }, "1 off", "-1 on", {{"GetModuleHandleW", "1 off"}}},
    {"SetPrivilege", [](Scene& s) { return All(SystemSecurity::SetPrivilege(SE_DEBUG_NAME, 0, s.state), s.state, Debugging{}); }, "1 1 off", "-1 7 on", {{"AdjustTokenPrivileges", "-1 1 on"}}},
    {"GetPrivilege", [](Scene&) { return All(SystemSecurity::GetPrivilege(SE_DEBUG_NAME), Debugging{}); }, "1 on", "-1 on"},
    {"GetDebugPrivilege", [](Scene&) { return All(SystemSecurity::GetDebugPrivilege(), Debugging{}); }, "1 on", "-1 on"},
    {"SetDebugPrivilege", [](Scene& s) { return All(s.security.SetDebugPrivilege(0), Debugging{}); }, "1 off", "0 on"},
    {"RestoreDebugPrivilege", [](Scene& s) { return All(s.security.RestoreDebugPrivilege(), Debugging{}); }, "1 off", "0 on"},
};
// clang-format on

TEST(ToolkitFaults, EachMember_StandsTheFailureOfEachCall)
{
    SimPc& pc = SimPc::Current();
    for (const Row& row : rows) {
        int failures = 0;
        for (bool failed = true; failed;) {
            Scene scene(row.wow64);
            const std::vector<std::string> before = pc.Handles().Leaks();
            pc.GetFaults().FailNth(static_cast<std::uint64_t>(failures) + 1);
            const std::string outcome = row.use(scene);
            const std::string struck = pc.GetFaults().Struck();
            pc.GetFaults().Clear();
            failed = !struck.empty();
            failures += failed;
            const std::string call = struck + ", call " + std::to_string(failures);
            const char* expected = failed ? row.failed : row.whole;
            for (const std::string& key : {struck, call})
                if (const auto other = row.others.find(key); other != row.others.end())
                    expected = other->second;
            EXPECT_EQ(outcome, expected) << row.member << ", failed: " << call;
            std::vector<std::string> after = pc.Handles().Leaks();
            std::erase_if(after, [&](const std::string& leak) { return std::count(before.begin(), before.end(), leak) != 0; });
            EXPECT_EQ(after, std::vector<std::string>()) << row.member << ", failed: " << call;
        }
        EXPECT_GT(failures, 0) << row.member << " makes no call that can fail";
    }
    toolkit::ForgetWow64();
}

}  // namespace
