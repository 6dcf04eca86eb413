// The value that starts the agent at logon, in the real registry.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

TEST_F(EndToEnd, AutoStart_WrittenShownAgainAndRemoved)
{
    {
        Utility utility(exe_);
        ASSERT_TRUE(utility.Opened());
        utility.Click("CheckAutoStart");
        ASSERT_TRUE(Eventually([&] { return utility.Enabled("CheckHideTrayIcon") && utility.Enabled("CheckSoundStart"); }));
        utility.Click("CheckHideTrayIcon");
        utility.Click("CheckSoundStart");
        utility.Click("CommandOk");
        ASSERT_TRUE(utility.Ended());
    }
    EXPECT_EQ(AutoStartValue(), TEXT("\"") + agent_ + TEXT("\" /Hidden /SoundStart"));

    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    for (const char* name : {"CheckAutoStart", "CheckHideTrayIcon", "CheckSoundStart"})
        EXPECT_TRUE(utility.Checked(name) && utility.Enabled(name)) << name;
    utility.Click("CheckAutoStart");
    ASSERT_TRUE(Eventually([&] { return !utility.Enabled("CheckHideTrayIcon"); }));
    utility.Click("CommandOk");
    ASSERT_TRUE(utility.Ended());
    EXPECT_EQ(AutoStartValue(), std::nullopt);
}

}  // namespace e2e
