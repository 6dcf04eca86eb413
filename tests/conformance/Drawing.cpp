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

BITMAPINFO TwoByTwo(int height)
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), 2, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    return info;
}

/// The blue values of a row's first pixels as digits.
std::string Digits(const Paper& paper, int row, int count)
{
    std::string digits;
    for (int x = 0; x < count; ++x)
        digits += static_cast<char>('0' + GetBValue(paper.At(x, row)));
    return digits;
}

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

TEST(Bitmaps, PositiveHeightMeansLowestRowFirst)
{
    constexpr std::uint32_t kFour[]{1, 2, 3, 4};
    for (const int height : {2, -2}) {
        SCOPED_TRACE(height);
        const Paper paper(5, 4, 0);
        const BITMAPINFO info = TwoByTwo(height);
        EXPECT_EQ(StretchDIBits(paper.Dc(), 1, 1, 2, 2, 0, 0, 2, 2, kFour, &info, DIB_RGB_COLORS, SRCCOPY), 2);
        EXPECT_EQ(Digits(paper, 1, 5), height > 0 ? "03400" : "01200");
        EXPECT_EQ(Digits(paper, 2, 5), height > 0 ? "01200" : "03400");
        BitBlt(paper.Dc(), 2, 1, 2, 1, paper.Dc(), 1, 1, SRCCOPY);
        EXPECT_EQ(Digits(paper, 1, 5), height > 0 ? "03340" : "01120") << "overlap is harmless";

        const base::MemoryDc dc(CreateCompatibleDC(nullptr));
        void* memory = nullptr;
        const base::BitmapHandle bitmap(CreateDIBSection(dc.Get(), &info, DIB_RGB_COLORS, &memory, nullptr, 0));
        ASSERT_TRUE(bitmap);
        std::copy(std::begin(kFour), std::end(kFour), static_cast<std::uint32_t*>(memory));
        const Select select(dc.Get(), bitmap.Get());
        EXPECT_EQ(GetPixel(dc.Get(), 0, 0), height > 0 ? RGB(0, 0, 3) : RGB(0, 0, 1)) << "a section's bits are its pixels";
    }
}

TEST(Objects, TellWhatTheyAreMadeOf_AndABitmapFitsOneDeviceContextAtATime)
{
    LOGFONTW wanted{};
    wanted.lfHeight = -11;
    wanted.lfWeight = FW_BOLD;
    base::FontHandle font(CreateFontIndirectW(&wanted));
    LOGFONTW description{};
    EXPECT_EQ(GetObjectW(font.Get(), sizeof(description), &description), static_cast<int>(sizeof(LOGFONTW)));
    EXPECT_EQ(description.lfHeight, -11);
    EXPECT_EQ(description.lfWeight, FW_BOLD);
    const HFONT stale = font.Get();
    font.Reset();
    EXPECT_FALSE(DeleteObject(stale));
    EXPECT_TRUE(DeleteObject(GetStockObject(WHITE_BRUSH)));

    const base::MemoryDc first(CreateCompatibleDC(nullptr));
    const base::MemoryDc second(CreateCompatibleDC(nullptr));
    const base::BitmapHandle bitmap(CreateCompatibleBitmap(first.Get(), 5, 4));
    BITMAP record{};
    EXPECT_EQ(GetObjectW(bitmap.Get(), sizeof(record), &record), static_cast<int>(sizeof(record)));
    EXPECT_EQ(record.bmBitsPixel, 1) << "a fresh device context is monochrome";
    EXPECT_EQ(record.bmWidth, 5);
    const Select select(first.Get(), bitmap.Get());
    EXPECT_EQ(SelectObject(second.Get(), bitmap.Get()), nullptr);
    EXPECT_EQ(GetCurrentObject(first.Get(), OBJ_BITMAP), static_cast<HGDIOBJ>(bitmap.Get()));
}

}  // namespace
