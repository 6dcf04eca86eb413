#include "platform/src/service/ServiceRecords.h"

#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"
#include "platform/src/process/CommandLine.h"
#include "platform/src/text/Case.h"

namespace platform {

std::shared_ptr<Service> ServiceRecords::Add(Service service)
{
    service.startTime = startTime;
    service.stopTime = stopTime;
    auto added = std::make_shared<Service>(std::move(service));
    services_[UpperCase(added->name)] = added;
    return added;
}

std::shared_ptr<Service> ServiceRecords::Share(std::u16string_view name) const
{
    const auto found = services_.find(UpperCase(name));
    return found == services_.end() ? nullptr : found->second;
}

std::shared_ptr<Service> ServiceRecords::WithDisplayName(std::u16string_view displayName) const
{
    for (const auto& entry : services_) {
        if (SameName(entry.second->displayName, displayName))
            return entry.second;
    }
    return nullptr;
}

DWORD ServiceRecords::Start(Service& service)
{
    if (service.markedForDeletion)
        return ERROR_SERVICE_MARKED_FOR_DELETE;
    if (service.startType == SERVICE_DISABLED)
        return ERROR_SERVICE_DISABLED;
    if (service.state != SERVICE_STOPPED)
        return ERROR_SERVICE_ALREADY_RUNNING;
    const Volumes& volumes = pc_.Get<Volumes>();
    if (ExecutableOf(service.path, [&](std::u16string_view path) { return volumes.IsFile(path); }).empty())
        return ERROR_FILE_NOT_FOUND;
    const Users& users = pc_.Get<Users>();
    if (!users.PasswordFits(service.account, service.password) || !users.MayLogOnAsService(service.account))
        return ERROR_SERVICE_LOGON_FAILED;
    Settle(service, SERVICE_START_PENDING, service.startTime, service.startFailure == 0 ? SERVICE_RUNNING : SERVICE_STOPPED,
           service.startFailure);
    return NO_ERROR;
}

DWORD ServiceRecords::Stop(Service& service)
{
    switch (service.state) {
        case SERVICE_STOPPED:
            return ERROR_SERVICE_NOT_ACTIVE;
        case SERVICE_RUNNING:
        case SERVICE_PAUSED:
            Settle(service, SERVICE_STOP_PENDING, service.stopTime, SERVICE_STOPPED, 0);
            return NO_ERROR;
        default:
            return ERROR_SERVICE_CANNOT_ACCEPT_CTRL;
    }
}

void ServiceRecords::Settle(Service& service, DWORD pendingState, std::uint64_t delay, DWORD finalState, DWORD exitCode)
{
    service.state = pendingState;
    service.pending = pc_.Clock().Schedule(delay, [this, settled = Share(service.name), finalState, exitCode] {
        settled->state = finalState;
        settled->exitCode = exitCode;
        Sweep(*settled);
    });
}

void ServiceRecords::Sweep(Service& service)
{
    if (!service.markedForDeletion || service.state != SERVICE_STOPPED || service.handles > 0)
        return;
    const auto found = services_.find(UpperCase(service.name));
    if (found != services_.end() && found->second.get() == &service)
        services_.erase(found);
}

}  // namespace platform
