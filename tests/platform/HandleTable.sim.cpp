#include "platform/sim/SimPc.h"

#include <gtest/gtest.h>

namespace {

struct Thing : platform::Object {};
struct Other : platform::Object {};

TEST(HandleTable, ClosedHandle_StaysStaleWhenItsSlotIsUsedAgain)
{
    auto& table = platform::SimPc::Current().Handles();
    const auto first = table.Open(std::make_shared<Thing>());
    EXPECT_EQ(first % 4, 0u);
    EXPECT_LE(first, 0xFFFFFFFFu);
    EXPECT_TRUE(table.Find<Thing>(first));
    EXPECT_FALSE(table.Find<Other>(first)) << "a handle of another kind is not the same";
    EXPECT_TRUE(table.CloseAny(first));
    EXPECT_FALSE(table.CloseAny(first));
    for (int round = 0; round < 200; ++round) {
        const auto next = table.Open(std::make_shared<Thing>());
        EXPECT_NE(next, first);
        EXPECT_FALSE(table.FindAny(first));
        table.CloseAny(next);
    }
}

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

TEST(SimPc, Advance_RunsWhatFallsDueInOrderOfTime)
{
    auto& pc = platform::SimPc::Current();
    std::vector<int> order;
    pc.Clock().Schedule(300, [&] { order.push_back(3); });
    pc.Clock().Schedule(100, [&] {
        order.push_back(1);
        pc.Clock().Schedule(50, [&] { order.push_back(2); });
    });
    const auto cancelled = pc.Clock().Schedule(200, [&] { order.push_back(9); });
    pc.Clock().Cancel(cancelled);
    pc.Advance(299);
    EXPECT_EQ(order, (std::vector{1, 2}));
    pc.Advance(1);
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
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
