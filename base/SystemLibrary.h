// SystemLibrary: Windows' own libraries, from the system folder and from nowhere else.
#pragma once

#include "base/Handles.h"

namespace base {

/// Loads a library, named with its extension, by its full path in the system folder; the libraries that it needs are searched beside it. A
/// file of that name beside the exe or in the current folder is never looked at. Empty when the system folder has none; GetLastError tells
/// why. https://learn.microsoft.com/windows/win32/dlls/dynamic-link-library-security
[[nodiscard]] ModuleHandle LoadSystemLibrary(const WCHAR* name);

/// From here on Windows, too, searches the system folder only for what is loaded by name alone, by this program or by a library for itself.
/// Where it cannot yet (Windows 7 without its updates), at least the current folder is not searched.
/// https://learn.microsoft.com/windows/win32/api/libloaderapi/nf-libloaderapi-setdefaultdlldirectories
void SearchSystemFolderOnly();

}  // namespace base
