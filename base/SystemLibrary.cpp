#include "base/SystemLibrary.h"

#include "base/String.h"
#include "base/SystemExport.h"

namespace base {

ModuleHandle LoadSystemLibrary(const WCHAR* name)
{
    WCHAR folder[MAX_PATH];
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
        return {};
    return ModuleHandle(LoadLibraryExW((String(folder, length) + TEXT('\\') + name).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
}

void SearchSystemFolderOnly()
{
    const SystemExport<BOOL WINAPI(DWORD)> setDefaultDirectories(TEXT("kernel32.dll"), "SetDefaultDllDirectories");
    if (!setDefaultDirectories || !setDefaultDirectories(DWORD{LOAD_LIBRARY_SEARCH_SYSTEM32}))
        SetDllDirectoryW(TEXT(""));
}

}  // namespace base
