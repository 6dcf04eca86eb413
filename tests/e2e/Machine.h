// Machine: what the utility changes on the PC (registry, services, processes), read and set with Windows' own functions.
#pragma once

#include "base/Handles.h"
#include "base/String.h"

#include <optional>

namespace e2e {

/// The value that starts the agent at logon.
[[nodiscard]] std::optional<base::String> AutoStartValue();
void RemoveAutoStartValue();

struct ServiceFacts {
    DWORD startType;
    base::String binaryPath, account, description;
};

/// The installed service "Velmora"; nothing when there is none.
[[nodiscard]] std::optional<ServiceFacts> InstalledService();
/// SERVICE_STOPPED, SERVICE_RUNNING...; 0 when it is not installed.
[[nodiscard]] DWORD ServiceState();
bool InstallService(const base::String& exe, DWORD startType);
bool ChangeServiceStartType(DWORD startType);
/// Stops it when it runs, deletes it and waits until it is gone.
bool RemoveService();

/// Runs an exe in its own folder. The handle is empty when it did not start.
[[nodiscard]] base::KernelHandle Launch(const base::String& exe);
/// The main window of the agent, NULL while none runs.
[[nodiscard]] HWND AgentWindow();
/// Its process, for waiting and for ending it.
[[nodiscard]] base::KernelHandle AgentProcess();
/// Ends the agent, if one runs, without asking it.
void EndAgent();

}  // namespace e2e
