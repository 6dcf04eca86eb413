// The chain of subclass procedures that the common controls keep for a window.
#include "tests/support/KnownGap.h"
#include "tests/support/MessageLog.h"

#include <commctrl.h>

namespace {

using tests::MessageLog;

std::string trail;
UINT_PTR removesItself = 0;

LRESULT CALLBACK Leave(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data)
{
    if (message == WM_APP) {
        trail += std::to_string(id) + "/" + std::to_string(data) + " ";
        if (removesItself == id)
            RemoveWindowSubclass(window, Leave, id);
        const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
        trail += "-" + std::to_string(id) + " ";
        return result + 1;
    }
    if (message == WM_NCDESTROY)
        trail += "gone" + std::to_string(id) + " ";
    return DefSubclassProc(window, message, wParam, lParam);
}

class Subclassing : public testing::Test {
protected:
    Subclassing() : window_(log_.Create("top", WS_POPUP))
    {
        trail.clear();
        removesItself = 0;
    }
    std::string Trail() { return std::exchange(trail, std::string()); }

    MessageLog log_;
    HWND window_;
};

TEST_F(Subclassing, NewestComesFirstAndAKnownPairOnlyChangesItsData)
{
    const LONG_PTR own = GetWindowLongPtrW(window_, GWLP_WNDPROC);
    for (const UINT_PTR id : {1, 2, 3})
        EXPECT_TRUE(SetWindowSubclass(window_, Leave, id, id * 10));
    EXPECT_TRUE(SetWindowSubclass(window_, Leave, 1, 99));
    EXPECT_EQ(SendMessageW(window_, WM_APP, 0, 0), 3);
    EXPECT_EQ(Trail(), "3/30 2/20 1/99 -1 -2 -3 ");
    EXPECT_TRUE(RemoveWindowSubclass(window_, Leave, 2));
    EXPECT_FALSE(RemoveWindowSubclass(window_, Leave, 2));
    EXPECT_EQ(SendMessageW(window_, WM_APP, 0, 0), 2);
    EXPECT_EQ(Trail(), "3/30 1/99 -1 -3 ");
    RemoveWindowSubclass(window_, Leave, 1);
    RemoveWindowSubclass(window_, Leave, 3);
    EXPECT_EQ(GetWindowLongPtrW(window_, GWLP_WNDPROC), own) << "the last one gives the window its procedure back";
    EXPECT_EQ(SendMessageW(window_, WM_APP, 0, 0), 0);
}

TEST_F(Subclassing, RemovalInsideTheCall_LeavesTheRestOfTheChainInOrder)
{
    for (const UINT_PTR id : {1, 2, 3})
        SetWindowSubclass(window_, Leave, id, 0);
    for (const UINT_PTR id : {2, 3, 1}) {
        removesItself = id;
        SendMessageW(window_, WM_APP, 0, 0);
    }
    EXPECT_EQ(Trail(), "3/0 2/0 1/0 -1 -2 -3 3/0 1/0 -1 -3 1/0 -1 ");
    EXPECT_EQ(SendMessageW(window_, WM_APP, 0, 0), 0);
}

TEST_F(Subclassing, DestroyedWindow_TellsAllAndForgetsThem)
{
    SetWindowSubclass(window_, Leave, 1, 0);
    SetWindowSubclass(window_, Leave, 2, 0);
    DestroyWindow(window_);
    EXPECT_EQ(Trail(), "gone2 gone1 ");
    EXPECT_FALSE(RemoveWindowSubclass(window_, Leave, 1));
    EXPECT_FALSE(SetWindowSubclass(nullptr, Leave, 1, 0));
    KNOWN_GAP("takes a subclass for a window that is gone")
    {
        EXPECT_FALSE(SetWindowSubclass(window_, Leave, 1, 0));
    }
}

}  // namespace
