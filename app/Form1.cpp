// Start and end of the window.
#include "app/Form1.h"

#include "app/AgentName.h"
#include "app/helpers/Administrator.h"
#include "app/helpers/CommonControls.h"
#include "app/helpers/DataExecution.h"
#include "app/helpers/ErrorText.h"
#include "app/helpers/IniFolder.h"
#include "app/helpers/MsgBox.h"
#include "app/helpers/Paths.h"
#include "app/helpers/WindowIcons.h"
#include "base/Wow64.h"

namespace app {

using base::String;

namespace {

void Complain(const String& text)
{
    helpers::MsgBoxEx(text, MB_ICONEXCLAMATION | MB_OK, TEXT("Velmora Setup Utility"));
}

}  // namespace

Form1::Form1()
{
    Publish(TEXT("Form_KeyDown"), [this](std::int16_t& keyCode, std::int16_t& shift) { Form_KeyDown(keyCode, shift); });
}

void Form1::Form_Initialize()
{
    helpers::InitCommonControlsAndShell();
}

void Form1::Form_Load()
{
    FindControls();
    helpers::SetDEPPolicy(false, false);
    if (!IsNTPlatform()) {
        Complain(TEXT("Velmora can be set as Service only on NT Systems"));
        Unload();
        return;
    }
    helpers::SetWindowIcons(hWnd());
    ComboStartup->ListIndex(0);
    ProcessTools = std::make_unique<toolkit::TaskManLight>();
    ProcessTools->FirstFormWindow = [] { return First() ? First()->hWnd() : nullptr; };
    txtPassword->PasswordChar(TEXT("*"));
    RunningOnWow64 = base::IsWow64();
    if (IsAnotherInstanceRunning()) {
        Unload();
        return;
    }
    AgentName = DeriveAgentName(helpers::GetAppExeName());
    if (IsAgentMissing()) {
        Complain(TEXT('"') + AgentName + TEXT(".exe\" needs to be on this directory."));
        Unload();
        return;
    }
    IniFile = helpers::GetIniFolder() + AgentName + TEXT(".ini");

    // A message box above lets the timers tick, so nothing listens to them before this.
    ConnectEvents();
    LoadService();
    if (IsAgentRunning())
        CommandStartVelmora->Enabled(false);
    LoadPassword();
    if (LoadAutoStart())
        LockServicePanel();
    else
        RefreshServicePanel();
    TimerMonitorIfVelmoraRunning_Timer();
    PasswordEdited = false;
    if (!helpers::IsUserAdmin()) {
        FrameService->Enabled(false);
        FrameAutoStart->Enabled(false);
    }
}

void Form1::Form_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift)
{
    constexpr std::int16_t alt = 4;
    if ((KeyCode == VK_ESCAPE && Shift == 0) || (KeyCode == VK_F5 && Shift == alt))
        Unload();
}

void Form1::Form_Unload()
{
    Notice.Hide();
    ProcessTools.reset();
    helpers::ReleaseShellLibrary();
}

/// It stays until it is over, until the user does something else, or until its time is up.
void Form1::Say(controls::CommandButton& button, controls::Balloon::Icon icon, const String& tried, const String& text,
                std::function<bool()> isOver)
{
    button.DestroyToolTip();  // it would lie over the balloon
    Notice.Show(button.hWnd(), icon, tried, text);
    NoticeIsOver = std::move(isOver);
}

void Form1::SayFailure(controls::CommandButton& button, const String& tried, DWORD error, std::function<bool()> cameTrue)
{
    Say(button, controls::Balloon::Icon::Error, tried, helpers::ErrorText(error), std::move(cameTrue));
}

void Form1::EndNoticeThatIsOver()
{
    if (Notice.Window() && NoticeIsOver())
        Notice.Hide();
}

bool Form1::IsNTPlatform()
{
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    return GetVersionExA(&version) && version.dwPlatformId == VER_PLATFORM_WIN32_NT;
}

bool Form1::IsAnotherInstanceRunning()
{
    InstanceMutex.Reset(CreateMutexW(nullptr, FALSE, TEXT("Local\\Velmora Setup Utility")));
    const DWORD error = GetLastError();
    // The mutex of an instance that runs with higher rights exists but must not be opened.
    return InstanceMutex ? error == ERROR_ALREADY_EXISTS : error == ERROR_ACCESS_DENIED;
}

bool Form1::IsAgentMissing()
{
    return !helpers::FileExists(AgentPath());
}

void Form1::FindControls()
{
    const auto find = [this]<class T>(T*& control, base::StringView name) { control = Find<T>(name); };
    find(TextPassword, TEXT("TextPassword"));
    find(FrameAutoStart, TEXT("FrameAutoStart"));
    find(CheckAutoStart, TEXT("CheckAutoStart"));
    find(CheckHideTrayIcon, TEXT("CheckHideTrayIcon"));
    find(CheckSoundStart, TEXT("CheckSoundStart"));
    find(FrameService, TEXT("FrameService"));
    find(cmdInstall, TEXT("cmdInstall"));
    find(cmdStart, TEXT("cmdStart"));
    find(lblAccount, TEXT("lblAccount"));
    find(txtAccount, TEXT("txtAccount"));
    find(lblPassword, TEXT("lblPassword"));
    find(txtPassword, TEXT("txtPassword"));
    find(chkSystem, TEXT("chkSystem"));
    find(lblStartup, TEXT("lblStartup"));
    find(ComboStartup, TEXT("ComboStartup"));
    find(tmrCheck, TEXT("tmrCheck"));
    find(CommandStartVelmora, TEXT("CommandStartVelmora"));
    find(CommandCloseVelmora, TEXT("CommandCloseVelmora"));
    find(TimerMonitorIfVelmoraRunning, TEXT("TimerMonitorIfVelmoraRunning"));
    find(CommandOk, TEXT("CommandOk"));
}

void Form1::ConnectEvents()
{
    UserActed.Connect([this] { Notice.Hide(); });
    TextPassword->Change.Connect([this] { TextPassword_Change(); });
    CheckAutoStart->Click.Connect([this] { CheckAutoStart_Click(); });
    chkSystem->Click.Connect([this] { chkSystem_Click(); });
    cmdInstall->Click.Connect([this] { cmdInstall_Click(); });
    cmdStart->Click.Connect([this] { cmdStart_Click(); });
    tmrCheck->Tick.Connect([this] { tmrCheck_Timer(); });
    CommandStartVelmora->Click.Connect([this] { CommandStartVelmora_Click(); });
    CommandCloseVelmora->Click.Connect([this] { CommandCloseVelmora_Click(); });
    TimerMonitorIfVelmoraRunning->Tick.Connect([this] { TimerMonitorIfVelmoraRunning_Timer(); });
    CommandOk->Click.Connect([this] { CommandOk_Click(); });
}

}  // namespace app
