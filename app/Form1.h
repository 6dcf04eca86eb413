// Form1: the utility's one window, "Velmora Setup Utility".
#pragma once

#include "app/ServiceControl.h"
#include "base/Handles.h"
#include "controls/Balloon.h"
#include "controls/CheckBox/CheckBox.h"
#include "controls/CommandButton/CommandButton.h"
#include "controls/Frame/Frame.h"
#include "controls/TextBox/TextBox.h"
#include "host/ComboBox.h"
#include "host/Form.h"
#include "host/Label.h"
#include "host/Timer.h"
#include "toolkit/TaskManLight.h"

#include <functional>
#include <memory>
#include <vector>

namespace app {

/// The window as designed, UTF-8 in the form file's syntax.
const char* Form1Text();

/// Shows the state of the agent's service, process, password and auto-start value, and lets the user change them. What the service database
/// or Windows refuses is said in a balloon at the button that asked for it; settings that cannot be kept are passed over in silence.
///
/// The handlers stand in one file a subject: Form1.cpp (start, end and notices), Form1Service.cpp, Form1Agent.cpp, Form1Settings.cpp.
class Form1 final : public host::Form {
public:
    Form1();

private:
    // Start and end
    void Form_Initialize() override;
    void Form_Load() override;
    void Form_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override;
    void Form_Unload() override;
    static bool IsNTPlatform();
    bool IsAnotherInstanceRunning();
    bool IsAgentMissing();
    void FindControls();
    void ConnectEvents();
    void LoadService();

    // What did not happen, said at the button that was to do it
    void Say(controls::CommandButton& button, controls::Balloon::Icon icon, const base::String& tried, const base::String& text,
             std::function<bool()> isOver);
    void SayFailure(controls::CommandButton& button, const base::String& tried, DWORD error, std::function<bool()> cameTrue);
    void EndNoticeThatIsOver();

    // The service panel
    void RefreshServicePanel();
    void ShowServiceMissing();
    void ShowServiceInstalled();
    void ShowServiceState();
    void LockServicePanel();
    void UnlockServicePanel();
    void EnableServicePanel(bool enabled);
    void EnableAccount(bool enabled);
    void chkSystem_Click();
    void cmdInstall_Click();
    void cmdStart_Click();
    void tmrCheck_Timer();

    // The agent's process
    [[nodiscard]] bool IsAgentRunning() const;
    [[nodiscard]] base::String AgentPath() const;
    void CommandStartVelmora_Click();
    void CommandCloseVelmora_Click();
    void TimerMonitorIfVelmoraRunning_Timer();

    // Password, auto-start and OK
    void LoadPassword();
    void SavePassword();
    void TextPassword_Change();
    bool LoadAutoStart();
    void CheckAutoStart_Click();
    void CommandOk_Click();

    // NOLINTBEGIN(readability-identifier-naming): controls go by their names in the form file, and so does what the window knows of them.
    controls::TextBox* TextPassword = nullptr;
    controls::Frame* FrameAutoStart = nullptr;
    controls::CheckBox* CheckAutoStart = nullptr;
    controls::CheckBox* CheckHideTrayIcon = nullptr;
    controls::CheckBox* CheckSoundStart = nullptr;
    controls::Frame* FrameService = nullptr;
    controls::CommandButton* cmdInstall = nullptr;
    controls::CommandButton* cmdStart = nullptr;
    host::Label* lblAccount = nullptr;
    controls::TextBox* txtAccount = nullptr;
    host::Label* lblPassword = nullptr;
    controls::TextBox* txtPassword = nullptr;
    controls::CheckBox* chkSystem = nullptr;
    host::Label* lblStartup = nullptr;
    host::ComboBox* ComboStartup = nullptr;
    host::Timer* tmrCheck = nullptr;
    controls::CommandButton* CommandStartVelmora = nullptr;
    controls::CommandButton* CommandCloseVelmora = nullptr;
    host::Timer* TimerMonitorIfVelmoraRunning = nullptr;
    controls::CommandButton* CommandOk = nullptr;

    controls::Balloon Notice;
    std::function<bool()> NoticeIsOver;
    base::String AgentName;
    base::String IniFile;
    std::unique_ptr<toolkit::TaskManLight> ProcessTools;
    ServiceControl Service;
    DWORD ServiceState = 0;  // SERVICE_STOPPED ..., 0 when unknown
    DWORD LastStartType = 0;
    bool ServiceInstalled = false;
    bool PanelInitialised = false;
    bool RunningOnWow64 = false;
    bool PasswordEdited = false;
    base::KernelHandle InstanceMutex;
    // NOLINTEND(readability-identifier-naming)
};

}  // namespace app
