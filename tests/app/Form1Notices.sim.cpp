// The balloon that says why a button did not do what it was to do.
#include "platform/sim/Desktop.h"
#include "platform/sim/Graphics.h"
#include "platform/sim/Processes.h"
#include "platform/sim/Services.h"
#include "platform/sim/Volumes.h"
#include "tests/app/UtilityScene.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

constexpr const char16_t* name = u"Velmora";
constexpr const char16_t* exe = u"C:\\Tools\\Velmora.exe";

class Form1Notices : public testing::Test, protected tests::UtilityScene {
protected:
    /// The balloon, or the plain tip that a button shows when the mouse rests on it.
    HWND Balloon(bool plain = false)
    {
        for (const HWND window : The<Desktop>().Windows()) {
            WCHAR className[32]{};
            GetClassNameW(window, className, 32);
            if (className == base::StringView(TOOLTIPS_CLASSW) && IsWindowVisible(window) &&
                ((GetWindowLongW(window, GWL_STYLE) & TTS_BALLOON) == 0) == plain)
                return window;
        }
        return nullptr;
    }
    /// Title and text as they are drawn, with a bar between them; empty without a balloon.
    std::u16string Said()
    {
        const HWND balloon = Balloon();
        if (!balloon)
            return {};
        EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(balloon, GWL_STYLE)) & 0xFF, 0x43U) << "always, as it is written, a balloon";
        The<Graphics>().ForgetTexts();
        InvalidateRect(balloon, nullptr, TRUE);
        UpdateWindow(balloon);
        std::u16string said;
        for (const auto& text : The<Graphics>().Texts())
            if (text.window == balloon)
                said += (said.empty() ? u"" : u"|") + text.text;
        return said;
    }
};

TEST_F(Form1Notices, FailedClick_IsExplainedUntilItComesTrueOrTheUserActs)
{
    const auto launch = [&] {
        The<Processes>().Launch(exe);
        pc.Advance(700);
    };
    const struct {
        const char* what;
        const WCHAR* button;
        std::function<void()> scene;
        const char16_t* said;
        std::function<void()> comesTrue;
    } cases[] = {
        {"no such account", TEXT("cmdInstall"), [&] { pc.GetFaults().FailCall("CreateServiceW", ERROR_INVALID_SERVICE_ACCOUNT); },
         u"Install Service|The account name is invalid or does not exist, or the password is invalid for the account name "
         u"specified.\r\nError 1057",
         [&] { The<Services>().Install(name, exe); }},
        {"removed by another", TEXT("cmdInstall"),
         [&] {
             The<Services>().Install(name, exe);
             pc.Advance(1000);
             pc.GetFaults().FailCall("DeleteService", ERROR_SERVICE_MARKED_FOR_DELETE);
         },
         u"Uninstall Service|Error 1072", [&] { The<Services>().Delete(name); }},
        {"disabled", TEXT("cmdStart"),
         [&] {
             The<Services>().Install(name, exe).startType = SERVICE_DISABLED;
             pc.Advance(1000);
         },
         u"Start Service|The service cannot be started, either because it is disabled or because it has no enabled devices associated with "
         u"it.\r\nError 1058",
         [&] { The<Services>().SetState(name, SERVICE_RUNNING); }},
        {"not to be stopped", TEXT("cmdStart"),
         [&] {
             The<Services>().Install(name, exe);
             The<Services>().SetState(name, SERVICE_RUNNING);
             pc.Advance(1000);
             pc.GetFaults().FailCall("ControlService", ERROR_ACCESS_DENIED);
         },
         u"Stop Service|Access is denied.\r\nError 5", [&] { The<Services>().SetState(name, SERVICE_STOPPED); }},
        {"no program", TEXT("CommandStartVelmora"), [&] { The<Volumes>().Remove(exe); },
         u"Start Velmora|The system cannot find the file specified.\r\nError 2",
         [&] {
             The<Volumes>().WriteFile(exe, "MZ");
             launch();
         }},
        {"not to be started", TEXT("CommandStartVelmora"), [&] { pc.GetFaults().FailCall("CreateProcessW", ERROR_ACCESS_DENIED); },
         u"Start Velmora|Access is denied.\r\nError 5", launch},
    };
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"a click", [&] { The<Desktop>().Click(Form().hWnd(), 3, 3); }},
        {"a key", [&] { The<Desktop>().Press(VK_SHIFT); }},
        {"a press on the title bar", [&] { PostMessageW(Form().hWnd(), WM_NCLBUTTONDOWN, HTCAPTION, 0); }},
        {"ten seconds", [&] { pc.Advance(7200); }},
        {"the window goes", [&] { Form().Unload(); }},
        {"it comes true", nullptr}};
    for (const auto& [what, button, scene, said, comesTrue] : cases)
        for (const auto& [end, act] : ends) {
            SCOPED_TRACE(std::string(what) + ", " + end);
            ASSERT_TRUE(Open());
            scene();
            Click(button);
            EXPECT_EQ(Said(), said);
            EXPECT_TRUE(Enabled(button)) << "to be tried again";
            EXPECT_EQ(GetForegroundWindow(), Form().hWnd());
            EXPECT_NE(GetFocus(), Balloon());
            The<Desktop>().Hover(Form().Find(button)->hWnd(), 6, 5);
            pc.Advance(1900);
            EXPECT_EQ(Balloon(true), nullptr) << "the button's tip lies over it";
            EXPECT_EQ(Said(), said) << "it stays";
            (act ? act : comesTrue)();
            pc.Advance(1000);
            EXPECT_EQ(Balloon(), nullptr);
            Close();
            for (const DWORD agentProcess : The<Processes>().Running(exe))
                The<Processes>().End(agentProcess);
            if (The<Services>().Find(name))
                The<Services>().Delete(name);
            The<Volumes>().WriteFile(exe, "MZ");
        }
}

TEST_F(Form1Notices, FolderOfASystemServiceThatOthersCanChange_IsWarnedOf)
{
    const std::u16string warning =
        u"Install Service|The service is installed. Other programs can change what lies in its folder, and it runs with all rights: move "
        u"it "
        u"to a folder that only administrators can change, such as Program Files.";
    const struct {
        const char* what;
        FileRights folder, program;
        bool systemAccount, warns, keepsRights = true;
    } cases[] = {{"open folder", {}, {.users = kReadOnlyRights}, true, true},
                 {"open program", {.users = kReadOnlyRights}, {}, true, true},
                 {"both closed", {.users = kReadOnlyRights}, {.users = kReadOnlyRights}, true, false},
                 {"a disk without rights", {.users = kReadOnlyRights}, {.users = kReadOnlyRights}, true, true, false},
                 {"a user's account", {}, {}, false, false}};
    for (const auto& [what, folder, program, systemAccount, warns, keepsRights] : cases) {
        SCOPED_TRACE(what);
        The<Volumes>().PersistentAcls(u"C:\\", keepsRights);
        The<Volumes>().SetRights(u"C:\\Tools", folder);
        The<Volumes>().SetRights(exe, program);
        ASSERT_TRUE(Open());
        if (!systemAccount) {
            Check(TEXT("chkSystem")).Value(0);
            Text(TEXT("txtAccount")).Text(TEXT("OFFICE\\Anna"));
            Text(TEXT("txtPassword")).Text(TEXT("secret"));
        }
        Click(TEXT("cmdInstall"));
        EXPECT_EQ(The<Services>().Count(), 1u);
        EXPECT_EQ(Said(), warns ? warning : u"");
        The<Services>().Delete(name);
        pc.Advance(1000);
        EXPECT_EQ(Balloon(), nullptr) << "no service, no warning";
        Close();
    }
}

TEST_F(Form1Notices, AgentThatRunsAlready_IsSaid)
{
    ASSERT_TRUE(Open());
    The<Processes>().Launch(exe);
    pc.Advance(700);
    Click(TEXT("CommandStartVelmora"));
    EXPECT_EQ(Said(), u"Start Velmora|Velmora is already running.");
    EXPECT_FALSE(Enabled(TEXT("CommandStartVelmora")));
    EXPECT_TRUE(The<Processes>().Requests().empty());
    Click(TEXT("CommandCloseVelmora"));
    EXPECT_EQ(Balloon(), nullptr);
}

TEST_F(Form1Notices, WhatWorks_IsNotSpokenOf)
{
    The<Volumes>().SetRights(u"C:\\Tools", {.users = kReadOnlyRights});
    ASSERT_TRUE(Open());
    for (const WCHAR* const button : {TEXT("cmdInstall"), TEXT("cmdStart"), TEXT("CommandStartVelmora"), TEXT("CommandCloseVelmora")}) {
        Click(button);
        EXPECT_EQ(Balloon(), nullptr);
        pc.Advance(2500);
    }
}

}  // namespace
