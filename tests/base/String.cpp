#include "base/String.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using base::String;

const String umlauts = {static_cast<WCHAR>(0xE4), static_cast<WCHAR>(0xDF), static_cast<WCHAR>(0xFF)};
const String upperUmlauts = {static_cast<WCHAR>(0xC4), static_cast<WCHAR>(0xDF), static_cast<WCHAR>(0x178)};

TEST(String, Trim_TakesBlanksOnlyAndOnlyAtTheEnds)
{
    EXPECT_EQ(base::Trim(TEXT("  a b  ")), TEXT("a b"));
    EXPECT_EQ(base::Trim(TEXT("   ")), TEXT(""));
    EXPECT_EQ(base::Trim(TEXT("\ta\r\n")), TEXT("\ta\r\n"));
    EXPECT_EQ(base::Trim(String(1, static_cast<WCHAR>(0xA0))).size(), 1u) << "the blank that does not break";
}

TEST(String, UpToZero_LeavesWhatHasNone)
{
    EXPECT_EQ(base::UpToZero(String(TEXT("a\0b"), 4)), TEXT("a"));
    EXPECT_EQ(base::UpToZero(TEXT("ab")), TEXT("ab"));
    EXPECT_EQ(base::UpToZero(String(2, TEXT('\0'))), TEXT(""));
}

TEST(String, ToDecimal_TakesAllOf64Bits)
{
    EXPECT_EQ(base::ToDecimal(0), TEXT("0"));
    EXPECT_EQ(base::ToDecimal(4294967295), TEXT("4294967295"));
    EXPECT_EQ(base::ToDecimal(std::numeric_limits<long long>::min()), TEXT("-9223372036854775808"));
}

TEST(String, Case_IsThatOfWindows)
{
    EXPECT_EQ(base::ToUpper(TEXT("aZ1_") + umlauts), TEXT("AZ1_") + upperUmlauts) << "no capital for the sharp s";
    EXPECT_TRUE(base::EqualsIgnoringCase(TEXT("a") + umlauts, TEXT("A") + upperUmlauts));
    EXPECT_FALSE(base::EqualsIgnoringCase(TEXT("a"), TEXT("ab")));
    EXPECT_FALSE(base::EqualsIgnoringCase(TEXT("["), TEXT("{"))) << "neighbours of the letters";
    EXPECT_EQ(base::FindIgnoringCase(TEXT("x /hidden"), TEXT("/HIDDEN")), 2u);
    EXPECT_EQ(base::FindIgnoringCase(TEXT("abc"), TEXT("")), 0u);
    EXPECT_EQ(base::FindIgnoringCase(TEXT("abc"), TEXT("abcd")), String::npos);
}

}  // namespace
