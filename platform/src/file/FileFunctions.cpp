// Files by handle. https://learn.microsoft.com/windows/win32/api/fileapi/
#include "platform/src/core/Gate.h"
#include "platform/src/file/FileTree.h"
#include "platform/src/text/Buffers.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

using namespace platform;

namespace {

DWORD MapGenericFile(DWORD access)
{
    DWORD mapped = access & ~DWORD{GENERIC_READ | GENERIC_WRITE | GENERIC_EXECUTE | GENERIC_ALL};
    if ((access & GENERIC_READ) != 0)
        mapped |= FILE_GENERIC_READ;
    if ((access & GENERIC_WRITE) != 0)
        mapped |= FILE_GENERIC_WRITE;
    if ((access & GENERIC_EXECUTE) != 0)
        mapped |= FILE_GENERIC_EXECUTE;
    if ((access & GENERIC_ALL) != 0)
        mapped |= FILE_ALL_ACCESS;
    return mapped;
}

/// What others have to share with somebody who opens with this access.
DWORD ShareNeeded(DWORD access)
{
    return ((access & (FILE_READ_DATA | FILE_EXECUTE)) != 0 ? FILE_SHARE_READ : 0u) |
           ((access & (FILE_WRITE_DATA | FILE_APPEND_DATA)) != 0 ? FILE_SHARE_WRITE : 0u) |
           ((access & DELETE) != 0 ? FILE_SHARE_DELETE : 0u);
}

bool SharingAllows(FileNode& node, DWORD access, DWORD share)
{
    std::erase_if(node.opens, [](const auto& open) { return open.expired(); });
    return std::none_of(node.opens.begin(), node.opens.end(), [&](const auto& entry) {
        const auto open = entry.lock();
        const DWORD theirs = (open->GrantsAny(FILE_READ_DATA | FILE_EXECUTE) ? FILE_SHARE_READ : 0u) |
                             (open->GrantsAny(FILE_WRITE_DATA | FILE_APPEND_DATA) ? FILE_SHARE_WRITE : 0u);
        return (ShareNeeded(access) & ~open->share) != 0 || (theirs & ~share) != 0;
    });
}

/// NO_ERROR when an existing file or folder may be opened so.
DWORD WhyNotOpen(const FileTree& files, const FileTree::Place& place, DWORD access, DWORD share, DWORD disposition, DWORD flags)
{
    if (disposition == CREATE_NEW)
        return ERROR_FILE_EXISTS;
    if (place.node->folder && (flags & FILE_FLAG_BACKUP_SEMANTICS) == 0)
        return ERROR_ACCESS_DENIED;
    constexpr DWORD kChanges = FILE_WRITE_DATA | FILE_APPEND_DATA;
    const bool truncates = disposition == CREATE_ALWAYS || disposition == TRUNCATE_EXISTING;
    if ((place.node->attributes & FILE_ATTRIBUTE_READONLY) != 0 && ((access & kChanges) != 0 || truncates))
        return ERROR_ACCESS_DENIED;
    if (!files.Allows(place, access | (truncates ? FILE_WRITE_DATA : 0u)))
        return ERROR_ACCESS_DENIED;
    return SharingAllows(*place.node, access, share) ? NO_ERROR : ERROR_SHARING_VIOLATION;
}

std::shared_ptr<OpenFile> FindFile(SimPc& pc, HANDLE file, DWORD access)
{
    auto open = pc.Handles().Find<OpenFile>(file);
    if (!open || (access != 0 && !open->GrantsAny(access)))
        return pc.Fail(open ? ERROR_ACCESS_DENIED : ERROR_INVALID_HANDLE, std::shared_ptr<OpenFile>());
    return open;
}

}  // namespace

HANDLE WINAPI CreateFileW(LPCWSTR name, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES, DWORD disposition, DWORD flags, HANDLE)
{
    SIM_CALL(INVALID_HANDLE_VALUE, ERROR_ACCESS_DENIED, name, access, share, disposition, flags);
    SimPc& pc = SimPc::Current();
    FileTree& files = Files();
    FileTree::Place place = files.Find(OrEmpty(name));
    const DWORD wanted = MapGenericFile(access);
    const bool existed = place.node != nullptr;
    if (existed) {
        const DWORD error = WhyNotOpen(files, place, wanted, share, disposition, flags);
        if (error != NO_ERROR)
            return pc.Fail(error, INVALID_HANDLE_VALUE);
    } else {
        const bool creates = disposition == CREATE_NEW || disposition == CREATE_ALWAYS || disposition == OPEN_ALWAYS;
        if (!creates || place.error != ERROR_FILE_NOT_FOUND)
            return pc.Fail(place.error, INVALID_HANDLE_VALUE);
        if (!files.Allows(place, FILE_ADD_FILE))
            return pc.Fail(ERROR_ACCESS_DENIED, INVALID_HANDLE_VALUE);
        place.node = files.Add(place, false);
    }
    if (disposition == CREATE_ALWAYS || disposition == TRUNCATE_EXISTING)
        place.node->bytes.clear();
    const auto open = std::make_shared<OpenFile>(wanted, share, place.node);
    place.node->opens.push_back(open);
    pc.LastError(existed && (disposition == CREATE_ALWAYS || disposition == OPEN_ALWAYS) ? ERROR_ALREADY_EXISTS : NO_ERROR);
    return OpenHandle(pc, open);
}

BOOL WINAPI ReadFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD read, LPOVERLAPPED overlapped)
{
    if (read)
        *read = 0;
    SIM_CALL(FALSE, ERROR_GEN_FAILURE, file, size);
    SimPc& pc = SimPc::Current();
    const auto open = FindFile(pc, file, FILE_READ_DATA);
    if (!open)
        return FALSE;
    if (overlapped) {
        pc.Unsupported("ReadFile with OVERLAPPED");
        return FALSE;
    }
    const std::string& bytes = open->node->bytes;
    const std::size_t start = std::min<std::size_t>(open->position, bytes.size());
    const std::size_t count = std::min<std::size_t>(size, bytes.size() - start);
    std::memcpy(buffer, bytes.data() + start, count);
    open->position += count;
    *read = static_cast<DWORD>(count);
    return TRUE;
}

BOOL WINAPI WriteFile(HANDLE file, LPCVOID buffer, DWORD size, LPDWORD written, LPOVERLAPPED overlapped)
{
    if (written)
        *written = 0;
    SIM_CALL(FALSE, ERROR_WRITE_PROTECT, file, size);
    SimPc& pc = SimPc::Current();
    const auto open = FindFile(pc, file, FILE_WRITE_DATA | FILE_APPEND_DATA);
    if (!open)
        return FALSE;
    if (overlapped) {
        pc.Unsupported("WriteFile with OVERLAPPED");
        return FALSE;
    }
    std::string& bytes = open->node->bytes;
    const std::size_t end = open->position + size;
    bytes.resize(std::max(bytes.size(), end));
    std::memcpy(bytes.data() + open->position, buffer, size);
    open->position = end;
    if (written)
        *written = size;
    return TRUE;
}

BOOL WINAPI SetFilePointerEx(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER position, DWORD method)
{
    SIM_CALL(FALSE, ERROR_GEN_FAILURE, file, distance.QuadPart, method);
    SimPc& pc = SimPc::Current();
    const auto open = FindFile(pc, file, 0);
    if (!open)
        return FALSE;
    const auto size = static_cast<LONGLONG>(open->node->bytes.size());
    const LONGLONG start = method == FILE_BEGIN ? 0 : method == FILE_END ? size : static_cast<LONGLONG>(open->position);
    if (method > FILE_END || start + distance.QuadPart < 0)
        return pc.Fail(method > FILE_END ? ERROR_INVALID_PARAMETER : ERROR_NEGATIVE_SEEK, FALSE);
    open->position = static_cast<std::uint64_t>(start + distance.QuadPart);
    if (position)
        position->QuadPart = static_cast<LONGLONG>(open->position);
    return TRUE;
}

BOOL WINAPI GetFileSizeEx(HANDLE file, PLARGE_INTEGER size)
{
    SIM_CALL(FALSE, ERROR_GEN_FAILURE, file);
    const auto open = FindFile(SimPc::Current(), file, 0);
    if (open)
        size->QuadPart = static_cast<LONGLONG>(open->node->bytes.size());
    return open != nullptr;
}
