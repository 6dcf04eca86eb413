// Instances of a program: processes that run the same image and show at least one top-level window.
#include "toolkit/TaskManLight.h"
#include "toolkit/WinMngHLP.h"

#include <algorithm>

namespace toolkit {

std::int16_t TaskManLight::GetAllInstancesPIDsByPID(DWORD In_PID, std::vector<DWORD>& Out_PID, bool In_ReturnMainPIDToo) const
{
    const base::String path = GetNTPathFromPID(In_PID);
    if (path.empty())
        return 0;
    std::vector<DWORD> owners;
    CollectWindowOwnerPIDs(owners);
    std::int16_t count = 0;
    for (const DWORD process : owners) {
        if (process == In_PID && !In_ReturnMainPIDToo)
            continue;
        if (GetNTPathFromPID(process) != path)
            continue;
        Out_PID.push_back(process);
        ++count;
    }
    return count;
}

std::int16_t TaskManLight::GetAppInstanceCountByPID(DWORD In_PID) const
{
    std::vector<DWORD> processes;
    return GetAllInstancesPIDsByPID(In_PID, processes, true);
}

std::int16_t TaskManLight::GetAllMyInstancesCount() const
{
    return std::max<std::int16_t>(GetAppInstanceCountByPID(GetMyPID()), 1);
}

std::int16_t TaskManLight::GetAllMyOtherInstancesPID(std::vector<DWORD>& Out_PID) const
{
    return GetAllInstancesPIDsByPID(GetMyPID(), Out_PID, false);
}

}  // namespace toolkit
