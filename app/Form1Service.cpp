// The service panel: it shows what the service database says, once a second, and lets the user act on it.
#include "app/Form1.h"
#include "app/helpers/FileAccess.h"
#include "app/helpers/Paths.h"
#include "app/SetEnabled.h"
#include "base/Wipe.h"

#include <iterator>

namespace app {

using base::String;
using base::StringView;

namespace {

constexpr StringView serviceDescription = TEXT(
    "Server remoto di Korvane installato come servizio (opzionale), serve a permettere lo spegnimento di questo PC da remoto in una LAN");

/// Start types in the order of the list "Automatic", "Manual", "Disabled".
constexpr DWORD startTypes[] = {SERVICE_AUTO_START, SERVICE_DEMAND_START, SERVICE_DISABLED};

/// The list's entry for a start type, `otherwise` for one that is not in the list.
int StartupIndex(DWORD startType, int otherwise)
{
    for (int i = 0; i < std::ssize(startTypes); ++i)
        if (startTypes[i] == startType)
            return i;
    return otherwise;
}

DWORD StartTypeAt(int index)
{
    return index >= 0 && index < std::ssize(startTypes) ? startTypes[index] : SERVICE_AUTO_START;
}

/// Whether the user's other programs may change the agent or put something beside it. What nobody could find out counts as no.
bool OthersMayChange(const String& agent)
{
    const auto may = [](const String& path, int mask, bool isFolder) {
        const auto access = helpers::CheckPathAccess(path, mask, isFolder, helpers::Asker::OrdinaryUser);
        return access == helpers::PathAccess::Granted || access == helpers::PathAccess::NoAccessControl;
    };
    return may(helpers::GetFolderFromPath(agent), FILE_ADD_FILE, true) || may(agent, FILE_WRITE_DATA, false);
}

void Label(controls::CommandButton& button, StringView caption, StringView toolTip)
{
    if (button.Caption() != caption)
        button.Caption(String(caption));
    button.GetExtender().ToolTipText(toolTip);
}

}  // namespace

void Form1::LoadService()
{
    Service.ServiceSetInfo(AgentName + TEXT(".exe"), TEXT("Velmora"), TEXT("Velmora Service"), serviceDescription);
    String account;
    DWORD startType = 0;
    if (Service.ServiceGetConfig(account, startType) != 0) {
        chkSystem_Click();
        return;
    }
    chkSystem->Value(0);
    chkSystem_Click();
    ComboStartup->ListIndex(StartupIndex(startType, 0));
    txtAccount->Text(account);
}

void Form1::RefreshServicePanel()
{
    String account;
    DWORD startType = 0;
    if (Service.ServiceGetConfig(account, startType) != 0) {
        if (ServiceInstalled || !PanelInitialised)
            ShowServiceMissing();
        PanelInitialised = true;
        return;
    }
    if (!ServiceInstalled || !PanelInitialised)
        ShowServiceInstalled();
    ShowServiceState();
    if (startType != LastStartType) {
        ComboStartup->ListIndex(StartupIndex(startType, ComboStartup->ListIndex()));
        LastStartType = startType;
    }
    PanelInitialised = true;
}

void Form1::ShowServiceMissing()
{
    ServiceInstalled = false;
    LastStartType = 0;
    SetEnabled(*CheckAutoStart, true);
    Label(*cmdInstall, TEXT("Install Service"), TEXT("Install Velmora Service"));
    EnableAccount(chkSystem->Value() == 0);
    SetEnabled(*lblStartup, true);
    SetEnabled(*ComboStartup, true);
    SetEnabled(*chkSystem, true);
    SetEnabled(*cmdStart, false);
    SetEnabled(*cmdInstall, true);
}

void Form1::ShowServiceInstalled()
{
    CheckAutoStart->Value(0);
    SetEnabled(*CheckAutoStart, false);
    ServiceInstalled = true;
    Label(*cmdInstall, TEXT("Uninstall Service"), TEXT("Uninstall Velmora Service"));
    EnableAccount(false);
    SetEnabled(*lblStartup, false);
    SetEnabled(*ComboStartup, false);
    SetEnabled(*chkSystem, false);
}

void Form1::ShowServiceState()
{
    ServiceState = Service.ServiceGetState();
    if (ServiceState == SERVICE_STOPPED)
        Label(*cmdStart, TEXT("Start Service"), TEXT("Start Velmora Service"));
    else if (ServiceState == SERVICE_RUNNING)
        Label(*cmdStart, TEXT("Stop Service"), TEXT("Stop Velmora Service"));
    SetEnabled(*cmdInstall, ServiceState == SERVICE_STOPPED);
    SetEnabled(*cmdStart, ServiceState == SERVICE_STOPPED || ServiceState == SERVICE_RUNNING);
}

void Form1::LockServicePanel()
{
    tmrCheck->Enabled(false);
    EnableServicePanel(false);
}

void Form1::UnlockServicePanel()
{
    tmrCheck->Enabled(true);
    EnableServicePanel(true);
}

void Form1::EnableServicePanel(bool enabled)
{
    for (host::Control* const control : std::initializer_list<host::Control*>{
             FrameService, cmdInstall, cmdStart, lblAccount, txtAccount, txtPassword, ComboStartup, chkSystem, lblPassword, lblStartup})
        SetEnabled(*control, enabled);
}

void Form1::EnableAccount(bool enabled)
{
    SetEnabled(*txtAccount, enabled);
    SetEnabled(*txtPassword, enabled);
    SetEnabled(*lblAccount, enabled);
    SetEnabled(*lblPassword, enabled);
}

void Form1::chkSystem_Click()
{
    const bool systemAccount = chkSystem->Value() == 1;
    txtAccount->Text(systemAccount ? TEXT("LocalSystem") : TEXT(""));
    EnableAccount(!systemAccount);
    if (systemAccount)
        txtPassword->Text(String());
}

void Form1::cmdInstall_Click()
{
    RefreshServicePanel();
    const String tried = cmdInstall->Caption();
    const bool installs = !ServiceInstalled;
    String account = txtAccount->Text();
    DWORD error = 0;
    if (cmdInstall->Enabled()) {
        cmdInstall->Enabled(false);
        const DWORD startType = StartTypeAt(ComboStartup->ListIndex());
        if (installs) {
            String password = txtPassword->Text();
            const base::WipeAtEnd wipePassword(password);
            error = Service.ServiceInstall(account, password, helpers::GetAppPath(), startType, false);
            // Windows keeps it from here on.
            if (error == 0)
                txtPassword->Text(String());
        } else {
            error = Service.ServiceUninstall();
        }
    }
    RefreshServicePanel();
    // The layout for a missing service was shown before, so the refresh leaves the button as it is.
    if (!ServiceInstalled)
        SetEnabled(*cmdInstall, true);
    if (error != 0)
        SayFailure(*cmdInstall, tried, error, [this, installs] { return ServiceInstalled == installs; });
    else if (installs && ServiceInstalled && account == TEXT("LocalSystem") && OthersMayChange(AgentPath()))
        Say(*cmdInstall, controls::Balloon::Icon::Warning, tried,
            TEXT("The service is installed. Other programs can change what lies in its folder, and it runs with all rights: move it to a ")
                TEXT("folder that only administrators can change, such as Program Files."),
            [this] { return !ServiceInstalled; });
}

void Form1::cmdStart_Click()
{
    SavePassword();
    RefreshServicePanel();
    const String tried = cmdStart->Caption();
    const DWORD wanted = ServiceState == SERVICE_RUNNING ? SERVICE_STOPPED : SERVICE_RUNNING;
    DWORD error = 0;
    if (cmdStart->Enabled()) {
        cmdStart->Enabled(false);
        if (ServiceState == SERVICE_RUNNING)
            error = Service.ServiceStop();
        else if (ServiceState == SERVICE_STOPPED)
            error = Service.ServiceStart();
    }
    RefreshServicePanel();
    if (error != 0)
        SayFailure(*cmdStart, tried, error, [this, wanted] { return ServiceState == wanted; });
}

void Form1::tmrCheck_Timer()
{
    RefreshServicePanel();
    EndNoticeThatIsOver();
}

}  // namespace app
