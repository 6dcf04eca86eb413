#include "controls/CheckBox/CheckBox.h"
#include "controls/CheckBox/CheckBoxLayout.h"

#include "controls/Frame/Frame.h"
#include "tests/conformance/Paper.h"
#include "tests/controls/FormFixture.h"

namespace tests {

class CheckBox : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(CheckBox Box { Width = 1500 Height = 300 TabIndex = 1 Caption = "A box" }
            CheckBox Other { Top = 900 Width = 1500 Height = 300 TabIndex = 2 Caption = "Other" Value = 1 })");
        Box().Click.Connect([&] { Note("Click " + std::to_string(Box().Value())); });
    }
    controls::CheckBox& Box() { return Get<controls::CheckBox>("Box"); }
    DWORD Style() { return static_cast<DWORD>(GetWindowLongW(Box().hWnd(), GWL_STYLE)); }
};

TEST_F(CheckBox, ClickOnAnything_MakesItCheckedOrUnchecked)
{
    const std::pair<int, int> cases[] = {{controls::Unchecked, 1}, {controls::Checked, 0}, {controls::Grayed, 0}};
    for (const auto& [before, after] : cases) {
        Box().Value(before);
        Take();
        Click(Box().hWnd());
        EXPECT_EQ(Take(), Lines{"Click " + std::to_string(after)}) << before;
    }
    Press(VK_SPACE);
    EXPECT_EQ(Take(), Lines{"Click 1"});
    Press(VK_RETURN);
    Press(VK_ESCAPE);
    EXPECT_EQ(Take(), Lines{});
}

TEST_F(CheckBox, Value_MapsAndRaisesOnlyChanges)
{
    Box().Value(-1);
    EXPECT_EQ(Take(), Lines{"Click 1"});
    Box().Value(1);
    EXPECT_EQ(Take(), Lines{});
    Box().Value(-1);
    EXPECT_EQ(Take(), Lines{"Click 1"}) << "compared before it is mapped";
    Box().Value(5);
    EXPECT_EQ(Take(), Lines{"Click 0"});
    Box().Default(2);
    EXPECT_EQ(Take(), Lines{"Click 2"});
    EXPECT_EQ(SendMessageW(Box().hWnd(), BM_GETCHECK, 0, 0), BST_INDETERMINATE);
    EXPECT_EQ(SendMessageW(Any("Other").hWnd(), BM_GETCHECK, 0, 0), BST_CHECKED) << "a stored value is shown";
}

TEST_F(CheckBox, Setters_ChangeTheWindowThatIsThere)
{
    Box().Alignment(controls::TextCenter);
    EXPECT_EQ(Style() & BS_CENTER, static_cast<DWORD>(BS_CENTER));
    Box().Alignment(7);
    EXPECT_EQ(Style() & BS_CENTER, static_cast<DWORD>(BS_LEFT));
    Box().MultiLine(true);
    EXPECT_NE(Style() & BS_MULTILINE, 0U);
}

TEST_F(CheckBox, AutoSize_FollowsTheCaptionAndExcludesFontAutoSize)
{
    SIZE text{};
    Box().AutoSize(true);
    Box().Caption(TEXT("A rather long caption"));
    GetTextExtentPoint32W(Box().GetSurface().Dc(), TEXT("A rather long caption"), 21, &text);
    RECT window{};
    GetWindowRect(Box().hWnd(), &window);
    EXPECT_EQ(window.right - window.left, text.cx + GetSystemMetrics(SM_CXMENUCHECK) + 4 * GetSystemMetrics(SM_CXEDGE));
    EXPECT_EQ(controls::RoomForCaption(100), 100 - GetSystemMetrics(SM_CXMENUCHECK) - 3 * GetSystemMetrics(SM_CXEDGE));
    EXPECT_EQ(window.bottom - window.top, 20);
    Box().FontAutoSize(true);
    EXPECT_FALSE(Box().AutoSize());
    Box().AutoSize(true);
    EXPECT_FALSE(Box().FontAutoSize());
}

TEST_F(CheckBox, FontAutoSize_NarrowsTheFont)
{
    const auto fontWidth = [&] {
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Box().hWnd(), WM_GETFONT, 0, 0)), sizeof font, &font);
        return font.lfWidth;
    };
    Box().FontAutoSize(true);
    Box().Caption(TEXT("Much too long for a box that is 100 pixels wide"));
    EXPECT_GT(fontWidth(), 0);
    Box().Caption(TEXT("x"));
    EXPECT_EQ(fontWidth(), 5) << "from 4, half of 8.25 points";
}

TEST_F(CheckBox, Colors_AreGivenToTheButton)
{
    Box().ForeColor(0x123456);
    Box().BackColor(0x0000FF);
    const HDC dc = GetDC(Box().hWnd());
    const auto brush = reinterpret_cast<HBRUSH>(
        SendMessageW(form->hWnd(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(Box().hWnd())));
    LOGBRUSH description{};
    GetObjectW(brush, sizeof description, &description);
    EXPECT_EQ(description.lbColor, 0x0000FFU);
    EXPECT_EQ(GetTextColor(dc), 0x123456U);
    EXPECT_EQ(GetBkColor(dc), 0x0000FFU);
    ReleaseDC(Box().hWnd(), dc);

    form->PropertyChanged.Connect([this](host::Control&, base::StringView name) { Note(Narrow(name)); });
    form->ForeColor(0x00FF01);
    form->BackColor(0xFF0002);
    Box().BackStyle(1);
    EXPECT_EQ(Take(), (Lines{"BackStyle", "ForeColor", "BackColor"})) << "the container's";
    EXPECT_EQ(Box().ForeColor(), 0x00FF01U);
    EXPECT_EQ(Box().BackColor(), 0xFF0002U);
}

TEST_F(CheckBox, Transparent_ShowsWhatTheContainerPaintsAsItFirstWas)
{
    Open(R"(RightToLeft = True
        Frame Box { Left = 1500 Width = 3000 Height = 1500 UseClassicTheme = 1
            CheckBox Inner { Left = 30 Top = 60 Width = 900 Height = 300 Transparent = 1 } }
        CheckBox Outer { Left = 150 Top = 300 Width = 900 Height = 300 Transparent = 1 })");
    form->BackColor(0x4080C0);
    for (const char* const name : {"Inner", "Outer"}) {
        const HWND window = Any(name).hWnd();
        const Paper paper(60, 20);
        const auto ask = [&] {
            return SendMessageW(GetParent(window), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(paper.Dc()),
                                reinterpret_cast<LPARAM>(window));
        };
        const LRESULT brush = ask();
        EXPECT_EQ(GetBkMode(paper.Dc()), TRANSPARENT);
        EXPECT_EQ(ask(), brush) << "made once";
        EXPECT_NE(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_RTLREADING, 0) << "as its form reads";
        const RECT all{0, 0, 60, 20};
        FillRect(paper.Dc(), &all, reinterpret_cast<HBRUSH>(brush));
        const HDC behind = name[0] == 'I' ? Get<controls::Frame>("Box").GetSurface().Dc() : nullptr;
        for (int x = 0; x < 60; x += 4)
            for (int y = 0; y < 20; ++y)
                EXPECT_EQ(paper.At(x, y), behind ? GetPixel(behind, x + 2, y + 4) : COLORREF{0x4080C0}) << name << x << " " << y;
    }
}

TEST_F(CheckBox, InADesigner_HasAWindowThatIsNotWatched)
{
    for (const bool userMode : {true, false}) {
        Open("CheckBox Box { Width = 1500 Height = 300 }", userMode);
        Click(Box().hWnd());
        EXPECT_EQ(GetFocus(), Box().hWnd()) << "the button itself has heard of it";
        EXPECT_EQ(Box().Value(), userMode);
    }
}

}  // namespace tests
