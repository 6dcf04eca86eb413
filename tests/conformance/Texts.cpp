// Facts about text: measures that must agree with each other whatever the font, and colours by name.
#include "base/String.h"
#include "tests/conformance/Paper.h"
#include "tests/support/KnownGap.h"

#include <gtest/gtest.h>

#include <olectl.h>

#include <algorithm>
#include <utility>

namespace {

using tests::Paper;
using tests::Select;

class Texts : public testing::Test {
protected:
    [[nodiscard]] SIZE Extent(const base::String& text) const
    {
        SIZE size{};
        EXPECT_TRUE(GetTextExtentPoint32W(paper_.Dc(), text.c_str(), static_cast<int>(text.size()), &size));
        return size;
    }
    int Measure(const base::String& text, RECT& box, UINT format) const
    {
        return DrawTextW(paper_.Dc(), text.c_str(), -1, &box, format | DT_CALCRECT);
    }
    [[nodiscard]] int LineHeight() const
    {
        TEXTMETRICW metrics{};
        GetTextMetricsW(paper_.Dc(), &metrics);
        return metrics.tmHeight;
    }
    /// The smallest rectangle around what is not white.
    [[nodiscard]] RECT Ink() const
    {
        RECT ink{kWidth, kHeight, 0, 0};
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                if (paper_.At(x, y) != RGB(255, 255, 255))
                    ink = {std::min<LONG>(ink.left, x), std::min<LONG>(ink.top, y), std::max<LONG>(ink.right, x + 1),
                           std::max<LONG>(ink.bottom, y + 1)};
        return ink;
    }

    static constexpr int kWidth = 120;
    static constexpr int kHeight = 60;
    const Paper paper_{kWidth, kHeight};
};

TEST_F(Texts, CalcRectAgreesWithTheExtent_AndPrefixesTakeNoRoom)
{
    RECT box{5, 7, 6, 8};
    const int height = Measure(TEXT("Setup"), box, DT_SINGLELINE);
    const SIZE extent = Extent(TEXT("Setup"));
    EXPECT_EQ(height, extent.cy);
    EXPECT_EQ(extent.cy, LineHeight());
    EXPECT_EQ(box.right - box.left, extent.cx);
    EXPECT_EQ(box.bottom - box.top, extent.cy);
    EXPECT_EQ(box.left, 5);
    RECT prefixed{5, 7, 6, 8};
    Measure(TEXT("&Setup"), prefixed, DT_SINGLELINE);
    EXPECT_TRUE(EqualRect(&prefixed, &box));
    Measure(TEXT("&Setup"), prefixed, DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_EQ(prefixed.right - prefixed.left, Extent(TEXT("&Setup")).cx);
    Measure(TEXT("A && B"), prefixed, DT_SINGLELINE);
    EXPECT_EQ(prefixed.right - prefixed.left, Extent(TEXT("A & B")).cx);
}

TEST_F(Texts, WordBreak_TakesNoMoreThanTheWidth_SaveForAWordThatIsWider)
{
    RECT box{0, 0, Extent(TEXT("several words tha")).cx, 0};
    EXPECT_EQ(Measure(TEXT("several words that break"), box, DT_WORDBREAK), 2 * LineHeight());
    // Whether the blank at which a line breaks counts is the system's affair.
    const int widest = std::max(Extent(TEXT("several words")).cx, Extent(TEXT("that break")).cx);
    EXPECT_GE(box.right, widest);
    EXPECT_LE(box.right, widest + Extent(TEXT(" ")).cx);
    RECT narrow{0, 0, 1, 0};
    EXPECT_EQ(Measure(TEXT("several words"), narrow, DT_WORDBREAK), 2 * LineHeight());
    EXPECT_EQ(narrow.right, Extent(TEXT("several")).cx);
    RECT lines{0, 0, 1, 0};
    EXPECT_EQ(Measure(TEXT("one\r\ntwo\nthree\n"), lines, 0), 3 * LineHeight());
    EXPECT_EQ(lines.right, Extent(TEXT("three")).cx);
}

TEST_F(Texts, AnEmptyTextTakesNoRoomButReportsALine)
{
    RECT box{5, 5, 50, 8};
    EXPECT_EQ(Measure(TEXT(""), box, 0), LineHeight());
    EXPECT_EQ(box.right, 5);
    EXPECT_EQ(box.bottom, 5);
    EXPECT_EQ(Extent(TEXT("")).cx, 0);
    EXPECT_EQ(Extent(TEXT("")).cy, 0);
}

TEST_F(Texts, Alignment_PutsTheInkWhereItSays)
{
    const RECT all{0, 0, kWidth, kHeight};
    const auto draw = [&](UINT format) {
        PatBlt(paper_.Dc(), 0, 0, kWidth, kHeight, WHITENESS);
        RECT box = all;
        const int height = DrawTextW(paper_.Dc(), TEXT("HHH"), -1, &box, format | DT_SINGLELINE);
        return std::pair(height, Ink());
    };
    const RECT topLeft = draw(0).second;
    const RECT bottomRight = draw(DT_BOTTOM | DT_RIGHT).second;
    const auto [height, middle] = draw(DT_CENTER | DT_VCENTER);
    const int spareWidth = kWidth - Extent(TEXT("HHH")).cx;
    const int spareHeight = kHeight - LineHeight();
    EXPECT_EQ(bottomRight.left - topLeft.left, spareWidth);
    EXPECT_EQ(bottomRight.top - topLeft.top, spareHeight);
    EXPECT_EQ(middle.left - topLeft.left, spareWidth / 2);
    EXPECT_EQ(middle.top - topLeft.top, spareHeight / 2);
    EXPECT_EQ(height, spareHeight / 2 + LineHeight());
}

TEST_F(Texts, TheAccessKeyIsUnderlined_UnlessHidden)
{
    const auto bottom = [&](LPCWSTR text, UINT format) {
        PatBlt(paper_.Dc(), 0, 0, kWidth, kHeight, WHITENESS);
        RECT box{0, 0, kWidth, kHeight};
        DrawTextW(paper_.Dc(), text, -1, &box, DT_SINGLELINE | format);
        return Ink().bottom;
    };
    EXPECT_LT(bottom(TEXT("nn"), 0), bottom(TEXT("&nn"), 0));
    KNOWN_GAP("draws the underline in spite of DT_HIDEPREFIX");
    EXPECT_EQ(bottom(TEXT("nn"), 0), bottom(TEXT("&nn"), DT_HIDEPREFIX));
}

TEST_F(Texts, TextIsClippedToItsBox)
{
    RECT small{10, 10, 15, 16};
    DrawTextW(paper_.Dc(), TEXT("HHHH"), -1, &small, DT_SINGLELINE);
    EXPECT_LE(Ink().right, 15);
    EXPECT_LE(Ink().bottom, 16);
    DrawTextW(paper_.Dc(), TEXT("HHHH"), -1, &small, DT_SINGLELINE | DT_NOCLIP);
    EXPECT_GT(Ink().right, 15);
}

TEST_F(Texts, OpaqueTextFillsItsCell)
{
    SetBkColor(paper_.Dc(), RGB(0, 0, 255));
    TextOutW(paper_.Dc(), 10, 10, TEXT(" "), 1);
    EXPECT_EQ(Ink().left, 10);
    EXPECT_EQ(Ink().right, 10 + Extent(TEXT(" ")).cx);
    PatBlt(paper_.Dc(), 0, 0, kWidth, kHeight, WHITENESS);
    SetBkMode(paper_.Dc(), TRANSPARENT);
    SetTextAlign(paper_.Dc(), TA_RIGHT | TA_BOTTOM);
    TextOutW(paper_.Dc(), 100, 50, TEXT("H"), 1);
    EXPECT_LE(Ink().right, 100);
    EXPECT_LE(Ink().bottom, 50);
    EXPECT_GE(Ink().top, 50 - LineHeight());
}

TEST_F(Texts, LargerAndBolderFontsAreLargerAndWider)
{
    const auto extent = [&](int height, int weight) {
        const base::FontHandle font(CreateFontW(height, 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, TEXT("Tahoma")));
        const Select select(paper_.Dc(), font.Get());
        return Extent(TEXT("Velmora Setup Utility"));
    };
    EXPECT_GT(extent(-22, FW_NORMAL).cx, extent(-11, FW_NORMAL).cx);
    EXPECT_GT(extent(-22, FW_NORMAL).cy, extent(-11, FW_NORMAL).cy);
    EXPECT_GT(extent(-11, FW_BOLD).cx, extent(-11, FW_NORMAL).cx);
    EXPECT_EQ(extent(-11, FW_BOLD).cy, extent(-11, FW_NORMAL).cy);
}

int CALLBACK CountFamilies(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM parameter)
{
    auto& names = *reinterpret_cast<std::vector<base::String>*>(parameter);
    names.emplace_back(font->lfFaceName);
    return names.size() < 3 ? 1 : 0;
}

TEST_F(Texts, FamiliesAreEnumeratedUntilTheCallbackSaysStop)
{
    std::vector<base::String> names;
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    EXPECT_EQ(EnumFontFamiliesExW(paper_.Dc(), &wanted, &CountFamilies, reinterpret_cast<LPARAM>(&names), 0), 0);
    EXPECT_EQ(names.size(), 3u);
    names.clear();
    const base::String missing = TEXT("No such family");
    missing.copy(wanted.lfFaceName, missing.size());
    EnumFontFamiliesExW(paper_.Dc(), &wanted, &CountFamilies, reinterpret_cast<LPARAM>(&names), 0);
    EXPECT_TRUE(names.empty());
}

TEST(Colours, OleTranslatesSystemColoursAndRefusesTheRest)
{
    COLORREF rgb = 7;
    EXPECT_EQ(OleTranslateColor(0x00123456, nullptr, &rgb), S_OK);
    EXPECT_EQ(rgb, 0x00123456u);
    EXPECT_EQ(OleTranslateColor(0x80000010, nullptr, &rgb), S_OK);
    EXPECT_EQ(rgb, GetSysColor(COLOR_BTNSHADOW));
    for (const DWORD refused : {0x8000001Fu, 0x03123456u, 0x81000000u, 0xFFFFFFFFu}) {
        rgb = 7;
        EXPECT_NE(OleTranslateColor(refused, nullptr, &rgb), S_OK) << refused;
        EXPECT_EQ(rgb, 7u);
    }
}

TEST(Numbers, MulDivRoundsHalvesAwayFromZero)
{
    EXPECT_EQ(MulDiv(5, 1, 2), 3);
    EXPECT_EQ(MulDiv(-5, 1, 2), -3);
    EXPECT_EQ(MulDiv(7, 1, 3), 2);
    EXPECT_EQ(MulDiv(0x7FFFFFFF, 3, 3), 0x7FFFFFFF);
    EXPECT_EQ(MulDiv(1, 1, 0), -1);
    EXPECT_EQ(MulDiv(0x7FFFFFFF, 2, 1), -1);
}

}  // namespace
