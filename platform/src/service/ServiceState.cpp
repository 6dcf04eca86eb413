// Starting, stopping and watching services. https://learn.microsoft.com/windows/win32/api/winsvc/
#include "platform/src/core/Gate.h"
#include "platform/src/service/ServiceHandles.h"

#include <windows.h>

using namespace platform;

namespace {

constexpr DWORD kPendingHint = 2000;

bool IsPending(DWORD state)
{
    return state != SERVICE_STOPPED && state != SERVICE_RUNNING && state != SERVICE_PAUSED;
}

SERVICE_STATUS StatusOf(const Service& service)
{
    const bool takesControls = service.state == SERVICE_RUNNING || service.state == SERVICE_PAUSED;
    const bool pending = IsPending(service.state);
    return {service.type,
            service.state,
            takesControls ? DWORD{SERVICE_ACCEPT_STOP} : 0,
            service.exitCode,
            0,
            pending ? 1u : 0u,
            pending ? kPendingHint : 0};
}

}  // namespace

BOOL WINAPI QueryServiceStatus(SC_HANDLE service, LPSERVICE_STATUS status)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, service);
    const auto found = FindService(service, SERVICE_QUERY_STATUS);
    if (found)
        *status = StatusOf(*found);
    return found != nullptr;
}

BOOL WINAPI StartServiceW(SC_HANDLE service, DWORD count, LPCWSTR* arguments)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, service, count, arguments);
    SimPc& pc = SimPc::Current();
    const auto found = FindService(service, SERVICE_START);
    if (!found)
        return FALSE;
    const DWORD error = pc.Get<ServiceRecords>().Start(*found);
    return error == NO_ERROR || pc.Fail(error, FALSE);
}

BOOL WINAPI ControlService(SC_HANDLE service, DWORD control, LPSERVICE_STATUS status)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, service, control);
    SimPc& pc = SimPc::Current();
    if (control != SERVICE_CONTROL_STOP && control != SERVICE_CONTROL_INTERROGATE) {
        pc.Unsupported("ControlService: control " + std::to_string(control));
        return FALSE;
    }
    const bool stops = control == SERVICE_CONTROL_STOP;
    const auto found = FindService(service, stops ? SERVICE_STOP : SERVICE_INTERROGATE);
    if (!found)
        return FALSE;
    DWORD error = NO_ERROR;
    if (stops)
        error = pc.Get<ServiceRecords>().Stop(*found);
    else if (found->state == SERVICE_STOPPED)
        error = ERROR_SERVICE_NOT_ACTIVE;
    *status = StatusOf(*found);  // Told after these refusals as well.
    return error == NO_ERROR || pc.Fail(error, FALSE);
}
