// Files and folders by name. https://learn.microsoft.com/windows/win32/api/fileapi/
#include "platform/src/core/Gate.h"
#include "platform/src/file/FileTree.h"
#include "platform/src/text/Buffers.h"

#include <shlobj.h>
#include <windows.h>

#include <algorithm>

using namespace platform;

namespace {

/// Error of making a folder, NO_ERROR when it was made.
DWORD MakeOneFolder(FileTree& files, std::u16string_view path)
{
    const FileTree::Place place = files.Find(path);
    if (place.node)
        return ERROR_ALREADY_EXISTS;
    if (place.error != ERROR_FILE_NOT_FOUND)
        return place.error;
    if (!files.Allows(place, FILE_ADD_SUBDIRECTORY))
        return ERROR_ACCESS_DENIED;
    files.Add(place, true);
    return NO_ERROR;
}

bool IsOpen(const FileNode& node)
{
    return std::any_of(node.opens.begin(), node.opens.end(), [](const auto& open) { return !open.expired(); });
}

/// Error of deleting a file or an empty folder.
DWORD Delete(FileTree& files, std::u16string_view path, bool folder)
{
    const FileTree::Place place = files.Find(path);
    if (!place.node)
        return place.error;
    if (place.node->folder != folder)
        return folder ? ERROR_DIRECTORY : ERROR_ACCESS_DENIED;
    if (!place.parent || (place.node->attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return ERROR_ACCESS_DENIED;
    const FileTree::Place holder{place.volume, nullptr, place.parent, {}, NO_ERROR};
    if (!files.Allows(place, DELETE) && !files.Allows(holder, FILE_DELETE_CHILD))
        return ERROR_ACCESS_DENIED;
    if (!place.node->children.empty())
        return ERROR_DIR_NOT_EMPTY;
    if (IsOpen(*place.node))
        return ERROR_SHARING_VIOLATION;
    place.parent->children.erase(place.name);
    return NO_ERROR;
}

BOOL Report(SimPc& pc, DWORD error)
{
    return error == NO_ERROR || pc.Fail(error, FALSE);
}

}  // namespace

BOOL WINAPI CreateDirectoryW(LPCWSTR name, LPSECURITY_ATTRIBUTES)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, name);
    SimPc& pc = SimPc::Current();
    return Report(pc, MakeOneFolder(Files(), OrEmpty(name)));
}

BOOL WINAPI RemoveDirectoryW(LPCWSTR name)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, name);
    SimPc& pc = SimPc::Current();
    return Report(pc, Delete(Files(), OrEmpty(name), true));
}

BOOL WINAPI DeleteFileW(LPCWSTR name)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, name);
    SimPc& pc = SimPc::Current();
    return Report(pc, Delete(Files(), OrEmpty(name), false));
}
