// Sizes and offsets of the system's records as Windows has them.
#include "platform/src/core/Widths.h"

#include <lm.h>
#include <ole2.h>
#include <psapi.h>
#include <shlobj.h>
#include <shlwapi.h>
#include <windows.h>
#include <winsvc.h>
#include <winternl.h>

#include <cstddef>

using platform::Wide;

static_assert(sizeof(LONG) == 4 && sizeof(DWORD) == 4 && sizeof(BOOL) == 4 && sizeof(WCHAR) == 2 && sizeof(HANDLE) == Wide(8, 4));
static_assert(sizeof(LARGE_INTEGER) == 8 && sizeof(LUID) == 8 && sizeof(FILETIME) == 8 && sizeof(GUID) == 16);
static_assert(sizeof(SECURITY_ATTRIBUTES) == Wide(24, 12) && offsetof(SECURITY_ATTRIBUTES, bInheritHandle) == Wide(16, 8));
static_assert(sizeof(LUID_AND_ATTRIBUTES) == 12 && sizeof(TOKEN_PRIVILEGES) == 16 && sizeof(PRIVILEGE_SET) == 20);
static_assert(sizeof(GENERIC_MAPPING) == 16 && sizeof(TOKEN_ELEVATION) == 4);
static_assert(sizeof(SECURITY_DESCRIPTOR_RELATIVE) == 20 && sizeof(ACL) == 8 && sizeof(ACE_HEADER) == 4 &&
              sizeof(ACCESS_ALLOWED_ACE) == 12);
static_assert(sizeof(SID) == 12 && offsetof(SID, SubAuthority) == 8);
static_assert(sizeof(OSVERSIONINFOA) == 148 && offsetof(OSVERSIONINFOA, szCSDVersion) == 20);
static_assert(sizeof(STARTUPINFOW) == Wide(104, 68) && offsetof(STARTUPINFOW, dwFlags) == Wide(60, 44) &&
              offsetof(STARTUPINFOW, wShowWindow) == Wide(64, 48));
static_assert(sizeof(PROCESS_INFORMATION) == Wide(24, 16) && offsetof(PROCESS_INFORMATION, dwProcessId) == Wide(16, 8));
static_assert(sizeof(PROCESS_HEAP_ENTRY) == Wide(40, 28) && offsetof(PROCESS_HEAP_ENTRY, wFlags) == Wide(14, 10) &&
              offsetof(PROCESS_HEAP_ENTRY, Block) == Wide(16, 12));
static_assert(sizeof(MEMORYSTATUS) == Wide(56, 32) && offsetof(MEMORYSTATUS, dwTotalPhys) == 8);
static_assert(sizeof(PROCESS_MEMORY_COUNTERS) == Wide(72, 40) && offsetof(PROCESS_MEMORY_COUNTERS, WorkingSetSize) == Wide(16, 12));
static_assert(sizeof(SYSTEM_BASIC_INFORMATION) == Wide(64, 44) && offsetof(SYSTEM_BASIC_INFORMATION, NumberOfProcessors) == Wide(56, 40));
static_assert(sizeof(SERVICE_STATUS) == 28 && sizeof(SERVICE_DESCRIPTIONW) == Wide(8, 4));
static_assert(sizeof(QUERY_SERVICE_CONFIGW) == Wide(64, 36) && offsetof(QUERY_SERVICE_CONFIGW, lpBinaryPathName) == Wide(16, 12) &&
              offsetof(QUERY_SERVICE_CONFIGW, lpServiceStartName) == Wide(48, 28));
static_assert(sizeof(WKSTA_USER_INFO_1) == Wide(32, 16) && offsetof(WKSTA_USER_INFO_1, wkui1_logon_domain) == Wide(8, 4));
static_assert(sizeof(DLLVERSIONINFO) == 20 && sizeof(DROPFILES) == 20);
static_assert(sizeof(FORMATETC) == Wide(32, 20) && offsetof(FORMATETC, tymed) == Wide(24, 16) && sizeof(STGMEDIUM) == Wide(24, 12));
static_assert(sizeof(VARIANT) == Wide(24, 16) && offsetof(VARIANT, lVal) == 8);
