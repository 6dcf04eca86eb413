// Everything that the window does, by a person without a mouse.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

namespace {

class Keyboard : public EndToEnd {
protected:
    /// From wherever the focus is: F6 goes from frame to frame, Tab from control to control.
    void Go(WORD key, const char* name) const
    {
        for (int i = 0; i < 8 && !utility_->HasFocus(name); ++i) {
            utility_->Press({key});
            (void)Eventually([&] { return utility_->HasFocus(name); }, Milliseconds(300));
        }
        EXPECT_TRUE(utility_->HasFocus(name)) << "no way to " << name;
    }
    void GoAndPress(WORD key, const char* name) const
    {
        EXPECT_TRUE(Eventually([&] { return utility_->Enabled(name); })) << name;
        Go(key, name);
        utility_->Press({VK_SPACE});
    }

    std::optional<Utility> utility_;
};

}  // namespace

TEST_F(Keyboard, ReachesAndDoesEverything)
{
    utility_.emplace(exe_);
    ASSERT_TRUE(utility_->Opened());
    ASSERT_TRUE(utility_->HasFocus("TextPassword"));
    utility_->Press({'A'});
    utility_->Press({'B'});
    utility_->Press({'C'});

    Go(VK_F6, "cmdInstall");
    Go(VK_TAB, "ComboStartup");
    utility_->Press({VK_DOWN});
    ASSERT_TRUE(Eventually([&] { return utility_->Selected("ComboStartup") == 1; }));
    GoAndPress(VK_F6, "cmdInstall");
    ASSERT_TRUE(Eventually([] { return InstalledService().has_value(); }));
    EXPECT_EQ(InstalledService().value().startType, static_cast<DWORD>(SERVICE_DEMAND_START));
    GoAndPress(VK_TAB, "cmdStart");
    ASSERT_TRUE(Eventually([] { return ServiceState() == SERVICE_RUNNING; }));
    GoAndPress(VK_TAB, "cmdStart");
    ASSERT_TRUE(Eventually([] { return ServiceState() == SERVICE_STOPPED; }));
    GoAndPress(VK_F6, "cmdInstall");
    ASSERT_TRUE(Eventually([] { return !InstalledService(); }));

    GoAndPress(VK_F6, "CheckAutoStart");
    ASSERT_TRUE(Eventually([&] { return utility_->Checked("CheckAutoStart"); }));
    GoAndPress(VK_TAB, "CheckSoundStart");
    GoAndPress(VK_F6, "CommandStartVelmora");
    ASSERT_TRUE(Eventually([] { return AgentWindow() != nullptr; }));
    GoAndPress(VK_F6, "CommandCloseVelmora");
    ASSERT_TRUE(Eventually([] { return AgentWindow() == nullptr; }));

    GoAndPress(VK_TAB, "CommandOk");
    ASSERT_TRUE(utility_->Ended());
    EXPECT_EQ(AutoStartValue(), TEXT("\"") + agent_ + TEXT("\" /SoundStart"));
    EXPECT_EQ(tests::BytesOf(settings_), "[Settings]\r\nPwd=AYWJj\r\n");
}

}  // namespace e2e
