#include "app/helpers/FileAccess.h"

#include "app/helpers/Paths.h"
#include "base/Handles.h"

#include <array>
#include <vector>

namespace helpers {

using base::String;
using base::StringView;

namespace {

DWORD AccessMask(int code, bool isFolder)
{
    constexpr DWORD readFolder = FILE_LIST_DIRECTORY | FILE_READ_EA;
    constexpr DWORD writeFolder = FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY;
    switch (code) {
        case ReadAccess:
            return isFolder ? readFolder : FILE_GENERIC_READ;
        case WriteAccess:
            return isFolder ? writeFolder : FILE_GENERIC_WRITE;
        case ReadAndWriteAccess:
            return isFolder ? readFolder | writeFolder : FILE_GENERIC_READ | FILE_GENERIC_WRITE;
        default:
            return static_cast<DWORD>(code);
    }
}

/// `C:\` or `\\server\share\`; empty for a path without a root.
String RootOf(const String& path)
{
    if (path.starts_with(TEXT("\\\\"))) {
        std::size_t end = 1;
        for (int backslash = 3; backslash <= 4; ++backslash) {
            end = path.find(TEXT('\\'), end + 1);
            if (end == String::npos)
                return path + TEXT('\\');
        }
        return path.substr(0, end + 1);
    }
    return path.find(TEXT(":\\")) == 1 ? path.substr(0, 3) : String();
}

bool HasAccessControl(const String& root)
{
    DWORD flags = 0;
    GetVolumeInformationW(root.c_str(), nullptr, 0, nullptr, nullptr, &flags, nullptr, 0);
    return flags & FILE_PERSISTENT_ACLS;
}

/// The path's owner, group and discretionary list; empty when they cannot be read.
std::vector<BYTE> SecurityOf(const String& path)
{
    constexpr SECURITY_INFORMATION wanted = OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    DWORD size = 0;
    if (GetFileSecurityW(path.c_str(), wanted, nullptr, 0, &size) || GetLastError() != ERROR_INSUFFICIENT_BUFFER)
        return {};
    std::vector<BYTE> descriptor(size);
    if (!GetFileSecurityW(path.c_str(), wanted, descriptor.data(), size, &size))
        return {};
    return descriptor;
}

/// The process's token in which the group of the administrators counts only where it is denied something.
/// https://learn.microsoft.com/windows/win32/api/securitybaseapi/nf-securitybaseapi-createrestrictedtoken
base::KernelHandle OrdinaryToken()
{
    base::KernelHandle own, ordinary, token;
    BYTE administrators[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof administrators;
    SID_AND_ATTRIBUTES denied{administrators, 0};
    if (CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators, &size) &&
        OpenProcessToken(GetCurrentProcess(), TOKEN_DUPLICATE | TOKEN_QUERY, own.Receive()) &&
        CreateRestrictedToken(own.Get(), DISABLE_MAX_PRIVILEGE, 1, &denied, 0, nullptr, 0, nullptr, ordinary.Receive()))
        DuplicateToken(ordinary.Get(), SecurityIdentification, token.Receive());
    return token;
}

PathAccess Check(std::vector<BYTE>& descriptor, DWORD mask, const base::KernelHandle& token)
{
    if (!token)
        return PathAccess::Failed;
    GENERIC_MAPPING mapping = {FILE_GENERIC_READ, FILE_GENERIC_WRITE, FILE_GENERIC_EXECUTE, FILE_ALL_ACCESS};
    MapGenericMask(&mask, &mapping);
    alignas(PRIVILEGE_SET) std::array<BYTE, 32> privileges{};
    DWORD privilegesSize = static_cast<DWORD>(privileges.size());
    DWORD grantedMask = 0;
    BOOL status = FALSE;
    AccessCheck(descriptor.data(), token.Get(), mask, &mapping, reinterpret_cast<PRIVILEGE_SET*>(privileges.data()), &privilegesSize,
                &grantedMask, &status);
    return status ? PathAccess::Granted : PathAccess::Denied;
}

/// AccessCheck takes an impersonation token only, which a process gets by impersonating itself.
PathAccess CheckImpersonating(std::vector<BYTE>& descriptor, DWORD mask)
{
    if (!ImpersonateSelf(SecurityDelegation))
        return PathAccess::Failed;
    base::KernelHandle token;
    OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, TRUE, token.Receive());
    const PathAccess result = Check(descriptor, mask, token);
    token.Reset();
    RevertToSelf();
    return result;
}

}  // namespace

PathAccess CheckPathAccess(StringView path, int code, bool isFolder, Asker asker)
{
    String target = base::Trim(path);
    if (isFolder && !target.ends_with(TEXT('\\')))
        target += TEXT('\\');
    const String root = RootOf(target);
    if (root.empty())
        return PathAccess::Failed;
    if (!HasAccessControl(root))
        return PathAccess::NoAccessControl;
    std::vector<BYTE> descriptor = SecurityOf(target);
    if (descriptor.empty())
        return PathAccess::Failed;
    const DWORD mask = AccessMask(code, isFolder);
    return asker == Asker::CurrentUser ? CheckImpersonating(descriptor, mask) : Check(descriptor, mask, OrdinaryToken());
}

PathAccess CheckFolderAccess(StringView folder, int code)
{
    return FolderExists(folder) ? CheckPathAccess(folder, code, true) : PathAccess::Missing;
}

}  // namespace helpers
