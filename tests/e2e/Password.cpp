// The shutdown password, from the keys of the keyboard to the settings file and back.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

TEST_F(EndToEnd, TypedPassword_IsStoredByOkAndShownAgainMasked)
{
    const std::pair<base::StringView, std::string> cases[] = {
        {TEXT("abc"), "AYWJj"}, {TEXT("p\u20ac"), "WcACsIA=="}, {TEXT("\u00e9 /+="), "A6SAvKz0="}};
    for (const auto& [typed, stored] : cases) {
        const std::string settings = "[Settings]\r\nPwd=" + stored + "\r\n";
        DeleteFileW(settings_.c_str());
        {
            Utility utility(exe_);
            ASSERT_TRUE(utility.Opened());
            utility.Enter("TextPassword", typed);
            EXPECT_TRUE(SendMessageW(utility.Shown("TextPassword"), EM_GETPASSWORDCHAR, 0, 0)) << "not masked";
            utility.Click("CommandOk");
            ASSERT_TRUE(utility.Ended());
            EXPECT_EQ(utility.ExitCode(), 0u);
        }
        EXPECT_EQ(tests::BytesOf(settings_), settings);

        // What the box shows next time is what it stores again when one more character is typed and taken back.
        Utility again(exe_);
        ASSERT_TRUE(again.Opened());
        DeleteFileW(settings_.c_str());
        again.Click("TextPassword");
        again.Press({VK_END});
        again.Press({'X'});
        again.Press({VK_BACK});
        again.Click("CommandOk");
        ASSERT_TRUE(again.Ended());
        EXPECT_EQ(tests::BytesOf(settings_), settings);
    }
}

}  // namespace e2e
