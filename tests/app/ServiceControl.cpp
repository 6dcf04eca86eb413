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

    app::ServiceControl service;
    String account = TEXT("LocalSystem");
    DWORD startType = 99;
};

TEST_F(ServiceControl, MissingService_Gives1060AndASecondOne1073)
{
    EXPECT_EQ(service.ServiceGetConfig(account, startType), 1060u);
    EXPECT_EQ(account, TEXT(""));
    EXPECT_EQ(startType, 99u);
    EXPECT_EQ(service.ServiceGetState(), 0u);
    EXPECT_EQ(service.ServiceStart(), 1060u);
    EXPECT_EQ(service.ServiceStop(), 1060u);
    EXPECT_EQ(service.ServiceUninstall(), 1060u);
    account = TEXT("LocalSystem");
    ASSERT_EQ(service.ServiceInstall(account, {}, TEXT("C:\\A b\\"), SERVICE_DEMAND_START, false), 0u);
    EXPECT_EQ(service.ServiceGetState(), 1u);
    EXPECT_EQ(service.ServiceInstall(account, {}, TEXT("C:\\"), SERVICE_AUTO_START, false), 1073u);
    EXPECT_EQ(service.ServiceUninstall(), 0u);
    EXPECT_EQ(service.ServiceGetState(), 0u);
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
    // Asked past the class under test.
    const base::ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    const base::ServiceHandle handle(OpenServiceW(manager.Get(), scratchService, SERVICE_QUERY_CONFIG));
    alignas(QUERY_SERVICE_CONFIGW) BYTE buffer[4096];
    auto& config = *reinterpret_cast<QUERY_SERVICE_CONFIGW*>(buffer);
    DWORD needed = 0;
    ASSERT_TRUE(QueryServiceConfigW(handle.Get(), &config, sizeof buffer, &needed));
    EXPECT_EQ(config.dwServiceType, 0x110u);
}

}  // namespace
