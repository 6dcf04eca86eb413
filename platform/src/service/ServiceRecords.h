// ServiceRecords: the services as the service functions work on them.
#pragma once

#include "platform/sim/Services.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

class ServiceRecords : public Area {
public:
    using Area::Area;

    [[nodiscard]] std::shared_ptr<Service> Share(std::u16string_view name) const;
    [[nodiscard]] std::shared_ptr<Service> WithDisplayName(std::u16string_view displayName) const;
    [[nodiscard]] std::size_t Count() const { return services_.size(); }
    std::shared_ptr<Service> Add(Service service);
    DWORD Start(Service& service);
    DWORD Stop(Service& service);
    /// A service may have become ready to go: stopped, deleted, not held open.
    void Sweep(Service& service);

    /// Milliseconds that starting and stopping take of services that are added from now on.
    std::uint64_t startTime = 300, stopTime = 200;

private:
    void Settle(Service& service, DWORD pendingState, std::uint64_t delay, DWORD finalState, DWORD exitCode);

    std::map<std::u16string, std::shared_ptr<Service>> services_;  // by upper-cased name
};

}  // namespace platform
