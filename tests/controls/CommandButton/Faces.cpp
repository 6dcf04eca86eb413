// The formula of every style at a few pixels, and the shapes of the windows. All numbers are worked out by hand.
#include "tests/controls/CommandButton/ButtonPaper.h"

#include <gtest/gtest.h>

#include <string>

namespace tests {

namespace {

using namespace controls;

constexpr COLORREF back = 0x406080, highlight = 0x20A0E0, contour = 0x0000C0, paperColor = 0x123456;
constexpr int width = 60, height = 23, middle = 30;

/// A system colour by its number.
constexpr COLORREF System(int index)
{
    return 0x80000000U + static_cast<COLORREF>(index);
}
constexpr COLORREF light = System(COLOR_BTNHIGHLIGHT), shadow = System(COLOR_BTNSHADOW), darkShadow = System(COLOR_3DDKSHADOW),
                   face = System(COLOR_BTNFACE), window = System(COLOR_WINDOW);

enum Flag { Own = 1, Default = 2, Focus = 4, Toggled = 8 };

struct Probe {
    std::int32_t style, state;
    int flags;
    std::int32_t contour, direction;
    int x, y;
    COLORREF color;
};

const Probe probes[] = {
    // Classic: default border, checkered toggle.
    {0, StateNormal, Own, ContourNone, 1, 0, 0, back},
    {0, StatePressed, Own, ContourNone, 1, middle, 11, highlight},
    {0, StatePressed, 0, ContourNone, 1, middle, 11, face},
    {0, StateNormal, Own, ContourFlat, 1, 0, 0, shadow},
    {0, StateNormal, Own, Contour3D, 1, 59, 22, darkShadow},
    {0, StateNormal, Own | Default, ContourNone, 1, 0, 0, 0x000000},
    {0, StatePressed, Own | Default, ContourNone, 1, 59, 22, light},
    {0, StatePressed, Own | Toggled, ContourNone, 1, 0, 0, face},
    {0, StatePressed, Own | Toggled, ContourNone, 1, 1, 0, back},
    {0, StatePressed, Own | Toggled, ContourNone, 1, 1, 1, face},
    {0, StatePressed, Own | Toggled, ContourNone, 1, 59, 22, back},
    {0, StatePressed, Toggled, ContourNone, 1, 2, 1, 0xFFFFFF},
    // Soft and Hover.
    {1, StateNormal, Own, 2, 1, middle, 11, back},
    {1, StateHot, Own, 2, 1, middle, 11, highlight},
    {1, StateNormal, Own, 2, 1, 0, 0, light},
    {1, StateDefaulted, Own, 2, 1, 59, 22, shadow},
    {1, StatePressed, Own, 2, 1, 0, 0, shadow},
    {1, StateDisabled, Own, 2, 1, 0, 0, 0x000000},
    {1, StateDisabled, Own, 2, 1, middle, 11, back},
    {2, StateNormal, Own, 2, 1, 0, 0, back},
    {2, StateHot, Own, 2, 1, 0, 0, light},
    {2, StatePressed, Own, 2, 1, 0, 0, shadow},
    {2, StateDisabled, Own, 2, 1, 0, 0, back},
    {2, StateDefaulted, Own, 2, 1, 0, 0, 0x000000},
    {2, StateDefaulted, Own, 2, 1, 1, 1, highlight},
    // Gradient: 20 lighter to 30 darker, hot from 35 lighter.
    {3, StateNormal, Own, 0, 4, middle, 0, 0x547494},
    {3, StateNormal, Own, 0, 4, middle, 22, 0x224262},
    {3, StateHot, 0, 0, 4, middle, 0, 0x6383A3},
    {3, StateHot, 0, 0, 2, 59, 11, 0x224262},
    {3, StatePressed, Own, 0, 0, middle, 11, back},
    {3, StatePressed, Own, 0, 1, 0, 22, 0x4F6F8F},
    {3, StatePressed, Own, 0, 1, 59, 0, 0x315171},
    {3, StatePressed, Own, 0, 4, middle, 0, 0x2C4C6C},
    {3, StatePressed, Own, 0, 4, middle, 22, 0x547494},
    {3, StateNormal, Own, 0, 3, 29, 11, 0x224262},
    {3, StateNormal, Own, 0, 3, 59, 11, 0x547494},
    {3, StateNormal, Own, 0, 5, middle, 22, 0x547494},
    {3, StateDisabled, Own, 0, 1, middle, 0, paperColor},
    {3, StateDisabled, Own, 0, 1, middle, 1, 0x888888},
    {3, StateDisabled, Own, 0, 1, middle, 22, 0x5A5A5A},
    // Rounded: rows, gradients, bevel, contour.
    {4, StateNormal, Own, 0, 1, 0, 0, 0x547494},
    {4, StateNormal, Own, 0, 1, 59, 22, 0x244464},
    {4, StateNormal, Own | Default, 0, 1, middle, 22, 0x113151},
    {4, StatePressed, Own, 0, 1, middle, 0, 0x183858},
    {4, StatePressed, Own, 0, 1, middle, 22, 0x486888},
    {4, StateHot, Own, 0, 0, middle, 11, 0x6383A3},
    {4, StateNormal, Own, 0, 0, 0, 0, paperColor},
    {4, StateNormal, Own, 0, 0, 59, 22, 0x547494},
    {4, StateNormal, Own, 0, 2, 0, 11, back},
    {4, StateNormal, Own, 0, 2, 59, 11, highlight},
    {4, StateHot, Own, 0, 2, 59, 11, highlight},
    {4, StatePressed, Own, 0, 2, 0, 11, highlight},
    {4, StateNormal, 0, 0, 2, 59, 11, light},
    {4, StateNormal, Own, 2, 0, middle, 0, contour},
    {4, StateNormal, Own, 2, 0, middle, 1, 0x5E7E9E},
    {4, StateNormal, Own, 2, 0, middle, 2, 0x597999},
    {4, StateNormal, Own, 2, 0, middle, 21, 0x183858},
    {4, StateNormal, Own, 2, 0, middle, 20, 0x1D3D5D},
    {4, StatePressed, Own, 2, 0, middle, 1, 0x001F3F},
    {4, StatePressed, Own, 2, 0, middle, 21, 0x224262},
    // Frames.
    {5, StateNormal, Own, 2, 1, middle, 11, back},
    {5, StateNormal, Own, 2, 1, 0, 0, darkShadow},
    {5, StateNormal, Own, 2, 1, 2, 2, light},
    {5, StateNormal, Own, 2, 1, 58, 21, shadow},
    {5, StatePressed, Own, 2, 1, 1, 1, shadow},
    {5, StatePressed, Own, 2, 1, middle, 11, highlight},
    {5, StateDisabled, Own, 2, 1, middle, 11, paperColor},
    {6, StateNormal, 0, 2, 1, middle, 11, 0xD4DCE0},
    {6, StatePressed, 0, 2, 1, middle, 11, 0xBECBD1},
    {6, StatePressed, Own, 2, 1, middle, 11, highlight},
    {6, StateNormal, 0, 2, 1, 59, 22, 0xFFFFFF},
    {6, StateNormal, 0, 2, 1, 0, 0, darkShadow},
    {6, StateNormal, 0, 2, 1, 58, 21, darkShadow},
    {6, StateNormal, 0, 2, 1, 1, 1, 0xFFFFFF},
    {6, StatePressed, 0, 2, 1, 0, 0, 0xBECBD1},
    {6, StatePressed, 0, 2, 1, 1, 1, darkShadow},
    {6, StatePressed, 0, 2, 1, 58, 21, darkShadow},
    {13, StateNormal, Own, 2, 1, middle, 11, 0x57738F},
    {13, StateNormal, Own, 2, 1, 0, 0, contour},
    {13, StateNormal, 0, 2, 1, 0, 0, shadow},
    {13, StateNormal, Own, 0, 1, 0, 0, 0x57738F},
    {13, StateHot, Own, 2, 1, 0, 0, 0xB9E1F5},
    {13, StatePressed, Own, 2, 1, middle, 11, 0x8FCFEF},
    {13, StateDisabled, Own, 2, 1, 0, 0, 0x57738F},
    {18, StateNormal, Own, 2, 1, middle, 11, back},
    {18, StateNormal, Own, 2, 1, 0, 0, shadow},
    {18, StateNormal, Own, 2, 1, 59, 22, window},
    {18, StateHot, Own, 2, 1, middle, 11, 0x3080B0},
    {18, StateHot, Own, 2, 1, 3, 3, back},
    {18, StateHot, Own, 2, 1, 59, 0, 0x3080B0},
    {18, StatePressed, Own, 2, 1, 4, 4, highlight},
    {18, StatePressed, Own, 2, 1, 0, 22, highlight},
    {18, StatePressed, 0, 2, 1, middle, 11, shadow},
    // Layers.
    {8, StateNormal, Own, 2, 1, 0, 11, 0xA0A0A0},
    {8, StateNormal, Own | Focus, 2, 1, 0, 11, 0xE2A66A},
    {8, StateHot, Own, 2, 1, 1, 11, 0xE6AC76},
    {8, StateDefaulted, Own, 2, 1, middle, 0, 0xE2A66A},
    {8, StatePressed, Own, 2, 1, middle, 22, 0xCC9B6A},
    {8, StatePressed, Own, 2, 1, 58, 11, 0xD0A175},
    {8, StateNormal, Own, 2, 1, middle, 2, 0xFEFEFE},
    {8, StateNormal, Own, 2, 1, middle, 20, 0xE0E0E0},
    {9, StateNormal, 0, 2, 1, middle, 0, 0xFBFBFB},
    {9, StateNormal, 0, 2, 1, middle, 1, 0xE9E2C5},
    {9, StateNormal, 0, 2, 1, middle, 2, 0xEBE8EA},
    {9, StateNormal, 0, 2, 1, middle, 20, 0xE8EBE9},
    {9, StateHot, 0, 2, 1, 1, 11, 0xE6AC76},
    {9, StateHot, 0, 2, 1, middle, 21, 0xE2A66A},
    {9, StateHot, Own, 2, 1, 1, 11, highlight},
    {9, StateNormal, Own, 2, 1, middle, 2, back},
    {10, StateNormal, Own, 2, 1, middle, 1, 0x9CB0C4},
    {10, StateNormal, Own, 2, 1, middle, 4, back},
    {10, StateNormal, Own, 2, 1, middle, 5, 0x385878},
    {10, StateNormal, Own, 2, 1, middle, 6, 0x335373},
    {10, StateNormal, Own, 2, 1, middle, 0, 0x000C2C},
    {10, StateNormal, Own, 2, 1, 58, 21, 0x000424},
    {10, StateNormal, Own, 2, 1, 0, 11, 0x000C2C},
    {10, StateHot, Own, 2, 1, middle, 0, 0x001939},
    {10, StateHot, Own, 2, 1, middle, 1, 0xA5B9CD},
    {10, StateHot, Own, 2, 1, middle, 6, 0x385878},
    {10, StatePressed, Own, 2, 1, middle, 0, 0x000424},
    {10, StatePressed, Own, 2, 1, middle, 1, 0x52667A},
    {10, StatePressed, Own, 2, 1, middle, 6, 0x2C4C6C},
    {10, StateDisabled, Own, 2, 1, middle, 1, 0xBABABA},
    {10, StateDisabled, Own, 2, 1, middle, 6, 0x7B7B7B},
    {10, StateDisabled, Own, 2, 1, middle, 5, 0x808080},
    {10, StateDisabled, Own, 2, 1, 0, 0, 0x4D4D4D},
    {10, StateDisabled, Own, 2, 1, 1, 1, 0x454545},
    {11, StateNormal, 0, 2, 1, 0, 11, 0x000020},
    {11, StateDisabled, 0, 2, 1, 0, 11, 0x505050},
    {12, StateNormal, Own, 2, 1, middle, 2, 0xF6E4C2},
    {12, StateNormal, Own, 2, 1, middle, 20, 0xF0D29A},
    {12, StateHot, Own, 2, 1, middle, 2, 0xFFEECD},
    {12, StateHot, Own, 2, 1, middle, 20, 0xFAD68F},
    {12, StatePressed, Own, 2, 1, middle, 2, 0xFDE1AC},
    {12, StateNormal, Own, 2, 1, 59, 0, face},
    {14, StateNormal, 0, 2, 1, middle, 1, 0x527292},
    {14, StateNormal, 0, 2, 1, middle, 21, back},
    {14, StateHot, 0, 2, 1, middle, 1, 0x6FC0FF},
    {14, StateHot, 0, 2, 1, middle, 10, 0xA9D9FF},
    {14, StateHot, 0, 2, 1, middle, 11, 0x3FABFF},
    {14, StateHot, 0, 2, 1, 0, 11, 0x1869A8},
    {14, StatePressed, 0, 2, 1, middle, 1, 0x51AFFF},
    {14, StatePressed, 0, 2, 1, middle, 10, 0x5FD3FF},
    {14, StatePressed, 0, 2, 1, middle, 11, 0x468FFF},
    {14, StatePressed, 0, 2, 1, 0, 11, 0x0058A8},
    {15, StateNormal, 0, 2, 1, 0, 11, 0xA28B6A},
    {15, StateNormal, 0, 2, 1, middle, 2, 0xDBE2E3},
    {15, StateHot, 0, 2, 1, 1, 11, 0xF6D4BC},
    {15, StateHot, 0, 2, 1, 58, 11, 0xE4AD89},
    {15, StatePressed, 0, 2, 1, middle, 2, 0xCAC7BF},
    {15, StateHot, Own, 2, 1, 58, 11, highlight},
    {16, StateNormal, 0, 2, 1, 0, 11, 0x000012},
    {16, StateNormal, 0, 2, 1, middle, 11, 0x2E4E6E},
    {17, StateNormal, Own, 2, 1, middle, 0, shadow},
    {17, StateHot, Own, 2, 1, middle, 0, System(COLOR_HIGHLIGHT)},
};

}  // namespace

TEST(Faces, HaveTheirFormulasColours)
{
    for (const Probe& probe : probes) {
        ButtonPaper paper(width, height);
        ButtonLook look = ButtonPaper::Look(probe.state, (probe.flags & Own) != 0);
        look.isDefault = (probe.flags & Default) != 0;
        look.hasFocus = (probe.flags & Focus) != 0;
        look.pressedByToggle = (probe.flags & Toggled) != 0;
        look.contourStyle = probe.contour;
        look.gradientDirection = probe.direction;
        paper.Draw(probe.style, look, paperColor);
        const COLORREF expected = probe.color & 0x80000000U ? GetSysColor(static_cast<int>(probe.color & 0xFF)) : probe.color;
        EXPECT_EQ(paper.At(probe.x, probe.y), expected)
            << std::hex << "style " << std::dec << probe.style << " state " << probe.state << " flags " << probe.flags << " contour "
            << probe.contour << " direction " << probe.direction << " at " << probe.x << ", " << probe.y;
    }
}

/// What a window is cut to is covered whole, and the lines of the shape lie in it.
TEST(Faces, FillTheirShapes)
{
    const SIZE sizes[] = {{60, 23}, {113, 33}, {300, 80}, {9, 5}, {3, 3}};
    for (const SIZE size : sizes) {
        for (std::int32_t style = 0; style < 19; ++style) {
            if (style == ThemeStyle)
                continue;
            for (const std::int32_t state : {StateNormal, StateHot, StatePressed, StateDefaulted}) {
                ButtonPaper paper(size.cx, size.cy);
                const ButtonLook look = ButtonPaper::Look(state, true);
                paper.Draw(style, look, paperColor);
                const ButtonStyle& row = ButtonStyleOf(style);
                const base::RegionHandle region = ShapeRegion(OutlineOf(row, row, look, size));
                int bare = 0, lines = 0;
                for (int y = 0; y < size.cy; ++y) {
                    for (int x = 0; x < size.cx; ++x) {
                        const bool inside = PtInRegion(region.Get(), x, y) != FALSE;
                        bare += inside && paper.At(x, y) == paperColor ? 1 : 0;
                        // Outside its shape a face of layers has the back colour; the line of style 4 is the contour's.
                        lines += !inside && (style == RoundedStyle ? paper.At(x, y) == contour : paper.At(x, y) != back) ? 1 : 0;
                    }
                }
                EXPECT_EQ(bare, 0) << "style " << style << " state " << state << ", " << size.cx << " by " << size.cy;
                // The frame of style 10 is square, and its corners are cut off with the window's.
                EXPECT_TRUE(lines == 0 || style == SoftRoundStyle)
                    << "style " << style << " state " << state << ", " << size.cx << " by " << size.cy;
            }
        }
    }
}

TEST(Faces, ShapesAreCutAtTheCorners)
{
    /// Pixels that lie outside at the left end of the first rows.
    const std::pair<std::int32_t, std::vector<int>> shapes[] = {{0, {0, 0}},           {8, {4, 2, 1, 1, 0}},  {9, {1, 0, 0}},
                                                                {10, {1, 0, 0}},       {11, {4, 3, 2, 1, 0}}, {15, {2, 1, 0, 0}},
                                                                {16, {4, 3, 2, 1, 0}}, {17, {2, 1, 0}},       {18, {0, 0}}};
    for (const auto& [style, insets] : shapes) {
        const ButtonStyle& row = ButtonStyleOf(style);
        const base::RegionHandle region = ShapeRegion(OutlineOf(row, row, ButtonPaper::Look(StateNormal, true), {113, 33}));
        for (int y = 0; y < static_cast<int>(insets.size()); ++y) {
            const int inset = insets[static_cast<std::size_t>(y)];
            for (const int row_ : {y, 32 - y}) {
                EXPECT_EQ(PtInRegion(region.Get(), inset - 1, row_), FALSE) << style << " row " << row_;
                EXPECT_EQ(PtInRegion(region.Get(), inset, row_), TRUE) << style << " row " << row_;
                EXPECT_EQ(PtInRegion(region.Get(), 112 - inset, row_), TRUE) << style << " row " << row_;
                EXPECT_EQ(PtInRegion(region.Get(), 113 - inset, row_), FALSE) << style << " row " << row_;
            }
        }
    }
}

}  // namespace tests
