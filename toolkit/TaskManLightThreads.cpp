// Threads, and who sits at which workstation.
#include "toolkit/LogonDomain.h"
#include "toolkit/OpenedProcess.h"
#include "toolkit/TaskManLight.h"

#include <array>

namespace toolkit {

std::int32_t TaskManLight::KillThread(DWORD ThreadID) const
{
    return WithThread(ThreadID, THREAD_TERMINATE | THREAD_QUERY_INFORMATION, std::int32_t{0}, [](HANDLE thread) {
        DWORD code = 0;
        GetExitCodeThread(thread, &code);
        return TerminateThread(thread, code);
    });
}

std::int32_t TaskManLight::SospendiThread(DWORD ThreadID) const
{
    return WithThread(ThreadID, THREAD_SUSPEND_RESUME, std::int32_t{-1}, SuspendThread);
}

std::int32_t TaskManLight::RiattivaThread(DWORD ThreadID) const
{
    return WithThread(ThreadID, THREAD_SUSPEND_RESUME, std::int32_t{-1}, ResumeThread);
}

Flag TaskManLight::LockComputer() const
{
    return LockWorkStation() ? 1 : 0;
}

base::String TaskManLight::GetActualUser() const
{
    std::array<WCHAR, 519> buffer{};
    DWORD size = static_cast<DWORD>(buffer.size());
    if (!GetUserNameW(buffer.data(), &size) || size == 0)
        return {};
    return base::String(buffer.data(), size - 1);
}

base::String TaskManLight::GetActualDomain() const
{
    return GetLogonDomain();
}

}  // namespace toolkit
