// The local security authority as the Windows SDK names it: rights of accounts.
#pragma once

#include "windef.h"
#include "winnt.h"

using LSA_HANDLE = PVOID;
using PLSA_HANDLE = LSA_HANDLE*;

struct LSA_UNICODE_STRING {
    USHORT Length, MaximumLength;  // in bytes
    LPWSTR Buffer;
};
using PLSA_UNICODE_STRING = LSA_UNICODE_STRING*;

struct LSA_OBJECT_ATTRIBUTES {
    ULONG Length;
    HANDLE RootDirectory;
    PLSA_UNICODE_STRING ObjectName;
    ULONG Attributes;
    PVOID SecurityDescriptor, SecurityQualityOfService;
};
using PLSA_OBJECT_ATTRIBUTES = LSA_OBJECT_ATTRIBUTES*;

#define POLICY_CREATE_ACCOUNT 0x00000010
#define POLICY_LOOKUP_NAMES 0x00000800

NTSTATUS WINAPI LsaOpenPolicy(PLSA_UNICODE_STRING system, PLSA_OBJECT_ATTRIBUTES attributes, ACCESS_MASK access, PLSA_HANDLE policy);
NTSTATUS WINAPI LsaAddAccountRights(LSA_HANDLE policy, PSID account, PLSA_UNICODE_STRING rights, ULONG count);
NTSTATUS WINAPI LsaClose(LSA_HANDLE object);
