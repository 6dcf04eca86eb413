// The order in which a thread gets what waits for it; timers; sending.
#include "tests/support/MessageLog.h"

#include <algorithm>
#include <vector>

namespace {

using tests::MessageLog;

std::vector<UINT> Take()
{
    std::vector<UINT> taken;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        taken.push_back(message.message);
        if (message.message == WM_PAINT)
            ValidateRect(message.hwnd, nullptr);
    }
    return taken;
}

TEST(MessageQueue, PostedComeBeforeQuitBeforePaint)
{
    MessageLog log;
    const HWND window = log.Create("top", WS_POPUP | WS_VISIBLE, nullptr, {10, 10, 60, 60});
    tests::PumpMessages();
    InvalidateRect(window, nullptr, FALSE);
    PostQuitMessage(7);
    PostMessageW(window, WM_APP + 1, 0, 0);
    PostMessageW(window, WM_APP + 2, 0, 0);
    EXPECT_EQ(Take(), (std::vector<UINT>{WM_APP + 1, WM_APP + 2, WM_QUIT, WM_PAINT}));
    PostQuitMessage(9);
    MSG message;
    EXPECT_FALSE(GetMessageW(&message, nullptr, 0, 0));
    EXPECT_EQ(message.wParam, 9u);
    EXPECT_FALSE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) << "WM_QUIT comes once";
    PostMessageW(window, WM_QUIT, 3, 0);
    EXPECT_FALSE(GetMessageW(&message, nullptr, 0, 0)) << "a posted one ends the loop as well";
}

TEST(MessageQueue, PeriodsThatPassUnheard_AreOneTimerMessageAfterThePosted)
{
    MessageLog log;
    const HWND window = log.Create("top", WS_POPUP);
    SetTimer(window, 8, 20, nullptr);
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < 100)
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 100 - (GetTickCount() - start), 0);
    PostMessageW(window, WM_APP, 0, 0);
    const std::vector<UINT> taken = Take();
    ASSERT_GE(taken.size(), 2u);
    EXPECT_EQ(taken[0], static_cast<UINT>(WM_APP));
    EXPECT_EQ(std::count(taken.begin(), taken.end(), static_cast<UINT>(WM_TIMER)), 1);
    EXPECT_TRUE(KillTimer(window, 8));
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 60, 0);
    EXPECT_EQ(Take(), std::vector<UINT>{});
}

TEST(MessageQueue, Waiting_EndsWithWhatIsAskedFor)
{
    MessageLog log;
    const HWND window = log.Create("top", WS_POPUP);
    const DWORD start = GetTickCount();
    EXPECT_EQ(MsgWaitForMultipleObjects(0, nullptr, FALSE, 40, QS_POSTMESSAGE), static_cast<DWORD>(WAIT_TIMEOUT));
    EXPECT_GE(GetTickCount() - start, 35u);
    PostMessageW(window, WM_APP, 0, 0);
    EXPECT_EQ(HIWORD(GetQueueStatus(QS_POSTMESSAGE)), QS_POSTMESSAGE);
    EXPECT_EQ(Take(), (std::vector<UINT>{WM_APP}));
    EXPECT_EQ(HIWORD(GetQueueStatus(QS_POSTMESSAGE)), 0);
    SetTimer(window, 1, 20, nullptr);
    EXPECT_EQ(MsgWaitForMultipleObjects(0, nullptr, FALSE, 5000, QS_TIMER), 0u);
}

}  // namespace
