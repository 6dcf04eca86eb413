// Windows of this process and of a helper: lists of them held against a plain enumeration, texts, titles that are looked for, closing.
#include "tests/toolkit/HelperProcess.h"
#include "tests/toolkit/TestWindows.h"
#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

using base::String;
using tests::HelperProcess;

namespace {

using Windows = std::vector<HWND>;

BOOL CALLBACK Take(HWND window, LPARAM list)
{
    reinterpret_cast<Windows*>(list)->push_back(window);
    return TRUE;
}

Windows Descendants(HWND window)
{
    Windows found;
    EnumChildWindows(window, Take, reinterpret_cast<LPARAM>(&found));
    return found;
}

/// The top-level windows of a process, as Windows enumerates them.
Windows TopLevel(DWORD process)
{
    Windows found;
    EnumWindows(Take, reinterpret_cast<LPARAM>(&found));
    std::erase_if(found, [&](HWND window) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        return owner != process;
    });
    return found;
}

bool IsUnowned(HWND window)
{
    return !GetWindow(window, GW_OWNER);
}

bool IsUnownedWithTitle(HWND window)
{
    WCHAR title[2]{};
    return IsUnowned(window) && GetWindowTextW(window, title, 2) > 0;
}

class TaskManLightWindows : public testing::Test {
protected:
    tests::TestWindows windows;
    toolkit::TaskManLight tools;
};

TEST_F(TaskManLightWindows, Lists_AreThoseThatWindowsEnumerates)
{
    for (const std::string script :
         {"top: top:Main owned:Dialog child:Inner inner:Innermost inner: child: top:Second child:Last", "top: child:Titled", ""}) {
        const HelperProcess helper(script);
        const Windows top = TopLevel(helper.Id());
        Windows all, unowned;
        for (const HWND window : top) {
            all.push_back(window);
            const Windows below = Descendants(window);
            all.insert(all.end(), below.begin(), below.end());
            Windows read = {nullptr};
            EXPECT_EQ(tools.GetChildWindows(window, read), std::ssize(below));
            EXPECT_EQ(read, below);
        }
        EXPECT_GE(all.size(), static_cast<std::size_t>(std::count(script.begin(), script.end(), ':')));
        Windows read = {nullptr};
        EXPECT_EQ(tools.GetHWndFromPID(helper.Id(), read), std::ssize(all));
        EXPECT_EQ(read, all) << script;
        EXPECT_GT(tools.GetAllHWnd(read), std::ssize(all) - 1);
        for (const HWND window : all)
            EXPECT_EQ(std::count(read.begin(), read.end(), window), 1);
        std::ranges::copy_if(top, std::back_inserter(unowned), IsUnowned);
        EXPECT_EQ(tools.GetMainWindowsHWndFromPID(helper.Id(), read), std::ssize(unowned));
        EXPECT_EQ(read, unowned) << script;
        const auto main = std::ranges::find_if(top, IsUnownedWithTitle);
        EXPECT_EQ(tools.GetMainWindowFromPID(helper.Id()), main == top.end() ? nullptr : *main) << script;
        for (const HWND window : all)
            EXPECT_EQ(tools.IsMainWindow(window), IsUnownedWithTitle(window));
    }
    EXPECT_EQ(tools.GetMainWindowFromPID(0), nullptr);
}

TEST_F(TaskManLightWindows, CaptionSearch_SeesTopLevelWindowsAndTheirDirectChildren)
{
    const WCHAR* const caption = TEXT("VELMORA-TEST-CAPTION");
    EXPECT_EQ(tools.FindHWndByCaption(caption, false), nullptr);
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, false), 0);
    const HWND other = windows.Top(TEXT("other"));
    windows.Child(other, caption);
    windows.Child(other, caption);
    windows.Child(windows.Child(other, TEXT("inner")), caption);
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, false), 1) << "several children of one window count once";
    EXPECT_EQ(tools.FindHWndByCaption(caption, false), FindWindowExW(other, nullptr, nullptr, caption));
    const HWND first = windows.Top(caption);
    EXPECT_EQ(tools.FindHWndByCaption(caption, false), first);
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, false), 2);
    windows.Top(caption);
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, false), 2) << "further top-level windows do not count";

    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, true), 0) << "all are this process's own";
    EXPECT_EQ(tools.FindHWndByCaption(caption, true), nullptr);
    const HelperProcess helper("top:Outer child:VELMORA-TEST-CAPTION");
    EXPECT_EQ(tools.GetHWndByCaptionCount(caption, true), 1);
    EXPECT_EQ(tools.FindHWndByCaption(caption, true), Descendants(FindWindowW(nullptr, TEXT("Outer"))).front());
}

TEST_F(TaskManLightWindows, Texts_AreReadInFull)
{
    const String longTitle(400, TEXT('t'));
    const HWND window = windows.Top(longTitle);
    EXPECT_EQ(tools.GetWindowTitle(window), longTitle.substr(0, 259));
    EXPECT_EQ(tools.GetLenTextByHWnd(window), 400);
    EXPECT_EQ(tools.GetTextByHWnd(window), longTitle);
    EXPECT_EQ(tools.GetClassNameFromHWnd(window, false), TEXT("VelmoraTestWindow"));
    const HWND edit = CreateWindowExW(0, TEXT("Edit"), TEXT(""), WS_CHILD, 0, 0, 10, 10, window, nullptr, nullptr, nullptr);
    EXPECT_EQ(tools.GetClassNameFromHWnd(edit, true), TEXT("Edit"));
    const HelperProcess helper("top:Elsewhere");
    EXPECT_EQ(tools.GetTextByHWnd(FindWindowW(nullptr, TEXT("Elsewhere"))), TEXT("Elsewhere")) << "asked across processes";
    DestroyWindow(edit);
    EXPECT_FALSE(tools.ExistsWindow(edit));
    EXPECT_EQ(tools.GetWindowTitle(edit), TEXT(""));
    EXPECT_EQ(tools.GetTextByHWnd(edit), TEXT(""));
    EXPECT_EQ(tools.GetLenTextByHWnd(edit), 0);
    EXPECT_EQ(tools.GetPIDFromhWnd(edit), 0u);
}

TEST_F(TaskManLightWindows, AbsurdTextLength_IsALimit)
{
    static WPARAM room = 0;
    static WNDPROC procedure = nullptr;
    const HWND window = windows.Top(TEXT("title"));
    const WNDPROC absurd = [](HWND asked, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (message == WM_GETTEXT)
            room = wParam;
        return message == WM_GETTEXTLENGTH ? 0x7FFFFFFF : CallWindowProcW(procedure, asked, message, wParam, lParam);
    };
    procedure = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(absurd)));
    EXPECT_EQ(tools.GetLenTextByHWnd(window), 0x7FFFFFFF);
    EXPECT_EQ(tools.GetTextByHWnd(window), TEXT("title"));
    EXPECT_EQ(room, 0x1000002u);
}

TEST_F(TaskManLightWindows, ShowingAndClosing_ReachTheWindow)
{
    const HWND window = windows.Top(TEXT("a"));
    EXPECT_FALSE(tools.IsVisibleWindow(window));
    tools.MakeWindowVisible(window);
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_TRUE(tools.IsVisibleWindow(window));
    tools.MakeWindowInvisible(window);
    EXPECT_FALSE(IsWindowVisible(window));
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
    Windows later(windows.Closed().begin() + 1, windows.Closed().end());
    Windows unowned = {untitled, main};
    std::sort(later.begin(), later.end());
    std::sort(unowned.begin(), unowned.end());
    EXPECT_EQ(later, unowned);
}

}  // namespace
