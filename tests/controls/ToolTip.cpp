#include "controls/CommandButton/CommandButton.h"
#include "tests/controls/FormFixture.h"

#include <commctrl.h>

namespace tests {

class ToolTip : public FormFixture {
protected:
    void SetUp() override { Open("CommandButton B { Width = 1500 Height = 450 TabIndex = 1 }"); }
    controls::CommandButton& Button() { return Get<controls::CommandButton>("B"); }
    HWND Enter()
    {
        SendMessageW(Button().hWnd(), WM_MOUSELEAVE, 0, 0);
        SendMessageW(Button().hWnd(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
        return Button().ToolTipWindow();
    }
    LRESULT Ask(UINT message, WPARAM wParam = 0) { return SendMessageW(Button().ToolTipWindow(), message, wParam, 0); }
};

TEST_F(ToolTip, NoText_MakesNoWindow)
{
    EXPECT_EQ(Enter(), nullptr);
}

TEST_F(ToolTip, Window_LivesFromEntryToLeaveWithThePresentProperties)
{
    Button().ToolTipTextW(TEXT("twenty characters 20"));
    const HWND first = Enter();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(GetWindowLongW(first, GWL_STYLE) & (TTS_ALWAYSTIP | TTS_NOPREFIX | TTS_BALLOON), TTS_ALWAYSTIP | TTS_NOPREFIX);
    EXPECT_EQ(Ask(TTM_GETDELAYTIME, TTDT_AUTOPOP), 6000);
    EXPECT_EQ(Ask(TTM_GETMAXTIPWIDTH), -1);
    EXPECT_EQ(Ask(TTM_GETTOOLCOUNT), 1);
    EXPECT_EQ(static_cast<COLORREF>(Ask(TTM_GETTIPBKCOLOR)), GetSysColor(COLOR_INFOBK));
    SendMessageW(Button().hWnd(), WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    EXPECT_EQ(Button().ToolTipWindow(), first) << "moving inside keeps it";

    Button().ToolTipBalloon(true);
    Button().ToolTipWidth(120);
    Button().TooltipBackColor(0x112233);
    EXPECT_EQ(Ask(TTM_GETMAXTIPWIDTH), -1) << "seen at the next entry only";
    const HWND second = Enter();
    EXPECT_FALSE(IsWindow(first) && first != second);
    EXPECT_NE(GetWindowLongW(second, GWL_STYLE) & TTS_BALLOON, 0);
    EXPECT_EQ(Ask(TTM_GETMAXTIPWIDTH), 120);
    EXPECT_EQ(Ask(TTM_GETTIPBKCOLOR), 0x112233);
    SendMessageW(Button().hWnd(), WM_MOUSELEAVE, 0, 0);
    EXPECT_EQ(Button().ToolTipWindow(), nullptr);
    EXPECT_FALSE(IsWindow(second));
}

TEST_F(ToolTip, TextOfTheContainer_IsTakenOver)
{
    Button().GetExtender().ToolTipText(TEXT("plain"));
    EXPECT_NE(Enter(), nullptr);
    EXPECT_EQ(Button().ToolTipTextW(), TEXT("plain"));
    EXPECT_EQ(Button().GetExtender().ToolTipText(), TEXT(""));
    Button().GetExtender().ToolTipText(TEXT("other"));
    Button().ToolTipTextW(TEXT("own"));
    EXPECT_EQ(Button().GetExtender().ToolTipText(), TEXT(""));
}

TEST_F(ToolTip, Changes_AreToldByTheNamesThatTheButtonUses)
{
    form->PropertyChanged.Connect([&](host::Control&, base::StringView name) { Note(Narrow(name)); });
    Button().TooltipTitle(TEXT("t"));
    Button().ToolTipIcon(1);
    Button().ToolTipBalloon(true);
    Button().TooltipBackColor(1);
    Button().ToolTipForeColor(1);
    EXPECT_EQ(Take(), (Lines{"TooltipTitle", "TooltipIcon", "ToolTipBalloon", "ToolTipBackColor", "ToolTipForeColor"}));
}

TEST_F(ToolTip, FormThatGoesWithATipUp_TakesItAlong)
{
    Button().ToolTipTextW(TEXT("text"));
    const HWND tip = Enter();
    form->Unload();
    EXPECT_FALSE(IsWindow(tip));
}

}  // namespace tests
