#include "controls/DSubclass.h"

#include "controls/OutOfMemory.h"
#include "platform/sim/SimPc.h"
#include "tests/controls/PlainWindow.h"
#include "tests/support/FailingMemory.h"

#include <gtest/gtest.h>

namespace tests {

TEST(DSubclass, OutOfMemory_IsThrownWithEverythingUndone)
{
    for (const char* const call : {"HeapCreate", "HeapAlloc", "SetEnvironmentVariableW"}) {
        const PlainWindow window;
        controls::DSubclass subclass;
        platform::SimPc::Current().GetFaults().FailCall(call, ERROR_NOT_ENOUGH_MEMORY);
        EXPECT_THROW(subclass.Enable(window.Get()), controls::OutOfMemory) << call;
        EXPECT_FALSE(subclass.IsSubclassed());
        EXPECT_TRUE(Published(window.Get()).empty() || Published(window.Get()) == TEXT("00000000")) << call;
        EXPECT_TRUE(subclass.TryEnable(window.Get())) << call;
    }
}

TEST(DSubclass, OutOfMemoryAnywhere_IsAFailureThatLeavesNothing)
{
    const PlainWindow window;
    for (std::int64_t n = 1;; ++n) {
        {
            controls::DSubclass subclass;
            bool enabled = false, struck = false;
            {
                const FailingMemory memory(n);
                enabled = subclass.TryEnable(window.Get());
                struck = FailingMemory::HasStruck();
            }
            EXPECT_EQ(enabled, subclass.IsSubclassed()) << n;
            EXPECT_NE(enabled, struck) << n;
            if (!struck) {
                EXPECT_GT(n, 4) << "the object, its heap's name and entry, and its route";
                break;
            }
            EXPECT_TRUE(subclass.TryEnable(window.Get())) << "there is memory again after " << n;
        }
        EXPECT_TRUE(Published(window.Get()).empty() || Published(window.Get()) == TEXT("00000000")) << n;
    }
}

TEST(DSubclass, BlockThatIsRefused_LeavesTheOthersHeapAlone)
{
    const PlainWindow window;
    controls::DSubclass first, second;
    first.Enable(window.Get());
    const base::String heap = Published(window.Get());
    platform::SimPc::Current().GetFaults().FailCall("HeapAlloc", ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_THROW(second.Enable(window.Get()), controls::OutOfMemory);
    EXPECT_EQ(Published(window.Get()), heap);
}

TEST(DSubclass, WalkThatBreaksOff_CountsNothing)
{
    // The region is walked first, then the two blocks: any of the steps may fail.
    for (const int step : {1, 2, 3, 4}) {
        const PlainWindow window;
        controls::DSubclass kept;
        kept.Enable(window.Get());
        {
            controls::DSubclass released;
            released.Enable(window.Get());
            platform::SimPc::Current().GetFaults().FailCall("HeapWalk", ERROR_INVALID_PARAMETER, step);
        }
        EXPECT_NE(Published(window.Get()), TEXT("00000000")) << step;
    }
}

TEST(DSubclass, WindowThatDoesNotLetGo_KeepsTheObject)
{
    const PlainWindow window, other;
    int heard = 0;
    {
        controls::DSubclass subclass;
        subclass.WndProc.Connect([&](HWND, UINT message, WPARAM, LPARAM, LRESULT&, bool&) { heard += message == WM_APP; });
        subclass.Enable(window.Get());
        platform::SimPc::Current().GetFaults().FailAlways("RemoveWindowSubclass", ERROR_INVALID_PARAMETER);
        EXPECT_FALSE(subclass.Disable());
        EXPECT_TRUE(subclass.IsSubclassed());
        EXPECT_FALSE(subclass.Enable(other.Get()));
        EXPECT_EQ(subclass.hWnd(), window.Get());
        SendMessageW(window.Get(), WM_APP, 0, 0);
        EXPECT_EQ(heard, 1);
    }
    // The link is still in the window's chain, but what it stood for is gone.
    SendMessageW(window.Get(), WM_APP, 0, 0);
    EXPECT_EQ(heard, 1);
    platform::SimPc::Current().GetFaults().Clear();
}

TEST(DSubclass, RefusedSubclass_LeavesTheObjectFree)
{
    const PlainWindow window;
    controls::DSubclass subclass;
    platform::SimPc::Current().GetFaults().FailCall("SetWindowSubclass", ERROR_INVALID_PARAMETER);
    EXPECT_FALSE(subclass.Enable(window.Get()));
    EXPECT_FALSE(subclass.IsSubclassed());
}

}  // namespace tests
