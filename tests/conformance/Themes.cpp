// Facts about visual styles that are switched on: what opens, what draws, what the parts cover.
#include "tests/conformance/Paper.h"

#include <gtest/gtest.h>

#include <uxtheme.h>
#include <vsstyle.h>

namespace {

using tests::Paper;

class Themes : public testing::Test {
protected:
    void SetUp() override
    {
        if (!IsThemeActive() || !IsAppThemed())
            GTEST_SKIP() << "visual styles are switched off here";
        theme_ = OpenThemeData(nullptr, TEXT("Button"));
        ASSERT_NE(theme_, nullptr);
    }
    void TearDown() override
    {
        if (theme_) {
            EXPECT_EQ(CloseThemeData(theme_), S_OK);
        }
    }
    [[nodiscard]] int KindOfRegion(int part, RECT box) const
    {
        const Paper paper(1, 1);
        base::RegionHandle region;
        EXPECT_EQ(GetThemeBackgroundRegion(theme_, paper.Dc(), part, 1, &box, region.Receive()), S_OK);
        RECT around{};
        const int kind = GetRgnBox(region.Get(), &around);
        EXPECT_TRUE(EqualRect(&around, &box));
        return kind;
    }
    HTHEME theme_ = nullptr;
};

TEST_F(Themes, UnknownClassesDoNotOpen_AndListsTakeTheFirstThatIsKnown)
{
    EXPECT_EQ(OpenThemeData(nullptr, TEXT("NoSuchClassAnywhere")), nullptr);
    const HTHEME second = OpenThemeData(nullptr, TEXT("NoSuchClassAnywhere;button"));
    EXPECT_NE(second, nullptr);
    EXPECT_EQ(CloseThemeData(second), S_OK);
}

TEST_F(Themes, EveryStateDraws_InsideItsClip)
{
    const struct {
        int part, states;
    } parts[]{{BP_PUSHBUTTON, 5}, {BP_CHECKBOX, 12}, {BP_GROUPBOX, 2}};
    for (const auto& part : parts)
        for (int state = 1; state <= part.states; ++state) {
            const Paper paper(40, 20, RGB(255, 0, 255));
            const RECT box{0, 0, 40, 20};
            const RECT clip{0, 0, 20, 20};
            EXPECT_EQ(DrawThemeBackground(theme_, paper.Dc(), part.part, state, &box, &clip), S_OK);
            int drawn = 0;
            for (int y = 0; y < 20; ++y)
                for (int x = 0; x < 40; ++x)
                    if (paper.At(x, y) != RGB(255, 0, 255)) {
                        ++drawn;
                        EXPECT_LT(x, 20) << part.part << ", " << state;
                    }
            EXPECT_GT(drawn, 0) << part.part << ", " << state;
        }
}

TEST_F(Themes, APushButtonCoversItsRectangle_AndAGroupBoxDoesNot)
{
    EXPECT_EQ(KindOfRegion(BP_PUSHBUTTON, {0, 0, 40, 20}), SIMPLEREGION);
    EXPECT_EQ(KindOfRegion(BP_GROUPBOX, {0, 0, 40, 20}), COMPLEXREGION);
}

TEST_F(Themes, TextIsDrawnWithoutItsBackground)
{
    const Paper paper(60, 20, RGB(255, 0, 255));
    SetBkMode(paper.Dc(), OPAQUE);
    const RECT box{0, 0, 60, 20};
    EXPECT_EQ(DrawThemeText(theme_, paper.Dc(), BP_GROUPBOX, GBS_NORMAL, TEXT("H"), 1, DT_SINGLELINE, 0, &box), S_OK);
    EXPECT_EQ(paper.At(0, 0), RGB(255, 0, 255));
    EXPECT_EQ(GetBkMode(paper.Dc()), OPAQUE);
    int ink = 0;
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 60; ++x)
            ink += paper.At(x, y) != RGB(255, 0, 255);
    EXPECT_GT(ink, 5);
    EXPECT_LT(ink, 150);
}

}  // namespace
