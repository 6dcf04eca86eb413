// Facts about lines, shapes and edges, pixel by pixel.
#include "tests/conformance/Paper.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

using tests::Paper;
using tests::Select;
using Rows = Paper::Rows;

void Line(const Paper& paper, POINT from, POINT to)
{
    MoveToEx(paper.Dc(), from.x, from.y, nullptr);
    LineTo(paper.Dc(), to.x, to.y);
}

TEST(Lines, LeaveOutTheirLastPixel_AndRoundHalvesUpAndLeftInBothDirections)
{
    const Paper paper(22, 9);
    Line(paper, {0, 0}, {10, 3});
    Line(paper, {21, 3}, {11, 0});
    Line(paper, {0, 4}, {2, 8});
    Line(paper, {5, 8}, {3, 4});
    Line(paper, {8, 5}, {12, 5});
    Line(paper, {17, 7}, {13, 7});
    EXPECT_EQ(paper.Picture(), (Rows{"##..........#.........", "..####.......####.....", "......###........###..", ".........#..........##",
                                     "#.....................", "#..#....####..........", ".#..#.................", ".#..#.........####....",
                                     ".....#................"}));
}

TEST(Lines, ThePositionFollows_AndPolylinesLeaveItAlone)
{
    const Paper paper(8, 4);
    Line(paper, {1, 1}, {4, 1});
    POINT position{};
    MoveToEx(paper.Dc(), 6, 3, &position);
    EXPECT_EQ(position.x, 4);
    EXPECT_EQ(position.y, 1);
    const POINT corner[]{{0, 0}, {6, 0}, {6, 3}};
    EXPECT_TRUE(Polyline(paper.Dc(), corner, 3));
    MoveToEx(paper.Dc(), 0, 0, &position);
    EXPECT_EQ(position.x, 6);
    EXPECT_EQ(paper.Picture(), (Rows{"#######.", ".###..#.", "......#.", "........"}));
}

TEST(Lines, DotsAreThreeLong_AndTwoPixelsWidePensLieBeforeTheLine)
{
    const Paper paper(16, 6);
    const base::PenHandle dots(CreatePen(PS_DOT, 1, 0));
    const base::PenHandle wide(CreatePen(PS_SOLID, 2, 0));
    SetBkMode(paper.Dc(), TRANSPARENT);
    {
        const Select select(paper.Dc(), dots.Get());
        Line(paper, {0, 0}, {14, 0});
    }
    const Select select(paper.Dc(), wide.Get());
    Line(paper, {3, 3}, {10, 3});
    EXPECT_EQ(paper.Picture(), (Rows{"###...###...##..", "................", "..#########.....", "..#########.....", "................",
                                     "................"}));
}

TEST(Lines, XorTwice_RestoresThePaper)
{
    const Paper paper(6, 1, RGB(10, 20, 30));
    EXPECT_EQ(SetROP2(paper.Dc(), R2_NOTXORPEN), R2_COPYPEN);
    Line(paper, {0, 0}, {6, 0});
    EXPECT_EQ(paper.At(2, 0), RGB(245, 235, 225));
    Line(paper, {0, 0}, {6, 0});
    EXPECT_EQ(paper.At(2, 0), RGB(10, 20, 30));
    EXPECT_EQ(SetROP2(paper.Dc(), 17), 0);
}

TEST(Shapes, RectanglesExcludeRightAndBottom_AndShrinkWithoutAPen)
{
    const Paper paper(18, 5);
    Rectangle(paper.Dc(), 1, 0, 6, 4);
    Rectangle(paper.Dc(), 12, 4, 8, 1);
    const Select brush(paper.Dc(), GetStockObject(BLACK_BRUSH));
    const Select pen(paper.Dc(), GetStockObject(NULL_PEN));
    Rectangle(paper.Dc(), 13, 0, 18, 4);
    EXPECT_EQ(paper.Picture(),
              (Rows{".#####.......####.", ".#...#..####.####.", ".#...#..#..#.####.", ".#####..####......", ".................."}));
}

TEST(Shapes, RoundRectIsOnePixelLargerThanItsRegion)
{
    const Paper paper(26, 10);
    {
        const Select brush(paper.Dc(), GetStockObject(NULL_BRUSH));
        RoundRect(paper.Dc(), 0, 0, 12, 10, 6, 6);
    }
    const base::RegionHandle region(CreateRoundRectRgn(13, 0, 25, 10, 6, 6));
    FillRgn(paper.Dc(), region.Get(), static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(paper.Picture(),
              (Rows{"..########.....#######....", ".#........#...#########...", "#..........#.###########..", "#..........#.###########..",
                    "#..........#.###########..", "#..........#.###########..", "#..........#.###########..", "#..........#..#########...",
                    ".#........#....#######....", "..########................"}));
}

TEST(Shapes, PolygonsAreOutlinedOnTheirPoints_AndRegionsLeaveOutRightAndBottom)
{
    const Paper paper(30, 10);
    const POINT triangle[]{{1, 1}, {12, 1}, {6, 9}};
    const POINT moved[]{{16, 1}, {27, 1}, {21, 9}};
    Polygon(paper.Dc(), triangle, 3);
    const base::RegionHandle region(CreatePolygonRgn(moved, 3, ALTERNATE));
    FillRgn(paper.Dc(), region.Get(), static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(paper.Picture(), (Rows{"..............................", ".############...###########...", "..#........#.....##########...",
                                     "..#.......#.......########....", "...#......#.......#######.....", "...#.....#.........#####......",
                                     "....#...#...........####......", ".....#.#............###.......", ".....#.#.............#........",
                                     "......#......................."}));
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
        {EDGE_BUMP, BF_RECT, Light, Dark, Dark, Light},
        {EDGE_RAISED, BF_RECT | BF_SOFT, High, Dark, Light, Shadow},
        {EDGE_SUNKEN, BF_RECT | BF_SOFT, Dark, High, Shadow, Light},
        {EDGE_RAISED, BF_RECT | BF_FLAT, Shadow, Shadow, Face, Face},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(testing::Message() << "edge " << test.edge << " flags " << test.flags);
        const Paper paper(10, 8, RGB(1, 2, 3));
        RECT box{1, 1, 9, 7};
        EXPECT_TRUE(DrawEdge(paper.Dc(), &box, test.edge, test.flags | BF_ADJUST));
        for (const auto& [x, y, ink] : {std::tuple{1, 1, test.outerLeftTop},
                                        {8, 1, test.outerRightBottom},
                                        {1, 6, test.outerRightBottom},
                                        {8, 6, test.outerRightBottom},
                                        {2, 2, test.innerLeftTop},
                                        {7, 2, test.innerRightBottom},
                                        {2, 5, test.innerRightBottom}})
            EXPECT_EQ(paper.At(x, y), GetSysColor(ink)) << x << ", " << y;
        EXPECT_EQ(paper.At(3, 3), RGB(1, 2, 3));
        EXPECT_EQ(box.left, 3);
        EXPECT_EQ(box.bottom, 5);
    }
}

TEST(Edges, ASideAlone_AndTheMiddle)
{
    const Paper paper(6, 4, RGB(1, 2, 3));
    RECT box{0, 0, 6, 4};
    DrawEdge(paper.Dc(), &box, BDR_SUNKENOUTER, BF_BOTTOM);
    EXPECT_EQ(paper.At(0, 3), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(paper.At(0, 0), RGB(1, 2, 3));
    DrawEdge(paper.Dc(), &box, EDGE_RAISED, BF_RECT | BF_MIDDLE);
    EXPECT_EQ(paper.At(3, 2), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(box.left, 0);
}

TEST(Rectangles, FrameIsOnePixel_FocusDotsVanishTheSecondTime_AndInvertTurnsColoursOver)
{
    const Paper paper(10, 5);
    RECT box{1, 0, 6, 4};
    FrameRect(paper.Dc(), &box, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(paper.Picture(), (Rows{".#####....", ".#...#....", ".#...#....", ".#####....", ".........."}));
    const Rows before = paper.Picture();
    const RECT focus{0, 0, 10, 5};
    DrawFocusRect(paper.Dc(), &focus);
    const std::string dots = paper.Picture()[4];
    EXPECT_EQ(std::count(dots.begin(), dots.end(), '#'), 5);
    DrawFocusRect(paper.Dc(), &focus);
    EXPECT_EQ(paper.Picture(), before);
    InvertRect(paper.Dc(), &box);
    EXPECT_EQ(paper.Picture()[1], "..###.....");
    FillRect(paper.Dc(), &box, reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNSHADOW + 1)));
    EXPECT_EQ(paper.At(2, 2), GetSysColor(COLOR_BTNSHADOW));
}

}  // namespace
