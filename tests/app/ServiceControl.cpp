#include "app/ServiceControl.h"

#include "base/Handles.h"

#include <gtest/gtest.h>

using base::String;

namespace {

constexpr const WCHAR* scratchService = TEXT("VelmoraTestService");

class ServiceControl : public testing::Test {
protected:
    ServiceControl() { service.ServiceSetInfo(TEXT("Foo.exe"), scratchService, TEXT("Test Service"), TEXT("Servizio di prova")); }
    ~ServiceControl() override { service.ServiceUninstall(); }

    /// What the service database holds, asked past the class under test.
    template <class Query>
    std::vector<BYTE> Ask(Query query)
    {
        const base::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
        const base::ServiceHandle handle(OpenServiceW(manager.Get(), scratchService, SERVICE_QUERY_CONFIG));
        std::vector<BYTE> buffer(4096);
        DWORD needed = 0;
        EXPECT_TRUE(query(handle.Get(), buffer, needed));
        return buffer;
    }

    app::ServiceControl service;
    String account = TEXT("LocalSystem");
    DWORD startType = 99;
};

TEST_F(ServiceControl, MissingService_Gives1060Everywhere)
{
    EXPECT_EQ(service.ServiceGetConfig(account, startType), 1060u);
    EXPECT_EQ(account, TEXT(""));
    EXPECT_EQ(startType, 99u);
    EXPECT_EQ(service.ServiceGetState(), 0u);
    EXPECT_EQ(service.ServiceStart(), 1060u);
    EXPECT_EQ(service.ServiceStop(), 1060u);
    EXPECT_EQ(service.ServiceUninstall(), 1060u);
}

TEST_F(ServiceControl, Installed_HasItsConfigurationAndDescription)
{
    ASSERT_EQ(service.ServiceInstall(account, {}, TEXT("C:\\A b\\"), SERVICE_DEMAND_START, false), 0u);
    const auto config = Ask([](SC_HANDLE handle, std::vector<BYTE>& buffer, DWORD& needed) {
        return QueryServiceConfigW(handle, reinterpret_cast<QUERY_SERVICE_CONFIGW*>(buffer.data()), static_cast<DWORD>(buffer.size()),
                                   &needed);
    });
    const auto& record = *reinterpret_cast<const QUERY_SERVICE_CONFIGW*>(config.data());
    EXPECT_EQ(record.dwServiceType, 16u);
    EXPECT_EQ(record.dwStartType, 3u);
    EXPECT_EQ(record.dwErrorControl, 1u);
    EXPECT_EQ(String(record.lpBinaryPathName), TEXT("\"C:\\A b\\Foo.exe\""));
    EXPECT_EQ(String(record.lpDisplayName), TEXT("Test Service"));
    const auto description = Ask([](SC_HANDLE handle, std::vector<BYTE>& buffer, DWORD& needed) {
        return QueryServiceConfig2W(handle, SERVICE_CONFIG_DESCRIPTION, buffer.data(), static_cast<DWORD>(buffer.size()), &needed);
    });
    EXPECT_EQ(String(reinterpret_cast<const SERVICE_DESCRIPTIONW*>(description.data())->lpDescription), TEXT("Servizio di prova"));

    EXPECT_EQ(service.ServiceGetConfig(account, startType), 0u);
    EXPECT_EQ(account, TEXT("LocalSystem"));
    EXPECT_EQ(startType, 3u);
    EXPECT_EQ(service.ServiceGetState(), 1u);
    EXPECT_EQ(service.ServiceInstall(account, {}, TEXT("C:\\"), SERVICE_AUTO_START, false), 1073u);
    EXPECT_EQ(service.ServiceUninstall(), 0u);
    EXPECT_EQ(service.ServiceGetConfig(account, startType), 1060u);
}

TEST_F(ServiceControl, LongConfiguration_IsReadInASecondTry)
{
    const String folder = TEXT("C:\\") + String(1000, TEXT('f')) + TEXT("\\");
    ASSERT_EQ(service.ServiceInstall(account, {}, folder, SERVICE_DISABLED, false), 0u);
    EXPECT_EQ(service.ServiceGetConfig(account, startType), 0u);
    EXPECT_EQ(account, TEXT("LocalSystem"));
    EXPECT_EQ(startType, 4u);
}

TEST_F(ServiceControl, InteractiveFlag_IsForTheSystemAccount)
{
    ASSERT_EQ(service.ServiceInstall(account, {}, TEXT("C:\\"), SERVICE_DEMAND_START, true), 0u);
    const auto config = Ask([](SC_HANDLE handle, std::vector<BYTE>& buffer, DWORD& needed) {
        return QueryServiceConfigW(handle, reinterpret_cast<QUERY_SERVICE_CONFIGW*>(buffer.data()), static_cast<DWORD>(buffer.size()),
                                   &needed);
    });
    EXPECT_EQ(reinterpret_cast<const QUERY_SERVICE_CONFIGW*>(config.data())->dwServiceType, 0x110u);
}

}  // namespace
