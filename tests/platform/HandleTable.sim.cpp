#include "platform/sim/SimPc.h"

#include <gtest/gtest.h>

namespace {

struct Thing : platform::Object {};

TEST(HandleTable, OpenHandle_IsNamedAsLeakOnlyWhenWatched)
{
    auto& table = platform::SimPc::Current().Handles();
    const auto ignored = table.Open(std::make_shared<Thing>(), platform::HandleTable::Watch::Ignore);
    const auto watched = table.Open(std::make_shared<Thing>());
    ASSERT_EQ(table.Leaks().size(), 1u);
    EXPECT_NE(table.Leaks()[0].find("from"), std::string::npos);
    table.CloseAny(watched);
    table.CloseAny(ignored);
    EXPECT_EQ(table.Count(), 0u);
}

TEST(Faults, FailCallAndFailNth_StrikeOnce)
{
    platform::Faults faults;
    faults.FailCall("OpenThing", 5, 2);
    DWORD error = 1;
    EXPECT_FALSE(faults.Strikes("OpenThing", error));
    EXPECT_TRUE(faults.Strikes("OpenThing", error));
    EXPECT_EQ(error, 5u);
    EXPECT_FALSE(faults.Strikes("OpenThing", error));
    faults.FailNth(2);
    error = 7;
    EXPECT_FALSE(faults.Strikes("A", error));
    EXPECT_TRUE(faults.Strikes("B", error));
    EXPECT_EQ(error, 7u) << "a swept failure keeps the gate's own error";
    EXPECT_EQ(faults.Struck(), "B");
    EXPECT_FALSE(faults.Strikes("C", error));
    EXPECT_EQ(faults.Counted(), 3u);
}

}  // namespace
