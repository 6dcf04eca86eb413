// Scenes that only the stand-in PC can set: other processes, strange drives, a 32-bit program on 64-bit Windows.
#include "toolkit/TaskManLight.h"
#include "platform/sim/Desktop.h"
#include "platform/sim/Machine.h"
#include "platform/sim/Processes.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"
#include "tests/toolkit/TestWindows.h"
#include "toolkit/SystemSecurity.h"

#include <gtest/gtest.h>

using namespace platform;
using base::String;

namespace {

class TaskManLight : public testing::Test {
protected:
    TaskManLight() { toolkit::ForgetWow64(); }
    ~TaskManLight() override { toolkit::ForgetWow64(); }

    template <class Area>
    Area& The()
    {
        return pc.Get<Area>();
    }
    /// A window of another process.
    HWND WindowOf(DWORD process, const WCHAR* title, HWND parent = nullptr)
    {
        HWND window = nullptr;
        pc.ActAs(The<Processes>().Find(process)->MainActor(), [&] {
            WNDCLASSEXW description = {};
            description.cbSize = sizeof(description);
            description.lpfnWndProc = DefWindowProcW;
            description.lpszClassName = TEXT("Other");
            RegisterClassExW(&description);
            window = CreateWindowExW(0, TEXT("Other"), title, parent ? WS_CHILD : WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, parent, nullptr,
                                     nullptr, nullptr);
        });
        EXPECT_NE(window, nullptr);
        return window;
    }

    SimPc& pc = SimPc::Current();
    toolkit::TaskManLight tools;
};

TEST_F(TaskManLight, Killing_EndsWithTheCodeOfARunningProcess)
{
    const DWORD process = The<Processes>().Launch(u"C:\\a.exe");
    const base::String expected = TEXT("a.exe");
    EXPECT_EQ(tools.GetFileNameFromPID(process), expected);
    EXPECT_EQ(tools.KillProcessByPID(process), 1);
    EXPECT_FALSE(The<Processes>().IsRunning(process));
    EXPECT_EQ(tools.KillProcessByPID(process), 0) << "it has ended";
    EXPECT_FALSE(tools.ExistsPID(process));

    const DWORD stubborn = The<Processes>().Launch(u"C:\\a.exe");
    The<Processes>().Find(stubborn)->ignoresTermination = true;
    EXPECT_EQ(tools.KillProcessByPID(stubborn), 0);
}

TEST_F(TaskManLight, PoliteClose_KillsOnlyWhatHasNoWindow)
{
    const DWORD windowless = The<Processes>().Launch(u"C:\\a.exe");
    const DWORD windowed = The<Processes>().Launch(u"C:\\b.exe");
    const HWND window = WindowOf(windowed, TEXT(""));
    EXPECT_EQ(tools.CloseProcessByPID(windowless), 1);
    EXPECT_FALSE(The<Processes>().IsRunning(windowless));
    EXPECT_EQ(tools.CloseProcessByPID(windowed), 1);
    EXPECT_TRUE(The<Processes>().IsRunning(windowed)) << "it is only asked";
    pc.Settle();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(TaskManLight, Instances_AreThoseOfTheSameImageWithAWindow)
{
    const DWORD first = The<Processes>().Launch(u"C:\\a.exe");
    const DWORD second = The<Processes>().Launch(u"C:\\a.exe");
    The<Processes>().Launch(u"C:\\a.exe");
    const DWORD other = The<Processes>().Launch(u"C:\\b.exe");
    EXPECT_EQ(tools.GetAppInstanceCountByPID(first), 0) << "no window yet";
    for (const DWORD process : {first, second, other, first})
        WindowOf(process, TEXT("w"));
    std::vector<DWORD> found = {7};
    EXPECT_EQ(tools.GetAllInstancesPIDsByPID(first, found, false), 1);
    EXPECT_EQ(found, (std::vector<DWORD>{7, second})) << "the list grows";
    EXPECT_EQ(tools.GetAppInstanceCountByPID(first), 2);
    EXPECT_EQ(tools.GetAllMyInstancesCount(), 1);
}

TEST_F(TaskManLight, CaptionSearch_PassesOverOwnWindowsToAnothersChild)
{
    tests::TestWindows own;
    own.Child(own.Top(TEXT("FIND-ME")), TEXT("FIND-ME"));
    const DWORD other = The<Processes>().Launch(u"C:\\a.exe");
    const HWND child = WindowOf(other, TEXT("FIND-ME"), WindowOf(other, TEXT("top")));
    EXPECT_EQ(tools.FindHWndByCaption(TEXT("FIND-ME"), true), child);
    EXPECT_EQ(tools.GetHWndByCaptionCount(TEXT("FIND-ME"), true), 1);
    EXPECT_EQ(tools.GetHWndByCaptionCount(TEXT("FIND-ME"), false), 3);
}

TEST_F(TaskManLight, Paths_TakeTheFirstDriveWhoseDeviceBegins)
{
    The<Volumes>().AddVolume(u"D:\\");
    The<Volumes>().Device(u"C:\\", u"\\Device\\HarddiskVolume1");
    The<Volumes>().Device(u"D:\\", u"\\Device\\HarddiskVolume10");
    std::vector<String> drives;
    EXPECT_EQ(tools.GetLogicalDrives(drives), 2);
    EXPECT_EQ(drives, (std::vector<String>{TEXT("C:"), TEXT("D:")}));
    EXPECT_EQ(tools.GetNtDeviceNameByLogicalDrive(TEXT("D:")), TEXT("\\Device\\HarddiskVolume10"));
    EXPECT_EQ(tools.GetPathFromNTPath(TEXT("\\Device\\HarddiskVolume1\\x")), TEXT("C:\\x"));
    EXPECT_EQ(tools.GetPathFromNTPath(TEXT("\\Device\\HarddiskVolume10\\x")), TEXT("C:0\\x"));
    EXPECT_EQ(tools.GetPathFromNTPath(TEXT("\\device\\HarddiskVolume1\\x")), TEXT("")) << "case counts";
    pc.GetFaults().FailCall("QueryDosDeviceW", ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(tools.GetPathFromNTPath(TEXT("\\Device\\HarddiskVolume10\\x")), TEXT("D:\\x")) << "a drive without a device is no match";
}

TEST_F(TaskManLight, Wow64_TellsProcessesApartAndAsksForDevicePaths)
{
    const DWORD process = The<Processes>().Launch(u"C:\\a.exe");
    EXPECT_EQ(tools.Is32BitProcess(process), 1);
    toolkit::ForgetWow64();
    The<Machine>().Wow64(true);
    EXPECT_EQ(tools.Is32BitProcess(process), 0);
    The<Processes>().Find(process)->wow64 = true;
    EXPECT_EQ(tools.Is32BitProcess(process), 1);
    EXPECT_EQ(tools.Is32BitProcess(process + 2), -1);
    pc.GetFaults().FailAlways("GetModuleFileNameExW", ERROR_PARTIAL_COPY);
    EXPECT_EQ(tools.GetPathFromPID(process), TEXT("C:\\a.exe"));
    The<Machine>().Wow64(false);
    EXPECT_EQ(tools.GetPathFromPID(process), TEXT("C:\\a.exe")) << "asked once";
}

TEST_F(TaskManLight, ProcessList_GrowsUntilItFits)
{
    std::vector<DWORD> all;
    const int before = tools.GetAllPID(all);
    for (int i = 0; i < 140; ++i)
        The<Processes>().Launch(u"C:\\a.exe");
    EXPECT_EQ(tools.GetAllPID(all), before + 140);
    EXPECT_EQ(all.size(), static_cast<std::size_t>(before) + 140);
    pc.GetFaults().FailAlways("EnumProcesses", ERROR_ACCESS_DENIED);
    EXPECT_EQ(tools.GetAllPID(all), -1);
}

TEST_F(TaskManLight, Figures_ThatDoNotFitAreCapped)
{
    The<Machine>().SetMemory({.loadPercent = 61, .totalPhysical = 0x300000000, .freePhysical = 0x1000});
    EXPECT_EQ(tools.GetPhysMemTotal(), 0xFFFFFFFFu);
    EXPECT_EQ(tools.GetPhysMemAvailable(), 0x1000u);
    EXPECT_EQ(tools.GetMemLoad(), 61);
    The<Machine>().Processors(200);
    EXPECT_EQ(tools.GetCPUCount(), 200);
    pc.GetFaults().FailAlways("NtQuerySystemInformation", ERROR_INVALID_PARAMETER);
    EXPECT_EQ(tools.GetCPUCount(), -1);
}

TEST_F(TaskManLight, HungWindow_HasNoText)
{
    const DWORD process = The<Processes>().Launch(u"C:\\a.exe");
    const HWND window = WindowOf(process, TEXT("title"));
    EXPECT_EQ(tools.GetTextByHWnd(window), TEXT("title"));
    The<Desktop>().Hang(The<Processes>().Find(process)->MainActor());
    EXPECT_EQ(tools.GetTextByHWnd(window), TEXT(""));
    EXPECT_EQ(tools.GetLenTextByHWnd(window), 0);
    EXPECT_EQ(tools.GetWindowTitle(window), TEXT("title")) << "read without asking the window";
}

TEST_F(TaskManLight, ActivateMyWindow_LeavesTheInputQueuesApart)
{
    const HWND other = WindowOf(The<Processes>().Launch(u"C:\\a.exe"), TEXT("other"));
    ShowWindow(other, SW_SHOW);
    SetForegroundWindow(other);
    tests::TestWindows own;
    const HWND window = own.Top(TEXT("form"));
    tools.FirstFormWindow = [window] { return window; };
    pc.Trace().Start();
    tools.ActivateMyWindow();
    EXPECT_TRUE(tools.IsForegroundWindow(window));
    const auto attached = pc.Trace().Of("AttachThreadInput");
    ASSERT_EQ(attached.size(), 2u);
    EXPECT_TRUE(attached[0].arguments.ends_with("1"));
    EXPECT_TRUE(attached[1].arguments.ends_with("0"));
    pc.Trace().Start();
    pc.GetFaults().FailAlways("SetForegroundWindow", ERROR_ACCESS_DENIED);
    tools.ActivateMyWindow();
    EXPECT_EQ(pc.Trace().Count("LockSetForegroundWindow"), 0u);
}

TEST_F(TaskManLight, Threads_AreCountedAndKilledWithTheirOwnCode)
{
    const DWORD process = The<Processes>().Launch(u"C:\\a.exe");
    const DWORD thread = The<Processes>().AddThread(process);
    EXPECT_EQ(tools.SospendiThread(thread), 0);
    EXPECT_EQ(tools.SospendiThread(thread), 1);
    EXPECT_EQ(tools.RiattivaThread(thread), 2);
    EXPECT_EQ(tools.RiattivaThread(thread), 1);
    EXPECT_NE(tools.KillThread(thread), 0);
    EXPECT_EQ(The<Processes>().FindThread(thread) ? The<Processes>().FindThread(thread)->exitCode : 259u, 259u);
    EXPECT_EQ(tools.LockComputer(), 1);
    EXPECT_TRUE(The<Machine>().Locked());
}

TEST_F(TaskManLight, DesktopIconsAndTaskBar_ShowAndHide)
{
    tools.DeskTopVisible(false);
    tools.TaskBarVisible(false);
    const DWORD shell = The<Processes>().Launch(u"C:\\Windows\\explorer.exe");
    HWND icons = nullptr;
    HWND bar = nullptr;
    pc.ActAs(The<Processes>().Find(shell)->MainActor(), [&] {
        WNDCLASSEXW description = {};
        description.cbSize = sizeof(description);
        description.lpfnWndProc = DefWindowProcW;
        for (const WCHAR* name : {TEXT("Progman"), TEXT("Shell_TrayWnd")}) {
            description.lpszClassName = name;
            RegisterClassExW(&description);
        }
        const HWND desktop = CreateWindowExW(0, TEXT("Progman"), TEXT("Program Manager"), WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr,
                                             nullptr, nullptr, nullptr);
        icons = CreateWindowExW(0, TEXT("Progman"), TEXT(""), WS_CHILD | WS_VISIBLE, 0, 0, 9, 9, desktop, nullptr, nullptr, nullptr);
        bar = CreateWindowExW(0, TEXT("Shell_TrayWnd"), TEXT(""), WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    });
    for (const bool show : {false, true}) {
        tools.DeskTopVisible(show);
        tools.TaskBarVisible(show);
        EXPECT_EQ(tools.IsVisibleWindow(icons), show);
        EXPECT_EQ(tools.IsVisibleWindow(bar), show);
    }
}

TEST_F(TaskManLight, MissingPrivilege_IsDisabledAndStaysSo)
{
    The<Users>().TakePrivilege(u"SeDebugPrivilege");
    std::int32_t previous = -7;
    EXPECT_EQ(toolkit::SystemSecurity::GetPrivilege(TEXT("SeDebugPrivilege")), 0);
    EXPECT_EQ(toolkit::SystemSecurity::SetPrivilege(TEXT("SeDebugPrivilege"), 1, previous), 0);
    EXPECT_EQ(previous, 0);
    EXPECT_EQ(toolkit::SystemSecurity::SetPrivilegeEx(20, true), -1);
    tools.EnableDebugPrivilege();
    EXPECT_EQ(tools.DebugPrivilegeResult, 0);
}

TEST_F(TaskManLight, Mouse_IsFoundOnItsWindow)
{
    tests::TestWindows own;
    const HWND window = own.Top(TEXT("w"));
    ShowWindow(window, SW_SHOWNA);
    The<Desktop>().MouseMove(50, 60);
    std::int32_t x = 0;
    std::int32_t y = 0;
    tools.GetMouseCursorPos(x, y);
    EXPECT_EQ(x, 50);
    EXPECT_EQ(y, 60);
    EXPECT_EQ(tools.GetHWndFromMousePos(), window);
}

}  // namespace
