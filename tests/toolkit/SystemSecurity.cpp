#include "toolkit/SystemSecurity.h"

#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>

using toolkit::SystemSecurity;

namespace {

constexpr const WCHAR* debug = TEXT("SeDebugPrivilege");

TEST(SystemSecurity, Setting_GivesTheStateBeforeAndReadingLeavesIt)
{
    std::int32_t previous = -7;
    SystemSecurity::SetPrivilege(debug, 0, previous);
    for (const auto& [request, before] : {std::pair{1, 0}, {1, 1}, {-1, 1}, {0, 1}, {0, 0}, {-1, 0}, {1, 0}, {2, 1}, {-1, 0}}) {
        EXPECT_EQ(SystemSecurity::SetPrivilege(debug, request, previous), 1);
        EXPECT_EQ(previous, before) << "request " << request;
        const int now = request == -1 ? before : request == 1;
        EXPECT_EQ(SystemSecurity::GetPrivilege(debug), now);
        EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), now);
    }
    EXPECT_EQ(SystemSecurity::SetPrivilegeEx(20, true), 0);
    EXPECT_EQ(SystemSecurity::SetPrivilegeEx(20, false), 1);
    EXPECT_EQ(SystemSecurity::GetPrivilege(debug), 0);
}

TEST(SystemSecurity, WhatIsNotHeldOrUnknown_Fails)
{
    // Creating tokens is for the system alone: the name is known and no token here holds it.
    std::int32_t previous = -7;
    EXPECT_EQ(SystemSecurity::GetPrivilege(TEXT("SeCreateTokenPrivilege")), 0);
    EXPECT_EQ(SystemSecurity::SetPrivilege(TEXT("SeCreateTokenPrivilege"), 1, previous), 0);
    EXPECT_EQ(previous, 0);
    EXPECT_EQ(SystemSecurity::SetPrivilegeEx(2, true), -1);
    previous = -7;
    EXPECT_EQ(SystemSecurity::SetPrivilege(TEXT("SeNoSuchPrivilege"), 1, previous), -1);
    EXPECT_EQ(previous, -7);
    EXPECT_EQ(SystemSecurity::GetPrivilege(TEXT("SeNoSuchPrivilege")), -1);
}

TEST(SystemSecurity, Restore_PutsTheDebugPrivilegeBack)
{
    SystemSecurity security;
    std::int32_t previous = 0;
    for (const int state : {0, 1}) {
        SystemSecurity::SetPrivilege(debug, state, previous);
        EXPECT_EQ(security.SetDebugPrivilege(1 - state), 1);
        EXPECT_EQ(security.PreviousDebugPrivilege(), state);
        EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 1 - state);
        EXPECT_EQ(security.RestoreDebugPrivilege(), 1);
        EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), state);
    }
    EXPECT_EQ(SystemSecurity().PreviousDebugPrivilege(), 0);
    EXPECT_EQ(SystemSecurity().RestoreDebugPrivilege(), 1);
    EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 0) << "never set counts as set from disabled";
}

TEST(SystemSecurity, TaskManLight_SwitchesByNumber)
{
    toolkit::TaskManLight tools;
    EXPECT_EQ(tools.DebugPrivilegeResult, 0);
    tools.EnableDebugPrivilege();
    EXPECT_EQ(tools.DebugPrivilegeResult, 1);
    tools.RestoreDebugPrivilege();
    EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 1);
    tools.DisableDebugPrivilege();
    EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 0);
}

}  // namespace
