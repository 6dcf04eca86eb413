// ServiceControl: installs, removes, starts, stops and reads the agent's Windows service.
#pragma once

#include "base/String.h"

namespace app {

/// Every operation but `ServiceGetState` returns 0 or the last error of the call that failed, and leaves no handle open.
/// https://learn.microsoft.com/windows/win32/services/service-control-manager
class ServiceControl {
public:
    void ServiceSetInfo(base::StringView exeName, base::StringView serviceName, base::StringView displayName, base::StringView description);

    /// The service's state, SERVICE_STOPPED (1) to SERVICE_PAUSED (7); 0 when it cannot be read.
    [[nodiscard]] DWORD ServiceGetState() const;

    /// Fills in the account (emptied first) and the start type (untouched on failure).
    DWORD ServiceGetConfig(base::String& account, DWORD& startType) const;

    /// Installs `folder` (ending in a backslash) + the exe's name. An account without a domain is given the user's logon domain, or ".";
    /// `account` comes back so, and a user's account gets the right to log on as a service. `interactive` counts for "LocalSystem" only.
    DWORD ServiceInstall(base::String& account, const base::String& password, base::StringView folder, DWORD startType,
                         bool interactive) const;

    /// Asks the service to stop and deletes it. Windows removes a running service once it has stopped; nobody waits for that.
    DWORD ServiceUninstall() const;

    /// Both only ask; they do not wait for the new state.
    DWORD ServiceStart() const;
    DWORD ServiceStop() const;

private:
    template <class Action>
    DWORD WithService(DWORD access, Action action) const;

    base::String exeName_;
    base::String serviceName_;
    base::String displayName_;
    base::String description_;
};

}  // namespace app
