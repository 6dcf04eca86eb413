// Moving, sizing and ordering windows; their rectangles and styles.
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;

constexpr DWORD kTop = WS_OVERLAPPEDWINDOW;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;

TEST(WindowPlacement, SizeAndMove_FollowFromWhatChanged)
{
    MessageLog log;
    const HWND top = log.Create("top", kTop | WS_VISIBLE);
    const HWND child = log.Create("child", kChild, top, {10, 10, 60, 40});
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

TEST(WindowPlacement, ClientArea_IsWhatTheFrameLeaves)
{
    MessageLog log;
    const struct {
        DWORD style, exStyle;
    } styles[] = {{kTop, 0}, {WS_POPUP, 0}, {WS_POPUP | WS_DLGFRAME, 0}, {WS_POPUP | WS_CAPTION, WS_EX_DLGMODALFRAME}};
    for (const auto& [style, exStyle] : styles) {
        SCOPED_TRACE(testing::Message() << std::hex << style << " " << exStyle);
        const HWND window = log.Create("top", style, nullptr, {100, 90, 400, 290}, exStyle);
        RECT frame, client, expected{0, 0, 0, 0};
        GetWindowRect(window, &frame);
        GetClientRect(window, &client);
        AdjustWindowRectEx(&expected, style, FALSE, exStyle);
        POINT origin{0, 0};
        ClientToScreen(window, &origin);
        EXPECT_EQ(origin.x, frame.left - expected.left);
        EXPECT_EQ(origin.y, frame.top - expected.top);
        EXPECT_EQ(client.right, frame.right - frame.left - (expected.right - expected.left));
        EXPECT_EQ(client.bottom, frame.bottom - frame.top - (expected.bottom - expected.top));
        EXPECT_EQ(SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(origin.x, origin.y)), HTCLIENT);
        if ((style & WS_CAPTION) == WS_CAPTION) {
            EXPECT_EQ(SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(origin.x + 40, origin.y - 8)), HTCAPTION);
        }
        EXPECT_EQ(SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(frame.left - 1, frame.top)), HTNOWHERE);
        DestroyWindow(window);
    }
}

TEST(WindowPlacement, Points_AreMappedBetweenWindows)
{
    MessageLog log;
    const HWND top = log.Create("top", WS_POPUP | WS_VISIBLE, nullptr, {100, 90, 400, 290});
    const HWND child = log.Create("child", kChild | WS_BORDER, top, {20, 30, 120, 80});
    POINT points[] = {{0, 0}, {5, 7}};
    const int border = GetSystemMetrics(SM_CXBORDER);
    EXPECT_EQ(MapWindowPoints(child, top, points, 2), MAKELONG(20 + border, 30 + border));
    EXPECT_EQ(points[1].x, 25 + border);
    EXPECT_EQ(points[1].y, 37 + border);
    MapWindowPoints(top, nullptr, points, 1);
    EXPECT_EQ(points[0].x, 120 + border);
    MoveWindow(top, 200, 190, 300, 200, FALSE);
    RECT moved;
    GetWindowRect(child, &moved);
    EXPECT_EQ(moved.left, 220) << "children come along";
    EXPECT_EQ(moved.top, 220);
}

}  // namespace
