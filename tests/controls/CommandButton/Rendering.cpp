#include "controls/CommandButton/CommandButton.h"

#include "controls/CommandButton/CommandButtonStyles.h"
#include "controls/ThemeState.h"
#include "tests/controls/FormFixture.h"

namespace tests {

class Rendering : public FormFixture {
protected:
    void SetUp() override
    {
        Open(R"(CommandButton Other { Left = 3000 Width = 1500 Height = 450 TabIndex = 0 }
            CommandButton B { Width = 1500 Height = 450 TabIndex = 1 Caption = "" USeCustomColors = 1 BackColor = 0x00C08040 HighlightColor = 0x00204060 })");
    }
    controls::CommandButton& Button() { return Get<controls::CommandButton>("B"); }
    COLORREF Pixel(int x, int y) { return GetPixel(Button().GetSurface().Dc(), x, y); }

    static constexpr int width = 100, height = 30;
};

TEST_F(Rendering, RoundCorners_AreCutFromTheWindow)
{
    for (const auto& [style, corner] : {std::pair{controls::SoftRoundStyle, FALSE}, {controls::ClassicStyle, TRUE}}) {
        Button().Style(style);
        const base::RegionHandle region(CreateRectRgn(0, 0, 0, 0));
        GetWindowRgn(Button().hWnd(), region.Get());
        for (const int y : {0, height - 1}) {
            EXPECT_EQ(PtInRegion(region.Get(), y == 0 ? 0 : width - 1, y), corner) << style;
            EXPECT_EQ(PtInRegion(region.Get(), width / 2, y), TRUE) << style;
        }
    }
}

TEST_F(Rendering, ThemeStyle_FallsBackWithoutThemes)
{
    Button().NonThemeStyle(controls::SoftRoundStyle);
    Button().Style(controls::ThemeStyle);
    constexpr COLORREF frame = 0x6C2C00;
    EXPECT_NE(Pixel(50, 0), frame);
    controls::ThemeState::OfProcess().AskVersionWith([] { return DWORD{5}; });
    SendMessageW(Button().hWnd(), WM_THEMECHANGED, 0, 0);
    EXPECT_EQ(Pixel(50, 0), frame);
    SendMessageW(Button().hWnd(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 6));
    EXPECT_EQ(Pixel(50, 1), 0xA27A53U) << "pressed";
    for (const std::int32_t unknown : {19, -1, 70000}) {
        Button().NonThemeStyle(unknown);
        EXPECT_EQ(Pixel(50, 0), GetSysColor(COLOR_BTNFACE)) << unknown << " is drawn as nothing";
    }
}

TEST_F(Rendering, FocusRectangle_ComesWithFocusAndShowFocusAtTheStylesInset)
{
    constexpr int none = -1;
    constexpr int insets[] = {4, 4, 4, 3, 4, 4, 4, 2, 6, 6, 2, 3, none, 4, 4, 2, 4, 4, 4};
    Button().ButtonType(controls::ToggleButton);
    const auto pixels = [this] {
        std::vector<COLORREF> all;
        for (int i = 0; i < width * height; ++i)
            all.push_back(Pixel(i % width, i / width));
        return all;
    };
    for (int style = 0; style < 19; ++style)
        for (const int on : {0, 1}) {
            Button().Style(style);
            Button().Value(on);
            Get<controls::CommandButton>("Other").SetFocus();
            Button().ShowFocus(true);
            Button().SetFocus();
            const auto with = pixels();
            Button().ShowFocus(false);
            const auto without = pixels();
            RECT changed{width, height, 0, 0};
            for (int i = 0; i < width * height; ++i) {
                const LONG x = i % width, y = i / width;
                if (with[static_cast<std::size_t>(i)] != without[static_cast<std::size_t>(i)])
                    changed = {std::min(changed.left, x), std::min(changed.top, y), std::max(changed.right, x),
                               std::max(changed.bottom, y)};
            }
            const int inset = insets[style], last = on == 1 ? 1 : 2;
            const Place expected =
                inset == none ? Place{width, height, 0, 0} : Place{inset, inset, width - last - inset, height - last - inset};
            EXPECT_EQ(PlaceOf(changed), expected) << style << (on == 1 ? " on" : " off");
        }
}

TEST(CommandButtonLayout, Caption_StandsWhereItsAlignmentSays)
{
    using namespace controls;
    // A text block of 40 by 13 pixels in a button of 100 by 30.
    const RECT block{0, 3, 40, 16};
    const std::tuple<std::int32_t, Place, UINT> cases[] = {{AlignCentre, {30, 9, 70, 22}, 0x15},
                                                           {AlignLeft, {3, 9, 43, 22}, 0x14},
                                                           {AlignRight, {57, 9, 97, 22}, 0x16},
                                                           {AlignTop, {30, 3, 70, 16}, 0x11},
                                                           {AlignBottom, {30, 14, 70, 27}, 0x19}};
    for (const auto& [align, place, format] : cases) {
        const CaptionPlace result = PlaceCaption(100, 30, block, align, 3, false);
        EXPECT_EQ(PlaceOf(result.rectangle), place) << align;
        EXPECT_EQ(result.format, format);
        EXPECT_EQ(PlaceCaption(100, 30, block, align, 3, true).format, format | 0x20000);
    }
}

TEST(CommandButtonLayout, Caption_HasAtLeastTheRoomThatItWasMeasuredAt)
{
    for (int width = 20; width <= 120; ++width) {
        for (LONG text = 1; text <= width; ++text) {
            for (const std::int32_t align : {0, 1, 2, 3, 4}) {
                const RECT place = controls::PlaceCaption(width, width, {0, 3, text, 3 + text}, align, 3, false).rectangle;
                ASSERT_GE(place.right - place.left, text) << width << " " << align;
                ASSERT_GE(place.bottom - place.top, text) << width << " " << align;
                if (align == 0) {
                    ASSERT_LE(std::abs(place.left - (width - place.right)), 1) << width << " " << text;
                }
            }
        }
    }
}

}  // namespace tests
