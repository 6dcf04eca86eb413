#include "app/AgentName.h"

#include <gtest/gtest.h>

namespace {

TEST(AgentName, IsTheFirstWordOfTheUtilitysName)
{
    const struct {
        const WCHAR* utility;
        const WCHAR* agent;
    } cases[] = {
        {TEXT("Velmora Setup Utility"), TEXT("Velmora")},
        {TEXT("Foo Bar"), TEXT("Foo")},
        {TEXT("F b"), TEXT("F")},
        {TEXT("setup"), TEXT("Velmora")},
        {TEXT(" Foo Bar"), TEXT("Velmora")},
        {TEXT(".Foo Bar"), TEXT("Velmora")},
        {TEXT("Foo. Bar"), TEXT("Velmora")},
        {TEXT(""), TEXT("Velmora")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(app::DeriveAgentName(c.utility), c.agent) << &c - cases;
}

}  // namespace
