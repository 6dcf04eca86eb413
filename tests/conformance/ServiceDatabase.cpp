// Facts about the service control manager, on a service of the test's own that never starts.
#include "base/Handles.h"
#include "base/String.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using base::ServiceHandle;
using base::String;

constexpr LPCWSTR kName = TEXT("VelmoraConformance");
constexpr LPCWSTR kPath = TEXT("\"C:\\No Such Folder\\agent.exe\"");

class ServiceDatabase : public testing::Test {
protected:
    ServiceDatabase()
        : manager_(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS)),
          service_(Create(TEXT("Velmora Conformance Service"), SERVICE_DISABLED))
    {
        EXPECT_TRUE(service_) << GetLastError();
    }
    ~ServiceDatabase() override { DeleteService(service_.Get()); }

    [[nodiscard]] ServiceHandle Create(LPCWSTR displayName, DWORD startType = SERVICE_DEMAND_START) const
    {
        return ServiceHandle(CreateServiceW(manager_.Get(), kName, displayName, SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS, startType,
                                            SERVICE_ERROR_NORMAL, kPath, nullptr, nullptr, nullptr, TEXT("LocalSystem"), TEXT("")));
    }
    [[nodiscard]] ServiceHandle Open(DWORD access, LPCWSTR name = kName) const
    {
        return ServiceHandle(OpenServiceW(manager_.Get(), name, access));
    }

    ServiceHandle manager_, service_;
};

DWORD ErrorOf(BOOL result)
{
    return result ? NO_ERROR : GetLastError();
}

TEST_F(ServiceDatabase, StoppedService_RefusesControlsAndDisabledOneRefusesToStart)
{
    SERVICE_STATUS status{};
    ASSERT_TRUE(QueryServiceStatus(service_.Get(), &status));
    EXPECT_EQ(status.dwCurrentState, static_cast<DWORD>(SERVICE_STOPPED));
    EXPECT_EQ(ErrorOf(ControlService(service_.Get(), SERVICE_CONTROL_STOP, &status)), static_cast<DWORD>(ERROR_SERVICE_NOT_ACTIVE));
    EXPECT_EQ(ErrorOf(StartServiceW(service_.Get(), 0, nullptr)), static_cast<DWORD>(ERROR_SERVICE_DISABLED));
}

TEST_F(ServiceDatabase, Refusals)
{
    EXPECT_FALSE(Create(TEXT("Another")));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SERVICE_EXISTS));
    EXPECT_FALSE(Open(SERVICE_QUERY_STATUS, TEXT("VelmoraNoSuchService")));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SERVICE_DOES_NOT_EXIST));
    const ServiceHandle watcher = Open(SERVICE_QUERY_STATUS);
    EXPECT_EQ(ErrorOf(StartServiceW(watcher.Get(), 0, nullptr)), static_cast<DWORD>(ERROR_ACCESS_DENIED)) << "the handle lacks the right";
    EXPECT_EQ(ErrorOf(DeleteService(watcher.Get())), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    const ServiceHandle connected(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    EXPECT_EQ(CreateServiceW(connected.Get(), TEXT("VelmoraOther"), nullptr, SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS,
                             SERVICE_DEMAND_START, SERVICE_ERROR_NORMAL, kPath, nullptr, nullptr, nullptr, nullptr, nullptr),
              nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
}

TEST_F(ServiceDatabase, Deletion_WaitsForTheLastHandle)
{
    ServiceHandle other = Open(SERVICE_QUERY_STATUS);
    ASSERT_TRUE(DeleteService(service_.Get()));
    EXPECT_EQ(ErrorOf(DeleteService(service_.Get())), static_cast<DWORD>(ERROR_SERVICE_MARKED_FOR_DELETE));
    service_.Reset();
    SERVICE_STATUS status{};
    EXPECT_TRUE(QueryServiceStatus(other.Get(), &status));
    other.Reset();
    EXPECT_FALSE(Open(SERVICE_QUERY_STATUS));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SERVICE_DOES_NOT_EXIST));
}

}  // namespace
