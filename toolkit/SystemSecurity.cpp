#include "toolkit/SystemSecurity.h"

#include "base/SystemExport.h"

#include <optional>
#include <vector>

namespace toolkit {

using base::String;
using base::StringView;

namespace {

constexpr StringView debugPrivilege = TEXT("SeDebugPrivilege");

/// The privilege's attributes in the token, 0 when the token does not hold it. Asking the token, unlike adjusting and putting back, never
/// changes it.
std::optional<DWORD> AttributesOf(HANDLE token, const LUID& privilege)
{
    DWORD size = 0;
    if (GetTokenInformation(token, TokenPrivileges, nullptr, 0, &size) || GetLastError() != ERROR_INSUFFICIENT_BUFFER)
        return std::nullopt;
    std::vector<DWORD> buffer(size / sizeof(DWORD) + 1);
    if (!GetTokenInformation(token, TokenPrivileges, buffer.data(), size, &size))
        return std::nullopt;
    const auto* const held = reinterpret_cast<const TOKEN_PRIVILEGES*>(buffer.data());
    for (DWORD i = 0; i < held->PrivilegeCount; ++i) {
        const LUID_AND_ATTRIBUTES& entry = held->Privileges[i];
        if (entry.Luid.LowPart == privilege.LowPart && entry.Luid.HighPart == privilege.HighPart)
            return entry.Attributes;
    }
    return DWORD{0};
}

std::int32_t Adjust(HANDLE token, const LUID& privilege, DWORD attributes)
{
    TOKEN_PRIVILEGES wanted{};
    wanted.PrivilegeCount = 1;
    wanted.Privileges[0].Luid = privilege;
    wanted.Privileges[0].Attributes = attributes;
    TOKEN_PRIVILEGES previous{};
    DWORD size = 0;
    if (!AdjustTokenPrivileges(token, FALSE, &wanted, sizeof wanted, &previous, &size))
        return -1;
    // The call also succeeds for a privilege that the token lacks; only the last error tells (ERROR_NOT_ALL_ASSIGNED).
    return GetLastError() == ERROR_SUCCESS ? 1 : 0;
}

}  // namespace

std::int32_t SystemSecurity::SetPrivilegeEx(std::int32_t In_PrivilegeNumber, bool In_Enabled)
{
    const base::SystemExport<LONG WINAPI(ULONG, BOOLEAN, BOOLEAN, BOOLEAN*)> adjust(TEXT("ntdll.dll"), "RtlAdjustPrivilege");
    BOOLEAN previous = FALSE;
    if (!adjust ||
        adjust(static_cast<ULONG>(In_PrivilegeNumber), static_cast<BOOLEAN>(In_Enabled), static_cast<BOOLEAN>(FALSE), &previous) != 0)
        return -1;
    return previous ? 1 : 0;
}

std::int32_t SystemSecurity::SetPrivilege(StringView In_Privilegio, std::int32_t In_Value, std::int32_t& Out_PreviousValue)
{
    base::KernelHandle token;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, token.Receive()))
        return -1;
    LUID privilege{};
    if (!LookupPrivilegeValueW(TEXT(""), String(In_Privilegio).c_str(), &privilege))
        return -1;
    const std::optional<DWORD> attributes = AttributesOf(token.Get(), privilege);
    if (!attributes)
        return -1;
    Out_PreviousValue = *attributes & SE_PRIVILEGE_ENABLED ? 1 : 0;
    if (In_Value == -1 || In_Value == Out_PreviousValue)
        return 1;
    const DWORD others = *attributes & ~static_cast<DWORD>(SE_PRIVILEGE_ENABLED);
    return Adjust(token.Get(), privilege, In_Value == 1 ? others | SE_PRIVILEGE_ENABLED : others);
}

std::int32_t SystemSecurity::GetPrivilege(StringView In_Privilegio)
{
    std::int32_t state = -1;
    return SetPrivilege(In_Privilegio, -1, state) == 1 ? state : -1;
}

std::int16_t SystemSecurity::GetDebugPrivilege()
{
    return static_cast<std::int16_t>(GetPrivilege(debugPrivilege));
}

std::uint8_t SystemSecurity::SetDebugPrivilege(std::int32_t In_Value)
{
    return SetPrivilege(debugPrivilege, In_Value, previousDebugPrivilege_) == 1;
}

std::uint8_t SystemSecurity::RestoreDebugPrivilege() const
{
    std::int32_t discarded = 0;
    return SetPrivilege(debugPrivilege, previousDebugPrivilege_, discarded) == 1;
}

}  // namespace toolkit
