// The shell's path functions: texts only, but for the two that ask the file system. https://learn.microsoft.com/windows/win32/api/shlwapi/
#include "platform/src/core/Gate.h"
#include "platform/src/file/FileTree.h"
#include "platform/src/text/Buffers.h"

#include <shlwapi.h>
#include <windows.h>

#include <algorithm>
#include <cstring>

using namespace platform;

namespace {

bool IsSlash(WCHAR unit)
{
    return unit == u'\\' || unit == u'/';
}

/// "C:\", "\", "\\server", "\\server\share", but not "C:" nor "\\server\".
bool IsRoot(std::u16string_view path)
{
    if (path == u"\\" || (path.size() == 3 && path[1] == u':' && path[2] == u'\\'))
        return true;
    if (!path.starts_with(u"\\\\"))
        return false;
    const std::u16string_view names = path.substr(2);
    const std::size_t slash = names.find(u'\\');
    return slash == std::u16string_view::npos || (slash + 1 < names.size() && names.find(u'\\', slash + 1) == std::u16string_view::npos);
}

}  // namespace

BOOL WINAPI PathFileExistsW(LPCWSTR path)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, path);
    SimPc& pc = SimPc::Current();
    const FileTree::Place place = Files().Find(OrEmpty(path));
    return place.node || pc.Fail(place.error, FALSE);
}

BOOL WINAPI PathIsDirectoryW(LPCWSTR path)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, path);
    // Windows answers with the folder's attribute bit, not with 1.
    return SimPc::Current().Get<Volumes>().IsFolder(OrEmpty(path)) ? FILE_ATTRIBUTE_DIRECTORY : FALSE;
}

LPWSTR WINAPI PathFindFileNameW(LPCWSTR path)
{
    SIM_NOTE(path);
    LPCWSTR name = path;
    for (LPCWSTR place = path; place && *place; ++place) {
        // What follows a separator is a name only when it is not empty and no separator itself: "C:\A\" gives "A\".
        if ((IsSlash(*place) || *place == u':') && place[1] && !IsSlash(place[1]))
            name = place + 1;
    }
    return const_cast<LPWSTR>(name);
}

VOID WINAPI PathRemoveExtensionW(LPWSTR path)
{
    SIM_NOTE(path);
    LPWSTR dot = nullptr;
    for (LPWSTR place = path; place && *place; ++place) {
        if (*place == u'.')
            dot = place;
        else if (*place == u'\\' || *place == u' ')  // A blank ends an extension as well.
            dot = nullptr;
    }
    if (dot)
        *dot = 0;
}

LPWSTR WINAPI PathAddBackslashW(LPWSTR path)
{
    SIM_NOTE(path);
    if (!path)
        return nullptr;
    const std::size_t length = OrEmpty(path).size();
    if (length >= MAX_PATH - 1)
        return nullptr;
    if (length > 0 && path[length - 1] != u'\\') {
        path[length] = u'\\';
        path[length + 1] = 0;
        return path + length + 1;
    }
    return path + length;
}

LPWSTR WINAPI PathRemoveBackslashW(LPWSTR path)
{
    SIM_NOTE(path);
    const std::size_t length = OrEmpty(path).size();
    if (length == 0)
        return path;
    LPWSTR const last = path + length - 1;
    if (*last != u'\\')
        return last + 1;
    if (!IsRoot(path))
        *last = 0;
    return last;
}

BOOL WINAPI PathUnquoteSpacesW(LPWSTR path)
{
    SIM_NOTE(path);
    const std::size_t length = OrEmpty(path).size();
    if (length < 2 || path[0] != u'"' || path[length - 1] != u'"')
        return FALSE;
    std::memmove(path, path + 1, (length - 2) * sizeof(WCHAR));
    path[length - 2] = 0;
    return TRUE;
}

BOOL WINAPI PathQuoteSpacesW(LPWSTR path)
{
    SIM_NOTE(path);
    const std::u16string text(OrEmpty(path));
    if (text.find(u' ') == std::u16string::npos || text.size() + 3 > MAX_PATH)
        return FALSE;
    CopyCut(u"\"" + text + u"\"", path, MAX_PATH);
    return TRUE;
}

BOOL WINAPI PathIsRootW(LPCWSTR path)
{
    SIM_NOTE(path);
    return IsRoot(OrEmpty(path));
}
