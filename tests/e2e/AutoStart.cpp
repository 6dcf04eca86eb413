// The value that starts the agent at logon, in the real registry.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

TEST_F(EndToEnd, AutoStart_EachChoiceOfSwitchesGivesItsExactText)
{
    const base::String quoted = TEXT("\"") + agent_ + TEXT("\"");
    for (int choice = 0; choice < 4; ++choice) {
        SCOPED_TRACE(choice);
        RemoveAutoStartValue();
        const bool hide = choice & 1;
        const bool sound = choice & 2;
        Utility utility(exe_);
        ASSERT_TRUE(utility.Opened());
        utility.Click("CheckAutoStart");
        ASSERT_TRUE(Eventually([&] { return utility.Enabled("CheckHideTrayIcon") && utility.Enabled("CheckSoundStart"); }));
        if (hide)
            utility.Click("CheckHideTrayIcon");
        if (sound)
            utility.Click("CheckSoundStart");
        utility.Click("CommandOk");
        ASSERT_TRUE(utility.Ended());
        EXPECT_EQ(AutoStartValue(), quoted + (hide ? TEXT(" /Hidden") : TEXT("")) + (sound ? TEXT(" /SoundStart") : TEXT("")));
    }
}

TEST_F(EndToEnd, AutoStart_PresentValueIsShownAndLocksTheServicePanel)
{
    SetAutoStartValue(TEXT("somewhere else /soundstart /hidden"));
    ASSERT_TRUE(InstallService(agent_, SERVICE_DEMAND_START));
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    const auto unlocked = [&] {
        for (const char* name : {"FrameService", "cmdInstall", "cmdStart", "ComboStartup", "chkSystem", "txtAccount"})
            if (utility.Enabled(name))
                return true;
        return !utility.Checked("CheckAutoStart");
    };
    // The panel's timer stands still: it would put "Auto start" off, for there is a service.
    EXPECT_FALSE(Eventually(unlocked, SERVICE_TICK));
    for (const char* name : {"CheckAutoStart", "CheckHideTrayIcon", "CheckSoundStart"})
        EXPECT_TRUE(utility.Checked(name) && utility.Enabled(name)) << name;

    // Unticking removes the value, whatever the boxes below say.
    utility.Click("CheckAutoStart");
    ASSERT_TRUE(Eventually([&] { return !utility.Enabled("CheckHideTrayIcon"); }));
    EXPECT_TRUE(utility.Checked("CheckHideTrayIcon"));
    utility.Click("CommandOk");
    ASSERT_TRUE(utility.Ended());
    EXPECT_EQ(AutoStartValue(), std::nullopt);
}

}  // namespace e2e
