// The kernel's functions as the Windows SDK names them: files, processes, threads, modules, memory, environment, security.
#pragma once

#include "windef.h"

#include <cstdarg>
#include "winnt.h"

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))
#define INFINITE 0xFFFFFFFF
#define WAIT_TIMEOUT 258
#define WAIT_FAILED (static_cast<DWORD>(0xFFFFFFFF))

// ---- Last error, text, time ----
DWORD WINAPI GetLastError();
VOID WINAPI SetLastError(DWORD error);
INT WINAPI lstrlenW(LPCWSTR text);
INT WINAPI MulDiv(INT number, INT numerator, INT denominator);
DWORD WINAPI GetTickCount();
VOID WINAPI Sleep(DWORD milliseconds);

// ---- Files and folders ----
#define CREATE_NEW 1
#define CREATE_ALWAYS 2
#define OPEN_EXISTING 3
#define OPEN_ALWAYS 4
#define TRUNCATE_EXISTING 5
#define FILE_BEGIN 0
#define FILE_CURRENT 1
#define FILE_END 2
#define FILE_FLAG_BACKUP_SEMANTICS 0x02000000

struct SECURITY_ATTRIBUTES {
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;
struct OVERLAPPED;
using LPOVERLAPPED = OVERLAPPED*;

HANDLE WINAPI CreateFileW(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security, DWORD disposition, DWORD flags,
                          HANDLE pattern);
BOOL WINAPI ReadFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD read, LPOVERLAPPED overlapped);
BOOL WINAPI WriteFile(HANDLE file, LPCVOID buffer, DWORD size, LPDWORD written, LPOVERLAPPED overlapped);
BOOL WINAPI SetFilePointerEx(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER position, DWORD method);
BOOL WINAPI GetFileSizeEx(HANDLE file, PLARGE_INTEGER size);
BOOL WINAPI CloseHandle(HANDLE object);
BOOL WINAPI CreateDirectoryW(LPCWSTR name, LPSECURITY_ATTRIBUTES security);
BOOL WINAPI RemoveDirectoryW(LPCWSTR name);
BOOL WINAPI DeleteFileW(LPCWSTR name);
BOOL WINAPI GetVolumeInformationW(LPCWSTR root, LPWSTR name, DWORD nameSize, LPDWORD serial, LPDWORD componentLength, LPDWORD flags,
                                  LPWSTR fileSystem, DWORD fileSystemSize);
DWORD WINAPI GetLogicalDriveStringsA(DWORD size, LPSTR buffer);
DWORD WINAPI QueryDosDeviceW(LPCWSTR device, LPWSTR target, DWORD size);
DWORD WINAPI GetTempPathW(DWORD size, LPWSTR buffer);
UINT WINAPI GetWindowsDirectoryW(LPWSTR buffer, UINT size);
UINT WINAPI GetSystemDirectoryW(LPWSTR buffer, UINT size);

// ---- Texts of errors ----
#define FORMAT_MESSAGE_IGNORE_INSERTS 0x00000200
#define FORMAT_MESSAGE_FROM_SYSTEM 0x00001000
DWORD WINAPI FormatMessageW(DWORD flags, LPCVOID source, DWORD message, DWORD language, LPWSTR buffer, DWORD size, va_list* arguments);

// ---- Profiles ----
DWORD WINAPI GetProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR fallback, LPWSTR buffer, DWORD size);
DWORD WINAPI GetPrivateProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR fallback, LPWSTR buffer, DWORD size, LPCWSTR file);
BOOL WINAPI WritePrivateProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR text, LPCWSTR file);

// ---- Security ----
BOOL WINAPI GetFileSecurityW(LPCWSTR name, SECURITY_INFORMATION requested, PSECURITY_DESCRIPTOR descriptor, DWORD size, LPDWORD needed);
BOOL WINAPI ImpersonateSelf(SECURITY_IMPERSONATION_LEVEL level);
BOOL WINAPI RevertToSelf();
BOOL WINAPI OpenThreadToken(HANDLE thread, DWORD access, BOOL asSelf, PHANDLE token);
BOOL WINAPI OpenProcessToken(HANDLE process, DWORD access, PHANDLE token);
BOOL WINAPI DuplicateToken(HANDLE token, SECURITY_IMPERSONATION_LEVEL level, PHANDLE duplicate);
BOOL WINAPI CreateRestrictedToken(HANDLE token, DWORD flags, DWORD disabledCount, PSID_AND_ATTRIBUTES disabled, DWORD deletedCount,
                                  PLUID_AND_ATTRIBUTES deleted, DWORD restrictedCount, PSID_AND_ATTRIBUTES restricted, PHANDLE made);
BOOL WINAPI CreateWellKnownSid(WELL_KNOWN_SID_TYPE kind, PSID domain, PSID sid, DWORD* size);
VOID WINAPI MapGenericMask(PDWORD mask, PGENERIC_MAPPING mapping);
BOOL WINAPI AccessCheck(PSECURITY_DESCRIPTOR descriptor, HANDLE token, DWORD desired, PGENERIC_MAPPING mapping, PPRIVILEGE_SET privileges,
                        LPDWORD privilegesSize, LPDWORD granted, LPBOOL status);
BOOL WINAPI LookupPrivilegeValueW(LPCWSTR system, LPCWSTR name, PLUID value);
BOOL WINAPI AdjustTokenPrivileges(HANDLE token, BOOL disableAll, PTOKEN_PRIVILEGES wanted, DWORD size, PTOKEN_PRIVILEGES previous,
                                  PDWORD needed);
BOOL WINAPI GetTokenInformation(HANDLE token, TOKEN_INFORMATION_CLASS kind, LPVOID buffer, DWORD size, PDWORD needed);
BOOL WINAPI GetUserNameW(LPWSTR buffer, LPDWORD size);
BOOL WINAPI LookupAccountNameW(LPCWSTR system, LPCWSTR account, PSID sid, LPDWORD sidSize, LPWSTR domain, LPDWORD domainLength,
                               PSID_NAME_USE use);
BOOL WINAPI GetVersionExA(LPOSVERSIONINFOA version);

// ---- Processes and threads ----
#define STARTF_USESHOWWINDOW 0x00000001
#define CREATE_SUSPENDED 0x00000004
#define NORMAL_PRIORITY_CLASS 0x00000020
#define IDLE_PRIORITY_CLASS 0x00000040
#define HIGH_PRIORITY_CLASS 0x00000080
#define REALTIME_PRIORITY_CLASS 0x00000100
#define BELOW_NORMAL_PRIORITY_CLASS 0x00004000
#define ABOVE_NORMAL_PRIORITY_CLASS 0x00008000
#define PROCESS_DEP_ENABLE 0x00000001
#define PROCESS_DEP_DISABLE_ATL_THUNK_EMULATION 0x00000002

struct STARTUPINFOW {
    DWORD cb;
    LPWSTR lpReserved, lpDesktop, lpTitle;
    DWORD dwX, dwY, dwXSize, dwYSize, dwXCountChars, dwYCountChars, dwFillAttribute, dwFlags;
    WORD wShowWindow, cbReserved2;
    LPBYTE lpReserved2;
    HANDLE hStdInput, hStdOutput, hStdError;
};
using LPSTARTUPINFOW = STARTUPINFOW*;
struct PROCESS_INFORMATION {
    HANDLE hProcess, hThread;
    DWORD dwProcessId, dwThreadId;
};
using LPPROCESS_INFORMATION = PROCESS_INFORMATION*;

BOOL WINAPI CreateProcessW(LPCWSTR application, LPWSTR commandLine, LPSECURITY_ATTRIBUTES processSecurity,
                           LPSECURITY_ATTRIBUTES threadSecurity, BOOL inheritHandles, DWORD flags, LPVOID environment, LPCWSTR folder,
                           LPSTARTUPINFOW startup, LPPROCESS_INFORMATION information);
HANDLE WINAPI OpenProcess(DWORD access, BOOL inherit, DWORD processId);
HANDLE WINAPI GetCurrentProcess();
DWORD WINAPI GetCurrentProcessId();
HANDLE WINAPI GetCurrentThread();
DWORD WINAPI GetCurrentThreadId();
DWORD WINAPI GetProcessId(HANDLE process);
BOOL WINAPI GetExitCodeProcess(HANDLE process, LPDWORD code);
BOOL WINAPI TerminateProcess(HANDLE process, UINT code);
DWORD WINAPI GetPriorityClass(HANDLE process);
BOOL WINAPI SetPriorityClass(HANDLE process, DWORD priority);
BOOL WINAPI GetProcessAffinityMask(HANDLE process, PDWORD_PTR processMask, PDWORD_PTR systemMask);
BOOL WINAPI SetProcessAffinityMask(HANDLE process, DWORD_PTR mask);
BOOL WINAPI SetProcessWorkingSetSize(HANDLE process, SIZE_T minimum, SIZE_T maximum);
BOOL WINAPI IsWow64Process(HANDLE process, PBOOL wow64);
BOOL WINAPI SetProcessDEPPolicy(DWORD flags);
HANDLE WINAPI OpenThread(DWORD access, BOOL inherit, DWORD threadId);
BOOL WINAPI GetExitCodeThread(HANDLE thread, LPDWORD code);
BOOL WINAPI TerminateThread(HANDLE thread, DWORD code);
DWORD WINAPI SuspendThread(HANDLE thread);
DWORD WINAPI ResumeThread(HANDLE thread);
HANDLE WINAPI CreateMutexW(LPSECURITY_ATTRIBUTES security, BOOL initialOwner, LPCWSTR name);
DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);

// ---- Modules ----
HMODULE WINAPI GetModuleHandleW(LPCWSTR name);
#define LOAD_WITH_ALTERED_SEARCH_PATH 0x00000008
#define LOAD_LIBRARY_SEARCH_SYSTEM32 0x00000800
HMODULE WINAPI LoadLibraryW(LPCWSTR name);
HMODULE WINAPI LoadLibraryExW(LPCWSTR name, HANDLE file, DWORD flags);
BOOL WINAPI SetDefaultDllDirectories(DWORD flags);
BOOL WINAPI SetDllDirectoryW(LPCWSTR folder);
BOOL WINAPI FreeLibrary(HMODULE module);
FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name);
DWORD WINAPI GetModuleFileNameW(HMODULE module, LPWSTR buffer, DWORD size);

// ---- Memory ----
#define GMEM_MOVEABLE 0x0002
#define GMEM_ZEROINIT 0x0040
#define PROCESS_HEAP_REGION 0x0001
#define PROCESS_HEAP_UNCOMMITTED_RANGE 0x0002
#define PROCESS_HEAP_ENTRY_BUSY 0x0004

struct PROCESS_HEAP_ENTRY {
    PVOID lpData;
    DWORD cbData;
    BYTE cbOverhead, iRegionIndex;
    WORD wFlags;
    union {
        struct {
            HANDLE hMem;
            DWORD dwReserved[3];
        } Block;
        struct {
            DWORD dwCommittedSize, dwUnCommittedSize;
            LPVOID lpFirstBlock, lpLastBlock;
        } Region;
    };
};
using LPPROCESS_HEAP_ENTRY = PROCESS_HEAP_ENTRY*;

HANDLE WINAPI HeapCreate(DWORD options, SIZE_T initial, SIZE_T maximum);
BOOL WINAPI HeapDestroy(HANDLE heap);
LPVOID WINAPI HeapAlloc(HANDLE heap, DWORD flags, SIZE_T size);
BOOL WINAPI HeapFree(HANDLE heap, DWORD flags, LPVOID block);
BOOL WINAPI HeapLock(HANDLE heap);
BOOL WINAPI HeapUnlock(HANDLE heap);
BOOL WINAPI HeapWalk(HANDLE heap, LPPROCESS_HEAP_ENTRY entry);

struct MEMORYSTATUS {
    DWORD dwLength, dwMemoryLoad;
    SIZE_T dwTotalPhys, dwAvailPhys, dwTotalPageFile, dwAvailPageFile, dwTotalVirtual, dwAvailVirtual;
};
using LPMEMORYSTATUS = MEMORYSTATUS*;
HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size);
HGLOBAL WINAPI GlobalFree(HGLOBAL block);
LPVOID WINAPI GlobalLock(HGLOBAL block);
BOOL WINAPI GlobalUnlock(HGLOBAL block);
SIZE_T WINAPI GlobalSize(HGLOBAL block);
VOID WINAPI GlobalMemoryStatus(LPMEMORYSTATUS status);

// ---- Environment ----
DWORD WINAPI GetEnvironmentVariableW(LPCWSTR name, LPWSTR buffer, DWORD size);
BOOL WINAPI SetEnvironmentVariableW(LPCWSTR name, LPCWSTR text);
