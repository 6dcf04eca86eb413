// The window with 192 dots an inch on screens that are lower than it.
#include "platform/sim/Desktop.h"
#include "tests/app/UtilityScene.h"

#include <gtest/gtest.h>

#include <set>

using namespace platform;

namespace {

class Form1Scroll : public testing::Test, protected tests::UtilityScene {};

TEST_F(Form1Scroll, LowScreen_ShowsEveryControlThatTheKeyboardReaches)
{
    // The task bar takes 40 rows, caption and frame 52. 4830 twips are 644 pixels.
    const struct {
        int rows;
        LONG bottom, page;
    } screens[] = {{1080, 1040, 988}, {768, 728, 676}};
    auto& desktop = The<Desktop>();
    desktop.Dpi(192);
    for (const auto& [rows, bottom, page] : screens) {
        SCOPED_TRACE(rows);
        desktop.Resolution(1920, rows);
        ASSERT_TRUE(Open());
        const HWND window = Form().hWnd();
        RECT place{}, client{};
        GetWindowRect(window, &place);
        GetClientRect(window, &client);
        EXPECT_EQ(place.top, 0);
        EXPECT_EQ(place.bottom, bottom);
        EXPECT_EQ(client.bottom, page);
        EXPECT_EQ(client.right, 644);
        std::set<base::String> reached;
        for (int press = 0; press < 40; ++press) {
            desktop.Press(press % 4 == 3 ? VK_F6 : VK_TAB);
            const HWND focus = GetFocus();
            RECT seen{};
            GetWindowRect(focus, &seen);
            MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&seen), 2);
            const host::Control* const control = Form().ControlOf(focus);
            ASSERT_NE(control, nullptr);
            const base::String& name = control->GetExtender().Name();
            EXPECT_TRUE(seen.top >= 0 && seen.bottom <= page) << std::string(name.begin(), name.end()) << " " << seen.top;
            reached.insert(name);
        }
        for (const WCHAR* const name :
             {TEXT("TextPassword"), TEXT("CheckAutoStart"), TEXT("cmdInstall"), TEXT("CommandStartVelmora"), TEXT("CommandOk")})
            EXPECT_TRUE(reached.contains(name)) << std::string(name, name + base::StringView(name).size());
        Close();
    }
}

}  // namespace
