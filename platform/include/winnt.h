// Types and constants of the NT kernel as the Windows SDK names them: access rights, tokens, security, registry types, heaps.
#pragma once

#include "windef.h"

using LPCH = CHAR*;
using SECURITY_INFORMATION = DWORD;
using PSECURITY_DESCRIPTOR = PVOID;
using PSID = PVOID;
#define SECURITY_MAX_SID_SIZE 68
struct SID_AND_ATTRIBUTES {
    PSID Sid;
    DWORD Attributes;
};
using PSID_AND_ATTRIBUTES = SID_AND_ATTRIBUTES*;
enum WELL_KNOWN_SID_TYPE { WinBuiltinAdministratorsSid = 26 };
#define DISABLE_MAX_PRIVILEGE 0x1
enum SID_NAME_USE { SidTypeUser = 1, SidTypeWellKnownGroup = 5, SidTypeUnknown = 8 };
using PSID_NAME_USE = SID_NAME_USE*;
using PACCESS_MASK = ACCESS_MASK*;
using PSECURITY_INFORMATION = SECURITY_INFORMATION*;

union LARGE_INTEGER {
    struct {
        DWORD LowPart;
        LONG HighPart;
    };
    struct {
        DWORD LowPart;
        LONG HighPart;
    } u;
    LONGLONG QuadPart;
};
using PLARGE_INTEGER = LARGE_INTEGER*;

union ULARGE_INTEGER {
    struct {
        DWORD LowPart, HighPart;
    };
    ULONGLONG QuadPart;
};
using PULARGE_INTEGER = ULARGE_INTEGER*;

// Inline in the SDK too; volatile, so that no compiler leaves it out.
inline PVOID SecureZeroMemory(PVOID memory, SIZE_T size)
{
    for (volatile BYTE* byte = static_cast<BYTE*>(memory); size > 0; --size)
        *byte++ = 0;
    return memory;
}

// ---- Access rights ----
#define DELETE 0x00010000
#define READ_CONTROL 0x00020000
#define WRITE_DAC 0x00040000
#define WRITE_OWNER 0x00080000
#define SYNCHRONIZE 0x00100000
#define STANDARD_RIGHTS_READ READ_CONTROL
#define MAXIMUM_ALLOWED 0x02000000
#define GENERIC_READ 0x80000000u
#define GENERIC_WRITE 0x40000000
#define GENERIC_EXECUTE 0x20000000
#define GENERIC_ALL 0x10000000

#define FILE_READ_DATA 0x0001
#define FILE_LIST_DIRECTORY 0x0001
#define FILE_WRITE_DATA 0x0002
#define FILE_ADD_FILE 0x0002
#define FILE_APPEND_DATA 0x0004
#define FILE_ADD_SUBDIRECTORY 0x0004
#define FILE_READ_EA 0x0008
#define FILE_EXECUTE 0x0020
#define FILE_DELETE_CHILD 0x0040
#define FILE_ALL_ACCESS 0x001F01FF
#define FILE_GENERIC_READ 0x00120089
#define FILE_GENERIC_WRITE 0x00120116
#define FILE_GENERIC_EXECUTE 0x001200A0
#define FILE_SHARE_READ 0x00000001
#define FILE_SHARE_WRITE 0x00000002
#define FILE_SHARE_DELETE 0x00000004
#define FILE_ATTRIBUTE_READONLY 0x00000001
#define FILE_ATTRIBUTE_DIRECTORY 0x00000010
#define FILE_ATTRIBUTE_NORMAL 0x00000080
#define FILE_CASE_SENSITIVE_SEARCH 0x00000001
#define FILE_CASE_PRESERVED_NAMES 0x00000002
#define FILE_UNICODE_ON_DISK 0x00000004
#define FILE_PERSISTENT_ACLS 0x00000008

#define PROCESS_TERMINATE 0x0001
#define PROCESS_VM_OPERATION 0x0008
#define PROCESS_VM_READ 0x0010
#define PROCESS_VM_WRITE 0x0020
#define PROCESS_DUP_HANDLE 0x0040
#define PROCESS_SET_QUOTA 0x0100
#define PROCESS_SET_INFORMATION 0x0200
#define PROCESS_QUERY_INFORMATION 0x0400
#define PROCESS_QUERY_LIMITED_INFORMATION 0x1000
#define PROCESS_ALL_ACCESS 0x001FFFFF
#define THREAD_TERMINATE 0x0001
#define THREAD_SUSPEND_RESUME 0x0002
#define THREAD_QUERY_INFORMATION 0x0040
#define THREAD_ALL_ACCESS 0x001FFFFF
#define MUTEX_ALL_ACCESS 0x001F0001

#define KEY_QUERY_VALUE 0x0001
#define KEY_SET_VALUE 0x0002
#define KEY_CREATE_SUB_KEY 0x0004
#define KEY_CREATE_LINK 0x0020
#define KEY_WOW64_64KEY 0x0100
#define KEY_WOW64_32KEY 0x0200
#define KEY_WOW64_RES 0x0300
#define KEY_READ 0x00020019
#define KEY_WRITE 0x00020006
#define KEY_ALL_ACCESS 0x000F003F

#define STATUS_PENDING 0x00000103
#define STILL_ACTIVE STATUS_PENDING
#define WAIT_OBJECT_0 0

// ---- Registry ----
#define REG_NONE 0
#define REG_SZ 1
#define REG_EXPAND_SZ 2
#define REG_BINARY 3
#define REG_DWORD 4
#define REG_MULTI_SZ 7
#define REG_CREATED_NEW_KEY 1
#define REG_OPENED_EXISTING_KEY 2

// ---- Services ----
#define SERVICE_WIN32_OWN_PROCESS 0x00000010
#define SERVICE_WIN32_SHARE_PROCESS 0x00000020
#define SERVICE_INTERACTIVE_PROCESS 0x00000100
#define SERVICE_BOOT_START 0
#define SERVICE_AUTO_START 2
#define SERVICE_DEMAND_START 3
#define SERVICE_DISABLED 4
#define SERVICE_ERROR_NORMAL 1
#define SERVICE_ERROR_CRITICAL 3

// ---- Security ----
#define OWNER_SECURITY_INFORMATION 0x00000001
#define GROUP_SECURITY_INFORMATION 0x00000002
#define DACL_SECURITY_INFORMATION 0x00000004
#define SECURITY_DESCRIPTOR_REVISION 1
#define SE_DACL_PRESENT 0x0004
#define SE_SELF_RELATIVE 0x8000
#define ACL_REVISION 2
#define ACCESS_ALLOWED_ACE_TYPE 0
#define ACCESS_DENIED_ACE_TYPE 1

struct GENERIC_MAPPING {
    ACCESS_MASK GenericRead, GenericWrite, GenericExecute, GenericAll;
};
using PGENERIC_MAPPING = GENERIC_MAPPING*;

struct SECURITY_DESCRIPTOR_RELATIVE {
    BYTE Revision, Sbz1;
    WORD Control;
    DWORD Owner, Group, Sacl, Dacl;
};
struct ACL {
    BYTE AclRevision, Sbz1;
    WORD AclSize, AceCount, Sbz2;
};
struct ACE_HEADER {
    BYTE AceType, AceFlags;
    WORD AceSize;
};
struct ACCESS_ALLOWED_ACE {
    ACE_HEADER Header;
    ACCESS_MASK Mask;
    DWORD SidStart;
};
struct SID_IDENTIFIER_AUTHORITY {
    BYTE Value[6];
};
struct SID {
    BYTE Revision, SubAuthorityCount;
    SID_IDENTIFIER_AUTHORITY IdentifierAuthority;
    DWORD SubAuthority[1];
};

struct LUID_AND_ATTRIBUTES {
    LUID Luid;
    DWORD Attributes;
};
using PLUID_AND_ATTRIBUTES = LUID_AND_ATTRIBUTES*;
struct TOKEN_PRIVILEGES {
    DWORD PrivilegeCount;
    LUID_AND_ATTRIBUTES Privileges[1];
};
using PTOKEN_PRIVILEGES = TOKEN_PRIVILEGES*;
struct PRIVILEGE_SET {
    DWORD PrivilegeCount, Control;
    LUID_AND_ATTRIBUTES Privilege[1];
};
using PPRIVILEGE_SET = PRIVILEGE_SET*;

#define SE_PRIVILEGE_ENABLED_BY_DEFAULT 0x00000001
#define SE_PRIVILEGE_ENABLED 0x00000002
#define SE_PRIVILEGE_REMOVED 0x00000004
#define SE_DEBUG_NAME TEXT("SeDebugPrivilege")

#define TOKEN_DUPLICATE 0x0002
#define TOKEN_QUERY 0x0008
#define TOKEN_ADJUST_PRIVILEGES 0x0020
#define TOKEN_ALL_ACCESS 0x000F01FF

enum SECURITY_IMPERSONATION_LEVEL { SecurityAnonymous, SecurityIdentification, SecurityImpersonation, SecurityDelegation };

enum TOKEN_INFORMATION_CLASS {
    TokenUser = 1,
    TokenGroups,
    TokenPrivileges,
    TokenOwner,
    TokenPrimaryGroup,
    TokenDefaultDacl,
    TokenSource,
    TokenType,
    TokenImpersonationLevel,
    TokenElevationType = 18,
    TokenElevation = 20
};
struct TOKEN_ELEVATION {
    DWORD TokenIsElevated;
};

// ---- Versions ----
#define VER_PLATFORM_WIN32_NT 2

struct OSVERSIONINFOA {
    DWORD dwOSVersionInfoSize, dwMajorVersion, dwMinorVersion, dwBuildNumber, dwPlatformId;
    CHAR szCSDVersion[128];
};
using POSVERSIONINFOA = OSVERSIONINFOA*;
using LPOSVERSIONINFOA = OSVERSIONINFOA*;

// ---- Heaps ----
#define HEAP_NO_SERIALIZE 0x00000001
#define HEAP_ZERO_MEMORY 0x00000008
