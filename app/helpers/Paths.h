// Paths: where the program lives, and tests of file and folder paths. Every path is trimmed of blanks first.
#pragma once

#include "base/String.h"

namespace helpers {

/// Folder of the running module, ending in a backslash. Cached until `ForgetPaths`.
base::String GetAppPath();

/// File name of the running module without folder and extension. Cached until `ForgetPaths`.
base::String GetAppExeName();

void ForgetPaths();

/// The path up to and including its last backslash; the path itself when it has none.
base::String GetFolderFromPath(base::StringView path);

/// True for an existing file, false for a folder, a missing path and an empty one.
/// https://learn.microsoft.com/windows/win32/api/shlwapi/nf-shlwapi-pathfileexistsw
bool FileExists(base::StringView path);

/// True for an existing folder. https://learn.microsoft.com/windows/win32/api/shlwapi/nf-shlwapi-pathisdirectoryw
bool FolderExists(base::StringView path);

/// True for a name that is not empty, neither begins nor ends with "." and holds no character that Windows forbids in file names.
bool IsValidFileName(base::StringView name);

/// True for a path from a root (`C:\...`, `\...`, `\\server\...`, each also behind `\\?\`) whose last component is a valid file name.
/// A bare relative name is not valid.
bool IsValidPath(base::StringView path);

}  // namespace helpers
