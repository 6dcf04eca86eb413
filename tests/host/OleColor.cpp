#include "host/OleColor.h"

#include <gtest/gtest.h>

namespace tests {

TEST(OleColor, IsTheSystemsOrItself)
{
    EXPECT_EQ(host::ToRgb(host::SystemColor(COLOR_HIGHLIGHT)), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(host::ToRgb(0x80000100U + COLOR_HIGHLIGHT), 0U) << "no system colour";
    EXPECT_EQ(host::ToRgb(0x123456U), 0x123456U);
}

}  // namespace tests
