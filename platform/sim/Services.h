// Services: the service control manager of the stand-in PC and the services that it knows.
#pragma once

#include "platform/sim/SimPc.h"

#include <winerror.h>
#include <winsvc.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

struct Service {
    std::u16string name, displayName, path, account = u"LocalSystem", password, description, loadOrderGroup;
    std::u16string dependencies;  // texts with a zero each
    DWORD type = SERVICE_WIN32_OWN_PROCESS;
    DWORD startType = SERVICE_DEMAND_START;
    DWORD errorControl = SERVICE_ERROR_NORMAL;

    DWORD state = SERVICE_STOPPED;
    DWORD exitCode = 0;
    bool markedForDeletion = false;
    int handles = 0;

    /// How the service behaves: milliseconds that starting and stopping take, and the error that starting ends with (0: it runs).
    std::uint64_t startTime = 300, stopTime = 200;
    DWORD startFailure = 0;
    /// Rights that nobody gets on it.
    DWORD denied = 0;

    SimClock::Ticket pending = 0;
};

class Services : public Area {
public:
    using Area::Area;

    // Another process is at work. The program under test sees it when it looks.

    /// Puts a service into the database; its executable need not exist.
    Service& Install(std::u16string_view name, std::u16string_view path);
    /// The service of that name, without regard to case; NULL when there is none.
    [[nodiscard]] Service* Find(std::u16string_view name);
    /// Changes the state at once.
    void SetState(std::u16string_view name, DWORD state);
    /// As StartServiceW and SERVICE_CONTROL_STOP do it, with the pending states; the Windows error or NO_ERROR.
    DWORD Start(std::u16string_view name);
    DWORD Stop(std::u16string_view name);
    /// Deletes it as DeleteService does: it goes when it has stopped and nobody holds it open.
    void Delete(std::u16string_view name);
    /// How services that are created from now on behave.
    void DefaultTimes(std::uint64_t start, std::uint64_t stop);
    [[nodiscard]] std::size_t Count() const;
};

}  // namespace platform
