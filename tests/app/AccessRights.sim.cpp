// Which rights the program asks for: all that an operation needs and no other. Asking for more fails where the user may do the thing.
#include "app/RegistryValues.h"
#include "app/ServiceControl.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace platform;

namespace {

class AccessRights : public testing::Test {
protected:
    AccessRights() { service.ServiceSetInfo(TEXT("Foo.exe"), TEXT("Foo"), TEXT("Foo Service"), TEXT("text")); }

    /// The masks that the action asked for, each behind the kind of object.
    std::string Asked(const std::function<void()>& action)
    {
        const std::tuple<std::string, std::string, int> askers[] = {{"OpenSCManagerW", "manager", 2},
                                                                    {"OpenServiceW", "service", 2},
                                                                    {"CreateServiceW", "new service", 3},
                                                                    {"RegOpenKeyExW", "key", 3}};
        pc.Trace().Start();
        action();
        pc.Trace().Stop();
        std::string asked;
        for (const CallRecord& call : pc.Trace().Records())
            for (const auto& [function, object, place] : askers) {
                if (call.name != function)
                    continue;
                std::istringstream arguments(call.arguments);
                std::string argument;
                for (int i = 0; i <= place; ++i)
                    std::getline(arguments, argument, ',');
                asked += (asked.empty() ? "" : ", ") + object + argument;
            }
        return asked;
    }

    SimPc& pc = SimPc::Current();
    app::ServiceControl service;
    base::String account = TEXT("LocalSystem");
    DWORD startType = 0;
};

TEST_F(AccessRights, ServiceOperations)
{
    pc.Get<Volumes>().WriteFile(u"C:\\Foo.exe", "");
    const std::pair<std::function<void()>, std::string> operations[] = {
        {[&] { service.ServiceInstall(account, {}, TEXT("C:\\"), SERVICE_DEMAND_START, false); }, "manager 0xF003F, new service 0xF01FF"},
        {[&] { EXPECT_EQ(service.ServiceGetConfig(account, startType), 0u); }, "manager 1, service 1"},
        {[&] { EXPECT_EQ(service.ServiceGetState(), 1u); }, "manager 1, service 4"},
        {[&] { EXPECT_EQ(service.ServiceStart(), 0u); }, "manager 1, service 0x10"},
        {[&] {
             pc.Advance(1000);
             EXPECT_EQ(service.ServiceStop(), 0u);
         },
         "manager 1, service 0x20"},
        {[&] { EXPECT_EQ(service.ServiceUninstall(), 0u); }, "manager 1, service 0xF01FF"}};
    for (const auto& [operation, rights] : operations)
        EXPECT_EQ(Asked(operation), rights);
}

TEST_F(AccessRights, RegistryKeys)
{
    const WCHAR* const key = TEXT("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
    for (const bool wide : {false, true}) {
        const auto read = [&] { app::ReadRegValue(HKEY_LOCAL_MACHINE, key, TEXT("Velmora"), wide); };
        const auto open = [&] { app::CloseRegKey(app::OpenRegKey(HKEY_LOCAL_MACHINE, key, wide)); };
        const std::string write = wide ? "key 0x2013F" : "key 0x2003F";
        pc.Get<Users>().Administrator(true);
        EXPECT_EQ(Asked(read), write);
        pc.Get<Users>().Administrator(false);
        EXPECT_EQ(Asked(read), write + (wide ? ", key 0x20119" : ", key 0x20019"));
        EXPECT_EQ(Asked(open), write) << "who wants to write is not given less";
    }
}

}  // namespace
