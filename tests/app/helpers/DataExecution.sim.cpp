#include "app/helpers/DataExecution.h"

#include "platform/sim/Machine.h"
#include "platform/sim/Modules.h"
#include "platform/sim/SimPc.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

TEST(DataExecution, Policy_FollowsItsTwoSwitches)
{
    SimPc& pc = SimPc::Current();
    pc.Get<Machine>().Wow64(true);  // 64-bit processes have no choice
    const std::tuple<bool, bool, std::optional<DWORD>> cases[] = {
        {false, true, std::nullopt}, {false, false, 0}, {true, false, 1}, {true, true, 3}};
    for (const auto& [enable, disableThunks, flags] : cases) {
        EXPECT_EQ(helpers::SetDEPPolicy(enable, disableThunks), flags.has_value()) << enable << ", " << disableThunks;
        EXPECT_EQ(pc.Get<Machine>().DepPolicy(), flags) << enable << ", " << disableThunks;
    }
    pc.Get<Modules>().RemoveExport(u"kernel32.dll", "SetProcessDEPPolicy");
    EXPECT_FALSE(helpers::SetDEPPolicy(true, true));
}

}  // namespace
