// The service control manager as the Windows SDK names it.
#pragma once

#include "windef.h"
#include "winnt.h"

DECLARE_HANDLE(SC_HANDLE);

#define SC_MANAGER_CONNECT 0x0001
#define SC_MANAGER_CREATE_SERVICE 0x0002
#define SC_MANAGER_ENUMERATE_SERVICE 0x0004
#define SC_MANAGER_QUERY_LOCK_STATUS 0x0010
#define SC_MANAGER_ALL_ACCESS 0xF003F
#define SERVICE_QUERY_CONFIG 0x0001
#define SERVICE_CHANGE_CONFIG 0x0002
#define SERVICE_QUERY_STATUS 0x0004
#define SERVICE_ENUMERATE_DEPENDENTS 0x0008
#define SERVICE_START 0x0010
#define SERVICE_STOP 0x0020
#define SERVICE_INTERROGATE 0x0080
#define SERVICE_USER_DEFINED_CONTROL 0x0100
#define SERVICE_ALL_ACCESS 0xF01FF
#define SERVICE_CONTROL_STOP 1
#define SERVICE_CONTROL_INTERROGATE 4
#define SERVICE_STOPPED 1
#define SERVICE_START_PENDING 2
#define SERVICE_STOP_PENDING 3
#define SERVICE_RUNNING 4
#define SERVICE_CONTINUE_PENDING 5
#define SERVICE_PAUSE_PENDING 6
#define SERVICE_PAUSED 7
#define SERVICE_ACCEPT_STOP 0x00000001
#define SERVICE_CONFIG_DESCRIPTION 1

struct SERVICE_STATUS {
    DWORD dwServiceType, dwCurrentState, dwControlsAccepted, dwWin32ExitCode, dwServiceSpecificExitCode, dwCheckPoint, dwWaitHint;
};
using LPSERVICE_STATUS = SERVICE_STATUS*;
struct QUERY_SERVICE_CONFIGW {
    DWORD dwServiceType, dwStartType, dwErrorControl;
    LPWSTR lpBinaryPathName, lpLoadOrderGroup;
    DWORD dwTagId;
    LPWSTR lpDependencies, lpServiceStartName, lpDisplayName;
};
using LPQUERY_SERVICE_CONFIGW = QUERY_SERVICE_CONFIGW*;
struct SERVICE_DESCRIPTIONW {
    LPWSTR lpDescription;
};
using LPSERVICE_DESCRIPTIONW = SERVICE_DESCRIPTIONW*;

SC_HANDLE WINAPI OpenSCManagerW(LPCWSTR machine, LPCWSTR database, DWORD access);
SC_HANDLE WINAPI OpenServiceW(SC_HANDLE manager, LPCWSTR name, DWORD access);
SC_HANDLE WINAPI CreateServiceW(SC_HANDLE manager, LPCWSTR name, LPCWSTR displayName, DWORD access, DWORD type, DWORD startType,
                                DWORD errorControl, LPCWSTR path, LPCWSTR loadOrderGroup, LPDWORD tag, LPCWSTR dependencies,
                                LPCWSTR account, LPCWSTR password);
BOOL WINAPI DeleteService(SC_HANDLE service);
BOOL WINAPI CloseServiceHandle(SC_HANDLE handle);
BOOL WINAPI QueryServiceStatus(SC_HANDLE service, LPSERVICE_STATUS status);
BOOL WINAPI QueryServiceConfigW(SC_HANDLE service, LPQUERY_SERVICE_CONFIGW config, DWORD size, LPDWORD needed);
BOOL WINAPI ChangeServiceConfig2W(SC_HANDLE service, DWORD level, LPVOID information);
BOOL WINAPI StartServiceW(SC_HANDLE service, DWORD count, LPCWSTR* arguments);
BOOL WINAPI ControlService(SC_HANDLE service, DWORD control, LPSERVICE_STATUS status);
