// FileAccess: asks Windows who may read or write a file or folder.
#pragma once

#include "base/String.h"

namespace helpers {

/// Access codes. Any other number is an access mask itself.
enum AccessCode : int { ReadAccess = -1, WriteAccess = -2, ReadAndWriteAccess = -3 };

enum class PathAccess : int {
    Granted = 1,
    Denied = 0,
    NoAccessControl = -1,  // the volume keeps no access-control lists
    Failed = -2,           // Windows could not be asked
    Missing = -3,
};

enum class Asker {
    CurrentUser,
    OrdinaryUser,  // the current user without an administrator's rights, as the user's other programs run
};

/// `code` is an `AccessCode` or an access mask. Never `Missing`: what does not exist has failed.
/// https://learn.microsoft.com/windows/win32/api/securitybaseapi/nf-securitybaseapi-accesscheck
PathAccess CheckPathAccess(base::StringView path, int code, bool isFolder, Asker asker = Asker::CurrentUser);

/// `Missing` when the folder does not exist, else as `CheckPathAccess`.
PathAccess CheckFolderAccess(base::StringView folder, int code);

}  // namespace helpers
