// The service panel.
#include "platform/sim/Services.h"
#include "platform/sim/Users.h"
#include "tests/app/UtilityScene.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

constexpr const char16_t* name = u"Velmora";
constexpr const char16_t* exe = u"C:\\Tools\\Velmora.exe";
/// The panel's fields that an installed service takes away, in the form's order.
constexpr const char16_t* fields = u"lblAccount txtAccount lblPassword txtPassword chkSystem lblStartup ComboStartup";

class Form1Service : public testing::Test, protected tests::UtilityScene {
protected:
    /// What the panel shows: captions of the two buttons, and the disabled controls of the two frames.
    void ExpectPanel(const WCHAR* install, const WCHAR* start, const std::u16string& disabled)
    {
        EXPECT_EQ(Button(TEXT("cmdInstall")).Caption(), install);
        EXPECT_EQ(Button(TEXT("cmdStart")).Caption(), start);
        EXPECT_EQ(Disabled(), disabled + u" CommandCloseVelmora");
    }
    /// A button's own text, which it takes from the extender when it is first shown, and what the form has set since.
    base::String Tip(const WCHAR* button)
    {
        const base::StringView set = Button(button).GetExtender().ToolTipText();
        return set.empty() ? Button(button).ToolTipTextW() : base::String(set);
    }
    Service& Installed() { return The<Services>().Install(name, exe); }
    void ExpectInstalled(bool installEnabled, bool startEnabled, const WCHAR* start)
    {
        ExpectPanel(TEXT("Uninstall Service"), start,
                    std::u16string(u"CheckAutoStart CheckHideTrayIcon CheckSoundStart ") + (installEnabled ? u"" : u"cmdInstall ") +
                        (startEnabled ? u"" : u"cmdStart ") + fields);
        EXPECT_EQ(Tip(TEXT("cmdInstall")), TEXT("Uninstall Velmora Service"));
        EXPECT_EQ(Tip(TEXT("cmdStart")),
                  start == base::StringView(TEXT("Stop Service")) ? TEXT("Stop Velmora Service") : TEXT("Start Velmora Service"));
    }
    void ExpectMissing()
    {
        ExpectPanel(TEXT("Install Service"), TEXT("Start Service"),
                    u"CheckHideTrayIcon CheckSoundStart cmdStart lblAccount txtAccount lblPassword txtPassword");
    }
};

TEST_F(Form1Service, EveryState_HasItsPanel)
{
    Installed();
    ASSERT_TRUE(Open());
    const std::tuple<DWORD, bool, bool, const WCHAR*> states[] = {
        {SERVICE_STOPPED, true, true, TEXT("Start Service")},           {SERVICE_START_PENDING, false, false, TEXT("Start Service")},
        {SERVICE_RUNNING, false, true, TEXT("Stop Service")},           {SERVICE_STOP_PENDING, false, false, TEXT("Stop Service")},
        {SERVICE_CONTINUE_PENDING, false, false, TEXT("Stop Service")}, {SERVICE_PAUSE_PENDING, false, false, TEXT("Stop Service")},
        {SERVICE_PAUSED, false, false, TEXT("Stop Service")},           {SERVICE_STOPPED, true, true, TEXT("Start Service")}};
    for (const auto& [state, install, start, caption] : states) {
        The<Services>().SetState(name, state);
        pc.Advance(1000);
        SCOPED_TRACE(testing::Message() << "state " << state);
        ExpectInstalled(install, start, caption);
    }
}

TEST_F(Form1Service, ChangesFromOutside_ShowWithinASecond)
{
    ASSERT_TRUE(Open());
    ExpectMissing();
    Check(TEXT("CheckAutoStart")).Value(1);
    Installed().startType = SERVICE_DEMAND_START;
    pc.Advance(1000);
    ExpectInstalled(true, true, TEXT("Start Service"));
    EXPECT_EQ(Check(TEXT("CheckAutoStart")).Value(), 0);
    const std::pair<DWORD, const WCHAR*> startTypes[] = {{SERVICE_AUTO_START, TEXT("Automatic")},
                                                         {SERVICE_DISABLED, TEXT("Disabled")},
                                                         {SERVICE_BOOT_START, TEXT("Disabled")},
                                                         {SERVICE_DEMAND_START, TEXT("Manual")}};
    for (const auto& [startType, shown] : startTypes) {
        The<Services>().Find(name)->startType = startType;
        pc.Advance(1000);
        EXPECT_EQ(Startup().Text(), shown) << "start type " << startType;
    }
    The<Services>().Delete(name);
    pc.Advance(1000);
    ExpectMissing();
    Startup().ListIndex(2);
    Installed().startType = SERVICE_DEMAND_START;
    pc.Advance(1000);
    EXPECT_EQ(Startup().Text(), TEXT("Manual")) << "the removed service's type is forgotten";
}

TEST_F(Form1Service, OpenPanel_ShowsTheInstalledConfiguration)
{
    const std::pair<DWORD, const WCHAR*> cases[] = {{3, TEXT("Manual")}, {0, TEXT("Automatic")}};
    Installed().account = u"OFFICE\\jdoe";
    for (const auto& [startType, shown] : cases) {
        The<Services>().Find(name)->startType = startType;
        ASSERT_TRUE(Open());
        EXPECT_EQ(Startup().Text(), shown);
        EXPECT_EQ(Check(TEXT("chkSystem")).Value(), 0);
        EXPECT_EQ(Text(TEXT("txtAccount")).Text(), TEXT("OFFICE\\jdoe"));
        ExpectInstalled(true, true, TEXT("Start Service"));
        Close();
    }
}

TEST_F(Form1Service, Install_TakesTheChosenStartupType)
{
    for (const int index : {0, 1, 2, -1}) {
        SCOPED_TRACE(testing::Message() << "startup type " << index);
        ASSERT_TRUE(Open());
        Startup().ListIndex(index);
        Click(TEXT("cmdInstall"));
        EXPECT_EQ(Form().ActiveControl(), &Button(TEXT("cmdInstall"))) << "whether it was disabled meanwhile or not";
        const Service* const service = The<Services>().Find(name);
        ASSERT_NE(service, nullptr);
        EXPECT_EQ(service->startType, index < 0 ? 2u : 2u + static_cast<DWORD>(index));
        EXPECT_EQ(service->type, 16u);
        EXPECT_EQ(service->errorControl, 1u);
        EXPECT_EQ(service->account, u"LocalSystem");
        EXPECT_EQ(service->password, u"");
        EXPECT_EQ(service->path, u"\"C:\\Tools\\Velmora.exe\"");
        EXPECT_EQ(service->displayName, u"Velmora Service");
        EXPECT_EQ(service->description,
                  u"Server remoto di Korvane installato come servizio (opzionale), serve a permettere lo spegnimento di questo PC da "
                  u"remoto in una LAN");
        ExpectInstalled(true, true, TEXT("Start Service"));
        Click(TEXT("cmdInstall"));
        EXPECT_EQ(The<Services>().Find(name), nullptr);
        ExpectMissing();
        Close();
    }
}

TEST_F(Form1Service, Install_QualifiesTheAccount)
{
    const std::tuple<const char16_t*, const WCHAR*, const char16_t*> cases[] = {{u"OFFICE", TEXT("jdoe"), u"OFFICE\\jdoe"},
                                                                                {u"", TEXT("jdoe"), u".\\jdoe"},
                                                                                {u"OFFICE", TEXT("OTHER\\jdoe"), u"OTHER\\jdoe"},
                                                                                {u"OFFICE", TEXT("localsystem"), u"OFFICE\\localsystem"}};
    for (const auto& [domain, typed, account] : cases) {
        SCOPED_TRACE(testing::PrintToString(std::u16string(account)));
        The<Users>().LogonDomain(domain);
        The<Users>().AddAccount(account, u"secret");
        ASSERT_TRUE(Open());
        Check(TEXT("chkSystem")).Value(0);
        EXPECT_TRUE(Enabled(TEXT("txtAccount")));
        EXPECT_TRUE(Enabled(TEXT("lblPassword")));
        EXPECT_EQ(Text(TEXT("txtAccount")).Text(), TEXT(""));
        Text(TEXT("txtAccount")).Text(typed);
        Text(TEXT("txtPassword")).Text(TEXT("secret"));
        Click(TEXT("cmdInstall"));
        ASSERT_NE(The<Services>().Find(name), nullptr);
        EXPECT_EQ(The<Services>().Find(name)->account, account);
        EXPECT_EQ(The<Services>().Find(name)->password, u"secret");
        EXPECT_TRUE(The<Users>().MayLogOnAsService(account));
        EXPECT_EQ(Text(TEXT("txtPassword")).Text(), TEXT("")) << "Windows has it";
        The<Services>().Delete(name);
        Close();
    }
}

TEST_F(Form1Service, SystemAccount_TakesTheTypedOneAndItsPasswordAway)
{
    ASSERT_TRUE(Open());
    Check(TEXT("chkSystem")).Value(0);
    Text(TEXT("txtAccount")).Text(TEXT("nobody"));
    Text(TEXT("txtPassword")).Text(TEXT("secret"));
    Click(TEXT("cmdInstall"));
    EXPECT_EQ(The<Services>().Count(), 0u);
    EXPECT_EQ(Text(TEXT("txtAccount")).Text(), TEXT("nobody")) << "to be mended";
    EXPECT_EQ(Text(TEXT("txtPassword")).Text(), TEXT("secret"));
    Check(TEXT("chkSystem")).Value(1);
    EXPECT_EQ(Text(TEXT("txtAccount")).Text(), TEXT("LocalSystem"));
    EXPECT_EQ(Text(TEXT("txtPassword")).Text(), TEXT(""));
    ExpectMissing();
}

TEST_F(Form1Service, StartAndStop_SaveThePasswordAndShowThePendingState)
{
    WriteSettings("[Settings]\r\nPwd=broken\r\n");
    Installed();
    ASSERT_TRUE(Open());
    Button(TEXT("cmdStart")).SetFocus();
    const auto press = [this](const WCHAR* caption, DWORD state) {
        EXPECT_EQ(Form().ActiveControl(), &Button(TEXT("cmdStart"))) << "once it is enabled again";
        Button(TEXT("cmdStart")).Click.Raise();
        EXPECT_EQ(The<Services>().Find(name)->state, state);
        ExpectInstalled(false, false, caption);
    };
    press(TEXT("Start Service"), SERVICE_START_PENDING);
    EXPECT_EQ(Settings(), "[Settings]\r\nPwd=\r\n") << "also when it was not edited";
    pc.Advance(1000);
    ExpectInstalled(false, true, TEXT("Stop Service"));
    press(TEXT("Stop Service"), SERVICE_STOP_PENDING);
    pc.Advance(1000);
    ExpectInstalled(true, true, TEXT("Start Service"));
    // What the panel shows is looked at anew: somebody else has started it.
    The<Services>().SetState(name, SERVICE_RUNNING);
    press(TEXT("Stop Service"), SERVICE_STOP_PENDING);
    pc.Advance(2000);
    std::string changes;
    Form().PropertyChanged.Connect([&](host::Control& control, base::StringView property) {
        if (property == TEXT("Enabled"))
            changes += control.Enabled() ? "on " : "off ";
    });
    pc.GetFaults().FailCall("StartServiceW", ERROR_SERVICE_DISABLED);
    Button(TEXT("cmdStart")).Click.Raise();
    EXPECT_EQ(changes, "off on ") << "nobody presses it twice while Windows is asked";
}

/// A reader would say every second what it is told every second.
TEST_F(Form1Service, TickWithoutChange_LeavesTheControlsAloneAndTellsReadersNothing)
{
    Installed();
    ASSERT_TRUE(Open());
    pc.Advance(1000);
    pc.Trace().Start();
    pc.Advance(2000);
    EXPECT_GT(pc.Trace().Count("QueryServiceStatus"), 1u);
    for (const char* function : {"EnableWindow", "SetWindowTextW", "InvalidateRect", "RedrawWindow", "NotifyWinEvent"})
        EXPECT_EQ(pc.Trace().Count(function), 0u) << function;
    The<Services>().SetState(name, SERVICE_RUNNING);
    pc.Advance(1000);
    for (const char* function : {"EnableWindow", "InvalidateRect", "NotifyWinEvent"})
        EXPECT_GT(pc.Trace().Count(function), 0u) << function;
}

TEST_F(Form1Service, BusyManager_IsAskedAgain)
{
    for (const char* function :
         {"OpenSCManagerW", "OpenServiceW", "QueryServiceConfigW", "QueryServiceStatus", "CreateServiceW", "DeleteService"})
        for (int nth = 1; nth <= 5; ++nth) {
            ASSERT_TRUE(Open());
            pc.GetFaults().FailCall(function, RPC_S_SERVER_TOO_BUSY, nth);
            Click(TEXT("cmdInstall"));
            SCOPED_TRACE(function + std::to_string(nth));
            ExpectInstalled(true, true, TEXT("Start Service"));
            pc.GetFaults().Clear();
            pc.GetFaults().FailCall(function, RPC_S_SERVER_TOO_BUSY, nth);
            Click(TEXT("cmdInstall"));
            ExpectMissing();
            EXPECT_EQ(The<Services>().Count(), 0u);
            pc.GetFaults().Clear();
            Close();
        }
    Installed();
    pc.GetFaults().FailAlways("OpenSCManagerW", RPC_S_SERVER_TOO_BUSY);
    const std::uint64_t start = pc.Clock().Now();
    ASSERT_TRUE(Open());
    ExpectMissing();
    EXPECT_EQ(pc.Clock().Now() - start, 80u) << "twice five times, ten milliseconds apart";
}

TEST_F(Form1Service, ServiceThatStartsMeanwhile_IsNotUninstalled)
{
    Installed();
    ASSERT_TRUE(Open());
    The<Services>().SetState(name, SERVICE_RUNNING);
    Click(TEXT("cmdInstall"));
    EXPECT_NE(The<Services>().Find(name), nullptr);
    ExpectInstalled(false, true, TEXT("Stop Service"));
}

}  // namespace
