// The coming and going of tips on the stand-in PC, by its own clock and mouse.
#include "platform/sim/Desktop.h"
#include "platform/sim/SimPc.h"
#include "tests/support/ControlParent.h"

#include <commctrl.h>

#include <gtest/gtest.h>

namespace {

using platform::SimPc;

class TooltipTime : public testing::Test {
protected:
    void SetUp() override
    {
        pc_.OnPump([] {
            MSG message{};
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                DispatchMessageW(&message);
        });
        tool_ = parent_.Add(TEXT("Button"), BS_3STATE, TEXT("Tool"), 100, 30);
        tooltip_ = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                   CW_USEDEFAULT, tool_, nullptr, nullptr, nullptr);
        AddTool(TTF_SUBCLASS);
    }
    void AddTool(UINT flags)
    {
        TOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.uFlags = flags;
        tool.hwnd = tool_;
        GetClientRect(tool_, &tool.rect);
        base::String text = TEXT("What this is for");
        tool.lpszText = text.data();
        SendMessageW(tooltip_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        SendMessageW(tooltip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    [[nodiscard]] bool Shown() const { return IsWindowVisible(tooltip_) != FALSE; }

    SimPc& pc_ = SimPc::Current();
    platform::Desktop& desktop_ = pc_.Get<platform::Desktop>();
    tests::ControlParent parent_;
    HWND tool_ = nullptr;
    HWND tooltip_ = nullptr;
};

TEST_F(TooltipTime, Tip_ComesAfterTheMouseHasRestedForHalfASecond)
{
    desktop_.Hover(tool_, 10, 10);
    pc_.Advance(400);
    desktop_.Hover(tool_, 12, 10);
    pc_.Advance(400);
    EXPECT_FALSE(Shown()) << "each move starts the wait anew";
    pc_.Advance(150);
    EXPECT_TRUE(Shown());
    EXPECT_NE(GetForegroundWindow(), tooltip_);
}

TEST_F(TooltipTime, Tip_GoesAfterItsTimeAndStaysAwayUntilTheMouseComesBack)
{
    SendMessageW(tooltip_, TTM_SETDELAYTIME, TTDT_AUTOPOP, 6000);
    desktop_.Hover(tool_, 10, 10);
    pc_.Advance(550);
    pc_.Advance(5800);
    EXPECT_TRUE(Shown());
    pc_.Advance(300);
    EXPECT_FALSE(Shown());
    desktop_.Hover(tool_, 20, 10);
    pc_.Advance(2000);
    EXPECT_FALSE(Shown());
    desktop_.Hover(parent_.Window(), 300, 300);
    pc_.Advance(200);
    desktop_.Hover(tool_, 20, 10);
    pc_.Advance(600);
    EXPECT_TRUE(Shown());
}

TEST_F(TooltipTime, CenteredTip_StandsBelowTheMiddleOfItsTool)
{
    AddTool(TTF_SUBCLASS | TTF_CENTERTIP);
    SendMessageW(tooltip_, TTM_SETMAXTIPWIDTH, 0, -1);
    desktop_.Hover(tool_, 90, 10);
    pc_.Advance(600);
    ASSERT_TRUE(Shown());
    RECT tool{};
    RECT tip{};
    GetWindowRect(tool_, &tool);
    GetWindowRect(tooltip_, &tip);
    EXPECT_NEAR((tool.left + tool.right) / 2, (tip.left + tip.right) / 2, 1);
    EXPECT_EQ(tip.top, tool.bottom);
    const LONG narrow = tip.bottom - tip.top;
    SendMessageW(tooltip_, TTM_SETTITLEW, TTI_INFO, reinterpret_cast<LPARAM>(TEXT("Title")));
    SendMessageW(tooltip_, TTM_POP, 0, 0);
    desktop_.Hover(parent_.Window(), 300, 300);
    pc_.Advance(200);
    desktop_.Hover(tool_, 90, 10);
    pc_.Advance(600);
    GetWindowRect(tooltip_, &tip);
    EXPECT_GT(tip.bottom - tip.top, narrow) << "the title takes a row of its own";
}

}  // namespace
