// Finding and listing windows, reading what is kept with them.
#include "tests/support/MessageLog.h"

#include <algorithm>
#include <vector>

namespace {

using tests::MessageLog;
using Text = std::basic_string<WCHAR>;

std::vector<HWND> seen;

BOOL CALLBACK See(HWND window, LPARAM)
{
    seen.push_back(window);
    return TRUE;
}

BOOL CALLBACK SeeTwo(HWND window, LPARAM)
{
    seen.push_back(window);
    return seen.size() < 2;
}

TEST(WindowSearch, FindWindow_ComparesWholeTextsWithoutRegardToCase)
{
    MessageLog log;
    const HWND top = log.Create("Quite A Caption", WS_POPUP);
    const HWND child = log.Create("Inner", WS_CHILD, top);
    EXPECT_EQ(FindWindowW(nullptr, TEXT("quite a caption")), top);
    EXPECT_EQ(FindWindowA("MESSAGELOGWINDOW", "Quite A Caption"), top);
    EXPECT_EQ(FindWindowW(nullptr, TEXT("Quite A")), nullptr);
    EXPECT_EQ(FindWindowW(TEXT("Button"), TEXT("Quite A Caption")), nullptr);
    EXPECT_EQ(FindWindowW(nullptr, TEXT("Inner")), nullptr) << "children are not looked at";
    EXPECT_EQ(FindWindowExW(top, nullptr, nullptr, TEXT("inner")), child);
    const HWND second = log.Create("Inner", WS_CHILD, top);
    EXPECT_EQ(FindWindowExW(top, child, nullptr, TEXT("Inner")), second);
    EXPECT_EQ(FindWindowExA(top, second, nullptr, "Inner"), nullptr);
}

TEST(WindowSearch, Enumeration_GoesFromTheFrontAndIntoDepth)
{
    MessageLog log;
    const HWND back = log.Create("back", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND front = log.Create("front", WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND hidden = log.Create("hidden", WS_POPUP);
    const HWND first = log.Create("first", WS_CHILD, back);
    const HWND inside = log.Create("inside", WS_CHILD, first);
    const HWND second = log.Create("second", WS_CHILD, back);
    seen.clear();
    EXPECT_TRUE(EnumWindows(See, 0));
    const auto at = [](HWND window) { return std::find(seen.begin(), seen.end(), window) - seen.begin(); };
    EXPECT_LT(at(front), at(back));
    EXPECT_LT(at(hidden), static_cast<std::ptrdiff_t>(seen.size()));
    EXPECT_EQ(at(first), static_cast<std::ptrdiff_t>(seen.size())) << "no children";
    seen.clear();
    EnumChildWindows(back, See, 0);
    EXPECT_EQ(seen, (std::vector<HWND>{first, inside, second}));
    seen.clear();
    EXPECT_FALSE(EnumWindows(SeeTwo, 0));
    EXPECT_EQ(seen.size(), 2u);
}

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
    EXPECT_EQ(GetAncestor(top, GA_PARENT), GetDesktopWindow());
    EXPECT_TRUE(IsChild(top, child));
    EXPECT_FALSE(IsChild(top, popup));
    EXPECT_FALSE(IsChild(top, top));
    DWORD process = 0;
    EXPECT_EQ(GetWindowThreadProcessId(child, &process), GetCurrentThreadId());
    EXPECT_EQ(process, GetCurrentProcessId());
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
    EXPECT_TRUE(SetWindowTextW(window, nullptr));
    EXPECT_EQ(GetWindowTextW(window, text, 8), 0);
    EXPECT_EQ(text[0], 0);
}

TEST(WindowProperties, AreFoundUntilRemoved)
{
    MessageLog log;
    const HWND window = log.Create("top", WS_POPUP);
    EXPECT_EQ(GetPropW(window, TEXT("mark")), nullptr);
    EXPECT_TRUE(SetPropW(window, TEXT("mark"), reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(42))));
    EXPECT_EQ(GetPropW(window, TEXT("mark")), reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(42)));
    EXPECT_EQ(RemovePropW(window, TEXT("mark")), reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(42)));
    EXPECT_EQ(RemovePropW(window, TEXT("mark")), nullptr);
}

}  // namespace
