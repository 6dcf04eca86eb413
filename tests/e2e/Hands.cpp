// A stranger's hands: clicks on what is off, and the other mouse button.
#include "tests/e2e/EndToEnd.h"
#include "tests/support/UserInput.h"

namespace e2e {

namespace {

bool ComesTo(const Utility& utility, const char* name)
{
    return Eventually([&] { return utility.HasFocus(name); });
}

}  // namespace

TEST_F(EndToEnd, ClickOnWhatIsOff_LeavesFocusAndTextAlone)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Press({VK_TAB});
    ASSERT_TRUE(ComesTo(utility, "CheckAutoStart"));
    for (const char* const name : {"txtAccount", "txtPassword", "CheckHideTrayIcon", "cmdStart", "CommandCloseVelmora"}) {
        ASSERT_FALSE(utility.Enabled(name)) << name;
        utility.Click(name);
        utility.Press({'X'});
        utility.Press({'Y'});
        EXPECT_TRUE(ComesTo(utility, "CheckAutoStart")) << name;
    }
    EXPECT_EQ(tests::TextOf(utility.Shown("txtAccount")), TEXT("LocalSystem"));
    EXPECT_EQ(tests::TextOf(utility.Shown("txtPassword")), TEXT(""));
    EXPECT_FALSE(utility.Checked("CheckHideTrayIcon"));
    utility.Press({VK_TAB});
    EXPECT_TRUE(ComesTo(utility, "cmdInstall"));
}

TEST_F(EndToEnd, RightClickAndItsMenu_LeaveTheKeyboardWorking)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Press({VK_TAB});
    ASSERT_TRUE(ComesTo(utility, "CheckAutoStart"));
    const RECT box = DesignOf("TextPassword").place;
    tests::MoveMouse(utility.Window(), box.left + 20, (box.top + box.bottom) / 2);
    tests::MouseButton(MOUSEEVENTF_RIGHTDOWN);
    tests::MouseButton(MOUSEEVENTF_RIGHTUP);
    ASSERT_TRUE(Eventually([] { return FindWindowW(TEXT("#32768"), nullptr) != nullptr; })) << "the edit's menu";
    tests::PressKey(VK_ESCAPE);
    ASSERT_TRUE(Eventually([] { return FindWindowW(TEXT("#32768"), nullptr) == nullptr; }));
    ASSERT_TRUE(utility.Responds());
    // Wherever the menu left the focus, Tab gets on, and to the window that takes keys.
    utility.Press({VK_TAB});
    if (!ComesTo(utility, "CheckAutoStart"))
        utility.Press({VK_SHIFT, VK_TAB});
    ASSERT_TRUE(ComesTo(utility, "CheckAutoStart"));
    utility.Press({VK_SPACE});
    EXPECT_TRUE(Eventually([&] { return utility.Checked("CheckAutoStart"); }));
}

}  // namespace e2e
