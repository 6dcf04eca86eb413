// The window with 192 dots an inch on a screen that is lower than it.
#include "platform/sim/Desktop.h"
#include "tests/app/UtilityScene.h"
#include "tests/support/Place.h"

#include <gtest/gtest.h>

#include <set>

using namespace platform;

namespace {

class Form1Scroll : public testing::Test, protected tests::UtilityScene {};

TEST_F(Form1Scroll, LowScreen_ShowsEveryControlThatTheKeyboardReaches)
{
    // The task bar takes 40 rows, caption and frame 52. 4830 twips are 644 pixels.
    auto& desktop = The<Desktop>();
    desktop.Dpi(192);
    desktop.Resolution(1920, 768);
    ASSERT_TRUE(Open());
    const HWND window = Form().hWnd();
    RECT client{};
    GetClientRect(window, &client);
    const tests::Place place = tests::PlaceIn(window);
    EXPECT_EQ(place[1], 0);
    EXPECT_EQ(place[3], 728);
    EXPECT_EQ(client.bottom, 676);
    EXPECT_EQ(client.right, 644);
    std::set<HWND> reached;
    for (int press = 0; press < 40; ++press) {
        desktop.Press(press % 4 == 3 ? VK_F6 : VK_TAB);
        const HWND focus = GetFocus();
        const tests::Place seen = tests::PlaceIn(focus, window);
        EXPECT_TRUE(seen[1] >= 0 && seen[3] <= 676) << seen[1];
        reached.insert(focus);
    }
    for (const WCHAR* const name :
         {TEXT("TextPassword"), TEXT("CheckAutoStart"), TEXT("cmdInstall"), TEXT("CommandStartVelmora"), TEXT("CommandOk")})
        EXPECT_TRUE(reached.contains(Form().Find(name)->hWnd())) << testing::PrintToString(base::String(name));
}

}  // namespace
