// Users: who sits before the stand-in PC, what they may do, and the accounts that the PC knows.
#pragma once

#include "platform/sim/SimPc.h"

#include <winnt.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class Users : public Area {
public:
    explicit Users(SimPc& pc);

    /// Whether the user is an administrator with full rights (true). Changing it gives the program a fresh token.
    [[nodiscard]] bool Administrator() const { return administrator_; }
    void Administrator(bool yes);

    /// The user's name ("Anna").
    [[nodiscard]] const std::u16string& Name() const { return name_; }
    void Name(std::u16string_view name) { name_ = name; }
    /// The domain that the user is logged on to ("OFFICE"); empty: NetWkstaUserGetInfo tells an empty one.
    [[nodiscard]] const std::u16string& LogonDomain() const { return logonDomain_; }
    void LogonDomain(std::u16string_view domain) { logonDomain_ = domain; }
    [[nodiscard]] const std::u16string& ComputerName() const { return computerName_; }

    /// Makes an account known, "DOMAIN\name" or ".\name" for one of this PC. The user's own account is known from the start, password
    /// "secret".
    void AddAccount(std::u16string_view account, std::u16string_view password);
    [[nodiscard]] bool KnowsAccount(std::u16string_view account) const;
    [[nodiscard]] bool PasswordFits(std::u16string_view account, std::u16string_view password) const;
    /// Whether a service can be started with it: built-in accounts can, others once they have the right "SeServiceLogonRight".
    [[nodiscard]] bool MayLogOnAsService(std::u16string_view account) const;

    /// What the functions for accounts work on.
    struct Account {
        std::u16string domain;
        DWORD number = 0;
        bool builtIn = false;
    };
    /// An account by its name, of this PC first when no domain is named.
    [[nodiscard]] std::optional<Account> Lookup(std::u16string_view name) const;
    void Grant(DWORD number, std::u16string_view right);

    /// A privilege in the program's token.
    struct Privilege {
        DWORD number;
        bool enabled;
        bool enabledByDefault;
    };
    [[nodiscard]] std::vector<Privilege>& Privileges() { return privileges_; }
    /// The entry of a privilege by its number, or null when the token does not hold it.
    [[nodiscard]] Privilege* Held(DWORD number);
    [[nodiscard]] bool Enabled(std::u16string_view privilege);
    /// Number of a privilege name, empty for an unknown one.
    [[nodiscard]] static std::optional<DWORD> PrivilegeNumber(std::u16string_view name);

    /// Whether the program's thread acts through ImpersonateSelf, and how far.
    [[nodiscard]] std::optional<SECURITY_IMPERSONATION_LEVEL> Impersonation() const { return impersonation_; }
    void Impersonation(std::optional<SECURITY_IMPERSONATION_LEVEL> level) { impersonation_ = level; }

private:
    [[nodiscard]] std::u16string FullName(std::u16string_view account) const;
    void FillPrivileges();

    bool administrator_ = true;
    std::u16string name_ = u"Anna";
    std::u16string logonDomain_ = u"OFFICE";
    std::u16string computerName_ = u"STUDIO";
    struct Logon {
        std::u16string password;
        DWORD number = 0;
        std::vector<std::u16string> rights;
    };
    std::map<std::u16string, Logon> accounts_;  // by upper-cased full name
    std::vector<Privilege> privileges_;
    std::optional<SECURITY_IMPERSONATION_LEVEL> impersonation_;
};

}  // namespace platform
