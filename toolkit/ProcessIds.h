// ProcessIds: which numbers can be process ids.
#pragma once

#include <windows.h>

namespace toolkit {

/// Windows gives ids in steps of 4 and rounds an id that it is asked for down to one, so other numbers would open a stranger.
constexpr bool IsPossiblePid(DWORD process)
{
    return process != 0 && process % 4 == 0;
}

}  // namespace toolkit
