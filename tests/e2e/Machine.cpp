#include "tests/e2e/Machine.h"

#include "tests/e2e/Desktop.h"

#include <shlwapi.h>
#include <tlhelp32.h>

#include <vector>

namespace e2e {

namespace {

constexpr WCHAR RUN_KEY[] = TEXT("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
constexpr WCHAR NAME[] = TEXT("Velmora");

/// A path from the environment; one in the host's form is turned into the form that Windows programs use.
base::String PathFromEnvironment(const WCHAR* variable)
{
    WCHAR path[MAX_PATH] = {};
    GetEnvironmentVariableW(variable, path, MAX_PATH);
    base::String result = path;
    if (result.starts_with(TEXT("/")))
        result = TEXT("Z:") + result;
    for (WCHAR& character : result) {
        if (character == TEXT('/'))
            character = TEXT('\\');
    }
    return result;
}

base::ServiceHandle OpenInstalled(DWORD access)
{
    const base::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    return base::ServiceHandle(OpenServiceW(manager.Get(), NAME, access));
}

template <class Visit>
void ForEachProcess(Visit visit)
{
    const base::FileHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(snapshot.Get(), &entry); more; more = Process32NextW(snapshot.Get(), &entry))
        visit(entry);
}

/// Ids of all processes that run this exe.
std::vector<DWORD> ProcessesOf(const base::String& exe)
{
    std::vector<DWORD> found;
    ForEachProcess([&](const PROCESSENTRY32W& entry) {
        if (!base::EqualsIgnoringCase(entry.szExeFile, PathFindFileNameW(exe.c_str())))
            return;
        const base::KernelHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, entry.th32ProcessID));
        WCHAR path[MAX_PATH] = {};
        DWORD length = MAX_PATH;
        if (process && QueryFullProcessImageNameW(process.Get(), 0, path, &length) && base::EqualsIgnoringCase(path, exe))
            found.push_back(entry.th32ProcessID);
    });
    return found;
}

}  // namespace

Folder::Folder()
{
    static int count = 0;
    WCHAR temporary[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temporary);
    WCHAR whole[MAX_PATH] = {};
    GetLongPathNameW(temporary, whole, MAX_PATH);
    path_ = whole + (TEXT("velmora ") + base::ToDecimal(GetCurrentProcessId()) + TEXT("-") + base::ToDecimal(++count) + TEXT("\\"));
    CreateDirectoryW(path_.c_str(), nullptr);
}

Folder::~Folder()
{
    WIN32_FIND_DATAW data = {};
    const HANDLE search = FindFirstFileW((path_ + TEXT("*")).c_str(), &data);
    do {
        // An exe stays in use for a moment after its process has ended.
        const base::String file = path_ + data.cFileName;
        if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            (void)Eventually([&] { return DeleteFileW(file.c_str()) != 0; }, Milliseconds(2000));
    } while (FindNextFileW(search, &data));
    FindClose(search);
    RemoveDirectoryW(path_.c_str());
}

base::String Folder::PutUtility(base::StringView name) const
{
    CopyFileW(PathFromEnvironment(TEXT("VELMORA_UTILITY")).c_str(), (*this / name).c_str(), FALSE);
    return *this / name;
}

base::String Folder::PutAgent(base::StringView name) const
{
    CopyFileW(PathFromEnvironment(TEXT("VELMORA_AGENT")).c_str(), (*this / name).c_str(), FALSE);
    return *this / name;
}

bool FileExists(const base::String& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<base::String> StoredPassword(const base::String& settingsFile)
{
    constexpr base::StringView none = TEXT("<none>");
    WCHAR value[512] = {};
    GetPrivateProfileStringW(TEXT("Settings"), TEXT("Pwd"), none.data(), value, ARRAYSIZE(value), settingsFile.c_str());
    return value == none ? std::nullopt : std::optional<base::String>(value);
}

void StorePassword(const base::String& settingsFile, const base::String& value)
{
    WritePrivateProfileStringW(TEXT("Settings"), TEXT("Pwd"), value.c_str(), settingsFile.c_str());
}

std::string ReadFile(const base::String& path)
{
    const base::FileHandle file(
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file)
        return {};
    std::string bytes(GetFileSize(file.Get(), nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    bytes.resize(read);
    return bytes;
}

std::optional<base::String> AutoStartValue()
{
    WCHAR text[1024] = {};
    DWORD size = sizeof(text);
    if (RegGetValueW(HKEY_LOCAL_MACHINE, RUN_KEY, NAME, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return std::nullopt;
    return text;
}

void SetAutoStartValue(const base::String& text)
{
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, RUN_KEY, NAME, REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(WCHAR)));
}

void RemoveAutoStartValue()
{
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, RUN_KEY, NAME);
}

std::optional<ServiceFacts> InstalledService()
{
    const base::ServiceHandle service = OpenInstalled(SERVICE_QUERY_CONFIG);
    if (!service)
        return std::nullopt;
    alignas(16) BYTE buffer[4096] = {};
    DWORD needed = 0;
    auto& config = *reinterpret_cast<QUERY_SERVICE_CONFIGW*>(buffer);
    if (!QueryServiceConfigW(service.Get(), &config, sizeof(buffer), &needed))
        return std::nullopt;
    ServiceFacts facts{config.dwServiceType,
                       config.dwStartType,
                       config.dwErrorControl,
                       config.lpBinaryPathName,
                       config.lpServiceStartName,
                       config.lpDisplayName,
                       {}};
    if (QueryServiceConfig2W(service.Get(), SERVICE_CONFIG_DESCRIPTION, buffer, sizeof(buffer), &needed)) {
        const WCHAR* text = reinterpret_cast<SERVICE_DESCRIPTIONW*>(buffer)->lpDescription;
        facts.description = text ? text : TEXT("");
    }
    return facts;
}

DWORD ServiceState()
{
    const base::ServiceHandle service = OpenInstalled(SERVICE_QUERY_STATUS);
    SERVICE_STATUS status = {};
    return service && QueryServiceStatus(service.Get(), &status) ? status.dwCurrentState : 0;
}

bool InstallService(const base::String& exe, DWORD startType)
{
    const base::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
    const base::String path = TEXT("\"") + exe + TEXT("\"");
    return static_cast<bool>(
        base::ServiceHandle(CreateServiceW(manager.Get(), NAME, TEXT("Velmora Service"), SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS,
                                           startType, SERVICE_ERROR_NORMAL, path.c_str(), nullptr, nullptr, nullptr, nullptr, nullptr)));
}

bool ChangeServiceStartType(DWORD startType)
{
    const base::ServiceHandle service = OpenInstalled(SERVICE_CHANGE_CONFIG);
    return ChangeServiceConfigW(service.Get(), SERVICE_NO_CHANGE, startType, SERVICE_NO_CHANGE, nullptr, nullptr, nullptr, nullptr, nullptr,
                                nullptr, nullptr);
}

bool StartInstalledService()
{
    return StartServiceW(OpenInstalled(SERVICE_START).Get(), 0, nullptr);
}

bool RemoveService()
{
    if (!InstalledService())
        return true;
    // A service that is starting takes no stop request until it runs.
    const bool settled = Eventually([] { return ServiceState() == SERVICE_STOPPED || ServiceState() == SERVICE_RUNNING; });
    {
        const base::ServiceHandle service = OpenInstalled(SERVICE_ALL_ACCESS);
        SERVICE_STATUS status = {};
        if (settled && ServiceState() == SERVICE_RUNNING)
            ControlService(service.Get(), SERVICE_CONTROL_STOP, &status);
        (void)Eventually([] { return ServiceState() == SERVICE_STOPPED; });
        DeleteService(service.Get());
    }
    return Eventually([] { return !InstalledService(); });
}

DWORD ProcessOf(const base::String& exe)
{
    const std::vector<DWORD> found = ProcessesOf(exe);
    return found.empty() ? 0 : found.front();
}

base::KernelHandle RunAgent(const base::String& exe)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(exe.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return {};
    CloseHandle(process.hThread);
    return base::KernelHandle(process.hProcess);
}

HWND AgentWindow(DWORD processId)
{
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, nullptr, TEXT("Velmora"))) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == processId)
            return window;
    }
    return nullptr;
}

void EndProcesses(const base::String& exe)
{
    for (const DWORD processId : ProcessesOf(exe)) {
        const base::KernelHandle process(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, processId));
        TerminateProcess(process.Get(), 1);
        WaitForSingleObject(process.Get(), 5000);
    }
}

}  // namespace e2e
