#include "host/ComboBox.h"
#include "host/MessageLoop.h"
#include "host/TabOrder.h"
#include "tests/host/Probe.h"
#include "tests/support/SentMessages.h"

namespace tests {

class Focus : public HostTest {};

constexpr const char* four = R"(Form F {
    ClientWidth = 4500
    ClientHeight = 3000
    Probe Second { Left = 0 Top = 0 Width = 900 Height = 300 TabIndex = 2 }
    Probe First { Left = 0 Top = 600 Width = 900 Height = 300 TabIndex = 1 }
    ComboBox Combo { Left = 0 Top = 1200 Width = 1500 Height = 315 TabIndex = 5 List = ["a", "b"] }
    Probe Skipped { Left = 0 Top = 1800 Width = 900 Height = 300 TabIndex = 3 TabStop = False }
})";

TEST_F(Focus, Move_TellsTheOneThatIsLeftBeforeTheOneThatIsEntered)
{
    Open(four);
    EXPECT_EQ(ActiveName(), "First");
    EXPECT_EQ(GetFocus(), WindowOf(TEXT("First")));
    log.on["First.LostFocus"] = [&] { EXPECT_EQ(GetFocus(), WindowOf(TEXT("First"))); };
    ClickAt(WindowOf(TEXT("Second")), 0, 0);
    const Lines expected = {"First.LostFocus",          "First.ExitFocus",        "Second.EnterFocus", "Second.GotFocus",
                            "Second.MouseDown 1 0 0,0", "Second.MouseUp 1 0 0,0", "Second.Click"};
    EXPECT_EQ(log.Take(), expected);
    EXPECT_EQ(GetFocus(), WindowOf(TEXT("Second")));
    ProbeNamed(TEXT("Second")).SetFocus();
    EXPECT_EQ(log.Take(), Lines{});

    log.on["Second.LostFocus"] = [&] { EXPECT_EQ(GetFocus(), WindowOf(TEXT("Second"))); };
    const HWND combo = WindowOf(TEXT("Combo"));
    SendMessageW(combo, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0);
    EXPECT_EQ(log.Take(), (Lines{"Second.LostFocus", "Second.ExitFocus"}));
    EXPECT_EQ(ActiveName(), "Combo");
}

TEST_F(Focus, WhatAControlStandsIn_IsNotNextToIt)
{
    Open(R"(Form F { Probe Outer { Width = 3000 Height = 3000 TabIndex = 0
            Probe Inner { Width = 900 Height = 300 TabIndex = 1 } }
        Probe Beside { Top = 3300 Width = 900 Height = 300 TabIndex = 2 } })");
    const host::Control& inner = *form->Find(TEXT("Inner"));
    for (const auto direction : {host::FocusDirection::Forward, host::FocusDirection::Backward})
        for (const auto scope : {host::FocusScope::AllContainers, host::FocusScope::OtherContainers})
            EXPECT_EQ(host::NextInTabOrder(inner, direction, scope), form->Find(TEXT("Beside")));
    EXPECT_EQ(host::NextInTabOrder(inner, host::FocusDirection::Forward, host::FocusScope::OwnContainer), nullptr)
        << "nobody else stands in there";
}

TEST_F(Focus, OtherWindowTakingIt_LeavesTheControlActive)
{
    Open(four);
    SetFocus(nullptr);
    EXPECT_EQ(log.Take(), Lines{});
    EXPECT_EQ(ActiveName(), "First");
    // The form's own window hands it back.
    SetFocus(form->hWnd());
    EXPECT_EQ(log.Take(), Lines{"First.GotFocus"});
    EXPECT_EQ(GetFocus(), WindowOf(TEXT("First")));
}

TEST_F(Focus, DisabledOrHiddenControl_PassesItOn)
{
    Open(four);
    ProbeNamed(TEXT("First")).Enabled(false);
    EXPECT_EQ(ActiveName(), "Second");
    EXPECT_EQ(GetFocus(), WindowOf(TEXT("Second")));
    ProbeNamed(TEXT("First")).SetFocus();
    EXPECT_EQ(ActiveName(), "Second");
    ExtenderOf(TEXT("Second")).Visible(false);
    EXPECT_EQ(ActiveName(), "Combo");
    EXPECT_EQ(GetFocus(), WindowOf(TEXT("Combo")));
    form->Find<host::ComboBox>(TEXT("Combo"))->Enabled(false);
    EXPECT_EQ(ActiveName(), "none");
}

TEST_F(Focus, ControlThatIsEnabledAgain_GetsItBackUnlessTheUserHasMovedIt)
{
    const std::pair<std::function<void()>, const char*> meanwhile[] = {{[] {}, "First"},
                                                                       {[&] { ProbeNamed(TEXT("Second")).Enabled(false); }, "First"},
                                                                       {[&] { SetFocus(nullptr); }, "First"},
                                                                       {[&] { ProbeNamed(TEXT("Skipped")).SetFocus(); }, "Skipped"},
                                                                       {[&] {
                                                                            PostMessageW(WindowOf(TEXT("Second")), WM_LBUTTONDOWN,
                                                                                         MK_LBUTTON, 0);
                                                                            host::MessageLoop::RunPending();
                                                                        },
                                                                        "Second"},
                                                                       {[&] { Press(VK_SPACE); }, "Second"}};
    Open(four);
    for (const auto& [act, holder] : meanwhile) {
        ProbeNamed(TEXT("Second")).Enabled(true);
        ProbeNamed(TEXT("First")).SetFocus();
        ProbeNamed(TEXT("First")).Enabled(false);
        ASSERT_EQ(ActiveName(), "Second");
        act();
        ProbeNamed(TEXT("First")).Enabled(true);
        EXPECT_EQ(ActiveName(), holder);
        EXPECT_EQ(GetFocus(), WindowOf(form->ActiveControl()->GetExtender().Name()));
    }
}

TEST_F(Focus, SetFocus_InAnEventOfTheMove_IsTheLastWord)
{
    Open(four);
    log.on["First.ExitFocus"] = [&] { ProbeNamed(TEXT("Skipped")).SetFocus(); };
    for (const WCHAR* const given : {TEXT("Second"), TEXT("Combo")}) {
        ProbeNamed(TEXT("First")).SetFocus();
        form->Find(given)->SetFocus();
        host::MessageLoop::RunPending();
        EXPECT_EQ(ActiveName(), "Skipped");
        EXPECT_EQ(GetFocus(), WindowOf(TEXT("Skipped")));
    }
}

}  // namespace tests
