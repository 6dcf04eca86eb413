// Machine: what the utility changes on the PC (files, registry, services, processes), read and set with Windows' own functions.
#pragma once

#include "base/Handles.h"
#include "base/String.h"

#include <optional>

namespace e2e {

/// A folder of its own below the temporary folder, with the exes in it. It is removed with the object.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    /// The path of a file in it.
    [[nodiscard]] base::String operator/(base::StringView name) const { return path_ + base::String(name); }
    /// Puts the utility here under this name; its full path.
    base::String PutUtility(base::StringView name = TEXT("Velmora Setup Utility.exe")) const;
    /// Puts the agent here under this name; its full path.
    base::String PutAgent(base::StringView name = TEXT("Velmora.exe")) const;

private:
    base::String path_;
};

[[nodiscard]] bool FileExists(const base::String& path);
/// The agent's stored password as it stands in the settings file; nothing when the key or the file is missing.
[[nodiscard]] std::optional<base::String> StoredPassword(const base::String& settingsFile);
void StorePassword(const base::String& settingsFile, const base::String& value);
/// Whole bytes of a text file, empty when there is none.
[[nodiscard]] std::string ReadFile(const base::String& path);

/// The value that starts the agent at logon.
[[nodiscard]] std::optional<base::String> AutoStartValue();
void SetAutoStartValue(const base::String& text);
void RemoveAutoStartValue();

struct ServiceFacts {
    DWORD type, startType, errorControl;
    base::String binaryPath, account, displayName, description;
};

/// The installed service "Velmora"; nothing when there is none.
[[nodiscard]] std::optional<ServiceFacts> InstalledService();
/// SERVICE_STOPPED, SERVICE_RUNNING...; 0 when it is not installed.
[[nodiscard]] DWORD ServiceState();
bool InstallService(const base::String& exe, DWORD startType);
bool ChangeServiceStartType(DWORD startType);
bool StartInstalledService();
/// Stops it when it runs, deletes it and waits until it is gone.
bool RemoveService();

/// The process that runs this exe; 0 when none does.
[[nodiscard]] DWORD ProcessOf(const base::String& exe);
/// Runs an agent as somebody else than the utility would. The handle is for waiting and for ending it.
[[nodiscard]] base::KernelHandle RunAgent(const base::String& exe);
/// The main window of the agent with this process id, NULL when it has none.
[[nodiscard]] HWND AgentWindow(DWORD processId);
/// Ends every process that runs this exe, without asking it.
void EndProcesses(const base::String& exe);

}  // namespace e2e
