// Moving, sizing and ordering windows; their rectangles and styles.
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;

constexpr DWORD topStyle = WS_OVERLAPPEDWINDOW;
constexpr DWORD childStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;

TEST(WindowPlacement, SizeAndMove_FollowFromWhatChanged)
{
    MessageLog log;
    const HWND top = log.Create("top", topStyle | WS_VISIBLE);
    const HWND child = log.Create("child", childStyle, top, {10, 10, 60, 40});
    log.Clear();
    MoveWindow(child, 12, 12, 60, 40, TRUE);
    EXPECT_TRUE(
        log.Is({"child WM_WINDOWPOSCHANGING", "child WM_NCCALCSIZE", "child WM_WINDOWPOSCHANGED", "child WM_MOVE", "child WM_SIZE"}));
    MoveWindow(child, 14, 12, 60, 40, TRUE);
    EXPECT_TRUE(log.Is({"child WM_WINDOWPOSCHANGING", "child WM_WINDOWPOSCHANGED", "child WM_MOVE"}));
    MoveWindow(child, 14, 12, 60, 40, TRUE);
    EXPECT_TRUE(log.Is({"child WM_WINDOWPOSCHANGING"})) << "nothing changed";
    SetWindowPos(child, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    EXPECT_TRUE(log.Is({"child WM_WINDOWPOSCHANGING", "child WM_NCCALCSIZE", "child WM_WINDOWPOSCHANGED"}));
    SetWindowPos(child, nullptr, 0, 0, 70, 50, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOSENDCHANGING);
    EXPECT_TRUE(log.Is({"child WM_NCCALCSIZE", "child WM_WINDOWPOSCHANGED", "child WM_SIZE"}));
}

}  // namespace
