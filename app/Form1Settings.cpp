// What the agent reads when it starts: the password in its settings file and the switches of its auto-start value; and the OK button.
#include "app/AutoStart.h"
#include "app/Base64.h"
#include "app/Form1.h"
#include "app/helpers/Ini.h"
#include "app/helpers/Paths.h"
#include "app/SetEnabled.h"
#include "base/Wipe.h"

namespace app {

using base::String;

namespace {

constexpr base::StringView section = TEXT("Settings");
constexpr base::StringView passwordKey = TEXT("Pwd");

}  // namespace

void Form1::LoadPassword()
{
    if (!helpers::FileExists(IniFile))
        return;
    String stored = helpers::ReadIniString(IniFile, section, passwordKey, {});
    const base::WipeAtEnd wipeStored(stored);
    if (stored.empty())
        return;
    String password = Base64Decode(stored, Base64Prefixed);
    const base::WipeAtEnd wipePassword(password);
    TextPassword->Text(password);
}

void Form1::SavePassword()
{
    String password = TextPassword->Text();
    const base::WipeAtEnd wipePassword(password);
    if (password.empty() && !helpers::FileExists(IniFile))
        return;
    String stored = Base64Encode(password, Base64Prefixed);
    const base::WipeAtEnd wipeStored(stored);
    helpers::WriteIniString(IniFile, section, passwordKey, stored);
}

void Form1::TextPassword_Change()
{
    PasswordEdited = true;
}

bool Form1::LoadAutoStart()
{
    const auto options = ReadAutoStart(RunningOnWow64);
    if (!options)
        return false;
    CheckAutoStart->Value(1);
    if (options->hideTrayIcon)
        CheckHideTrayIcon->Value(1);
    if (options->soundStart)
        CheckSoundStart->Value(1);
    return true;
}

void Form1::CheckAutoStart_Click()
{
    const bool autoStart = CheckAutoStart->Value() == 1;
    SetEnabled(*CheckHideTrayIcon, autoStart);
    SetEnabled(*CheckSoundStart, autoStart);
}

void Form1::CommandOk_Click()
{
    if (CheckAutoStart->Value() == 1) {
        LockServicePanel();
        const AutoStartOptions options = {CheckHideTrayIcon->Value() == 1, CheckSoundStart->Value() == 1};
        WriteAutoStart(AutoStartData(AgentPath(), options), RunningOnWow64);
    } else {
        UnlockServicePanel();
        DeleteAutoStart(RunningOnWow64);
    }
    SavePassword();
    Unload();
}

}  // namespace app
