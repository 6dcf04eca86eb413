// Windows come, are shown and go: which messages they get, in which order.
#include "tests/support/KnownGap.h"
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;

constexpr DWORD kTop = WS_OVERLAPPEDWINDOW;
constexpr DWORD kChild = WS_CHILD | WS_CLIPSIBLINGS;

TEST(WindowLifetime, HiddenWindow_HearsOfSizeAndPlaceWhenFirstShown)
{
    MessageLog log;
    const HWND window = log.Create("top", kTop);
    EXPECT_TRUE(log.Is({"top WM_NCCREATE", "top WM_NCCALCSIZE", "top WM_CREATE"}));
    ShowWindow(window, SW_SHOWNA);
    EXPECT_TRUE(log.Is({"top WM_SHOWWINDOW 1", "top WM_WINDOWPOSCHANGING", "top WM_WINDOWPOSCHANGED", "top WM_SIZE", "top WM_MOVE"}));
    ShowWindow(window, SW_HIDE);
    ShowWindow(window, SW_SHOWNA);
    EXPECT_TRUE(log.Is({WM_SHOWWINDOW, WM_SIZE, WM_MOVE}, {"top WM_SHOWWINDOW 0", "top WM_SHOWWINDOW 1"})) << "only once";
}

TEST(WindowLifetime, ChildAndPopup_HearOfSizeAndPlaceAtOnce)
{
    MessageLog log;
    const HWND top = log.Create("top", kTop | WS_VISIBLE);
    log.Clear();
    log.Create("child", kChild | WS_VISIBLE, top, {5, 6, 55, 36});
    EXPECT_TRUE(log.Is({"child WM_NCCREATE", "child WM_NCCALCSIZE", "child WM_CREATE", "child WM_SIZE", "child WM_MOVE",
                        "top WM_PARENTNOTIFY create", "child WM_SHOWWINDOW 1", "child WM_WINDOWPOSCHANGING", "child WM_WINDOWPOSCHANGED"}));
    log.Create("quiet", kChild, top, {5, 6, 55, 36}, WS_EX_NOPARENTNOTIFY);
    log.Create("popup", WS_POPUP, top);
    EXPECT_TRUE(log.Is({"quiet WM_NCCREATE", "quiet WM_NCCALCSIZE", "quiet WM_CREATE", "quiet WM_SIZE", "quiet WM_MOVE",
                        "popup WM_NCCREATE", "popup WM_NCCALCSIZE", "popup WM_CREATE", "popup WM_SIZE", "popup WM_MOVE"}));
}

TEST(WindowLifetime, ChildOfHiddenParent_AppearsWithoutPositionMessages)
{
    MessageLog log;
    const HWND top = log.Create("top", kTop);
    const HWND child = log.Create("child", kChild, top, {5, 6, 55, 36});
    log.Clear();
    EXPECT_FALSE(ShowWindow(child, SW_SHOW));
    EXPECT_TRUE(log.Is({"child WM_SHOWWINDOW 1"}));
    EXPECT_TRUE(GetWindowLongW(child, GWL_STYLE) & static_cast<LONG>(WS_VISIBLE));
    EXPECT_FALSE(IsWindowVisible(child)) << "as long as its parent is hidden";
    ShowWindow(top, SW_SHOWNA);
    EXPECT_TRUE(IsWindowVisible(child));
}

TEST(WindowLifetime, Destroying_GoesDownAndComesBackUp)
{
    MessageLog log;
    const HWND top = log.Create("top", kTop);
    const HWND child = log.Create("child", kChild, top, {0, 0, 50, 50});
    log.Create("grandchild", kChild, child, {0, 0, 10, 10});
    log.Create("second", kChild, top, {0, 0, 50, 50});
    const HWND owned = log.Create("owned", WS_POPUP, top);
    log.Clear();
    EXPECT_TRUE(DestroyWindow(top));
    EXPECT_TRUE(log.Is({"owned WM_DESTROY", "owned WM_NCDESTROY", "top WM_DESTROY", "child WM_DESTROY", "grandchild WM_DESTROY",
                        "second WM_DESTROY", "grandchild WM_NCDESTROY", "child WM_NCDESTROY", "second WM_NCDESTROY", "top WM_NCDESTROY"}));
    EXPECT_FALSE(IsWindow(owned));
    EXPECT_FALSE(IsWindow(child));
    EXPECT_FALSE(DestroyWindow(top));
}

TEST(WindowLifetime, DestroyedChild_HidesFirstAndHandsTheFocusToItsParent)
{
    MessageLog log;
    const HWND top = log.Create("top", kTop | WS_VISIBLE);
    const HWND child = log.Create("child", kChild | WS_VISIBLE, top, {5, 6, 55, 36});
    SetFocus(child);
    log.Clear();
    DestroyWindow(child);
    EXPECT_TRUE(log.Is({"top WM_PARENTNOTIFY destroy", "child WM_SHOWWINDOW 0", "child WM_WINDOWPOSCHANGING", "child WM_WINDOWPOSCHANGED",
                        "child WM_KILLFOCUS", "top WM_SETFOCUS", "child WM_DESTROY", "child WM_NCDESTROY"}));
    EXPECT_EQ(GetFocus(), top);
}

TEST(WindowLifetime, DestroyedActiveWindow_GivesUpActivation)
{
    MessageLog log;
    const HWND back = log.Create("back", kTop | WS_VISIBLE);
    const HWND front = log.Create("front", kTop | WS_VISIBLE);
    log.Clear();
    DestroyWindow(front);
    EXPECT_TRUE(log.Is({WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS, WM_DESTROY, WM_NCDESTROY},
                       {"front WM_NCACTIVATE 0", "front WM_ACTIVATE 0", "back WM_NCACTIVATE 1", "back WM_ACTIVATE 1", "front WM_KILLFOCUS",
                        "back WM_SETFOCUS", "front WM_DESTROY", "front WM_NCDESTROY"}));
    EXPECT_EQ(GetActiveWindow(), back);
    DestroyWindow(back);
    EXPECT_TRUE(log.Is({WM_NCACTIVATE, WM_ACTIVATE, WM_ACTIVATEAPP, WM_KILLFOCUS, WM_DESTROY},
                       {"back WM_NCACTIVATE 0", "back WM_ACTIVATE 0", "back WM_ACTIVATEAPP 0", "back WM_KILLFOCUS", "back WM_DESTROY"}));
    EXPECT_EQ(GetFocus(), nullptr);
}

}  // namespace
