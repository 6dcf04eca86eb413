#include "tests/toolkit/TestWindows.h"
#include "toolkit/TaskManLight.h"
#include "toolkit/WinMngHLP.h"

#include <gtest/gtest.h>

#include <algorithm>

using base::String;

namespace {

using Windows = std::vector<HWND>;

bool Holds(const Windows& windows, HWND window)
{
    return std::count(windows.begin(), windows.end(), window) == 1;
}

class TaskManLightWindows : public testing::Test {
protected:
    tests::TestWindows windows;
    toolkit::TaskManLight tools;
};

TEST_F(TaskManLightWindows, Descendants_FollowTheirTopLevelWindow)
{
    const HWND top = windows.Top(TEXT("top"));
    const HWND child = windows.Child(top, TEXT("child"));
    const HWND grandchild = windows.Child(child, TEXT("grandchild"));
    Windows found;
    const int count = tools.GetHWndFromPID(tools.GetMyPID(), found);
    EXPECT_EQ(count, std::ssize(found));
    const auto at = std::find(found.begin(), found.end(), top);
    ASSERT_GE(found.end() - at, 3);
    EXPECT_EQ(Windows(at, at + 3), (Windows{top, child, grandchild}));
    EXPECT_EQ(tools.GetChildWindows(top, found), 2);
    EXPECT_EQ(found, (Windows{child, grandchild}));
    EXPECT_EQ(tools.GetChildWindows(grandchild, found), 0);
    EXPECT_TRUE(found.empty()) << "the old contents are gone";
    EXPECT_GE(tools.GetAllHWnd(found), 3);
    EXPECT_TRUE(Holds(found, grandchild));
}

TEST_F(TaskManLightWindows, MainWindow_HasNoOwnerAndATitle)
{
    const HWND untitled = windows.Top(TEXT(""));
    EXPECT_FALSE(tools.IsMainWindow(untitled));
    const HWND main = windows.Top(TEXT("main"));
    const HWND owned = windows.Top(TEXT("dialog"), main);
    EXPECT_TRUE(tools.IsMainWindow(main));
    EXPECT_FALSE(tools.IsMainWindow(owned));
    EXPECT_EQ(tools.GetMainWindowFromPID(tools.GetMyPID()), main);
    EXPECT_EQ(tools.GetMainWindowFromPID(0), nullptr);
    Windows unowned;
    const int count = tools.GetMainWindowsHWndFromPID(tools.GetMyPID(), unowned);
    EXPECT_EQ(count, std::ssize(unowned));
    EXPECT_TRUE(Holds(unowned, untitled));
    EXPECT_TRUE(Holds(unowned, main));
    EXPECT_FALSE(Holds(unowned, owned));
}

TEST_F(TaskManLightWindows, CaptionSearch_SeesTopLevelWindowsAndTheirDirectChildren)
{
    const WCHAR* const caption = TEXT("VELMORA-TEST-CAPTION");
    EXPECT_EQ(tools.FindHWndByCaption(caption, false), nullptr);
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, false), 0);

    const HWND other = windows.Top(TEXT("other"));
    const HWND child = windows.Child(other, caption);
    windows.Child(other, caption);
    windows.Child(windows.Child(other, TEXT("inner")), caption);
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, false), 1) << "several children of one window count once";
    const HWND found = tools.FindHWndByCaption(caption, false);
    EXPECT_EQ(GetParent(found), other);
    EXPECT_TRUE(IsWindow(child));

    const HWND first = windows.Top(caption);
    EXPECT_EQ(tools.FindHWndByCaption(caption, false), first);
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, false), 2);
    windows.Top(caption);
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, false), 2) << "further top-level windows do not count";

    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, true), 0) << "all are this process's own";
    EXPECT_EQ(tools.FindHWndByCaption(caption, true), nullptr);
}

TEST_F(TaskManLightWindows, NestedCollection_ReturnsMinusOneAndLeavesTheList)
{
    windows.Top(TEXT("a"));
    toolkit::CurrentWindowCollection().Busy = 1;
    const HWND before = reinterpret_cast<HWND>(8);
    Windows list = {before};
    std::vector<DWORD> processes = {7};
    EXPECT_EQ(tools.GetHWndFromPID(tools.GetMyPID(), list), -1);
    EXPECT_EQ(tools.GetAllHWnd(list), -1);
    EXPECT_EQ(tools.GetChildWindows(GetDesktopWindow(), list), -1);
    EXPECT_EQ(toolkit::CollectTopLevelWindows(0, list), -1);
    EXPECT_EQ(toolkit::CollectWindowOwnerPIDs(processes), -1);
    EXPECT_EQ(list, Windows{before});
    EXPECT_EQ(processes, std::vector<DWORD>{7});
    EXPECT_EQ(tools.GetMainWindowFromPID(tools.GetMyPID()), nullptr);
    toolkit::CurrentWindowCollection().Busy = 0;
    EXPECT_GT(tools.GetHWndFromPID(tools.GetMyPID(), list), 0);
}

TEST_F(TaskManLightWindows, Texts_AreReadInFull)
{
    const String longTitle(400, TEXT('t'));
    const HWND window = windows.Top(longTitle.c_str());
    EXPECT_EQ(tools.GetWindowTitle(window), longTitle.substr(0, 259));
    EXPECT_EQ(tools.GetLenTextByHWnd(window), 400);
    EXPECT_EQ(tools.GetTextByHWnd(window), longTitle);
    EXPECT_EQ(tools.GetClassNameFromHWnd(window, false), TEXT("VelmoraTestWindow"));
    const HWND gone = windows.Child(window, TEXT("x"));
    DestroyWindow(gone);
    EXPECT_FALSE(tools.ExistsWindow(gone));
    EXPECT_EQ(tools.GetWindowTitle(gone), TEXT(""));
    EXPECT_EQ(tools.GetTextByHWnd(gone), TEXT(""));
    EXPECT_EQ(tools.GetLenTextByHWnd(gone), 0);
    EXPECT_EQ(tools.GetPIDFromhWnd(gone), 0u);
}

TEST_F(TaskManLightWindows, RealClass_IsTheOneBehindASuperclass)
{
    const HWND edit = CreateWindowExW(0, TEXT("Edit"), TEXT(""), WS_CHILD, 0, 0, 10, 10, windows.Top(TEXT("a")), nullptr, nullptr, nullptr);
    EXPECT_EQ(tools.GetClassNameFromHWnd(edit, true), TEXT("Edit"));
}

TEST_F(TaskManLightWindows, ShowingAndClosing_ReachTheWindow)
{
    const HWND window = windows.Top(TEXT("a"));
    EXPECT_FALSE(tools.IsVisibleWindow(window));
    tools.MakeWindowVisible(window);
    EXPECT_TRUE(tools.IsVisibleWindow(window));
    tools.MakeWindowInvisible(window);
    EXPECT_FALSE(tools.IsVisibleWindow(window));
    EXPECT_TRUE(tools.IsEnabledWindow(window));
    EnableWindow(window, FALSE);
    EXPECT_FALSE(tools.IsEnabledWindow(window));
    tools.CloseWindow(window);
    EXPECT_TRUE(windows.Closed().empty()) << "the message is posted";
    windows.HandleMessages();
    EXPECT_EQ(windows.Closed(), Windows{window});
}

TEST_F(TaskManLightWindows, PoliteClose_AsksTheMainWindowFirstAndThenEachUnownedOne)
{
    const HWND untitled = windows.Top(TEXT(""));
    const HWND main = windows.Top(TEXT("main"));
    windows.Top(TEXT("dialog"), main);
    EXPECT_EQ(tools.CloseProcessByPID(tools.GetMyPID()), 1);
    EXPECT_EQ(windows.Closed(), Windows{main}) << "pending messages were handled in between";
    windows.HandleMessages();
    Windows closed = windows.Closed();
    std::sort(closed.begin() + 1, closed.end());
    Windows later = {untitled, main};
    std::sort(later.begin(), later.end());
    EXPECT_EQ(Windows(closed.begin() + 1, closed.end()), later);
    EXPECT_EQ(tools.CloseProcessByPID(0), 0);
}

TEST_F(TaskManLightWindows, ActivateMyWindow_ShowsTheFormThatTheApplicationNames)
{
    tools.ActivateMyWindow();
    tools.FirstFormWindow = [] { return HWND{}; };
    tools.ActivateMyWindow();
    const HWND window = windows.Top(TEXT("form"));
    tools.FirstFormWindow = [window] { return window; };
    tools.ActivateMyWindow();
    windows.HandleMessages();
    EXPECT_TRUE(tools.IsVisibleWindow(window));
    LockSetForegroundWindow(LSFW_UNLOCK);
}

}  // namespace
