#include "base/Handle.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<int> closed;

/// Numbers that are closed noisily: the way in which Windows' own closing calls change the last error.
struct NumberTraits {
    using Type = int;
    static Type None() { return -1; }
    static void Close(Type number)
    {
        closed.push_back(number);
        SetLastError(ERROR_INVALID_HANDLE);
    }
};
using Number = base::Handle<NumberTraits>;
using Numbers = std::vector<int>;

class Handle : public testing::Test {
protected:
    Handle() { closed.clear(); }
};

TEST_F(Handle, ClosesOnceAndKeepsTheLastError)
{
    {
        const Number nothing;
        const Number zero(0);
        EXPECT_FALSE(nothing);
        EXPECT_TRUE(zero) << "only the value that the traits name is none";
        SetLastError(ERROR_FILE_NOT_FOUND);
    }
    EXPECT_EQ(closed, Numbers{0});
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
}

TEST_F(Handle, Moved_LeavesTheSourceEmpty)
{
    Number first(1), second(2);
    Number third(std::move(first));
    EXPECT_FALSE(first);
    EXPECT_EQ(third.Get(), 1);
    third = std::move(second);
    EXPECT_EQ(closed, Numbers{1}) << "what the target owned";
    EXPECT_EQ(third.Get(), 2);
    Number& same = third;
    third = std::move(same);
    EXPECT_EQ(third.Get(), 2);
    EXPECT_EQ(closed, Numbers{1}) << "moved onto itself it stays as it is";
}

TEST_F(Handle, ResetReleaseAndReceive_TellWhoOwns)
{
    Number number(1);
    number.Reset(2);
    EXPECT_EQ(closed, Numbers{1});
    EXPECT_EQ(number.Release(), 2);
    EXPECT_FALSE(number);
    EXPECT_EQ(closed, Numbers{1}) << "given away, not closed";
    *number.Receive() = 3;
    *number.Receive() = 4;
    EXPECT_EQ(closed, (Numbers{1, 3}));
    number.Reset();
    EXPECT_FALSE(number);
    EXPECT_EQ(closed, (Numbers{1, 3, 4}));
}

}  // namespace
