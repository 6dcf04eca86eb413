#include "host/AccessKey.h"

#include <gtest/gtest.h>

#include <utility>

namespace tests {

TEST(AccessKey, IsTheLetterBehindTheFirstSingleMark)
{
    const std::pair<const WCHAR*, const WCHAR*> cases[] = {
        {TEXT("Save && E&xit"), TEXT("x")}, {TEXT("A&"), TEXT("")}, {TEXT("&OK"), TEXT("O")}, {TEXT("&&&&"), TEXT("")},
        {TEXT("&&&a"), TEXT("a")},          {TEXT(""), TEXT("")},   {TEXT("&"), TEXT("")}};
    for (const auto& [caption, key] : cases)
        EXPECT_EQ(host::AccessKeyOf(caption), key) << testing::PrintToString(base::String(caption));
}

}  // namespace tests
