// The shutdown password, from the keys of the keyboard to the settings file and back, and the ways out of the window that keep or drop it.
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

TEST_F(EndToEnd, EscAltF5AndTheCloseBox_DropWhatWasTyped)
{
    for (const std::string_view way : {"Esc", "Alt+F5", "the close box"}) {
        SCOPED_TRACE(way);
        Utility utility(exe_);
        ASSERT_TRUE(utility.Opened());
        utility.Enter("TextPassword", TEXT("other"));
        ASSERT_TRUE(Eventually([&] { return SendMessageW(utility.Shown("TextPassword"), WM_GETTEXTLENGTH, 0, 0) == 5; }));
        if (way == "Esc")
            utility.Press({VK_ESCAPE});
        else if (way == "Alt+F5")
            utility.Press({VK_MENU, VK_F5});
        else
            utility.ClickCloseBox();
        EXPECT_TRUE(utility.Ended());
        EXPECT_EQ(utility.ExitCode(), 0u);
        EXPECT_EQ(GetFileAttributesW(settings_.c_str()), INVALID_FILE_ATTRIBUTES);
    }
}

}  // namespace e2e
