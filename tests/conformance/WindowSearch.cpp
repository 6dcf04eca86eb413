// How windows belong together, and their texts.
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;
using Text = std::basic_string<WCHAR>;

TEST(WindowSearch, Relations_TellParentOwnerAndRoot)
{
    MessageLog log;
    const HWND top = log.Create("top", WS_OVERLAPPEDWINDOW);
    const HWND child = log.Create("child", WS_CHILD, top);
    const HWND popup = log.Create("popup", WS_POPUP, child);
    const HWND owned = log.Create("owned", WS_OVERLAPPED, top);
    EXPECT_EQ(GetParent(child), top);
    EXPECT_EQ(GetWindow(popup, GW_OWNER), top) << "a child cannot own; its top-level window does";
    EXPECT_EQ(GetParent(popup), top);
    EXPECT_EQ(GetParent(owned), nullptr);
    EXPECT_EQ(GetWindow(owned, GW_OWNER), top);
    EXPECT_EQ(GetAncestor(popup, GA_ROOT), popup);
    EXPECT_EQ(GetAncestor(popup, GA_ROOTOWNER), top);
    EXPECT_TRUE(IsChild(top, child));
    EXPECT_FALSE(IsChild(top, popup));
}

TEST(WindowText, IsKeptCutAndCounted)
{
    MessageLog log;
    const HWND window = log.Create("Velmora", WS_POPUP);
    log.Clear();
    WCHAR text[8] = {};
    EXPECT_EQ(GetWindowTextW(window, text, 4), 3);
    EXPECT_EQ(Text(text), TEXT("Vel"));
    EXPECT_EQ(GetWindowTextLengthW(window), 7);
    EXPECT_TRUE(SetWindowTextW(window, TEXT("Other")));
    EXPECT_TRUE(log.Is({"Velmora WM_SETTEXT"}));
    EXPECT_EQ(InternalGetWindowText(window, text, 8), 5);
    EXPECT_EQ(Text(text), TEXT("Other"));
}

}  // namespace
