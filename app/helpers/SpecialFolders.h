// SpecialFolders: the folders that Windows knows by number, and the program's own folder among the user's data.
#pragma once

#include "base/String.h"

namespace helpers {

/// Numbers beyond the CSIDL ones that `GetSpecialFolder` answers itself.
constexpr int temporaryFolder = 12;

/// Path of a folder by its CSIDL number, or empty. `keepSystem32` false turns System32 into Sysnative for a 32-bit process on 64-bit
/// Windows, so that it reaches the real system folder.
/// https://learn.microsoft.com/windows/win32/api/shlobj_core/nf-shlobj_core-shgetspecialfolderpathw
base::String GetSpecialFolder(int id, bool addTrailingBackslash, bool keepSystem32);

/// The program's folder in the roaming application data, ending in a backslash; empty when it is missing and `create` is false or creating
/// it fails. Cached, once it exists, until `ForgetUserDataFolder`.
base::String GetUserDataFolder(bool create);

void ForgetUserDataFolder();

}  // namespace helpers
