// Sids: the identifiers of the groups that this PC knows.
#pragma once

#include <windows.h>

#include <array>

namespace platform {

// S-1-5-32-544 and S-1-5-32-545: the groups of administrators and of users.
using Sid = std::array<BYTE, 16>;
inline constexpr Sid kAdministrators = {1, 2, 0, 0, 0, 0, 0, 5, 32, 0, 0, 0, 0x20, 2, 0, 0};
inline constexpr Sid kUsers = {1, 2, 0, 0, 0, 0, 0, 5, 32, 0, 0, 0, 0x21, 2, 0, 0};

}  // namespace platform
