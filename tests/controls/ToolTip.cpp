#include "controls/CommandButton/CommandButton.h"
#include "tests/controls/FormFixture.h"
#include "tests/support/MessageLog.h"
#include "tests/support/UserInput.h"

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

TEST_F(ToolTip, Window_IsMadeAtEachEntryFromThePropertiesOfThatMoment)
{
    const struct {
        const WCHAR* text;
        bool balloon, centred;
        int width;
        controls::OleColor back, fore;
        LONG style;
        UINT flags;
        LRESULT stays, widest;
        COLORREF backShown, foreShown;
    } entries[] = {{TEXT("twenty characters 20"), false, false, 0, 0x80000018, 0x80000017, TTS_ALWAYSTIP | TTS_NOPREFIX, TTF_SUBCLASS, 6000,
                    -1, GetSysColor(COLOR_INFOBK), GetSysColor(COLOR_INFOTEXT)},
                   {TEXT("x"), true, true, 120, 0x112233, 0x445566, TTS_ALWAYSTIP | TTS_NOPREFIX | TTS_BALLOON,
                    TTF_SUBCLASS | TTF_CENTERTIP, 5050, 120, 0x112233, 0x445566},
                   {TEXT("&y"), false, true, 50, 0x7F000000, 0x7F000000, TTS_ALWAYSTIP | TTS_NOPREFIX, TTF_SUBCLASS | TTF_CENTERTIP, 5100,
                    50, CLR_INVALID, CLR_INVALID}};
    HWND tip = nullptr;
    LRESULT widest = 0;
    for (const auto& entry : entries) {
        Button().ToolTipTextW(entry.text);
        Button().ToolTipBalloon(entry.balloon);
        Button().ToolTipCentred(entry.centred);
        Button().ToolTipWidth(entry.width);
        Button().TooltipBackColor(entry.back);
        Button().ToolTipForeColor(entry.fore);
        SendMessageW(Button().hWnd(), WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
        if (tip) {
            EXPECT_EQ(Button().ToolTipWindow(), tip) << "moving inside keeps it";
            EXPECT_EQ(Ask(TTM_GETMAXTIPWIDTH), widest) << "a change is seen at the next entry only";
        }
        tip = Enter();
        widest = entry.widest;
        EXPECT_EQ(GetWindowLongW(tip, GWL_STYLE) & 0xFFFF, entry.style);
        EXPECT_EQ(GetWindow(tip, GW_OWNER), GetAncestor(Button().hWnd(), GA_ROOT));
        EXPECT_EQ(Ask(TTM_GETDELAYTIME, TTDT_AUTOPOP), entry.stays);
        EXPECT_EQ(Ask(TTM_GETMAXTIPWIDTH), entry.widest);
        EXPECT_EQ(static_cast<COLORREF>(Ask(TTM_GETTIPBKCOLOR)), entry.backShown);
        EXPECT_EQ(static_cast<COLORREF>(Ask(TTM_GETTIPTEXTCOLOR)), entry.foreShown);
        ASSERT_EQ(Ask(TTM_GETTOOLCOUNT), 1);
        WCHAR text[80] = {};
        TOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = Button().hWnd();
        tool.lpszText = text;
        SendMessageW(tip, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool));
        EXPECT_EQ(base::String(text), entry.text);
        EXPECT_EQ(tool.uFlags, entry.flags);
        RECT client{};
        GetClientRect(Button().hWnd(), &client);
        EXPECT_EQ(PlaceOf(tool.rect), PlaceOf(client));
    }
    SendMessageW(Button().hWnd(), WM_MOUSELEAVE, 0, 0);
    EXPECT_EQ(Button().ToolTipWindow(), nullptr);
    EXPECT_FALSE(IsWindow(tip));
}

TEST_F(ToolTip, RestingMouse_BringsItAndOnlyLeavingTakesIt)
{
    Button().ToolTipTextW(TEXT("text"));
    Button().ToolTipIcon(TTI_INFO);
    const WCHAR* const titles[] = {TEXT(""), TEXT("A title")};
    LONG heights[2] = {};
    for (int entry = 0; entry < 2; ++entry) {
        Button().TooltipTitle(titles[entry]);
        // The tip is made with the first move and hears of the mouse from the second one on.
        MoveMouse(Button().hWnd(), 10, 10);
        MoveMouse(Button().hWnd(), 12, 10);
        const HWND tip = Button().ToolTipWindow();
        PumpMessages(800);
        ASSERT_TRUE(IsWindowVisible(tip));
        RECT place{};
        GetWindowRect(tip, &place);
        heights[entry] = place.bottom - place.top;
        // The mouse goes while its message still waits: the tip's own look at it would hide the tip.
        ParkMouse();
        EXPECT_EQ(SendMessageW(tip, WM_TIMER, 3, 0), 0);
        EXPECT_TRUE(IsWindowVisible(tip));
        for (int tries = 0; IsWindow(tip) && tries < 40; ++tries)
            PumpMessages(50);
        EXPECT_FALSE(IsWindow(tip));
    }
    EXPECT_GT(heights[1], heights[0] + 10) << "an icon without a title takes no room, a title does";
}

TEST_F(ToolTip, TextOfTheContainer_IsTakenOverByWhatIsShownExceptInADesigner)
{
    EXPECT_EQ(Enter(), nullptr) << "without a text there is no window";
    for (const char* const kind : {"Frame", "CommandButton", "CheckBox", "TextBox"})
        for (const bool userMode : {true, false}) {
            Open(std::string(kind) + " C { Width = 1500 Height = 450 ToolTipText = \"plain\" }", userMode);
            auto& tip = dynamic_cast<controls::ToolTip&>(Any("C"));
            host::Extender& extender = Any("C").GetExtender();
            EXPECT_EQ(tip.ToolTipTextW(), userMode ? TEXT("plain") : TEXT("")) << kind;
            EXPECT_EQ(extender.ToolTipText(), userMode ? TEXT("") : TEXT("plain")) << kind;
            extender.ToolTipText(TEXT("other"));
            SendMessageW(Any("C").hWnd(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
            EXPECT_EQ(tip.ToolTipTextW(), userMode ? TEXT("other") : TEXT("")) << kind;
            EXPECT_EQ(extender.ToolTipText(), userMode ? TEXT("") : TEXT("other")) << kind;
            tip.ToolTipTextW(TEXT("own"));
            EXPECT_EQ(extender.ToolTipText(), TEXT("")) << kind;
        }
}

}  // namespace tests
