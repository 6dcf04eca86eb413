// The stand-in agent. Its setup utility starts and closes it, installs it as a service, and sets its password and its switches.
#include "tools/agent/AgentService.h"
#include "tools/agent/AgentSettings.h"
#include "tools/agent/AgentWindow.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, WCHAR* commandLine, int)
{
    if (agent::StartedAsService())
        return agent::RunService();
    const bool hidden = base::FindIgnoringCase(commandLine, TEXT("/Hidden")) != base::String::npos;
    const bool sound = base::FindIgnoringCase(commandLine, TEXT("/SoundStart")) != base::String::npos;
    agent::Log(base::String(TEXT("window")) + (hidden ? TEXT(", hidden") : TEXT("")) + (sound ? TEXT(", with a sound") : TEXT("")));
    if (sound)
        MessageBeep(MB_OK);
    const int result = agent::RunWindow(instance, hidden);
    agent::Log(TEXT("closed"));
    return result;
}
