// Starting the exe: what it refuses, what its name decides, and that every control is where it was designed to be.
#include "tests/e2e/EndToEnd.h"

namespace e2e {

namespace {

/// The width that a check box gives itself: its caption, the mark and some room.
int AutoSizeWidth(const Designed& control)
{
    const HDC screen = GetDC(nullptr);
    const base::FontHandle font(CreateFontW(-MulDiv(33, GetDeviceCaps(screen, LOGPIXELSY), 4 * 72), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
                                            DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                                            control.font));
    const HGDIOBJ old = SelectObject(screen, font.Get());
    SIZE size = {};
    GetTextExtentPoint32W(screen, control.caption, lstrlenW(control.caption), &size);
    SelectObject(screen, old);
    ReleaseDC(nullptr, screen);
    return size.cx + GetSystemMetrics(SM_CXMENUCHECK) + 4 * GetSystemMetrics(SM_CXEDGE);
}

/// Waits for the process's message box, checks its words, presses Enter and waits for the end.
void ExpectMessageAndEnd(Utility& utility, base::StringView text)
{
    ASSERT_TRUE(Eventually([&] { return utility.MessageBox() != nullptr; }));
    const HWND box = utility.MessageBox();
    WCHAR shown[256] = {};
    EXPECT_TRUE(Eventually([&] { return GetWindowTextW(box, shown, 256) > 0; }));
    EXPECT_STREQ(shown, TEXT("Velmora Setup Utility"));
    bool found = false;
    for (HWND child = nullptr; (child = FindWindowExW(box, child, TEXT("Static"), nullptr)) != nullptr;) {
        SendMessageW(child, WM_GETTEXT, ARRAYSIZE(shown), reinterpret_cast<LPARAM>(shown));
        found = found || text == shown;
    }
    EXPECT_TRUE(found) << "the box says something else";
    EXPECT_TRUE(FindWindowExW(box, nullptr, TEXT("Button"), nullptr));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(utility.Ended());
}

}  // namespace

TEST_F(EndToEnd, AgentMissing_SaysSoAndEnds)
{
    EndProcesses(agent_);
    DeleteFileW(agent_.c_str());
    Utility utility(exe_);
    ExpectMessageAndEnd(utility, TEXT("\"Velmora.exe\" needs to be on this directory."));
}

TEST_F(EndToEnd, SecondCopy_EndsWithoutAWord)
{
    Utility first(exe_);
    ASSERT_TRUE(first.Opened());
    Utility second(exe_);
    bool boxSeen = false;
    EXPECT_TRUE(Eventually([&] {
        boxSeen = boxSeen || second.MessageBox();
        return second.Ended(Milliseconds(0));
    }));
    EXPECT_FALSE(boxSeen);
    EXPECT_TRUE(first.Responds());
}

TEST_F(EndToEnd, NameWithBlank_NamesTheAgentAndItsSettings)
{
    const base::String renamed = folder_.PutUtility(TEXT("Foo Bar.exe"));
    {
        Utility utility(renamed);
        ExpectMessageAndEnd(utility, TEXT("\"Foo.exe\" needs to be on this directory."));
    }
    const base::String fooAgent = folder_.PutAgent(TEXT("Foo.exe"));
    Utility utility(renamed);
    ASSERT_TRUE(utility.Opened());
    utility.Click(Place::cmdInstall);
    EXPECT_TRUE(Eventually([] { return InstalledService().has_value(); }));
    EXPECT_EQ(InstalledService().value_or(ServiceFacts{}).binaryPath, TEXT("\"") + fooAgent + TEXT("\""));
    ASSERT_TRUE(Eventually([&] { return utility.Enabled(Place::cmdInstall) && utility.Enabled(Place::cmdStart); }));
    utility.Click(Place::cmdInstall);
    ASSERT_TRUE(Eventually([&] { return utility.Enabled(Place::CheckAutoStart); }));

    utility.Click(Place::CheckAutoStart);
    utility.Enter(Place::TextPassword, TEXT("abc"));
    utility.Click(Place::CommandOk);
    ASSERT_TRUE(utility.Ended());
    EXPECT_EQ(StoredPassword(folder_ / TEXT("Foo.ini")), TEXT("AYWJj"));
    EXPECT_FALSE(FileExists(settings_));
    EXPECT_FALSE(FileExists(folder_ / TEXT("Foo Bar.ini")));
    EXPECT_EQ(AutoStartValue(), TEXT("\"") + fooAgent + TEXT("\""));
}

TEST_F(EndToEnd, NameWithoutBlank_StillMeansVelmora)
{
    Utility utility(folder_.PutUtility(TEXT("setup.exe")));
    EXPECT_TRUE(utility.Opened());
}

TEST_F(EndToEnd, EveryControl_IsWhereItWasDesigned)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    RECT client = {};
    GetClientRect(utility.Window(), &client);
    EXPECT_EQ(client.right, CLIENT_WIDTH);
    EXPECT_EQ(client.bottom, CLIENT_HEIGHT);
    for (const Designed& control : FORM_MAP) {
        SCOPED_TRACE(control.name);
        const HWND window = utility.Own(control.place);
        if (!window) {
            ADD_FAILURE() << "no window, or more than one, of its class is at its place";
            continue;
        }
        RECT actual = {};
        GetWindowRect(window, &actual);
        MapWindowPoints(nullptr, utility.Window(), reinterpret_cast<POINT*>(&actual), 2);
        const RECT designed = DesignedRect(control.place);
        const LONG width = control.caption ? AutoSizeWidth(control) : designed.right - designed.left;
        EXPECT_EQ(actual.right - actual.left, width);
        // A combo box takes its height from its font.
        if (control.kind != Kind::comboBox) {
            EXPECT_EQ(actual.bottom, designed.bottom);
        }
        EXPECT_TRUE(IsWindowVisible(window));
        EXPECT_TRUE(utility.Shown(control.place)) << "it hosts no system window";
    }
}

TEST_F(EndToEnd, FreshPc_OffersWhatCanBeDone)
{
    Utility utility(exe_);
    ASSERT_TRUE(utility.Opened());
    EXPECT_TRUE(utility.Enabled(Place::CheckAutoStart));
    EXPECT_FALSE(utility.Enabled(Place::CheckHideTrayIcon));
    EXPECT_FALSE(utility.Enabled(Place::CheckSoundStart));
    EXPECT_TRUE(utility.Enabled(Place::cmdInstall));
    EXPECT_FALSE(utility.Enabled(Place::cmdStart));
    EXPECT_TRUE(utility.Checked(Place::chkSystem));
    EXPECT_EQ(utility.Text(Place::txtAccount), TEXT("LocalSystem"));
    EXPECT_FALSE(utility.Enabled(Place::txtAccount));
    EXPECT_FALSE(utility.Enabled(Place::txtPassword));
    EXPECT_FALSE(utility.Enabled(Place::lblAccount));
    EXPECT_TRUE(utility.Enabled(Place::lblStartup));
    EXPECT_EQ(utility.Selected(Place::ComboStartup), 0);
    EXPECT_TRUE(utility.Enabled(Place::CommandStartVelmora));
    EXPECT_FALSE(utility.Enabled(Place::CommandCloseVelmora));
    WCHAR entry[32] = {};
    const WCHAR* const entries[] = {TEXT("Automatic"), TEXT("Manual"), TEXT("Disabled")};
    for (int index = 0; index < 3; ++index) {
        SendMessageW(utility.Own(Place::ComboStartup), CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(entry));
        EXPECT_STREQ(entry, entries[index]);
    }

    utility.Click(Place::chkSystem);
    EXPECT_TRUE(Eventually([&] { return utility.Enabled(Place::txtAccount) && utility.Enabled(Place::txtPassword); }));
    EXPECT_EQ(utility.Text(Place::txtAccount), TEXT(""));
}

}  // namespace e2e
