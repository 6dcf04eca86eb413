// The debug privilege by its number.
#include "toolkit/SystemSecurity.h"
#include "toolkit/TaskManLight.h"

namespace toolkit {

namespace {

constexpr std::int32_t debugPrivilegeNumber = 20;

}  // namespace

void TaskManLight::EnableDebugPrivilege()
{
    if (const Flag result = AdjustPrivilegeByNumber(debugPrivilegeNumber, true))
        DebugPrivilegeResult = result;
}

void TaskManLight::DisableDebugPrivilege()
{
    if (const Flag result = AdjustPrivilegeByNumber(debugPrivilegeNumber, false))
        DebugPrivilegeResult = result;
}

void TaskManLight::RestoreDebugPrivilege() {}

Flag TaskManLight::AdjustPrivilegeByNumber(std::int32_t In_PrivilegeNumber, bool In_Enable) const
{
    return SystemSecurity::SetPrivilegeEx(In_PrivilegeNumber, In_Enable) == -1 ? 0 : 1;
}

}  // namespace toolkit
