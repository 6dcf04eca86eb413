// Focus, activation, enabling and capture.
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;

constexpr DWORD kTop = WS_OVERLAPPEDWINDOW;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;

TEST(WindowFocus, ShownWindow_BecomesActiveBeforeItIsDone)
{
    MessageLog log;
    const HWND window = log.Create("top", kTop);
    log.Clear();
    ShowWindow(window, SW_SHOW);
    EXPECT_TRUE(log.Is({WM_SHOWWINDOW, WM_ACTIVATEAPP, WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_SIZE, WM_MOVE},
                       {"top WM_SHOWWINDOW 1", "top WM_ACTIVATEAPP 1", "top WM_NCACTIVATE 1", "top WM_ACTIVATE 1", "top WM_SETFOCUS",
                        "top WM_SIZE", "top WM_MOVE"}));
    EXPECT_EQ(GetForegroundWindow(), window);
    EXPECT_EQ(GetActiveWindow(), window);
    EXPECT_EQ(GetFocus(), window);
}

TEST(WindowFocus, OtherWindowBecomesActive_TheOldOneIsToldFirst)
{
    MessageLog log;
    const HWND one = log.Create("one", kTop | WS_VISIBLE);
    const HWND other = log.Create("other", kTop | WS_VISIBLE);
    const std::initializer_list<UINT> activation = {WM_NCACTIVATE, WM_ACTIVATE, WM_ACTIVATEAPP, WM_SETFOCUS, WM_KILLFOCUS};
    log.Clear();
    EXPECT_TRUE(SetForegroundWindow(one));
    EXPECT_TRUE(log.Is(activation, {"other WM_NCACTIVATE 0", "other WM_ACTIVATE 0", "one WM_NCACTIVATE 1", "one WM_ACTIVATE 1",
                                    "other WM_KILLFOCUS", "one WM_SETFOCUS"}));
    SetForegroundWindow(other);
    log.Clear();
    ShowWindow(other, SW_HIDE);
    EXPECT_EQ(GetActiveWindow(), one) << "the next one takes over";
    EXPECT_TRUE(log.Is({WM_SHOWWINDOW, WM_ACTIVATE}, {"other WM_SHOWWINDOW 0", "other WM_ACTIVATE 0", "one WM_ACTIVATE 1"}));
    ShowWindow(other, SW_RESTORE);
    EXPECT_TRUE(log.Is({WM_SHOWWINDOW, WM_ACTIVATE}, {"other WM_SHOWWINDOW 1", "one WM_ACTIVATE 0", "other WM_ACTIVATE 1"}));
    EXPECT_TRUE(ShowWindow(one, SW_SHOW));
    EXPECT_TRUE(log.Is({})) << "it is shown already";
    SetWindowPos(one, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(GetActiveWindow(), one) << "unless SWP_NOACTIVATE is asked for";
}

TEST(WindowFocus, SetFocus_ActivatesTheWindowAboveAndTellsBothSides)
{
    MessageLog log;
    const HWND one = log.Create("one", kTop | WS_VISIBLE);
    const HWND child = log.Create("child", kChild, one, {0, 0, 40, 20});
    log.Create("other", kTop | WS_VISIBLE);
    log.Clear();
    EXPECT_EQ(SetFocus(child), one) << "activation had moved the focus there";
    EXPECT_TRUE(log.Is({WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS}, {"other WM_ACTIVATE 0", "one WM_ACTIVATE 1", "other WM_KILLFOCUS",
                                                                  "one WM_SETFOCUS", "one WM_KILLFOCUS", "child WM_SETFOCUS"}));
    EXPECT_EQ(SetFocus(child), child);
    EXPECT_TRUE(log.Is({})) << "it has it already";
    EXPECT_EQ(SetFocus(nullptr), child);
    EXPECT_TRUE(log.Is({WM_SETFOCUS, WM_KILLFOCUS}, {"child WM_KILLFOCUS"}));
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST(WindowFocus, DisabledWindow_LosesTheFocusAndCannotHaveIt)
{
    MessageLog log;
    const HWND top = log.Create("top", kTop | WS_VISIBLE);
    const HWND child = log.Create("child", kChild, top, {0, 0, 40, 20});
    SetFocus(child);
    log.Clear();
    EXPECT_FALSE(EnableWindow(child, FALSE)) << "was it disabled before?";
    EXPECT_TRUE(log.Is({"child WM_CANCELMODE", "child WM_KILLFOCUS", "child WM_ENABLE 0"}));
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_EQ(SetFocus(child), nullptr);
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_TRUE(EnableWindow(child, FALSE));
    EXPECT_TRUE(log.Is({"child WM_CANCELMODE"}));
    EXPECT_TRUE(EnableWindow(child, TRUE));
    EXPECT_TRUE(log.Is({"child WM_ENABLE 1"}));
    SetFocus(child);
    EnableWindow(top, FALSE);
    EXPECT_TRUE(IsWindowEnabled(child)) << "a child keeps its own state";
    EXPECT_EQ(GetFocus(), child) << "and the focus that it has";
    SetFocus(nullptr);
    SetFocus(child);
    EXPECT_EQ(GetFocus(), nullptr) << "but gets none below a disabled window";
}

TEST(WindowFocus, HiddenChild_HandsTheFocusToItsParent)
{
    MessageLog log;
    const HWND top = log.Create("top", kTop | WS_VISIBLE);
    const HWND child = log.Create("child", kChild, top, {0, 0, 40, 20});
    SetFocus(child);
    log.Clear();
    EXPECT_TRUE(ShowWindow(child, SW_HIDE));
    EXPECT_TRUE(log.Is(
        {"child WM_SHOWWINDOW 0", "child WM_WINDOWPOSCHANGING", "child WM_WINDOWPOSCHANGED", "child WM_KILLFOCUS", "top WM_SETFOCUS"}));
}

}  // namespace
