// The desktop's second face: the user's hands, other processes, the clock, what can be seen.
#include "platform/sim/Desktop.h"

#include "platform/sim/SimPc.h"
#include "tests/support/MessageLog.h"

namespace {

using platform::Actor;
using platform::Desktop;
using platform::SimPc;
using tests::MessageLog;

constexpr Actor kAgent{900, 904};

SimPc& Pc()
{
    return SimPc::Current();
}

Desktop& Screen()
{
    return Pc().Get<Desktop>();
}

std::string agentSaw;

LRESULT CALLBACK AgentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_APP || message == WM_CLOSE)
        agentSaw += std::to_string(message) + (GetCurrentProcessId() == kAgent.process ? " as itself, " : " as somebody else, ");
    if (message == WM_DESTROY)
        PostQuitMessage(6);
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND OpenAgentWindow(DWORD style = WS_OVERLAPPEDWINDOW)
{
    agentSaw.clear();
    HWND window = nullptr;
    Pc().ActAs(kAgent, [&] {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.lpfnWndProc = AgentProcedure;
        windowClass.lpszClassName = TEXT("AgentWindow");
        RegisterClassExW(&windowClass);
        window = CreateWindowExW(0, TEXT("AgentWindow"), TEXT("Agent"), style, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
    });
    return window;
}

void Pump()
{
    Pc().OnPump([] { tests::PumpMessages(); });
}

TEST(OtherProcess, HandlesSentMessagesAtOnceAndPostedOnesWhenItRuns)
{
    const HWND window = OpenAgentWindow();
    ASSERT_NE(window, nullptr);
    SendMessageW(window, WM_APP, 0, 0);
    EXPECT_EQ(agentSaw, "32768 as itself, ");
    agentSaw.clear();
    int exitCode = 0;
    Screen().OnQuit = [&](Actor thread, int code) { exitCode = thread == kAgent ? code : -1; };
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(agentSaw, "");
    Pc().Settle();
    EXPECT_EQ(agentSaw, "16 as itself, ");
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(exitCode, 6);
}

TEST(OtherProcess, TakesTheForegroundUnlessItIsLocked)
{
    MessageLog log;
    const HWND own = log.Create("own", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND theirs = OpenAgentWindow(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    EXPECT_EQ(GetForegroundWindow(), theirs);
    EXPECT_EQ(GetFocus(), nullptr) << "the focus is in another process";
    EXPECT_EQ(Screen().Focus(), theirs);
    log.Clear();
    EXPECT_TRUE(SetForegroundWindow(own));
    EXPECT_TRUE(log.Is({WM_ACTIVATEAPP, WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS},
                       {"own WM_ACTIVATEAPP 1", "own WM_NCACTIVATE 1", "own WM_ACTIVATE 1", "own WM_SETFOCUS"}));
    EXPECT_TRUE(LockSetForegroundWindow(LSFW_LOCK));
    Pc().ActAs(kAgent, [&] { EXPECT_FALSE(SetForegroundWindow(theirs)); });
    EXPECT_EQ(GetForegroundWindow(), own);
    Screen().MouseMove(50, 90);
    EXPECT_EQ(Screen().WindowAt({50, 90}), own);
    MoveWindow(own, 300, 300, 200, 200, TRUE);
    Screen().MouseDown();
    Screen().MouseUp();
    EXPECT_EQ(GetForegroundWindow(), theirs) << "the user may always";
    EXPECT_TRUE(log.Is({WM_ACTIVATEAPP, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS},
                       {"own WM_ACTIVATE 0", "own WM_ACTIVATEAPP 0", "own WM_KILLFOCUS"}));
}

TEST(Waiting, GetMessage_AsksForInputAndFailsWhenNoneWillCome)
{
    MessageLog log;
    const HWND window = log.Create("top", WS_POPUP);
    int asked = 0;
    Screen().OnIdle = [&] {
        if (++asked == 1)
            PostMessageW(window, WM_APP, 0, 0);
        return asked == 1;
    };
    MSG message;
    EXPECT_TRUE(GetMessageW(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_APP));
    EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), -1);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Pc().Complaints().size(), 1u);
    Pc().ForgetComplaints();

    Screen().OnIdle = nullptr;
    SetTimer(window, 1, 5000, nullptr);
    const DWORD start = GetTickCount();
    EXPECT_TRUE(GetMessageW(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_TIMER));
    EXPECT_EQ(GetTickCount() - start, 5000u) << "the clock was turned to the next thing due";
}

TEST(Timer, Advance_RunsThroughEveryPeriod)
{
    MessageLog log;
    Pump();
    const HWND window = log.Create("top", WS_POPUP);
    SetTimer(window, 4, 1000, nullptr);
    EXPECT_EQ(Screen().TimersOf(SimPc::Own().process), 1u);
    log.Clear();
    Pc().Advance(2999);
    EXPECT_TRUE(log.Is({"top WM_TIMER 4", "top WM_TIMER 4"}));
    Pc().Advance(1);
    EXPECT_TRUE(log.Is({"top WM_TIMER 4"}));
    DestroyWindow(window);
    EXPECT_EQ(Screen().TimersOf(SimPc::Own().process), 0u);
}

TEST(UserHands, WindowThatGoesFromUnderTheMouse_LeavesItToTheNextOne)
{
    MessageLog log;
    Pump();
    const HWND top = log.Create("top", WS_POPUP | WS_VISIBLE, nullptr, {0, 0, 200, 200});
    const HWND child = log.Create("child", WS_CHILD | WS_VISIBLE, top, {0, 0, 50, 50});
    Screen().Hover(child, 5, 5);
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, top, 0};
    log.Clear();
    track.hwndTrack = child;
    TrackMouseEvent(&track);
    ShowWindow(child, SW_HIDE);
    Pc().Settle();
    EXPECT_TRUE(log.Is({WM_MOUSELEAVE, WM_MOUSEMOVE}, {"child WM_MOUSELEAVE", "top WM_MOUSEMOVE"}));
}

TEST(Leaks, WindowsIconsAndDeviceContextsAreNamed)
{
    MessageLog log;
    Screen().AddIconResource(u"AAA");
    const HWND window = log.Create("top", WS_POPUP);
    const HDC dc = GetDC(window);
    const auto icon = static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), TEXT("aaa"), IMAGE_ICON, 16, 16, 0));
    EXPECT_EQ(Pc().Handles().Leaks().size(), 3u);
    EXPECT_TRUE(DestroyIcon(icon));
    ReleaseDC(window, dc);
    DestroyWindow(window);
    EXPECT_TRUE(Pc().Handles().Leaks().empty());
    SetLastError(0);
    EXPECT_EQ(LoadImageW(GetModuleHandleW(nullptr), TEXT("BBB"), IMAGE_ICON, 16, 16, 0), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_RESOURCE_NAME_NOT_FOUND));
}

}  // namespace
