// Accounts by name and identifier, and the rights that the local security authority gives them.
#include "platform/sim/Users.h"
#include "platform/src/core/Gate.h"
#include "platform/src/text/Buffers.h"
#include "platform/src/user/Sids.h"

#include <ntsecapi.h>
#include <windows.h>

#include <cstring>

using namespace platform;

namespace {

constexpr NTSTATUS kAccessDenied = static_cast<NTSTATUS>(0xC0000022);
constexpr NTSTATUS kInvalidParameter = static_cast<NTSTATUS>(0xC000000D);

struct Policy : Object {};

/// An identifier with one sub-authority, the number that this PC keeps the account by.
struct Identifier {
    BYTE revision = 1, subAuthorities = 1, authority[6] = {0, 0, 0, 0, 0, 5};
    DWORD number = 0;
};

}  // namespace

BOOL WINAPI LookupAccountNameW(LPCWSTR system, LPCWSTR account, PSID sid, LPDWORD sidSize, LPWSTR domain, LPDWORD domainLength,
                               PSID_NAME_USE use)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, system, account);
    SimPc& pc = SimPc::Current();
    const std::optional<Users::Account> found = pc.Get<Users>().Lookup(OrEmpty(account));
    if (!found)
        return pc.Fail(ERROR_NONE_MAPPED, FALSE);
    const bool fits = *sidSize >= sizeof(Identifier) && *domainLength > found->domain.size();
    *sidSize = sizeof(Identifier);
    *domainLength = static_cast<DWORD>(found->domain.size() + (fits ? 0 : 1));
    if (!fits)
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    Identifier identifier;
    identifier.number = found->number;
    std::memcpy(sid, &identifier, sizeof identifier);
    CopyCut(found->domain, domain, static_cast<DWORD>(found->domain.size() + 1));
    *use = found->builtIn ? SidTypeWellKnownGroup : SidTypeUser;
    return TRUE;
}

BOOL WINAPI CreateWellKnownSid(WELL_KNOWN_SID_TYPE kind, PSID domain, PSID sid, DWORD* size)
{
    SIM_CALL(FALSE, ERROR_INVALID_PARAMETER, static_cast<int>(kind));
    SimPc& pc = SimPc::Current();
    if (kind != WinBuiltinAdministratorsSid || domain || *size < kAdministrators.size())
        return pc.Fail(ERROR_INVALID_PARAMETER, FALSE);
    std::memcpy(sid, kAdministrators.data(), kAdministrators.size());
    *size = static_cast<DWORD>(kAdministrators.size());
    return TRUE;
}

NTSTATUS WINAPI LsaOpenPolicy(PLSA_UNICODE_STRING system, PLSA_OBJECT_ATTRIBUTES attributes, ACCESS_MASK access, PLSA_HANDLE policy)
{
    SIM_CALL(kAccessDenied, ERROR_ACCESS_DENIED, access);
    SimPc& pc = SimPc::Current();
    if (system || attributes->Length != sizeof *attributes)
        return kInvalidParameter;
    if (!pc.Get<Users>().Administrator())
        return kAccessDenied;
    *policy = AsHandle<LSA_HANDLE>(pc.Handles().Open(std::make_shared<Policy>()));
    return 0;
}

NTSTATUS WINAPI LsaAddAccountRights(LSA_HANDLE policy, PSID account, PLSA_UNICODE_STRING rights, ULONG count)
{
    SIM_CALL(kAccessDenied, ERROR_ACCESS_DENIED, count);
    SimPc& pc = SimPc::Current();
    if (!pc.Handles().Find<Policy>(policy))
        return kInvalidParameter;
    Identifier identifier;
    std::memcpy(&identifier, account, sizeof identifier);
    for (ULONG i = 0; i < count; ++i)
        pc.Get<Users>().Grant(identifier.number, {rights[i].Buffer, rights[i].Length / sizeof(WCHAR)});
    return 0;
}

NTSTATUS WINAPI LsaClose(LSA_HANDLE object)
{
    SIM_NOTE(object);
    return SimPc::Current().Handles().Close<Policy>(object) ? 0 : kInvalidParameter;
}
