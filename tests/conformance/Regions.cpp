// Facts about regions and clipping.
#include "tests/conformance/Paper.h"

#include <gtest/gtest.h>

namespace {

using tests::Paper;
using Rows = Paper::Rows;

base::RegionHandle Box(int left, int top, int right, int bottom)
{
    return base::RegionHandle(CreateRectRgn(left, top, right, bottom));
}

TEST(Regions, CombineReportsTheKind)
{
    const auto first = Box(0, 0, 10, 10);
    const auto second = Box(5, 5, 15, 15);
    const auto right = Box(10, 0, 20, 10);
    const auto result = Box(0, 0, 0, 0);
    const struct {
        HRGN other;
        int mode, kind;
        RECT box;
    } cases[]{
        {second.Get(), RGN_AND, SIMPLEREGION, {5, 5, 10, 10}},   {second.Get(), RGN_OR, COMPLEXREGION, {0, 0, 15, 15}},
        {second.Get(), RGN_DIFF, COMPLEXREGION, {0, 0, 10, 10}}, {second.Get(), RGN_XOR, COMPLEXREGION, {0, 0, 15, 15}},
        {right.Get(), RGN_OR, SIMPLEREGION, {0, 0, 20, 10}},     {right.Get(), RGN_AND, NULLREGION, {0, 0, 0, 0}},
        {nullptr, RGN_COPY, SIMPLEREGION, {0, 0, 10, 10}},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.mode);
        EXPECT_EQ(CombineRgn(result.Get(), first.Get(), test.other, test.mode), test.kind);
        RECT box{};
        EXPECT_EQ(GetRgnBox(result.Get(), &box), test.kind);
        EXPECT_TRUE(EqualRect(&box, &test.box));
    }
}

TEST(Regions, EqualWhereverTheyCameFrom)
{
    const auto whole = Box(0, 0, 10, 10);
    const auto hole = Box(3, 3, 6, 6);
    const auto ring = Box(0, 0, 0, 0);
    CombineRgn(ring.Get(), whole.Get(), hole.Get(), RGN_DIFF);
    EXPECT_FALSE(EqualRgn(ring.Get(), whole.Get()));
    EXPECT_FALSE(PtInRegion(ring.Get(), 4, 4));
    EXPECT_TRUE(PtInRegion(ring.Get(), 6, 5));
    EXPECT_FALSE(PtInRegion(ring.Get(), 10, 5));
    CombineRgn(ring.Get(), ring.Get(), hole.Get(), RGN_OR);
    EXPECT_TRUE(EqualRgn(ring.Get(), whole.Get()));
    EXPECT_EQ(OffsetRgn(ring.Get(), 2, 1), SIMPLEREGION);
    EXPECT_TRUE(PtInRegion(ring.Get(), 11, 10));
    const auto turned = Box(10, 10, 0, 0);
    EXPECT_TRUE(EqualRgn(turned.Get(), whole.Get()));
}

TEST(Regions, WindingFillsWhatAlternateLeavesOpen)
{
    // One square runs through a smaller one of the same direction.
    const POINT squares[]{{0, 0}, {9, 0}, {9, 9}, {0, 9}, {0, 0}, {3, 3}, {6, 3}, {6, 6}, {3, 6}, {3, 3}};
    const base::RegionHandle alternate(CreatePolygonRgn(squares, 10, ALTERNATE));
    const base::RegionHandle winding(CreatePolygonRgn(squares, 10, WINDING));
    EXPECT_FALSE(PtInRegion(alternate.Get(), 4, 4));
    EXPECT_TRUE(PtInRegion(winding.Get(), 4, 4));
    EXPECT_TRUE(PtInRegion(alternate.Get(), 1, 4));
}

TEST(Clipping, IsCopiedFromTheRegion_Narrows_AndComesBackWithTheState)
{
    const Paper paper(8, 4);
    const int state = SaveDC(paper.Dc());
    {
        const auto part = Box(2, 0, 7, 4);
        EXPECT_EQ(SelectClipRgn(paper.Dc(), part.Get()), SIMPLEREGION);
    }
    EXPECT_EQ(ExcludeClipRect(paper.Dc(), 4, 1, 5, 3), COMPLEXREGION);
    EXPECT_EQ(IntersectClipRect(paper.Dc(), 0, 0, 6, 4), COMPLEXREGION);
    PatBlt(paper.Dc(), 0, 0, 8, 4, BLACKNESS);
    EXPECT_TRUE(RestoreDC(paper.Dc(), state));
    EXPECT_FALSE(RestoreDC(paper.Dc(), state));
    EXPECT_EQ(paper.Picture(), (Rows{"..####..", "..##.#..", "..##.#..", "..####.."}));
    RECT box{};
    EXPECT_EQ(GetClipBox(paper.Dc(), &box), SIMPLEREGION);
    EXPECT_EQ(box.right, 8);
}

TEST(Clipping, LiesInDeviceCoordinates_AndOriginsMoveTheDrawing)
{
    const Paper paper(8, 4);
    SetViewportOrgEx(paper.Dc(), 2, 1, nullptr);
    IntersectClipRect(paper.Dc(), 0, 0, 3, 3);
    POINT before{};
    OffsetViewportOrgEx(paper.Dc(), 1, 0, &before);
    EXPECT_EQ(before.x, 2);
    RECT box{};
    GetClipBox(paper.Dc(), &box);
    EXPECT_EQ(box.left, -1);
    PatBlt(paper.Dc(), 0, 0, 8, 1, BLACKNESS);
    SetViewportOrgEx(paper.Dc(), 0, 0, &before);
    EXPECT_EQ(before.x, 3);
    EXPECT_EQ(before.y, 1);
    SelectClipRgn(paper.Dc(), nullptr);
    EXPECT_EQ(paper.Picture(), (Rows{"........", "...##...", "........", "........"}));
}

}  // namespace
