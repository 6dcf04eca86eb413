// Facts about lines, shapes, edges and bitmaps, pixel by pixel.
#include "base/String.h"
#include "tests/conformance/Paper.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <tuple>

namespace {

using tests::Paper;
using tests::Select;
using Rows = Paper::Rows;

TEST(Shapes, LeaveOutTheirLastPixels)
{
    const Paper paper(30, 10);
    MoveToEx(paper.Dc(), 1, 1, nullptr);
    LineTo(paper.Dc(), 5, 1);
    POINT position{};
    MoveToEx(paper.Dc(), 5, 7, &position);
    EXPECT_EQ(position.x, 5);
    LineTo(paper.Dc(), 1, 7);
    const Select brush(paper.Dc(), GetStockObject(NULL_BRUSH));
    Rectangle(paper.Dc(), 7, 1, 13, 5);
    RoundRect(paper.Dc(), 14, 0, 26, 10, 6, 6);
    EXPECT_EQ(paper.Picture(), (Rows{"................########......", ".####..######..#........#.....", ".......#....#.#..........#....",
                                     ".......#....#.#..........#....", ".......######.#..........#....", "..............#..........#....",
                                     "..............#..........#....", "..####........#..........#....", "...............#........#.....",
                                     "................########......"}));
}

TEST(Edges, EveryCornerHasTheColourOfItsSide)
{
    enum Ink { Light = COLOR_3DLIGHT, High = COLOR_BTNHIGHLIGHT, Shadow = COLOR_BTNSHADOW, Dark = COLOR_3DDKSHADOW, Face = COLOR_BTNFACE };
    struct Case {
        UINT edge, flags;
        Ink outerLeftTop, outerRightBottom, innerLeftTop, innerRightBottom;
    };
    constexpr Case cases[]{
        {EDGE_RAISED, BF_RECT, Light, Dark, High, Shadow},
        {EDGE_SUNKEN, BF_RECT, Shadow, High, Dark, Light},
        {EDGE_ETCHED, BF_RECT, Shadow, High, High, Shadow},
        {EDGE_RAISED, BF_RECT | BF_FLAT, Shadow, Shadow, Face, Face},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(testing::Message() << "edge " << test.edge << " flags " << test.flags);
        const Paper paper(10, 8, RGB(1, 2, 3));
        RECT box{1, 1, 9, 7};
        EXPECT_TRUE(DrawEdge(paper.Dc(), &box, test.edge, test.flags));
        for (const auto& [x, y, ink] : {std::tuple{1, 1, test.outerLeftTop},
                                        {8, 1, test.outerRightBottom},
                                        {1, 6, test.outerRightBottom},
                                        {8, 6, test.outerRightBottom},
                                        {2, 2, test.innerLeftTop},
                                        {7, 2, test.innerRightBottom},
                                        {2, 5, test.innerRightBottom}})
            EXPECT_EQ(paper.At(x, y), GetSysColor(ink)) << x << ", " << y;
        EXPECT_EQ(paper.At(3, 3), RGB(1, 2, 3));
    }
}

TEST(Rectangles, FrameIsOnePixel_AndFocusDotsVanishTheSecondTime)
{
    const Paper paper(10, 5);
    RECT box{1, 0, 6, 4};
    FrameRect(paper.Dc(), &box, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    const Rows before = paper.Picture();
    EXPECT_EQ(before, (Rows{".#####....", ".#...#....", ".#...#....", ".#####....", ".........."}));
    const RECT focus{0, 0, 10, 5};
    DrawFocusRect(paper.Dc(), &focus);
    const std::string dots = paper.Picture()[4];
    EXPECT_EQ(std::count(dots.begin(), dots.end(), '#'), 5);
    DrawFocusRect(paper.Dc(), &focus);
    EXPECT_EQ(paper.Picture(), before);
    SetViewportOrgEx(paper.Dc(), 7, 1, nullptr);
    FillRect(paper.Dc(), &box, reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNSHADOW + 1)));
    POINT origin{};
    SetViewportOrgEx(paper.Dc(), 0, 0, &origin);
    EXPECT_EQ(origin.x, 7);
    EXPECT_EQ(paper.At(8, 1), GetSysColor(COLOR_BTNSHADOW));
}

}  // namespace
