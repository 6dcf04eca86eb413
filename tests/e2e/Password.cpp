// The shutdown password, from the keys of the keyboard to the settings file and back, and the ways out of the window that keep or drop it.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

TEST_F(EndToEnd, TypedPassword_IsStoredByOkAndShownAgainMasked)
{
    const struct {
        base::StringView typed, stored;
    } cases[] = {
        {TEXT("abc"), TEXT("AYWJj")},
        {TEXT("p\u20ac"), TEXT("WcACsIA==")},
        {TEXT("\u00e9 /+="), TEXT("A6SAvKz0=")},
    };
    for (const auto& [typed, stored] : cases) {
        {
            Utility utility(exe_);
            ASSERT_TRUE(utility.Opened());
            utility.Enter(Place::TextPassword, typed);
            EXPECT_TRUE(SendMessageW(utility.Shown(Place::TextPassword), EM_GETPASSWORDCHAR, 0, 0)) << "not masked";
            utility.Click(Place::CommandOk);
            ASSERT_TRUE(utility.Ended());
        }
        EXPECT_EQ(StoredPassword(settings_), stored);

        // What the box shows next time is what it stores again when one more character is typed and taken back.
        Utility again(exe_);
        ASSERT_TRUE(again.Opened());
        StorePassword(settings_, TEXT(""));
        again.Click(Place::TextPassword);
        again.Press({VK_END});
        again.Press({'X'});
        again.Press({VK_BACK});
        again.Click(Place::CommandOk);
        ASSERT_TRUE(again.Ended());
        EXPECT_EQ(StoredPassword(settings_), stored);
    }
}

TEST_F(EndToEnd, ForeignStoredValue_ShowsEmptyAndIsReplaced)
{
    for (const WCHAR* foreign : {TEXT("YWJj"), TEXT("AYWJ"), TEXT("AYW!j")}) {
        StorePassword(settings_, foreign);
        Utility utility(exe_);
        ASSERT_TRUE(utility.Opened());
        utility.Click(Place::CommandOk);
        ASSERT_TRUE(utility.Ended());
        EXPECT_EQ(StoredPassword(settings_), TEXT(""));
    }
}

TEST_F(EndToEnd, EmptyBoxWithoutFile_CreatesNone)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Click(Place::CommandOk);
    ASSERT_TRUE(utility.Ended());
    EXPECT_FALSE(FileExists(settings_));
}

TEST_F(EndToEnd, OtherContentOfTheSettingsFile_IsLeftAlone)
{
    WritePrivateProfileStringW(TEXT("Agent"), TEXT("Port"), TEXT("5900"), settings_.c_str());
    WritePrivateProfileStringW(TEXT("Settings"), TEXT("Tray"), TEXT("1"), settings_.c_str());
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    utility.Enter(Place::TextPassword, TEXT("abc"));
    utility.Click(Place::CommandOk);
    ASSERT_TRUE(utility.Ended());
    EXPECT_EQ(ReadFile(settings_), "[Agent]\r\nPort=5900\r\n[Settings]\r\nTray=1\r\nPwd=AYWJj\r\n");
}

TEST_F(EndToEnd, EscAltF5AndTheCloseBox_DropWhatWasTyped)
{
    StorePassword(settings_, TEXT("AYWJj"));
    for (int way = 0; way < 3; ++way) {
        SCOPED_TRACE(way);
        Utility utility(exe_);
        ASSERT_TRUE(utility.Opened());
        utility.Enter(Place::TextPassword, TEXT("other"));
        if (way == 0)
            utility.Press({VK_ESCAPE});
        else if (way == 1)
            utility.Press({VK_MENU, VK_F5});
        else
            utility.ClickCloseBox();
        EXPECT_TRUE(utility.Ended());
        EXPECT_EQ(StoredPassword(settings_), TEXT("AYWJj"));
    }
}

TEST_F(EndToEnd, EscAndF5WithOtherKeysHeld_LeaveTheWindowOpen)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    for (const Place place : {Place::TextPassword, Place::CheckAutoStart, Place::cmdInstall, Place::ComboStartup}) {
        EXPECT_TRUE(utility.TabTo(place)) << FORM_MAP[static_cast<int>(place)].name;
        utility.Press({VK_SHIFT, VK_ESCAPE});
        utility.Press({VK_F5});
        utility.Press({VK_CONTROL, VK_MENU, VK_F5});
    }
    EXPECT_TRUE(Throughout(Milliseconds(300), [&] { return !utility.Ended(Milliseconds(0)); }));
    utility.Press({VK_ESCAPE});
    EXPECT_TRUE(utility.Ended());
}

}  // namespace e2e
