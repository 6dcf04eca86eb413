// Services of the stand-in PC: pending states on its clock, who may do what, other processes at work.
#include "platform/sim/Services.h"
#include "base/Handles.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"

#include <gtest/gtest.h>

namespace {

using base::ServiceHandle;
using platform::SimPc;

constexpr LPCWSTR kPath = u"\"C:\\Tools\\Velmora.exe\"";

class Services : public testing::Test {
protected:
    Services() { pc_.Get<platform::Volumes>().WriteFile(u"C:\\Tools\\Velmora.exe", "MZ"); }

    [[nodiscard]] static ServiceHandle Open(DWORD access)
    {
        const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
        return ServiceHandle(OpenServiceW(manager.Get(), u"Velmora", access));
    }
    [[nodiscard]] static DWORD Create(LPCWSTR account, LPCWSTR password)
    {
        const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
        if (!manager)
            return GetLastError();
        const ServiceHandle service(CreateServiceW(manager.Get(), u"Velmora", u"Velmora Service", SERVICE_ALL_ACCESS,
                                                   SERVICE_WIN32_OWN_PROCESS, SERVICE_AUTO_START, SERVICE_ERROR_NORMAL, kPath, nullptr,
                                                   nullptr, nullptr, account, password));
        return service ? NO_ERROR : GetLastError();
    }
    [[nodiscard]] static DWORD State()
    {
        SERVICE_STATUS status{};
        return QueryServiceStatus(Open(SERVICE_QUERY_STATUS).Get(), &status) ? status.dwCurrentState : 0;
    }
    static DWORD Start() { return StartServiceW(Open(SERVICE_START).Get(), 0, nullptr) ? NO_ERROR : GetLastError(); }
    static DWORD Stop()
    {
        SERVICE_STATUS status{};
        return ControlService(Open(SERVICE_STOP).Get(), SERVICE_CONTROL_STOP, &status) ? NO_ERROR : GetLastError();
    }

    SimPc& pc_ = SimPc::Current();
    platform::Services& services_ = pc_.Get<platform::Services>();
};

TEST_F(Services, StartAndStop_PassThroughPendingStatesInTheirOwnTime)
{
    services_.Install(u"Velmora", kPath).startTime = 3000;
    EXPECT_EQ(Start(), DWORD{NO_ERROR});
    EXPECT_EQ(State(), DWORD{SERVICE_START_PENDING});
    EXPECT_EQ(Start(), DWORD{ERROR_SERVICE_ALREADY_RUNNING});
    EXPECT_EQ(Stop(), DWORD{ERROR_SERVICE_CANNOT_ACCEPT_CTRL});
    pc_.Advance(2999);
    EXPECT_EQ(State(), DWORD{SERVICE_START_PENDING});
    pc_.Advance(1);
    EXPECT_EQ(State(), DWORD{SERVICE_RUNNING});
    EXPECT_EQ(Stop(), DWORD{NO_ERROR});
    EXPECT_EQ(State(), DWORD{SERVICE_STOP_PENDING});
    pc_.Advance(200);
    EXPECT_EQ(State(), DWORD{SERVICE_STOPPED});
    EXPECT_EQ(Stop(), DWORD{ERROR_SERVICE_NOT_ACTIVE});
}

TEST_F(Services, Accounts_MustBeKnownWhenCreatedAndFitWhenStarted)
{
    EXPECT_EQ(Create(u"OFFICE\\nobody", u""), DWORD{ERROR_INVALID_SERVICE_ACCOUNT});
    EXPECT_EQ(Create(u"anna", u"secret"), DWORD{ERROR_INVALID_SERVICE_ACCOUNT}) << "an account needs its domain";
    EXPECT_EQ(Create(u"office\\ANNA", u"wrong"), DWORD{NO_ERROR});
    EXPECT_EQ(Start(), DWORD{ERROR_SERVICE_LOGON_FAILED});
    services_.Find(u"velmora")->password = u"secret";
    EXPECT_EQ(Start(), DWORD{NO_ERROR});
    services_.SetState(u"Velmora", SERVICE_STOPPED);
    services_.Delete(u"Velmora");
    EXPECT_EQ(Create(u"LocalSystem", u""), DWORD{NO_ERROR});
    pc_.Get<platform::Users>().AddAccount(u".\\helper", u"x");
    EXPECT_TRUE(pc_.Get<platform::Users>().PasswordFits(u"studio\\Helper", u"x")) << "a dot is this computer";
}

TEST_F(Services, DeletedWhileRunning_GoesWhenItHasStoppedAndNobodyHoldsIt)
{
    services_.Install(u"Velmora", kPath);
    services_.SetState(u"Velmora", SERVICE_RUNNING);
    ServiceHandle service = Open(SERVICE_ALL_ACCESS);
    SERVICE_STATUS status{};
    EXPECT_TRUE(ControlService(service.Get(), SERVICE_CONTROL_STOP, &status));
    EXPECT_EQ(status.dwCurrentState, DWORD{SERVICE_STOP_PENDING});
    EXPECT_TRUE(DeleteService(service.Get()));
    service.Reset();
    EXPECT_EQ(State(), DWORD{SERVICE_STOP_PENDING}) << "it is still there";
    EXPECT_EQ(Create(u"LocalSystem", u""), DWORD{ERROR_SERVICE_MARKED_FOR_DELETE});
    pc_.Advance(200);
    EXPECT_EQ(State(), 0u);
    EXPECT_EQ(Create(u"LocalSystem", u""), DWORD{NO_ERROR});
}

}  // namespace
