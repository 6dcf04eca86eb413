#include "app/ServiceControl.h"

#include "platform/sim/Services.h"
#include "platform/sim/Volumes.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

/// Asking for more rights than an operation needs fails where the user may do the thing.
TEST(ServiceRights, EachOperation_AsksForTheRightsThatItNeeds)
{
    SimPc& pc = SimPc::Current();
    pc.Get<Volumes>().WriteFile(u"C:\\Foo.exe", "");
    app::ServiceControl service;
    service.ServiceSetInfo(TEXT("Foo.exe"), TEXT("Foo"), TEXT("Foo Service"), TEXT("text"));
    base::String account = TEXT("LocalSystem");
    DWORD startType = 0;
    const auto install = [&] { return service.ServiceInstall(account, {}, TEXT("C:\\"), SERVICE_DEMAND_START, false); };
    const auto uninstall = [&] {
        pc.Advance(1000);
        EXPECT_EQ(service.ServiceStart(), 0u);
        pc.Advance(1000);
        return service.ServiceUninstall();
    };
    const std::tuple<std::function<DWORD()>, DWORD, const char*, const char*> operations[] = {
        {install, 0, "0xF003F", ", 0xF01FF, "},
        {[&] { return service.ServiceGetConfig(account, startType); }, 0, "1", ", 1"},
        {[&] { return service.ServiceGetState(); }, SERVICE_STOPPED, "1", ", 4"},
        {[&] { return service.ServiceStart(); }, 0, "1", ", 0x10"},
        {[&] { return pc.Advance(1000), service.ServiceStop(); }, 0, "1", ", 0x20"},
        {uninstall, 0, "1", ", 0xF01FF"}};
    for (const auto& [operation, result, manager, rights] : operations) {
        pc.Trace().Start();
        EXPECT_EQ(operation(), result) << rights;
        const bool creates = pc.Trace().Count("CreateServiceW") != 0;
        const std::string opened = pc.Trace().Of("OpenSCManagerW").back().arguments;
        EXPECT_TRUE(opened.ends_with(std::string(", ") + manager)) << opened;
        const std::string arguments = pc.Trace().Of(creates ? "CreateServiceW" : "OpenServiceW").back().arguments;
        EXPECT_TRUE(creates ? arguments.find(rights) != std::string::npos : arguments.ends_with(rights)) << arguments << " for" << rights;
    }
    EXPECT_EQ(service.ServiceGetState(), 3u) << "a service that runs is stopped and not waited for";
    pc.Advance(1000);
    EXPECT_EQ(pc.Get<Services>().Count(), 0u);
}

}  // namespace
