// The agent as an ordinary process.
#include "platform/sim/Desktop.h"
#include "platform/sim/Processes.h"
#include "platform/sim/Volumes.h"
#include "tests/app/UtilityScene.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

constexpr const char16_t* exe = u"C:\\Tools\\Velmora.exe";

class Form1Agent : public testing::Test, protected tests::UtilityScene {
protected:
    void ExpectButtons(bool start, bool close)
    {
        EXPECT_EQ(Enabled(TEXT("CommandStartVelmora")), start);
        EXPECT_EQ(Enabled(TEXT("CommandCloseVelmora")), close);
    }
    /// Presses the button and counts the windows that are asked to close.
    std::ptrdiff_t CloseRequests()
    {
        pc.Trace().Start();
        Click(TEXT("CommandCloseVelmora"));
        return std::ranges::count_if(pc.Trace().Of("PostMessageW"),
                                     [](const CallRecord& call) { return call.arguments.find(", 0x10,") != std::string::npos; });
    }
};

TEST_F(Form1Agent, StartedAndClosed_TurnsTheButtonsAround)
{
    ASSERT_TRUE(Open());
    ExpectButtons(true, false);
    Click(TEXT("CommandStartVelmora"));
    const auto& request = The<Processes>().Requests().at(0);
    EXPECT_EQ(request.commandLine, exe);
    EXPECT_EQ(request.folder, u"C:\\Tools\\");
    EXPECT_EQ(request.showWindow, SW_SHOWNORMAL);
    ExpectButtons(false, false);
    pc.Advance(2000);
    ExpectButtons(false, true);
    Click(TEXT("CommandCloseVelmora"));
    ExpectButtons(false, true);
    pc.Advance(2000);
    ExpectButtons(true, false);
    EXPECT_TRUE(The<Processes>().Running(exe).empty());
}

TEST_F(Form1Agent, OwnWindowOfThatTitle_IsNoAgent)
{
    ASSERT_TRUE(Open());
    const HWND own =
        CreateWindowExW(0, TEXT("Static"), TEXT("VELMORA-IDENTIFICATION-WINDOW"), WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    pc.Advance(2000);
    ExpectButtons(true, false);
    Button(TEXT("CommandCloseVelmora")).Click.Raise();
    pc.Settle();
    EXPECT_TRUE(IsOpen() && IsWindow(own)) << "it would close a window of its own";
    DestroyWindow(own);
}

TEST_F(Form1Agent, AgentThatStays_IsShownAsRunning)
{
    agent->ignoresClose = true;
    The<Processes>().Launch(exe);
    pc.Advance(1000);
    ASSERT_TRUE(Open());
    EXPECT_EQ(CloseRequests(), 1);
    pc.Advance(4000);
    ExpectButtons(false, true);
    EXPECT_EQ(The<Processes>().Running(exe).size(), 1u);
}

TEST_F(Form1Agent, AgentThatVanishes_IsNotClosed)
{
    const DWORD process = The<Processes>().Launch(exe);
    pc.Advance(1000);
    ASSERT_TRUE(Open());
    The<Processes>().End(process);
    EXPECT_EQ(CloseRequests(), 0);
    EXPECT_EQ(pc.Trace().Count("FindWindowA"), 1u) << "the click came";
    EXPECT_TRUE(IsOpen());
}

TEST_F(Form1Agent, EditedPassword_IsSavedOnceBeforeTheLaunch)
{
    WriteSettings("[Settings]\r\nPwd=AZg==\r\n");
    ASSERT_TRUE(Open());
    The<Volumes>().Remove(u"C:\\Tools\\Velmora.ini");
    const auto afterStart = [this] {
        Click(TEXT("CommandStartVelmora"));
        The<Processes>().End(The<Processes>().Running(exe).at(0));
        pc.Advance(2000);
        return Settings();
    };
    EXPECT_EQ(afterStart(), std::nullopt) << "loading is no editing";
    Text(TEXT("TextPassword")).Text(TEXT("abc"));
    EXPECT_EQ(afterStart(), "[Settings]\r\nPwd=AYWJj\r\n");
    WriteSettings("[Settings]\r\nPwd=other\r\n");
    EXPECT_EQ(afterStart(), "[Settings]\r\nPwd=other\r\n");
}

}  // namespace
