#include "app/AgentName.h"

#include <gtest/gtest.h>

namespace {

TEST(AgentName, IsTheFirstWordOfTheUtilitysName)
{
    EXPECT_EQ(app::DeriveAgentName(TEXT("Foo Bar")), TEXT("Foo"));
    for (const base::String utility :
         {TEXT("Velmora Setup Utility"), TEXT("setup"), TEXT(" Foo Bar"), TEXT(".Foo Bar"), TEXT("Foo. Bar"), TEXT("")})
        EXPECT_EQ(app::DeriveAgentName(utility), TEXT("Velmora")) << testing::PrintToString(utility);
}

}  // namespace
