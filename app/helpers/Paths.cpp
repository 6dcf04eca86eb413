#include "app/helpers/Paths.h"

#include <shlwapi.h>

namespace helpers {

using base::String;
using base::StringView;

namespace {

constexpr StringView forbiddenInPath = TEXT("/*?<>|\"\n\r");
constexpr StringView forbiddenInFileName = TEXT("\\/:*?<>|\"\n\r");
constexpr StringView longPathPrefix = TEXT("\\\\?\\");

String appPath;     // ends in a backslash
String appExeName;  // without folder and extension

/// Windows cuts a name that is longer than the buffer and returns the buffer's size; then it is asked again with more room.
String ModuleFileName(DWORD room)
{
    constexpr DWORD longestPath = 32767;
    for (String name;; room *= 2) {
        name.resize(room);
        name.resize(GetModuleFileNameW(nullptr, name.data(), room));
        if (name.size() < room || room > longestPath)
            return name;
    }
}

bool HasDotAtEitherEnd(StringView text)
{
    return text.front() == TEXT('.') || text.back() == TEXT('.');
}

}  // namespace

String GetAppPath()
{
    if (appPath.empty())
        appPath = GetFolderFromPath(ModuleFileName(260));
    return appPath;
}

String GetAppExeName()
{
    if (appExeName.empty()) {
        String module = ModuleFileName(519);
        WCHAR* const file = PathFindFileNameW(module.data());
        PathRemoveExtensionW(file);
        appExeName = file;
    }
    return appExeName;
}

void ForgetPaths()
{
    appPath.clear();
    appExeName.clear();
}

String GetFolderFromPath(StringView path)
{
    String folder = base::Trim(path);
    if (const auto backslash = folder.rfind(TEXT('\\')); backslash != String::npos)
        folder.resize(backslash + 1);
    return folder;
}

bool FileExists(StringView path)
{
    const String trimmed = base::Trim(path);
    return !trimmed.empty() && PathFileExistsW(trimmed.c_str()) == TRUE && !PathIsDirectoryW(trimmed.c_str());
}

bool FolderExists(StringView path)
{
    const String trimmed = base::Trim(path);
    return !trimmed.empty() && PathIsDirectoryW(trimmed.c_str());
}

bool IsValidFileName(StringView name)
{
    const String trimmed = base::Trim(name);
    return !trimmed.empty() && !HasDotAtEitherEnd(trimmed) && trimmed.find_first_of(forbiddenInFileName) == String::npos;
}

bool IsValidPath(StringView path)
{
    String trimmed = base::Trim(path);
    if (trimmed.size() > longPathPrefix.size() && trimmed.starts_with(longPathPrefix))
        trimmed.erase(0, longPathPrefix.size());
    if (trimmed.empty() || HasDotAtEitherEnd(trimmed) || trimmed.find_first_of(forbiddenInPath) != String::npos)
        return false;
    if (trimmed.front() != TEXT('\\') && trimmed.find(TEXT(":\\")) == String::npos)
        return false;
    // A path that ends in a backslash comes back from PathFindFileNameW with that backslash, or whole when it is a root: neither is a file
    // name.
    return IsValidFileName(PathFindFileNameW(trimmed.c_str()));
}

}  // namespace helpers
