// LogonDomain: the domain, or computer, that the current user is logged on to.
#pragma once

#include "base/String.h"

namespace toolkit {

/// Empty when it cannot be told. https://learn.microsoft.com/windows/win32/api/lmwksta/nf-lmwksta-netwkstausergetinfo
base::String GetLogonDomain();

}  // namespace toolkit
