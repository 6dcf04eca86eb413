#include "platform/sim/Users.h"

#include "platform/src/text/Case.h"

#include <algorithm>
#include <iterator>

namespace platform {

namespace {

struct Known {
    std::u16string_view name;
    DWORD number;
    enum Holder { Nobody, Administrators, Everyone } holder;
    bool enabled;
};
constexpr Known kPrivileges[] = {
    {u"SeCreateTokenPrivilege", 2, Known::Nobody, false},
    {u"SeAssignPrimaryTokenPrivilege", 3, Known::Nobody, false},
    {u"SeLockMemoryPrivilege", 4, Known::Nobody, false},
    {u"SeIncreaseQuotaPrivilege", 5, Known::Administrators, false},
    {u"SeMachineAccountPrivilege", 6, Known::Nobody, false},
    {u"SeTcbPrivilege", 7, Known::Nobody, false},
    {u"SeSecurityPrivilege", 8, Known::Administrators, false},
    {u"SeTakeOwnershipPrivilege", 9, Known::Administrators, false},
    {u"SeLoadDriverPrivilege", 10, Known::Administrators, false},
    {u"SeSystemProfilePrivilege", 11, Known::Administrators, false},
    {u"SeSystemtimePrivilege", 12, Known::Administrators, false},
    {u"SeProfileSingleProcessPrivilege", 13, Known::Administrators, false},
    {u"SeIncreaseBasePriorityPrivilege", 14, Known::Administrators, false},
    {u"SeCreatePagefilePrivilege", 15, Known::Administrators, false},
    {u"SeBackupPrivilege", 17, Known::Administrators, false},
    {u"SeRestorePrivilege", 18, Known::Administrators, false},
    {u"SeShutdownPrivilege", 19, Known::Everyone, false},
    {u"SeDebugPrivilege", 20, Known::Administrators, false},
    {u"SeAuditPrivilege", 21, Known::Nobody, false},
    {u"SeSystemEnvironmentPrivilege", 22, Known::Administrators, false},
    {u"SeChangeNotifyPrivilege", 23, Known::Everyone, true},
    {u"SeRemoteShutdownPrivilege", 24, Known::Administrators, false},
    {u"SeUndockPrivilege", 25, Known::Everyone, false},
    {u"SeManageVolumePrivilege", 28, Known::Administrators, false},
    {u"SeImpersonatePrivilege", 29, Known::Administrators, true},
    {u"SeCreateGlobalPrivilege", 30, Known::Administrators, true},
    {u"SeIncreaseWorkingSetPrivilege", 33, Known::Everyone, false},
    {u"SeTimeZonePrivilege", 34, Known::Everyone, false},
    {u"SeCreateSymbolicLinkPrivilege", 35, Known::Administrators, false},
};

/// Accounts that every Windows has; services may run as these without a password.
constexpr std::u16string_view kBuiltIn[] = {u"LOCALSYSTEM", u".\\LOCALSYSTEM", u"NT AUTHORITY\\LOCALSERVICE",
                                            u"NT AUTHORITY\\NETWORKSERVICE", u"NT AUTHORITY\\SYSTEM"};

bool IsBuiltIn(std::u16string_view account)
{
    const std::u16string upper = UpperCase(account);
    return std::find(std::begin(kBuiltIn), std::end(kBuiltIn), upper) != std::end(kBuiltIn);
}

}  // namespace

Users::Users(SimPc& pc) : Area(pc)
{
    FillPrivileges();
    AddAccount(logonDomain_ + u"\\" + name_, u"secret");
}

void Users::Administrator(bool yes)
{
    administrator_ = yes;
    FillPrivileges();
}

void Users::FillPrivileges()
{
    privileges_.clear();
    for (const Known& known : kPrivileges) {
        if (known.holder == Known::Everyone || (known.holder == Known::Administrators && administrator_))
            privileges_.push_back({known.number, known.enabled, known.enabled});
    }
}

std::u16string Users::FullName(std::u16string_view account) const
{
    if (account.starts_with(u".\\"))
        return UpperCase(computerName_ + std::u16string(account.substr(1)));
    return UpperCase(account);
}

void Users::AddAccount(std::u16string_view account, std::u16string_view password)
{
    Logon& logon = accounts_[FullName(account)];
    logon.password = password;
    logon.number = static_cast<DWORD>(1000 + accounts_.size());
}

bool Users::KnowsAccount(std::u16string_view account) const
{
    return IsBuiltIn(account) || accounts_.contains(FullName(account));
}

bool Users::PasswordFits(std::u16string_view account, std::u16string_view password) const
{
    const auto found = accounts_.find(FullName(account));
    return IsBuiltIn(account) || (found != accounts_.end() && found->second.password == password);
}

bool Users::MayLogOnAsService(std::u16string_view account) const
{
    const auto found = accounts_.find(FullName(account));
    return IsBuiltIn(account) || (found != accounts_.end() && std::ranges::count(found->second.rights, u"SeServiceLogonRight") == 1);
}

std::optional<Users::Account> Users::Lookup(std::u16string_view name) const
{
    if (IsBuiltIn(name))
        return Account{u"NT AUTHORITY", 0, true};
    const std::u16string upper = UpperCase(name);
    const bool qualified = name.find(u'\\') != std::u16string_view::npos;
    for (const std::u16string& wanted : {upper, UpperCase(computerName_) + u'\\' + upper, UpperCase(logonDomain_) + u'\\' + upper}) {
        if (const auto found = accounts_.find(wanted); found != accounts_.end())
            return Account{wanted.substr(0, wanted.find(u'\\')), found->second.number};
        if (qualified)
            break;
    }
    return std::nullopt;
}

void Users::Grant(DWORD number, std::u16string_view right)
{
    for (auto& [name, logon] : accounts_)
        if (logon.number == number)
            logon.rights.emplace_back(right);
}

Users::Privilege* Users::Held(DWORD number)
{
    const auto found = std::find_if(privileges_.begin(), privileges_.end(), [&](const Privilege& held) { return held.number == number; });
    return found == privileges_.end() ? nullptr : &*found;
}

bool Users::Enabled(std::u16string_view privilege)
{
    const std::optional<DWORD> number = PrivilegeNumber(privilege);
    const Privilege* held = number ? Held(*number) : nullptr;
    return held && held->enabled;
}

std::optional<DWORD> Users::PrivilegeNumber(std::u16string_view name)
{
    const auto found =
        std::find_if(std::begin(kPrivileges), std::end(kPrivileges), [&](const Known& known) { return SameName(known.name, name); });
    return found == std::end(kPrivileges) ? std::nullopt : std::optional(found->number);
}

}  // namespace platform
