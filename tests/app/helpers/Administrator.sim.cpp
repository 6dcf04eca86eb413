#include "app/helpers/Administrator.h"

#include "platform/sim/Modules.h"
#include "platform/sim/SimPc.h"
#include "platform/sim/Users.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

TEST(Administrator, IsKnownByAdvpack)
{
    SimPc& pc = SimPc::Current();
    EXPECT_TRUE(helpers::IsUserAdmin());
    pc.Get<Users>().Administrator(false);
    EXPECT_FALSE(helpers::IsUserAdmin());
    pc.Get<Users>().Administrator(true);
    pc.Get<Modules>().RemoveLibrary(u"advpack.dll");
    EXPECT_FALSE(helpers::IsUserAdmin());
}

}  // namespace
