// LogonRight: the right to log on as a service, which an account needs before a service can start with it.
#pragma once

#include "base/String.h"

namespace app {

/// Gives a user's account, ".\name" or "DOMAIN\name", the right SeServiceLogonRight on this PC, as the platform's own service console does;
/// an account that has it keeps it, and nothing takes it away again. Built-in accounts need none and get none. False when Windows refuses.
/// https://learn.microsoft.com/windows/win32/api/ntsecapi/nf-ntsecapi-lsaaddaccountrights
bool GrantServiceLogon(base::StringView account);

}  // namespace app
