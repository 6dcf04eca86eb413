// Facts about visual styles that are switched on: what opens, what draws, what the parts cover.
#include "tests/conformance/Paper.h"

#include <gtest/gtest.h>

#include <uxtheme.h>
#include <vsstyle.h>

#include <tuple>

namespace {

using tests::Paper;

class Themes : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(IsThemeActive() && IsAppThemed()) << "to be run with visual styles switched on";
        theme_ = OpenThemeData(nullptr, TEXT("Button"));
        ASSERT_NE(theme_, nullptr);
    }
    void TearDown() override
    {
        if (theme_) {
            EXPECT_EQ(CloseThemeData(theme_), S_OK);
        }
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

TEST_F(Themes, EveryStateDraws_AndAPushButtonAloneCoversItsRectangle)
{
    const RECT box{0, 0, 40, 20};
    for (const auto& [part, states, covers] : {std::tuple{BP_PUSHBUTTON, 5, TRUE}, {BP_GROUPBOX, 2, FALSE}})
        for (int state = 1; state <= states; ++state) {
            const Paper paper(40, 20, RGB(255, 0, 255));
            EXPECT_EQ(DrawThemeBackground(theme_, paper.Dc(), part, state, &box, nullptr), S_OK);
            int drawn = 0;
            for (int y = 0; y < 20; ++y)
                drawn += paper.At(20, y) != RGB(255, 0, 255);
            EXPECT_GT(drawn, 0) << part << ", " << state;
            base::RegionHandle region;
            EXPECT_EQ(GetThemeBackgroundRegion(theme_, paper.Dc(), part, state, &box, region.Receive()), S_OK);
            EXPECT_EQ(PtInRegion(region.Get(), 20, 10), covers) << part << ", " << state;
        }
}

TEST_F(Themes, TextIsDrawnWithoutItsBackground)
{
    const Paper paper(60, 20, RGB(255, 0, 255));
    SetBkMode(paper.Dc(), OPAQUE);
    const RECT box{0, 0, 60, 20};
    EXPECT_EQ(DrawThemeText(theme_, paper.Dc(), BP_GROUPBOX, GBS_NORMAL, TEXT("H"), 1, DT_SINGLELINE, 0, &box), S_OK);
    int ink = 0;
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 60; ++x)
            ink += paper.At(x, y) != RGB(255, 0, 255);
    EXPECT_GT(ink, 5);
    EXPECT_LT(ink, 150);
}

}  // namespace
