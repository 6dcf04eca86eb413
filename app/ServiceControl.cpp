#include "app/ServiceControl.h"

#include "app/LogonRight.h"
#include "base/Handles.h"
#include "toolkit/LogonDomain.h"

#include <vector>

namespace app {

using base::ServiceHandle;
using base::String;
using base::StringView;

namespace {

constexpr StringView localSystem = TEXT("LocalSystem");

DWORD ResultOf(BOOL success)
{
    return success ? 0 : GetLastError();
}

/// The service manager refuses a call for which it has no time, and has done nothing then: the request is made again, a few times.
template <class Request>
DWORD Patiently(Request request)
{
    constexpr int tries = 5;
    constexpr DWORD pause = 10;  // milliseconds
    DWORD error = request();
    for (int i = 1; i < tries && error == RPC_S_SERVER_TOO_BUSY; ++i) {
        Sleep(pause);
        error = request();
    }
    return error;
}

/// The name with the domain in front that CreateServiceW wants.
String Qualified(const String& account)
{
    if (account == localSystem || account.find(TEXT('\\')) != String::npos)
        return account;
    const String domain = toolkit::GetLogonDomain();
    return (domain.empty() ? String(TEXT(".")) : domain) + TEXT('\\') + account;
}

}  // namespace

void ServiceControl::ServiceSetInfo(StringView exeName, StringView serviceName, StringView displayName, StringView description)
{
    exeName_ = exeName;
    serviceName_ = serviceName;
    displayName_ = displayName;
    description_ = description;
}

/// Opens the manager and the service, and closes both behind `action`.
template <class Action>
DWORD ServiceControl::WithService(DWORD access, Action action) const
{
    return Patiently([&] {
        const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
        if (!manager)
            return GetLastError();
        const ServiceHandle service(OpenServiceW(manager.Get(), serviceName_.c_str(), access));
        if (!service)
            return GetLastError();
        return action(service.Get());
    });
}

DWORD ServiceControl::ServiceGetState() const
{
    SERVICE_STATUS status{};
    const DWORD error =
        WithService(SERVICE_QUERY_STATUS, [&](SC_HANDLE service) { return ResultOf(QueryServiceStatus(service, &status)); });
    return error == 0 ? status.dwCurrentState : 0;
}

DWORD ServiceControl::ServiceGetConfig(String& account, DWORD& startType) const
{
    account.clear();
    return WithService(SERVICE_QUERY_CONFIG, [&](SC_HANDLE service) {
        std::vector<QUERY_SERVICE_CONFIGW> config(1);
        const auto query = [&](DWORD& needed) {
            return ResultOf(QueryServiceConfigW(service, config.data(), static_cast<DWORD>(config.size() * sizeof config[0]), &needed));
        };
        DWORD needed = 0;
        DWORD error = query(needed);
        if (error == ERROR_INSUFFICIENT_BUFFER) {
            config.resize(needed / sizeof config[0] + 1);
            error = query(needed);
        }
        if (error != 0)
            return error;
        if (config[0].lpServiceStartName)
            account = config[0].lpServiceStartName;
        startType = config[0].dwStartType;
        return error;
    });
}

DWORD ServiceControl::ServiceInstall(String& account, const String& password, StringView folder, DWORD startType, bool interactive) const
{
    account = Qualified(account);
    const String path = TEXT('"') + String(folder) + exeName_ + TEXT('"');
    DWORD type = SERVICE_WIN32_OWN_PROCESS;
    if (interactive && account == localSystem)
        type |= SERVICE_INTERACTIVE_PROCESS;
    return Patiently([&]() -> DWORD {
        const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
        if (!manager)
            return GetLastError();
        const ServiceHandle service(CreateServiceW(manager.Get(), serviceName_.c_str(), displayName_.c_str(), SERVICE_ALL_ACCESS, type,
                                                   startType, SERVICE_ERROR_NORMAL, path.c_str(), nullptr, nullptr, nullptr,
                                                   account.c_str(), password.c_str()));
        if (!service)
            return GetLastError();
        String text = description_;
        SERVICE_DESCRIPTIONW description{};
        description.lpDescription = text.data();
        ChangeServiceConfig2W(service.Get(), SERVICE_CONFIG_DESCRIPTION, &description);
        // The service is installed, whether its account gets the right or not: starting it tells.
        GrantServiceLogon(account);
        return 0;
    });
}

DWORD ServiceControl::ServiceUninstall() const
{
    return WithService(SERVICE_ALL_ACCESS, [](SC_HANDLE service) {
        SERVICE_STATUS status{};
        ControlService(service, SERVICE_CONTROL_STOP, &status);
        return ResultOf(DeleteService(service));
    });
}

DWORD ServiceControl::ServiceStart() const
{
    return WithService(SERVICE_START, [](SC_HANDLE service) { return ResultOf(StartServiceW(service, 0, nullptr)); });
}

DWORD ServiceControl::ServiceStop() const
{
    return WithService(SERVICE_STOP, [](SC_HANDLE service) {
        SERVICE_STATUS status{};
        return ResultOf(ControlService(service, SERVICE_CONTROL_STOP, &status));
    });
}

}  // namespace app
