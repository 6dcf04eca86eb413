// The formula of every style at a few pixels, what its other looks change, and the shapes of the windows. All numbers are worked out by
// hand; the other states are among the pictures of FaceLooks.
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
                   face = System(COLOR_BTNFACE);

enum Flag { Own = 1, Default = 2, Focus = 4, Toggled = 8 };

struct Face {
    std::int32_t style, state;
    int flags;
    struct Pixel {
        int x, y;
        COLORREF color;
    };
    std::vector<Pixel> pixels;
    std::int32_t contour = Contour3D, direction = 1;
};

const Face faces[] = {
    // Classic: default border, checkered toggle.
    {0, StateNormal, Own, {{0, 0, back}}, ContourNone},
    {0, StateNormal, Own, {{0, 0, shadow}}, ContourFlat},
    {0, StateNormal, Own | Default, {{0, 0, 0x000000}}, ContourNone},
    {0, StatePressed, Own | Default, {{59, 22, light}}, ContourNone},
    {0, StatePressed, Own | Toggled, {{0, 0, face}, {1, 0, back}, {1, 1, face}, {59, 22, back}}, ContourNone},
    {0, StatePressed, Toggled, {{2, 1, 0xFFFFFF}}, ContourNone},
    // Soft and Hover.
    {1, StateNormal, Own, {{middle, 11, back}, {0, 0, light}}},
    {1, StateDisabled, Own, {{0, 0, 0x000000}, {middle, 11, back}}},
    {2, StateDefaulted, Own, {{0, 0, 0x000000}, {1, 1, highlight}}},
    // Gradient: 20 lighter to 30 darker, hot from 35 lighter.
    {3, StateNormal, Own, {{middle, 0, 0x547494}, {middle, 22, 0x224262}}, ContourNone, 4},
    {3, StateHot, 0, {{middle, 0, 0x6383A3}}, ContourNone, 4},
    {3, StateHot, 0, {{59, 11, 0x224262}}, ContourNone, 2},
    {3, StatePressed, Own, {{middle, 11, back}}, ContourNone, 0},
    {3, StatePressed, Own, {{middle, 0, 0x2C4C6C}, {middle, 22, 0x547494}}, ContourNone, 4},
    {3, StateDisabled, Own, {{middle, 0, paperColor}, {middle, 1, 0x888888}, {middle, 22, 0x5A5A5A}}, ContourNone},
    // Rounded: rows, gradients, bevel, contour.
    {4, StateNormal, Own, {{0, 0, 0x547494}, {59, 22, 0x244464}}, ContourNone},
    {4, StateNormal, Own | Default, {{middle, 22, 0x113151}}, ContourNone},
    {4, StatePressed, Own, {{middle, 0, 0x183858}, {middle, 22, 0x486888}}, ContourNone},
    {4, StateHot, Own, {{middle, 11, 0x6383A3}}, ContourNone, 0},
    {4, StateNormal, Own, {{0, 0, paperColor}, {59, 22, 0x547494}}, ContourNone, 0},
    {4, StateNormal, Own, {{0, 11, back}, {59, 11, highlight}}, ContourNone, 2},
    {4, StateHot, Own, {{59, 11, highlight}}, ContourNone, 2},
    {4, StatePressed, Own, {{0, 11, highlight}}, ContourNone, 2},
    {4, StateNormal, 0, {{59, 11, light}}, ContourNone, 2},
    {4, StateNormal, Own, {{middle, 0, contour}, {middle, 1, 0x5E7E9E}, {middle, 2, 0x597999}, {middle, 21, 0x183858}}, Contour3D, 0},
    {4, StatePressed, Own, {{middle, 1, 0x001F3F}, {middle, 21, 0x224262}}, Contour3D, 0},
    // Frames.
    {5, StateNormal, Own, {{middle, 11, back}, {0, 0, darkShadow}, {2, 2, light}, {58, 21, shadow}}},
    {6, StateNormal, 0, {{middle, 11, 0xD4DCE0}, {59, 22, 0xFFFFFF}, {0, 0, darkShadow}, {58, 21, darkShadow}, {1, 1, 0xFFFFFF}}},
    {13, StateNormal, Own, {{middle, 11, 0x57738F}, {0, 0, contour}}},
    {13, StateNormal, Own, {{0, 0, 0x57738F}}, ContourNone},
    {18, StateHot, Own, {{middle, 11, 0x3080B0}, {3, 3, back}, {59, 0, 0x3080B0}}},
    // Layers.
    {8, StateNormal, Own, {{0, 11, 0xA0A0A0}, {middle, 2, 0xFEFEFE}, {middle, 20, 0xE0E0E0}}},
    {8, StateNormal, Own | Focus, {{0, 11, 0xE2A66A}}},
    {9, StateNormal, 0, {{middle, 0, 0xFBFBFB}, {middle, 1, 0xE9E2C5}, {middle, 2, 0xEBE8EA}, {middle, 20, 0xE8EBE9}}},
    {10, StateNormal, Own, {{middle, 0, 0x000C2C}, {middle, 1, 0x9CB0C4}, {middle, 4, back}, {middle, 5, 0x385878}, {58, 21, 0x000424}}},
    {11, StateNormal, 0, {{0, 11, 0x000020}}},
    {12, StateNormal, Own, {{middle, 2, 0xF6E4C2}, {middle, 20, 0xF0D29A}, {59, 0, face}}},
    {14, StateHot, 0, {{middle, 1, 0x6FC0FF}, {middle, 10, 0xA9D9FF}, {middle, 11, 0x3FABFF}, {0, 11, 0x1869A8}}},
    {15, StateHot, 0, {{1, 11, 0xF6D4BC}, {58, 11, 0xE4AD89}}},
    {16, StateNormal, 0, {{0, 11, 0x000012}, {middle, 11, 0x2E4E6E}}},
    {17, StateHot, Own, {{middle, 0, System(COLOR_HIGHLIGHT)}}},
};

}  // namespace

TEST(Faces, HaveTheirFormulasColours)
{
    for (const auto& [style, state, flags, pixels, contourStyle, direction] : faces) {
        ButtonPaper paper(width, height);
        ButtonLook look = ButtonPaper::Look(state, (flags & Own) != 0);
        look.isDefault = (flags & Default) != 0;
        look.hasFocus = (flags & Focus) != 0;
        look.pressedByToggle = (flags & Toggled) != 0;
        look.contourStyle = contourStyle;
        look.gradientDirection = direction;
        paper.Draw(style, look, paperColor);
        for (const auto& [x, y, color] : pixels) {
            const COLORREF expected = color & 0x80000000U ? GetSysColor(static_cast<int>(color & 0xFF)) : color;
            EXPECT_EQ(paper.At(x, y), expected) << "style " << style << " state " << state << " flags " << flags << " contour "
                                                << contourStyle << " direction " << direction << " at " << x << ", " << y;
        }
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
                // The frame of style 10 is square, and its corners are cut off with the window's.
                EXPECT_TRUE(bare == 0 && (lines == 0 || style == SoftRoundStyle))
                    << "style " << style << " state " << state << ", " << size.cx << " by " << size.cy << ": " << bare << ", " << lines;
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
