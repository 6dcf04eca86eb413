// Scenes that only the stand-in PC can set: strange drives, a 32-bit program on 64-bit Windows, a nested collection, the shell's windows.
#include "toolkit/TaskManLight.h"

#include "base/Wow64.h"
#include "platform/sim/Desktop.h"
#include "platform/sim/Machine.h"
#include "platform/sim/Processes.h"
#include "platform/sim/Volumes.h"
#include "tests/support/FailingMemory.h"
#include "tests/toolkit/HelperProcess.h"
#include "tests/toolkit/TestWindows.h"
#include "toolkit/WinMngHLP.h"

#include <gtest/gtest.h>

using namespace platform;
using base::String;
using tests::HelperProcess;

namespace {

class TaskManLight : public testing::Test {
protected:
    TaskManLight() { base::ForgetWow64(); }
    ~TaskManLight() override { base::ForgetWow64(); }

    SimPc& pc = SimPc::Current();
    Processes& processes = pc.Get<Processes>();
    toolkit::TaskManLight tools;
};

TEST_F(TaskManLight, NestedCollection_FindsNothingAndLeavesTheOuterOneWhole)
{
    tests::TestWindows own;
    own.Make("top:a child:b inner:c top:d child:e");
    const HelperProcess helper("top:Main");
    std::vector<HWND> whole;
    ASSERT_EQ(tools.GetHWndFromPID(tools.GetMyPID(), whole), 5);
    const HWND before = whole.back();
    int nested = 0;
    pc.Trace().OnCall = [&](std::string_view function) {
        if (function != "GetWindowThreadProcessId" || ++nested != 2)
            return;
        std::vector<HWND> list = {before};
        std::vector<DWORD> owners = {7};
        EXPECT_EQ(tools.GetHWndFromPID(tools.GetMyPID(), list), -1);
        EXPECT_EQ(tools.GetAllHWnd(list), -1);
        EXPECT_EQ(tools.GetChildWindows(before, list), -1);
        EXPECT_EQ(toolkit::CollectTopLevelWindows(0, list), -1);
        EXPECT_EQ(list, std::vector<HWND>{before});
        EXPECT_EQ(toolkit::CollectWindowOwnerPIDs(owners), -1);
        EXPECT_EQ(owners, std::vector<DWORD>{7});
        EXPECT_EQ(tools.GetMainWindowsHWndFromPID(helper.Id(), list), 0);
        EXPECT_TRUE(list.empty());
        EXPECT_EQ(tools.GetMainWindowFromPID(helper.Id()), nullptr);
        EXPECT_EQ(tools.GetAppInstanceCountByPID(helper.Id()), 0);
        EXPECT_EQ(tools.GetHWndByCaptionCount(TEXT("Main"), true), 0);
        EXPECT_EQ(tools.CloseProcessByPID(helper.Id()), 0) << "it may have windows, so it is not killed";
    };
    std::vector<HWND> outer;
    EXPECT_EQ(tools.GetHWndFromPID(tools.GetMyPID(), outer), 5);
    pc.Trace().OnCall = nullptr;
    EXPECT_GT(nested, 2);
    EXPECT_EQ(outer, whole);
    EXPECT_FALSE(helper.Ends(0));
    EXPECT_EQ(tools.GetAllHWnd(outer), 6) << "free again";
}

TEST_F(TaskManLight, CollectionWithoutMemory_LeavesTheListAndCanBeRepeated)
{
    tests::TestWindows own;
    own.Make("top:a child:b top:c top:d top:e top:f top:g top:h top:i top:j top:k top:l top:m top:n");
    std::vector<HWND> whole;
    tools.GetAllHWnd(whole);
    std::vector<HWND> list(30);
    std::int64_t refused = 0;
    for (bool struck = true; struck; struck = tests::FailingMemory::HasStruck()) {
        std::int32_t count = 0;
        {
            const tests::FailingMemory memory(++refused);
            count = tools.GetAllHWnd(list);
        }
        EXPECT_EQ(count, tests::FailingMemory::HasStruck() ? -1 : 14) << "request " << refused;
        EXPECT_EQ(list, tests::FailingMemory::HasStruck() ? std::vector<HWND>(30) : whole) << "request " << refused;
    }
    EXPECT_GT(refused, 3) << "the list grows twice";
}

TEST_F(TaskManLight, Paths_TakeTheFirstDriveWhoseDeviceBegins)
{
    auto& volumes = pc.Get<Volumes>();
    volumes.AddVolume(u"D:\\");
    volumes.Device(u"C:\\", u"\\Device\\HarddiskVolume1");
    volumes.Device(u"D:\\", u"\\Device\\HarddiskVolume10");
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
    const DWORD process = processes.Launch(u"C:\\a.exe");
    EXPECT_EQ(tools.Is32BitProcess(process), 1);
    base::ForgetWow64();
    pc.Get<Machine>().Wow64(true);
    EXPECT_EQ(tools.Is32BitProcess(process), 0);
    processes.Find(process)->wow64 = true;
    EXPECT_EQ(tools.Is32BitProcess(process), 1);
    pc.GetFaults().FailAlways("GetModuleFileNameExW", ERROR_PARTIAL_COPY);
    EXPECT_EQ(tools.GetPathFromPID(process), TEXT("C:\\a.exe"));
}

TEST_F(TaskManLight, Modules_AreCutAt1024)
{
    const DWORD process = processes.Launch(u"C:\\a.exe");
    for (const std::size_t modules : {1023u, 1024u, 1500u}) {
        processes.Find(process)->modules.assign(modules, u"C:\\a.dll");
        std::vector<String> names;
        EXPECT_EQ(tools.GetDLLsFromPID(process, names), 1);
        EXPECT_EQ(names, std::vector<String>(std::min<std::size_t>(modules, 1024), TEXT("C:\\a.dll")));
    }
}

TEST_F(TaskManLight, ProcessList_GrowsUntilItFits)
{
    std::vector<DWORD> all;
    const int before = tools.GetAllPID(all);
    // 64 ids fill the first room without a rest, 140 take the third.
    for (const int more : {64 - before, 140}) {
        for (int i = 0; i < more; ++i)
            processes.Launch(u"C:\\a.exe");
        EXPECT_EQ(tools.GetAllPID(all), std::ssize(processes.All()));
        EXPECT_EQ(all, processes.All());
    }
}

TEST_F(TaskManLight, Figures_AreNeitherCutNorMixedUp)
{
    pc.Get<Machine>().SetMemory({61, 0x300000000, 0x1001, 0x1002, 0x1003, 0x1004, 0x200000000});
    const std::vector<std::uint32_t> read = {tools.GetPhysMemTotal(),         tools.GetPhysMemAvailable(), tools.GetPageFileMemTotal(),
                                             tools.GetPageFileMemAvailable(), tools.GetVirtMemTotal(),     tools.GetVirtMemAvailable()};
    EXPECT_EQ(read, (std::vector<std::uint32_t>{0xFFFFFFFF, 0x1001, 0x1002, 0x1003, 0x1004, 0xFFFFFFFF}));
    EXPECT_EQ(tools.GetMemLoad(), 61);
    pc.Get<Machine>().Processors(200);
    EXPECT_EQ(tools.GetCPUCount(), 200);

    // More than half of the bits that an address has.
    constexpr int processors = sizeof(DWORD_PTR) * 5;
    pc.Get<Machine>().Processors(processors);
    const DWORD process = processes.Launch(u"C:\\a.exe");
    const DWORD_PTR high = (DWORD_PTR{1} << (processors - 1)) | 1;
    DWORD_PTR own = 0, available = 0;
    EXPECT_EQ(tools.SetAffinityMaskFromPID(process, high), 1);
    EXPECT_EQ(tools.GetAffinityMaskFromPID(process, own, available), 1);
    EXPECT_EQ(own, high);
    EXPECT_EQ(available, (DWORD_PTR{1} << processors) - 1);
    constexpr SIZE_T workingSet = SIZE_T{0x123456} << (sizeof(SIZE_T) * 2);
    processes.Find(process)->workingSet = workingSet;
    SIZE_T sizes[8]{};
    DWORD faults = 0;
    tools.GetMemoryUsageFromPID(process, sizes[0], sizes[1], faults, sizes[2], sizes[3], sizes[4], sizes[5], sizes[6], sizes[7]);
    const SIZE_T expected[] = {workingSet, 0x700000, 0x20000, 0x21000, 0x10000, 0x11000, 0x300000, 0x400000};
    EXPECT_TRUE(std::equal(sizes, sizes + 8, expected));
    EXPECT_EQ(faults, 1501u);
}

TEST_F(TaskManLight, HungWindow_HasNoText)
{
    const HelperProcess helper("top:title");
    const HWND window = tools.GetMainWindowFromPID(helper.Id());
    pc.Get<Desktop>().Hang(processes.Find(helper.Id())->MainActor());
    const std::uint64_t start = pc.Clock().Now();
    EXPECT_EQ(tools.GetTextByHWnd(window), TEXT(""));
    EXPECT_EQ(pc.Clock().Now() - start, 1000u) << "it is waited for, a second and no longer";
    EXPECT_EQ(tools.GetLenTextByHWnd(window), 0);
    EXPECT_EQ(tools.GetWindowTitle(window), TEXT("title")) << "read without asking the window";
}

TEST_F(TaskManLight, ActivateMyWindow_LeavesTheInputQueuesApart)
{
    const HelperProcess helper("top:other");
    const HWND other = tools.GetMainWindowFromPID(helper.Id());
    ShowWindow(other, SW_SHOW);
    SetForegroundWindow(other);
    tests::TestWindows own;
    const HWND window = own.Top(TEXT("form"));
    tools.FirstFormWindow = [window] { return window; };
    pc.Trace().Start();
    tools.ActivateMyWindow();
    std::vector<std::string> calls;
    for (const CallRecord& call : pc.Trace().Records())
        if (!call.name.starts_with("Get") && call.name != "DefWindowProcW")
            calls.push_back(call.Text());
    EXPECT_TRUE(tools.IsForegroundWindow(window));
    const std::string form = pc.Trace().Of("SetForegroundWindow").at(0).arguments, threads = "AttachThreadInput(0x106C, 0x10D0, ";
    EXPECT_EQ(calls,
              (std::vector<std::string>{threads + "1)", "ShowWindow(" + form + ", 0)", "ShowWindow(" + form + ", 9)",
                                        "AllowSetForegroundWindow(0xFFFFFFFF)", "SetForegroundWindow(" + form + ")",
                                        "LockSetForegroundWindow(1)", "PostMessageW(" + form + ", 6, 0xFFFFFFFF, 0)", threads + "0)"}));
    pc.GetFaults().FailAlways("SetForegroundWindow", ERROR_ACCESS_DENIED);
    tools.ActivateMyWindow();
    EXPECT_EQ(pc.Trace().Count("LockSetForegroundWindow"), 1u) << "not without being in front";
}

TEST_F(TaskManLight, DesktopIconsAndTaskBar_ShowAndHide)
{
    const auto make = [](const WCHAR* name, const WCHAR* title, HWND parent) {
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        description.lpfnWndProc = DefWindowProcW;
        description.lpszClassName = name;
        RegisterClassExW(&description);
        return CreateWindowExW(0, name, title, (parent ? WS_CHILD : WS_POPUP) | WS_VISIBLE, 0, 0, 9, 9, parent, nullptr, nullptr, nullptr);
    };
    const HWND desktop = make(TEXT("Progman"), TEXT("Program Manager"), nullptr);
    const HWND icons = make(TEXT("Icons"), TEXT(""), desktop);
    const HWND bar = make(TEXT("Shell_TrayWnd"), TEXT(""), nullptr);
    for (const bool show : {false, true}) {
        tools.DeskTopVisible(show);
        tools.TaskBarVisible(show);
        EXPECT_EQ(tools.IsVisibleWindow(icons), show);
        EXPECT_EQ(tools.IsVisibleWindow(bar), show);
    }
    DestroyWindow(desktop);
    DestroyWindow(bar);
}

}  // namespace
