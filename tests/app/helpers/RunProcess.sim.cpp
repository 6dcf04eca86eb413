#include "app/helpers/RunProcess.h"

#include "platform/sim/Processes.h"
#include "tests/app/FreshCaches.h"

using namespace platform;
using base::String;

namespace {

class RunProcess : public tests::FreshCaches {
protected:
    SimPc& pc = SimPc::Current();
    Processes& processes = pc.Get<Processes>();

    void AddProgram(std::u16string_view path, std::uint64_t lifetime)
    {
        processes.AddProgram(path, [this, lifetime](DWORD id) {
            pc.Clock().Schedule(lifetime, [this, id] { processes.End(id, 3); });
            return std::make_shared<Program>();
        });
    }
};

TEST_F(RunProcess, CommandLine_QuotesOnlyPathsWithBlanks)
{
    AddProgram(u"C:\\A\\a.exe", 10);
    AddProgram(u"C:\\A b\\a.exe", 10);
    const String folder = TEXT("C:\\A b") + String(250, TEXT('x')) + TEXT("\\");  // 260 characters with the file's name
    AddProgram(folder + TEXT("a.exe"), 10);
    const std::tuple<String, const WCHAR*, String, String> cases[] = {
        {TEXT("C:\\A\\a.exe"), TEXT(""), u"C:\\A\\a.exe", u"C:\\A\\"},
        {TEXT(" C:\\A\\a.exe "), TEXT("  /x y "), u"C:\\A\\a.exe /x y", u"C:\\A\\"},
        {TEXT("C:\\A b\\a.exe"), TEXT("/x"), u"\"C:\\A b\\a.exe\" /x", u"C:\\A b\\"},
        {TEXT("\"C:\\A b\\a.exe\""), TEXT(""), u"\"C:\\A b\\a.exe\"", u"C:\\A b\\"},
        {folder + TEXT("a.exe"), TEXT("/x"), TEXT("\"") + folder + TEXT("a.exe\" /x"), folder}};
    for (const auto& [path, arguments, commandLine, workingFolder] : cases) {
        SCOPED_TRACE(testing::PrintToString(path));
        EXPECT_NE(helpers::RunProcess(path, arguments, false, true, NORMAL_PRIORITY_CLASS), 0u);
        const auto& request = processes.Requests().back();
        EXPECT_EQ(request.commandLine, commandLine);
        EXPECT_EQ(request.folder, workingFolder);
        EXPECT_EQ(request.flags, 32u);
        EXPECT_EQ(request.startupFlags, 1u);
        EXPECT_EQ(request.showWindow, SW_SHOWNORMAL);
        EXPECT_TRUE(request.inheritHandles);
    }
    helpers::RunProcess(TEXT("C:\\A\\a.exe"), TEXT(""), false, false, 0);
    EXPECT_EQ(processes.Requests().back().showWindow, SW_HIDE);
}

TEST_F(RunProcess, MissingFile_IsNotTried)
{
    for (const WCHAR* path : {TEXT(""), TEXT("  "), TEXT("C:\\missing.exe"), TEXT("C:\\Windows")})
        EXPECT_EQ(helpers::RunProcess(path, {}, false, true, 0), 0u) << testing::PrintToString(base::String(path));
    EXPECT_TRUE(processes.Requests().empty());
}

TEST_F(RunProcess, Waiting_HandlesMessagesUntilTheEnd)
{
    AddProgram(u"C:\\a.exe", 500);
    const HWND window = CreateWindowExW(0, TEXT("Static"), TEXT("w"), WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    static int ticks;
    ticks = 0;
    SetTimer(window, 1, 100, [](HWND, UINT, UINT_PTR, DWORD) { ++ticks; });
    const DWORD process = helpers::RunProcess(TEXT("C:\\a.exe"), {}, true, true, 0);
    EXPECT_NE(process, 0u);
    EXPECT_FALSE(processes.IsRunning(process));
    EXPECT_GE(ticks, 4);
    DestroyWindow(window);
}

TEST_F(RunProcess, Waiting_EndsWhenWaitingFails)
{
    AddProgram(u"C:\\a.exe", 500);
    pc.GetFaults().FailAlways("MsgWaitForMultipleObjects", ERROR_INVALID_HANDLE);
    const DWORD process = helpers::RunProcess(TEXT("C:\\a.exe"), {}, true, true, 0);
    EXPECT_TRUE(processes.IsRunning(process));
}

TEST_F(RunProcess, Pump_LeavesTheQuitMessageToTheProgram)
{
    const HWND window = CreateWindowExW(0, TEXT("Static"), TEXT("w"), WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    PostMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(TEXT("set")));
    PostQuitMessage(3);
    helpers::PumpMessages(true);
    EXPECT_EQ(GetWindowTextLengthW(window), 3);
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 3u);
    SetTimer(window, 1, 100, [](HWND owner, UINT, UINT_PTR, DWORD) { SetWindowTextW(owner, TEXT("ticked")); });
    helpers::PumpMessages(true);
    EXPECT_EQ(GetWindowTextLengthW(window), 6) << "it waits for a first message";
    DestroyWindow(window);
}

}  // namespace
