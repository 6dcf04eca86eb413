// SystemSecurity: switches privileges of the process's own token on and off, and puts the debug privilege back.
#pragma once

#include "base/String.h"

#include <cstdint>

namespace toolkit {

/// States and requests: 1 enabled, 0 disabled, -1 only read (as a request) or failure (as a result).
/// https://learn.microsoft.com/windows/win32/api/securitybaseapi/nf-securitybaseapi-adjusttokenprivileges
class SystemSecurity {
public:
    /// Switches a privilege by its number; the state before, or -1.
    static std::int32_t SetPrivilegeEx(std::int32_t In_PrivilegeNumber, bool In_Enabled);

    /// 1 done, 0 when the token does not hold the privilege or the change was refused, -1 when the token, the name or the adjustment
    /// failed. `Out_PreviousValue` is filled in as soon as the state could be read.
    static std::int32_t SetPrivilege(base::StringView In_Privilegio, std::int32_t In_Value, std::int32_t& Out_PreviousValue);

    /// The privilege's state, or -1. The token stays as it is.
    static std::int32_t GetPrivilege(base::StringView In_Privilegio);
    static std::int16_t GetDebugPrivilege();

    /// 1 when done, else 0. `RestoreDebugPrivilege` goes back to the state before the last `SetDebugPrivilege`.
    std::uint8_t SetDebugPrivilege(std::int32_t In_Value);
    std::uint8_t RestoreDebugPrivilege() const;
    /// The state before the last `SetDebugPrivilege` that could read it, 0 at first.
    [[nodiscard]] std::int32_t PreviousDebugPrivilege() const { return previousDebugPrivilege_; }

private:
    std::int32_t previousDebugPrivilege_ = 0;
};

}  // namespace toolkit
