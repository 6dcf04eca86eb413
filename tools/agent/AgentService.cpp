#include "tools/agent/AgentService.h"

#include "base/Handles.h"
#include "base/String.h"
#include "tools/agent/AgentSettings.h"

#include <tlhelp32.h>

namespace agent {

namespace {

constexpr DWORD stepMilliseconds = 300;
constexpr DWORD steps = 5;
WCHAR serviceName[] = TEXT("Velmora");
SERVICE_STATUS_HANDLE statusHandle;
base::KernelHandle stopRequested;

void Report(DWORD state, DWORD checkPoint = 0)
{
    SERVICE_STATUS status = {};
    status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
    status.dwCurrentState = state;
    status.dwControlsAccepted = state == SERVICE_RUNNING ? SERVICE_ACCEPT_STOP : 0;
    status.dwCheckPoint = checkPoint;
    status.dwWaitHint = checkPoint ? stepMilliseconds * 10 : 0;
    SetServiceStatus(statusHandle, &status);
}

void TakeTime(DWORD pendingState)
{
    for (DWORD checkPoint = 1; checkPoint <= steps; ++checkPoint) {
        Report(pendingState, checkPoint);
        Sleep(stepMilliseconds);
    }
}

DWORD WINAPI OnControl(DWORD control, DWORD, void*, void*)
{
    if (control == SERVICE_CONTROL_STOP)
        SetEvent(stopRequested.Get());
    return control == SERVICE_CONTROL_STOP || control == SERVICE_CONTROL_INTERROGATE ? NO_ERROR : ERROR_CALL_NOT_IMPLEMENTED;
}

void WINAPI ServiceMain(DWORD, WCHAR**)
{
    statusHandle = RegisterServiceCtrlHandlerExW(serviceName, &OnControl, nullptr);
    stopRequested.Reset(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    TakeTime(SERVICE_START_PENDING);
    Report(SERVICE_RUNNING);
    Log(TEXT("service running"));
    WaitForSingleObject(stopRequested.Get(), INFINITE);
    TakeTime(SERVICE_STOP_PENDING);
    Log(TEXT("service stopped"));
    Report(SERVICE_STOPPED);
}

}  // namespace

bool StartedAsService()
{
    base::FileHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    DWORD parent = 0;
    for (BOOL more = Process32FirstW(snapshot.Get(), &entry); more; more = Process32NextW(snapshot.Get(), &entry)) {
        if (entry.th32ProcessID == GetCurrentProcessId())
            parent = entry.th32ParentProcessID;
    }
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(snapshot.Get(), &entry); more; more = Process32NextW(snapshot.Get(), &entry)) {
        if (entry.th32ProcessID == parent)
            return base::EqualsIgnoringCase(entry.szExeFile, TEXT("services.exe"));
    }
    return false;
}

int RunService()
{
    const SERVICE_TABLE_ENTRYW services[] = {{serviceName, &ServiceMain}, {nullptr, nullptr}};
    return StartServiceCtrlDispatcherW(services) ? 0 : static_cast<int>(GetLastError());
}

}  // namespace agent
