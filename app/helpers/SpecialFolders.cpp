#include "app/helpers/SpecialFolders.h"

#include "app/helpers/Paths.h"
#include "base/Wow64.h"

#include <shlobj.h>
#include <shlwapi.h>

#include <array>

namespace helpers {

using base::String;
using base::StringView;

namespace {

using FolderBuffer = std::array<WCHAR, 519>;
constexpr DWORD askedLength = 259;

String userDataFolder;  // ends in a backslash

void Redirect(String& path)
{
    constexpr StringView system32 = TEXT("SYSTEM32");
    if (const auto position = base::ToUpper(path).rfind(system32); position != String::npos)
        path.replace(position, system32.size(), TEXT("Sysnative"));
}

bool CreateFolders(StringView path)
{
    if (FolderExists(path))
        return true;
    const String folder(path.substr(0, path.find_last_not_of(TEXT('\\')) + 1));
    const String parent = GetFolderFromPath(folder);
    return parent != folder && CreateFolders(parent) && CreateDirectoryW(folder.c_str(), nullptr);
}

}  // namespace

String GetSpecialFolder(int id, bool addTrailingBackslash, bool keepSystem32)
{
    FolderBuffer buffer{};
    switch (id) {
        case temporaryFolder:
            GetTempPathW(askedLength, buffer.data());
            break;
        case CSIDL_WINDOWS:
            GetWindowsDirectoryW(buffer.data(), askedLength);
            break;
        case CSIDL_SYSTEM:
            GetSystemDirectoryW(buffer.data(), askedLength);
            break;
        default:
            SHGetSpecialFolderPathW(nullptr, buffer.data(), id, FALSE);
    }
    String path = buffer.data();
    if (path.empty())
        return path;
    if (!keepSystem32 && (id == CSIDL_SYSTEM || id == CSIDL_SYSTEMX86) && base::IsWow64())
        Redirect(path);
    path.resize(buffer.size());
    if (addTrailingBackslash)
        PathAddBackslashW(path.data());
    else
        PathRemoveBackslashW(path.data());
    return base::UpToZero(path);
}

String GetUserDataFolder(bool create)
{
    if (userDataFolder.empty()) {
        const String parent = GetSpecialFolder(CSIDL_APPDATA, true, true);
        if (parent.empty())
            return {};
        const String path = parent + GetAppExeName();
        if (!FolderExists(path) && (!create || !CreateFolders(path)))
            return {};
        userDataFolder = path + TEXT('\\');
    }
    return userDataFolder;
}

void ForgetUserDataFolder()
{
    userDataFolder.clear();
}

}  // namespace helpers
