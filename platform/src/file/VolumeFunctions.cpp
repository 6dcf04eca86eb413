// Volumes and drives. https://learn.microsoft.com/windows/win32/fileio/volume-management-functions
#include "platform/src/core/Gate.h"
#include "platform/src/file/FileTree.h"
#include "platform/src/text/Buffers.h"

#include <windows.h>

#include <algorithm>

using namespace platform;

BOOL WINAPI GetVolumeInformationW(LPCWSTR root, LPWSTR name, DWORD nameSize, LPDWORD serial, LPDWORD componentLength, LPDWORD flags,
                                  LPWSTR fileSystem, DWORD fileSystemSize)
{
    SIM_CALL(FALSE, ERROR_NOT_READY, root);
    SimPc& pc = SimPc::Current();
    const std::u16string_view path = OrEmpty(root);
    if (!path.ends_with(u'\\'))
        return pc.Fail(ERROR_INVALID_NAME, FALSE);
    const FileTree::Place place = Files().Find(path);
    if (!place.volume)
        return pc.Fail(ERROR_PATH_NOT_FOUND, FALSE);
    if (place.node != place.volume->top)  // Only the root itself names a volume.
        return pc.Fail(ERROR_DIR_NOT_ROOT, FALSE);
    if (name)
        CopyCut(u"", name, nameSize);
    if (serial)
        *serial = 0x1E55C0DE;
    if (componentLength)
        *componentLength = 255;
    const bool acls = place.volume->persistentAcls;
    if (flags)
        *flags = FILE_CASE_PRESERVED_NAMES | FILE_UNICODE_ON_DISK | (acls ? FILE_PERSISTENT_ACLS | FILE_CASE_SENSITIVE_SEARCH : 0u);
    if (fileSystem)
        CopyCut(acls ? u"NTFS" : u"FAT32", fileSystem, fileSystemSize);
    return TRUE;
}

DWORD WINAPI GetLogicalDriveStringsA(DWORD size, LPSTR buffer)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, size);
    std::string drives;
    for (const auto& entry : Files().All()) {
        if (entry.first.size() == 2)
            drives += std::string{static_cast<char>(entry.first[0]), ':', '\\', '\0'};
    }
    const auto length = static_cast<DWORD>(drives.size());
    if (size <= length)
        return length + 1;
    std::copy(drives.begin(), drives.end(), buffer);
    buffer[length] = '\0';
    return length;
}

DWORD WINAPI QueryDosDeviceW(LPCWSTR device, LPWSTR target, DWORD size)
{
    SIM_CALL(0, ERROR_ACCESS_DENIED, device, size);
    SimPc& pc = SimPc::Current();
    if (!device) {
        pc.Unsupported("QueryDosDeviceW for all devices");
        return 0;
    }
    const auto& volumes = Files().All();
    const auto volume = volumes.find(UpperCase(device));
    if (volume == volumes.end())
        return pc.Fail(ERROR_FILE_NOT_FOUND, 0);
    std::u16string names = volume->second->device;
    names.append(2, u'\0');  // A list of names, ended by an empty one.
    if (size < names.size())
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, 0);
    std::copy(names.begin(), names.end(), target);
    return static_cast<DWORD>(names.size());
}
