// Windows go: which messages they get, in which order.
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;

constexpr DWORD topStyle = WS_OVERLAPPEDWINDOW;
constexpr DWORD childStyle = WS_CHILD | WS_CLIPSIBLINGS;

TEST(WindowLifetime, Destroying_GoesDownAndComesBackUp)
{
    MessageLog log;
    const HWND top = log.Create("top", topStyle);
    const HWND child = log.Create("child", childStyle, top, {0, 0, 50, 50});
    log.Create("grandchild", childStyle, child, {0, 0, 10, 10});
    log.Create("second", childStyle, top, {0, 0, 50, 50});
    const HWND owned = log.Create("owned", WS_POPUP, top);
    log.Clear();
    EXPECT_TRUE(DestroyWindow(top));
    EXPECT_TRUE(log.Is({"owned WM_DESTROY", "owned WM_NCDESTROY", "top WM_DESTROY", "child WM_DESTROY", "grandchild WM_DESTROY",
                        "second WM_DESTROY", "grandchild WM_NCDESTROY", "child WM_NCDESTROY", "second WM_NCDESTROY", "top WM_NCDESTROY"}));
    EXPECT_FALSE(IsWindow(owned));
    EXPECT_FALSE(IsWindow(child));
    EXPECT_FALSE(DestroyWindow(top));
}

}  // namespace
