// Facts about bitmaps: row order, copying, stretching, monochrome, and what objects tell about themselves.
#include "base/String.h"
#include "tests/conformance/Paper.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

using tests::Paper;
using tests::Select;

constexpr std::uint32_t kFour[]{1, 2, 3, 4};

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

TEST(Dibs, PositiveHeightMeansLowestRowFirst)
{
    for (const int height : {2, -2}) {
        SCOPED_TRACE(height);
        const Paper paper(8, 4, 0);
        const BITMAPINFO info = TwoByTwo(height);
        EXPECT_EQ(SetDIBitsToDevice(paper.Dc(), 0, 0, 2, 2, 0, 0, 0, 2, kFour, &info, DIB_RGB_COLORS), 2);
        EXPECT_EQ(StretchDIBits(paper.Dc(), 3, 0, 4, 4, 0, 0, 2, 2, kFour, &info, DIB_RGB_COLORS, SRCCOPY), 2);
        EXPECT_EQ(Digits(paper, 0, 8), height > 0 ? "34033440" : "12011220");
        EXPECT_EQ(Digits(paper, 1, 8), height > 0 ? "12033440" : "34011220");
        EXPECT_EQ(Digits(paper, 3, 8), height > 0 ? "00011220" : "00033440");
    }
}

TEST(Dibs, ABottomUpSectionsBitsAreItsPixels_AndGetDIBitsTurnsThemOver)
{
    const base::MemoryDc dc(CreateCompatibleDC(nullptr));
    const BITMAPINFO info = TwoByTwo(2);
    void* memory = nullptr;
    const base::BitmapHandle bitmap(CreateDIBSection(dc.Get(), &info, DIB_RGB_COLORS, &memory, nullptr, 0));
    ASSERT_TRUE(bitmap);
    auto* const bits = static_cast<std::uint32_t*>(memory);
    for (std::uint32_t index = 0; index < 4; ++index)
        bits[index] = index + 1;
    {
        const Select select(dc.Get(), bitmap.Get());
        EXPECT_EQ(GetPixel(dc.Get(), 0, 0), RGB(0, 0, 3));
        SetPixelV(dc.Get(), 1, 1, RGB(0, 0, 9));
        GdiFlush();
        EXPECT_EQ(bits[1], 9u);
    }
    std::uint32_t rows[4]{};
    BITMAPINFO wanted = TwoByTwo(-2);
    EXPECT_EQ(GetDIBits(dc.Get(), bitmap.Get(), 0, 2, rows, &wanted, DIB_RGB_COLORS), 2);
    EXPECT_EQ(rows[0], 3u);
    EXPECT_EQ(rows[3], 9u);
    wanted = TwoByTwo(2);
    EXPECT_EQ(GetDIBits(dc.Get(), bitmap.Get(), 1, 1, rows, &wanted, DIB_RGB_COLORS), 1);
    EXPECT_EQ(rows[0], 3u);
    BITMAPINFO question{};
    question.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    EXPECT_NE(GetDIBits(dc.Get(), bitmap.Get(), 0, 0, nullptr, &question, DIB_RGB_COLORS), 0);
    EXPECT_EQ(question.bmiHeader.biWidth, 2);
    EXPECT_EQ(question.bmiHeader.biHeight, 2);
    EXPECT_EQ(question.bmiHeader.biBitCount, 32);
}

TEST(Dibs, TwentyFourBitRowsBeginAtMultiplesOfFour)
{
    const Paper paper(4, 4, 0);
    const BYTE bits[]{1, 0, 0, 2, 0, 0, 3, 0, 0, 0, 0, 0, 4, 0, 0, 5, 0, 0, 6, 0, 0, 0, 0, 0};
    BITMAPINFO info = TwoByTwo(2);
    info.bmiHeader.biWidth = 3;
    info.bmiHeader.biBitCount = 24;
    SetDIBitsToDevice(paper.Dc(), 0, 0, 3, 2, 0, 0, 0, 2, bits, &info, DIB_RGB_COLORS);
    EXPECT_EQ(Digits(paper, 0, 4), "4560");
    EXPECT_EQ(Digits(paper, 1, 4), "1230");
}

TEST(Blits, NegativeSizesMirror_AndOverlapIsHarmless)
{
    const Paper paper(10, 2, 0);
    for (int x = 0; x < 4; ++x)
        SetPixelV(paper.Dc(), x, 0, RGB(0, 0, x + 1));
    StretchBlt(paper.Dc(), 9, 0, -4, 1, paper.Dc(), 0, 0, 4, 1, SRCCOPY);
    StretchBlt(paper.Dc(), 0, 1, 8, 1, paper.Dc(), 0, 0, 4, 1, SRCCOPY);
    BitBlt(paper.Dc(), 1, 0, 4, 1, paper.Dc(), 0, 0, SRCCOPY);
    EXPECT_EQ(Digits(paper, 0, 10), "1123404321");
    EXPECT_EQ(Digits(paper, 1, 10), "1122334400");
}

TEST(Blits, RasterOperationsCombineBitByBit)
{
    const struct {
        DWORD rop;
        COLORREF expected;
    } cases[]{{SRCCOPY, RGB(0, 0, 0x0C)},   {SRCAND, RGB(0, 0, 0x08)},           {SRCPAINT, RGB(0, 0, 0x0E)},
              {SRCINVERT, RGB(0, 0, 0x06)}, {NOTSRCCOPY, RGB(0xFF, 0xFF, 0xF3)}, {DSTINVERT, RGB(0xFF, 0xFF, 0xF5)},
              {PATCOPY, RGB(0, 0, 0x03)},   {PATINVERT, RGB(0, 0, 0x09)},        {MERGECOPY, RGB(0, 0, 0)},
              {BLACKNESS, RGB(0, 0, 0)},    {WHITENESS, RGB(255, 255, 255)}};
    const base::BrushHandle brush(CreateSolidBrush(RGB(0, 0, 0x03)));
    for (const auto& test : cases) {
        const Paper source(1, 1, RGB(0, 0, 0x0C));
        const Paper target(1, 1, RGB(0, 0, 0x0A));
        const Select select(target.Dc(), brush.Get());
        EXPECT_TRUE(BitBlt(target.Dc(), 0, 0, 1, 1, source.Dc(), 0, 0, test.rop));
        EXPECT_EQ(target.At(0, 0), test.expected) << std::hex << test.rop;
    }
}

TEST(Monochrome, TakesTheTargetsColours_AndGivesTheSourcesBackgroundAsWhite)
{
    const Paper paper(4, 1);
    const base::MemoryDc dc(CreateCompatibleDC(paper.Dc()));
    const base::BitmapHandle bitmap(CreateBitmap(4, 1, 1, 1, nullptr));
    const Select select(dc.Get(), bitmap.Get());
    for (int x = 0; x < 4; ++x)
        SetPixelV(dc.Get(), x, 0, RGB(80 * x, 80 * x, 80 * x));
    EXPECT_EQ(GetPixel(dc.Get(), 1, 0), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(dc.Get(), 2, 0), RGB(255, 255, 255));
    EXPECT_EQ(GetNearestColor(dc.Get(), RGB(200, 200, 200)), RGB(255, 255, 255));
    SetTextColor(paper.Dc(), RGB(1, 2, 3));
    SetBkColor(paper.Dc(), RGB(4, 5, 6));
    BitBlt(paper.Dc(), 0, 0, 4, 1, dc.Get(), 0, 0, SRCCOPY);
    EXPECT_EQ(paper.At(1, 0), RGB(1, 2, 3));
    EXPECT_EQ(paper.At(2, 0), RGB(4, 5, 6));
    SetPixelV(paper.Dc(), 3, 0, RGB(9, 9, 9));
    BitBlt(dc.Get(), 0, 0, 4, 1, paper.Dc(), 0, 0, SRCCOPY);
    EXPECT_EQ(GetPixel(dc.Get(), 0, 0), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(dc.Get(), 2, 0), RGB(255, 255, 255));
    EXPECT_EQ(GetPixel(dc.Get(), 3, 0), RGB(0, 0, 0));
}

TEST(Objects, ABitmapFitsOneDeviceContextAtATime_AndAFreshOneIsMonochrome)
{
    const base::MemoryDc first(CreateCompatibleDC(nullptr));
    const base::MemoryDc second(CreateCompatibleDC(nullptr));
    const base::BitmapHandle bitmap(CreateCompatibleBitmap(first.Get(), 5, 4));
    BITMAP record{};
    EXPECT_EQ(GetObjectW(bitmap.Get(), sizeof(record), &record), static_cast<int>(sizeof(record)));
    EXPECT_EQ(record.bmBitsPixel, 1);
    EXPECT_EQ(record.bmWidth, 5);
    EXPECT_EQ(record.bmWidthBytes, 2);
    const Select select(first.Get(), bitmap.Get());
    EXPECT_EQ(SelectObject(second.Get(), bitmap.Get()), nullptr);
    EXPECT_EQ(GetCurrentObject(first.Get(), OBJ_BITMAP), static_cast<HGDIOBJ>(bitmap.Get()));
}

TEST(Objects, TellWhatTheyAreMadeOf)
{
    const base::FontHandle font(CreateFontW(-11, 0, 0, 0, FW_BOLD, TRUE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0, TEXT("Tahoma")));
    LOGFONTW description{};
    EXPECT_EQ(GetObjectW(font.Get(), 0, nullptr), static_cast<int>(sizeof(LOGFONTW)));
    EXPECT_EQ(GetObjectW(font.Get(), sizeof(description), &description), static_cast<int>(sizeof(LOGFONTW)));
    EXPECT_EQ(description.lfHeight, -11);
    EXPECT_EQ(description.lfWeight, FW_BOLD);
    EXPECT_EQ(base::String(description.lfFaceName), TEXT("Tahoma"));
    EXPECT_TRUE(DeleteObject(GetStockObject(WHITE_BRUSH)));
    base::PenHandle pen(CreatePen(PS_SOLID, 1, 0));
    EXPECT_EQ(GetObjectType(pen.Get()), static_cast<DWORD>(OBJ_PEN));
    const HPEN stale = pen.Get();
    pen.Reset();
    EXPECT_FALSE(DeleteObject(stale));
    EXPECT_EQ(GetObjectType(stale), 0u);
}

}  // namespace
