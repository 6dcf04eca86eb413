#include "tests/e2e/Machine.h"

#include "tests/e2e/Eventually.h"

namespace e2e {

namespace {

constexpr WCHAR runKey[] = TEXT("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
constexpr WCHAR name[] = TEXT("Velmora");

base::ServiceHandle OpenInstalled(DWORD access)
{
    const base::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    return base::ServiceHandle(OpenServiceW(manager.Get(), name, access));
}

}  // namespace

std::optional<base::String> AutoStartValue()
{
    WCHAR text[1024]{};
    DWORD size = sizeof text;
    if (RegGetValueW(HKEY_LOCAL_MACHINE, runKey, name, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return std::nullopt;
    return text;
}

void RemoveAutoStartValue()
{
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, runKey, name);
}

std::optional<ServiceFacts> InstalledService()
{
    const base::ServiceHandle service = OpenInstalled(SERVICE_QUERY_CONFIG);
    if (!service)
        return std::nullopt;
    alignas(16) BYTE buffer[4096]{};
    DWORD needed = 0;
    auto& config = *reinterpret_cast<QUERY_SERVICE_CONFIGW*>(buffer);
    if (!QueryServiceConfigW(service.Get(), &config, sizeof buffer, &needed))
        return std::nullopt;
    ServiceFacts facts{config.dwStartType, config.lpBinaryPathName, config.lpServiceStartName, {}};
    if (QueryServiceConfig2W(service.Get(), SERVICE_CONFIG_DESCRIPTION, buffer, sizeof buffer, &needed)) {
        const WCHAR* text = reinterpret_cast<SERVICE_DESCRIPTIONW*>(buffer)->lpDescription;
        facts.description = text ? text : TEXT("");
    }
    return facts;
}

DWORD ServiceState()
{
    const base::ServiceHandle service = OpenInstalled(SERVICE_QUERY_STATUS);
    SERVICE_STATUS status{};
    return service && QueryServiceStatus(service.Get(), &status) ? status.dwCurrentState : 0;
}

bool InstallService(const base::String& exe, DWORD startType)
{
    const base::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
    const base::String path = TEXT("\"") + exe + TEXT("\"");
    return static_cast<bool>(
        base::ServiceHandle(CreateServiceW(manager.Get(), name, TEXT("Velmora Service"), SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS,
                                           startType, SERVICE_ERROR_NORMAL, path.c_str(), nullptr, nullptr, nullptr, nullptr, nullptr)));
}

bool ChangeServiceStartType(DWORD startType)
{
    const base::ServiceHandle service = OpenInstalled(SERVICE_CHANGE_CONFIG);
    return ChangeServiceConfigW(service.Get(), SERVICE_NO_CHANGE, startType, SERVICE_NO_CHANGE, nullptr, nullptr, nullptr, nullptr, nullptr,
                                nullptr, nullptr);
}

bool RemoveService()
{
    // A service that is starting takes no stop request until it runs.
    (void)Eventually([] { return ServiceState() == SERVICE_STOPPED || ServiceState() == SERVICE_RUNNING || !InstalledService(); });
    SERVICE_STATUS status{};
    if (ServiceState() == SERVICE_RUNNING)
        ControlService(OpenInstalled(SERVICE_STOP).Get(), SERVICE_CONTROL_STOP, &status);
    (void)Eventually([] { return ServiceState() == SERVICE_STOPPED || !InstalledService(); });
    DeleteService(OpenInstalled(DELETE).Get());
    return Eventually([] { return !InstalledService(); });
}

base::KernelHandle Launch(const base::String& exe)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    base::String commandLine = TEXT("\"") + exe + TEXT("\"");
    const base::String folder = exe.substr(0, exe.rfind(TEXT('\\')));
    if (!CreateProcessW(exe.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup, &process))
        return {};
    CloseHandle(process.hThread);
    return base::KernelHandle(process.hProcess);
}

HWND AgentWindow()
{
    return FindWindowW(nullptr, TEXT("Velmora"));
}

base::KernelHandle AgentProcess()
{
    DWORD processId = 0;
    GetWindowThreadProcessId(AgentWindow(), &processId);
    return base::KernelHandle(processId ? OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, processId) : nullptr);
}

void EndAgent()
{
    if (const base::KernelHandle process = AgentProcess()) {
        TerminateProcess(process.Get(), 1);
        WaitForSingleObject(process.Get(), 5000);
    }
}

}  // namespace e2e
