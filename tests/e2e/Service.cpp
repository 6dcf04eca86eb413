// The service panel against the real service manager.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

namespace {

/// What the panel's buttons say of the service. A running one can be stopped but not uninstalled.
std::string_view PanelOf(const Utility& utility)
{
    const bool install = utility.Enabled("cmdInstall"), start = utility.Enabled("cmdStart");
    return install ? (start ? "stopped" : "not installed") : start ? "running" : "pending";
}

}  // namespace

TEST_F(EndToEnd, Service_InstalledAsChosenAndUninstalled)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Click("CheckAutoStart");
    ASSERT_TRUE(Eventually([&] { return utility.Checked("CheckAutoStart") && utility.Enabled("CheckHideTrayIcon"); }));
    utility.Choose("ComboStartup", TEXT('D'));
    ASSERT_TRUE(Eventually([&] { return utility.Selected("ComboStartup") == 2; }));
    utility.Click("chkSystem");
    ASSERT_TRUE(Eventually([&] { return utility.Enabled("txtAccount"); }));
    utility.Enter("txtAccount", TEXT("office\\jdoe"));
    utility.Enter("txtPassword", TEXT("well-kept secret"));
    EXPECT_TRUE(Eventually([&] { return utility.PlacesOf(TEXT("well-kept secret")) > 0; }));
    EXPECT_TRUE(Eventually([&] { return tests::TextOf(utility.Shown("txtAccount")) == TEXT("office\\jdoe"); }));
    utility.Click("cmdInstall");
    ASSERT_TRUE(Eventually([] { return InstalledService().has_value(); }));
    EXPECT_TRUE(Eventually([&] { return PanelOf(utility) == "stopped"; }));
    EXPECT_EQ(utility.PlacesOf(TEXT("well-kept secret")), 0) << "Windows has the password; nobody else needs it";
    const ServiceFacts facts = InstalledService().value();
    EXPECT_EQ(facts.startType, static_cast<DWORD>(SERVICE_DISABLED));
    EXPECT_EQ(facts.binaryPath, TEXT("\"") + agent_ + TEXT("\""));
    EXPECT_EQ(facts.account, TEXT("office\\jdoe"));
    EXPECT_EQ(facts.description, TEXT("Server remoto di Korvane installato come servizio (opzionale), serve a permettere lo "
                                      "spegnimento di questo PC da remoto in una LAN"));
    for (const char* name : {"CheckAutoStart", "CheckHideTrayIcon", "ComboStartup", "chkSystem", "txtAccount"})
        EXPECT_FALSE(utility.Enabled(name)) << name;
    EXPECT_FALSE(utility.Checked("CheckAutoStart"));

    utility.Click("cmdInstall");
    EXPECT_TRUE(Eventually([&] { return PanelOf(utility) == "not installed"; }));
    EXPECT_TRUE(Eventually([] { return !InstalledService(); }));
    EXPECT_TRUE(utility.Enabled("CheckAutoStart") && utility.Enabled("ComboStartup") && utility.Enabled("txtAccount"));
}

TEST_F(EndToEnd, Service_StartedAndStoppedByItsButton_AndFollowedWhateverOthersDo)
{
    ASSERT_TRUE(InstallService(agent_, SERVICE_DISABLED));
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    EXPECT_TRUE(Eventually([&] { return PanelOf(utility) == "stopped"; }));
    EXPECT_EQ(utility.Selected("ComboStartup"), 2);
    EXPECT_EQ(tests::TextOf(utility.Shown("txtAccount")), TEXT("LocalSystem"));
    EXPECT_FALSE(utility.Checked("chkSystem"));
    ASSERT_TRUE(ChangeServiceStartType(SERVICE_DEMAND_START));
    EXPECT_TRUE(Eventually([&] { return utility.Selected("ComboStartup") == 1; }, serviceTick));

    utility.Enter("TextPassword", TEXT("abc"));
    utility.Click("cmdStart");
    ASSERT_TRUE(Eventually([&] { return ServiceState() == SERVICE_RUNNING; }));
    EXPECT_EQ(tests::BytesOf(settings_), "[Settings]\r\nPwd=AYWJj\r\n");
    EXPECT_TRUE(Eventually([&] { return PanelOf(utility) == "running"; }, serviceTick));
    EXPECT_EQ(tests::BytesOf(log_), "service running\r\n");
    EXPECT_TRUE(Eventually([&] { return utility.HasFocus("cmdStart"); }));

    utility.Click("cmdStart");
    ASSERT_TRUE(Eventually([&] { return ServiceState() == SERVICE_STOPPED; }));
    EXPECT_TRUE(Eventually([&] { return PanelOf(utility) == "stopped"; }, serviceTick));

    ASSERT_TRUE(RemoveService());
    EXPECT_TRUE(Eventually([&] { return PanelOf(utility) == "not installed"; }, serviceTick));
    EXPECT_TRUE(utility.Enabled("CheckAutoStart"));
}

}  // namespace e2e
