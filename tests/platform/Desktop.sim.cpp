// The desktop's second face: the user's hands, other processes, the clock, what can be seen.
#include "platform/sim/Desktop.h"

#include "platform/sim/SimPc.h"
#include "tests/support/MessageLog.h"

namespace {

using platform::Actor;
using platform::Desktop;
using platform::SimPc;
using tests::MessageLog;

constexpr Actor agent{900, 904};

SimPc& Pc()
{
    return SimPc::Current();
}

Desktop& Screen()
{
    return Pc().Get<Desktop>();
}

HWND OpenAgentWindow()
{
    HWND window = nullptr;
    Pc().ActAs(agent, [&] {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.lpfnWndProc = DefWindowProcW;
        windowClass.lpszClassName = TEXT("AgentWindow");
        RegisterClassExW(&windowClass);
        window = CreateWindowExW(0, TEXT("AgentWindow"), TEXT("Agent"), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, nullptr, nullptr,
                                 nullptr, nullptr);
    });
    return window;
}

void Pump()
{
    Pc().OnPump([] { tests::PumpMessages(); });
}

TEST(OtherProcess, TakesTheForegroundUnlessItIsLocked)
{
    MessageLog log;
    const HWND own = log.Create("own", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND theirs = OpenAgentWindow();
    EXPECT_EQ(GetForegroundWindow(), theirs);
    EXPECT_EQ(GetFocus(), nullptr) << "the focus is in another process";
    EXPECT_EQ(Screen().Focus(), theirs);
    log.Clear();
    EXPECT_TRUE(SetForegroundWindow(own));
    EXPECT_TRUE(log.Is({WM_ACTIVATEAPP, WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS},
                       {"own WM_ACTIVATEAPP 1", "own WM_NCACTIVATE 1", "own WM_ACTIVATE 1", "own WM_SETFOCUS"}));
    EXPECT_TRUE(LockSetForegroundWindow(LSFW_LOCK));
    Pc().ActAs(agent, [&] { EXPECT_FALSE(SetForegroundWindow(theirs)); });
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

TEST(Leaks, WindowsIconsDeviceContextsAndPensAreNamed)
{
    MessageLog log;
    Screen().AddIconResource(u"AAA");
    const HWND window = log.Create("top", WS_POPUP);
    const HDC dc = GetDC(window);
    const auto icon = static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), TEXT("aaa"), IMAGE_ICON, 16, 16, 0));
    EXPECT_EQ(Pc().Handles().Leaks().size(), 3u);
    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
    const HGDIOBJ former = SelectObject(dc, pen);
    EXPECT_NE(Pc().Handles().Leaks().back().find("CreatePen"), std::string::npos);
    EXPECT_FALSE(DeleteObject(pen)) << "while it is selected";
    SelectObject(dc, former);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_TRUE(DestroyIcon(icon));
    ReleaseDC(window, dc);
    DestroyWindow(window);
    EXPECT_TRUE(Pc().Handles().Leaks().empty());
    SetLastError(0);
    EXPECT_EQ(LoadImageW(GetModuleHandleW(nullptr), TEXT("BBB"), IMAGE_ICON, 16, 16, 0), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_RESOURCE_NAME_NOT_FOUND));
}

}  // namespace
