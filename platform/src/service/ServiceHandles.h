// ServiceHandles: open handles of the service control manager and of its services.
#pragma once

#include "platform/src/service/ServiceRecords.h"

#include <memory>

namespace platform {

/// What both kinds of handle share: CloseServiceHandle closes either.
struct ScmObject : Object {
    explicit ScmObject(DWORD granted) : access(granted) {}
    const DWORD access;
};

struct ManagerHandle : ScmObject {
    using ScmObject::ScmObject;
};

struct ServiceHandle : ScmObject {
    ServiceHandle(DWORD granted, std::shared_ptr<Service> opened) : ScmObject(granted), service(std::move(opened)) { ++service->handles; }
    ~ServiceHandle() override
    {
        --service->handles;
        if (service->markedForDeletion)
            SimPc::Current().Get<ServiceRecords>().Sweep(*service);
    }
    const std::shared_ptr<Service> service;
};

/// The service behind a handle that grants `access`; empty with the last error set: 6 no service handle, 5 not granted.
[[nodiscard]] std::shared_ptr<Service> FindService(SC_HANDLE handle, DWORD access);

/// Why such an account cannot run a service of that type, NO_ERROR when it can.
[[nodiscard]] DWORD WhyNotAccount(SimPc& pc, const std::u16string& account, DWORD type);

/// Why a service cannot be of that type and start, NO_ERROR when it can.
[[nodiscard]] DWORD WhyNotKind(DWORD type, DWORD startType, DWORD errorControl);

}  // namespace platform
