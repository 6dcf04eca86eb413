// The service panel against the real service manager.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

namespace {

bool PanelShowsStopped(const Utility& utility)
{
    return utility.Enabled(Place::cmdInstall) && utility.Enabled(Place::cmdStart);
}

/// "Stop Service" is offered, and uninstalling is not.
bool PanelShowsRunning(const Utility& utility)
{
    return !utility.Enabled(Place::cmdInstall) && utility.Enabled(Place::cmdStart);
}

bool PanelShowsPending(const Utility& utility)
{
    return !utility.Enabled(Place::cmdInstall) && !utility.Enabled(Place::cmdStart);
}

bool PanelShowsNotInstalled(const Utility& utility)
{
    return utility.Enabled(Place::cmdInstall) && !utility.Enabled(Place::cmdStart);
}

}  // namespace

TEST_F(EndToEnd, Service_InstalledWithEachStartupTypeAndUninstalled)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Click(Place::CheckAutoStart);
    ASSERT_TRUE(Eventually([&] { return utility.Checked(Place::CheckAutoStart) && utility.Enabled(Place::CheckHideTrayIcon); }));
    const struct {
        WCHAR letter;
        DWORD startType;
    } cases[] = {{TEXT('A'), SERVICE_AUTO_START}, {TEXT('M'), SERVICE_DEMAND_START}, {TEXT('D'), SERVICE_DISABLED}};
    for (const auto& [letter, startType] : cases) {
        SCOPED_TRACE(startType);
        utility.Choose(Place::ComboStartup, letter);
        ASSERT_TRUE(Eventually([&] { return utility.Selected(Place::ComboStartup) == static_cast<int>(startType) - SERVICE_AUTO_START; }));
        utility.Click(Place::cmdInstall);
        ASSERT_TRUE(Eventually([] { return InstalledService().has_value(); }));
        EXPECT_TRUE(Eventually([&] { return PanelShowsStopped(utility); }));
        const ServiceFacts facts = InstalledService().value();
        EXPECT_EQ(facts.type, static_cast<DWORD>(SERVICE_WIN32_OWN_PROCESS));
        EXPECT_EQ(facts.startType, startType);
        EXPECT_EQ(facts.errorControl, static_cast<DWORD>(SERVICE_ERROR_NORMAL));
        EXPECT_EQ(facts.binaryPath, TEXT("\"") + agent_ + TEXT("\""));
        EXPECT_EQ(facts.account, TEXT("LocalSystem"));
        EXPECT_EQ(facts.displayName, TEXT("Velmora Service"));
        EXPECT_EQ(facts.description, TEXT("Server remoto di Korvane installato come servizio (opzionale), serve a permettere lo "
                                          "spegnimento di questo PC da remoto in una LAN"));
        for (const Place place :
             {Place::CheckAutoStart, Place::CheckHideTrayIcon, Place::ComboStartup, Place::chkSystem, Place::txtAccount})
            EXPECT_FALSE(utility.Enabled(place)) << FORM_MAP[static_cast<int>(place)].name;
        EXPECT_FALSE(utility.Checked(Place::CheckAutoStart));

        utility.Click(Place::cmdInstall);
        EXPECT_TRUE(Eventually([&] { return PanelShowsNotInstalled(utility); }));
        EXPECT_TRUE(Eventually([] { return !InstalledService(); }));
        EXPECT_TRUE(utility.Enabled(Place::CheckAutoStart));
        EXPECT_TRUE(utility.Enabled(Place::ComboStartup));
        EXPECT_FALSE(utility.Enabled(Place::txtAccount));
    }
}

TEST_F(EndToEnd, Service_InstalledByKeyboardAlone)
{
    for (const WORD key : {VK_SPACE, VK_RETURN}) {
        SCOPED_TRACE(key);
        Utility utility(exe_);
        ASSERT_TRUE(utility.Opened());
        ASSERT_TRUE(utility.TabTo(Place::cmdInstall));
        utility.Press({key});
        EXPECT_TRUE(Eventually([&] { return InstalledService() && PanelShowsStopped(utility); }));
        EXPECT_TRUE(RemoveService());
    }
}

TEST_F(EndToEnd, Service_InstalledWithANamedAccount)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Click(Place::chkSystem);
    ASSERT_TRUE(Eventually([&] { return utility.Enabled(Place::txtAccount); }));
    utility.Enter(Place::txtAccount, TEXT("office\\jdoe"));
    utility.Enter(Place::txtPassword, TEXT("secret"));
    EXPECT_TRUE(Eventually([&] { return utility.Text(Place::txtAccount) == TEXT("office\\jdoe"); }));
    utility.Click(Place::cmdInstall);
    ASSERT_TRUE(Eventually([] { return InstalledService().has_value(); }));
    EXPECT_EQ(InstalledService().value().account, TEXT("office\\jdoe"));
}

TEST_F(EndToEnd, Service_StartedStoppedAndUninstalledByItsButtons)
{
    ASSERT_TRUE(InstallService(agent_, SERVICE_DEMAND_START));
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    EXPECT_TRUE(Eventually([&] { return PanelShowsStopped(utility); }));
    EXPECT_EQ(utility.Selected(Place::ComboStartup), 1);
    EXPECT_EQ(utility.Text(Place::txtAccount), TEXT("LocalSystem"));
    EXPECT_FALSE(utility.Checked(Place::chkSystem));

    utility.Enter(Place::TextPassword, TEXT("abc"));
    utility.Click(Place::cmdStart);
    EXPECT_TRUE(Eventually([&] { return PanelShowsPending(utility) && ServiceState() == SERVICE_START_PENDING; }));
    EXPECT_EQ(StoredPassword(settings_), TEXT("AYWJj")) << "the password is saved before the service starts";
    ASSERT_TRUE(Eventually([&] { return ServiceState() == SERVICE_RUNNING; }));
    EXPECT_TRUE(Eventually([&] { return PanelShowsRunning(utility); }, SERVICE_TICK));
    EXPECT_EQ(ReadFile(folder_ / TEXT("Velmora.log")), "service running\r\n");

    utility.Click(Place::cmdStart);
    EXPECT_TRUE(Eventually([&] { return PanelShowsPending(utility) && ServiceState() == SERVICE_STOP_PENDING; }));
    ASSERT_TRUE(Eventually([&] { return ServiceState() == SERVICE_STOPPED; }));
    EXPECT_TRUE(Eventually([&] { return PanelShowsStopped(utility); }, SERVICE_TICK));

    utility.Click(Place::cmdInstall);
    EXPECT_TRUE(Eventually([&] { return PanelShowsNotInstalled(utility); }));
    EXPECT_TRUE(Eventually([] { return !InstalledService(); }));
}

TEST_F(EndToEnd, Service_ChangedBySomebodyElse_IsFollowedWithinATick)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    ASSERT_TRUE(InstallService(agent_, SERVICE_DEMAND_START));
    EXPECT_TRUE(Eventually([&] { return PanelShowsStopped(utility); }, SERVICE_TICK));
    EXPECT_EQ(utility.Selected(Place::ComboStartup), 1);

    ASSERT_TRUE(ChangeServiceStartType(SERVICE_DISABLED));
    EXPECT_TRUE(Eventually([&] { return utility.Selected(Place::ComboStartup) == 2; }, SERVICE_TICK));
    ASSERT_TRUE(ChangeServiceStartType(SERVICE_AUTO_START));
    EXPECT_TRUE(Eventually([&] { return utility.Selected(Place::ComboStartup) == 0; }, SERVICE_TICK));

    ASSERT_TRUE(StartInstalledService());
    EXPECT_TRUE(Eventually([&] { return PanelShowsPending(utility); }, SERVICE_TICK));
    ASSERT_TRUE(Eventually([&] { return ServiceState() == SERVICE_RUNNING; }));
    EXPECT_TRUE(Eventually([&] { return PanelShowsRunning(utility); }, SERVICE_TICK));

    ASSERT_TRUE(RemoveService());
    EXPECT_TRUE(Eventually([&] { return PanelShowsNotInstalled(utility); }, SERVICE_TICK));
    EXPECT_TRUE(utility.Enabled(Place::CheckAutoStart));
}

}  // namespace e2e
