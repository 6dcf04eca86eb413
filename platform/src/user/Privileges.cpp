// Tokens and their privileges. https://learn.microsoft.com/windows/win32/api/securitybaseapi/
#include "platform/sim/Users.h"
#include "platform/src/core/Gate.h"
#include "platform/src/text/Buffers.h"
#include "platform/src/user/Token.h"

#include <windows.h>

#include <cstring>

namespace platform {

std::shared_ptr<Token> FindToken(HANDLE handle, DWORD access)
{
    SimPc& pc = SimPc::Current();
    const auto opened = pc.Handles().Find<Token>(handle);
    if (!opened || !opened->Grants(access))
        return pc.Fail(opened ? ERROR_ACCESS_DENIED : ERROR_INVALID_HANDLE, std::shared_ptr<Token>());
    return opened;
}

}  // namespace platform

using namespace platform;

namespace {

constexpr NTSTATUS kNoToken = static_cast<NTSTATUS>(0xC000007Cu);
constexpr NTSTATUS kPrivilegeNotHeld = static_cast<NTSTATUS>(0xC0000061u);
constexpr NTSTATUS kAccessDenied = static_cast<NTSTATUS>(0xC0000022u);

DWORD AttributesOf(const Users::Privilege& privilege)
{
    return (privilege.enabled ? SE_PRIVILEGE_ENABLED : 0u) | (privilege.enabledByDefault ? SE_PRIVILEGE_ENABLED_BY_DEFAULT : 0u);
}

DWORD SizeFor(std::size_t privileges)
{
    return static_cast<DWORD>(offsetof(TOKEN_PRIVILEGES, Privileges) + privileges * sizeof(LUID_AND_ATTRIBUTES));
}

}  // namespace

BOOL WINAPI ImpersonateSelf(SECURITY_IMPERSONATION_LEVEL level)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, level);
    SimPc::Current().Get<Users>().Impersonation(level);
    return TRUE;
}

BOOL WINAPI RevertToSelf()
{
    SIM_NOTE();
    SimPc::Current().Get<Users>().Impersonation(std::nullopt);
    return TRUE;
}

BOOL WINAPI LookupPrivilegeValueW(LPCWSTR system, LPCWSTR name, PLUID value)
{
    SIM_CALL(FALSE, ERROR_NO_SUCH_PRIVILEGE, system, name);
    SimPc& pc = SimPc::Current();
    if (!OrEmpty(system).empty()) {
        pc.Unsupported("LookupPrivilegeValueW on another computer");
        return FALSE;
    }
    const std::optional<DWORD> number = Users::PrivilegeNumber(OrEmpty(name));
    if (!number)
        return pc.Fail(ERROR_NO_SUCH_PRIVILEGE, FALSE);
    *value = {*number, 0};
    return TRUE;
}

BOOL WINAPI AdjustTokenPrivileges(HANDLE token, BOOL disableAll, PTOKEN_PRIVILEGES wanted, DWORD size, PTOKEN_PRIVILEGES previous,
                                  PDWORD needed)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, token, disableAll, size);
    SimPc& pc = SimPc::Current();
    const auto opened = FindToken(token, TOKEN_ADJUST_PRIVILEGES | (previous ? TOKEN_QUERY : 0u));
    if (!opened)
        return FALSE;
    if (disableAll || !wanted) {
        pc.Unsupported("AdjustTokenPrivileges for all privileges");
        return FALSE;
    }

    // Only privileges whose state really changes are reported in `previous`.
    Users& users = pc.Get<Users>();
    std::vector<LUID_AND_ATTRIBUTES> changes;
    bool allHeld = true;
    for (DWORD index = 0; index < wanted->PrivilegeCount; ++index) {
        const LUID_AND_ATTRIBUTES& request = wanted->Privileges[index];
        const Users::Privilege* held = request.Luid.HighPart == 0 ? users.Held(request.Luid.LowPart) : nullptr;
        allHeld = allHeld && held;
        if (held &&
            (held->enabled != ((request.Attributes & SE_PRIVILEGE_ENABLED) != 0) || (request.Attributes & SE_PRIVILEGE_REMOVED) != 0))
            changes.push_back(request);
    }
    if (previous) {
        const DWORD whole = SizeFor(changes.size());
        if (needed)
            *needed = whole;
        if (size < whole)
            return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
        previous->PrivilegeCount = static_cast<DWORD>(changes.size());
    }
    for (std::size_t index = 0; index < changes.size(); ++index) {
        const LUID_AND_ATTRIBUTES request = changes[index];
        Users::Privilege& held = *users.Held(request.Luid.LowPart);
        if (previous)
            previous->Privileges[index] = {request.Luid, AttributesOf(held)};
        held.enabled = (request.Attributes & SE_PRIVILEGE_ENABLED) != 0;
        if ((request.Attributes & SE_PRIVILEGE_REMOVED) != 0)
            std::erase_if(users.Privileges(), [&](const Users::Privilege& entry) { return entry.number == request.Luid.LowPart; });
    }
    pc.LastError(allHeld ? ERROR_SUCCESS : ERROR_NOT_ALL_ASSIGNED);
    return TRUE;
}

BOOL WINAPI GetTokenInformation(HANDLE token, TOKEN_INFORMATION_CLASS kind, LPVOID buffer, DWORD size, PDWORD needed)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, token, kind, size);
    SimPc& pc = SimPc::Current();
    const auto opened = FindToken(token, TOKEN_QUERY);
    if (!opened)
        return FALSE;
    Users& users = pc.Get<Users>();
    if (kind != TokenPrivileges && kind != TokenElevation) {
        pc.Unsupported("GetTokenInformation: class " + std::to_string(kind));
        return FALSE;
    }
    const DWORD whole = kind == TokenPrivileges ? SizeFor(users.Privileges().size()) : static_cast<DWORD>(sizeof(TOKEN_ELEVATION));
    *needed = whole;
    if (!buffer || size < whole)
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, FALSE);
    if (kind == TokenElevation) {
        static_cast<TOKEN_ELEVATION*>(buffer)->TokenIsElevated = users.Administrator();
        return TRUE;
    }
    auto* const privileges = static_cast<TOKEN_PRIVILEGES*>(buffer);
    privileges->PrivilegeCount = static_cast<DWORD>(users.Privileges().size());
    for (std::size_t index = 0; index < users.Privileges().size(); ++index)
        privileges->Privileges[index] = {{users.Privileges()[index].number, 0}, AttributesOf(users.Privileges()[index])};
    return TRUE;
}

/// Exported by ntdll; the SDK leaves its declaration to those who call it.
extern "C" NTSTATUS WINAPI RtlAdjustPrivilege(ULONG privilege, BOOLEAN enable, BOOLEAN threadToken, PBOOLEAN wasEnabled);
extern "C" NTSTATUS WINAPI RtlAdjustPrivilege(ULONG privilege, BOOLEAN enable, BOOLEAN threadToken, PBOOLEAN wasEnabled)
{
    SIM_CALL(kAccessDenied, ERROR_ACCESS_DENIED, privilege, enable, threadToken);
    Users& users = SimPc::Current().Get<Users>();
    if (threadToken && !users.Impersonation())
        return kNoToken;
    Users::Privilege* held = users.Held(privilege);
    if (!held)
        return kPrivilegeNotHeld;
    *wasEnabled = held->enabled;
    held->enabled = enable != 0;
    return 0;
}
