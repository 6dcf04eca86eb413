// Paths of processes and their modules, and the way from NT device paths to drive letters.
#include "base/Wow64.h"
#include "toolkit/OpenedProcess.h"
#include "toolkit/ProcessIds.h"
#include "toolkit/TaskManLight.h"

#include <psapi.h>
#include <shlwapi.h>

#include <algorithm>
#include <array>

namespace toolkit {

using base::String;
using base::StringView;

namespace {

constexpr DWORD queryAndRead = PROCESS_QUERY_INFORMATION | PROCESS_VM_READ;
constexpr DWORD systemPid = 4;

template <std::size_t Size>
String ModuleFileName(HANDLE process, HMODULE module)
{
    std::array<WCHAR, Size> buffer{};
    const DWORD length = GetModuleFileNameExW(process, module, buffer.data(), static_cast<DWORD>(buffer.size()));
    return String(buffer.data(), std::min<std::size_t>(length, buffer.size()));
}

}  // namespace

String TaskManLight::GetNTPathFromPID(DWORD In_PID) const
{
    if (!IsPossiblePid(In_PID))
        return {};
    return WithProcess(In_PID, PROCESS_QUERY_INFORMATION, String(), [](HANDLE process) {
        std::array<WCHAR, 260> buffer{};
        const DWORD length = GetProcessImageFileNameW(process, buffer.data(), static_cast<DWORD>(buffer.size()));
        return String(buffer.data(), std::min<std::size_t>(length, buffer.size()));
    });
}

String TaskManLight::GetPathFromPID(DWORD In_PID) const
{
    if (In_PID == 0 || In_PID == systemPid)
        return {};
    // A 32-bit process cannot read the modules of a 64-bit one, but may ask for the image's device path.
    if (base::IsWow64())
        if (const String path = GetNTPathFromPID(In_PID); !path.empty())
            return GetPathFromNTPath(path);
    return WithProcess(In_PID, queryAndRead, String(), [](HANDLE process) { return ModuleFileName<260>(process, nullptr); });
}

String TaskManLight::GetFileNameFromPID(DWORD In_PID) const
{
    const String path = GetNTPathFromPID(In_PID);
    return PathIsRootW(path.c_str()) ? String() : String(PathFindFileNameW(path.c_str()));
}

std::int16_t TaskManLight::GetLogicalDrives(std::vector<String>& Out_DriveMatrix) const
{
    std::array<CHAR, 260> buffer{};
    const DWORD length = std::min<DWORD>(GetLogicalDriveStringsA(static_cast<DWORD>(buffer.size()), buffer.data()), buffer.size());
    Out_DriveMatrix.clear();
    String drive;
    for (DWORD i = 0; i < length; ++i) {
        if (buffer[i] != '\0') {
            drive += static_cast<WCHAR>(static_cast<BYTE>(buffer[i]));
            continue;
        }
        if (drive.ends_with(TEXT('\\')))
            drive.pop_back();
        Out_DriveMatrix.push_back(std::exchange(drive, {}));
    }
    return static_cast<std::int16_t>(Out_DriveMatrix.size());
}

String TaskManLight::GetNtDeviceNameByLogicalDrive(StringView LogicalDrive) const
{
    if (LogicalDrive.empty())
        return {};
    std::array<WCHAR, 261> buffer{};
    const DWORD length = QueryDosDeviceW(String(LogicalDrive).c_str(), buffer.data(), 260);
    // The count includes two zeros, the name's own and the list's. A drive may have older names behind the first.
    const StringView names(buffer.data(), length > 2 ? length - 2 : 0);
    return base::UpToZero(names);
}

String TaskManLight::GetPathFromNTPath(StringView In_NTPath) const
{
    std::vector<String> drives;
    GetLogicalDrives(drives);
    for (const String& drive : drives) {
        const String device = GetNtDeviceNameByLogicalDrive(drive);
        if (!device.empty() && In_NTPath.starts_with(device))
            return drive + String(In_NTPath.substr(device.size()));
    }
    return {};
}

Flag TaskManLight::GetDLLsFromPID(DWORD In_PID, std::vector<String>& Out_DLL) const
{
    return WithProcess(In_PID, queryAndRead, Flag{0}, [&](HANDLE process) {
        std::array<HMODULE, 1024> modules{};
        DWORD needed = 0;
        if (!EnumProcessModules(process, modules.data(), sizeof modules, &needed) || needed == 0)
            return false;
        const std::size_t count = std::min<std::size_t>(needed / sizeof(HMODULE), modules.size());
        Out_DLL.clear();
        for (std::size_t i = 0; i < count; ++i)
            Out_DLL.push_back(ModuleFileName<519>(process, modules[i]));
        return true;
    });
}

}  // namespace toolkit
