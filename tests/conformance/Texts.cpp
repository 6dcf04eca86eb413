// Facts about text: what DrawTextW measures and where it draws, whatever the font.
#include "base/String.h"
#include "tests/conformance/Paper.h"

#include <gtest/gtest.h>

namespace {

SIZE Extent(HDC dc, base::StringView text)
{
    SIZE size{};
    EXPECT_TRUE(GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size));
    return size;
}

TEST(Texts, Measuring_TakesMarksOutBreaksLinesAndNeverSplitsAWord)
{
    const base::MemoryDc dc(CreateCompatibleDC(nullptr));
    const struct {
        const WCHAR* text;
        UINT format;
        const WCHAR* widest;
        int lines;
    } cases[] = {{TEXT("A && &Setup"), DT_SINGLELINE, TEXT("A & Setup"), 1},
                 {TEXT("A && B"), DT_SINGLELINE | DT_NOPREFIX, TEXT("A && B"), 1},
                 {TEXT("several words"), DT_WORDBREAK, TEXT("several"), 2},
                 {TEXT("one\r\ntwo\nthree\n"), 0, TEXT("three"), 3}};
    for (const auto& [text, format, widest, lines] : cases) {
        RECT box{5, 7, 6, 8};
        EXPECT_EQ(DrawTextW(dc.Get(), text, -1, &box, format | DT_CALCRECT), lines * Extent(dc.Get(), widest).cy) << "format " << format;
        EXPECT_EQ(box.left, 5);
        EXPECT_EQ(box.right - box.left, Extent(dc.Get(), widest).cx) << "format " << format;
        EXPECT_EQ(box.bottom - box.top, lines * Extent(dc.Get(), widest).cy) << "format " << format;
    }
}

TEST(Texts, Alignment_PutsTheInkWhereItSays)
{
    const auto inkStart = [](UINT format) {
        const tests::Paper paper(120, 20);
        RECT box{0, 0, 120, 20};
        DrawTextW(paper.Dc(), TEXT("H"), -1, &box, format | DT_WORDBREAK);
        for (int x = 0; x < 120; ++x)
            for (int y = 0; y < 20; ++y)
                if (paper.At(x, y) == 0)
                    return x;
        return 999;
    };
    const int spare = 120 - Extent(base::MemoryDc(CreateCompatibleDC(nullptr)).Get(), TEXT("H")).cx;
    EXPECT_EQ(inkStart(DT_CENTER) - inkStart(0), spare / 2);
    EXPECT_EQ(inkStart(DT_RIGHT) - inkStart(0), spare);
}

}  // namespace
