// AgentProgram: a stand-in agent for scenes, with its two windows and its ways of ending.
#pragma once

#include "platform/sim/Processes.h"

#include <windows.h>

#include <memory>

namespace tests {

/// Where the utility stands on the stand-in PC.
inline constexpr const char16_t* utilityPath = u"C:\\Tools\\Velmora Setup Utility.exe";

/// How the agents behave; may be changed before one starts and while one runs.
struct AgentHabits {
    /// It stays when it is asked to close.
    bool ignoresClose = false;
};

/// Its windows are there 500 milliseconds after its launch.
class AgentProgram : public platform::Program {
public:
    /// Puts the agent beside the utility. The habits are shared by all processes that it starts.
    static std::shared_ptr<AgentHabits> Install(platform::SimPc& pc);

    AgentProgram(platform::SimPc& pc, DWORD processId, std::shared_ptr<AgentHabits> habits);
    void Start() override;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OpenWindows();

    platform::SimPc& pc_;
    DWORD processId_;
    std::shared_ptr<AgentHabits> habits_;
};

}  // namespace tests
