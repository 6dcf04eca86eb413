// Every member while one Windows call after another fails inside it: its result, outputs left alone, nothing left open.
#include "base/Handles.h"
#include "base/Wow64.h"
#include "platform/sim/Desktop.h"
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

using base::KernelHandle;
using platform::CallRecord;
using platform::SimPc;
using toolkit::SystemSecurity;

namespace {

constexpr DWORD query = PROCESS_QUERY_INFORMATION;
constexpr const WCHAR* debug = SE_DEBUG_NAME;

/// What a row may use: helpers with and without windows, and outputs that hold what they must keep.
struct Scene : toolkit::TaskManLight {
    explicit Scene(bool wow64)
    {
        pc.Get<platform::Machine>().Wow64(wow64);
        pc.Get<platform::Users>().Held(20)->enabled = true;
        base::ForgetWow64();
        base::IsWow64();
        FirstFormWindow = [form = own.Top(TEXT("form"))] { return form; };
        MakeWindowVisible(FirstFormWindow());
        pc.Get<platform::Desktop>().MouseMove(50, 60);
    }
    [[nodiscard]] bool Runs(DWORD process) const { return pc.Get<platform::Processes>().IsRunning(process); }
    [[nodiscard]] int Trims() const { return pc.Get<platform::Processes>().Find(id)->trims; }
    [[nodiscard]] bool Debugs() const { return pc.Get<platform::Users>().Enabled(debug); }

    SimPc& pc = SimPc::Current();
    SystemSecurity security;
    tests::TestWindows own;
    const tests::HelperProcess helper{"top:Main owned:Dialog child:Inner thread"}, other{"top:Main"}, windowless{""};
    const DWORD id = helper.Id(), idle = windowless.Id(), thread = helper.ThreadId();
    const HWND window = GetMainWindowFromPID(id);
    std::vector<DWORD> ids = {7};
    std::vector<HWND> windows = {window};
    std::vector<base::String> texts = {TEXT("kept")};
    SIZE_T z[8] = {7, 7, 7, 7, 7, 7, 7, 7};
    DWORD_PTR masks[2] = {7, 7};
    DWORD faults = 7;
    std::int32_t state = 7, x = 7, y = 7;
};

/// A result and what it left in its outputs, evaluated in this order: numbers, sizes of texts and lists, whether a handle was given.
struct Outcome : std::vector<std::int64_t> {
    template <class... Values>
    Outcome(const Values&... values) : vector{Number(values)...}
    {
    }
    template <class T>
    static std::int64_t Number(const T& value)
    {
        if constexpr (requires { value.size(); })
            return static_cast<std::int64_t>(value.size());
        else if constexpr (requires { value.Get(); })
            return value.Get() != nullptr;
        else if constexpr (std::is_pointer_v<T>)
            return value != nullptr;
        else
            return static_cast<std::int64_t>(value);
    }
};

struct Row {
    const char* member;
    Outcome (*use)(Scene& s);
    Outcome whole, failed;
    /// What processes or threads are opened with: all that the member needs and no more.
    const char* rights = "";
    /// Calls whose failure ends in something else: "GetProcessId", or "GetProcessId, call 2" for the second call that can fail.
    std::map<std::string, Outcome> others{};
    bool wow64 = false;
};

// clang-format off
const Row rows[] = {
    {"GetPIDFromHndProcess", [](Scene& s) { return Outcome{s.GetPIDFromHndProcess(s.helper.Handle()) == s.id}; }, {1}, {0}},
    {"OpenHndProcessByHWnd", [](Scene& s) { return Outcome{KernelHandle(s.OpenHndProcessByHWnd(s.window))}; }, {1}, {0}, "", {{"GetModuleHandleW", {1}}}},
    {"IsProcessRunningByHnd", [](Scene& s) { return Outcome{s.IsProcessRunningByHnd(s.helper.Handle())}; }, {1}, {0}},
    {"ExistsPID", [](Scene& s) { return Outcome{s.ExistsPID(s.id)}; }, {1}, {0}, "0x400"},
    {"OpenHndProcessByPID", [](Scene& s) { return Outcome{KernelHandle(s.OpenHndProcessByPID(s.id, query))}; }, {1}, {0}},
    {"KillProcessByHnd", [](Scene& s) { return Outcome{s.KillProcessByHnd(s.helper.Handle()), s.Runs(s.id)}; }, {1, 0}, {0, 1}},
    {"KillProcessByPID", [](Scene& s) { return Outcome{s.KillProcessByPID(s.id), s.Runs(s.id)}; }, {1, 0}, {0, 1}, "0x401"},
    // A process whose windows can't be enumerated counts as one without any.
    {"CloseProcessByPID with windows", [](Scene& s) { return Outcome{s.CloseProcessByPID(s.id), s.Runs(s.id)}; }, {1, 1}, {1, 1}, "", {{"EnumWindows, call 1", {1, 0}}}},
    {"CloseProcessByPID without", [](Scene& s) { return Outcome{s.CloseProcessByPID(s.idle), s.Runs(s.idle)}; }, {1, 0}, {0, 1}, "", {{"EnumWindows", {1, 0}}}},
    {"CloseProcessByHnd", [](Scene& s) { return s.CloseProcessByHnd(s.windowless.Handle()), Outcome{s.Runs(s.idle)}; }, {0}, {1}, "", {{"EnumWindows", {0}}}},
    {"GetAllPID", [](Scene& s) { return Outcome{s.GetAllPID(s.ids), s.ids}; }, {6, 6}, {-1, 1}},
    {"GetPriorityFromPID", [](Scene& s) { return Outcome{s.GetPriorityFromPID(s.id)}; }, {32}, {0}, "0x400"},
    {"GetCurrentProcessPriority", [](Scene& s) { return Outcome{s.GetCurrentProcessPriority()}; }, {32}, {0}},
    {"SetPriorityFromPID", [](Scene& s) { return Outcome{s.SetPriorityFromPID(s.id, IDLE_PRIORITY_CLASS)}; }, {1}, {0}, "0x200"},
    {"SetCurrentProcessPriority", [](Scene& s) { return Outcome{s.SetCurrentProcessPriority(IDLE_PRIORITY_CLASS)}; }, {1}, {0}},
    {"TrimWorkingSet", [](Scene& s) { return s.TrimWorkingSet(s.id), Outcome{s.Trims()}; }, {1}, {0}, "0x100"},
    {"GetAffinityMaskFromPID", [](Scene& s) { return Outcome{s.GetAffinityMaskFromPID(s.id, s.masks[0], s.masks[1]), s.masks[0], s.masks[1]}; }, {1, 15, 15}, {0, 7, 7}, "0x400"},
    {"SetAffinityMaskFromPID", [](Scene& s) { return Outcome{s.SetAffinityMaskFromPID(s.id, 2)}; }, {1}, {0}, "0x200"},
    {"GetMemoryUsageFromPID", [](Scene& s) { return Outcome{s.GetMemoryUsageFromPID(s.id, s.z[0], s.z[1], s.faults, s.z[2], s.z[3], s.z[4], s.z[5], s.z[6], s.z[7]),
                                                            s.faults, std::count(s.z, s.z + 8, SIZE_T{7})}; }, {1, 1501, 0}, {0, 7, 8}, "0x410"},
    {"GetDLLsFromPID", [](Scene& s) { return Outcome{s.GetDLLsFromPID(s.id, s.texts), s.texts, std::count(s.texts.begin(), s.texts.end(), base::String())}; },
     {1, 3, 0}, {0, 1, 0}, "0x410", {{"GetModuleFileNameExW", {1, 3, 1}}}},
    {"Is32BitProcess", [](Scene& s) { return Outcome{s.Is32BitProcess(s.id)}; }, {0}, {-1}, "", {{"IsWow64Process", {0}}}, true},
    {"GetNTPathFromPID", [](Scene& s) { return Outcome{s.GetNTPathFromPID(s.id)}; }, {48}, {0}, "0x400"},
    {"GetPathFromPID", [](Scene& s) { return Outcome{s.GetPathFromPID(s.id)}; }, {27}, {0}, "0x410"},
    {"GetPathFromPID on WOW64", [](Scene& s) { return Outcome{s.GetPathFromPID(s.id)}; }, {27}, {0}, "", {{"OpenProcess", {27}}, {"GetProcessImageFileNameW", {27}}}, true},
    {"GetFileNameFromPID", [](Scene& s) { return Outcome{s.GetFileNameFromPID(s.id)}; }, {18}, {0}},
    {"GetLogicalDrives", [](Scene& s) { return Outcome{s.GetLogicalDrives(s.texts), s.texts}; }, {1, 1}, {0, 0}},
    {"GetNtDeviceNameByLogicalDrive", [](Scene& s) { return Outcome{s.GetNtDeviceNameByLogicalDrive(TEXT("C:"))}; }, {23}, {0}},
    {"GetPathFromNTPath", [](Scene& s) { return Outcome{s.GetPathFromNTPath(TEXT("\\Device\\HarddiskVolume1\\x"))}; }, {4}, {0}},
    // Calls 4 and 5 ask for the test's own process, which is no instance anyway.
    {"GetAllInstancesPIDsByPID", [](Scene& s) { return Outcome{s.GetAllInstancesPIDsByPID(s.id, s.ids, false), s.ids}; },
     {1, 2}, {0, 1}, "", {{"OpenProcess, call 4", {1, 2}}, {"GetProcessImageFileNameW, call 5", {1, 2}}}},
    {"GetAllMyInstancesCount", [](Scene& s) { return Outcome{s.GetAllMyInstancesCount()}; }, {1}, {1}},
    {"GetHWndFromPID", [](Scene& s) { return Outcome{s.GetHWndFromPID(s.id, s.windows), s.windows}; }, {3, 3}, {0, 0}},
    {"GetMainWindowsHWndFromPID", [](Scene& s) { return Outcome{s.GetMainWindowsHWndFromPID(s.id, s.windows), s.windows}; }, {1, 1}, {0, 0}},
    {"GetMainWindowFromPID", [](Scene& s) { return Outcome{s.GetMainWindowFromPID(s.id)}; }, {1}, {0}},
    {"IsMainWindow", [](Scene& s) { return Outcome{s.IsMainWindow(s.window)}; }, {1}, {0}},
    {"GetWindowTitle", [](Scene& s) { return Outcome{s.GetWindowTitle(s.window)}; }, {4}, {0}},
    {"GetClassNameFromHWnd", [](Scene& s) { return Outcome{s.GetClassNameFromHWnd(s.window, false)}; }, {17}, {0}},
    {"GetClassNameFromHWnd, real", [](Scene& s) { return Outcome{s.GetClassNameFromHWnd(s.window, true)}; }, {17}, {0}},
    {"GetLenTextByHWnd", [](Scene& s) { return Outcome{s.GetLenTextByHWnd(s.window)}; }, {4}, {0}},
    {"GetTextByHWnd", [](Scene& s) { return Outcome{s.GetTextByHWnd(s.window)}; }, {4}, {0}},
    {"FindHWndByCaption", [](Scene& s) { return Outcome{s.FindHWndByCaption(TEXT("Inner"), true)}; }, {1}, {0}},
    {"GetHWndByCaptionCount", [](Scene& s) { return Outcome{s.GetHWndByCaptionCount(TEXT("Main"), true)}; }, {1}, {0}},
    {"ActivateMyWindow", [](Scene& s) { return s.ActivateMyWindow(), Outcome{s.IsForegroundWindow(s.FirstFormWindow())}; }, {1}, {1}},
    {"GetMouseCursorPos", [](Scene& s) { return s.GetMouseCursorPos(s.x, s.y), Outcome{s.x, s.y}; }, {50, 60}, {0, 0}},
    {"GetHWndFromMousePos", [](Scene& s) { return Outcome{s.GetHWndFromMousePos() == s.FirstFormWindow()}; }, {1}, {1}},
    {"GetRGBPixelColorFromPos", [](Scene& s) { return Outcome{s.GetRGBPixelColorFromPos(0, 0) == CLR_INVALID}; }, {0}, {1}},
    {"KillThread", [](Scene& s) { return Outcome{s.KillThread(s.thread)}; }, {1}, {0}, "0x41", {{"GetExitCodeThread", {1}}}},
    {"SospendiThread", [](Scene& s) { return Outcome{s.SospendiThread(s.thread)}; }, {1}, {-1}, "2"},
    {"RiattivaThread", [](Scene& s) { return Outcome{s.RiattivaThread(s.thread)}; }, {1}, {-1}, "2"},
    {"LockComputer", [](Scene& s) { return Outcome{s.LockComputer(), s.pc.Get<platform::Machine>().Locked()}; }, {1, 1}, {0, 0}},
    {"GetActualUser", [](Scene& s) { return Outcome{s.GetActualUser()}; }, {4}, {0}},
    {"GetActualDomain", [](Scene& s) { return Outcome{s.GetActualDomain()}; }, {6}, {0}},
    {"GetCPUCount", [](Scene& s) { return Outcome{s.GetCPUCount()}; }, {4}, {-1}},
    {"EnableDebugPrivilege", [](Scene& s) { return s.EnableDebugPrivilege(), Outcome{s.DebugPrivilegeResult}; }, {1}, {0}, "", {{"GetModuleHandleW", {1}}}},
    {"DisableDebugPrivilege", [](Scene& s) { return s.DisableDebugPrivilege(), Outcome{s.DebugPrivilegeResult, s.Debugs()}; }, {1, 0}, {0, 1}, "", {{"GetModuleHandleW", {1, 0}}}},
    {"SetPrivilegeEx", [](Scene& s) { return Outcome{SystemSecurity::SetPrivilegeEx(20, false), s.Debugs()}; }, {1, 0}, {-1, 1}, "", {{"GetModuleHandleW", {1, 0}}}},
    {"SetPrivilege", [](Scene& s) { return Outcome{SystemSecurity::SetPrivilege(debug, 0, s.state), s.state, s.Debugs()}; },
     {1, 1, 0}, {-1, 7, 1}, "", {{"AdjustTokenPrivileges", {-1, 1, 1}}}},
    {"GetPrivilege", [](Scene& s) { return Outcome{SystemSecurity::GetPrivilege(debug), s.Debugs()}; }, {1, 1}, {-1, 1}},
    {"SetDebugPrivilege", [](Scene& s) { return Outcome{s.security.SetDebugPrivilege(0), s.Debugs()}; }, {1, 0}, {0, 1}},
    {"RestoreDebugPrivilege", [](Scene& s) { return Outcome{s.security.RestoreDebugPrivilege(), s.Debugs()}; }, {1, 0}, {0, 1}},
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
            pc.Trace().Start();
            const Outcome outcome = row.use(scene);
            pc.Trace().Stop();
            const std::string struck = pc.GetFaults().Struck();
            pc.GetFaults().Clear();
            failed = !struck.empty();
            failures += failed;
            const std::string call = struck + ", call " + std::to_string(failures);
            Outcome expected = failed ? row.failed : row.whole;
            for (const std::string& key : {struck, call})
                if (const auto other = row.others.find(key); other != row.others.end())
                    expected = other->second;
            EXPECT_EQ(outcome, expected) << row.member << ", failed: " << call;
            for (const CallRecord& opened : pc.Trace().Records())
                if (*row.rights && (opened.name == "OpenProcess" || opened.name == "OpenThread")) {
                    EXPECT_TRUE(opened.arguments.starts_with(row.rights + std::string(","))) << row.member << opened.Text();
                }
            std::vector<std::string> after = pc.Handles().Leaks();
            std::erase_if(after, [&](const std::string& leak) { return std::count(before.begin(), before.end(), leak) != 0; });
            EXPECT_EQ(after, std::vector<std::string>()) << row.member << ", failed: " << call;
        }
        EXPECT_GT(failures, 0) << row.member << " makes no call that can fail";
    }
    base::ForgetWow64();
}

}  // namespace
