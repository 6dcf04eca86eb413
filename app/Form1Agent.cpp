// The agent as an ordinary process: it is known by a window of its own with a certain title, and closed through its main window.
#include "app/Form1.h"
#include "app/helpers/Paths.h"
#include "app/helpers/RunProcess.h"
#include "app/SetEnabled.h"

namespace app {

namespace {

constexpr base::StringView identification = TEXT("VELMORA-IDENTIFICATION-WINDOW");

}  // namespace

bool Form1::IsAgentRunning() const
{
    return ProcessTools->GetHWndByCaptionCount(identification, true) >= 1;
}

base::String Form1::AgentPath() const
{
    return helpers::GetAppPath() + AgentName + TEXT(".exe");
}

void Form1::TimerMonitorIfVelmoraRunning_Timer()
{
    const bool running = IsAgentRunning();
    SetEnabled(*CommandStartVelmora, !running);
    SetEnabled(*CommandCloseVelmora, running);
    EndNoticeThatIsOver();
}

void Form1::CommandStartVelmora_Click()
{
    const base::String tried = CommandStartVelmora->Caption();
    if (IsAgentRunning()) {
        CommandStartVelmora->Enabled(false);
        Say(*CommandStartVelmora, controls::Balloon::Icon::Information, tried, TEXT("Velmora is already running."),
            [this] { return !IsAgentRunning(); });
        return;
    }
    if (PasswordEdited) {
        SavePassword();
        PasswordEdited = false;
    }
    DWORD error = 0;
    if (helpers::RunProcess(AgentPath(), {}, false, true, NORMAL_PRIORITY_CLASS, &error) != 0)
        CommandStartVelmora->Enabled(false);
    else
        SayFailure(*CommandStartVelmora, tried, error, [this] { return IsAgentRunning(); });
}

void Form1::CommandCloseVelmora_Click()
{
    const HWND window = ProcessTools->FindHWndByCaption(identification, true);
    if (!window || !ProcessTools->ExistsWindow(window))
        return;
    const DWORD process = ProcessTools->GetPIDFromhWnd(window);
    if (const HWND main = ProcessTools->GetMainWindowFromPID(process))
        ProcessTools->CloseWindow(main);
}

}  // namespace app
