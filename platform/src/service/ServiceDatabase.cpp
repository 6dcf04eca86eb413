// Opening, creating and deleting services. https://learn.microsoft.com/windows/win32/api/winsvc/
#include "platform/sim/Users.h"
#include "platform/src/core/Gate.h"
#include "platform/src/service/ServiceHandles.h"
#include "platform/src/text/Buffers.h"
#include "platform/src/text/Case.h"

#include <windows.h>

using namespace platform;

namespace {

// What everybody may ask of the manager and of a service; the rest is for administrators.
constexpr DWORD kManagerRightsOfAll =
    SC_MANAGER_CONNECT | SC_MANAGER_ENUMERATE_SERVICE | SC_MANAGER_QUERY_LOCK_STATUS | STANDARD_RIGHTS_READ | GENERIC_READ;
constexpr DWORD kServiceRightsOfAll = SERVICE_QUERY_CONFIG | SERVICE_QUERY_STATUS | SERVICE_ENUMERATE_DEPENDENTS | SERVICE_INTERROGATE |
                                      SERVICE_USER_DEFINED_CONTROL | READ_CONTROL | GENERIC_READ;
constexpr std::size_t kLongestName = 256;

bool MayHave(SimPc& pc, DWORD access, DWORD rightsOfAll)
{
    return pc.Get<Users>().Administrator() || (access & ~rightsOfAll) == 0;
}

DWORD MapGenericManager(DWORD access)
{
    if ((access & GENERIC_ALL) != 0)
        return SC_MANAGER_ALL_ACCESS;
    return (access & GENERIC_READ) != 0 ? access | SC_MANAGER_ENUMERATE_SERVICE | SC_MANAGER_QUERY_LOCK_STATUS : access;
}

DWORD MapGenericService(DWORD access)
{
    if ((access & (GENERIC_ALL | MAXIMUM_ALLOWED)) != 0)
        return SERVICE_ALL_ACCESS;
    return (access & GENERIC_READ) != 0 ? access | SERVICE_QUERY_CONFIG | SERVICE_QUERY_STATUS : access;
}

bool IsServiceName(std::u16string_view name)
{
    return !name.empty() && name.size() <= kLongestName && name.find_first_of(u"/\\") == std::u16string_view::npos;
}

template <class T, class... Arguments>
SC_HANDLE Open(SimPc& pc, Arguments&&... arguments)
{
    return AsHandle<SC_HANDLE>(pc.Handles().Open(std::make_shared<T>(std::forward<Arguments>(arguments)...)));
}

/// Texts with a zero each, up to an empty one, without that.
std::u16string TakeList(LPCWSTR list)
{
    std::u16string all;
    for (; list && *list; list += OrEmpty(list).size() + 1)
        all.append(OrEmpty(list)).push_back(u'\0');
    return all;
}

}  // namespace

namespace platform {

std::shared_ptr<Service> FindService(SC_HANDLE handle, DWORD access)
{
    SimPc& pc = SimPc::Current();
    const auto opened = pc.Handles().Find<ServiceHandle>(handle);
    if (!opened || (opened->access & access) != access)
        return pc.Fail(opened ? ERROR_ACCESS_DENIED : ERROR_INVALID_HANDLE, std::shared_ptr<Service>());
    return opened->service;
}

DWORD WhyNotAccount(SimPc& pc, const std::u16string& account, DWORD type)
{
    const bool system = SameName(account, u"LocalSystem") || SameName(account, u".\\LocalSystem");
    if ((type & SERVICE_INTERACTIVE_PROCESS) != 0 && !system)
        return ERROR_INVALID_PARAMETER;
    return pc.Get<Users>().KnowsAccount(account) ? NO_ERROR : ERROR_INVALID_SERVICE_ACCOUNT;
}

DWORD WhyNotKind(DWORD type, DWORD startType, DWORD errorControl)
{
    const DWORD kind = type & ~DWORD{SERVICE_INTERACTIVE_PROCESS};
    const bool program = kind == SERVICE_WIN32_OWN_PROCESS || kind == SERVICE_WIN32_SHARE_PROCESS;
    const bool starts = startType >= SERVICE_AUTO_START && startType <= SERVICE_DISABLED;  // Only drivers start earlier.
    return program && starts && errorControl <= SERVICE_ERROR_CRITICAL ? NO_ERROR : ERROR_INVALID_PARAMETER;
}

}  // namespace platform

SC_HANDLE WINAPI OpenSCManagerW(LPCWSTR machine, LPCWSTR database, DWORD access)
{
    SIM_CALL(nullptr, ERROR_ACCESS_DENIED, machine, database, access);
    SimPc& pc = SimPc::Current();
    if (!OrEmpty(machine).empty()) {
        pc.Unsupported("OpenSCManagerW on another computer");
        return nullptr;
    }
    if (database && !SameName(database, u"ServicesActive"))
        return pc.Fail<SC_HANDLE>(ERROR_DATABASE_DOES_NOT_EXIST, nullptr);
    if (!MayHave(pc, access, kManagerRightsOfAll))
        return pc.Fail<SC_HANDLE>(ERROR_ACCESS_DENIED, nullptr);
    return Open<ManagerHandle>(pc, MapGenericManager(access));
}

SC_HANDLE WINAPI OpenServiceW(SC_HANDLE manager, LPCWSTR name, DWORD access)
{
    SIM_CALL(nullptr, ERROR_ACCESS_DENIED, manager, name, access);
    SimPc& pc = SimPc::Current();
    if (!pc.Handles().Find<ManagerHandle>(manager))
        return pc.Fail<SC_HANDLE>(ERROR_INVALID_HANDLE, nullptr);
    if (!IsServiceName(OrEmpty(name)))
        return pc.Fail<SC_HANDLE>(ERROR_INVALID_NAME, nullptr);
    const auto service = pc.Get<ServiceRecords>().Share(name);
    if (!service)
        return pc.Fail<SC_HANDLE>(ERROR_SERVICE_DOES_NOT_EXIST, nullptr);
    const DWORD granted = MapGenericService(access);
    if ((service->denied & granted) != 0 || !MayHave(pc, granted, kServiceRightsOfAll))
        return pc.Fail<SC_HANDLE>(ERROR_ACCESS_DENIED, nullptr);
    return Open<ServiceHandle>(pc, granted, service);
}

SC_HANDLE WINAPI CreateServiceW(SC_HANDLE manager, LPCWSTR name, LPCWSTR displayName, DWORD access, DWORD type, DWORD startType,
                                DWORD errorControl, LPCWSTR path, LPCWSTR loadOrderGroup, LPDWORD tag, LPCWSTR dependencies,
                                LPCWSTR account, LPCWSTR password)
{
    SIM_CALL(nullptr, ERROR_ACCESS_DENIED, manager, name, displayName, access, type, startType, errorControl, path, loadOrderGroup, tag,
             dependencies, account, password);
    SimPc& pc = SimPc::Current();
    const auto opened = pc.Handles().Find<ManagerHandle>(manager);
    if (!opened || (opened->access & SC_MANAGER_CREATE_SERVICE) == 0)
        return pc.Fail<SC_HANDLE>(opened ? ERROR_ACCESS_DENIED : ERROR_INVALID_HANDLE, nullptr);
    Service service;
    service.name = OrEmpty(name);
    service.displayName = displayName ? displayName : service.name;
    service.path = OrEmpty(path);
    service.account = OrEmpty(account).empty() ? u"LocalSystem" : account;
    service.password = OrEmpty(password);
    service.loadOrderGroup = OrEmpty(loadOrderGroup);
    service.dependencies = TakeList(dependencies);
    service.type = type;
    service.startType = startType;
    service.errorControl = errorControl;

    ServiceRecords& services = pc.Get<ServiceRecords>();
    DWORD error = NO_ERROR;
    if (!IsServiceName(service.name))
        error = ERROR_INVALID_NAME;
    else if (service.path.empty() || tag)  // A tag needs a load-order group, and only drivers have those.
        error = ERROR_INVALID_PARAMETER;
    else if (const auto existing = services.Share(service.name))
        error = existing->markedForDeletion ? ERROR_SERVICE_MARKED_FOR_DELETE : ERROR_SERVICE_EXISTS;
    else if (services.WithDisplayName(service.displayName) || services.Share(service.displayName))
        error = ERROR_DUPLICATE_SERVICE_NAME;
    else if (error = WhyNotKind(type, startType, errorControl); error == NO_ERROR)
        error = WhyNotAccount(pc, service.account, type);
    if (error != NO_ERROR)
        return pc.Fail<SC_HANDLE>(error, nullptr);
    return Open<ServiceHandle>(pc, MapGenericService(access), services.Add(std::move(service)));
}

BOOL WINAPI DeleteService(SC_HANDLE service)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, service);
    const auto found = FindService(service, DELETE);
    if (!found)
        return FALSE;
    if (found->markedForDeletion)
        return SimPc::Current().Fail(ERROR_SERVICE_MARKED_FOR_DELETE, FALSE);
    found->markedForDeletion = true;
    return TRUE;
}

BOOL WINAPI CloseServiceHandle(SC_HANDLE handle)
{
    SIM_NOTE(handle);
    SimPc& pc = SimPc::Current();
    return pc.Handles().Close<ScmObject>(handle) || pc.Fail(ERROR_INVALID_HANDLE, FALSE);
}
