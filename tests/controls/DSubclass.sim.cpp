#include "controls/DSubclass.h"

#include "controls/OutOfMemory.h"
#include "controls/SubclassHeap.h"
#include "platform/sim/SimPc.h"
#include "tests/support/FailingMemory.h"

#include <gtest/gtest.h>

namespace tests {

namespace {

HWND MakeWindow()
{
    return CreateWindowExW(0, TEXT("Static"), nullptr, WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
}

/// The heap that is published for the window, as text; empty or eight zeros for none.
base::String Published(HWND window)
{
    WCHAR text[9]{};
    GetEnvironmentVariableW(controls::HeapName(window).c_str(), text, 9);
    return text;
}

}  // namespace

TEST(DSubclass, WantOfMemory_IsRaisedWithEverythingUndone)
{
    for (const char* const call : {"HeapCreate", "HeapAlloc", "SetEnvironmentVariableW"}) {
        const HWND window = MakeWindow();
        controls::DSubclass subclass;
        platform::SimPc::Current().GetFaults().FailCall(call, ERROR_NOT_ENOUGH_MEMORY);
        EXPECT_THROW(subclass.Enable(window), controls::OutOfMemory) << call;
        EXPECT_FALSE(subclass.IsSubclassed());
        EXPECT_TRUE(Published(window).empty() || Published(window) == TEXT("00000000")) << call;
        EXPECT_TRUE(subclass.TryEnable(window)) << call;
        DestroyWindow(window);
    }
}

TEST(DSubclass, WantOfMemoryAnywhere_IsAFailureThatLeavesNothing)
{
    const HWND window = MakeWindow();
    for (std::int64_t n = 1;; ++n) {
        {
            controls::DSubclass subclass;
            bool enabled = false, struck = false;
            {
                const FailingMemory memory(n);
                enabled = subclass.TryEnable(window);
                struck = FailingMemory::HasStruck();
            }
            EXPECT_EQ(enabled, subclass.IsSubclassed()) << n;
            EXPECT_NE(enabled, struck) << n;
            if (!struck) {
                EXPECT_GT(n, 4) << "the object, its heap's name and entry, and its route";
                break;
            }
            EXPECT_TRUE(subclass.TryEnable(window)) << "there is memory again after " << n;
        }
        EXPECT_TRUE(Published(window).empty() || Published(window) == TEXT("00000000")) << n;
    }
    DestroyWindow(window);
}

TEST(DSubclass, WantOfABlock_LeavesTheOthersHeapAlone)
{
    const HWND window = MakeWindow();
    controls::DSubclass first, second;
    first.Enable(window);
    const base::String heap = Published(window);
    platform::SimPc::Current().GetFaults().FailCall("HeapAlloc", ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_THROW(second.Enable(window), controls::OutOfMemory);
    EXPECT_EQ(Published(window), heap);
    DestroyWindow(window);
}

TEST(DSubclass, WalkThatBreaksOff_CountsNothing)
{
    // The region is walked first, then the two blocks: any of the steps may fail.
    for (const int step : {1, 2, 3, 4}) {
        const HWND window = MakeWindow();
        controls::DSubclass kept;
        kept.Enable(window);
        {
            controls::DSubclass released;
            released.Enable(window);
            platform::SimPc::Current().GetFaults().FailCall("HeapWalk", ERROR_INVALID_PARAMETER, step);
        }
        EXPECT_NE(Published(window), TEXT("00000000")) << step;
        DestroyWindow(window);
    }
}

TEST(DSubclass, WindowThatDoesNotLetGo_KeepsTheObject)
{
    const HWND window = MakeWindow(), other = MakeWindow();
    int heard = 0;
    {
        controls::DSubclass subclass;
        subclass.WndProc.Connect([&](HWND, UINT message, WPARAM, LPARAM, LRESULT&, bool&) { heard += message == WM_APP; });
        subclass.Enable(window);
        platform::SimPc::Current().GetFaults().FailAlways("RemoveWindowSubclass", ERROR_INVALID_PARAMETER);
        EXPECT_FALSE(subclass.Disable());
        EXPECT_TRUE(subclass.IsSubclassed());
        EXPECT_FALSE(subclass.Enable(other));
        EXPECT_EQ(subclass.hWnd(), window);
        SendMessageW(window, WM_APP, 0, 0);
        EXPECT_EQ(heard, 1);
    }
    // The link is still in the window's chain, but what it stood for is gone.
    SendMessageW(window, WM_APP, 0, 0);
    EXPECT_EQ(heard, 1);
    platform::SimPc::Current().GetFaults().Clear();
    DestroyWindow(window);
    DestroyWindow(other);
}

TEST(DSubclass, RefusedSubclass_LeavesTheObjectFree)
{
    const HWND window = MakeWindow();
    controls::DSubclass subclass;
    platform::SimPc::Current().GetFaults().FailCall("SetWindowSubclass", ERROR_INVALID_PARAMETER);
    EXPECT_FALSE(subclass.Enable(window));
    EXPECT_FALSE(subclass.IsSubclassed());
    DestroyWindow(window);
}

}  // namespace tests
