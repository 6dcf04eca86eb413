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
        utility.Click(Place::CheckAutoStart);
        ASSERT_TRUE(Eventually([&] { return utility.Enabled(Place::CheckHideTrayIcon) && utility.Enabled(Place::CheckSoundStart); }));
        if (hide)
            utility.Click(Place::CheckHideTrayIcon);
        if (sound)
            utility.Click(Place::CheckSoundStart);
        utility.Click(Place::CommandOk);
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
    for (const Place place : {Place::CheckAutoStart, Place::CheckHideTrayIcon, Place::CheckSoundStart}) {
        EXPECT_TRUE(utility.Checked(place)) << FORM_MAP[static_cast<int>(place)].name;
        EXPECT_TRUE(utility.Enabled(place)) << FORM_MAP[static_cast<int>(place)].name;
    }
    const auto locked = [&] {
        for (const Place place :
             {Place::FrameService, Place::cmdInstall, Place::cmdStart, Place::ComboStartup, Place::chkSystem, Place::txtAccount}) {
            if (utility.Enabled(place))
                return false;
        }
        return true;
    };
    EXPECT_TRUE(locked());
    // The panel's timer stands still: it would put "Auto start" off, for there is a service.
    EXPECT_TRUE(Throughout(SERVICE_TICK, [&] { return locked() && utility.Checked(Place::CheckAutoStart); }));
}

TEST_F(EndToEnd, AutoStart_UntickingRemovesTheValueEvenWithSwitchesTicked)
{
    SetAutoStartValue(TEXT("\"") + agent_ + TEXT("\" /Hidden"));
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Click(Place::CheckAutoStart);
    ASSERT_TRUE(Eventually([&] { return !utility.Enabled(Place::CheckHideTrayIcon); }));
    EXPECT_TRUE(utility.Checked(Place::CheckHideTrayIcon));
    utility.Click(Place::CommandOk);
    ASSERT_TRUE(utility.Ended());
    EXPECT_EQ(AutoStartValue(), std::nullopt);
}

TEST_F(EndToEnd, AutoStart_ClosingWithoutOkChangesNothing)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Click(Place::CheckAutoStart);
    ASSERT_TRUE(Eventually([&] { return utility.Checked(Place::CheckAutoStart); }));
    utility.Press({VK_ESCAPE});
    ASSERT_TRUE(utility.Ended());
    EXPECT_EQ(AutoStartValue(), std::nullopt);
}

}  // namespace e2e
