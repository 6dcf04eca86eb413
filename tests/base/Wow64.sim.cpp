#include "base/Wow64.h"

#include "platform/sim/Machine.h"
#include "platform/sim/Modules.h"
#include "platform/sim/SimPc.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

class Wow64 : public testing::Test {
protected:
    Wow64() { base::ForgetWow64(); }
    ~Wow64() override { base::ForgetWow64(); }

    SimPc& pc = SimPc::Current();
};

TEST_F(Wow64, IsAskedOnce)
{
    EXPECT_FALSE(base::IsWow64());
    pc.Get<Machine>().Wow64(true);
    EXPECT_FALSE(base::IsWow64());
    base::ForgetWow64();
    EXPECT_TRUE(base::IsWow64());
    pc.Get<Machine>().Wow64(false);
    EXPECT_TRUE(base::IsWow64());
}

TEST_F(Wow64, WithoutAnAnswer_IsNo)
{
    pc.Get<Machine>().Wow64(true);
    const std::pair<const char*, bool> failures[] = {
        {"GetModuleHandleW", true}, {"GetProcAddress", false}, {"IsWow64Process", false}};  // a module can be loaded too
    for (const auto& [function, answer] : failures) {
        base::ForgetWow64();
        pc.GetFaults().FailAlways(function, ERROR_ACCESS_DENIED);
        EXPECT_EQ(base::IsWow64(), answer) << function;
        pc.GetFaults().Clear();
    }
    base::ForgetWow64();
    pc.Get<Modules>().RemoveExport(u"kernel32.dll", "IsWow64Process");
    EXPECT_FALSE(base::IsWow64()) << "an old Windows";
}

}  // namespace
