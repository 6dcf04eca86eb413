#include "base/Wipe.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// A text whose memory can be looked at when it is empty.
struct Seen {
    WCHAR text[4] = {'w', 'o', 'r', 'd'};
    bool isEmpty = false;

    WCHAR* data() { return text; }
    [[nodiscard]] std::size_t size() const { return 4; }
    void clear() { isEmpty = true; }
};

TEST(Wipe, LeavesNothingBehind)
{
    Seen secret;
    {
        const base::WipeAtEnd wipe(secret);
        EXPECT_EQ(secret.text[3], TEXT('d'));
    }
    EXPECT_EQ(std::ranges::count(secret.text, TEXT('\0')), 4);
    EXPECT_TRUE(secret.isEmpty);
}

}  // namespace
