// Processes of the stand-in PC: starting programs, the stand-in agent, waiting, rights, leaks.
#include "platform/sim/Processes.h"
#include "base/Handles.h"
#include "platform/sim/AgentProgram.h"
#include "platform/sim/Desktop.h"
#include "platform/sim/Modules.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"

#include <gtest/gtest.h>
#include <psapi.h>

namespace {

using base::KernelHandle;
using platform::AgentProgram;
using platform::SimPc;

struct Started {
    KernelHandle process, thread;
    DWORD id = 0;
};

Started Start(const std::u16string& commandLine, LPCWSTR folder = u"C:\\Tools\\")
{
    std::u16string line = commandLine;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION information{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS, nullptr, folder, &startup, &information))
        return {};
    return {KernelHandle(information.hProcess), KernelHandle(information.hThread), information.dwProcessId};
}

class Processes : public testing::Test {
protected:
    SimPc& pc_ = SimPc::Current();
    platform::Processes& processes_ = pc_.Get<platform::Processes>();
    platform::Desktop& desktop_ = pc_.Get<platform::Desktop>();
};

TEST_F(Processes, CommandLine_FindsItsProgramAsWindowsDoes)
{
    pc_.Get<platform::Volumes>().WriteFile(u"C:\\Tools\\My Agent.exe", "MZ");
    const struct {
        std::u16string line;
        LPCWSTR folder;
        DWORD error;
    } cases[] = {{u"\"C:\\Tools\\My Agent.exe\" /x", u"C:\\Tools\\", NO_ERROR},
                 {u"C:\\Tools\\My Agent.exe", u"C:\\Tools\\", NO_ERROR},
                 {u"\"C:\\Tools\\My Agent\"", nullptr, NO_ERROR},
                 {u"\"C:\\Tools\\None.exe\"", nullptr, ERROR_FILE_NOT_FOUND},
                 {u"C:\\None\\None.exe", nullptr, ERROR_PATH_NOT_FOUND},
                 {u"\"C:\\Tools\\My Agent.exe\"", u"C:\\None\\", ERROR_DIRECTORY}};
    for (const auto& test : cases) {
        const Started started = Start(test.line, test.folder);
        EXPECT_EQ(started.id != 0 ? DWORD{NO_ERROR} : GetLastError(), test.error);
    }
    ASSERT_EQ(processes_.Requests().size(), std::size(cases));
    EXPECT_EQ(processes_.Requests()[0].commandLine, cases[0].line);
    EXPECT_TRUE(processes_.Requests()[0].inheritHandles);
    EXPECT_EQ(processes_.Requests()[3].processId, 0u);
}

TEST_F(Processes, Agent_OpensItsWindowsAfterAWhileAndClosesWhenItsMainWindowIsAsked)
{
    const auto habits = AgentProgram::Install(pc_);
    const Started agent = Start(u"C:\\Tools\\Velmora.exe");
    ASSERT_NE(agent.id, 0u);
    pc_.Advance(499);
    EXPECT_EQ(FindWindowW(nullptr, u"VELMORA-IDENTIFICATION-WINDOW"), nullptr);
    pc_.Advance(1);
    const HWND identification = FindWindowW(nullptr, u"VELMORA-IDENTIFICATION-WINDOW");
    const HWND main = FindWindowW(nullptr, u"Velmora");
    DWORD owner = 0;
    GetWindowThreadProcessId(identification, &owner);
    EXPECT_EQ(owner, agent.id);

    habits->ignoresClose = true;
    PostMessageW(main, WM_CLOSE, 0, 0);
    pc_.Settle();
    EXPECT_EQ(WaitForSingleObject(agent.process.Get(), 1000), DWORD{WAIT_TIMEOUT});
    habits->ignoresClose = false;
    PostMessageW(main, WM_CLOSE, 0, 0);
    EXPECT_EQ(WaitForSingleObject(agent.process.Get(), 1000), DWORD{WAIT_OBJECT_0});
    EXPECT_FALSE(IsWindow(identification));
    EXPECT_TRUE(processes_.Running(u"C:\\Tools\\Velmora.exe").empty());
    DWORD code = STILL_ACTIVE;
    EXPECT_TRUE(GetExitCodeProcess(agent.process.Get(), &code));
    EXPECT_EQ(code, 0u);
    EXPECT_TRUE(KernelHandle(OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, agent.id))) << "somebody still holds it open";
}

TEST_F(Processes, EndedBeforeItsWindowsCame_NeverOpensThem)
{
    AgentProgram::Install(pc_);
    const DWORD id = processes_.Launch(u"C:\\Tools\\Velmora.exe");
    pc_.Advance(100);
    processes_.End(id);
    pc_.Advance(1000);
    EXPECT_EQ(FindWindowW(nullptr, u"Velmora"), nullptr);
    EXPECT_EQ(OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, id), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_PARAMETER});
}

TEST_F(Processes, GuardedProcess_OpensOnlyWithTheDebugPrivilege)
{
    const DWORD id = processes_.Launch(u"C:\\Windows\\System32\\lsass.exe");
    processes_.Find(id)->guarded = true;
    EXPECT_EQ(OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, id), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    pc_.Get<platform::Users>().Held(20)->enabled = true;
    const KernelHandle opened(OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, id));
    ASSERT_TRUE(opened);
    WCHAR path[260] = {};
    const DWORD length = GetProcessImageFileNameW(opened.Get(), path, 260);
    EXPECT_EQ(std::u16string(path, length), u"\\Device\\HarddiskVolume1\\Windows\\System32\\lsass.exe");
    EXPECT_EQ(GetModuleFileNameExW(opened.Get(), nullptr, path, 260), 0u) << "reading the module list takes another right";
    EXPECT_FALSE(TerminateProcess(opened.Get(), 1));
}

TEST_F(Processes, LoadedLibrary_IsALeakUntilItIsFreed)
{
    const HMODULE shell = LoadLibraryW(u"shell32.dll");
    EXPECT_EQ(LoadLibraryW(u"SHELL32"), shell);
    EXPECT_EQ(pc_.Handles().Leaks().size(), 2u);
    EXPECT_TRUE(FreeLibrary(shell));
    EXPECT_EQ(GetModuleHandleW(u"shell32"), shell);
    EXPECT_TRUE(FreeLibrary(shell));
    EXPECT_EQ(GetModuleHandleW(u"shell32"), nullptr);
    EXPECT_FALSE(FreeLibrary(shell));
    pc_.Get<platform::Modules>().RemoveExport(u"kernel32", "IsWow64Process");
    EXPECT_EQ(GetProcAddress(GetModuleHandleW(u"kernel32"), "IsWow64Process"), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PROC_NOT_FOUND});
    EXPECT_EQ(GetProcAddress(GetModuleHandleW(u"kernel32"), "NoSuchFunction"), nullptr);
    EXPECT_EQ(pc_.Complaints().size(), 1u) << "a name that nobody told the PC of is not silently missing";
    pc_.ForgetComplaints();
}

}  // namespace
