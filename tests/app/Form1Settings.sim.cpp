// The password, the auto-start value and the OK button.
#include "platform/sim/Machine.h"
#include "platform/sim/Registry.h"
#include "platform/sim/Services.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"
#include "tests/app/UtilityScene.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

constexpr const char16_t* runKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

const std::u16string servicePanel =
    u"FrameService cmdInstall cmdStart lblAccount txtAccount lblPassword txtPassword chkSystem lblStartup ComboStartup tmrCheck";

class Form1Settings : public testing::Test, protected tests::UtilityScene {
protected:
    void ExpectAutoStart(int autoStart, int hide, int sound)
    {
        EXPECT_EQ(Check(TEXT("CheckAutoStart")).Value(), autoStart);
        EXPECT_EQ(Check(TEXT("CheckHideTrayIcon")).Value(), hide);
        EXPECT_EQ(Check(TEXT("CheckSoundStart")).Value(), sound);
        EXPECT_EQ(Enabled(TEXT("CheckHideTrayIcon")), autoStart == 1);
        EXPECT_EQ(Enabled(TEXT("CheckSoundStart")), autoStart == 1);
    }
};

TEST_F(Form1Settings, StoredPasswords_LoadOrShowAsEmpty)
{
    const std::string longText(300, 'Q');  // 225 bytes of value 0x41 0x04 0x10 ...
    const std::pair<std::string, std::size_t> cases[] = {{"AYWJj", 3}, {"WrCA=", 1}, {"YWJj", 0}, {"", 0}, {"A" + longText, 225}};
    for (const auto& [stored, length] : cases) {
        WriteSettings("[Settings]\r\nPwd=" + stored + "\r\n");
        ASSERT_TRUE(Open());
        EXPECT_EQ(Password().size(), length) << stored;
        Close();
    }
}

TEST_F(Form1Settings, FailedRead_ShowsNoPasswordRatherThanAPartOfIt)
{
    // The mark, three chunks and the way back to the line's end.
    WriteSettings("[Settings]\r\nPwd=A" + std::string(5000, 'Q') + "\r\n");
    for (const std::string_view function : {"ReadFile", "SetFilePointerEx"})
        for (const int last : {1, 1000000})  // once, and from then on
            for (int first = 1; first <= 8; ++first) {
                int count = 0;
                pc.Trace().OnCall = [&](std::string_view called) {
                    if (called == function && ++count >= first && count < first + last)
                        pc.GetFaults().FailCall(function, ERROR_ACCESS_DENIED);
                };
                ASSERT_TRUE(Open());
                EXPECT_EQ(Password().size(), count < first ? 3750u : 0u) << function << " " << first;
                EXPECT_TRUE(first > 1 || count > 0) << function << " is never called";
                Close();
            }
    pc.Trace().OnCall = nullptr;
}

TEST_F(Form1Settings, Ok_SavesThePasswordAndKeepsTheAgentsOwnSettings)
{
    const std::pair<const WCHAR*, const char*> cases[] = {{TEXT("abc"), "AYWJj"}, {TEXT("\x20AC"), "WrCA="}, {TEXT(""), ""}};
    for (const auto& [password, stored] : cases) {
        WriteSettings("[Other]\r\nx=1\r\n[Settings]\r\nPwd=AZg==\r\nSound=1\r\n");
        ASSERT_TRUE(Open());
        EXPECT_EQ(Password(), TEXT("f"));
        Text(TEXT("TextPassword")).Text(password);
        Click(TEXT("CommandOk"));
        EXPECT_FALSE(IsOpen()) << stored;
        EXPECT_EQ(Settings(), std::string("[Other]\r\nx=1\r\n[Settings]\r\nPwd=") + stored + "\r\nSound=1\r\n");
    }
}

TEST_F(Form1Settings, NoUsableFolder_LosesThePasswordSilently)
{
    The<Volumes>().PersistentAcls(u"C:\\", false);
    WriteSettings("[Settings]\r\nPwd=AYWJj\r\n");
    ASSERT_TRUE(Open());
    EXPECT_EQ(Password(), TEXT(""));
    Text(TEXT("TextPassword")).Text(TEXT("new"));
    Click(TEXT("CommandOk"));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Settings(), "[Settings]\r\nPwd=AYWJj\r\n");
    EXPECT_EQ(Settings(u"C:\\Windows\\Velmora.ini"), std::nullopt);
}

TEST_F(Form1Settings, AutoStartValues_CheckTheirBoxes)
{
    const struct {
        RegistryValue value;
        int autoStart, hide, sound;
    } cases[] = {
        {TextValue(u"\"C:\\Tools\\Velmora.exe\" /Hidden"), 1, 1, 0},
        {TextValue(u"\"C:\\Tools\\Velmora.exe\" /soundstart"), 1, 0, 1},
        {TextValue(u"x/HIDDENy/SOUNDSTARTz", REG_EXPAND_SZ), 1, 1, 1},
        {RegistryValue{REG_BINARY, "/\0H\0i\0d\0d\0e\0n\0"}, 1, 0, 0},
        {TextValue(std::u16string(u" /Hidden").append(504, u'x')), 0, 0, 0},  // too long to be read
    };
    for (const auto& c : cases) {
        The<Registry>().Set(HKEY_LOCAL_MACHINE, runKey, u"Velmora", c.value);
        ASSERT_TRUE(Open());
        SCOPED_TRACE(testing::Message() << "value " << &c - cases << " of the table");
        ExpectAutoStart(c.autoStart, c.hide, c.sound);
        Close();
    }
}

TEST_F(Form1Settings, AutoStartKeyThatDoesNotClose_CountsAsNotConfigured)
{
    SetAutoStart(u"x");
    pc.Trace().Start();
    pc.Trace().OnCall = [this](std::string_view function) {
        if (function != "RegCloseKey")
            return;
        pc.Trace().OnCall = nullptr;
        RegCloseKey(reinterpret_cast<HKEY>(std::stoull(pc.Trace().Of("RegQueryValueExW").front().arguments, nullptr, 16)));
    };
    ASSERT_TRUE(Open());
    EXPECT_FALSE(pc.Trace().OnCall);
    ExpectAutoStart(0, 0, 0);
}

TEST_F(Form1Settings, ConfiguredAutoStart_LocksTheServicePanel)
{
    SetAutoStart(u"x");
    The<Services>().Install(u"Velmora", u"C:\\Tools\\Velmora.exe");
    ASSERT_TRUE(Open());
    pc.Advance(3000);
    EXPECT_EQ(Disabled(), servicePanel + u" CommandCloseVelmora");
    EXPECT_EQ(Button(TEXT("cmdInstall")).Caption(), TEXT("Install Service"));
    ExpectAutoStart(1, 0, 0);
}

TEST_F(Form1Settings, Ok_WritesTheChosenSwitchesAndRemovesTheValueThatIsUnticked)
{
    const std::tuple<int, int, std::u16string> choices[] = {
        {0, 0, u""}, {1, 0, u" /Hidden"}, {0, 1, u" /SoundStart"}, {1, 1, u" /Hidden /SoundStart"}};
    for (const auto& [hide, sound, switches] : choices) {
        ASSERT_TRUE(Open());
        Check(TEXT("CheckAutoStart")).Value(1);
        Check(TEXT("CheckHideTrayIcon")).Value(static_cast<std::uint8_t>(hide));
        Check(TEXT("CheckSoundStart")).Value(static_cast<std::uint8_t>(sound));
        Click(TEXT("CommandOk"));
        EXPECT_EQ(AutoStart(), u"\"C:\\Tools\\Velmora.exe\"" + switches);
        EXPECT_EQ(Disabled(), servicePanel + u" CommandCloseVelmora");
        Close();
    }
    ASSERT_TRUE(Open());
    Check(TEXT("CheckAutoStart")).Value(0);
    ExpectAutoStart(0, 1, 1);
    Click(TEXT("CommandOk"));
    EXPECT_EQ(AutoStart(), std::nullopt);
    EXPECT_EQ(Disabled(), u"CheckHideTrayIcon CheckSoundStart CommandCloseVelmora");
    ASSERT_TRUE(Open());
    Click(TEXT("CommandOk"));
    EXPECT_FALSE(IsOpen()) << "there is nothing to remove";
    EXPECT_EQ(Settings(), std::nullopt) << "an empty password makes no file";
}

TEST_F(Form1Settings, Bits32On64_ReachTheRealRunKey)
{
    The<Machine>().Wow64(true);
    ASSERT_TRUE(Open());
    EXPECT_EQ(The<Machine>().DepPolicy(), 0u) << "switched off";
    Check(TEXT("CheckAutoStart")).Value(1);
    Click(TEXT("CommandOk"));
    EXPECT_EQ(AutoStart(), u"\"C:\\Tools\\Velmora.exe\"");
    EXPECT_EQ(The<Registry>().GetText(HKEY_LOCAL_MACHINE, runKey, u"Velmora", Registry::View::Bits32), std::nullopt);
    Close();
    ASSERT_TRUE(Open());
    ExpectAutoStart(1, 0, 0);
}

TEST_F(Form1Settings, OrdinaryUser_SeesAutoStartCannotChangeItAndOkCloses)
{
    SetAutoStart(u"old /Hidden");
    The<Users>().Administrator(false);
    ASSERT_TRUE(Open());
    EXPECT_EQ(Check(TEXT("CheckAutoStart")).Value(), 1);
    EXPECT_EQ(Check(TEXT("CheckHideTrayIcon")).Value(), 1);
    EXPECT_EQ(Check(TEXT("CheckSoundStart")).Value(), 0);
    Text(TEXT("TextPassword")).Text(TEXT("abc"));
    Click(TEXT("CommandOk"));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(AutoStart(), u"old /Hidden");
    EXPECT_EQ(Settings(), "[Settings]\r\nPwd=AYWJj\r\n");
}

}  // namespace
