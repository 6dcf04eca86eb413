// Starting and ending the utility.
#include "platform/sim/Desktop.h"
#include "platform/sim/MessageBoxes.h"
#include "platform/sim/Modules.h"
#include "platform/sim/Processes.h"
#include "platform/sim/Services.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"
#include "tests/app/UtilityScene.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

class Form1StartUp : public testing::Test, protected tests::UtilityScene {};

TEST_F(Form1StartUp, FreshPc_ShowsTheWindowAsDesigned)
{
    ASSERT_TRUE(Open());
    EXPECT_TRUE(The<MessageBoxes>().All().empty());
    EXPECT_TRUE(IsWindowVisible(Form().hWnd()));
    EXPECT_EQ(The<Desktop>().Text(Form().hWnd()), u"Velmora Setup Utility");
    EXPECT_EQ(Disabled(), u"CheckHideTrayIcon CheckSoundStart cmdStart lblAccount txtAccount lblPassword txtPassword CommandCloseVelmora");
    EXPECT_EQ(Startup().Text(), TEXT("Automatic"));
    EXPECT_EQ(Text(TEXT("txtAccount")).Text(), TEXT("LocalSystem"));
    EXPECT_EQ(Password(), TEXT(""));
    for (const WCHAR* name : {TEXT("TextPassword"), TEXT("txtPassword")})
        EXPECT_NE(SendMessageW(Text(name).hWnd(), EM_GETPASSWORDCHAR, 0, 0), 0);
    EXPECT_NE(SendMessageW(Form().hWnd(), WM_GETICON, ICON_BIG, 0), 0);
    EXPECT_EQ(Settings(), std::nullopt);
}

TEST_F(Form1StartUp, SecondInstance_EndsSilently)
{
    The<Processes>().HoldMutex(u"Local\\Velmora Setup Utility");
    EXPECT_FALSE(Open());
    EXPECT_TRUE(The<MessageBoxes>().All().empty());
    Close();
    The<Processes>().ReleaseHeldMutex(u"Local\\Velmora Setup Utility");
    EXPECT_TRUE(Open());
    Close();
    EXPECT_TRUE(Open()) << "the first instance has let go of its mutex";
}

TEST_F(Form1StartUp, InstanceOfAnotherUser_IsToldByTheRefusal)
{
    pc.GetFaults().FailCall("CreateMutexW", ERROR_ACCESS_DENIED);
    EXPECT_FALSE(Open());
    pc.GetFaults().FailCall("CreateMutexW", ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_TRUE(Open());
}

TEST_F(Form1StartUp, FramesOfAnOrdinaryUser_EnabledAgain_AreAsAnAdministratorsAre)
{
    for (const bool installed : {false, true}) {
        if (installed)
            The<Services>().Install(u"Velmora", u"C:\\Tools\\Velmora.exe");
        The<Users>().Administrator(true);
        ASSERT_TRUE(Open());
        const std::u16string disabledBefore = Disabled();
        Close();
        The<Users>().Administrator(false);
        ASSERT_TRUE(Open());
        EXPECT_EQ(Disabled(),
                  u"FrameAutoStart CheckAutoStart CheckHideTrayIcon CheckSoundStart FrameService cmdInstall cmdStart lblAccount "
                  u"txtAccount lblPassword txtPassword chkSystem lblStartup ComboStartup CommandCloseVelmora");
        // The right to start is asked for by nothing else.
        const auto startRequests = [this] {
            pc.Trace().Start();
            Click(TEXT("cmdStart"));
            return std::ranges::count_if(pc.Trace().Of("OpenServiceW"),
                                         [](const CallRecord& call) { return call.arguments.ends_with(", 0x10"); });
        };
        EXPECT_EQ(startRequests(), 0) << "the frame keeps the mouse off its buttons";
        for (const WCHAR* name : {TEXT("FrameService"), TEXT("FrameAutoStart")})
            Form().Find(name)->Enabled(true);
        EXPECT_EQ(Disabled(), disabledBefore) << "installed " << installed;
        EXPECT_EQ(startRequests(), installed);
        Close();
    }
}

TEST_F(Form1StartUp, FramesOfAnOrdinaryUser_StayOffAtEveryTick)
{
    The<Users>().Administrator(false);
    ASSERT_TRUE(Open());
    const std::u16string off = Disabled();
    The<Services>().Install(u"Velmora", u"C:\\Tools\\Velmora.exe");
    for (const DWORD state : {SERVICE_RUNNING, SERVICE_STOPPED}) {
        The<Services>().SetState(u"Velmora", state);
        pc.Advance(1000);
        EXPECT_EQ(Disabled(), off) << "state " << state;
        EXPECT_EQ(Button(TEXT("cmdInstall")).Caption(), TEXT("Uninstall Service"));
    }
    The<Services>().Delete(u"Velmora");
    pc.Advance(1000);
    EXPECT_EQ(Disabled(), off) << "removed";
    EXPECT_EQ(Button(TEXT("cmdInstall")).Caption(), TEXT("Install Service"));
}

TEST_F(Form1StartUp, DoubleClick_ReachesAFrame)
{
    ASSERT_TRUE(Open());
    auto& frame = Find<controls::Frame>(TEXT("DFrame1"));
    int doubleClicks = 0;
    frame.DblClick.Connect([&] { ++doubleClicks; });
    The<Desktop>().DoubleClick(frame.hWnd(), 5, 20);
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(Form1StartUp, Keys_CloseTheWindowOnlyWithTheRightModifiers)
{
    ASSERT_TRUE(Open());
    auto& desktop = The<Desktop>();
    desktop.Press(VK_ESCAPE, kShift);
    desktop.Press(VK_ESCAPE, kAlt | kShift);
    desktop.Press(VK_F5);
    desktop.Press(VK_F5, kAlt | kControl);
    EXPECT_TRUE(IsOpen());
    desktop.Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
    ASSERT_TRUE(Open());
    desktop.Press(VK_F5, kAlt);
    EXPECT_FALSE(IsOpen());
    ASSERT_TRUE(Open());
    desktop.Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen()) << "Alt was let go while no window was there";
}

TEST_F(Form1StartUp, Closing_LetsGoOfEverything)
{
    pc.Trace().Start();
    ASSERT_TRUE(Open());
    pc.Trace().Stop();
    EXPECT_EQ(pc.Trace().Of("InitCommonControlsEx").at(0).arguments, "8, 0xFFFF") << "all classes there are";
    EXPECT_EQ(The<Modules>().LoadsOf(u"shell32.dll"), 8u) << "the program's own and one for each check box and text box";
    Text(TEXT("TextPassword")).Text(TEXT("edited"));
    SetAutoStart(u"kept");
    The<Desktop>().ClickCloseBox(Form().hWnd());
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(The<Modules>().LoadsOf(u"shell32.dll"), 0u);
    EXPECT_EQ(Settings(), std::nullopt) << "edits are discarded";
    EXPECT_EQ(AutoStart(), u"kept");
    EXPECT_EQ(The<Desktop>().TimersOf(SimPc::Own().process), 0u);
}

TEST_F(Form1StartUp, ThousandTicks_HoldNoMoreThanTen)
{
    ASSERT_TRUE(Open());
    The<Processes>().Launch(u"C:\\Tools\\Velmora.exe");
    The<Services>().Install(u"Velmora", u"\"C:\\Tools\\Velmora.exe\"");
    pc.Advance(10'000);
    const std::size_t handles = pc.Handles().Count(), windows = The<Desktop>().Windows().size();
    EXPECT_GT(windows, 0u);
    pc.Advance(990'000);
    EXPECT_EQ(pc.Handles().Count(), handles);
    EXPECT_EQ(The<Desktop>().Windows().size(), windows);
}

}  // namespace
