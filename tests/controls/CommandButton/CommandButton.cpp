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

TEST_F(CommandButton, Mouse_RaisesItsEventsInOrder)
{
    const std::tuple<UINT, WPARAM, std::int32_t, Lines> steps[] = {
        {WM_MOUSEMOVE, 0, controls::StateHot, {"MouseEnter", "MouseMove"}},
        {WM_LBUTTONDOWN, MK_LBUTTON, controls::StatePressed, {"MouseDown 1 5,6"}},
        {WM_LBUTTONUP, 0, controls::StateHot, {"MouseUp 1", "Click"}},
        {WM_LBUTTONDBLCLK, MK_LBUTTON, controls::StatePressed, {"MouseDown 1 1,1", "DblClick"}},
        {WM_LBUTTONUP, 0, controls::StateHot, {"MouseUp 1"}},
        {WM_RBUTTONDOWN, MK_RBUTTON, controls::StateHot, {"MouseDown 2 5,6"}},
        {WM_RBUTTONUP, 0, controls::StateHot, {"MouseUp 2", "ContextMenu"}},
        {WM_LBUTTONDOWN, MK_LBUTTON, controls::StatePressed, {"MouseDown 1 5,6"}},
        {WM_LBUTTONUP, 0, controls::StateHot, {"MouseUp 1", "Click"}},
        {WM_MOUSELEAVE, 0, controls::StateNormal, {"MouseLeave"}}};
    LogEvents();
    for (const auto& [message, keys, state, events] : steps) {
        Mouse(message, keys);
        EXPECT_EQ(Take(), events) << "of message " << message;
        EXPECT_EQ(Button().State(), state) << "after message " << message;
    }
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
    SendMessageW(Button().hWnd(), WM_KEYDOWN, VK_TAB, 1);
    EXPECT_EQ(Take(), (Lines{"KeyDown 9", "MouseLeave"})) << "as if the mouse had gone too";
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
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON);
    SendMessageW(Button().hWnd(), WM_LBUTTONUP, 0, MAKELPARAM(500, 6));
    EXPECT_EQ(Button().Value(), 0) << "let go elsewhere";
    EXPECT_EQ(Button().State(), controls::StatePressed);
    Click(Button().hWnd());
    EXPECT_EQ(Button().Value(), 1);
    Click(Button().hWnd());
    EXPECT_EQ(Button().Value(), 0);
    Button().Value(2);
    EXPECT_EQ(Button().Value(), 0);
    Button().Default(1);
    EXPECT_EQ(Button().Value(), 1);
    Open("CommandButton B { Width = 1500 Height = 450 ButtonType = 1 Value = 5 }");
    EXPECT_EQ(Button().Value(), 5);
    Click(Button().hWnd());
    EXPECT_EQ(Button().Value(), 0);
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
    const std::pair<const WCHAR*, base::String> cases[] = {{TEXT("41,E8,20AC"), TEXT("A\u00E8\u20AC")},
                                                           {TEXT("48 49,,4A"), TEXT("HIJ")},
                                                           {TEXT("48,0,49"), TEXT("H")},
                                                           {TEXT(""), TEXT("")},
                                                           {TEXT("48;49:zz 4A"), TEXT("HI")},
                                                           {TEXT("41,12345,42"), TEXT("A")},
                                                           {TEXT("41G1,42"), TEXT("AB")},
                                                           {TEXT("41,100000042,43"), TEXT("A")}};
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
    EXPECT_EQ(fresh.PictureAlign(), 0);
    EXPECT_EQ(fresh.ContourColor(), 0x800000U);
    EXPECT_EQ(fresh.MaskColor(), 0xFFFFFFU);
    EXPECT_EQ(fresh.BackColor(), GetSysColor(COLOR_BTNFACE)) << "resolved at once";
    EXPECT_EQ(fresh.RoundedValue(), 5);
    EXPECT_TRUE(fresh.ShowFocus());
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

TEST_F(CommandButton, ShrinkingFont_TakesItsSteps)
{
    Button().Font()->Name(TEXT("Tahoma"));
    for (const auto& [from, to] : {std::pair{26.0F, 24.0F}, {22.0F, 20.0F}, {20.0F, 19.0F}, {14.0F, 13.0F}, {12.0F, 11.5F}}) {
        const base::String caption(40, TEXT('m'));
        Button().FontAutoSize(controls::AutoSizeOff);
        Button().Caption(caption);
        Button().Font()->Size(to);
        SIZE text{};
        GetTextExtentPoint32W(Button().GetSurface().Dc(), caption.c_str(), 40, &text);
        Button().GetExtender().Width(static_cast<float>((text.cx + 3) * 15));
        Button().GetExtender().Height(1500);
        Button().Font()->Size(from);
        Button().FontAutoSize(controls::AutoSizeShrink);
        Button().Caption(caption);
        EXPECT_EQ(Button().Font()->Size(), to) << "from " << from;
    }
}

TEST_F(CommandButton, ReleaseOutside_ClicksOnlyWhenTheMouseComesBack)
{
    LogEvents();
    const HWND window = Button().hWnd();
    for (const auto& [release, events] : {std::pair{MAKELPARAM(500, 6), Lines{"MouseDown 1 5,6", "MouseMove", "MouseUp 1"}},
                                          {MAKELPARAM(7, 6), Lines{"MouseDown 1 5,6", "MouseMove", "MouseUp 1", "Click"}}}) {
        SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(5, 6));
        Take();
        Mouse(WM_LBUTTONDOWN, MK_LBUTTON);
        SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(500, 6));
        EXPECT_EQ(GetCapture(), window);
        SendMessageW(window, WM_LBUTTONUP, 0, release);
        EXPECT_EQ(GetCapture(), nullptr);
        EXPECT_EQ(Take(), events);
        EXPECT_EQ(Button().State(), controls::StateHot);
    }
}

TEST_F(CommandButton, FocusLostWhileSpaceIsHeld_LetsTheButtonGo)
{
    Open(R"(CommandButton B { Width = 1500 Height = 450 TabIndex = 1 }
        CommandButton C { Left = 3000 Width = 1500 Height = 450 TabIndex = 2 })");
    LogEvents();
    Get<controls::CommandButton>("C").Click.Connect([&] { Note("the other's Click"); });
    Button().SetFocus();
    SendMessageW(Button().hWnd(), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(Button().State(), controls::StatePressed);
    Any("C").SetFocus();
    EXPECT_EQ(Button().State(), controls::StateNormal);
    SendMessageW(Any("C").hWnd(), WM_KEYUP, VK_SPACE, 0);
    EXPECT_EQ(Take(), (Lines{"KeyDown 32"}));
}

TEST_F(CommandButton, SetFocusEx_TellsTheButtonWithoutMovingTheFocus)
{
    Open(R"(CommandButton B { Width = 1500 Height = 450 TabIndex = 2 ShowFocus = 1 Style = 0 }
        TextBox T { Left = 3000 Width = 1500 Height = 450 TabIndex = 1 })");
    Any("T").SetFocus();
    const auto dots = [&] { return std::pair(GetPixel(Button().GetSurface().Dc(), 4, 4), GetPixel(Button().GetSurface().Dc(), 5, 4)); };
    const auto before = dots();
    Button().SetFocusEx();
    EXPECT_NE(dots(), before) << "it draws its focus rectangle";
    EXPECT_EQ(Focused(), "T");
}

TEST_F(CommandButton, ZedOrder_GoesToTheTopToTheBottomOrBehindAWindow)
{
    Open(
        R"(CommandButton B { Width = 1500 Height = 450 TabIndex = 1 } CommandButton C { Left = 1500 Width = 1500 Height = 450 TabIndex = 2 }
        CommandButton D { Left = 3000 Width = 1500 Height = 450 TabIndex = 3 })");
    const auto place = [&] {
        int behind = 0;
        for (HWND window = GetWindow(form->hWnd(), GW_CHILD); window != Button().hWnd(); window = GetWindow(window, GW_HWNDNEXT))
            ++behind;
        return behind;
    };
    Button().ZedOrder(reinterpret_cast<HWND>(1));
    EXPECT_EQ(place(), 2);
    Button().ZedOrder(nullptr);
    EXPECT_EQ(place(), 0);
    Button().ZedOrder(Any("C").hWnd());
    EXPECT_EQ(GetWindow(Button().hWnd(), GW_HWNDPREV), Any("C").hWnd());
    const int before = place();
    Button().ZedOrder(reinterpret_cast<HWND>(0x7FFFFFF0));
    EXPECT_EQ(place(), before);
}

TEST_F(CommandButton, Refresh_BringsTheWindowToItsPlace)
{
    host::Extender& extender = Button().GetExtender();
    extender.Width(900);
    const std::tuple<std::function<void()>, Place, const char*> cases[] = {
        {[&] { extender.Left(300); }, {20, 0, 80, 30}, "only the left edge has changed"},
        {[&] { extender.Top(150); }, {20, 10, 80, 40}, "only the top edge has changed"},
        {[&] { extender.Height(300); }, {77, 55, 117, 75}, "neither has"}};
    for (const auto& [change, expected, what] : cases) {
        change();
        // Somebody moves the window behind the container's back.
        SetWindowPos(Button().hWnd(), nullptr, 77, 55, 40, 20, SWP_NOZORDER | SWP_NOACTIVATE);
        Button().Refresh();
        EXPECT_EQ(PlaceIn(Button().hWnd(), form->hWnd()), expected) << what;
        EXPECT_EQ(Button().GetSurface().ScaleWidth(), expected[2] - expected[0]);
    }
}

TEST_F(CommandButton, DefaultMark_ShowsAtOnceInADesignerAndWithTheNextDrawingElsewhere)
{
    for (const bool userMode : {true, false}) {
        Open("CommandButton B { Width = 1500 Height = 450 Style = 0 ContourStyle = 0 }", userMode);
        const COLORREF before = GetPixel(Button().GetSurface().Dc(), 0, 0);
        EXPECT_NE(before, 0U);
        Button().GetExtender().Default(true);
        EXPECT_EQ(GetPixel(Button().GetSurface().Dc(), 0, 0), userMode ? before : 0U);
        Button().DrawControl();
        EXPECT_EQ(GetPixel(Button().GetSurface().Dc(), 0, 0), 0U);
    }
}

TEST_F(CommandButton, ToggleThatIsOn_HasACheckerboardUnlessDisabled)
{
    Open("CommandButton B { Width = 1500 Height = 450 Style = 0 ButtonType = 1 Value = 1 BackColor = 0x00123456 USeCustomColors = 1 }");
    const auto pixel = [&](int x) { return GetPixel(Button().GetSurface().Dc(), x, 10); };
    EXPECT_EQ(pixel(10), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(pixel(11), 0x123456U);
    Button().Enabled(false);
    EXPECT_EQ(pixel(10), 0x123456U);
}

TEST_F(CommandButton, RoundedValue_TellsBeforeItChanges)
{
    form->PropertyChanged.Connect([this](host::Control&, base::StringView) { Note(std::to_string(Button().RoundedValue())); });
    for (const int value : {9, 9, -3, -4})
        Button().RoundedValue(value);
    EXPECT_EQ(Take(), (Lines{"5", "9"}));
    EXPECT_EQ(Button().RoundedValue(), 0);
}

TEST_F(CommandButton, NarrowedFont_IsToldStepByStepAndGivenBack)
{
    const auto size = Button().Font()->Size();
    Button().FontAutoSize(controls::AutoSizeNarrow);
    Button().Caption(TEXT("This caption is wider than a button of a hundred pixels, however narrow its characters are made"));
    std::vector<LONG> widths;
    controls::DSubclass watch;
    watch.WndProc.Connect([&](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT&, bool&) {
        LOGFONTW font{};
        if (message == WM_SETFONT && GetObjectW(reinterpret_cast<HGDIOBJ>(wParam), sizeof font, &font))
            widths.push_back(font.lfWidth);
    });
    watch.Enable(Button().hWnd());
    Button().Caption(TEXT("Another caption is wider than a button of a hundred pixels, however narrow its characters are made"));
    EXPECT_GE(widths.size(), 3U);
    EXPECT_EQ(widths.back(), 1) << "0 would be the natural width";
    // The font's own comes back (its width is 0), and from the natural width on each step is one unit narrower; so for every layout.
    for (std::size_t step = 1; step < widths.size(); ++step)
        EXPECT_TRUE(widths[step] == widths[step - 1] - 1 || widths[step - 1] == 0 || (widths[step] == 0 && widths[step - 1] == 1))
            << widths[step - 1] << ", " << widths[step];
    widths.clear();
    Button().FontAutoSize(controls::AutoSizeOff);
    Button().Caption(TEXT("wide"));
    EXPECT_EQ(widths, (std::vector<LONG>{0}));
    EXPECT_EQ(Button().Font()->Size(), size) << "narrowing leaves the points alone";
}

TEST_F(CommandButton, InTheDesigner_IsHotButForStyle15)
{
    Open(R"(CommandButton B { Width = 1500 Height = 450 Caption = "" USeCustomColors = 1 BackColor = 0x00406080 HighlightColor = 0x0020A0E0
        BackColorDisabled = 0x00808080 })",
         false);
    const auto pixel = [&](int x, int y) { return GetPixel(Button().GetSurface().Dc(), x, y); };
    Button().Style(10);
    EXPECT_EQ(pixel(50, 0), 0x001939U);
    Button().Style(15);
    EXPECT_EQ(pixel(98, 15), 0x406080U) << "hot it would have the highlight colour";
    Button().Style(10);
    Button().ButtonType(controls::ToggleButton);
    Button().Value(1);
    EXPECT_EQ(pixel(50, 0), 0x000424U) << "pressed";
    Button().Enabled(false);
    EXPECT_EQ(pixel(50, 5), 0x808080U) << "disabled";
}

}  // namespace tests
