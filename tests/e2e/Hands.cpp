// A stranger's hands: clicks on what is off, the other mouse button, buttons let go elsewhere.
#include "tests/e2e/EndToEnd.h"
#include "tests/support/UserInput.h"

namespace e2e {

class Hands : public EndToEnd {
protected:
    void SetUp() override
    {
        EndToEnd::SetUp();
        utility_.emplace(exe_);
        ASSERT_TRUE(utility_->Opened());
    }
    void TearDown() override
    {
        utility_.reset();
        EndToEnd::TearDown();
    }
    [[nodiscard]] bool IsFocused(const char* name) const
    {
        return Eventually([&] { return utility_->HasFocus(name); });
    }
    [[nodiscard]] base::String TextOf(const char* name) const
    {
        WCHAR text[99]{};
        SendMessageW(utility_->Shown(name), WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
        return text;
    }

    std::optional<Utility> utility_;
};

TEST_F(Hands, ClickOnWhatIsOff_LeavesFocusAndTextAlone)
{
    utility_->Press({VK_TAB});
    ASSERT_TRUE(IsFocused("CheckAutoStart"));
    for (const char* const name : {"txtAccount", "txtPassword", "CheckHideTrayIcon", "cmdStart", "CommandCloseVelmora"}) {
        ASSERT_FALSE(utility_->Enabled(name)) << name;
        utility_->Click(name);
        utility_->Press({'X'});
        utility_->Press({'Y'});
        EXPECT_TRUE(IsFocused("CheckAutoStart")) << name;
    }
    EXPECT_EQ(TextOf("txtAccount"), TEXT("LocalSystem"));
    EXPECT_EQ(TextOf("txtPassword"), TEXT(""));
    EXPECT_FALSE(utility_->Checked("CheckHideTrayIcon"));
    utility_->Press({VK_TAB});
    EXPECT_TRUE(IsFocused("cmdInstall"));
}

TEST_F(Hands, RightClickAndItsMenu_LeaveTheKeyboardWorking)
{
    utility_->Press({VK_TAB});
    ASSERT_TRUE(IsFocused("CheckAutoStart"));
    const RECT box = DesignOf("TextPassword").place;
    tests::MoveMouse(utility_->Window(), box.left + 20, (box.top + box.bottom) / 2);
    tests::MouseButton(MOUSEEVENTF_RIGHTDOWN);
    tests::MouseButton(MOUSEEVENTF_RIGHTUP);
    ASSERT_TRUE(Eventually([] { return FindWindowW(TEXT("#32768"), nullptr) != nullptr; })) << "the edit's menu";
    tests::PressKey(VK_ESCAPE);
    ASSERT_TRUE(Eventually([] { return FindWindowW(TEXT("#32768"), nullptr) == nullptr; }));
    ASSERT_TRUE(utility_->Responds());
    // Wherever the menu left the focus, Tab gets on, and to the window that takes keys.
    utility_->Press({VK_TAB});
    if (!IsFocused("CheckAutoStart"))
        utility_->Press({VK_SHIFT, VK_TAB});
    ASSERT_TRUE(IsFocused("CheckAutoStart"));
    utility_->Press({VK_SPACE});
    EXPECT_TRUE(Eventually([&] { return utility_->Checked("CheckAutoStart"); }));
}

TEST_F(Hands, ButtonLetGoElsewhere_TogglesNothing)
{
    const RECT check = DesignOf("CheckAutoStart").place;
    tests::MoveMouse(utility_->Window(), check.left + 8, (check.top + check.bottom) / 2);
    tests::MouseButton(MOUSEEVENTF_LEFTDOWN);
    tests::MoveMouse(utility_->Window(), check.left + 60, check.bottom + 90);
    tests::MouseButton(MOUSEEVENTF_LEFTUP);
    utility_->Press({VK_SHIFT});
    EXPECT_TRUE(utility_->Responds());
    EXPECT_FALSE(utility_->Checked("CheckAutoStart"));
    utility_->Click("CheckAutoStart");
    EXPECT_TRUE(Eventually([&] { return utility_->Checked("CheckAutoStart"); }));
}

}  // namespace e2e
