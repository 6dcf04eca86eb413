// The services that all controls share: what they compute and what they ask of the system.
#include "controls/ColorArithmetic.h"
#include "controls/FontRule.h"
#include "controls/GoldenSection.h"
#include "controls/Gradient.h"
#include "controls/PropertyTable.h"

#include "tests/conformance/Paper.h"

#include <gtest/gtest.h>

namespace tests {

TEST(GoldenSection, Segments_StandInTheGoldenRatio)
{
    EXPECT_NEAR(controls::GetGoldenSection(100, true), 161.803, 0.001);
    EXPECT_NEAR(controls::GetGoldenSection(100, false), 61.803, 0.001);
    EXPECT_EQ(controls::GetGoldenSection(0, true), 0);
    EXPECT_EQ(controls::GetGoldenSection(-5, false), 0);
}

TEST(ColorArithmetic, Channels_StayWithinTheirRange)
{
    EXPECT_EQ(controls::Darken(0x102030, 0x18), 0x000818U);
    EXPECT_EQ(controls::Darken(0xF0F8FF, -16), 0xFFFFFFU);
    EXPECT_EQ(controls::Shift(0xE0E0E0, 40), 0xFFFFFFU);
    EXPECT_EQ(controls::Shift(0xE0E0E0, -40), 0xB8B8B8U);
    EXPECT_EQ(controls::Tint(0x000000, 32), 0x202020U);
    EXPECT_EQ(controls::Tint(0xFF8000, 128), 0xFFBF80U);
    EXPECT_EQ(controls::Mix(0x000000, 0x0000FF), 0x000080U);
    EXPECT_EQ(controls::ShiftByFraction(0x808080, -0.36), 0x242424U);
    EXPECT_EQ(controls::ShiftByFraction(0x808080, 0.9), 0xFFFFFFU);
}

TEST(Gradient, Ramp_DividesWholeNumbers)
{
    const std::vector<COLORREF> expected{0x000000, 0x000003, 0x000006, 0x00000A};
    EXPECT_EQ(controls::ColorRamp(0x000000, 0x00000A, 3), expected);
    EXPECT_EQ(controls::ColorRamp(0x00000A, 0x000000, 3).at(1), 0x000007U) << "towards zero, also downwards";
    EXPECT_EQ(controls::ColorRamp(0x000000, 0x000004, 0), std::vector<COLORREF>{0x000002});
}

TEST(Gradient, Directions_LayTheRampOut)
{
    using Rows = std::vector<std::vector<int>>;
    const Rows diagonal{{20, 30, 40, 50, 60}, {10, 20, 30, 40, 50}, {0, 10, 20, 30, 40}};
    const std::pair<int, Rows> cases[] = {{1, diagonal},
                                          {2, Rows(3, {0, 15, 30, 45, 60})},
                                          {3, Rows(3, {0, 60, 60, 30, 0})},
                                          {4, {std::vector(5, 0), std::vector(5, 30), std::vector(5, 60)}},
                                          {5, {std::vector(5, 30), std::vector(5, 60), std::vector(5, 0)}},
                                          {6, diagonal},
                                          {7, diagonal},
                                          {0, diagonal},
                                          {8, Rows(3, std::vector(5, 60))}};
    for (const auto& [direction, rows] : cases) {
        const Paper paper(7, 5);
        controls::DrawGradient(paper.Dc(), 1, 1, 5, 3, direction == 8 ? RGB(60, 0, 0) : 0, RGB(60, 0, 0), direction);
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 7; ++x) {
                const bool isInside = x >= 1 && x <= 5 && y >= 1 && y <= 3;
                EXPECT_EQ(GetRValue(paper.At(x, y)),
                          isInside ? rows[static_cast<std::size_t>(y - 1)][static_cast<std::size_t>(x - 1)] : 0xFF)
                    << direction << " at " << x << ", " << y;
            }
    }
}

TEST(FontRule, Fonts_AreDescribed)
{
    const std::vector<base::String> families = controls::GetFontFamilies();
    ASSERT_FALSE(families.empty());
    EXPECT_EQ(std::ranges::adjacent_find(families), families.end());
    EXPECT_TRUE(controls::GetFontInfo(families.front()).isFound);
    EXPECT_FALSE(controls::GetMessageFontName().empty());
}

TEST(PropertyTable, RowBeforeAnUnknownKey_IsRefused)
{
    EXPECT_THROW((void)controls::WriteOrder({{TEXT("Flag"), TEXT("Flagg")}}), controls::NoSuchRow);
}

}  // namespace tests
