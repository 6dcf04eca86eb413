#include "app/helpers/StartUpChecks.h"

#include "app/helpers/MsgBox.h"
#include "app/helpers/Paths.h"
#include "app/helpers/SpecialFolders.h"
#include "platform/sim/Desktop.h"
#include "platform/sim/Folders.h"
#include "platform/sim/Machine.h"
#include "platform/sim/MessageBoxes.h"
#include "platform/sim/Modules.h"
#include "platform/sim/Processes.h"
#include "platform/sim/Users.h"
#include "platform/sim/Volumes.h"
#include "tests/support/FreshCaches.h"

#include <shlobj.h>

using namespace platform;

namespace {

class StartUpChecks : public tests::FreshCaches {
protected:
    SimPc& pc = SimPc::Current();
};

TEST_F(StartUpChecks, DepPolicy_FollowsItsTwoSwitches)
{
    pc.Get<Machine>().Wow64(true);  // 64-bit processes have no choice
    const std::tuple<bool, bool, std::optional<DWORD>> cases[] = {
        {false, true, std::nullopt}, {false, false, 0}, {true, false, 1}, {true, true, 3}};
    for (const auto& [enable, disableThunks, flags] : cases) {
        EXPECT_EQ(helpers::SetDEPPolicy(enable, disableThunks), flags.has_value());
        EXPECT_EQ(pc.Get<Machine>().DepPolicy(), flags);
    }
    pc.Get<Modules>().RemoveExport(u"kernel32.dll", "SetProcessDEPPolicy");
    EXPECT_FALSE(helpers::SetDEPPolicy(true, true));
}

TEST_F(StartUpChecks, Wow64_IsAskedOnceAndNeedsTheExport)
{
    EXPECT_FALSE(helpers::IsWow64());
    pc.Get<Machine>().Wow64(true);
    EXPECT_FALSE(helpers::IsWow64());
    helpers::ForgetCaches();
    EXPECT_TRUE(helpers::IsWow64());
    helpers::ForgetCaches();
    pc.Get<Modules>().RemoveExport(u"kernel32.dll", "IsWow64Process");
    EXPECT_FALSE(helpers::IsWow64());
}

TEST_F(StartUpChecks, Administrator_IsKnownByAdvpack)
{
    EXPECT_TRUE(helpers::IsUserAdmin());
    pc.Get<Users>().Administrator(false);
    EXPECT_FALSE(helpers::IsUserAdmin());
    pc.Get<Users>().Administrator(true);
    pc.Get<Modules>().RemoveLibrary(u"advpack.dll");
    EXPECT_FALSE(helpers::IsUserAdmin());
}

TEST_F(StartUpChecks, OwnPath_IsWholeHoweverLong)
{
    for (const std::size_t length : {1u, 240u, 250u, 270u, 510u, 2000u}) {
        const base::String folder = TEXT("C:\\") + base::String(length, TEXT('f')) + TEXT("\\");
        pc.Get<Processes>().OwnImage(folder + TEXT("Foo.Bar.exe"));
        helpers::ForgetCaches();
        EXPECT_EQ(helpers::GetAppPath(), folder);
        EXPECT_EQ(helpers::GetAppExeName(), TEXT("Foo.Bar"));
    }
}

TEST_F(StartUpChecks, SpecialFolders_EndAsAsked)
{
    EXPECT_EQ(helpers::GetSpecialFolder(CSIDL_APPDATA, true, true), TEXT("C:\\Users\\Anna\\AppData\\Roaming\\"));
    EXPECT_EQ(helpers::GetSpecialFolder(CSIDL_APPDATA, false, true), TEXT("C:\\Users\\Anna\\AppData\\Roaming"));
    EXPECT_EQ(helpers::GetSpecialFolder(helpers::temporaryFolder, false, true), TEXT("C:\\Users\\Anna\\AppData\\Local\\Temp"));
    pc.Get<Folders>().Path(CSIDL_APPDATA, u"");
    EXPECT_EQ(helpers::GetSpecialFolder(CSIDL_APPDATA, true, true), TEXT(""));
}

TEST_F(StartUpChecks, SystemFolder_IsRedirectedFor32BitProgramsOn64Bits)
{
    EXPECT_EQ(helpers::GetSpecialFolder(CSIDL_SYSTEM, true, false), TEXT("C:\\Windows\\system32\\"));
    helpers::ForgetCaches();
    pc.Get<Machine>().Wow64(true);
    pc.Get<Volumes>().MakeFolder(u"C:\\System32\\system32");
    pc.Get<Folders>().Path(CSIDL_SYSTEMX86, u"C:\\System32\\system32");
    EXPECT_EQ(helpers::GetSpecialFolder(CSIDL_SYSTEM, true, false), TEXT("C:\\Windows\\Sysnative\\"));
    EXPECT_EQ(helpers::GetSpecialFolder(CSIDL_SYSTEM, true, true), TEXT("C:\\Windows\\system32\\"));
    EXPECT_EQ(helpers::GetSpecialFolder(CSIDL_SYSTEMX86, false, false), TEXT("C:\\System32\\Sysnative")) << "the last one only";
    EXPECT_EQ(helpers::GetSpecialFolder(CSIDL_WINDOWS, false, false), TEXT("C:\\Windows"));
}

TEST_F(StartUpChecks, MessageBox_BelongsToTheRightWindow)
{
    const auto make = [] {
        return CreateWindowExW(0, TEXT("Static"), TEXT("w"), WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    };
    auto& boxes = pc.Get<MessageBoxes>();
    boxes.Answer(IDYES);
    EXPECT_EQ(helpers::MsgBoxEx(TEXT("text"), MB_YESNO, TEXT("")), IDYES);
    EXPECT_EQ(boxes.Last().caption, u"Velmora Setup Utility") << "the program's name";
    EXPECT_EQ(boxes.Last().owner, nullptr);

    const HWND own = make();
    SetForegroundWindow(own);
    helpers::MsgBoxEx(TEXT("text"), 48, TEXT("title"));
    EXPECT_EQ(boxes.Last().owner, own);

    HWND others = nullptr;
    auto& processes = pc.Get<Processes>();
    pc.ActAs(processes.Find(processes.Launch(u"C:\\a.exe"))->MainActor(), [&] { others = make(); });
    SetForegroundWindow(others);
    helpers::MsgBoxEx(TEXT("text"), 48, TEXT("title"));
    EXPECT_EQ(boxes.Last().owner, nullptr);
    helpers::MsgBoxEx(TEXT("text"), MB_ICONHAND | MB_OKCANCEL, TEXT("title"), own, TEXT("AAA"));
    EXPECT_EQ(boxes.Last().owner, own);
    EXPECT_EQ(boxes.Last().style, static_cast<DWORD>(MB_USERICON | MB_OKCANCEL));
    EXPECT_EQ(boxes.Last().icon, u"AAA");
    EXPECT_EQ(boxes.Last().caption, u"title");
    DestroyWindow(own);
}

TEST_F(StartUpChecks, Icons_GoToTheWindowAndTheLastOwner)
{
    const auto make = [](HWND owner) {
        return CreateWindowExW(0, TEXT("Static"), TEXT("w"), WS_POPUP, 0, 0, 9, 9, owner, nullptr, nullptr, nullptr);
    };
    pc.Get<Desktop>().AddIconResource(u"AAA");
    const HWND root = make(nullptr);
    const HWND middle = make(root);
    const HWND window = make(middle);
    pc.Trace().Start();
    helpers::SetWindowIcons(window);
    ASSERT_EQ(pc.Trace().Count("LoadImageW"), 2u);
    EXPECT_TRUE(pc.Trace().Of("LoadImageW")[0].arguments.ends_with("\"AAA\", 1, 0x20, 0x20, 0x8080"));
    EXPECT_TRUE(pc.Trace().Of("LoadImageW")[1].arguments.ends_with("\"AAA\", 1, 0x10, 0x10, 0x8080"));
    const auto icon = [](HWND of, WPARAM size) { return SendMessageW(of, WM_GETICON, size, 0); };
    EXPECT_NE(icon(window, ICON_BIG), 0);
    EXPECT_NE(icon(window, ICON_SMALL), 0);
    EXPECT_EQ(icon(root, ICON_BIG), icon(window, ICON_BIG));
    EXPECT_EQ(icon(middle, ICON_BIG), 0);
    DestroyWindow(root);
}

}  // namespace
