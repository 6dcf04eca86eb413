#include "toolkit/SystemSecurity.h"

#include "toolkit/TaskManLight.h"

#include <gtest/gtest.h>

using toolkit::SystemSecurity;

namespace {

constexpr const WCHAR* debug = TEXT("SeDebugPrivilege");

TEST(SystemSecurity, Reading_LeavesTheTokenAsItWas)
{
    std::int32_t previous = -7;
    for (const int state : {1, 0}) {
        ASSERT_EQ(SystemSecurity::SetPrivilege(debug, state, previous), 1);
        EXPECT_EQ(SystemSecurity::GetPrivilege(debug), state);
        EXPECT_EQ(SystemSecurity::GetPrivilege(debug), state);
        EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), state);
    }
}

TEST(SystemSecurity, Setting_GivesTheStateBefore)
{
    std::int32_t previous = -7;
    ASSERT_EQ(SystemSecurity::SetPrivilege(debug, 0, previous), 1);
    EXPECT_EQ(SystemSecurity::SetPrivilege(debug, 1, previous), 1);
    EXPECT_EQ(previous, 0);
    EXPECT_EQ(SystemSecurity::SetPrivilege(debug, 1, previous), 1);
    EXPECT_EQ(previous, 1);
    EXPECT_EQ(SystemSecurity::SetPrivilege(debug, -1, previous), 1);
    EXPECT_EQ(SystemSecurity::GetPrivilege(debug), 1);
    EXPECT_EQ(SystemSecurity::SetPrivilegeEx(20, false), 1);
    EXPECT_EQ(SystemSecurity::SetPrivilegeEx(20, true), 0);
    EXPECT_EQ(SystemSecurity::GetPrivilege(debug), 1);
}

TEST(SystemSecurity, UnknownNames_FailAndLeaveTheOutput)
{
    std::int32_t previous = -7;
    EXPECT_EQ(SystemSecurity::SetPrivilege(TEXT("SeNoSuchPrivilege"), 1, previous), -1);
    EXPECT_EQ(previous, -7);
    EXPECT_EQ(SystemSecurity::GetPrivilege(TEXT("SeNoSuchPrivilege")), -1);
    EXPECT_EQ(SystemSecurity::SetPrivilegeEx(3000, true), -1);
}

TEST(SystemSecurity, Restore_PutsTheDebugPrivilegeBack)
{
    SystemSecurity security;
    std::int32_t previous = 0;
    for (const int state : {0, 1}) {
        SystemSecurity::SetPrivilege(debug, state, previous);
        EXPECT_EQ(security.SetDebugPrivilege(1 - state), 1);
        EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 1 - state);
        EXPECT_EQ(security.RestoreDebugPrivilege(), 1);
        EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), state);
    }
    EXPECT_EQ(SystemSecurity().RestoreDebugPrivilege(), 1);
    EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 0) << "never set counts as set from disabled";
}

TEST(TaskManLightPrivileges, SwitchingByNumber_RemembersTheSuccess)
{
    toolkit::TaskManLight tools;
    EXPECT_EQ(tools.DebugPrivilegeResult, 0);
    tools.EnableDebugPrivilege();
    EXPECT_EQ(tools.DebugPrivilegeResult, 1);
    EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 1);
    tools.RestoreDebugPrivilege();
    EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 1);
    tools.DisableDebugPrivilege();
    EXPECT_EQ(SystemSecurity::GetDebugPrivilege(), 0);
}

}  // namespace
