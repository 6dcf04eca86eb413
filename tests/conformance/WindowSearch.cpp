// How windows belong together, and their texts.
#include "tests/support/MessageLog.h"

namespace {

using tests::MessageLog;
using Text = std::basic_string<WCHAR>;

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
