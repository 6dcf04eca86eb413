// Mouse and keyboard: which window hears of them and what comes before.
#include "tests/support/UserInput.h"

#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;

constexpr DWORD topStyle = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
constexpr DWORD childStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;

class Input : public testing::Test {
protected:
    Input()
        : top_(log_.Create("top", topStyle, nullptr, {100, 100, 400, 300})),
          child_(log_.Create("child", childStyle, top_, {10, 10, 110, 60}))
    {
        tests::MoveMouse(700, 500);  // away from all
        log_.Clear();
    }
    ~Input() override
    {
        tests::MoveMouse(700, 500);
        place_ = (place_ + 1) % 9;
    }

    /// A place on the child; another one in each test, so that no click doubles one of the test before.
    void MoveToChild() { tests::MoveMouse(child_, 10 + 10 * place_, 15); }

    MessageLog log_;
    HWND top_;
    HWND child_;
    static inline int place_ = 0;
};

TEST_F(Input, ClickOnAChildOfAnInactiveWindow_ActivatesFirst)
{
    log_.Create("other", topStyle, nullptr, {500, 100, 600, 200});
    MoveToChild();
    log_.Clear();
    tests::MouseButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(log_.Is({WM_PARENTNOTIFY, WM_MOUSEACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_LBUTTONDOWN},
                        {"top WM_PARENTNOTIFY press", "child WM_MOUSEACTIVATE", "top WM_MOUSEACTIVATE", "other WM_ACTIVATE 0",
                         "top WM_ACTIVATE 2", "top WM_SETFOCUS", "child WM_LBUTTONDOWN"}));
    EXPECT_TRUE(GetKeyState(VK_LBUTTON) < 0);
    tests::MouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(log_.Is({WM_LBUTTONUP, WM_MOUSEACTIVATE}, {"child WM_LBUTTONUP"}));
    EXPECT_FALSE(GetKeyState(VK_LBUTTON) < 0);
}

TEST_F(Input, TwoQuickClicks_AreADoubleClick)
{
    const std::initializer_list<UINT> buttons = {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK};
    MoveToChild();
    for (int click = 0; click < 3; ++click)
        tests::ClickMouse();
    EXPECT_TRUE(log_.Is(buttons, {"child WM_LBUTTONDOWN", "child WM_LBUTTONUP", "child WM_LBUTTONDBLCLK", "child WM_LBUTTONUP",
                                  "child WM_LBUTTONDOWN", "child WM_LBUTTONUP"}));
    tests::PumpMessages(600);
    tests::ClickMouse();
    tests::PumpMessages(600);
    tests::ClickMouse();
    EXPECT_TRUE(log_.Is(buttons, {"child WM_LBUTTONDOWN", "child WM_LBUTTONUP", "child WM_LBUTTONDOWN", "child WM_LBUTTONUP"}))
        << "too late";
}

TEST_F(Input, Leaving_IsToldOnceToTheWindowThatAsked)
{
    const auto track = [&] {
        TRACKMOUSEEVENT request{sizeof request, TME_LEAVE, child_, 0};
        EXPECT_TRUE(TrackMouseEvent(&request));
    };
    const auto wait = [] { tests::PumpMessages(200); };
    tests::MoveMouse(child_, 20, 15);
    track();
    tests::MoveMouse(child_, 25, 15);
    wait();
    EXPECT_TRUE(log_.Is({WM_MOUSELEAVE}, {})) << "still inside";
    tests::MoveMouse(child_, 150, 15);
    wait();
    tests::MoveMouse(child_, 20, 15);
    tests::MoveMouse(700, 500);
    wait();
    EXPECT_TRUE(log_.Is({WM_MOUSELEAVE}, {"child WM_MOUSELEAVE"}));
}

TEST_F(Input, Alt_MakesSystemKeysAndAltF4Closes)
{
    tests::SendKey(VK_MENU);
    tests::PressKey('X');
    EXPECT_TRUE(GetKeyState(VK_MENU) < 0);
    tests::SendKey(VK_MENU, KEYEVENTF_KEYUP);
    EXPECT_TRUE(log_.Is({WM_SYSKEYDOWN, WM_SYSKEYUP, WM_KEYUP, WM_SYSCHAR},
                        {"top WM_SYSKEYDOWN", "top WM_SYSKEYDOWN", "top WM_SYSCHAR 120", "top WM_SYSKEYUP", "top WM_KEYUP"}));
    tests::SendKey(VK_MENU);
    tests::PressKey(VK_F4);
    tests::SendKey(VK_MENU, KEYEVENTF_KEYUP);
    EXPECT_TRUE(log_.Is({WM_SYSCOMMAND, WM_CLOSE}, {"top WM_SYSCOMMAND close", "top WM_CLOSE"}));
}

}  // namespace
