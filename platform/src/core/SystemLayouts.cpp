// Sizes and offsets of the system's records as 64-bit Windows has them.
#include <lm.h>
#include <ole2.h>
#include <psapi.h>
#include <shlobj.h>
#include <shlwapi.h>
#include <windows.h>
#include <winsvc.h>
#include <winternl.h>

#include <cstddef>

static_assert(sizeof(LONG) == 4 && sizeof(DWORD) == 4 && sizeof(BOOL) == 4 && sizeof(WCHAR) == 2 && sizeof(HANDLE) == 8);
static_assert(sizeof(LARGE_INTEGER) == 8 && sizeof(LUID) == 8 && sizeof(FILETIME) == 8 && sizeof(GUID) == 16);
static_assert(sizeof(SECURITY_ATTRIBUTES) == 24 && offsetof(SECURITY_ATTRIBUTES, bInheritHandle) == 16);
static_assert(sizeof(LUID_AND_ATTRIBUTES) == 12 && sizeof(TOKEN_PRIVILEGES) == 16 && sizeof(PRIVILEGE_SET) == 20);
static_assert(sizeof(GENERIC_MAPPING) == 16 && sizeof(TOKEN_ELEVATION) == 4);
static_assert(sizeof(SECURITY_DESCRIPTOR_RELATIVE) == 20 && sizeof(ACL) == 8 && sizeof(ACE_HEADER) == 4 &&
              sizeof(ACCESS_ALLOWED_ACE) == 12);
static_assert(sizeof(SID) == 12 && offsetof(SID, SubAuthority) == 8);
static_assert(sizeof(OSVERSIONINFOA) == 148 && offsetof(OSVERSIONINFOA, szCSDVersion) == 20);
static_assert(sizeof(STARTUPINFOW) == 104 && offsetof(STARTUPINFOW, dwFlags) == 60 && offsetof(STARTUPINFOW, wShowWindow) == 64);
static_assert(sizeof(PROCESS_INFORMATION) == 24 && offsetof(PROCESS_INFORMATION, dwProcessId) == 16);
static_assert(sizeof(PROCESS_HEAP_ENTRY) == 40 && offsetof(PROCESS_HEAP_ENTRY, wFlags) == 14 && offsetof(PROCESS_HEAP_ENTRY, Block) == 16);
static_assert(sizeof(MEMORYSTATUS) == 56 && offsetof(MEMORYSTATUS, dwTotalPhys) == 8);
static_assert(sizeof(PROCESS_MEMORY_COUNTERS) == 72 && offsetof(PROCESS_MEMORY_COUNTERS, WorkingSetSize) == 16);
static_assert(sizeof(SYSTEM_BASIC_INFORMATION) == 64 && offsetof(SYSTEM_BASIC_INFORMATION, NumberOfProcessors) == 56);
static_assert(sizeof(SERVICE_STATUS) == 28 && sizeof(SERVICE_DESCRIPTIONW) == 8);
static_assert(sizeof(QUERY_SERVICE_CONFIGW) == 64 && offsetof(QUERY_SERVICE_CONFIGW, lpBinaryPathName) == 16 &&
              offsetof(QUERY_SERVICE_CONFIGW, lpServiceStartName) == 48);
static_assert(sizeof(WKSTA_USER_INFO_1) == 32 && offsetof(WKSTA_USER_INFO_1, wkui1_logon_domain) == 8);
static_assert(sizeof(DLLVERSIONINFO) == 20 && sizeof(DROPFILES) == 20);
static_assert(sizeof(FORMATETC) == 32 && offsetof(FORMATETC, tymed) == 24 && sizeof(STGMEDIUM) == 24);
