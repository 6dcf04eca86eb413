#include "platform/sim/Services.h"

#include "platform/src/service/ServiceRecords.h"

namespace platform {

Service& Services::Install(std::u16string_view name, std::u16string_view path)
{
    Service service;
    service.name = service.displayName = name;
    service.path = path;
    return *pc_.Get<ServiceRecords>().Add(std::move(service));
}

Service* Services::Find(std::u16string_view name)
{
    return pc_.Get<ServiceRecords>().Share(name).get();
}

void Services::SetState(std::u16string_view name, DWORD state)
{
    Service& service = *Find(name);
    pc_.Clock().Cancel(service.pending);
    service.state = state;
    pc_.Get<ServiceRecords>().Sweep(service);
}

DWORD Services::Start(std::u16string_view name)
{
    return pc_.Get<ServiceRecords>().Start(*Find(name));
}

DWORD Services::Stop(std::u16string_view name)
{
    return pc_.Get<ServiceRecords>().Stop(*Find(name));
}

void Services::Delete(std::u16string_view name)
{
    Service& service = *Find(name);
    service.markedForDeletion = true;
    pc_.Get<ServiceRecords>().Sweep(service);
}

void Services::DefaultTimes(std::uint64_t start, std::uint64_t stop)
{
    pc_.Get<ServiceRecords>().startTime = start;
    pc_.Get<ServiceRecords>().stopTime = stop;
}

std::size_t Services::Count() const
{
    return pc_.Get<ServiceRecords>().Count();
}

}  // namespace platform
