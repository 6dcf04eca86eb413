#include "controls/CommandButton/CommandButton.h"

#include "controls/CommandButton/CommandButtonStyles.h"
#include "tests/controls/FormFixture.h"

#include <algorithm>

namespace tests {

class CommandButton : public FormFixture {
protected:
    void SetUp() override { Open(R"(CommandButton B { Width = 1500 Height = 450 TabIndex = 1 Caption = "&Go" })"); }
    controls::CommandButton& Button() { return Get<controls::CommandButton>("B"); }
    void LogEvents()
    {
        using std::to_string;
        controls::CommandButton& button = Button();
        button.Click.Connect([&] { Note("Click"); });
        button.DblClick.Connect([&] { Note("DblClick"); });
        button.MouseEnter.Connect([&] { Note("MouseEnter"); });
        button.MouseLeave.Connect([&] { Note("MouseLeave"); });
        button.ContextMenu.Connect([&] { Note("ContextMenu"); });
        button.MouseDown.Connect([&](std::int16_t& which, std::int16_t&, float& x, float& y) {
            Note("MouseDown " + to_string(which) + " " + to_string(int(x)) + "," + to_string(int(y)));
        });
        button.MouseMove.Connect([&](std::int16_t&, std::int16_t&, float&, float&) { Note("MouseMove"); });
        button.MouseUp.Connect([&](std::int16_t& which, std::int16_t&, float&, float&) { Note("MouseUp " + to_string(which)); });
        button.KeyDown.Connect([&](std::int16_t& code, std::int16_t&) { Note("KeyDown " + to_string(code)); });
        button.KeyPress.Connect([&](std::int16_t& code) { Note("KeyPress " + to_string(code)); });
        button.KeyUp.Connect([&](std::int16_t& code, std::int16_t&) { Note("KeyUp " + to_string(code)); });
    }
    void Mouse(UINT message, WPARAM keys = 0) { SendMessageW(Button().hWnd(), message, keys, MAKELPARAM(5, 6)); }
};

TEST_F(CommandButton, MouseClick_RaisesItsEventsInOrder)
{
    LogEvents();
    Mouse(WM_MOUSEMOVE);
    EXPECT_EQ(Button().State(), controls::StateHot);
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON);
    EXPECT_EQ(Button().State(), controls::StatePressed);
    Mouse(WM_LBUTTONUP);
    EXPECT_EQ(Button().State(), controls::StateHot);
    Mouse(WM_MOUSELEAVE);
    EXPECT_EQ(Button().State(), controls::StateNormal);
    EXPECT_EQ(Take(), (Lines{"MouseEnter", "MouseMove", "MouseDown 1 5,6", "MouseUp 1", "Click", "MouseLeave"}));
}

TEST_F(CommandButton, RightButton_NeverClicks)
{
    LogEvents();
    Mouse(WM_RBUTTONDOWN, MK_RBUTTON);
    Mouse(WM_RBUTTONUP);
    EXPECT_EQ(Take(), (Lines{"MouseDown 2 5,6", "MouseUp 2", "ContextMenu"}));
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON);
    Mouse(WM_LBUTTONUP);
    EXPECT_EQ(Take(), (Lines{"MouseDown 1 5,6", "MouseUp 1", "Click"}));
}

TEST_F(CommandButton, DoubleClick_PressesAtOneOne)
{
    LogEvents();
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON);
    Mouse(WM_LBUTTONUP);
    Mouse(WM_LBUTTONDBLCLK, MK_LBUTTON);
    EXPECT_EQ(Button().State(), controls::StatePressed);
    Mouse(WM_LBUTTONUP);
    EXPECT_EQ(Take(), (Lines{"MouseDown 1 5,6", "MouseUp 1", "Click", "MouseDown 1 1,1", "DblClick", "MouseUp 1"}));
}

TEST_F(CommandButton, SpaceAndEnter_ClickOnRelease)
{
    LogEvents();
    Press(VK_SPACE);
    EXPECT_EQ(Take(), (Lines{"KeyDown 32", "KeyPress 32", "KeyUp 32", "Click"}));
    Press(VK_RETURN);
    EXPECT_EQ(Take(), (Lines{"KeyDown 13", "KeyPress 13", "KeyUp 13", "Click"}));
    // A key that went down elsewhere clicks nothing.
    SendMessageW(Button().hWnd(), WM_KEYUP, VK_SPACE, 0);
    EXPECT_EQ(Take(), (Lines{"KeyUp 32"}));
}

TEST_F(CommandButton, AccessKey_ClicksUnlessDisabled)
{
    LogEvents();
    Press('G', 4);
    const auto clicks = [this] { return std::ranges::count(Take(), "Click"); };
    EXPECT_EQ(clicks(), 1);
    Button().Enabled(false);
    Press('G', 4);
    EXPECT_EQ(clicks(), 0);
}

TEST_F(CommandButton, ToggleButton_FlipsWithEachClick)
{
    Button().ButtonType(controls::ToggleButton);
    Click(Button().hWnd());
    EXPECT_EQ(Button().Value(), 1);
    Click(Button().hWnd());
    EXPECT_EQ(Button().Value(), 0);
    Button().Value(2);
    EXPECT_EQ(Button().Value(), 0);
    Button().Default(1);
    EXPECT_EQ(Button().Value(), 1);
}

TEST_F(CommandButton, StyleAndClassicTheme_KeepEachOtherInLine)
{
    controls::CommandButton& button = Button();
    EXPECT_EQ(button.Style(), controls::ThemeStyle);
    EXPECT_FALSE(button.UseClassicTheme());
    button.Style(0);
    EXPECT_TRUE(button.UseClassicTheme());
    button.UseClassicTheme(false);
    EXPECT_EQ(button.Style(), 0) << "0 was chosen directly, nothing is remembered";
    button.Style(12);
    button.UseClassicTheme(true);
    EXPECT_EQ(button.Style(), 0);
    button.UseClassicTheme(false);
    EXPECT_EQ(button.Style(), 12);
}

TEST_F(CommandButton, UnicodeCodes_BecomeTheCaption)
{
    const std::pair<const WCHAR*, base::String> cases[] = {
        {TEXT("41,E8,20AC"), TEXT("A\u00E8\u20AC")}, {TEXT("48 49,,4A"), TEXT("HIJ")}, {TEXT("48,0,49"), TEXT("H")}, {TEXT(""), TEXT("")},
        {TEXT("48;49:zz 4A"), TEXT("HI")},           {TEXT("41,12345,42"), TEXT("A")}};
    for (const auto& [codes, caption] : cases) {
        Button().CaptionUniChars(codes);
        EXPECT_EQ(Button().Caption(), caption);
    }
}

TEST_F(CommandButton, HiddenCaption_StandsInTheWindowText)
{
    const auto text = [&] {
        WCHAR buffer[20]{};
        GetWindowTextW(Button().hWnd(), buffer, 20);
        return base::String(buffer);
    };
    EXPECT_EQ(text(), TEXT(""));
    Button().CaptionHide(true);
    Button().Caption(TEXT("read me"));
    EXPECT_EQ(text(), TEXT("read me"));
    Button().CaptionHide(false);
    EXPECT_EQ(text(), TEXT(""));
    Button().ScreenReaderCaption(TEXT("hello"));
    EXPECT_EQ(text(), TEXT("hello"));
    EXPECT_EQ(Button().Caption(), TEXT("read me"));
}

TEST_F(CommandButton, NewButton_DiffersFromAStoredOne)
{
    auto& fresh = dynamic_cast<controls::CommandButton&>(*form->Add(TEXT("CommandButton"), TEXT("Fresh"), 0, 900, 900, 300, factory));
    EXPECT_EQ(fresh.Caption(), TEXT("Fresh"));
    EXPECT_EQ(fresh.PictureAlign(), controls::AlignCentre);
    EXPECT_EQ(Button().PictureAlign(), controls::AlignLeft);
    EXPECT_EQ(fresh.ContourColor(), 0x800000U);
    EXPECT_EQ(Button().ContourColor(), 0U);
    EXPECT_EQ(fresh.MaskColor(), 0xFFFFFFU);
    EXPECT_EQ(fresh.BackColor(), GetSysColor(COLOR_BTNFACE)) << "resolved at once";
    EXPECT_EQ(fresh.RoundedValue(), 5);
    EXPECT_TRUE(fresh.ShowFocus());
    EXPECT_FALSE(Button().ShowFocus());
}

TEST_F(CommandButton, Font_IsACopy)
{
    const auto font = std::make_shared<host::Font>();
    font->Size(14);
    Button().Font(font);
    font->Size(20);
    EXPECT_EQ(Button().Font()->Size(), 14);
}

TEST_F(CommandButton, ShrinkingFont_StopsWhenTheCaptionFits)
{
    const auto font = std::make_shared<host::Font>();
    font->Size(26);
    Button().Font(font);
    Button().FontAutoSize(controls::AutoSizeShrink);
    EXPECT_EQ(Button().Font()->Size(), 26) << "from the next caption on";
    Button().Caption(TEXT("A caption that is too long for this button"));
    const float size = Button().Font()->Size();
    EXPECT_LT(size, 12);
    EXPECT_EQ(size * 2, static_cast<float>(static_cast<int>(size * 2))) << "in halves of a point";
    Button().Caption(TEXT("x"));
    EXPECT_EQ(Button().Font()->Size(), size) << "and never back";
}

TEST_F(CommandButton, HandlerThatUnloadsTheForm_IsSafe)
{
    Button().Click.Connect([&] { form->Unload(); });
    Press(VK_SPACE);
    EXPECT_FALSE(form->IsLoaded());
}

}  // namespace tests
