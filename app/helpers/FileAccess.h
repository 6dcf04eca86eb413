// FileAccess: asks Windows whether the current user may read or write a file or folder.
#pragma once

#include "base/String.h"

namespace helpers {

/// Access codes. Any other number is an access mask itself.
enum AccessCode : int { ReadAccess = -1, WriteAccess = -2, ReadAndWriteAccess = -3 };

/// 1 access granted, 0 denied, -1 the volume has no access-control lists, -2 error. `code` is an `AccessCode` or an access mask.
/// https://learn.microsoft.com/windows/win32/api/securitybaseapi/nf-securitybaseapi-accesscheck
int CheckPathAccess(base::StringView path, int code, bool isFolder);

/// -3 when the folder does not exist, else as `CheckPathAccess`.
int CheckFolderAccess(base::StringView folder, int code);

}  // namespace helpers
