// Focus, activation, enabling and capture.
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;

constexpr DWORD topStyle = WS_OVERLAPPEDWINDOW;
constexpr DWORD childStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;

TEST(WindowFocus, SetFocus_ActivatesTheWindowAboveAndTellsBothSides)
{
    MessageLog log;
    const HWND one = log.Create("one", topStyle | WS_VISIBLE);
    const HWND child = log.Create("child", childStyle, one, {0, 0, 40, 20});
    log.Create("other", topStyle | WS_VISIBLE);
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
    const HWND top = log.Create("top", topStyle | WS_VISIBLE);
    const HWND child = log.Create("child", childStyle, top, {0, 0, 40, 20});
    SetFocus(child);
    log.Clear();
    EXPECT_FALSE(EnableWindow(child, FALSE)) << "was it disabled before?";
    EXPECT_TRUE(log.Is({"child WM_CANCELMODE", "child WM_KILLFOCUS", "child WM_ENABLE 0"}));
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_EQ(SetFocus(child), nullptr);
    EXPECT_EQ(GetFocus(), nullptr);
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

}  // namespace
