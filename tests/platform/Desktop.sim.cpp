// The desktop's second face: other processes, and what was left open.
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

TEST(OtherProcess, TakesTheForegroundUnlessItIsLocked)
{
    MessageLog log;
    const HWND own = log.Create("own", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    HWND theirs = nullptr;
    Pc().ActAs(agent, [&] {
        theirs = CreateWindowExW(0, TEXT("Button"), TEXT(""), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, nullptr, nullptr, nullptr,
                                 nullptr);
    });
    EXPECT_EQ(GetForegroundWindow(), theirs);
    EXPECT_EQ(GetFocus(), nullptr) << "the focus is in another process";
    EXPECT_EQ(Screen().Focus(), theirs);
    log.Clear();
    EXPECT_TRUE(SetForegroundWindow(own));
    EXPECT_TRUE(log.Is({WM_ACTIVATEAPP, WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS},
                       {"own WM_ACTIVATEAPP 1", "own WM_NCACTIVATE 1", "own WM_ACTIVATE 1", "own WM_SETFOCUS"}));
    EXPECT_TRUE(LockSetForegroundWindow(LSFW_LOCK));
    Pc().ActAs(agent, [&] { EXPECT_FALSE(SetForegroundWindow(theirs)); });
    MoveWindow(own, 300, 300, 200, 200, TRUE);
    Screen().MouseMove(50, 90);
    Screen().MouseDown();
    Screen().MouseUp();
    EXPECT_EQ(GetForegroundWindow(), theirs) << "the user may always";
    EXPECT_TRUE(log.Is({WM_ACTIVATEAPP, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS},
                       {"own WM_ACTIVATE 0", "own WM_ACTIVATEAPP 0", "own WM_KILLFOCUS"}));
}

/// Wine tells only a window that the mouse was over.
TEST(Leaving, IsToldAtOnceToAWindowThatTheMouseIsNotOver)
{
    MessageLog log;
    const HWND window = log.Create("far", WS_POPUP | WS_VISIBLE, nullptr, {10, 10, 60, 60});
    Screen().MouseMove(500, 500);
    log.Clear();
    TRACKMOUSEEVENT request{sizeof request, TME_LEAVE, window, 0};
    EXPECT_TRUE(TrackMouseEvent(&request));
    tests::PumpMessages();
    EXPECT_TRUE(log.Is({"far WM_MOUSELEAVE"}));
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
}

}  // namespace
