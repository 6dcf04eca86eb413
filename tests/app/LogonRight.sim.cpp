#include "app/LogonRight.h"

#include "platform/sim/Users.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

class LogonRight : public testing::Test {
protected:
    LogonRight()
    {
        users.AddAccount(u".\\anna", u"");
        users.AddAccount(u"OFFICE\\jdoe", u"");
        pc.Trace().Start();
    }

    SimPc& pc = SimPc::Current();
    Users& users = pc.Get<Users>();
};

TEST_F(LogonRight, GoesToTheNamedAccountAlone)
{
    EXPECT_FALSE(users.MayLogOnAsService(u".\\anna"));
    EXPECT_TRUE(app::GrantServiceLogon(TEXT(".\\anna")));
    EXPECT_TRUE(users.MayLogOnAsService(u".\\anna"));
    EXPECT_FALSE(users.MayLogOnAsService(u"OFFICE\\jdoe"));
    EXPECT_EQ(pc.Trace().Of("LsaOpenPolicy").back().arguments, "0x810") << "POLICY_CREATE_ACCOUNT and POLICY_LOOKUP_NAMES, no more";
}

TEST_F(LogonRight, BuiltInAndUnknownAccounts_GetNone)
{
    for (const WCHAR* account : {TEXT("LocalSystem"), TEXT("NT AUTHORITY\\LocalService"), TEXT("OFFICE\\nobody")})
        EXPECT_FALSE(app::GrantServiceLogon(account));
    EXPECT_EQ(pc.Trace().Count("LsaOpenPolicy"), 0u);
}

TEST_F(LogonRight, RefusedCalls_AnswerNoAndLeaveNothingOpen)
{
    for (const char* function : {"LookupAccountNameW", "LsaOpenPolicy", "LsaAddAccountRights"}) {
        pc.GetFaults().FailAlways(function, ERROR_ACCESS_DENIED);
        EXPECT_FALSE(app::GrantServiceLogon(TEXT(".\\anna"))) << function;
        EXPECT_FALSE(users.MayLogOnAsService(u".\\anna"));
        pc.GetFaults().Clear();
    }
}

}  // namespace
